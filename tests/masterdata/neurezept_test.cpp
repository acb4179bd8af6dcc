// A new recipe: its name, its steps, leaving it, and filling it from another one.
#include <QTableView>

#include "choosing.h"
#include "sprache.h"

namespace {

using namespace support;
using namespace platform;

constexpr frm neu = frm::NeuRezept;
constexpr frm kopie = frm::RezeptKopie;

const Text achtungFehler{"!! Achtung Fehler !!", " !! Attention !!"};
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
        co_await logIn();
        gRezeptAufruf = false;
        screen(frm::Rezepte).showModal();
        co_await arrive(frm::Rezepte);
        press(frm::Rezepte, "pbNeuRezept");
        co_await arrive(neu);
    }
    void saveName(const QString &name = "Kür's") {
        type(neu, "txtRezName", name);
        pick(neu, "cmbToleranz", "stationäre Trainingsgeräte");
        expectBox(namensfrage, YesNo + Question, {"Message!", "MESSAGE!"}, Yes);
        press(neu, "pbRezSave");
    }
    void expectDiscard(int answer) {
        expectBox({"Rezept wurde nicht gespeichert!\rSollen die Daten verworfen werden? ",
                   "Recipe has not been saved! \rShall data be discarded?"},
                  YesNo + Question, {"Message", "MESSAGE"}, answer);
    }
    void expectTorque() {
        expectBox({"Das zulässige Drehmoment ist überschritten!\r\nBitte geben Sie andere Werte "
                   "ein!",
                   "The permissible torque has been exeeded!\r\nPlease enter other values!"},
                  OKOnly, {"Drehmoment<=60Nm", "Torque<=60Nm"});
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
        for (const QString &action : actions.split(' ', Qt::SkipEmptyParts)) {
            const QString value = action.mid(2);
            if (action.startsWith("row="))
                control<QTableView>(neu, "DBGridRez")->selectRow(action.mid(4).toInt());
            else if (action.startsWith("n="))
                type(neu, "txtDrehzahl", value);
            else if (action.startsWith("p="))
                type(neu, "txtLeistung", value);
            else if (action.startsWith("a="))
                type(neu, "cmbPrArt", value == "L" || value == "D" ? keyOf(value[0]) : value);
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
    static QWidget &keyboard() { return *loaded(neu)->focusWidget(); }
};

INSTANTIATE_TEST_SUITE_P(Languages, NewRecipe, testing::Values(1, 2));

TEST_P(NewRecipe, NameIsSavedFirst) {
    const auto journey = [this]() -> Journey {
        co_await begin();
        EXPECT_EQ(shown(), " // name txtRezName ");
        EXPECT_EQ(offered(neu, "cmbToleranz"),
                  (QStringList{"medizinische Geräte", "stationäre Trainingsgeräte"}));
        EXPECT_EQ(text(neu, "cmbToleranz"), "");
        for (const char *field : {"txtDrehzahl", "txtLeistung", "cmbPrArt"})
            EXPECT_FALSE(enabled(neu, field)) << field;
        type(neu, "txtRezName", "Kür");
        EXPECT_FALSE(canPress(neu, "pbRezSave"));
        enter(neu, "txtRezName");
        EXPECT_TRUE(focused(neu, "cmbToleranz"));
        pick(neu, "cmbToleranz", "medizinische Geräte");
        EXPECT_TRUE(canPress(neu, "pbRezSave"));
        type(neu, "txtRezName", "   ");
        EXPECT_FALSE(canPress(neu, "pbRezSave"));

        for (const char *taken : {"Kurzprüfung", "KURZPRÜFUNG"}) {
            type(neu, "txtRezName", taken);
            expectBox({" Diesen Rezeptnamen gibt es bereits!\rWählen Sie einen anderen!",
                       "This recipe name is already existent!\rChoose another name!"},
                      Critical, {"Message", "MESSAGE"});
            enter(neu, "txtRezName");
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(text(neu, "txtRezName"), "");
            EXPECT_EQ(text(neu, "cmbToleranz"), "medizinische Geräte");
            EXPECT_TRUE(focused(neu, "txtRezName"));
        }

        type(neu, "txtRezName", "Kür");
        expectBox(namensfrage, YesNo + Question, {"Message!", "MESSAGE!"}, No);
        enter(neu, "cmbToleranz");
        EXPECT_EQ(text(neu, "txtRezName") + text(neu, "cmbToleranz"), "");
        EXPECT_TRUE(focused(neu, "txtRezName"));

        // A specification that is not there exactly once gives no key.
        const QString name = " O'Neill \"Kür\" ";
        const std::pair<const char *, Text> changes[] = {
            {"INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (9, 'stationäre Trainingsgeräte')",
             {"Fehler 1030 -  3021 Diese Spezifikation gibt es mehrmals.",
              "ERROR 1030 -  3021 There are several specifications of this name."}},
            {"DELETE FROM Toleranzen WHERE ID <> 1",
             {"Fehler 1030 -  3021 Kein aktueller Datensatz.",
              "ERROR 1030 -  3021 No current record."}}};
        for (const auto &[statement, words] : changes) {
            change(statement);
            expectBox(words, Critical, achtungFehler);
            saveName(name);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(names(), QStringList());
            EXPECT_TRUE(canPress(neu, "pbRezSave"));
        }
        change("INSERT INTO Toleranzen (ID, Bezeichnung) VALUES (2, 'stationäre Trainingsgeräte')");
        saveName(name);
        EXPECT_EQ(column("SELECT RezName || '|' || ToleranzID FROM Rezeptnamen WHERE RezeptID = ?",
                         {gRezeptID}),
                  QStringList{name + "|2"});
        EXPECT_EQ(text(neu, "lbRezSaved"), name);
        EXPECT_EQ(text(neu, "lbToleranzSave"), "stationäre Trainingsgeräte");
        for (const char *gone : {"txtRezName", "cmbToleranz", "pbRezSave"})
            EXPECT_FALSE(control(neu, gone)->isVisible()) << gone;
        EXPECT_EQ(shown(), "1 // enter txtDrehzahl K");
        act("n=60 p=100 a=L pbSave pbok");
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
        {"pbPrevious", "1 60/100/L change txtDrehzahl NEL|<>|O", "1:60/100/1", 1},
        {"pbAddNew", "2 // enter txtDrehzahl |<>|O", "1:60/100/1"},
        {"n=80 p=0 a=D pbSave", "3 // enter txtDrehzahl |<>|O", "1:60/100/1 2:80/0/2"},
        {"n=90 p=9 a=L pbSave", "4 // enter txtDrehzahl |<>|O", "1:60/100/1 2:80/0/2 3:90/9/1"},
        {"n=1", "4 1// enter txtDrehzahl |<>|O", "1:60/100/1 2:80/0/2 3:90/9/1"},
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
    };
    run(journey());
}

TEST_P(NewRecipe, ValuesAreCheckedWhenTheFieldIsLeft) {
    const Text none;
    struct Row {
        const char *field, *typed;
        const Text *told;
        const char *left;
    };
    const Row rows[] = {
        {"txtDrehzahl", "1x", &noSpeed, ""},
        {"txtDrehzahl", "0", &badSpeed, ""},
        {"txtDrehzahl", "-1", &badSpeed, ""},
        {"txtDrehzahl", "121", &badSpeed, ""},
        {"txtDrehzahl", "60.5", &badSpeed, ""},
        {"txtDrehzahl", ".", &none, ""},
        {"txtDrehzahl", "1.2.0", &none, "120"},
        {"txtLeistung", "x", &noPower, ""},
        {"txtLeistung", ".", &noPower, ""},
        {"txtLeistung", "601", &badPower, ""},
        {"txtLeistung", "-1", &badPower, ""},
        {"txtLeistung", "60.0", &none, "600"},
        {"txtLeistung", "0", &none, "0"},
        GetParam() == 2 ? Row{"txtDrehzahl", "60,5", &noSpeed, ""}
                        : Row{"txtDrehzahl", "60,5", &none, "60,5"},
    };
    const std::pair<const char *, const char *> missing[] = {
        {"n", " die Drehzahl"},
        {"p", " die Leistung"},
        {"a", " die Prüfart"},
        {"npa", " die Drehzahl, Leistung und Prüfart"},
    };
    const auto journey = [&, this]() -> Journey {
        co_await begin();
        saveName();
        for (const Row &row : rows) {
            const bool refused = row.told != &none;
            if (refused)
                expectRefused(*row.told);
            type(neu, row.field, row.typed);
            enter(neu, row.field);
            EXPECT_TRUE(boxes.allCame()) << row.typed;
            EXPECT_EQ(text(neu, row.field), row.left) << row.typed;
            EXPECT_EQ(focused(neu, row.field), refused) << row.typed;
        }
        act("n=60 p=400 a=L");
        expectTorque();
        act("pbSave");
        EXPECT_EQ(shown(), "1 60/400/L save txtDrehzahl SK");
        EXPECT_EQ(stored(), "");
        for (const auto &[fields, list] : missing) {
            act("n=100 p=600 a=L");
            const QString emptied = fields;
            if (emptied.contains('n'))
                control<QLineEdit>(neu, "txtDrehzahl")->clear();
            if (emptied.contains('p'))
                control<QLineEdit>(neu, "txtLeistung")->clear();
            if (emptied.contains('a'))
                control<QComboBox>(neu, "cmbPrArt")->clearEditText();
            expectIncomplete(list);
            act("pbSave");
            EXPECT_TRUE(boxes.allCame()) << list;
            EXPECT_EQ(stored(), "");
        }
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
        for (const char *type : {"D", "L"}) {
            key(neu, "cmbPrArt", *type == 'D' ? Qt::Key_Down : Qt::Key_Up);
            EXPECT_TRUE(focused(neu, "cmbPrArt"));
            EXPECT_EQ(shown(), std::string("1 60/60/") + type + " save cmbPrArt SNEL|<>|O");
        }
        enter(neu, "cmbPrArt");
        EXPECT_TRUE(focused(neu, "pbSave"));
    };
    run(journey());
}

TEST_P(NewRecipe, NeedsNoMouse) {
    const auto journey = [this]() -> Journey {
        co_await begin();
        turnTo(keyboard());
        sendKeys(keyboard(), "Kür's");
        QTest::keyClick(&keyboard(), Qt::Key_Return);
        QTest::keyClick(&keyboard(), Qt::Key_Down);
        expectBox(namensfrage, YesNo + Question, {"Message!", "MESSAGE!"}, Yes);
        QTest::keyClick(&keyboard(), Qt::Key_Return);
        for (const QString step : {"60 100 L", "80 0 D"}) {
            const QStringList keys = step.split(' ');
            for (const QString &word : {keys[0], keys[1], QString(keyOf(keys[2][0]))}) {
                sendKeys(keyboard(), word);
                QTest::keyClick(&keyboard(), Qt::Key_Return); // after the letter it stores
            }
        }
        EXPECT_EQ(names(), QStringList{"Kür's"});
        EXPECT_EQ(stored(), "1:60/100/1 2:80/0/2");
        EXPECT_EQ(shown(), "3 // enter txtDrehzahl |<>|O");
        while (keyboard().objectName() != "pbok")
            QTest::keyClick(&keyboard(), Qt::Key_Tab);
        QTest::keyClick(&keyboard(), Qt::Key_Return);
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), "Kür's");
    };
    run(journey());
}

