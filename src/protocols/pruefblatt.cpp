#include "protocols/pruefblatt.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>

#include "platform/clock.h"
#include "session/sprache.h"
#include "store/sqltext.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"fraNormal", "Working standard used"},
    {"fraWerte", "Measuring Values"},
    {"lbNormalNr", "Standard No."},
    {"lbKennNr", "Serial No."},
    {"lbkalibriertVon", "Calibrated by"},
    {"lbkalibriertBis", "Calibrated until"},
    {"lbKalScheinNr", "Calib.certificate No."},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
    {"pbDelete", "&Delete"},
};

constexpr int längsterText = 255;

/// Day first, as the program writes it, or year first.
QDate datumVon(const QString &text) {
    const QDate datum = QDate::fromString(text.trimmed(), "d.M.yyyy");
    return datum.isValid() ? datum : datumAus(text.trimmed());
}

} // namespace

Prüfblatt::Prüfblatt(const Art &art) : mArt(art) {
    ui.setupUi(this);
    QWidget *const normal[] = {ui.txtNormalNr, ui.txtKennNr, ui.txtkalibriertVon,
                               ui.dtpkalibriertBis, ui.txtKalScheinNr};
    const QStringList spalten = normalspalten(mArt.inhalt);
    for (qsizetype i = 0; i < spalten.size(); ++i)
        mFelder.push_back({normal[i], 0, spalten[i], {}});
    onClick(ui.pbok, gefangen(mArt.speichern, [this] { pbok_Click(); }));
    onClick(ui.pbexit, gefangen(mArt.verlassen, [this] { pbexit_Click(); }));
    onClick(ui.pbDelete, gefangen(mArt.löschen, [this] { pbDelete_Click(); }));
}

void Prüfblatt::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    setCaption(inSprache(mArt.titel));
    for (const auto &[label, worte] : mTexte)
        label->setText(inSprache(worte));
    for (const Feld &feld : mFelder)
        feld.feld->setAccessibleName(inSprache(feld.bedeutung));
    ui.txtKennNr->setPlaceholderText(inSprache({"erforderlich", "required"}));
    ui.dtpkalibriertBis->setLocale(inDeutsch() ? QLocale::German : QLocale::English);
    ui.dtpkalibriertBis->setDate(now().date());
    ui.txtNormalNr->setFocus();
}

QLineEdit *Prüfblatt::textfeld(const QString &name, const QString &spalte) {
    auto *neu = new QLineEdit(ui.fraWerte);
    neu->setObjectName(name);
    neu->setMaxLength(längsterText);
    mFelder.push_back({neu, 0, spalte, {}});
    return neu;
}

QLineEdit *Prüfblatt::wertfeld(const QString &name, int stufe, const QString &spalte,
                               const Text &kopf, const Text &nebenkopf) {
    QLineEdit *neu = textfeld(name, spalte);
    neu->setAlignment(Qt::AlignRight);
    neu->setMinimumWidth(104);
    mFelder.back().stufe = stufe;
    mFelder.back().bedeutung = {kopf.german + ", " + nebenkopf.german,
                                kopf.english + ", " + nebenkopf.english};
    return neu;
}

QLabel *Prüfblatt::text(const Text &worte, QWidget *feld) {
    auto *neu = new QLabel(ui.fraWerte);
    neu->setBuddy(feld);
    mTexte.emplace_back(neu, worte);
    return neu;
}

void Prüfblatt::reihen() {
    for (size_t i = 1; i < mFelder.size(); ++i) {
        QWidget *davor = mFelder[i - 1].feld, *feld = mFelder[i].feld;
        setTabOrder(davor, feld);
        enterChain({davor, feld}, Qt::TabFocusReason);
    }
    QWidget *letztes = mFelder.back().feld;
    enterChain({letztes, ui.pbok});
    setTabOrder(letztes, ui.pbDelete);
    setTabOrder(ui.pbDelete, ui.pbok);
    setTabOrder(ui.pbok, ui.pbexit);
}

void Prüfblatt::eintragen(const Blatt &werte) {
    for (const Feld &feld : mFelder) {
        const auto wert = werte.find({feld.stufe, feld.spalte});
        if (wert == werte.end())
            continue;
        if (auto *text = qobject_cast<QLineEdit *>(feld.feld))
            text->setText(wert->second);
        else
            datumZeigen(wert->second);
    }
}

