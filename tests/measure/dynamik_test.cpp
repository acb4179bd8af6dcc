// The dynamic measurement without its screens: frames, the newest values, lines, axes, scales.
#include <gtest/gtest.h>

#include "cases.h"
#include "measure/band.h"
#include "measure/bewertung.h"
#include "measure/dynamik.h"
#include "measure/messring.h"
#include "platform/runtime.h"

namespace {

using support::Case;
using support::cases;

// G is 60.0 1/min and 188.4 W. Behind each stands how many were given up for want of their end.
TEST(DynamicStream, Frames) {
    for (const Case &c : cases(R"(
            G fffe -> 60 188.4; 0 | G -> 0 | G G fffe -> 60 188.4; 60 188.4; 0
            | fffe1f400001fffe -> 800 8.3733; 0 | fffe1f410000fffe -> 800 0; 0
            | fffe02580fff fffe -> 60 800; 0 | fffe 0000 ffff fffe -> 0 0; 0
            | 00ff00fe ff G fffe -> 0 | fffffe G fffe -> 60 188.4; 0
            | fffe0258012c 00 fffe G fffe -> 2 | fffe0258012c 00 G fffe -> 60 188.4; 1
            | fffe0258012c ff0102ff fe 00640000 fffe -> 60 188.4; 10 0; 0)")) {
        gDynFehler = 0;
        DynamikDecoder decoder;
        QString shown;
        const QString hex = QString(c.in).replace("G", "fffe0258012c");
        for (const char byte : QByteArray::fromHex(hex.toLatin1())) {
            if (decoder.feed(static_cast<std::uint8_t>(byte)))
                shown += QString("%1 %2; ")
                             .arg(decoder.drehzahl(), 0, 'g', 5)
                             .arg(decoder.leistung(), 0, 'g', 5);
        }
        EXPECT_EQ(shown + QString::number(gDynFehler), c.out) << c;
    }
}

// Full, it scrolls by 20; what came last before gives way to the next.
TEST(DynamicRing, PicturesAndWhatTheyShow) {
    Messring ring;
    QString pictures;
    for (int frame = 1; frame <= 602; ++frame) {
        if (!ring.speichern(frame, -frame))
            continue;
        const auto shown = ring.drehzahlen();
        ASSERT_EQ(shown.size(), ring.leistungen().size());
        for (std::size_t i = 0; i < shown.size(); ++i)
            ASSERT_EQ(ring.leistungen()[i], -shown[i]);
        if (frame <= 40 || frame >= 540)
            pictures += QString("%1:%2-%3 ").arg(frame).arg(shown.front()).arg(shown.back());
        EXPECT_EQ(shown.size(), std::size_t(std::min(frame, 540)));
        EXPECT_EQ(shown.size() < 540 ? 1 : shown[519] - shown[518], frame >= 581 ? 2 : 1);
    }
    EXPECT_EQ(pictures, "20:1-20 40:1-40 540:1-540 560:21-560 581:41-581 602:61-602 ");
}

TEST(DynamicBands, LinesOfAStepAndTheirAxes) {
    fnc_GraphGrenzenSetzen("60,0", "100,0", fnc_LeistungsToleranz(5, 5, "100,0"));
    EXPECT_EQ(grafikband(Diagramm::Drehzahl), (Band{0, 62}));
    EXPECT_EQ(grafikband(Diagramm::Leistung), (Band{-1, 105}));
    for (const Case &c : cases("-1 -> 1 | 0 -> 1 | 14 -> 1 | 15 -> 2 | 25 -> 2 | 35 -> 4 | 62 -> 6 "
                               "| 106 -> 11 | 600 -> 60"))
        EXPECT_EQ(rasterschritt(c.in.toInt()), c.out.toInt()) << c;
    // It makes room for what it does not reach, until a person has chosen it.
    const auto seen = [](const Achse &axis) {
        return QString("%1 %2 %3").arg(axis.von()).arg(axis.bis()).arg(axis.raster());
    };
    Achse axis({-1, 107.5});
    EXPECT_EQ(seen(axis), "-1 107 11");
    EXPECT_TRUE(axis.folgen({-1, 107.5}));
    EXPECT_FALSE(axis.folgen({-1, 108}));
    EXPECT_EQ(seen(axis), "-1 108 11");
    EXPECT_TRUE(axis.folgen({-20.5, 100}));
    EXPECT_EQ(seen(axis), "-21 108 13");
    axis.wählen({-1, 100});
    EXPECT_EQ(seen(axis), "-1 100 10");
    axis.wählen({99.5, 130});
    EXPECT_FALSE(axis.folgen({0, 600}));
    EXPECT_EQ(seen(axis), "99 130 3");
}

TEST(DynamicScale, WhatMayBeEntered) {
    platform::setNumberLocale(QLocale(QLocale::German));
    for (const Case &c : cases(R"(
            n, -1, 130 -> | n, -1;1, 130 -> Skalenbeginn liegt | n, 0, 131 -> Skalenende liegt
            | p, -1, 131 -> | p, 0, 600 -> | p, 0, 600;1 -> Skalenende liegt
            | n, 131, 0 -> Skalenbeginn liegt | n, 129;5, 130 -> | n, 60, 60 -> Skalenende liegt
            | n, -1, -0;5 -> Skalenende liegt | n, , 60 -> Skalenbeginn muss | n, 0, x -> Skalenende muss
            | n, x, x -> Skalenbeginn muss | n, 0.5, 60 -> Skalenbeginn muss)")) {
        const QString begin = c.in_(1).replace(';', ','), end = c.in_(2).replace(';', ',');
        const auto wrong =
            skalaPrüfen(c.in_(0) == "n" ? Diagramm::Drehzahl : Diagramm::Leistung, begin, end);
        EXPECT_EQ(wrong.has_value(), !c.out.isEmpty()) << c;
        if (wrong) {
            EXPECT_TRUE(wrong->text.german.startsWith(c.out)) << c;
            EXPECT_EQ(wrong->amBeginn, c.out.startsWith("Skalenbeginn")) << c;
        }
    }
}

} // namespace
