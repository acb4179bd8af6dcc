// The set-points of the measurement screen and the type of the measurement: their boxes show a step
// of the recipe, or are open to be typed into.
#pragma once

#include "platform/text.h"
#include "session/pruefart.h"
#include "ui_frmMessen.h"

class QKeyEvent;

/// The speed that may be sent at most, 1/min: what may be typed, and 10 % for the correction.
inline constexpr double höchsterSollwert = 143;
extern const platform::Text drehzahlAußerhalb;

class Sollwerteingabe {
  public:
    explicit Sollwerteingabe(const Ui::frmMessen &boxes) : ui(boxes) {}

    void listeFüllen();
    void sperren();
    /// Free input: empty boxes, or 0 and 0 in a power measurement.
    void öffnen(bool null);
    bool offen() const { return !ui.txtSoll_n->isReadOnly(); }
    /// Speed, power and type are there.
    bool vollständig() const;
    double drehzahl() const; ///< 1/min; 0 for a text that is no number
    double leistung() const; ///< W, likewise

    /// Tells in a box when the torque is too great, and turns to the speed.
    bool fnc_DrehmomentPrüfen() const;
    /// Keeps what stands in one of the two boxes that was turned to ...
    void merken(const QLineEdit *box) { alt(box) = box->text(); }
    /// ... and puts it back, with a box, when the one is left with what is no set-point.
    void prüfen(QLineEdit *box);

    int prüfart() const { return mPrüfart; }
    bool istLeistung() const { return mPrüfart == Prüfart::Leistung; }
    bool istDrehzahl() const { return mPrüfart == Prüfart::Drehzahl; }
    /// Another type than the two leaves what is shown.
    void artZeigen(int prüfart);
    void artAusListe();
    /// True when the key was used up.
    bool artTaste(const QKeyEvent &taste);

  private:
    QString &alt(const QLineEdit *box) { return box == ui.txtSoll_n ? mAltSoll_n : mAltSoll_P; }
    void artZeigen(int prüfart, const QString &wort);

    const Ui::frmMessen &ui;
    QString mAltSoll_n;
    QString mAltSoll_P;
    int mPrüfart = Prüfart::Keine;
};
