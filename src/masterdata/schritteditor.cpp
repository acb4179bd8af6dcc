#include "masterdata/schritteditor.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

#include "controls/eintrag.h"
#include "platform/runtime.h"
#include "records/toleranz.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

/// False after a failure, which is told.
template <class Body>
bool gelungen(const char *kennung, Body body) try {
    body();
    return true;
} catch (const Fehler &fehler) {
    fehlerBox(kennung, fehler);
    return false;
}

QString textVon(const QWidget *feld) {
    const auto *box = qobject_cast<const QComboBox *>(feld);
    return box ? box->currentText() : static_cast<const QLineEdit *>(feld)->text();
}

/// Where the decimal sign is a point, the step would ask for ten times as much without it.
void ohneTausenderpunkte(QLineEdit *feld) {
    if (numberLocale().decimalPoint() == ",")
        feld->setText(fnc_OhnePunkt(feld->text()));
}

} // namespace

void Schritteditor::verbinden(const Felder &felder,
                              std::function<void(const QWidget *)> angenommen) {
    mFelder = felder;
    mAngenommen = std::move(angenommen);
    mGitter.verbinden(felder.gitter, mArt.spalten);
    if (!felder.prüfart)
        return;
    mTyp.verbinden(felder.prüfart, Prüfart::ausTaste, [this](bool found) {
        if (!found) {
            beep();
            eintragSetzen(mFelder.prüfart, {});
        } else if (mArt.neu) {
            mAngenommen(mFelder.prüfart);
        }
    });
}

void Schritteditor::beschriften() {
    mGitter.beschriften();
    if (!mFelder.prüfart)
        return;
    mFelder.prüfart->clear();
    mFelder.prüfart->addItems({inSprache(Prüfart::leistungText), inSprache(Prüfart::drehzahlText)});
    mFelder.prüfart->setCurrentIndex(-1);
}

// The step at hand --------------------------------------------------------------------------------

void Schritteditor::nummerZeigen(int nummer) {
    mNummer = nummer;
    mFelder.nummer->setText(nummer == 0 ? QString() : QString::number(nummer));
}

Schritt Schritteditor::schritt() const {
    Schritt step{mNummer, mFelder.drehzahl->text(), mFelder.leistung->text(), Prüfart::Drehzahl};
    if (mFelder.prüfart) {
        const QString type = mFelder.prüfart->currentText();
        step.prüfart = mArt.neu ? Prüfart::ausText(type) : Prüfart::ausAnfang(type);
    }
    for (const auto &[feld, wert] : mFelder.weitere)
        step.*wert = feld->text();
    return step;
}

bool Schritteditor::fnc_EingabeLeer() const {
    return mFelder.drehzahl->text().isEmpty() && mFelder.leistung->text().isEmpty() &&
           (!mFelder.prüfart || mFelder.prüfart->currentText().isEmpty()) &&
           std::ranges::all_of(mFelder.weitere,
                               [](const auto &w) { return w.first->text().isEmpty(); });
}

void Schritteditor::füllen(const Schritt &schritt) {
    nummerZeigen(schritt.nummer);
    mFelder.drehzahl->setText(schritt.drehzahl);
    mFelder.leistung->setText(schritt.leistung);
    if (mFelder.prüfart)
        eintragSetzen(mFelder.prüfart, schritt.prüfart == Prüfart::Keine ? QString()
                                       : schritt.prüfart == Prüfart::Leistung
                                           ? inSprache(Prüfart::leistungText)
                                           : inSprache(Prüfart::drehzahlText));
    for (const auto &[feld, wert] : mFelder.weitere)
        feld->setText(schritt.*wert);
    // What is loaded is no change by a person, also when the field has the keyboard.
    for (auto &[feld, text] : mVorher)
        text = textVon(feld);
}

void Schritteditor::leeren() {
    füllen({});
}

bool Schritteditor::zeigen() {
    if (mGitter.leer())
        return false;
    füllen(mArt.schritte.schrittAus(mGitter.aktuell()));
    return true;
}

// Fields ------------------------------------------------------------------------------------------

void Schritteditor::betreten(const QWidget *feld) {
    mVorher[feld] = textVon(feld);
    if (feld == mFelder.prüfart)
        mTyp.vergessen(); // the key that led away
}

bool Schritteditor::geändert(const QWidget *feld) const {
    const auto before = mVorher.find(feld);
    return before == mVorher.end() || before->second != textVon(feld);
}

bool Schritteditor::verlassen(const QWidget *feld) {
    if (feld == mFelder.drehzahl)
        return wertAnnehmen({mFelder.drehzahl, &mArt.drehzahl, drehzahlPrüfen});
    if (feld == mFelder.leistung)
        return wertAnnehmen({mFelder.leistung, &mArt.leistung, leistungPrüfen});
    const auto found = std::ranges::find_if(mFelder.weitere, [feld](const auto &w) {
        return w.first == feld && w.second == &Schritt::messSchritte;
    });
    return found == mFelder.weitere.end() || anzahlAnnehmen(found->first);
}

