#include "records/archivfilter.h"

#include <QHash>
#include <QSet>

#include <functional>

#include "records/schluessel.h"
#include "store/database.h"
#include "store/sqltext.h"

namespace {

constexpr int gültigkeit = 2; // years
constexpr size_t isoLänge = 10;

// Units and protocols of a customer hang on him independently, and joined they multiply. A list
// shows one column without repetition, so that what is only asked to be there is no join here:
//
// {Kunden}, {Ergometer}, {Protokoll}
//                  " AND " and each condition on this table
// {mit Ergometer}, {mit Protokoll}
//                  where there are such: the customer has a row that meets all of them
// {alle}           each condition
const QString kundenspalte =
    "SELECT DISTINCT Kunden.%1 FROM Kunden WHERE 1{Kunden}{mit Ergometer}{mit Protokoll} ORDER BY "
    "1";
const QString gerätespalte =
    "SELECT DISTINCT Ergometer.%1 FROM Kunden LEFT JOIN Ergometer "
    "ON Kunden.KundenID = Ergometer.KundenID WHERE 1{Kunden}{Ergometer}{mit Protokoll} ORDER BY 1";
const QString schlichteSpalte = "SELECT DISTINCT %1 FROM %2 ORDER BY 1";
const QString alleDaten = "SELECT MIN(ErstellDatum), MAX(ErstellDatum) FROM Protokoll";
const QString gefilterteDaten =
    "SELECT MIN(Protokoll.ErstellDatum), MAX(Protokoll.ErstellDatum) FROM Kunden LEFT JOIN "
    "Protokoll ON Kunden.KundenID = Protokoll.KundenID WHERE 1{Kunden}{Protokoll}{mit Ergometer}";
const QString archivverbund =
    "FROM Protokoll INNER JOIN Kunden ON Protokoll.KundenID = Kunden.KundenID "
    "INNER JOIN Ergometer ON Protokoll.GerätID = Ergometer.GerätID ";

const std::array<Filterposition, filteranzahl> wiedervorlage{{
    {"cmbPLZ",
     {"P&LZ (", "&ZIP Code ("},
     "Kunden",
     " Kunden.PLZ = ?",
     schlichteSpalte.arg("PLZ", "Kunden"),
     kundenspalte.arg("PLZ")},
    {"cmbOrt",
     {"&Ort (", "City/To&wn ("},
     "Kunden",
     " Kunden.Ort = ?",
     schlichteSpalte.arg("Ort", "Kunden"),
     kundenspalte.arg("Ort")},
    {"cmbKunde",
     {"&Kunden (", "&Customer ("},
     "Kunden",
     " Kunden.KundenID = ?",
     "SELECT Name FROM Kunden ORDER BY 1",
     kundenspalte.arg("Name")},
    {"cmbHersteller",
     {"&Hersteller (", "&Manufacturer ("},
     "Ergometer",
     " Ergometer.Hersteller = ?",
     schlichteSpalte.arg("Hersteller", "Ergometer"),
     gerätespalte.arg("Hersteller")},
    {"cmbTyp",
     {"&Gerätetyp (", "&Type ("},
     "Ergometer",
     " Ergometer.Gerätetyp = ?",
     schlichteSpalte.arg("Gerätetyp", "Ergometer"),
     gerätespalte.arg("Gerätetyp")},
    {"dtp",
     {},
     "Protokoll",
     " Protokoll.ErstellDatum >= ? AND Protokoll.ErstellDatum <= ?",
     alleDaten,
     gefilterteDaten},
}};

const std::array<Filterposition, filteranzahl> löschen{{
    {},
    {"cmbID",
     {"&Protokolle (", "&Protocols ("},
     "Protokoll",
     " Protokoll.ProtokollID = ?",
     "SELECT ProtokollID FROM Protokoll ORDER BY 1",
     "SELECT Protokoll.ProtokollID " + archivverbund + "WHERE 1{alle} ORDER BY 1"},
    {"cmbKunde",
     {"&Kunden (", "&Customer ("},
     "Kunden",
     " Kunden.KundenID = ?",
     "SELECT DISTINCT Name FROM Kunden WHERE EXISTS (SELECT 1 FROM Protokoll "
     "WHERE Protokoll.KundenID = Kunden.KundenID) ORDER BY 1",
     kundenspalte.arg("Name")},
    {"cmbIdent",
     {"&Identnummer (", "&Identnumber ("},
     "Ergometer",
     " Ergometer.IdentNr = ?",
     schlichteSpalte.arg("IdentNr", "Ergometer"),
     "SELECT DISTINCT Ergometer.IdentNr FROM Ergometer INNER JOIN Kunden "
     "ON Ergometer.KundenID = Kunden.KundenID WHERE 1{Kunden}{Ergometer} AND EXISTS (SELECT 1 FROM "
     "Protokoll WHERE Protokoll.GerätID = Ergometer.GerätID{Protokoll}) ORDER BY 1"},
    {"cmbTyp",
     {"&Gerätetyp (", "&Typ ("},
     "Ergometer",
     " Ergometer.Gerätetyp = ?",
     "SELECT DISTINCT Gerätetyp FROM Ergometer WHERE EXISTS (SELECT 1 FROM Protokoll "
     "WHERE Protokoll.GerätID = Ergometer.GerätID) ORDER BY 1",
     // stops at the first protocol of each type
     "SELECT Typ.Gerätetyp FROM (SELECT DISTINCT Gerätetyp FROM Ergometer) AS Typ "
     "WHERE EXISTS (SELECT 1 " +
         archivverbund + "WHERE Ergometer.Gerätetyp IS Typ.Gerätetyp{alle}) ORDER BY 1"},
    {"dtp",
     {},
     "Protokoll",
     " Protokoll.ErstellDatum >= ? AND Protokoll.ErstellDatum <= ?",
     alleDaten,
     gefilterteDaten},
}};

/// What the conditions of a table make of a place, with their values.
QString einsetzen(const QString &platz, const Bedingungen &bedingungen,
                  const std::array<Filterposition, filteranzahl> &positionen,
                  std::vector<QVariant> &werte) {
    const bool mit = platz.startsWith("mit ");
    const QString tabelle = platz.mid(mit ? 4 : 0);
    QString text;
    for (size_t p = 0; p < filteranzahl; ++p) {
        if (bedingungen[p].text.isEmpty() ||
            (tabelle != "alle" && positionen[p].tabelle != tabelle))
            continue;
        text += " AND" + bedingungen[p].text;
        werte.insert(werte.end(), bedingungen[p].werte.begin(), bedingungen[p].werte.end());
    }
    if (!mit || text.isEmpty())
        return text;
    return QString(" AND EXISTS (SELECT 1 FROM %1 WHERE %1.KundenID = Kunden.KundenID%2)")
        .arg(tabelle, text);
}

void anEinzelnen(const Bedingung &anweisung, const std::function<void(const Row &)> &zeile) {
    gDatenbank.each(anweisung.text, anweisung.werte, zeile);
}

std::vector<Schlüssel> nummern(const Bedingung &anweisung) {
    std::vector<Schlüssel> nummern;
    anEinzelnen(anweisung,
                [&](const Row &zeile) { nummern.push_back(schlüsselAus(Feld(zeile.whole(0)))); });
    return nummern;
}

/// Of units that differ in nothing but their number, all but the first of each kind, with its
/// number. The program lets none come about.
QHash<qlonglong, qlonglong> doppelteGeräte() {
    QHash<qlonglong, qlonglong> erstes;
    gDatenbank.each(
        "SELECT E.GerätID, D.Erstes FROM (SELECT KundenID, IdentNr, Hersteller, Gerätetyp, "
        "MIN(GerätID) AS Erstes FROM Ergometer GROUP BY 1, 2, 3, 4 HAVING COUNT(*) > 1) AS D "
        "INNER JOIN Ergometer E ON E.KundenID IS D.KundenID AND E.IdentNr IS D.IdentNr "
        "AND E.Hersteller IS D.Hersteller AND E.Gerätetyp IS D.Gerätetyp",
        {}, [&](const Row &zeile) { erstes.insert(zeile.whole(0), zeile.whole(1)); });
    return erstes;
}

/// Rows that were not there before: of a unit and a date there is one. Dates are remembered by the
/// day, others by their text.
class Einmal {
  public:
    explicit Einmal(QHash<qlonglong, qlonglong> doppelte) : mDoppelte(std::move(doppelte)) {}

