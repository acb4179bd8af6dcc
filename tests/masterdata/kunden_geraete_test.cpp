// Customers and units entered, changed and deleted, and how lists and desktop follow.
#include "choosing.h"
#include "geraetedaten.h"
#include "umbruch.h"

namespace {

using namespace support;
using namespace platform;

class Editing : public Choosing {
  protected:
    void expectSaved() {
        expectTold({"Daten wurden gespeichert!", "Data have been saved!"},
                   {"Bestätigung", "MESSAGE"}, Information);
    }
    void expectChanged() {
        expectTold({" Daten wurden geändert. ", " Data have been changed!"},
                   {"Bestätigung", "MESSAGE"}, Information);
    }
    void expectDeleted(const Text &text) {
        expectTold(text, {"Bestätigung", "Confirmation"}, Information);
    }
    /// The box, and the screen stays with what was typed.
    void refused(frm name, const Text &why, const Text &title, const char *field) {
        expectTold(why, title);
        press(name, "pbSave");
        EXPECT_TRUE(boxes.allCame()) << why.english.toStdString();
        EXPECT_TRUE(inFront(name));
        EXPECT_TRUE(focused(name, field)) << field;
    }
    void customerRefused(frm name, bool twice) {
        refused(name,
                twice
                    ? Text{" Dieser Kunde existiert schon!", " This customer is already existent!"}
                    : Text{" Keine Daten zum Speichern vorhanden! ", " No data to be saved! "},
                {"Eingabefehler", "Error"}, "txtName");
    }
    void identRefused(frm name) {
        refused(name,
                {"Diese Identifikationsnummer ist bereits vergeben!",
                 "This identification number has already been allocated!"},
                {"MESSAGE!", "MESSAGE!"}, "txtIdentNr");
    }
    static void fill(frm name, const std::vector<std::pair<const char *, QString>> &fields) {
        for (const auto &[field, value] : fields) {
            if (QString(field).startsWith("cmb"))
                paste(name, field, value);
            else
                control<QLineEdit>(name, field)->setText(value);
        }
    }
    static void fillUnit(frm name, const QString &typ, const QString &ident) {
        fill(name, {{"txtTyp", typ},
                    {"txtHersteller", "Radolin"},
                    {"txtSerienNr", "S/1"},
                    {"txtIdentNr", ident}});
    }
    static Journey next(frm from, const char *button, frm to) {
        press(from, button);
        co_await arrive(to);
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
    /// A statement on this table fails until the database is mended.
    static void spoil(const char *event, const char *table) {
        change(QString("CREATE TRIGGER fest BEFORE %1 ON %2 BEGIN SELECT RAISE(ABORT, 'fest'); END")
                   .arg(event, table));
    }
    static void mend() { change("DROP TRIGGER fest"); }
    void expectFailure(const char *tag) {
        boxes.expect((english() ? "ERROR " : "Fehler ") + QString(tag) + " - …");
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
        co_await logIn();
        co_await customer("Herzzentrum Talbrück");
        co_await arrive(frm::Desktop);
        co_await unit("HZT-2");
        co_await arrive(frm::Desktop);
        co_await open("pbKunde", frm::Kunden);
        pick(frm::Kunden, "cmbOrt", "Großlohe");
        co_await next(frm::Kunden, "pbNeu", frm::NeuKunde);
        EXPECT_TRUE(focused(frm::NeuKunde, "txtName"));
        EXPECT_EQ(text(frm::NeuKunde, "cmbOrt"), "");
        EXPECT_EQ(offered(frm::NeuKunde, "cmbOrt").mid(0, 2),
                  (QStringList{"Ährenfeld", "Ashcombe Vale"}));
        for (const char *nothing : {"", "   "}) {
            fill(frm::NeuKunde, {{"txtName", nothing}, {"txtStraße", "Hof 1"}});
            customerRefused(frm::NeuKunde, false);
        }
        fill(frm::NeuKunde, {{"txtName", "KLINIKUM ÄHRENFELD"}});
        customerRefused(frm::NeuKunde, true);
        EXPECT_EQ(text(frm::NeuKunde, "txtStraße"), "Hof 1");
        fill(frm::NeuKunde, {{"txtName", "Klinikum*"}, {"txtPLZ", "01"}, {"cmbOrt", "Neustadt"}});
        spoil("INSERT", "Kunden");
        expectFailure("1050");
        press(frm::NeuKunde, "pbSave");
        EXPECT_TRUE(inFront(frm::NeuKunde));
        EXPECT_EQ(text(frm::NeuKunde, "txtName"), "Klinikum*");
        mend();
        expectSaved();
        enter(frm::NeuKunde, "cmbOrt");
        co_await arrive(frm::Kunden);
        EXPECT_EQ(customerRow("Klinikum*"), "Klinikum*|Hof 1|01|Neustadt");
        EXPECT_EQ(text(frm::Kunden, "lbName"), "Klinikum*") << "shown, though of another town";
        EXPECT_EQ(text(frm::Kunden, "txtOrt"), "Neustadt");
        turnTo(*loaded(frm::Kunden));
        EXPECT_TRUE(focused(frm::Kunden, "cmbKundenname"));
        sendKeys(*control<QWidget>(frm::Kunden, "cmbKundenname"), "klinikum*");
        EXPECT_EQ(text(frm::Kunden, "cmbKundenname"), "klinikum*") << "starts another search";

        // Changing it: not into another's name, but into its own in other letters
        co_await next(frm::Kunden, "pbchange", frm::ÄndKund);
        EXPECT_EQ(text(frm::ÄndKund, "txtName"), "Klinikum*");
        fill(frm::ÄndKund, {{"txtName", " "}});
        customerRefused(frm::ÄndKund, false);
        fill(frm::ÄndKund, {{"txtName", "praxis dr. öztürk-weiß"}});
        customerRefused(frm::ÄndKund, true);
        fill(frm::ÄndKund, {{"txtName", "KLINIKUM*"}, {"txtStraße", ""}, {"cmbOrt", "Großlohe"}});
        expectChanged();
        press(frm::ÄndKund, "pbSave");
        co_await arrive(frm::Kunden);
        EXPECT_EQ(customerRow("KLINIKUM*"), "KLINIKUM*||01|Großlohe");
        EXPECT_EQ(text(frm::Kunden, "lbName"), "KLINIKUM*");
        EXPECT_EQ(desktop(), "Herzzentrum Talbrück|KE 300 BD|HZT-2||") << "not the session's";

        // The session's customer: the desktop follows, the unit stays.
        type(frm::Kunden, "cmbKundenname", "Herzzentrum Talbrück");
        co_await next(frm::Kunden, "pbchange", frm::ÄndKund);
        fill(frm::ÄndKund, {{"txtName", "Herzhaus"}});
        spoil("UPDATE", "Kunden");
        expectFailure("1140");
        press(frm::ÄndKund, "pbSave");
        EXPECT_EQ(desktop(), "Herzzentrum Talbrück|KE 300 BD|HZT-2||");
        EXPECT_EQ(text(frm::ÄndKund, "txtName"), "Herzhaus");
        mend();
        expectChanged();
        press(frm::ÄndKund, "pbSave");
        co_await arrive(frm::Kunden);
        EXPECT_EQ(desktop(), "Herzhaus|KE 300 BD|HZT-2||");
        co_await next(frm::Kunden, "pbchange", frm::ÄndKund);
        fill(frm::ÄndKund, {{"txtName", "vergessen"}});
        QTest::keyClick(loaded(frm::ÄndKund), Qt::Key_Escape);
        co_await arrive(frm::Kunden);
        EXPECT_EQ(text(frm::Kunden, "lbName"), "Herzhaus");
        expectUnitQuestion(No);
        press(frm::Kunden, "pbexit");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "Herzhaus|KE 300 BD|HZT-2||") << "the same customer keeps the unit";
    };
    run(journey());
}

TEST_P(Editing, NothingIsChangedOrDeletedWithoutAChoice) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await open("pbKunde", frm::Kunden);
        for (const char *button : {"pbchange", "pbDelete"}) {
            expectTold({"Wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
                       {"Achtung!", "Attention"});
            press(frm::Kunden, button);
            EXPECT_TRUE(focused(frm::Kunden, "cmbKundenname"));
        }
        press(frm::Kunden, "pbAbbrechen");
        co_await customer("Klinikum Ährenfeld", Yes);
        co_await arrive(frm::Gerät);
        for (const char *button : {"pbchange", "pbDelete"}) {
            expectTold({"Wählen Sie zuerst ein Gerät aus!", "First, select a unit under test!"},
                       {"Achtung!", "Attention!"});
            press(frm::Gerät, button);
            EXPECT_TRUE(inFront(frm::Gerät));
        }
    };
    run(journey());
}

