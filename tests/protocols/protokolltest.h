// A database in a temporary directory, one session, and a script for the boxes.
#pragma once

#include <gtest/gtest.h>

#include <QDate>
#include <QTemporaryDir>

#include "database.h"
#include "msgbox.h"
#include "scripts.h"
#include "session.h"

class ProtokollTest : public testing::Test {
  protected:
    ProtokollTest() {
        const QString path = mDirectory.filePath("torvena470.mdb");
        legeDatenbankAn(path, false);
        gDatenbank.openFile(path);
        gDatenbank.execute("DELETE FROM Normalkalibrierdaten");
        gDatenbank.execute("INSERT INTO Normalkalibrierdaten (NK_ID, SerienNr) "
                           "VALUES (5, 'N1'), (6, 'N1'), (7, 'N2')");
        platform::setBoxAnswerer([this](const platform::Box &box) {
            mBoxes.push_back(box);
            return platform::OK;
        });
        gSprache = 1;
        gPrüfer = "O'Neill";
        gKundenID = 3;
        gGerätID = 4;
        gDrehrichtung = 1;
        gToleranzID = 2;
        gMessverfahren = "Verfahren";
        gSeriennummer = "N1";
    }
    ~ProtokollTest() override {
        platform::setBoxAnswerer({});
        gDatenbank.close();
    }

    /// A head as this session writes it, of the connected standard.
    static void kopf(int nummer, const QString &name = "Name", int kunde = 3, int gerät = 4) {
        gDatenbank.execute("INSERT INTO Protokoll_temp (ProtokollID, Protokollname, Prüfername, "
                           "GerätID, KundenID, Drehrichtung, PrüfungsArt, NK_ID, Messverfahren) "
                           "VALUES (?, ?, 'P', ?, ?, 1, 2, 6, 'Verfahren')",
                           {nummer, name, gerät, kunde});
    }
    static void messwert(int nummer, const QString &schritt = "1") {
        gDatenbank.execute("INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) VALUES (?, ?)",
                           {nummer, schritt});
    }
    static int anzahl(const QString &tabelle) {
        return gDatenbank.open("SELECT COUNT(*) FROM " + tabelle)[0].whole();
    }
    /// All columns of all rows, "NULL" for nothing.
    static QString zeilen(const QString &sql) {
        QStringList texte;
        for (Recordset rows = gDatenbank.open(sql); !rows.atEnd(); rows.moveNext()) {
            for (int i = 0; i < rows.columns().size(); ++i)
                texte += rows[i].isNull() ? "NULL" : rows[i].text();
        }
        return texte.join('|');
    }

    std::vector<platform::Box> mBoxes;

  private:
    QTemporaryDir mDirectory;
};
