// The steps of the new recipe: entering, checking, storing, renumbering, and moving among them.
#include "masterdata/frmNeuRezept.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

#include "platform/runtime.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

const Schrittliste rezepte("Rezepte");

} // namespace

void frmNeuRezept::schritteVerdrahten() {
    onLostFocus(ui.txtDrehzahl, [this] { txtDrehzahl_LostFocus(); });
    onLostFocus(ui.txtLeistung, [this] { txtLeistung_LostFocus(); });
    enterChain({ui.txtDrehzahl, ui.txtLeistung, ui.cmbPrArt});

    ui.cmbPrArt->setCompleter(nullptr); // a key completes the text by itself
    onKey(ui.cmbPrArt, [this](QKeyEvent &taste) {
        msPrArtTaste = taste.text().toUpper();
        mbPrArtTaste = !msPrArtTaste.isEmpty();
        return false;
    });
    on(ui.cmbPrArt->lineEdit(), &QLineEdit::textEdited, [this] { cmbPrArt_Change(); });
    on(ui.cmbPrArt, &QComboBox::editTextChanged, [this] {
        mnPrüfart = static_cast<std::int16_t>(Prüfart::ausText(ui.cmbPrArt->currentText()));
    });
    // Arrow keys pick, too, and must not lose the keyboard at the first press.
    on(ui.cmbPrArt, &QComboBox::activated, [this] { speichernMöglich(); });
    // Neither must leaving it for another field.
    onLostFocus(ui.cmbPrArt, [this] { speichernMöglich(); });
    onEnter(ui.cmbPrArt, [this] { fnc_SpeichernFreigeben(); });

    onClick(ui.pbSave, [this] { pbSave_Click(); });
    onClick(ui.pbAddNew, [this] { fnc_NeuerSchritt(); });
    onClick(ui.pbEinfuegen, [this] { pbEinfuegen_Click(); });
    onClick(ui.pbLoeschen, [this] { pbLoeschen_Click(); });
    onClick(ui.pbKopie, [this] { pbKopie_Click(); });
    onClick(ui.pbFirst, [this] { pbFirst_Click(); });
    onClick(ui.pbLast, [this] { pbLast_Click(); });
    onClick(ui.pbNext, [this] { pbNext_Click(); });
    onClick(ui.pbPrevious, [this] { pbPrevious_Click(); });

    on(ui.DBGridRez->selectionModel(), &QItemSelectionModel::currentRowChanged,
       [this] { DBGridRez_RowColChange(); });
    // A click on the row that is current already shows it, too.
    on(ui.DBGridRez, &QTableView::clicked, [this] { DBGridRez_RowColChange(); });
    onEnter(ui.DBGridRez, [this] { ui.txtDrehzahl->setFocus(); });
}

Schritt frmNeuRezept::gezeigterSchritt() const {
    return {mnSchritt, ui.txtDrehzahl->text(), ui.txtLeistung->text(), mnPrüfart};
}

void frmNeuRezept::schrittnummerZeigen(int nummer) {
    mnSchritt = static_cast<std::int16_t>(nummer);
    ui.lbStepCount->setText(nummer == 0 ? QString() : QString::number(nummer));
}

void frmNeuRezept::felderLeeren() {
    ui.txtDrehzahl->clear();
    ui.txtLeistung->clear();
    ui.cmbPrArt->setCurrentIndex(-1);
}

/// Reads the steps anew and stands on the row, or on the nearest there is.
void frmNeuRezept::gitterZeigen(int zeile) {
    mGitter.zeigen(gespeicherteSchritte(gRezeptID));
    mGitter.gehen(zeile);
    ui.pbok->setEnabled(!mGitter.leer()); // no finished recipe without steps
    if (!mGitter.leer())
        ui.pbKopie->setEnabled(false);
}

void frmNeuRezept::fnc_SchrittAnzeigen() try {
    if (mGitter.leer())
        return;
    const Schritt schritt = schrittAus(mGitter.aktuell());
    schrittnummerZeigen(schritt.nummer);
    ui.txtDrehzahl->setText(schritt.drehzahl);
    ui.txtLeistung->setText(schritt.leistung);
    ui.cmbPrArt->setCurrentIndex(schritt.prüfart - 1); // in the order of the codes
    for (QPushButton *button : {ui.pbAddNew, ui.pbEinfuegen, ui.pbLoeschen})
        button->setEnabled(true);
} catch (const Fehler &fehler) {
    fehlerBox("1025 - ", fehler);
}

/// Where the decimal sign is a point, the step would ask for ten times as much without it.
void frmNeuRezept::ohneTausenderpunkte(QLineEdit *feld) {
    if (numberLocale().decimalPoint() == ",")
        feld->setText(fnc_OhnePunkt(feld->text()));
}

