#include "masterdata/frmAendRez.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

#include "controls/eintrag.h"
#include "controls/umbruch.h"
#include "masterdata/frmRezepte.h"
#include "records/toleranz.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"lbRezName", "Recipe:"},
    {"lbToleranz", "S&pecification:"},
    {"FrSchritt", "Test Step"},
    {"lbSchritt", "Test step:"},
    {"lbDrehzahl", "Spee&d:"},
    {"lbLeistung", "Po&wer:"},
    {"lbPrArt", "&Type:"},
    {"pbSpeichern", "&Save"},
    {"pbNeu", "&New Step"},
    {"pbEinfuegen", "&Insert"},
    {"pbLoeschen", "De&lete"},
    {"FrSchritte", "Test Steps Of The Recipe"},
    {"pbFirst#tip", "First test step"},
    {"pbVorheriger#tip", "Previous test step"},
    {"pbNext#tip", "Next test step"},
    {"pbLetzter#tip", "Last test step"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

} // namespace

frmÄndRez::frmÄndRez() {
    ui.setupUi(this);
    mGitter.verbinden(ui.DBGridRez, "Messwerte");
    felderVerdrahten();
    on(ui.DBGridRez->selectionModel(), &QItemSelectionModel::currentRowChanged, [this] {
        if (!mGitter.selbst())
            fnc_SchrittAnzeigen();
    });
    // After saving or inserting the current row is one that the fields do not show.
    on(ui.DBGridRez, &QTableView::clicked, [this] { fnc_SchrittAnzeigen(); });
    onClick(ui.pbSpeichern, [this] { pbSpeichern_Click(); });
    onClick(ui.pbNeu, [this] { pbNeu_Click(); });
    onClick(ui.pbEinfuegen, [this] { pbEinfuegen_Click(); });
    onClick(ui.pbLoeschen, [this] { pbLoeschen_Click(); });
    onClick(ui.pbFirst, [this] { schrittWählen(0); });
    onClick(ui.pbVorheriger, [this] { schrittWählen(mGitter.zeile() - 1); });
    onClick(ui.pbNext, [this] { schrittWählen(mGitter.zeile() + 1); });
    onClick(ui.pbLetzter, [this] { schrittWählen(mGitter.schritte().count() - 1); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { pbexit_Click(); });
    onEscape([this] { ui.pbexit->click(); });
}

void frmÄndRez::felderVerdrahten() {
    for (QComboBox *box : {ui.cmbToleranz, ui.cmbPrArt})
        box->setCompleter(nullptr); // it would write into the box while a person types
    on(ui.cmbToleranz, &QComboBox::activated, [this] { cmbToleranz_Click(); });
    on(ui.cmbToleranz->lineEdit(), &QLineEdit::textEdited, [this] { cmbToleranz_Change(); });
    onKey(ui.cmbToleranz, [this](QKeyEvent &key) {
        msToleranzTaste = key.text().toUpper();
        return false;
    });
    onGotFocus(ui.cmbToleranz, [this] {
        msAltToleranz = ui.cmbToleranz->currentText();
        msToleranzTaste.clear(); // of the key that led away
    });
    onLostFocus(ui.cmbToleranz, [this] { cmbToleranz_LostFocus(); });
    enterChain({ui.cmbToleranz, ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt, ui.pbSpeichern});

    onGotFocus(ui.txtDrehzahl, [this] { msAltDrehzahl = ui.txtDrehzahl->text(); });
    onLostFocus(ui.txtDrehzahl, [this] { txtDrehzahl_LostFocus(); });

    onGotFocus(ui.txtLeistung, [this] { msAltLeistung = ui.txtLeistung->text(); });
    onLostFocus(ui.txtLeistung, [this] { txtLeistung_LostFocus(); });

    on(ui.cmbPrArt->lineEdit(), &QLineEdit::textEdited, [this] { cmbPrArt_Change(); });
    onKey(ui.cmbPrArt, [this](QKeyEvent &key) {
        msPrArtTaste = key.text().toUpper();
        return false;
    });
    onGotFocus(ui.cmbPrArt, [this] {
        msAltPrArt = ui.cmbPrArt->currentText();
        msPrArtTaste.clear(); // of the key that led away
    });
    onLostFocus(ui.cmbPrArt, [this] { cmbPrArt_LostFocus(); });
}

void frmÄndRez::beschriften() {
    const QString recipe = caption(); // names it, from whoever opened the screen
    beschriftungenSetzen(ui, *this, english);
    setCaption(recipe);
}

// What a person has typed since stays, whatever came to the front meanwhile.
void frmÄndRez::Form_Activate() try {
    beschriften();
    if (!mGezeigt)
        zeigen();
} catch (const Fehler &fehler) {
    fehlerBox("1122 - ", fehler);
}

void frmÄndRez::zeigen() {
    ui.cmbPrArt->clear();
    ui.cmbPrArt->addItems({inSprache(Prüfart::leistungText), inSprache(Prüfart::drehzahlText)});
    mGitter.beschriften();
    fnc_Fill_CmbToleranz();
    if (const auto *list = loaded<frmRezepte>()) {
        mToleranz = list->toleranz();
        eintragSetzen(ui.cmbToleranz, mToleranz);
        ui.laRezName->setText(umbrechbar(list->rezeptname()));
    }
    mGitter.zeigen(kopierteSchritte());
    felderLeeren();
    mOhneSchritt = true;
    mNeuerSchritt = false;
    mGitter.gehen(0);
    fnc_SchrittAnzeigen();
    ui.cmbToleranz->setFocus();
    msAltToleranz = ui.cmbToleranz->currentText();
    mGezeigt = true;
}

bool frmÄndRez::Form_QueryUnload() {
    const Abschluss decided = std::exchange(mnAbschluss, Abschluss::Offen);
    const bool commit = decided == Abschluss::Übernehmen;
    // By the close box nothing is decided: the copy stays as it is.
    return (!commit && decided != Abschluss::Verwerfen) || kopieAbschließen(commit);
}

/// False when it failed: the screen stays, so that it can be tried again. The only copy is not
/// discarded.
bool frmÄndRez::kopieAbschließen(bool übernehmen) {
    übernehmen = übernehmen || mKopie.einzige();
    try {
        if (übernehmen)
            mKopie.übernehmen(gRezeptID);
        else
            mKopie.verwerfen();
        return true;
    } catch (const Fehler &fehler) {
        fehlerBox(übernehmen ? "1123 - " : "1124 - ", fehler);
        return false;
    }
}

void frmÄndRez::Form_Unload() {
    auto *list = loaded<frmRezepte>();
    if (!list)
        return;
    hide();            // so that the list comes up over the window that it came from
    list->showModal(); // its activation reads the recipe anew
}

void frmÄndRez::aktualisieren() {
    ui.pbNeu->setEnabled(!mNeuerSchritt);
    ui.pbSpeichern->setEnabled(mNeuerSchritt || !mOhneSchritt);
    ui.pbEinfuegen->setEnabled(!mOhneSchritt);
    ui.pbLoeschen->setEnabled(!mOhneSchritt);
}

// The specification -------------------------------------------------------------------------------

void frmÄndRez::fnc_Fill_CmbToleranz() try {
    ui.cmbToleranz->clear();
    ui.cmbToleranz->addItems(toleranznamen());
} catch (const Fehler &fehler) {
    fehlerBox("NR01- ", fehler);
}

void frmÄndRez::cmbToleranz_Change() {
    struct Kürzel {
        Text taste;
        Text name;
    };
    static const Kürzel kürzel[] = {
        {{"M", "M"}, {"medizinische Geräte", "Medical Devices"}},
        {{"S", "S"}, {"stationäre Trainingsgeräte", "Stationary Devices"}},
        {{"O", "W"}, {"ohne Toleranz", "Without Tolerance"}},
    };
    const QString taste = std::exchange(msToleranzTaste, {});
    if (taste.isEmpty())
        return;
    for (const Kürzel &k : kürzel) {
        if (taste == inSprache(k.taste)) {
            eintragSetzen(ui.cmbToleranz, inSprache(k.name));
            ui.cmbToleranz->lineEdit()->selectAll();
            cmbToleranz_Click();
            return;
        }
    }
    beep();
    eintragSetzen(ui.cmbPrArt, {});
}

void frmÄndRez::cmbToleranz_Click() try {
    const QString name = ui.cmbToleranz->currentText();
    rezeptToleranzÄndern(gRezeptID, name);
    mToleranz = name;
} catch (const Fehler &fehler) {
    eintragSetzen(ui.cmbToleranz, mToleranz); // the one that is in force still
    fehlerBox("1120 - ", fehler);
}

void frmÄndRez::cmbToleranz_LostFocus() {
    const QString name = ui.cmbToleranz->currentText();
    if (name != msAltToleranz)
        mbGeändert = true;
    if (name != mToleranz)
        eintragSetzen(ui.cmbToleranz, mToleranz); // the one that is in force
}

// The fields of the step --------------------------------------------------------------------------

Schritt frmÄndRez::eingegeben() const {
    return {ui.laPrSchritt->text().toInt(), ui.txtDrehzahl->text(), ui.txtLeistung->text(),
            Prüfart::ausAnfang(ui.cmbPrArt->currentText())};
}

/// What is loaded into a field is no change by a person, also when the field has the keyboard.
void frmÄndRez::altWerteMerken() {
    msAltDrehzahl = ui.txtDrehzahl->text();
    msAltLeistung = ui.txtLeistung->text();
    msAltPrArt = ui.cmbPrArt->currentText();
}

void frmÄndRez::felderLeeren() {
    ui.laPrSchritt->clear();
    ui.txtDrehzahl->clear();
    ui.txtLeistung->clear();
    eintragSetzen(ui.cmbPrArt, {});
    altWerteMerken();
}

void frmÄndRez::fnc_SchrittAnzeigen() try {
    if (!mGitter.leer()) {
        const Schritt step = schrittAus(mGitter.aktuell());
        ui.laPrSchritt->setText(QString::number(step.nummer));
        ui.txtDrehzahl->setText(step.drehzahl);
        ui.txtLeistung->setText(step.leistung);
        eintragSetzen(ui.cmbPrArt,
                      inSprache(step.prüfart == Prüfart::Leistung ? Prüfart::leistungText
                                                                  : Prüfart::drehzahlText));
        altWerteMerken();
        mOhneSchritt = mNeuerSchritt = false;
    }
    aktualisieren();
} catch (const Fehler &fehler) {
    fehlerBox("1121 - ", fehler);
}

/// Takes the new text of a field that is left, or tells what is wrong with it and sets it back.
void frmÄndRez::wertAnnehmen(QLineEdit *feld, const QString &altWert, Wertprüfung prüfung,
                             const Wertmeldung &meldungen) {
    if (prüfung == Wertprüfung::Gültig) {
        mbGeändert = true;
        return;
    }
    const QString good = altWert; // taking the keyboard back notes the text anew
    meldung(prüfung == Wertprüfung::NichtNumerisch ? meldungen.keineZahl : meldungen.außerhalb,
            Exclamation, meldungen.titel);
    feld->setText(good);
    feld->setFocus();
    // Behind the change of keyboard, which takes a selection away.
    QMetaObject::invokeMethod(feld, &QLineEdit::selectAll, Qt::QueuedConnection);
}

void frmÄndRez::txtDrehzahl_LostFocus() try {
    const QString text = ui.txtDrehzahl->text();
    if (text == msAltDrehzahl || text.isEmpty())
        return;
    wertAnnehmen(ui.txtDrehzahl, msAltDrehzahl, drehzahlPrüfen(text, grenzenÄndRez),
                 {{"Drehzahl muss ein nummerischer Wert sein!",
                   "Number of revolutions must be a numerical value!"},
                  {"Drehzahl liegt außerhalb des gültigen Bereiches!",
                   "Number of revolutions is outside the valid range!"},
                  {"Eingabefehler", "Input Error"}});
} catch (const Fehler &fehler) {
    fehlerBox("1135 - ", fehler);
}

void frmÄndRez::txtLeistung_LostFocus() try {
    const QString text = ui.txtLeistung->text();
    if (text == msAltLeistung || text.isEmpty())
        return;
    wertAnnehmen(
        ui.txtLeistung, msAltLeistung, leistungPrüfen(text, grenzenÄndRez),
        {{"Leistung muss ein nummerischer Wert sein!", "Power must be a numerical value!"},
         {"Leistung liegt außerhalb des gültigen Bereiches!", "Power is outside the valid range!"},
         {"Eingabefehler!", "Input Error!"}});
} catch (const Fehler &fehler) {
    fehlerBox("1136 - ", fehler);
}

void frmÄndRez::cmbPrArt_Change() {
    const QString taste = std::exchange(msPrArtTaste, {});
    if (taste.isEmpty())
        return;
    const std::optional<QString> text = Prüfart::ausTaste(taste);
    if (!text)
        beep();
    eintragSetzen(ui.cmbPrArt, text.value_or(QString()));
    ui.cmbPrArt->lineEdit()->selectAll();
}

void frmÄndRez::cmbPrArt_LostFocus() {
    if (ui.cmbPrArt->currentText() != msAltPrArt)
        mbGeändert = true;
    if (mnAbschluss == Abschluss::NeuerSchritt) {
        mnAbschluss = Abschluss::Offen;
        ui.pbSpeichern->setFocus();
    }
}
