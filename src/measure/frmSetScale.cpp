#include "measure/frmSetScale.h"

#include "measure/frmGraphLite.h"
#include "platform/runtime.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Scaling Input"}, {"lbBegin", "Be&ginning of scale:"}, {"lbEnde", "&End of scale:"},
    {"pbok", "&OK"},       {"pbAbbrechen", "&Cancel"},
};

} // namespace

frmSetScale::frmSetScale() {
    ui.setupUi(this);
    enterChain({ui.txtBegin, ui.txtEnde, ui.pbok});
    for (QLineEdit *box : {ui.txtBegin, ui.txtEnde})
        onGotFocus(box, [box] { box->selectAll(); });
    onClick(ui.pbok, gefangen("2004 - ", [this] { pbok_Click(); }));
    onClick(ui.pbAbbrechen, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmSetScale::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    ui.txtBegin->setFocus();
}

void frmSetScale::erfragen(Diagramm diagramm, const Band &achse) {
    mDiagramm = diagramm;
    const bool drehzahl = diagramm == Diagramm::Drehzahl;
    ui.laDiagramm->setText(inSprache(drehzahl ? Text{"Drehzahl in 1/min", "Speed in rpm"}
                                              : Text{"Leistung in W", "Power in W"}));
    ui.txtBegin->setText(CStr(achse.min));
    ui.txtEnde->setText(CStr(achse.max));
    ui.txtBegin->selectAll();
}

void frmSetScale::pbok_Click() {
    const QString beginn = ui.txtBegin->text(), ende = ui.txtEnde->text();
    if (const auto falsch = skalaPrüfen(mDiagramm, beginn, ende)) {
        meldung(falsch->text, Critical, {"Eingabefehler", "Input Error"});
        (falsch->amBeginn ? ui.txtBegin : ui.txtEnde)->setFocus();
        return;
    }
    if (auto *bild = loaded<frmGraphLite>())
        bild->skalieren(mDiagramm, {CDbl(beginn), CDbl(ende)});
    unload();
}
