// Recipes of the final test: what may be entered, the list, both editors, and that they meet
// neither the ordinary recipes nor their working copy.
#include "finaltest/eprezeptart.h"
#include "records/eprezept.h"
#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;

class FinalTestSteps : public Workshop {};

TEST_F(FinalTestSteps, LimitsAndWhatIsMissing) {
    setLanguage(1);
    for (const Case &c :
         cases("0; 0 -> gg | 130; 800 -> gg | 130,1; 800,5 -> bb | -1; -0,5 -> bb | "
               "x; 6 W -> nn")) {
        const QStringList in = c.in.split("; ");
        const auto &limits = geändertesEPRezept.grenzen;
        const int judged[] = {static_cast<int>(drehzahlPrüfen(in[0], limits)),
                              static_cast<int>(leistungPrüfen(in[1], limits))};
        EXPECT_EQ(QString("gnb"[judged[0]]) + "gnb"[judged[1]], c.out) << c;
    }
    // 70.06, 69.7 and nothing at standstill
    for (const Case &c : cases("30, 220 -> 0 | 30, 219 -> 1 | 0, 800 -> 1"))
        EXPECT_EQ(drehmomentZulässig(c.in_(0), c.in_(1), neuesEPRezept.grenzen), c.out == "1") << c;
    for (const Case &c :
         cases("1 -> g | 1,5 -> g | 0,5 -> 0 | -1 -> 0 | 1.500 -> n | 9e99 -> n | x -> n"))
        EXPECT_EQ(QString("n0g"[static_cast<int>(anzahlPrüfen(c.in))]), c.out) << c;
    QStringList missing;
    for (int bits = 0; bits < 8; ++bits) {
        const auto text = [bits](int bit) { return bits & bit ? "" : "1"; };
        const platform::Text both =
            fehlendeAngaben(neuesEPRezept.angaben({1, text(1), text(2), 2, {}, text(4)}, {})).text;
        missing += both.german + '|' + both.english;
    }
    EXPECT_EQ(missing.join(';')
                  .replace("Anzahl der Messschritte", "A")
                  .replace("number of measuring steps", "n"),
              "|; die Drehzahl| the speed; die Leistung| the power;"
              " die Drehzahl, Leistung| the speed, power; A| n; die Drehzahl, A| the speed, n;"
              " die Leistung, A| the power, n; die Drehzahl, Leistung, A| the speed, power, n");
    for (const Case &c : cases("0 -> W000[13] | 5 -> W005[13] | 50 -> W050[13] | 800 -> W800[13] | "
                               "\"\" -> | 1000 -> | 12.5 -> | 5,5 -> | -5 -> | 5W -> "))
        EXPECT_EQ(fnc_SSCodeVorschlag(c.in), c.out) << c;
}

class FinalTestRecipes : public Workplace {
  protected:
    FinalTestRecipes() {
        change("INSERT INTO EP_Rezeptnamen (RezeptID, RezName, Toleranz) "
               "VALUES (50, 'Drei', 'medizinische Geräte')");
        change("INSERT INTO EP_Rezepte VALUES (50, '1', '60', 50, '2', 'W050[13]', '3'), "
               "(50, '2', '70,5', 100, '2', 'X1[13]', '2'), (50, '3', '80', 300, '2', '', '1')");
        views["copy"] = [] { return steps("ÄndRez_temp ORDER BY rowid"); };
        views["three"] = [] { return steps("EP_Rezepte WHERE RezeptID = 50"); };
        views["stored"] = [] {
            return steps("EP_Rezepte WHERE RezeptID > 50 ORDER BY Val(Prüfschritt)");
        };
        views["fields"] = [] {
            const QString screen =
                platform::frontScreen() == loaded(frm::EPÄndRez) ? "laPrSchritt" : "lbStepCount";
            QStringList shown;
            for (const QString &name : {screen, QString("txtDrehzahl"), QString("txtLeistung"),
                                        QString("txtSSCode"), QString("txtMessSchritte")})
                shown += platform::frontScreen()
                             ->findChild<QWidget *>(name)
                             ->property("text")
                             .toString();
            return shown.join('|');
        };
        views["session"] = [] {
            return QString("%1 %2 %3").arg(gEPRezeptID).arg(gRezeptName, gEPRezeptWahl).trimmed();
        };
        views["title"] = [] { return platform::frontScreen()->caption(); };
        roads["list"] = [this](const QString &) -> Journey {
            co_await logIn();
            gEPModus = true;
            gEPRezeptID = 2;
            gRezeptName = "stationäre Trainingsgeräte";
            form(frm::EPRezepte).showModal();
            co_await go("@EPRezepte");
        };
        roads["edit"] = [this](const QString &) {
            return go("cmbRezeptname = Drei ; pbÄndRez ; @EPÄndRez");
        };
        roads["named"] = [this](const QString &) {
            return go("pbNeuRezept ; @EPNeuRezept ; txtRezName = Kür's ; cmbToleranz = T "
                      "; ? epSaveName yes ; pbRezSave");
        };
        roads["fill"] = [this](const QString &) {
            return go("txtDrehzahl = 60 ; txtLeistung = 50 ; txtMessSchritte = 3");
        };
    }
    static QString steps(const QString &of) {
        return column("SELECT Prüfschritt || ':' || Drehzahl || '/' || Leistung || '/' || SSCode "
                      "|| '/' || MessSchritte || '/' || Prüfart FROM " +
                      of)
            .join(' ')
            .remove("[13]");
    }
};

