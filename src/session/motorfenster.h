// What the rest may do with a window that runs the motor: the desktop, the desktop of the final
// test, the calibration of the lever arm.
#pragma once

#include <QString>

/// Each part does nothing where the window has no such part.
class Motorfenster {
  public:
    virtual ~Motorfenster() = default;
    virtual void setMoteinEnabled(bool) {}
    virtual void setMotausEnabled(bool) {}
    virtual void setDrehREnabled(bool) {}
    virtual void focusMotein() {}
    virtual void focusMotaus() {}
    /// False after a failed zero-point correction: no measurement can be started until the
    /// selection enables it again.
    virtual void setMessenEnabled(bool) {}
    /// The word for the direction of rotation.
    virtual void showDrehrichtung(const QString &) {}
    /// The remaining running-in time as minutes and seconds.
    virtual void showEinlauf(const QString &) {}
    virtual QString drehrichtung() const { return {}; }
    /// The line that says what the motor does.
    virtual void showMotorInfo(const QString &) {}
    /// The same line, telling that the motor is switched on: the next confirmed stop empties it.
    virtual void showMotorEin(const QString &) {}
    /// A speed or a stop was confirmed: gMotorEin says whether the shaft may be turning.
    virtual void showWelle() {}
    virtual void enableFront() {}
    virtual void disableFront() {}
    /// Takes the keyboard after a measurement, on the button that leaves.
    virtual void focusBeenden() {}
};

/// The window in force: the one entered last that has not left. One is always there while a desktop
/// is loaded; without one, calls go nowhere.
Motorfenster &motorfenster();
/// The first one entered, which is the desktop.
Motorfenster &hauptfenster();
void enterMotorfenster(Motorfenster &fenster);
void leaveMotorfenster(Motorfenster &fenster);

// On all of them
void messenSperren();
void drehrichtungZeigen(const QString &wort);
void einlaufZeigen(const QString &rest);
void welleZeigen();
