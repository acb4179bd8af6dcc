// The desktop of the final test: the mode, the head of a device, what may be measured.
#include <QDir>
#include <QLineEdit>

#include "app/start.h"
#include "finaltest/kopffelder.h"
#include "link/einlauf.h"
#include "platform/runtime.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;
using platform::setNumberLocale;

TEST(Head, DatesOfAPerson) {
    const auto until = [](const QString &text) {
        const QDate date = prüfdatumAus(text);
        return date.isValid() ? kalibriertBis(date) : QString("none");
    };
    setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    for (const auto &c :
         cases("07.10.2020 -> Oktober 2022 | 7.10.20 -> Oktober 2022 | 2020-03-01 -> März 2022 | "
               "29.02.2024 -> Februar 2026 | 30.02.2024 -> none | 10/7/2020 -> none | abc -> none"))
        EXPECT_EQ(until(c.in), c.out) << c;
    setNumberLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    for (const auto &c : cases("10/7/2020 -> October 2022 | 1/31/21 -> January 2023 | "
                               "07.10.2020 -> October 2022 | 13/1/2020 -> none"))
        EXPECT_EQ(until(c.in), c.out) << c;
}

class FinalHead : public Workplace {
  protected:
    FinalHead() {
        for (const char *given :
             {"UPDATE System SET Endprüfung = -1, EinlW = '65', Einlzeit2 = '0.35'",
              "DELETE FROM EP_Rezeptnamen", "DELETE FROM EP_Rezepte", "DELETE FROM EP_Messwerte",
              "DELETE FROM EP",
              "INSERT INTO EP_Rezeptnamen VALUES (5, 'Reha', 'medizinische Geräte', 0), "
              "(6, 'Sport', 'Toleranz 3%', -1)",
              "INSERT INTO EP (EP_ID, SerienNr, Gerätetyp, Messkopf, auf250, Schritte) "
              "VALUES (30, 'alt', 'Typ A', 'M9', '251', 7)",
              "INSERT INTO EP_Messwerte (ProtokollID, Prüfschritt, Toleranz) "
              "VALUES (30, '1', 'OK'), (30, '2', 'Außer Toleranz'), (9000, '1', 'OK')"})
            change(given);
        views["head"] = [] { // of the device at hand
            return grid("SELECT EP_ID, SerienNr, Gerätetyp, Messkopf, Kunde, IsolationsR, "
                        "SchutzleiterR, GeräteableitI, auf0, auf50, auf300, Ablassrate, Prüfer "
                        "FROM EP WHERE SerienNr = ?",
                        {text(frm::Endprüf, "txtSerNr")});
        };
        views["heads"] = [] { return grid("SELECT count(*) FROM EP"); };
        views["rows"] = [] {
            return grid("SELECT ProtokollID, count(*) FROM EP_Messwerte GROUP BY ProtokollID");
        };
        views["recipe"] = [] { // in work, its class, and which is marked
            return QString("%1 %2 %3")
                .arg(gEPRezeptID)
                .arg(gRezeptName)
                .arg(grid("SELECT RezeptID FROM EP_Rezeptnamen WHERE LetzterAufruf <> 0"));
        };
        views["ep"] = [] { return QString::number(gEPProtokollID); };
        views["month"] = [this] { // until when a device of today is valid
            return text(frm::Endprüf, "txtPrüfDat") == clock.now().date().toString("dd.MM.yyyy") &&
                           text(frm::Endprüf, "txtKalDat") == kalibriertBis(clock.now().date())
                       ? "today"
                       : "another";
        };
        // Direction, motor's buttons and countdown, here and on the desktop.
        views["both"] = [] {
            QStringList shown;
            for (const frm window : {frm::Endprüf, frm::Desktop}) {
                QString buttons;
                for (const char *button : {"pbDrehR", "pbMotein", "pbMotaus"})
                    buttons += control(window, button)->isEnabled() ? 'x' : '-';
                shown += text(window, "lbDrehrichtung") + ' ' + buttons + ' ' +
                         text(window, "lbEinlauf");
            }
            return shown[0] == shown[1] ? shown[0] : shown.join(" / ");
        };
        views["motor"] = [this] {
            return QString(gMotorEin ? "on " : "off ") + QString::number(line.stand().setSpeed());
        };
        views["follows"] = [] { // what a closing screen has left to the desktop
            return QString("%1 %2 %3").arg(int(gDesktopFolge)).arg(gMessenFreigabe).arg(gEPModus);
        };
        views["listed"] = [] { return gEPRezeptWahl = "Neu"; };
        views["terminated"] = [] {
            beendenOhneFrage();
            return "now";
        };
        roads["enter"] = [this](const QString &) { return go("login ; pbEndprüf ; @Endprüf"); };
        // A new device, saved.
        roads["device"] = [this](const QString &number) {
            return go("enter ; txtSerNr = " + number + " ; pbok ; can pbMessen");
        };
        roads["turning"] = [this](const QString &) {
            return go("pbDrehR ; @MotorDrehR ; obLinks ; pbok ; @Endprüf");
        };
    }
};

