// The final test runs by itself, and whichever way it ends the ergometer is without load and the
// motor stands before anybody is asked to come.
#include "finaltest/epablauf.h"

#include "../journeys/measuring.h"
#include "link/ergometer.h"
#include "records/epmesswerte.h"
#include "windows/preview.h"

#include <QDir>

#include <malloc.h>
#ifdef __SANITIZE_ADDRESS__
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

using namespace support;

/// Notes what passes on its way to the stand.
class Tap final : public FarEnd {
  public:
    Tap(simulator::Stand &stand, SerialLine line, QString &log) : mTo(stand, line), mLog(log) {}
    void receive(std::string_view bytes, double now) override {
        const QString text = QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
        if (text.startsWith('W') || text.startsWith('*'))
            mLog += text.trimmed() + ' ';
        mTo.receive(bytes, now);
    }
    std::string take(double now) override { return mTo.take(now); }
    std::optional<double> nextEvent() const override { return mTo.nextEvent(); }

  private:
    StandEnd mTo;
    QString &mLog;
};

class EPRun : public Measuring {
  protected:
    EPRun() {
        for (const QString &name : QDir(":/layouts").entryList({"*.rpt"}))
            QFile::copy(":/layouts/" + name, name);
        line.connect(controller);
        line.connect(ergometer, SerialLine::Ergometer);
        change("INSERT INTO EP (EP_ID, SerienNr) VALUES (40, 'E-1'), (41, 'E-2')");
        recipe(70, "'1', '60', 100, '2', 'W100[13]', '1,6'), (70, '10', '80', 50, '2', 'W050[13]', "
                   "'1'), (70, '2', '70', 150, '2', '', '1'");
        recipe(71, "'1', '60', 100, '2', 'W100[13]', '1'");
        recipe(72, "'1', '60', 100, '2', 'W100[13]', '0'");
        recipe(73, "'1', '60', 100, '2', 'W100[13]', '4'), (73, '2', '15', 40, '2', '', '1'");
        recipe(76, "'1', '15', 40, '2', '', '1'");
        roads["run"] = [this](const QString &what) { return go(begun(what)); };
        roads["off"] = [this](const QString &keys) -> Journey { // with load and motor off
            for (const QString &key : keys.split(" + "))
                expectKnown(key, platform::OK, [this] {
                    expectSafe();
                    clock.run(19'000); // nobody comes, and nothing else does
                });
            co_return;
        };
        views["rows"] = [] {
            return grid("SELECT Prüfschritt, Soll_n, Soll_P, Ist_n_ergom, Toleranz FROM "
                        "EP_Messwerte WHERE ProtokollID = 40 ORDER BY Val(Prüfschritt)");
        };
        views["kept"] = [] { // with the head
            return grid("SELECT Rezept, Schritte, Dauer > 0, Vollständig FROM EP WHERE EP_ID = 40");
        };
        views["order"] = [this] { return std::exchange(log, {}).trimmed(); };
        views["out"] = [this] { // of the run
            expectSafe();
            EXPECT_FALSE(MSComm2.PortOpen());
            EXPECT_FALSE(loaded(frm::Messen) || loaded(frm::Meldung));
            const QString rows = views["rows"]();
            platform::closePreviews();
            change("DELETE FROM EP_Messwerte");
            return rows;
        };
    }
    ~EPRun() override { epAblaufWegnehmen(); }

    static void recipe(int id, const QString &steps) {
        change(
            QString("INSERT INTO EP_Rezeptnamen (RezeptID, RezName) VALUES (%1, 'Serie')").arg(id));
        change(QString("INSERT INTO EP_Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, "
                       "Prüfart, SSCode, MessSchritte) VALUES (%1, %2)")
                   .arg(id)
                   .arg(steps));
    }
    /// RECIPE, CLASS
    QString begun(const QString &what) {
        if (gDrehrichtung == 0)
            return "direction ; run " + what;
        gEPModus = gSS2Vorhanden = gMessenFreigabe = true;
        gEPProtokollID = 40;
        gEPRezeptID = what.section(", ", 0, 0).toInt();
        gRezeptName = what.section(", ", 1);
        gMessStatus = Messstatus::Ruhe;
        line.stand().clearWires();
        epAblaufEinsetzen();
        form(frm::Messen).show();
        return "@Messen";
    }
    void expectSafe() {
        EXPECT_EQ(line.stand().load(), 0);
        EXPECT_EQ(line.stand().setSpeed(), 0);
    }

    QString log;
    Tap controller{line.stand(), SerialLine::Controller, log};
    Tap ergometer{line.stand(), SerialLine::Ergometer, log};
};

JOURNEY_P(EPRun, WalksThroughItsStepsAlone) {
    co_await go(R"(
        login ; direction ; run 70, medizinische Geräte
        title == ENDPRÜFUNG 'E-1' | FINALTEST 'E-1' ; laRezName == Serie ; txtToleranz == medizinische Geräte
        hidden pbSpeichern pbNext pbFreieEing pbPlus txtSoll_n pbMessen pbDynMess DBGrid1 Label22 pbSave
        shown DBGrid2 Label18 Label19 Label20 ; can pbAbbrechen ; readonly txtIST_n_ergom ; beeps ~ .
        until lblMessSchritte == 1/2 ; order ~ ^(\*E-0000 )*W100 \*E-\d+$ ; beeps == 1
        laSollwerte ~ ^60[.,]0 (1/min|rpm)\n100[.,]0 W$
        until notice ~ Prüfschritt|Test Step ; beeps == 1 ; Messen.DBGrid2 rows~ ^1\|60[.,]0\|.*\| 60\|OK$
        until laPrSchritt == 2 ; lblMessSchritte == ; txtIST_n_ergom ==
        until notice ~ Beenden|Terminate ; order ~ ^\*E-\d+ W050 \*E-\d+ W000( |$) ; load == 0
        Messen.DBGrid2 rows~ ^1\|[^+]*\+2\|[^+]*\+10\| ; @Desktop ; order ~ ^[^W]*$
        rows == 1|60,0|100,0| 60|OK+2|70,0|150,0| 70|Außer Toleranz+10|80,0|50,0| 80|OK | 1|60.0|100.0| 60|OK+2|70.0|150.0| 70|Out of tolerance+10|80.0|50.0| 80|OK
        sql SELECT Klasse, ZulAbwP, ZulAbwN FROM EP_Messwerte WHERE Prüfschritt = 2 AND ProtokollID = 40 == medizinische Geräte|7.5|2
        kept == Serie|3|1|-1 ; sql SELECT count(Dauer) FROM EP WHERE EP_ID > 39 == 1 ; sql SELECT NK_ID FROM EP WHERE EP_ID = 40 == 2
        sql SELECT DISTINCT SerienNr FROM EP_Bericht5 == E-1 ; idle == yes)");
    const auto lauf = letzterEPLauf(40);
    EXPECT_TRUE(lauf && lauf->schritte == 3 && lauf->außerToleranz == 1 && lauf->dauer > 20 &&
                !lauf->abgebrochen);
    co_await go("out ~ OK");
}

// What a person sees when he comes: the box, an ergometer without load, a motor that stands.
JOURNEY(EPRun, LeavesNothingOn) {
    co_await go(R"(
        login ; direction
        # stopped in a reading, which then has the last result
        run 71, medizinische Geräte ; stand fault answerlate 3000 ; until beeps == 1 ; pass 500
        off emptyTest ; pbAbbrechen ; load == 0 ; @Desktop ; out == ; kept == Serie|1|1|0
        # stopped under the notice between two steps
        run 70, medizinische Geräte ; stand fault none ; until rows ~ OK ; until notice ~ Prüfschritt|Test Step
        Messen.pbAbbrechen ; load == 0 ; notice ~ Beenden|Terminate ; @Desktop ; out ~ ^1
        # closed, ended by the system, a class that is none
        run 71, medizinische Geräte ; stand fault none ; until beeps == 1 ; off emptyTest ; close Messen
        @Desktop ; out == ; run 71, ohne Toleranz ; off failed(3016, 3075) + emptyTest ; @Desktop ; out ==
        run 71, Medizinische Geräte ; off failed(3016, 3075) + emptyTest ; @Desktop ; out ==
        run 71, medizinische Geräte ; spoil INSERT EP_Messwerte ; off failure(3016) + emptyTest ; @Desktop ; mend
        # six turns take more than 18 s
        run 73, medizinische Geräte ; until rows ~ OK ; off noData ; @Desktop
        kept == Serie|2|1|0 ; out == 1|60,0|100,0| 60|OK ; run 76, medizinische Geräte ; off noData + emptyTest ; @Desktop ; out ==
        # the ergometer says nothing in the second step; what cannot be judged is no pass
        run 70, medizinische Geräte ; until rows ~ OK ; stand fault ergometer on
        ? ergometerSilent ; off noNumber(3018, ) ; @Desktop ; out == 1|60,0|100,0| 60|OK+2|70,0|150,0||NULL
        # ... nor in one that looks at the power alone
        run 71, Toleranz 3% ; ? ergometerSilent ; @Desktop ; out == 1|60,0|100,0||OK
        run 71, ohne Toleranzen ; ? ergometerSilent ; @Desktop ; out == 1|60,0|100,0||NULL ; stand fault none)");
    // A step that would not end, a recipe without steps.
    begun("72, medizinische Geräte");
    co_await go("off failed(3014, 13) + emptyTest ; @Desktop ; out ==");
    begun("74, medizinische Geräte");
    co_await go("off failed(3013, 3021) + emptyTest ; @Desktop ; out ==");
    // Nobody is there for that box.
    co_await go("run 71, medizinische Geräte ; stand fault ergometer on");
    expectKnown("ergometerSilent", platform::OK, [this] {
        EXPECT_EQ(line.stand().load(), 100);
        clock.run(19'000);
        expectSafe();
    });
    co_await go("off noData + emptyTest ; @Desktop ; out == ; stand fault none");
    co_await go("run 71, medizinische Geräte ; until lblMessSchritte ==");
    gSS2Vorhanden = false;
    co_await go("off ergometerLost + emptyTest ; @Desktop ; out ==");
    co_await go("run 71, medizinische Geräte ; stand fault answerlate 3000 ; until beeps == 1");
    MSComm2.setPortOpen(false);
    co_await go("off ergometerLost + emptyTest ; @Desktop ; out == ; stand fault none");
    // The line to the ergometer goes in a reading: the motor is what can still be stopped.
    co_await go("run 71, medizinische Geräte ; stand fault answerlate 3000 ; until beeps == 1");
    expectKnown("failed(mSI 1, 8020)", platform::OK,
                [this] { EXPECT_EQ(line.stand().setSpeed(), 0); });
    co_await go(
        "? emptyTest ; line 4 out ; @Desktop ; line 4 in ; stand load 0 ; stand fault none");
    // The controller does not answer, or is gone: the load is what can still be taken off.
    for (const QString way : {"stand fault silent on", "line out"}) {
        const bool gone = way == "line out";
        co_await go("run 70, medizinische Geräte ; until rows ~ OK ; until notice ~ schritt");
        for (const QString key : {gone ? "lineLost" : "noController", gone ? "refused" : "motorOn"})
            expectKnown(key, platform::OK, [this] { EXPECT_EQ(line.stand().load(), 0); });
        co_await go(way +
                    (gone ? " ; ? noPort ; @Desktop ; line in"
                          : " ; ? refused ; ? noController ; @Desktop ; stand fault none") +
                    " ; pbMotaus ; out ~ ^1");
    }
    co_await go("run 71, medizinische Geräte ; until beeps == 1 ; terminated == now");
    expectSafe();
}

// The service question comes in between and ends nothing.
JOURNEY(EPRun, AnswersTheServiceQuestion) {
    co_await go("login ; direction ; run 70, medizinische Geräte ; hidden pbSave Label21");
    boxes.expect("6E3036300D", "Ergometer", platform::OKOnly);
    boxes.expect("60", "Ergometer", platform::OKOnly);
    co_await go(R"(
        until lblMessSchritte == 1/2 ; pass 50 ; key Ctrl+Shift+D ; shown pbSave ; pbSave ; until told == yes
        Label21 == Drehzahl angekommen ; until rows ~ OK ; @Messen ; pbAbbrechen ; @Desktop ; out ~ OK)");
}

size_t allocated() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

// A day's work: every row there, nothing left on, and nothing heaped up.
JOURNEY(EPRun, TestsAHundredDevices) {
    recipe(75, "'1', '60', 100, '2', 'W100[13]', '2'");
    co_await go("login ; direction ; run 75, medizinische Geräte ; @Desktop ; out ~ OK");
    size_t early = 0;
    for (int device = 1; device <= 100; ++device) {
        change("INSERT INTO EP (EP_ID, SerienNr) VALUES (?, ?)",
               {1000 + device, QString("S-%1").arg(device)});
        const QString run = begun("75, medizinische Geräte");
        gEPProtokollID = 1000 + device;
        co_await go(run + " ; @Desktop");
        expectSafe();
        EXPECT_FALSE(MSComm2.PortOpen());
        platform::closePreviews(); // its reader has seen it
        if (device == 20)
            early = allocated();
    }
    EXPECT_LT(double(allocated()) - double(early), 2e5) << "of bytes for eighty devices";
    EXPECT_EQ(grid("SELECT count(*), count(DISTINCT ProtokollID), min(Toleranz), max(Toleranz) "
                   "FROM EP_Messwerte WHERE ProtokollID > 1000"),
              "100|100|OK|OK");
    EXPECT_EQ(grid("SELECT count(*) FROM EP WHERE Vollständig = -1 AND EP_ID > 1000"), "100");
    EXPECT_EQ(grid("SELECT SerienNr FROM EP_Bericht5"), "S-100");
}

} // namespace
