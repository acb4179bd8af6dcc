#include "platform/spreadsheet.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <memory>
#include <xlsxwriter.h>

#include "platform/export.h"
#include "platform/fehler.h"

namespace platform {

namespace {

constexpr int longestText = 32'767; // that a cell takes
constexpr int mostCached =
    1000; // values that a chart has a copy of, for viewers that do not reckon
constexpr uint8_t markerSize = 6;
constexpr qint64 mostOfACell = 200; // bytes, as a rule
const char dateFormat[] = "dd.mm.yyyy";

lxw_row_t lxwRow(int row) {
    return static_cast<lxw_row_t>(row);
}
lxw_col_t lxwColumn(int column) {
    return static_cast<lxw_col_t>(column);
}

lxw_datetime lxwDate(const QDate &date, const QTime &time = {0, 0}) {
    return {date.year(), date.month(),  date.day(),
            time.hour(), time.minute(), time.second() + time.msec() / 1000.0};
}

/// The number behind a date: days since 1900.
double serial(const QDate &date) {
    lxw_datetime lxw = lxwDate(date);
    return lxw_datetime_to_excel_datetime(&lxw);
}

QByteArray shown(const QString &text) {
    return text.size() > longestText ? text.left(longestText).toUtf8() : text.toUtf8();
}

class Rows : public RowWriter {
  public:
    Rows(lxw_worksheet *page, const std::vector<lxw_format *> &formats, size_t row)
        : mPage(page), mFormats(formats), mRow(static_cast<lxw_row_t>(row)) {}

    void text(std::string_view utf8, int format) override {
        if (utf8.empty())
            worksheet_write_blank(mPage, mRow, mColumn++, formatOf(format));
        else if (utf8.size() <= size_t{longestText})
            worksheet_write_string(mPage, mRow, mColumn++, utf8.data(), formatOf(format));
        else
            worksheet_write_string(
                mPage, mRow, mColumn++,
                shown(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())))
                    .constData(),
                formatOf(format));
    }
    void date(const QDate &date, int format) override {
        lxw_datetime lxw = lxwDate(date);
        worksheet_write_datetime(mPage, mRow, mColumn++, &lxw, formatOf(format));
    }
    void number(double number, int format) override {
        if (std::isfinite(number))
            worksheet_write_number(mPage, mRow, mColumn, number, formatOf(format));
        ++mColumn;
    }
    void endRow() override {
        ++mRow;
        mColumn = 0;
    }

  private:
    lxw_format *formatOf(int format) const {
        return format < 0 ? nullptr : mFormats[static_cast<size_t>(format)];
    }

    lxw_worksheet *mPage;
    const std::vector<lxw_format *> &mFormats;
    lxw_row_t mRow;
    lxw_col_t mColumn = 0;
};

[[noreturn]] void refuseFullTemporary() {
    throw Fehler(fehlernummer::PermissionDenied,
                 {"In " P_tmpdir
                  " ist zu wenig Platz, um die Mappe zu schreiben. Bitte schaffen Sie "
                  "dort Platz.",
                  "There is too little space in " P_tmpdir " to write the workbook. Please make "
                  "room there."});
}

/// The library puts sheets into temporary files, and a full disk that cuts them off goes unnoticed.
/// So room for them is made sure of before they are put together.
void ensureRoom(qint64 bytes) {
    const std::unique_ptr<FILE, int (*)(FILE *)> room(std::tmpfile(), std::fclose);
    if (!room || posix_fallocate(fileno(room.get()), 0, bytes) != 0)
        refuseFullTemporary();
}

class Writer {
  public:
    Writer(const Workbook &workbook, lxw_workbook *book) : mBook(book) {
        for (const CellFormat &format : workbook.formats)
            mFormats.push_back(made(format));
        for (const Sheet &sheet : workbook.sheets)
            write(sheet);
        ensureRoom(mBytes);
    }

  private:
    lxw_format *made(const CellFormat &format) {
        lxw_format *made = workbook_add_format(mBook);
        if (!format.number.isEmpty())
            format_set_num_format(made, format.number.toUtf8().constData());
        if (format.frame)
            format_set_border(made, LXW_BORDER_THIN);
        if (format.bold)
            format_set_bold(made);
        if (format.centred) {
            format_set_align(made, LXW_ALIGN_CENTER);
            format_set_align(made, LXW_ALIGN_VERTICAL_CENTER);
            format_set_text_wrap(made);
        }
        return made;
    }

    void write(const Sheet &sheet) {
        const QByteArray name = sheet.name.toUtf8();
        lxw_worksheet *page = workbook_add_worksheet(mBook, name.constData());
        if (!page)
            refuseFullTemporary();
        worksheet_set_landscape(page);
        worksheet_set_paper(page, 9); // A4
        worksheet_fit_to_pages(page, 1, 0);
        for (size_t column = 0; column < sheet.widths.size(); ++column)
            worksheet_set_column(page, static_cast<lxw_col_t>(column),
                                 static_cast<lxw_col_t>(column), sheet.widths[column], nullptr);
        if (sheet.headRows > 0) {
            worksheet_freeze_panes(page, lxwRow(sheet.headRows), 0);
            worksheet_repeat_rows(page, 0, lxwRow(sheet.headRows - 1));
        }
        lxw_row_t row = 0;
        for (const std::vector<Cell> &cells : sheet.rows) {
            lxw_col_t column = 0;
            for (const Cell &cell : cells)
                write(page, row, column++, cell);
            mBytes += static_cast<qint64>(cells.size()) * mostOfACell;
            ++row;
        }
        if (sheet.more) {
            Rows rows(page, mFormats, sheet.rows.size());
            sheet.more(rows);
        }
        if (FILE *rows = page->optimize_tmpfile) {
            lxw_worksheet_write_single_row(page); // the last one
            if (std::fflush(rows) != 0 || std::ferror(rows) != 0)
                refuseFullTemporary();
            mBytes += std::ftell(rows);
        }
        for (const DateChart &chart : sheet.charts)
            write(page, name, chart);
        worksheet_set_selection(page, lxwRow(sheet.selectedRow), lxwColumn(sheet.selectedColumn),
                                lxwRow(sheet.selectedRow), lxwColumn(sheet.selectedColumn));
    }

