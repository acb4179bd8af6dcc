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
    verdrahten({Löschziel::Gerät,
                ui.lbProtocollCount,
                ui.pbYes,
                ui.pbNo,
                {"Daten wurden gelöscht!", "Data have been deleted!"},
                "31002 - "});
}

void frmLöschGerät::beschriften() {
    beschriftungenSetzen(ui, *this, english);
}

Schlüssel frmLöschGerät::gewählt() const {
    const auto *list = loaded<frmGerät>();
    return list ? list->gezeigt() : 0;
}

platform::Text frmLöschGerät::frage(Schlüssel gerätID) {
    const Gerätedaten &unit = loaded<frmGerät>()->gerät();
    const platform::Text text = gerätefrage(protokolleZählen(Löschziel::Gerät, gerätID), unit.typ);
    ui.laIdent->setText(umbrechbar(unit.identNr));
    return text;
}

void frmLöschGerät::nachLöschen(Schlüssel gerätID) {
    if (auto *list = loaded<frmGerät>())
        list->fnc_ListeLeeren();
    if (gGerätID == gerätID)
        gerätAbwählen();
}
