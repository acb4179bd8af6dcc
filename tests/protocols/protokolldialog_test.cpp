// The dialogs before a measurement: which protocol, and that every way out is a decision.
#include "app/screentable.h"
#include "protokolltest.h"

namespace {

using namespace support;

int aktivierungen = 0;

class frmMessfenster : public Screen {
  public:
    static constexpr frm id = frm::Messen;
    frmMessfenster() { setCaption("Messen"); }

  protected:
    void Form_Activate() override { ++aktivierungen; }
};

class ProtokollDialog : public ProtokollTest {
  protected:
    ProtokollDialog() {
        bindScreens();
        bindScreen<frmMessfenster>("frmMessfenster");
        gProtokollTitel.clear();
        views["number"] = [] { return QString::number(gProtokollID); };
        // Status, whether the old protocol goes on, how often the measurement was activated since.
        views["outcome"] = [] {
            const QString flow = gMessungLäuft ? "open " : "over ",
                          how = gMessenAktiv ? " on " : " new ";
            return flow + QString::number(int(gMessStatus)) + how + QString::number(aktivierungen) +
                   ' ' + loaded(frm::Messen)->caption() + '.';
        };
    }
    static Journey open(frm name = frm::ProtokollNr) {
        form(frm::Messen).show();
        co_await arrive(frm::Messen);
        gMessStatus = Messstatus::Ruhe;
        gMessungLäuft = gMessenAktiv = true;
        aktivierungen = 0;
        form(frm::Messen).setCaption("Messen");
        form(name).showModal();
        co_await arrive(name);
        EXPECT_FALSE(loaded(frm::Messen)->isVisible());
    }
};

JOURNEY(ProtokollDialog, OffersOnlyWhatIsPossible) {
    co_await open();
    co_await go(R"(
        lbProtokollID ~ ^1 - $ ; focus obNeu ; can obNeu ; cannot obVorhanden obLetztes pbok ; pbexit
        @Messfenster)");
    kopf(2147483647);
    expectKnown("failed(9702, 6)");
    co_await open();
    co_await go("cannot obNeu ; can obVorhanden ; pbexit ; @Messfenster");
    gDatenbank.execute("DROP TABLE Messwerte_temp");
    for (const char *failed : {"failed(9701, 3078)", "failed(97011, 3078)", "failed(9702, 6)"})
        expectKnown(failed);
    co_await open();
    co_await go("cannot obNeu obVorhanden obLetztes pbok");
}

JOURNEY_P(ProtokollDialog, NewProtocol) {
    co_await open();
    co_await go(R"(
        key Return ; focus txtNeu ; can pbok ; txtNeu ! ; focus pbok ; pbok ; @Messfenster ; number == 1
        outcome == over 0 new 1 Messen       Prüfprotokoll: 1 -  . | over 0 new 1 Messen       Test Protocol: 1 -  .
        sql SELECT ProtokollID || Protokollname || '.' FROM Protokoll_temp == 1 .)");
    EXPECT_EQ(gProtokollTitel, "1 -  ");
}

JOURNEY(ProtokollDialog, LeavingWithoutDecisionIsACancel) {
    for (const QString out : {"pbexit", "close"}) {
        co_await open();
        act("obNeu");
        gMessStatus = Messstatus::Messen; // whatever it was before
        co_await go(out + " ; @Messfenster ; outcome == over 4 new 1 Messen. ; "
                          "sql SELECT * FROM Protokoll_temp ==");
        EXPECT_EQ(gProtokollTitel, "");
    }
    // The head cannot be written: it stays.
    co_await open();
    kopf(1, "kam dazwischen");
    co_await go(R"(
        obNeu ; ? protocolFailed(9704, 3022) ; pbok ; outcome == open 6 new 0 Messen.
        front == ProtokollNr ; number == 2 ; close ; @Messfenster ; outcome == over 4 new 1 Messen.)");
}

JOURNEY_P(ProtokollDialog, ExistingProtocol) {
    kopf(1, "fremd", 8, 8);
    kopf(2, "A");
    kopf(3, "B");
    gDrehrichtung = 1;
    co_await open();
    co_await go(R"(
        obVorhanden ; focus cmbVorhanden ; cmbVorhanden rows 2 - A+3 - B ; cmbVorhanden == ; cannot pbok
        cmbVorhanden !    # nothing typed, nothing looked up
        cmbVorhanden = 1 ; ? noProtocol ; cmbVorhanden ! ; cannot pbok    # another customer's
        cmbVorhanden = 3 ; cmbVorhanden == 3 ; cmbVorhanden ! ; cmbVorhanden == 3 - B ; focus pbok
        # Ready, but then typed over: no head, or one that is not offered, no measurement.
        cmbVorhanden = 77 ; ? noProtocol ; pbok ; cannot pbok ; focus cmbVorhanden ; number == 4
        cmbVorhanden = 3 ; cmbVorhanden ! ; cmbVorhanden = 1 ; ? noProtocol ; pbok ; cannot pbok
        number == 4 ; outcome == open 6 new 0 Messen.
        sql SELECT * FROM Protokoll_temp WHERE Drehrichtung = 1 ==
        cmbVorhanden > 2 - A ; cmbVorhanden = 2 ; pbok ; @Messfenster ; number == 2
        outcome == over 0 new 1 Messen       Prüfprotokoll: 2 - A. | over 0 new 1 Messen       Test Protocol: 2 - A.
        sql SELECT ProtokollID FROM Protokoll_temp WHERE Drehrichtung = 1 == 2)");
}

JOURNEY(ProtokollDialog, SingleExistingProtocolIsTakenAtOnce) {
    kopf(2, "A");
    co_await open();
    co_await go(R"(
        obVorhanden ; cmbVorhanden == 2 - A ; can pbok ; cmbVorhanden = ; cannot pbok
        obNeu ; hidden cmbVorhanden ; obVorhanden ; cmbVorhanden == 2 - A ; shown cmbVorhanden
        cmbVorhanden = 2 ; change DROP TABLE Messwerte_temp
        ? protocolFailed(9703, 3078) ; cmbVorhanden ! ; front == ProtokollNr
        obNeu ; ? failed(9701, 3078) ; obVorhanden ; cmbVorhanden rows)");
}

JOURNEY_P(ProtokollDialog, LastProtocolIsContinuedAsItIs) {
    kopf(7, "Station");
    messwert(7);
    kopf(9, "leer");
    const QString vorher = grid("SELECT * FROM Protokoll_temp");
    co_await open();
    co_await go(R"(
        obNeu ; obLetztes ; focus pbok ; shown cmbVorhanden ; hidden txtNeu ; cmbVorhanden == 7-Station
        obVorhanden ; cmbVorhanden rows 9 - leer ; obLetztes ; cmbVorhanden + 8 ; cmbVorhanden == 7-Station
        cmbVorhanden ! ; pbok ; @Messfenster ; number == 7
        outcome == over 0 on 1 Messen       Prüfprotokoll: 7-Station. | over 0 on 1 Messen       Test Protocol: 7-Station.)");
    EXPECT_EQ(grid("SELECT * FROM Protokoll_temp"), vorher);
}

JOURNEY_P(ProtokollDialog, NothingIsMeasuredWithoutASpecification) {
    kopf(7, "Station");
    messwert(7);
    kopf(9, "leer");
    change("DELETE FROM Toleranzen WHERE ID = 5");
    const QString vorher = grid("SELECT * FROM Protokoll_temp");
    co_await open();
    for (const QString choice : {"obLetztes", "obVorhanden", "obNeu"})
        co_await go(choice + " ; ? noSpecification ; pbok ; front == ProtokollNr");
    co_await go("pbexit ; @Messfenster ; outcome == over 4 new 1 Messen.");
    co_await open(frm::ProtokollNr_1);
    co_await go("? noSpecification ; pbok ; pbexit ; @Messfenster");
    EXPECT_EQ(grid("SELECT * FROM Protokoll_temp"), vorher);
}

JOURNEY_P(ProtokollDialog, ReducedForm) {
    kopf(4);
    co_await open(frm::ProtokollNr_1);
    kopf(5); // meanwhile
    co_await go(R"(
        lbProtokollID ~ ^5 - $ ; laProtoName == Protokoll&name | Protocol &name ; focus txtProtoName ; txtProtoName ! ; focus pbok
        ? failed(1021, 3022) ; pbok ; txtProtoName ~ ^ $
        change DELETE FROM Protokoll_temp WHERE ProtokollID = 5
        txtProtoName = Name ; pbok ; @Messfenster
        outcome == over 0 on 1 Messen         Prüfprotokoll: 5 - Name. | over 0 on 1 Messen         Test Protocol: 5 - Name.
        sql SELECT Protokollname, NK_ID FROM Protokoll_temp WHERE ProtokollID = 5 == Name|7)");
    kopf(2147483647);
    expectKnown("failed(1020, 6)");
    co_await open(frm::ProtokollNr_1);
    co_await go("cannot pbok ; pbexit ; @Messfenster ; outcome == over 4 on 1 Messen.");
}

} // namespace
