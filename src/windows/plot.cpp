#include "windows/plot.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QToolTip>
#include <qcustomplot.h>

#include "platform/runtime.h"
#include "windows/stil.h"

namespace platform {

namespace {
constexpr double reach = 12; // pixels from a value within which the mouse means it
constexpr double dotSize = 7, ringSize = 15;
} // namespace

Plot::Plot(QWidget *parent) : QWidget(parent), mPlot(new QCustomPlot(this)) {
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mPlot);
    mPlot->setFocusPolicy(Qt::NoFocus);
    mPlot->setMouseTracking(true);
    mPlot->installEventFilter(this);
    // With the decimal sign that all other numbers have.
    mPlot->setLocale(numberLocale().decimalPoint() == "," ? QLocale(QLocale::German)
                                                          : QLocale::c());
    mPlot->legend->setVisible(true);
    setLook({farben().feld, farben().text, farben().linie});
}

QCPAxis *Plot::axis(Axis axis) const {
    return axis == X ? mPlot->xAxis : mPlot->yAxis;
}

void Plot::setLook(const Look &look) {
    mPlot->setBackground(look.ground);
    for (QCPAxis *one : {mPlot->xAxis, mPlot->yAxis}) {
        one->setBasePen(QPen(look.text));
        one->setTickPen(QPen(look.text));
        one->setSubTickPen(QPen(look.text));
        one->setLabelColor(look.text);
        one->setTickLabelColor(look.text);
        one->setLabelFont(font());
        one->setTickLabelFont(font());
        one->grid()->setPen(QPen(look.grid, 0, Qt::DotLine));
        one->grid()->setZeroLinePen(QPen(look.grid));
    }
    mPlot->legend->setFont(font());
    mPlot->legend->setTextColor(look.text);
    mPlot->legend->setBrush(look.ground);
    mPlot->legend->setBorderPen(QPen(look.grid));
}

void Plot::setLegendAbove() {
    mPlot->plotLayout()->insertRow(0);
    mPlot->plotLayout()->addElement(0, 0, mPlot->legend);
    mPlot->plotLayout()->setRowStretchFactor(0, 0.001);
    mPlot->plotLayout()->setRowSpacing(0);
    mPlot->legend->setFillOrder(QCPLegend::foColumnsFirst);
    mPlot->legend->setBorderPen(Qt::NoPen);
}

void Plot::setAxisLabel(Axis axis, const QString &label) {
    this->axis(axis)->setLabel(label);
}

void Plot::setRange(Axis axis, Range range) {
    this->axis(axis)->setRange(range.from, range.to);
}

Plot::Range Plot::range(Axis axis) const {
    const QCPRange range = this->axis(axis)->range();
    return {range.lower, range.upper};
}

void Plot::setStep(Axis axis, double step) {
    const QSharedPointer<QCPAxisTickerFixed> ticker(new QCPAxisTickerFixed);
    ticker->setTickStep(step);
    this->axis(axis)->setTicker(ticker);
    this->axis(axis)->setSubTicks(false);
}

void Plot::showDates(const QString &format) {
    const QSharedPointer<QCPAxisTickerDateTime> ticker(new QCPAxisTickerDateTime);
    ticker->setDateTimeFormat(format);
    mPlot->xAxis->setTicker(ticker);
}

int Plot::addCurve(const QString &name, const QPen &pen) {
    QCPGraph *graph = mPlot->addGraph();
    graph->setPen(pen);
    renameCurve(curves() - 1, name);
    return curves() - 1;
}

void Plot::setDots(int curve, Dots dots) {
    using Style = QCPScatterStyle;
    constexpr std::pair<Style::ScatterShape, double> styles[] = {{Style::ssNone, 0},
                                                                 {Style::ssDisc, dotSize},
                                                                 {Style::ssSquare, dotSize},
                                                                 {Style::ssCircle, ringSize}};
    const auto [shape, size] = styles[static_cast<int>(dots)];
    Style style(shape, size);
    if (dots == Dots::Ring)
        style.setPen(QPen(mPlot->graph(curve)->pen().color(), 2));
    mPlot->graph(curve)->setScatterStyle(style);
}

void Plot::renameCurve(int curve, const QString &name) {
    QCPGraph *graph = mPlot->graph(curve);
    graph->setName(name);
    if (name.isEmpty())
        graph->removeFromLegend();
    else
        graph->addToLegend();
}

int Plot::curves() const {
    return mPlot->graphCount();
}

void Plot::setData(int curve, const std::vector<double> &x, const std::vector<double> &y) {
    const auto vector = [](const std::vector<double> &values) {
        return QVector<double>(values.begin(), values.end());
    };
    mPlot->graph(curve)->setData(vector(x), vector(y), true);
}

void Plot::repaintSoon() {
    mPlot->replot(QCustomPlot::rpQueuedReplot);
}

QByteArray Plot::picture() {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    mPlot->toPixmap(0, 0, 2).save(&buffer, "PNG");
    return bytes;
}

bool Plot::eventFilter(QObject *watched, QEvent *event) {
    const auto mouse = [event]() -> const QMouseEvent & {
        return static_cast<const QMouseEvent &>(*event);
    };
    switch (event->type()) {
    case QEvent::MouseButtonDblClick:
        if (onDoubleClick && mouse().button() == Qt::LeftButton)
            onDoubleClick();
        break;
    case QEvent::MouseMove:
        if (toolTipOf)
            showToolTip(mouse().position(), mouse().globalPosition().toPoint());
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void Plot::showToolTip(const QPointF &at, const QPoint &global) {
    double nearest = reach;
    QString text;
    for (int curve = 0; curve < curves(); ++curve) {
        const QCPGraph &graph = *mPlot->graph(curve);
        for (int value = 0; value < graph.dataCount(); ++value) {
            const QCPGraphData &point = *graph.data()->at(value);
            const QPointF shown = graph.coordsToPixels(point.key, point.value);
            const double away = std::hypot(shown.x() - at.x(), shown.y() - at.y());
            if (away >= nearest)
                continue;
            if (const QString told = toolTipOf(curve, value); !told.isEmpty()) {
                nearest = away;
                text = told;
            }
        }
    }
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(global, text, this);
}

QString plotLibraryVersion() {
    return QCUSTOMPLOT_VERSION_STR;
}

} // namespace platform
