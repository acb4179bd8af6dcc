#include "windows/print.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>

#include <cmath>

#include "platform/clock.h"
#include "platform/fehler.h"

namespace platform {

namespace {

constexpr int resolution = reportResolution; // lower ones spoil the spacing of letters
constexpr double dots(double millimetres) {
    return millimetres / 25.4 * resolution;
}
constexpr double margin = 15;                                                             // mm
constexpr double pageWidth = dots(210 - 2 * margin), pageHeight = dots(297 - 2 * margin); // of A4
constexpr double gap = dots(3); // between head, body and foot
constexpr double rounding = 2;  // dots by which the columns of a table may be wider than the page

// Classes: `lines` a grid of one-line rows (`top` its first, `first` the first cell of each; the
// borders are of the cells and not collapsed, for these are not drawn where a page ends), `pair`
// names and values under a head, `fill` and `sign` to write on (`write`), `head` and `foot` of a
// page; `big`, `small`, `legend`.
constexpr auto styleSheet =
    ".h1 { font-size: 18pt; font-weight: bold; }"
    "p { margin: 0 0 4px 0; }"
    "td, th { padding: 2px 4px; }"
    "th { font-weight: bold; text-align: left; }"
    ".big { font-size: 12pt; }"
    ".small { font-size: 7.5pt; }"
    ".legend { font-size: 7.5pt; margin: 4px 0 0 0; }"
    ".title { font-size: 12pt; }"
    "td.whole { padding: 4px 0 0 0; }"
    ".lines { margin: 8px 0 0 0; }"
    ".lines td, .lines th { border-right: 1px solid #606060; border-bottom: 1px solid #606060; "
    "font-size: 7.5pt; padding: 1px 2px; white-space: nowrap; }"
    ".sheet td, .sheet th { font-size: 9pt; padding: 3px 4px; }"
    ".lines .first { border-left: 1px solid #606060; }"
    ".lines tr.top th { border-top: 1px solid #606060; }"
    ".lines th { text-align: center; background-color: #e8e8e8; }"
    ".pair { margin: 6px 0 0 0; }"
    ".pair td { padding: 1px 4px; }"
    ".pair th { border-bottom: 1px solid #606060; }"
    ".cover .pair { margin: 18px 0 0 0; }"
    ".cover .pair td { padding: 3px 4px; }"
    ".pair td.label { color: #404040; }"
    ".fill { margin: 8px 0 0 0; }"
    ".fill td.write, .sign td.write { border-bottom: 1px solid #000000; }"
    ".sign { margin: 8px 0 0 0; }"
    ".end { margin: 10px 0 0 0; }"
    ".head td { border-bottom: 2px solid #000000; padding: 0 0 4px 0; }"
    ".foot td { border-top: 1px solid #606060; padding: 4px 0 0 0; font-size: 7.5pt; }";

QPaintDevice *measure() {
    static QImage sheet = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        image.setDotsPerMeterX(qRound(resolution / 0.0254));
        image.setDotsPerMeterY(qRound(resolution / 0.0254));
        return image;
    }();
    return &sheet;
}

/// Laid out once, at the end: what would change the layout stands before, or in one block of edits.
/// This begins with a change of the empty text, for what replaces something is laid out in one go;
/// what fills an empty document is so in parts, and a long table once for each that it touches.
/// `foot`: margin below all.
std::unique_ptr<QTextDocument> document(const QString &html, double height = -1, double foot = 0) {
    auto result = std::make_unique<QTextDocument>();
    result->setUndoRedoEnabled(false);
    result->documentLayout()->setPaintDevice(measure());
    result->setDocumentMargin(0);
    result->setDefaultFont(reportFont());
    result->setDefaultStyleSheet(styleSheet);
    result->setPageSize({pageWidth, height});
    QTextCursor block(result.get());
    block.beginEditBlock();
    block.setBlockFormat({});
    result->setHtml(html);
    if (foot > 0) {
        QTextFrameFormat whole = result->rootFrame()->frameFormat();
        whole.setBottomMargin(foot);
        result->rootFrame()->setFrameFormat(whole);
    }
    block.endEditBlock();
    return result;
}

/// A table of up to half a page is not parted: it begins on the next page.
void keepWhole(QTextDocument &body, double height) {
    for (QTextFrame *table : body.rootFrame()->childFrames()) {
        const QRectF place = body.documentLayout()->frameBoundingRect(table);
        if (place.height() > height / 2 ||
            std::floor(place.top() / height) == std::floor((place.bottom() - 1) / height))
            continue;
        QTextFrameFormat format = table->frameFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        table->setFrameFormat(format);
    }
}

/// Takes what stands between the tags out of the text.
QString takeOut(QString &html, const QString &tag) {
    const QRegularExpression part('<' + tag + ">(.*?)</" + tag + '>',
                                  QRegularExpression::DotMatchesEverythingOption);
    const auto found = part.match(html);
    html.remove(found.capturedStart(), found.capturedLength());
    return found.captured(1);
}

[[noreturn]] void cannotPrint() {
    throw Fehler(fehlernummer::PrinterError,
                 {"Der Drucker nimmt nichts an. Bitte prüfen Sie, ob er eingeschaltet ist.",
                  "The printer takes nothing. Please check whether it is switched on."});
}

} // namespace

