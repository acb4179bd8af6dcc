// A new workplace: nothing is stored but the delivered settings. The first customer, unit,
// specification and recipe are entered by keyboard alone, led by what the program suggests, and
// measured with.
#include <QFile>
#include <QPointer>

#include <QTest>

#include "app/erstertag.h"
#include "store/scripts.h"
#include "workplace.h"

namespace {

using namespace support;

class FirstRecords : public Workplace {
  protected:
    FirstRecords() {
        QFile::remove(datenbankName);
        legeDatenbankAn(datenbankName, false);
        change("DELETE FROM Toleranzen");
        setLanguage(givenLanguage);
        // Keys and the Enter behind each, to whatever has the keyboard.
        roads["enter"] = [this](const QString &entries) -> Journey {
            for (const QString &entry : spoken(entries).split('+')) {
                sendKeys(*platform::frontScreen()->focusWidget(), entry);
                act("key Return");
            }
            co_return;
        };
        roads["start"] = [this](const QString &) -> Journey {
            start();
            co_return;
        };
        // With the letter that the button's caption underlines.
        roads["Alt"] = [](const QString &name) -> Journey {
            Screen *screen = platform::frontScreen();
            const QPointer button = screen->findChild<QAbstractButton *>(name);
            EXPECT_TRUE(screen->usable() && button->isVisible() && button->isEnabled()) << name;
            turnTo(*screen);
            QTest::keySequence(screen, QKeySequence::mnemonic(button->text()));
            while (button && button->isDown()) // for a moment of real time, to be seen
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            co_return;
        };
    }
};

JOURNEY_P(FirstRecords, AreEnteredByKeyboardAndMeasuredWith) {
    co_await go(R"(
        login ; lbErsterTag ~ .2 \w+ 5.: ; Alt pbKunde ; @Kunden ; ? chooseCustomer ; key Return ; Alt pbNeu ; @NeuKunde
        ? saved ; enter O'Brien & Söhne+Weg 1+01234+Ährenfeld ; @Kunden
        cmbKundenname == O'Brien & Söhne ; ? unitNow yes ; key Return ; @NeuGerät
        Label1 == Noch kein Gerät vorhanden! | No Units existent yet!
        ? saved ; enter KE 1+Werk+S-1+ID-1 ; @Gerät ; ? recipeNow yes ; key Return ; @Rezepte
        cannot pbok ; key Escape ; @Desktop    # there is none yet
        lbErsterTag ~ .4 \w+ 5.: ; Alt pbErsterTag ; @Toleranzen ; Alt pbNew ; enter Haus+5+3+2+M+Vergleich ; focus pbSave
        ? inserted ; key Return ; Alt pbok ; @Desktop ; Alt pbErsterTag ; @NeuRezept ; enter Erstes ; key Down ; ? saveName yes ; key Return
        enter 60+100+L | 60+100+P ; enter 80+0+D | 80+0+S ; lbStepCount == 3    # the last one saves
        Alt pbok ; @Rezepte ; cmbRezeptname == Erstes ; key Escape ; @Desktop ; cannot pbMessen
        hidden FrErsterTag
        Alt pbRezept ; @Rezepte ; focus pbok ; key Return ; @Desktop    # the only one is suggested
        txtRezName == Haus ; can pbMessen ; whole Erste
        sql SELECT k.Name, e.IdentNr, t.Bezeichnung, t.GKlasse FROM Protokoll_temp AS p JOIN Kunden AS k ON k.KundenID = p.KundenID JOIN Ergometer AS e ON e.GerätID = p.GerätID JOIN Toleranzen AS t ON t.ID = p.PrüfungsArt == O'Brien & Söhne|ID-1|Haus|Medizinische Geräte | O'Brien & Söhne|ID-1|Haus|Medical Devices)");
}

JOURNEY_P(FirstRecords, AreAskedForUntilTheGuideIsHidden) {
    change("DELETE FROM Normalkalibrierdaten");
    co_await go(R"(
        start ; @Login ; txtUserName = M. ; ? noRecord(D_6002) ; pbok ; @Desktop
        lbErsterTag ~ .1 \w+ 5.: ; pbErsterTag ; @Refresh ; pbexit ; @Desktop
        change INSERT INTO Normalkalibrierdaten (SerienNr) VALUES ('X')
        change INSERT INTO Kunden (Name) VALUES ('Praxis') ; pbDrehR ; @MotorDrehR ; obLinks ; pbok
        @Desktop ; lbErsterTag ~ .3 \w+ 5.: ; pbErsterTag ; @Kunden    # whose unit it is
        key Escape ; @Desktop ; pbErsterTagAus ; hidden FrErsterTag)");
    ErsterTag onTheNextDay;
    onTheNextDay.zeigen();
    EXPECT_TRUE(onTheNextDay.isHidden());
}

} // namespace
