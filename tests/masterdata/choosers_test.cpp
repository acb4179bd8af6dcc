// Customers and units: found while typing, by a search and by what belongs to them, and chosen.
#include "choosing.h"

namespace {

using namespace support;
using namespace platform;

class Customers : public Choosing {
  protected:
    void expectCount(const char *label, int count) {
        EXPECT_EQ(text(frm::Kunden, label),
                  (english() ? "Number Of Customers In The List: " : "Kundenanzahl: ") +
                      QString::number(count));
    }
    void expectNothingFound() {
        expectTold({"Es wurden keine Daten gefunden! ", "No data found! "}, {"Suchen", "Search"},
                   Information);
    }
    static QString box() { return text(frm::Kunden, "cmbKundenname"); }
    static QStringList list() { return listed(frm::Kunden, "lstKunden"); }
    static QString details() {
        return text(frm::Kunden, "lbName") + '|' + text(frm::Kunden, "txtStraße") + '|' +
               text(frm::Kunden, "txtPLZ") + '|' + text(frm::Kunden, "txtOrt");
    }
};
using Units = Choosing;
using Names = Choosing;

INSTANTIATE_TEST_SUITE_P(Languages, Customers, testing::Values(1, 2));
INSTANTIATE_TEST_SUITE_P(Languages, Units, testing::Values(1, 2));
INSTANTIATE_TEST_SUITE_P(German, Names, testing::Values(1));

TEST_P(Customers, AreFilteredWhileTyping) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await open("pbKunde", frm::Kunden);
        EXPECT_TRUE(focused(frm::Kunden, "cmbKundenname"));
        expectCount("Label", 12);
        // As in a dictionary
        EXPECT_EQ(list().first(), "Fitnessstudio Kraftwerk Süd");
        EXPECT_EQ(list().last(), "Trainingsinsel Lirrstadt");
        EXPECT_EQ(offered(frm::Kunden, "cmbOrt").mid(0, 4),
                  (QStringList{"", "Ährenfeld", "Ashcombe Vale", "Bad Quellingen"}));
        struct Case {
            const char *typed;
            QStringList found;
            const char *shown; // details
        };
        const QString malley = "O'Malley's Gym & Physio";
        const Case cases[] = {
            {"klinik", {"Klinikum Ährenfeld", "Reha-Klinik Sonnenhöhe"}, "|||"},
            {"ahrenfeld", {"Klinikum Ährenfeld"}, "|||"},
            {"ÖZTÜRK-W", {"Praxis Dr. Öztürk-Weiß"}, "|||"},
            {"o'm", {malley}, "|||"},
            {"  malley's ", {malley}, "|||"},
            {"spo*LIRR", {"Sportwissenschaftliches Institut Lirrstadt"}, "|||"},
            {"h?rz", {"Herzzentrum Talbrück"}, "|||"},
            {"(", {}, "|||"},
            {"herzzentrum talbrück",
             {"Herzzentrum Talbrück"},
             "Herzzentrum Talbrück|Am Mühlbach 3|57413|Talbrück"},
            {"Herzzentrum Talbrücke", {}, "|||"},
        };
        for (const Case &c : cases) {
            type(frm::Kunden, "cmbKundenname", c.typed);
            EXPECT_EQ(box(), c.typed) << "nothing is typed for the person";
            EXPECT_EQ(list(), c.found) << c.typed;
            EXPECT_EQ(details().toStdString(), c.shown) << c.typed;
            expectCount("Label", int(c.found.size()));
        }
        // Enter completes; a text that fits nothing is told.
        expectNothingFound();
        enter(frm::Kunden, "cmbKundenname");
        type(frm::Kunden, "cmbKundenname", "klinik");
        enter(frm::Kunden, "cmbKundenname");
        EXPECT_EQ(box(), "Klinikum Ährenfeld") << "one of two: to be confirmed";
        key(frm::Kunden, "cmbKundenname", Qt::Key_Down);
        EXPECT_EQ(box(), "Reha-Klinik Sonnenhöhe");
        key(frm::Kunden, "cmbKundenname", Qt::Key_Down);
        EXPECT_EQ(details(), "Reha-Klinik Sonnenhöhe|Kurweg 8|83958|Bad Quellingen");
        key(frm::Kunden, "cmbKundenname", Qt::Key_Up);
        EXPECT_EQ(details(), "Klinikum Ährenfeld|Lindenallee 12|36902|Ährenfeld");

