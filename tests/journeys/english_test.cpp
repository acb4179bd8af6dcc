// The main job in English, under an English number format; and that language and number format
// change no verdict.
#include <QRegularExpression>

#include "runtime.h"
#include "session.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

/// What of a screen is German still.
QStringList germanOn(frm name) {
    static const QRegularExpression german(
        "kunde|gerät|rezept|prüf|drehzahl|drehmoment|drehricht|leistung|messen|messung|messwert|"
        "messart|beenden|abbrechen|speichern|auswahl|auswähl|sprache|hilfe|datei|stammdaten|"
        "protokoll|rechtslauf|linkslauf|bitte|einlauf|einlaufen|hebelarm|fällig|kalibriert|datum|"
        "achtung|meldung|weiter|anmeldung|straße|suche|anzahl|schnittstelle|toleranz|abweichung|"
        "ausführen|übernehmen|freie|nächste|eingabe|sollwert|blutdruck|sicherheit|"
        "\\b(und|der|die|das|ist|wird|nicht|mit|von|bis|zum|neu|ort|links|rechts|soll|deutsch)\\b",
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    QStringList texts;
    for (QString shown : visibleTexts(name)) {
        if (shown.remove('&').contains(german))
            texts += shown;
    }
    return texts;
}

/// With a recipe that gives every verdict: steps 1 to 3 by the load, step 4 by the reading.
class Verdicts : public Workplace {
  public:
    explicit Verdicts(int language = 2) {
        setLanguage(language);
        change("UPDATE Toleranzen SET Bezeichnung = 'medical devices'");
        change("UPDATE Normalkalibrierdaten SET Normal = 'Torque Standard'");
        change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) "
               "VALUES (50, 'All verdicts', 1)");
        change("INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart) "
               "VALUES (50, '1', '60', 100, '1'), (50, '2', '60', 100, '1'), "
               "(50, '3', '60', 100, '1'), (50, '4', '80', 0, '2')");
    }
    void TestBody() override {}

    Journey road() {
        co_await logIn();
        co_await choose("Klinikum Ährenfeld", "AEH-001", "All verdicts");
        co_await correctZeroPoint();
        co_await newProtocol("1");
        for (const auto &[step, load] : {std::pair{"1", 100}, {"2", 105}, {"3", 110}}) {
            line.stand().setLoad(load);
            co_await settled(step, 60);
            save();
        }
        co_await settled("4", 80);
        type(frm::Messen, "txtIST_n_ergom", CStr(80.5));
        expectRecipeEnd();
        save();
        co_await leaveMeasuring();
    }
    QStringList rows(const QString &columns) {
        return column("SELECT " + columns +
                          " FROM Messwerte_temp WHERE ProtokollID = ? ORDER BY Prüfschritt",
                      {gProtokollID});
    }
    QStringList measured() {
        run(road());
        return rows("Soll_n || '|' || Soll_P || '|' || Ist_n_ergom || '|' || MU_ohne || '|' || "
                    "MU_mit") +
               rows("Ist_n_torvena || '|' || Ist_D_torvena || '|' || Ist_P_torvena || '|' || "
                    "MU_Proz");
    }
};

TEST(Languages, GiveTheSameVerdicts) {
    QStringList german;
    {
        Verdicts session(1);
        german = session.measured();
    }
    const QStringList english = Verdicts().measured();
    EXPECT_EQ(english.mid(0, 4), (QStringList{"60.0|100.0|0|yes|yes", "60.0|100.0|0|no|?",
                                              "60.0|100.0|0|no|no", "80.0|0.0|80.5|yes|yes"}));
    EXPECT_EQ(english, german.replaceInStrings(",", ".")
                           .replaceInStrings("ja", "yes")
                           .replaceInStrings("nein", "no"));
}

