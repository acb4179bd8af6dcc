// The serial line to the controller and its exchanges. One exchange at a time; while one runs,
// activations are held back. Every procedure shows its own failures in a box and then answers what
// it held, normally false.
#pragma once

#include <QString>

#include <cstdint>

#include "link/frames.h"
#include "platform/clock.h"
#include "platform/serial.h"
#include "windows/screen.h"

inline MSComm MSComm1;
inline Timer Timer1;     ///< time-out of an exchange; ticks and beeps until disabled
inline Timer tiDrehzahl; ///< time-out of the frequency stream, ticks once

inline bool gTimeoutTimer1 = false;
inline bool gTimeoutDrehzahl = false;
inline std::int16_t gKeineMeldung = 0; ///< 1 or more keeps fnc_BefehlSenden silent

/// The places of the fixed waits between operations on the line, in counted rounds.
inline constexpr long kurzeVerzögerung = 20'000;    // 1 ms
inline constexpr long langeVerzögerung = 1'000'000; // 50 ms

/// Connects the timers; called once before the first use, and again after the clock was replaced.
void controllerVorbereiten();

/// Sends a set-point and waits for its echo. `command` is "E" (speed) or "A" (drive off), `value`
/// the speed in 1/min as text with comma or point. False after three tries without echo.
bool fnc_BefehlSenden(const QString &command, std::int16_t direction, const QString &value);
bool fnc_FrameSenden(const QString &frame);
/// Waits at most 2 s for bytes that are exactly the pattern, given as hex digits.
bool fnc_EchoWarten(const QString &pattern);
/// Answers and clears the time-out flag of Timer1; stops the timer when it was set.
bool fnc_TimeoutAbfragen();
/// Opens the port if it is closed.
void fnc_PortÖffnen();

/// Waits until the shaft turns slower than 0.5 Hz, at most 12 s. The answer is always false.
bool fnc_FrequenzLesen();
/// Speed zero, standstill, drive off. True when the controller took both commands.
bool fnc_MotorAus();
/// 1 the mode for lever-arm calibration, 2 another mode, 0 no answer.
std::int16_t fnc_BetriebsartLesen();
bool fnc_Reset();

/// Ends a stream and returns the controller to its command state. Does nothing on a closed port.
void datenstromBeenden();

/// False while an exchange is under way.
bool leitungFrei();
/// Raises LineBusy while an exchange is under way.
void leitungFreiPrüfen();

/// Stops the motor without asking or telling, on the way out of the process.
void motorStillschweigendAus();
