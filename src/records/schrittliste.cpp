#include "records/schrittliste.h"

#include <algorithm>

#include "platform/runtime.h"
#include "records/satz.h"
#include "session/sprache.h"
#include "store/database.h"

namespace {

/// Leaves a failing statement and goes on with the next.
template <class Statement>
void überspringen(Statement statement) try {
    statement();
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

/// A number as the session writes it. What is none stays as it stands.
QString angezeigt(const Feld &feld) {
    const QString text = feld.text();
    QString number = text;
    number.replace(',', '.');
    bool isNumber = false;
    number.toDouble(&isNumber);
    return isNumber ? CStr(feld.number()) : text;
}

} // namespace

std::vector<Umnummerierung> platzSchaffen(int nummer, int größte) {
    std::vector<Umnummerierung> plan;
    for (int i = größte; i >= nummer; --i)
        plan.push_back({i, i + 1});
    return plan;
}

std::vector<Umnummerierung> lückeSchließen(int nummer, int größte) {
    std::vector<Umnummerierung> plan;
    for (int i = nummer + 1; i <= größte; ++i)
        plan.push_back({i, i - 1});
    return plan;
}

Anzahlprüfung anzahlPrüfen(const QString &text) {
    // Thousands in groups are another number to the run, and beyond these it has none.
    if (!IsNumeric(text) || CDbl(text) != ValBeider(text) || CDbl(text) > größteAnzahl)
        return Anzahlprüfung::KeineZahl;
    return platform::Round(CDbl(text)) < 1 ? Anzahlprüfung::Keine : Anzahlprüfung::Gültig;
}

/// Raises for a step that no recipe may hold.
void Schrittliste::vollständigVerlangen(const Schritt &schritt) const {
    CDbl(schritt.drehzahl);
    CDbl(schritt.leistung);
    const bool gezählt = std::ranges::all_of(mWeitere, [&](const Schrittspalte &s) {
        return !s.anzahl || anzahlPrüfen(schritt.*s.wert) == Anzahlprüfung::Gültig;
    });
    if (schritt.nummer < 1 || schritt.prüfart == Prüfart::Keine || !gezählt)
        throw Fehler(platform::fehlernummer::TypeMismatch,
                     {"Der Prüfschritt ist unvollständig.", "The test step is incomplete."});
}

int Schrittliste::execute(const char *sql, const std::vector<QVariant> &params) const {
    return gDatenbank.execute(QString(sql).arg(mTabelle), params);
}

int Schrittliste::größteNummer(Schlüssel rezeptID) const {
    return gDatenbank
        .open(QString("SELECT max(Val(Prüfschritt)) AS MaxPr FROM %1 WHERE RezeptID = ?")
                  .arg(mTabelle),
              {schlüssel(rezeptID)})["MaxPr"]
        .whole();
}

bool Schrittliste::vorhanden(Schlüssel rezeptID, int nummer) const {
    return !gDatenbank
                .open(QString("SELECT Prüfschritt FROM %1 WHERE RezeptID = ? "
                              "AND Val(Prüfschritt) = ?")
                          .arg(mTabelle),
                      {schlüssel(rezeptID), nummer})
                .empty();
}

void Schrittliste::anlegen(Schlüssel rezeptID, const Schritt &schritt) const {
    vollständigVerlangen(schritt);
    QString columns = "RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart";
    QString values = "?, ?, ?, ?, ?";
    Datenbank::Params params{schlüssel(rezeptID), QString::number(schritt.nummer), schritt.drehzahl,
                             CDbl(schritt.leistung), QString::number(schritt.prüfart)};
    for (const auto &[name, wert, anzahl] : mWeitere) {
        columns += QString(", ") + name;
        values += ", ?";
        params.push_back(schritt.*wert);
    }
    gDatenbank.execute(QString("INSERT INTO %1 (%2) VALUES (%3)").arg(mTabelle, columns, values),
                       params);
}

void Schrittliste::ändern(Schlüssel rezeptID, const Schritt &schritt) const {
    vollständigVerlangen(schritt);
    QString columns = "Drehzahl = ?, Leistung = ?, Prüfart = ?";
    Datenbank::Params params{schritt.drehzahl, CDbl(schritt.leistung),
                             QString::number(schritt.prüfart)};
    for (const auto &[name, wert, anzahl] : mWeitere) {
        columns += QString(", %1 = ?").arg(name);
        params.push_back(schritt.*wert);
    }
    params.insert(params.end(), {schritt.nummer, schlüssel(rezeptID)});
    satzÄndern(QString("UPDATE %1 SET %2 WHERE Val(Prüfschritt) = ? AND RezeptID = ?")
                   .arg(mTabelle, columns),
               params);
}

void Schrittliste::umnummerieren(Schlüssel rezeptID, const Umnummerierung &nummer) const {
    execute("UPDATE %1 SET Prüfschritt = ? WHERE Val(Prüfschritt) = ? AND RezeptID = ?",
            {QString::number(nummer.nach), nummer.von, schlüssel(rezeptID)});
}

void Schrittliste::einfügen(Schlüssel rezeptID, const Schritt &schritt) const {
    vollständigVerlangen(schritt); // before anything has moved
    for (const Umnummerierung &number : platzSchaffen(schritt.nummer, größteNummer(rezeptID)))
        umnummerieren(rezeptID, number);
    anlegen(rezeptID, schritt);
}

void Schrittliste::löschen(Schlüssel rezeptID, int nummer) const {
    const int greatest = größteNummer(rezeptID);
    überspringen([&] {
        execute("DELETE FROM %1 WHERE Val(Prüfschritt) = ? AND RezeptID = ?",
                {nummer, schlüssel(rezeptID)});
    });
    for (const Umnummerierung &number : lückeSchließen(nummer, greatest))
        überspringen([&] { umnummerieren(rezeptID, number); });
}

/// Asks for the two words of the type.
QString Schrittliste::spalten() const {
    QString columns = "SELECT Prüfschritt, Drehzahl, Leistung, IIF(Prüfart='1', ?, ?) AS Messart";
    for (const Schrittspalte &spalte : mWeitere)
        columns += QString(", ") + spalte.name;
    return columns + " FROM " + mTabelle;
}

Recordset Schrittliste::lesen(Schlüssel rezeptID, const Text &leistung,
                              const Text &drehzahl) const {
    return gDatenbank.open(spalten() + " WHERE RezeptID = ? ORDER BY Val(Prüfschritt)",
                           {inSprache(leistung), inSprache(drehzahl), schlüssel(rezeptID)});
}

Recordset Schrittliste::alle() const {
    return gDatenbank.open(
        spalten() + " WHERE RezeptID * ? > 0",
        {inSprache(Prüfart::leistungText), inSprache(Prüfart::drehzahlText), mVorzeichen});
}

Schritt Schrittliste::schrittAus(const Recordset &rows) const {
    Schritt schritt{rows["Prüfschritt"].whole(), angezeigt(rows["Drehzahl"]),
                    angezeigt(rows["Leistung"]), Prüfart::ausAnfang(rows["Messart"].text())};
    for (const auto &[name, wert, anzahl] : mWeitere)
        schritt.*wert = anzahl ? angezeigt(rows[name]) : rows[name].text();
    return schritt;
}
