#include "masterdata/frmRezeptKopie.h"

#include <QLineEdit>

#include "masterdata/frmNeuRezept.h"
#include "records/rezept.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Copy Recipe"},
    {"lbRezeptname", "&Recipe:"},
    {"FrRezept", "Recipe Whose Test Steps Are Copied"},
    {"lbSpezifikation", "Specification:"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

} // namespace

frmRezeptKopie::frmRezeptKopie() {
    ui.setupUi(this);
    const auto copy = gefangen("12008 - ", [this] { pbok_Click(); });
    verdrahten({ui.cmbRezeptname, ui.lstRezepte, ui.laInfo, ui.lbRezTol, ui.DBGridRez},
               gefangen("1012 - ", [this] { cmbRezeptname_Change(); }), [this, copy] {
                   if (rezeptFestlegen()) // its steps are shown by the change of the text
                       copy();
               });
    onClick(ui.pbok, copy);
    onClick(ui.pbexit, [this] { unload(); });
}

void frmRezeptKopie::Form_Load() {
    englischBeschriften(*this, english);
    ui.cmbRezeptname->lineEdit()->setPlaceholderText(
        inSprache({"Name oder Teil davon", "Name or part of it"}));
    mGitter.beschriften();
    ui.cmbRezeptname->setFocus();
}

void frmRezeptKopie::Form_Activate() try { fnc_ListeFüllen(); } catch (const Fehler &fehler) {
    fehlerBox("1013 - ", fehler);
}

void frmRezeptKopie::Form_Unload() try {
    if (auto *neu = loaded<frmNeuRezept>()) {
        neu->show();
        neu->fnc_GitterAktualisieren();
    }
} catch (const Fehler &fehler) {
    fehlerBox("1018 - ", fehler);
}

void frmRezeptKopie::fnc_ListeFüllen() try { namenLesen(); } catch (const Fehler &fehler) {
    fehlerBox("1016 - ", fehler);
}

void frmRezeptKopie::cmbRezeptname_Change() {
    mSuche.textGeändert();
    ui.pbok->setEnabled(false);
    leeren();
    const QString name = mSuche.name();
    if (name.isEmpty())
        return;
    const RezeptKopf kopf = rezeptKopf(name);
    zeigen(kopf.toleranz, rezeptSchritte(kopf.rezeptID));
    ui.pbok->setEnabled(true);
}

/// By the first letter of the type as it is shown, and in German only: under English every copied
/// step becomes a speed step.
bool frmRezeptKopie::fnc_SchrittAnlegen(const Recordset &schritt) try {
    const Schrittliste &list = neuesRezept.schritte;
    Schritt copy = list.schrittAus(schritt);
    copy.prüfart =
        schritt["Messart"].text().startsWith('L') ? Prüfart::Leistung : Prüfart::Drehzahl;
    list.anlegen(neuesRezept.rezeptID, copy);
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("1036 - ", fehler);
    return false;
}

/// A step that fails ends the copy; those before it stay.
void frmRezeptKopie::pbok_Click() {
    if (!ui.pbok->isEnabled())
        return;
    Recordset rows = mGitter.schritte();
    for (rows.moveFirst(); !rows.atEnd(); rows.moveNext()) {
        if (!fnc_SchrittAnlegen(rows))
            break;
    }
    if (auto *neu = loaded<frmNeuRezept>())
        neu->neuenSchrittFreigeben();
    unload();
}