JOURNEY_P(FinalHead, EntryByKeyboard) {
    change("DELETE FROM EP");
    co_await go(R"(
        enter ; title == Endprüfprotokoll für Ergometer | Final Test Protocol For Ergometers
        txtPrüfer == M. Prüfer ; month == today ; cmbRezName == Sport ; cannot pbok pbMessen ; focus txtGerätetyp
        txtGerätetyp = Typ B ; txtGerätetyp ! ; focus txtSerNr ; txtSerNr ! ; focus txtSerNr ; txtSerNr = 4711 ; can pbok ; waits pbok
        txtSerNr ! ; focus txtMesskopf ; txtMesskopf ! ; focus txtMesskopf ; txtMesskopf = M7 ; txtMesskopf !
        focus txtKundenName ; txtKundenName = O'Hara ; txtKundenName ! ; focus txtMOhm ; txtMOhm = 1,5 ; txtMOhm ! ; txtMOhm == 1.5
        focus txtOhm ; txtOhm = 0.2 ; txtOhm ! ; focus txtµA ; txtµA !
        focus txt0auf ; txt0auf = 0,5 ; txt0auf ! ; focus txt50auf ; txt50auf ! ; txt100auf ! ; txt150auf ! ; txt200auf ! ; txt250auf !
        focus txt300auf ; txt300auf = 299 ; txt300auf ! ; focus txtAblass ; txtAblass = 3,1 ; txtAblass ! ; focus cmbRezName ; txtAblass == 3,1
        cmbRezName ! ; focus pbok ; key Return ; cannot pbok ; can pbMessen ; focus pbDrehR ; waits pbDrehR
        head ~ ^\d+\|4711\|Typ B\|M7\|O'Hara\|1.5\|0.2\|NULL\|0.5\|NULL\|299\|3,1\|M. Prüfer$ ; recipe == 6 Toleranz 3% 6
        txtPrüfer ^ ; txtPrüfer ! ; focus txtPrüfDat ; txtPrüfDat ! ; focus txtKalDat
        txtKalDat = ; txtKalDat ! ; focus txtKalDat ; cannot pbok pbMessen ; txtKalDat = nie ; txtKalDat ! ; focus pbDrehR
        # Typed by hand until the date is left.
        can pbok ; cannot pbMessen ; txtPrüfDat ^ ; txtKalDat ^ ; month == today
        pbBeenden ; @Desktop ; follows == 0 0 0)");
}

// A row: what is typed, the answer to the question about a known number, the head afterwards.
JOURNEY(FinalHead, Saving) {
    co_await go("enter ; txtGerätetyp == Typ A");
    for (const auto &c : cases(R"(
        txtSerNr = 1 -> 31¦1¦Typ A¦¦¦NULL¦NULL¦NULL¦NULL¦NULL¦NULL¦NULL¦M. Prüfer
        | txtSerNr = 2 ; txtKundenName = Beta ; txtMOhm = 7,5 ; txtµA = 12 ; txt50auf = 51 ; txtAblass = 3 -> 32¦2¦Typ A¦¦Beta¦7.5¦NULL¦12¦NULL¦51¦NULL¦3¦M. Prüfer
        | txtSerNr = 2 ; txtAblass = ; txtMesskopf = M8 ; txtPrüfer = B ; ? headExists -> 32¦2¦Typ A¦¦¦NULL¦NULL¦NULL¦NULL¦NULL¦NULL¦NULL¦B
        | txtSerNr = ALT ; txt300auf = 302 ; txtGerätetyp = Typ C ; ? headExists cancel -> 30¦alt¦Typ A¦M9¦NULL¦NULL¦NULL¦NULL¦NULL¦NULL¦NULL¦NULL¦NULL
        | txtSerNr = alt ; txt300auf = 302 ; txtGerätetyp = Typ C ; ? headExists -> 30¦alt¦Typ C¦M9¦¦NULL¦NULL¦NULL¦NULL¦NULL¦302¦NULL¦B)")) {
        SCOPED_TRACE(c.in.toStdString());
        const bool saved = !c.in.contains("cancel");
        const QString typed = c.in + " ; pbok";
        co_await go(typed);
        EXPECT_EQ(views["head"]().replace('|', QString("¦")), c.out);
        EXPECT_EQ(canPress(frm::Endprüf, "pbMessen"), saved);
        EXPECT_TRUE(!saved || c.out.startsWith(views["ep"]() + QString("¦")));
        co_await go("cannot pbok ; pbEingNeu ; txtSerNr == ; txtMOhm == ; month == today ; "
                    "cannot pbok pbMessen ; focus txtSerNr");
    }
    // Its rows stay until it is measured; what overwriting does not touch stays, too.
    co_await go(
        "heads == 3 ; rows == 30|2+9000|1 ; sql SELECT auf250 FROM EP WHERE EP_ID = 30 == NULL "
        "; txtMesskopf == M8 ; txtGerätetyp == Typ A");
}

