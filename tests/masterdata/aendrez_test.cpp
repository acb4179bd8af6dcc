// A recipe is changed: the working copy of its steps, what becomes of it, and the way back.
#include <QTableView>

#include <span>

#include "choosing.h"

namespace {

using namespace support;
using namespace platform;

class RecipeEditor : public Choosing {
  protected:
    RecipeEditor() {
        change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES "
               "(50, 'Fünf', 1), (51, 'Eins', 1), (52, 'Leer', 1)");
        change("INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart) VALUES "
               "(50, '1', '61', 10, '1'), (50, '2', '62,5', 20, '1'), (50, '3', '63', 30, '2'), "
               "(50, '4', '64', 40, '1'), (50, '5', '65', 50, '1'), (51, '1', '71', 70, '2')");
    }

    static constexpr frm editor = frm::ÄndRez;
    const bool inEnglish = GetParam() == 2; // also before the start

    Journey maintain() {
        co_await logIn();
        support::choose(frm::Desktop, "mnuRezepte");
        co_await arrive(frm::Rezepte);
    }
    static Journey edit(const char *recipe) {
        type(frm::Rezepte, "cmbRezeptname", recipe);
        press(frm::Rezepte, "pbÄndRez");
        co_await arrive(editor);
    }

    static QString steps(const QString &table, const QString &where = {}) {
        const Recordset rows =
            gDatenbank.open("SELECT Prüfschritt || ':' || Drehzahl FROM " + table + where);
        QStringList steps;
        for (int row = 0; row < rows.count(); ++row)
            steps += rows.at(row, 0).toString();
        return steps.join(' ');
    }
    static QString copy() { return steps("ÄndRez_temp"); }
    static QString stored(int recipe = 50) {
        return steps("Rezepte", QString(" WHERE RezeptID = %1 ORDER BY rowid").arg(recipe));
    }
    /// Number, speed, power, type by its first letter.
    static QString shown() {
        return QStringList{text(editor, "laPrSchritt"), text(editor, "txtDrehzahl"),
                           text(editor, "txtLeistung"), text(editor, "cmbPrArt").left(1)}
            .join('|');
    }
    /// Save, New, Insert, Delete, as far as they can be pressed.
    static QString buttons() {
        QString letters;
        for (const auto &[letter, button] : {std::pair{'S', "pbSpeichern"},
                                             {'N', "pbNeu"},
                                             {'I', "pbEinfuegen"},
                                             {'D', "pbLoeschen"}})
            letters += canPress(editor, button) ? QChar(letter) : QChar('-');
        return letters;
    }
    static QTableView *grid() { return control<QTableView>(editor, "DBGridRez"); }
    /// The row on which the grid stands already.
    static void clickRow() {
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                          grid()->visualRect(grid()->currentIndex()).center());
    }
    static int row() { return grid()->currentIndex().row(); }
    /// All three fields; the words of either language may come from the clipboard.
    static void fill(const QString &speed, const QString &power, const QString &words) {
        for (const auto &[box, keys] : {std::pair{"txtDrehzahl", speed}, {"txtLeistung", power}}) {
            type(editor, box, keys);
            if (keys.isEmpty())
                control<QLineEdit>(editor, box)->clear();
        }
        control<QWidget>(editor, "cmbPrArt")->setFocus();
        paste(editor, "cmbPrArt", words);
    }
    void expectIncomplete(const QString &missing) {
        expectBox({"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\r"
                   "Bitte ergänzen Sie" +
                       missing + "!",
                   "The information about the actual step are incomplete!\rPlease complete!"},
                  Exclamation, {"Achtung!", "Attention!"});
    }
    void expectSaveQuestion(int answer) {
        expectBox({"Änderungen in den Prüfschritten speichern?",
                   "Do you want to save the changes in the test steps?"},
                  YesNo + Question, {"Message!", "Message!"}, answer);
    }
    void expectFailure(const QString &tag, const Text &text) {
        expectBox({"Fehler " + tag + " -  " + text.german, "ERROR " + tag + " -  " + text.english},
                  Critical, {"!! Achtung Fehler !!", " !! Attention !!"});
    }
    static QString specification(int recipe = 50) {
        return gDatenbank.open("SELECT ToleranzID FROM Rezeptnamen WHERE RezeptID = ?", {recipe})[0]
            .text();
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, RecipeEditor, testing::Values(1, 2));

