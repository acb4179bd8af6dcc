// A session with a customer and a unit, and no protocols yet.
#pragma once

#include <QFile>

#include "platform/clock.h"
#include "session/session.h"
#include "store/scripts.h"
#include "way.h"

class ProtokollTest : public support::Way {
  protected:
    ProtokollTest() {
        QFile::remove(datenbankName);
        legeDatenbankAn(datenbankName, false);
        gDatenbank.openFile(datenbankName);
        gDatenbank.execute("DELETE FROM Normalkalibrierdaten");
        gDatenbank.execute("INSERT INTO Normalkalibrierdaten (NK_ID, SerienNr) "
                           "VALUES (5, 'N1'), (6, 'N1'), (7, 'N2')");
        gDatenbank.execute("INSERT INTO Toleranzen (ID, Prozent) VALUES (5, 5)");
        gPrüfer = "O'Neill";
        gMessverfahren = "Verfahren";
        gSeriennummer = "N1";
        gKundenID = 3;
        gGerätID = 4;
        gDrehrichtung = 2;
        gToleranzID = 5;
    }

    /// A head as this session writes it, of the connected standard.
    static void kopf(int nummer, const QString &name = "Name", int kunde = 3, int gerät = 4) {
        gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, Prüfername, "
                           "GerätID, KundenID, Drehrichtung, PrüfungsArt, NK_ID, Messverfahren, "
                           "ErstellDatum) VALUES (?, ?, 'P', ?, ?, 2, 5, 6, 'Verfahren', ?)",
                           {nummer, name, gerät, kunde, platform::now().date()});
    }
    static void messwert(int nummer, const QString &schritt = "1") {
        gDatenbank.execute("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (?, ?)",
                           {nummer, schritt});
    }
};
