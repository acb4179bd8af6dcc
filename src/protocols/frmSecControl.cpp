#include "protocols/frmSecControl.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "platform/fehler.h"

using platform::Text;

namespace {

struct Messgröße {
    const char *name, *spalte;
    Text kopf;
};
const Messgröße größen[] = {
    {"txtOhm",
     "SchutzleiterR",
     {"Schutzleiterwiderstand (Ohm)", "Protective conductor resistance (Ohm)"}},
    {"txtMOhm", "IsolationsR", {"Isolationswiderstand (MOhm)", "Insulation resistance (MOhm)"}},
    {"txtµA",
     "GeräteableitI",
     {"Ersatz-Geräteableitstrom (mA)", "Equivalent device leakage current (mA)"}}};

/// Elements 0, 1, 2 of each.
struct Element {
    const char *endung; ///< of the column
    Text kopf;
};
const Element elemente[] = {{"_GW", {"Grenzwert", "Limit"}},
                            {"", {"Messwert", "Measured value"}},
                            {"_MU", {"Messunsicherheit", "Measurement uncertainty"}}};

} // namespace

frmSecControl::frmSecControl()
    : Prüfblatt({.inhalt = Inhalt::SecControl,
                 .titel = {"Elektrosicherheitskontrolle von Kurbelergometern (STK)",
                           "Electrical safety check of crank ergometers (EST)"},
                 .löschen = "9901- ",
                 .verlassen = "9902- ",
                 .speichern = "9903- ",
                 .gelöscht = {"Meldung", "Message"},
                 .normalFehlt = "Um das Protokoll speichern zu können, ist die Nummer des "
                                "verwendeten Normals erforderlich!",
                 .gespeichert = " Data have been saved. ",
                 .bestätigung = " Confirmation",
                 .erstSchließen = false}) {
    QLineEdit *verfahren = textfeld("txtMessverfahren", "Messverfahren_STK");
    raster().addWidget(text({"Messverfahren", "Measuring method"}, verfahren), 0, 0);
    raster().addWidget(verfahren, 0, 1, 1, 3);
    raster().setRowMinimumHeight(1, 8);
    for (int spalte = 1; spalte <= 3; ++spalte)
        raster().setColumnStretch(spalte, 1);
    QLineEdit *felder[3][3];
    for (int element = 0; element < 3; ++element)
        raster().addWidget(text(elemente[element].kopf), 2, element + 1, Qt::AlignCenter);
    for (int größe = 0; größe < 3; ++größe) {
        const auto &[name, spalte, kopf] = größen[größe];
        for (int element = 0; element < 3; ++element) {
            const auto &[endung, elementkopf] = elemente[element];
            felder[größe][element] = wertfeld(QString("%1_%2").arg(name).arg(element), 0,
                                              QString(spalte) + endung, elementkopf, kopf);
            raster().addWidget(felder[größe][element], größe + 3, element + 1);
        }
        raster().addWidget(text(kopf, felder[größe][0]), größe + 3, 0);
    }
    reihen();
    for (int element = 0; element < 3; ++element) // all limits, all values, ... are typed in a go
        enterChain({felder[0][element], felder[1][element], felder[2][element], pbok()},
                   Qt::TabFocusReason);
}

// A unit is not shown as checked by a sheet without values, nor does the sheet go unasked.
void frmSecControl::leerAblegen() {
    throw Fehler(platform::fehlernummer::StatementFailed,
                 {"Ein Blatt ohne Messwerte wird nicht gespeichert. Bitte tragen Sie die Messwerte "
                  "ein, oder verlassen Sie das Fenster mit \"Abbrechen\".",
                  "A sheet without measured values is not saved. Please enter the measured values, "
                  "or leave the window with \"Cancel\"."});
}

void frmSecControl::vorhandenesVerlassen() {
    leereSicherheitszeileLöschen(protokollID());
}