// Saved by the question of a new entry, the next saving ends in a new entry by itself.
JOURNEY_P(FinalHead, NewEntry) {
    co_await go(R"(
        enter ; txtSerNr = 1 ; txtAblass = 3 ; ? saveHead no ; pbEingNeu ; txtSerNr == ; txtAblass == 3 ; heads == 1
        txtSerNr = 1 ; ? saveHead yes ; pbEingNeu ; heads == 2 ; txtSerNr == ; cannot pbMessen
        txtSerNr = 2 ; txtOhm = 1 ; pbok ; heads == 3 ; txtSerNr == ; txtOhm == ; cannot pbMessen pbok
        txtSerNr = 3 ; pbok ; heads == 4 ; txtSerNr == 3 ; can pbMessen ; pbEingNeu ; txtSerNr ==
        txtSerNr = 2 ; ? saveHead yes ; ? headExists cancel ; pbEingNeu ; txtSerNr == ; cannot pbMessen
        spoil INSERT EP ; txtSerNr = 9 ; ? saveHead yes ; ? failure(EP_4) ; pbEingNeu ; txtSerNr == 9 ; can pbok)");
}

JOURNEY_P(FinalHead, TheRecipeBox) {
    co_await go(R"(
        enter ; cmbRezName rows Reha+Sport ; txtSerNr = 1 ; can pbok ; cmbRezName = Re ; cannot pbok ; cmbRezName = reha ; can pbok
        cmbRezName = ; cannot pbok ; cmbRezName ! ; focus cmbRezName ; cmbRezName + Unsinn ; cannot pbok ; key Tab ; cmbRezName == ; focus cmbRezName
        cmbRezName = Nichts ; cmbRezName ! ; focus cmbRezName ; cmbRezName == ; cannot pbok
        cmbRezName > Reha ; can pbok ; recipe ~ ^6 ; pbok ; recipe == 5 medizinische Geräte 5
        # Chosen in the list of recipes.
        change INSERT INTO EP_Rezeptnamen VALUES (7, 'Neu', 'Toleranz 3%', 0)
        listed == Neu ; turning ; cmbRezName == Neu ; cmbRezName rows Reha+Sport+Neu ; cannot pbMessen ; cmbRezName > Reha ; can pbMessen
        # The class is that of the recipe as it stands when it is measured; another window may have gone through the recipes.
        change UPDATE EP_Rezeptnamen SET Toleranz = 'ohne Toleranzen' WHERE RezeptID = 5
        turning ; cmbRezName == Reha ; can pbMessen ; ? notWarm yes ; pbMessen ; @VorStatNPK ; recipe == 5 ohne Toleranzen 5)");
}

JOURNEY_ROWS(FinalHead, WhichRecipeIsThereAtFirst, "DELETE FROM EP_Rezeptnamen -> ,0",
             "DELETE FROM EP_Rezeptnamen WHERE RezeptID = 6 -> Reha,5",
             "UPDATE EP_Rezeptnamen SET LetzterAufruf = -1 -> ,0",
             "UPDATE EP_Rezeptnamen SET LetzterAufruf = 0 -> ,0") {
    change(givenRow.section(" -> ", 0, 0));
    const QString shown = givenRow.section(" -> ", 1);
    co_await go("enter ; txtSerNr = 1 ; cmbRezName == " + shown.section(',', 0, 0));
    EXPECT_EQ(QString::number(gEPRezeptID), shown.section(',', 1));
    EXPECT_EQ(canPress(frm::Endprüf, "pbok"), gEPRezeptID != 0);
}

