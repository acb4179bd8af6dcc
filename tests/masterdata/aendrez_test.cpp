// A recipe is changed: the working copy of its steps, what becomes of it, and the way back.
#include <span>

#include "choosing.h"

namespace {

using namespace support;
using namespace platform;

constexpr frm editor = frm::ÄndRez;
const char *const fiveSteps = "1:61 2:62,5 3:63 4:64 5:65";

class RecipeEditor : public Choosing {
  protected:
    RecipeEditor() {
        change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES "
               "(50, 'Fünf', 1), (51, 'Eins', 1), (52, 'Leer', 1)");
        change("INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart) VALUES "
               "(50, '1', '61', 10, '1'), (50, '2', '62,5', 20, '1'), (50, '3', '63', 30, '2'), "
               "(50, '4', '64', 40, '1'), (50, '5', '65', 50, '1'), (51, '1', '71', 70, '2')");
    }

    Journey edit(const char *recipe) {
        type(frm::Rezepte, "cmbRezeptname", recipe);
        co_await open("pbÄndRez", editor, frm::Rezepte);
    }
    static Journey leave(const char *way) {
        leaveBy(editor, way);
        co_await arrive(frm::Rezepte);
    }
    QString steps(const QString &table, const QString &where = {}) {
        return column("SELECT Prüfschritt || ':' || Drehzahl FROM " + table + where).join(' ');
    }
    QString copy() { return steps("ÄndRez_temp"); }
    QString stored(int recipe = 50) {
        return steps("Rezepte", QString(" WHERE RezeptID = %1 ORDER BY rowid").arg(recipe));
    }
    static QTableView *grid() { return control<QTableView>(editor, "DBGridRez"); }
    /// Number, speed, power and type as in a German session; Save, New, Insert and Delete as far as
    /// they can be pressed; the row of the grid.
    static std::string shown() {
        QString line = QStringList{text(editor, "laPrSchritt"), text(editor, "txtDrehzahl"),
                                   text(editor, "txtLeistung"), text(editor, "cmbPrArt").left(1)}
                           .join('|');
        if (english())
            line.replace('.', ',').replace('P', 'L').replace('S', 'D');
        line += ' ';
        for (const auto &[letter, button] : {std::pair{'S', "pbSpeichern"},
                                             {'N', "pbNeu"},
                                             {'I', "pbEinfuegen"},
                                             {'D', "pbLoeschen"}})
            line += canPress(editor, button) ? QChar(letter) : QChar('-');
        return (line + ' ' + QString::number(grid()->currentIndex().row())).toStdString();
    }
    /// The words of either language may come from the clipboard.
    static void fill(const QString &speed, const QString &power, const QString &words) {
        for (const auto &[box, what] :
             {std::pair{"txtDrehzahl", speed}, {"txtLeistung", power}, {"cmbPrArt", words}}) {
            control<QWidget>(editor, box)->setFocus();
            paste(editor, box, what);
        }
    }
    void expectIncomplete(const QString &missing) {
        expectTold({"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\r"
                    "Bitte ergänzen Sie" +
                        missing + "!",
                    "The information about the actual step are incomplete!\rPlease complete!"},
                   {"Achtung!", "Attention!"});
    }
    void expectSaveQuestion(int answer) {
        expectBox({"Änderungen in den Prüfschritten speichern?",
                   "Do you want to save the changes in the test steps?"},
                  YesNo + Question, {"Message!", "Message!"}, answer);
    }
    QString specification(int recipe = 50) {
        return column("SELECT ToleranzID FROM Rezeptnamen WHERE RezeptID = ?", {recipe}).first();
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, RecipeEditor, testing::Values(1, 2));

TEST_P(RecipeEditor, StepsOfTheWorkingCopy) {
    struct Action {
        const char *action; // a button, or "fill", "row", "click"
        const char *shown, *copy;
    };
    const char *inserted = "2:61 3:62,5 4:63 5:64 6:65 1:61";
    const char *added = "2:61 3:62,5 4:63 5:64 6:65 1:61 7:99";
    const Action ofFive[] = {
        {"", "1|61|10|L SNID 0", fiveSteps},
        {"pbVorheriger", "1|61|10|L SNID 0", fiveSteps},
        {"pbNext", "2|62,5|20|L SNID 1", fiveSteps},
        {"pbNext", "3|63|30|D SNID 2", fiveSteps},
        {"row", "4|64|40|L SNID 3", fiveSteps},
        {"pbLetzter", "5|65|50|L SNID 4", fiveSteps},
        {"pbNext", "5|65|50|L SNID 4", fiveSteps},
        {"pbFirst", "1|61|10|L SNID 0", fiveSteps},
        // The list has no order, so the new one stands last; the fields stay as they are.
        {"pbEinfuegen", "1|61|10|L SNID 0", inserted},
        {"click", "2|61|10|L SNID 0", inserted},
        {"pbNeu", "7||| S-ID 5", inserted}, // behind the greatest, not behind the last row
        {"fill", "7|99|20|L S-ID 5", inserted},
        {"pbSpeichern", "7|99|20|L SNID 6", added},
        {"pbLoeschen", "1|61|10|L SNID 5", inserted},
        {"pbLoeschen", "1|61|10|L SNID 0", fiveSteps},
        {"pbNext", "2|62,5|20|L SNID 1", fiveSteps},
        {"pbLoeschen", "2|63|30|D SNID 1", "1:61 2:63 3:64 4:65"},
        {"pbLetzter", "4|65|50|L SNID 3", "1:61 2:63 3:64 4:65"},
        {"pbLoeschen", "3|64|40|L SNID 2", "1:61 2:63 3:64"},
        {"pbNeu", "4||| S-ID 2", "1:61 2:63 3:64"},
        {"pbFirst", "1|61|10|L SNID 0", "1:61 2:63 3:64"},
        {"pbNeu", "4||| S-ID 2", "1:61 2:63 3:64"},
        {"fill", "4|99|20|L S-ID 2", "1:61 2:63 3:64"},
        {"pbSpeichern", "4|99|20|L SNID 3", "1:61 2:63 3:64 4:99"},
    };
    const Action ofOne[] = {
        {"", "1|71|70|D SNID 0", "1:71"},
        {"pbLoeschen", "1|71|70|D SNID -1", ""}, // the fields stay
        {"pbLetzter", "1|71|70|D SNID -1", ""},
        {"pbLoeschen", "||| -N-- -1", ""},
        {"pbNeu", "1||| S--- -1", ""},
        {"fill", "1|99|20|L S--- -1", ""},
        {"pbSpeichern", "1|99|20|L SNID 0", "1:99"},
    };
    const Action ofNone[] = {{"", "||| -N-- -1", ""}, {"pbNeu", "1||| S--- -1", ""}};
    const std::pair<const char *, std::span<const Action>> recipes[] = {
        {"Fünf", ofFive}, {"Eins", ofOne}, {"Leer", ofNone}};
    const auto act = [](const QString &action) {
        if (action == "fill")
            fill("99", "20", "Leistungsmessung");
        else if (action == "row")
            QTest::keyClick(grid(), Qt::Key_Down);
        else if (action == "click") // the row on which the grid stands already
            QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                              grid()->visualRect(grid()->currentIndex()).center());
        else if (!action.isEmpty())
            press(editor, action.toUtf8());
    };
    const auto journey = [&, this]() -> Journey {
        co_await maintain();
        for (const auto &[name, actions] : recipes) {
            co_await edit(name);
            const QString words = english() ? "Canges In Recipe '%1'" : "Änderung im Rezept '%1'";
            EXPECT_EQ(loaded(editor)->caption(), words.arg(name));
            EXPECT_EQ(text(editor, "laRezName"), name);
            EXPECT_TRUE(focused(editor, "cmbToleranz"));
            for (const Action &action : actions) {
                act(action.action);
                EXPECT_EQ(shown(), action.shown)
                    << name << ' ' << &action - actions.data() << ' ' << action.action;
                EXPECT_EQ(copy(), action.copy) << &action - actions.data();
            }
            co_await leave("");
            change("DELETE FROM ÄndRez_temp");
        }
        EXPECT_EQ(beeps, 0);
        EXPECT_EQ(stored(), fiveSteps);
    };
    run(journey());
}

