#include "windows/stil.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>
#include <QToolTip>

#include <algorithm>

#include "windows/waiting.h"
#include "windows/zeichen.h"

namespace platform {

namespace {

const Farben hell{.fenster = "#eff0f1",
                  .feld = "#ffffff",
                  .text = "#1b1e20",
                  .blass = "#4d5358",
                  .gesperrt = "#757b80",
                  .kante = "#85898d",
                  .linie = "#c9cdd1",
                  .akzent = "#0b57a4",
                  .auswahl = "#cfe2f6",
                  .gut = "#1a7436",
                  .gutGrund = "#e2f2e6",
                  .schlecht = "#b3261e",
                  .schlechtGrund = "#fbe3e1",
                  .offen = "#855600",
                  .offenGrund = "#fff0cc"};
const Farben dunkel{.fenster = "#232629",
                    .feld = "#1b1e20",
                    .text = "#f4f5f6",
                    .blass = "#b4babf",
                    .gesperrt = "#8b9196",
                    .kante = "#7b8288",
                    .linie = "#4a5056",
                    .akzent = "#7cbcf5",
                    .auswahl = "#24476b",
                    .gut = "#6fd592",
                    .gutGrund = "#15361f",
                    .schlecht = "#ff8a80",
                    .schlechtGrund = "#4a1a17",
                    .offen = "#ffc857",
                    .offenGrund = "#443200"};
const Farben *inKraft = &hell;

constexpr auto tonName = "ton";
constexpr const char *tonWords[] = {"", "blass", "alarm", "da", "fehlt", "tafel"}; // of Ton
constexpr auto freiName = "freeInput";

QPalette palette(const Farben &f) {
    QPalette p(f.fenster);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = group == QPalette::Disabled ? f.gesperrt : f.text;
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            p.setColor(group, role, text);
        for (const auto role : {QPalette::Window, QPalette::Button, QPalette::Light})
            p.setColor(group, role, f.fenster);
        for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase})
            p.setColor(group, role, f.feld);
        p.setColor(group, QPalette::ToolTipText, f.text);
        p.setColor(group, QPalette::PlaceholderText, f.gesperrt);
        p.setColor(group, QPalette::Highlight, f.auswahl);
        p.setColor(group, QPalette::HighlightedText, f.text);
        p.setColor(group, QPalette::Midlight, f.linie);
        p.setColor(group, QPalette::Mid, f.kante);
        p.setColor(group, QPalette::Link, f.akzent);
    }
    return p;
}

Ton tonOf(const QWidget *widget) {
    const QString word = widget ? widget->property(tonName).toString() : QString();
    const auto *found = std::find(std::begin(tonWords), std::end(tonWords), word);
    return found == std::end(tonWords) ? Ton::Keiner
                                       : static_cast<Ton>(found - std::begin(tonWords));
}

bool isFree(const QWidget *widget) {
    return widget && widget->property(freiName).toBool();
}

/// What reaches a widget's text by its palette alone.
void colour(QWidget *widget) {
    QPalette p;
    const auto text = [&p](const QColor &color) {
        p.setColor(QPalette::WindowText, color);
        p.setColor(QPalette::Text, color);
    };
    switch (tonOf(widget)) {
    case Ton::Blass:
        text(inKraft->blass);
        break;
    case Ton::Alarm:
    case Ton::Fehlt:
        text(alarmRot);
        break;
    case Ton::Da:
        text(bereitGrün);
        break;
    case Ton::Tafel:
    case Ton::Keiner:
        break;
    }
    if (isFree(widget)) {
        text(Qt::black);
        p.setColor(QPalette::Base, freiGrund);
    }
    widget->setPalette(p);
    widget->update();
}

void frame(QPainter *painter, const QRectF &rect, const QColor &ground, const QColor &edge,
           double width, double radius) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(ground);
    painter->setPen(QPen(edge, width));
    const double half = width / 2;
    painter->drawRoundedRect(rect.adjusted(half, half, -half, -half), radius, radius);
    painter->restore();
}

void ring(QPainter *painter, const QRectF &rect, const QColor &color) {
    frame(painter, rect, Qt::transparent, color, 2, 2);
}