bool Schritteditor::wertAnnehmen(const Wertfeld &wert) {
    const QString typed = wert.feld->text();
    if (mArt.neu)
        ohneTausenderpunkte(wert.feld);
    else if (!geändert(wert.feld))
        return true;
    const QString text = wert.feld->text();
    const bool speed = wert.feld == mFelder.drehzahl;
    if (speed && std::exchange(mUngeprüft, false))
        return true;
    if (speed ? text.isEmpty() : typed.isEmpty()) // points alone are no power
        return true;
    const Wertprüfung found = wert.prüfung(text, mArt.grenzen);
    if (found == Wertprüfung::Gültig) {
        mAngenommen(wert.feld);
        return true;
    }
    // Before the box: taking the keyboard back notes the text anew.
    const QString before = mArt.neu ? QString() : mVorher[wert.feld];
    meldung(found == Wertprüfung::NichtNumerisch ? wert.meldungen->keineZahl
                                                 : wert.meldungen->außerhalb,
            mArt.wertsymbol, wert.meldungen->titel);
    zurückgeben(wert.feld, before);
    return false;
}

void Schritteditor::zurückgeben(QLineEdit *feld, const QString &text) const {
    feld->setText(text);
    feld->setFocus();
    // Behind the change of keyboard, which takes a selection away.
    QMetaObject::invokeMethod(feld, &QLineEdit::selectAll, Qt::QueuedConnection);
}

/// An empty one is refused, too, when it was not empty before.
bool Schritteditor::anzahlAnnehmen(QLineEdit *feld) {
    if (!geändert(feld))
        return true;
    const Anzahlprüfung found = anzahlPrüfen(feld->text());
    if (found == Anzahlprüfung::Gültig) {
        mAngenommen(feld);
        return true;
    }
    meldung(found == Anzahlprüfung::KeineZahl ? mArt.anzahl.keineZahl : mArt.anzahl.außerhalb,
            Exclamation, mArt.anzahl.titel);
    zurückgeben(feld, {});
    mVorher[feld].clear();
    return false;
}

Fehlendes Schritteditor::fehlendes() const {
    return fehlendeAngaben(
        mArt.angaben(schritt(), mFelder.prüfart ? mFelder.prüfart->currentText() : QString()));
}

bool Schritteditor::vollständig() const {
    return !fehlendes().erste;
}

bool Schritteditor::zulässig() const {
    const Schritt step = schritt();
    return vollständig() && drehmomentZulässig(step.drehzahl, step.leistung, mArt.grenzen);
}

bool Schritteditor::fnc_SchrittPrüfen() try {
    const Fehlendes missing = fehlendes();
    if (!missing.erste)
        return fnc_DrehmomentPrüfen();
    Text text = mArt.unvollständig;
    text.german.replace("%1", missing.text.german);
    text.english.replace("%1", missing.text.english);
    meldung(text, mArt.fehltsymbol, {"Achtung!", "Attention!"});
    return false;
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.prüfen, fehler);
    return false;
}

bool Schritteditor::fnc_DrehmomentPrüfen() const try {
    const Schritt step = schritt();
    if (drehmomentZulässig(step.drehzahl, step.leistung, mArt.grenzen))
        return true;
    const QString limit = QString::number(mArt.grenzen.drehmoment);
    meldung(mArt.drehmoment, OKOnly, {"Drehmoment<=" + limit + "Nm", "Torque<=" + limit + "Nm"});
    mFelder.drehzahl->setFocus(Qt::TabFocusReason);
    return false;
} catch (const Fehler &fehler) {
    fehlerBox(mArt.kennung.drehmoment, fehler);
    return false;
}

// The table ---------------------------------------------------------------------------------------

std::optional<bool> Schritteditor::vorhanden() const {
    std::optional<bool> there;
    gelungen(mArt.kennung.vorhanden,
             [&] { there = mArt.schritte.vorhanden(mArt.rezeptID, mNummer); });
    return there;
}

bool Schritteditor::anlegen() const {
    return gelungen(mArt.kennung.anlegen, [&] { mArt.schritte.anlegen(mArt.rezeptID, schritt()); });
}

bool Schritteditor::fnc_SchrittÄndern() const {
    return gelungen(mArt.kennung.ändern, [&] { mArt.schritte.ändern(mArt.rezeptID, schritt()); });
}

int Schritteditor::größteNummer() const {
    return mArt.schritte.größteNummer(mArt.rezeptID);
}

void Schritteditor::einfügen() {
    mArt.schritte.einfügen(mArt.rezeptID, schritt());
    lesen(mNummer - 1);
}

bool Schritteditor::löschen() {
    const int number = mNummer;
    const int greatest = größteNummer();
    mArt.schritte.löschen(mArt.rezeptID, number);
    mGitter.zeigen(liste());
    if (greatest < 1) {
        leeren();
        return false;
    }
    if (number == greatest)
        mGitter.zumLetzten();
    else
        mGitter.gehen(number - 1);
    return true;
}

Recordset Schritteditor::liste() const {
    return mArt.neu ? mArt.schritte.lesen(mArt.rezeptID) : mArt.schritte.alle();
}

void Schritteditor::lesen(int zeile) {
    mGitter.zeigen(liste());
    mGitter.gehen(zeile);
}

bool Schritteditor::nachFehlerLesen() try {
    lesen(mGitter.zeile());
    return true;
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    return false;
}

bool fnc_Fill_CmbToleranz(QComboBox *feld) {
    return gelungen("NR01- ", [feld] {
        feld->clear();
        feld->addItems(toleranznamen());
        feld->setCurrentIndex(-1);
    });
}