TEST(UnitEntry, TellsWhatIsMissing) {
    const auto told = [](const char *pattern) {
        const auto value = [&](int i) { return QString(pattern[i] == 'x' ? "x" : " "); };
        return fehlendeAngaben({value(0), value(1), value(2), value(3)}).german;
    };
    const std::pair<const char *, const char *> cases[] = {
        {"xxxx", ""},
        {"-xxx", "Bitte ergänzen Sie Typ"},
        {"x-xx", "Bitte ergänzen Sie  Hersteller"},
        {"xx-x", "Bitte ergänzen Sie Serien-Nr."},
        {"xxx-", "Bitte ergänzen Sie  Ident-Nr."},
        {"--xx", "Bitte ergänzen Sie Typ, Hersteller"},
        {"x-x-", "Bitte ergänzen Sie  Hersteller, Ident-Nr."},
        {"xx--", "Bitte ergänzen Sie Serien-Nr., Ident-Nr."},
        {"----", "Bitte ergänzen Sie Typ, Hersteller, Serien-Nr., Ident-Nr."},
    };
    for (const auto &[entered, box] : cases)
        EXPECT_EQ(told(entered).toStdString(), box) << entered;
    EXPECT_EQ(fehlendeAngaben({}).english, "Input is incomplete! Please complete!");
}

