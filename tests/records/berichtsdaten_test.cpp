// Delivered layouts filled with staged protocols, and the footnote of doubtful verdicts.
#include "records/berichtsdaten.h"

#include <QDir>
#include <QProcess>

#include <random>

#include "measure/bewertung.h"
#include "platform/runtime.h"
#include "records/nachweis.h"
#include "windows/print.h"
#include "workshop.h"

namespace {

using namespace support;

class Seiten : public Workshop {
  protected:
    Seiten() { gDatenbank.openFile(datenbankName); }
    /// The page of the working protocol, or the archived one, by this layout. TORVENA_PAGES names a
    /// directory that takes it as PDF, TORVENA_LAYOUTS one with other layouts.
    static platform::Report seite(const QString &datei, Schlüssel id, bool konform = true,
                                  Bestand bestand = Bestand::Arbeit) {
        const platform::Layout layout(qEnvironmentVariable("TORVENA_LAYOUTS", ":/layouts") + '/' +
                                      datei);
        const QString tabelle = gelesen(layout);
        for (const auto was : {Berichtsseite::Deckblatt, Berichtsseite::Messergebnisse,
                               Berichtsseite::Blutdruck, Berichtsseite::SecControl})
            if (stufentabelle(was) == tabelle)
                stufen(was, bestand, id, konform);
        const QString name = QString("%1_%2_%3%4").arg(datei).arg(id).arg(konform).arg(gSprache);
        platform::Report bericht(layout.filled(berichtsdaten(tabelle, bestand, id)), name);
        if (const QString ziel = qEnvironmentVariable("TORVENA_PAGES"); !ziel.isEmpty())
            schreiben(bericht, ziel + '/' + name + ".pdf");
        return bericht;
    }
    static void schreiben(const platform::Report &bericht, const QString &pfad) {
        QFile datei(pfad);
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(bericht.pdf());
    }
    static QString inSitzung(const QString &deutsch, const QString &englisch) {
        return english() ? englisch : deutsch;
    }
};

TEST_F(Seiten, OfAllDeliveredLayoutsShowTheProtocol) {
    const QString kunde = "<b>&\"O'Hara\" GmbH";
    change("UPDATE Kunden SET Name = ?", {kunde});
    change("INSERT INTO Blutdruck_temp SELECT 18, Normalanzeige, auf, ab, MU, NormalNr_BD, "
           "KennNr_BD, kalibriertVon_BD, kalibriertBis_BD, kalScheinNr_BD FROM Blutdruck_temp "
           "WHERE ProtokollID = 17");
    int zahl = 0;
    for (const int sprache : {1, 2}) {
        setLanguage(sprache);
        for (const QString &datei : QDir(":/layouts").entryList({"*.rpt"})) {
            if (datei.contains("teil_") || datei.contains("endpruef") ||
                datei.startsWith("eng_") != english())
                continue;
            ++zahl;
            for (const QString &text : {seite(datei, 18).text(), seite(datei, 18, false).text()}) {
                for (const QString &wert : {kunde, QString("SIL-2021/1"), QString("Reha-Rad 9")})
                    EXPECT_TRUE(text.contains(wert)) << datei << wert;
                EXPECT_TRUE(text.contains(inSitzung("Ende des Protokolls", "End of protocol")));
                EXPECT_FALSE(english() &&
                             text.contains(QRegularExpression("Datum|Kunde|Messung|Prüfer")))
                    << text;
            }
        }
    }
    EXPECT_EQ(zahl, 12);
}

TEST_F(Seiten, ShowEachMeasuredValueOfTheDatabase) {
    for (const int sprache : {1, 2}) {
        setLanguage(sprache);
        for (const Bestand bestand : alleBestände) {
            const Schlüssel id = bestand == Bestand::Arbeit ? 18 : 11;
            const QString datei = inSitzung("", "eng_") + "messergebnisse.rpt";
            const QString text = '\n' + seite(datei, id, true, bestand).text() + '\n';
            const QString cells =
                grid("SELECT Prüfschritt, Soll_n, iif(Ist_n_ergom = '0', Ist_n_torvena, Soll_P), "
                     "iif(Ist_n_ergom = '0', Ist_D_torvena, Ist_P_torvena), "
                     "iif(Ist_n_ergom = '0', Soll_P, Ist_n_ergom), "
                     "iif(Ist_n_ergom = '0', Ist_P_torvena, Ist_n_torvena) FROM " +
                         tabelle(bestand, Inhalt::Messwerte) + " WHERE ProtokollID = ?",
                     {id});
            for (QString row : cells.split('+')) {
                row.replace(',', platform::numberLocale().decimalPoint());
                EXPECT_TRUE(text.contains('\n' + row.replace('|', '\n') + '\n')) << row;
            }
        }
    }
    setLanguage(1);
    const QString mit = seite("messergebnisse.rpt", 16).text();
    for (const char *row : {"4, 60,0, 59,94, 15,12, 100,0, 94,89, +5,11, +5,11, 0,30, 0,30, ±5,00, "
                            "102,20, nein, ?",
                            "11, 50,0, 50,0, 47,55, 51, 49,99, +1,01, +1,98, 0,10, 0,20, ±2,00, "
                            "50,50, ja, ja"})
        EXPECT_TRUE(mit.contains(QString(row).replace(", ", "\n"))) << row;
    EXPECT_TRUE(mit.contains("Messunsicherheit\n11\n1\n–")) << mit;
    EXPECT_TRUE(mit.contains("Messunsicherheit\n8\n0\n4")) << mit;
    const QString ohne = seite("messergebnisse.rpt", 16, false).text();
    EXPECT_TRUE(ohne.contains("94,89\n+5,11\n+5,11\n0,30\n0,30\n"));
    for (const char *word : {"±", "nein", "Spezifikation", "regel", "?"})
        EXPECT_FALSE(ohne.contains(word)) << word;
}

TEST_F(Seiten, TellWhatDependsOnTheProtocol) {
    const auto zeigt = [](const char *datei, Schlüssel id, const char *wort,
                          Bestand bestand = Bestand::Arbeit) {
        return seite(datei, id, true, bestand).text().contains(wort);
    };
    EXPECT_TRUE(zeigt("deckblatt1.rpt", 16, "Frist")) << "the class, not the file";
    EXPECT_FALSE(zeigt("deckblatt.rpt", 14, "Frist", Bestand::Archiv));
    EXPECT_FALSE(zeigt("deckblatt.rpt", 16, "abgelaufen"));
    EXPECT_FALSE(zeigt("messergebnisse.rpt", 16, "*"));
    EXPECT_FALSE(zeigt("messergebnisse.rpt", 16, "yes = ja"));
    EXPECT_TRUE(zeigt("messergebnisse.rpt", 19, "yes = ja"));
    change("UPDATE Normalkalibrierdaten SET kalibriertBis = '2020-01-01'");
    change("UPDATE Messwerte_temp SET Soll_P = '0', MU_ohne = 'ja', MU_mit = 'ja' "
           "WHERE ProtokollID = 16 AND Prüfschritt = '1'");
    EXPECT_TRUE(zeigt("deckblatt.rpt", 16, "abgelaufen"));
    EXPECT_TRUE(zeigt("messergebnisse.rpt", 16, "\n–\n–\n–\n±3,00\n786,00\nja *\nja *"));
    EXPECT_TRUE(zeigt("messergebnisse.rpt", 16, "enthalten: 1."));
    // Between two sittings, with GrenzAbw rounded as it is applied.
    change("UPDATE Protokoll_temp SET Prozent = 4, GrenzAbw = 2.5 WHERE ProtokollID = 16");
    EXPECT_TRUE(zeigt("messergebnisse.rpt", 16, "±20,00 **"));
    EXPECT_FALSE(zeigt("messergebnisse.rpt", 16, "±2,00 **"));
    EXPECT_TRUE(zeigt("messergebnisse.rpt", 16, "So gekennzeichnet: 8."));
    EXPECT_EQ(raised([] {
                  seite("deckblatt.rpt", 16);
                  berichtsdaten("Bericht1", Bestand::Arbeit, 18);
              }),
              3021);
}

TEST_F(Seiten, TearNoRow) {
    const QString heute = clock.now().toString("dd.MM.yyyy");
    change("UPDATE System SET Straße = 'Werkstr. 1', PLZ = '12345', Ort = 'Ort', "
           "Telefon = '0815', EMail = 'labor@example.org'");
    for (const int sprache : {1, 2}) {
        setLanguage(sprache);
        for (const int schritte : {1, 12, 80}) {
            const Schlüssel id = 100 + schritte;
            if (sprache == 1) {
                change("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, Prüfername, "
                       "GerätID, KundenID, Drehrichtung, PrüfungsArt, NK_ID, Messverfahren) SELECT "
                       "?, Protokollname, Prüfername, 20, 9, Drehrichtung, PrüfungsArt, NK_ID, "
                       "Messverfahren FROM Protokoll_temp WHERE ProtokollID = 16",
                       {id});
                change("WITH N (i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM N WHERE i < ?2) "
                       "INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Soll_n, Soll_P, "
                       "Ist_n_torvena, Ist_D_torvena, Ist_P_torvena, Ist_n_ergom, MU_ohne, "
                       "MU_mit, MU_Proz) SELECT ?1, i, '120,0', 1000 + i || ',0', '120,01', "
                       "iif(?2 = 1, '12345678901234,07', '116,07'), 700 + i || ',11', iif(i > ?2 - "
                       "?2 / 4, '121', '0'), 'nein', "
                       "'nein', 0.3 FROM N",
                       {id, schritte});
                change("UPDATE Messwerte_temp SET ZulAbw = ZulAbw + 1 WHERE ProtokollID = 180");
            }
            const platform::Report bericht =
                seite(inSitzung("", "eng_") + "messergebnisse.rpt", id);
            const QString pdf = directory.filePath("pages.pdf");
            schreiben(bericht, pdf);
            const auto gelesen = [&](const char *wie) {
                QProcess reader;
                reader.start("pdftotext", {wie, pdf, "-"});
                EXPECT_TRUE(reader.waitForFinished()) << "needs poppler-utils";
                return QString::fromUtf8(reader.readAll()).split('\n');
            };
            const double rechts = (210 - 15) / 25.4 * 72 + 1; // margin, in points
            static const QRegularExpression kante("xMax=\"([0-9.]+)\"");
            for (const QString &wort : gelesen("-bbox"))
                EXPECT_LT(kante.match(wort).captured(1).toDouble(), rechts) << wort;
            const QStringList lines = gelesen("-layout");
            for (int schritt = 1; schritt <= schritte; ++schritt) {
                const QRegularExpression row(
                    QString("^\\f? *%1 +120.0 .*%2.*(nein|no)( \\*)? +(nein|no)( \\*)?$")
                        .arg(schritt)
                        .arg(1000 + schritt));
                EXPECT_EQ(lines.filter(row).size(), 1) << schritt;
            }
            const int seiten = bericht.pages();
            EXPECT_EQ(seiten > 2, schritte == 80);
            for (const QString &jeSeite :
                 {inSitzung("Protokoll %1 vom %2$", "Protocol %1 of %2$").arg(id).arg(heute),
                  QString("Werkstr. 1, 12345 Ort"), QString("Tel. 0815, labor@example.org"),
                  nachweisStand(), inSitzung("Seite \\d von %1$", "Page \\d of %1$").arg(seiten)})
                EXPECT_EQ(lines.filter(QRegularExpression(jeSeite)).size(), seiten) << jeSeite;
        }
    }
}

TEST(Footnote, MarksVerdictsThatDoNotFollow) {
    // power or speed, ergometer, standard, limit, uncertainty in %, without, with
    for (const Case &c : cases(R"(
        P, 200, 192, 10, 1, ja, ja -> follows | P, 200, 209, 10, 1, ja, ? -> follows
        | P, 200, 188, 10, 1, nein, ? -> follows | P, 200, 187.99, 10, 1, no, no -> follows
        | P, 200, 192, 10, 1, yes, ? -> follows | P, 200, 188, 10, 1, no, no -> follows
        | P, 200, 191, 10, 1, ja, ja -> doubted | P, 200, 193, 10, 1, ja, ? -> doubted
        | P, 200, 193, 10, 1, ja, nein -> doubted | P, 200, 187, 10, 1, nein, ? -> doubted
        | P, 200, 199, 10, 1, nein, ja -> doubted | P, 200, 180, 10, 1, ja, nein -> doubted
        | P, 200, 199, 10, 1, ja, - -> doubted | P, 200, 199, 10, 1, -, - -> follows
        | P, 200, 199, -, 1, ja, ja -> doubted | P, 200, 199, 10, -, ja, ja -> doubted
        | P, 0, 1, 3, 0.3, ja, ja -> doubted | P, 0, 1, 3, 0, ja, ja -> doubted
        | P, 1200, 1140, 60, 0, ja, ja -> doubted
        | n, 0, 1, 3, 0.3, ja, ja -> follows | n, 80, 77, 3, 0.2, ja, ? -> follows
        | P, 25.5, 22.8, 3, 1.2, ja, ja -> follows | n, 25.5, 22.8, 3, 1.2, ja, ja -> doubted)")) {
        const auto zahl = [&](int which) {
            return c.in_(which) == "-" ? std::optional<double>() : c.in_(which).toDouble();
        };
        const auto wort = [&](int which) { return c.in_(which).remove('-'); };
        EXPECT_EQ(
            urteilFolgt({c.in_(0) == "P", *zahl(1), *zahl(2), zahl(3), zahl(4), wort(5), wort(6)}),
            c.out == "follows")
            << c;
    }
}

TEST(Footnote, MarksLimitsThatTheHeadDoesNotName) {
    // power or speed, ergometer, limit; the head names 5 %, 3 W, 2 1/min
    for (const Case &c : cases("P, 100, 5 -> same | P, 33.3, 3 -> same | P, 0, 3 -> same "
                               "| P, 100, 3 -> other | P, 33.3, 1.665 -> other | n, 100, 2 -> same "
                               "| n, 100, 5 -> other | n, 100, 2.5 -> other")) {
        Ergebniszeile zeile{
            c.in_(0) == "P", c.in_(1).toDouble(), 0, c.in_(2).toDouble(), {}, {}, {}};
        EXPECT_EQ(andereGrenze(zeile, Spezifikation{5, 3, 2}), c.out == "other") << c;
        EXPECT_FALSE(andereGrenze(zeile, {})) << c;
        zeile.grenze.reset();
        EXPECT_FALSE(andereGrenze(zeile, Spezifikation{5, 3, 2})) << c;
    }
}

TEST_F(Workshop, NoVerdictGivenFromTheSameNumbersIsDoubted) {
    const Unsicherheiten rows{{100, 0.3}, {1000, 0.3}};
    std::mt19937 random(1);
    const auto pick = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    const auto hundredth = [](int value) { return Format(value / 100.0, "0.00"); };
    int marked = 0;
    for (int i = 0; i < 20000; ++i) {
        const bool leistung = i % 2;
        const Spezifikation grenzen{pick(1, 20) / 2.0, double(pick(1, 5)),
                                    std::int16_t(pick(1, 5))};
        const int soll = leistung ? pick(10, 4000) * 10 : pick(300, 13000);
        const double t = leistung ? std::max(soll / 100.0 * grenzen.prozent / 100, grenzen.watt)
                                  : grenzen.grenzAbw;
        // About the limit, give or take an uncertainty: there the rule decides.
        const double about = t + pick(-1, 1) * std::max(0.3, soll / 100.0 * 0.003);
        const int ist = soll + (pick(0, 1) ? 1 : -1) * (int(about * 100) + pick(-2, 2));
        SchrittTexte texte;
        texte.soll_P = texte.ist_n_ergom = hundredth(soll);
        texte.ist_P_torvena = texte.ist_n_torvena = hundredth(ist);
        texte.soll_n = "60,0";
        Urteil urteil;
        leistung ? leistungBewerten(urteil, texte, grenzen, rows)
                 : drehzahlBewerten(urteil, texte, grenzen, rows);
        Ergebniszeile zeile{leistung,  soll / 100.0,  ist / 100.0,
                            t,         urteil.muProz, urteil.ohne ? "ja" : "nein",
                            urteil.mit};
        EXPECT_TRUE(urteilFolgt(zeile)) << i << ' ' << soll << ' ' << ist << ' ' << t;
        zeile.ohne = urteil.ohne ? "nein" : "ja";
        marked += !urteilFolgt(zeile);
    }
    EXPECT_GT(marked, 19000) << "the other verdict is doubted, but for the limit itself";
}

} // namespace