        // A town of its own
        pick(frm::Kunden, "cmbOrt", "Großlohe");
        EXPECT_EQ(box(), "");
        expectCount("Label", 2);
        type(frm::Kunden, "cmbKundenname", "klinik");
        expectCount("Label", 0);
        for (const char *button : {"pbNeu", "pbchange", "pbDelete"})
            EXPECT_TRUE(enabled(frm::Kunden, button)) << button;
        EXPECT_TRUE(boxes.allCame());
    };
    run(journey());
}

TEST_P(Customers, AreSearchedForByWholeNames) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await open("pbKunde", frm::Kunden);
        for (const char *nothing : {"", "  "}) {
            paste(frm::Kunden, "cmbKundenname", nothing);
            expectTold({"Bitte geben Sie den Suchtext im Feld Kundenname ein!",
                        "To search, enter the text into the field 'Customer'!"},
                       {"Suchen", "Search"});
            press(frm::Kunden, "pbSearch");
        }
        for (const char *nobody : {"Klinik", "?linik", "*x*y*z*"}) {
            type(frm::Kunden, "cmbKundenname", nobody);
            expectNothingFound();
            press(frm::Kunden, "pbSearch");
            EXPECT_EQ(box(), nobody);
            EXPECT_TRUE(focused(frm::Kunden, "cmbKundenname"));
        }
        pick(frm::Kunden, "cmbOrt", "Lirrstadt");
        type(frm::Kunden, "cmbKundenname", "*GROSSLOHE*"); // towns are not searched, ß is not SS
        expectNothingFound();
        press(frm::Kunden, "pbSearch");
        EXPECT_EQ(text(frm::Kunden, "cmbOrt"), "Lirrstadt");
        type(frm::Kunden, "cmbKundenname", "*klinik*");
        press(frm::Kunden, "pbSearch");
        EXPECT_EQ(list(), (QStringList{"Klinikum Ährenfeld", "Reha-Klinik Sonnenhöhe"}));
        EXPECT_EQ(text(frm::Kunden, "cmbOrt"), "") << "all towns were searched";
        EXPECT_EQ(details(), "|||");
        expectCount("Label", 2);
        type(frm::Kunden, "cmbKundenname", "st aldwyn*unit");
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
        // Leaving without a choice asks nothing and changes nothing.
        const auto leave = [](frm name, const char *cancel, const char *field) -> Journey {
            press(frm::Desktop, name == frm::Kunden ? "pbKunde" : "pbGerät");
            co_await arrive(name);
            for (const int way : {0, 1, 2}) {
                paste(name, field, name == frm::Kunden ? "Kantonsspital Seewilen" : "AEH-002");
                if (way == 0)
                    press(name, cancel);
                else if (way == 1)
                    QTest::keyClick(loaded(name), Qt::Key_Escape);
                else
                    loaded(name)->close();
                co_await arrive(frm::Desktop);
                EXPECT_FALSE(loaded(name)) << way;
                if (way != 2) {
                    press(frm::Desktop, name == frm::Kunden ? "pbKunde" : "pbGerät");
                    co_await arrive(name);
                }
            }
        };
        co_await leave(frm::Kunden, "pbAbbrechen", "cmbKundenname");
        EXPECT_EQ(desktop(), "||||");
        EXPECT_EQ(gKundenID, 0);
        EXPECT_FALSE(canPress(frm::Desktop, "pbGerät"));
        co_await open("pbKunde", frm::Kunden);
        expectTold({"Bitte wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
                   {"Achtung!", "Attention"});
        press(frm::Kunden, "pbexit");
        EXPECT_TRUE(inFront(frm::Kunden));
        press(frm::Kunden, "pbAbbrechen");
        co_await arrive(frm::Desktop);

        co_await customer("klinikum ährenfeld");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(gKundenID, 1);
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld||||");
        EXPECT_TRUE(canPress(frm::Desktop, "pbGerät"));
        co_await recipe("Kurzprüfung");
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
        co_await unit("AEH-001");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(gGerätID, 1);
        const QString chosen =
            "Klinikum Ährenfeld|KE 200 med|AEH-001|Kurzprüfung|medizinische Geräte";
        EXPECT_EQ(desktop(), chosen);
        EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
        EXPECT_TRUE(control<QAction>(frm::Desktop, "mnuStartMessen")->isEnabled());
        co_await leave(frm::Kunden, "pbAbbrechen", "cmbKundenname");
        co_await leave(frm::Gerät, "pbexit", "cmbIdent");
        EXPECT_EQ(desktop(), chosen);

        // The same customer keeps the unit, Yes or No; another one has to bring a unit of his own.
        co_await customer("Klinikum Ährenfeld");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), chosen);
        EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
        co_await customer("Herzzentrum Talbrück", Yes);
        co_await arrive(frm::Gerät);
        EXPECT_EQ(text(frm::Gerät, "laKunde"), "Herzzentrum Talbrück");
        press(frm::Gerät, "pbexit");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "Herzzentrum Talbrück|||Kurzprüfung|medizinische Geräte");
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));
        EXPECT_FALSE(control<QAction>(frm::Desktop, "mnuStartMessen")->isEnabled());
        co_await unit("hzt-2", Yes);
        co_await arrive(frm::Rezepte);
        press(frm::Rezepte, "pbexit");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(),
                  "Herzzentrum Talbrück|KE 300 BD|HZT-2|Kurzprüfung|medizinische Geräte");
        EXPECT_EQ(gGerätID, 6);
        EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
        co_await pass(500);
        EXPECT_TRUE(inFront(frm::Desktop)) << "the next step is taken once";
    };
    run(journey());
}

