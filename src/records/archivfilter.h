// What the recall list and the extended deletion read: the lists that a chain of filters narrows,
// and the rows that are left. A filter is a condition on customers, on units or on archived
// protocols.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/text.h"
#include "session/session.h"

/// Which of the two screens searches.
enum class Filterart { Wiedervorlage, Löschen };

inline constexpr int filteranzahl = 6;
inline constexpr int kundenfilter = 2, datumsfilter = 5; ///< positions

/// A condition, or several, and what is bound to its places in turn. Without text there is none.
struct Bedingung {
    QString text = {};
    std::vector<QVariant> werte = {};
};
/// Those in use, by position.
using Bedingungen = std::array<Bedingung, filteranzahl>;

struct Filterposition {
    QString liste;               ///< name of the control; empty where the screen has no such filter
    platform::Text beschriftung; ///< up to the count, with its access key
    QString tabelle;             ///< that the condition is about
    QString bedingung;           ///< with a place for each value
    QString schlicht;            ///< statement of the list while no filter has been used yet
    QString gefiltert;           ///< and afterwards, see archivfilter.cpp
};
const std::array<Filterposition, filteranzahl> &filterpositionen(Filterart art);

/// The column of an order, " Kunden.Name"; empty for any other number.
QString sortierspalte(Filterart art, int spalte);

/// The statement of a position's list.
Bedingung listenanweisung(Filterart art, int position, const Bedingungen &bedingungen, bool aktiv);

/// What a list offers, in its order.
QStringList filterliste(const Bedingung &anweisung);
/// The same where it offers archived protocols: their numbers alone, since there may be very many.
std::vector<Schlüssel> protokollliste(const Bedingung &anweisung);
/// Number, " - " and name of an archived protocol.
QString protokolleintrag(Schlüssel protokollID);
/// First and last day that the position of the dates offers, calibrations; invalid without one.
std::pair<QDate, QDate> filterdaten(const Bedingung &anweisung);
/// 0 unless exactly one customer bears the name.
Schlüssel einzigerKunde(const QString &name);

/// A row of the recall list: a calibration of a unit, a unit without one, or a customer without a
/// unit.
struct Wiedervorlage {
    qlonglong kundenID = 0;
    qlonglong gerätID = 0;       ///< 0 without a unit
    std::string kalibriert = {}; ///< ISO date, empty without a calibration
};
/// `where` and `orderBy` as the chain of filters makes them. No row comes twice.
std::vector<Wiedervorlage> wiedervorlagen(const Bedingung &where, const QString &orderBy);

struct Wiedervorlagetexte {
    QString kunde, straße, plz, ort, hersteller, gerätetyp, identNr;
    bool neueste = false; ///< no later calibration of the unit is in the archive
};
/// Of a row whose customer or unit is gone meanwhile: empty.
Wiedervorlagetexte texteLesen(const Wiedervorlage &zeile);

/// Those of which the archive has no later calibration of the unit.
std::vector<Wiedervorlage> neueste(const std::vector<Wiedervorlage> &zeilen);

/// Customer, street, postcode, town, maker, type, ident number; UTF-8, each with a zero behind it.
using Wiedervorlagezellen = std::array<std::string_view, 7>;
/// Hands over these of all rows in turn.
void alleTexteLesen(
    const std::vector<Wiedervorlage> &zeilen,
    const std::function<void(const Wiedervorlage &, const Wiedervorlagezellen &)> &zeile);

/// Numbers of archived protocols, as above.
std::vector<Schlüssel> archivierte(const Bedingung &where, const QString &orderBy);

struct Archivtexte {
    QString protokoll; ///< number, " - ", name
    QDate kalibriert;
    QString kunde, identNr, gerätetyp, hersteller;
};
Archivtexte texteLesen(Schlüssel protokollID);

/// A calibration is valid for two years: when the next one is due, and which one is due then.
/// 29 February has 28 February as its neighbour.
QDate nächsteKalibrierung(const QDate &kalibriert);
QDate kalibriertFür(const QDate &fällig);
