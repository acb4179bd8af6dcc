// The values of the status variables: a screen that closes sets one, the screen that comes to the
// front reads it.
#pragma once

#include <cstdint>

/// gMessStatus: what the measuring loop does next.
enum class Messstatus : std::int16_t {
    Messen = 0,    ///< the loop runs, or runs at the next activation
    Speichern = 1, ///< save and go on
    FreieEingabe = 2,
    Dynamisch = 3,
    Ende = 4,       ///< end of the session
    Verweigert = 5, ///< the controller refused, or the zero point was not found; report and end
    Ruhe = 6,       ///< nothing runs
    MotorAus = 7,   ///< stop the motor, then nothing
    Neu = 8,        ///< the screen was loaded again after 4 or 5
    Starten = 10,   ///< the starting notice is to be shown
};

/// gEinlaufStatus: stage of the zero-point correction.
enum class Einlaufstatus : std::int16_t {
    NichtBegonnen = 0,
    MotorWirdGestoppt = 1,
    Vorbereitet = 2,
    Gemessen = 3
};

/// gDesktopFolge: what the desktop does when it is activated next.
enum class Desktopfolge : std::int16_t {
    Nichts = 0,
    Gerät = 2,
    Rezept = 3,
    Korrektur = 4,
    Messen = 5,
    Bericht = 6
};

/// gFormStatus: stage of the lever-arm calibration; 0 outside of one.
enum class Formstatus : std::int16_t {
    Keiner = 0,
    RichtungFehlt = 1,
    Bereit = 2,
    Einlaufen = 3,
    Korrektur = 4,
    KorrekturFertig = 5,
    SchwereEingegeben = 6,
    ErsteSeiteGemessen = 7,
    ZweiteSeite = 8,
    Gespeichert = 9,
    Abgebrochen = 10,
};

/// gDatenbankzustand: what the check of the database said since it was opened.
enum class Datenbankzustand : std::int16_t { Ungeprüft = 0, Heil = 1, Beschädigt = 2 };
