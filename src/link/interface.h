// Parameters of the serial line to the controller: as text, in the table, and as words on a screen.
#pragma once

#include <QString>
#include <QStringList>

extern bool gSS1Vorhanden; ///< result of the latest port test

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

/// Opens the port of MSComm1 on trial and closes it, also one that was open. Sets gSS1Vorhanden,
/// false for a missing port and for one that refuses its settings. A failure other than a missing
/// port is shown, and leaves it as it was. Answers the number of the failure, 0 for none.
int fnc_PortPrüfen();

/// Writes the row and sets the port number of MSComm1. Raises Fehler.
void fnc_InterfaceSpeichern(const QString &port, const QString &baud, const QString &data,
                            const QString &parity, const QString &stop);

struct InterfaceZeile {
    int port = 1;
    QString parameter;
};
/// The row of the table. Raises Fehler, NoCurrentRecord when there is none.
InterfaceZeile interfaceLesen();