bool frmNeuRezept::txtDrehzahl_LostFocus() try {
    ohneTausenderpunkte(ui.txtDrehzahl);
    if (std::exchange(mbNavigation, false) || ui.txtDrehzahl->text().isEmpty())
        return true;
    return wertAnnehmen(ui.txtDrehzahl, drehzahlPrüfen(ui.txtDrehzahl->text(), grenzenNeuRezept),
                        {"Drehzahl muss ein nummerischer Wert sein!",
                         "Number of revolutions has to be a numeric value!"},
                        {"Drehzahl liegt außerhalb des gültigen Bereiches.",
                         "Number of revolution is outside the valid range."});
} catch (const Fehler &fehler) {
    fehlerBox("1039 - ", fehler);
    return false;
}

bool frmNeuRezept::txtLeistung_LostFocus() try {
    if (ui.txtLeistung->text().isEmpty())
        return true;
    ohneTausenderpunkte(ui.txtLeistung);
    return wertAnnehmen(
        ui.txtLeistung, leistungPrüfen(ui.txtLeistung->text(), grenzenNeuRezept),
        {"Leistung muss ein nummerischer Wert sein!", "Power has to be a numeric value!"},
        {"Leistung liegt außerhalb des gültigen Bereiches", "Power is outside the valid range!"});
} catch (const Fehler &fehler) {
    fehlerBox("1040 - ", fehler);
    return false;
}

/// Checks the field that has the keyboard as when a person leaves it.
bool frmNeuRezept::feldGeprüft() {
    if (focusWidget() == ui.txtDrehzahl)
        return txtDrehzahl_LostFocus();
    return focusWidget() != ui.txtLeistung || txtLeistung_LostFocus();
}

bool frmNeuRezept::wertAnnehmen(QLineEdit *feld, Wertprüfung prüfung, const Text &nichtNumerisch,
                                const Text &außerhalb) {
    if (prüfung == Wertprüfung::Gültig) {
        fnc_SpeichernFreigeben();
        return true;
    }
    meldung(prüfung == Wertprüfung::NichtNumerisch ? nichtNumerisch : außerhalb, Critical,
            {"Eingabefehler", "Input Error"});
    feld->clear();
    feld->setFocus();
    return false;
}

void frmNeuRezept::cmbPrArt_Change() {
    if (!std::exchange(mbPrArtTaste, false))
        return;
    if (const std::optional<QString> text = Prüfart::ausTaste(msPrArtTaste)) {
        ui.cmbPrArt->setCurrentIndex(ui.cmbPrArt->findText(*text));
        fnc_SpeichernFreigeben();
    } else {
        beep();
        ui.cmbPrArt->setCurrentIndex(-1);
    }
}

/// Once all three fields hold text the step can be stored.
bool frmNeuRezept::speichernMöglich() try {
    if (ui.txtDrehzahl->text().isEmpty() || ui.txtLeistung->text().isEmpty() ||
        mnPrüfart == Prüfart::Keine)
        return false;
    if (mnSchritt == 0) // entered after the last step was deleted
        schrittnummerZeigen(rezepte.größteNummer(gRezeptID) + 1);
    ui.pbSave->setEnabled(true);
    ui.laInfo->setText(
        inSprache({"Sie können den Prüfschritt speichern!", "You can save the test step!"}));
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("1038 - ", fehler);
    return false;
}

void frmNeuRezept::fnc_SpeichernFreigeben() {
    if (speichernMöglich())
        ui.pbSave->setFocus();
}

bool frmNeuRezept::fnc_SchrittPrüfen() try {
    const QString missing =
        fehlendeAngaben(ui.txtDrehzahl->text().isEmpty(), ui.txtLeistung->text().isEmpty(),
                        mnPrüfart == Prüfart::Keine);
    if (missing.isEmpty())
        return fnc_DrehmomentPrüfen();
    meldung({"Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie" +
                 missing + "!",
             "The informations about the actual test step are incomplete!"},
            Critical, {"Achtung!", "Attention!"});
    return false;
} catch (const Fehler &fehler) {
    fehlerBox("1024 - ", fehler);
    return false;
}

bool frmNeuRezept::fnc_DrehmomentPrüfen() try {
    if (drehmomentZulässig(ui.txtDrehzahl->text(), ui.txtLeistung->text(), grenzenNeuRezept))
        return true;
    drehmomentMelden(grenzenNeuRezept);
    ui.txtDrehzahl->setFocus(Qt::TabFocusReason);
    return false;
} catch (const Fehler &fehler) {
    fehlerBox("1042- ", fehler);
    return false;
}

std::optional<bool> frmNeuRezept::fnc_SchrittVorhanden() try {
    return rezepte.vorhanden(gRezeptID, mnSchritt);
} catch (const Fehler &fehler) {
    fehlerBox("1034 - ", fehler);
    return std::nullopt;
}

bool frmNeuRezept::fnc_SchrittAnlegen() try {
    rezepte.anlegen(gRezeptID, gezeigterSchritt());
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("1036 - ", fehler);
    return false;
}

bool frmNeuRezept::fnc_SchrittÄndern() try {
    rezepte.ändern(gRezeptID, gezeigterSchritt());
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("1035 - ", fehler);
    return false;
}

