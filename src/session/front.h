// What the rest may do with the window that runs the motor. The desktop is one, the desktop of the
// final test another.
#pragma once

#include <QString>

class Front {
  public:
    virtual ~Front() = default;
    virtual void setMoteinEnabled(bool enabled) = 0;
    virtual void setMotausEnabled(bool enabled) = 0;
    virtual void setDrehREnabled(bool enabled) = 0;
    /// False after a failed zero-point correction: no measurement can be started until the
    /// selection enables it again.
    virtual void setMessenEnabled(bool enabled) = 0;
    /// The word for the direction of rotation.
    virtual void showDrehrichtung(const QString &wort) = 0;
    /// The remaining running-in time as minutes and seconds.
    virtual void showEinlauf(const QString &rest) = 0;
    virtual QString drehrichtung() const = 0;
    /// The line that says what the motor does.
    virtual void showMotorInfo(const QString &text) = 0;
    virtual void enableFront() = 0;
    virtual void disableFront() = 0;
    /// Takes the keyboard after a measurement, on the button that leaves.
    virtual void focusBeenden() = 0;
};

/// The front in force: the one entered last that has not left. One is always there while a desktop
/// is loaded; without one, calls go nowhere.
Front &front();
void enterFront(Front &front);
void leaveFront(Front &front);