QPageLayout reportPage() {
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter};
}

QFont reportFont() {
    QFont font("DejaVu Sans");
    font.setPointSizeF(9);
    // Ligatures would stand in the text of a PDF as letters that nobody searches for.
    font.setLetterSpacing(QFont::PercentageSpacing, 100.01);
    return font;
}

QString reportStyleSheet() {
    return styleSheet;
}

Report::Report(const QString &html, const QString &title) : mTitle(title) {
    QString body = html;
    mHead = strip(takeOut(body, "header"));
    mFoot = strip(takeOut(body, "footer"));
    double height = pageHeight - mHead.height - mFoot.height;
    // The line that closes a table at the end of a page is not drawn on its very edge.
    mBody = document(body, height, dots(0.5));
    // Nothing is cut off at the right: what is wider is set on a page that is larger by as much,
    // and painted smaller.
    if (mBody->size().width() > pageWidth + rounding) {
        const double wide = mBody->size().width() / pageWidth;
        height *= wide;
        mBody->setPageSize({pageWidth * wide, height});
    }
    keepWhole(*mBody, height);
}
Report::Strip Report::strip(const QString &html) {
    if (html.isEmpty())
        return {};
    auto text = document(html);
    const double height = text->size().height() + gap;
    return {html, std::move(text), height};
}

Report::~Report() = default;
Report::Report(Report &&) noexcept = default;

QString Report::text() const {
    return mBody->toPlainText();
}

int Report::pages() const {
    return mBody->pageCount();
}

void Report::paintPage(QPainter &painter, int page) const {
    const auto part = [&](const QTextDocument &text, double top, const QRectF &clip) {
        painter.save();
        painter.translate(0, top);
        const double scale = pageWidth / text.pageSize().width();
        painter.scale(scale, scale);
        painter.translate(0, -clip.top());
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = clip;
        context.palette.setColor(QPalette::Text, Qt::black);
        painter.setClipRect(clip);
        text.documentLayout()->draw(&painter, context);
        painter.restore();
    };
    const auto numbered = [&](const Strip &strip, double top) {
        if (!strip.document)
            return;
        QString html = strip.html;
        html.replace("@pages@", QString::number(pages()));
        html.replace("@page@", QString::number(page + 1));
        if (html != strip.html)
            strip.document->setHtml(html);
        part(*strip.document, top, {0, 0, pageWidth, strip.height});
    };
    const QSizeF size = mBody->pageSize();
    numbered(mHead, 0);
    part(*mBody, mHead.height, {0, page * size.height(), size.width() + rounding, size.height()});
    numbered(mFoot, pageHeight - mFoot.height + gap);
}

void Report::paint(QPagedPaintDevice &device) const {
    device.setPageLayout(reportPage());
    QPainter painter;
    if (!painter.begin(&device))
        cannotPrint();
    painter.scale(double(painter.device()->logicalDpiX()) / resolution,
                  double(painter.device()->logicalDpiY()) / resolution);
    for (int page = 0; page < pages(); ++page) {
        if (page > 0 && !device.newPage())
            cannotPrint();
        paintPage(painter, page);
    }
    if (!painter.end())
        cannotPrint();
}

QByteArray Report::pdf() const {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
        writer.setResolution(resolution);
        writer.setTitle(mTitle);
        writer.setCreator("torvena");
        paint(writer);
    }
    return buffer.data();
}

void saveReport(const QByteArray &pdf, const QString &path) {
    const QFileInfo file(path);
    const auto refused = [](const QString &what) {
        throw Fehler(
            fehlernummer::PermissionDenied,
            {what + " kann nicht geschrieben werden. Bitte prüfen Sie Ordner, Rechte und "
                    "freien Platz.",
             what + " cannot be written. Please check folder, permissions and free space."});
    };
    if (!QDir().mkpath(file.path()))
        refused(file.path());
    QSaveFile target(path);
    target.setDirectWriteFallback(false);
    if (!target.open(QIODevice::WriteOnly) || target.write(pdf) != pdf.size() || !target.flush())
        refused(path);
    if (file.exists()) {
        const QDir kept(file.dir().filePath("ersetzt"));
        const QString stem =
            kept.filePath(file.completeBaseName() + now().toString("_yyyy-MM-dd_HH-mm-ss-zzz"));
        QString name = stem + '.' + file.suffix();
        for (int again = 2; QFileInfo::exists(name); ++again)
            name = QString("%1_%2.%3").arg(stem).arg(again).arg(file.suffix());
        if (!kept.mkpath(".") || !QFile::copy(path, name))
            refused(name);
    }
    if (!target.commit())
        refused(path);
}

} // namespace platform
