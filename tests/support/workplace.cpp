#include "workplace.h"

#include <QDir>

#include "controller.h"
#include "einlauf.h"
#include "runtime.h"
#include "scripts.h"
#include "session.h"
#include "start.h"

namespace support {

using namespace platform;

Workshop::Workshop()
    : previousDirectory(QDir::currentPath())
    , clock(TestClock::install())
    , line(clock) {
    QDir::setCurrent(directory.path());
    setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    legeDatenbankAn(datenbankName, true);
    gSprache = 1;
    gDesktopAktiv = true;
    controllerVorbereiten();
    einlaufVorbereiten();
    setBeeper([] {});
}

Workshop::~Workshop() {
    programmAufräumen();
    QDir::setCurrent(previousDirectory);
}

QStringList Workshop::column(const QString &sql, const Datenbank::Params &params) {
    const Recordset rows = gDatenbank.open(sql, params);
    QStringList values;
    for (int row = 0; row < rows.count(); ++row)
        values += rows.at(row, 0).toString();
    return values;
}

Workplace::Workplace() = default;
Workplace::~Workplace() = default;

bool Workplace::english() const {
    return gSprache == 2;
}

void Workplace::start() {
    gSprache = 0;
    gDesktopAktiv = false;
    programmStarten();
}

DemoNames demoNames() {
    return {"Klinikum Ährenfeld", "AEH-001", "Kurzprüfung"};
}

Journey Workplace::arrive(frm name) {
    co_await until("screen " + std::to_string(static_cast<int>(name)),
                   [name] { return inFront(name); });
    co_await pass(20);
}

Journey Workplace::logIn() {
    start();
    co_await arrive(frm::Login);
    type(frm::Login, "txtUserName", "M. Prüfer");
    press(frm::Login, "pbok");
    co_await arrive(frm::Desktop);
}

Journey Workplace::choose(const QString &customer, const QString &ident, const QString &recipe) {
    press(frm::Desktop, "pbKunde");
    co_await arrive(frm::Kunden);
    type(frm::Kunden, "cmbKundenname", customer);
    boxes.expect(english() ? "Do you want to select a unit for this customer now?"
                           : "Wollen Sie jetzt ein Gerät zu diesem Kunden auswählen?",
                 Yes);
    press(frm::Kunden, "pbexit");
    co_await arrive(frm::Gerät);
    type(frm::Gerät, "cmbIdent", ident);
    boxes.expect(english() ? "Do you want to select a recipe now?"
                           : "Wollen Sie jetzt ein Rezept auswählen?",
                 Yes);
    enter(frm::Gerät, "cmbIdent");
    co_await arrive(frm::Rezepte);
    type(frm::Rezepte, "cmbRezeptname", recipe);
    press(frm::Rezepte, "pbok");
    co_await arrive(frm::Desktop);
}

Journey Workplace::correctZeroPoint() {
    press(frm::Desktop, "pbDrehR");
    co_await arrive(frm::MotorDrehR);
    press(frm::MotorDrehR, "obRechts");
    press(frm::MotorDrehR, "pbok");
    co_await arrive(frm::Desktop);
    boxes.expect(english() ? "The unit under test has not completed the run-up yet!\rDo you still "
                             "want to start the measurement?"
                           : "Das Gerät ist noch nicht eingelaufen!\rWollen sie trotzdem die "
                             "Messung beginnen ?",
                 Yes);
    press(frm::Desktop, "pbMessen");
    co_await arrive(frm::VorStatNPK);
    press(frm::VorStatNPK, "pbok");
    co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
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
    const DemoNames names = demoNames();
    co_await logIn();
    co_await choose(names.customer, names.ident, names.recipe);
    co_await correctZeroPoint();
    co_await newProtocol("Abnahme");
}

} // namespace support