JOURNEY_P(FinalTestRecipes, AreListedChosenAndDeleted) {
    co_await go(R"(
        list ; title == Rezepte der Endprüfung | Final Test Recipes
        laInfo == Rezeptanzahl: 3 | Number of recipes: 3 ; cmbRezeptname == Endprüfung Medizin
        lbRezTol == medizinische Geräte ; cmbRezeptname = Drei
        DBGridRez rows 1|60|50|W050[13]|3+2|70,5|100|X1[13]|2+3|80|300||1
        pbexit ; @Desktop ; session == 2 stationäre Trainingsgeräte)");
    form(frm::EPRezepte).showModal();
    co_await go(R"(
        @EPRezepte ; cmbRezeptname = training ; cmbRezeptname ! ; focus pbok
        ? deleteRecipe(Endprüfung Training) no ; pbDelete ; cmbRezeptname = Endprüfung Training
        change UPDATE EP_Rezeptnamen SET Toleranz = 'Toleranz 3%' WHERE RezeptID = 2
        cmbRezeptname = Drei ; pbok ; @Desktop ; session == 2 Toleranz 3% Drei)");
    form(frm::EPRezepte).showModal();
    co_await go(R"(
        @EPRezepte ; cmbRezeptname = Endprüfung Training ; ? deleteRecipe(Endprüfung Training) yes ; pbDelete
        laInfo == Rezeptanzahl: 2 | Number of recipes: 2 ; sql SELECT count(*) FROM EP_Rezepte WHERE RezeptID = 2 == 0
        sql SELECT count(*) FROM Rezeptnamen == 5 ; sql SELECT count(*) FROM Rezepte == 37
        spoil SELECT EP_Rezepte ; ? failed(ER_3, 3078) ; cmbRezeptname = Drei ; mend
        # What was in force is gone.
        pbexit ; @Desktop ; session == 0  Drei)");
}

