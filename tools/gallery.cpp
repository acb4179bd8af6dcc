// Renders every screen with demo data in both languages to PNG: gallery [DIR] (default gallery/).
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QTest>

#include <cstdio>

#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;

class Gallery : public Workplace {
  public:
    Gallery(QDir target, std::int16_t language) : mTarget(std::move(target)), mLanguage(language) {
        gDatenbank.openFile(datenbankName);
        gDatenbank.execute("UPDATE System SET Sprache = ?", {language});
        gDatenbank.close();
        boxes.allow("…", platform::Yes);
    }

    void show() { run(rounds()); }

  private:
    void TestBody() override {}

    void picture(const char *name) {
        Screen *screen = platform::frontScreen();
        QApplication::processEvents();
        const QString file = QString("%1-%2.png").arg(name, mLanguage == 1 ? "de" : "en");
        screen->grab().save(mTarget.filePath(file));
        std::printf("%s\n", qPrintable(file));
    }

    Journey opened(frm name, const char *pictureName) {
        form(name).show();
        co_await until(pictureName, [name] { return inFront(name); });
        co_await pass(50);
        picture(pictureName);
        form(name).unload();
    }

    /// Opened from another screen by its button, and left by its own.
    Journey visited(frm from, const char *button, frm name, const char *pictureName,
                    const char *leave) {
        press(from, button);
        co_await arrive(name);
        picture(pictureName);
        press(name, leave);
        co_await arrive(from);
    }