TEST_P(Units, AreChosenByIdentOrByTheOnlyOneOfAType) {
    change("INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, IdentNr) "
           "VALUES (90, 1, 'Ohne Nummer', '')");
    const Text attention{"Achtung!", "Attention!"};
    const Text noUnit{"Wählen Sie zuerst ein Gerät aus!", "First, select a unit under test!"};
    const Text notHis{"Kunde besitzt kein Gerät mit dieser ID-Nummer!",
                      "The customer does not have a unit with this ID number!"};
    const Text several{"Es gibt mehrere Geräte diesen Typs!\r"
                       "Wählen sie zur genauen Bestimmung eine ID-Nummer aus!",
                       "There are several units of this type!\r"
                       "Select an ID number in order to exactly define the unit!"};
    const auto journey = [&]() -> Journey {
        co_await logIn();
        co_await customer("Klinikum Ährenfeld", Yes);
        co_await arrive(frm::Gerät);
        EXPECT_EQ(offered(frm::Gerät, "cmbTyp"),
                  (QStringList{"", "Kardio L4", "KE 200 med", "Ohne Nummer"}));
        EXPECT_EQ(listed(frm::Gerät, "lstIdent"),
                  (QStringList{"AEH-001", "AEH-002", "AEH-003", "AEH-017"}));
        for (const char *button : {"pbNeu", "pbchange", "pbDelete"})
            EXPECT_TRUE(enabled(frm::Gerät, button)) << button;
        const auto refused = [&](const Text &why) {
            expectTold(why, attention);
            press(frm::Gerät, "pbok");
            EXPECT_TRUE(boxes.allCame()) << why.english.toStdString();
            EXPECT_TRUE(inFront(frm::Gerät));
            EXPECT_TRUE(focused(frm::Gerät, "cmbIdent"));
            EXPECT_EQ(gGerätID, 0);
            EXPECT_EQ(desktop(), "Klinikum Ährenfeld||||");
        };
        refused(noUnit);
        type(frm::Gerät, "cmbIdent", "HZT-1"); // another customer's
        refused(notHis);
        type(frm::Gerät, "cmbIdent", "AEH-0"); // part of several
        EXPECT_EQ(listed(frm::Gerät, "lstIdent").size(), 4);
        EXPECT_EQ(text(frm::Gerät, "txtTyp"), "");
        refused(notHis);
        pick(frm::Gerät, "cmbTyp", "KE 200 med");
        EXPECT_EQ(text(frm::Gerät, "cmbIdent"), "");
        EXPECT_EQ(text(frm::Gerät, "Label"),
                  english() ? "Number Of Units In The List: 3" : "Ergometeranzahl: 3");
        refused(several);
        type(frm::Gerät, "cmbIdent", "aeh-003");
        EXPECT_EQ(text(frm::Gerät, "txtSerienNr"), "200-05120");
        EXPECT_EQ(text(frm::Gerät, "txtHersteller"), "Radolin");

        // The only one of its type is there at once.
        pick(frm::Gerät, "cmbTyp", "Kardio L4");
        EXPECT_EQ(text(frm::Gerät, "cmbIdent"), "AEH-017");
        EXPECT_EQ(text(frm::Gerät, "txtSerienNr"), "L4/0932");
        expectRecipeQuestion(No);
        enter(frm::Gerät, "cmbIdent");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Kardio L4|AEH-017||");
        EXPECT_EQ(gGerätID, 4);

        // Also without a number; there is no measuring with it.
        co_await open("pbGerät", frm::Gerät);
        pick(frm::Gerät, "cmbTyp", "Ohne Nummer");
        expectRecipeQuestion(No);
        press(frm::Gerät, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(gGerätID, 90);
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Ohne Nummer|||");
        co_await recipe("Kurzprüfung");
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));

        // A number of another type than the one that is filtered by.
        co_await open("pbGerät", frm::Gerät);
        pick(frm::Gerät, "cmbTyp", "KE 200 med");
        type(frm::Gerät, "cmbIdent", "AEH-017");
        expectRecipeQuestion(No);
        press(frm::Gerät, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(),
                  "Klinikum Ährenfeld|Kardio L4|AEH-017|Kurzprüfung|medizinische Geräte");

        // A customer with one unit
        co_await customer("St Aldwyn Hospital, Cardiac Unit", Yes);
        co_await arrive(frm::Gerät);
        EXPECT_EQ(text(frm::Gerät, "cmbIdent"), "STA-1");
        expectRecipeQuestion(No);
        press(frm::Gerät, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(gGerätID, 26);
    };
    run(journey());
}

