#include "app/start.h"

#include <QCoreApplication>
#include <QDir>

#include "app/screentable.h"
#include "link/controller.h"
#include "link/einlauf.h"
#include "link/ergometer.h"
#include "measure/messablauf.h"
#include "platform/fehler.h"
#include "platform/guard.h"
#include "protocols/pruefblatt.h"
#include "session/screens.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/trail.h"
#include "windows/help.h"
#include "windows/msgbox.h"
#include "windows/preview.h"

using namespace platform;

namespace {

QString boxCaption(BoxAnswer answer) {
    switch (answer) {
    case OK:
        return "&OK";
    case Cancel:
        return inSprache({"&Abbrechen", "&Cancel"});
    case Abort:
        return inSprache({"A&bbrechen", "&Abort"});
    case Retry:
        return inSprache({"&Wiederholen", "&Retry"});
    case Ignore:
        return inSprache({"&Ignorieren", "&Ignore"});
    case Yes:
        return inSprache({"&Ja", "&Yes"});
    case No:
        return inSprache({"&Nein", "&No"});
    }
    return {};
}

PreviewTexts previewTexts() {
    return {.print = inSprache({"&Drucken", "&Print"}),
            .save = inSprache({"&Speichern ...", "&Save ..."}),
            .close = inSprache({"S&chließen", "&Close"}),
            .pages = inSprache({"&Alle Seiten", "&All Pages"}),
            .width = inSprache({"&Breite", "&Width"}),
            .larger = inSprache({"&Größer", "&Larger"}),
            .smaller = inSprache({"&Kleiner", "S&maller"}),
            .pdfFiles = inSprache({"PDF-Dateien", "PDF files"}),
            .failed = inSprache({"Fehler", "Error"}),
            .said = [](const Fehler &fehler) { return inSprache(fehler.text()); }};
}

/// The pictures lie beside the program as it was installed or built.
HelpSource helpSource() {
    const QString language = inSprache({"de", "en"});
    const QDir program(QCoreApplication::applicationDirPath());
    QString pictures;
    for (const char *up : {"..", "../.."}) {
        const QDir there(program.filePath(QString("%1/share/torvena/help/%2").arg(up, language)));
        if (pictures.isEmpty() && there.exists())
            pictures = there.path();
    }
    return {.pages = ":/help/" + language,
            .drawings = ":/help",
            .pictures = pictures,
            .language = language,
            .texts = {.title = inSprache({"Hilfe - torvena", "Help - torvena"}),
                      .back = inSprache({"&Zurück", "&Back"}),
                      .forward = inSprache({"&Vor", "&Forward"}),
                      .contents = inSprache({"&Inhalt", "&Contents"}),
                      .close = inSprache({"&Schließen", "C&lose"}),
                      .search = inSprache({"Suchen", "Search"}),
                      .nothing = inSprache({"Nichts gefunden", "Nothing found"})}};
}

/// What no handler took: told, and the program goes on.
void reportUncaught(const std::exception &problem) {
    if (const auto *fehler = dynamic_cast<const Fehler *>(&problem))
        fehlerBox("- ", *fehler);
    else
        fehlerBox("- ", Fehler(0, {problem.what(), problem.what()}));
}

/// An empty head goes as it does when the operator leaves.
void messungStillVerlassen() try {
    messablauf().beimVerlassen(Weggang::Still);
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

} // namespace

void programmStarten() {
    setUncaughtReporter(reportUncaught);
    setBoxCaptions(boxCaption);
    setPreviewTexts(previewTexts);
    setHelpSource(helpSource);
    setTrailPerson([] { return gPrüfer; });
    controllerVorbereiten();
    einlaufVorbereiten();
    ergometerVorbereiten();
    bindScreens();
    form(frm::Splash).show();
}

void beendenOhneFrage() {
    static Timer nochmals(100);
    nochmals.setEnabled(!leitungFrei());
    if (nochmals.enabled()) {
        if (!nochmals.onTick)
            nochmals.onTick = beendenOhneFrage;
        return;
    }
    if (gEPModus)
        lastStillschweigendAb();
    if (gMotorEin)
        motorStillschweigendAus();
    if (loaded(frm::Messen) && !gMessungLäuft)
        messungStillVerlassen();
    for (const frm blatt : {frm::Blutdruck, frm::SecControl}) {
        if (auto *offen = dynamic_cast<Prüfblatt *>(loaded(blatt)))
            offen->stillVerlassen();
    }
    gDesktopAktiv = false;
    gDatenbank.close();
    QCoreApplication::exit(0);
}

void programmAufräumen() {
    gDesktopAktiv = false;
    for (Timer *timer : {&Timer1, &tiDrehzahl, &tiEinlauf, &ti_nSSTwo})
        timer->setEnabled(false);
    closePreviews();
    closeHelp();
    closeAllScreens();
    MSComm1.setPortOpen(false);
    MSComm2.setPortOpen(false);
    gDatenbank.close();
}
