// A new workplace: nothing is stored but the delivered settings. The first customer, unit,
// specification and recipe are entered by keyboard alone, led by what the program suggests, and
// measured with.
#include <QFile>
#include <QPointer>

#include "scripts.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

class FirstRecords : public Workplace, public testing::WithParamInterface<int> {
  protected:
    FirstRecords() {
        QFile::remove(datenbankName);
        legeDatenbankAn(datenbankName, false);
        change("DELETE FROM Toleranzen");
        setLanguage(GetParam());
    }

    /// Keys go to whatever has the keyboard.
    static void keys(frm name, const QString &text) {
        turnTo(*loaded(name));
        sendKeys(*loaded(name)->focusWidget(), text);
    }
    static void key(frm name, Qt::Key key) {
        turnTo(*loaded(name));
        QTest::keyClick(loaded(name)->focusWidget(), key);
    }
    /// Each entry and the Enter that ends it.
    static void entries(frm name, const QStringList &texts) {
        for (const QString &text : texts) {
            keys(name, text);
            key(name, Qt::Key_Return);
        }
    }
    /// Alt and the letter that the button's caption underlines.
    static void accessKey(frm name, const char *button) {
        if (!canPress(name, button))
            throw std::runtime_error(std::string("cannot press ") + button);
        turnTo(*loaded(name));
        const QPointer pressed = control<QAbstractButton>(name, button);
        QTest::keySequence(loaded(name), QKeySequence::mnemonic(pressed->text()));
        while (pressed && pressed->isDown()) // for a moment of real time, to be seen
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    static QString focus(frm name) { return loaded(name)->focusWidget()->objectName(); }

    Journey customerAndUnit() {
        accessKey(frm::Desktop, "pbKunde");
        co_await arrive(frm::Kunden);
        expectBox({"Bitte wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
                  Exclamation, {"Achtung!", "Attention"});
        key(frm::Kunden, Qt::Key_Return);
        accessKey(frm::Kunden, "pbNeu");
        co_await arrive(frm::NeuKunde);
        expectBox({"Daten wurden gespeichert!", "Data have been saved!"}, Information,
                  {"Bestätigung", "MESSAGE"});
        entries(frm::NeuKunde, {"O'Brien & Söhne", "Weg 1", "01234", "Ährenfeld"});
        co_await arrive(frm::Kunden);
        EXPECT_EQ(text(frm::Kunden, "cmbKundenname"), "O'Brien & Söhne");
        const Text title{"Stammdaten auswählen", "Select Master Data"};
        expectBox({"Wollen Sie jetzt ein Gerät zu diesem Kunden auswählen?",
                   "Do you want to select a unit for this customer now?"},
                  YesNo + Question, title, Yes);
        key(frm::Kunden, Qt::Key_Return);
        co_await arrive(frm::NeuGerät);
        EXPECT_EQ(text(frm::NeuGerät, "Label1"),
                  english() ? "No Units existent yet!" : "Noch kein Gerät vorhanden!");
        expectBox({"Daten wurden gespeichert!", "Data have been saved!"}, Information,
                  {"Bestätigung", "MESSAGE"});
        entries(frm::NeuGerät, {"KE 1", "Werk", "S-1", "ID-1"});
        co_await arrive(frm::Gerät);
        expectBox({"Wollen Sie jetzt ein Rezept auswählen?", "Do you want to select a recipe now?"},
                  YesNo + Question, title, Yes);
        key(frm::Gerät, Qt::Key_Return);
        co_await arrive(frm::Rezepte); // there is none yet
        EXPECT_FALSE(canPress(frm::Rezepte, "pbok"));
        key(frm::Rezepte, Qt::Key_Escape);
        co_await arrive(frm::Desktop);
    }

    Journey specification() {
        support::choose(frm::Desktop, "mnuToleranzen");
        co_await arrive(frm::Toleranzen);
        accessKey(frm::Toleranzen, "pbNew");
        entries(frm::Toleranzen, {"Haus", "5", "3", "2", "M", "Vergleich"});
        EXPECT_EQ(focus(frm::Toleranzen), "pbSave");
        expectBox({"Eingaben wurden gespeichert!", "Input data have been changed!"}, Information,
                  {"Meldung", "Information"});
        key(frm::Toleranzen, Qt::Key_Return);
        accessKey(frm::Toleranzen, "pbok");
        co_await arrive(frm::Desktop);
    }

    Journey recipe() {
        support::choose(frm::Desktop, "mnuRezepte");
        co_await arrive(frm::NeuRezept); // there is no recipe to be changed
        entries(frm::NeuRezept, {"Erstes"});
        key(frm::NeuRezept, Qt::Key_Down);
        expectBox(
            {"Wollen sie diesen Rezeptnamen speichern?", "Do you want to save this recipe name?"},
            YesNo + Question, {"Message!", "MESSAGE!"}, Yes);
        key(frm::NeuRezept, Qt::Key_Return);
        const QString power = english() ? "P" : "L";
        const QString speed = english() ? "S" : "D";
        entries(frm::NeuRezept, {"60", "100", power}); // the last Enter saves
        entries(frm::NeuRezept, {"80", "0", speed});
        EXPECT_EQ(text(frm::NeuRezept, "lbStepCount"), "3");
        accessKey(frm::NeuRezept, "pbok");
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), "Erstes");
        key(frm::Rezepte, Qt::Key_Escape);
        co_await arrive(frm::Desktop);
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
        accessKey(frm::Desktop, "pbRezept");
        co_await arrive(frm::Rezepte);
        EXPECT_EQ(focus(frm::Rezepte), "pbok") << "the only one is suggested";
        key(frm::Rezepte, Qt::Key_Return);
        co_await arrive(frm::Desktop);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, FirstRecords, testing::Values(1, 2));

TEST_P(FirstRecords, AreEnteredByKeyboardAndMeasuredWith) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await customerAndUnit();
        co_await specification();
        co_await recipe();
        EXPECT_EQ(text(frm::Desktop, "txtRezName"), "Haus");
        EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
        co_await wholeMeasurement("Erste");
        EXPECT_EQ(column("SELECT k.Name || '/' || e.IdentNr || '/' || t.Bezeichnung || '/' || "
                         "t.GKlasse FROM Protokoll_temp AS p "
                         "JOIN Kunden AS k ON k.KundenID = p.KundenID "
                         "JOIN Ergometer AS e ON e.GerätID = p.GerätID "
                         "JOIN Toleranzen AS t ON t.ID = p.PrüfungsArt"),
                  QStringList{"O'Brien & Söhne/ID-1/Haus/" +
                              QString(english() ? "Medical Devices" : "Medizinische Geräte")});
    };
    run(journey());
}

} // namespace
