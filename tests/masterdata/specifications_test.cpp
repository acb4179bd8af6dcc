// The screen of the specifications: its looks, its states, and what it writes.
#include "specifying.h"

namespace {

using namespace support;
using namespace platform;

INSTANTIATE_TEST_SUITE_P(Languages, Specifications, testing::Values(1, 2));

TEST_P(Specifications, OpenWithNothingPicked) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await openSpecifications();
        EXPECT_EQ(look(), "N--- []  @cmbBezTol");
        EXPECT_FALSE(control(screenName, "pbEdit")->isVisible());
        EXPECT_EQ(offered(screenName, "cmbBezTol").last(),
                  english() ? "Gamma   (8% ; 8W ; 1 rpm)" : "Gamma   (8% ; 8W ; 1 1/min)");
        const QSize before = loaded(screenName)->size();
        press(screenName, "pbNew");
        EXPECT_EQ(loaded(screenName)->size(), before);
        EXPECT_EQ(offered(screenName, "cmbGKlasse"),
                  english() ? (QStringList{"Medical Devices", "Stationary Devices"})
                            : (QStringList{"Medizinische Geräte", "Stationäre Trainingsgeräte"}));
        QStringList texts = visibleTexts(screenName);
        texts.sort();
        EXPECT_EQ(texts.join('|').toStdString(),
                  english()
                      ? "&Cancel|&Delete|&New|&OK|&Save|Description|MPE|Measuring Method|Name|"
                        "Power Measurement|Speed Measurement|Spezifikation KE|Type Of Device|"
                        "absolute in W:|absolute in rpm:|relative in %:"
                      : "&Abbrechen|&Löschen|&Neu|&OK|&Speichern|Bezeichnung|Drehzahlmessung|"
                        "Gerätetyp|Leistungsmessung|Messverfahren|Name|Spezifikation KE|"
                        "absolut in 1/min:|absolut in W:|relativ in %:|"
                        "zulässige Grenzabweichung");
        EXPECT_EQ(text(screenName, "pbEdit"), english() ? "&Edit" : "&Bearbeiten");
        co_await leave();
    };
    run(journey());
}

// The way from the opening, how the screen looks then, and what is stored when not the same.
TEST_P(Specifications, FollowTheirStates) {
    struct Case {
        const char *way, *look, *rows = untouched;
    };
    const char *const inserted = "Alpha 5 3 2;Beta 10 5 5;Gamma 8 8 1;Neu 4 2 1";
    const char *const noBeta = "Alpha 5 3 2;Gamma 8 8 1";
    const char *const changed = "Alpha 5 3 2;Anders 10 5 5;Gamma 8 8 1";
    const Case cases[] = {
        {"ok", "closed"},
        {"exit", "closed"},
        {"New", "---- [ ]  @txtTolBez"},
        {"pick Beta", "N-D- [Beta 10] Beta @txtTolBez"},
        // edit, not changed: the next one is shown
        {"pick Beta;pick Alpha", "N-D- [Alpha 5] Alpha @cmbBezTol"},
        {"pick Beta;tab;pick Beta", "N-D- [Beta 10] Beta @cmbBezTol"},
        {"pick Beta;pick Alpha;txtTolBez=Alpha;tab", "N-D- [Alpha 5] Alpha @txtTolProz"},
        // edit, changed: both answers drop the input
        {"pick Beta;txtTolBez=X;tab", "N-DS [X 10] Beta @txtTolProz"},
        {"pick Beta;txtTolBez=X;changed? yes;pick Alpha", "N-DS [Alpha 5] Alpha @txtTolBez"},
        {"pick Beta;txtTolBez=X;changed? no;pick Alpha", "N-DS [Alpha 5] Alpha @cmbBezTol"},
        {"pick Beta;txtTolProz=;tab;changed? no;pick Alpha;pick Beta",
         "N-DS [Beta 10] Beta @cmbBezTol"},
        // the class alone is no change, and neither is the method
        {"pick Beta;cmbGKlasse=m;txtMessverfahren=X;pick Alpha", "N-DS [Alpha 5] Alpha @pbSave"},
        // leaving the watts compares them with the percentage
        {"pick Beta;txtTolWatt=5;changed? no;pick Gamma", "N-DS [Gamma 8] Gamma @cmbBezTol"},
        {"pick Gamma;txtTolWatt=8;pick Beta", "N-D- [Beta 10] Beta @cmbBezTol"},
        {"pick Beta;New", "---- [ ]  @txtTolBez"},
        // new: a pick asks only when there is something to save
        {"New;pick Beta", "N-D- [Beta 10] Beta @txtTolBez"},
        {"New;fill", "---S [Neu 4]  @pbSave"},
        {"New;fill;new? yes;pick Beta", "N-DS [Beta 10] Beta @txtTolBez"},
        {"New;fill;new? no;pick Beta", "N-DS [Beta 10] Beta @txtTolBez"},
        {"New;fill;new? cancel;pick Beta", "---S [Neu 4]  @txtTolBez"},
        {"New;fill;txtTolBez=;tab", "---- [ 4]  @txtTolProz"},
        {"New;fill;txtMessverfahren=;incomplete;Save;incomplete;Save", "---S [Neu 4]  @pbSave"},
        {"New;fill;inserted;Save", "N--S []  @cmbBezTol", inserted},
        {"New;fill;inserted;Save;Save;ok", "closed", inserted},
        {"New;fill;inserted;Save;pick Neu", "N-DS [Neu 4] Neu @txtTolBez", inserted},
        {"New;fill;leaveNew? yes;inserted;ok", "closed", inserted},
        {"New;fill;leaveNew? no;ok", "closed"},
        {"New;leaveNew? yes;incomplete;ok", "closed"},
        {"New;fill;exit", "closed"},
        // saving and leaving in edit mode
        {"pick Beta;txtTolBez=Anders;tab;updated;Save", "NED- [] Anders @cmbBezTol", changed},
        {"pick Beta;txtTolBez=Anders;tab;updated;Save;delete? yes;Delete", "N--- []  @cmbBezTol",
         noBeta},
        {"pick Beta;txtTolBez=Anders;tab;updated;Save;pick Alpha",
         "N-D- [Alpha 5] Alpha @txtTolBez", changed},
        {"pick Beta;leaveEdit? no;ok", "closed"},
        {"pick Beta;txtTolBez=Anders;leaveEdit? yes;updated;ok", "closed", changed},
        {"pick Beta;txtTolBez=Anders;exit", "closed"},
        // deletion
        {"pick Beta;delete? no;Delete", "N-D- [Beta 10] Beta @txtTolBez"},
        {"pick Beta;txtTolBez=X;delete? yes;Delete", "N--- []  @cmbBezTol", noBeta},
    };
    const auto journey = [&]() -> Journey {
        co_await logIn();
        for (const Case &c : cases) {
            SCOPED_TRACE(c.way);
            co_await openSpecifications();
            for (const QString &what : QString(c.way).split(';'))
                step(what);
            EXPECT_EQ(look().toStdString(), c.look);
            EXPECT_TRUE(boxes.allCame());
            EXPECT_EQ(rows().toStdString(), c.rows);
            if (loaded(screenName))
                co_await leave();
            co_await arrive(frm::Desktop);
            change("DELETE FROM Toleranzen WHERE ID > 13");
            change("INSERT OR REPLACE INTO Toleranzen VALUES "
                   "(12, 'Beta', 10, 5, 5, 'Stationary Devices', 'Verfahren B')");
        }
    };
    run(journey());
}