class English : public Verdicts {
  protected:
    /// On this screen no German is left, and its caption is this one.
    static void expectScreen(frm name, const QString &caption) {
        EXPECT_EQ(loaded(name)->caption().toStdString(), caption.toStdString());
        EXPECT_EQ(germanOn(name).join(" / ").toStdString(), "") << caption.toStdString();
    }
    Journey chooseAll() {
        press(frm::Desktop, "pbKunde");
        co_await arrive(frm::Kunden);
        type(frm::Kunden, "cmbKundenname", "St Aldwyn Hospital, Cardiac Unit");
        expectScreen(frm::Kunden, "Select Customer");
        boxes.expect("Do you want to select a unit for this customer now?", Yes);
        press(frm::Kunden, "pbexit");
        co_await arrive(frm::Gerät);
        type(frm::Gerät, "cmbIdent", "STA-1");
        expectScreen(frm::Gerät, "Select Unit");
        boxes.expect("Do you want to select a recipe now?", Yes);
        enter(frm::Gerät, "cmbIdent");
        co_await arrive(frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", "All verdicts");
        expectScreen(frm::Rezepte, "Recipes");
        press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);
    }
    Journey runIn() {
        press(frm::Desktop, "pbDrehR");
        co_await arrive(frm::MotorDrehR);
        expectScreen(frm::MotorDrehR, "Direction Of Rotation");
        press(frm::MotorDrehR, "obRechts");
        press(frm::MotorDrehR, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(text(frm::Desktop, "lbDrehrichtung"), "Right");
        press(frm::Desktop, "pbMotein");
        EXPECT_EQ(text(frm::Desktop, "laInfo"), "Motor is switched on");
        const Until over = until("the notice", [] { return loaded(frm::Meldung1) != nullptr; });
        co_await over;
        expectScreen(frm::Meldung1, "Message");
        EXPECT_EQ(text(frm::Meldung1, "laMeldung1"), "Running-in time");
        EXPECT_EQ(text(frm::Meldung1, "laMeldung2"), "is over.");
        co_await arrive(frm::Desktop);
        expectScreen(frm::Desktop, "torvena");
    }
    Journey zeroPoint() {
        press(frm::Desktop, "pbMessen");
        co_await until("the motor to be stopped", [] { return loaded(frm::StatMessen); });
        co_await pass(100);
        EXPECT_EQ(text(frm::StatMessen, "laInfo"), "Motor is switched off.");
        co_await arrive(frm::VorStatNPK);
        expectScreen(frm::VorStatNPK, "Preparation For The Static Zero-point Correction");
        EXPECT_EQ(text(frm::VorStatNPK, "laText"),
                  "Before carrying out the static zero-point correction, the universal joint shaft "
                  "has to be uncoupled from the normal.");
        press(frm::VorStatNPK, "pbok");
        for (const char *info : {"Measure Offset", "3 Measuring Values", "Measure Gain"})
            co_await until(info, [info] { return text(frm::StatMessen, "laInfo") == info; });
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        expectScreen(frm::StatMessen, "Static Zero-Point And Amplifier Correction");
        EXPECT_EQ(text(frm::StatMessen, "laMeldung"),
                  "Static zero-point correction is terminated.");
        EXPECT_EQ(text(frm::StatMessen, "txtGain1"), "250.000");
        press(frm::StatMessen, "pbWeiter");
        co_await arrive(frm::NachStatNPK);
        expectScreen(frm::NachStatNPK, "End Of The Static Zero-point Correction");
        EXPECT_EQ(text(frm::NachStatNPK, "laText"),
                  "Before beginning the measurement, the universal joint shaft has to be coupled "
                  "to the normal, and aligned");
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::ProtokollNr);
        press(frm::ProtokollNr, "obNeu");
        expectScreen(frm::ProtokollNr, "Protocol Number");
    }
};

TEST_F(English, MainJobFromLoginToTheEnd) {
    change("UPDATE System SET Einlzeit2 = 0.02");
    const auto journey = [this]() -> Journey {
        start();
        co_await arrive(frm::Login);
        EXPECT_EQ(text(frm::Splash, "lbMessenMit"), "Measure And Calibrate With");
        expectScreen(frm::Login, "Registration");
        type(frm::Login, "txtUserName", "J. Whitcombe");
        press(frm::Login, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(text(frm::Desktop, "txtNormal"), "Torque Standard SerienNr. TN-1001");
        co_await chooseAll();
        co_await runIn();
        co_await zeroPoint();
        co_await newProtocol("Acceptance");

        co_await settled("1", 60);
        expectScreen(frm::Messen, "Six Rounds - Measuring       Test Protocol: " +
                                      QString::number(gProtokollID) + " - Acceptance");
        EXPECT_EQ(text(frm::Messen, "txtMessArt"), "Power Measurement");
        EXPECT_EQ(text(frm::Messen, "laDrehR"), "Right");
        EXPECT_EQ(text(frm::Messen, "txtSoll_n"), "60.0");
        EXPECT_EQ(text(frm::Messen, "laKorrF"), "1.0000");
        save();
        co_await arrive(frm::Meldung);
        expectScreen(frm::Meldung, "Message");
        EXPECT_EQ(text(frm::Meldung, "laMeldung1"), "Attention!");
        EXPECT_EQ(text(frm::Meldung, "laMeldung2"), "Next Test Step!");
        co_await settled("2", 60);
        co_await leaveMeasuring();

        for (const int answer : {No, Yes}) {
            expectBox({{}, "Do you really want to terminate the program?"}, YesNo + Question,
                      {{}, "End Of Program"}, answer);
            support::choose(frm::Desktop, "mnuBeenden");
            co_await pass(100);
            EXPECT_EQ(inFront(frm::Desktop), answer == No);
        }
        EXPECT_FALSE(loaded(frm::Desktop));
    };
    run(journey());
}

} // namespace
