#include "calibration/frmMomentKal.h"

#include "calibration/frmKalibrierung.h"
#include "calibration/hebelarmwerte.h"
#include "link/controller.h"
#include "measure/frmNachStatNPK.h"
#include "measure/statikempfang.h"
#include "measure/statikwerte.h"
#include "platform/runtime.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/waiting.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Moment Measurement With The Lever Arm"},
    {"FrL", "Left"},
    {"FrR", "Right"},
    {"lbReferenz_L", "Reference"},
    {"lbReferenz_R", "Reference"},
    {"lbMesswert_L", "Measured"},
    {"lbMesswert_R", "Measured"},
    {"lbDifferenz_L", "Difference"},
    {"lbDifferenz_R", "Difference"},
    {"lbStreu_L", "Spread"},
    {"lbStreu_R", "Spread"},
    {"pbWeiter", "&Change"},
    {"pbWiederholen", "&Repeat"},
    {"pbAbbrechen", "&Abort"},
};

const Text vorbereitung{"Vorbereitung der Hebelarmkalibrierung",
                        "Preparation For The Lever Arm Calibration"};
const Text waagerecht{"Bitte achten Sie auf eine waagerechte Ausrichtung des Hebelarms!",
                      "Make sure the lever arm is in horizontal position!"};

constexpr DriftAnzeige::Skala momentSkala{momentGrenze, momentGrenze, 1.5 * momentGrenze};

std::size_t platz(Seite seite) {
    return seite == Seite::Links ? 0 : 1;
}

/// A number as it was shown.
double gezeigt(double wert, const QString &muster) {
    return ValBeider(Format(wert, muster));
}

} // namespace

frmMomentKal::frmMomentKal() {
    ui.setupUi(this);
    for (QLineEdit *wert : {ui.txtOffset2_L, ui.txtOffset2_R})
        on(wert, &QLineEdit::textChanged, [this] { weiterBeschriften(); });
    onClick(ui.pbWeiter, gefangen("4032 - ", [this] { pbWeiter_Click(); }));
    onClick(ui.pbWiederholen, gefangen("4033 - ", [this] { pbWiederholen_Click(); }));
    onClick(ui.pbAbbrechen, [this] { unload(); });
}

void frmMomentKal::Form_Load() {
    setFocusPolicy(Qt::StrongFocus);
    setFocus(); // Enter must not fall on the button that cancels
    beschriftungenSetzen(ui, *this, english);
    ui.txtOffset1_R->setText(Format(gRefRechts, "0.000"));
    ui.txtOffset1_L->setText(Format(gRefLinks, "0.000"));
    ui.anzProben->setMaximum(gNormalAnzahl);
    ui.anzProben->setAccessibleName(inSprache({"Messwerte", "Measuring values"}));
    for (const Seite seite : {Seite::Links, Seite::Rechts}) {
        feld(seite).balken->setSkala(momentSkala);
        feld(seite).urteil->zeige(Zeichen::Kein,
                                  inSprache({"noch nicht gemessen", "not measured yet"}));
    }
}

frmMomentKal::Seitenfeld frmMomentKal::feld(Seite seite) {
    if (seite == Seite::Links) {
        return {ui.txtOffset1_L, ui.txtOffset2_L, ui.laOffsetDiff_L,
                ui.laStreu_L,    ui.AnzWert_L,    ui.anzUrteil_L};
    }
    return {ui.txtOffset1_R, ui.txtOffset2_R, ui.laOffsetDiff_R,
            ui.laStreu_R,    ui.AnzWert_R,    ui.anzUrteil_R};
}

void frmMomentKal::Form_Activate() try {
    for (QPushButton *knopf : {ui.pbWeiter, ui.pbWiederholen}) {
        setWaiting(knopf, false);
        knopf->setEnabled(false);
    }
    setFocus();
    const Lauf lauf = fnc_MomentMessen();
    if (!unloaded() && gDesktopAktiv)
        ergebnisZeigen(lauf);
} catch (const Fehler &fehler) {
    fehlerBox("4030 - ", fehler);
}

