#include "protocols/frmBlutdruck.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "session/sprache.h"

using platform::Text;

namespace {

struct Spalte {
    const char *name;
    Text kopf;
};
const Spalte spalten[] = {{"auf", {"auf", "Up"}},
                          {"ab", {"ab", "Down"}},
                          {"MU", {"Messunsicherheit", "Measurment uncertainty"}}};

constexpr int kopfzeilen = 3;

/// 1.000 is one thousand where the point parts thousands.
void fnc_OhnePunkt(QLineEdit &feld) {
    if (inDeutsch())
        feld.setText(feld.text().remove('.'));
}

} // namespace

frmBlutdruck::frmBlutdruck()
    : Prüfblatt({.inhalt = Inhalt::Blutdruck,
                 .titel = {"Messtechnische Kontrolle des integrierten Blutdruck-Systems",
                           "Metrological check of the integrated blood pressure system"},
                 .löschen = "9801- ",
                 .verlassen = "9802- ",
                 .speichern = "9803- ",
                 .gelöscht = {"Bestätigung!", "Confirmation!"},
                 .normalFehlt = "Um das Protokoll speichern zu können ist die Nummer des Normals "
                                "erforderlich!",
                 .gespeichert = "Data have been saved!",
                 .bestätigung = "Confirmation!",
                 .erstSchließen = true}) {
    const auto kopf = [this](const Text &worte, int zeile, int spalte, int breite = 1) {
        raster().addWidget(text(worte), zeile, spalte, 1, breite, Qt::AlignCenter);
    };
    kopf({"Richtiger Wert", "Correct Values"}, 0, 0);
    kopf({"Anzeige des Normals", "Display on the working standard"}, 1, 0);
    kopf({"mmHg", "mmHg"}, 2, 0);
    kopf({"Anzeige des Prüflings", "Display of the unit under test"}, 1, 1, 2);
    for (int spalte = 0; spalte < 3; ++spalte)
        kopf(spalten[spalte].kopf, 2, spalte + 1);
    for (int stufe = 0; stufe < static_cast<int>(druckstufen.size()); ++stufe)
        zeileAnlegen(stufe);
    reihen();
}

void frmBlutdruck::zeileAnlegen(int stufe) {
    const QString druck = QString::number(druckstufen[static_cast<size_t>(stufe)]);
    for (int spalte = 0; spalte < 3; ++spalte) {
        const auto &[name, kopf] = spalten[spalte];
        QLineEdit *wert =
            wertfeld("txt" + druck + name, stufe, name, kopf, {druck + " mmHg", druck + " mmHg"});
        raster().addWidget(wert, kopfzeilen + stufe, spalte + 1);
        if (spalte == 0)
            raster().addWidget(text({druck, druck}, wert), kopfzeilen + stufe, 0, Qt::AlignCenter);
        if (stufe > 0 && istMesswert(name))
            onLostFocus(wert, [wert] { fnc_OhnePunkt(*wert); });
    }
}