QFont bold(const QFont &font) {
    QFont result = font;
    result.setBold(true);
    return result;
}

bool enabled(const QStyleOption *option) {
    return option->state & QStyle::State_Enabled;
}
bool focused(const QStyleOption *option) {
    return enabled(option) && (option->state & QStyle::State_HasFocus);
}

void drawButton(const QStyleOptionButton &option, QPainter *painter, const QWidget *widget) {
    const Farben &f = *inKraft;
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    const bool waits = button && isWaiting(button) && enabled(&option);
    const bool strong =
        enabled(&option) &&
        (waits || focused(&option) || option.features.testFlag(QStyleOptionButton::DefaultButton));
    const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
    const QColor ground = waits               ? QColor(wartetGrund)
                          : !enabled(&option) ? f.fenster
                          : down              ? f.auswahl
                                              : f.feld;
    const QColor accent = waits ? QColor(wartetKante) : f.akzent;
    frame(painter, option.rect, ground, strong ? accent : f.kante, strong ? 2 : 1, 4);
    if (focused(&option)) // a second ring: focus is never an edge colour alone
        frame(painter, QRectF(option.rect).adjusted(4, 4, -4, -4), Qt::transparent, accent, 1.5, 2);
}

void drawField(const QStyleOption &option, QPainter *painter, const QWidget *widget) {
    const Farben &f = *inKraft;
    if (option.state & QStyle::State_ReadOnly) {
        painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                          f.kante);
        if (focused(&option))
            ring(painter, option.rect, f.akzent);
        return;
    }
    const bool open = isFree(widget);
    const QColor ground = !enabled(&option) ? f.fenster : open ? QColor(freiGrund) : f.feld;
    const QColor edge = focused(&option) ? f.akzent : open ? QColor(freiKante) : f.kante;
    frame(painter, option.rect, ground, edge, focused(&option) || open ? 2 : 1, 3);
}

/// Points down, turned clockwise by so many degrees.
void drawArrow(const QRectF &rect, QPainter *painter, const QColor &color, double turned = 0) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->translate(rect.center());
    painter->rotate(turned);
    painter->drawPolyline(QPolygonF{{-4, -2}, {0, 2}, {4, -2}});
    painter->restore();
}

