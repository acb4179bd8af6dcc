// What an operator does within one measuring session, step by step, and what that puts on the wire
// and into the database.
#include "measuring.h"

namespace {

using namespace support;

JOURNEY(Measuring, Navigation) {
    co_await go(R"(
        measure ; stand load 100 ; step 1 60 ; can pbSpeichern ; cannot Desktop.pbKunde Desktop.pbBeenden ; beeps ~ .
        pbPrevious ; laPrSchritt == 1 ; beeps == 1
        pbNext ; laPrSchritt == 2 ; txtSoll_n == 80,0 ; pbNext ; laPrSchritt == 2 ; beeps == 1
        pbFirst ; laPrSchritt == 1 ; pbLast ; laPrSchritt == 2 ; beeps == 0
        # The old set-point goes on being measured, but cannot be stored under the new one.
        waits pbAusführen ; focus pbAusführen ; txtIST_n_ergom = 60 ; pbFirst ; pbLast ; txtIST_n_ergom ==
        txtIST_n_ergom = 60 ; pass 13000 ; txtIST_n_torvena ~ ^(60|59),
        cannot pbSpeichern ; wire ~ . ; pbAusführen ; waiting ==
        notice == Meldung: Achtung! Nächster Prüfschritt! ; cannot Messen.pbSpeichern
        until wireNow ~ 6$ ; live == || ; until strip == Drehzahl noch nicht erreicht ; step 2 80 ; wire == -*E-2800+>>>6
        # The last step ends the recipe, whichever others are missing.
        cannot pbSpeichern ; txtIST_n_ergom = 80 ; ? recipeEnd ; pbSpeichern ; pass 3000
        laPrSchritt == 2 ; wire ~ -$ ; speed == 80
        # The last step again: overwritten without a message, and nothing is started.
        waits pbAbbrechen ; pbMessen ; waiting == ; live == || ; step 2 80
        strip == Wartet auf die abgelesene Drehzahl ; txtIST_n_ergom = 80,4 ; pbSpeichern ; pass 3000
        stored Ist_n_ergom == 80,4 ; laPrSchritt == 2
        # Another step behind the end: stored, and again.
        pbFirst ; pbAusführen ; step 1 60 ; pbSpeichern ; notice == ; focus DBGrid1
        stored Prüfschritt == 2+1 ; steps == 1+2 ; selected == 1 ; step 1 60 ; pbSpeichern ; notice ==
        cannot pbSpeichern ; waiting ==
        stored Prüfschritt == 2+1 ; steps == 1+2 ; selected == 1 ; step 1 60 ; pbMessen
        step 1 60 ; leave ; idle == yes ; focus pbBeenden)");
}

JOURNEY(Measuring, CorrectionFactor) {
    co_await go(R"(
        measure ; stand load 100 ; step 1 60 ; laKorrF == 1,0000 ; wire ~ .
        pbPlus ; txtSoll_n == 60,1 ; laKorrF == 1,0017 ; waits pbÜbernehmen ; focus pbÜbernehmen
        strip == Sollwerte noch nicht gesendet
        pass 7000 ; wire ==
        pbÜbernehmen ; waiting == ; cannot Messen.pbÜbernehmen ; step 1 60.1
        wire == -*E-2103+>>>6 ; pbSpeichern ; stored Soll_n == 60,1
        # It goes along to the next step; the keys change it like the buttons, but offer nothing.
        step 2 80.1 ; txtSoll_n == 80,1 ; txtSoll_n + + ; txtSoll_n == 80,2 ; laKorrF == 1,0025
        txtSoll_n + --- ; txtSoll_n == 79,9 ; cannot pbÜbernehmen
        pbMinus ; txtSoll_n == 79,8 ; laKorrF == 0,9975
        # Measured again, a step keeps the set-point it was first stored with.
        pbFirst ; txtSoll_n == 59,9 ; pbAusführen ; step 1 59.9 ; pbSpeichern
        stored Soll_n || ' ' || Ist_n_torvena ~ ^60,1 59,[89]\d*$ ; step 2 79.8 ; leave)");
}

// A notice may close while the set-point before it is still being sent.
JOURNEY(Measuring, OnePassAtATime) {
    co_await go(R"(
        measure ; step 1 60 ; wire ~ . ; stand fault deaf 2 ; pbMessen ; until wireNow ~ .
        Messen.pbMessen ; until notice == ; wireNow ~ ^[^6]*$ ; step 1 60 ; pass 30000
        wire == -*E-2100+--*E-2100+--*E-2100+>>>6-*E-2100+>>>6
        # The same with one that is refused for good: told once, left once.
        stand fault deaf 3 ; pbMessen ; until wireNow ~ .
        Messen.pbMessen ; ? noController ; ? motorOn ; ? refused ; ? emptyProtocol ; @Desktop
        pass 10000 ; wire == -*E-2100+--*E-2100+--*E-2100+----*E-0000+>>> ; idle == yes)");
}

// By hand: the mouse, what is really on the screen, where the keyboard waits, and the roads that
// the program itself suggests.
JOURNEY_P(Measuring, ByHand) {
    co_await go(R"(
        login ; pbKunde ; @Kunden ; mouse lstKunden Herzzentrum Talbrück ; cmbKundenname == Herzzentrum Talbrück
        wheel cmbOrt ; cmbOrt == ; pbAbbrechen ; @Desktop
        choose AEH-017, Kurzprüfung ; direction
        # Nothing else while a command is sent.
        stand fault deaf 1 ; after 500 cannot pbMotein pbMotaus pbDrehR pbKunde ; pbMotein
        stand fault deaf 1 ; after 500 cannot pbMotein pbMotaus pbDrehR pbKunde ; pbMotaus
        can pbDrehR ; cannot pbMotaus ; begin ; pbok ; pass 1000
        keyboard ~ ^(?!pbAbbrechen) ; until can StatMessen.pbWeiter ; drift ~ ^-?0.00. 249.99. -?0.00. -?0.00.$
        line out ; ? failed(4042, 8020) ; pbWeiter ; line in ; pbWeiter ; @NachStatNPK ; pbok
        @ProtokollNr ; obVorhanden ; shown cmbVorhanden ; protocol Von Hand ; step 1 60 ; readonly txtSoll_n txtSoll_P ; pbNext ; pbAusführen
        step 2 80 ; focus txtIST_n_ergom ; txtIST_n_ergom = 80 ; ? recipeEnd ; pbSpeichern ; pass 3000
        pbFreieEing ; pass 100 ; laPrSchritt == FR ; focus txtSoll_n    # as the box says
        txtSoll_n = 70 ; txtSoll_n ! ; cmbMessArt > 2
        cannot pbAusführen ; txtSoll_P = 200 ; txtSoll_P ! ; waits pbAusführen ; pbAusführen
        step FR 70 ; txtIST_n_ergom = 70 ; pbSpeichern
        step FR 70 ; txtIST_n_ergom == ; cannot pbSpeichern    # nor can that reading be stored again
        pbMessen ; step 2 80 ; can pbPlus pbMinus pbFreieEing
        # A motor that cannot be stopped stays in reach.
        stand fault silent on ; ? noController ; pbAbbrechen ; @Desktop
        motor ~ ^on Motaus)");
}

} // namespace