TEST_P(RecipeEditor, FourWaysOut) {
    const struct {
        const char *out;     // a button, "Escape", or "" for the close box
        const char *changed; // beside the step that is put in
        int answer;
        bool goesBack;
    } ways[] = {
        {"pbok", "", 0, false},
        {"pbok", "cmbToleranz", 0, true},
        {"pbexit", "", 0, false},
        {"pbexit", "cmbToleranz", No, false},
        {"pbexit", "cmbPrArt", Yes, true},
        {"Escape", "", 0, false},
        {"Escape", "cmbPrArt", No, false},
        {"Escape", "cmbToleranz", Yes, true},
        {"", "", 0, false},
        {"", "cmbToleranz", 0, false},
    };
    const auto journey = [&, this]() -> Journey {
        co_await maintain();
        for (const auto &way : ways) {
            SCOPED_TRACE(testing::Message() << way.out << ' ' << way.changed << way.answer);
            change("DELETE FROM ÄndRez_temp");
            change("DELETE FROM Rezepte WHERE RezeptID = 51");
            change("INSERT INTO Rezepte VALUES (51, '1', '71', 70, '1', NULL, NULL)");
            change("UPDATE Rezeptnamen SET ToleranzID = 1");
            co_await edit("Eins");
            press(editor, "pbEinfuegen");
            if (*way.changed) {
                control<QWidget>(editor, way.changed)->setFocus();
                key(editor, way.changed, Qt::Key_Down);
            }
            const bool other = way.changed == QString("cmbToleranz");
            EXPECT_EQ(specification(51), other ? "2" : "1") << "at once";
            if (way.answer)
                expectSaveQuestion(way.answer);
            co_await leave(way.out);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(stored(51), way.goesBack ? "2:71 1:71" : "1:71");
            EXPECT_EQ(copy(), *way.out ? "" : "2:71 1:71");
            EXPECT_EQ(specification(51), other ? "2" : "1") << "whatever is answered";
            EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), "Eins");
            EXPECT_EQ(text(frm::Rezepte, "lbRezTol"),
                      other ? "stationäre Trainingsgeräte" : "medizinische Geräte");
        }
    };
    run(journey());
}

