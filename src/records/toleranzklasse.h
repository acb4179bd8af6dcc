// The tolerance classes of the final test. They are part of the program; a recipe holds the text.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include "records/toleranz.h"

struct Toleranzklasse {
    bool beurteilt = true; ///< otherwise rows are stored without a verdict
    /// `prozent` is a share here (0.05 for 5 %); `grenzAbw` 0 means that the speed is not judged.
    Spezifikation grenzen;
};

/// The class of this text, letter by letter; nothing for a text that is none.
std::optional<Toleranzklasse> toleranzklasse(const QString &text);

/// Those offered for a recipe, in both languages.
const QStringList &toleranzklassen();
/// The same class in the language of the session, for print; a text that is none as it is.
QString klasseInSprache(const QString &text);
