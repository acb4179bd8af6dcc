// The settings of the line to the controller and of the running-in.
#include "link/anschluss.h"
#include "link/controller.h"
#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;

class Settings : public Workplace {
  protected:
    Settings() {
        views["fields"] = [] {
            QStringList shown;
            for (const char *box :
                 {"txtCOM", "cmbBaud", "cmbParitaet", "cmbDatenbits", "cmbStoppbits"})
                shown += text(frm::Interface, box);
            return shown.join(' ');
        };
        views["state"] = [] {
            const auto *label = control<QLabel>(frm::Interface, "Label2");
            return label->text() + ' ' + label->palette().color(QPalette::WindowText).name();
        };
        views["row"] = [] { return grid("SELECT PortNr || ' ' || Parameter FROM Interface"); };
        views["line"] = [] {
            const QString open = MSComm1.PortOpen() ? " open" : "";
            return QString::number(MSComm1.CommPort()) + ' ' + MSComm1.Settings() + open;
        };
        views["runningIn"] = [] {
            return grid("SELECT Einlzeit2 || ' ' || EinlW FROM System") +
                   QString(" %1 %2").arg(gEinlaufzeit).arg(gEinlaufLeistung);
        };
    }
};

JOURNEY_P(Settings, OfTheLineAreShownTriedAndStored) {
    change("UPDATE Interface SET PortNr = 7, Parameter = '75,O,5,1.5'");
    co_await logIn();
    // Every movement of the bar tries a port, and leaving puts the line back, by every way out,
    // also where the table cannot tell any more. The other settings come with OK only.
    co_await go(R"(
        line == 7 75,O,5,1.5 ; mnuSSParameter ; @Interface
        fields == 7 75 Ungerade 5 1.5 ; hidden Label2 ; focus SbCOM    # nothing was tried yet
        cmbBaud > 9600 ; ? noSuchPort ; pbok ; front == Interface    # missing: nothing is stored
        SbCOM > 6 ; state == Nicht vorhanden! #ff0000 | Not existing! #ff0000 ; line == 6 75,O,5,1.5
        SbCOM > 1 ; state == Vorhanden. #00ff00 | Existing #00ff00 ; line == 1 75,O,5,1.5
        key Right ; txtCOM == 2 ; state == Nicht vorhanden! #ff0000 | Not existing! #ff0000
        SbCOM > 17 ; txtCOM == 16 ; line == 16 75,O,5,1.5
        pbexit ; @Desktop ; line == 7 75,O,5,1.5 ; row == 7 75,O,5,1.5 ; mnuSSParameter ; @Interface
        fields == 7 75 Ungerade 5 1.5 ; SbCOM > 1
        key Escape ; @Desktop ; line == 7 75,O,5,1.5 ; mnuSSParameter ; @Interface ; SbCOM > 1
        close ; @Desktop ; line == 7 75,O,5,1.5 ; mnuSSParameter ; @Interface ; SbCOM > 1
        pbok ; @Desktop ; row == 1 75,O,5,1.5 ; line == 1 75,O,5,1.5    # the stop bits stay
        mnuSSParameter ; @Interface ; state ~ #00ff00 ; cmbBaud > 115200 ; cmbParitaet > Gerade ; cmbDatenbits > 7
        cmbStoppbits > 2 ; line == 1 75,O,5,1.5
        cmbStoppbits ! ; @Desktop ; row == 1 115200,E,7,2 ; line == 1 115200,E,7,2
        mnuSSParameter ; @Interface ; SbCOM > 2 ; spoil SELECT Interface ; ? failure(I_1002) ; pbexit
        @Desktop ; line == 1 115200,E,7,2 ; mend)");
}

JOURNEY_P(Settings, OfAPortThatIsInUse) {
    co_await logIn();
    fnc_PortÖffnen(); // by the motor, and open still
    co_await go(R"(
        mnuSSParameter ; @Interface ; SbCOM > 2 ; line taken ; ? portInUse ; SbCOM > 1
        txtCOM == 1 ; state == Nicht vorhanden! #ff0000 | Not existing! #ff0000    # as before
        cmbBaud > 4800 ; ? portInUse ; ? noSuchPort ; pbok ; row == 1 19200,N,8,1
        line in ; pbok ; @Desktop ; line == 1 4800,N,8,1)");
}