TEST_P(RecipeEditor, WhatStaysInTheCopyIsFoundByTheNext) {
    const auto journey = [this]() -> Journey {
        co_await maintain();
        for (const char *rows : {"1:71", "1:71 1:71", "1:71 1:71 1:71"}) {
            co_await edit("Eins");
            EXPECT_EQ(copy(), rows);
            type(editor, "txtDrehzahl", "x"); // by the close box nothing is checked or asked
            co_await leave("");
        }
        co_await edit("Eins");
        type(editor, "txtDrehzahl", "70");
        co_await leave("pbok");
        EXPECT_EQ(stored(51), "1:71 1:71 1:71 1:71");
        EXPECT_EQ(copy(), "");

        // A commit that fails half-way: neither a second try nor a discard loses the steps.
        co_await edit("Fünf");
        type(editor, "txtLeistung", "11");
        spoil("INSERT", "Rezepte");
        for (const bool again : {false, true}) {
            if (again)
                expectSaveQuestion(No);
            expectFailure("1123");
            press(editor, again ? "pbexit" : "pbok");
            EXPECT_TRUE(inFront(editor));
            EXPECT_EQ(stored(), "");
        }
        co_await leave("");
        mend();
        co_await edit("Fünf");
        type(editor, "txtLeistung", "12");
        co_await leave("pbok");
        EXPECT_EQ(stored(), fiveSteps);
    };
    run(journey());
}

