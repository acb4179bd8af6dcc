// The settings of a serial line, one row of a table of its own.
#pragma once

#include <QString>

struct Leitungseinstellung {
    int port = 1;
    QString parameter; ///< "19200,N,8,1": baud rate, parity, data bits, stop bits
};

/// Raises NoCurrentRecord when there is no row.
Leitungseinstellung leitungLesen(const QString &tabelle);
void leitungSpeichern(const QString &tabelle, const Leitungseinstellung &einstellung);
