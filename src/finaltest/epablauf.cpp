#include "finaltest/epablauf.h"

#include <QScopeGuard>

#include "finaltest/epbericht.h"
#include "link/controller.h"
#include "link/ergometer.h"
#include "measure/bewertung.h"
#include "measure/messablauf.h"
#include "platform/clock.h"
#include "platform/fehler.h"
#include "platform/runtime.h"
#include "records/epmesswerte.h"
#include "records/schrittliste.h"
#include "records/toleranzklasse.h"
#include "session/screens.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr int längsteStille = 18'000; // ms without a complete result
constexpr int leitungMilliseconds = 100;
const Text urteilskopf{"Toleranz", "Tolerance"};

class EPAblauf final : public Messablauf {
  public:
    EPAblauf() {
        mWächter.onTick = [this] { ausgeblieben(); };
    }

    Messansicht ansicht() override;
    QString spezifikation() override;
    Recordset schritte() override;
    Recordset messwerte() override { return epMesswerte(gEPProtokollID); }
    void vorSollwert(const Recordset &schritt) override;
    void nachRahmen(Messfenster &fenster) override;
    Vorschau vorschau(const SchrittTexte &schritt) override;
    bool speichern(SchrittTexte &schritt) override;
    void rezeptEnde() override;
    void abbruch() override;
    void diagnose(const std::function<void(const QString &)> &zeigen) override;
    void beimVerlassen(Weggang weggang) override;

  private:
    void stillsetzen();
    void beenden(const Text &text);
    void ausgeblieben();
    void vorMeldung();
    void wächterStellen(int milliseconds);
    void lastAb();
    static void verlassen();

    std::optional<Toleranzklasse> mKlasse;
    Timer mWächter;
    int mStand = 0;             ///< complete results of the step shown
    QDateTime mBegonnen;        ///< invalid: nothing was begun
    bool mOffen = false;        ///< from the screen's load to its end
    bool mLastAus = false;      ///< taken off since the last load line
    bool mStillgesetzt = false; ///< load and motor were seen to
    bool mLiest = false;        ///< a box of now is one that a person goes on from
    bool mVollständig = false;
};

Messansicht EPAblauf::ansicht() {
    mKlasse.reset();
    mStand = 0;
    mBegonnen = {};
    mLastAus = mStillgesetzt = mLiest = mVollständig = false;
    mOffen = true;
    setBeforeBox([this] { vorMeldung(); });
    constexpr auto rechts = Qt::AlignRight | Qt::AlignVCenter;
    constexpr auto mitte = Qt::AlignCenter;
    const auto kopf = [](const char *deutsch, const char *english) {
        return inSprache({deutsch, english});
    };
    return {false,
            inSprache({"ENDPRÜFUNG '", "FINALTEST '"}) + epSeriennummer(gEPProtokollID) + '\'',
            epRezeptname(gEPRezeptID),
            {{"Prüfschritt", kopf("Prüfschritt", "Test step"), mitte},
             {"Soll_n", kopf("n\n1/min", "n\nrpm"), rechts},
             {"Soll_P", "P\nW", rechts},
             {"Ist_n_torvena", kopf("n\n1/min", "n\nrpm"), rechts},
             {"Ist_D_torvena", "M\nN m", rechts},
             {"Ist_P_torvena", "P\nW", rechts},
             {"Ist_n_ergom", kopf("n\n1/min", "n\nrpm"), rechts},
             {"Toleranz", inSprache(urteilskopf), mitte}},
            {"Toleranz"}};
}

QString EPAblauf::spezifikation() {
    mKlasse = toleranzklasse(gRezeptName);
    return gRezeptName;
}

Recordset EPAblauf::schritte() {
    Recordset schritte = epSchritte(gEPRezeptID);
    if (schritte.empty()) {
        throw Fehler(fehlernummer::NoCurrentRecord,
                     {"Das Rezept hat keine Prüfschritte.", "The recipe has no test steps."});
    }
    mBegonnen = now();
    epLaufBeginnen(gEPProtokollID, gEPRezeptID, schritte.count());
    return schritte;
}

void EPAblauf::wächterStellen(int milliseconds) {
    mWächter.setEnabled(false);
    mWächter.setInterval(milliseconds);
    mWächter.setEnabled(milliseconds > 0);
}