TEST_P(RecipeEditor, FieldsAreCheckedWhenTheyAreLeft) {
    const struct {
        const char *box, *next;
        Text title, range, word;
    } fields[] = {
        {"txtDrehzahl",
         "txtLeistung",
         {"Eingabefehler", "Input Error"},
         {"Drehzahl liegt außerhalb des gültigen Bereiches!",
          "Number of revolutions is outside the valid range!"},
         {"Drehzahl muss ein nummerischer Wert sein!",
          "Number of revolutions must be a numerical value!"}},
        {"txtLeistung",
         "cmbPrArt",
         {"Eingabefehler!", "Input Error!"},
         {"Leistung liegt außerhalb des gültigen Bereiches!", "Power is outside the valid range!"},
         {"Leistung muss ein nummerischer Wert sein!", "Power must be a numerical value!"}}};
    const auto journey = [&, this]() -> Journey {
        co_await maintain();
        for (const auto &field : fields) {
            for (const char *typed : {"601", "-1", "6 W", "0", ""}) {
                SCOPED_TRACE(testing::Message() << field.box << ' ' << typed);
                const bool refused = *typed == '6' || *typed == '-';
                co_await edit("Fünf");
                const QString before = text(editor, field.box);
                // The way out does not lead past the check either.
                for (int turn = 0; turn < (refused ? 2 : 1); ++turn) {
                    control<QWidget>(editor, field.box)->setFocus();
                    paste(editor, field.box, typed);
                    if (refused)
                        expectTold(QString(typed).contains('W') ? field.word : field.range,
                                   field.title);
                    if (turn == 0)
                        enter(editor, field.box);
                    else
                        press(editor, "pbok");
                    EXPECT_TRUE(boxes.allCame());
                    EXPECT_EQ(text(editor, field.box), refused ? before : typed);
                    EXPECT_TRUE(focused(editor, refused ? field.box : field.next));
                }
                if (*typed == '0') // asks after a change alone
                    expectSaveQuestion(No);
                co_await leave("pbexit");
            }
        }
        // Nor does the field take the keyboard that a new step would hand on.
        co_await edit("Fünf");
        press(editor, "pbNeu");
        type(editor, "txtDrehzahl", "500");
        expectTold(fields[0].range, fields[0].title);
        control<QWidget>(editor, "cmbPrArt")->setFocus(Qt::MouseFocusReason);
        EXPECT_TRUE(focused(editor, "txtDrehzahl"));
        EXPECT_EQ(text(editor, "txtDrehzahl"), "");
    };
    run(journey());
}

TEST_P(RecipeEditor, IncompleteStepsAreNotStored) {
    const char *power = "Leistungsmessung";
    const struct {
        const char *speed, *power, *type, *missing;
    } cases[] = {
        {"", "", "", " die Drehzahl, Leistung und Prüfart"},
        {"60", "", power, " die Leistung"},
        {"", "100", power, " die Drehzahl"},
        // The English words count for nothing, under English either.
        {"60", "100", "Power Measurement", " die Prüfart"},
        {"60", "", "Speed Measurement", " die Leistung und Prüfart"},
    };
    const auto journey = [&, this]() -> Journey {
        co_await maintain();
        co_await edit("Eins");
        press(editor, "pbNeu");
        expectNoNumber("1023E", "");
        press(editor, "pbEinfuegen");
        for (const auto &c : cases) {
            fill(c.speed, c.power, c.type);
            expectIncomplete(c.missing);
            press(editor, "pbSpeichern");
            EXPECT_TRUE(boxes.allCame()) << c.missing;
        }
        fill("60", "400", power);
        expectTorque();
        press(editor, "pbSpeichern");
        EXPECT_TRUE(focused(editor, "txtDrehzahl"));
        EXPECT_EQ(copy(), "1:71");
        type(editor, "txtDrehzahl", "0"); // no torque at standstill
        press(editor, "pbSpeichern");
        EXPECT_EQ(copy(), "1:71 2:0");
        EXPECT_TRUE(focused(editor, "pbNeu"));
        EXPECT_EQ(column("SELECT Prüfart FROM ÄndRez_temp"), (QStringList{"2", "1"}));
    };
    run(journey());
}

