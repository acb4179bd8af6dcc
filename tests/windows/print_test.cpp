// Layout files, and documents on their way to PDF.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "cases.h"
#include "windows/layout.h"
#include "windows/print.h"

namespace {

using namespace platform;
using support::Case;

class Print : public testing::Test {
  protected:
    QString written(const QString &name, const QByteArray &text) {
        QFile file(directory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }
    static QByteArray contents(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
    QTemporaryDir directory;
    const LayoutData data{
        {{"Kunde", "<b>&\"O'Hara\"\n  Süd"}, {"Leer", ""}, {"Null", "0"}},
        {{"Zeilen", {{"n", "P"}, {{{"n", "1"}, {"P", "≤ 5"}}, {{"n", "2"}, {"P", ""}}}}},
         {"Keine", {{"x"}, {}}}}};
};

TEST_F(Print, LayoutsAreFilledAsTheyAreWritten) {
    written("fuß.rpt", "[{{Null}}]");
    for (const Case &c : {
             Case{"{{Kunde}}", "&lt;b&gt;&amp;&quot;O'Hara&quot;<br/>&nbsp;&nbsp;Süd"},
             Case{"{{#Leer}}da{{/Leer}}{{^Leer}}leer{{/Leer}}", "leer"},
             Case{"{{#Null}}{{Null}}{{/Null}}", "0"},
             Case{"{{#Zeilen}}{{n}}:{{P}}{{^P}}-{{/P}}{{Leer}};{{/Zeilen}}", "1:≤ 5;2:-;"},
             Case{"{{#Keine}}{{x}}{{/Keine}}{{^Keine}}nichts{{/Keine}}", "nichts"},
             Case{"a{{! was hier steht}}b{{>fuß.rpt}}c", "ab[0]c"},
         })
        EXPECT_EQ(Layout(written("l.rpt", c.in.toUtf8())).filled(data).replace("&#39;", "'"), c.out)
            << c;
}

TEST_F(Print, BrokenLayoutsSayWhere) {
    written("self.rpt", "{{>self.rpt}}");
    written("half.rpt", "{{/Zeilen}}");
    for (const Case &c : {
             Case{"\n{{Kund}}", "l.rpt, 2: Das Feld Kund gibt es nicht."},
             Case{"{{n}}", "l.rpt, 1: Das Feld n gibt es nicht."}, // outside of its rows
             Case{"\n\n{{#Zeilen}}{{n}}",
                  "l.rpt, 3: Der Abschnitt {{#Zeilen}} ist nicht geschlossen."},
             Case{"{{#Zeilen}}{{/Leer}}", "l.rpt, 1: {{/Leer}} schließt keinen Abschnitt."},
             Case{"{{#Zeilen}}{{>half.rpt}}",
                  "half.rpt, 1: {{/Zeilen}} schließt keinen Abschnitt."},
             Case{"\n{{Kunde} B {{Null}} C", "l.rpt, 2: Ein Feld ist nicht geschlossen."},
             Case{"\n{{#Zeilen}}{{n}}\n\n{{Kunde}}",
                  "l.rpt, 2: Der Abschnitt {{#Zeilen}} ist nicht geschlossen."},
             Case{"\n{{Kunde", "l.rpt, 2: Ein Feld ist nicht geschlossen."},
             Case{"{{{Kunde}}}", "l.rpt, 1: Felder werden nur als {{Name}} geschrieben."},
             Case{"{{>self.rpt}}", "self.rpt, 1: Die Dateien holen einander herein."},
         })
        try {
            const QString text = Layout(written("l.rpt", c.in.toUtf8())).filled(data);
            ADD_FAILURE() << c << text;
        } catch (const Fehler &fehler) {
            EXPECT_EQ(fehler.text().german, c.out);
        }
    for (const char *missing : {"none.rpt", "takes.rpt"}) {
        written("takes.rpt", "{{>none.rpt}}");
        EXPECT_THROW(Layout(directory.filePath(missing)), Fehler);
    }
}

TEST_F(Print, ReportsArePdfOfPagesWithHeadAndFoot) {
    QString rows;
    for (int row = 1; row <= 120; ++row)
        rows += QString("<tr><td>%1</td><td>Prüfling ≤ ±5 Öffnung</td></tr>").arg(row);
    const Report report("<header>Kopf</header><footer>@page@/@pages@</footer><table class='lines'>"
                        "<thead><tr><th>Nr</th><th>Text</th></tr></thead>" +
                            rows + "</table>",
                        "Protokoll 12");
    EXPECT_GT(report.pages(), 2);
    EXPECT_TRUE(report.text().contains("Prüfling ≤ ±5 Öffnung"));
    const QByteArray pdf = report.pdf();
    EXPECT_EQ(pdf.count("/Type /Page\n"), report.pages());
    for (const char *part : {"pdfaid:part=\"1\"", "/OutputIntents", "/FontFile"})
        EXPECT_TRUE(pdf.contains(part)) << part;
    EXPECT_FALSE(pdf.contains("/EmbeddedFiles"));
}

TEST_F(Print, PagesAreTheSameOnEveryDeviceAndPartNoShortTable) {
    QString lines;
    for (int line = 1; line <= 50; ++line)
        lines += QString("<p>line%1</p>").arg(line);
    const Report report("<header>Kopf</header><footer>@page@/@pages@</footer>" + lines +
                            "<table class='lines'><tr><td>first</td></tr><tr><td>2</td></tr>"
                            "<tr><td>3</td></tr><tr><td>4</td></tr><tr><td>last</td></tr></table>",
                        "Protokoll 12");
    QMap<QString, QPointF> before; // words behind the number of their page, their places in points
    for (const int dotsPerInch : {600, 150}) {
        const QString path = directory.filePath("pages.pdf");
        {
            QPdfWriter device(path);
            device.setResolution(dotsPerInch);
            report.paint(device);
        }
        QProcess reader;
        reader.start("pdftotext", {"-bbox", path, "-"});
        EXPECT_TRUE(reader.waitForFinished()) << "needs poppler-utils";
        QMap<QString, QPointF> places;
        int page = 0;
        for (const QString &row : QString::fromUtf8(reader.readAll()).split('\n')) {
            static const QRegularExpression word("xMin=.([0-9.]+).*yMin=.([0-9.]+).*>(.*)</word>");
            page += row.contains("<page");
            if (const auto found = word.match(row); found.hasMatch())
                places[QString("%1 %2").arg(page).arg(found.captured(3))] = {
                    found.captured(1).toDouble(), found.captured(2).toDouble()};
        }
        for (const char *word :
             {"1 Kopf", "1 line50", "1 1/2", "2 Kopf", "2 first", "2 last", "2 2/2"})
            EXPECT_TRUE(places.contains(word)) << word;
        EXPECT_GT(places["1 1/2"].y(), places["1 line50"].y());
        for (const QString &word : before.keys())
            EXPECT_LT((places[word] - before[word]).manhattanLength(), 2) << word;
        before = places;
    }
}

TEST_F(Print, AFileIsWholeUnderItsNameAndTheFormerOneKept) {
    const QString path = directory.filePath("PDF/12/12.pdf");
    saveReport("first", path);
    for (const char *later : {"second", "third"})
        saveReport(later, path);
    EXPECT_EQ(contents(path), "third");
    const QDir kept(directory.filePath("PDF/12/ersetzt"));
    ASSERT_EQ(kept.entryList(QDir::Files).size(), 2);
    EXPECT_EQ(contents(kept.filePath(kept.entryList(QDir::Files).front())), "first");

    written("in-the-way", "");
    EXPECT_THROW(saveReport("third", directory.filePath("in-the-way/12.pdf")), Fehler);
    EXPECT_THROW(saveReport("third", directory.filePath("PDF/12")), Fehler);
    EXPECT_EQ(QDir(directory.filePath("PDF/12")).entryList(QDir::Files), QStringList("12.pdf"));
}

} // namespace
