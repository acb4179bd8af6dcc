// The pages of a report as they are chosen, printed and stored.
#pragma once

#include <QRadioButton>

#include <array>
#include <span>
#include <vector>

#include "platform/text.h"
#include "records/bericht.h"

namespace Ui {
class Berichtsmaske;
}

/// What the report screens know of a page.
struct Seitenausgabe {
    using Wahl = QRadioButton *Ui::Berichtsmaske::*;

    Berichtsseite seite;
    platform::Text titel;                  ///< in titles of windows and print jobs
    std::array<platform::Text, 2> layout;  ///< files for medical and for stationary devices
    platform::Text meldung;                ///< its PDF file is there
    std::array<const char *, 2> stufenTag; ///< of failures while staging; working, archived
    std::vector<Wahl> wahl;                ///< controls that choose it
    bool zählt;                            ///< printed, it counts as the protocol
};
/// In the order of a complete set.
std::span<const Seitenausgabe> seitenausgaben();

/// The layout file of a page in the language of the session; nothing for an unknown class where the
/// page depends on it.
QString layoutname(const Seitenausgabe &seite, std::int16_t klasse);
