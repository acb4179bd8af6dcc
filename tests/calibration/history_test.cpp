// The calibrations of the stand: list, deletion, and their way into a workbook.
#include <QDir>
#include <QFile>
#include <QTableView>
#include <QTest>
#include <QToolTip>

#include "app/screentable.h"
#include "calibration/achse.h"
#include "calibration/historienblatt.h"
#include "calibration/verlauf.h"
#include "platform/runtime.h"
#include "records/hebelarm.h"
#include "session/mappe.h"
#include "way.h"
#include "windows/plot.h"

namespace {

using namespace support;

TEST(ValueAxis, HasAirOnEitherSide) {
    for (const auto &c : cases("10, 10 -> 9.98, 10.02 | 10.1, 10 -> 9.94, 10.16 | "
                               "10.03, 10 -> 9.975, 10.055 | 10.029, 10 -> 9.994, 10.034 | "
                               "30.016, 29.983 -> 29.956, 30.042 | 0, 0 -> -0.02, 0.02")) {
        const Achse achse = achsengrenzen(c.in_(0).toDouble(), c.in_(1).toDouble());
        EXPECT_DOUBLE_EQ(achse.unten, c.out_(0).toDouble()) << c;
        EXPECT_DOUBLE_EQ(achse.oben, c.out_(1).toDouble()) << c;
    }
}

class History : public Way {
  protected:
    History() {
        bindScreens();
        gDatenbank.openFile(datenbankName);
        change("DELETE FROM Hebelarmkalibrierung");
        row(1, "2024-03-01 09:00:00", "Referenz", "30.0", "-30.0");
        row(4, "2026-11-23 14:32:05", "=1+1", "30.016", "-29.9");
        row(5, "2025-06-02 00:00:00", "Jürgen Groß", "29.983", "NULL");
        platform::setFileOpener([this](const QString &path) {
            opened = path;
            return opens;
        });
        views["due"] = [] { return gHebelarmFällig.toString(Qt::ISODate); };
        views["row"] = [] { // that is current
            return QString::number(
                control<QTableView>(frm::History, "dbgHistory")->currentIndex().row());
        };
        views["tips"] = [] { // under the mouse, all over the chart
            const auto *plot = control(frm::History, "anzVerlauf");
            QWidget *chart = plot->childAt(plot->rect().center());
            QStringList told;
            for (int x = 0; x < chart->width(); x += 8) {
                for (int y = 0; y < chart->height(); y += 8) {
                    QTest::mouseMove(chart, {x, y});
                    told += QToolTip::text().replace('\n', '|');
                }
            }
            told.removeDuplicates();
            told.sort();
            return told.join('+');
        };
        views["files"] = [] { return QDir("Export").entryList(QDir::Files).join(' '); };
    }
    ~History() override { platform::setFileOpener({}); }

    static void row(int id, const char *date, const char *inspector, const char *right,
                    const char *left) {
        change(QString("INSERT INTO Hebelarmkalibrierung (ID, Prüfdatum, Prüfer, Erdschwere, "
                       "Rechts, Links, Streu_R, Streu_L, NK_ID) VALUES (%1, '%2', '%3', 9.8107, "
                       "%4, %5, 0.00625, 0.004, %6)")
                   .arg(id)
                   .arg(date, inspector, right, left)
                   .arg(id == 5 ? 99 : 1));
    }

    /// A sheet of the pending workbook, each cell as its format shows it.
    static QString sheet(int which) {
        QStringList rows;
        for (const auto &cells : gMappe->sheets[static_cast<size_t>(which)].rows) {
            QStringList texts;
            for (const platform::Cell &cell : cells) {
                const auto format =
                    cell.format < 0 ? platform::CellFormat{} : gMappe->formats[size_t(cell.format)];
                QString text;
                if (const auto *number = std::get_if<double>(&cell.value))
                    text = platform::Format(*number, format.number);
                else if (const auto *date = std::get_if<QDateTime>(&cell.value))
                    text = date->toString("dd.MM.yyyy HH:mm:ss") + ' ' + format.number;
                else if (const auto *string = std::get_if<QString>(&cell.value))
                    text = *string;
                texts += format.frame ? '[' + text + ']' : text;
            }
            rows += texts.join('|');
        }
        return rows.join('\n');
    }

