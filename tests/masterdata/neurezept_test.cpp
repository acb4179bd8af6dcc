// A new recipe: its name, its steps, leaving it, and filling it from another one.
#include "choosing.h"
#include "sprache.h"

namespace {

using namespace support;
using namespace platform;

constexpr frm neu = frm::NeuRezept;
constexpr frm kopie = frm::RezeptKopie;

const Text namensfrage{"Wollen sie diesen Rezeptnamen speichern?",
                       "Do you want to save this recipe name?"};

const Text noSpeed{"Drehzahl muss ein nummerischer Wert sein!",
                   "Number of revolutions has to be a numeric value!"};
const Text badSpeed{"Drehzahl liegt außerhalb des gültigen Bereiches.",
                    "Number of revolution is outside the valid range."};
const Text noPower{"Leistung muss ein nummerischer Wert sein!", "Power has to be a numeric value!"};
const Text badPower{"Leistung liegt außerhalb des gültigen Bereiches",
                    "Power is outside the valid range!"};

class NewRecipe : public Choosing {
  protected:
    Journey begin() {
        co_await maintain();
        co_await open("pbNeuRezept", neu, frm::Rezepte);
    }
    void saveName(
        const QString &name = "Kür's", const std::function<void()> &failure = [] {}) {
        type(neu, "txtRezName", name);
        pick(neu, "cmbToleranz", "stationäre Trainingsgeräte");
        expectBox(namensfrage, YesNo + Question, {"Message!", "MESSAGE!"}, Yes);
        failure();
        press(neu, "pbRezSave");
    }
    void expectDiscard(int answer) {
        expectBox({"Rezept wurde nicht gespeichert!\rSollen die Daten verworfen werden? ",
                   "Recipe has not been saved! \rShall data be discarded?"},
                  YesNo + Question, {"Message", "MESSAGE"}, answer);
    }
    void expectRefused(const Text &told) {
        expectBox(told, Critical, {"Eingabefehler", "Input Error"});
    }
    void expectIncomplete(const QString &missing) {
        expectBox({"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie" +
                       missing + "!",
                   "The informations about the actual test step are incomplete!"},
                  Critical, {"Achtung!", "Attention!"});
    }
    static const char *keyOf(QChar type) {
        return type == 'L' ? (english() ? "p" : "L") : (english() ? "S" : "d");
    }
    /// Presses ("pbSave"), types ("n=60", "p=100", "a=L") or moves in the grid ("row=2").
    static void act(const QString &actions) {
        const QHash<QString, const char *> fields{
            {"n", "txtDrehzahl"}, {"p", "txtLeistung"}, {"a", "cmbPrArt"}};
        for (const QString &action : actions.split(' ', Qt::SkipEmptyParts)) {
            const QString what = action.section('=', 0, 0), value = action.section('=', 1);
            if (what == "row")
                control<QTableView>(neu, "DBGridRez")->selectRow(value.toInt());
            else if (fields.contains(what))
                type(neu, fields[what], value == "L" || value == "D" ? keyOf(value[0]) : value);
            else
                press(neu, action.toUtf8());
        }
    }
    QString stored() {
        return column("SELECT Prüfschritt || ':' || Drehzahl || '/' || Leistung || '/' || Prüfart "
                      "FROM Rezepte WHERE RezeptID = ? ORDER BY Val(Prüfschritt)",
                      {gRezeptID})
            .join(' ');
    }
    /// Step and fields, what laInfo says, which control has the keyboard, what can be pressed.
    static std::string shown() {
        const std::pair<const char *, Text> infos[] = {
            {"name",
             {"Bitte geben Sie einen Rezeptnamen ein und wählen Sie eine Spezifikation.",
              "Please enter a recipe name and choose a specification."}},
            {"enter",
             {"Geben Sie bitte die Daten für den neuen Prüfschritt ein!",
              "Please enter data for the actual test step!"}},
            {"save", {"Sie können den Prüfschritt speichern!", "You can save the test step!"}},
            {"change",
             {"Sie können die Daten für diesen Prüfschritt ändern!",
              "It is possible to change data for this test step!"}}};
        QString line = QString("%1 %2/%3/%4 ")
                           .arg(text(neu, "lbStepCount"), text(neu, "txtDrehzahl"),
                                text(neu, "txtLeistung"), text(neu, "cmbPrArt").left(1));
        line.replace("/P ", "/L ").replace("/S ", "/D ");
        for (const auto &[said, info] : infos) {
            if (text(neu, "laInfo") == inSprache(info))
                line += said;
        }
        line += ' ' + loaded(neu)->focusWidget()->objectName() + ' ';
        const std::pair<const char *, char> buttons[] = {
            {"pbSave", 'S'},  {"pbAddNew", 'N'}, {"pbEinfuegen", 'E'}, {"pbLoeschen", 'L'},
            {"pbKopie", 'K'}, {"pbFirst", '|'},  {"pbPrevious", '<'},  {"pbNext", '>'},
            {"pbLast", '|'},  {"pbok", 'O'}};
        for (const auto &[button, letter] : buttons) {
            if (canPress(neu, button))
                line += letter;
        }
        return line.toStdString();
    }
    QStringList names() { return column("SELECT RezName FROM Rezeptnamen WHERE RezeptID > 5"); }
    static Journey leaveList() {
        press(frm::Rezepte, "pbexit");
        co_await arrive(frm::Desktop);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, NewRecipe, testing::Values(1, 2));

TEST_P(NewRecipe, NameIsSavedFirst) {
    // A specification that is not there exactly once gives no key.
    const std::pair<const char *, Text> changes[] = {
        {"INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (9, 'stationäre Trainingsgeräte')",
         {" 3021 Diese Spezifikation gibt es mehrmals.",
          " 3021 There are several specifications of this name."}},
        {"DELETE FROM Toleranzen WHERE ID <> 1",
         {" 3021 Kein aktueller Datensatz.", " 3021 No current record."}}};
    const QString name = " O'Neill \"Kür\" ";
    const auto journey = [&, this]() -> Journey {
        co_await begin();
        EXPECT_EQ(shown(), " // name txtRezName ");
        for (const char *field : {"txtDrehzahl", "txtLeistung", "cmbPrArt"})
            EXPECT_FALSE(enabled(neu, field)) << field;
        type(neu, "txtRezName", "Kür");
        EXPECT_FALSE(canPress(neu, "pbRezSave"));
        enter(neu, "txtRezName");
        EXPECT_TRUE(focused(neu, "cmbToleranz"));
        key(neu, "cmbToleranz", Qt::Key_Down);
        EXPECT_TRUE(canPress(neu, "pbRezSave"));
        type(neu, "txtRezName", "   ");
        EXPECT_FALSE(canPress(neu, "pbRezSave"));
        type(neu, "txtRezName", "KURZPRÜFUNG");
        expectBox({" Diesen Rezeptnamen gibt es bereits!\rWählen Sie einen anderen!",
                   "This recipe name is already existent!\rChoose another name!"},
                  Critical, {"Message", "MESSAGE"});
        enter(neu, "txtRezName");
        EXPECT_EQ(text(neu, "txtRezName") + text(neu, "cmbToleranz"), "medizinische Geräte");
        EXPECT_TRUE(focused(neu, "txtRezName"));
        type(neu, "txtRezName", "Kür");
        expectBox(namensfrage, YesNo + Question, {"Message!", "MESSAGE!"}, No);
        enter(neu, "cmbToleranz");
        EXPECT_EQ(text(neu, "txtRezName") + text(neu, "cmbToleranz"), "");
        EXPECT_TRUE(focused(neu, "txtRezName"));

        for (const auto &[statement, words] : changes) {
            change(statement);
            saveName(name, [&, told = words] { expectFailure("1030", told); });
            EXPECT_EQ(names(), QStringList());
        }
        change("INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (2, 'stationäre Trainingsgeräte')");
        saveName(name);
        EXPECT_EQ(column("SELECT RezName || '|' || ToleranzID FROM Rezeptnamen WHERE RezeptID = ?",
                         {gRezeptID}),
                  QStringList{name + "|2"});
        EXPECT_EQ(text(neu, "lbRezSaved") + text(neu, "lbToleranzSave"),
                  name + "stationäre Trainingsgeräte");
        for (const char *gone : {"txtRezName", "cmbToleranz", "pbRezSave"})
            EXPECT_FALSE(control(neu, gone)->isVisible()) << gone;

        // The steps by the keyboard alone: Enter goes on, and after the letter it stores.
        EXPECT_EQ(shown(), "1 // enter txtDrehzahl K");
        const auto keyboard = [] { return loaded(neu)->focusWidget(); };
        for (const char *keys : {"60", "100", keyOf('L'), "80", "0", keyOf('D')}) {
            sendKeys(*keyboard(), keys);
            QTest::keyClick(keyboard(), Qt::Key_Return);
        }
        EXPECT_EQ(stored(), "1:60/100/1 2:80/0/2");
        for (int tabs = 0; tabs < 30 && keyboard()->objectName() != "pbok"; ++tabs)
            QTest::keyClick(keyboard(), Qt::Key_Tab);
        QTest::keyClick(keyboard(), Qt::Key_Return);
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), name);
        EXPECT_EQ(text(frm::Rezepte, "lbRezTol"), "stationäre Trainingsgeräte");
    };
    run(journey());
}

