// The two screens over the archive with all 50 000 protocols in it, and with a million; deletion;
// the recall list as a workbook, against nothing but the library that writes the same cells.
#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QTableView>

#include <algorithm>
#include <xlsxwriter.h>

#include "figures.h"
#include "largeplace.h"
#include "recall/filterkette.h"
#include "recall/kundenblatt.h"
#include "session/mappe.h"
#include "windows/spreadsheet.h"

namespace {

using namespace support;
using bench::LargePlace;
using bench::Wanted;

/// A copy of the large database, with the working protocols in the archive, and more of them until
/// there are so many.
QString archive(int protocols) {
    const QString directory = bench::largeDirectory + QString("/archive-%1").arg(protocols);
    const QString path = directory + '/' + datenbankName;
    if (QFile::exists(path))
        return directory;
    QDir().mkpath(directory);
    QFile::copy(bench::largeDirectory + '/' + datenbankName, path + ".new");
    Datenbank store;
    store.openFile(path + ".new");
    store.together([&] {
        store.execute("INSERT INTO Protokoll SELECT * FROM Protokoll_temp "
                      "WHERE ProtokollID > 26000");
        store.execute("DELETE FROM Protokoll_temp WHERE ProtokollID > 26000");
        // brings what is kept with it, so that no trigger looks it up
        store.execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT ?) "
                      "INSERT INTO Protokoll (ProtokollID, Protokollname, GerätID, KundenID, "
                      "ErstellDatum, Kunde, Spezifikation) SELECT 100000 + i, 'Weitere ' || i, "
                      "1001 + i % 60000, 1001 + (1 + i % 60000) % 20000, "
                      "date('2000-01-01', (i % 9000) || ' days'), '', '' FROM n WHERE i <= ?",
                      {std::max(protocols - 50'000, 1), protocols - 50'000});
    });
    store.close();
    QFile::rename(path + ".new", path);
    return directory;
}

/// While one lives, places are made on this archive.
class Moved {
  public:
    explicit Moved(int protocols) : mBefore(bench::largeDirectory) {
        const QString directory = archive(protocols);
        bench::largeDirectory = directory;
    }
    ~Moved() { bench::largeDirectory = mBefore; }

  private:
    QString mBefore;
};

void tell(const std::string &name, const std::vector<double> &took, double target) {
    bench::figure(name + ", p50", bench::percentile(took, 50), "ms", Wanted::Below, target);
    bench::figure(name + ", max", bench::percentile(took, 100), "ms");
}

struct Choice {
    const char *list; ///< or a date
    int entry = 0;
};

/// Opens the screen, chooses step by step, sorts by each column.
void searching(benchmark::State &state, const char *screen, frm opened, int protocols,
               const std::vector<Choice> &choices) {
    const Moved moved(protocols);
    LargePlace place;
    const bool told = protocols == 50'000;
    std::vector<double> opening, narrowing, sorting;
    QElapsedTimer timer;
    const auto journey = [&]() -> Journey {
        co_await place.go("select");
        for (auto _ : state) {
            timer.start();
            form(opened).showModal();
            co_await LargePlace::settled();
            opening.push_back(bench::since(timer));
            for (const Choice &choice : choices) {
                timer.start();
                if (QByteArray(choice.list).startsWith("dtp")) {
                    auto *date = control<QDateEdit>(opened, choice.list);
                    date->setDate(date->date().addDays(choice.entry));
                } else {
                    auto *list = control<QComboBox>(opened, choice.list);
                    list->setCurrentIndex(choice.entry);
                    Q_EMIT list->activated(choice.entry);
                }
                co_await LargePlace::settled();
                narrowing.push_back(bench::since(timer));
                if (!told)
                    std::printf("%s %s %.0f ms\n", screen, choice.list, narrowing.back());
            }
            press(opened, "pbBack");
            co_await LargePlace::settled();
            auto *columns = control<QComboBox>(opened, "cmbSortierung");
            for (int column = 0; column < columns->count(); ++column) {
                columns->setCurrentIndex(column);
                timer.start();
                press(opened, column % 2 ? "pbAbsteigend" : "pbAufsteigend");
                co_await LargePlace::settled();
                sorting.push_back(bench::since(timer));
                if (!told)
                    std::printf("%s sort %d %.0f ms\n", screen, column, sorting.back());
            }
            loaded(opened)->close();
            co_await LargePlace::arrive(frm::Desktop);
        }
    };
    place.travel(state, journey());
    if (opening.empty())
        return;
    const std::string of = std::string(screen) + (told ? "" : ", a million protocols");
    tell("Opening " + of, opening, told ? 200 : 4000);
    tell("Narrowing " + of, narrowing, told ? 150 : 4000);
    tell("Sorting " + of, sorting, told ? 150 : 2000);
}