TEST_P(Editing, AUnitIsEnteredAndChanged) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await customer("Klinikum Ährenfeld", Yes);
        co_await arrive(frm::Gerät);
        pick(frm::Gerät, "cmbTyp", "Kardio L4");
        co_await next(frm::Gerät, "pbNeu", frm::NeuGerät);
        EXPECT_EQ(text(frm::NeuGerät, "laKunde"), "Klinikum Ährenfeld");
        EXPECT_FALSE(control<QWidget>(frm::NeuGerät, "Label1")->isVisible());
        fillUnit(frm::NeuGerät, " ", "");
        refused(frm::NeuGerät,
                {"Bitte ergänzen Sie Typ, Ident-Nr.", "Input is incomplete! Please complete!"},
                {"Eingabefehler", "Error"}, "txtTyp");
        fillUnit(frm::NeuGerät, "Velo", "hzt-1"); // another customer's
        identRefused(frm::NeuGerät);
        fillUnit(frm::NeuGerät, "Velo", "Ü'1");
        spoil("INSERT", "Ergometer");
        expectFailure("1060");
        press(frm::NeuGerät, "pbSave");
        EXPECT_EQ(text(frm::NeuGerät, "txtIdentNr"), "Ü'1");
        mend();
        expectSaved();
        press(frm::NeuGerät, "pbSave");
        co_await arrive(frm::Gerät);
        EXPECT_EQ(unitRow("Ü'1"), "1|Velo|Radolin|S/1|Ü'1");
        EXPECT_EQ(text(frm::Gerät, "txtIdentNr"), "Ü'1") << "shown, though of another type";
        EXPECT_EQ(text(frm::Gerät, "cmbTyp"), "");
        turnTo(*loaded(frm::Gerät));
        EXPECT_TRUE(focused(frm::Gerät, "cmbIdent"));
        expectRecipeQuestion(No);
        enter(frm::Gerät, "cmbIdent");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Velo|Ü'1||");

        // The session's unit: the desktop follows.
        co_await open("pbGerät", frm::Gerät);
        type(frm::Gerät, "cmbIdent", "ü'1");
        co_await next(frm::Gerät, "pbchange", frm::ÄndGerät);
        EXPECT_EQ(text(frm::ÄndGerät, "txtSerienNr"), "S/1");
        fill(frm::ÄndGerät, {{"txtHersteller", ""}});
        refused(frm::ÄndGerät,
                {"Bitte ergänzen Sie  Hersteller", "Input is incomplete! Please complete!"},
                {"Eingabefehler", "Error"}, "txtHersteller");
        fillUnit(frm::ÄndGerät, "Velo 2", "AEH-001");
        identRefused(frm::ÄndGerät);
        fillUnit(frm::ÄndGerät, "Velo 2", "ü'1"); // its own
        expectChanged();
        press(frm::ÄndGerät, "pbSave");
        co_await arrive(frm::Gerät);
        EXPECT_EQ(unitRow("ü'1"), "1|Velo 2|Radolin|S/1|ü'1");
        EXPECT_EQ(text(frm::Gerät, "txtTyp"), "Velo 2");
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Velo 2|ü'1||");

        // Another one
        type(frm::Gerät, "cmbIdent", "AEH-001");
        co_await next(frm::Gerät, "pbchange", frm::ÄndGerät);
        fill(frm::ÄndGerät, {{"txtTyp", "anders"}});
        spoil("UPDATE", "Ergometer");
        expectFailure("1150");
        press(frm::ÄndGerät, "pbSave");
        mend();
        expectChanged();
        press(frm::ÄndGerät, "pbSave");
        co_await arrive(frm::Gerät);
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld|Velo 2|ü'1||");
        press(frm::Gerät, "pbexit");

        // Taken off the desktop by another customer, it does not come back by being changed.
        co_await arrive(frm::Desktop);
        co_await customer("Herzzentrum Talbrück");
        co_await arrive(frm::Desktop);
        co_await customer("Klinikum Ährenfeld", Yes);
        co_await arrive(frm::Gerät);
        type(frm::Gerät, "cmbIdent", "ü'1");
        co_await next(frm::Gerät, "pbchange", frm::ÄndGerät);
        expectChanged();
        press(frm::ÄndGerät, "pbSave");
        co_await arrive(frm::Gerät);
        EXPECT_EQ(desktop(), "Klinikum Ährenfeld||||");
    };
    run(journey());
}