// The load is on before the speed is asked for.
void EPAblauf::vorSollwert(const Recordset &schritt) {
    mStand = 0;
    const double anzahl = Round(schritt["MessSchritte"].number());
    if (anzahl < 1 || anzahl > größteAnzahl) {
        throw Fehler(fehlernummer::TypeMismatch,
                     {"Der Prüfschritt hat keine Anzahl von Messungen und würde nicht enden.",
                      "The test step has no number of measurements and would not end."});
    }
    gEPZähler = static_cast<int>(anzahl);
    wächterStellen(längsteStille);
    const QByteArray zeile = fnc_Transformation(schritt["SSCode"].text());
    if (gMessStatus != Messstatus::Messen || !gSS2Vorhanden || zeile.isEmpty())
        return;
    mLastAus = false;
    ergometerSenden(zeile, false);
}

void EPAblauf::nachRahmen(Messfenster &fenster) {
    const Text getrennt{"Die Verbindung zum Ergometer ist unterbrochen. Die Prüfung wird beendet.",
                        "The connection to the ergometer is lost. The test is terminated."};
    wächterStellen(längsteStille);
    std::optional<QString> drehzahl;
    if (gSS2Vorhanden) {
        beep();
        const auto gelesen = qScopeGuard([this] { mLiest = false; });
        mLiest = true;
        drehzahl = fnc_ErgometerDrehzahlLesen([] { return gMessStatus != Messstatus::Messen; });
    }
    if (!gDesktopAktiv || gMessStatus != Messstatus::Messen)
        return; // whatever was asked for meanwhile wins over the count
    if (!gSS2Vorhanden || !MSComm2.PortOpen()) {
        beenden(getrennt);
        return;
    }
    if (drehzahl)
        fenster.zeigeErgometer(*drehzahl);
    fenster.zeigeFortschritt(QString("%1/%2").arg(++mStand).arg(gEPZähler));
    if (mStand == gEPZähler)
        fenster.schrittAbschließen();
}

QString wort(bool gut) {
    return inSprache(gut ? Text{"OK", "OK"} : Text{"Außer Toleranz", "Out of tolerance"});
}

Vorschau EPAblauf::vorschau(const SchrittTexte &schritt) {
    if (!mKlasse || !mKlasse->beurteilt)
        return {};
    const Spezifikation &grenzen = mKlasse->grenzen;
    Vorschau vorschau{{leistungsVergleich(endprüfungLeistung(schritt, grenzen))}, {}, {}};
    if (grenzen.grenzAbw != 0 && schritt.ist_n_ergom.isEmpty())
        return vorschau; // nothing was read yet
    if (grenzen.grenzAbw != 0)
        vorschau.vergleiche.push_back(drehzahlVergleich(endprüfungDrehzahl(schritt, grenzen)));
    const bool gut = endprüfungBewerten(schritt, grenzen);
    vorschau.spruch = gut ? Spruch::Ja : Spruch::Nein;
    vorschau.wörter = {{inSprache(urteilskopf), vorschau.spruch, wort(gut)}};
    return vorschau;
}

// A judgement that fails is no pass: the row is stored without a verdict, and the run ends.
bool EPAblauf::speichern(SchrittTexte &schritt) {
    if (!mKlasse) {
        throw Fehler(fehlernummer::StatementFailed,
                     {"Die Toleranzklasse '" + gRezeptName + "' gibt es nicht.",
                      "There is no tolerance class '" + gRezeptName + "'."});
    }
    EPUrteil urteil{gRezeptName, {}, {}, {}};
    gToleranzOK = false;
    std::optional<Fehler> misslungen;
    if (!mKlasse->beurteilt) {
        if (schritt.prüfart == Prüfart::Leistung)
            schritt.ist_n_ergom = "0";
    } else {
        const Spezifikation &grenzen = mKlasse->grenzen;
        if (grenzen.grenzAbw != 0)
            urteil.zulN = grenzen.grenzAbw;
        try {
            urteil.zulP = endprüfungLeistung(schritt, grenzen).t;
            gToleranzOK = endprüfungBewerten(schritt, grenzen);
            urteil.wort = wort(gToleranzOK);
        } catch (const Fehler &fehler) {
            misslungen = fehler;
        }
    }
    epMesswertSpeichern(gEPProtokollID, schritt, urteil);
    if (misslungen)
        fehlerBox("3018 - ", *misslungen);
    return true;
}

