// A whole workplace for a test: a workshop with the program started, and the roads that journeys
// have in common.
#pragma once

#include "way.h"

namespace support {

/// With the program started, at its first screen.
class Workplace : public Way {
  protected:
    Workplace();
    ~Workplace() override;

    void start();
    Journey logIn();
    /// Customer, unit and recipe by what the desktop offers.
    Journey choose(QString customer, QString ident, QString recipe);
    /// Log in and choose the demo customer, unit and short recipe.
    Journey select();
    Journey chooseDirection();
    /// Direction if there is none, recipe anew if the desktop asks for it, "not yet run in" waived,
    /// up to the instruction to uncouple.
    Journey startMeasuring();
    /// The same, then the zero-point correction, up to the protocol dialog.
    Journey correctZeroPoint();
    /// A new protocol of this name; the first step is under way.
    Journey newProtocol(const QString &name);
    /// All of the above with the demo customer and the short recipe.
    Journey measure();
    /// Saves the step at hand. The journey stays where it was: a box may have come.
    static void save() { press(frm::Messen, "pbSpeichern"); }
    void expectRecipeEnd();
    void expectEmptyProtocol();
    /// Ends the session by its button, up to the desktop.
    Journey leaveMeasuring();
    /// With the selection of the desktop: a measurement of the short recipe from end to end.
    Journey wholeMeasurement(const QString &name);
    /// Nothing is left over: the desktop has the front and takes input, the motor is told to stand.
    void expectIdleDesktop();
    /// What was stored under the protocol of the session, in the order of saving.
    QStringList storedSteps();
};

/// The demo's own: customer, ident number and recipe that journeys measure.
struct DemoNames {
    QString customer;
    QString ident;
    QString recipe;
};
DemoNames demoNames();

} // namespace support