TEST_P(Editing, ACustomerIsDeleted) {
    const QString longest = QString("W").repeated(255);
    change("INSERT INTO Kunden (Name) VALUES (?)", {longest});
    const Text gone{"Die Daten wurden gelöscht!", "Data have been deleted!"};
    const auto journey = [&]() -> Journey {
        co_await logIn();
        co_await customer("Herzzentrum Talbrück");
        co_await arrive(frm::Desktop);
        co_await unit("HZT-2");
        co_await arrive(frm::Desktop);
        co_await recipe("Kurzprüfung");
        EXPECT_TRUE(canPress(frm::Desktop, "pbMessen"));
        co_await open("pbKunde", frm::Kunden);
        const auto ask = [&](const QString &name) -> Journey {
            paste(frm::Kunden, "cmbKundenname", name);
            co_await next(frm::Kunden, "pbDelete", frm::LöschKunde);
        };

        // Not the session's; No is what Enter and Escape say.
        co_await ask(longest);
        EXPECT_EQ(text(frm::LöschKunde, "lbProtocollCount").remove(QChar(0x200B)),
                  english()
                      ? "Do you want to delete the data of '" + longest + "' now?"
                      : "Wollen Sie die Daten zu dem Kunden '" + longest + "' jetzt löschen?");
        EXPECT_LT(loaded(frm::LöschKunde)->width(), 600);
        EXPECT_TRUE(focused(frm::LöschKunde, "pbCancel"));
        key(Qt::Key_Return);
        co_await arrive(frm::Kunden);
        co_await ask(longest);
        key(Qt::Key_Escape);
        co_await arrive(frm::Kunden);
        EXPECT_EQ(text(frm::Kunden, "lbName"), longest);
        EXPECT_LE(loaded(frm::Kunden)->width(), 1366);
        co_await ask(longest);
        expectDeleted(gone);
        press(frm::LöschKunde, "pbok");
        co_await arrive(frm::Kunden);
        EXPECT_EQ(text(frm::Kunden, "cmbKundenname"), "");
        EXPECT_EQ(text(frm::Kunden, "Label"),
                  english() ? "Number Of Customers In The List: 12" : "Kundenanzahl: 12");
        EXPECT_EQ(text(frm::Kunden, "lbName"), "");
        EXPECT_TRUE(column("SELECT KundenID FROM Kunden WHERE Name = ?", {longest}).isEmpty());
        EXPECT_EQ(gKundenID, 2);

        // The session's, at the second try
        const QString units =
            column("SELECT count(*) FROM Ergometer WHERE KundenID = 2").join(QString());
        co_await ask("Herzzentrum Talbrück");
        EXPECT_TRUE(
            text(frm::LöschKunde, "lbProtocollCount")
                .startsWith((english() ? "For the customer 'Herzzentrum Talbrück' there are "
                                       : "Zu dem Kunden 'Herzzentrum Talbrück' existieren ") +
                            units + ' '))
            << text(frm::LöschKunde, "lbProtocollCount").toStdString();
        EXPECT_TRUE(text(frm::LöschKunde, "lbProtocollCount").contains('\n'));
        spoil("DELETE", "Kunden");
        expectFailure("31001");
        press(frm::LöschKunde, "pbok");
        EXPECT_TRUE(inFront(frm::LöschKunde));
        EXPECT_EQ(column("SELECT count(*) FROM Ergometer WHERE KundenID = 2"), QStringList("0"));
        EXPECT_EQ(desktop().left(23), "Herzzentrum Talbrück|||") << "its unit is gone";
        EXPECT_FALSE(text(frm::LöschKunde, "lbProtocollCount").contains(units + ' '));
        mend();
        expectDeleted(gone);
        press(frm::LöschKunde, "pbok");
        co_await arrive(frm::Kunden);
        EXPECT_EQ(listed(frm::Kunden, "lstKunden").count("Herzzentrum Talbrück"), 0);
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
    const Text gone{"Daten wurden gelöscht!", "Data have been deleted!"};
    change("INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, IdentNr) "
           "VALUES (90, 12, 'Ohne Nummer', '')");
    change("INSERT INTO Protokoll_temp (ProtokollID, GerätID, KundenID) VALUES (9000, 90, 12)");
    const auto journey = [&]() -> Journey {
        co_await logIn();
        co_await customer("St Aldwyn Hospital, Cardiac Unit", Yes);
        co_await arrive(frm::Gerät);
        paste(frm::Gerät, "cmbIdent", "STA-1");
        expectRecipeQuestion(No);
        press(frm::Gerät, "pbok");
        co_await arrive(frm::Desktop);
        co_await open("pbGerät", frm::Gerät);
        pick(frm::Gerät, "cmbTyp", "Ohne Nummer");
        EXPECT_EQ(text(frm::Gerät, "txtTyp"), "Ohne Nummer") << "the only one of its type";
        co_await next(frm::Gerät, "pbDelete", frm::LöschGerät);
        EXPECT_EQ(text(frm::LöschGerät, "lbProtocollCount"),
                  english() ? "For the unit 'Ohne Nummer' there is one protocol existent.\n"
                              "Shall it be deleted now?"
                            : "Zu dem Gerät 'Ohne Nummer' existiert ein Protokoll.\n"
                              "Sollen diese Daten jetzt gelöscht werden?");
        EXPECT_TRUE(focused(frm::LöschGerät, "pbNo"));
        key(Qt::Key_Escape);
        co_await arrive(frm::Gerät);
        co_await next(frm::Gerät, "pbDelete", frm::LöschGerät);
        expectDeleted(gone);
        press(frm::LöschGerät, "pbYes");
        co_await arrive(frm::Gerät);
        EXPECT_TRUE(column("SELECT GerätID FROM Ergometer WHERE GerätID = 90").isEmpty());
        EXPECT_TRUE(column("SELECT 1 FROM Protokoll_temp WHERE ProtokollID = 9000").isEmpty());
        EXPECT_EQ(text(frm::Gerät, "txtIdentNr"), "STA-1") << "the only one left";
        EXPECT_EQ(desktop(), "St Aldwyn Hospital, Cardiac Unit|Cardio Pro|STA-1||");

        co_await next(frm::Gerät, "pbDelete", frm::LöschGerät);
        EXPECT_EQ(text(frm::LöschGerät, "laIdent"), "STA-1");
        expectDeleted(gone);
        press(frm::LöschGerät, "pbYes");
        co_await arrive(frm::Gerät);
        EXPECT_EQ(offered(frm::Gerät, "cmbTyp"), QStringList(""));
        EXPECT_EQ(text(frm::Gerät, "Label"),
                  english() ? "Number Of Units In The List: 0" : "Ergometeranzahl: 0");
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
        co_await pass(500);
        EXPECT_TRUE(inFront(frm::Desktop));
    };
    run(journey());
}

TEST_P(Editing, WhatCouldNotBeReadIsNeitherShownNorDeleted) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await customer("Herzzentrum Talbrück", Yes);
        co_await arrive(frm::Gerät);
        paste(frm::Gerät, "cmbIdent", "HZT-1");
        change("ALTER TABLE Ergometer RENAME TO fort");
        boxes.allow("…");
        paste(frm::Gerät, "cmbIdent", "HZT-2");
        change("ALTER TABLE fort RENAME TO Ergometer");
        EXPECT_EQ(text(frm::Gerät, "txtIdentNr"), "");
        EXPECT_EQ(loaded<frmGerät>()->gerätID(), 0);
        press(frm::Gerät, "pbexit");
        co_await arrive(frm::Desktop);
        co_await open("pbKunde", frm::Kunden);
        paste(frm::Kunden, "cmbKundenname", "Klinikum Ährenfeld");
        change("ALTER TABLE Kunden RENAME TO fort");
        paste(frm::Kunden, "cmbKundenname", "Herzzentrum Talbrück");
        change("ALTER TABLE fort RENAME TO Kunden");
        EXPECT_EQ(text(frm::Kunden, "lbName") + text(frm::Kunden, "txtOrt"), "");
        EXPECT_EQ(loaded<frmKunden>()->kundenID(), 0);
    };
    run(journey());
}