void Prüfblatt::datumZeigen(const QString &text) {
    const QDate datum = datumVon(text);
    if (datum.isValid())
        ui.dtpkalibriertBis->setDate(datum);
    else if (!text.isEmpty())
        meldung({"\"" + text +
                     "\" ist kein Datum. Bitte prüfen Sie \"kalibriert bis\", bevor Sie "
                     "speichern.",
                 "\"" + text +
                     "\" is not a date. Please check \"Calibrated until\" before you "
                     "save."},
                Exclamation, {"Meldung", "Message"});
}

void Prüfblatt::beginnen(Schlüssel protokollID, const QString &name) {
    mNeu = true;
    öffnen(protokollID, QString::number(protokollID) + " - " + name);
}

void Prüfblatt::fortsetzen(Schlüssel protokollID, const QString &titel) {
    const bool hatBlatt = vorhanden(Bestand::Arbeit, mArt.inhalt, protokollID);
    if (hatBlatt)
        eintragen(blattLesen(Bestand::Arbeit, mArt.inhalt, protokollID));
    else if (mArt.inhalt == Inhalt::SecControl)
        sicherheitszeileAnlegen(protokollID);
    ui.pbDelete->setEnabled(hatBlatt);
    öffnen(protokollID, titel);
}

/// The keyboard goes where there is something to enter.
void Prüfblatt::öffnen(Schlüssel protokollID, const QString &titel) {
    mProtokollID = protokollID;
    setCaption(caption() + inSprache({" Protokoll ", " Protocol "}) + titel);
    ui.pbok->setEnabled(true);
    if (ui.txtKennNr->text().isEmpty())
        return;
    for (const Feld &feld : mFelder) {
        if (istMesswert(feld.spalte))
            return feld.feld->setFocus();
    }
}

Blatt Prüfblatt::werte() const {
    Blatt werte;
    for (const Feld &feld : mFelder) {
        const auto *text = qobject_cast<const QLineEdit *>(feld.feld);
        werte[{feld.stufe, feld.spalte}] =
            text ? text->text() : datumText(ui.dtpkalibriertBis->date());
    }
    return werte;
}

bool Prüfblatt::gemessen() const {
    const Blatt alle = werte();
    return std::any_of(alle.begin(), alle.end(), [](const auto &wert) {
        return istMesswert(wert.first.second) && !wert.second.isEmpty();
    });
}

void Prüfblatt::speichern() {
    blattSpeichern(mArt.inhalt, mProtokollID, werte());
    mbGespeichert = true;
    if (mArt.erstSchließen)
        schließen();
    meldung({" Daten wurden gespeichert. ", mArt.gespeichert}, Information,
            {" Bestätigung", mArt.bestätigung});
    if (!mArt.erstSchließen)
        schließen();
}

void Prüfblatt::leerAblegen() {
    verwerfen();
    schließen();
}

void Prüfblatt::schließen() {
    mbGespeichert = true;
    unload();
}

void Prüfblatt::pbok_Click() {
    const bool mitNormal = !ui.txtKennNr->text().isEmpty();
    if (gemessen()) {
        if (mitNormal)
            return speichern();
        meldung({mArt.normalFehlt, "In order to be able to save the protocol, the number of the "
                                   "working standard has to be provided!"},
                Exclamation, {"Message!", "Message!"});
        ui.txtNormalNr->setFocus();
        return;
    }
    if (mitNormal &&
        meldung({"Soll das Protokoll gespeichert werden?", "Shall the protocol be saved?"},
                YesNo + Question, {"Protokoll speichern", "Save"}) == Yes)
        return speichern();
    leerAblegen();
}

void Prüfblatt::pbDelete_Click() {
    verwerfen();
    schließen();
    meldung({"Daten wurden gelöscht!", "Data have been deleted!"}, Information, mArt.gelöscht);
}

void Prüfblatt::pbexit_Click() {
    verlassen();
    schließen();
}

/// A head that was made for this sheet goes with it.
void Prüfblatt::verlassen() {
    if (mNeu)
        verwerfen();
    else if (mProtokollID != 0)
        vorhandenesVerlassen();
}

void Prüfblatt::stillVerlassen() try {
    if (!std::exchange(mbGespeichert, true))
        verlassen();
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

void Prüfblatt::Form_Unload() {
    if (!mbGespeichert)
        gefangen(mArt.verlassen, [this] { verlassen(); })();
}