TEST_P(NewRecipe, StepsAreStoredOneByOne) {
    struct Row {
        const char *action, *shown, *stored;
        int beeps = 0;
    };
    const Row rows[] = {
        {"n=60 p=100 a=L", "1 60/100/L save pbSave SK", ""},
        {"a=x", "1 60/100/ save cmbPrArt SK", "", 1},
        {"a=2", "1 60/100/D save pbSave SK", ""},
        {"a=1 pbSave", "2 // enter txtDrehzahl |<>|O", "1:60/100/1"},
        {"pbPrevious", "1 60/100/L change txtDrehzahl NEL|<>|O", "1:60/100/1"},
        {"pbPrevious", "1 60/100/L change txtDrehzahl NEL|<>|O", "1:60/100/1", 1},
        {"pbAddNew", "2 // enter txtDrehzahl |<>|O", "1:60/100/1"},
        {"n=80 p=0 a=D pbSave", "3 // enter txtDrehzahl |<>|O", "1:60/100/1 2:80/0/2"},
        {"n=90 p=9 a=L pbSave", "4 // enter txtDrehzahl |<>|O", "1:60/100/1 2:80/0/2 3:90/9/1"},
        {"n=1", "4 1// enter txtDrehzahl |<>|O", "1:60/100/1 2:80/0/2 3:90/9/1"},
        {"pbPrevious", "3 90/9/L change txtDrehzahl NEL|<>|O", "1:60/100/1 2:80/0/2 3:90/9/1"},
        {"pbNext", "3 90/9/L change txtDrehzahl NEL|<>|O", "1:60/100/1 2:80/0/2 3:90/9/1", 1},
        {"pbPrevious", "2 80/0/D change txtDrehzahl NEL|<>|O", "1:60/100/1 2:80/0/2 3:90/9/1"},
        {"pbEinfuegen", "2 80/0/D change pbEinfuegen NEL|<>|O",
         "1:60/100/1 2:80/0/2 3:80/0/2 4:90/9/1"},
        {"p=7 a=L pbSave", "2 80/7/L save txtDrehzahl SNEL|<>|O",
         "1:60/100/1 2:80/7/1 3:80/0/2 4:90/9/1"},
        {"pbFirst pbEinfuegen", "1 60/100/L change pbEinfuegen SNEL|<>|O",
         "1:60/100/1 2:60/100/1 3:80/7/1 4:80/0/2 5:90/9/1"},
        {"row=2 pbLoeschen", "3 80/0/D change pbLoeschen SNEL|<>|O",
         "1:60/100/1 2:60/100/1 3:80/0/2 4:90/9/1"},
        {"pbLast pbLoeschen", "3 80/0/D change pbLoeschen SNEL|<>|O",
         "1:60/100/1 2:60/100/1 3:80/0/2"},
        {"pbFirst pbLoeschen pbLoeschen", "1 80/0/D change pbLoeschen SNEL|<>|O", "1:80/0/2"},
        {"pbLoeschen", "1 80/0/D change pbLoeschen SNEL|<>|", ""},
        {"pbNext", "1 80/0/D change pbNext SNEL|<>|", ""},
        {"pbLoeschen", " // change pbAddNew N|<>|", ""},
        {"n=50 p=5 a=L", "1 50/5/L save pbSave SN|<>|", ""},
        {"pbSave", "2 // enter txtDrehzahl |<>|O", "1:50/5/1"},
    };
    const auto journey = [&, this]() -> Journey {
        co_await begin();
        saveName();
        for (const Row &row : rows) {
            beeps = 0;
            act(row.action);
            EXPECT_EQ(shown(), row.shown) << row.action;
            EXPECT_EQ(stored(), row.stored) << row.action;
            EXPECT_EQ(beeps, row.beeps) << row.action;
        }
        EXPECT_EQ(column("SELECT count(*) FROM Rezepte WHERE RezeptID <= 5"), QStringList{"37"});
        act("n=90 p=7");
        co_await interruption();
        EXPECT_EQ(shown(), "2 90/7/ enter txtLeistung |<>|O") << "what is typed stays";
    };
    run(journey());
}