    bool neu(const Row &zeile) {
        if (zeile.isNull(1))
            return true; // a customer without units
        const qlonglong gerät = zeile.whole(1);
        const qlonglong eines = mDoppelte.isEmpty() ? gerät : mDoppelte.value(gerät, gerät);
        const std::string_view text = zeile.bytes(2);
        const QDate tag = datumAus(text);
        if (text.size() > isoLänge || (!text.empty() && !tag.isValid()) || eines >> 32 != 0)
            return neuIn(mTexte, {eines, QByteArray(text.data(), qsizetype(text.size()))});
        return neuIn(mTage, eines << 32 | (tag.isValid() ? tag.toJulianDay() : 0));
    }

  private:
    template <class Menge>
    static bool neuIn(Menge &menge, const typename Menge::value_type &wert) {
        const auto vorher = menge.size();
        menge.insert(wert);
        return menge.size() > vorher;
    }

    QHash<qlonglong, qlonglong> mDoppelte;
    QSet<qlonglong> mTage;
    QSet<std::pair<qlonglong, QByteArray>> mTexte;
};

const QString textspalten =
    "SELECT Kunden.Name, Kunden.Straße, Kunden.PLZ, Kunden.Ort, Ergometer.Hersteller, "
    "Ergometer.Gerätetyp, Ergometer.IdentNr";
const QString textquelle =
    " FROM Kunden LEFT JOIN Ergometer ON Ergometer.GerätID = ?2 WHERE Kunden.KundenID = ?1";

} // namespace

