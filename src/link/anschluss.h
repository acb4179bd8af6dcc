// The serial lines with their settings: as text, in the table, and as words on a screen.
#pragma once

#include <QString>
#include <QStringList>

#include "platform/serial.h"
#include "platform/text.h"

inline constexpr int höchsterAnschluss = 16; ///< the port numbers of a settings screen end here

/// The four fields of "19200,N,8,1" as the screen words them.
struct Schnittstelle {
    QString baud;
    QString parität; ///< the German word in both languages
    QString datenbits;
    QString stoppbits;

    static Schnittstelle ausParameter(const QString &parameter);
    /// A stop text "1,5" becomes "1.5".
    QString parameter() const;

    static const QStringList &baudraten();
    static const QStringList &paritäten();
    static const QStringList &datenbitzahlen();
    static const QStringList &stoppbitzahlen();
};

/// A line of this workstation: its port, its row of settings, what a trial has found.
struct Anschluss {
    MSComm &leitung;
    const char *tabelle;
    bool &vorhanden;        ///< result of the latest trial
    int &geprüft;           ///< the port that it was about, 0 before the first
    platform::Text kennung; ///< before the number, when a trial fails
    void (*freiPrüfen)();   ///< raises while the line is in use
};
/// The line to the controller.
extern const Anschluss steuerleitung;
inline bool gSS1Vorhanden = false;
inline int gSS1Geprüft = 0;

/// Opens the port on trial and closes it, also one that was open. A missing port and one that
/// refuses its settings count as not there. A failure other than a missing port is shown, and
/// leaves the result as it was. Answers the number of the failure, 0 for none.
int portPrüfen(const Anschluss &anschluss);
inline int fnc_PortPrüfen() {
    return portPrüfen(steuerleitung);
}

/// Closes the port if it is open and takes the other one.
void portWechseln(MSComm &leitung, int port);

/// Writes the row and sets the port number of MSComm1. Raises Fehler.
void fnc_InterfaceSpeichern(const QString &port, const QString &baud, const QString &data,
                            const QString &parity, const QString &stop);
