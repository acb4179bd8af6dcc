// How a step is judged, and what it may ask of the stand.
#pragma once

#include <QString>

#include <optional>

#include "platform/text.h"

/// What a step may ask of the stand. Speed and power are not negative.
struct Schrittgrenzen {
    double drehzahl;   ///< 1/min, the greatest
    bool stillstand;   ///< whether speed 0 is accepted
    double leistung;   ///< W, the greatest
    double drehmoment; ///< N m, the greatest
};

/// How a step is judged, as its code is stored.
struct Prüfart {
    static constexpr int Keine = 0; ///< nothing chosen yet; never stored
    static constexpr int Leistung = 1;
    static constexpr int Drehzahl = 2;

    static inline const platform::Text leistungText{"Leistungsmessung", "Power Measurement"};
    static inline const platform::Text drehzahlText{"Drehzahlmessung", "Speed Measurement"};

    /// By the first letter, in either language: L and P, D and S.
    static int ausAnfang(const QString &text);
    /// By the whole text in the language of the session.
    static int ausText(const QString &text);
    /// The text that a key stands for in the language of the session: its first letter or its code.
    static std::optional<QString> ausTaste(const QString &taste);
};
