// The main job as it is meant: from the login over running-in and zero point to a recipe whose
// steps stand judged in the database, each verdict among them, and out.
#include "measuring.h"

namespace {

using namespace support;

using MainJob = Measuring;

JOURNEY_P(MainJob, FromLoginToJudgedRecipe) {
    change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (50, 'Urteile', 1)");
    change("INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart) VALUES "
           "(50, '1', '60', 100, '1'), (50, '2', '60', 100, '1'), (50, '3', '60', 100, '1'), "
           "(50, '10', '80', 0, '2')");
    start();
    co_await go(R"(
        @Login ; Splash.lbMessenMit == Messen und Kalibrieren mit | Measure And Calibrate With
        txtUserName = M. Prüfer ; pbok ; @Desktop ; txtNormal == Drehmomentnormal SerienNr. TN-1001
        cannot pbGerät)");
    EXPECT_FALSE(MSComm1.PortOpen());
    co_await go(R"(
        choose AEH-001, Urteile ; desktop ~ ^Klinikum Ährenfeld.[^|]+.AEH-001.Urteile.medizinische Geräte$
        # Running-in to its end
        pbDrehR ; @MotorDrehR ; obRechts ; pbok ; @Desktop ; lbDrehrichtung == Rechtslauf | Right
        pbMotein ; wire == -*E-2100+>>> ; laInfo == Motor wird eingeschaltet | Motor is switched on
        pass 61000 ; lbEinlauf == 08:59 ; speed == 60 ; pass 500000
        until notice == Meldung: Die Einlaufzeit ist beendet. | Message: Running-in time is over.
        front == Desktop ; until notice ==
        # Zero point; nobody asks any more whether it is run in
        pbMessen ; until StatMessen.laInfo == Motor wird ausgeschaltet | Motor is switched off.
        @VorStatNPK ; picture == Welle abgekoppelt | Shaft uncoupled ; shaft ~ speed=[12]?\d\..*motor=off ; stand coupled off
        laText == Vor Durchführung der statischen Nullpunktkorrektur ist die Kreuzgelenkwelle am Normal abzukoppeln. | Before carrying out the static zero-point correction, the universal joint shaft has to be uncoupled from the normal.
        pbok ; until StatMessen.laInfo == Offset messen | Measure Offset ; hidden laMeldung
        until samples == 150 ; laInfo == Offset messen | Measure Offset ; until laInfo == 3 Messwerte | 3 Measuring Values ; samples == 153 ; until laInfo == Gain messen | Measure Gain
        until can StatMessen.pbWeiter ; focus pbWeiter ; waits pbWeiter ; samples == 350 ; laInfo == ; shown laMeldung ; txtGain1 == 250,000 | 250.000
        txtOffset1 == 0,000 | 0.000 ; wire ~ . ; beeps ~ .
        laMeldung == Statische Nullpunkt-Korrektur beendet | Static zero-point correction is terminated.
        shaft ~ offset=(9999|1000[01])\.\d+.factor=1\.0000
        pbWeiter ; wire == -- ; beeps == 1 ; @NachStatNPK ; picture == Welle angekoppelt | Shaft coupled ; stand coupled on
        laText == Vor Beginn der Messung ist die Kreuzgelenkwelle am Normal anzukoppeln und auszurichten. | Before beginning the measurement, the universal joint shaft has to be coupled to the normal, and aligned
        pbok ; @ProtokollNr ; protocol Abnahme 'Süd' ; cannot pbSpeichern ; focus DBGrid1
        hidden txtIST_n_ergom lbIST_n_ergom lbEinheitErgom ; laRezName == Urteile
        title ~ ^Sechs Runden - Messen       Prüfprotokoll: \d+ - Abnahme 'Süd'$ | ^Six Rounds - Measuring       Test Protocol: \d+ - Abnahme 'Süd'$
        txtMessArt == Leistungsmessung | Power Measurement ; laDrehR == Rechtslauf | Right
        txtSoll_n == 60,0 | 60.0 ; laKorrF == 1,0000 | 1.0000)");
    QStringList shown, judged;
    const auto verdicts = [this] { // as the strip shows them
        static const QRegularExpression words(": (\\S+), [^:]+: (\\S+)$");
        const auto found = words.match(views["strip"]());
        return found.captured(1) + '|' + found.captured(2);
    };
    for (const int step : {1, 2, 3}) {
        const QString measured =
            QString("stand load %1 ; step %2 60 ; can pbSpeichern ; focus pbSpeichern")
                .arg(95 + 5 * step)
                .arg(step);
        co_await go(measured);
        shown += views["live"]();
        judged += verdicts();
        co_await go(R"(
            pbSpeichern ; @Meldung
            notice == Meldung: Achtung! Nächster Prüfschritt! | Message: Attention! Next Test Step!)");
        EXPECT_EQ(control(frm::Meldung, "anzZeichen")->accessibleName().toInt(),
                  step % 3 ? step + 1 : 10);
    }
    co_await go(R"(
        # Speed waits for the reading of the ergometer.
        step 10 80 ; cannot pbSpeichern ; txtIST_n_ergom = 80,5 | 80.5
        waits pbSpeichern ; txtIST_n_ergom = ; cannot pbSpeichern ; waiting ==
        txtIST_n_ergom = 80,5 | 80.5 ; can pbSpeichern ; txtIST_n_ergom ! ; focus pbSpeichern)");
    shown += views["live"]();
    judged += verdicts();
    co_await go(R"(
        wire ~ . ; ? recipeEnd ; pbSpeichern ; focus DBGrid1 ; wire == -
        strip == Rezept abgearbeitet: 2 × ja, 1 × ?, 1 × nein | Recipe finished: 2 × yes, 1 × ?, 1 × no
        waiting == pbAbbrechen
        pass 3000 ; speed == 80    # the motor keeps running
        leave ; shaft ~ ^set=0.00
        stored Prüfschritt, Soll_n, Soll_P, Ist_n_ergom, MU_ohne, MU_mit == 1|60,0|100,0|0|ja|ja+2|60,0|100,0|0|nein|?+3|60,0|100,0|0|nein|nein+10|80,0|0,0|80,5|ja|ja | 1|60.0|100.0|0|yes|yes+2|60.0|100.0|0|no|?+3|60.0|100.0|0|no|no+10|80.0|0.0|80.5|yes|yes
        sql SELECT Protokollname FROM Protokoll_temp ORDER BY ProtokollID DESC LIMIT 1 == Abnahme 'Süd')");
    EXPECT_EQ(grid("SELECT Ist_n_torvena, Ist_D_torvena, Ist_P_torvena FROM Messwerte_temp "
                   "WHERE ProtokollID = ? ORDER BY rowid",
                   {gProtokollID}),
              shown.join('+'));
    EXPECT_EQ(grid("SELECT MU_ohne, MU_mit FROM Messwerte_temp WHERE ProtokollID = ? "
                   "ORDER BY rowid",
                   {gProtokollID}),
              judged.join('+'));
    EXPECT_EQ(shown.join(' ').contains('.'), english());
    co_await go(R"(
        stored round(replace(Ist_P_torvena, ',', '.')) || ' ' || round(replace(Ist_D_torvena, ',', '.')) == 100.0 16.0+105.0 17.0+110.0 18.0+110.0 13.0
        ? end no ; mnuBeenden ; pass 100 ; front == Desktop
        ? end yes ; mnuBeenden ; pass 100 ; front == ; process == over)");
}

} // namespace
