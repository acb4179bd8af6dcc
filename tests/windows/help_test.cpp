// The help window over pages of its own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include "platform/fehler.h"
#include "windows/help.h"

namespace {

using namespace platform;

class Help : public testing::Test {
  protected:
    Help() {
        for (const char *one : {"de", "en"})
            QDir(place.path()).mkdir(one);
        write("de/index",
              "<!-- -->\n# Inhalt\n\n## Stamm\n\n- [Kunden](kunden.md)\n- [Messen](messen.md)\n");
        write("de/kunden",
              "<!-- frmKunden frmNeuKunde -->\n# Kunden\n\nWelle und [Messen](messen.md).\n");
        write("de/messen",
              "<!-- frmMessen -->\n# Messen\n\n| Feld | Einheit |\n|---|---|\n| Moment | N m |\n");
        write("en/index", "# Contents\n\n- [Customers](kunden.md)\n");
        write("en/kunden", "<!-- frmKunden -->\n# Customers\n");
        setHelpSource([this] {
            HelpSource from;
            from.pages = place.filePath(language);
            from.drawings = place.path();
            from.pictures = from.pages;
            from.language = language;
            from.texts.title = "Hilfe " + language;
            from.texts.nothing = "Nichts";
            return from;
        });
    }
    ~Help() override {
        closeHelp();
        setHelpSource({});
    }

    void write(const QString &name, const QByteArray &text) {
        QFile file(place.filePath(name + ".md"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    static QWidget *window() {
        for (QWidget *one : QApplication::topLevelWidgets()) {
            if (one->windowTitle().startsWith("Hilfe") && one->isVisible())
                return one;
        }
        return nullptr;
    }
    template <class Control>
    static Control *control(const char *name) {
        return window()->findChild<Control *>(name);
    }
    static QString heading() {
        return control<QTextBrowser>("txtPage")->toPlainText().section('\n', 0, 0);
    }
    static QString list() {
        QStringList all;
        const auto *entries = control<QListWidget>("lbContents");
        for (int row = 0; row < entries->count(); ++row)
            all << (row == entries->currentRow() ? "*" : "") + entries->item(row)->text();
        return all.join(' ');
    }

    QTemporaryDir place;
    QString language = "de";
};

TEST_F(Help, TurnsToThePageOfAScreenAndBack) {
    showHelp("frmNeuKunde");
    EXPECT_EQ(heading(), "Kunden");
    EXPECT_EQ(list(), "Stamm *Kunden Messen");
    showHelp("frmMessen");
    EXPECT_EQ(heading(), "Messen");
    control<QPushButton>("pbBack")->click();
    EXPECT_EQ(heading(), "Kunden");
    control<QPushButton>("pbForward")->click();
    EXPECT_EQ(heading(), "Messen");
    control<QPushButton>("pbBack")->click();
    control<QPushButton>("pbContents")->click();
    EXPECT_EQ(heading(), "Inhalt");
    control<QListWidget>("lbContents")->setCurrentRow(2);
    EXPECT_EQ(heading(), "Messen");
    showHelp("frmSplash");
    EXPECT_EQ(heading(), "Inhalt");
    language = "en";
    showHelp("frmKunden");
    EXPECT_EQ(heading(), "Customers");
    EXPECT_EQ(window()->windowTitle(), "Hilfe en");
    language = "de";
    showHelp("frmKunden");
    EXPECT_EQ(heading(), "Kunden");
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    QTest::keyClick(window(), Qt::Key_Escape);
    EXPECT_EQ(window(), nullptr);
}

TEST_F(Help, ShowsPicturesAndDrawingsNoWiderThanItsPage) {
    QImage wide(1300, 650, QImage::Format_RGB32);
    wide.fill(Qt::red);
    ASSERT_TRUE(wide.save(place.filePath("de/breit.png")));
    QFile drawing(place.filePath("fall-de.svg"));
    ASSERT_TRUE(drawing.open(QIODevice::WriteOnly));
    drawing.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="20">
                     <rect width="40" height="20" fill="#0000ff"/></svg>)");
    drawing.close();
    showHelp("frmKunden");
    const auto picture = [](const char *name) {
        return control<QTextBrowser>("txtPage")
            ->loadResource(QTextDocument::ImageResource, QUrl(name))
            .value<QImage>();
    };
    EXPECT_EQ(picture("breit.png").size(), QSize(640, 320));
    EXPECT_EQ(picture("breit.png").pixelColor(600, 300), QColor(Qt::red));
    EXPECT_EQ(picture("fall.svg").pixelColor(39, 19), QColor(Qt::blue));
    EXPECT_EQ(picture("fehlt.png").size(), QSize(1, 1));
}

TEST_F(Help, FindsPagesByTheirWords) {
    showHelp("frmSplash");
    auto *search = control<QLineEdit>("txtSearch");
    QTest::keyClicks(search, "messen WELLE");
    EXPECT_EQ(list(), "Kunden");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(heading(), "Kunden");
    auto *page = control<QTextBrowser>("txtPage");
    ASSERT_EQ(page->extraSelections().size(), 2);
    EXPECT_EQ(page->extraSelections()[0].cursor.selectedText(), "Messen");
    EXPECT_EQ(page->textCursor().selectedText(), "Messen");
    search->setText("Kreuzgelenk");
    EXPECT_EQ(list(), "Nichts");
    QTest::keyClick(search, Qt::Key_Return); // finds nothing, stays
    EXPECT_EQ(heading(), "Kunden");
    search->setText("   ");
    EXPECT_EQ(list(), "Stamm *Kunden Messen");
}

TEST_F(Help, SaysWhereThereIsNone) {
    language = "fr";
    EXPECT_THROW(showHelp("frmKunden"), Fehler);
    setHelpSource({});
    EXPECT_THROW(showHelp("frmKunden"), Fehler);
}

} // namespace
