// A session of measuring that was cut off, and the way back into it at the next start.
#include <QFile>
#include <QLabel>

#include "measuring.h"

namespace {

using namespace support;

class WayBack : public Measuring {
  protected:
    WayBack() {
        roads["killed"] = [this](const QString &) { return killed(); };
        views["number"] = [] { return QString::number(gProtokollID); };
        views["marked"] = [] { return grid("SELECT * FROM Sitzung"); };
        views["line"] = [] {
            const auto *label = loaded(frm::Desktop)->findChild<QLabel *>("laUnterbrechung");
            return label->isVisible() ? label->text() : QString();
        };
    }
    /// The program is gone in this moment, and starts anew on what it has left behind.
    Journey killed() {
        EXPECT_TRUE(QFile::copy(datenbankName, "left.mdb"));
        beendenOhneFrage();
        co_await pass(1000);
        programmAufräumen();
        QFile::remove(datenbankName);
        EXPECT_TRUE(QFile::rename("left.mdb", datenbankName));
        forgetSession();
        co_await logIn();
    }
    static void cutOff() {
        change("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, KundenID, GerätID) "
               "VALUES (50, 'Halb', 1, 1)");
        change("INSERT INTO Sitzung VALUES (50, 60)");
    }
};

JOURNEY_ROWS(WayBack, LeadsIntoTheSession,
             "; killed ; line ~ 22 - Abnahme .*0 von 2 .*Schritt 1\\.$ ; pbFortsetzen ; correct "
             "; checked obVorhanden ; cmbVorhanden == 22 - Abnahme ; pbok ; step 1 60",
             "; pbSpeichern ; step 2 80 ; killed ; line ~ 1 von 2 .*Schritt 2\\.$ ; pbFortsetzen "
             "; correct ; checked obLetztes ; pbok ; step 1 60 ; steps == 1",
             "; pbSpeichern ; step 2 80 ; txtIST_n_ergom = 80 ; ? recipeEnd ; pbSpeichern ; killed "
             "; line ~ Alle 2 Schritte sind gespeichert.$ ; pbFortsetzen ; correct "
             "; checked obLetztes ; pbok ; step 1 60 ; steps == 1+2") {
    co_await go("measure ; marked == 22|1 ; stand load 100 ; step 1 60");
    co_await go(QString(givenRow).mid(2));
    co_await go(
        "number == 22 ; pbFirst ; pbAusführen ; step 1 60 ; pbSpeichern ; step 2 80 ; leave "
        "; marked == ; line ==");
}

JOURNEY_P(WayBack, IsLeftByAnotherChoice) {
    cutOff();
    co_await go(R"(
        login
        line == Die Messung von Protokoll 50 - Halb wurde unterbrochen. 0 von 3 Schritten sind gespeichert, der erste fehlende ist Schritt 1. | The measurement of protocol 50 - Halb was cut off. 0 of 3 steps are saved, the first one missing is step 1.
        pbFortsetzen ; session == 1 1 60 ; can pbMessen
        # The told road: the dialog stands where it always stands.
        choose AEH-001, Ungleich ; line ~ 50 ; correct ; focus obNeu ; ? emptyProtocol ; pbexit ; @Desktop ; line ~ 50
        pbKunde ; @Kunden ; cmbKundenname = Herzzentrum Talbrück ; ? unitNow no ; pbexit ; @Desktop
        line == ; marked ==)");
}

JOURNEY(WayBack, IsNoneIntoWhatIsGoneOrOld) {
    cutOff();
    change("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (50, '1')");
    change("UPDATE Protokoll_temp SET ErstellDatum = date(ErstellDatum, '-1 day') "
           "WHERE ProtokollID = 50");
    co_await go(R"(
        login ; line ~ Schritt 2. Fortsetzen lässt sich nur ; hidden pbFortsetzen
        change DELETE FROM Protokoll_temp WHERE ProtokollID = 50
        mnuToleranzen ; @Toleranzen ; pbexit ; @Desktop ; line ==)");
}

} // namespace