JOURNEY_P(FinalHead, TheDateTakesTheValidityAlong) {
    co_await go(R"(
        enter ; txtPrüfDat = 7.10.2020 ; txtPrüfer ^ ; txtKalDat == Oktober 2022 | October 2022
        txtPrüfDat = ; txtPrüfer ^ ; txtPrüfDat == ; txtKalDat == Oktober 2022 | October 2022
        txtPrüfDat = 31.2.2020 ; ? falseDate ; txtPrüfer ^ ; month == today)");
}

JOURNEY_P(FinalHead, TheModeAndBothDesktops) {
    co_await go(R"(
        login ; line 4 out ; ? noErgometerPort ; pbEndprüf ; @Desktop ; follows == 0 0 0
        line 4 in ; pbDrehR ; @MotorDrehR ; obRechts ; pbok ; @Desktop
        pbEndprüf ; @Endprüf ; follows == 0 0 1 ; cannot Desktop.pbKunde ; both ~ ^(Rechtslauf|Right) xx- $
        txtSerNr = 1 ; pbok ; turning ; both ~ ^(Linkslauf|Left) xx- $ ; can pbMessen ; waits pbMotein
        pbMotein ; pass 2000 ; motor == on 60 ; both ~ (Linkslauf|Left) --x 00:0. ; wire4 ~ W065\s$ ; focus pbMotaus
        txtOhm = 1 ; ? headExists ; pbok ; focus pbMotaus
        pbMotaus ; pass 1000 ; motor == off 0 ; both ~ (Linkslauf|Left) xx- 00:0. ; focus pbMotein ; wire4 ~ W065\s$
        # The controller does not answer.
        stand fault silent on ; ? noController ; ? engineNotOn ; pbMotein ; pass 9000 ; both ~ xx- ; stand fault none
        pbMotein ; pass 500 ; stand fault silent on ; ? noController ; ? engineNotOff ; pbMotaus ; pass 9000 ; both ~ --x
        # Left with the motor on: it is stopped, the load goes, and the desktop shows what is so.
        ? noController ; ? engineNotOff ; close ; pass 9000 ; @Desktop ; follows == 0 0 0 ; can pbMotaus ; cannot pbMotein pbDrehR
        stand fault none ; wire4 ~ W000\s$ ; pbMotaus ; pass 1000 ; motor == off 0
        pbEndprüf ; @Endprüf ; both ~ xx- ; pbMotein ; pass 9000 ; pbBeenden ; @Desktop ; motor == off 0 ; can pbMotein pbDrehR
        Desktop.lbDrehrichtung == Linkslauf | Left ; cannot pbMotaus)");
}

JOURNEY(FinalHead, LoadOfTheRunningIn) {
    change("UPDATE System SET Einlzeit2 = '1.59'");
    co_await go("device 1 ; turning");
    for (const auto &c :
         cases("0 -> W000 | 7 -> W007 | 65.5 -> W066 | 799 -> W799 | 1000 -> W000")) {
        gEinlaufLeistung = c.in.toDouble();
        co_await go("pbMotein ; pass 1000 ; lbEinlauf ~ 0(1:00|0:59) ; pbMotaus ; pass 500");
        EXPECT_TRUE(views["wire4"]().endsWith(c.out + '\r')) << c << views["wire4"]();
    }
    co_await go(
        "line 4 out ; ? failure(EP_8) ; pbMotein ; pass 1000 ; motor == on 60 ; can pbMotaus "
        "; terminated == now ; pass 1000");
    EXPECT_EQ(line.stand().setSpeed(), 0);
}

// The process is told to end while a device runs in under load.
JOURNEY(FinalHead, EndsFromOutsideWithoutLoad) {
    co_await go(R"(
        device 1 ; turning ; pbMotein ; pass 1000 ; wire4 ~ W065\s$ ; terminated == now ; pass 1000
        wire4 ~ W000\s$ ; motor == off 0)");
}

