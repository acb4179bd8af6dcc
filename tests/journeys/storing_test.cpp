// Rows that cannot be stored, and protocols that are continued.
#include "measuring.h"

namespace {

using namespace support;

using Storing = Measuring;

JOURNEY(Storing, RowThatCannotBeWritten) {
    co_await go("measure ; stand load 100 ; step 1 60");
    Datenbank other;
    other.openFile(datenbankName);
    other.execute("BEGIN IMMEDIATE");
    co_await go("? locked(3016) ; pbSpeichern");
    other.execute("ROLLBACK");
    co_await go(R"(
        # The measurement runs on, the step is the same.
        notice == ; stand load 98 ; until txtIST_P_torvena ~ ^98 ; laPrSchritt == 1 ; stored 1 ==
        pbSpeichern)");
    // On disk for others before anything else happens.
    EXPECT_EQ(other
                  .open("SELECT 1 FROM Messwerte_temp WHERE ProtokollID = ? AND "
                        "Ist_P_torvena LIKE '98%'",
                        {gProtokollID})
                  .count(),
              1);
    co_await go("step 2 80 ; leave");
}

JOURNEY_P(Storing, WhatCannotBeRead) {
    co_await go(R"(
        select ; begin ; pbok ; until can StatMessen.pbWeiter ; pbWeiter ; @NachStatNPK
        spoil SELECT Rezepte ; ? noTable(3013, Rezepte) ; pbok ; @Messen
        mend ; ? emptyProtocol ; pbAbbrechen ; @Desktop ; idle == yes
        correct ; protocol Leer ; step 1 60 ; spoil SELECT Messwerte_temp
        ? noTable(3021, Messwerte_temp) ; pbAbbrechen ; @Desktop
        mend ; idle == yes)");
}

JOURNEY(Storing, ContinuedProtocols) {
    co_await go(R"(
        login ; choose AEH-017, Kurzprüfung ; correct ; cannot obLetztes
        obVorhanden ; cmbVorhanden == 21 - Nachmessung ; pbok ; step 1 60 ; ? emptyProtocol ; leave
        sql SELECT 1 FROM Protokoll_temp WHERE ProtokollID = 21 ==
        # The last one, on its day: what it holds is shown in the order of the steps.
        correct ; cannot obVorhanden ; protocol Der letzte ; step 1 60 ; pbSpeichern ; step 2 80 ; leave
        change INSERT INTO Messwerte_temp (ProtokollID, Prüfschritt) SELECT ProtokollID, column1 FROM (SELECT ProtokollID FROM Protokoll_temp WHERE Protokollname = 'Der letzte'), (VALUES ('10'), ('FR'), ('2'))
        correct ; obLetztes ; pbok ; step 1 60 ; steps == 1+2+10+FR ; title ~ \d+-Der letzte$
        leave ; stored count(*) == 4    # with nothing new, but not empty
        sql SELECT count(*) FROM Protokoll_temp WHERE Protokollname = 'Der letzte' == 1)");
}

} // namespace
