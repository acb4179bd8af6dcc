// The language of the session, its boxes, the selection, and the window that runs the motor.
#include "../link/linktest.h"
#include "session/auswahl.h"
#include "session/sprache.h"

namespace {

using namespace support;

class Session : public Workshop {
  protected:
    ~Session() override { setAuswahlListener({}, {}); }
};

TEST_F(Session, GermanForOneEnglishForAnythingElse) {
    for (const Case &c : cases("0 -> english, no | 1 -> deutsch, chosen | 2 -> english, chosen | "
                               "3 -> english, no | -1 -> english, no")) {
        gSprache = c.in.toShort();
        EXPECT_EQ(inSprache({"deutsch", "english"}), c.out_(0)) << c;
        EXPECT_EQ(spracheGewählt(), c.out_(1) == "chosen") << c;
    }
}

TEST_F(Session, FailureBoxesShowAndKeepNumberAndText) {
    const Fehler fehler(13, {"Typen unverträglich", "Type mismatch"});
    for (const std::int16_t sprache : std::initializer_list<std::int16_t>{1, 2, 0}) {
        gSprache = sprache;
        gFehlerNr = 0;
        boxes.expect(
            inSprache({"Fehler 3016 -  13 Typen unverträglich", "ERROR 3016 -  13 Type mismatch"}),
            inSprache({"!! Achtung Fehler !!", " !! Attention !!"}), platform::Critical);
        fehlerBox("3016 - ", fehler);
        EXPECT_EQ(QString::number(gFehlerNr) + gFehlerText, "13" + inSprache(fehler.text()));
    }
    boxes.expect("ERROR 7--5 y", "U", platform::Critical);
    fehlerBox({"Fehler 7-", "ERROR 7-"}, Fehler(-5, {"x", "y"}), {"T", "U"});
    fehlerMerken(fehler); // shows nothing
    EXPECT_EQ(gFehlerNr, 13);
}

TEST_F(Session, WhatTheSelectionAllows) {
    // Customer, ident number, recipe; choose a unit, a safety sheet, measure, nothing said about it
    for (const Case &c : cases("// -> 0001 | /4711/Kurz -> 0001 | Praxis// -> 1000 | Praxis//Kurz "
                               "-> 1000 | Praxis/4711/ -> 1100 | Praxis/4711/Kurz -> 1110")) {
        const QStringList chosen = c.in.split('/');
        Auswahl wahl;
        wahl.kunde = chosen[0];
        wahl.gerätID = chosen[1];
        wahl.rezept = chosen[2];
        const DesktopRegeln regeln = desktopRegeln(wahl);
        EXPECT_EQ(regeln.gerät * 1000 + regeln.secControl * 100 + regeln.messen * 10 +
                      regeln.ohneKunde,
                  c.out.toInt())
            << c;
    }
}

TEST_F(Session, AnotherCustomerTakesTheUnitAway) {
    QString shown; // "!" behind a choice
    setAuswahlListener(
        [&shown] {
            const Auswahl &a = auswahl();
            shown += ' ' + QStringList{a.kunde, a.gerät, a.gerätID, a.rezept}.join('/');
        },
        [&shown] { shown += '!'; });
    kundeWählen("Praxis", 1);
    gerätWählen("ergo", "1");
    rezeptWählen("Kurz");
    kundeWählen("Praxis", 1);
    kundeWählen("Klinik", 2);
    gerätWählen("ergo", "2");
    kundeWählen("Klinik", 3); // another one of the same name
    EXPECT_EQ(std::exchange(shown, {}),
              " Praxis///! Praxis/ergo/1/! Praxis/ergo/1/Kurz! Praxis/ergo/1/Kurz! Klinik///Kurz! "
              "Klinik/ergo/2/Kurz! Klinik///Kurz!");
    gerätWählen("ergo", "3");
    kundeUmbenennen("Süd"); // what is no choice leaves a failed zero point locked
    gerätUmbenennen("ergo", "4");
    normalZeigen("Normal");
    datumZeigen("01.02.2026");
    rezeptErneuern({});
    gerätUmbenennen("ergo", {}); // it can be measured with no more
    gerätUmbenennen("ergo", "5");
    gerätAbwählen();
    gerätWählen("ergo", "6");
    gGerätID = 8;
    kundeAbwählen(); // the unit first, so that measuring is locked while there is a customer
    EXPECT_EQ(shown, " Klinik/ergo/3/Kurz! Süd/ergo/3/Kurz Süd/ergo/4/Kurz Süd/ergo/4/Kurz "
                     "Süd/ergo/4/Kurz Süd/ergo/4/Kurz Süd/ergo//Kurz! Süd/ergo/5/Kurz! "
                     "Süd///Kurz! Süd/ergo/6/Kurz! Süd///Kurz! ///Kurz!");
    EXPECT_EQ(gKundenID + gGerätID, 0);
}

TEST_F(Session, TheFrontEnteredLastIsInForce) {
    Window desktop, finalTest;
    EXPECT_EQ(motorfenster().drehrichtung(), "");
    QString asked; // how often each was enabled by now; once in, once out
    for (const QString step : {"-d", "+d", "+f", "-d", "+d", "+d", "-d", "-f"}) {
        Window &window = step.endsWith('d') ? desktop : finalTest;
        step.startsWith('+') ? enterMotorfenster(window) : leaveMotorfenster(window);
        motorfenster().enableFront();
        asked += QString(" %1%2").arg(desktop.enabled).arg(finalTest.enabled);
    }
    EXPECT_EQ(asked, " 00 10 11 12 22 32 33 33");
}

} // namespace
