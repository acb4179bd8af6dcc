// The contract between the measurement screen and a flow over the steps of a recipe: the one that
// an operator steers, and others that a higher floor brings. What differs between them stands in
// the flow; the screen asks for nothing else.
#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "controls/recordsetmodel.h"
#include "measure/vorschau.h"
#include "records/messwerte.h"

/// How the measurement is left: by the operator, or by the end of the process, which asks nothing,
/// tells nothing and prints nothing.
enum class Weggang { Ordentlich, Still };

/// How the screen looks under a flow.
struct Messansicht {
    /// A person steers the steps: settles the protocol number first, then navigation, free input,
    /// saving by button. Otherwise these are not to be seen, and the first step begins by itself.
    bool bedient = true;
    QString titel;                               ///< caption; empty keeps that of the screen
    QString rezept;                              ///< name
    std::vector<RecordsetModel::Spalte> spalten; ///< of the grid of stored rows
    QStringList urteile = {}; ///< those of its columns that hold verdicts; the last one sums up
};

/// The way back: what a flow may do with the screen.
class Messfenster {
  public:
    virtual ~Messfenster() = default;
    /// The step as the boxes show it now.
    virtual SchrittTexte texte() const = 0;
    /// The speed that the ergometer shows, 1/min, as text.
    virtual void zeigeErgometer(const QString &drehzahl) = 0;
    /// How far the step is, "2/3".
    virtual void zeigeFortschritt(const QString &stand) = 0;
    /// Judges and stores the step shown and goes on to the next one. Shows its failures in a box.
    /// False when the step stays the current one: a failure, or at once when something else has
    /// been asked for meanwhile, above all the end. After a failure its measurement goes on under
    /// a person; without one the screen is left.
    virtual bool schrittAbschließen() = 0;
};

/// A flow. All are called by the screen, in this order over a session, except for beimVerlassen,
/// which the end of the process calls as well. Unless it says otherwise, what one raises ends what
/// the screen is about and is told.
class Messablauf {
  public:
    virtual ~Messablauf() = default;
    /// The screen is loaded: a session begins, nothing is left of the one before.
    virtual Messansicht ansicht() = 0;
    /// The first activation: reads what is judged by and answers its name.
    virtual QString spezifikation() = 0;
    /// The steps: Prüfschritt, Drehzahl, Leistung, Prüfart, and what the flow needs besides.
    virtual Recordset schritte() = 0;
    /// The rows that the protocol has stored, in the order of the grid; with Prüfschritt.
    virtual Recordset messwerte() = 0;
    /// Before a speed goes out; a new reception follows. `schritt` stands on the step of the recipe
    /// that is current, also while one is measured that stands in no recipe. No speed goes out when
    /// gMessStatus is another than Messen behind it.
    virtual void vorSollwert(const Recordset &schritt) = 0;
    /// A complete result of six rounds, all of it measured under the set-point shown. May wait: a
    /// flow that does looks at gMessStatus after each wait and goes on only while it is Messen, so
    /// that a stop wins over a count. Raises nothing: it traps its own failures.
    virtual void nachRahmen(Messfenster &fenster) = 0;
    /// What speichern would find now, for the strip: from the same computation, without a trace in
    /// the step, the store or `schritt`. Asked with each value that comes: reads no table anew
    /// within a pass, shows no box. Nothing to compare when it cannot be told; what it raises
    /// counts as that.
    virtual Vorschau vorschau(const SchrittTexte &schritt) = 0;
    /// The permitted deviation of power in W at this set-point, as its box shows it: for the lines
    /// of the charts, which a person alone can ask for.
    virtual double leistungsToleranz(const QString &soll_P) const {
        static_cast<void>(soll_P);
        return 0;
    }
    /// Judges and stores. Writes into `schritt` what the judgement sets there. False when it has
    /// told that nothing can be stored. Raises what the store raises; then nothing was stored.
    virtual bool speichern(SchrittTexte &schritt) = 0;
    /// The recipe has been worked through; its last step is the current one again. Tells it, ends
    /// the stream and sets gMessStatus, also when the line has gone.
    virtual void rezeptEnde() = 0;
    /// The operator's stop, with gMessStatus set and the notice shown. Traps its own failures.
    virtual void abbruch() = 0;
    /// The service question to what is measured; `zeigen` gets a word about the answer. Asked by a
    /// key that no caption names, of a flow that steers itself.
    virtual void diagnose(const std::function<void(const QString &)> &zeigen) {
        static_cast<void>(zeigen);
    }
    /// On every way out, when the motor has been told to stop.
    virtual void beimVerlassen(Weggang weggang) = 0;
};

/// The flow in force. The ordinary one unless another was set; nullptr gives the ordinary one back.
Messablauf &messablauf();
void setMessablauf(Messablauf *ablauf);
