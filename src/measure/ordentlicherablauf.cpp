#include "measure/ordentlicherablauf.h"

#include "link/controller.h"
#include "measure/bewertung.h"
#include "measure/messablauf.h"
#include "records/protokollinhalt.h"
#include "records/unterbrechung.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

class OrdentlicherAblauf final : public Messablauf {
  public:
    Messansicht ansicht() override;
    QString spezifikation() override;
    Recordset schritte() override { return messSchritte(gRezeptID); }
    Recordset messwerte() override { return protokollMesswerte(gProtokollID); }
    void vorSollwert(const Recordset &) override;
    void nachRahmen(Messfenster &) override {}
    Vorschau vorschau(const SchrittTexte &schritt) override;
    double leistungsToleranz(const QString &soll_P) const override {
        return fnc_LeistungsToleranz(mSpezifikation.prozent, mSpezifikation.watt, soll_P);
    }
    bool speichern(SchrittTexte &schritt) override;
    void rezeptEnde() override;
    void abbruch() override {}
    void beimVerlassen(Weggang weggang) override;

  private:
    bool fnc_Bewerten(SchrittTexte &schritt);

    Spezifikation mSpezifikation;
    Urteil mUrteil;
    // For the strip, of this pass; nothing where the table could not be read.
    std::optional<Unsicherheiten> mLeistung, mDrehzahl;
};

const Text ohneMU{"ohne Berück. MU", "without\nregard to MU"};
const Text mitMU{"mit Berück. MU", "with\nregard to MU"};

Messansicht OrdentlicherAblauf::ansicht() {
    *this = {};
    constexpr auto rechts = Qt::AlignRight | Qt::AlignVCenter;
    constexpr auto mitte = Qt::AlignCenter;
    const auto kopf = [deutsch = gSprache != 2](const char *de, const char *en) {
        return QString(deutsch ? de : en);
    };
    return {true,
            {},
            auswahl().rezept,
            {{"Prüfschritt", kopf("Prüfschritt", "Test step"), mitte},
             {"Soll_n", kopf("Soll n\n1/min", "Setpoint n\nrpm"), rechts},
             {"Soll_P", kopf("Soll P\nW", "Setpoint P\nW"), rechts},
             {"Ist_n_torvena", kopf("Normal n\n1/min", "Standard n\nrpm"), rechts},
             {"Ist_D_torvena", kopf("Normal M\nN m", "Standard M\nN m"), rechts},
             {"Ist_P_torvena", kopf("Normal P\nW", "Standard P\nW"), rechts},
             {"Ist_n_ergom", kopf("Ergometer n\n1/min", "Ergometer n\nrpm"), rechts},
             {"MU_ohne", inSprache(ohneMU), mitte},
             {"MU_mit", inSprache(mitMU), mitte}},
            {"MU_ohne", "MU_mit"}};
}

QString OrdentlicherAblauf::spezifikation() {
    mSpezifikation = spezifikationMitID(gToleranzID).value_or(Spezifikation{});
    return mSpezifikation.bezeichnung;
}

void OrdentlicherAblauf::vorSollwert(const Recordset &) {
    const auto gelesen = [](Unsicherheiten (*tabelle)()) -> std::optional<Unsicherheiten> {
        try {
            return tabelle();
        } catch (const Fehler &) {
            return std::nullopt; // told when a step is to be stored
        }
    };
    mLeistung = gelesen(unsicherheitLeistung);
    mDrehzahl = gelesen(unsicherheitDrehzahl);
}

Vorschau OrdentlicherAblauf::vorschau(const SchrittTexte &schritt) {
    const bool leistung = schritt.prüfart == Prüfart::Leistung;
    const auto &tabelle = leistung ? mLeistung : mDrehzahl;
    if (!tabelle)
        return {};
    const Abstand abstand = schrittAbstand(schritt, mSpezifikation, *tabelle);
    const Spruch ohne = spruchOhne(abstand), mit = spruchMit(abstand);
    return {{leistung ? leistungsVergleich(abstand) : drehzahlVergleich(abstand)},
            mit,
            {{inSprache(ohneMU).simplified(), ohne, wort(ohne)},
             {inSprache(mitMU).simplified(), mit, wort(mit)}}};
}

bool OrdentlicherAblauf::speichern(SchrittTexte &schritt) {
    if (!fnc_Bewerten(schritt))
        return false;
    messwertSpeichern(gProtokollID, schritt, mUrteil);
    return true;
}

// False when nothing may be stored. A step of 0 W has no relative uncertainty; its row is stored
// all the same, with the verdicts of the step before.
bool OrdentlicherAblauf::fnc_Bewerten(SchrittTexte &schritt) try {
    if (schritt.prüfart == Prüfart::Leistung)
        leistungBewerten(mUrteil, schritt, mSpezifikation, unsicherheitLeistung());
    else
        drehzahlBewerten(mUrteil, schritt, mSpezifikation, unsicherheitDrehzahl());
    return true;
} catch (const Fehler &fehler) {
    fehlerBox("3018 - ", fehler);
    return fehler.number() == fehlernummer::DivisionByZero;
}

void OrdentlicherAblauf::rezeptEnde() {
    meldung({"Das Rezept ist abgearbeitet!\r"
             "Beenden Sie das Messen oder fahren Sie mit freier Eingabe fort!",
             "The recipe has been run!\r"
             "Terminate the measuring, or continue with Free Input!"},
            Information, {"Meldung!", "Message!"});
    gMessStatus = Messstatus::Ruhe; // first: a line that has gone does not hold it up
    datenstromBeenden();
}

void OrdentlicherAblauf::beimVerlassen(Weggang weggang) {
    if (weggang == Weggang::Ordentlich)
        sitzungVergessen(gProtokollID);
    if (vorhanden(Bestand::Arbeit, Inhalt::Messwerte, gProtokollID)) {
        gBerichtAntwort = Yes;
        return;
    }
    if (!inhaltslos(Bestand::Arbeit, gProtokollID))
        return;
    kopfLöschen(Bestand::Arbeit, gProtokollID);
    if (weggang == Weggang::Still)
        return;
    meldung({"Protokoll enthält keine Daten und wird gelöscht!",
             "Protocol does not contain data and is deleted!"},
            Information, {"Beenden", "Message"});
}

} // namespace

Messablauf &ordentlicherAblauf() {
    static OrdentlicherAblauf ablauf;
    return ablauf;
}