const std::array<Filterposition, filteranzahl> &filterpositionen(Filterart art) {
    return art == Filterart::Wiedervorlage ? wiedervorlage : löschen;
}

QString sortierspalte(Filterart art, int spalte) {
    static const QStringList vorlage{
        " Kunden.Name",          " Kunden.Straße",          " Kunden.PLZ",
        " Kunden.Ort",           " Protokoll.ErstellDatum", " Protokoll.ErstellDatum",
        " Ergometer.Hersteller", " Ergometer.Gerätetyp ",   " Ergometer.IdentNr"};
    static const QStringList archiv{" Protokoll.ProtokollID", " Protokoll.ErstellDatum",
                                    " Kunden.Name",           " Ergometer.Identnr",
                                    " Ergometer.Gerätetyp",   " Ergometer.Hersteller"};
    return (art == Filterart::Wiedervorlage ? vorlage : archiv).value(spalte);
}

Bedingung listenanweisung(Filterart art, int position, const Bedingungen &bedingungen, bool aktiv) {
    const auto &positionen = filterpositionen(art);
    const Filterposition &liste = positionen[static_cast<size_t>(position)];
    if (!aktiv)
        return {liste.schlicht};
    Bedingung anweisung;
    const QStringList teile = liste.gefiltert.split('{');
    for (const QString &teil : teile) {
        const qsizetype ende = teil.indexOf('}');
        if (ende >= 0)
            anweisung.text += einsetzen(teil.left(ende), bedingungen, positionen, anweisung.werte);
        anweisung.text += teil.mid(ende + 1);
    }
    return anweisung;
}

QStringList filterliste(const Bedingung &anweisung) {
    QStringList einträge;
    anEinzelnen(anweisung, [&](const Row &zeile) { einträge += zeile.text(0); });
    return einträge;
}

std::vector<Schlüssel> protokollliste(const Bedingung &anweisung) {
    return nummern(anweisung);
}

QString protokolleintrag(Schlüssel protokollID) {
    return texteLesen(protokollID).protokoll;
}

std::pair<QDate, QDate> filterdaten(const Bedingung &anweisung) {
    std::pair<QDate, QDate> daten;
    anEinzelnen(anweisung, [&](const Row &zeile) {
        daten = {datumAus(zeile.bytes(0)), datumAus(zeile.bytes(1))};
    });
    return daten;
}

Schlüssel einzigerKunde(const QString &name) {
    const Recordset kunde = gDatenbank.open("SELECT KundenID FROM Kunden WHERE Name = ?", {name});
    return kunde.count() == 1 ? schlüsselAus(kunde[0]) : 0;
}

std::vector<Wiedervorlage> wiedervorlagen(const Bedingung &where, const QString &orderBy) {
    std::vector<Wiedervorlage> zeilen;
    Einmal einmal(doppelteGeräte());
    gDatenbank.each(
        "SELECT Kunden.KundenID, Ergometer.GerätID, Protokoll.ErstellDatum FROM Kunden "
        "LEFT JOIN Ergometer ON Kunden.KundenID = Ergometer.KundenID "
        "LEFT JOIN Protokoll ON Protokoll.GerätID = Ergometer.GerätID " +
            where.text + orderBy,
        where.werte, [&](const Row &zeile) {
            if (einmal.neu(zeile))
                zeilen.push_back({zeile.whole(0), zeile.whole(1), std::string(zeile.bytes(2))});
        });
    return zeilen;
}