TEST_P(NewRecipe, ValuesAreCheckedWhenTheFieldIsLeft) {
    const struct {
        const char *field, *typed;
        const Text *told;
        const char *left = "";
    } rows[] = {
        {"txtDrehzahl", "1x", &noSpeed},
        {"txtDrehzahl", "0", &badSpeed},
        {"txtDrehzahl", "121", &badSpeed},
        {"txtDrehzahl", "60.5", english() ? nullptr : &badSpeed, english() ? "60.5" : ""},
        {"txtDrehzahl", ".", english() ? &noSpeed : nullptr},
        {"txtDrehzahl", "1.2.0", english() ? &noSpeed : nullptr, english() ? "" : "120"},
        {"txtDrehzahl", "60,5", english() ? &noSpeed : nullptr, english() ? "" : "60,5"},
        {"txtLeistung", "x", &noPower},
        {"txtLeistung", ".", &noPower},
        {"txtLeistung", "601", &badPower},
        {"txtLeistung", "-1", &badPower},
        {"txtLeistung", "12.5", nullptr, english() ? "12.5" : "125"},
        {"txtLeistung", "0", nullptr, "0"},
    };
    const std::pair<const char *, const char *> missing[] = {
        {"txtDrehzahl", " die Drehzahl"},
        {"txtLeistung", " die Drehzahl, Leistung"},
        {"cmbPrArt", " die Drehzahl, Leistung und Prüfart"},
    };
    const auto journey = [&, this]() -> Journey {
        co_await begin();
        saveName();
        for (const auto &row : rows) {
            if (row.told)
                expectRefused(*row.told);
            type(neu, row.field, row.typed);
            enter(neu, row.field);
            EXPECT_TRUE(boxes.allCame()) << row.typed;
            EXPECT_EQ(text(neu, row.field), row.left) << row.typed;
            EXPECT_EQ(focused(neu, row.field), row.told != nullptr) << row.typed;
        }
        act("n=60 p=400 a=L");
        expectTorque();
        act("pbSave");
        EXPECT_EQ(shown(), "1 60/400/L save txtDrehzahl SK");
        act("n=100 p=600");
        for (const auto &[field, list] : missing) {
            paste(neu, field, "");
            expectIncomplete(list);
            act("pbSave");
            EXPECT_TRUE(boxes.allCame()) << list;
        }
        EXPECT_EQ(stored(), "");
        act("n=100 p=600 a=L pbSave");
        EXPECT_EQ(stored(), "1:100/600/1");

        // A stored step is shown: the first leaving of its speed is not checked.
        act("pbFirst n=130");
        enter(neu, "txtDrehzahl");
        EXPECT_EQ(text(neu, "txtDrehzahl"), "130");
        enter(neu, "txtLeistung");
        EXPECT_TRUE(focused(neu, "pbSave"));
        expectRefused(badSpeed);
        type(neu, "txtDrehzahl", "130");
        enter(neu, "txtDrehzahl");
        EXPECT_EQ(text(neu, "txtDrehzahl"), "");

        // Picking from the list lets a person go on with the arrow keys.
        act("n=60 p=60");
        control(neu, "cmbPrArt")->setFocus();
        key(neu, "cmbPrArt", Qt::Key_Down);
        EXPECT_EQ(shown(), "1 60/60/D save cmbPrArt SNEL|<>|O");
        enter(neu, "cmbPrArt");
        EXPECT_TRUE(focused(neu, "pbSave"));
    };
    run(journey());
}

