// Renders every screen with demo data in both languages to PNG, light and dark, at 100 % and 200 %:
// gallery [DIR] [light|dark]. Fails when a screen does not fit or a caption is cut.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>

#include "app/verzeichnisfrage.h"
#include "boxtexts.h"
#include "finaltest/epablauf.h"
#include "link/ergometer.h"
#include "lookcheck.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/scripts.h"
#include "windows/help.h"
#include "windows/preview.h"
#include "windows/stil.h"
#include "windows/waiting.h"
#include "workplace.h"

namespace {

using namespace support;

int faultCount = 0;

/// As the window stands, at 100 % and drawn anew at 200 %.
void save(QWidget &window, const QDir &target, const QString &name) {
    QApplication::processEvents();
    window.grab().save(target.filePath(name + ".png"));
    QPixmap twice(window.size() * 2);
    twice.setDevicePixelRatio(2);
    window.render(&twice);
    twice.save(target.filePath(name + "@2x.png"));
    for (const QString &fault : lookcheck::faults(window)) {
        std::printf("%s: %s\n", qPrintable(name), qPrintable(fault));
        ++faultCount;
    }
}

class Gallery : public Workplace {
  public:
    Gallery(QDir target, std::int16_t language) : mTarget(std::move(target)), mLanguage(language) {
        gDatenbank.openFile(datenbankName);
        gDatenbank.execute("UPDATE System SET Sprache = ?", {language});
        gDatenbank.close();
        boxes.allow("…", platform::Yes);
    }

    void show() { run(rounds()); }
    void showFirstDay() {
        QFile::remove(datenbankName);
        legeDatenbankAn(datenbankName, false);
        setLanguage(mLanguage);
        for (const QString &gone : {QString(), QString("/media/stick/torvena")})
            directory(gone);
        run(firstDay());
    }
    void showCutOff() {
        change("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, KundenID, GerätID) "
               "VALUES (50, 'Abnahme', 1, 1)");
        change("INSERT INTO Sitzung SELECT 50, MIN(RezeptID) FROM Rezeptnamen");
        run(cutOff());
    }
    void showRefusals() {
        change("UPDATE System SET Endprüfung = -1");
        change("UPDATE Hebelarmkalibrierung SET Prüfdatum = '2020-01-15 16:30:00'");
        run(refusals());
    }

  private:
    void TestBody() override {}

    void picture(const char *name) {
        save(*platform::frontScreen(), mTarget,
             QString("%1-%2").arg(name, mLanguage == 1 ? "de" : "en"));
    }

    /// A real box, answered once its picture is taken.
    void box(const char *key) {
        const auto *known =
            std::find_if(std::begin(boxTexts), std::end(boxTexts),
                         [key](const KnownBox &one) { return key == QString(one.key); });
        QTimer::singleShot(0, [this, key] {
            auto *window = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            save(*window, mTarget, QString("box-%1-%2").arg(key, mLanguage == 1 ? "de" : "en"));
            window->buttons().at(0)->click();
        });
        meldung({known->german, known->english}, known->flags, {known->title, known->titleEnglish});
    }

    void directory(const QString &gone) {
        Verzeichnisfrage question("/home/pruefer/torvena", gone);
        question.show();
        save(question, mTarget,
             QString("verzeichnis%1-%2")
                 .arg(gone.isEmpty() ? "" : "-fort", mLanguage == 1 ? "de" : "en"));
    }

    Journey cutOff() {
        co_await logIn();
        picture("desktop-unterbrochen");
    }

    Journey firstDay() {
        co_await logIn();
        picture("desktop-erstertag");
        support::choose(frm::Desktop, "mnuÜber");
        co_await arrive(frm::Über);
        picture("über");
    }

    /// The help over the desktop: a page, and what a search finds.
    void help() {
        const QString language = mLanguage == 1 ? "de" : "en";
        platform::showHelp("frmMessen");
        QWidget *window = nullptr;
        for (QWidget *one : QApplication::topLevelWidgets()) {
            if (one->isVisible() && one->findChild<QWidget *>("txtSearch"))
                window = one;
        }
        save(*window, mTarget, "hilfe-" + language);
        auto *search = window->findChild<QLineEdit *>("txtSearch");
        sendKeys(*search, mLanguage == 1 ? "Unsicherheit" : "uncertainty");
        QTest::keyClick(search, Qt::Key_Return);
        save(*window, mTarget, "hilfe-suche-" + language);
        platform::showHelp("frmKunden");
        search->clear();
        save(*window, mTarget, "hilfe-kunden-" + language);
        platform::closeHelp();
    }