// The sign of the moment says which side was measured.
frmMomentKal::Lauf frmMomentKal::fnc_MomentMessen() try {
    ui.anzProben->setValue(0);
    showInfo(inSprache({"Offset messen", "Measure Offset"}));
    Statikstrom strom{codeOffset, 0, gNormalAnzahl};
    strom.mittendrin = {"Nach 15 Sek kein Empfang", "No reception after 15 sec"};
    strom.mittendrinTitel = {"Meldung", "Mesage"};
    auto proben = statikEmpfangen(
        strom,
        [this](int anzahl) {
            ui.anzProben->setValue(anzahl);
            showInfo(QString::number(anzahl) + inSprache({" Messwerte", " Measuring Values"}));
        },
        [this] { return unloaded(); });
    if (!proben)
        return Lauf::Unbrauchbar;
    Hebelarmmomente letzte;
    const double mittel =
        fnc_Mittelwert(*proben, {gSchwereFaktor, gOffsetRoh, gMomentFaktor}, letzte);
    const Seitenurteil urteil = seiteBeurteilen(mittel, fnc_Streuung(*proben, mittel),
                                                {gRefRechts, gRefLinks}, gNormalGrenzwert);
    if (urteil.seite == Seite::Keine) {
        beep();
        meldung({"Es konnten keine gültigen Messwerte ermittelt werden.\r"
                 "Der Hebelarm ist falsch oder gar nicht montiert.",
                 "It was not possible to ascertain valid measuring values.\r"
                 "The lever arm is either wrongly mounted or not mounted at all."},
                Critical, {"Ungültige Messung", "Invalid Measurement"});
        return Lauf::InOrdnung;
    }
    if (urteil.seite == Seite::Links)
        gLinks = letzte.links;
    else
        gRechts = letzte.rechts;
    mSeiten[platz(urteil.seite)] = urteil;
    mZuletzt = urteil.seite;
    seiteZeigen(urteil);
    if (urteil.inOrdnung())
        return Lauf::InOrdnung;
    grenzenMelden(urteil);
    return Lauf::Außerhalb;
} catch (const Fehler &fehler) {
    fehlerBox("4031 - ", fehler);
    return Lauf::Unbrauchbar;
}

void frmMomentKal::seiteZeigen(const Seitenurteil &urteil) {
    const Seitenfeld ziel = feld(urteil.seite);
    ziel.wert->setText(Format(urteil.mittel, "0.000"));
    ziel.streuung->setText(Format(urteil.streuung, "0.0000"));
    ziel.differenz->setText(Format(urteil.differenz, "0.000"));
    ziel.balken->setBalken(urteil.balken);
    if (urteil.inOrdnung())
        ziel.urteil->zeige(Zeichen::Gut, inSprache({"eingehalten", "kept"}));
    else
        ziel.urteil->zeige(Zeichen::Schlecht, inSprache({"nicht eingehalten", "not kept"}));
}

void frmMomentKal::grenzenMelden(const Seitenurteil &urteil) {
    QStringList zeilen;
    if (urteil.streuungZuGroß)
        zeilen += inSprache({"Die Streubreite liegt außerhalb des zulässigen Grenzwertes.",
                             "The spread is out of range."});
    if (urteil.balken.rot)
        zeilen += inSprache({"Der Messwert liegt außerhalb des zulässigen Grenzwertes.",
                             "The measuring value is out of range."});
    zeilen += inSprache({"Bitte überprüfen Sie die Montage des Hebelarms.",
                         "Please check lever arm installation."});
    zeilen += inSprache({"Bei wiederholter Überschreitung rufen Sie bitte den Service an!",
                         "In case of repeated deviations please call the service!"});
    msgBox(zeilen.join('\r'), Critical, inSprache({"Grenzwertüberschreitung", "Out of range"}));
}

int frmMomentKal::gemessen() const {
    return static_cast<int>(mSeiten[0].has_value()) + static_cast<int>(mSeiten[1].has_value());
}

bool frmMomentKal::außerhalb(Seite seite) const {
    const auto &urteil = mSeiten[platz(seite)];
    return urteil && !urteil->inOrdnung();
}

void frmMomentKal::ergebnisZeigen(Lauf lauf) {
    if (lauf == Lauf::Unbrauchbar) {
        meldung({"Fehler beim Kalibrieren! Bitte überprüfen Sie das Gerät.",
                 "Error in calibrating! Please inspect the unit under test."},
                Critical, {"Fehler", "Error"});
        mErledigt = true;
        unload();
        return;
    }
    if (lauf == Lauf::InOrdnung) {
        showInfo(inSprache(
            {"Ist die Messung in Ordnung, drücken Sie bitte auf WECHSELN bzw. BEENDEN oder "
             "wiederholen Sie die Messung!",
             "When measurement is o.k. then press the button 'CHANGE/TERMINATE' or repeat the "
             "measurement!"}));
        gFormStatus = static_cast<Formstatus>(static_cast<int>(gFormStatus) + 1);
    }
    if (auto *ablauf = loaded<frmKalibrierung>())
        ablauf->seitenZeigen(gemessen());
    // A side out of limits keeps both from being stored until it was measured in order itself.
    for (const auto &[seite, hinweis] :
         {std::pair(Seite::Links, Text{"Die linke Seite ist zu wiederholen.",
                                       "The left side has to be repeated."}),
          std::pair(Seite::Rechts, Text{"Die rechte Seite ist zu wiederholen.",
                                        "The right side has to be repeated."})}) {
        if (außerhalb(seite))
            showInfo(inSprache(hinweis));
    }
    const bool weiter = gemessen() > 0 && !außerhalb(Seite::Links) && !außerhalb(Seite::Rechts);
    ui.pbWeiter->setEnabled(weiter);
    ui.pbWiederholen->setEnabled(true);
    QPushButton *nächster = weiter ? ui.pbWeiter : ui.pbWiederholen;
    setWaiting(nächster, true);
    nächster->setFocus();
}

