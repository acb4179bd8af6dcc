// Customers and units entered, changed and deleted, and how lists and desktop follow.
#include "choosing.h"
#include "geraetedaten.h"
#include "loeschung.h"
#include "sprache.h"
#include "umbruch.h"

namespace {

using namespace support;
using namespace platform;

const Text confirmed{"Bestätigung", "MESSAGE"};
const Text error{"Eingabefehler", "Error"};
const Text noName{" Keine Daten zum Speichern vorhanden! ", " No data to be saved! "};
const Text nameTaken{" Dieser Kunde existiert schon!", " This customer is already existent!"};
const Text identTaken{"Diese Identifikationsnummer ist bereits vergeben!",
                      "This identification number has already been allocated!"};

class Editing : public Choosing {
  protected:
    using Fields = std::vector<std::pair<const char *, QString>>;

    static void fill(frm name, const Fields &fields) {
        for (const auto &[field, value] : fields)
            paste(name, field, value);
    }
    static void fillUnit(frm name, const QString &typ, const QString &ident) {
        fill(name, {{"txtTyp", typ},
                    {"txtHersteller", "Radolin"},
                    {"txtSerienNr", "S/1"},
                    {"txtIdentNr", ident}});
    }
    /// The box, and the screen stays with what was typed.
    void refused(frm name, const Text &why, const Text &title, const char *field) {
        expectTold(why, title);
        press(name, "pbSave");
        EXPECT_TRUE(inFront(name));
        EXPECT_TRUE(focused(name, field)) << field;
    }
    void failed(frm name, const char *tag, const char *event, const char *table) {
        spoil(event, table);
        expectFailure(tag);
        press(name, "pbSave");
        EXPECT_TRUE(inFront(name));
        mend();
    }
    /// Saves and is back at the list.
    Journey saved(frm name, frm list) {
        const bool entered = name == frm::NeuKunde || name == frm::NeuGerät;
        expectTold(entered ? Text{"Daten wurden gespeichert!", "Data have been saved!"}
                           : Text{" Daten wurden geändert. ", " Data have been changed!"},
                   confirmed, Information);
        press(name, "pbSave");
        co_await arrive(list);
    }
    Journey deleted(frm name) {
        expectTold(name == frm::LöschKunde
                       ? Text{"Die Daten wurden gelöscht!", "Data have been deleted!"}
                       : Text{"Daten wurden gelöscht!", "Data have been deleted!"},
                   {"Bestätigung", "Confirmation"}, Information);
        press(name, name == frm::LöschKunde ? "pbok" : "pbYes");
        co_await arrive(name == frm::LöschKunde ? frm::Kunden : frm::Gerät);
    }
    QString customerRow(const QString &name) {
        return column("SELECT Name || '|' || Straße || '|' || PLZ || '|' || Ort FROM Kunden "
                      "WHERE Name = ?",
                      {name})
            .join('+');
    }
    QString unitRow(const QString &ident) {
        return column("SELECT KundenID || '|' || Gerätetyp || '|' || Hersteller || '|' || "
                      "SerienNr || '|' || IdentNr FROM Ergometer WHERE IdentNr = ?",
                      {ident})
            .join('+');
    }
    /// A key to whatever has the keyboard.
    static void key(Qt::Key which) {
        Screen *screen = frontScreen();
        turnTo(*screen);
        QTest::keyClick(screen->focusWidget(), which);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, Editing, testing::Values(1, 2));

TEST_P(Editing, ACustomerIsEnteredAndChanged) {
    const auto journey = [this]() -> Journey {
        co_await customer("Herzzentrum Talbrück");
        co_await unit("HZT-2");
        co_await open("pbKunde", frm::Kunden);
        for (const char *button : {"pbchange", "pbDelete"}) {
            expectTold({"Wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
                       {"Achtung!", "Attention"});
            press(frm::Kunden, button);
            EXPECT_TRUE(focused(frm::Kunden, "cmbKundenname"));
        }
        pick(frm::Kunden, "cmbOrt", "Großlohe");
        co_await open("pbNeu", frm::NeuKunde, frm::Kunden);
        EXPECT_TRUE(focused(frm::NeuKunde, "txtName"));
        EXPECT_EQ(offered(frm::NeuKunde, "cmbOrt").first(), "Ährenfeld");
        fill(frm::NeuKunde, {{"txtStraße", "Hof 1"}, {"txtPLZ", "01"}, {"cmbOrt", "Neustadt"}});
        for (const char *name : {"", "   ", "KLINIKUM ÄHRENFELD"}) {
            paste(frm::NeuKunde, "txtName", name);
            refused(frm::NeuKunde, *name == 'K' ? nameTaken : noName, error, "txtName");
        }
        paste(frm::NeuKunde, "txtName", "Klinikum*");
        failed(frm::NeuKunde, "1050", "INSERT", "Kunden");
        co_await saved(frm::NeuKunde, frm::Kunden);
        EXPECT_EQ(customerRow("Klinikum*"), "Klinikum*|Hof 1|01|Neustadt");
        EXPECT_EQ(text(frm::Kunden, "lbName"), "Klinikum*") << "shown, though of another town";
        turnTo(*loaded(frm::Kunden));
        EXPECT_TRUE(focused(frm::Kunden, "cmbKundenname"));
        sendKeys(*control<QWidget>(frm::Kunden, "cmbKundenname"), "klinikum*");
        EXPECT_EQ(text(frm::Kunden, "cmbKundenname"), "klinikum*") << "starts another search";

        // Not into another's name, but into its own in other letters
        co_await open("pbchange", frm::ÄndKund, frm::Kunden);
        EXPECT_EQ(text(frm::ÄndKund, "txtName"), "Klinikum*");
        for (const char *name : {" ", "praxis dr. öztürk-weiß"}) {
            paste(frm::ÄndKund, "txtName", name);
            refused(frm::ÄndKund, *name == 'p' ? nameTaken : noName, error, "txtName");
        }
        fill(frm::ÄndKund, {{"txtName", "KLINIKUM*"}, {"txtStraße", ""}, {"cmbOrt", "Großlohe"}});
        // which another bears already
        change("INSERT INTO Kunden (KundenID, Name) VALUES (500, 'klinikum*')");
        co_await saved(frm::ÄndKund, frm::Kunden);
        change("DELETE FROM Kunden WHERE KundenID = 500");
        EXPECT_EQ(customerRow("KLINIKUM*"), "KLINIKUM*||01|Großlohe");
        EXPECT_EQ(text(frm::Kunden, "lbName"), "KLINIKUM*");

        // The session's customer: the desktop follows, the unit stays.
        type(frm::Kunden, "cmbKundenname", "Herzzentrum Talbrück");
        co_await open("pbchange", frm::ÄndKund, frm::Kunden);
        paste(frm::ÄndKund, "txtName", "Herzhaus");
        failed(frm::ÄndKund, "1140", "UPDATE", "Kunden");
        change("UPDATE Kunden SET KundenID = 500 WHERE KundenID = 2"); // gone meanwhile
        expectFailure("1140", {" 3021 …", " 3021 …"});
        press(frm::ÄndKund, "pbSave");
        change("UPDATE Kunden SET KundenID = 2 WHERE KundenID = 500");
        EXPECT_EQ(desktop(), "Herzzentrum Talbrück|KE 300 BD|HZT-2||");
        co_await saved(frm::ÄndKund, frm::Kunden);
        EXPECT_EQ(desktop(), "Herzhaus|KE 300 BD|HZT-2||");
        for (const char *way : {"pbexit", "Escape", ""}) {
            co_await open("pbchange", frm::ÄndKund, frm::Kunden);
            paste(frm::ÄndKund, "txtName", "vergessen");
            leaveBy(frm::ÄndKund, way);
            co_await arrive(frm::Kunden);
            EXPECT_EQ(text(frm::Kunden, "lbName"), "Herzhaus");
        }
        expectUnitQuestion(No);
        press(frm::Kunden, "pbexit");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "Herzhaus|KE 300 BD|HZT-2||") << "the same customer keeps the unit";
    };
    run(journey());
}

TEST(UnitEntry, TellsWhatIsMissing) {
    const std::pair<const char *, const char *> cases[] = {
        {"xxxx", ""},
        {"-xxx", "Bitte ergänzen Sie Typ"},
        {"xx-x", "Bitte ergänzen Sie Serien-Nr."},
        {"xxx-", "Bitte ergänzen Sie  Ident-Nr."},
        {"x-x-", "Bitte ergänzen Sie  Hersteller, Ident-Nr."},
        {"----", "Bitte ergänzen Sie Typ, Hersteller, Serien-Nr., Ident-Nr."},
    };
    for (const auto &[entered, box] : cases) {
        const auto value = [&](int i) { return QString(entered[i] == 'x' ? "x" : " "); };
        const Fehlendes told = fehlendeAngaben({value(0), value(1), value(2), value(3)});
        EXPECT_EQ(told.erste ? told.text.german : QString(), box);
        EXPECT_EQ(told.text.english, "Input is incomplete! Please complete!");
    }
}

TEST_P(Editing, AUnitIsEnteredAndChanged) {
    const auto journey = [this]() -> Journey {
        co_await customer("Klinikum Ährenfeld", Yes);
        for (const char *button : {"pbchange", "pbDelete"}) {
            expectTold({"Wählen Sie zuerst ein Gerät aus!", "First, select a unit under test!"},
                       {"Achtung!", "Attention!"});
            press(frm::Gerät, button);
            EXPECT_TRUE(inFront(frm::Gerät));
        }
        pick(frm::Gerät, "cmbTyp", "Kardio L4");
        co_await open("pbNeu", frm::NeuGerät, frm::Gerät);
        EXPECT_EQ(text(frm::NeuGerät, "laKunde"), "Klinikum Ährenfeld");
        fillUnit(frm::NeuGerät, " ", "");
        refused(frm::NeuGerät,
                {"Bitte ergänzen Sie Typ, Ident-Nr.", "Input is incomplete! Please complete!"},
                error, "txtTyp");
        fillUnit(frm::NeuGerät, "Velo", "hzt-1"); // another customer's
        refused(frm::NeuGerät, identTaken, {"MESSAGE!", "MESSAGE!"}, "txtIdentNr");
        fillUnit(frm::NeuGerät, "Velo", "Ü'1");
        failed(frm::NeuGerät, "1060", "INSERT", "Ergometer");
        co_await saved(frm::NeuGerät, frm::Gerät);
        EXPECT_EQ(unitRow("Ü'1"), "1|Velo|Radolin|S/1|Ü'1");
        EXPECT_EQ(text(frm::Gerät, "txtIdentNr"), "Ü'1") << "shown, though of another type";
        turnTo(*loaded(frm::Gerät));
        expectRecipeQuestion(No);
        key(Qt::Key_Return);
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Velo|Ü'1||");

        // The session's unit: the desktop follows.
        co_await open("pbGerät", frm::Gerät);
        type(frm::Gerät, "cmbIdent", "ü'1");
        co_await open("pbchange", frm::ÄndGerät, frm::Gerät);
        EXPECT_EQ(text(frm::ÄndGerät, "txtSerienNr"), "S/1");
        fillUnit(frm::ÄndGerät, "Velo 2", "AEH-001");
        refused(frm::ÄndGerät, identTaken, {"MESSAGE!", "MESSAGE!"}, "txtIdentNr");
        fillUnit(frm::ÄndGerät, "Velo 2", "ü'1"); // its own
        failed(frm::ÄndGerät, "1150", "UPDATE", "Ergometer");
        co_await saved(frm::ÄndGerät, frm::Gerät);
        EXPECT_EQ(unitRow("ü'1"), "1|Velo 2|Radolin|S/1|ü'1");
        EXPECT_EQ(text(frm::Gerät, "txtTyp"), "Velo 2");
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Velo 2|ü'1||");

        // Another one, with what it lacked and shared before; or taken off the desktop by another
        // customer, it does not come back.
        change("UPDATE Ergometer SET Hersteller = NULL WHERE IdentNr = 'AEH-001'");
        change("INSERT INTO Ergometer (KundenID, Gerätetyp, IdentNr) VALUES (2, 'X', 'AEH-001')");
        type(frm::Gerät, "cmbIdent", "AEH-001");
        co_await open("pbchange", frm::ÄndGerät, frm::Gerät);
        paste(frm::ÄndGerät, "txtSerienNr", " ");
        refused(frm::ÄndGerät,
                {"Bitte ergänzen Sie Serien-Nr.", "Input is incomplete! Please complete!"}, error,
                "txtSerienNr");
        paste(frm::ÄndGerät, "txtSerienNr", "S/2");
        co_await saved(frm::ÄndGerät, frm::Gerät);
        EXPECT_TRUE(unitRow("AEH-001").startsWith("1|KE 200 med||S/2|"));
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Velo 2|ü'1||");
        press(frm::Gerät, "pbexit");
        co_await arrive(frm::Desktop);
        co_await customer("Herzzentrum Talbrück");
        co_await customer("Klinikum Ährenfeld", Yes);
        type(frm::Gerät, "cmbIdent", "ü'1");
        co_await open("pbchange", frm::ÄndGerät, frm::Gerät);
        co_await saved(frm::ÄndGerät, frm::Gerät);
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld||||");
    };
    run(journey());
}

TEST_P(Editing, ACustomerIsDeleted) {
    const QString longest = QString("W").repeated(255);
    change("INSERT INTO Kunden (Name) VALUES (?)", {longest});
    const auto asked = [] { return text(frm::LöschKunde, "lbProtocollCount"); };
    const auto ask = [this](const QString &name) -> Journey {
        paste(frm::Kunden, "cmbKundenname", name);
        co_await open("pbDelete", frm::LöschKunde, frm::Kunden);
    };
    const auto journey = [&, this]() -> Journey {
        co_await logIn();
        co_await choose("Herzzentrum Talbrück", "HZT-2", "Kurzprüfung");
        co_await open("pbKunde", frm::Kunden);

        // Not the session's; No is what Enter and Escape say.
        for (const Qt::Key no : {Qt::Key_Return, Qt::Key_Escape}) {
            co_await ask(longest);
            EXPECT_EQ(asked(), inSprache(kundenfrage(0, 0, longest)));
            EXPECT_LT(loaded(frm::LöschKunde)->width(), 600);
            key(no);
            co_await arrive(frm::Kunden);
            EXPECT_EQ(text(frm::Kunden, "lbName"), longest);
        }
        co_await ask(longest);
        co_await deleted(frm::LöschKunde);
        EXPECT_EQ(text(frm::Kunden, "cmbKundenname") + text(frm::Kunden, "lbName"), "");
        EXPECT_EQ(customerRow(longest), "");
        EXPECT_EQ(gKundenID, 2);

        // The session's, at the second try
        const QString units = column("SELECT count(*) FROM Ergometer WHERE KundenID = 2").first();
        co_await ask("Herzzentrum Talbrück");
        EXPECT_TRUE(asked().contains(' ' + units + ' ')) << asked().toStdString();
        spoil("DELETE", "Kunden");
        expectFailure("31001");
        press(frm::LöschKunde, "pbok");
        EXPECT_TRUE(inFront(frm::LöschKunde));
        EXPECT_EQ(column("SELECT count(*) FROM Ergometer WHERE KundenID = 2"), QStringList("0"));
        EXPECT_TRUE(desktop().startsWith("Herzzentrum Talbrück|||")) << "its unit is gone";
        EXPECT_FALSE(asked().contains(units + ' '));
        mend();
        co_await deleted(frm::LöschKunde);
        EXPECT_FALSE(listed(frm::Kunden, "lstKunden").contains("Herzzentrum Talbrück"));
        EXPECT_EQ(gKundenID, 0);
        EXPECT_EQ(gGerätID, 0);
        press(frm::Kunden, "pbAbbrechen");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "|||Kurzprüfung|medizinische Geräte");
        for (const char *button : {"pbGerät", "pbMessen", "pbBlutdruck", "pbSecControl"})
            EXPECT_FALSE(canPress(frm::Desktop, button)) << button;
    };
    run(journey());
}

TEST_P(Editing, AUnitIsDeletedAndTheLastOneToo) {
    change("INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, IdentNr) "
           "VALUES (90, 12, 'Ohne Nummer', '')");
    change("INSERT INTO Protokoll_temp (ProtokollID, GerätID, KundenID) VALUES (9000, 90, 12)");
    const auto journey = [this]() -> Journey {
        co_await customer("St Aldwyn Hospital, Cardiac Unit");
        co_await unit("STA-1");
        co_await open("pbGerät", frm::Gerät);
        pick(frm::Gerät, "cmbTyp", "Ohne Nummer");
        for (const bool yes : {false, true}) {
            co_await open("pbDelete", frm::LöschGerät, frm::Gerät);
            EXPECT_EQ(text(frm::LöschGerät, "lbProtocollCount").replace('\n', '\r'),
                      inSprache(gerätefrage(1, "Ohne Nummer")));
            EXPECT_TRUE(focused(frm::LöschGerät, "pbNo"));
            if (!yes)
                key(Qt::Key_Escape);
            else
                co_await deleted(frm::LöschGerät);
            co_await arrive(frm::Gerät);
            EXPECT_EQ(column("SELECT 1 FROM Protokoll_temp WHERE ProtokollID = 9000").size(), !yes);
            EXPECT_EQ(column("SELECT 1 FROM Ergometer WHERE GerätID = 90").size(), !yes);
        }
        EXPECT_EQ(text(frm::Gerät, "txtIdentNr"), "STA-1") << "the only one left";
        EXPECT_EQ(desktop(), "St Aldwyn Hospital, Cardiac Unit|Cardio Pro|STA-1||");
        co_await open("pbDelete", frm::LöschGerät, frm::Gerät);
        EXPECT_EQ(text(frm::LöschGerät, "laIdent"), "STA-1");
        co_await deleted(frm::LöschGerät);
        EXPECT_EQ(listed(frm::Gerät, "lstIdent"), QStringList());
        press(frm::Gerät, "pbexit");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "St Aldwyn Hospital, Cardiac Unit||||");
        EXPECT_EQ(gGerätID, 0);
        co_await open("pbGerät", frm::NeuGerät);
        EXPECT_EQ(text(frm::NeuGerät, "Label1"),
                  english() ? "No Units existent yet!" : "Noch kein Gerät vorhanden!");
        EXPECT_TRUE(control<QWidget>(frm::NeuGerät, "Label1")->isVisible());
        press(frm::NeuGerät, "pbexit");
        co_await arrive(frm::Desktop);
        EXPECT_FALSE(gNeuModus);
    };
    run(journey());
}