// Also when a line has gone: what is raised is told, and the run is over.
void EPAblauf::rezeptEnde() {
    mVollständig = true;
    mWächter.setEnabled(false);
    const auto vorbei = qScopeGuard([] {
        gMessStatus = Messstatus::Ende;
        form(frm::Meldung).show();
    });
    datenstromBeenden();
    lastAb();
}

void EPAblauf::abbruch() try {
    mWächter.setEnabled(false);
    lastAb();
} catch (const Fehler &fehler) {
    fehlerBox("3020 - ", fehler);
}

void EPAblauf::diagnose(const std::function<void(const QString &)> &zeigen) {
    if (mLiest || gMessStatus != Messstatus::Messen)
        return; // the line is in use
    const auto gefragt = qScopeGuard([this] { mLiest = false; });
    mLiest = true;
    ergometerDiagnose(zeigen);
}

void EPAblauf::lastAb() {
    fnc_LastAbschalten();
    mLastAus = true;
}

// Without a word, and once: a line that does not answer costs six seconds.
void EPAblauf::stillsetzen() {
    if (std::exchange(mStillgesetzt, true))
        return;
    if (!mLastAus) {
        try {
            lastAb();
        } catch (const Fehler &fehler) {
            fehlerMerken(fehler);
        }
    }
    if (gMotorEin)
        motorStillschweigendAus();
}

// Load off, motor off, then the box.
void EPAblauf::beenden(const Text &text) {
    mWächter.setEnabled(false);
    gMessStatus = Messstatus::Ende;
    stillsetzen();
    meldung(text, Critical, {"Kommunikationsfehler", "Communication Error"});
    verlassen();
}

void EPAblauf::ausgeblieben() {
    if (gMessStatus == Messstatus::Messen)
        gMessStatus = Messstatus::Ende;
    if (!leitungFrei()) { // its exchange has its own time-out
        wächterStellen(leitungMilliseconds);
        return;
    }
    beenden({"Keine Daten bei ca. 3 x 6 Runden!", "No data at ca. 3 x 6 rounds!"});
}

void EPAblauf::vorMeldung() {
    // A reading that was missed, or the answer to a service question; a line that has gone is not.
    if (mLiest && MSComm2.PortOpen())
        return;
    mWächter.setEnabled(false);
    if (gMessStatus == Messstatus::Speichern || mLiest)
        gMessStatus = Messstatus::Ende;
    else if (gMessStatus == Messstatus::Messen)
        gMessStatus = Messstatus::Verweigert;
    if (leitungFrei())
        stillsetzen();
    if (gMessStatus == Messstatus::Ende)
        verlassen();
}

void EPAblauf::verlassen() {
    if (Screen *messen = loaded(frm::Messen))
        requestActivation(*messen); // which leaves the screen
}

void EPAblauf::beimVerlassen(Weggang weggang) {
    mWächter.setEnabled(false);
    setBeforeBox({});
    if (!mLastAus)
        lastStillschweigendAb();
    mLastAus = true;
    if (!std::exchange(mOffen, false))
        return;
    if (mBegonnen.isValid())
        epLaufBeenden(gEPProtokollID, static_cast<int>(mBegonnen.secsTo(now())), mVollständig);
    if (weggang == Weggang::Still)
        return;
    if (epBerichtZeigen(gEPProtokollID))
        return;
    epMesswerteLöschen(gEPProtokollID);
    meldung({"Protokoll enthält keine Daten und wird gelöscht!",
             "Protocol does not contain data and is deleted!"},
            OKOnly, {"Beenden", "Message"});
}

EPAblauf &epAblauf() {
    static EPAblauf ablauf;
    return ablauf;
}

} // namespace

void epAblaufEinsetzen() {
    setMessablauf(&epAblauf());
}

void epAblaufWegnehmen() {
    setBeforeBox({});
    setMessablauf(nullptr);
}
