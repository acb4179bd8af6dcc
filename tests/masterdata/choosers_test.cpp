// Customers and units: found while typing, by a search and by what belongs to them, and chosen.
#include "choosing.h"

namespace {

using namespace support;
using namespace platform;

class Customers : public Choosing {
  protected:
    static void typed(const char *what) { type(frm::Kunden, "cmbKundenname", what); }
    static QString box() { return text(frm::Kunden, "cmbKundenname"); }
    static QString list() { return listed(frm::Kunden, "lstKunden").join('+'); }
    static QString count() {
        const QString label = english() ? "Number Of Customers In The List: " : "Kundenanzahl: ";
        return text(frm::Kunden, "Label").remove(label);
    }
    static std::string details() {
        QStringList shown;
        for (const char *field : {"lbName", "txtStraße", "txtPLZ", "txtOrt"})
            shown += text(frm::Kunden, field);
        return shown.join('|').toStdString();
    }
};
using Units = Choosing;

INSTANTIATE_TEST_SUITE_P(Languages, Customers, testing::Values(1, 2));
INSTANTIATE_TEST_SUITE_P(Languages, Units, testing::Values(1, 2));

const Text search{"Suchen", "Search"};

TEST_P(Customers, AreFilteredWhileTyping) {
    const struct {
        const char *typed, *found, *details = "|||";
    } cases[] = {
        {"klinik", "Klinikum Ährenfeld+Reha-Klinik Sonnenhöhe"},
        {"ahrenfeld", "Klinikum Ährenfeld"},
        {"ÖZTÜRK-W", "Praxis Dr. Öztürk-Weiß"},
        {"  malley's ", "O'Malley's Gym & Physio"},
        {"spo*LIRR", "Sportwissenschaftliches Institut Lirrstadt"},
        {"h?rz", "Herzzentrum Talbrück"},
        {"(", ""},
        {"herzzentrum talbrück", "Herzzentrum Talbrück",
         "Herzzentrum Talbrück|Am Mühlbach 3|57413|Talbrück"},
        {"Herzzentrum Talbrücke", ""},
    };
    const auto journey = [&, this]() -> Journey {
        co_await open("pbKunde", frm::Kunden);
        EXPECT_TRUE(focused(frm::Kunden, "cmbKundenname"));
        EXPECT_EQ(offered(frm::Kunden, "cmbOrt").mid(0, 4),
                  (QStringList{"", "Ährenfeld", "Ashcombe Vale", "Bad Quellingen"}));
        for (const auto &c : cases) {
            typed(c.typed);
            EXPECT_EQ(box(), c.typed) << "nothing is typed for the person";
            EXPECT_EQ(list(), c.found) << c.typed;
            EXPECT_EQ(details(), c.details) << c.typed;
            EXPECT_EQ(count().toInt(), listed(frm::Kunden, "lstKunden").size());
        }
        // Enter completes; a text that fits nothing is told.
        expectNothingFound(search);
        enter(frm::Kunden, "cmbKundenname");
        typed("klinik");
        enter(frm::Kunden, "cmbKundenname");
        EXPECT_EQ(box(), "Klinikum Ährenfeld") << "one of two: to be confirmed";
        for (int rows = 0; rows < 2; ++rows)
            key(frm::Kunden, "cmbKundenname", Qt::Key_Down);
        EXPECT_EQ(details(), "Reha-Klinik Sonnenhöhe|Kurweg 8|83958|Bad Quellingen");
        key(frm::Kunden, "cmbKundenname", Qt::Key_Up);
        EXPECT_EQ(details(), "Klinikum Ährenfeld|Lindenallee 12|36902|Ährenfeld");

        pick(frm::Kunden, "cmbOrt", "Großlohe");
        EXPECT_EQ(box(), "");
        EXPECT_EQ(count(), "2");
        typed("klinik");
        EXPECT_EQ(count(), "0");
    };
    run(journey());
}

TEST_P(Customers, AreSearchedForByWholeNames) {
    const auto journey = [this]() -> Journey {
        co_await open("pbKunde", frm::Kunden);
        for (const char *nothing : {"", "  "}) {
            paste(frm::Kunden, "cmbKundenname", nothing);
            expectTold({"Bitte geben Sie den Suchtext im Feld Kundenname ein!",
                        "To search, enter the text into the field 'Customer'!"},
                       search);
            press(frm::Kunden, "pbSearch");
        }
        pick(frm::Kunden, "cmbOrt", "Lirrstadt");
        // Towns are not searched, and ß is not SS.
        for (const char *nobody : {"Klinik", "?linik", "*x*y*z*", "*GROSSLOHE*"}) {
            typed(nobody);
            expectNothingFound(search);
            press(frm::Kunden, "pbSearch");
            EXPECT_EQ(box(), nobody);
            EXPECT_TRUE(focused(frm::Kunden, "cmbKundenname"));
        }
        EXPECT_EQ(text(frm::Kunden, "cmbOrt"), "Lirrstadt");
        typed("*klinik*");
        press(frm::Kunden, "pbSearch");
        EXPECT_EQ(list(), "Klinikum Ährenfeld+Reha-Klinik Sonnenhöhe");
        EXPECT_EQ(text(frm::Kunden, "cmbOrt"), "") << "all towns were searched";
        EXPECT_EQ(details(), "|||");
        EXPECT_EQ(count(), "2");
        typed("st aldwyn*unit");
        press(frm::Kunden, "pbSearch");
        EXPECT_EQ(details(),
                  "St Aldwyn Hospital, Cardiac Unit|Ashcombe Road|AV1 7QT|Ashcombe Vale");
        expectUnitQuestion(No);
        enter(frm::Kunden, "cmbKundenname");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(gKundenID, 12);
    };
    run(journey());
}

TEST_P(Customers, ChoosingChangesTheDesktop) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        EXPECT_FALSE(canPress(frm::Desktop, "pbGerät"));
        co_await open("pbKunde", frm::Kunden);
        expectTold({"Bitte wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
                   {"Achtung!", "Attention"});
        press(frm::Kunden, "pbexit");
        EXPECT_TRUE(inFront(frm::Kunden));
        press(frm::Kunden, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        co_await recipe("Kurzprüfung");
        co_await customer("klinikum ährenfeld");
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
        co_await unit("AEH-001");
        // The same customer keeps the unit; another one has to bring a unit of his own.
        co_await customer("Klinikum Ährenfeld");
        EXPECT_EQ(desktop(),
                  "Klinikum Ährenfeld|KE 200 med|AEH-001|Kurzprüfung|medizinische Geräte");
        EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
        co_await customer("Herzzentrum Talbrück", Yes);
        EXPECT_EQ(text(frm::Gerät, "laKunde"), "Herzzentrum Talbrück");
        press(frm::Gerät, "pbexit");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "Herzzentrum Talbrück|||Kurzprüfung|medizinische Geräte");
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
        EXPECT_FALSE(control<QAction>(frm::Desktop, "mnuStartMessen")->isEnabled());
        co_await unit("hzt-2", Yes);
        press(frm::Rezepte, "pbexit");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(),
                  "Herzzentrum Talbrück|KE 300 BD|HZT-2|Kurzprüfung|medizinische Geräte");
        EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
        co_await pass(500);
        EXPECT_TRUE(inFront(frm::Desktop)) << "the next step is taken once";
    };
    run(journey());
}