TEST_P(Editing, WhatCouldNotBeReadIsNeitherShownNorDeleted) {
    boxes.allow("…");
    const auto unreadable = [](const char *table, frm name, const char *box, const char *entry) {
        change(QString("ALTER TABLE %1 RENAME TO fort").arg(table));
        paste(name, box, entry);
        change(QString("ALTER TABLE fort RENAME TO %1").arg(table));
    };
    const auto journey = [&, this]() -> Journey {
        co_await customer("Herzzentrum Talbrück", Yes);
        paste(frm::Gerät, "cmbIdent", "HZT-1");
        unreadable("Ergometer", frm::Gerät, "cmbIdent", "HZT-2");
        EXPECT_EQ(text(frm::Gerät, "txtIdentNr"), "");
        EXPECT_EQ(loaded<frmGerät>()->gerätID(), 0);
        press(frm::Gerät, "pbexit");
        co_await arrive(frm::Desktop);
        co_await open("pbKunde", frm::Kunden);
        paste(frm::Kunden, "cmbKundenname", "Klinikum Ährenfeld");
        unreadable("Kunden", frm::Kunden, "cmbKundenname", "Herzzentrum Talbrück");
        EXPECT_EQ(text(frm::Kunden, "lbName") + text(frm::Kunden, "txtOrt"), "");
        EXPECT_EQ(loaded<frmKunden>()->kundenID(), 0);
    };
    run(journey());
}

