// The settings of the line to the controller and of the running-in.
#include <QScrollBar>

#include "controller.h"
#include "interface.h"
#include "msgbox.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

class Settings : public Workplace, public testing::WithParamInterface<int> {
  protected:
    Settings() { setLanguage(GetParam()); }

    static Journey open(const char *menu, frm name) {
        support::choose(frm::Desktop, menu);
        co_await arrive(name);
    }
    static void scrollTo(int port) { control<QScrollBar>(frm::Interface, "SbCOM")->setValue(port); }
    static QString fields() {
        QStringList shown;
        for (const char *field :
             {"txtCOM", "cmbBaud", "cmbParitaet", "cmbDatenbits", "cmbStoppbits"})
            shown += text(frm::Interface, field);
        return shown.join(' ');
    }
    static void choose(const char *box, const QString &entry) {
        control<QComboBox>(frm::Interface, box)->setCurrentText(entry);
    }
    static QString state() {
        const auto *label = control<QLabel>(frm::Interface, "Label2");
        return label->text() + ' ' + label->palette().color(QPalette::WindowText).name();
    }
    QString row() { return column("SELECT PortNr || ' ' || Parameter FROM Interface").join(" / "); }
    static QString line1() {
        return QString::number(MSComm1.CommPort()) + ' ' + MSComm1.Settings();
    }
    void expectMissingPort() {
        expectBox({"Diese Schnittstelle gibt es nicht!\rBitte ändern Sie die Einstellungen",
                   "This interface does not exist!\rChange the settings, please!"},
                  Exclamation, {"Achtung!", "!Attention!"});
    }
    void expectPortInUse() {
        expectBox({"Fehler mI 2 -  8005 belegt", "ERROR mSI 2 -  8005 in use"}, Critical,
                  {"!! Achtung Fehler !!", " !! Attention !!"});
    }
    QString missing() const {
        return english() ? "Not existing! #ff0000" : "Nicht vorhanden! #ff0000";
    }
    QString existing() const { return english() ? "Existing #00ff00" : "Vorhanden. #00ff00"; }
};

INSTANTIATE_TEST_SUITE_P(Languages, Settings, testing::Values(1, 2));

TEST_P(Settings, OfTheLineAreShownTriedAndStored) {
    change("UPDATE Interface SET PortNr = 7, Parameter = '75,O,5,1.5'");
    const auto journey = [this]() -> Journey {
        co_await logIn();
        EXPECT_EQ(line1(), "7 75,O,5,1.5");
        co_await open("mnuSSParameter", frm::Interface);
        EXPECT_EQ(fields(), "7 75 Ungerade 5 1.5");
        EXPECT_EQ(text(frm::Interface, "Label2"), "") << "nothing was tried yet";
        EXPECT_EQ(control<QScrollBar>(frm::Interface, "SbCOM")->value(), 7);
        EXPECT_EQ(control<QScrollBar>(frm::Interface, "SbCOM")->minimum(), 1);
        EXPECT_TRUE(control(frm::Interface, "SbCOM")->hasFocus());

        // The port that the table names is missing: told, and nothing is stored.
        choose("cmbBaud", "9600");
        expectMissingPort();
        press(frm::Interface, "pbok");
        EXPECT_TRUE(boxes.allCame());
        EXPECT_TRUE(inFront(frm::Interface));

        // Every movement tries a port.
        scrollTo(6);
        EXPECT_EQ(state(), missing());
        EXPECT_EQ(line1(), "6 75,O,5,1.5");
        scrollTo(1);
        EXPECT_EQ(state(), existing());
        EXPECT_EQ(MSComm1.CommPort(), 1);
        EXPECT_FALSE(MSComm1.PortOpen());
        QTest::keyClick(control(frm::Interface, "SbCOM"), Qt::Key_Right);
        EXPECT_EQ(text(frm::Interface, "txtCOM") + ' ' + state(), "2 " + missing());
        scrollTo(17);
        EXPECT_EQ(text(frm::Interface, "txtCOM"), "16");
        EXPECT_EQ(control<QScrollBar>(frm::Interface, "SbCOM")->value(), 16);
        EXPECT_EQ(MSComm1.CommPort(), 16);

        // Leaving puts the line back, by every way out.
        for (const int way : {0, 1, 2}) {
            if (way == 0)
                press(frm::Interface, "pbexit");
            else if (way == 1)
                QTest::keyClick(loaded(frm::Interface), Qt::Key_Escape);
            else
                loaded(frm::Interface)->close();
            co_await arrive(frm::Desktop);
            EXPECT_EQ(line1(), "7 75,O,5,1.5") << way;
            EXPECT_EQ(row(), "7 75,O,5,1.5");
            co_await open("mnuSSParameter", frm::Interface);
            EXPECT_EQ(fields(), "7 75 Ungerade 5 1.5");
            scrollTo(1);
        }
        press(frm::Interface, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(row(), "1 75,O,5,1.5") << "the stop bits stay";
        EXPECT_EQ(line1(), "1 75,O,5,1.5");

        co_await open("mnuSSParameter", frm::Interface);
        choose("cmbBaud", "115200");
        choose("cmbParitaet", "Gerade");
        choose("cmbDatenbits", "7");
        choose("cmbStoppbits", "2");
        EXPECT_EQ(line1(), "1 75,O,5,1.5") << "settings come with OK only";
        QTest::keyClick(control(frm::Interface, "cmbStoppbits"), Qt::Key_Return);
        co_await arrive(frm::Desktop);
        EXPECT_EQ(row(), "1 115200,E,7,2");
        EXPECT_EQ(line1(), "1 115200,E,7,2");
    };
    run(journey());
}

TEST_P(Settings, OfAPortThatIsInUse) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await open("mnuSSParameter", frm::Interface);
        scrollTo(2);
        line.occupy(true);
        expectPortInUse();
        scrollTo(1);
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(text(frm::Interface, "txtCOM") + ' ' + state(), "1 " + missing())
            << "the result before it";
        choose("cmbBaud", "4800");
        expectPortInUse();
        expectMissingPort();
        press(frm::Interface, "pbok");
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(row(), "1 19200,N,8,1");
        line.occupy(false);
        press(frm::Interface, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(line1(), "1 4800,N,8,1");
    };
    run(journey());
}