TEST_P(Editing, NamesOfAnyKindAreKeptAsTyped) {
    const QString names[] = {
        "O'Neill \"Quer\"; DROP TABLE Kunden; --",
        "Ärzte & Söhne ßÜÖ",
        " Vorn ein Leerzeichen",
        "Vorn ein Leerzeichen",
        QString(255, 'x'),
        "מכון שיקום הצפון",
        "100 % [A-Z] _ *Stern* ?",
        "<b>fett</b> &amp; 💪",
    };
    const auto journey = [&]() -> Journey {
        co_await logIn();
        for (const QString &name : names) {
            SCOPED_TRACE(name.left(40).toStdString());
            co_await open("pbKunde", frm::Kunden);
            co_await next(frm::Kunden, "pbNeu", frm::NeuKunde);
            paste(frm::NeuKunde, "cmbOrt", name);
            for (const char *field : {"txtName", "txtStraße", "txtPLZ"})
                control<QLineEdit>(frm::NeuKunde, field)
                    ->insert(name + (name.size() == 255 ? "y" : ""));
            expectSaved();
            press(frm::NeuKunde, "pbSave");
            co_await arrive(frm::Kunden);
            EXPECT_EQ(customerRow(name), (QStringList{name, name, name, name}).join('|'));
            EXPECT_EQ(text(frm::Kunden, "lbName"), name);
            press(frm::Kunden, "pbSearch");
            EXPECT_TRUE(listed(frm::Kunden, "lstKunden").contains(name));
            paste(frm::Kunden, "cmbKundenname", name);
            co_await next(frm::Kunden, "pbchange", frm::ÄndKund);
            EXPECT_EQ(text(frm::ÄndKund, "txtPLZ"), name);
            expectChanged();
            press(frm::ÄndKund, "pbSave");
            co_await arrive(frm::Kunden);
            expectUnitQuestion(Yes);
            press(frm::Kunden, "pbexit");
            co_await arrive(frm::NeuGerät);
            EXPECT_EQ(text(frm::NeuGerät, "laKunde"), name);
            fill(frm::NeuGerät, {{"txtTyp", name},
                                 {"txtHersteller", name},
                                 {"txtSerienNr", name},
                                 {"txtIdentNr", name}});
            expectSaved();
            press(frm::NeuGerät, "pbSave");
            co_await arrive(frm::Gerät);
            expectRecipeQuestion(No);
            press(frm::Gerät, "pbok");
            co_await arrive(frm::Desktop);
            EXPECT_EQ(desktop(), (QStringList{name, name, name, "", ""}).join('|'));
            EXPECT_EQ(unitRow(name), QString::number(gKundenID) + '|' +
                                         (QStringList{name, name, name, name}).join('|'));
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
