// By hand: the mouse, what is really on the screen, where the keyboard waits, and the roads that
// the program itself suggests.
#include "measuring.h"

namespace {

using namespace support;

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
        can pbMotaus ; motor == on)");
}

} // namespace