    bool opens = true;
    QString opened;
};

JOURNEY_P(History, ListsDeletesAndExports) {
    form(frm::History).show();
    co_await go(R"(
        @History ; row == 0 ; title == Kalibrierhistorie | Calibration History
        dbgHistory rows Referenz|01.03.2024 09:00:00|9,8107|30,000|0,0063|-30,000|0,0040+=1+1|23.11.2026 14:32:05|9,8107|30,016|0,0063|-29,900|0,0040+Jürgen Groß|02.06.2025|9,8107|29,983|0,0063||0,0040 | Referenz|01.03.2024 09:00:00|9.8107|30.000|0.0063|-30.000|0.0040+=1+1|23.11.2026 14:32:05|9.8107|30.016|0.0063|-29.900|0.0040+Jürgen Groß|02.06.2025|9.8107|29.983|0.0063||0.0040
        ? referenceStays ; pbDSLöschen
        tips == +02.06.2025|Jürgen Groß|Rechts: -0,017 N m+23.11.2026 14:32:05|=1+1|Links: 0,100 N m+23.11.2026 14:32:05|=1+1|Rechts: 0,016 N m | +02.06.2025|Jürgen Groß|Right: -0.017 N m+23.11.2026 14:32:05|=1+1|Left: 0.100 N m+23.11.2026 14:32:05|=1+1|Right: 0.016 N m
        pbExcel ; can pbExcel ; focus pbExcel ; laDatei ~ ^Gespeichert: Export/Hebelarmkalibrierung_.*xlsx$ | ^Saved: Export/LeverArmCalibration_.*xlsx$)");
    EXPECT_TRUE(QFile::exists(opened));
    opens = false;
    expectKnown("notOpened(…)");
    co_await go(R"(
        pbExcel ; can pbExcel
        mouse dbgHistory Jürgen Groß ; row == 2
        ? deleteRecord? cancel ; pbDSLöschen ; sql SELECT count(*) FROM Historie == 3
        ? deleteRecord? ; pbDSLöschen ; sql SELECT ID FROM Historie == 1+4 ; row == 1 ; due == 2027-05-23
        spoil DELETE Hebelarmkalibrierung ; ? deleteRecord? ; ? failure(5010) ; pbDSLöschen)");
}

JOURNEY_P(History, TellsOfAFolderThatTakesNothing) {
    const QString folder = QDir::current().absoluteFilePath("Export");
    QFile(folder).open(QIODevice::WriteOnly); // in its place
    form(frm::History).show();
    co_await go("@History");
    expectKnown("noExport(" + folder + ')');
    co_await go("pbExcel ; cannot pbExcel ; laDatei == ");
    QFile::remove(folder);
    co_await go("cannot pbExcel ; pbexit");
    form(frm::History).show();
    co_await go(R"(
        @History ; pbExcel ; files ~ ^\S+\.xlsx$
        change DROP VIEW Historie ; ? failure(5010) ; pbExcel ; can pbExcel ; files ~ ^\S+\.xlsx$)");
}

TEST_F(History, FillsBothSheetsCellByCell) {
    for (const bool english : {false, true}) {
        setLanguage(english ? 2 : 1);
        fnc_HistorieExport();
        const QString right = english ? "Right" : "Rechts", left = english ? "Left" : "Links";
        const auto number = [&](QString text) { return english ? text : text.replace('.', ','); };
        const QString dated = " dd.mm.yyyy]|[";
        const auto heads = [](int which) { return sheet(which).section('\n', 0, 1); };
        EXPECT_EQ(heads(0),
                  english ? "Lever Arm Calibration, Right\n[Date]|[Right in N m]|[Spread in N "
                            "m]|[Gravity in m/s²]|[Lever Arm No.]|[Inspector]"
                          : "Hebelarmkalibrierung rechts\n[Datum]|[Rechts in N m]|[Streubreite in "
                            "N m]|[Fallbeschleunigung in m/s²]|[Hebelarm-Nr.]|[Prüfer]");
        EXPECT_EQ(heads(1),
                  english
                      ? "Lever Arm Calibration, Left\n[Date]|[Left in N m]|[Spread in N "
                        "m]|[Gravity in m/s²]|[Lever Arm No.]|[Inspector]|[Magnitude left in N m]"
                      : "Hebelarmkalibrierung links\n[Datum]|[Links in N m]|[Streubreite in "
                        "N m]|[Fallbeschleunigung in m/s²]|[Hebelarm-Nr.]|[Prüfer]|[Betrag "
                        "links in N m]");
        EXPECT_EQ(sheet(0).section('\n', 2),
                  "[01.03.2024 09:00:00" + dated + number("30.000]|[0.0063]|[9.8107]|[") +
                      "HA-1001]|[Referenz]\n" + "[23.11.2026 14:32:05" + dated +
                      number("30.016]|[0.0063]|[9.8107]|[") + "HA-1001]|[=1+1]\n" +
                      "[02.06.2025 00:00:00" + dated + number("29.983]|[0.0063]|[9.8107]|[]|[") +
                      "Jürgen Groß]");
        EXPECT_EQ(sheet(1).section('\n', 2),
                  "[01.03.2024 09:00:00" + dated + number("-30.000]|[0.0040]|[9.8107]|[") +
                      "HA-1001]|[Referenz]|" + number("30.000\n") + "[23.11.2026 14:32:05" + dated +
                      number("-29.900]|[0.0040]|[9.8107]|[") + "HA-1001]|[=1+1]|" +
                      number("29.900\n") + "[02.06.2025 00:00:00" + dated +
                      number("]|[0.0040]|[9.8107]|[]|[") + "Jürgen Groß]");
        const auto chart = [](const QString &name) { return gMappe->sheet(name)->charts[0]; };
        EXPECT_EQ(chart(right).name, "Diagramm 2");
        EXPECT_EQ(chart(left).name, "Diagramm 1");
        EXPECT_DOUBLE_EQ(chart(right).axis->from, 29.956);
        EXPECT_DOUBLE_EQ(chart(left).axis->from, 29.84);
        EXPECT_DOUBLE_EQ(chart(left).axis->to, 30.06);
        EXPECT_EQ(chart(right).series.size(), 1u);
        EXPECT_EQ(chart(right).series[0].lastRow, 4);
        EXPECT_EQ(chart(left).series[1].values, 6); // below the axis the values would not be seen
    }
}

TEST_F(History, WithoutRowsIsAValidWorkbook) {
    change("DELETE FROM Hebelarmkalibrierung");
    fnc_HistorieExport();
    EXPECT_EQ(sheet(0).count('\n'), 1);
    EXPECT_TRUE(fnc_ExcelFreigeben());
    EXPECT_TRUE(QFile::exists(opened));
}

TEST_F(History, DiffersFromItsReferenceInTheOrderOfTime) {
    const Verlauf right = verlauf(hebelarmHistorie(), "Nm_rechts");
    EXPECT_EQ(right.zeile, (std::vector<int>{2, 1}));
    EXPECT_NEAR(right.wert[0], -0.017, 1e-9);
    const Verlauf left = verlauf(hebelarmHistorie(), "Nm_links");
    EXPECT_EQ(left.zeile, (std::vector<int>{1}));
    EXPECT_NEAR(left.wert[0], 0.1, 1e-9);
    change("DELETE FROM Hebelarmkalibrierung");
    EXPECT_TRUE(verlauf(hebelarmHistorie(), "Nm_rechts").wert.empty());
}

} // namespace
