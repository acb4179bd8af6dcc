// What must be read is read, light and dark: contrasts by WCAG 2.1, taken from the painted pixels
// where a control paints and from the palette for its text.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include <cmath>

#include "painted.h"
#include "windows/stil.h"
#include "windows/waiting.h"
#include "windows/zeichen.h"

namespace {

using namespace platform;

double luminance(const QColor &color) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b) {
    const double x = luminance(a) + 0.05, y = luminance(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

class Look : public testing::TestWithParam<bool> {
  protected:
    Look() { stilAnwenden(GetParam()); }
    ~Look() override { stilAnwenden(false); }
};
INSTANTIATE_TEST_SUITE_P(, Look, testing::Bool(),
                         [](const auto &look) { return look.param ? "Dark" : "Light"; });

TEST_P(Look, TextIsReadOnItsGround) {
    const Farben &f = farben();
    const QPalette p = QApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const double least = group == QPalette::Disabled ? 3.5 : 4.5;
        for (const auto &[text, ground] :
             std::initializer_list<std::pair<QPalette::ColorRole, QPalette::ColorRole>>{
                 {QPalette::WindowText, QPalette::Window},
                 {QPalette::Text, QPalette::Base},
                 {QPalette::Text, QPalette::AlternateBase},
                 {QPalette::ButtonText, QPalette::Button},
                 {QPalette::HighlightedText, QPalette::Highlight},
                 {QPalette::ToolTipText, QPalette::ToolTipBase}})
            EXPECT_GE(contrast(p.color(group, text), p.color(group, ground)), least)
                << group << ' ' << text;
        EXPECT_GE(contrast(p.color(group, QPalette::PlaceholderText), f.feld), 3.5);
    }
    // A chosen row's text says which one it is; the verdicts are read on their tint and on all
    // else.
    for (const QColor &ground : {f.fenster, f.feld})
        for (const QColor &text : {f.blass, f.gut, f.schlecht, f.offen, f.akzent})
            EXPECT_GE(contrast(text, ground), 4.5) << qPrintable(text.name());
    for (const auto &[text, ground] :
         {std::pair{f.gut, f.gutGrund}, {f.schlecht, f.schlechtGrund}, {f.offen, f.offenGrund}})
        for (const QColor &words : {text, f.text})
            EXPECT_GE(contrast(words, ground), 4.5) << qPrintable(words.name());
    for (const QRgb ground : {wartetGrund, freiGrund})
        EXPECT_GE(contrast(Qt::black, ground), 4.5);
    for (const QRgb text : {alarmRot, bereitGrün})
        EXPECT_GE(contrast(text, schildGrund), 4.0);
}

/// The colours of a control's edges, its ring and its ground: along its middle, from the left, and
/// what it stands on.
QList<QColor> painted(QWidget &control) {
    const QImage image = control.grab().toImage();
    QList<QColor> result{image.pixelColor(image.width() / 2, image.height() - 1)};
    for (int x = 0; x < 9; ++x)
        result += image.pixelColor(x, image.height() / 2);
    return result;
}

TEST_P(Look, EveryStateOfAControlShowsAndIsItsOwn) {
    QWidget window;
    window.resize(300, 200);
    std::vector<std::pair<std::string, QList<QColor>>> seen;
    const auto state = [&](const char *name, QWidget &control, auto shape) {
        control.setParent(&window);
        control.setGeometry(10, 10, 160, 32);
        window.show();
        window.activateWindow();
        window.setFocusPolicy(Qt::StrongFocus);
        window.setFocus();
        shape();
        control.show();
        QApplication::processEvents();
        const QList<QColor> now = painted(control);
        const bool shows = std::any_of(now.begin(), now.end(), [](const QColor &color) {
            return contrast(color, farben().fenster) >= 3;
        });
        EXPECT_TRUE(shows) << name;
        for (const auto &[other, colors] : seen)
            EXPECT_NE(colors, now) << name << " looks as " << other;
        seen.emplace_back(name, now);
    };
    QPushButton normal, standard, focused, waiting, both, disabled;
    state("normal", normal, [] {});
    state("default", standard, [&] { standard.setDefault(true); });
    state("keyboard", focused, [&] { focused.setFocus(); });
    state("waiting", waiting, [&] { setWaiting(&waiting, true); });
    EXPECT_TRUE(painted(waiting).contains(QColor(192, 192, 255)));
    state("waiting, keyboard", both, [&] {
        setWaiting(&both, true);
        both.setFocus();
    });
    state("disabled", disabled, [&] {
        setWaiting(&disabled, true);
        disabled.setEnabled(false);
    });
    setWaiting(&waiting, false);
    EXPECT_EQ(painted(waiting), seen.front().second);

    QLineEdit typed, shown, open;
    state("field", typed, [&] { typed.setFocus(); });
    state("shown", shown, [&] { shown.setReadOnly(true); });
    state("free input", open, [&] { setFreeInput(&open, true); });
    EXPECT_TRUE(painted(open).contains(QColor(255, 224, 192)));
    setFreeInput(&open, false);
    EXPECT_EQ(painted(open), painted(shown));
    EXPECT_EQ(open.palette().color(QPalette::Text), farben().text);
}

TEST_P(Look, SignsAreTheirOwnAndArrowsTurnTheirWay) {
    using support::along, support::painted;
    for (const auto &[zeichen, height, row] :
         std::initializer_list<std::tuple<Zeichen, double, const char *>>{
             {Zeichen::Gut, 0.4, "_+.+_"},
             {Zeichen::Gut, 0.69, "_+.+_"},
             {Zeichen::Schlecht, 0.35, "_-.-.-_"},
             {Zeichen::Schlecht, 0.65, "_-.-.-_"},
             {Zeichen::Offen, 0.45, "_?.?.?_"},
             {Zeichen::Offen, 0.82, "_?.?_"},
             {Zeichen::Achtung, 0.45, "_?.?_"},
             {Zeichen::Achtung, 0.82, "_?.?_"},
             {Zeichen::Kein, 0.06, "_k_k_k_"}})
        EXPECT_EQ(along(painted({200, 200},
                                [z = zeichen](QPainter &painter, const QRectF &rect) {
                                    zeichenMalen(painter, rect, z);
                                }),
                        height),
                  row)
            << int(zeichen) << ' ' << height;
    for (const bool frage : {false, true})
        EXPECT_EQ(along(painted({200, 200},
                                [&](QPainter &painter, const QRectF &rect) {
                                    hinweisMalen(painter, rect, frage);
                                }),
                        0.39),
                  frage ? "_A.A.A_" : "_A_")
            << frage;
    for (const bool rechts : {false, true}) {
        const QImage arrow = painted({200, 200}, [&](QPainter &painter, const QRectF &rect) {
            drehpfeilMalen(painter, rect, rechts, farben().text);
        });
        EXPECT_EQ(along(arrow, 0.65, 0, 0.5) + '|' + along(arrow, 0.65, 0.5),
                  rechts ? "_T_|_" : "_|_T_");
        EXPECT_EQ(along(arrow, 0.3), "_T_T_");
    }
    const QImage on = painted(
        {200, 200}, [](QPainter &painter, const QRectF &rect) { weiterMalen(painter, rect, "1"); });
    EXPECT_EQ(along(on, 0.1) + along(on, 0.5), "_A__A.A_");
    EXPECT_EQ(along(painted({200, 200},
                            [](QPainter &painter, const QRectF &rect) {
                                strichMalen(painter, rect, Zeichen::Gut, farben().text);
                            }),
                    0.3),
              "_T_");
}

} // namespace
