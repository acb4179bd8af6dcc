// Workbooks for a spreadsheet program: cells, frames and charts over dates, as an .xlsx file.
#pragma once

#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace platform {

struct CellFormat {
    QString number = {}; ///< "0.000", "dd.mm.yyyy"; general when empty
    bool frame = false;  ///< thin borders all around, no fill
    bool bold = false;
    bool centred = false; ///< and broken into lines
    bool operator==(const CellFormat &) const = default;
};

/// Rows and columns of a sheet are counted from 0.
struct Cell {
    /// A date is written with its time of day. A text is never a formula. A number that is not
    /// finite, an invalid date and an empty text leave the cell empty.
    std::variant<std::monostate, QString, double, QDateTime> value = {};
    int format = -1; ///< one of Workbook::formats, or none
};

/// The values of one column over the dates of another.
struct ScatterSeries {
    QString name = {};
    int dates = 0, values = 1;     ///< columns
    int firstRow = 0, lastRow = 0; ///< both included
};

struct ValueAxis {
    double from = 0, to = 0; ///< the dates cross it at `from`
};

/// A scatter chart, so that distances in time hold.
struct DateChart {
    QString name = {}; ///< told by screen readers
    QString title = {};
    QString valueTitle = {};
    int row = 0, column = 0;                           ///< its upper left corner
    int width = 0, height = 0;                         ///< pixels
    std::optional<ValueAxis> axis = {};                ///< by the spreadsheet program without
    std::optional<std::pair<QDate, QDate>> dates = {}; ///< likewise
    std::vector<ScatterSeries> series = {};            ///< at least one
};

/// Takes the cells of a sheet one after the other, each row from its first column on.
class RowWriter {
  public:
    virtual ~RowWriter() = default;
    /// UTF-8 with a zero behind it. An empty one leaves the cell empty. `format` as in a cell.
    virtual void text(std::string_view utf8, int format) = 0;
    virtual void date(const QDate &date, int format) = 0;
    /// One that is not finite leaves the cell empty.
    virtual void number(double number, int format) = 0;
    virtual void endRow() = 0;
};

struct Sheet {
    QString name = {}; ///< unlike those of the others, up to 31 characters
    std::vector<std::vector<Cell>> rows = {};
    std::vector<double> widths = {}; ///< of the columns, in characters
    int headRows = 0;                ///< stay in sight and are printed on each page
    std::vector<DateChart> charts = {};
    /// Writes the rows below `rows`, so that there may be any number of them without a copy in
    /// memory. What it raises keeps the file from being there.
    std::function<void(RowWriter &)> more = {};
    int selectedRow = 0, selectedColumn = 0;

    /// Made when it is not there yet.
    Cell &cell(int row, int column);
};

struct Workbook {
    std::vector<CellFormat> formats = {};
    std::vector<Sheet> sheets = {}; ///< the first one is shown

    /// Null when there is none of this name.
    Sheet *sheet(const QString &name);
};

/// Raises PermissionDenied when the file cannot be written; what was written of it then is gone.
void writeWorkbook(const Workbook &workbook, const QString &path);

/// Of the library that writes the workbooks.
QString spreadsheetLibraryVersion();

} // namespace platform
