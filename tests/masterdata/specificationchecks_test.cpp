// Checks of what is typed into a specification, and failures.
#include "frmToleranzen.h"
#include "specifying.h"

namespace {

using namespace support;
using namespace platform;

class SpecificationChecks : public Specifications {};

INSTANTIATE_TEST_SUITE_P(Languages, SpecificationChecks, testing::Values(1, 2));

TEST_P(SpecificationChecks, RefuseValuesOutOfRange) {
    struct Case {
        const char *field, *text, *box, *afterwards; // in edit mode
    };
    const Case cases[] = {
        {"txtTolProz", "21", "percent", "5"}, {"txtTolProz", "-1", "percent", "5"},
        {"txtTolWatt", "20.5", "watt", "5"}, // the percentage
        {"txtTolWatt", "-3", "watt", "5"},    {"txtAbw", "-1", "speed", "2"},
    };
    const auto journey = [&]() -> Journey {
        co_await logIn();
        co_await openSpecifications();
        for (const Case &c : cases) {
            SCOPED_TRACE(c.field);
            for (const bool edit : {false, true}) {
                if (edit)
                    pickRow(0);
                else
                    press(screenName, "pbNew");
                type(screenName, c.field, c.text);
                expect(c.box);
                leaveField();
                EXPECT_TRUE(boxes.allCame());
                EXPECT_TRUE(focused(screenName, c.field));
                EXPECT_EQ(text(screenName, c.field), edit ? c.afterwards : "");
                EXPECT_FALSE(enabled(screenName, "pbSave"));
            }
        }
        for (const char *accepted : {"0", "20", ""}) {
            replace("txtTolProz", accepted);
            leaveField();
            EXPECT_EQ(text(screenName, "txtTolProz"), accepted);
        }
        co_await leave();
    };
    run(journey());
}

TEST_P(SpecificationChecks, RoundUnderACommaOnly) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await openSpecifications();
        press(screenName, "pbNew");
        const char *const rounded[][4] = {{"txtTolProz", "4,33", "4,3", "Tol04"},
                                          {"txtTolWatt", "4,3", "4,5", "Tol05"},
                                          {"txtAbw", "1,26", "1,3", "Tol05"}};
        for (const auto &[field, german, shown, tag] : rounded) {
            const QString point = QString(german).replace(',', '.');
            type(screenName, field, english() ? point : german);
            leaveField();
            const bool speed = QString(field) == "txtAbw";
            EXPECT_EQ(text(screenName, field), !english() ? shown : speed ? "1.3" : point);

            // What is no number is told, and the entry goes on.
            type(screenName, field, "abc");
            expectNoNumber(tag, "abc");
            leaveField();
            EXPECT_TRUE(boxes.allCame());
        }
        EXPECT_TRUE(focused(screenName, "cmbGKlasse"));
        co_await leave();
    };
    run(journey());
}

TEST_P(SpecificationChecks, HaveNamesOfTheirOwnWhenNew) {
    change("UPDATE Toleranzen SET Bezeichnung = 'Gerät D''Öl' WHERE ID = 12");
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await openSpecifications();
        press(screenName, "pbNew");
        type(screenName, "txtTolBez", "GERÄT d'öl");
        expect("double");
        leaveField();
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(text(screenName, "txtTolBez"), "");
        EXPECT_TRUE(focused(screenName, "txtTolBez"));

        pickRow(0);
        type(screenName, "txtTolBez", "Gerät D'Öl");
        leaveField();
        expect("updated");
        press(screenName, "pbSave");
        EXPECT_EQ(rows(), "Gerät D'Öl 5 3 2;Gerät D'Öl 10 5 5;Gamma 8 8 1");

        // Entries that read the same mean the first.
        change("UPDATE Toleranzen SET Prozent = 5, Watt = 3, GrenzAbw = 2 WHERE ID = 12");
        co_await leave();
        co_await openSpecifications();
        pickRow(2);
        EXPECT_EQ(text(screenName, "txtMessverfahren"), "Verfahren A");
        co_await leave();
    };
    run(journey());
}

TEST_P(SpecificationChecks, AreTestedOnDemand) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await openSpecifications();
        press(screenName, "pbNew");
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
        co_await leave();
    };
    run(journey());
}

TEST_P(SpecificationChecks, TellWhatFails) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await openSpecifications();
        // An empty number cannot be stored, and the edit mode is over by then.
        pickRow(1);
        replace("txtAbw", "");
        leaveField();
        expectNoNumber("Tol08", "");
        press(screenName, "pbSave");
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(look(), "N-DS [Beta 10] Beta @pbSave");
        press(screenName, "pbSave");
        press(screenName, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(rows(), untouched);

        co_await openSpecifications();
        change("ALTER TABLE Toleranzen RENAME TO weg");
        const auto expectMissing = [this](const char *tag) {
            const QString missing = "no such table: Toleranzen";
            expectFailure(tag, " 3078 Die Tabelle wurde nicht gefunden: " + missing,
                          " 3078 Table not found: " + missing);
        };
        expectMissing("Tol07");
        pickRow(1);
        expectMissing("Tol02");
        pickRow(0);
        EXPECT_EQ(control<QComboBox>(screenName, "cmbBezTol")->currentIndex(), 1)
            << "the one whose fields are shown";
        expect("delete?", Yes);
        expectMissing("Tol06");
        press(screenName, "pbDelete");
        press(screenName, "pbNew");
        type(screenName, "txtTolBez", "X");
        expectMissing("Tol05");
        leaveField();
        expectMissing("Tol03");
        EXPECT_FALSE(loaded<frmToleranzen>()->func_Test_Double());
        co_await leave();
        expectMissing("Tol01");
        co_await openSpecifications();
        co_await leave();
    };
    run(journey());
}

TEST_P(SpecificationChecks, ReachTheChosenRecipe) {
    change("UPDATE Rezeptnamen SET ToleranzID = 12");
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await recipe("Kurzprüfung");
        EXPECT_EQ(desktop(), "|||Kurzprüfung|Beta");
        co_await openSpecifications();
        for (const char *what : {"pick Beta", "txtTolBez=Anders", "tab", "updated", "Save"})
            step(what);
        co_await leave();
        EXPECT_EQ(desktop(), "|||Kurzprüfung|Anders");
        co_await openSpecifications();
        for (const char *what : {"pick Anders", "delete? yes", "Delete"})
            step(what);
        co_await leave();
        EXPECT_EQ(desktop(), "||||") << "it could not be measured with";
    };
    run(journey());
}

} // namespace
