// The sheets that are entered by hand: whose head, what they begin with, and every way out.
#include <QCoreApplication>
#include <QTimer>

#include "app/screentable.h"
#include "app/start.h"
#include "protocols/berichtsmaske.h"
#include "protocols/frmBlutdruckAbfrage.h"
#include "protokolltest.h"
#include "records/blatt.h"
#include "store/sqltext.h"

namespace {

using namespace support;

class Blätter : public ProtokollTest {
  protected:
    Blätter() {
        bindScreens();
        views["title"] = [] { return platform::frontScreen()->caption(); };
        views["words"] = [] { // of the table
            QStringList words;
            for (const auto *label : platform::frontScreen()->findChildren<QLabel *>())
                words += label->text();
            return words.join('|');
        };
    }

    static void blatt(int nummer, const QString &endung, const QString &wert) {
        const Inhalt inhalt = endung == "BD" ? Inhalt::Blutdruck : Inhalt::SecControl;
        Blatt werte;
        for (int stufe = 0; stufe < 7; ++stufe) {
            for (const char *spalte : {"auf", "ab", "MU"})
                werte[{stufe, spalte}] = wert + spalte + QString::number(stufe);
        }
        for (const QString spalte : {"NormalNr_", "KennNr_", "kalibriertVon_", "Messverfahren_"})
            werte[{0, spalte + endung}] = wert + spalte[0];
        for (const QString spalte : {"SchutzleiterR", "IsolationsR", "GeräteableitI"}) {
            for (const char *teil : {"", "_GW", "_MU"})
                werte[{0, spalte + teil}] = wert + spalte[0] + teil;
        }
        werte[{0, "kalibriertBis_" + endung}] = "31.12.2031";
        blattSpeichern(inhalt, nummer, werte);
    }
    /// Heads, rows of the sheet, measured values, rows of the other sheet.
    static QString bestand(const QString &tabelle) {
        const QString andere = tabelle == "Blutdruck" ? "SecControl" : "Blutdruck";
        return grid(QString("SELECT (SELECT count(*) FROM Protokoll_temp) || ' ' || (SELECT "
                            "count(*) FROM %1_temp) || ' ' || (SELECT count(*) FROM "
                            "Messwerte_temp) || ' ' || (SELECT count(*) FROM %2_temp)")
                        .arg(tabelle, andere));
    }
    static frm schirm(const QString &tabelle) {
        return tabelle == "Blutdruck" ? frm::Blutdruck : frm::SecControl;
    }
    static Journey open(QString tabelle) {
        frmBlutdruckAbfrage::fragen(schirm(tabelle));
        co_await arrive(frm::BlutdruckAbfrage);
        EXPECT_TRUE(form(schirm(tabelle)).isVisible() && !form(schirm(tabelle)).usable());
    }
};

JOURNEY(Blätter, EveryWayOut) {
    for (const Case &c : cases(R"(
            Blutdruck, obNeu, , pbexit -> 0 0 0 0
            | Blutdruck, obNeu, , txt0auf = 1 ; close -> 0 0 0 0
            | Blutdruck, obNeu, , pbok -> 0 0 0 0
            | Blutdruck, obNeu, , txtKennNr = K ; ? saveSheet no ; pbok -> 0 0 0 0
            | Blutdruck, obNeu, , txtKennNr = K ; ? saveSheet yes ; ? pressureSaved ; pbok -> 1 7 0 0
            | Blutdruck, obNeu, , txt300ab = 1 ; ? pressureStandard ; pbok ; focus txtNormalNr ; pbexit -> 0 0 0 0
            | Blutdruck, alt, , pbexit -> 1 0 0 0
            | Blutdruck, alt, , txtKennNr = K ; txt300ab = 1 ; ? pressureSaved ; pbok -> 1 7 0 0
            | Blutdruck, alt, , pbok -> 0 0 0 0
            | Blutdruck, alt, M, pbok -> 1 0 1 0
            | Blutdruck, alt, M, txtKennNr = K ; ? saveSheet no ; pbok -> 1 0 1 0
            | Blutdruck, alt, STK, pbok -> 1 0 0 1
            | Blutdruck, alt, BD, txt0auf = 9 ; pbexit -> 1 7 0 0
            | Blutdruck, alt, BD, ? pressureDeleted ; pbDelete -> 0 0 0 0
            | Blutdruck, alt, BD STK, ? pressureDeleted ; pbDelete -> 1 0 0 1
            | SecControl, obNeu, , close -> 0 0 0 0
            | SecControl, obNeu, , ? safetyEmpty ; pbok ; front == SecControl ; pbexit -> 0 0 0 0
            | SecControl, obNeu, , txtKennNr = K ; ? saveSheet no ; ? safetyEmpty ; pbok ; front == SecControl ; pbexit -> 0 0 0 0
            | SecControl, obNeu, , txtKennNr = K ; ? saveSheet yes ; ? safetySaved ; pbok -> 1 1 0 0
            | SecControl, obNeu, , txtµA_1 = 1 ; ? safetyStandard ; pbok ; focus txtNormalNr ; txtKennNr = K ; ? safetySaved ; pbok -> 1 1 0 0
            | SecControl, alt, , cannot pbDelete ; txtOhm_1 = 1 ; pbexit -> 1 0 0 0
            | SecControl, alt, M BD, ? safetyEmpty ; pbok ; close -> 1 0 1 7
            | SecControl, alt, STK, pbexit -> 1 1 0 0
            | SecControl, alt, STK, ? safetyDeleted ; pbDelete -> 0 0 0 0
            | SecControl, alt, STK M, ? safetyDeleted ; pbDelete -> 1 0 1 0)")) {
        SCOPED_TRACE(c.in.toStdString());
        for (const char *table : {"Protokoll", "Messwerte", "SecControl", "Blutdruck"})
            gDatenbank.execute(QString("DELETE FROM %1_temp").arg(table));
        const bool neu = c.in_(1) == "obNeu";
        if (!neu)
            kopf(5);
        if (c.in_(2).contains("M"))
            messwert(5);
        for (const QString sheet : {"BD", "STK"}) {
            if (c.in_(2).contains(sheet))
                blatt(5, sheet, "x");
        }
        co_await open(c.in_(0));
        co_await go((neu ? "obNeu ; " : "") + QString("pbok ; @") + c.in_(0) + " ; " + c.in_(3));
        EXPECT_EQ(views["front"](), "");
        EXPECT_EQ(bestand(c.in_(0)), c.out);
    }
    for (const QString out : {"pbexit", "close", "key Escape"}) { // no protocol, no sheet
        co_await open("SecControl");
        co_await go(out + " ; front ==");
        EXPECT_FALSE(loaded(frm::SecControl));
    }
}

// What stood there before the sheet was opened stands there again, but for what was saved.
JOURNEY(Blätter, AreLeftWithoutAWordAtTheEndOfTheProcess) {
    const auto alles = [] {
        return grid("SELECT * FROM Protokoll_temp") + '\n' + grid("SELECT * FROM Blutdruck_temp") +
               '\n' + grid("SELECT * FROM SecControl_temp");
    };
    const auto beenden = [] {
        beendenOhneFrage();
        gDatenbank.openFile(datenbankName); // to look
    };
    kopf(5);
    for (const Case &c : cases(R"(
            Blutdruck, , txtNeu = N -> - | Blutdruck, , obNeu ; pbok ; @Blutdruck ; txt0auf = 9 -> -
            | Blutdruck, , pbok ; @Blutdruck ; txt0auf = 9 -> - | SecControl, , pbok ; @SecControl ; txtOhm_1 = 9 -> -
            | Blutdruck, BD STK, pbok ; @Blutdruck ; txt0auf = 9 -> - | SecControl, BD STK, pbok ; @SecControl ; txtOhm_1 = 9 -> -
            | SecControl, BD STK, obNeu ; pbok ; @SecControl ; spoil DELETE Protokoll_temp -> 2 2 0 7
            | Blutdruck, , pbok ; @Blutdruck ; txtKennNr = K ; txt0auf = 9 ; ?pressureSaved -> 1 7 0 0)")) {
        SCOPED_TRACE(c.in.toStdString());
        for (const QString sheet : {"BD", "STK"}) {
            if (c.in_(1).contains(sheet))
                blatt(5, sheet, "x");
        }
        const QString vorher = alles();
        co_await open(c.in_(0));
        co_await go(c.in_(2).section(" ; ?", 0, 0));
        if (c.in.contains('?')) { // with its box
            expectKnown("pressureSaved", platform::OK, beenden);
            co_await go("pbok ; front ==");
        } else {
            beenden();
        }
        const QString danach = alles();
        EXPECT_TRUE(c.out == "-" ? danach == vorher : bestand(c.in_(0)) == c.out) << danach;
        co_await go(views["front"]().isEmpty() ? "" : "close ; front ==");
        EXPECT_EQ(alles(), danach) << "the closing window goes on for nobody";
        co_await go(c.in.contains("spoil") ? "mend" : "");
        for (const char *table :
             {"Blutdruck_temp", "SecControl_temp", "Protokoll_temp WHERE ProtokollID > 5"})
            gDatenbank.execute(QString("DELETE FROM ") + table);
    }
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec(); // else that end ends the boxes of the cases behind this one
}

JOURNEY_P(Blätter, BloodPressure) {
    kopf(3);
    blatt(3, "BD", "alt");
    for (const char *table : {"Protokoll", "Blutdruck"}) {
        const QString where = QString("%1_temp WHERE ProtokollID = 3").arg(table);
        gDatenbank.execute(QString("INSERT INTO %1 SELECT * FROM ").arg(table) + where);
        gDatenbank.execute("DELETE FROM " + where);
    }
    kopf(2, "Station");
    blatt(2, "BD", "älter");
    messwert(2);
    kopf(1, "fremd", 8, 4);
    co_await open("Blutdruck");
    co_await go(R"(
        cmbVorhanden rows 2 - Station ; cmbVorhanden == 2 - Station ; focus pbok ; lbProtokollID ~ ^4 - $
        obVorhanden ; cannot pbok ; cmbVorhanden ! ; focus pbok ; cmbVorhanden = 7
        ? noProtocol ; cmbVorhanden ! ; cannot pbok ; obNeu ; hidden cmbVorhanden ; txtNeu = O'Neill ; txtNeu ! ; pbok
        @Blutdruck ; title ~ (Protokoll|Protocol) 4 - O'Neill$ ; focus txt0auf ; cannot pbDelete ; txtKennNr == altK ; dtpkalibriertBis == 31.12.2031
        words ~ (Anzeige des Prüflings|Display of the unit under test)[|]auf[|]ab[|] | (Display on the working standard).*[|]Up[|]Down[|]
        txt0auf == ; txt300ab == ; txt0MU == altMU0 ; txt300MU == altMU6
        txt0auf = 1.0 ; txt0auf ! ; focus txt0ab ; txt50auf = 5.1 ; txt50auf ! ; txt100auf = 1.000
        txt50MU = 0.5 ; txt300ab = 3.01 ; txt300MU ! ; focus pbok ; ? pressureSaved ; pbok ; front ==
        sql SELECT Normalanzeige, auf, ab, MU, KennNr_BD, kalibriertBis_BD FROM Blutdruck_temp WHERE ProtokollID = 4 AND Normalanzeige IN (0, 50, 100, 300) == 0|1.0||altMU0|altK|31.12.2031+50|51||0.5|altK|31.12.2031+100|1000||altMU2|altK|31.12.2031+300||301|altMU6|altK|31.12.2031 | 0|1.0||altMU0|altK|31.12.2031+50|5.1||0.5|altK|31.12.2031+100|1.000||altMU2|altK|31.12.2031+300||3.01|altMU6|altK|31.12.2031
        sql SELECT Protokollname, Prüfername, GerätID, KundenID, Drehrichtung, PrüfungsArt, NK_ID, Messverfahren FROM Protokoll_temp WHERE ProtokollID = 4 == O'Neill|O'Neill|4|3|NULL|NULL|7|NULL)");
}

JOURNEY_P(Blätter, Safety) {
    kopf(2, "Station");
    blatt(2, "STK", "alt");
    change("UPDATE SecControl_temp SET kalibriertBis_STK = '03/2031', IsolationsR_MU = NULL");
    co_await open("SecControl");
    co_await go(QString(R"(
        ? noDate(03/2031) ; obNeu ; pbok ; @SecControl ; focus txtOhm_1 ; txtOhm_1 == ; txtMessverfahren == altM
        txtOhm_0 == altS_GW ; txtMOhm_2 == ; txtµA_2 == altG_MU ; txtOhm_1 = 0,1 ; txtOhm_1 ! ; focus txtMOhm_1
        txtMOhm_1 = 1.000 ; txtMOhm_1 ! ; focus txtµA_1 ; txtµA_1 ! ; focus pbok ; ? safetySaved ; pbok ; front ==
        sql SELECT * FROM SecControl_temp WHERE ProtokollID = 3 == 3|altN|altK|altk|%1||altM|0,1|1.000||altS_GW|altI_GW|altG_GW|altS_MU||altG_MU)")
                    .arg(datumText(platform::now().date())));
    // What is stored stands over what the newest sheet suggests; a value that is missing does not.
    blatt(3, "STK", "neu");
    change("UPDATE SecControl_temp SET NormalNr_STK = '' WHERE ProtokollID = 2");
    co_await open("SecControl");
    co_await go(R"(
        obVorhanden ; cmbVorhanden > 2 - Station ; ? noDate(03/2031) ; pbok ; @SecControl ; can pbDelete
        title ~ (Protokoll|Protocol) 2 - Station$ ; txtKennNr == altK ; txtMOhm_1 == altI ; txtMOhm_2 == neuI_MU
        wheel dtpkalibriertBis ; dtpkalibriertBis == 31.12.2031 ; txtKennNr = ; close ; front ==)");
    EXPECT_EQ(bestand("SecControl"), "2 2 0 0");
}

// Each in the box of its procedure; what was asked for has not happened, and can be asked for
// again.
JOURNEY_ROWS(Blätter, Failures, "Blutdruck 980 BD txt0ab", "SecControl 990 STK txtOhm_1") {
    const QStringList words = givenRow.split(' ');
    kopf(5);
    co_await open(words[0]);
    co_await go(QString(R"(
        spoil SELECT Protokoll_temp ; ? protocolFailed(9703, 3078) ; cmbVorhanden ! ; mend
        obNeu ; spoil SELECT %1 ; ? failed(BD 1, 3078) ; ? protocolFailed(9704B, 3078) ; pbok ; mend ; pbok ; @%1
        spoil DELETE Protokoll_temp ; ? protocolFailed(TAG2, 3022) ; pbexit ; front == %1 ; mend ; txtKennNr = K
        %2 = 1 ; change DELETE FROM %1_temp ; spoil INSERT %1_temp ; ? protocolFailed(TAG3, 3022) ; pbok ; mend
        change DELETE FROM Protokoll_temp WHERE ProtokollID = 6 ; ? protocolFailed(TAG3, 3021) ; pbok ; pbexit ; front ==)")
                    .arg(words[0], words[3])
                    .replace("TAG", words[1]));
    blatt(5, words[2], "x");
    const QString vorher = bestand(words[0]);
    co_await open(words[0]);
    co_await go(
        QString("pbok ; @%1 ; spoil DELETE %1_temp ; ? protocolFailed(TAG1, 3022) ; pbDelete ; "
                "front == %1 ; mend ; close ; front ==")
            .arg(words[0])
            .replace("TAG", words[1]));
    EXPECT_EQ(bestand(words[0]), vorher);
    spoil("SELECT", "Protokoll_temp");
    expectKnown("failed(9702, 3078)");
    expectKnown("failed(9701, 3078)");
    co_await open(words[0]);
    co_await go("cannot obNeu obVorhanden pbok ; pbexit ; front ==");
}

// A number behind a "-" of its own, a name that begins with a blank, none at all.
TEST(Reports, AreCalledByWhatStandsBehindTheLastDash) {
    for (const Case &c :
         cases(R"(12 - Alles -> "Alles" | 8 - A-B -> "B" | 3 -   x -> "  x" | 3 - -> " "
                                  | 12 -> " " | 4 -y -> "y")"))
        EXPECT_EQ(berichtsname(c.in), c.out) << c;
}

JOURNEY_ROWS(Blätter, AskForThePrint, "vbYes 6 6", "vbSec 11 6", "vbNo 0 0", "close 0 0") {
    form(frm::BerichtSichern).showModal();
    co_await go("@BerichtSichern ; " + givenRow.section(' ', 0, 0) + " ; front ==");
    EXPECT_EQ(QString("%1 %2").arg(gBerichtAntwort).arg(int(gDesktopFolge)),
              givenRow.section(' ', 1));
}

} // namespace