/// A port that knows seven and eight data bits only.
struct Choosy : platform::SerialDevice {
    void open(const platform::SerialSettings &settings) override {
        if (settings.dataBits < 7)
            throw Fehler(platform::fehlernummer::PortSettings, {"geht nicht", "not possible"});
    }
    void write(const QByteArray &) override {}
    QByteArray readAll() override { return {}; }
    void discard() override {}
    qsizetype waiting() override { return 0; }
    bool lost() const override { return false; }
};

JOURNEY_P(Settings, ThatThePortRefusesAreMendedOnTheScreen) {
    change("UPDATE Interface SET PortNr = 20, Parameter = '9600,N,5,1'");
    platform::setSerialDeviceMaker([](const QString &) { return std::make_unique<Choosy>(); });
    co_await logIn();
    co_await go("direction");
    gSS1Vorhanden = true; // as far as anybody knew
    co_await go(R"(
        ? portRefused ; ? noSettings ; pbMotein ; @Interface
        fields == 20 9600 Keine 5 1    # a number above those of the bar
        cmbDatenbits > 6 ; ? portRefused ; pbok ; row == 20 9600,N,5,1 ; line == 20 9600,N,5,1
        cmbDatenbits > 8 ; pbok ; @Desktop ; row == 20 9600,N,8,1 ; line == 20 9600,N,8,1)");
    MSComm1.setSettings("9600,N,5,1");
    co_await go(R"(
        mnuSSParameter ; @Interface ; ? portRefused ; SbCOM > 3
        txtCOM == 3 ; state == Vorhanden. #00ff00 | Existing #00ff00)");
}

JOURNEY_P(Settings, OfTheLineAreToldWhenTheyCannotBeReadOrStored) {
    co_await logIn();
    co_await go("mnuSSParameter ; @Interface");
    Datenbank other;
    other.openFile(datenbankName);
    other.execute("BEGIN IMMEDIATE");
    co_await go("? locked(I_1003) ; pbok ; front == Interface");
    other.execute("DELETE FROM Interface");
    other.execute("COMMIT");
    co_await go(R"(
        SbCOM > 3 ; ? noRecord(I_1002) ; pbexit ; @Desktop ; line == 1 19200,N,8,1
        ? unreadRow(I_1001) ; mnuSSParameter ; @Interface ; ? noRecord(I_1002) ; pbexit ; @Desktop)");
}

JOURNEY_P(Settings, OfTheRunningIn) {
    change("UPDATE System SET Einlzeit2 = 10");
    co_await logIn();
    for (const Case &c : cases("60, 100 -> 10.0 100.0 10 100, txtZeit | "
                               "5, 800 -> 5.0 100.0 5 100, txtW | "
                               "-1, nan -> 5.0 100.0 5 100, txtZeit | -> 5.0 100.0 5 100, txtZeit"))
        co_await go(QString(R"(
            mnuEinlaufen ; @Einlaufen ; focus txtZeit ; txtZeit = %1 ; txtZeit ! ; focus txtW
            txtW = %2 ; ? parameter ; txtW ! ; runningIn == %3 ; focus %4 ; txtZeit == %1
            pbAbbrechen ; @Desktop)")
                        .arg(c.in_(0), c.in_(1), c.out_(0), c.out_(1)));
    co_await go(R"(
        mnuEinlaufen ; @Einlaufen ; txtZeit = 10.30 ; txtW = 75
        spoil UPDATE System ; ? failure(frmEinl01) ; pbok ; mend ; txtW ! ; @Desktop
        runningIn == 10.3 75.0 10.3 75 ; mnuEinlaufen ; @Einlaufen
        txtZeit == 10,3 | 10.3 ; txtW == 75 ; key Escape ; @Desktop)");
}

} // namespace
