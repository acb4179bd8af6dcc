// Rows that cannot be stored, protocols that are continued, and that nothing else gets in.
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

// A value taken from another row, column, protocol or direction shows.
JOURNEY_P(Storing, WhatBelongsToTheSession) {
    change("UPDATE System SET EinlW = 75, Einlzeit2 = 9");
    co_await go(R"(
        login ; choose AEH-001, Ungleich ; runningIn == 9 75 ; pbDrehR ; @MotorDrehR ; obLinks ; pbok ; @Desktop
        pbMotein ; wire == -*E 2100+>>> ; stand gaindrift -10 ; begin
        pbok ; until can StatMessen.pbWeiter ; drift ~ ^-?0.00. 274.78. -?0.00. -?0.00.$
        pbWeiter ; @NachStatNPK ; pbok ; @ProtokollNr)");
    EXPECT_EQ(line.stand().factorWritten(), 1.1);
    co_await go(R"(
        protocol Links ; stand load 107 ; step 1 60 ; txtIST_D_torvena ~ ^17[,.]0     # beyond 5 %, within 10 %
        spec == 2 stationäre Trainingsgeräte ; pbSpeichern ; step 2 80 ; txtIST_n_ergom = 81 ; pbSpeichern
        step 10 70 ; pbFirst ; cannot pbSpeichern       # at once, not with the next frame
        pbAusführen ; step 1 60 ; pbSpeichern
        stored Prüfschritt, MU_ohne, MU_Proz, substr(Ist_D_torvena, 1, 2) == 1|ja|0.3|17+2|ja|0.2|12 | 1|yes|0.3|17+2|yes|0.2|12
        sql SELECT Ist_P_torvena FROM Messwerte_temp WHERE ProtokollID = 9000 == fremd
        head == 2 ; step 2 80 ; shaft ~ left ; leave)");
}

} // namespace
