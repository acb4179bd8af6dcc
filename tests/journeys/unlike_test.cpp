// Nothing is alike: a value taken from another row, column, protocol or direction shows.
#include "measuring.h"

namespace {

using namespace support;

JOURNEY_P(Measuring, NothingIsAlike) {
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
