// A whole workplace for a test: a database of its own in a directory of its own, the simulated
// stand behind the line, virtual time, and the message boxes scripted.
#pragma once

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "boxes.h"
#include "controls.h"
#include "database.h"
#include "journey.h"
#include "simulatedline.h"
#include "testclock.h"

namespace support {

/// Without screens: database, clock, line, boxes, and a session in German.
class Workshop : public testing::Test {
  protected:
    Workshop();
    ~Workshop() override;

    /// The session as in a process that has just begun.
    static void forgetSession();
    /// Rows of the one column that the statement names.
    QStringList column(const QString &sql, const Datenbank::Params &params = {});
    /// Another program writes to the database.
    static void change(const QString &sql, const Datenbank::Params &params = {});
    /// The language of the next start, and the number format that goes with it: 1 German, 2
    /// English.
    static void setLanguage(int language);
    static bool english();
    /// The box to the letter, in the language of the session.
    void expectBox(const Text &text, int flags, const Text &title, int answer = platform::OK);
    void run(Journey journey);

    QTemporaryDir directory;
    QString previousDirectory;
    TestClock &clock;
    SimulatedLine line;
    Boxes boxes;
    int beeps = 0;
};

/// With the program started, at its first screen.
class Workplace : public Workshop {
  protected:
    Workplace();
    ~Workplace() override;

    void start();
    /// Until the screen has the front and has had its activation.
    static Journey arrive(frm name);
    Journey logIn();
    /// Customer, unit and recipe by what the desktop offers.
    Journey choose(const QString &customer, const QString &ident, const QString &recipe);
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
    /// Until the step is measured at this speed and its live values are complete.
    static Journey settled(const char *step, double speed);
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
