// The one row of settings.
#pragma once

#include <QString>

struct SystemTitel {
    QString firma;
    QString produkt;
};

/// Takes title, running-in and language into the session; the titles first, so that they stay when
/// a later column is missing. With no row or more than one nothing is taken. Raises Fehler.
void systemLesen(SystemTitel *titel = nullptr);

/// The running-in: its time in minutes.seconds, its power in W.
void einlaufzeitSpeichern(double zeit);
void einlaufleistungSpeichern(double watt);

/// Both empty where nothing was chosen.
struct Druckereinstellung {
    QString drucker; ///< that writes PDF files
    QString ordner;  ///< below which they lie
};
Druckereinstellung druckereinstellung();
void druckereinstellungSpeichern(const Druckereinstellung &einstellung);

/// True when this installation shows reset and final test; false when the setting cannot be read.
bool endprüfungFreigegeben();