TEST_P(NewRecipe, LeavingDecidesWhetherItStays) {
    enum Told { Nothing, Incomplete, Torque, Refused };
    const struct {
        const char *before;  ///< "-" before there is a name, "+" with a step stored
        int answer;          ///< 0 when nothing is asked
        const char *steps;   ///< null when the recipe is gone
        Told told = Nothing; ///< else the window stays
    } rows[] = {
        {"-", 0, nullptr},
        {"", 0, nullptr},
        {"n=60", Yes, nullptr},
        {"n=60 p=100 a=L", No, "1:60/100/1"},
        {"n=60", No, nullptr, Incomplete},
        {"n=60 p=400 a=L", No, nullptr, Torque},
        {"n=500", 0, nullptr, Refused}, // checked before it is asked about
        {"+", Yes, nullptr},
        {"+", No, "1:60/100/1"},
        {"+ n=80 p=0 a=D", No, "1:60/100/1 2:80/0/2"},
        {"+ n=80", No, nullptr, Incomplete},
        {"+ pbFirst", No, "1:60/100/1 1:60/100/1"},
        {"+ pbFirst", Yes, nullptr},
    };
    const auto leave = [](int way) {
        if (way == 0)
            QTest::mouseClick(control(neu, "pbexit"), Qt::LeftButton);
        else
            leaveBy(neu, way == 1 ? "Escape" : "");
    };
    const auto journey = [&, this]() -> Journey {
        co_await begin();
        for (int i = 0; i < 3 * int(std::size(rows)); ++i) {
            const auto &row = rows[i / 3];
            SCOPED_TRACE(testing::Message() << row.before << ' ' << row.answer << ' ' << i % 3);
            if (*row.before != '-') {
                saveName();
                act(QString(row.before).replace("+", "n=60 p=100 a=L pbSave "));
            }
            if (row.answer != 0)
                expectDiscard(row.answer);
            if (row.told == Incomplete)
                expectIncomplete(" die Leistung und Prüfart");
            if (row.told == Torque)
                expectTorque();
            if (row.told == Refused)
                expectRefused(badSpeed);
            leave(i % 3);
            EXPECT_TRUE(boxes.allCame());
            // The mouse goes on to the button once the refused value is gone.
            const bool stays = row.told != Nothing && !(row.told == Refused && i % 3 == 0);
            EXPECT_EQ(inFront(neu), stays);
            if (stays && row.answer != 0)
                expectDiscard(Yes);
            if (stays)
                leave(i % 3);
            co_await arrive(frm::Rezepte);
            EXPECT_EQ(names(), row.steps ? QStringList{"Kür's"} : QStringList());
            EXPECT_EQ(*row.before == '-' ? "" : stored(), row.steps ? row.steps : "");
            change("DELETE FROM Rezepte WHERE RezeptID > 5");
            change("DELETE FROM Rezeptnamen WHERE RezeptID > 5");
            co_await open("pbNeuRezept", neu, frm::Rezepte);
        }
    };
    run(journey());
}

