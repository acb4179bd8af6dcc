#include "protocols/frmBericht.h"

#include <QDir>

#include "protocols/archivieren.h"
#include "protocols/pdfausgabe.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

frmBericht::frmBericht()
    : Berichtsmaske({.bestand = Bestand::Arbeit,
                     .titel = {"Protokoll drucken", "Print Protocol"},
                     .nummerAb = 13, // behind the date and three blanks
                     .seitenNummerAb = 10,
                     .klasseTag = "1084 - ",
                     .druckTag = "1085 - "}) {
    for (QWidget *archiv : std::initializer_list<QWidget *>{ui.lbKunde, ui.cmbKunde, ui.pbDelete,
                                                            ui.pbDeleteExt, ui.pbExport})
        archiv->hide();
    onGotFocus(ui.cmbBericht, [this] {
        if (archivieren())
            fnc_ProtokollListe();
    });
}

void frmBericht::Form_Load() {
    gMessStatus = Messstatus::Ruhe;
    gDesktopFolge = Desktopfolge::Nichts;
    Berichtsmaske::Form_Load();
    if (gBerichtAntwort == Yes)
        gBerichtAntwort = No;
}

void frmBericht::fnc_ProtokollListe() try {
    const QStringList protokolle = arbeitsprotokolle();
    mbKeineProtokolle = protokolle.isEmpty();
    eintragen(protokolle, true);
} catch (const Fehler &fehler) {
    fehlerBox("1080 - ", fehler);
}

/// Asks for what was printed since. True when it was moved.
bool frmBericht::archivieren() {
    if (!std::exchange(mbGedruckt, false))
        return false;
    if (meldung({"Kann das Protokoll archiviert werden?", "Is the protocol o.k.?"},
                YesNo + Question, {"Druck des Protokolls", "Printing The Protocol"}) != Yes)
        return false;
    fnc_Archivieren();
    return true;
}

bool frmBericht::Form_QueryUnload() {
    archivieren();
    return Berichtsmaske::Form_QueryUnload();
}

// What else lies in the folder may be a person's own: it stays.
void frmBericht::pdfVorbereiten(Schlüssel protokollID) {
    QDir().mkpath(pdfOrdner(protokollID));
}
