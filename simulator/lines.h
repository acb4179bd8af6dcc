// Runs the stand in real time on two pseudo terminals.
#pragma once

#include "pseudoterminal.h"
#include "stand.h"
#include "standcommands.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

namespace simulator {

class Lines {
  public:
    /// The devices are linked as COM1 and COM4 in `directory`.
    explicit Lines(const QString &directory);

    /// Returns why it failed, or an empty text. Also for a line that is plugged already.
    QString plug(Line line, bool connected);
    bool plugged(Line line) const { return terminal(line).plugged(); }

    /// Gives the stand as it is at this moment to `action`, which may change it.
    void with(const std::function<void(Stand &)> &action);

  private:
    PseudoTerminal &terminal(Line line) { return line == Line::Controller ? mFirst : mSecond; }
    const PseudoTerminal &terminal(Line line) const {
        return line == Line::Controller ? mFirst : mSecond;
    }
    double now() const; // ms
    void deliver();

    Stand mStand;
    PseudoTerminal mFirst;
    PseudoTerminal mSecond;
    QElapsedTimer mClock;
    QTimer mNext; // until the next byte is due
};

} // namespace simulator
