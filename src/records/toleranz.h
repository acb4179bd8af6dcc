// A specification as a person types it: what may be entered, how it is rounded, where it is stored.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

#include "platform/fehler.h"
#include "session/session.h"
#include "store/recordset.h"

/// The six values as their fields show them: numbers in the number format of the session.
struct Toleranz {
    QString bezeichnung;
    QString prozent;  ///< permissible deviation of power, %
    QString watt;     ///< permissible deviation of power, W
    QString grenzAbw; ///< permissible deviation of speed, 1/min
    QString gKlasse;
    QString messverfahren;

    bool vollständig() const;
};

/// What a measurement is judged by.
struct Spezifikation {
    double prozent = 0; ///< permissible deviation of power, % of the set-point
    double watt = 0;    ///< permissible deviation of power at least, W
    std::int16_t grenzAbw =
        0; ///< permissible deviation of speed, 1/min; halves were rounded to even
    QString bezeichnung = {};
};

// The classes that are offered. What is stored is the text, so a row keeps the language in which it
// was saved; reports know both.
inline const Text klasseMedizin{"Medizinische Geräte", "Medical Devices"};
inline const Text klasseStationär{"Stationäre Trainingsgeräte", "Stationary Devices"};

/// What typing makes of the class: "M" gives the medical one, "S" the stationary one.
std::optional<QString> klasseZurTaste(const QString &taste);

inline constexpr double größteLeistungstoleranz = 20; // of both, % and W

/// Whether the number lies outside. It ends at a comma, so decimals behind one are not looked at.
bool außerhalb(const QString &text, double kleinster, double größter);
/// Whether percentage and wattage are both outside. Raises TypeMismatch.
bool beideAußerhalb(const QString &prozent, const QString &watt);

// From these values on whole and half steps are used; below, tenths.
inline constexpr int halbeSchritteAbProzent = 5;
inline constexpr int halbeSchritteAbWatt = 3;

/// The text in tenths, or from `halbeAb` on in halves. Nothing for a number that is whole after
/// rounding to tenths, and under a number format without a decimal comma. Raises TypeMismatch.
std::optional<QString> leistungGerundet(const QString &text, int halbeAb);
/// The text in tenths. Raises TypeMismatch.
QString drehzahlGerundet(const QString &text);

/// ID and, as Toleranz, what the picker shows, in the order of the names.
Recordset toleranzListe();
/// In no order.
QStringList toleranznamen();
/// ID of the specifications of this name.
Recordset toleranzMitNamen(const QString &bezeichnung);
/// Nothing when there is no such row.
std::optional<Toleranz> toleranzMitID(Schlüssel id);
std::optional<Spezifikation> spezifikationMitID(Schlüssel id);
/// Letters count without regard to case.
bool bezeichnungVergeben(const QString &bezeichnung);
/// Name of the first one with the same percentage and wattage; decimal comma or point.
std::optional<QString> toleranzMitWerten(const QString &prozent, const QString &watt);

// These raise TypeMismatch for a number that is none, before anything is written.
void toleranzEinfügen(const Toleranz &toleranz);
void toleranzÄndern(Schlüssel id, const Toleranz &toleranz);
/// Recipes and protocols that refer to it are not looked at.
void toleranzLöschen(Schlüssel id);
