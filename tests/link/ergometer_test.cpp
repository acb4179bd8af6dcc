// The line to the ergometer: its answers byte by byte, its ends, its loads, its settings' screen.
#include "link/ergometer.h"

#include <QScrollBar>

#include "link/controller.h"
#include "linktest.h"
#include "workplace.h"

namespace {

using namespace platform;
using namespace support;

struct Answers : LinkTest {
    Answers() {
        line.connect(script, SerialLine::Ergometer);
        gSS2Vorhanden = true;
    }
    /// "n1 @50 23": what comes after the question, and waits between in ms.
    void answerWith(const QString &pieces) {
        script.onWrite = [this, pieces](const QByteArray &) {
            double at = clock.elapsed();
            for (const QString &piece : pieces.split(' ', Qt::SkipEmptyParts)) {
                if (piece.startsWith('@'))
                    at += piece.mid(1).toDouble();
                else
                    script.arrive(at, {piece.toLatin1()}, 2);
            }
        };
    }
    QString read() {
        start = clock.elapsed();
        return fnc_ErgometerDrehzahlLesen([this] { return stopped; }).value_or("nothing");
    }
    double took() const { return clock.elapsed() - start; }

    ByteScript script;
    bool stopped = false;
    double start = 0;
};

TEST_F(Answers, AreReadAsFarAsTheyGo) {
    // Behind the text the longest it may take, ms, and the box.
    for (const Case &c : cases(R"(
            n123 -> " 123", 25 | n060 -> " 60", 25 | n @99 0 @99 8 @99 3 -> " 83", 330
            | n123xyz -> " 123", 25 | n12 -> " 120", 130 | n6 -> " 600", 130 | n -> " 0", 130
            | n1 @101 23 -> " 100", 130 | n000 -> " 0", 25 | n999 -> " 999", 25
            | x123 -> " 0", 25 | xn123 -> " 0", 25 | 123 -> " 0", 25 | ÿ -> " 0", 25
            | na23 -> nothing, 25, 13 | n1:3 -> nothing, 25, 13 | n12x -> nothing, 25, 13 | n6 @50 xx -> nothing, 80, 13
            | @4970 n123 -> " 123", 5000 | @4970 n1 @40 23 -> nothing, 5000, silent
            | @5001 n123 -> nothing, 5000, silent | n456 -> " 456", 30)")) {
        SCOPED_TRACE(testing::Message() << c);
        answerWith(c.in);
        const QString box = c.out_(2);
        if (!box.isEmpty())
            expectKnown(box == "silent" ? "ergometerSilent" : "failed(mSI 1, " + box + ")");
        EXPECT_EQ(read(), c.out_(0).remove('"'));
        boxes.expectAllCame();
        EXPECT_LE(took(), c.out_(1).toDouble());
        EXPECT_FALSE(gTimeoutSS2 || ti_nSSTwo.enabled());
        EXPECT_TRUE(gSS2Vorhanden);
        clock.run(100); // what was late has come
    }
    EXPECT_EQ(script.written.count("D\r"), script.written.size() / 2);
}

TEST_F(Answers, WaitForAGapInWhatIsSent) {
    answerWith("n077");
    for (int at = 3; at <= 300; at += 3)
        script.arrive(clock.elapsed(), {"n"}, at); // of an answer that was meant for another
    EXPECT_EQ(read(), " 77");
    EXPECT_GT(took(), 300);
    for (int at = 3; at <= 6000; at += 3)
        script.arrive(clock.elapsed(), {"x"}, at);
    script.written.clear();
    expectKnown("ergometerSilent");
    EXPECT_EQ(read(), "nothing");
    EXPECT_NEAR(took(), 5000, 1);
    EXPECT_EQ(script.written, "");
    for (int at = 3; at <= 6000; at += 3)
        script.arrive(clock.elapsed(), {"x"}, at);
    clock.after(300, [this] { stopped = true; });
    EXPECT_EQ(read(), "nothing");
    EXPECT_LE(took(), 301);
    EXPECT_EQ(script.written, "");
}

TEST_F(Answers, OfNobodyWhoWaits) {
    // What happens 300 ms into the read, and what is told.
    for (const Case &c :
         cases("stop -> | close -> | end -> | stop and vanish -> | stop late -> | "
               "vanish -> failed(mSI 1, 8020) | gone -> | taken -> failed(mSI 1, 8005)")) {
        SCOPED_TRACE(testing::Message() << c);
        line.plug(SerialLine::Ergometer);
        gDesktopAktiv = gSS2Vorhanden = true;
        stopped = false;
        if (MSComm2.PortOpen())
            MSComm2.setPortOpen(false);
        if (c.in == "gone")
            line.unplug(SerialLine::Ergometer);
        line.occupy(c.in == "taken", SerialLine::Ergometer);
        clock.after(c.in == "stop late" ? 5000 : 300, [this, what = c.in] {
            stopped = what.startsWith("stop");
            if (what == "close")
                MSComm2.setPortOpen(false);
            if (what == "end")
                gDesktopAktiv = false;
            if (what.endsWith("vanish"))
                line.unplug(SerialLine::Ergometer);
        });
        if (!c.out.isEmpty())
            expectKnown(c.out);
        EXPECT_EQ(read(), "nothing");
        boxes.expectAllCame();
        EXPECT_FALSE(gTimeoutSS2 || ti_nSSTwo.enabled());
        EXPECT_EQ(gSS2Vorhanden, c.in != "gone");
        clock.run(6000);
    }
    gDesktopAktiv = true;
    line.occupy(false, SerialLine::Ergometer);
    // A second read inside one is refused, and so is a trial, which would close the port.
    answerWith("@200 n123");
    for (const char *box : {"failed(mSI 1, 8021)", "failed(mSI 2, 8021)"})
        expectKnown(box);
    clock.after(100, [this] {
        EXPECT_FALSE(fnc_ErgometerDrehzahlLesen([] { return false; }));
        fnc_SS2Prüfen();
        EXPECT_EQ(raised([] { fnc_SS2Speichern("5", {}); }), fehlernummer::LineBusy);
    });
    EXPECT_EQ(read(), " 123");
}

TEST_F(Answers, OnTheServiceQuestion) {
    QString word;
    const auto ask = [&](const QString &answer) {
        word.clear();
        answerWith(answer);
        const auto before = boxes.seen().size();
        ergometerDiagnose([&word](const QString &shown) { word = shown; });
        QStringList told;
        for (size_t i = before; i < boxes.seen().size(); ++i)
            told += boxes.seen()[i].text;
        return told.join('|') + '|' + (word == "Drehzahl angekommen" ? "yes" : word);
    };
    boxes.allow("…");
    for (const Case &c : cases("n123 -> 6E313233/123/yes | n12 -> 6E3132/120/yes | "
                               "x -> 78/Fehler bei Übertragung der Drehzahl!/0/ | "
                               "-> Keine Kommunikation mit dem Ergometer!!/"))
        EXPECT_EQ(ask(c.in), QString(c.out).replace('/', '|'));
    EXPECT_TRUE(ask("nx23").startsWith("6E783233|Fehler mSI 1 -  13 "));
    script.onWrite = {};
    for (int at = 3; at <= 6000; at += 3) // never silent
        script.arrive(clock.elapsed(), {"x"}, at);
    start = clock.elapsed();
    ergometerDiagnose([](const QString &) {});
    EXPECT_LE(took(), 5001);
}

TEST_F(Answers, AndLoads) {
    for (const Case &c : cases("5 -> W005[13] | 50 -> W050[13] | 150 -> W150[13] | 1000 -> | ->"))
        EXPECT_EQ(lastzeile(c.in), c.out);
    ergometerSenden(fnc_Transformation(lastzeile("150")));
    EXPECT_TRUE(MSComm2.PortOpen());
    fnc_LastAbschalten();
    EXPECT_FALSE(MSComm2.PortOpen());
    EXPECT_EQ(script.written, "W150\rW000\r");
    line.unplug(SerialLine::Ergometer);
    EXPECT_EQ(raised(fnc_LastAbschalten), fehlernummer::NoSuchPort);
    lastStillschweigendAb();
    EXPECT_FALSE(MSComm2.PortOpen());
    // A missing port is told by the flag alone; another failure leaves that as it was.
    gSS2Vorhanden = true;
    fnc_SS2Prüfen();
    EXPECT_FALSE(gSS2Vorhanden);
    line.plug(SerialLine::Ergometer);
    fnc_SS2Prüfen();
    EXPECT_TRUE(gSS2Vorhanden);
    EXPECT_FALSE(MSComm2.PortOpen());
    line.occupy(true, SerialLine::Ergometer);
    expectKnown("failed(mSI 2, 8005)");
    fnc_SS2Prüfen();
    EXPECT_TRUE(gSS2Vorhanden);
}

/// The simulated ergometer, asked while the shaft turns at 80 1/min.
struct OnErgometer : LinkTest {};

TEST_F(OnErgometer, FaultsCostTheirTime) {
    gSS2Vorhanden = true;
    ASSERT_TRUE(fnc_BefehlSenden("E", 1, "80"));
    clock.run(8000);
    for (const Case &c : cases(R"(
            none -> " 80", 45 | answerlate 3000 -> " 80", 3045 | answercut 2 -> " 0", 150
            | answerwrong on -> " 0", 45 | none -> " 80", 45)")) {
        SCOPED_TRACE(testing::Message() << c);
        for (const QString &fault : {QString("none"), c.in})
            ASSERT_EQ(simulator::runCommand("fault " + fault.toStdString(), line.stand(), {}),
                      "ok\n");
        const double start = clock.elapsed();
        EXPECT_EQ(fnc_ErgometerDrehzahlLesen([] { return false; }), c.out_(0).remove('"'));
        EXPECT_LE(clock.elapsed() - start, c.out_(1).toDouble());
    }
    ergometerSenden(fnc_Transformation("W175[13]"));
    EXPECT_EQ(line.stand().givenLoad(), 175);
    EXPECT_EQ(line.stand().load(), 175);
}

class SecondSettings : public Workplace {
  protected:
    SecondSettings() {
        views["fields"] = [] {
            QStringList shown;
            for (const char *box :
                 {"txtCOM", "cmbBaud", "cmbParitaet", "cmbDatenbits", "cmbStoppbits"})
                shown += text(frm::SecondInterface, box);
            return shown.join(' ');
        };
        views["state"] = [] {
            const auto *label = control<QLabel>(frm::SecondInterface, "Label2");
            return label->text() + ' ' + label->palette().color(QPalette::WindowText).name();
        };
        views["row"] = [] {
            return grid("SELECT PortNr || ' ' || Parameter FROM SecondInterface");
        };
        views["line"] = [] {
            return QString::number(MSComm2.CommPort()) + ' ' + MSComm2.Settings();
        };
        roads["settings"] = [this](const QString &) {
            return go("Desktop.mnuSSParameter ; @Interface ; pbSS2 ; @SecondInterface");
        };
    }
};

JOURNEY_P(SecondSettings, TakeEffectWhenTheyAreSaved) {
    change("UPDATE SecondInterface SET PortNr = 7, Parameter = '9600,O,7,1.5'");
    co_await logIn();
    // The port of the line and the parameters of the table. The first line's own is reserved: the
    // bar goes back to where the screen began.
    co_await go(R"(
        line == 4 4800,N,8,1 ; settings ; fields == 4 9600 Ungerade 7 1,5 | 4 9600 Ungerade 7 1.5
        state == Nicht vorhanden! #ff0000 | Not existing! #ff0000 ; shown Label4    # never tried
        SbCOM > 4 ; SbCOM > 5 ; shown Label4 ; line == 5 4800,N,8,1
        ? reserved(1) ; SbCOM > 1 ; txtCOM == 4 ; line == 4 4800,N,8,1
        state == Vorhanden. #00ff00 | Existing #00ff00 ; hidden Label4
        SbCOM > 17 ; txtCOM == 16 ; line == 16 4800,N,8,1
        ? noSecondPort yes ; pbok ; @SecondInterface ; focus cmbBaud ; row == 16 9600,O,7,1.5
        state == Nicht vorhanden! #ff0000 | Unavailable! #ff0000 ; line == 16 9600,O,7,1.5
        ? noSecondPort no ; pbok ; @Desktop ; row == 16 9600,O,7,1.5 ; line == 16 9600,O,7,1.5
        settings ; SbCOM > 4 ; cmbParitaet > Leerzeichen ; cmbStoppbits > 2 ; cmbBaud > 4800
        pbexit ; @Desktop ; row == 16 9600,O,7,1.5 ; line == 4 9600,O,7,1.5    # what was tried stays
        settings ; cmbParitaet > Keine ; cmbDatenbits > 8 ; cmbStoppbits > 2 ; line 4 taken
        ? failed(mSI 2, 8005) ; pbok ; @Desktop ; row == 4 9600,N,8,2    # there, as before
        line 4 in ; settings ; pbSS1 ; @Interface ; pbSS2 ; @SecondInterface ; key Escape ; @Desktop)");
}

JOURNEY_P(SecondSettings, ThatMakeNoSense) {
    change("UPDATE SecondInterface SET Parameter = '4800,X,8,1'");
    co_await logIn();
    co_await go(R"(
        settings ; fields == 4 4800  8 1 ; ? failed(1005, 8012) ; pbok ; front == SecondInterface
        row == 4 4800,X,8,1 ; cmbParitaet > Gerade ; spoil UPDATE SecondInterface ; ? failure(1005) ; pbok
        mend ; pbok ; @Desktop ; row == 4 4800,E,8,1 ; line == 4 4800,E,8,1
        spoil SELECT SecondInterface ; ? failure(1005) ; settings ; mend ; pbexit ; @Desktop)");
}

} // namespace
