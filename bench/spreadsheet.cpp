// The history of 10 000 calibrations from the database to the file, against nothing but the library
// that writes the same cells.
#include <QElapsedTimer>

#include <benchmark/benchmark.h>
#include <xlsxwriter.h>

#include "calibration/historienblatt.h"
#include "figures.h"
#include "session/mappe.h"
#include "workshop.h"

namespace {

constexpr int calibrations = 10'000;

double since(const QElapsedTimer &timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

class HistoryPlace : public support::Workshop {
  public:
    HistoryPlace() {
        gDatenbank.openFile(datenbankName);
        gDatenbank.together([] {
            for (int i = 0; i < calibrations; ++i) {
                gDatenbank.execute(
                    "INSERT INTO Hebelarmkalibrierung (Prüfer, Prüfdatum, Erdschwere, Rechts, "
                    "Links, Streu_R, Streu_L, NK_ID) VALUES (?, datetime('2000-01-01', ?), 9.8107, "
                    "?, ?, 0.0062, 0.0041, 1)",
                    {QString("Prüfer %1").arg(i % 40), QString("+%1 hours").arg(i * 20),
                     30 + i % 97 / 1000.0, -30 + i % 89 / 1000.0});
            }
        });
        platform::setFileOpener([](const QString &) { return true; });
    }
    ~HistoryPlace() override { platform::setFileOpener({}); }
    void TestBody() override {}
};

/// The cells of a workbook as the library takes them.
class Bare {
  public:
    explicit Bare(const platform::Workbook &book) {
        for (const platform::Sheet &sheet : book.sheets) {
            mSheets.push_back({sheet.name.toStdString(), {}});
            for (const auto &cells : sheet.rows) {
                auto &row = mSheets.back().second.emplace_back();
                for (const platform::Cell &cell : cells)
                    row.push_back(plain(cell));
            }
        }
    }

    void write(const char *path) const {
        lxw_workbook *book = workbook_new(path);
        lxw_format *date = workbook_add_format(book), *framed = workbook_add_format(book);
        format_set_num_format(date, "dd.mm.yyyy");
        format_set_num_format(framed, "0.000");
        for (lxw_format *format : {date, framed})
            format_set_border(format, LXW_BORDER_THIN);
        for (const auto &[name, rows] : mSheets) {
            lxw_worksheet *page = workbook_add_worksheet(book, name.c_str());
            lxw_row_t row = 0;
            for (const auto &cells : rows) {
                lxw_col_t column = 0;
                for (const Plain &cell : cells) {
                    if (cell.dated) {
                        lxw_datetime when = cell.date;
                        worksheet_write_datetime(page, row, column++, &when, date);
                    } else if (!cell.text.empty()) {
                        worksheet_write_string(page, row, column++, cell.text.c_str(), framed);
                    } else {
                        worksheet_write_number(page, row, column++, cell.number, framed);
                    }
                }
                ++row;
            }
        }
        if (workbook_close(book) != LXW_NO_ERROR)
            throw std::runtime_error("the bare file was not written");
    }

  private:
    struct Plain {
        std::string text;
        double number = 0;
        lxw_datetime date{};
        bool dated = false;
    };

    static Plain plain(const platform::Cell &cell) {
        Plain plain;
        if (const auto *when = std::get_if<QDateTime>(&cell.value)) {
            const QDate day = when->date();
            plain.dated = true;
            plain.date = {day.year(),          day.month(),           day.day(),
                          when->time().hour(), when->time().minute(), 0};
        } else if (const auto *text = std::get_if<QString>(&cell.value)) {
            plain.text = text->toStdString();
        } else if (const auto *number = std::get_if<double>(&cell.value)) {
            plain.number = *number;
        }
        return plain;
    }

    std::vector<std::pair<std::string, std::vector<std::vector<Plain>>>> mSheets;
};

void exporting(benchmark::State &state) {
    HistoryPlace place;
    fnc_HistorieExport();
    const Bare bare(*gMappe);
    gMappe.reset();
    std::vector<double> ours, ratios;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        fnc_HistorieExport();
        fnc_ExcelFreigeben();
        ours.push_back(since(timer));
        state.SetIterationTime(ours.back() / 1000);
        timer.restart();
        bare.write("bare.xlsx");
        ratios.push_back(ours.back() / since(timer));
    }
    bench::figure("Export of 10 000 calibrations, p50", bench::percentile(ours, 50), "ms");
    bench::figure("Export against bare writing, p50", bench::percentile(ratios, 50), "x",
                  bench::Wanted::Below, 1.3);
}
BENCHMARK(exporting)
    ->Name("Spreadsheet/History")
    ->UseManualTime()
    ->Iterations(15)
    ->Unit(benchmark::kMillisecond);

} // namespace
