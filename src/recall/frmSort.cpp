#include "recall/frmSort.h"

#include <QDir>
#include <QPainter>
#include <QPixmap>

#include "platform/clock.h"
#include "platform/export.h"
#include "recall/beschaeftigt.h"
#include "recall/kundenblatt.h"
#include "session/mappe.h"
#include "session/sprache.h"
#include "store/sqltext.h"
#include "windows/stil.h"

using namespace platform;

namespace {

constexpr int fälligSpalte = 5;
constexpr int zeichengröße = 16;

const Text überfällig{"überfällig", "overdue"},
    dieserMonat{"in diesem Monat fällig", "due this month"};

Zeichen zeichenFür(Fälligkeit fällig) {
    return fällig == Fälligkeit::Überfällig ? Zeichen::Schlecht : Zeichen::Achtung;
}

QPixmap bild(Zeichen zeichen) {
    constexpr int dichte = 2;
    QPixmap bild(zeichengröße * dichte, zeichengröße * dichte);
    bild.setDevicePixelRatio(dichte);
    bild.fill(Qt::transparent);
    QPainter painter(&bild);
    zeichenMalen(painter, QRectF(0, 0, zeichengröße, zeichengröße), zeichen);
    return bild;
}

} // namespace

frmSort::frmSort()
    : Filtermaske({.filter = Filterart::Wiedervorlage,
                   .titel = {"Kundendatenbank", "Customer Database"},
                   .von = {"Nächste Kalibrierung &von:", "Next calibration &from:"},
                   .listenTag = "B1_07 - ",
                   .köpfe = {{"Kunde", "Customer"},
                             {"Straße", "Street"},
                             {"PLZ", "ZIP Code"},
                             {"Ort", "City/Town"},
                             {"Kalibrierdatum", "Calibration Date"},
                             {"Nächste Kalibrierung", "Next Calibration"},
                             {"Hersteller", "Manufacturer"},
                             {"Gerätetyp", "Type"},
                             {"IdentNr", "Ident No."}},
                   .breiten = {0, 150, 64, 120, 116, 160, 120, 120, 100}}) {
    ui.pbDelete->hide();
    ui.laAnzProt->hide();
    onClick(ui.pbExcel, [this] { pbExcel_Click(); });
    onClick(ui.pbBriefe, [this] { pbBriefe_Click(); });
}

void frmSort::Form_Load() {
    Filtermaske::Form_Load();
    ui.pbDelete->setText({});
    ui.anzÜberfällig->zeige(zeichenFür(Fälligkeit::Überfällig), inSprache(überfällig));
    ui.anzFällig->zeige(zeichenFür(Fälligkeit::DieserMonat), inSprache(dieserMonat));
    ui.pbBriefe->setToolTip(inSprache(
        {"Schreibt für Serienbriefe je Kunde eine Zeile mit seinen Geräten, die bis zum Ende "
         "dieses Monats fällig sind; ist ein Zeitraum gewählt, mit denen, die darin fällig sind.",
         "Writes for form letters one line per customer with his units that are due up to the end "
         "of this month; when a period is chosen, with those that are due within it."}));
}

void frmSort::füllen(int position) {
    switch (position) {
    case 0:
        return fnc_FillCmbPLZ();
    case 1:
        return fnc_FillCmbOrt();
    case 2:
        return fnc_FillCmbKunden();
    case 3:
        return fnc_FillCmbHerst();
    default:
        return fnc_FillCmbTyp();
    }
}

void frmSort::fnc_FillCmbKunden() {
    gefangen("B1_01 - ", [this] { listeFüllen(2); })();
}

void frmSort::fnc_FillCmbPLZ() {
    gefangen("B1_02 - ", [this] { listeFüllen(0); })();
}

void frmSort::fnc_FillCmbOrt() {
    gefangen("B1_03 - ", [this] { listeFüllen(1); })();
}

void frmSort::fnc_FillCmbTyp() {
    gefangen("B1_04 - ", [this] { listeFüllen(4); })();
}

void frmSort::fnc_FillCmbHerst() {
    gefangen("B1_05 - ", [this] { listeFüllen(3); })();
}

void frmSort::fnc_Abfrage() {
    auflisten({}); // what cannot be read is not what the filters say
    auflisten(wiedervorlagen(mKette.fnc_Where(), mKette.fnc_OrderBy()));
}

void frmSort::auflisten(std::vector<Wiedervorlage> zeilen) {
    mZeilen = std::make_shared<const std::vector<Wiedervorlage>>(std::move(zeilen));
    ui.laDatei->clear();
    zeigen(static_cast<int>(mZeilen->size()),
           [this](int nummer) { return zeile((*mZeilen)[static_cast<size_t>(nummer)]); });
}

Trefferliste::Zeile frmSort::zeile(const Wiedervorlage &vorlage) const try {
    const Wiedervorlagetexte texte = texteLesen(vorlage);
    const QDate kalibriert = datumAus(vorlage.kalibriert);
    Trefferliste::Zeile zeile{.zellen = {texte.kunde, texte.straße, texte.plz, texte.ort,
                                         datumText(kalibriert), fälligImMonat(kalibriert),
                                         texte.hersteller, texte.gerätetyp, texte.identNr}};
    const Fälligkeit fällig =
        texte.neueste ? fälligkeit(kalibriert, now().date()) : Fälligkeit::Keine;
    if (fällig != Fälligkeit::Keine) {
        const bool zuSpät = fällig == Fälligkeit::Überfällig;
        zeile.markierteSpalte = fälligSpalte;
        zeile.zeichen = bild(zeichenFür(fällig));
        zeile.grund = zuSpät ? farben().schlechtGrund : farben().offenGrund;
        zeile.worte = inSprache(zuSpät ? überfällig : dieserMonat);
    }
    return zeile;
} catch (const Fehler &) { // the next statement that a person asks for tells of it
    return {};
}

void frmSort::pbExcel_Click() {
    if (!spracheGewählt())
        return;
    const Beschäftigt warten;
    ui.laDatei->clear();
    try {
        fnc_KundenExport(mZeilen);
        if (!gMappe)
            return;
        fnc_ExcelFreigeben();
        gespeichert(gMappenpfad);
    } catch (const Fehler &fehler) {
        gMappe.reset(); // half of it is handed to nobody
        fehlerBox("B1_08 - ", fehler);
    }
}

void frmSort::pbBriefe_Click() try {
    const Beschäftigt warten;
    ui.laDatei->clear();
    const QByteArray briefe = serienbrief(*mZeilen, now().date(), gefiltertNachDatum());
    if (briefe.isEmpty()) {
        ui.laDatei->setText(inSprache({"Es ist kein Gerät fällig.", "No unit is due."}));
        return;
    }
    gespeichert(exportFile(inSprache({"Serienbrief", "FormLetter"}), "csv", briefe));
} catch (const Fehler &fehler) {
    fehlerBox("B1_09 - ", fehler);
}

void frmSort::gespeichert(const QString &pfad) {
    ui.laDatei->setText(inSprache({"Gespeichert: ", "Saved: "}) +
                        QDir::toNativeSeparators(QDir::current().relativeFilePath(pfad)));
}