TEST_P(Names, OfAnyKindAreFoundAgainAndChosen) {
    const QString names[] = {
        "O'Neill \"Quer\"; DROP TABLE Kunden; --",
        "Ärzte & Söhne ßÜÖ",
        " Vorn ein Leerzeichen",
        QString("Lang ").repeated(51),
        "מכון שיקום הצפון",
        "100 % [A-Z] _ *Stern* ?",
        "Studio 💪",
        "&Klinik &&",
    };
    int key = 500;
    for (const QString &name : names) {
        key += 10;
        change("INSERT INTO Kunden (KundenID, Name, Ort) VALUES (?, ?, ?)", {key, name, name});
        change("INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, IdentNr) VALUES (?, ?, ?, ?)",
               {key, key, name, name});
        change("INSERT INTO Ergometer (KundenID, Gerätetyp, IdentNr) VALUES (?, ?, 'zwei')",
               {key, name});
        change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (?, ?, 2)",
               {key, name});
        change("INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart) "
               "VALUES (?, '1', '60', 100, '1')",
               {key});
    }
    const auto journey = [&]() -> Journey {
        co_await logIn();
        key = 500;
        for (const QString &name : names) {
            SCOPED_TRACE(name.left(40).toStdString());
            key += 10;
            co_await open("pbKunde", frm::Kunden);
            pick(frm::Kunden, "cmbOrt", name);
            EXPECT_EQ(listed(frm::Kunden, "lstKunden"), QStringList{name});
            pick(frm::Kunden, "cmbOrt", "");
            paste(frm::Kunden, "cmbKundenname", name);
            press(frm::Kunden, "pbSearch");
            EXPECT_TRUE(listed(frm::Kunden, "lstKunden").contains(name));
            EXPECT_EQ(text(frm::Kunden, "lbName"), name);
            EXPECT_EQ(loaded<frmKunden>()->kundenID(), key);
            expectUnitQuestion(Yes);
            press(frm::Kunden, "pbexit");
            co_await arrive(frm::Gerät);
            EXPECT_EQ(text(frm::Gerät, "laKunde"), name);
            pick(frm::Gerät, "cmbTyp", name);
            paste(frm::Gerät, "cmbIdent", name);
            EXPECT_EQ(text(frm::Gerät, "txtIdentNr"), name);
            expectRecipeQuestion(Yes);
            press(frm::Gerät, "pbok");
            co_await arrive(frm::Rezepte);
            paste(frm::Rezepte, "cmbRezeptname", name);
            EXPECT_TRUE(listed(frm::Rezepte, "lstRezepte").contains(name));
            press(frm::Rezepte, "pbok");
            co_await arrive(frm::Desktop);
            EXPECT_EQ(
                desktop(),
                (QStringList{name, name, name, name, "stationäre Trainingsgeräte"}).join('|'));
            EXPECT_EQ(gKundenID, key);
            EXPECT_EQ(gGerätID, key);
            EXPECT_EQ(gRezeptID, key);
            EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
        }
    };
    run(journey());
}

} // namespace
