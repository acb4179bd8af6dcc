// Recipes: looked at, chosen for the session, and deleted.
#include <QTableView>

#include "choosing.h"

namespace {

using namespace support;
using namespace platform;

class Recipes : public Choosing {
  protected:
    static QStringList gridRows() {
        const QAbstractItemModel *model = control<QTableView>(frm::Rezepte, "DBGridRez")->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells += model->index(row, column).data().toString();
            rows += cells.join('|');
        }
        return rows;
    }
    static QString heads() {
        const QAbstractItemModel *model = control<QTableView>(frm::Rezepte, "DBGridRez")->model();
        QStringList heads;
        for (int column = 0; column < model->columnCount(); ++column)
            heads += model->headerData(column, Qt::Horizontal).toString();
        return heads.join('|');
    }
    /// The keys and texts of the recipe that is in force.
    static QString inForce() {
        return QString("%1 %2 %3 %4")
            .arg(gRezeptID)
            .arg(gToleranzID)
            .arg(gRezeptName, gMessverfahren.left(9));
    }
    void expectCount(int count) {
        EXPECT_EQ(text(frm::Rezepte, "laInfo"),
                  (english() ? "Number Of Recipes: " : "Rezeptanzahl: ") + QString::number(count));
    }
    void expectNoSpecification() {
        expectBox({"Fehler 1012 -  3021 Kein aktueller Datensatz.",
                   "ERROR 1012 -  3021 No current record."},
                  Critical, {"!! Achtung Fehler !!", " !! Attention !!"});
    }
    static Journey leave() {
        press(frm::Rezepte, "pbexit");
        co_await arrive(frm::Desktop);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, Recipes, testing::Values(1, 2));

TEST_P(Recipes, AreShownAndChosen) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await open("pbRezept", frm::Rezepte);
        expectCount(5);
        EXPECT_FALSE(canPress(frm::Rezepte, "pbok"));
        for (const char *button : {"pbNeuRezept", "pbÄndRez", "pbDelete"})
            EXPECT_FALSE(control(frm::Rezepte, button)->isVisible()) << button;
        EXPECT_EQ(heads(), english() ? "Test step|Speed (1/min)|Power (W)|Type"
                                     : "Prüfschritt|Drehzahl (1/min)|Leistung (W)|Messart");
        type(frm::Rezepte, "cmbRezeptname", "bis");
        EXPECT_EQ(listed(frm::Rezepte, "lstRezepte"),
                  (QStringList{"Medizin 25 bis 400 W", "Reha bis 150 W"}));
        EXPECT_EQ(gridRows(), QStringList());
        enter(frm::Rezepte, "cmbRezeptname"); // the first of two, to be confirmed
        EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), "Medizin 25 bis 400 W");
        EXPECT_EQ(text(frm::Rezepte, "lbRezTol"), "medizinische Geräte");
        const QString power = english() ? "Power Measurement" : "Leistungsmessung  ";
        const QString speed = english() ? "Speed Measurement" : "Drehzahlmessung  ";
        EXPECT_EQ(gridRows().size(), 12);
        EXPECT_EQ(gridRows().mid(8), (QStringList{"9|60|350|" + power, "10|70|400|" + power,
                                                  "11|50|50|" + speed, "12|90|100|" + speed}));
        for (const char *nothing : {"", "x", "(*"}) {
            paste(frm::Rezepte, "cmbRezeptname", nothing);
            EXPECT_EQ(gridRows(), QStringList());
            EXPECT_EQ(text(frm::Rezepte, "lbRezTol"), "");
            EXPECT_EQ(canPress(frm::Rezepte, "pbok"), *nothing != 0);
            if (*nothing) {
                expectTold({"Es wurden keine Daten gefunden! ", "No data found! "},
                           {"Rezepte", "Recipes"}, Information);
                press(frm::Rezepte, "pbok");
            }
        }
        expectCount(5);
        type(frm::Rezepte, "cmbRezeptname", "studio dauerbetrieb");
        press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "|||Studio Dauerbetrieb|stationäre Trainingsgeräte");
        EXPECT_EQ(inForce(), "5 2 stationäre Trainingsgeräte Vergleich");
        EXPECT_FALSE(canPress(frm::Desktop, "pbMessen"));

        // Looking at another one does not choose it.
        for (const bool escape : {false, true}) {
            co_await open("pbRezept", frm::Rezepte);
            type(frm::Rezepte, "cmbRezeptname", "Kurzprüfung");
            EXPECT_EQ(gRezeptID, 1);
            if (escape)
                QTest::keyClick(loaded(frm::Rezepte), Qt::Key_Escape);
            else
                loaded(frm::Rezepte)->close();
            co_await arrive(frm::Desktop);
            EXPECT_EQ(inForce(), "5 2 stationäre Trainingsgeräte Vergleich");
            EXPECT_EQ(desktop(), "|||Studio Dauerbetrieb|stationäre Trainingsgeräte");
        }
    };
    run(journey());
}

