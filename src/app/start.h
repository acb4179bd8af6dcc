// The way into the program and the ways out of it that no screen takes.
#pragma once

/// Binds the screens, connects the line and its timers, and shows the first screen.
void programmStarten();

/// The process was told to end: stops the motor if it runs, without asking or telling, and ends. An
/// exchange that is under way is let finish first.
void beendenOhneFrage();

/// Takes screens, line and database down, in this order; for the end of the process and of a test.
void programmAufräumen();
