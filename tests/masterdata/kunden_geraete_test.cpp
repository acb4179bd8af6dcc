// Customers and units entered, changed and deleted, and how lists and desktop follow.
#include "controls/umbruch.h"
#include "records/geraetedaten.h"
#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;

using Editing = Workplace;

JOURNEY_P(Editing, ACustomerIsEnteredAndChanged) {
    co_await logIn();
    co_await go("choose Herzzentrum Talbrück | HZT-2, Kurzprüfung");
    co_await go(R"(
        pbKunde ; @Kunden ; ? changeCustomer ; pbchange ; focus cmbKundenname ; ? changeCustomer ; pbDelete
        focus cmbKundenname ; cmbOrt > Großlohe ; pbNeu ; @NeuKunde ; focus txtName
        cmbOrt == ; cmbOrt rows~ ^Ährenfeld\+ ; txtStraße := Hof 1 ; txtPLZ := 01 ; cmbOrt := Neustadt
        ? noName ; pbSave ; focus txtName ; key Space ; ? noName ; pbSave ; front == NeuKunde
        txtName := KLINIKUM ÄHRENFELD ; ? nameTaken ; pbSave ; focus txtName
        txtName := Klinikum* ; spoil INSERT Kunden ; ? failure(1050) ; pbSave ; front == NeuKunde ; mend
        ? saved ; pbSave ; @Kunden ; lbName == Klinikum*    # shown, though of another town
        sql SELECT Name, Straße, PLZ, Ort FROM Kunden WHERE Name = 'Klinikum*' == Klinikum*|Hof 1|01|Neustadt
        focus cmbKundenname ; cmbKundenname + klinikum* ; cmbKundenname == klinikum*    # starts another search
        # Not into another's name, but into its own in other letters, which another bears already.
        pbchange ; @ÄndKund ; txtName == Klinikum* ; txtStraße == Hof 1 ; txtPLZ == 01 ; cmbOrt == Neustadt
        txtName = ; key Space ; ? noName ; pbSave ; focus txtName
        txtName := praxis dr. öztürk-weiß ; ? nameTaken ; pbSave ; focus txtName
        change INSERT INTO Kunden (KundenID, Name) VALUES (500, 'klinikum*')
        txtName := KLINIKUM* ; txtStraße = ; cmbOrt := Großlohe ; ? changed ; pbSave ; @Kunden
        change DELETE FROM Kunden WHERE KundenID = 500
        sql SELECT Name, Straße, PLZ, Ort FROM Kunden WHERE Name = 'Klinikum*' == KLINIKUM*||01|Großlohe
        lbName == KLINIKUM*
        # The session's customer: the desktop follows, the unit stays.
        cmbKundenname = Herzzentrum Talbrück ; pbchange ; @ÄndKund ; txtName + Herzhaus    # in place of the name
        spoil UPDATE Kunden ; ? failure(1140) ; pbSave ; front == ÄndKund ; mend
        change UPDATE Kunden SET KundenID = 500 WHERE KundenID = 2    # gone meanwhile
        ? failed(1140, 3021) ; pbSave ; change UPDATE Kunden SET KundenID = 2 WHERE KundenID = 500
        desktop == Herzzentrum Talbrück|KE 300 BD|HZT-2|Kurzprüfung|medizinische Geräte
        ? changed ; pbSave ; @Kunden ; desktop ~ ^Herzhaus.KE 300 BD.HZT-2.
        pbchange ; @ÄndKund ; txtName := vergessen ; pbexit ; @Kunden ; lbName == Herzhaus
        pbchange ; @ÄndKund ; txtName := vergessen ; key Escape ; @Kunden ; lbName == Herzhaus
        # The same customer keeps the unit.
        ? unitNow no ; pbexit ; @Desktop ; desktop ~ ^Herzhaus.KE 300 BD.HZT-2.)");
}