TEST_P(RecipeEditor, LettersStandForWholeWords) {
    change("INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (7, 'without tolerance')");
    // A word that names no specification leaves the one in force.
    const struct {
        const char *box, *key, *shown, *written;
        bool known = true;
    } german[] = {{"cmbPrArt", "d", "Drehzahlmessung", "1"},
                  {"cmbPrArt", "1", "Leistungsmessung", "1"},
                  {"cmbToleranz", "s", "stationäre Trainingsgeräte", "2"},
                  {"cmbToleranz", "M", "medizinische Geräte", "1"},
                  {"cmbToleranz", "O", "medizinische Geräte", "1", false}},
      inEnglish[] = {{"cmbPrArt", "s", "Speed Measurement", "1"},
                     {"cmbPrArt", "1", "Power Measurement", "1"},
                     {"cmbToleranz", "s", "medizinische Geräte", "1", false},
                     {"cmbToleranz", "M", "medizinische Geräte", "1", false},
                     {"cmbToleranz", "w", "Without Tolerance", "7"}};
    const auto journey = [&, this]() -> Journey {
        co_await maintain();
        co_await edit("Fünf");
        for (const auto &c : english() ? inEnglish : german) {
            if (!c.known)
                expectNoRecord("1120");
            type(editor, c.box, c.key);
            EXPECT_EQ(text(editor, c.box), c.shown);
            EXPECT_EQ(specification(), c.written);
        }
        EXPECT_EQ(beeps, 0);
        type(editor, "cmbToleranz", "x");
        EXPECT_EQ(beeps, 1);
        EXPECT_EQ(text(editor, "cmbPrArt"), "") << "of all boxes";
        type(editor, "cmbPrArt", "1");
        EXPECT_EQ(text(editor, "cmbToleranz"),
                  english() ? "Without Tolerance" : "medizinische Geräte")
            << "left, it shows what is in force";
        type(editor, "cmbPrArt", "x");
        EXPECT_EQ(beeps, 2);
        EXPECT_EQ(text(editor, "cmbPrArt"), "");
        EXPECT_EQ(specification(), english() ? "7" : "1");

        // What is typed stays, whatever comes to the front meanwhile.
        press(editor, "pbNeu");
        fill("90", "77", "Leistungsmessung");
        co_await interruption();
        EXPECT_EQ(shown(), "6|90|77|L S-ID 4");
        EXPECT_FALSE(focused(editor, "cmbToleranz"));
        EXPECT_EQ(text(editor, "cmbToleranz"),
                  english() ? "Without Tolerance" : "medizinische Geräte");
    };
    run(journey());
}

TEST_P(RecipeEditor, ByKeyboardFromTheDesktopAndBack) {
    const auto at = [](const char *box) {
        EXPECT_TRUE(focused(editor, box)) << box;
        return box;
    };
    const auto enterStep = [&](const char *speed, const char *power, Qt::Key last) {
        sendKeys(*control<QWidget>(editor, at("txtDrehzahl")), speed); // over what is selected
        enter(editor, "txtDrehzahl");
        sendKeys(*control<QWidget>(editor, at("txtLeistung")), power);
        enter(editor, "txtLeistung");
        paste(editor, at("cmbPrArt"), "Drehzahlmessung");
        key(editor, "cmbPrArt", last);
        key(editor, at("pbSpeichern"), Qt::Key_Return);
    };
    const auto journey = [&, this]() -> Journey {
        co_await recipe("Fünf");
        co_await maintain();
        type(frm::Rezepte, "cmbRezeptname", "Fünf");
        enter(frm::Rezepte, "cmbRezeptname");
        EXPECT_TRUE(focused(frm::Rezepte, "pbÄndRez"));
        key(frm::Rezepte, "pbÄndRez", Qt::Key_Return);
        co_await arrive(editor);
        EXPECT_FALSE(loaded(frm::Desktop)->usable());
        EXPECT_FALSE(loaded(frm::Rezepte)->isVisible());
        key(editor, at("cmbToleranz"), Qt::Key_Down);
        enter(editor, at("cmbToleranz"));
        enterStep("70", "", Qt::Key_Return);
        press(editor, "pbNeu");
        enterStep("66", "60", Qt::Key_Tab); // of a new one, leaving the type is enough
        at("pbNeu");
        expectSaveQuestion(Yes);
        co_await leave("Escape");
        EXPECT_EQ(stored(), "1:70 2:62,5 3:63 4:64 5:65 6:66");
        EXPECT_EQ(listed(frm::Rezepte, "DBGridRez").size(), 6);
        EXPECT_EQ(desktop(), "|||Fünf|medizinische Geräte");
        press(frm::Rezepte, "pbok"); // chooses nothing here
        co_await arrive(frm::Desktop);
        EXPECT_TRUE(loaded(frm::Desktop)->usable());
        EXPECT_EQ(desktop(), "|||Fünf|stationäre Trainingsgeräte");
        EXPECT_EQ(gToleranzID, 2);
    };
    run(journey());
}

} // namespace
