#include "masterdata/frmLoeschGeraet.h"

#include "controls/umbruch.h"
#include "masterdata/frmGeraet.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"

namespace {

constexpr Beschriftung english[] = {
    {"", "Delete Unit"},
    {"lbIdentNr", "ID number:"},
    {"pbYes", "&Yes"},
    {"pbNo", "&No"},
};

} // namespace

frmLöschGerät::frmLöschGerät() {
    ui.setupUi(this);
    verdrahten({.ziel = Löschziel::Gerät,
                .liste = frm::Gerät,
                .achtung = ui.anzAchtung,
                .frage = ui.lbProtocollCount,
                .ja = ui.pbYes,
                .nein = ui.pbNo,
                .gelöscht = {"Daten wurden gelöscht!", "Data have been deleted!"},
                .fragen = "31002 - "});
}

void frmLöschGerät::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

platform::Text frmLöschGerät::frage(Schlüssel gerätID) {
    const Gerätedaten &unit = loaded<frmGerät>()->gerät();
    platform::Text text = gerätefrage(protokolleZählen(Löschziel::Gerät, gerätID), unit.typ);
    ui.laIdent->setText(umbrechbar(unit.identNr));
    return text;
}

void frmLöschGerät::abwählen(Schlüssel gerätID) {
    if (gGerätID == gerätID)
        gerätAbwählen();
}
