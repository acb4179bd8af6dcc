// Curves over an axis, in the colours of the program.
#pragma once

#include <QByteArray>
#include <QPen>
#include <QWidget>

#include <functional>
#include <vector>

class QCPAxis;
class QCustomPlot;

namespace platform {

class Plot : public QWidget {
  public:
    enum Axis { X, Y };
    struct Range {
        double from = 0, to = 0;
        bool operator==(const Range &) const = default;
    };
    /// What is painted besides the curves. The one that the program's windows have, unless another
    /// is set.
    struct Look {
        QColor ground; ///< of the whole picture
        QColor text;   ///< axes, numbers and the legend
        QColor grid;
    };

    explicit Plot(QWidget *parent = nullptr);

    void setLook(const Look &look);
    /// In a row of its own, so that it covers no curve; otherwise it lies in the corner.
    void setLegendAbove();
    void setAxisLabel(Axis axis, const QString &label);
    void setRange(Axis axis, Range range);
    Range range(Axis axis) const;
    /// Numbers and lines of the grid every `step` of the axis, above 0.
    void setStep(Axis axis, double step);
    /// The values of the X axis are seconds since 1970, shown as dates.
    void showDates(const QString &format);

    /// One more, answered by its number from 0; in the legend unless the name is empty.
    int addCurve(const QString &name, const QPen &pen);
    /// What marks its values, so that curves differ by more than colour.
    enum class Dots { None, Discs, Squares, Ring };
    void setDots(int curve, Dots dots);
    void renameCurve(int curve, const QString &name);
    int curves() const;
    /// As many of the one as of the other, X ascending.
    void setData(int curve, const std::vector<double> &x, const std::vector<double> &y);
    /// Paints once when control returns to the event loop, however often it was asked for.
    void repaintSoon();

    /// As a PNG file of twice the size on the screen.
    QByteArray picture();

    /// A double click anywhere on the picture.
    std::function<void()> onDoubleClick;
    /// What is told of the value under the mouse, by curve and place in it; nothing for an empty
    /// text.
    std::function<QString(int curve, int value)> toolTipOf;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QCPAxis *axis(Axis axis) const;
    void showToolTip(const QPointF &at, const QPoint &global);

    QCustomPlot *mPlot;
};

/// Of the library that draws the curves.
QString plotLibraryVersion();

} // namespace platform