TEST_P(NewRecipe, IsTheFirstOfAll) {
    change("DELETE FROM Rezeptnamen");
    change("DELETE FROM Rezepte");
    const auto journey = [this]() -> Journey {
        co_await logIn();
        for (const bool kept : {false, true}) {
            support::choose(frm::Desktop, "mnuRezepte");
            co_await arrive(neu);
            saveName();
            act(kept ? "n=60 p=100 a=L pbSave pbok" : "pbexit");
            co_await arrive(frm::Rezepte);
            EXPECT_FALSE(loaded(frm::Desktop)->usable());
            EXPECT_TRUE(canPress(frm::Rezepte, "pbNeuRezept"));
            EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), kept ? "Kür's" : "");
            co_await leaveList();
            EXPECT_TRUE(loaded(frm::Desktop)->usable());
        }
    };
    run(journey());
}

TEST_P(NewRecipe, IsFilledFromAnother) {
    change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (77, 'Verwaist', 99)");
    change("UPDATE Rezepte SET Drehzahl = '60.5', SSCode = 'x' WHERE RezeptID = 1 AND Leistung = "
           "100");
    const struct {
        const char *typed, *way, *shown; // what the editor shows then
    } ways[] = {
        {"Kurzprüfung", "pbexit", "1 // enter pbKopie K|<>|"},
        {"Kopie's", "pbok", "1 // enter pbKopie NK|<>|"}, // in the list, with nothing to copy
        {"kurzpr", "",
         english() ? "1 60.5/100/D change txtDrehzahl NEL|<>|O"
                   : "1 60,5/100/L change txtDrehzahl NEL|<>|O"},
    };
    const char *const list = "cmbRezeptname";
    const auto journey = [&, this]() -> Journey {
        co_await recipe("Medizin 25 bis 400 W");
        co_await begin();
        saveName("Kopie's");
        const Schlüssel key = gRezeptID;
        for (const auto &c : ways) {
            EXPECT_EQ(stored(), "");
            co_await open("pbKopie", kopie, neu);
            EXPECT_EQ(text(kopie, "laInfo"),
                      english() ? "Number Of Recipes: 7" : "Rezeptanzahl: 7");
            expectNoRecord("1012");
            type(kopie, list, "Verwaist");
            EXPECT_FALSE(canPress(kopie, "pbok"));
            expectNothingFound({"Rezepte", "Recipes"});
            type(kopie, list, "xyz");
            enter(kopie, list);
            type(kopie, list, c.typed);
            EXPECT_EQ(canPress(kopie, "pbok"), *c.way != 0) << c.typed;
            if (*c.way)
                press(kopie, c.way);
            else
                enter(kopie, list);
            co_await arrive(neu);
            EXPECT_EQ(shown(), c.shown);
        }
        EXPECT_EQ(stored(), english() ? "1:60.5/100/2 2:80/0/2" : "1:60,5/100/1 2:80/0/2");
        EXPECT_EQ(column("SELECT SSCode FROM Rezepte WHERE RezeptID = ?", {key}),
                  (QStringList{"", ""}));
        // Where the decimal sign is a point it is none for thousands.
        act(english() ? "n=61.5 a=S pbSave" : "n=61,5 a=L pbSave");
        EXPECT_TRUE(stored().startsWith(english() ? "1:61.5/" : "1:61,5/"));
        EXPECT_EQ(gRezeptID, key);
        EXPECT_EQ(gToleranzID, 1);
        expectDiscard(Yes);
        press(neu, "pbexit");
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(names(), QStringList{"Verwaist"});
        co_await leaveList();
        EXPECT_EQ(gRezeptID, 2) << "the recipe that the desktop shows";
    };
    run(journey());
}

