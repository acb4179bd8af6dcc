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

    /// Rows of the one column that the statement names.
    QStringList column(const QString &sql, const Datenbank::Params &params = {});
    void run(Journey journey) { support::run(clock, std::move(journey)); }

    QTemporaryDir directory;
    QString previousDirectory;
    TestClock &clock;
    SimulatedLine line;
    Boxes boxes;
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
    /// Direction, "not yet run in" waived, zero-point correction, up to the protocol dialog.
    Journey correctZeroPoint();
    /// A new protocol of this name; the first step is under way.
    Journey newProtocol(const QString &name);
    /// All of the above with the demo customer and the short recipe.
    Journey measure();
    bool english() const;
};

/// The demo's own: customer, ident number and recipe that journeys measure.
struct DemoNames {
    QString customer;
    QString ident;
    QString recipe;
};
DemoNames demoNames();

} // namespace support