TEST_P(Units, AndTheOthersAreLeftWithoutAChoice) {
    const struct {
        const char *button;
        frm name;
        const char *field, *entry, *cancel;
    } choosers[] = {
        {"pbKunde", frm::Kunden, "cmbKundenname", "Kantonsspital Seewilen", "pbAbbrechen"},
        {"pbGerät", frm::Gerät, "cmbIdent", "AEH-002", "pbexit"},
        {"pbRezept", frm::Rezepte, "cmbRezeptname", "Studio Dauerbetrieb", "pbexit"},
    };
    const auto session = [] { return QList<int>{gKundenID, gGerätID, gRezeptID, gToleranzID}; };
    const auto journey = [&, this]() -> Journey {
        co_await select();
        const QList<int> chosen = session();
        front().setMessenEnabled(false); // after a failed correction: only a choice helps
        for (const auto &c : choosers) {
            for (const char *way : {c.cancel, "Escape", ""}) {
                co_await open(c.button, c.name);
                paste(c.name, c.field, c.entry);
                const bool unread = c.name == frm::Rezepte && !*way;
                if (unread) {
                    change("ALTER TABLE Toleranzen RENAME TO fort");
                    expectFailure("1015");
                }
                leaveBy(c.name, way);
                co_await arrive(frm::Desktop);
                if (unread)
                    change("ALTER TABLE fort RENAME TO Toleranzen");
                EXPECT_FALSE(loaded(c.name)) << way;
                EXPECT_EQ(desktop(),
                          "Klinikum Ährenfeld|KE 200 med|AEH-001|Kurzprüfung|medizinische Geräte");
                EXPECT_EQ(session(), chosen) << c.button << way;
                EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
            }
        }
    };
    run(journey());
}