Wiedervorlagetexte texteLesen(const Wiedervorlage &zeile) {
    Wiedervorlagetexte texte;
    gDatenbank.each(
        textspalten + ", (SELECT MAX(ErstellDatum) FROM Protokoll WHERE GerätID = ?2)" + textquelle,
        {zeile.kundenID, zeile.gerätID}, [&](const Row &row) {
            texte = {row.text(0), row.text(1), row.text(2), row.text(3),
                     row.text(4), row.text(5), row.text(6), row.bytes(7) == zeile.kalibriert};
        });
    return texte;
}

std::vector<Wiedervorlage> neueste(const std::vector<Wiedervorlage> &zeilen) {
    std::vector<Wiedervorlage> neue;
    gDatenbank.snapshot([&] {
        Query letzte(gDatenbank, "SELECT MAX(ErstellDatum) FROM Protokoll WHERE GerätID = ?");
        for (const Wiedervorlage &zeile : zeilen) {
            letzte.each({zeile.gerätID}, [&](const Row &row) {
                if (row.bytes(0) == zeile.kalibriert)
                    neue.push_back(zeile);
            });
        }
    });
    return neue;
}

void alleTexteLesen(
    const std::vector<Wiedervorlage> &zeilen,
    const std::function<void(const Wiedervorlage &, const Wiedervorlagezellen &)> &zeile) {
    gDatenbank.snapshot([&] {
        Query kunde(gDatenbank, "SELECT Name, Straße, PLZ, Ort FROM Kunden WHERE KundenID = ?");
        Query gerät(gDatenbank,
                    "SELECT Hersteller, Gerätetyp, IdentNr FROM Ergometer WHERE GerätID = ?");
        qlonglong gelesen = -1;
        std::array<std::string, 4> anschrift; // the rows of a customer mostly follow each other
        for (const Wiedervorlage &eine : zeilen) {
            if (std::exchange(gelesen, eine.kundenID) != eine.kundenID) {
                anschrift = {};
                kunde.each({eine.kundenID}, [&](const Row &row) {
                    for (size_t spalte = 0; spalte < anschrift.size(); ++spalte)
                        anschrift[spalte] = row.bytes(static_cast<int>(spalte));
                });
            }
            Wiedervorlagezellen zellen{
                anschrift[0], anschrift[1], anschrift[2], anschrift[3], "", "", ""};
            bool da = false;
            gerät.each({eine.gerätID}, [&](const Row &row) {
                for (int spalte = 0; spalte < 3; ++spalte)
                    zellen[anschrift.size() + static_cast<size_t>(spalte)] = row.bytes(spalte);
                zeile(eine, zellen);
                da = true;
            });
            if (!da)
                zeile(eine, zellen);
        }
    });
}

std::vector<Schlüssel> archivierte(const Bedingung &where, const QString &orderBy) {
    return nummern(
        {"SELECT Protokoll.ProtokollID " + archivverbund + where.text + orderBy, where.werte});
}

Archivtexte texteLesen(Schlüssel protokollID) {
    Archivtexte texte;
    gDatenbank.each("SELECT P.ProtokollID || ' - ' || IFNULL(P.Protokollname, ''), P.ErstellDatum, "
                    "Kunden.Name, Ergometer.IdentNr, Ergometer.Gerätetyp, Ergometer.Hersteller "
                    "FROM Protokoll AS P LEFT JOIN Kunden ON P.KundenID = Kunden.KundenID "
                    "LEFT JOIN Ergometer ON P.GerätID = Ergometer.GerätID WHERE P.ProtokollID = ?",
                    {protokollID}, [&](const Row &zeile) {
                        texte = {zeile.text(0), datumAus(zeile.bytes(1)),
                                 zeile.text(2), zeile.text(3),
                                 zeile.text(4), zeile.text(5)};
                    });
    return texte;
}

QDate nächsteKalibrierung(const QDate &kalibriert) {
    return kalibriert.addYears(gültigkeit);
}

QDate kalibriertFür(const QDate &fällig) {
    return fällig.addYears(-gültigkeit);
}
