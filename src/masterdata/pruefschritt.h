// One test step of a recipe as a person enters it: what it may ask of the stand, what is missing,
// and how its type is written. No widget, no database.
#pragma once

#include <QString>

#include <optional>

#include "drehmoment.h"
#include "text.h"

/// What a step may ask of the stand. Speed and power are not negative.
struct Schrittgrenzen {
    double drehzahl;   ///< 1/min, the greatest
    bool stillstand;   ///< whether speed 0 is accepted
    double leistung;   ///< W, the greatest
    double drehmoment; ///< N m, the greatest
};
inline constexpr Schrittgrenzen grenzenNeuRezept{120, false, 600, grenzDrehmoment};
inline constexpr Schrittgrenzen grenzenÄndRez{120, true, 600, grenzDrehmoment};

enum class Wertprüfung { Gültig, NichtNumerisch, AußerhalbBereich };

/// Under the number format of the session.
Wertprüfung drehzahlPrüfen(const QString &text, const Schrittgrenzen &grenzen);
Wertprüfung leistungPrüfen(const QString &text, const Schrittgrenzen &grenzen);

/// Whether the torque of the two texts is permissible; a comma counts as the decimal point, and
/// what is no number as 0.
bool drehmomentZulässig(QString drehzahl, QString leistung, const Schrittgrenzen &grenzen);
/// Tells that it is not.
void drehmomentMelden(const Schrittgrenzen &grenzen);

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

/// " die Drehzahl, Leistung und Prüfart" and the like: what of a step is missing, for a sentence in
/// German. Empty when nothing is.
QString fehlendeAngaben(bool drehzahl, bool leistung, bool prüfart);