/// A port that knows seven and eight data bits only.
struct Choosy : SerialDevice {
    void open(const SerialSettings &settings) override {
        if (settings.dataBits < 7)
            throw Fehler(fehlernummer::PortSettings, {"geht nicht", "not possible"});
    }
    void write(const QByteArray &) override {}
    QByteArray readAll() override { return {}; }
    void discard() override {}
    qsizetype waiting() override { return 0; }
    bool lost() const override { return false; }
};

TEST_P(Settings, ThatThePortRefusesAreMendedOnTheScreen) {
    change("UPDATE Interface SET PortNr = 20, Parameter = '9600,N,5,1'");
    setSerialDeviceMaker([](const QString &) { return std::make_unique<Choosy>(); });
    const auto expectRefusal = [this] {
        expectBox({"Fehler mI 2 -  8012 geht nicht", "ERROR mSI 2 -  8012 not possible"}, Critical,
                  {"!! Achtung Fehler !!", " !! Attention !!"});
    };
    const auto journey = [&]() -> Journey {
        co_await logIn();
        co_await chooseDirection();
        expectRefusal();
        expectBox({"Die Schnittstellenparameter gibt es nicht. \rBitte korrigieren Sie die "
                   "Einstellungen!",
                   "The interface settings do not exist . \rPlease correct it!"},
                  Exclamation, {"Achtung!", "Attention!"});
        press(frm::Desktop, "pbMotein");
        co_await arrive(frm::Interface);
        EXPECT_EQ(fields(), "20 9600 Keine 5 1") << "a number above those of the bar";
        choose("cmbDatenbits", "6");
        expectRefusal();
        press(frm::Interface, "pbok");
        EXPECT_EQ(row() + '|' + line1(), "20 9600,N,5,1|20 9600,N,5,1");
        choose("cmbDatenbits", "8");
        press(frm::Interface, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(row() + '|' + line1(), "20 9600,N,8,1|20 9600,N,8,1");

        MSComm1.setSettings("9600,N,5,1");
        co_await open("mnuSSParameter", frm::Interface);
        expectRefusal();
        scrollTo(3);
        EXPECT_EQ(text(frm::Interface, "txtCOM") + ' ' + state(), "3 " + existing());
        EXPECT_TRUE(boxes.allCame());
    };
    run(journey());
}

TEST_P(Settings, OfTheLineAreToldWhenTheyCannotBeReadOrStored) {
    const Text title{"!! Achtung Fehler !!", " !! Attention !!"};
    const auto journey = [&]() -> Journey {
        co_await logIn();
        co_await open("mnuSSParameter", frm::Interface);
        Datenbank other;
        other.openFile(datenbankName);
        other.execute("BEGIN IMMEDIATE");
        expectBox({"Fehler I_1003 -  3045 Die Datenbank ist von einem anderen Programm gesperrt. "
                   "Bitte schließen Sie es.",
                   "ERROR I_1003 -  3045 The database is locked by another program. Please close "
                   "it."},
                  Critical, title);
        press(frm::Interface, "pbok");
        EXPECT_TRUE(inFront(frm::Interface));
        other.execute("DELETE FROM Interface");
        other.execute("COMMIT");
        scrollTo(3);
        expectBox({"Fehler I_1002 -  3021 Kein aktueller Datensatz.",
                   "ERROR I_1002 -  3021 No current record."},
                  Critical, title);
        press(frm::Interface, "pbexit");
        co_await arrive(frm::Desktop);
        expectBox({"Fehler I_1001 - ( 3021) Kein aktueller Datensatz.",
                   "ERROR I_1001 - ( 3021) No current record."},
                  Critical, title);
        boxes.allow((english() ? "ERROR I_1002 - …" : "Fehler I_1002 - …"));
        co_await open("mnuSSParameter", frm::Interface);
        EXPECT_TRUE(boxes.allCame());
        press(frm::Interface, "pbexit");
        co_await arrive(frm::Desktop);
    };
    run(journey());
}

TEST_P(Settings, OfTheRunningIn) {
    struct Case {
        const char *time, *power;
        const char *stored; // Einlzeit2 and EinlW
        const char *stays;  // the field that keeps the keyboard; null when the screen closes
    };
    constexpr Case cases[] = {
        {"60", "100", "10.0 100.0", "txtZeit"}, {"5", "800", "5.0 100.0", "txtW"},
        {"-1", "nan", "5.0 100.0", "txtZeit"},  {"", "", "5.0 100.0", "txtZeit"},
        {"10.30", "75", "10.3 75.0", nullptr},
    };
    change("UPDATE System SET Einlzeit2 = 10");
    const auto journey = [&]() -> Journey {
        co_await logIn();
        for (const Case &c : cases) {
            SCOPED_TRACE(std::string(c.time) + " / " + c.power);
            co_await open("mnuEinlaufen", frm::Einlaufen);
            EXPECT_TRUE(control(frm::Einlaufen, "txtZeit")->hasFocus());
            control<QLineEdit>(frm::Einlaufen, "txtZeit")->setText(c.time);
            enter(frm::Einlaufen, "txtZeit");
            EXPECT_TRUE(control(frm::Einlaufen, "txtW")->hasFocus());
            control<QLineEdit>(frm::Einlaufen, "txtW")->setText(c.power);
            if (c.stays)
                expectBox({"Mindestens ein Parameter konnte nicht gespeichert werden!",
                           "At least one parameter could not be saved!"},
                          Critical, {"Eingabefehler", "Attention"});
            enter(frm::Einlaufen, "txtW");
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(column("SELECT Einlzeit2 || ' ' || EinlW FROM System"),
                      QStringList{c.stored});
            EXPECT_EQ(QString("%1 %2").arg(gEinlaufzeit).arg(gEinlaufLeistung),
                      QString(c.stored).remove(".0"));
            if (c.stays) {
                EXPECT_TRUE(control(frm::Einlaufen, c.stays)->hasFocus());
                EXPECT_EQ(text(frm::Einlaufen, "txtZeit"), c.time) << "what was typed stays";
                press(frm::Einlaufen, "pbAbbrechen");
            }
            co_await arrive(frm::Desktop);
            EXPECT_FALSE(loaded(frm::Einlaufen));
        }
        co_await open("mnuEinlaufen", frm::Einlaufen);
        EXPECT_EQ(text(frm::Einlaufen, "txtZeit"), english() ? "10.3" : "10,3");
        EXPECT_EQ(text(frm::Einlaufen, "txtW"), "75");
    };
    run(journey());
}

} // namespace
