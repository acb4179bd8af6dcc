// Customers and units: found while typing, by a search and by what belongs to them, and chosen.
#include "session/motorfenster.h"
#include "session/session.h"
#include "workplace.h"

namespace {

using namespace support;

class Choosers : public Workplace {
  protected:
    Choosers() {
        views["found"] = [] { // what is listed, and what is shown of a customer
            QStringList shown;
            for (const char *field : {"lbName", "txtStraße", "txtPLZ", "txtOrt"})
                shown += text(frm::Kunden, field);
            return rowsOf(control(frm::Kunden, "lstKunden")) + " =" +
                   text(frm::Kunden, "Label").section(':', 1) + ' ' + shown.join('|');
        };
    }
};

JOURNEY_P(Choosers, FilterCustomersWhileTyping) {
    co_await logIn();
    co_await go(R"(
        pbKunde ; @Kunden ; focus cmbKundenname ; cmbOrt rows~ ^\+Ährenfeld\+Ashcombe Vale\+Bad Quellingen\+
        Label == Kundenanzahl: 12 | Number Of Customers In The List: 12
        # Nothing is typed for the person.
        cmbKundenname = klinik ; found == Klinikum Ährenfeld+Reha-Klinik Sonnenhöhe = 2 ||| ; cmbKundenname == klinik
        cmbKundenname = ahrenfeld ; found == Klinikum Ährenfeld = 1 |||
        cmbKundenname = ÖZTÜRK-W ; found == Praxis Dr. Öztürk-Weiß = 1 ||| ; cmbKundenname == ÖZTÜRK-W
        cmbKundenname =   malley's ; found == O'Malley's Gym & Physio = 1 |||
        cmbKundenname = spo*LIRR ; found == Sportwissenschaftliches Institut Lirrstadt = 1 |||
        cmbKundenname = h?rz ; found == Herzzentrum Talbrück = 1 |||
        cmbKundenname = ( ; found ==  = 0 |||
        cmbKundenname = herzzentrum talbrück ; cmbKundenname == herzzentrum talbrück
        found == Herzzentrum Talbrück = 1 Herzzentrum Talbrück|Am Mühlbach 3|57413|Talbrück
        cmbKundenname = Herzzentrum Talbrücke ; found ==  = 0 ||| ; ? nothingFound ; cmbKundenname !
        # One of two: to be confirmed.
        cmbKundenname = klinik ; cmbKundenname ! ; cmbKundenname == Klinikum Ährenfeld ; key Down 2
        found ~ = 2 Reha-Klinik Sonnenhöhe.Kurweg 8.83958.Bad Quellingen$
        key Ctrl+Up ; lbName == Reha-Klinik Sonnenhöhe
        key Up ; found ~ = 2 Klinikum Ährenfeld.Lindenallee 12.36902.Ährenfeld$
        cmbKundenname = ; key PgDown ; lbName == Sportwissenschaftliches Institut Lirrstadt
        key PgUp ; lbName == Fitnessstudio Kraftwerk Süd
        cmbOrt > Großlohe ; cmbKundenname == ; found ~ = 2 ; cmbKundenname = klinik ; found ~ = 0)");
}

JOURNEY_P(Choosers, SearchForWholeNames) {
    co_await logIn();
    co_await go(R"(
        pbKunde ; @Kunden ; ? searchText ; pbSearch ; key Space ; ? searchText ; pbSearch ; cmbOrt > Lirrstadt)");
    // Towns are not searched, and ß is not SS.
    for (const char *nobody : {"Klinik", "?linik", "*x*y*z*", "*GROSSLOHE*"})
        co_await go(QString("cmbKundenname = %1 ; ? nothingFound ; pbSearch ; "
                            "cmbKundenname == %1 ; focus cmbKundenname")
                        .arg(nobody));
    co_await go(R"(
        cmbOrt == Lirrstadt ; cmbKundenname = *klinik* ; pbSearch ; cmbOrt ==    # all towns were searched
        found == Klinikum Ährenfeld+Reha-Klinik Sonnenhöhe = 2 |||
        cmbKundenname = st aldwyn*unit ; pbSearch
        found ~ = 1 St Aldwyn Hospital, Cardiac Unit.Ashcombe Road.AV1 7QT.Ashcombe Vale$
        ? unitNow no ; cmbKundenname ! ; @Desktop ; session == 12 0 0
        # Of two with one name the one of this town.
        change INSERT INTO Kunden (KundenID, Name, Ort) VALUES (50, 'Klinikum Ährenfeld', 'Talbrück')
        pbKunde ; @Kunden ; cmbOrt > Talbrück ; cmbKundenname = Klinikum Ährenfeld ; txtOrt == Talbrück
        ? unitNow no ; lstKunden ! ; @Desktop ; session == 50 0 0)");
}

JOURNEY_P(Choosers, ChangeTheDesktop) {
    co_await logIn();
    co_await go(R"(
        cannot pbGerät ; pbKunde ; @Kunden ; ? chooseCustomer ; pbexit ; front == Kunden ; pbAbbrechen ; @Desktop
        pbRezept ; @Rezepte ; cmbRezeptname = Kurzprüfung ; pbok ; @Desktop
        pbKunde ; @Kunden ; cmbKundenname = klinikum ährenfeld ; ? unitNow no ; pbexit ; @Desktop ; cannot pbMessen
        pbGerät ; @Gerät ; cmbIdent = AEH-001 ; ? recipeNow no ; pbok ; @Desktop
        # The same customer keeps the unit; another one has to bring a unit of his own.
        pbKunde ; @Kunden ; cmbKundenname = Klinikum Ährenfeld ; ? unitNow no ; pbexit ; @Desktop
        desktop == Klinikum Ährenfeld|KE 200 med|AEH-001|Kurzprüfung|medizinische Geräte ; can pbMessen
        pbKunde ; @Kunden ; cmbKundenname = Herzzentrum Talbrück ; ? unitNow yes ; pbexit ; @Gerät
        laKunde == Herzzentrum Talbrück ; pbexit ; @Desktop ; cannot pbMessen mnuStartMessen
        desktop == Herzzentrum Talbrück|||Kurzprüfung|medizinische Geräte
        pbGerät ; @Gerät ; cmbIdent = hzt-2 ; ? recipeNow yes ; pbok ; @Rezepte ; pbexit ; @Desktop
        desktop == Herzzentrum Talbrück|KE 300 BD|HZT-2|Kurzprüfung|medizinische Geräte ; can pbMessen
        pass 500 ; front == Desktop    # the next step is taken once)");
}

JOURNEY_P(Choosers, AreLeftWithoutAChoice) {
    co_await go("select");
    motorfenster().setMessenEnabled(false); // after a failed correction: only a choice helps
    co_await go(R"(
        pbKunde ; @Kunden ; cmbKundenname := Kantonsspital Seewilen ; key Escape ; @Desktop
        pbGerät ; @Gerät ; cmbIdent := AEH-002 ; key Escape ; @Desktop
        pbRezept ; @Rezepte ; cmbRezeptname := Studio Dauerbetrieb ; key Escape ; @Desktop ; session == 1 1 1
        pbRezept ; @Rezepte ; cmbRezeptname := Studio Dauerbetrieb
        spoil SELECT Toleranzen ; ? failure(1015) ; close ; @Desktop ; mend ; session == 1 1 1
        desktop == Klinikum Ährenfeld|KE 200 med|AEH-001|Kurzprüfung|medizinische Geräte ; cannot pbMessen)");
    EXPECT_EQ(gToleranzID, 1);
}

JOURNEY_P(Choosers, TakeUnitsByIdentOrTheOnlyOneOfAType) {
    change("INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, IdentNr) "
           "VALUES (60090, 1, 'Ohne Nummer', '')");
    co_await logIn();
    co_await go(R"(
        pbKunde ; @Kunden ; cmbKundenname = Klinikum Ährenfeld ; ? unitNow yes ; pbexit ; @Gerät
        cmbTyp rows +Kardio L4+KE 200 med+Ohne Nummer ; lstIdent rows AEH-001+AEH-002+AEH-003+AEH-017
        Label == Ergometeranzahl: 5 | Number Of Units In The List: 5
        ? changeUnit ; pbok ; focus cmbIdent ; txtTyp ==
        cmbIdent := HZT-1 ; ? notHis ; pbok ; focus cmbIdent ; txtTyp ==    # another customer's
        cmbIdent := AEH-0 ; ? notHis ; pbok ; focus cmbIdent ; txtTyp ==    # part of several
        cmbTyp > KE 200 med ; cmbIdent == ; Label ~ : 3$ ; ? several ; pbok ; focus cmbIdent ; txtTyp ==
        session == 1 0 0 ; cmbTyp ! ; focus cmbIdent
        cmbIdent = aeh-003 ; txtSerienNr == 200-05120 ; txtHersteller == Radolin
        # The only one of its type is there at once, also without a number; and a number of another
        # type than the one that is filtered by is taken.
        cmbTyp > Kardio L4 ; cmbIdent == AEH-017 ; ? recipeNow no ; cmbIdent ! ; @Desktop ; session == 1 4 0
        pbGerät ; @Gerät ; cmbTyp > Ohne Nummer ; cmbIdent == ; ? recipeNow no ; cmbIdent ! ; @Desktop
        session == 1 60090 0 ; desktop == Klinikum Ährenfeld|Ohne Nummer|||
        pbRezept ; @Rezepte ; cmbRezeptname = Kurzprüfung ; pbok ; @Desktop ; cannot pbMessen    # without a number
        pbGerät ; @Gerät ; cmbTyp > KE 200 med ; cmbIdent == ; cmbIdent = AEH-017
        ? recipeNow no ; cmbIdent ! ; @Desktop ; session == 1 4 1
        pbKunde ; @Kunden ; cmbKundenname = St Aldwyn Hospital, Cardiac Unit ; ? unitNow yes ; pbexit ; @Gerät
        cmbIdent == STA-1    # the only unit of a customer)");
}

} // namespace
