// The measuring screen under another flow than the operator's: one that counts.
#include "measure/messablauf.h"

#include "measuring.h"

namespace {

using namespace support;

/// Ends a step after as many results as its recipe says.
class Counting : public Measuring, protected Messablauf {
  protected:
    Counting() {
        setMessablauf(this);
        line.stand().setWholeRecords(false); // a block of bytes is no result
        gProtokollID = 9001;
        views["log"] = [this] { return std::exchange(log, {}).trimmed(); };
        roads["run"] = [this](const QString &) {
            form(frm::Messen).show();
            return go("@Messen");
        };
    }
    ~Counting() override { setMessablauf(nullptr); }

    Messansicht ansicht() override { return {false, "Alone", "Own", {{"Prüfschritt", "Step"}}}; }
    QString spezifikation() override { return "Class"; }
    Recordset schritte() override {
        return gDatenbank.open("SELECT *, 2 AS Anzahl FROM Rezepte WHERE RezeptID = 60 "
                               "AND Prüfschritt < '2' ORDER BY Prüfschritt");
    }
    Recordset messwerte() override { return protokollMesswerte(gProtokollID); }
    void vorSollwert(const Recordset &schritt) override {
        count = 0;
        number = schritt[columnOfCount].whole();
        log += schritt["Prüfschritt"].text() + ": ";
    }
    void nachRahmen(Messfenster &fenster) override {
        EXPECT_FALSE(fenster.texte().ist_P_torvena.isEmpty());
        const double read = clock.elapsed() + 20; // ms; the reading takes its time
        while (clock.elapsed() < read)
            platform::countedDelay(kurzeVerzögerung), platform::pump();
        fenster.zeigeErgometer(QString::number(70 + ++count));
        fenster.zeigeFortschritt(QString("%1/%2").arg(count).arg(number));
        log += text(frm::Messen, "lblMessSchritte") + ' ';
        if (count == stopAt)
            control<QAbstractButton>(frm::Messen, "pbAbbrechen")->click();
        if (count == number) {
            EXPECT_TRUE(views["strip"]().contains(QRegularExpression("W,.* 1/min,.*Own: Out$")));
        }
        if (count == number)
            log += fenster.schrittAbschließen() ? "on " : "not ";
    }
    Vorschau vorschau(const SchrittTexte &schritt) override {
        const Spezifikation class3{0.03, 3, 2};
        return {{leistungsVergleich(endprüfungLeistung(schritt, class3)),
                 drehzahlVergleich(endprüfungDrehzahl(schritt, class3))},
                Spruch::Nein,
                {{"Own", Spruch::Nein, "Out"}}};
    }
    bool speichern(SchrittTexte &schritt) override {
        messwertSpeichern(gProtokollID, schritt, {});
        return true;
    }
    void rezeptEnde() override {
        datenstromBeenden();
        gMessStatus = Messstatus::Ende;
        form(frm::Meldung).show();
    }
    void abbruch() override { log += "stop "; }
    void beimVerlassen(Weggang) override { log += "left"; }

    QString log, columnOfCount = "Anzahl";
    int count = 0, number = 0, stopAt = 0;
};

JOURNEY(Counting, ResultsNotBlocks) {
    co_await go(R"(
        select ; direction ; stand load 100 ; run ; title == Alone ; laRezName == Own ; txtToleranz == Class
        hidden pbSpeichern pbNext pbFreieEing pbPlus txtSoll_n pbMessen ; can pbAbbrechen)");
    const double begin = clock.elapsed();
    co_await go(
        "@Meldung ; Messen.lblMessSchritte == ; Messen.DBGrid1 rows 1 ; log == 1: 1/2 2/2 on");
    EXPECT_GT(clock.elapsed() - begin, 12'000) << "twelve turns at 60";
    co_await go(R"(
        until notice ~ Beenden ; @Desktop ; log == 10: 1/2 2/2 on left
        stored Prüfschritt, Soll_n, Ist_n_ergom == 1|60,0|72+10|70,0|72 ; idle == yes)");
}

JOURNEY(Counting, AStopWins) {
    stopAt = 2;
    co_await go(R"(
        select ; direction ; run ; until notice ~ Beenden ; @Desktop ; log == 1: 1/2 2/2 stop not left
        stored Prüfschritt == ; idle == yes)");
}

// A shaft that turns does not wait for somebody to come.
JOURNEY(Counting, IsNotLeftToItself) {
    co_await go(R"(
        select ; direction ; run ; until log ~ 1/2 ; ? lineLost ; ? refused ; ? noPort ; line out ; @Desktop
        motor ~ ^on Motaus ; line in)");
    co_await go(R"(
        pbMotaus ; log ~ . ; run ; until log ~ 1/2 ; pass 1500 ; stand fault silent on
        ? refused ; ? noController ; pass 90000 ; @Desktop ; motor ~ ^on Motaus ; stand fault none ; pbMotaus)");
    co_await go(R"(
        run ; spoil INSERT Messwerte_temp ; ? failure(3016) ; ? refused ; @Desktop ; idle == yes ; mend)");
    columnOfCount = "gone"; // nor when the flow fails
    co_await go("? failed(3014, 3265) ; run ; @Desktop ; idle == yes");
}

} // namespace
