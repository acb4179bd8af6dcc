// Renders every screen with demo data in both languages to PNG: gallery [DIR] (default gallery/).
#include <QApplication>
#include <QDir>

#include <cstdio>

#include "session.h"
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
        screen(name).show();
        co_await until(pictureName, [name] { return inFront(name); });
        co_await pass(50);
        picture(pictureName);
        screen(name).unload();
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
        gMessStatus = 6; // that dialog was left without a protocol
        gDesktopFolge = 0;

        const DemoNames names = demoNames();
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
