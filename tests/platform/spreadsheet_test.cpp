// What stands in the file, read by another program's means.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "cases.h"
#include "parts.h"
#include "platform/spreadsheet.h"

namespace {

using namespace platform;

Workbook example() {
    Workbook book;
    book.formats = {{.number = "dd.mm.yyyy", .frame = true}, {.number = "0.000"}};
    Sheet sheet{.name = "Rückblick", .headRows = 1, .selectedRow = 2};
    sheet.cell(0, 0) = {QString("=1+1")};
    sheet.cell(0, 1) = {QString("Jürgen <Groß> & Søn\x01")};
    sheet.cell(2, 0) = {QDateTime(QDate(2026, 11, 23), QTime(12, 0)), 0};
    sheet.cell(2, 1) = {-30.0125, 1};
    sheet.cell(3, 0) = {QDateTime(), 0};
    sheet.cell(3, 1) = {std::numeric_limits<double>::quiet_NaN(), 1};
    sheet.charts = {{.name = "Diagramm 2",
                     .title = "Wärme",
                     .width = 480,
                     .height = 288,
                     .axis = ValueAxis{9.98, 10.02},
                     .dates = std::pair{QDate(2026, 1, 1), QDate(2027, 1, 1)},
                     .series = {{.name = "Werte", .firstRow = 2, .lastRow = 3}}}};
    book.sheets = {sheet, {.name = "Leer"}};
    return book;
}

TEST(Spreadsheet, AnotherProgramReadsWhatWasWritten) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("Übersicht.xlsx");
    writeWorkbook(example(), path);
    const support::Parts parts(path);
    const auto holds = [&](const char *part, std::initializer_list<const char *> texts) {
        const QString whole = parts[part];
        for (const char *text : texts)
            EXPECT_TRUE(whole.contains(text)) << part << ": " << text << "\nin " << whole;
    };
    holds("xl/workbook.xml", {"name=\"Rückblick\" sheetId=\"1\"", "name=\"Leer\" sheetId=\"2\""});
    holds("xl/sharedStrings.xml", {"<t>=1+1</t>", "<t>Jürgen &lt;Groß&gt; &amp; Søn_x0001_</t>"});
    holds("xl/worksheets/sheet1.xml",
          {"<c r=\"A1\" t=\"s\"><v>0</v></c>", "<c r=\"A3\" s=\"1\"><v>46349.5</v></c>",
           "<c r=\"B3\" s=\"2\"><v>-30.0125</v></c>", "<c r=\"A4\" s=\"1\"/>",
           "<c r=\"B4\" s=\"2\"/>", "activeCell=\"A3\""});
    EXPECT_FALSE(parts["xl/worksheets/sheet1.xml"].contains("<f>"));
    holds("xl/styles.xml", {"formatCode=\"dd.mm.yyyy\"", "formatCode=\"0.000\"", "style=\"thin\""});
    holds("xl/charts/chart1.xml",
          {"<c:scatterChart>", "<c:f>'Rückblick'!$A$3:$A$4</c:f>",
           "<c:f>'Rückblick'!$B$3:$B$4</c:f>", "<c:max val=\"10.02\"/>", "<c:min val=\"9.98\"/>",
           "<c:crossesAt val=\"9.98\"/>", "formatCode=\"dd.mm.yyyy\"", "<c:min val=\"46023\"/>",
           "<c:max val=\"46388\"/>", "Wärme"});
    holds("xl/drawings/drawing1.xml", {"descr=\"Diagramm 2\""});
}

TEST(Spreadsheet, WhatCannotBeWrittenLeavesNothing) {
    EXPECT_EQ(support::raised([] { writeWorkbook(example(), "/dev/full/x.xlsx"); }), 70);
    const QTemporaryDir folder;
    const QString path = folder.filePath("x.xlsx");
    QFile::link("/dev/full", path); // a disk without free space
    EXPECT_EQ(support::raised([&] { writeWorkbook(example(), path); }), 70);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

} // namespace