    void messageBoxes() {
        using namespace platform;
        setBoxAnswerer({});
        for (const char *key :
             {"notRunIn", "recipeEnd", "noController", "end", "endAnyway", "running"})
            box(key);
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

    Journey port(frm screen, int number, const char *pictureName) {
        form(screen).show();
        co_await arrive(screen);
        control<QScrollBar>(screen, "SbCOM")->setValue(2);
        control<QScrollBar>(screen, "SbCOM")->setValue(number);
        co_await pass(50);
        picture(pictureName);
        form(screen).unload();
    }

    Journey ergometer() {
        co_await port(frm::SecondInterface, 9, "secondinterface-fehlt");
        co_await port(frm::SecondInterface, 4, "secondinterface-da");
        form(frm::Test).show();
        co_await arrive(frm::Test);
        co_await go("stand speederror 60 ; txtSSCode = D ; pbSend ; pass 50 ; pbSave");
        picture("test");
        co_await go("stand speederror 0 ; pbexit ; @Desktop");
        co_await opened(frm::EPListe, "epliste");
    }

    Journey masterData() {
        const DemoNames names;
        for (int number = 1; number <= 30; ++number)
            gDatenbank.execute("INSERT INTO Kunden (Name) VALUES (?)",
                               {QString("Praxis Nr. %1").arg(number, 2, 10, QChar('0'))});
        press(frm::Desktop, "pbKunde");
        co_await arrive(frm::Kunden);
        picture("kunden-viele");
        press(frm::Kunden, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        gDatenbank.execute("DELETE FROM Kunden WHERE Name LIKE 'Praxis Nr.%'");
        press(frm::Desktop, "pbKunde");
        co_await arrive(frm::Kunden);
        co_await visited(frm::Kunden, "pbNeu", frm::NeuKunde, "neukunde", "pbexit");
        type(frm::Kunden, "cmbKundenname", names.customer);
        co_await visited(frm::Kunden, "pbchange", frm::ÄndKund, "ändkund", "pbexit");
        co_await visited(frm::Kunden, "pbDelete", frm::LöschKunde, "löschkunde", "pbCancel");
        press(frm::Kunden, "pbexit");
        co_await arrive(frm::Gerät);
        co_await visited(frm::Gerät, "pbNeu", frm::NeuGerät, "neugerät", "pbexit");
        press(frm::Gerät, "pbNeu");
        co_await arrive(frm::NeuGerät);
        form(frm::NeuGerät)
            .showInfo(inSprache({"Noch kein Gerät vorhanden!", "No Units existent yet!"}));
        picture("neugerät-erstes");
        press(frm::NeuGerät, "pbexit");
        co_await arrive(frm::Gerät);
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

    Journey finalTestRecipes() {
        form(frm::EPRezepte).showModal();
        co_await arrive(frm::EPRezepte);
        picture("eprezepte");
        press(frm::EPRezepte, "pbÄndRez");
        co_await arrive(frm::EPÄndRez);
        picture("epändrez");
        press(frm::EPÄndRez, "pbexit");
        co_await arrive(frm::EPRezepte);
        press(frm::EPRezepte, "pbNeuRezept");
        co_await arrive(frm::EPNeuRezept);
        picture("epneurezept-name");
        type(frm::EPNeuRezept, "txtRezName", "Abnahme Serie 3");
        type(frm::EPNeuRezept, "cmbToleranz", "T");
        press(frm::EPNeuRezept, "pbRezSave");
        co_await pass(50);
        type(frm::EPNeuRezept, "txtDrehzahl", "60");
        type(frm::EPNeuRezept, "txtLeistung", "150");
        enter(frm::EPNeuRezept, "txtLeistung");
        type(frm::EPNeuRezept, "txtMessSchritte", "3");
        press(frm::EPNeuRezept, "pbSave");
        co_await pass(50);
        press(frm::EPNeuRezept, "pbFirst");
        co_await pass(50);
        picture("epneurezept");
        press(frm::EPNeuRezept, "pbexit"); // the answer is Yes: discarded
        co_await arrive(frm::EPRezepte);
        press(frm::EPRezepte, "pbexit");
        co_await arrive(frm::Desktop);
        gEPRezeptWahl.clear();
    }

    /// A sheet under a new head, which begins with the newest one, and one that stands there.
    Journey sheet(const char *button, frm name, const std::string &pictureName) {
        for (const bool there : {false, true}) {
            press(frm::Desktop, button);
            co_await arrive(frm::BlutdruckAbfrage);
            if (!there) {
                press(frm::BlutdruckAbfrage, "obNeu");
                type(frm::BlutdruckAbfrage, "txtNeu", "Wiederholung");
            }
            picture((pictureName + (there ? "-wahl" : "-wahl-neu")).c_str());
            press(frm::BlutdruckAbfrage, "pbok");
            co_await arrive(name);
            picture((pictureName + (there ? "" : "-neu")).c_str());
            press(name, "pbexit");
            co_await arrive(frm::Desktop);
        }
    }

    Journey sheets() {
        const auto customer = std::exchange(gKundenID, 2), unit = std::exchange(gGerätID, 6);
        co_await sheet("pbBlutdruck", frm::Blutdruck, "blutdruck");
        co_await sheet("pbSecControl", frm::SecControl, "seccontrol");
        gKundenID = customer;
        gGerätID = unit;
    }

    /// Of the dynamic measurement: still empty, running, full, and with a silent controller.
    Journey charts() {
        press(frm::Messen, "pbDynMess");
        co_await arrive(frm::GraphLite);
        picture("graphlite-leer");
        for (const auto &[load, name] : {std::pair{102, "graphlite"}, {97, "graphlite-voll"}}) {
            line.stand().setLoad(load);
            co_await pass(load == 102 ? 9000 : 25'000);
            picture(name);
        }
        press(frm::GraphLite, "pbSkalaP");
        co_await arrive(frm::SetScale);
        picture("setscale");
        press(frm::SetScale, "pbok");
        co_await arrive(frm::GraphLite);
        press(frm::GraphLite, "pbZahlen");
        picture("graphlite-gespeichert");
        line.stand().setFaults({.silent = true});
        co_await pass(4000);
        picture("graphlite-still");
        line.stand().setFaults({});
        line.stand().setLoad(100);
        press(frm::GraphLite, "pbBeenden");
        co_await arrive(frm::Messen);
        co_await until("the step anew", [] { return canPress(frm::Messen, "pbSpeichern"); });
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
        co_await port(frm::Interface, 1, "interface-da");
        co_await port(frm::Interface, 9, "interface-fehlt");
        co_await ergometer();
        gFormStatus = Formstatus::RichtungFehlt;
        co_await opened(frm::VorStatNPK, "vorstatnpk-hebelarm");
        gFormStatus = Formstatus::Keiner;
        gEinlaufStatus = Einlaufstatus::NichtBegonnen;
        co_await opened(frm::Einlaufen, "einlaufen");
        co_await opened(frm::Meldung1, "meldung1");
        co_await opened(frm::ProtokollNr_1, "protokollnr_1");
        co_await opened(frm::Bericht, "bericht");
        form(frm::Bericht1).show();
        co_await arrive(frm::Bericht1);
        control<QComboBox>(frm::Bericht1, "cmbKunde")->setCurrentIndex(0);
        Q_EMIT control<QComboBox>(frm::Bericht1, "cmbKunde")->activated(0);
        control<QComboBox>(frm::Bericht1, "cmbBericht")->setCurrentIndex(0);
        picture("bericht1");
        form(frm::Bericht1).unload();
        co_await opened(frm::Sort, "sort");
        co_await opened(frm::DeleteExtended, "deleteextended");
        co_await opened(frm::Nachweis, "nachweis");
        co_await opened(frm::PrinterPDF, "printerpdf");
        co_await opened(frm::BerichtSichern, "berichtsichern");
        form(frm::History).show();
        co_await arrive(frm::History);
        control<QTableView>(frm::History, "dbgHistory")->selectRow(3);
        picture("history");
        form(frm::History).unload();
        co_await opened(frm::Refresh, "refresh");
        gMessStatus = Messstatus::Ruhe; // that dialog was left without a protocol
        gDesktopFolge = {};

        co_await masterData();
        co_await finalTestRecipes();
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

        picture("desktop-gewählt");
        co_await sheets();
        press(frm::Desktop, "pbDrehR");
        co_await arrive(frm::MotorDrehR);
        picture("motordrehr-offen");
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
        co_await until("its notice", [] { return inFront(frm::Messen); });
        co_await pass(4000);
        picture("messen-wartet");
        co_await until("the first step", [] { return canPress(frm::Messen, "pbSpeichern"); });
        picture("messen-anlauf");
        for (const auto &[load, name] :
             {std::pair{105, "messen-offen"}, {112, "messen-nein"}, {100, "messen-leistung"}}) {
            line.stand().setLoad(load);
            co_await pass(22'000);
            picture(name);
        }
        co_await charts();
        press(frm::Messen, "pbSpeichern");
        co_await arrive(frm::Meldung);
        picture("meldung");
        co_await until("the second step", [] {
            return inFront(frm::Messen) && !text(frm::Messen, "txtIST_P_torvena").isEmpty();
        });
        co_await pass(12'000);
        type(frm::Messen, "txtIST_n_ergom", "83");
        picture("messen-drehzahl");
        press(frm::Messen, "pbSpeichern");
        co_await pass(500);
        picture("messen-summe");
        press(frm::Messen, "pbFreieEing");
        type(frm::Messen, "txtSoll_n", "70");
        type(frm::Messen, "txtSoll_P", "150");
        co_await pass(50);
        picture("messen-frei");
        press(frm::Messen, "pbAbbrechen");
        co_await arrive(frm::Meldung);
        picture("meldung-ende");
        help();
        messageBoxes();
    }

    // The lever arm is overdue, and the correction drifts: first so far that it warns, then
    // further.
    Journey refusals() {
        start();
        co_await arrive(frm::Login);
        type(frm::Login, "txtUserName", "M. Prüfer");
        press(frm::Login, "pbok");
        co_await arrive(frm::Desktop);
        picture("desktop-endprüf");
        co_await go("choose AEH-001, Kurzprüfung ; direction");
        co_await go("stand offsetdrift 10 ; begin ; pbok ; until can StatMessen.pbWeiter");
        picture("statmessen-warnung");
        co_await go("close ; @Desktop ; stand offsetdrift 19 ; begin ; pbok ; @NachStatNPK");
        picture("nachstatnpk-halt");
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::Desktop);
        picture("desktop-gesperrt");
        co_await finalTest();
        co_await finalRun();
        co_await leverArm();
    }

    /// A known device, and one that runs in.
    Journey finalTest() {
        change("UPDATE EP_Rezeptnamen SET LetzterAufruf = 0");
        change("INSERT INTO EP_Rezeptnamen (RezName, Toleranz, LetzterAufruf) "
               "VALUES ('Endprüfung Sitzergometer', 'medizinische Geräte', -1)");
        change("INSERT INTO EP (SerienNr, Gerätetyp) VALUES ('SN-2044', 'Sitzergometer S2')");
        change("INSERT INTO EP_Messwerte (ProtokollID, Prüfschritt, Toleranz) "
               "SELECT MAX(EP_ID), 1, 'OK' FROM EP");
        co_await go("pbEndprüf ; @Endprüf");
        picture("endprüf");
        co_await go("txtSerNr = SN-2044 ; txtMesskopf = M 17 ; txtKundenName = Klinikum Ährenfeld "
                    "; txtMOhm = 12.5 ; txtOhm = 0.12 ; txtµA = 85 ; txt0auf = 0 ; txt50auf = 51 "
                    "; txt100auf = 101 ; txt150auf = 150 ; txt200auf = 199 ; txt250auf = 250 "
                    "; txt300auf = 301 ; txtAblass = 3 ; txtPrüfer ^");
        picture("endprüf-bekannt");
        co_await go("? headExists ; pbok ; pbMotein ; pass 5000");
        picture("endprüf-einlaufen");
        co_await go("pbBeenden ; @Desktop");
    }

    /// A final test by itself, the second step out of tolerance.
    Journey finalRun() {
        gDatenbank.execute("INSERT INTO EP_Rezeptnamen (RezeptID, RezName) VALUES (900, 'Serie')");
        gDatenbank.execute(
            "INSERT INTO EP_Rezepte VALUES (900, '1', '60', 100, '2', 'W100[13]', '3'), "
            "(900, '2', '80', 150, '2', 'W140[13]', '3'), (900, '3', '60', 50, '2', '', '3')");
        gEPModus = gSS2Vorhanden = gMessenFreigabe = true;
        gEPProtokollID = 2;
        gEPRezeptID = 900;
        gRezeptName = "medizinische Geräte";
        gMessStatus = Messstatus::Ruhe;
        gDatenbank.execute("DELETE FROM EP_Messwerte WHERE ProtokollID = 2");
        epAblaufEinsetzen();
        form(frm::Messen).show();
        co_await until("a step", [] { return inFront(frm::Meldung); });
        co_await go("@Messen ; until lblMessSchritte == 2/3");
        picture("messen-endprüfung-nein");
        co_await go("until laPrSchritt == 3 ; until lblMessSchritte == 2/3");
        picture("messen-endprüfung");
        co_await go("pbAbbrechen ; @Desktop");
        platform::closePreviews();
        epAblaufWegnehmen();
        gEPModus = false;
    }

    Journey leverArm() {
        co_await go("mnuKalibrierung ; @Kalibrierung");
        picture("kalibrierung");
        co_await go("stand offsetdrift 0 ; stand mode lever ; pbStart ; pass 5000");
        picture("kalibrierung-einlaufen");
        co_await go("pass 600000 ; @VorStatNPK");
        picture("vorstatnpk-hebelarm");
        co_await go("pbok ; until can StatMessen.pbWeiter ; pbWeiter ; @NachStatNPK");
        picture("nachstatnpk-hebelarm");
        co_await go("stand lever left ; stand moment 30.12 ; pbok ; @Oberfl ; txtOberfl = 9,8107");
        picture("oberfl");
        co_await go("pbWeiter ; @MomentKal ; until can pbWiederholen");
        picture("momentkal-nein");
        co_await go("stand moment 30.01 ; pbWiederholen ; @NachStatNPK ; pbok ; @MomentKal "
                    "; until can pbWeiter ; pbWeiter ; @NachStatNPK ; stand lever right ; pbok "
                    "; @MomentKal ; until can pbWeiter");
        picture("momentkal");
        co_await go("pbWeiter ; @Kalibrierung");
        picture("kalibrierung-fertig");
    }

    QDir mTarget;
    std::int16_t mLanguage;
};

/// Each state of a button and of a field, under its name.
class States {
  public:
    void save(const QDir &target) {
        button("normal", [](QPushButton &) {});
        button("default", [](QPushButton &b) { b.setDefault(true); });
        button("keyboard", [](QPushButton &b) { b.setFocus(); });
        button("waiting", [](QPushButton &b) { platform::setWaiting(&b, true); });
        button("waiting, keyboard", [](QPushButton &b) {
            platform::setWaiting(&b, true);
            b.setFocus();
        });
        button("disabled", [](QPushButton &b) { b.setEnabled(false); });
        field("to type into", [](QLineEdit &) {});
        field("keyboard", [](QLineEdit &f) { f.setFocus(); });
        field("shown", [](QLineEdit &f) { f.setReadOnly(true); });
        field("free input", [](QLineEdit &f) { platform::setFreeInput(&f, true); });
        field("empty", [](QLineEdit &f) {
            f.clear();
            f.setPlaceholderText("60,0");
        });
        field("disabled", [](QLineEdit &f) { f.setEnabled(false); });
        QPixmap sheet(6 * cell.width(), 2 * cell.height());
        sheet.fill(platform::farben().fenster);
        QPainter painter(&sheet);
        for (int i = 0; i < int(mCells.size()); ++i)
            painter.drawPixmap(i % 6 * cell.width(), i / 6 * cell.height(), mCells[size_t(i)]);
        painter.end();
        sheet.save(target.filePath("states.png"));
    }

  private:
    static constexpr QSize cell{168, 84};

    // One window each: only one control at a time has the keyboard.
    template <class Control, class Shape>
    void add(const char *name, Control *control, Shape shape) {
        QWidget window;
        window.setFixedSize(cell);
        auto *column = new QVBoxLayout(&window);
        column->addWidget(control);
        column->addWidget(new QLabel(name));
        window.show();
        window.setFocusPolicy(Qt::StrongFocus);
        window.activateWindow();
        window.setFocus();
        shape(*control);
        QApplication::processEvents();
        mCells.push_back(window.grab());
    }
    void button(const char *name, const std::function<void(QPushButton &)> &shape) {
        add(name, new QPushButton("&Speichern"), shape);
    }
    void field(const char *name, const std::function<void(QLineEdit &)> &shape) {
        add(name, new QLineEdit("60,0"), shape);
    }

    std::vector<QPixmap> mCells;
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
    const QDir all(QDir::current().absoluteFilePath(argc > 1 ? argv[1] : "gallery"));
    for (const char *look : {"light", "dark"}) {
        if (argc > 2 && std::string_view(argv[2]) != look)
            continue;
        const QDir target(all.filePath(look));
        QDir().mkpath(target.path());
        platform::stilAnwenden(std::string_view(look) == "dark");
        States().save(target);
        for (const auto language : {std::int16_t{1}, std::int16_t{2}})
            Gallery(target, language).show();
        for (const auto language : {std::int16_t{1}, std::int16_t{2}})
            Gallery(target, language).showRefusals();
        for (const auto language : {std::int16_t{1}, std::int16_t{2}})
            Gallery(target, language).showFirstDay();
        for (const auto language : {std::int16_t{1}, std::int16_t{2}})
            Gallery(target, language).showCutOff();
    }
    std::printf("%s: %d faults\n", qPrintable(all.path()), faultCount);
    return faultCount == 0 ? 0 : 1;
}
