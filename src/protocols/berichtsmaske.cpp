#include "protocols/berichtsmaske.h"

#include <QDir>

#include <algorithm>

#include "platform/fehler.h"
#include "protocols/pdfausgabe.h"
#include "records/protokollnummer.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"lbKunde", "&Customer:"},
    {"lbBericht", "&Protocol:"},
    {"FrSeiten", "Pages"},
    {"rbDruck1", "Cover S&heet"},
    {"rbDruck2_0", "Measuring Results &without Conformity"},
    {"rbDruck2_1", "&Measuring Results with Conformity"},
    {"rbDruck3", "&EST"},
    {"rbDruck4", "Measuring Results &BP"},
    {"cbKomplett", "C&omplete Set"},
    {"cbVorschau", "Pre&view"},
    {"OKButton", "Pr&int"},
    {"pbSichern", "&Save As PDF"},
    {"pbDelete", "&Delete"},
    {"pbDeleteExt", "E&xtended ..."},
    {"pbExport", "Expor&t ..."},
    {"acMappe", "&Workbook (.xlsx)"},
    {"acCsv", "&CSV Tables"},
    {"acJson", "&JSON"},
    {"CancelButton", "C&lose"},
};

} // namespace

QString berichtsname(const QString &eintrag) {
    const qsizetype strich = eintrag.lastIndexOf('-');
    QString name = eintrag.mid(strich + 1);
    if (name.startsWith(' '))
        name.remove(0, 1);
    return strich < 0 || name.isEmpty() ? QString(" ") : name;
}

Berichtsmaske::Berichtsmaske(const Art &art) : mArt(art) {
    ui.setupUi(this);
    ui.cmbBericht->setCompleter(nullptr); // what is typed is what counts
    on(ui.cmbBericht, &QComboBox::currentTextChanged, [this] {
        fnc_SeitenFreigeben();
        ui.OKButton->setEnabled(!ui.cmbBericht->currentText().isEmpty());
        ui.pbSichern->setEnabled(ui.OKButton->isEnabled());
        auswahlGeändert();
    });
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.pbSichern, [this] { pbSichern_Click(); });
    onClick(ui.CancelButton, [this] { unload(); });
    on(ui.cbVorschau, &QCheckBox::toggled, [this]() {
        Crt1.ziel = ui.cbVorschau->isChecked() ? Berichtsmaschine::Ziel::Vorschau
                                               : Berichtsmaschine::Ziel::Drucker;
    });
    onEscape([this] { unload(); });
}

void Berichtsmaske::Form_Load() {
    mbSichern = false;
    beschriftungenSetzen(ui, *this, english);
    setCaption(inSprache(mArt.titel));
    seitenSperren();
    ui.OKButton->setEnabled(false);
    ui.pbSichern->setEnabled(false);
    fnc_ProtokollListe();
}

void Berichtsmaske::Form_Activate() {
    if (mbKeineProtokolle) {
        meldung({"Es existieren keine Protokolle!", "There are no protocols!"}, Exclamation,
                {"Meldung", "Message"});
        unload();
        return;
    }
    if (gBerichtProtokoll > 0) {
        ui.cmbBericht->setEditText(QString("%1 - %2").arg(gBerichtProtokoll).arg(gBerichtWahl));
        fnc_SeitenFreigeben();
        ui.OKButton->setEnabled(true);
    }
}

bool Berichtsmaske::Form_QueryUnload() {
    gBerichtProtokoll = 0;
    gBerichtWahl = " ";
    return true;
}

void Berichtsmaske::eintragen(const QStringList &einträge, bool ersterGewählt) {
    ui.cmbBericht->clear();
    ui.cmbBericht->addItems(einträge);
    ui.cmbBericht->setCurrentIndex(ersterGewählt && !einträge.isEmpty() ? 0 : -1);
}

Schlüssel Berichtsmaske::nummer(int ab) const {
    return protokollNrAus(ui.cmbBericht->currentText().mid(ab));
}

void Berichtsmaske::seitenSperren() {
    for (const Seitenausgabe &seite : seitenausgaben())
        wählbar(seite, false);
}

void Berichtsmaske::wählbar(const Seitenausgabe &seite, bool ja) {
    for (const auto wahl : seite.wahl)
        (ui.*wahl)->setEnabled(ja);
}