TEST(UnitEntry, TellsWhatIsMissing) {
    for (const Case &c :
         cases("xxxx -> | -xxx -> Bitte ergänzen Sie Typ | xx-x -> Bitte ergänzen Sie Serien-Nr. | "
               "xxx- -> Bitte ergänzen Sie  Ident-Nr. | "
               "x-x- -> Bitte ergänzen Sie  Hersteller, Ident-Nr. | "
               "---- -> Bitte ergänzen Sie Typ, Hersteller, Serien-Nr., Ident-Nr.")) {
        const auto value = [&](int i) { return QString(c.in[i] == 'x' ? "x" : " "); };
        const Fehlendes told = fehlendeAngaben({value(0), value(1), value(2), value(3)});
        EXPECT_EQ(told.erste ? told.text.german : QString(), c.out);
        EXPECT_EQ(told.erste.value_or(-1), c.in.indexOf('-'));
    }
}

JOURNEY_P(Editing, AUnitIsEnteredAndChanged) {
    co_await logIn();
    co_await go(R"(
        pbKunde ; @Kunden ; cmbKundenname = Klinikum Ährenfeld ; ? unitNow yes ; pbexit ; @Gerät
        ? changeUnit ; pbchange ; focus cmbIdent ; ? changeUnit ; pbDelete ; front == Gerät
        cmbTyp > Kardio L4 ; pbNeu ; @NeuGerät ; laKunde == Klinikum Ährenfeld ; focus txtTyp
        key Space ; txtHersteller := Radolin ; txtSerienNr := S/1 ; txtIdentNr := hzt-1
        ? unitIncomplete(Typ) ; pbSave ; focus txtTyp ; txtTyp := Velo
        ? identTaken ; pbSave ; focus txtIdentNr ; front == NeuGerät    # another customer's
        txtIdentNr := Ü'1 ; spoil INSERT Ergometer ; ? failure(1060) ; pbSave ; front == NeuGerät ; mend
        ? saved ; pbSave ; @Gerät ; txtIdentNr == Ü'1 ; cmbTyp ==    # shown, though of another type
        cmbTyp rows +Kardio L4+KE 200 med+Velo
        sql SELECT KundenID, Gerätetyp, Hersteller, SerienNr, IdentNr FROM Ergometer WHERE IdentNr = 'Ü''1' == 1|Velo|Radolin|S/1|Ü'1
        ? recipeNow no ; key Return ; @Desktop ; desktop == Klinikum Ährenfeld|Velo|Ü'1||
        # The session's unit: the desktop follows.
        pbGerät ; @Gerät ; cmbIdent = ü'1 ; pbchange ; @ÄndGerät ; txtSerienNr == S/1 ; txtTyp + Velo 2
        txtIdentNr := AEH-001 ; ? identTaken ; pbSave ; focus txtIdentNr ; txtIdentNr := ü'1    # its own
        spoil UPDATE Ergometer ; ? failure(1150) ; pbSave ; front == ÄndGerät ; mend
        ? changed ; pbSave ; @Gerät ; txtTyp == Velo 2 ; desktop == Klinikum Ährenfeld|Velo 2|ü'1||
        sql SELECT KundenID, Gerätetyp, Hersteller, SerienNr, IdentNr FROM Ergometer WHERE IdentNr = 'ü''1' == 1|Velo 2|Radolin|S/1|ü'1
        # Another one, with what it lacked and shared before.
        change UPDATE Ergometer SET Hersteller = NULL WHERE IdentNr = 'AEH-001'
        change INSERT INTO Ergometer (KundenID, Gerätetyp, IdentNr) VALUES (2, 'X', 'AEH-001')
        cmbIdent = AEH-001 ; pbchange ; @ÄndGerät ; txtSerienNr = ; key Space
        ? unitIncomplete(Serien-Nr.) ; pbSave ; focus txtSerienNr ; front == ÄndGerät
        txtSerienNr := S/2 ; ? changed ; pbSave ; @Gerät ; desktop == Klinikum Ährenfeld|Velo 2|ü'1||
        sql SELECT Gerätetyp, Hersteller, SerienNr FROM Ergometer WHERE KundenID = 1 AND IdentNr = 'AEH-001' == KE 200 med||S/2
        # Taken off the desktop by another customer, it does not come back.
        pbexit ; @Desktop ; pbKunde ; @Kunden ; cmbKundenname = Herzzentrum Talbrück ; ? unitNow no ; pbexit ; @Desktop
        pbKunde ; @Kunden ; cmbKundenname = Klinikum Ährenfeld ; ? unitNow yes ; pbexit ; @Gerät
        cmbIdent = ü'1 ; pbchange ; @ÄndGerät ; ? changed ; pbSave ; @Gerät ; desktop == Klinikum Ährenfeld||||)");
}

JOURNEY_P(Editing, ACustomerIsDeleted) {
    const QString longest(255, 'W');
    change("INSERT INTO Kunden (Name) VALUES (?)", {longest});
    co_await logIn();
    co_await go("choose Herzzentrum Talbrück | HZT-2, Kurzprüfung");
    co_await go("pbKunde ; @Kunden ; cmbKundenname := " + longest + " ; pbDelete ; @LöschKunde");
    EXPECT_LT(loaded(frm::LöschKunde)->width(), 600);
    co_await go(QString(R"(
        # Not the session's; No is what Enter and Escape say.
        lbProtocollCount == Wollen Sie die Daten zu dem Kunden '%1' jetzt löschen? | Do you want to delete the data of '%1' now?
        key Return ; @Kunden ; lbName == %1 ; pbDelete ; @LöschKunde ; key Escape ; @Kunden ; lbName == %1
        pbDelete ; @LöschKunde ; ? customerDeleted ; pbok ; @Kunden ; cmbKundenname == ; lbName ==
        sql SELECT count(*) FROM Kunden WHERE Name = '%1' == 0 ; session == 2 6 1
        # The session's, at the second try.
        cmbOrt > Talbrück ; cmbKundenname := Herzzentrum Talbrück ; pbDelete ; @LöschKunde ; lbProtocollCount ~ \b2\b
        spoil DELETE Kunden ; ? failure(31001) ; pbok ; front == LöschKunde ; mend
        sql SELECT count(*) FROM Ergometer WHERE KundenID = 2 == 0 ; desktop ~ ^Herzzentrum Talbrück\|\|\|
        lbProtocollCount ~ ^Wollen Sie die Daten zu dem Kunden | ^Do you want to delete the data of    # no units are left
        ? customerDeleted ; pbok ; @Kunden ; cmbOrt == ; cmbKundenname rows~ ^(?!.*Herzzentrum) ; focus cmbKundenname
        session == 0 0 1 ; pbAbbrechen ; @Desktop ; desktop == |||Kurzprüfung|medizinische Geräte
        cannot pbGerät pbMessen pbBlutdruck pbSecControl)")
                    .arg(longest));
}

JOURNEY_P(Editing, AUnitIsDeletedAndTheLastOneToo) {
    change("INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, IdentNr) "
           "VALUES (90, 12, 'Ohne Nummer', '')");
    change("INSERT INTO Protokoll_temp (ProtokollID, GerätID, KundenID) VALUES (9001, 90, 12)");
    views["left"] = [this] {
        return grid("SELECT count(*) FROM Protokoll_temp WHERE ProtokollID = 9001 "
                    "UNION ALL SELECT count(*) FROM Ergometer WHERE GerätID = 90");
    };
    co_await logIn();
    co_await go("choose St Aldwyn Hospital, Cardiac Unit | STA-1, Kurzprüfung");
    co_await go(R"(
        pbGerät ; @Gerät ; cmbTyp > Ohne Nummer ; pbDelete ; @LöschGerät ; focus pbNo
        lbProtocollCount ~ ^Zu dem Gerät 'Ohne Nummer' existiert ein Protokoll\.\nSollen diese Daten jetzt gelöscht werden\?$ | ^For the unit 'Ohne Nummer' there is one protocol existent\.\nShall it be deleted now\?$
        key Escape ; @Gerät ; pbDelete ; @LöschGerät ; pbNo ; @Gerät ; left == 1+1
        pbDelete ; @LöschGerät ; ? unitDeleted ; pbYes ; @Gerät ; left == 0+0 ; focus cmbIdent
        txtIdentNr == STA-1 ; desktop ~ .Cardio Pro.STA-1.    # the only one left
        pbDelete ; @LöschGerät ; laIdent == STA-1 ; ? unitDeleted ; pbYes ; @Gerät ; lstIdent rows
        pbexit ; @Desktop ; desktop ~ ^St Aldwyn Hospital, Cardiac Unit\|\|\| ; session == 12 0 1
        pbGerät ; @NeuGerät ; shown Label1 ; Label1 == Noch kein Gerät vorhanden! | No Units existent yet!
        pbexit ; @Desktop)");
    EXPECT_FALSE(gNeuModus);
}

// What could not be read is told, not shown, and neither changed nor deleted.
JOURNEY_P(Editing, FailuresOfReadingAreTold) {
    const auto vanishes = [](const char *table) { return [table] { spoil("SELECT", table); }; };
    co_await logIn();
    co_await go(R"(
        spoil SELECT Kunden ; ? failure(1070) ; pbKunde ; @Kunden ; mend ; pbAbbrechen ; @Desktop
        pbKunde ; @Kunden ; cmbKundenname := Klinikum Ährenfeld ; spoil SELECT Kunden
        ? failure(1071) ; cmbKundenname := Herzzentrum Talbrück ; lbName == ; txtOrt ==
        ? changeCustomer ; pbchange ; ? changeCustomer ; pbDelete
        ? failure(1073) ; pbSearch ; ? failure(1074) ; pbexit ; front == Kunden ; ? failure(1072) ; cmbOrt > Talbrück
        ? failure(1051) ; pbNeu ; @NeuKunde ; ? failure(1077) ; pbexit ; @Kunden ; mend
        cmbKundenname := Herzzentrum Talbrück ; spoil SELECT Kunden ; ? failure(1140) ; pbchange ; @ÄndKund
        cannot pbSave ; mend ; pbexit ; @Kunden ; spoil SELECT Protokoll ; ? failure(LK 1) ; pbDelete
        @LöschKunde ; cannot pbok ; mend ; pbCancel ; @Kunden ; pbDelete ; @LöschKunde ; spoil SELECT Protokoll
        ? failure(31001) ; ? failure(LK 1) ; pbok ; cannot pbok ; mend ; pbCancel ; @Kunden ; pbchange ; @ÄndKund)");
    expectKnown("changed", platform::OK, vanishes("Kunden"));
    co_await go(R"(? failure(1077) ; pbSave ; @Kunden ; mend
        cmbOrt > ; cmbKundenname := Herzzentrum Talbrück ; ? unitNow yes ; pbexit ; @Gerät
        cmbIdent := HZT-1 ; spoil SELECT Ergometer ; ? failure(1094) ; cmbIdent := HZT-2 ; txtIdentNr ==
        ? changeUnit ; pbchange ; ? changeUnit ; pbDelete ; ? failure(1102) ; pbok ; front == Gerät
        cmbIdent := ; ? failure(1093) ; cmbTyp > Kardio L4 ; pbNeu ; @NeuGerät ; ? failure(1092) ; pbexit ; @Gerät
        mend ; cmbTyp > ; cmbIdent := HZT-2 ; spoil SELECT Ergometer ; ? failure(1150) ; pbchange ; @ÄndGerät
        cannot pbSave ; mend ; pbexit ; @Gerät ; spoil SELECT Protokoll ; ? failure(31002) ; pbDelete
        @LöschGerät ; cannot pbYes ; mend ; pbNo ; @Gerät ; pbDelete ; @LöschGerät ; spoil SELECT Protokoll
        ? failure(31001) ; ? failure(31002) ; pbYes ; cannot pbYes ; mend ; pbNo ; @Gerät ; pbchange ; @ÄndGerät)");
    expectKnown("changed", platform::OK, vanishes("Ergometer"));
    co_await go(
        R"(? failure(1092) ; pbSave ; @Gerät ; pbexit ; @Desktop ; ? failure(6000) ; pbGerät ; mend
        change ALTER TABLE Ergometer RENAME COLUMN IdentNr TO fort ; ? failure(1091) ; pbGerät ; @Gerät
        change ALTER TABLE Ergometer RENAME COLUMN fort TO IdentNr ; pbexit ; @Desktop
        spoil SELECT Rezeptnamen ; ? failure(6001) ; mnuRezepte ; ? failure(1016) ; pbRezept ; @Rezepte ; mend ; pbexit
        @Desktop ; mnuRezepte ; @Rezepte ; cmbRezeptname := Kurzprüfung ; spoil SELECT ÄndRez_temp
        ? failure(1017) ; pbÄndRez ; front == Rezepte ; mend ; pbNeuRezept ; @NeuRezept ; txtRezName = Kür
        cmbToleranz > 1 ; ? saveName yes ; pbRezSave ; pbKopie ; @RezeptKopie
        spoil SELECT Rezepte ; ? failure(1018) ; pbexit ; @NeuRezept ; mend)");
}

// Entered, found again by every road, changed, and chosen.
JOURNEY(Editing, NamesOfAnyKindAreKeptAsTyped) {
    const QString name = QString("Ä'*?\"; DROP TABLE Kunden; -- [A-Z]_% <b>&ß</b> 💪 מכון &&")
                             .leftJustified(255, 'x');
    change("INSERT INTO Rezeptnamen (RezName, ToleranzID) VALUES (?, 2)", {name});
    co_await logIn();
    co_await go(QString(R"(
        pbKunde ; @Kunden ; pbNeu ; @NeuKunde ; txtName := %1y ; txtStraße := %1y ; txtPLZ := %1y ; cmbOrt := %1y
        ? saved ; pbSave ; @Kunden ; cmbOrt > %1 ; lstKunden rows %1 ; cmbKundenname := %1 ; pbSearch ; lstKunden rows %1
        sql SELECT count(*) FROM Kunden WHERE Straße = Name AND PLZ = Name AND Ort = Name == 1
        pbchange ; @ÄndKund ; txtPLZ == %1 ; ? changed ; pbSave ; @Kunden ; ? unitNow yes ; pbexit ; @NeuGerät
        laKunde == %1 ; txtTyp := %1y ; txtHersteller := %1y ; txtSerienNr := %1y ; txtIdentNr := %1y
        ? saved ; pbSave ; @Gerät ; cmbTyp > %1 ; cmbIdent := %1 ; txtHersteller == %1 ; txtSerienNr == %1
        ? recipeNow yes ; pbok ; @Rezepte ; cmbRezeptname := %1 ; pbok ; @Desktop
        desktop == %1|%1|%1|%1|stationäre Trainingsgeräte ; sql SELECT count(*) FROM Kunden == 13)")
                    .arg(name));
}

TEST(Wrapping, BreaksOnlyWordsThatNoLineHolds) {
    EXPECT_EQ(umbrechbar("Zu dem Kunden 'A B'.\rWollen Sie"), "Zu dem Kunden 'A B'.\nWollen Sie");
    EXPECT_EQ(umbrechbar(QString(65, 'x')).count(QChar(0x200B)), 2);
    EXPECT_TRUE(umbrechbar(QString("💪").repeated(40)).toUtf8().contains("💪"));
}

} // namespace
