// What an operator does within one measuring session, step by step, and what that puts on the wire
// and into the database.
#include "measuringsession.h"

namespace {

using namespace support;
using namespace platform;

TEST_F(MeasuringSession, Navigation) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        EXPECT_TRUE(canPress(frm::Messen, "pbSpeichern"));
        beeps = 0;
        press(frm::Messen, "pbPrevious");
        EXPECT_EQ(shown("laPrSchritt"), "1");
        EXPECT_EQ(beeps, 1);
        press(frm::Messen, "pbNext");
        EXPECT_EQ(shown("laPrSchritt"), "2");
        EXPECT_EQ(shown("txtSoll_n"), "80,0");
        EXPECT_EQ(beeps, 1);
        press(frm::Messen, "pbNext");
        EXPECT_EQ(shown("laPrSchritt"), "2");
        EXPECT_EQ(beeps, 2);
        press(frm::Messen, "pbFirst");
        EXPECT_EQ(shown("laPrSchritt"), "1");
        press(frm::Messen, "pbLast");
        EXPECT_EQ(shown("laPrSchritt"), "2");
        EXPECT_EQ(beeps, 2);

        // The old set-point goes on being measured, but cannot be stored under the new one.
        EXPECT_TRUE(waits("pbAusführen"));
        type(frm::Messen, "txtIST_n_ergom", "60");
        co_await pass(13'000);
        EXPECT_TRUE(shown("txtIST_n_torvena").startsWith("60,") ||
                    shown("txtIST_n_torvena").startsWith("59,"));
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        line.stand().clearWires();
        press(frm::Messen, "pbAusführen");
        EXPECT_FALSE(waits("pbAusführen"));
        co_await arrive(frm::Meldung);
        EXPECT_EQ(text(frm::Meldung, "laMeldung2"), "Nächster Prüfschritt!");
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        co_await until("the new stream", [this] { return line.stand().wire().ends_with("6"); });
        EXPECT_FALSE(live());
        co_await settled("2", 80);
        EXPECT_EQ(line.stand().wire(), "-*E-2800+>>>6");

        // The last step ends the recipe, whichever others are missing.
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        type(frm::Messen, "txtIST_n_ergom", "80");
        expectRecipeEnd();
        save();
        co_await pass(3'000);
        EXPECT_EQ(shown("laPrSchritt"), "2");
        EXPECT_EQ(line.stand().wire().back(), '-');
        EXPECT_NEAR(line.stand().speed(), 80, 0.1);

        // The last step again: overwritten without a message, and nothing is started.
        press(frm::Messen, "pbMessen");
        co_await settled("2", 80);
        type(frm::Messen, "txtIST_n_ergom", "80,4");
        save();
        co_await pass(3'000);
        EXPECT_EQ(rows("Ist_n_ergom"), QStringList{"80,4"});
        EXPECT_EQ(shown("laPrSchritt"), "2");

        // Another step behind the end: stored, and again.
        press(frm::Messen, "pbFirst");
        press(frm::Messen, "pbAusführen");
        co_await settled("1", 60);
        for (int i = 0; i < 2; ++i) {
            save();
            EXPECT_FALSE(loaded(frm::Meldung));
            EXPECT_EQ(storedSteps(), (QStringList{"2", "1"}));
            EXPECT_EQ(gridSteps(), (QStringList{"1", "2"}));
            EXPECT_EQ(selectedStep(), "1");
            co_await settled("1", 60);
        }
        co_await leaveMeasuring();
        expectIdleDesktop();
    };
    run(journey());
}

TEST_F(MeasuringSession, CorrectionFactor) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        line.stand().setLoad(100);
        co_await settled("1", 60);
        EXPECT_EQ(shown("laKorrF"), "1,0000");
        press(frm::Messen, "pbPlus");
        EXPECT_EQ(shown("txtSoll_n"), "60,1");
        EXPECT_EQ(shown("laKorrF"), "1,0017");
        EXPECT_TRUE(waits("pbÜbernehmen"));
        line.stand().clearWires();
        co_await pass(7'000);
        EXPECT_EQ(line.stand().wire(), "");
        press(frm::Messen, "pbÜbernehmen");
        EXPECT_FALSE(waits("pbÜbernehmen"));
        EXPECT_FALSE(canPress(frm::Messen, "pbÜbernehmen"));
        co_await settled("1", 60.1);
        EXPECT_EQ(line.stand().wire(), "-*E-2103+>>>6");
        save();
        EXPECT_EQ(rows("Soll_n"), QStringList{"60,1"});

        // It goes along to the next step; the keys change it like the buttons, but offer nothing.
        co_await settled("2", 80.1);
        EXPECT_EQ(shown("txtSoll_n"), "80,1");
        auto *box = control<QWidget>(frm::Messen, "txtSoll_n");
        sendKeys(*box, "+");
        EXPECT_EQ(shown("txtSoll_n"), "80,2");
        EXPECT_EQ(shown("laKorrF"), "1,0025");
        sendKeys(*box, "---");
        EXPECT_EQ(shown("txtSoll_n"), "79,9");
        EXPECT_FALSE(canPress(frm::Messen, "pbÜbernehmen"));
        press(frm::Messen, "pbMinus");
        EXPECT_EQ(shown("txtSoll_n"), "79,8");
        EXPECT_EQ(shown("laKorrF"), "0,9975");

        // Measured again, a step keeps the set-point it was first stored with.
        press(frm::Messen, "pbFirst");
        EXPECT_EQ(shown("txtSoll_n"), "59,9");
        press(frm::Messen, "pbAusführen");
        co_await settled("1", 59.9);
        save();
        const QStringList stored = rows("Soll_n || ' ' || substr(Ist_n_torvena, 1, 4)");
        EXPECT_EQ(stored.size(), 1);
        EXPECT_TRUE(stored.value(0) == "60,1 59,9" || stored.value(0) == "60,1 59,8")
            << stored.value(0).toStdString();
        co_await settled("2", 79.8);
        co_await leaveMeasuring();
    };
    run(journey());
}

// A notice may close while the set-point before it is still being sent.
TEST_F(MeasuringSession, OnePassAtATime) {
    const auto journey = [this]() -> Journey {
        co_await measure();
        co_await settled("1", 60);
        line.stand().clearWires();
        line.stand().setFaults({.deafFrames = 2});
        press(frm::Messen, "pbMessen");
        co_await until("the set-point", [this] { return !line.stand().wire().empty(); });
        press(frm::Messen, "pbMessen");
        co_await until("the second notice to close", [] { return !loaded(frm::Meldung); });
        EXPECT_EQ(line.stand().wire().find('6'), std::string::npos);
        co_await settled("1", 60);
        co_await pass(30'000);
        EXPECT_EQ(line.stand().wire(), "-*E-2100+--*E-2100+--*E-2100+>>>6-*E-2100+>>>6");

        // The same with one that is refused for good: told once, left once.
        line.stand().clearWires();
        line.stand().setFaults({.deafFrames = 3});
        press(frm::Messen, "pbMessen");
        co_await until("the set-point", [this] { return !line.stand().wire().empty(); });
        press(frm::Messen, "pbMessen");
        expectBox({"1 - Keine Kommunikation mit dem Controller möglich!", {}}, Critical,
                  {"Fehlermeldung", {}});
        expectBox({"Fehler", {}}, Critical, {"Motor ein", {}});
        expectBox({"Fehler im Gerät oder in der Kommunikation", {}}, Critical, {"Fehler", {}});
        expectEmptyProtocol();
        co_await arrive(frm::Desktop);
        co_await pass(10'000);
        EXPECT_EQ(line.stand().wire(), "-*E-2100+--*E-2100+--*E-2100+----*E-0000+>>>");
        expectIdleDesktop();
        co_await wholeMeasurement("Danach");
    };
    run(journey());
}

} // namespace