void Berichtsmaske::fnc_SeitenFreigeben() try {
    const Schlüssel id = nummer(mArt.seitenNummerAb);
    for (const Seitenausgabe &seite : seitenausgaben())
        wählbar(seite, vorhanden(mArt.bestand, *seitendaten(seite.seite).inhalt, id));
    for (QRadioButton *knopf : {ui.rbDruck2_1, ui.rbDruck3, ui.rbDruck4}) {
        if (knopf->isEnabled()) {
            knopf->setChecked(true);
            return;
        }
    }
} catch (const Fehler &fehler) {
    fehlerBox("1087 - ", fehler);
}

void Berichtsmaske::fnc_GeräteKlasse() try {
    if (const std::int16_t klasse = geräteklasse(mArt.bestand, gBerichtProtokoll))
        mnGeräteKlasse = klasse; // else that of the last run stays
} catch (const Fehler &fehler) {
    fehlerBox(mArt.klasseTag, fehler);
}

void Berichtsmaske::OKButton_Click() try {
    Crt1.daten = QDir::current().absoluteFilePath(datenbankName);
    if (ui.cmbBericht->findText(ui.cmbBericht->currentText(), Qt::MatchExactly) < 0 ||
        ui.cmbBericht->currentText().isEmpty()) {
        meldung({"Dieses Protokoll existiert nicht!", "This protocol does not exist!"}, Exclamation,
                {"Eingabefehler", "Input Error"});
        ui.cmbBericht->setCurrentIndex(-1);
        ui.cmbBericht->clearEditText();
        mbSichern = false;
        return;
    }
    gBerichtWahl = berichtsname(ui.cmbBericht->currentText().mid(mArt.nummerAb));
    gBerichtProtokoll = nummer(mArt.nummerAb);
    fnc_GeräteKlasse();
    if (mbSichern) {
        if (!fnc_PrintPDF(Umschalten::AufPDF)) {
            mbSichern = false;
            return;
        }
        pdfVorbereiten(gBerichtProtokoll);
    }
    drucken();
    abschließen();
} catch (const Fehler &fehler) {
    abschließen();
    fehlerBox(mArt.druckTag, fehler);
}

void Berichtsmaske::abschließen() {
    if (std::exchange(mbSichern, false))
        fnc_PrintPDF(Umschalten::Zurück);
}

void Berichtsmaske::drucken() {
    const bool alle = ui.cbKomplett->isChecked();
    for (const Seitenausgabe &seite : seitenausgaben()) {
        if (std::any_of(seite.wahl.begin(), seite.wahl.end(), [&](const auto wahl) {
                return alle ? (ui.*wahl)->isEnabled() : (ui.*wahl)->isChecked();
            }))
            seiteDrucken(seite);
    }
}

void Berichtsmaske::seiteDrucken(const Seitenausgabe &seite) {
    try {
        stufen(seite.seite, mArt.bestand, gBerichtProtokoll, ui.rbDruck2_1->isChecked());
    } catch (const Fehler &fehler) {
        fehlerBox(seite.stufenTag[mArt.bestand == Bestand::Archiv], fehler);
        return;
    }
    if (const QString layout = layoutname(seite, mnGeräteKlasse); !layout.isEmpty())
        Crt1.layout = QDir::current().absoluteFilePath(layout);
    const QString titel = inSprache({"Protokoll", "Protocol"}) +
                          QString(" %1 - %2").arg(gBerichtProtokoll).arg(inSprache(seite.titel));
    const QByteArray pdf = Crt1.ausführen(mArt.bestand, gBerichtProtokoll, titel);
    if (mbSichern) {
        if (!pdf.isEmpty()) // another printer's file is its own
            pdfSpeichern(pdf, seite, gBerichtProtokoll);
    } else if (!pdf.isEmpty()) {
        throw Fehler(fehlernummer::PrinterError,
                     {"Es ist kein Drucker eingerichtet. 'Sichern' legt die Seiten als PDF ab.",
                      "No printer is installed. 'Save' writes the pages as PDF."});
    }
    if (seite.zählt)
        gedruckt();
}

void Berichtsmaske::pbSichern_Click() {
    ui.cbVorschau->setChecked(false);
    mbSichern = true;
    OKButton_Click();
}