TEST_P(Specifications, AreEnteredByKeyboardAlone) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await openSpecifications();
        press(screenName, "pbNew");
        const char *values[] = {"D'Öl", "4", "2", "1000", "s", "Vergleich"};
        for (size_t i = 0; i < std::size(fields); ++i) {
            EXPECT_TRUE(focused(screenName, fields[i])) << fields[i];
            sendKeys(*control(screenName, fields[i]), values[i]);
            EXPECT_FALSE(enabled(screenName, "pbSave"));
            enter(screenName, fields[i]);
        }
        EXPECT_TRUE(focused(screenName, "pbSave"));
        expect("inserted");
        key(screenName, "pbSave", Qt::Key_Return);
        const QString klasse = english() ? "Stationary Devices" : "Stationäre Trainingsgeräte";
        EXPECT_EQ(column("SELECT GKlasse || Messverfahren FROM Toleranzen WHERE Bezeichnung = ?",
                         {"D'Öl"}),
                  QStringList{klasse + "Vergleich"});
        EXPECT_TRUE(rows().endsWith(";D'Öl 4 2 1000"));

        // Enter in the last field is enough to save, whatever the others hold.
        press(screenName, "pbNew");
        type(screenName, "txtTolProz", "5");
        leaveField();
        EXPECT_FALSE(canPress(screenName, "pbSave"));
        control(screenName, "txtMessverfahren")->setFocus();
        enter(screenName, "txtMessverfahren");
        EXPECT_TRUE(focused(screenName, "pbSave"));
        expect("incomplete");
        press(screenName, "pbSave");
        control(screenName, "cmbBezTol")->setFocus();
        expect("new?", No);
        key(screenName, "cmbBezTol", Qt::Key_Down);
        EXPECT_EQ(look(), "N-DS [Alpha 5] Alpha @txtTolBez");
        co_await leave();
    };
    run(journey());
}

TEST_P(Specifications, CompleteTheirClass) {
    const auto journey = [this]() -> Journey {
        co_await logIn();
        co_await openSpecifications();
        pickRow(2);
        EXPECT_EQ(text(screenName, "cmbGKlasse"), "frei");
        const QString medical = english() ? "Medical Devices" : "Medizinische Geräte";
        const std::pair<const char *, QString> typed[] = {
            {"M", medical}, {"Hm", medical}, {"Rad", "Rad"}, {"mx", "x"}};
        for (const auto &[keys, shown] : typed) {
            control<QComboBox>(screenName, "cmbGKlasse")->clearEditText();
            type(screenName, "cmbGKlasse", keys);
            EXPECT_EQ(text(screenName, "cmbGKlasse"), shown) << keys;
        }
        type(screenName, "cmbGKlasse", "m");
        key(screenName, "cmbGKlasse", Qt::Key_Backspace);
        EXPECT_EQ(text(screenName, "cmbGKlasse"), "");

        // The class alone is written, though no prompt sees it.
        sendKeys(*control(screenName, "cmbGKlasse"), "m");
        enter(screenName, "cmbGKlasse");
        leaveField();
        EXPECT_TRUE(focused(screenName, "pbSave"));
        expect("updated");
        press(screenName, "pbSave");
        EXPECT_EQ(column("SELECT GKlasse FROM Toleranzen ORDER BY ID").last(), medical);
        co_await leave();
    };
    run(journey());
}

} // namespace