void frmNeuRezept::pbSave_Click() try {
    if (!fnc_SchrittPrüfen())
        return;
    const std::optional<bool> there = fnc_SchrittVorhanden();
    if (!there || !(*there ? fnc_SchrittÄndern() : fnc_SchrittAnlegen()))
        return;
    if (!*there)
        fnc_NeuerSchritt();
    ui.txtDrehzahl->setFocus();
    gitterZeigen(mnSchritt - 1);
    fnc_NavigationFreigeben();
} catch (const Fehler &fehler) {
    fehlerBox("1033 - ", fehler);
}

void frmNeuRezept::hinweisNeuerSchritt() {
    ui.laInfo->setText(inSprache({"Geben Sie bitte die Daten für den neuen Prüfschritt ein!",
                                  "Please enter data for the actual test step!"}));
}

void frmNeuRezept::fnc_NeuerSchritt() try {
    schrittnummerZeigen(rezepte.größteNummer(gRezeptID) + 1);
    felderLeeren();
    ui.txtDrehzahl->setFocus();
    for (QPushButton *button : {ui.pbAddNew, ui.pbEinfuegen, ui.pbLoeschen, ui.pbSave})
        button->setEnabled(false);
    hinweisNeuerSchritt();
} catch (const Fehler &fehler) {
    fehlerBox("1032 - ", fehler);
}

void frmNeuRezept::fnc_SchrittEinfügen(int nummer) {
    Schritt schritt = gezeigterSchritt();
    schritt.nummer = nummer;
    rezepte.einfügen(gRezeptID, schritt);
    gitterZeigen(nummer - 1);
    fnc_SchrittAnzeigen();
}

void frmNeuRezept::pbEinfuegen_Click() try {
    fnc_SchrittEinfügen(mnSchritt);
} catch (const Fehler &fehler) {
    fehlerBox("1023E - ", fehler);
    gitterNachFehler(); // some may have moved
}

/// Asks nothing. After the only step its values stay in the fields; only a second call empties
/// them.
void frmNeuRezept::fnc_SchrittLöschen(int nummer) {
    const int greatest = rezepte.größteNummer(gRezeptID);
    rezepte.löschen(gRezeptID, nummer);
    gitterZeigen(greatest == nummer ? greatest : nummer - 1);
    if (greatest < 1) {
        schrittnummerZeigen(0);
        felderLeeren();
        ui.pbAddNew->setEnabled(true);
        ui.pbAddNew->setFocus();
        for (QPushButton *button : {ui.pbEinfuegen, ui.pbLoeschen, ui.pbSave})
            button->setEnabled(false);
    } else {
        fnc_SchrittAnzeigen();
    }
}

void frmNeuRezept::pbLoeschen_Click() try {
    fnc_SchrittLöschen(mnSchritt);
} catch (const Fehler &fehler) {
    fehlerBox("1023E - ", fehler);
}

void frmNeuRezept::fnc_NavigationFreigeben() try {
    for (QPushButton *button : {ui.pbFirst, ui.pbPrevious, ui.pbNext, ui.pbLast})
        button->setEnabled(true);
} catch (const Fehler &fehler) {
    fehlerBox("1031 - ", fehler);
}

/// Past either end it beeps and stays.
void frmNeuRezept::gehen(int zeile) {
    if (mGitter.leer())
        return;
    mGitter.gehen(zeile);
    if (mGitter.zeile() != zeile)
        beep();
    schrittÄndern();
    mbNavigation = true;
    ui.txtDrehzahl->setFocus();
    ui.txtDrehzahl->selectAll();
}

void frmNeuRezept::schrittÄndern() {
    fnc_SchrittAnzeigen();
    ui.laInfo->setText(inSprache({"Sie können die Daten für diesen Prüfschritt ändern!",
                                  "It is possible to change data for this test step!"}));
}

void frmNeuRezept::pbFirst_Click() try { gehen(0); } catch (const Fehler &fehler) {
    fehlerBox("1026 - ", fehler);
}

void frmNeuRezept::pbLast_Click() try {
    gehen(mGitter.schritte().count() - 1);
} catch (const Fehler &fehler) {
    fehlerBox("1027 - ", fehler);
}

void frmNeuRezept::pbNext_Click() try { gehen(mGitter.zeile() + 1); } catch (const Fehler &fehler) {
    fehlerBox("1028 - ", fehler);
}

/// A step is being entered that is not stored yet: it stands behind the last.
bool frmNeuRezept::neuerSchritt() const {
    Recordset rows = mGitter.schritte();
    rows.moveLast();
    return !rows.empty() && mnSchritt > rows["Prüfschritt"].whole();
}

void frmNeuRezept::pbPrevious_Click() try {
    gehen((neuerSchritt() ? mGitter.schritte().count() : mGitter.zeile()) - 1);
} catch (const Fehler &fehler) {
    fehlerBox("1029 - ", fehler);
}

void frmNeuRezept::DBGridRez_RowColChange() {
    if (!mGitter.selbst() && !mGitter.leer())
        schrittÄndern();
}

void frmNeuRezept::pbKopie_Click() try {
    form(frm::RezeptKopie).showModal();
} catch (const Fehler &fehler) {
    fehlerBox("9016 - ", fehler);
}