TEST_P(NewRecipe, LeavingDecidesWhetherItStays) {
    enum Told { Nothing, Incomplete, Torque, Refused };
    struct Row {
        const char *before; ///< "-" before there is a name
        int answer;         ///< 0 when nothing is asked
        Told told;          ///< then the window stays
        const char *steps;  ///< null when the recipe is gone
    };
    const QString one = "n=60 p=100 a=L pbSave ";
    const Row rows[] = {
        {"-", 0, Nothing, nullptr},
        {"", 0, Nothing, nullptr},
        {"n=60", Yes, Nothing, nullptr},
        {"n=60 p=100 a=L", No, Nothing, "1:60/100/1"},
        {"n=60", No, Incomplete, nullptr},
        {"n=60 p=400 a=L", No, Torque, nullptr},
        {"n=500", 0, Refused, nullptr}, // checked before it is asked about
        {"+", Yes, Nothing, nullptr},
        {"+", No, Nothing, "1:60/100/1"},
        {"+ n=80 p=0 a=D", No, Nothing, "1:60/100/1 2:80/0/2"},
        {"+ n=80", No, Incomplete, nullptr},
        {"+ pbFirst", No, Nothing, "1:60/100/1 1:60/100/1"},
        {"+ pbFirst", Yes, Nothing, nullptr},
    };
    const auto leave = [](int way) {
        if (way == 0)
            QTest::mouseClick(control(neu, "pbexit"), Qt::LeftButton);
        else if (way == 1)
            QTest::keyClick(loaded(neu), Qt::Key_Escape);
        else
            loaded(neu)->close();
    };
    const auto journey = [&, this]() -> Journey {
        co_await begin();
        for (int i = 0; i < 3 * int(std::size(rows)); ++i) {
            const Row &row = rows[i / 3];
            SCOPED_TRACE(
                QString("%1 %2 %3").arg(row.before).arg(row.answer).arg(i % 3).toStdString());
            if (row.before[0] != '-') {
                saveName();
                act(QString(row.before).replace("+", one));
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
            if (row.answer != 0 && stays)
                expectDiscard(Yes);
            if (stays)
                leave(i % 3);
            co_await arrive(frm::Rezepte);
            EXPECT_EQ(names(), row.steps ? QStringList{"Kür's"} : QStringList());
            EXPECT_EQ(row.before[0] == '-' ? "" : stored(), row.steps ? row.steps : "");
            change("DELETE FROM Rezepte WHERE RezeptID > 5");
            change("DELETE FROM Rezeptnamen WHERE RezeptID > 5");
            press(frm::Rezepte, "pbNeuRezept");
            co_await arrive(neu);
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
            if (kept)
                act("n=60 p=100 a=L pbSave pbok");
            else
                act("pbexit");
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
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await recipe("Medizin 25 bis 400 W");
        co_await begin();
        saveName("Kopie's");
        const std::int16_t key = gRezeptID;
        const char *const list = "cmbRezeptname";
        press(neu, "pbKopie");
        co_await arrive(kopie);
        EXPECT_EQ(loaded(kopie)->caption(), english() ? "Copy Recipe" : "Rezept kopieren");
        EXPECT_EQ(text(kopie, "laInfo"), english() ? "Number Of Recipes: 7" : "Rezeptanzahl: 7");
        EXPECT_FALSE(canPress(kopie, "pbok"));
        expectBox({"Fehler 1012 -  3021 Kein aktueller Datensatz.",
                   "ERROR 1012 -  3021 No current record."},
                  Critical, achtungFehler);
        type(kopie, list, "Verwaist");
        EXPECT_FALSE(canPress(kopie, "pbok"));
        expectTold({"Es wurden keine Daten gefunden! ", "No data found! "}, {"Rezepte", "Recipes"},
                   Information);
        type(kopie, list, "xyz");
        enter(kopie, list);
        type(kopie, list, "Kurzprüfung");
        EXPECT_EQ(text(kopie, "lbRezTol"), "medizinische Geräte");
        EXPECT_EQ(control<QTableView>(kopie, "DBGridRez")->model()->rowCount(), 2);
        press(kopie, "pbexit");
        co_await arrive(neu);
        EXPECT_EQ(shown(), "1 // enter pbKopie K|<>|");
        EXPECT_EQ(stored(), "");

        // The new one is in the list, too, and has nothing to copy.
        press(neu, "pbKopie");
        co_await arrive(kopie);
        type(kopie, list, "Kopie's");
        press(kopie, "pbok");
        co_await arrive(neu);
        EXPECT_EQ(shown(), "1 // enter pbKopie NK|<>|");

        press(neu, "pbKopie");
        co_await arrive(kopie);
        type(kopie, list, "kurzpr");
        EXPECT_FALSE(canPress(kopie, "pbok"));
        enter(kopie, list);
        co_await arrive(neu);
        EXPECT_EQ(stored(), english() ? "1:60.5/100/2 2:80/0/2" : "1:60,5/100/1 2:80/0/2");
        EXPECT_EQ(column("SELECT SSCode FROM Rezepte WHERE RezeptID = ?", {key}),
                  (QStringList{"", ""}));
        EXPECT_EQ(shown(), english() ? "1 60.5/100/D change txtDrehzahl NEL|<>|O"
                                     : "1 60,5/100/L change txtDrehzahl NEL|<>|O");
        enter(neu,
              "txtDrehzahl"); // a decimal point that the program has shown is none for thousands
        EXPECT_EQ(text(neu, "txtDrehzahl"), english() ? "60.5" : "60,5");
        EXPECT_EQ(gRezeptID, key);
        EXPECT_EQ(gToleranzID, 1);
        EXPECT_EQ(gRezeptName, "medizinische Geräte");
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
        saveName();
        act("n=60 p=100 a=L pbSave n=80 p=0 a=D pbSave pbFirst");
        control<QWidget>(neu, "cmbPrArt")->setFocus();
        key(neu, "cmbPrArt", Qt::Key_Backtab);
        EXPECT_TRUE(focused(neu, "txtLeistung")) << "the way back is free";

        // Renumbering that ends half-way: the list tells what is stored.
        change("CREATE TRIGGER fest BEFORE UPDATE ON Rezepte WHEN old.Prüfschritt = '1' "
               "BEGIN SELECT RAISE(ABORT, 'x'); END");
        boxes.expect(english() ? "ERROR 1023E - …" : "Fehler 1023E - …");
        press(neu, "pbEinfuegen");
        EXPECT_EQ(stored(), "1:60/100/1 3:80/0/2");
        const QAbstractItemModel *list = control<QTableView>(neu, "DBGridRez")->model();
        EXPECT_EQ(list->index(1, 0).data().toString(), "3");
        change("DROP TRIGGER fest");
        act("pbLast pbLoeschen pbFirst p=50 a=D");
        change("ALTER TABLE Rezepte RENAME TO fort");
        for (const auto &[button, tag] : rows) {
            boxes.expect(
                QString(english() ? "ERROR %1 -  3078 …" : "Fehler %1 -  3078 …").arg(tag));
            if (QString(button) == "pbexit")
                expectDiscard(No);
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