void drawIndicator(const QStyleOption &option, QPainter *painter, bool round) {
    const Farben &f = *inKraft;
    const QRectF rect(option.rect);
    const bool on = option.state & QStyle::State_On;
    const QColor mark = enabled(&option) ? f.akzent : f.gesperrt;
    frame(painter, rect, enabled(&option) ? f.feld : f.fenster, on ? mark : f.kante, on ? 2 : 1,
          round ? rect.width() / 2 : 2);
    if (!on)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (round) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(mark);
        painter->drawEllipse(rect.center(), rect.width() / 4, rect.height() / 4);
    } else {
        painter->setPen(QPen(mark, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QRectF inner = rect.adjusted(4, 4, -4, -4);
        painter->drawPolyline(QPolygonF{{inner.left(), inner.center().y()},
                                        {inner.center().x() - 1, inner.bottom()},
                                        {inner.right(), inner.top()}});
    }
    painter->restore();
}

class Stil : public QProxyStyle {
  public:
    Stil() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    using QProxyStyle::polish;
    void polish(QWidget *widget) override {
        QProxyStyle::polish(widget);
        if (tonOf(widget) != Ton::Keiner || isFree(widget))
            colour(widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override {
        switch (element) {
        case PE_PanelButtonCommand:
            if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option))
                drawButton(*button, painter, widget);
            return;
        case PE_FrameDefaultButton:
            return; // told by its edge
        case PE_FrameFocusRect:
            if (qobject_cast<const QPushButton *>(widget))
                return;
            if (const auto *table = qobject_cast<const QTableView *>(widget);
                table && table->selectionBehavior() == QAbstractItemView::SelectRows)
                return; // the frame of the table and its chosen row
            ring(painter, option->rect, inKraft->akzent);
            return;
        case PE_PanelLineEdit:
        case PE_FrameLineEdit:
            if (widget && (qobject_cast<const QComboBox *>(widget->parentWidget()) ||
                           qobject_cast<const QAbstractSpinBox *>(widget->parentWidget())))
                return; // the box around it paints
            drawField(*option, painter, widget);
            return;
        case PE_FrameGroupBox: {
            const int head = std::max(pixelMetric(PM_IndicatorHeight, option, widget),
                                      option->fontMetrics.height()) +
                             3;
            frame(painter, QRectF(option->rect).adjusted(0, head, 0, 0), Qt::transparent,
                  inKraft->linie, 1, 4);
            return;
        }
        case PE_Frame:
            if (qobject_cast<const QAbstractScrollArea *>(widget)) {
                frame(painter, option->rect, Qt::transparent,
                      focused(option) ? inKraft->akzent : inKraft->kante, focused(option) ? 2 : 1,
                      2);
                return;
            }
            break;
        case PE_IndicatorRadioButton:
        case PE_IndicatorCheckBox:
            drawIndicator(*option, painter, element == PE_IndicatorRadioButton);
            return;
        default:
            break;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override {
        const Farben &f = *inKraft;
        switch (element) {
        case CE_PushButtonLabel: {
            const auto *given = qstyleoption_cast<const QStyleOptionButton *>(option);
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            if (!given || !button || !isWaiting(button) || !enabled(option))
                break;
            QStyleOptionButton waits(*given);
            waits.palette.setColor(QPalette::ButtonText, Qt::black);
            painter->save();
            painter->setFont(bold(painter->font()));
            waits.fontMetrics = QFontMetrics(painter->font());
            QProxyStyle::drawControl(element, &waits, painter, widget);
            painter->restore();
            return;
        }
        case CE_ShapedFrame:
            if (const Ton ton = tonOf(widget); ton == Ton::Da || ton == Ton::Fehlt) {
                frame(painter, option->rect, schildGrund, schildGrund, 1, 6);
                return;
            } else if (ton == Ton::Tafel) {
                frame(painter, option->rect, f.feld, f.akzent, 2, 0);
                return;
            }
            if (const auto *line = qstyleoption_cast<const QStyleOptionFrame *>(option);
                line && line->frameShape == QFrame::HLine) {
                painter->fillRect(
                    QRect(line->rect.left(), line->rect.center().y(), line->rect.width(), 1),
                    f.linie);
                return;
            }
            break;
        case CE_HeaderSection:
        case CE_HeaderEmptyArea: {
            painter->fillRect(option->rect, f.fenster);
            const QRect rect = option->rect;
            painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), f.kante);
            if (element == CE_HeaderSection)
                painter->fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), f.linie);
            return;
        }
        case CE_ProgressBarGroove:
            tonOf(widget) == Ton::Alarm
                ? frame(painter, option->rect, f.schlechtGrund, f.schlecht, 2, 2)
                : frame(painter, option->rect, f.feld, f.kante, 1, 2);
            return;
        case CE_ProgressBarContents:
            if (const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option)) {
                const double span = std::max(1, bar->maximum - bar->minimum);
                QRectF rect = QRectF(option->rect).adjusted(2, 2, -2, -2);
                rect.setWidth(rect.width() *
                              std::clamp((bar->progress - bar->minimum) / span, 0.0, 1.0));
                painter->fillRect(rect, tonOf(widget) == Ton::Alarm ? f.schlecht : f.akzent);
            }
            return;
        default:
            break;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override {
        if (control == CC_GroupBox) {
            painter->save();
            painter->setFont(bold(painter->font()));
            QProxyStyle::drawComplexControl(control, option, painter, widget);
            painter->restore();
            return;
        }
        if (control == CC_ScrollBar) {
            const auto part = [&](SubControl name) {
                return subControlRect(CC_ScrollBar, option, name, widget);
            };
            const bool level = option->state & State_Horizontal;
            const QColor color = enabled(option) ? inKraft->kante : inKraft->linie;
            painter->fillRect(option->rect, inKraft->fenster);
            drawArrow(part(SC_ScrollBarSubLine), painter, color, level ? 90 : 180);
            drawArrow(part(SC_ScrollBarAddLine), painter, color, level ? -90 : 0);
            frame(painter, QRectF(part(SC_ScrollBarSlider)).adjusted(3, 3, -3, -3), color, color, 1,
                  3);
            if (focused(option))
                ring(painter, option->rect, inKraft->akzent);
            return;
        }
        const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        if (control == CC_ComboBox && box) {
            drawField(*option, painter, widget);
            const QRect arrow = subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
            const bool open = isFree(widget) && enabled(option);
            drawArrow(arrow, painter,
                      open              ? QColor(Qt::black)
                      : enabled(option) ? inKraft->text
                                        : inKraft->gesperrt);
            return;
        }
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override {
        QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
        const auto *box = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
        if (control == CC_GroupBox && part == SC_GroupBoxLabel && box && widget)
            rect.setWidth(QFontMetrics(bold(widget->font())).horizontalAdvance(box->text) + 8);
        return rect;
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override {
        QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
        switch (type) {
        case CT_PushButton:
            if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
                button && widget) // as wide waiting as not
                result.rwidth() +=
                    QFontMetrics(bold(widget->font()))
                        .size(Qt::TextShowMnemonic, button->text)
                        .width() -
                    QFontMetrics(widget->font()).size(Qt::TextShowMnemonic, button->text).width() +
                    12;
            result.setHeight(std::max(result.height(), 32));
            break;
        case CT_LineEdit:
        case CT_ComboBox:
            result.setHeight(std::max(result.height(), 28));
            break;
        case CT_SpinBox: // counts the field inside as one more
            result.setHeight(28);
            break;
        case CT_ItemViewItem:
            result.setHeight(std::max(result.height(), 26));
            break;
        case CT_HeaderSection:
            result.rheight() += 8;
            break;
        default:
            break;
        }
        return result;
    }

    /// The signs of message boxes: those of the screens.
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option,
                       const QWidget *widget) const override {
        const bool known = which == SP_MessageBoxCritical || which == SP_MessageBoxWarning ||
                           which == SP_MessageBoxQuestion || which == SP_MessageBoxInformation;
        if (!known)
            return QProxyStyle::standardIcon(which, option, widget);
        QIcon icon;
        for (const int density : {1, 2}) {
            QPixmap sign(48 * density, 48 * density);
            sign.setDevicePixelRatio(density);
            sign.fill(Qt::transparent);
            QPainter painter(&sign);
            const QRectF rect(2, 2, 44, 44);
            if (which == SP_MessageBoxCritical)
                zeichenMalen(painter, rect, Zeichen::Schlecht);
            else if (which == SP_MessageBoxWarning)
                zeichenMalen(painter, rect, Zeichen::Achtung);
            else
                hinweisMalen(painter, rect, which == SP_MessageBoxQuestion);
            icon.addPixmap(sign);
        }
        return icon;
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override {
        switch (metric) {
        case PM_FocusFrameHMargin:
            return 6; // text of a cell stands off its edges
        case PM_HeaderDefaultSectionSizeVertical:
            return 30;
        case PM_MessageBoxIconSize:
            return 48;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override {
        switch (hint) {
        case SH_ItemView_ShowDecorationSelected:
            return 1;
        case SH_Table_GridLineColor:
            return int(inKraft->linie.rgb());
        default:
            return QProxyStyle::styleHint(hint, option, widget, result);
        }
    }
};

} // namespace

const Farben &farben() {
    return *inKraft;
}

void stilAnwenden(QApplication &) {
    stilAnwenden(QApplication::palette().color(QPalette::Window).lightness() < 128);
}

void stilAnwenden(bool dunkelGewählt) {
    inKraft = dunkelGewählt ? &dunkel : &hell;
    QApplication::setStyle(new Stil);
    QApplication::setPalette(palette(*inKraft));
    QToolTip::setPalette(palette(*inKraft));
}

QFont schrift(int punkte, bool fett) {
    QFont font = QApplication::font();
    if (punkte > 0)
        font.setPointSize(punkte);
    font.setBold(fett);
    return font;
}

void setSchrift(QWidget *widget, int punkte, bool fett) {
    widget->setFont(schrift(punkte, fett));
}

void setTon(QWidget *widget, Ton ton) {
    widget->setProperty(tonName, tonWords[static_cast<int>(ton)]);
    colour(widget);
}

void setFreiGetönt(QWidget *widget, bool offen) {
    widget->setProperty(freiName, offen);
    colour(widget);
}

} // namespace platform
