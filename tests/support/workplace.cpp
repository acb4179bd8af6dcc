#include "workplace.h"

#include "app/start.h"
#include "link/controller.h"
#include "session/auswahl.h"
#include "session/session.h"

namespace support {

namespace {

// %1 is what stands behind the road's name, %2 what stands there behind a comma, %3 what stands
// before a bar: the customer.
constexpr std::pair<const char *, const char *> plainRoads[] = {
    {"choose", "pbKunde ; @Kunden ; cmbKundenname = %3 ; ? unitNow yes ; pbexit\n"
               "@Gerät ; cmbIdent = %1 ; ? recipeNow yes ; cmbIdent !\n"
               "@Rezepte ; cmbRezeptname = %2 ; pbok ; @Desktop"},
    {"select", "login ; choose AEH-001, Kurzprüfung"},
    {"direction", "pbDrehR ; @MotorDrehR ; obRechts ; pbok ; @Desktop"},
    {"correct", "begin ; pbok ; until can StatMessen.pbWeiter ; focus pbWeiter ; pbWeiter\n"
                "@NachStatNPK ; pbok ; @ProtokollNr"},
    {"protocol", "obNeu ; txtNeu = %1 ; pbok ; until laPrSchritt == 1 ; until can Messen.pbFirst"},
    {"measure", "select ; correct ; protocol Abnahme"},
    {"leave", "pbAbbrechen ; @Desktop"},
    {"whole", "correct ; protocol %1 ; stand load 100 ; step 1 60 ; pbSpeichern ; step 2 80\n"
              "txtIST_n_ergom = 80 ; ? recipeEnd ; pbSpeichern ; leave\n"
              "stored Prüfschritt == 1+2 ; idle == yes"},
};

} // namespace

// No two are alike, so that a value from another row, column, protocol or direction shows.
Workplace::Workplace() {
    for (const char *unlike :
         {"UPDATE Normalkalibrierdaten SET Offset = 9000, Gain_R = 8000, Gain_L = 9000, VK1_R = 2, "
          "VK1_L = 3 WHERE NK_ID = 1",
          "UPDATE Normalkalibrierdaten SET Gain_L = 12490, VK1_L = 1.1 WHERE NK_ID = 2",
          "INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Ist_P_torvena) "
          "VALUES (9000, '1', 'fremd')"})
        change(unlike);
    for (const auto &[name, way] : plainRoads) {
        roads[name] = [this, text = QString(way)](const QString &what) {
            const QString customer =
                what.contains(" | ") ? what.section(" | ", 0, 0) : DemoNames().customer;
            const QString rest = what.section(" | ", -1);
            const QString first = text.contains("%2") ? rest.section(", ", 0, 0) : rest;
            return go(QString(text)
                          .replace("%1", first)
                          .replace("%2", rest.section(", ", 1))
                          .replace("%3", customer));
        };
    }
    roads["login"] = [this](const QString &) { return logIn(); };
    roads["begin"] = [this](const QString &) { return begin(); };
    views["idle"] = [this] {
        expectIdleDesktop();
        return "yes";
    };
}

void Workplace::start() {
    gSprache = 0;
    gDesktopAktiv = false;
    programmStarten();
}

Journey Workplace::logIn() {
    start();
    co_await go("@Login ; txtUserName = M. Prüfer ; pbok ; @Desktop");
}

Journey Workplace::begin() {
    if (gDrehrichtung == 0)
        co_await go("direction");
    if (!canPress(frm::Desktop, "pbMessen"))
        co_await go("pbRezept ; @Rezepte ; cmbRezeptname = " + auswahl().rezept +
                    " ; pbok ; @Desktop");
    co_await go(QString(gEingelaufen ? "" : "? notRunIn yes ; ") + "pbMessen ; @VorStatNPK");
}

void Workplace::expectIdleDesktop() {
    EXPECT_EQ(views["front"](), "Desktop");
    EXPECT_TRUE(canPress(frm::Desktop, "pbKunde"));
    for (const frm other : {frm::StatMessen, frm::VorStatNPK, frm::NachStatNPK, frm::ProtokollNr,
                            frm::Messen, frm::Meldung, frm::MotorDrehR})
        EXPECT_FALSE(loaded(other)) << "screen " << static_cast<int>(other);
    EXPECT_EQ(line.stand().setSpeed(), 0);
    EXPECT_TRUE(leitungFrei());
    EXPECT_FALSE(Timer1.enabled());
}

} // namespace support