#define SEARCHING(name, ...)                                                                       \
    BENCHMARK_CAPTURE(searching, name, __VA_ARGS__)                                                \
        ->Name("Recall/" #name)                                                                    \
        ->Unit(benchmark::kMillisecond)
const std::vector<Choice> recallChoices{
    {"dtpVon", 1},   {"cmbHersteller", 3}, {"cmbTyp", 1},    {"cmbOrt", 5},
    {"cmbKunde", 1}, {"cmbHersteller", 2}, {"cmbKunde", 700}};
const std::vector<Choice> deletionChoices{{"dtpVon", 1}, {"cmbTyp", 3},    {"cmbKunde", 200},
                                          {"cmbTyp", 2}, {"dtpBis", -400}, {"cmbIdent", 30}};
SEARCHING(Sort, "frmSort", frm::Sort, 50'000, recallChoices)->Iterations(10);
SEARCHING(Delete, "frmDeleteExtended", frm::DeleteExtended, 50'000, deletionChoices)
    ->Iterations(10);
SEARCHING(SortMillion, "frmSort", frm::Sort, 1'000'000, recallChoices)->Iterations(1);
SEARCHING(DeleteMillion, "frmDeleteExtended", frm::DeleteExtended, 1'000'000, deletionChoices)
    ->Iterations(1);

/// A thousand protocols with their measured values.
void deleting(benchmark::State &state) {
    const Moved moved(50'000);
    const QString path = bench::largeDirectory + '/' + datenbankName;
    QFile::remove(path + ".kept");
    QFile::copy(path, path + ".kept");
    {
        LargePlace place;
        QElapsedTimer timer;
        const auto journey = [&]() -> Journey {
            co_await place.go("select");
            for (auto _ : state) {
                form(frm::DeleteExtended).showModal();
                co_await LargePlace::settled();
                LargePlace::change("DELETE FROM Protokoll WHERE ProtokollID < 1001 OR "
                                   "ProtokollID > 2000");
                press(frm::DeleteExtended, "pbBack");
                place.boxes.allow("…", platform::Yes);
                timer.start();
                press(frm::DeleteExtended, "pbDelete");
                bench::figure("Deleting 1 000 protocols", bench::since(timer), "ms", Wanted::Below,
                              2000);
                loaded(frm::DeleteExtended)->close();
                co_await LargePlace::arrive(frm::Desktop);
            }
        };
        place.travel(state, journey());
    }
    QFile::remove(path);
    QFile::rename(path + ".kept", path);
}
BENCHMARK(deleting)->Name("Recall/Deletion")->Iterations(1)->Unit(benchmark::kMillisecond);

class BareRows {
  public:
    explicit BareRows(const std::vector<Wiedervorlage> &rows) {
        alleTexteLesen(rows, [this](const Wiedervorlage &row, const Wiedervorlagezellen &cells) {
            auto &line = mRows.emplace_back();
            for (const std::string_view cell : cells)
                line.texts.emplace_back(cell);
            const QDate day =
                QDate::fromString(QString::fromStdString(row.kalibriert), Qt::ISODate);
            line.dated = day.isValid();
            line.date = {day.year(), day.month(), day.day(), 0, 0, 0};
            line.due = day.addYears(2).toString("MM/yyyy").toStdString();
        });
    }

    void write(const char *path) const {
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        lxw_workbook *book = workbook_new_opt(path, &options);
        lxw_format *date = workbook_add_format(book), *framed = workbook_add_format(book);
        format_set_num_format(date, "dd.mm.yyyy");
        format_set_border(date, LXW_BORDER_THIN);
        format_set_border(framed, LXW_BORDER_THIN);
        lxw_worksheet *page = workbook_add_worksheet(book, "Kunden");
        lxw_row_t row = 1;
        const auto text = [&](lxw_col_t column, const std::string &value) {
            if (value.empty())
                worksheet_write_blank(page, row, column, framed);
            else
                worksheet_write_string(page, row, column, value.c_str(), framed);
        };
        for (const Line &line : mRows) {
            for (lxw_col_t column = 0; column < 4; ++column)
                text(column, line.texts[column]);
            lxw_datetime day = line.date;
            if (line.dated)
                worksheet_write_datetime(page, row, 4, &day, date);
            else
                worksheet_write_blank(page, row, 4, date);
            text(5, line.due);
            for (lxw_col_t column = 4; column < 7; ++column)
                text(static_cast<lxw_col_t>(column + 2), line.texts[column]);
            ++row;
        }
        if (workbook_close(book) != LXW_NO_ERROR)
            throw std::runtime_error("the bare file was not written");
    }

  private:
    struct Line {
        std::vector<std::string> texts;
        std::string due;
        lxw_datetime date{};
        bool dated = false;
    };
    std::vector<Line> mRows;
};

void exporting(benchmark::State &state) {
    const Moved moved(50'000);
    const LargePlace place;
    if (!gDatenbank.isOpen())
        gDatenbank.openFile(datenbankName);
    platform::setFileOpener([](const QString &) { return true; });
    const Filterkette all(Filterart::Wiedervorlage);
    const auto rows = std::make_shared<const std::vector<Wiedervorlage>>(
        wiedervorlagen(all.fnc_Where(), all.fnc_OrderBy()));
    const BareRows bare(*rows);
    std::vector<double> ours, ratios;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        fnc_KundenExport(rows);
        fnc_ExcelFreigeben();
        ours.push_back(bench::since(timer));
        QFile::remove(gMappenpfad);
        timer.start();
        bare.write("bare.xlsx");
        ratios.push_back(ours.back() / bench::since(timer));
    }
    QFile::remove("bare.xlsx");
    platform::setFileOpener({});
    bench::figure("Recall list as a workbook", bench::percentile(ours, 50), "ms");
    bench::figure("Recall list against bare writing", bench::percentile(ratios, 50), "×",
                  Wanted::Below, 1.3);
}
BENCHMARK(exporting)->Name("Recall/Export")->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
