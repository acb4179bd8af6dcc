// The main job as it is meant: from the login to a judged, stored recipe.
#include "controller.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace support;

using MainJob = Workplace;

TEST_F(MainJob, GermanFromLoginToStoredRecipe) {
    const auto journey = [this]() -> Journey {
        const DemoNames names = demoNames();
        co_await logIn();
        EXPECT_FALSE(MSComm1.PortOpen());
        EXPECT_EQ(text(frm::Desktop, "txtNormal"), "Drehmomentnormal SerienNr. TN-1001");
        EXPECT_FALSE(canPress(frm::Desktop, "pbGerät"));
        co_await choose(names.customer, names.ident, names.recipe);
        EXPECT_EQ(text(frm::Desktop, "txtGerätID"), names.ident);
        EXPECT_EQ(text(frm::Desktop, "txtRezName"), "medizinische Geräte");

        // Running-in to its end
        press(frm::Desktop, "pbDrehR");
        co_await arrive(frm::MotorDrehR);
        press(frm::MotorDrehR, "obRechts");
        press(frm::MotorDrehR, "pbok");
        co_await arrive(frm::Desktop);
        line.stand().clearWires();
        press(frm::Desktop, "pbMotein");
        EXPECT_EQ(line.stand().wire(), "-*E-2100+>>>");
        co_await pass(61'000);
        EXPECT_EQ(text(frm::Desktop, "lbEinlauf"), "08:59");
        EXPECT_NEAR(line.stand().speed(), 60, 0.1);
        co_await until(
            "the end of running-in", [] { return loaded(frm::Meldung1) != nullptr; }, 700'000);
        EXPECT_TRUE(gEingelaufen);
        EXPECT_EQ(text(frm::Meldung1, "laMeldung1"), "Die Einlaufzeit");
        EXPECT_EQ(text(frm::Meldung1, "laMeldung2"), "ist beendet.");
        co_await arrive(frm::Desktop);

        // Zero point
        press(frm::Desktop, "pbMessen");
        co_await arrive(frm::VorStatNPK);
        EXPECT_LT(line.stand().speed(), 30); // below half a revolution a second
        EXPECT_FALSE(line.stand().motorOn());
        line.stand().setCoupled(false);
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        EXPECT_TRUE(line.stand().offsetWritten().has_value());
        EXPECT_NEAR(line.stand().offsetWritten().value_or(0), 10000, 2);
        EXPECT_EQ(line.stand().factorWritten(), 1.0);
        press(frm::StatMessen, "pbWeiter");
        co_await arrive(frm::NachStatNPK);
        line.stand().setCoupled(true);
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::ProtokollNr);
        co_await newProtocol("Abnahme 'Süd'");

        // Step 1, power
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        EXPECT_FALSE(control(frm::Messen, "txtIST_n_ergom")->isVisible());
        line.stand().setLoad(100);
        co_await settled("1", 60);
        EXPECT_TRUE(canPress(frm::Messen, "pbSpeichern"));
        const QString power = text(frm::Messen, "txtIST_P_torvena");
        EXPECT_TRUE(power.contains(',')) << power.toStdString();
        press(frm::Messen, "pbSpeichern");
        EXPECT_EQ(column("SELECT Ist_P_torvena FROM Messwerte_temp WHERE ProtokollID = ?",
                         {gProtokollID}),
                  QStringList{power});

        // Step 2, speed: waits for the reading of the ergometer
        co_await settled("2", 80);
        EXPECT_FALSE(canPress(frm::Messen, "pbSpeichern"));
        type(frm::Messen, "txtIST_n_ergom", "80,5");
        EXPECT_TRUE(canPress(frm::Messen, "pbSpeichern"));
        enter(frm::Messen, "txtIST_n_ergom");
        expectRecipeEnd();
        press(frm::Messen, "pbSpeichern");
        co_await pass(3'000);
        EXPECT_EQ(gMessStatus, 6);
        EXPECT_NEAR(line.stand().speed(), 80, 0.5); // the motor keeps running

        press(frm::Messen, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(line.stand().setSpeed(), 0);
    };
    run(journey());
    EXPECT_EQ(column("SELECT Prüfschritt || '|' || Soll_n || '|' || Soll_P || '|' || Ist_n_ergom "
                     "|| '|' || MU_ohne || '|' || MU_mit FROM Messwerte_temp "
                     "WHERE ProtokollID = ? ORDER BY MDat",
                     {gProtokollID}),
              (QStringList{"1|60,0|100,0|0|ja|ja", "2|80,0|0,0|80,5|ja|ja"}));
    EXPECT_EQ(
        column("SELECT Protokollname FROM Protokoll_temp WHERE ProtokollID = ?", {gProtokollID}),
        QStringList{"Abnahme 'Süd'"});
}

} // namespace
