#include "protocols/berichtsmaske.h"

#include <QDir>

#include "platform/fehler.h"
#include "platform/runtime.h"
#include "protocols/pdfausgabe.h"
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
    {"CancelButton", "C&lose"},
};

// The order of a complete set.
constexpr std::array alleSeiten{Berichtsseite::Deckblatt, Berichtsseite::Messergebnisse,
                                Berichtsseite::Blutdruck, Berichtsseite::SecControl};

Text seitenname(Berichtsseite seite) {
    switch (seite) {
    case Berichtsseite::Deckblatt:
        return {"Deckblatt", "Cover Sheet"};
    case Berichtsseite::Messergebnisse:
        return {"Messergebnisse", "Measuring Results"};
    case Berichtsseite::Blutdruck:
        return {"Blutdruck", "Blood Pressure"};
    case Berichtsseite::SecControl:
        return {"STK", "EST"};
    }
    return {};
}

} // namespace

QString berichtsname(const QString &eintrag) {
    const qsizetype strich = eintrag.lastIndexOf('-');
    QString name = eintrag.mid(strich + 1);
    if (name.startsWith(' '))
        name.remove(0, 1);
    return strich < 0 || name.isEmpty() ? QString(" ") : name;
}

QString layoutname(Berichtsseite seite, std::int16_t klasse) {
    const QString vorn = inDeutsch() ? "" : "eng_";
    switch (seite) {
    case Berichtsseite::Blutdruck:
        return vorn + "Blutdruck.rpt";
    case Berichtsseite::SecControl:
        return vorn + "SecControl.rpt";
    default:
        break;
    }
    if (klasse == 0)
        return {};
    return vorn + (seite == Berichtsseite::Deckblatt ? "deckblatt" : "messergebnisse") +
           (klasse == 2 ? "1" : "") + ".rpt";
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
    return static_cast<Schlüssel>(Val(ui.cmbBericht->currentText().mid(ab)));
}

QAbstractButton *Berichtsmaske::wahl(Berichtsseite seite) const {
    switch (seite) {
    case Berichtsseite::Deckblatt:
        return ui.rbDruck1;
    case Berichtsseite::Messergebnisse:
        return ui.rbDruck2_0;
    case Berichtsseite::SecControl:
        return ui.rbDruck3;
    case Berichtsseite::Blutdruck:
        return ui.rbDruck4;
    }
    return nullptr;
}

void Berichtsmaske::seitenSperren() {
    for (QWidget *knopf : std::initializer_list<QWidget *>{ui.rbDruck1, ui.rbDruck2_0,
                                                           ui.rbDruck2_1, ui.rbDruck3, ui.rbDruck4})
        knopf->setEnabled(false);
}

void Berichtsmaske::fnc_SeitenFreigeben() try {
    const Schlüssel id = nummer(mArt.seitenNummerAb);
    const auto hat = [&](Inhalt inhalt) { return vorhanden(mArt.bestand, inhalt, id); };
    ui.rbDruck4->setEnabled(hat(Inhalt::Blutdruck));
    ui.rbDruck3->setEnabled(hat(Inhalt::SecControl));
    const bool messwerte = hat(Inhalt::Messwerte);
    for (QRadioButton *knopf : {ui.rbDruck1, ui.rbDruck2_0, ui.rbDruck2_1})
        knopf->setEnabled(messwerte);
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
    if (ui.cbKomplett->isChecked()) {
        for (const Berichtsseite seite : alleSeiten) {
            if (wahl(seite)->isEnabled())
                seiteDrucken(seite);
        }
        return;
    }
    if (ui.rbDruck1->isChecked())
        seiteDrucken(Berichtsseite::Deckblatt);
    else if (ui.rbDruck2_0->isChecked() || ui.rbDruck2_1->isChecked())
        seiteDrucken(Berichtsseite::Messergebnisse);
    else if (ui.rbDruck3->isChecked())
        seiteDrucken(Berichtsseite::SecControl);
    else if (ui.rbDruck4->isChecked())
        seiteDrucken(Berichtsseite::Blutdruck);
}

void Berichtsmaske::seiteDrucken(Berichtsseite seite) {
    try {
        stufen(seite, mArt.bestand, gBerichtProtokoll, ui.rbDruck2_1->isChecked());
    } catch (const Fehler &fehler) {
        fehlerBox(mArt.stufenTag[static_cast<int>(seite) - 1], fehler);
        return;
    }
    if (const QString layout = layoutname(seite, mnGeräteKlasse); !layout.isEmpty())
        Crt1.layout = QDir::current().absoluteFilePath(layout);
    const QString titel =
        inSprache({"Protokoll", "Protocol"}) +
        QString(" %1 - %2").arg(gBerichtProtokoll).arg(inSprache(seitenname(seite)));
    const QByteArray pdf = Crt1.ausführen(mArt.bestand, gBerichtProtokoll, titel);
    if (mbSichern) {
        if (!pdf.isEmpty()) // another printer's file is its own
            pdfSpeichern(pdf, seite, gBerichtProtokoll);
    } else if (!pdf.isEmpty()) {
        throw Fehler(fehlernummer::PrinterError,
                     {"Es ist kein Drucker eingerichtet. 'Sichern' legt die Seiten als PDF ab.",
                      "No printer is installed. 'Save' writes the pages as PDF."});
    }
    if (seite != Berichtsseite::Deckblatt)
        gedruckt();
}

void Berichtsmaske::pbSichern_Click() {
    ui.cbVorschau->setChecked(false);
    mbSichern = true;
    OKButton_Click();
}