TEST_P(NewRecipe, FailuresAreToldAndLoseNothing) {
    const std::pair<const char *, const char *> rows[] = {{"pbSave", "1034"},
                                                          {"pbEinfuegen", "1023E"},
                                                          {"pbLoeschen", "1023E"},
                                                          {"pbexit", "1036"},
                                                          {"pbAddNew", "1032"}};
    const auto journey = [&, this]() -> Journey {
        co_await begin();
        // A name whose key the session cannot hold does not stay without steps.
        change("UPDATE sqlite_sequence SET seq = 2147483647 WHERE name = 'Rezeptnamen'");
        saveName("Kür's", [this] { expectFailure("1030", {" 6 …", " 6 …"}); });
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(column("SELECT count(*) FROM Rezeptnamen WHERE RezeptID > 2147483647").first(),
                  "0");
        change("UPDATE sqlite_sequence SET seq = 100 WHERE name = 'Rezeptnamen'");
        saveName();
        act("n=60 p=100 a=L pbSave n=80 p=0 a=D pbSave pbFirst");
        control<QWidget>(neu, "cmbPrArt")->setFocus();
        key(neu, "cmbPrArt", Qt::Key_Backtab);
        EXPECT_TRUE(focused(neu, "txtLeistung")) << "the way back is free";

        // Renumbering that ends half-way: the list tells what is stored.
        spoil("UPDATE", "Rezepte WHEN old.Prüfschritt = '1'");
        expectFailure("1023E");
        press(neu, "pbEinfuegen");
        EXPECT_EQ(stored(), "1:60/100/1 3:80/0/2");
        EXPECT_TRUE(listed(neu, "DBGridRez").last().startsWith("3|80|"));
        mend();
        act("pbLast pbLoeschen pbFirst p=50 a=D");
        change("ALTER TABLE Rezepte RENAME TO fort");
        for (const auto &[button, tag] : rows) {
            if (QString(button) == "pbexit")
                expectDiscard(No);
            expectFailure(tag, {" 3078 …", " 3078 …"});
            press(neu, button);
            EXPECT_TRUE(boxes.allCame()) << button;
            EXPECT_TRUE(QString::fromStdString(shown()).startsWith("1 60/50/D ")) << button;
        }
        change("ALTER TABLE fort RENAME TO Rezepte");
        act("pbSave");
        EXPECT_EQ(stored(), "1:60/50/2");
    };
    run(journey());
}

} // namespace
