// The screen on which a protocol is measured: walks through the steps of a recipe, drives the
// speed, shows what the working standard delivers, and stores each step that the operator saves.
//
// Everything that wants to change the course of a measurement sets gMessStatus; the pass that runs
// reads it after each received byte (see fnc_Messzyklus).
#pragma once

#include "controls/recordsetmodel.h"
#include "measure/empfang.h"
#include "measure/messablauf.h"
#include "platform/fehler.h"
#include "session/screens.h"
#include "session/status.h"
#include "store/recordset.h"
#include "ui_frmMessen.h"

class frmMessen : public Screen, private Messanzeige, private Messfenster {
  public:
    static constexpr frm id = frm::Messen;
    frmMessen();

    /// What the notice does when it closes: the box for the ergometer's speed gets the keyboard in
    /// a speed measurement and goes away in a power measurement.
    void meldungGeschlossen();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

  private:
    // The pass (frmMessen_zyklus.cpp)
    void fnc_Messzyklus();
    void durchgang();
    void verteilen();
    void motorAbschalten();
    bool sollwertZulässig() const;
    void sollwertAblehnen();
    bool fnc_SollwertSenden();
    void fokusSetzen();
    void fnc_NavigationFreigeben();
    void zeigeDrehzahl(double drehzahl) override;
    void zeigeDrehmoment(double drehmoment) override;
    void zeigeLeistung(double leistung) override;
    void rahmenFertig() override;
    bool abgelöst() const override { return mNeuerDurchgang || unloaded(); }

    // Steps, saving, leaving (frmMessen.cpp)
    void ansichtZeigen();
    void ersteAktivierung();
    void fnc_PrüfschrittAnzeigen();
    void fnc_MesswerteAnzeigen();
    SchrittTexte texte() const override;
    void zeigeErgometer(const QString &drehzahl) override;
    void zeigeFortschritt(const QString &stand) override;
    bool schrittAbschließen() override;
    void fnc_MesswertSpeichern();
    void pbAbbrechen_Click();
    void pbMessen_Click();
    void navigieren(void (frmMessen::*schritt)());
    void zumErsten();
    void zumLetzten();
    void zumNächsten();
    void zumVorherigen();

    // Set-points and free input (frmMessen_eingabe.cpp)
    void eingabenVerdrahten();
    void fnc_EingabeSperren();
    void fnc_MesswerteLeeren();
    bool fnc_DrehmomentPrüfen();
    void fnc_DrehzahlPlus() { korrigieren(+0.1); }
    void fnc_DrehzahlMinus() { korrigieren(-0.1); }
    void korrigieren(double schritt);
    void korrFSetzen(double faktor);
    void korrekturknopf(void (frmMessen::*richtung)());
    void korrekturtaste(void (frmMessen::*richtung)());
    void korrekturErledigt();
    void werteVerwerfen();
    void fnc_FreieEingabe();
    void pbAusführen_Click();
    void pbÜbernehmen_Click();
    void pbFreieEing_Click();
    void pbDrehzNull_Click();
    void cmbMessArt_Click();
    bool cmbMessArt_KeyPress(QKeyEvent &taste);
    void cmbMessArt_Change();
    void messArtZeigen(int art); // 1 power, 2 speed
    void messArtSetzen(int art);
    void ausführenFreigeben();
    void aufAusführenWarten();
    void sollwertPrüfen(QLineEdit *box, QString &alterWert, double grenze, const Text &keineZahl,
                        const Text &außerhalb);
    bool freieEingabe() const;
    void txtIST_n_ergom_LostFocus();
    void ergometerFeldZeigen(bool zeigen);
    void speichernFreigeben(const QLineEdit *geändert);
    bool istLeistungsmessung() const;
    bool istDrehzahlmessung() const;

    /// Whose the values in the boxes are.
    enum class Werte {
        Fremde,     ///< they were measured under another set-point than the one shown
        Angefragte, ///< the set-point shown is on its way to the controller
        Eigene,     ///< the set-point shown is driven, and its stream has begun
    };

    Ui::frmMessen ui;
    RecordsetModel mRaster;
    Recordset dataRezept;
    Recordset dataMesswerte;
    SechsRundenEmpfang mEmpfang;
    Messansicht mAnsicht;

    double mBasisDrehzahl = 0; ///< speed of the step before the correction factor, 1/min
    double mKorrF = 1;
    double mGesendeteKorrF = 1;
    Werte mWerte = Werte::Fremde;
    QString mAltSoll_n;
    QString mAltSoll_P;
    QString mTaste;
    bool mTasteNeu = false;
    bool mDrehzNull = false;
    bool mRezeptEnde = false;
    bool mDurchgangLäuft = false;
    bool mNeuerDurchgang = false;
};