// Entered, found again by every road, changed, and chosen.
TEST_P(Editing, NamesOfAnyKindAreKeptAsTyped) {
    const QString names[] = {
        "O'Neill \"Quer\"; DROP TABLE Kunden; --",
        "Ärzte & Söhne ßÜÖ",
        " Vorn ein Leerzeichen",
        "Vorn ein Leerzeichen",
        QString(255, 'x'),
        "מכון שיקום הצפון",
        "100 % [A-Z] _ *Stern* ?",
        "<b>&fett</b> &amp; 💪 &&",
    };
    const auto journey = [&, this]() -> Journey {
        for (const QString &name : names) {
            SCOPED_TRACE(name.left(40).toStdString());
            change("INSERT INTO Rezeptnamen (RezName, ToleranzID) VALUES (?, 2)", {name});
            const QString four = QStringList{name, name, name, name}.join('|');
            co_await open("pbKunde", frm::Kunden);
            co_await open("pbNeu", frm::NeuKunde, frm::Kunden);
            paste(frm::NeuKunde, "cmbOrt", name);
            for (const char *field : {"txtName", "txtStraße", "txtPLZ"})
                paste(frm::NeuKunde, field, name + (name.size() == 255 ? "y" : ""));
            co_await saved(frm::NeuKunde, frm::Kunden);
            EXPECT_EQ(customerRow(name), four);
            pick(frm::Kunden, "cmbOrt", name);
            EXPECT_EQ(listed(frm::Kunden, "lstKunden"), QStringList{name});
            paste(frm::Kunden, "cmbKundenname", name);
            press(frm::Kunden, "pbSearch");
            EXPECT_TRUE(listed(frm::Kunden, "lstKunden").contains(name));
            paste(frm::Kunden, "cmbKundenname", name);
            co_await open("pbchange", frm::ÄndKund, frm::Kunden);
            EXPECT_EQ(text(frm::ÄndKund, "txtPLZ"), name);
            co_await saved(frm::ÄndKund, frm::Kunden);
            expectUnitQuestion(Yes);
            press(frm::Kunden, "pbexit");
            co_await arrive(frm::NeuGerät);
            EXPECT_EQ(text(frm::NeuGerät, "laKunde"), name);
            for (const char *field : {"txtTyp", "txtHersteller", "txtSerienNr", "txtIdentNr"})
                paste(frm::NeuGerät, field, name);
            co_await saved(frm::NeuGerät, frm::Gerät);
            EXPECT_EQ(unitRow(name), QString::number(gKundenID) + '|' + four);
            pick(frm::Gerät, "cmbTyp", name);
            paste(frm::Gerät, "cmbIdent", name);
            co_await takeUnit(Yes);
            paste(frm::Rezepte, "cmbRezeptname", name);
            press(frm::Rezepte, "pbok");
            co_await arrive(frm::Desktop);
            EXPECT_EQ(desktop(), four + "|stationäre Trainingsgeräte");
        }
        EXPECT_EQ(column("SELECT count(*) FROM Kunden"), QStringList("20"));
    };
    run(journey());
}

TEST(Wrapping, BreaksOnlyWordsThatNoLineHolds) {
    EXPECT_EQ(umbrechbar("Zu dem Kunden 'A B'.\rWollen Sie"), "Zu dem Kunden 'A B'.\nWollen Sie");
    EXPECT_EQ(umbrechbar(QString(65, 'x')).count(QChar(0x200B)), 2);
    EXPECT_TRUE(umbrechbar(QString("💪").repeated(40)).toUtf8().contains("💪"));
}

} // namespace
