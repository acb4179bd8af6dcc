// Saving, inserting and deleting steps of the working copy, and moving among them.
#include "masterdata/frmAendRez.h"

#include <algorithm>

#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

bool frmÄndRez::fnc_SchrittPrüfen() try {
    const QString type = ui.cmbPrArt->currentText();
    // Only the German words count, whatever the language of the session.
    const bool typeMissing =
        type != Prüfart::leistungText.german && type != Prüfart::drehzahlText.german;
    const QString missing = fehlendeAngaben(ui.txtDrehzahl->text().isEmpty(),
                                            ui.txtLeistung->text().isEmpty(), typeMissing);
    if (missing.isEmpty())
        return fnc_DrehmomentPrüfen();
    meldung({"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie" +
                 missing + "!",
             "The information about the actual step are incomplete!\rPlease complete!"},
            Exclamation, {"Achtung!", "Attention!"});
    return false;
} catch (const Fehler &fehler) {
    fehlerBox("1125 - ", fehler);
    return false;
}

bool frmÄndRez::fnc_DrehmomentPrüfen() {
    if (drehmomentZulässig(ui.txtDrehzahl->text(), ui.txtLeistung->text(), grenzenÄndRez))
        return true;
    drehmomentMelden(grenzenÄndRez);
    ui.txtDrehzahl->setFocus(Qt::TabFocusReason);
    return false;
}

/// Empty when it could not be found out.
std::optional<bool> frmÄndRez::fnc_SchrittVorhanden(const Schritt &schritt) try {
    return mListe.vorhanden(gRezeptID, schritt.nummer);
} catch (const Fehler &fehler) {
    fehlerBox("1034 - ", fehler);
    return std::nullopt;
}

void frmÄndRez::fnc_SchrittÄndern(const Schritt &schritt) try {
    mListe.ändern(gRezeptID, schritt);
} catch (const Fehler &fehler) {
    fehlerBox("1035 - ", fehler);
}

void frmÄndRez::pbSpeichern_Click() try {
    if (!fnc_SchrittPrüfen())
        return;
    const Schritt step = eingegeben();
    const std::optional<bool> stored = fnc_SchrittVorhanden(step);
    if (!stored)
        return;
    if (*stored)
        fnc_SchrittÄndern(step);
    else
        mListe.anlegen(gRezeptID, step);
    mOhneSchritt = mNeuerSchritt = false;
    aktualisieren();
    if (!*stored)
        ui.pbNeu->setFocus();
    mGitter.zeigen(kopierteSchritte());
    mGitter.gehen(step.nummer); // on to the one behind it, while the fields keep this one
} catch (const Fehler &fehler) {
    fehlerBox("1127 - ", fehler);
}

void frmÄndRez::pbNeu_Click() try {
    felderLeeren();
    mNeuerSchritt = true;
    aktualisieren();
    mGitter.zumLetzten();
    // An inserted step is the last row and has a number from the middle: the one behind it is
    // taken.
    const int last = mGitter.leer() ? 0 : schrittAus(mGitter.aktuell()).nummer;
    const int next = std::max(last, mListe.größteNummer(gRezeptID)) + 1;
    ui.laPrSchritt->setText(QString::number(next));
    mnAbschluss = Abschluss::NeuerSchritt;
    ui.txtDrehzahl->setFocus();
} catch (const Fehler &fehler) {
    fehlerBox("1126 - ", fehler);
}

void frmÄndRez::pbEinfuegen_Click() try {
    const Schritt step = eingegeben();
    mListe.einfügen(gRezeptID, step);
    mNeuerSchritt = false;
    aktualisieren();
    mGitter.zeigen(kopierteSchritte());
    mGitter.gehen(step.nummer - 1);
} catch (const Fehler &fehler) {
    fehlerBox("1023E - ", fehler);
    gitterNachFehler(); // some may have moved
}

/// What a failed statement has left; a second failure is not told.
void frmÄndRez::gitterNachFehler() try {
    const int row = mGitter.zeile();
    mGitter.zeigen(kopierteSchritte());
    mGitter.gehen(row);
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

void frmÄndRez::pbLoeschen_Click() try {
    const int number = eingegeben().nummer;
    const int greatest = mListe.größteNummer(gRezeptID);
    mListe.löschen(gRezeptID, number);
    mGitter.zeigen(kopierteSchritte());
    if (greatest < 1) {
        felderLeeren();
        mOhneSchritt = true;
        mNeuerSchritt = false;
        aktualisieren();
        return;
    }
    if (number == greatest)
        mGitter.zumLetzten();
    else
        mGitter.gehen(number - 1);
    fnc_SchrittAnzeigen();
} catch (const Fehler &fehler) {
    fehlerBox("1023E - ", fehler);
}

/// The row, or the nearest there is, and its step into the fields.
void frmÄndRez::schrittWählen(int zeile) {
    if (mGitter.leer())
        return;
    mGitter.gehen(zeile);
    fnc_SchrittAnzeigen();
}

void frmÄndRez::pbok_Click() {
    mnAbschluss = mbGeändert ? Abschluss::Übernehmen : Abschluss::Verwerfen;
    unload();
}

void frmÄndRez::pbexit_Click() {
    mnAbschluss = Abschluss::Verwerfen;
    if (mbGeändert) {
        const int answer = meldung({"Änderungen in den Prüfschritten speichern?",
                                    "Do you want to save the changes in the test steps?"},
                                   YesNo | Question, {"Message!", "Message!"});
        if (answer == Yes)
            mnAbschluss = Abschluss::Übernehmen;
    }
    unload();
}
