// The language of the session, its boxes, the selection, and the window that runs the motor.

#include <gtest/gtest.h>

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "auswahl.h"
#include "boxes.h"
#include "front.h"
#include "msgbox.h"
#include "session.h"
#include "sprache.h"

namespace {

using namespace platform;

class Session : public testing::Test {
  protected:
    Session() {
        gSprache = 1;
        kundeWählen({}, 0);
        gerätWählen({}, {});
        rezeptWählen({});
    }
    ~Session() override { setAuswahlListener({}, {}); }
    support::Boxes boxes;
};

TEST_F(Session, GermanForOneEnglishForAnythingElse) {
    const std::pair<std::int16_t, const char *> cases[] = {
        {0, "english"}, {1, "deutsch"}, {2, "english"}, {3, "english"}, {-1, "english"}};
    for (const auto &[sprache, expected] : cases) {
        gSprache = sprache;
        EXPECT_EQ(inSprache({"deutsch", "english"}), QString(expected)) << sprache;
        EXPECT_EQ(spracheGewählt(), sprache == 1 || sprache == 2) << sprache;
    }
}

TEST_F(Session, FailureBoxesShowAndKeepNumberAndText) {
    const Fehler fehler(13, {"Typen unverträglich", "Type mismatch"});
    const struct {
        std::int16_t sprache;
        const char *text;
        const char *title;
        const char *kept;
    } cases[] = {
        {1, "Fehler 3016 -  13 Typen unverträglich", "!! Achtung Fehler !!", "Typen unverträglich"},
        {2, "ERROR 3016 -  13 Type mismatch", " !! Attention !!", "Type mismatch"},
        {0, "ERROR 3016 -  13 Type mismatch", " !! Attention !!", "Type mismatch"},
    };
    for (const auto &c : cases) {
        gSprache = c.sprache;
        gFehlerNr = 0;
        boxes.expect(c.text, c.title, Critical);
        fehlerBox("Fehler 3016 - ", "ERROR 3016 - ", fehler);
        EXPECT_EQ(gFehlerNr, 13);
        EXPECT_EQ(gFehlerText, QString(c.kept));
    }
    gSprache = 1;
    boxes.expect("Fehler 7--5 x", "T", Critical);
    fehlerBox({"Fehler 7-", "ERROR 7-"}, Fehler(-5, {"x", "y"}), {"T", "U"});
    const size_t before = boxes.count();
    fehlerMerken(fehler);
    EXPECT_EQ(gFehlerNr, 13);
    EXPECT_EQ(boxes.count(), before);
}

TEST_F(Session, EnglishCaptionsGoOverTheGermanOnes) {
    QWidget screen;
    const auto add = [&screen](auto *control, const char *name) {
        control->setParent(&screen);
        control->setObjectName(name);
        return control;
    };
    auto *label = add(new QLabel("Kunde"), "lbKunde");
    auto *button = add(new QPushButton("&Ja"), "pbok");
    auto *group = add(new QGroupBox("Rahmen"), "FrKunde");
    auto *action = add(new QAction("Ende"), "mnuBeenden");
    QMenu menu("Datei", &screen);
    menu.setObjectName("mnuDatei");
    button->setToolTip("Tipp");
    screen.setWindowTitle("Titel");
    const Beschriftung english[] = {
        {"", "Title"},        {"lbKunde", "Customer"}, {"pbok", "&OK"},       {"pbok#tip", "Hint"},
        {"FrKunde", "Frame"}, {"mnuDatei", "File"},    {"mnuBeenden", "Quit"}};
    const auto captions = [&] {
        return QStringList{screen.windowTitle(), label->text(), button->text(), button->toolTip(),
                           group->title(),       menu.title(),  action->text()};
    };
    const QStringList design = captions();
    for (const std::int16_t sprache : std::initializer_list<std::int16_t>{0, 1, 3}) {
        gSprache = sprache;
        englischBeschriften(screen, english);
        EXPECT_EQ(captions(), design) << sprache;
    }
    gSprache = 2;
    englischBeschriften(screen, english);
    EXPECT_EQ(captions(),
              (QStringList{"Title", "Customer", "&OK", "Hint", "Frame", "File", "Quit"}));
}

TEST_F(Session, WhatTheSelectionAllows) {
    const struct {
        const char *kunde, *ident, *rezept;
        bool gerät, secControl, messen, ohneKunde;
    } cases[] = {
        {"", "", "", false, false, false, true},
        {"", "4711", "Kurz", false, false, false, true},
        {"Praxis", "", "", true, false, false, false},
        {"Praxis", "", "Kurz", true, false, false, false},
        {"Praxis", "4711", "", true, true, false, false},
        {"Praxis", "4711", "Kurz", true, true, true, false},
    };
    for (const auto &c : cases) {
        Auswahl wahl;
        wahl.kunde = c.kunde;
        wahl.gerätID = c.ident;
        wahl.rezept = c.rezept;
        const DesktopRegeln regeln = desktopRegeln(wahl);
        const std::string which = std::string(c.kunde) + '/' + c.ident + '/' + c.rezept;
        EXPECT_EQ(regeln.gerät, c.gerät) << which;
        EXPECT_EQ(regeln.secControl, c.secControl) << which;
        EXPECT_EQ(regeln.messen, c.messen) << which;
        EXPECT_EQ(regeln.ohneKunde, c.ohneKunde) << which;
    }
}

TEST_F(Session, AnotherCustomerTakesTheUnitAway) {
    std::vector<std::string> shown;
    setAuswahlListener(
        [&shown] {
            shown.push_back((auswahl().kunde + '/' + auswahl().gerät + '/' + auswahl().gerätID +
                             '/' + auswahl().rezept)
                                .toStdString());
        },
        {});
    kundeWählen("Praxis", 1);
    gerätWählen("ergo 900", "4711");
    rezeptWählen("Kurz");
    kundeWählen("Praxis", 1);
    kundeWählen("Klinik", 2);
    gerätWählen("ergo 900", "4712");
    kundeWählen("Klinik", 3); // another one of the same name
    EXPECT_EQ(shown, (std::vector<std::string>{"Praxis///", "Praxis/ergo 900/4711/",
                                               "Praxis/ergo 900/4711/Kurz",
                                               "Praxis/ergo 900/4711/Kurz", "Klinik///Kurz",
                                               "Klinik/ergo 900/4712/Kurz", "Klinik///Kurz"}));
    shown.clear();
    gerätWählen("ergo 900", "4713");
    kundeUmbenennen("Klinik Süd");
    gerätAbwählen();
    gerätWählen("ergo 900", "4714");
    gGerätID = 8;
    kundeAbwählen(); // the unit first, so that measuring is locked while there is a customer
    EXPECT_EQ(shown, (std::vector<std::string>{"Klinik/ergo 900/4713/Kurz",
                                               "Klinik Süd/ergo 900/4713/Kurz", "Klinik Süd///Kurz",
                                               "Klinik Süd/ergo 900/4714/Kurz", "Klinik Süd///Kurz",
                                               "///Kurz"}));
    EXPECT_EQ(gKundenID, 0);
    EXPECT_EQ(gGerätID, 0);
}

TEST_F(Session, OnlyAChoiceAppliesTheRules) {
    int shown = 0;
    int chosen = 0;
    setAuswahlListener([&shown] { ++shown; }, [&chosen] { ++chosen; });
    normalZeigen("Normal");
    datumZeigen("01.02.2026");
    kundeUmbenennen("Klinik");
    gerätUmbenennen("ergo 900", {});
    rezeptErneuern({});
    EXPECT_EQ(chosen, 0); // a failed zero point stays locked
    rezeptWählen("Kurz");
    gerätUmbenennen("ergo 900", "4711"); // it could not be measured with before
    EXPECT_EQ(shown, 7);
    EXPECT_EQ(chosen, 2);
}

class NamedFront : public Front {
  public:
    explicit NamedFront(const char *name) : mName(name) {}
    void setMoteinEnabled(bool) override {}
    void setMotausEnabled(bool) override {}
    void setDrehREnabled(bool) override {}
    void setMessenEnabled(bool) override {}
    void showDrehrichtung(const QString &) override {}
    void showEinlauf(const QString &) override {}
    QString drehrichtung() const override { return mName; }
    void showMotorInfo(const QString &) override {}
    void enableFront() override {}
    void disableFront() override {}
    void focusBeenden() override {}

  private:
    QString mName;
};

TEST_F(Session, TheFrontEnteredLastIsInForce) {
    NamedFront desktop("desktop");
    NamedFront finalTest("final test");
    front().enableFront(); // goes nowhere
    EXPECT_EQ(front().drehrichtung(), "");
    enterFront(desktop);
    enterFront(finalTest);
    EXPECT_EQ(front().drehrichtung(), "final test");
    leaveFront(desktop);
    EXPECT_EQ(front().drehrichtung(), "final test");
    enterFront(desktop);
    EXPECT_EQ(front().drehrichtung(), "desktop");
    leaveFront(desktop);
    leaveFront(finalTest);
    EXPECT_EQ(front().drehrichtung(), "");
}

} // namespace
