// The screen on which a protocol is measured: walks through the steps of a recipe, drives the
// speed, shows what the working standard delivers, and has the flow judge and store each step.
//
// Everything that wants to change the course of a measurement sets gMessStatus; the pass that runs
// reads it after each received byte (see fnc_Messzyklus).
#pragma once

#include <QShortcut>

#include "controls/recordsetmodel.h"
#include "measure/empfang.h"
#include "measure/messablauf.h"
#include "measure/sollwerteingabe.h"
#include "measure/speichernregel.h"
#include "measure/takt.h"
#include "session/screens.h"
#include "session/session.h"
#include "ui_frmMessen.h"

class frmMessen : public Screen, private Messfenster {
  public:
    static constexpr frm id = frm::Messen;
    frmMessen();

    /// What the notice does when it closes: the box for the ergometer's speed gets the keyboard in
    /// a speed measurement and goes away in a power measurement.
    void meldungGeschlossen();
    /// Goes from step to step without a person, who can do nothing but end it.
    bool läuftAllein() const { return !mAnsicht.bedient && gMessStatus == Messstatus::Messen; }
    /// What is measured next, as the notice shows it.
    QString nächsterPrüfschritt() const {
        if (freieEingabe())
            return freierSchritt;
        return dataRezept.empty() || dataRezept.atEnd() ? QString()
                                                        : dataRezept["Prüfschritt"].text();
    }

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
    void dynamischMessen();
    void sollwertAblehnen();
    bool fnc_SollwertSenden();
    void zeige(SechsRundenDecoder::Ereignis was, double wert);
    bool abgelöst() const { return mNeuerDurchgang || unloaded(); }

    // Steps, saving, leaving (frmMessen.cpp)
    void ansichtZeigen();
    QTableView *raster() const { return mAnsicht.bedient ? ui.DBGrid1 : ui.DBGrid2; }
    void ersteAktivierung();
    void zustandZeigen();
    void fnc_PrüfschrittAnzeigen();
    void grenzenSetzen();
    void fnc_MesswerteAnzeigen();
    SchrittTexte texte() const override;
    void zeigeErgometer(const QString &drehzahl) override { ui.txtIST_n_ergom->setText(drehzahl); }
    void zeigeFortschritt(const QString &stand) override { ui.lblMessSchritte->setText(stand); }
    bool schrittAbschließen() override;
    void fnc_MesswertSpeichern();
    void pbAbbrechen_Click();
    void pbMessen_Click();
    void pbDynMess_Click();
    void navigieren(int zeile);

    // Set-points and free input (frmMessen_eingabe.cpp)
    void eingabenVerdrahten();
    void fnc_EingabeSperren();
    void fnc_MesswerteLeeren();
    void korrigieren(double schritt, bool taste);
    void korrFSetzen(double faktor);
    void korrekturErledigt();
    void werteVerwerfen();
    void fnc_FreieEingabe();
    void pbAusführen_Click();
    void neuMessen();
    void pbFreieEing_Click();
    void ausführenFreigeben();
    bool freieEingabe() const { return ui.laPrSchritt->text() == freierSchritt; }
    void txtIST_n_ergom_LostFocus();
    void ergometerFeldZeigen(bool zeigen);
    void speichernFreigeben(Messbox geändert);

    // What is painted (frmMessen_anzeige.cpp)
    void anzeigenEinrichten();
    void drehrichtungZeigen();
    Phase phase() const;
    void streifenZeigen();
    static Vorschau vorschau(const SchrittTexte &schritt);
    QStringList gespeicherteUrteile() const;
    void anlaufZeigen(double fehlt);
    void taktZeigen();

    /// Whose the values in the boxes are.
    enum class Werte {
        Fremde,     ///< they were measured under another set-point than the one shown
        Angefragte, ///< the set-point shown is on its way to the controller
        Eigene,     ///< the set-point shown is driven, and its stream has begun
    };
    /// What the buttons follow from.
    struct Zustand {
        bool vollständig = false;  ///< the step can be saved
        bool gemessen = false;     ///< a complete result of the set-point shown has come
        bool ungesendet = false;   ///< the set-points shown wait to be carried out
        bool korrigiert = false;   ///< the speed was corrected by a button
        bool neuZuSenden = false;  ///< the speed was corrected by a key
        bool schritteFrei = false; ///< a step was begun; others may be turned to
        bool freiGewählt = false;  ///< free input was asked for
        bool freiErlaubt = false;  ///< free input may be asked for
        bool nullErlaubt = true;   ///< speed zero may be asked for
        bool abgearbeitet = false; ///< the recipe has ended, and nothing was asked for since
        bool beendet = false;
    };

    Ui::frmMessen ui;
    Sollwerteingabe mEingabe{ui};
    QShortcut mDienst{QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D), this};
    RecordsetModel mRaster;
    Recordset dataRezept;
    Recordset dataMesswerte;
    SechsRundenEmpfang mEmpfang;
    Takt mTakt{handler([this] { taktZeigen(); })};
    Messansicht mAnsicht;
    Zustand mZustand;
    Werte mWerte = Werte::Fremde;

    double mBasisDrehzahl = 0; ///< speed of the step before the correction factor, 1/min
    double mKorrF = 1;
    double mGesendeteKorrF = 1;
    bool mDrehzNull = false;
    int mAnlauf = 0; ///< what is shown: the speed rises, falls, has come
    bool mRezeptEnde = false;
    bool mDurchgangLäuft = false;
    bool mNeuerDurchgang = false;
};
