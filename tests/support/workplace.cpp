#include "workplace.h"

#include "auswahl.h"
#include "controller.h"
#include "interface.h"
#include "session.h"
#include "sprache.h"
#include "start.h"

namespace support {

using namespace platform;

// No two are alike, so that a value from another row, column, protocol or direction shows.
Workplace::Workplace() {
    for (const char *unlike :
         {"UPDATE Normalkalibrierdaten SET Offset = 9000, Gain_R = 8000, Gain_L = 9000, VK1_R = 2, "
          "VK1_L = 3 WHERE NK_ID = 1",
          "UPDATE Normalkalibrierdaten SET Gain_L = 12490, VK1_L = 1.1 WHERE NK_ID = 2",
          "INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt, Ist_P_torvena) "
          "VALUES (9000, '1', 'fremd')"})
        change(unlike);
    roads["login"] = [this](const QString &) { return logIn(); };
    roads["choose"] = [this](const QString &what) { // "ident number, recipe" of the demo customer
        return choose(demoNames().customer, what.section(", ", 0, 0), what.section(", ", 1));
    };
    roads["select"] = [this](const QString &) { return select(); };
    roads["direction"] = [this](const QString &) { return chooseDirection(); };
    roads["begin"] = [this](const QString &) { return startMeasuring(); };
    roads["correct"] = [this](const QString &) { return correctZeroPoint(); };
    roads["protocol"] = [this](const QString &name) { return newProtocol(name); };
    roads["measure"] = [this](const QString &) { return measure(); };
    roads["leave"] = [this](const QString &) { return leaveMeasuring(); };
    roads["whole"] = [this](const QString &name) { return wholeMeasurement(name); };
}

Workplace::~Workplace() = default;

void Workplace::start() {
    gSprache = 0;
    gDesktopAktiv = false;
    programmStarten();
}

DemoNames demoNames() {
    return {"Klinikum Ährenfeld", "AEH-001", "Kurzprüfung"};
}

Journey Workplace::logIn() {
    start();
    co_await arrive(frm::Login);
    type(frm::Login, "txtUserName", "M. Prüfer");
    press(frm::Login, "pbok");
    co_await arrive(frm::Desktop);
}

Journey Workplace::choose(QString customer, QString ident, QString recipe) {
    const Text title{"Stammdaten auswählen", "Select Master Data"};
    press(frm::Desktop, "pbKunde");
    co_await arrive(frm::Kunden);
    type(frm::Kunden, "cmbKundenname", customer);
    expectBox({"Wollen Sie jetzt ein Gerät zu diesem Kunden auswählen?",
               "Do you want to select a unit for this customer now?"},
              YesNo + Question, title, Yes);
    press(frm::Kunden, "pbexit");
    co_await arrive(frm::Gerät);
    type(frm::Gerät, "cmbIdent", ident);
    expectBox({"Wollen Sie jetzt ein Rezept auswählen?", "Do you want to select a recipe now?"},
              YesNo + Question, title, Yes);
    enter(frm::Gerät, "cmbIdent");
    co_await arrive(frm::Rezepte);
    type(frm::Rezepte, "cmbRezeptname", recipe);
    press(frm::Rezepte, "pbok");
    co_await arrive(frm::Desktop);
}

Journey Workplace::select() {
    const DemoNames names = demoNames();
    co_await logIn();
    co_await choose(names.customer, names.ident, names.recipe);
}

Journey Workplace::chooseDirection() {
    press(frm::Desktop, "pbDrehR");
    co_await arrive(frm::MotorDrehR);
    press(frm::MotorDrehR, "obRechts");
    press(frm::MotorDrehR, "pbok");
    co_await arrive(frm::Desktop);
}

Journey Workplace::startMeasuring() {
    if (gDrehrichtung == 0)
        co_await chooseDirection();
    if (!canPress(frm::Desktop, "pbMessen")) {
        press(frm::Desktop, "pbRezept");
        co_await arrive(frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", auswahl().rezept);
        press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);
    }
    if (!gEingelaufen)
        expectBox({"Das Gerät ist noch nicht eingelaufen!\rWollen sie trotzdem die Messung "
                   "beginnen ?",
                   "The unit under test has not completed the run-up yet!\rDo you still want to "
                   "start the measurement?"},
                  YesNo + Exclamation + SecondButtonDefault,
                  {"Messen starten", "Start The Measurement"}, Yes);
    press(frm::Desktop, "pbMessen");
    co_await arrive(frm::VorStatNPK);
}

Journey Workplace::correctZeroPoint() {
    co_await startMeasuring();
    press(frm::VorStatNPK, "pbok");
    co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
    EXPECT_EQ(loaded(frm::StatMessen)->focusWidget(), control(frm::StatMessen, "pbWeiter"));
    press(frm::StatMessen, "pbWeiter");
    co_await arrive(frm::NachStatNPK);
    press(frm::NachStatNPK, "pbok");
    co_await arrive(frm::ProtokollNr);
}

Journey Workplace::newProtocol(const QString &name) {
    press(frm::ProtokollNr, "obNeu");
    type(frm::ProtokollNr, "txtNeu", name);
    press(frm::ProtokollNr, "pbok");
    co_await until("the first step", [] {
        return inFront(frm::Messen) && text(frm::Messen, "laPrSchritt") == "1" &&
               canPress(frm::Messen, "pbFirst");
    });
}

Journey Workplace::measure() {
    co_await select();
    co_await correctZeroPoint();
    co_await newProtocol("Abnahme");
}

void Workplace::expectRecipeEnd() {
    expectBox({"Das Rezept ist abgearbeitet!\r"
               "Beenden Sie das Messen oder fahren Sie mit freier Eingabe fort!",
               "The recipe has been run!\r"
               "Terminate the measuring, or continue with Free Input!"},
              Information, {"Meldung!", "Message!"});
}

void Workplace::expectEmptyProtocol() {
    expectBox({"Protokoll enthält keine Daten und wird gelöscht!",
               "Protocol does not contain data and is deleted!"},
              Information, {"Beenden", "Message"});
}

Journey Workplace::leaveMeasuring() {
    press(frm::Messen, "pbAbbrechen");
    co_await arrive(frm::Desktop);
}

Journey Workplace::wholeMeasurement(const QString &name) {
    co_await correctZeroPoint();
    co_await newProtocol(name);
    line.stand().setLoad(100);
    co_await settled("1", 60);
    save();
    co_await settled("2", 80);
    type(frm::Messen, "txtIST_n_ergom", "80");
    expectRecipeEnd();
    save();
    co_await leaveMeasuring();
    EXPECT_EQ(storedSteps(), (QStringList{"1", "2"}));
    expectIdleDesktop();
}

void Workplace::expectIdleDesktop() {
    EXPECT_TRUE(inFront(frm::Desktop));
    EXPECT_TRUE(canPress(frm::Desktop, "pbKunde"));
    for (const frm other : {frm::StatMessen, frm::VorStatNPK, frm::NachStatNPK, frm::ProtokollNr,
                            frm::Messen, frm::Meldung, frm::MotorDrehR})
        EXPECT_FALSE(loaded(other)) << "screen " << static_cast<int>(other);
    EXPECT_EQ(line.stand().setSpeed(), 0);
    EXPECT_TRUE(leitungFrei());
    EXPECT_FALSE(Timer1.enabled());
}

QStringList Workplace::storedSteps() {
    return column("SELECT Prüfschritt FROM Messwerte_temp WHERE ProtokollID = ? "
                  "ORDER BY MDat, rowid",
                  {gProtokollID});
}

} // namespace support
