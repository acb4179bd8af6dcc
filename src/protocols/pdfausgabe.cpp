#include "protocols/pdfausgabe.h"

#include <QDir>

#include "platform/fehler.h"
#include "records/berichtsdateien.h"
#include "records/system.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/printers.h"

using namespace platform;

bool fnc_DruckerEinstellungen() {
    const Druckereinstellung einstellung = druckereinstellung();
    const QString jetzt = currentPrinter();
    gDruckerPDF = einstellung.drucker.isEmpty() ? jetzt : einstellung.drucker;
    if (!einstellung.drucker.isEmpty())
        gPDFOrdner = einstellung.ordner;
    gDruckerStandard = jetzt != einstellung.drucker ? jetzt : einstellung.drucker;
    if (!gPDFOrdner.isEmpty() || (einstellung.drucker.isEmpty() && gDruckerPDF != pdfPrinter))
        return true;
    meldung(
        {"Kein PDF-Ordner angegeben!\nBitte ändern Sie die Einstellungen!", "No folder selected!"},
        Exclamation, {"Achtung", "Attention"});
    return false;
}

void fnc_DruckerAufPDF() {
    if (!printers().contains(gDruckerPDF)) {
        throw Fehler(fehlernummer::PrinterError,
                     {"Den Drucker " + gDruckerPDF +
                          " gibt es nicht mehr. Bitte wählen Sie unter Programm, PDF-Drucker einen "
                          "anderen.",
                      "The printer " + gDruckerPDF +
                          " is not there any more. Please choose another one under Program, PDF "
                          "Printer."});
    }
    setCurrentPrinter(gDruckerPDF);
}

void fnc_DruckerZurück() {
    setCurrentPrinter(gDruckerStandard);
}

bool fnc_PrintPDF(Umschalten modus) {
    if (modus == Umschalten::Zurück) {
        fnc_DruckerZurück();
        return true;
    }
    if (!fnc_DruckerEinstellungen())
        return false;
    fnc_DruckerAufPDF();
    return true;
}

QString pdfOrdner(Schlüssel protokollID) {
    return protokollordner(gPDFOrdner, protokollID);
}

void pdfSpeichern(const QByteArray &pdf, const Seitenausgabe &seite, Schlüssel protokollID) {
    const QDir ordner(pdfOrdner(protokollID));
    const platform::Text &endung = seitendaten(seite.seite).datei;
    saveReport(pdf, ordner.filePath(QString::number(protokollID) + inSprache(endung)));
    meldung(seite.meldung, Information, {"Sichern", "Save"});
}
