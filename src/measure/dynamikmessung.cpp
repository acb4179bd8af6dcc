#include "measure/dynamikmessung.h"

#include <QScopeGuard>

#include "link/controller.h"
#include "measure/dynamik.h"
#include "measure/frmGraphLite.h"
#include "measure/messring.h"
#include "measure/stromlesen.h"
#include "session/session.h"
#include "session/sprache.h"

using namespace platform;

namespace {

void fnc_DynamikEmpfang(const std::function<bool()> &abgelöst) try {
    gStopMessung = false;
    gDynFehler = 0;
    DynamikDecoder decoder;
    Messring ring;
    MSComm1.discardInput();
    stromLesen(
        [&] {
            if (auto *bild = loaded<frmGraphLite>())
                bild->liest();
            return gMessStatus == Messstatus::Dynamisch && gDesktopAktiv && !abgelöst();
        },
        [&](std::uint8_t byte) {
            if (!decoder.feed(byte))
                return;
            const bool bildFällig = ring.speichern(decoder.drehzahl(), decoder.leistung());
            auto *bild = loaded<frmGraphLite>();
            if (!bild)
                return;
            bild->rahmen();
            if (bildFällig)
                bild->fnc_GraphZeichnen(ring);
        });
} catch (const Fehler &fehler) {
    gMessStatus = Messstatus::Ruhe; // there is nothing to measure anew with
    fehlerBox("2001 - ", fehler);
}

} // namespace

void fnc_DynamikMessen(const std::function<bool()> &abgelöst) try {
    const auto schließen = qScopeGuard([] {
        if (gMessStatus == Messstatus::Dynamisch)
            gMessStatus = Messstatus::Ruhe;
        if (Screen *bild = loaded(frm::GraphLite))
            bild->unload();
    });
    fnc_PortÖffnen();
    if (!MSComm1.PortOpen())
        return; // told
    form(frm::GraphLite).showModal();
    datenstromBeenden();
    MSComm1.Output("c");
    fnc_DynamikEmpfang(abgelöst);
    datenstromBeenden();
} catch (const Fehler &fehler) {
    fehlerBox("2000 - ", fehler);
}
