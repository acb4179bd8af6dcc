// Contracts of the measurement screen: what differs between the flow that an operator steers and
// others, and what a dynamic measurement brings. The screen knows these; a higher floor may
// implement them.
#pragma once

#include <QString>

#include "store/recordset.h"

class frmMessen;

/// How the measurement is left: by the operator, or by the end of the process, which asks nothing,
/// tells nothing and prints nothing.
enum class Weggang { Ordentlich, Still };

/// A flow over the steps of a recipe. All are called by the screen, in the order of a session.
class Messablauf {
  public:
    virtual ~Messablauf() = default;
    /// When the screen is loaded: what it shows and hides, its caption.
    virtual void beimÖffnen(frmMessen &screen) = 0;
    /// The steps: Prüfschritt, Drehzahl, Leistung, Prüfart, and what the flow needs besides.
    virtual Recordset schritte() = 0;
    /// True when the protocol dialog is to settle the protocol number first.
    virtual bool protokollErfragen() const = 0;
    /// True when a person steers the steps: navigation, free input, saving by button.
    virtual bool bedient() const = 0;
    /// Before a speed set-point goes out.
    virtual void vorSollwert() = 0;
    /// After a block of the six-round stream was read.
    virtual void nachBlock() = 0;
    /// A step was found complete by the pass and not by a button.
    virtual void schrittFertig(frmMessen &screen) = 0;
    /// The recipe has been worked through.
    virtual void rezeptEnde(frmMessen &screen) = 0;
    /// On every way out, when the motor has been told to stop.
    virtual void beimVerlassen(Weggang weggang) = 0;
};

/// The flow in force. The ordinary one unless another was set; nullptr gives the ordinary one back.
Messablauf &messablauf();
void setMessablauf(Messablauf *ablauf);

/// The measurement of speed and power over time.
class DynamikMessung {
  public:
    virtual ~DynamikMessung() = default;
    /// New set-points: the limits and bands of the charts follow them.
    virtual void sollwerte(const QString &soll_n, const QString &soll_P) = 0;
    /// Shows the charts and measures until gMessStatus is 0.
    virtual void messen() = 0;
};

/// None until a higher floor brings one; its button stays disabled then.
DynamikMessung *dynamikMessung();
void setDynamikMessung(DynamikMessung *messung);