TEST_P(RecipeEditor, StepsOfTheWorkingCopy) {
    const QString p = inEnglish ? "P" : "L";
    const QString s = inEnglish ? "S" : "D";
    struct Action {
        const char *button; // or "fill", "row", "click"
        QString shown;
        const char *buttons;
        int row; // of the grid
        const char *copy;
    };
    const char *five = "1:61 2:62,5 3:63 4:64 5:65";
    const char *inserted = "2:61 3:62,5 4:63 5:64 6:65 1:61";
    const char *added = "2:61 3:62,5 4:63 5:64 6:65 1:61 7:99";
    const QString second = inEnglish ? "2|62.5|20|P" : "2|62,5|20|L";
    const Action fiveSteps[] = {
        {"", "1|61|10|" + p, "SNID", 0, five},
        {"pbVorheriger", "1|61|10|" + p, "SNID", 0, five},
        {"pbNext", second, "SNID", 1, five},
        {"pbNext", "3|63|30|" + s, "SNID", 2, five},
        {"row", "4|64|40|" + p, "SNID", 3, five},
        {"pbLetzter", "5|65|50|" + p, "SNID", 4, five},
        {"pbNext", "5|65|50|" + p, "SNID", 4, five},
        {"pbFirst", "1|61|10|" + p, "SNID", 0, five},
        // The list has no order, so the new one stands last; the fields stay as they are.
        {"pbEinfuegen", "1|61|10|" + p, "SNID", 0, inserted},
        {"click", "2|61|10|" + p, "SNID", 0, inserted},
        {"pbNeu", "7|||", "S-ID", 5, inserted}, // behind the greatest, not behind the last row
        {"fill", "7|99|20|L", "S-ID", 5, inserted},
        {"pbSpeichern", "7|99|20|L", "SNID", 6, added},
        {"pbLoeschen", "1|61|10|" + p, "SNID", 5, inserted},
        {"pbLoeschen", "1|61|10|" + p, "SNID", 0, five},
        {"pbNext", second, "SNID", 1, five},
        {"pbLoeschen", "2|63|30|" + s, "SNID", 1, "1:61 2:63 3:64 4:65"},
        {"pbLetzter", "4|65|50|" + p, "SNID", 3, "1:61 2:63 3:64 4:65"},
        {"pbLoeschen", "3|64|40|" + p, "SNID", 2, "1:61 2:63 3:64"},
        {"pbNeu", "4|||", "S-ID", 2, "1:61 2:63 3:64"},
        {"pbFirst", "1|61|10|" + p, "SNID", 0, "1:61 2:63 3:64"},
        {"pbNeu", "4|||", "S-ID", 2, "1:61 2:63 3:64"},
        {"fill", "4|99|20|L", "S-ID", 2, "1:61 2:63 3:64"},
        {"pbSpeichern", "4|99|20|L", "SNID", 3, "1:61 2:63 3:64 4:99"},
    };
    const Action oneStep[] = {
        {"", "1|71|70|" + s, "SNID", 0, "1:71"},
        {"pbLoeschen", "1|71|70|" + s, "SNID", -1, ""}, // the fields stay
        {"pbLetzter", "1|71|70|" + s, "SNID", -1, ""},
        {"pbLoeschen", "|||", "-N--", -1, ""},
        {"pbNeu", "1|||", "S---", -1, ""},
        {"fill", "1|99|20|L", "S---", -1, ""},
        {"pbSpeichern", "1|99|20|L", "SNID", 0, "1:99"},
    };
    const Action noStep[] = {{"", "|||", "-N--", -1, ""}, {"pbNeu", "1|||", "S---", -1, ""}};
    const std::pair<const char *, std::span<const Action>> recipes[] = {
        {"Fünf", fiveSteps}, {"Eins", oneStep}, {"Leer", noStep}};
    const auto journey = [&]() -> Journey {
        co_await maintain();
        for (const auto &[recipe, actions] : recipes) {
            const QString name = recipe;
            co_await edit(recipe);
            const QString words = inEnglish ? "Canges In Recipe '%1'" : "Änderung im Rezept '%1'";
            EXPECT_EQ(loaded(editor)->caption(), words.arg(name));
            EXPECT_EQ(text(editor, "laRezName"), name);
            EXPECT_EQ(text(editor, "cmbToleranz"), "medizinische Geräte");
            EXPECT_TRUE(focused(editor, "cmbToleranz"));
            int number = 0;
            for (const Action &action : actions) {
                SCOPED_TRACE(testing::Message()
                             << recipe << ' ' << number++ << ' ' << action.button);
                if (action.button == QString("fill"))
                    fill("99", "20", "Leistungsmessung");
                else if (action.button == QString("row"))
                    QTest::keyClick(grid(), Qt::Key_Down);
                else if (action.button == QString("click"))
                    clickRow();
                else if (*action.button)
                    press(editor, action.button);
                EXPECT_EQ(shown(), action.shown);
                EXPECT_EQ(buttons(), action.buttons);
                EXPECT_EQ(row(), action.row);
                EXPECT_EQ(copy(), action.copy);
            }
            loaded(editor)->close();
            co_await arrive(frm::Rezepte);
            change("DELETE FROM ÄndRez_temp");
        }
        EXPECT_EQ(beeps, 0);
        EXPECT_EQ(stored(), five);
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
    const auto journey = [&]() -> Journey {
        co_await maintain();
        for (const auto &way : ways) {
            SCOPED_TRACE(testing::Message() << way.out << ' ' << way.changed << way.answer);
            change("DELETE FROM ÄndRez_temp");
            change("DELETE FROM Rezepte WHERE RezeptID = 51");
            change("INSERT INTO Rezepte VALUES (51, '1', '71', 70, '1', NULL, NULL)");
            change("UPDATE Rezeptnamen SET ToleranzID = 1");
            co_await edit("Eins");
            press(editor, "pbEinfuegen");
            const char *box = *way.changed ? way.changed : "cmbToleranz";
            control<QWidget>(editor, box)->setFocus();
            if (*way.changed)
                key(editor, box, Qt::Key_Down);
            const bool other = way.changed == QString("cmbToleranz");
            EXPECT_EQ(specification(51), other ? "2" : "1") << "at once";
            if (way.answer)
                expectSaveQuestion(way.answer);
            if (way.out == QString("Escape"))
                key(editor, box, Qt::Key_Escape);
            else if (*way.out)
                press(editor, way.out);
            else
                loaded(editor)->close();
            co_await arrive(frm::Rezepte);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_FALSE(loaded(editor));
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

TEST_P(RecipeEditor, TheCloseBoxLeavesRowsThatTheNextCopyFinds) {
    const auto journey = [this]() -> Journey {
        co_await maintain();
        for (const char *rows : {"1:71", "1:71 1:71", "1:71 1:71 1:71"}) {
            co_await edit("Eins");
            EXPECT_EQ(copy(), rows);
            type(editor, "txtDrehzahl", "x"); // nothing is checked, asked or written
            loaded(editor)->close();
            co_await arrive(frm::Rezepte);
        }
        co_await edit("Eins");
        type(editor, "txtDrehzahl", "70");
        press(editor, "pbok");
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(stored(51), "1:71 1:71 1:71 1:71");
        EXPECT_EQ(copy(), "");

        // A commit that fails half-way has the steps in the copy. Neither a second try nor a
        // discard loses them, and after the close box the next change finds them.
        change("CREATE TRIGGER Sperre BEFORE INSERT ON Rezepte BEGIN SELECT RAISE(ABORT, 'x'); "
               "END");
        co_await edit("Fünf");
        type(editor, "txtLeistung", "11");
        for (const char *way : {"pbok", "pbexit"}) {
            boxes.expect(inEnglish ? "ERROR 1123 - …" : "Fehler 1123 - …");
            if (way == QString("pbexit"))
                expectSaveQuestion(No);
            press(editor, way);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_TRUE(inFront(editor));
            EXPECT_EQ(stored(), "");
        }
        loaded(editor)->close();
        co_await arrive(frm::Rezepte);
        change("DROP TRIGGER Sperre");
        co_await edit("Fünf");
        type(editor, "txtLeistung", "12");
        press(editor, "pbok");
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(stored(), "1:61 2:62,5 3:63 4:64 5:65");
    };
    run(journey());
}

TEST_P(RecipeEditor, FieldsAreCheckedWhenTheyAreLeft) {
    const Text speedTitle{"Eingabefehler", "Input Error"};
    const Text powerTitle{"Eingabefehler!", "Input Error!"};
    const Text speedRange{"Drehzahl liegt außerhalb des gültigen Bereiches!",
                          "Number of revolutions is outside the valid range!"};
    const Text powerRange{"Leistung liegt außerhalb des gültigen Bereiches!",
                          "Power is outside the valid range!"};
    const Text speedWord{"Drehzahl muss ein nummerischer Wert sein!",
                         "Number of revolutions must be a numerical value!"};
    const Text powerWord{"Leistung muss ein nummerischer Wert sein!",
                         "Power must be a numerical value!"};
    const struct {
        const char *box;
        QString typed;
        const Text *refused;
    } cases[] = {
        {"txtDrehzahl", inEnglish ? "120.1" : "120,1", &speedRange},
        {"txtDrehzahl", inEnglish ? "60,5" : "60.5", &speedWord},
        {"txtDrehzahl", "0", nullptr},
        {"txtDrehzahl", "-1", &speedRange},
        {"txtDrehzahl", "", nullptr},
        {"txtLeistung", "600", nullptr},
        {"txtLeistung", "601", &powerRange},
        {"txtLeistung", "-1", &powerRange},
        {"txtLeistung", "1 W", &powerWord},
    };
    const auto journey = [&]() -> Journey {
        co_await maintain();
        for (const auto &c : cases) {
            SCOPED_TRACE(testing::Message() << c.box << ' ' << c.typed.toStdString());
            co_await edit("Fünf");
            const QString before = text(editor, c.box);
            const bool speed = c.box == QString("txtDrehzahl");
            type(editor, c.box, c.typed);
            if (c.typed.isEmpty())
                control<QLineEdit>(editor, c.box)->clear();
            if (c.refused)
                expectBox(*c.refused, Exclamation, speed ? speedTitle : powerTitle);
            enter(editor, c.box);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(text(editor, c.box), c.refused ? before : c.typed);
            EXPECT_TRUE(focused(editor, c.refused ? c.box : speed ? "txtLeistung" : "cmbPrArt"));
            if (c.refused) { // the way out does not lead past the check either
                type(editor, c.box, c.typed);
                expectBox(*c.refused, Exclamation, speed ? speedTitle : powerTitle);
                press(editor, "pbok");
                EXPECT_TRUE(inFront(editor));
            } else if (!c.typed.isEmpty()) {
                expectSaveQuestion(No);
            }
            press(editor, "pbexit"); // asks after a change alone
            co_await arrive(frm::Rezepte);
            EXPECT_TRUE(boxes.allCame());
        }
        // Nor does the field take the keyboard that a new step would hand on.
        co_await edit("Fünf");
        press(editor, "pbNeu");
        type(editor, "txtDrehzahl", "500");
        expectBox(speedRange, Exclamation, speedTitle);
        control<QWidget>(editor, "cmbPrArt")->setFocus(Qt::MouseFocusReason);
        EXPECT_TRUE(focused(editor, "txtDrehzahl"));
        EXPECT_EQ(text(editor, "txtDrehzahl"), "");
    };
    run(journey());
}

TEST_P(RecipeEditor, IncompleteStepsAreNotStored) {
    const QString power = "Leistungsmessung";
    const struct {
        const char *speed, *power;
        QString type;
        const char *missing;
    } cases[] = {
        {"", "", "", " die Drehzahl, Leistung und Prüfart"},
        {"60", "", power, " die Leistung"},
        {"60", "100", "Messung", " die Prüfart"},
        {"", "100", power, " die Drehzahl"},
        // The English words count for nothing, under English either.
        {"60", "100", "Power Measurement", " die Prüfart"},
        {"60", "", "Speed Measurement", " die Leistung und Prüfart"},
    };
    const auto journey = [&]() -> Journey {
        co_await maintain();
        co_await edit("Eins");
        press(editor, "pbNeu");
        expectFailure("1023E", {"13 Typen unverträglich: \"\" ist keine Zahl.",
                                "13 Type mismatch: \"\" is not a number."});
        press(editor, "pbEinfuegen");
        EXPECT_TRUE(boxes.allCame());
        for (const auto &c : cases) {
            fill(c.speed, c.power, c.type);
            expectIncomplete(c.missing);
            press(editor, "pbSpeichern");
            EXPECT_TRUE(boxes.allCame()) << c.missing;
        }
        fill("60", "400", power);
        expectBox({"Das zulässige Drehmoment ist überschritten!\r\n"
                   "Bitte geben Sie andere Werte ein!",
                   "The permissible torque has been exeeded!\r\nPlease enter other values!"},
                  OKOnly, {"Drehmoment<=60Nm", "Torque<=60Nm"});
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
    const QString power = inEnglish ? "Power Measurement" : "Leistungsmessung";
    const QString speed = inEnglish ? "Speed Measurement" : "Drehzahlmessung";
    const Text notThere{"3021 Kein aktueller Datensatz.", "3021 No current record."};
    const std::pair<QString, QString> types[] = {
        {inEnglish ? "p" : "l", power},
        {inEnglish ? "S" : "D", speed},
        {"1", power},
        {"2", speed},
        {"x", ""},
    };
    const struct {
        const char *keys[2]; // German, English
        Text name;
        const char *written[2]; // key of the specification; empty when there is none
    } specifications[] = {
        {{"s", "s"}, {"stationäre Trainingsgeräte", "Stationary Devices"}, {"2", ""}},
        {{"M", "M"}, {"medizinische Geräte", "Medical Devices"}, {"1", ""}},
        {{"O", "w"}, {"ohne Toleranz", "Without Tolerance"}, {"", "7"}},
    };
    change("INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (7, 'without tolerance')");
    const auto journey = [&]() -> Journey {
        co_await maintain();
        co_await edit("Fünf");
        EXPECT_EQ(offered(editor, "cmbPrArt"), (QStringList{power, speed}));
        EXPECT_EQ(offered(editor, "cmbToleranz"),
                  (QStringList{"medizinische Geräte", "stationäre Trainingsgeräte",
                               "without tolerance"}));
        for (const auto &[keys, words] : types) {
            type(editor, "cmbPrArt", keys);
            EXPECT_EQ(text(editor, "cmbPrArt"), words);
        }
        EXPECT_EQ(beeps, 1);
        type(editor, "cmbPrArt", "1");
        QString before = "1";
        QString kept = "medizinische Geräte";
        for (const auto &c : specifications) {
            const QString written = c.written[GetParam() - 1];
            if (written.isEmpty())
                expectFailure("1120", notThere);
            type(editor, "cmbToleranz", c.keys[GetParam() - 1]);
            EXPECT_TRUE(boxes.allCame());
            const QString shown = written.isEmpty() ? kept
                                  : inEnglish       ? c.name.english
                                                    : c.name.german;
            EXPECT_EQ(text(editor, "cmbToleranz"), kept = shown);
            EXPECT_EQ(specification(), before = written.isEmpty() ? before : written);
            EXPECT_EQ(text(editor, "cmbPrArt"), power);
        }
        type(editor, "cmbToleranz", "x");
        EXPECT_EQ(beeps, 2);
        EXPECT_EQ(text(editor, "cmbPrArt"), "") << "of all boxes";
        EXPECT_EQ(specification(), before);
        expectSaveQuestion(No);
        press(editor, "pbexit");
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(stored(), "1:61 2:62,5 3:63 4:64 5:65");
    };
    run(journey());
}

TEST_P(RecipeEditor, ByKeyboardFromTheDesktopAndBack) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await recipe("Fünf");
        support::choose(frm::Desktop, "mnuRezepte");
        co_await arrive(frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", "Fünf");
        enter(frm::Rezepte, "cmbRezeptname");
        EXPECT_TRUE(focused(frm::Rezepte, "pbÄndRez"));
        key(frm::Rezepte, "pbÄndRez", Qt::Key_Return);
        co_await arrive(editor);
        EXPECT_FALSE(loaded(frm::Desktop)->usable());
        EXPECT_FALSE(loaded(frm::Rezepte)->isVisible());
        const auto at = [](const char *box) {
            EXPECT_TRUE(focused(editor, box)) << box;
            return box;
        };
        key(editor, at("cmbToleranz"), Qt::Key_Down);
        enter(editor, at("cmbToleranz"));
        sendKeys(*control<QWidget>(editor, at("txtDrehzahl")), "70"); // over what is selected
        enter(editor, "txtDrehzahl");
        enter(editor, at("txtLeistung"));
        paste(editor, at("cmbPrArt"), "Drehzahlmessung");
        enter(editor, "cmbPrArt");
        key(editor, at("pbSpeichern"), Qt::Key_Return);
        // A new one: leaving the type leads to the button that saves it.
        press(editor, "pbNeu");
        sendKeys(*control<QWidget>(editor, at("txtDrehzahl")), "66");
        enter(editor, "txtDrehzahl");
        sendKeys(*control<QWidget>(editor, at("txtLeistung")), "60");
        enter(editor, "txtLeistung");
        paste(editor, at("cmbPrArt"), "Leistungsmessung");
        key(editor, "cmbPrArt", Qt::Key_Tab);
        key(editor, at("pbSpeichern"), Qt::Key_Return);
        at("pbNeu");
        expectSaveQuestion(Yes);
        key(editor, "pbNeu", Qt::Key_Escape);
        EXPECT_TRUE(boxes.allCame());
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(stored(), "1:70 2:62,5 3:63 4:64 5:65 6:66");
        EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), "Fünf");
        EXPECT_EQ(control<QTableView>(frm::Rezepte, "DBGridRez")->model()->rowCount(), 6);
        EXPECT_FALSE(loaded(frm::Desktop)->usable());
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