TEST_P(Recipes, WithoutSpecificationAreRefused) {
    change("INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (77, 'Verwaist', 99)");
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await recipe("Kurzprüfung");
        const QString before = inForce();
        co_await open("pbRezept", frm::Rezepte);
        expectNoSpecification();
        type(frm::Rezepte, "cmbRezeptname", "Verwaist");
        EXPECT_TRUE(boxes.allCame());
        EXPECT_EQ(gridRows(), QStringList());
        expectNoSpecification();
        press(frm::Rezepte, "pbok");
        EXPECT_TRUE(boxes.allCame());
        EXPECT_TRUE(inFront(frm::Rezepte));
        co_await leave();
        EXPECT_EQ(inForce(), before);
        EXPECT_EQ(desktop(), "|||Kurzprüfung|medizinische Geräte");

        // The specification of the chosen one goes while another is looked at.
        change("UPDATE Rezeptnamen SET ToleranzID = 99 WHERE RezeptID = 1");
        co_await open("pbRezept", frm::Rezepte);
        type(frm::Rezepte, "cmbRezeptname", "Training Basis");
        co_await leave();
        EXPECT_EQ(desktop(), "||||") << "it could not be measured with";
    };
    run(journey());
}

TEST_P(Recipes, TheOnlyOneWaitsForOk) {
    change("DELETE FROM Rezeptnamen WHERE RezeptID <> 4");
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await open("pbRezept", frm::Rezepte);
        EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), "Training Basis");
        EXPECT_EQ(gridRows().size(), 6);
        EXPECT_TRUE(focused(frm::Rezepte, "pbok"));
        key(frm::Rezepte, "pbok", Qt::Key_Return);
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "|||Training Basis|stationäre Trainingsgeräte");

        // Told once when it cannot be used.
        change("UPDATE Rezeptnamen SET ToleranzID = 99");
        expectNoSpecification();
        co_await open("pbRezept", frm::Rezepte);
        EXPECT_TRUE(boxes.allCame());
        co_await leave();
        change("DELETE FROM Rezeptnamen");
        co_await open("pbRezept", frm::Rezepte);
        expectCount(0);
        EXPECT_FALSE(canPress(frm::Rezepte, "pbok"));
        co_await leave();
    };
    run(journey());
}

TEST_P(Recipes, AreDeletedWithTheirSteps) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        gRezeptAufruf = false;
        screen(frm::Rezepte).showModal();
        co_await arrive(frm::Rezepte);
        EXPECT_TRUE(canPress(frm::Rezepte, "pbNeuRezept"));
        for (const char *button : {"pbÄndRez", "pbDelete", "pbok"})
            EXPECT_FALSE(canPress(frm::Rezepte, button)) << button;
        for (const int answer : {No, Yes}) {
            type(frm::Rezepte, "cmbRezeptname", "Reha bis 150 W");
            expectBox({"Wollen sie die Tabelle Reha bis 150 W wirklich löschen?",
                       "Do you really want to delete the table 'Reha bis 150 W'?"},
                      YesNo + Question, {"Achtung!", "ATTENTION"}, answer);
            press(frm::Rezepte, "pbDelete");
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(text(frm::Rezepte, "cmbRezeptname"), "");
            EXPECT_EQ(text(frm::Rezepte, "lbRezTol"), "");
            expectCount(answer == Yes ? 4 : 5);
            EXPECT_EQ(column("SELECT count(*) FROM Rezepte WHERE RezeptID = 3"),
                      QStringList{answer == Yes ? "0" : "7"});
        }
        EXPECT_EQ(column("SELECT count(*) FROM Rezepte WHERE RezeptID <> 3"), QStringList{"30"});
        type(frm::Rezepte, "cmbRezeptname", "bis");
        EXPECT_TRUE(canPress(frm::Rezepte, "pbÄndRez"));
        press(frm::Rezepte, "pbok"); // just closes; nothing is chosen here
        co_await arrive(frm::Desktop);
        EXPECT_EQ(desktop(), "||||");
    };
    run(journey());
}

} // namespace