    Journey masterData() {
        const DemoNames names;
        press(frm::Desktop, "pbKunde");
        co_await arrive(frm::Kunden);
        co_await visited(frm::Kunden, "pbNeu", frm::NeuKunde, "neukunde", "pbexit");
        type(frm::Kunden, "cmbKundenname", names.customer);
        co_await visited(frm::Kunden, "pbchange", frm::ÄndKund, "ändkund", "pbexit");
        co_await visited(frm::Kunden, "pbDelete", frm::LöschKunde, "löschkunde", "pbCancel");
        press(frm::Kunden, "pbexit");
        co_await arrive(frm::Gerät);
        co_await visited(frm::Gerät, "pbNeu", frm::NeuGerät, "neugerät", "pbexit");
        type(frm::Gerät, "cmbIdent", names.ident);
        co_await visited(frm::Gerät, "pbchange", frm::ÄndGerät, "ändgerät", "pbexit");
        co_await visited(frm::Gerät, "pbDelete", frm::LöschGerät, "löschgerät", "pbNo");
        press(frm::Gerät, "pbexit");
        co_await arrive(frm::Desktop);

        support::choose(frm::Desktop, "mnuToleranzen");
        co_await arrive(frm::Toleranzen);
        picture("toleranzen");
        auto *picker = control<QComboBox>(frm::Toleranzen, "cmbBezTol");
        picker->setFocus();
        QTest::keyClick(picker, Qt::Key_Down);
        co_await pass(50);
        picture("toleranzen-ändern");
        press(frm::Toleranzen, "pbexit");
        co_await arrive(frm::Desktop);

        support::choose(frm::Desktop, "mnuRezepte");
        co_await arrive(frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", names.recipe);
        picture("rezepte-pflege");
        press(frm::Rezepte, "pbÄndRez");
        co_await arrive(frm::ÄndRez);
        picture("ändrez");
        press(frm::ÄndRez, "pbexit");
        co_await arrive(frm::Rezepte);
        press(frm::Rezepte, "pbNeuRezept");
        co_await arrive(frm::NeuRezept);
        picture("neurezept-name");
        type(frm::NeuRezept, "txtRezName", "Abnahme Station 3");
        control<QComboBox>(frm::NeuRezept, "cmbToleranz")->setFocus();
        QTest::keyClick(control<QComboBox>(frm::NeuRezept, "cmbToleranz"), Qt::Key_Down);
        press(frm::NeuRezept, "pbRezSave");
        co_await pass(50);
        press(frm::NeuRezept, "pbKopie");
        co_await arrive(frm::RezeptKopie);
        type(frm::RezeptKopie, "cmbRezeptname", names.recipe);
        co_await pass(50);
        picture("rezeptkopie");
        press(frm::RezeptKopie, "pbok");
        co_await arrive(frm::NeuRezept);
        picture("neurezept");
        press(frm::NeuRezept, "pbexit"); // the answer is Yes: discarded
        co_await arrive(frm::Rezepte);
        press(frm::Rezepte, "pbexit");
        co_await arrive(frm::Desktop);
        gDesktopFolge = {};
    }

    Journey rounds() {
        start();
        co_await pass(100);
        picture("splash");
        co_await arrive(frm::Login);
        type(frm::Login, "txtUserName", "M. Prüfer");
        picture("login");
        press(frm::Login, "pbok");
        co_await arrive(frm::Desktop);
        picture("desktop-start");
        co_await opened(frm::Interface, "interface");
        co_await opened(frm::Einlaufen, "einlaufen");
        co_await opened(frm::Meldung1, "meldung1");
        co_await opened(frm::ProtokollNr_1, "protokollnr_1");
        gMessStatus = Messstatus::Ruhe; // that dialog was left without a protocol
        gDesktopFolge = {};

        co_await masterData();
        const DemoNames names;
        press(frm::Desktop, "pbKunde");
        co_await arrive(frm::Kunden);
        type(frm::Kunden, "cmbKundenname", names.customer);
        co_await pass(50);
        picture("kunden");
        press(frm::Kunden, "pbexit");
        co_await arrive(frm::Gerät);
        type(frm::Gerät, "cmbIdent", names.ident);
        co_await pass(50);
        picture("gerät");
        enter(frm::Gerät, "cmbIdent");
        co_await arrive(frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", names.recipe);
        co_await pass(50);
        picture("rezepte");
        press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);

        press(frm::Desktop, "pbDrehR");
        co_await arrive(frm::MotorDrehR);
        press(frm::MotorDrehR, "obRechts");
        picture("motordrehr");
        press(frm::MotorDrehR, "pbok");
        co_await arrive(frm::Desktop);
        press(frm::Desktop, "pbMotein");
        co_await pass(5000);
        picture("desktop-motor");
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::VorStatNPK);
        picture("vorstatnpk");
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        picture("statmessen");
        press(frm::StatMessen, "pbWeiter");
        co_await arrive(frm::NachStatNPK);
        picture("nachstatnpk");
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::ProtokollNr);
        press(frm::ProtokollNr, "obNeu");
        type(frm::ProtokollNr, "txtNeu", "Abnahme");
        picture("protokollnr");
        line.stand().setLoad(100);
        press(frm::ProtokollNr, "pbok");
        co_await until("the first step", [] { return canPress(frm::Messen, "pbSpeichern"); });
        co_await pass(20'000);
        picture("messen-leistung");
        press(frm::Messen, "pbSpeichern");
        co_await arrive(frm::Meldung);
        picture("meldung");
        co_await until("the second step", [] {
            return inFront(frm::Messen) && !text(frm::Messen, "txtIST_P_torvena").isEmpty();
        });
        type(frm::Messen, "txtIST_n_ergom", "80");
        picture("messen-drehzahl");
        press(frm::Messen, "pbSpeichern");
        co_await pass(500);
        press(frm::Messen, "pbFreieEing");
        type(frm::Messen, "txtSoll_n", "70");
        type(frm::Messen, "txtSoll_P", "150");
        co_await pass(50);
        picture("messen-frei");
    }

    QDir mTarget;
    std::int16_t mLanguage;
};

} // namespace

int main(int argc, char *argv[]) {
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QDir::homePath().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QDir target(QDir::current().absoluteFilePath(argc > 1 ? argv[1] : "gallery"));
    QDir().mkpath(target.path());
    for (const auto language : {std::int16_t{1}, std::int16_t{2}})
        Gallery(target, language).show();
    return 0;
}
