#include <gtest/gtest.h>

#include <QTest>

#include "windows/datefield.h"

TEST(DateField, TakesADateAsItIsTyped) {
    const struct {
        const char *typed;
        QDate date;
    } cases[] = {
        {"31.12.2024", {2024, 12, 31}}, // the month that stands there has 30 days
        {"31122024", {2024, 12, 31}},   {"1.3.2025", {2025, 3, 1}},    {"01.3.2025", {2025, 3, 1}},
        {"9,11,2025", {2025, 11, 9}},   {"29.02.2024", {2024, 2, 29}},
    };
    for (const auto &[typed, date] : cases) {
        platform::DateField field(QDate(2026, 6, 18));
        field.setDisplayFormat("dd.MM.yyyy");
        field.setKeyboardTracking(false);
        field.show();
        field.setFocus();
        field.setSelectedSection(QDateEdit::DaySection);
        QTest::keyClicks(&field, typed);
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(field.date(), date) << typed << ' ' << field.text().toStdString();
    }
}