JOURNEY_P(FinalTestRecipes, ValuesGoInWhenTheirFieldIsLeft) {
    co_await go(R"(
        list ; edit ; title == Änderung im Rezept 'Drei' | Change in the recipe 'Drei'
        fields == 1|60|50|W050[13]|3 ; hidden cmbPrArt lbPrArt
        txtDrehzahl = 130 ; txtDrehzahl ! ; copy ~ ^1:130/50/W050/3/2
        txtDrehzahl = x ; ? epSpeedNumber ; txtDrehzahl ! ; txtDrehzahl == 130 ; focus txtDrehzahl
        txtDrehzahl = 131 ; ? epSpeedRange ; txtDrehzahl !
        txtLeistung = x ; ? epPowerNumber ; txtLeistung ! ; txtLeistung = 801 ; ? epPowerRange ; txtLeistung !
        txtLeistung = 800 ; txtLeistung ! ; focus txtSSCode ; fields == 1|130|800|W800[13]|3 ; copy ~ ^1:130/800/W800/3/2
        # A code of its own stays until the box is entered again.
        txtSSCode = P800 ; txtSSCode ! ; focus txtMessSchritte ; copy ~ ^1:130/800/P800/3/2
        txtLeistung ^ ; pbNext ; pbFirst ; fields == 1|130|800|P800|3
        txtSSCode ^ ; fields == 1|130|800|W800[13]|3 ; copy ~ ^1:130/800/W800/3/2
        txtMessSchritte = 0 ; ? epCountRange ; txtMessSchritte ! ; txtMessSchritte == ; focus txtMessSchritte
        txtMessSchritte = -1 ; ? epCountRange ; txtMessSchritte ! ; txtMessSchritte = x ; ? epCountNumber ; txtMessSchritte !
        txtMessSchritte = 5 ; txtMessSchritte ! ; focus pbSpeichern ; copy ~ ^1:130/800/W800/5/2
        txtMessSchritte = ; ? epCountNumber ; txtMessSchritte ! ; txtMessSchritte ! ; copy ~ ^1:130/800/W800/5/2
        txtMessSchritte = 4 ; txtMessSchritte ! ; copy == 1:130/800/W800/4/2 2:70,5/100/X1/2/2 3:80/300//1/2
        # Beyond the torque nothing goes in, neither here nor into the recipe.
        pbNext ; txtLeistung = 700 ; txtLeistung ! ; copy ~ 2:70,5/100/X1/2/2
        ? epTorque ; pbok ; front == EPÄndRez ; ? epTorque ; pbSpeichern ; focus txtDrehzahl
        ? saveSteps yes ; ? epTorque ; pbexit ; front == EPÄndRez
        txtDrehzahl = 0 ; txtDrehzahl ! ; copy ~ 2:0/700/W700/2/2
        pbok ; @EPRezepte ; copy == ; three == 1:130/800/W800/4/2 2:0/700/W700/2/2 3:80/300//1/2
        # What waits to go in goes with its step.
        edit ; pbLoeschen ; pbLoeschen ; txtDrehzahl = 5 ; txtDrehzahl ! ; copy == 1:80/300//1/2 ; pbLoeschen ; pbok ; @EPRezepte ; three ==)");
}

JOURNEY_P(FinalTestRecipes, NewAndInsertedStepsTakeAllValues) {
    co_await go(R"(
        list ; edit ; pbNeu ; fields == 4|||| ; txtDrehzahl = 60 ; txtLeistung = 12,5 | 12.5
        txtSSCode ^ ; txtSSCode == ; txtMessSchritte = 2 ; txtMessSchritte ! ; focus pbSpeichern
        pbSpeichern ; focus pbNeu ; copy ~ 4:60/12.5//2/2$
        pbNeu ; txtDrehzahl = 60 ; txtLeistung = 7 ; txtSSCode ^ ; txtMessSchritte = 2 ; pbSpeichern ; copy ~ 5:60/7/W007/2/2$
        pbFirst ; pbEinfuegen ; copy ~ ^2:60/50/W050/3/2 3:.* 1:60/50/W050/3/2$
        pbLoeschen ; pbNeu)");
    co_await go(QString("? epEditIncomplete(%1) ; pbSpeichern")
                    .arg(english() ? " the speed, power, number of measuring steps"
                                   : " die Drehzahl, Leistung, Anzahl der Messschritte"));
    co_await go(R"(
        spoil INSERT ÄndRez_temp ; fill ; ? failure(EÄR_9) ; pbSpeichern ; mend ; pbFirst
        spoil UPDATE ÄndRez_temp ; txtLeistung = 60 ; ? failure(EÄR_10) ; txtDrehzahl ^ ; mend
        ? saveSteps no ; pbexit ; @EPRezepte ; copy == ; three ~ ^1:60/50/W050/3/2 2:)");
}

JOURNEY_P(FinalTestRecipes, ClassesAreStoredAtOnce) {
    co_await go(R"(
        list ; edit ; focus cmbToleranz ; cmbToleranz == medizinische Geräte
        cmbToleranz rows medizinische Geräte+stationäre Trainingsgeräte+ohne Toleranzen+Toleranz 3%)");
    for (const Case &c : cases("s -> stationäre Trainingsgeräte | M -> medizinische Geräte | "
                               "o -> ohne Toleranz | T -> Toleranz 3%"))
        co_await go("cmbToleranz = " + c.in + " ; focus txtDrehzahl ; cmbToleranz == " + c.out +
                    " ; sql SELECT Toleranz FROM EP_Rezeptnamen WHERE RezeptID = 50 == " + c.out);
    co_await go(R"(
        beeps == 0 ; cmbToleranz = x ; beeps == 1 ; txtDrehzahl ^ ; cmbToleranz == Toleranz 3%
        cmbToleranz > ohne Toleranzen ; focus txtDrehzahl ; ? saveSteps no ; pbexit ; @EPRezepte
        lbRezTol == ohne Toleranzen ; session == 50 stationäre Trainingsgeräte
        edit ; spoil UPDATE EP_Rezeptnamen ; ? failure(EÄR_1) ; cmbToleranz = M ; cmbToleranz == ohne Toleranzen ; mend
        close ; @EPRezepte)");
}

JOURNEY_P(FinalTestRecipes, TheFirstOneByKeyboard) {
    change("DELETE FROM EP_Rezeptnamen");
    change("DELETE FROM EP_Rezepte");
    co_await go(R"(
        list ; laInfo == Rezeptanzahl: 0 | Number of recipes: 0 ; focus pbNeuRezept ; key Return ; @EPNeuRezept
        title == Neues Rezept der Endprüfung | New Final Test Recipe ; hidden pbKopie cmbPrArt
        laInfo ~ eine Toleranz\.$ | a tolerance\.$ ; focus txtRezName ; txtRezName + Kür ; key Return
        focus cmbToleranz ; cmbToleranz + m ; cmbToleranz == medizinische Geräte ; can pbRezSave
        ? epSaveName yes ; key Return ; lbRezSaved ~ Kür ; lbToleranzSave == medizinische Geräte
        focus txtDrehzahl ; txtDrehzahl + 60 ; key Return ; focus txtLeistung ; txtLeistung + 75 ; key Return
        focus txtSSCode ; txtSSCode == W075[13] ; key Return ; focus txtMessSchritte ; cannot pbSave
        txtMessSchritte + 3 ; key Return ; focus pbSave ; key Return ; stored == 1:60/75/W075/3/2
        focus txtDrehzahl ; fields == 2|||| ; txtDrehzahl + 0 ; key Return ; txtLeistung + 5 ; key Return ; txtSSCode + X ; key Return
        txtMessSchritte + 0 ; ? epCountRange ; key Return ; focus txtMessSchritte ; txtMessSchritte + 1 ; key Return ; key Return
        stored == 1:60/75/W075/3/2 2:0/5/X/1/2 ; DBGridRez rows 1|60|75|W075[13]|3+2|0|5|X|1
        # A stored step: the power leads to the code, complete or not.
        pbPrevious ; fields == 2|0|5|X|1 ; pbFirst ; txtLeistung ^ ; txtLeistung = 80 ; key Return ; focus txtSSCode ; txtSSCode == W080[13]
        pbSave ; stored == 1:60/80/W080/3/2 2:0/5/X/1/2 ; pbFirst ; pbEinfuegen
        stored == 1:60/80/W080/3/2 2:60/80/W080/3/2 3:0/5/X/1/2
        pbok ; @EPRezepte ; cmbRezeptname == Kür ; lbRezTol == medizinische Geräte ; focus pbok ; key Return ; @Desktop
        session == 0  Kür ; sql SELECT count(*) FROM Rezepte == 37)");
}

JOURNEY_P(FinalTestRecipes, NewOnesAreChecked) {
    co_await go(R"(
        list ; pbNeuRezept ; @EPNeuRezept ; txtRezName = drei ; cmbToleranz = x ; beeps == 1 ; cmbToleranz == ; cannot pbRezSave
        cmbToleranz = o ; cmbToleranz == ohne Toleranz ; ? epTaken ; pbRezSave ; focus txtRezName ; pbexit ; @EPRezepte
        named ; txtDrehzahl = x ; ? epSpeedNumber ; txtDrehzahl ! ; txtDrehzahl == ; txtDrehzahl = 130,1 | 130.1 ; ? epSpeedRange ; txtDrehzahl !
        txtLeistung = 800,5 | 800.5 ; ? epPowerRange ; txtLeistung ! ; focus txtLeistung ; txtSSCode ==
        fill ; txtLeistung ^ ; txtMessSchritte = ; ? epCountNumber ; txtMessSchritte ! ; txtLeistung = 500 ; txtMessSchritte = 1 ; ? epTorque ; pbSave ; stored ==
        txtDrehzahl = 70 ; spoil INSERT EP_Rezepte ; ? failure(ENR_17) ; pbSave ; mend ; txtMessSchritte := )");
    co_await go(QString("? epNewIncomplete(%1) ; pbSave")
                    .arg(english() ? " number of measuring steps" : " Anzahl der Messschritte"));
}

JOURNEY_P(FinalTestRecipes, LeavingANewOne) {
    co_await go("login ; pbRezept ; @Rezepte ; cmbRezeptname = Kurzprüfung ; pbok ; @Desktop");
    co_await go("list");
    // What stays of it, and of the ordinary recipe with its number.
    for (const Case &c : cases(R"(
             pbexit -> 1 |
             txtDrehzahl = 60 ; ? epDiscard yes ; pbexit -> Kür's 0 |
             fill ; ? epDiscard no ; pbexit -> Kür's 1:60/50//3/2 1 |
             fill ; pbSave ; ? epDiscard yes ; pbexit -> 1 |
             fill ; pbSave ; ? epDiscard no ; pbexit -> Kür's 1:60/50//3/2 1)")) {
        change("DELETE FROM EP_Rezeptnamen WHERE RezeptID > 50");
        change("DELETE FROM EP_Rezepte WHERE RezeptID > 50");
        change("UPDATE sqlite_sequence SET seq = 50 WHERE name = 'EP_Rezeptnamen'");
        change("INSERT OR REPLACE INTO Rezeptnamen (RezeptID, RezName, ToleranzID) "
               "VALUES (51, 'Gewöhnlich', 1)");
        co_await go("named ; " + c.in + " ; @EPRezepte");
        EXPECT_EQ((grid("SELECT RezName FROM EP_Rezeptnamen WHERE RezeptID > 50") + ' ' +
                   views["stored"]() + ' ' +
                   grid("SELECT count(*) FROM Rezeptnamen WHERE RezeptID = 51"))
                      .simplified(),
                  c.out)
            << c;
    }
    EXPECT_EQ(gRezeptName, "stationäre Trainingsgeräte");
}

JOURNEY_P(FinalTestRecipes, TheDeskFollowsTheWrongDeletion) {
    change("UPDATE sqlite_sequence SET seq = 0 WHERE name = 'EP_Rezeptnamen'");
    change("DELETE FROM EP_Rezeptnamen");
    change("DELETE FROM EP_Rezepte");
    co_await go(R"(
        login ; pbRezept ; @Rezepte ; cmbRezeptname = Kurzprüfung ; pbok ; @Desktop)");
    form(frm::EPRezepte).showModal();
    co_await go(R"(
        @EPRezepte ; named ; fill ; ? epDiscard yes ; pbexit ; @EPRezepte ; pbexit ; @Desktop
        desktop == |||| ; sql SELECT RezName FROM EP_Rezeptnamen == Kür's
        sql SELECT min(RezeptID) FROM Rezeptnamen == 2)");
}

JOURNEY_P(FinalTestRecipes, NeverMeetTheOrdinaryCopy) {
    change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (50, 'Fünf', 1)");
    change("INSERT INTO Rezepte VALUES (50, '1', '61', 10, '1', NULL, NULL)");
    views["five"] = [] {
        return grid("SELECT Drehzahl || Prüfart FROM Rezepte WHERE RezeptID = 50");
    };
    co_await go(R"(
        login ; mnuRezepte ; @Rezepte ; cmbRezeptname = Fünf ; pbÄndRez ; @ÄndRez
        txtLeistung = 12 ; spoil INSERT Rezepte ; ? failure(1123) ; pbok ; close ; @Rezepte ; mend ; five ==
        pbexit ; @Desktop)");
    form(frm::EPRezepte).showModal();
    co_await go(R"(
        @EPRezepte ; edit ; DBGridRez rows~ ^1.60.*\+2.70,5[^+]*\+3.80[^+]*$ ; pbNeu ; fields == 4||||
        pbFirst ; txtDrehzahl = 66 ; pbok ; @EPRezepte ; three ~ ^1:66/.* 2:[^ ]* 3:[^ ]*$
        edit ; txtDrehzahl = 67 ; close ; @EPRezepte ; pbexit ; @Desktop
        # Nor does what lies there of this kind go into an ordinary one.
        mnuRezepte ; @Rezepte ; cmbRezeptname = Fünf ; pbÄndRez ; @ÄndRez ; DBGridRez rows~ ^1.61.10[^+]*$
        txtLeistung = 13 ; pbok ; @Rezepte ; five == 611 ; pbexit ; @Desktop)");
    form(frm::EPRezepte).showModal();
    co_await go(R"(
        @EPRezepte ; edit ; ? saveSteps no ; txtDrehzahl = 68 ; pbexit ; @EPRezepte ; copy == ; three ~ ^1:66/)");
}

} // namespace
