#include "records/toleranz.h"

#include "platform/runtime.h"
#include "records/satz.h"
#include "records/spalte.h"
#include "session/sprache.h"
#include "store/database.h"

namespace {

QString zahlText(const Feld &feld) {
    return feld.isNull() ? QString() : CStr(feld.number());
}

QString mitPunkt(QString text) {
    fnc_KommaZuPunkt(text);
    return text;
}

Recordset zeileMitID(Schlüssel id) {
    return gDatenbank.open("SELECT * FROM Toleranzen WHERE ID = ?", {id});
}

} // namespace

bool Toleranz::vollständig() const {
    for (const QString &text : {bezeichnung, prozent, watt, grenzAbw, gKlasse, messverfahren}) {
        if (text.trimmed().isEmpty())
            return false;
    }
    return true;
}

std::optional<QString> klasseZurTaste(const QString &taste) {
    if (taste == "M")
        return inSprache(klasseMedizin);
    return taste == "S" ? std::optional(inSprache(klasseStationär)) : std::nullopt;
}

bool außerhalb(const QString &text, double kleinster, double größter) {
    const double value = Val(text);
    return value > größter || value < kleinster;
}

bool beideAußerhalb(const QString &prozent, const QString &watt) {
    const double percent = CDbl(prozent);
    const double watts = CDbl(watt);
    return (percent > größteLeistungstoleranz || percent < 0) &&
           (watts > größteLeistungstoleranz || watts < 3);
}

std::optional<QString> leistungGerundet(const QString &text, int halbeAb) {
    const QString tenths = CStr(Round(CDbl(text), 1));
    const qsizetype comma = tenths.indexOf(',');
    if (comma < 0)
        return {};
    const int whole = tenths.left(comma).toInt();
    if (whole < halbeAb)
        return tenths;
    const int digit = tenths.at(comma + 1).digitValue();
    if (digit >= 8)
        return QString::number(whole + 1) + ",0";
    return QString::number(whole) + (digit <= 2 ? ",0" : ",5");
}

QString drehzahlGerundet(const QString &text) {
    return CStr(Round(CDbl(text), 1));
}

Recordset toleranzListe() {
    return gDatenbank.open("SELECT ID, ifnull(Bezeichnung, '') || '   (' || "
                           "ifnull(CStr(Prozent), '') || '% ; ' || ifnull(CStr(Watt), '') || "
                           "'W ; ' || ifnull(CStr(GrenzAbw), '') || ? AS Toleranz "
                           "FROM Toleranzen ORDER BY Bezeichnung, ID",
                           {inSprache({" 1/min)", " rpm)"})});
}

QStringList toleranznamen() {
    return spalte(gDatenbank.open("SELECT Bezeichnung FROM Toleranzen"));
}

Recordset toleranzMitNamen(const QString &bezeichnung) {
    return gDatenbank.open("SELECT ID FROM Toleranzen WHERE Bezeichnung = ?", {bezeichnung});
}

std::optional<Toleranz> toleranzMitID(Schlüssel id) {
    const Recordset row = zeileMitID(id);
    if (row.empty())
        return {};
    return Toleranz{row["Bezeichnung"].text(), zahlText(row["Prozent"]),
                    zahlText(row["Watt"]),     zahlText(row["GrenzAbw"]),
                    row["GKlasse"].text(),     row["Messverfahren"].text()};
}

std::optional<Spezifikation> spezifikationMitID(Schlüssel id) {
    const Recordset row = zeileMitID(id);
    if (row.empty())
        return {};
    return Spezifikation{row["Prozent"].number(), row["Watt"].number(),
                         static_cast<std::int16_t>(Round(row["GrenzAbw"].number())),
                         row["Bezeichnung"].text()};
}

bool bezeichnungVergeben(const QString &bezeichnung) {
    return !gDatenbank
                .open("SELECT Bezeichnung FROM Toleranzen WHERE Gleich(Bezeichnung, ?)",
                      {bezeichnung})
                .empty();
}

std::optional<QString> toleranzMitWerten(const QString &prozent, const QString &watt) {
    const Recordset rows =
        gDatenbank.open("SELECT Bezeichnung FROM Toleranzen WHERE Prozent = ? AND Watt = ?",
                        {mitPunkt(prozent), mitPunkt(watt)});
    if (rows.empty())
        return {};
    return rows[0].text();
}

void toleranzEinfügen(const Toleranz &toleranz) {
    gDatenbank.execute(
        "INSERT INTO Toleranzen (Bezeichnung, Prozent, Watt, GrenzAbw, GKlasse, Messverfahren) "
        "VALUES (?, ?, ?, ?, ?, ?)",
        {toleranz.bezeichnung, CDbl(toleranz.prozent), CDbl(toleranz.watt), CDbl(toleranz.grenzAbw),
         toleranz.gKlasse, toleranz.messverfahren});
}

void toleranzÄndern(Schlüssel id, const Toleranz &toleranz) {
    satzÄndern("UPDATE Toleranzen SET Bezeichnung = ?, Prozent = ?, Watt = ?, "
               "GrenzAbw = ?, GKlasse = ?, Messverfahren = ? WHERE ID = ?",
               {toleranz.bezeichnung, CDbl(toleranz.prozent), CDbl(toleranz.watt),
                CDbl(toleranz.grenzAbw), toleranz.gKlasse, toleranz.messverfahren, id});
}

void toleranzLöschen(Schlüssel id) {
    gDatenbank.execute("DELETE FROM Toleranzen WHERE ID = ?", {id});
}
