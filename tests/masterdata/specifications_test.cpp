// The screen of the specifications: its states, its checks, what it writes, and failures.
#include "frmToleranzen.h"
#include "specifying.h"

namespace {

using namespace support;
using namespace platform;

INSTANTIATE_TEST_SUITE_P(Languages, Specifications, testing::Values(1, 2));

TEST_P(Specifications, OpenWithNothingPicked) {
    const auto journey = [this]() -> Journey {
        co_await openSpecifications();
        EXPECT_EQ(look(), "N--- []  @cmbBezTol");
        EXPECT_FALSE(control(screenName, "pbEdit")->isVisible());
        EXPECT_EQ(offered(screenName, "cmbBezTol").last(),
                  english() ? "Gamma   (8% ; 8W ; 1 rpm)" : "Gamma   (8% ; 8W ; 1 1/min)");
        const QSize before = loaded(screenName)->size();
        go("New");
        EXPECT_EQ(loaded(screenName)->size(), before);
        // Entries that read the same mean the first.
        change("UPDATE Toleranzen SET Bezeichnung = 'Alpha', Prozent = 5, Watt = 3, GrenzAbw = 2");
        co_await leave();
        co_await openSpecifications();
        pickRow(2);
        EXPECT_EQ(text(screenName, "txtMessverfahren"), "Verfahren A");
    };
    run(journey());
}

// The way from the opening, how the screen looks then, and what is stored when not the same.
TEST_P(Specifications, FollowTheirStates) {
    struct Case {
        const char *way, *look, *rows = untouched;
    };
    const char *const inserted = "Alpha 5 3 2;Beta 10 5 5;Gamma 8 8 1;Neu 4 2 1";
    const char *const noBeta = "Alpha 5 3 2;Gamma 8 8 1";
    const char *const changed = "Alpha 5 3 2;Anders 10 5 5;Gamma 8 8 1";
    const Case cases[] = {
        {"ok", "closed"},
        {"exit", "closed"},
        {"New", "---- [ //]  @txtTolBez"},
        {"pick Beta", "N-D- [Beta 10/5/5] Beta @txtTolBez"},
        // edit, not changed: the next one is shown
        {"pick Beta;pick Alpha", "N-D- [Alpha 5/3/2] Alpha @cmbBezTol"},
        {"pick Beta;tab;pick Beta", "N-D- [Beta 10/5/5] Beta @cmbBezTol"},
        {"pick Beta;pick Alpha;txtTolBez=Alpha;tab", "N-D- [Alpha 5/3/2] Alpha @txtTolProz"},
        // edit, changed: both answers drop the input
        {"pick Beta;txtTolBez=X;tab", "N-DS [X 10/5/5] Beta @txtTolProz"},
        {"pick Beta;txtTolBez=X;changed? yes;pick Alpha", "N-DS [Alpha 5/3/2] Alpha @txtTolBez"},
        {"pick Beta;txtTolBez=X;changed? no;pick Alpha", "N-DS [Alpha 5/3/2] Alpha @cmbBezTol"},
        {"pick Beta;txtTolProz=;tab;changed? no;pick Alpha;pick Beta",
         "N-DS [Beta 10/5/5] Beta @cmbBezTol"},
        // the class alone is no change, and neither is the method
        {"pick Beta;cmbGKlasse=m;txtMessverfahren=X;pick Alpha",
         "N-DS [Alpha 5/3/2] Alpha @pbSave"},
        // leaving the watts compares them with the percentage
        {"pick Beta;txtTolWatt=5;changed? no;pick Gamma", "N-DS [Gamma 8/8/1] Gamma @cmbBezTol"},
        {"pick Gamma;txtTolWatt=8;pick Beta", "N-D- [Beta 10/5/5] Beta @cmbBezTol"},
        {"pick Beta;New", "---- [ //]  @txtTolBez"},
        // new: a pick asks only when there is something to save
        {"New;pick Beta", "N-D- [Beta 10/5/5] Beta @txtTolBez"},
        {"New;fill", "---S [Neu 4/2/1]  @pbSave"},
        {"New;fill;new? yes;pick Beta", "N-DS [Beta 10/5/5] Beta @txtTolBez"},
        {"New;fill;new? no;pick Beta", "N-DS [Beta 10/5/5] Beta @txtTolBez"},
        {"New;fill;new? cancel;pick Beta", "---S [Neu 4/2/1]  @txtTolBez"},
        {"New;fill;txtTolBez=;tab", "---- [ 4/2/1]  @txtTolProz"},
        {"New;fill;txtMessverfahren=;incomplete;Save;incomplete;Save", "---S [Neu 4/2/1]  @pbSave"},
        {"New;fill;inserted;Save", "N--S []  @cmbBezTol", inserted},
        {"New;fill;inserted;Save;Save;ok", "closed", inserted},
        {"New;fill;inserted;Save;pick Neu", "N-DS [Neu 4/2/1] Neu @txtTolBez", inserted},
        {"New;fill;leaveNew? yes;inserted;ok", "closed", inserted},
        {"New;fill;leaveNew? no;ok", "closed"},
        {"New;leaveNew? yes;incomplete;ok", "closed"},
        {"New;fill;exit", "closed"},
        // saving and leaving in edit mode
        {"pick Beta;txtTolBez=Anders;tab;updated;Save", "NED- [] Anders @cmbBezTol", changed},
        {"pick Beta;txtTolBez=Anders;tab;updated;Save;delete? yes;Delete", "N--- []  @cmbBezTol",
         noBeta},
        {"pick Beta;txtTolBez=Anders;tab;updated;Save;pick Alpha",
         "N-D- [Alpha 5/3/2] Alpha @txtTolBez", changed},
        {"pick Beta;leaveEdit? no;ok", "closed"},
        {"pick Beta;txtTolBez=Anders;leaveEdit? yes;updated;ok", "closed", changed},
        {"pick Beta;txtTolBez=Anders;exit", "closed"},
        {"pick Beta;txtTolBez=Alpha;tab;updated;Save", "NED- [] Alpha @cmbBezTol",
         "Alpha 5 3 2;Alpha 10 5 5;Gamma 8 8 1"},
        // deletion
        {"pick Beta;delete? no;Delete", "N-D- [Beta 10/5/5] Beta @txtTolBez"},
        {"pick Beta;txtTolBez=X;delete? yes;Delete", "N--- []  @cmbBezTol", noBeta},
        // what is refused
        {"New;txtTolBez=BETA;double;tab", "---- [ //]  @txtTolBez"},
        {"New;txtTolProz=21;percent;tab", "---- [ //]  @txtTolProz"},
        {"New;txtTolProz=-1;percent;tab", "---- [ //]  @txtTolProz"},
        {"New;txtTolWatt=21;watt;tab", "---- [ //]  @txtTolWatt"},
        {"New;txtAbw=-1;speed;tab", "---- [ //]  @txtAbw"},
        {"pick Alpha;txtTolProz=21;percent;tab", "N-D- [Alpha 5/3/2] Alpha @txtTolProz"},
        {"pick Alpha;txtTolWatt=-3;watt;tab", "N-D- [Alpha 5/5/2] Alpha @txtTolWatt"},
        {"pick Alpha;txtAbw=-1;speed;tab", "N-D- [Alpha 5/3/2] Alpha @txtAbw"},
        {"New;txtTolProz=20;tab;txtAbw=1000;tab", "---- [ 20//1000]  @cmbGKlasse"},
        // what is no number is told, and the entry goes on
        {"New;txtTolProz=abc;noNumber Tol04 abc;tab", "---- [ abc//]  @txtTolWatt"},
        {"New;txtTolWatt=abc;noNumber Tol05 abc;tab", "---- [ /abc/]  @txtAbw"},
        {"New;txtAbw=abc;noNumber Tol05 abc;tab", "---- [ //abc]  @cmbGKlasse"},
        // an empty number cannot be stored, and the edit mode is over by then
        {"pick Beta;txtAbw=;tab;noNumber Tol08 ;Save;txtMessverfahren=;cmbGKlasse=m;txtAbw=1;tab",
         "N-D- [Beta 10/5/1] Beta @cmbGKlasse"},
        {"New;fill;txtTolWatt=abc;noNumber Tol05 abc;tab;noNumber Tol08 abc;Save",
         "---- [Neu 4/abc/1]  @cmbBezTol"},
    };
    const auto journey = [&, this]() -> Journey {
        for (const Case &c : cases) {
            SCOPED_TRACE(c.way);
            co_await openSpecifications();
            go(c.way);
            EXPECT_EQ(look(), c.look);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(rows().toStdString(), c.rows);
            if (loaded(screenName))
                co_await leave();
            co_await arrive(frm::Desktop);
            deliver();
        }
    };
    run(journey());
}

TEST_P(Specifications, RoundUnderACommaOnly) {
    const auto journey = [this]() -> Journey {
        co_await openSpecifications();
        go(english() ? "New;txtTolProz=4.33;txtTolWatt=4.3;txtAbw=1.26;tab"
                     : "New;txtTolProz=4,33;txtTolWatt=4,3;txtAbw=1,26;tab");
        EXPECT_EQ(look(), english() ? "---- [ 4.33/4.3/1.3]  @cmbGKlasse"
                                    : "---- [ 4,3/4,5/1,3]  @cmbGKlasse");
    };
    run(journey());
}

TEST_P(Specifications, AreEnteredByKeyboardAlone) {
    const auto journey = [this]() -> Journey {
        co_await openSpecifications();
        go("New");
        const char *values[] = {"D'Öl", "4", "2", "1000", "s", "Vergleich"};
        for (size_t i = 0; i < std::size(fields); ++i) {
            EXPECT_TRUE(focused(screenName, fields[i])) << fields[i];
            sendKeys(*control(screenName, fields[i]), values[i]);
            EXPECT_FALSE(enabled(screenName, "pbSave"));
            enter(screenName, fields[i]);
        }
        EXPECT_TRUE(focused(screenName, "pbSave"));
        expect("inserted");
        key(screenName, "pbSave", Qt::Key_Return);
        const QString klasse = english() ? "Stationary Devices" : "Stationäre Trainingsgeräte";
        EXPECT_EQ(column("SELECT GKlasse || Messverfahren FROM Toleranzen ORDER BY ID").last(),
                  klasse + "Vergleich");
        EXPECT_TRUE(rows().endsWith(";D'Öl 4 2 1000"));

        // Enter in the last field is enough to save, whatever the others hold.
        go("New;txtTolProz=5;tab");
        EXPECT_FALSE(canPress(screenName, "pbSave"));
        control(screenName, "txtMessverfahren")->setFocus();
        enter(screenName, "txtMessverfahren");
        EXPECT_TRUE(focused(screenName, "pbSave"));
        go("incomplete;Save");
        control(screenName, "cmbBezTol")->setFocus();
        expect("new?", No);
        key(screenName, "cmbBezTol", Qt::Key_Down);
        EXPECT_EQ(look(), "N-DS [Alpha 5/3/2] Alpha @txtTolBez");
    };
    run(journey());
}

TEST_P(Specifications, CompleteTheirClass) {
    const auto journey = [this]() -> Journey {
        co_await openSpecifications();
        go("pick Gamma");
        EXPECT_EQ(text(screenName, "cmbGKlasse"), "frei");
        EXPECT_EQ(offered(screenName, "cmbGKlasse"),
                  english() ? (QStringList{"Medical Devices", "Stationary Devices"})
                            : (QStringList{"Medizinische Geräte", "Stationäre Trainingsgeräte"}));
        const QString medical = offered(screenName, "cmbGKlasse").first();
        const std::pair<const char *, QString> typed[] = {
            {"M", medical}, {"Hm", medical}, {"Rad", "Rad"}, {"mx", "x"}};
        for (const auto &[keys, shown] : typed) {
            control<QComboBox>(screenName, "cmbGKlasse")->clearEditText();
            type(screenName, "cmbGKlasse", keys);
            EXPECT_EQ(text(screenName, "cmbGKlasse"), shown) << keys;
        }
        type(screenName, "cmbGKlasse", "m");
        key(screenName, "cmbGKlasse", Qt::Key_Backspace);
        EXPECT_EQ(text(screenName, "cmbGKlasse"), "");

        // The class alone is written, though no prompt sees it.
        sendKeys(*control(screenName, "cmbGKlasse"), "m");
        enter(screenName, "cmbGKlasse");
        go("tab;updated;Save");
        EXPECT_EQ(column("SELECT GKlasse FROM Toleranzen ORDER BY ID").last(), medical);
    };
    run(journey());
}

TEST_P(Specifications, AreTestedOnDemand) {
    const auto journey = [this]() -> Journey {
        co_await openSpecifications();
        go("New");
        frmToleranzen &tested = *loaded<frmToleranzen>();
        const auto show = [](const QStringList &values) {
            for (qsizetype i = 0; i < values.size(); ++i)
                control<QLineEdit>(screenName, fields[i])->setText(values[i]);
        };
        show({"BETA", "1", "1"});
        expect("taken");
        EXPECT_TRUE(tested.func_Test_Double());
        show({"X", "8,0", "8.0"});
        expect("combination");
        EXPECT_TRUE(tested.func_Test_Double());
        show({"X", "8", "7"});
        EXPECT_FALSE(tested.func_Test_Double());

        EXPECT_FALSE(tested.func_Test_Interval());
        show({"X", "21", "2"});
        expect("interval");
        EXPECT_TRUE(tested.func_Test_Interval());
        show({"X", "21", ""});
        expectNoNumber("Tol04", "");
        EXPECT_FALSE(tested.func_Test_Interval());
    };
    run(journey());
}

TEST_P(Specifications, TellWhatCannotBeReadOrWritten) {
    const auto journey = [this]() -> Journey {
        co_await openSpecifications();
        change("ALTER TABLE Toleranzen RENAME TO weg");
        expectMissing("Tol07");
        go("pick Beta");
        expectMissing("Tol02");
        go("pick Alpha");
        EXPECT_EQ(control<QComboBox>(screenName, "cmbBezTol")->currentIndex(), 1)
            << "the one whose fields are shown";
        go("delete? yes");
        expectMissing("Tol06");
        go("Delete;New;txtTolBez=X");
        expectMissing("Tol05");
        go("tab");
        expectMissing("Tol03");
        EXPECT_FALSE(loaded<frmToleranzen>()->func_Test_Double());
        co_await leave();
        expectMissing("Tol01");
        co_await openSpecifications();
    };
    run(journey());
}

TEST_P(Specifications, ReachTheChosenRecipe) {
    change("UPDATE Rezeptnamen SET ToleranzID = 12");
    const std::pair<const char *, const char *> ways[] = {
        {"pick Beta;txtTolBez=Anders;tab;updated;Save", "|||Kurzprüfung|Anders"},
        {"pick Anders;delete? yes;Delete", "||||"}, // it could not be measured with
    };
    const auto journey = [&, this]() -> Journey {
        co_await recipe("Kurzprüfung");
        for (const auto &[way, seen] : ways) {
            co_await openSpecifications();
            go(way);
            co_await leave();
            EXPECT_EQ(desktop(), seen);
        }
    };
    run(journey());
}

} // namespace