void frmMomentKal::weiterBeschriften() {
    const bool beide = !ui.txtOffset2_L->text().isEmpty() && !ui.txtOffset2_R->text().isEmpty();
    ui.pbWeiter->setText(
        inSprache(beide ? Text{"&Beenden", "&Terminate"} : Text{"&Wechseln", "&Change"}));
}

void frmMomentKal::pbWeiter_Click() {
    if (gemessen() == 2) {
        speichern();
        return;
    }
    gFormStatus = Formstatus::ZweiteSeite;
    montieren(
        {"Montieren Sie den Hebelarm auf der anderen Seite.", "Mount lever arm on the other side."},
        mSeiten[platz(Seite::Links)] ? Seite::Rechts : Seite::Links);
}

void frmMomentKal::pbWiederholen_Click() {
    const Seite seite = außerhalb(Seite::Links)    ? Seite::Links
                        : außerhalb(Seite::Rechts) ? Seite::Rechts
                                                   : mZuletzt;
    gFormStatus = gemessen() == 2 ? Formstatus::ZweiteSeite : Formstatus::KorrekturFertig;
    montieren({"Montieren Sie den Hebelarm wie in der Bedienungsanleitung beschrieben.",
               "Mount the lever arm as described in the Operating Instructions."},
              seite);
}

// Its closing brings the activation here, which measures.
void frmMomentKal::montieren(const Text &text, Seite seite) {
    beep();
    auto &hinweis = form<frmNachStatNPK>();
    hinweis.anzeigen(
        vorbereitung,
        {text.german + '\r' + waagerecht.german, text.english + '\r' + waagerecht.english},
        seite == Seite::Rechts ? Anweisung::HebelarmRechts : Anweisung::Hebelarm);
    hinweis.showModal();
}

// The last sample's moment of a side is stored; the mean was judged.
void frmMomentKal::speichern() {
    gFormStatus = Formstatus::Gespeichert;
    hebelarmSpeichern({gezeigt(gErdschwere, "0.0000"),
                       {gezeigt(gRechts, "0.000"), gezeigt(gLinks, "0.000")},
                       ValBeider(ui.laStreu_R->text()),
                       ValBeider(ui.laStreu_L->text())});
    mErledigt = true;
    gefangen("4032 - ", [] { fnc_HebelarmDatumLesen(); })(); // the row is stored all the same
    unload();
}

bool frmMomentKal::Form_QueryUnload() {
    if (!mErledigt)
        abbrechen();
    return true;
}

void frmMomentKal::abbrechen() {
    gFormStatus = Formstatus::Abgebrochen;
    gefangen("4033 - ", datenstromBeenden)(); // of the run that is under way
    meldung({"Die Kalibrierung wurde abgebrochen", "Calibration has been discontinued"}, Critical,
            {"Hebelarmkalibrierung", "Calibration"});
    korrekturLaden();
}

// The controller goes back to its own correction; as long as it did not, no measurement can be
// relied on, and it is tried again unless the operator gives up.
void frmMomentKal::korrekturLaden() {
    disable();
    do {
        if (!gDesktopAktiv)
            return; // the end of the process does what is left
        if (!fnc_MotorAus() || !fnc_Reset())
            gStopMessung = true;
        if (gStopMessung &&
            meldung({"Achtung! Mit dem Messen kann nicht begonnen werden.\r\n"
                     "Wollen Sie wirklich abbrechen?",
                     "Attention! Measurement cannot be started.\r\n"
                     "Do you really want to discontinue?"},
                    YesNo + Critical,
                    {"Statische Nullpunkt-Korrektur", "Static Zero-point Correction"}) == Yes)
            return;
    } while (std::exchange(gStopMessung, false));
    meldung({"Korreg geladen", "Correction loaded"}, Information, {"Information", "Information"});
}
