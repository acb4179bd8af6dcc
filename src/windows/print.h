// A report as a document of A4 pages, painted by one routine on PDF, paper and preview.
#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <memory>

class QFont;
class QPageLayout;
class QPagedPaintDevice;
class QPainter;
class QTextDocument;

namespace platform {

// What all reports are set in and on
constexpr int reportResolution = 600; ///< dots per inch of the layout, whatever it is painted on
QPageLayout reportPage();             ///< A4 with its margins
QFont reportFont();
QString reportStyleSheet();

/// HTML as a layout gives it: what stands in <header> … </header> and <footer> … </footer> comes on
/// each page, with @page@ and @pages@ for the numbers; heads of tables repeat by themselves.
class Report {
  public:
    Report(const QString &html, const QString &title);
    ~Report();
    Report(Report &&) noexcept;

    const QString &title() const { return mTitle; }
    /// Without heads and feet.
    QString text() const;
    int pages() const;

    /// All pages, on a device of any resolution. Raises Fehler PrinterError when it cannot begin.
    void paint(QPagedPaintDevice &device) const;
    /// PDF/A-1b with embedded fonts, its title in the metadata. Raises PrinterError.
    QByteArray pdf() const;

  private:
    /// What comes on each page; without a document, nothing does.
    struct Strip {
        QString html;
        std::unique_ptr<QTextDocument> document;
        double height = 0; ///< with the gap to the body
    };
    static Strip strip(const QString &html);
    void paintPage(QPainter &painter, int page) const;

    QString mTitle;
    Strip mHead, mFoot;
    std::unique_ptr<QTextDocument> mBody;
};

/// Writes beside the target and renames: the file is whole under its name, or is not there. Makes
/// the folders. A file of this name is moved into the folder "ersetzt" beside it, with date and
/// time in its name. Raises PermissionDenied, in words that say what to do.
void saveReport(const QByteArray &pdf, const QString &path);

} // namespace platform
