// What happens when a field takes the keyboard, is typed into, and is left.
#include "masterdata/frmToleranzen.h"

#include <QLineEdit>

#include <limits>

#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

void frmToleranzen::altWertMerken() {
    if (!mbBearbeiten)
        return;
    if (focusWidget() == ui.txtTolWatt)
        msAltWert = ui.txtTolProz->text();
    else if (const auto *field = qobject_cast<QLineEdit *>(focusWidget()))
        msAltWert = field->text();
}

void frmToleranzen::änderungPrüfen(const QLineEdit *feld) {
    if (mbBearbeiten && feld->text() != msAltWert) {
        mbGeändert = true;
        speicherbar(true);
    }
}

void frmToleranzen::vollständigkeitPrüfen() {
    if (mbNeu)
        speicherbar(eingabe().vollständig());
}

/// What a failed saving has ended cannot be saved.
bool frmToleranzen::speichernFreigeben() {
    speicherbar(mbNeu || mbBearbeiten);
    return mSpeicherbar;
}

void frmToleranzen::zurückweisen(QLineEdit *feld, const QString &text) {
    feld->setText(text);
    feld->setFocus();
}

void frmToleranzen::zahlPrüfen(QLineEdit *feld, double größter, const Text &text, const Text &titel,
                               const std::function<void(const QString &)> &runden) {
    if (!feld->text().trimmed().isEmpty()) {
        if (außerhalb(feld->text(), 0, größter)) {
            meldung(text, Critical, titel);
            zurückweisen(feld, mbBearbeiten ? msAltWert : QString());
        } else {
            runden(feld->text());
            vollständigkeitPrüfen();
        }
    }
    änderungPrüfen(feld);
}

void frmToleranzen::txtTolBez_LostFocus() {
    const QString name = ui.txtTolBez->text();
    if (mbNeu && !name.trimmed().isEmpty() && bezeichnungVergeben(name)) {
        meldung({"Diese Bezeichnung für eine Toleranz gibt es bereits.\r"
                 "Bitte wählen Sie eine andere!",
                 "This name for a tolerance already exists!\rPlease try again!"},
                Critical, {"Doppelter Eintrag", "Input Error"});
        zurückweisen(ui.txtTolBez, {});
        return;
    }
    vollständigkeitPrüfen();
    änderungPrüfen(ui.txtTolBez);
}

void frmToleranzen::txtTolProz_LostFocus() {
    zahlPrüfen(ui.txtTolProz, größteLeistungstoleranz,
               {"Der angegebene Wert liegt außerhalb des gültigen Bereichs!",
                "Value is not within the permissible interval!"},
               {"Eingabefehler!", "Input Error!"},
               [this](const QString &text) { func_Round_Procent(text); });
}

void frmToleranzen::txtTolWatt_LostFocus() {
    zahlPrüfen(ui.txtTolWatt, größteLeistungstoleranz,
               {"Der angegebene Wert liegt außerhalb des gültigen Bereichs!",
                "Your indications are out of the permissible intervals!"},
               {"Eingabfehler!", "Input Error"},
               [this](const QString &text) { func_Round_Watt(text); });
}

void frmToleranzen::txtAbw_LostFocus() {
    zahlPrüfen(ui.txtAbw, std::numeric_limits<double>::infinity(),
               {"Der angegebene Wert liegt außerhalb des gültigen Bereichs!",
                "The value is not within the permissible interval."},
               {"Eingabfehler!", "Input Error!"},
               [this](const QString &text) { ui.txtAbw->setText(drehzahlGerundet(text)); });
}

void frmToleranzen::txtMessverfahren_LostFocus() {
    if (eingabe().vollständig() && speichernFreigeben())
        ui.pbSave->setFocus();
}

void frmToleranzen::func_Round_Procent(const QString &text) try {
    if (const auto rounded = leistungGerundet(text, halbeSchritteAbProzent))
        ui.txtTolProz->setText(*rounded);
} catch (const Fehler &fehler) {
    fehlerBox("Tol04 - ", fehler);
}

void frmToleranzen::func_Round_Watt(const QString &text) try {
    if (const auto rounded = leistungGerundet(text, halbeSchritteAbWatt))
        ui.txtTolWatt->setText(*rounded);
} catch (const Fehler &fehler) {
    fehlerBox("Tol05 - ", fehler);
}

void frmToleranzen::cmbGKlasse_Change() {
    mKlasse.geändert();
    if (eingabe().vollständig())
        speichernFreigeben();
}
