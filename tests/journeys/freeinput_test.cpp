// Steps that stand in no recipe: set-points typed in, and speed zero.
#include "measuring.h"

namespace {

using namespace support;

/// Free input has keys and boxes of its own in each language.
using FreeInput = Measuring;

JOURNEY_P(FreeInput, LimitsAndKeys) {
    co_await go(R"(
        measure ; step 1 60 ; pbPlus ; pbFreieEing ; cannot pbPlus pbMinus pbÜbernehmen pbSpeichern pbFreieEing
        waiting == ; until laPrSchritt == FR ; pass 20 ; live == || ; focus txtSoll_n ; hidden txtMessArt
        txtSoll_n == ; txtSoll_P == ; cmbMessArt ==
        strip ~ ^Drehzahl, Leistung und Messart eingeben | ^Enter speed, power and type
        cmbMessArt rows Leistungsmessung+Drehzahlmessung | Power Measurement+Speed Measurement
        # A minus is a key of the correction in the first box.
        txtSoll_n = 0 ; txtSoll_n ! ; focus txtSoll_P ; txtSoll_P = 0 ; txtSoll_P ! ; focus cmbMessArt
        txtSoll_n = 130 ; txtSoll_n ! ; txtSoll_P = 800 ; txtSoll_P !
        txtSoll_n = 131 ; ? freeSpeedRange ; txtSoll_n ! ; txtSoll_n == 130 ; focus txtSoll_n
        txtSoll_n = x ; ? freeSpeedNumber ; txtSoll_n ! ; txtSoll_n == 130 ; focus txtSoll_n
        txtSoll_P = 801 ; ? freePowerRange ; txtSoll_P ! ; txtSoll_P == 800 ; focus txtSoll_P
        txtSoll_P = -1 ; ? freePowerRange ; txtSoll_P ! ; txtSoll_P == 800 ; focus txtSoll_P
        txtSoll_P = x ; ? freePowerNumber ; txtSoll_P ! ; txtSoll_P == 800 ; focus txtSoll_P
        cannot pbAusführen    # the type is missing
        cmbMessArt = l | p ; cmbMessArt == Leistungsmessung | Power Measurement
        cmbMessArt = D | S ; cmbMessArt == Drehzahlmessung | Speed Measurement
        cmbMessArt = 1 ; cmbMessArt == Leistungsmessung | Power Measurement
        cmbMessArt = 2 ; cmbMessArt == Drehzahlmessung | Speed Measurement ; beeps ~ .
        cmbMessArt = s | l ; cmbMessArt == ; beeps == 1 ; cmbMessArt = 1 ; cmbMessArt = ; cmbMessArt ==
        cmbMessArt = 1 ; key Backspace ; cmbMessArt == ; beeps == 0
        # 60 N m
        txtSoll_n = 50 ; txtSoll_n ! ; txtSoll_P = 315 ; txtSoll_P ! ; cmbMessArt = 1
        waits pbAusführen ; cmbMessArt ! ; focus pbAusführen
        ? freeTorque ; pbAusführen ; notice == ; focus txtSoll_n
        # Pressed by its access key from a box that was not left, the box is judged first.
        txtSoll_P = 314 ; txtSoll_P ! ; txtSoll_n = 500 ; ? freeSpeedRange ; pbAusführen
        notice == ; txtSoll_n == 50 ; pbAusführen ; waiting == ; step FR 50
        pbFreieEing ; until txtSoll_n == ; pass 20 ; cmbMessArt == ; pbFirst ; readonly txtSoll_n txtSoll_P
        hidden cmbMessArt ; shown txtMessArt ; can pbPlus pbMinus ; focus pbAusführen
        ? emptyProtocol ; leave)");
}

JOURNEY_P(FreeInput, StepsInOrderOfTimeSpeedZeroAndAReadingThatIsNoNumber) {
    co_await go(R"(
        measure ; stand load 100 ; step 1 60 ; pbSpeichern ; step 2 80
        txtIST_n_ergom = 80.5 | 80,5 ; ? readingNumber ; txtIST_n_ergom !
        txtIST_n_ergom == ; focus txtIST_n_ergom ; cannot pbSpeichern ; stored Prüfschritt == 1
        txtIST_n_ergom = 80.5 | 80,5 ; ? readingNumber ; pbSpeichern    # as by its access key
        txtIST_n_ergom == ; focus txtIST_n_ergom ; cannot pbSpeichern ; stored Prüfschritt == 1
        pbFreieEing ; until laPrSchritt == FR ; pass 20
        txtSoll_n = 70 ; txtSoll_n ! ; txtSoll_P = 200 ; txtSoll_P ! ; cmbMessArt = 1 ; wire ~ .
        stand load 203 ; pbAusführen ; step FR 70 ; wire ~ ^-\*E-2450\+>>>6 ; hidden txtIST_n_ergom
        pbSpeichern ; selected == FR ; stand load 210.3 ; step FR 70 ; pbSpeichern ; selected == FR
        stored Prüfschritt, Soll_n, Soll_P, substr(Ist_P_torvena, 1, 2), MU_ohne, MU_mit == 1|60,0|100,0|10|ja|ja+FR|70|200|20|ja|ja+FR|70|200|21|nein|? | 1|60.0|100.0|10|yes|yes+FR|70|200|20|yes|yes+FR|70|200|21|no|?
        steps == 1+FR+FR ; step FR 70 ; pbMessen ; step 2 80    # back to where the recipe is
        # A power measurement in both languages; its row is stored with the verdicts before.
        wire ~ . ; pbDrehzNull ; step FR 0 ; wire == --*E-0000+>>>6 ; speed == 0 ; cannot pbDrehzNull
        txtMessArt == Leistungsmessung ; strip == Nicht zu beurteilen | Cannot be judged ; ? zeroPower ; pbSpeichern
        sql SELECT Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, MU_ohne, MU_mit, MU_Proz FROM Messwerte_temp ORDER BY rowid DESC LIMIT 1 == FR|0|0|0,00|nein|?|0.3 | FR|0|0|0.00|no|?|0.3
        step FR 0 ; pbFreieEing ; until txtSoll_n == ; pass 20 ; can pbDrehzNull ; pbDrehzNull
        step FR 0 ; pbMessen ; step 2 80 ; can pbDrehzNull ; leave)");
}

} // namespace