TEST_P(Units, AreChosenByIdentOrByTheOnlyOneOfAType) {
    change("INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, IdentNr) "
           "VALUES (60090, 1, 'Ohne Nummer', '')");
    const Text noUnit{"Wählen Sie zuerst ein Gerät aus!", "First, select a unit under test!"};
    const Text notHis{"Kunde besitzt kein Gerät mit dieser ID-Nummer!",
                      "The customer does not have a unit with this ID number!"};
    const Text several{"Es gibt mehrere Geräte diesen Typs!\r"
                       "Wählen sie zur genauen Bestimmung eine ID-Nummer aus!",
                       "There are several units of this type!\r"
                       "Select an ID number in order to exactly define the unit!"};
    const struct {
        const char *type, *ident;
        const Text &why;
    } refused[] = {
        {"", "", noUnit},
        {"", "HZT-1", notHis}, // another customer's
        {"", "AEH-0", notHis}, // part of several
        {"KE 200 med", "", several},
    };
    const auto journey = [&, this]() -> Journey {
        co_await customer("Klinikum Ährenfeld", Yes);
        EXPECT_EQ(offered(frm::Gerät, "cmbTyp"),
                  (QStringList{"", "Kardio L4", "KE 200 med", "Ohne Nummer"}));
        EXPECT_EQ(listed(frm::Gerät, "lstIdent"),
                  (QStringList{"AEH-001", "AEH-002", "AEH-003", "AEH-017"}));
        const QString count = english() ? "Number Of Units In The List: " : "Ergometeranzahl: ";
        EXPECT_EQ(text(frm::Gerät, "Label"), count + '5');
        for (const auto &c : refused) {
            pick(frm::Gerät, "cmbTyp", c.type);
            paste(frm::Gerät, "cmbIdent", c.ident);
            expectTold(c.why, {"Achtung!", "Attention!"});
            press(frm::Gerät, "pbok");
            EXPECT_TRUE(focused(frm::Gerät, "cmbIdent")) << c.ident;
            EXPECT_EQ(gGerätID, 0);
            EXPECT_EQ(text(frm::Gerät, "txtTyp"), "");
        }
        EXPECT_EQ(text(frm::Gerät, "Label"), count + '3');
        type(frm::Gerät, "cmbIdent", "aeh-003");
        EXPECT_EQ(text(frm::Gerät, "txtSerienNr"), "200-05120");
        EXPECT_EQ(text(frm::Gerät, "txtHersteller"), "Radolin");

        // The only one of its type is there at once, also without a number; and a number of
        // another type than the one that is filtered by is taken.
        const struct {
            const char *type, *shown, *typed;
            int key;
        } taken[] = {{"Kardio L4", "AEH-017", "", 4},
                     {"Ohne Nummer", "", "", 60090},
                     {"KE 200 med", "", "AEH-017", 4}};
        for (const auto &c : taken) {
            pick(frm::Gerät, "cmbTyp", c.type);
            EXPECT_EQ(text(frm::Gerät, "cmbIdent"), c.shown);
            if (*c.typed)
                type(frm::Gerät, "cmbIdent", c.typed);
            expectRecipeQuestion(No);
            enter(frm::Gerät, "cmbIdent");
            co_await arrive(frm::Desktop);
            EXPECT_EQ(gGerätID, c.key);
            if (c.key == 60090) { // there is no measuring with it
                EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Ohne Nummer|||");
                co_await recipe("Kurzprüfung");
                EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
            }
            co_await open("pbGerät", frm::Gerät);
        }
        press(frm::Gerät, "pbexit");
        co_await arrive(frm::Desktop);
        co_await customer("St Aldwyn Hospital, Cardiac Unit", Yes);
        EXPECT_EQ(text(frm::Gerät, "cmbIdent"), "STA-1") << "the only unit of a customer";
    };
    run(journey());
}

} // namespace