    void write(lxw_worksheet *page, lxw_row_t row, lxw_col_t column, const Cell &cell) {
        lxw_format *format = cell.format < 0 ? nullptr : mFormats[static_cast<size_t>(cell.format)];
        if (const auto *number = std::get_if<double>(&cell.value);
            number && std::isfinite(*number)) {
            worksheet_write_number(page, row, column, *number, format);
        } else if (const auto *date = std::get_if<QDateTime>(&cell.value);
                   date && date->isValid()) {
            lxw_datetime lxw = lxwDate(date->date(), date->time());
            worksheet_write_datetime(page, row, column, &lxw, format);
        } else if (const auto *text = std::get_if<QString>(&cell.value); text && !text->isEmpty()) {
            worksheet_write_string(page, row, column, shown(*text).constData(), format);
        } else if (format) {
            worksheet_write_blank(page, row, column, format);
        }
    }

    void write(lxw_worksheet *page, const QByteArray &sheet, const DateChart &model) {
        lxw_chart *chart = workbook_add_chart(mBook, LXW_CHART_SCATTER_STRAIGHT_WITH_MARKERS);
        chart_title_set_name(chart, model.title.toUtf8().constData());
        chart_legend_set_position(chart, LXW_CHART_LEGEND_NONE);
        for (const ScatterSeries &one : model.series) {
            lxw_chart_series *series = chart_add_series(chart, nullptr, nullptr);
            chart_series_set_name(series, one.name.toUtf8().constData());
            chart_series_set_categories(series, sheet.constData(), lxwRow(one.firstRow),
                                        lxwColumn(one.dates), lxwRow(one.lastRow),
                                        lxwColumn(one.dates));
            chart_series_set_values(series, sheet.constData(), lxwRow(one.firstRow),
                                    lxwColumn(one.values), lxwRow(one.lastRow),
                                    lxwColumn(one.values));
            if (one.lastRow - one.firstRow >= mostCached)
                series->categories->ignore_cache = series->values->ignore_cache = LXW_TRUE;
            chart_series_set_marker_type(series, LXW_CHART_MARKER_CIRCLE);
            chart_series_set_marker_size(series, markerSize);
        }
        chart_axis_set_num_format(chart->x_axis, dateFormat);
        if (model.dates) {
            chart_axis_set_min(chart->x_axis, serial(model.dates->first));
            chart_axis_set_max(chart->x_axis, serial(model.dates->second));
        }
        chart_axis_set_name(chart->y_axis, model.valueTitle.toUtf8().constData());
        if (model.axis) {
            chart_axis_set_min(chart->y_axis, model.axis->from);
            chart_axis_set_max(chart->y_axis, model.axis->to);
            chart_axis_set_crossing(chart->y_axis, model.axis->from);
        }
        QByteArray name = model.name.toUtf8();
        lxw_chart_options options{};
        options.x_scale = model.width / 480.0; // of the library's own size
        options.y_scale = model.height / 288.0;
        options.description = name.data();
        worksheet_insert_chart_opt(page, lxwRow(model.row), lxwColumn(model.column), chart,
                                   &options);
    }

    lxw_workbook *mBook;
    std::vector<lxw_format *> mFormats;
    qint64 mBytes = 1 << 20; // that the temporary files take: styles, charts, and the sheets
};

} // namespace

Cell &Sheet::cell(int row, int column) {
    const auto y = static_cast<size_t>(row), x = static_cast<size_t>(column);
    if (rows.size() <= y)
        rows.resize(y + 1);
    if (rows[y].size() <= x)
        rows[y].resize(x + 1);
    return rows[y][x];
}

Sheet *Workbook::sheet(const QString &name) {
    for (Sheet &sheet : sheets) {
        if (sheet.name == name)
            return &sheet;
    }
    return nullptr;
}

void writeWorkbook(const Workbook &workbook, const QString &path) {
    // Rows that come one after the other are not kept, either.
    const bool inTurn = std::any_of(workbook.sheets.begin(), workbook.sheets.end(),
                                    [](const Sheet &sheet) { return bool(sheet.more); });
    lxw_workbook_options options{};
    options.constant_memory = inTurn ? LXW_TRUE : LXW_FALSE;
    lxw_workbook *book = workbook_new_opt(QFile::encodeName(path).constData(), &options);
    if (!book)
        refuseExport(path);
    std::exception_ptr raised;
    try {
        const Writer writer(workbook, book);
    } catch (const Fehler &) {
        raised = std::current_exception(); // the library still has to let go of the file
    }
    const bool written = workbook_close(book) == LXW_NO_ERROR;
    if (written && !raised)
        return;
    QFile::remove(path);
    if (raised)
        std::rethrow_exception(raised);
    refuseExport(path);
}

QString spreadsheetLibraryVersion() {
    return lxw_version();
}

} // namespace platform