JOURNEY_P(FinalHead, WhatMayBeMeasured) {
    co_await go(R"(
        enter ; txtSerNr = alt ; txtPrüfer ^ ; laLetzterLauf ~ Prüfschritte 2, außer Toleranz 1 | test steps 2, out of tolerance 1
        ? headExists ; pbok ; txtGerätetyp = ; cannot pbMessen ; txtGerätetyp = Typ A ; can pbMessen
        txtSerNr = alt5 ; cannot pbMessen ; can pbok ; txtSerNr = alt ; can pbMessen ; cannot pbok
        ? notWarm no ; pbMessen ; ? notWarm yes ; ? directionHere ; pbMessen
        # The direction does not start anything, neither here nor on the desktop afterwards.
        @MotorDrehR ; obRechts ; pbok ; @Endprüf ; can pbMessen ; rows == 30|2+9000|1
        pbBeenden ; @Desktop ; follows == 0 0 0 ; pass 1000 ; front == Desktop ; pbDrehR ; @MotorDrehR ; pbok ; @Desktop ; follows == 0 0 0
        pbEndprüf ; @Endprüf ; txtSerNr = alt ; ? headExists ; pbok ; spoil DELETE EP_Messwerte
        ? notWarm yes ; ? failure(EP_6) ; pbMessen ; front == Endprüf ; mend
        pbMessen ; @VorStatNPK ; rows == 9000|1
        # After a failed zero point both desktops have to begin anew.
        close ; @StatMessen ; ? correctionAborted ; pbAbbrechen ; @Endprüf ; cannot pbMessen Desktop.pbMessen ; can pbok
        laLetzterLauf == ; ? headExists ; pbok ; can pbMessen
        # A device without a type, a recipe that is gone.
        txtGerätetyp = ; ? headExists ; pbok ; ? enterOrSave ; pbMessen ; txtGerätetyp = T ; ? headExists ; pbok
        change DELETE FROM EP_Rezeptnamen WHERE RezName = 'Sport' ; ? enterOrSave ; pbMessen ; front == Endprüf)");
}

// From the saved device to its report, and on to the next one.
JOURNEY_P(FinalHead, AMeasuredDevice) {
    for (const QString &name : QDir(":/layouts").entryList({"*.rpt"}))
        QFile::copy(":/layouts/" + name, name);
    change("INSERT INTO EP_Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart, SSCode, "
           "MessSchritte) VALUES (6, '1', '60', 100, '2', 'W100[13]', '1')");
    co_await go(R"(
        device 1 ; turning ; ? notWarm yes ; pbMessen ; @VorStatNPK ; pbok ; until can StatMessen.pbWeiter ; pbWeiter
        @NachStatNPK ; pbok ; @Messen ; laDrehR == Linkslauf | Left ; @Endprüf ; rows == 30|2+31|1+9000|1
        focus pbEingNeu ; waits pbEingNeu ; laLetzterLauf ~ Prüfschritte 1, außer Toleranz 0, Dauer | test steps 1, out of tolerance 0, duration
        motor == off 0 ; load == 0 ; can pbMessen pbDrehR ; cannot pbok
        # Once its rows are given up nothing is told of their run.
        pbMessen ; @VorStatNPK ; close ; @StatMessen ; ? correctionAborted ; pbAbbrechen ; @Endprüf ; laLetzterLauf == ; focus pbok ; sql SELECT sum(Schritte) FROM EP == 7
        ? saveHead no ; pbEingNeu ; laLetzterLauf == ; focus txtSerNr)");
}

JOURNEY_P(FinalHead, ReportsFollowTheNumberInTheBox) {
    co_await go(R"(
        enter ; ? noReportData ; pbProtokoll ; txtSerNr = gibtsnicht ; ? noReportData ; pbProtokoll
        txtSerNr = leer ; pbok ; ? noReportData ; pbProtokoll ; ep == 31
        spoil SELECT EP_Messwerte ; ? failure(EP_66) ; pbProtokoll)");
}

JOURNEY(FinalHead, FailuresLeaveWhatIsToBeSaved) {
    co_await go(R"(
        enter ; spoil INSERT EP ; txtSerNr = 1 ; ? failure(EP_4) ; pbok ; can pbok ; cannot pbMessen ; mend
        spoil UPDATE EP ; txtSerNr = alt ; ? headExists ; ? failure(EP_5) ; pbok ; can pbok ; cannot pbMessen ; ep == 0 ; mend
        spoil UPDATE EP_Rezeptnamen ; cmbRezName > Reha ; ? failure(EP_1) ; pbok ; can pbok ; recipe ~ ^6 .* 6$ ; mend
        spoil SELECT EP ; ? failure(EP_9) ; pbok ; can pbok ; ? failure(EP_10) ; pbok ^ ; key Return ; can pbok
        ? saveHead no ; ? failure(EP_2) ; pbEingNeu ; mend
        spoil SELECT EP_Rezeptnamen ; ? failure(EP_3) ; pbEingNeu ; cannot pbok ; cmbRezName ^ ; ? failure(EP_11) ; cmbRezName + S
        ? failure(EP_12) ; txtSerNr ^)");
}

} // namespace
