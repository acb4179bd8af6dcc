#include "windows/help.h"

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QSplitter>
#include <QSvgRenderer>
#include <QTextBrowser>
#include <QTextTable>
#include <QVBoxLayout>

#include "platform/fehler.h"
#include "windows/stil.h"

namespace platform {

namespace {

constexpr auto indexPage = "index";
constexpr int widest = 640; // px, of a picture: the window shows it whole

std::function<HelpSource()> source;

QString wholePage(const QString &folder, const QString &page) {
    QFile file(QDir(folder).filePath(page + ".md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList pagesOf(const QString &folder) {
    QStringList pages;
    for (const HelpEntry &entry : helpContents(folder)) {
        if (!entry.page.isEmpty())
            pages << entry.page;
    }
    return pages;
}

QString pageOf(const QUrl &url) {
    return url.fileName().section('.', 0, 0);
}

QImage shrunk(const QImage &image) {
    return image.width() > widest ? image.scaledToWidth(widest, Qt::SmoothTransformation) : image;
}

QImage drawn(const QString &file, qreal ratio) {
    QSvgRenderer renderer(file);
    if (!renderer.isValid())
        return {};
    QSize size = renderer.defaultSize();
    if (size.width() > widest)
        size.scale(widest, size.height(), Qt::KeepAspectRatio);
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    return image;
}

class Browser : public QTextBrowser {
  public:
    using QTextBrowser::QTextBrowser;
    HelpSource from;

    void tables() {
        for (QTextFrame *frame : document()->rootFrame()->childFrames()) {
            auto *table = qobject_cast<QTextTable *>(frame);
            if (!table)
                continue;
            QTextTableFormat format = table->format();
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(farben().linie);
            format.setBorderCollapse(true);
            format.setCellPadding(5);
            format.setTopMargin(6);
            format.setBottomMargin(10);
            format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
            table->setFormat(format);
        }
    }

    QVariant loadResource(int type, const QUrl &name) override {
        const QString file = name.fileName();
        if (type != QTextDocument::ImageResource)
            return helpText(from.pages, pageOf(name));
        if (file.endsWith(".svg")) {
            const QString own =
                QString("%1/%2-%3.svg").arg(from.drawings, pageOf(name), from.language);
            return drawn(own, devicePixelRatioF());
        }
        const QImage picture(QDir(from.pictures).filePath(file));
        if (!picture.isNull())
            return shrunk(picture);
        QImage none(1, 1, QImage::Format_ARGB32_Premultiplied);
        none.fill(Qt::transparent);
        return none;
    }
};

class Help : public QWidget {
  public:
    Help() : QWidget(nullptr, Qt::Window) {
        setAttribute(Qt::WA_QuitOnClose, false);
        mList->setObjectName("lbContents");
        mSearch->setObjectName("txtSearch");
        mPage->setObjectName("txtPage");
        mList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        mSearch->setClearButtonEnabled(true);
        mPage->setFrameShape(QFrame::NoFrame);
        mPage->document()->setDocumentMargin(16);

        auto *buttons = new QHBoxLayout;
        buttons->setSpacing(8);
        for (QPushButton *one : {mBack, mForward, mContents})
            buttons->addWidget(one);
        buttons->addStretch();
        buttons->addWidget(mClose);
        auto *left = new QWidget;
        auto *leftColumn = new QVBoxLayout(left);
        leftColumn->setContentsMargins(0, 0, 0, 0);
        leftColumn->setSpacing(8);
        leftColumn->addWidget(mSearch);
        leftColumn->addWidget(mList, 1);
        auto *halves = new QSplitter;
        halves->setHandleWidth(8);
        halves->addWidget(left);
        halves->addWidget(mPage);
        halves->setStretchFactor(1, 1);
        halves->setSizes({260, 700});
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(8, 8, 8, 8);
        column->setSpacing(8);
        column->addLayout(buttons);
        column->addWidget(halves, 1);
        resize(1000, 660);
        wire();
    }

    void take(const HelpSource &from) {
        setWindowTitle(from.texts.title);
        mBack->setText(from.texts.back);
        mForward->setText(from.texts.forward);
        mContents->setText(from.texts.contents);
        mClose->setText(from.texts.close);
        mSearch->setPlaceholderText(from.texts.search);
        mSearch->setAccessibleName(from.texts.search);
        mList->setAccessibleName(QString(from.texts.contents).remove('&'));
        if (from.pages == mPage->from.pages)
            return;
        mPage->from = from;
        mPlain.clear();
        mPage->clearHistory();
        if (!mShown.isEmpty())
            mPage->reload(); // a page of the same name is another one now
        mSearch->clear();
        list();
    }

    void turnTo(const QString &page) { mPage->setSource(QUrl(page + ".md")); }
    void read() { mPage->setFocus(); }

  private:
    void wire() {
        connect(mBack, &QPushButton::clicked, mPage, &QTextBrowser::backward);
        connect(mForward, &QPushButton::clicked, mPage, &QTextBrowser::forward);
        connect(mPage, &QTextBrowser::backwardAvailable, mBack, &QPushButton::setEnabled);
        connect(mPage, &QTextBrowser::forwardAvailable, mForward, &QPushButton::setEnabled);
        connect(mContents, &QPushButton::clicked, this, [this] {
            mSearch->clear();
            turnTo(indexPage);
        });
        connect(mClose, &QPushButton::clicked, this, &QWidget::close);
        connect(mPage, &QTextBrowser::sourceChanged, this, [this](const QUrl &url) {
            mShown = pageOf(url);
            mPage->tables();
            mark();
            showPlace();
        });
        connect(mSearch, &QLineEdit::textChanged, this, [this] { list(); });
        connect(mSearch, &QLineEdit::returnPressed, this, [this] { nextHit(); });
        connect(mList, &QListWidget::currentItemChanged, this, [this](QListWidgetItem *chosen) {
            const QString page = chosen ? chosen->data(Qt::UserRole).toString() : QString();
            if (!page.isEmpty() && page != mShown)
                turnTo(page);
        });
        new QShortcut(QKeySequence(Qt::Key_Escape), this, [this] { close(); });
        auto *f1 = new QShortcut(QKeySequence(Qt::Key_F1), this, [this] { mContents->click(); });
        f1->setAutoRepeat(false); // held down, it is still the one that opened the page
        new QShortcut(QKeySequence::Find, this, [this] {
            mSearch->setFocus();
            mSearch->selectAll();
        });
        mBack->setEnabled(false);
        mForward->setEnabled(false);
    }

    QStringList words() const { return mSearch->text().split(' ', Qt::SkipEmptyParts); }

    const QString &plain(const QString &page) {
        QString &text = mPlain[page];
        if (text.isEmpty()) {
            QTextDocument document;
            document.setMarkdown(helpText(mPage->from.pages, page));
            text = document.toPlainText();
        }
        return text;
    }

    bool holdsAll(const QString &page, const QStringList &wanted) {
        return std::all_of(wanted.begin(), wanted.end(), [&](const QString &word) {
            return plain(page).contains(word, Qt::CaseInsensitive);
        });
    }

    // The contents, or the pages that hold all the words.
    void list() {
        const QStringList wanted = words();
        const QSignalBlocker quiet(mList);
        mList->clear();
        for (const HelpEntry &entry : helpContents(mPage->from.pages)) {
            const bool chapter = entry.page.isEmpty();
            if (!wanted.isEmpty() && (chapter || !holdsAll(entry.page, wanted)))
                continue;
            auto *item = new QListWidgetItem(entry.title, mList);
            item->setData(Qt::UserRole, entry.page);
            if (chapter) {
                item->setFont(schrift(0, true));
                item->setFlags(Qt::ItemIsEnabled);
            }
        }
        if (mList->count() == 0) {
            auto *item = new QListWidgetItem(mPage->from.texts.nothing, mList);
            item->setFlags(Qt::NoItemFlags);
        }
        mark();
        showPlace();
    }

    void showPlace() {
        const QSignalBlocker quiet(mList);
        mList->setCurrentRow(-1);
        for (int row = 0; row < mList->count(); ++row) {
            const QString page = mList->item(row)->data(Qt::UserRole).toString();
            if (!page.isEmpty() && page == mShown)
                mList->setCurrentRow(row);
        }
    }

    // The words that were looked for, on the ground that free input has.
    void mark() {
        QList<QTextEdit::ExtraSelection> marks;
        for (const QString &word : words()) {
            for (QTextCursor hit = mPage->document()->find(word); !hit.isNull();
                 hit = mPage->document()->find(word, hit)) {
                QTextEdit::ExtraSelection one;
                one.cursor = hit;
                one.format.setBackground(QColor(freiGrund));
                one.format.setForeground(Qt::black);
                marks << one;
            }
        }
        mPage->setExtraSelections(marks);
    }

    // Enter walks from hit to hit, and first to a page that has one.
    void nextHit() {
        if (words().isEmpty())
            return;
        if (!holdsAll(mShown, words())) {
            if (!mList->item(0)->data(Qt::UserRole).toString().isEmpty())
                mList->setCurrentRow(0);
        }
        const QString word = words().first();
        if (!mPage->find(word)) {
            mPage->moveCursor(QTextCursor::Start);
            mPage->find(word);
        }
    }

    QPushButton *mBack = named("pbBack"), *mForward = named("pbForward"),
                *mContents = named("pbContents"), *mClose = named("pbClose");
    QLineEdit *mSearch = new QLineEdit;
    QListWidget *mList = new QListWidget;
    Browser *mPage = new Browser;
    QString mShown;
    std::map<QString, QString> mPlain; // text of a page, by its name

    static QPushButton *named(const char *name) {
        auto *button = new QPushButton;
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    }
};

QPointer<Help> window;

} // namespace

void setHelpSource(std::function<HelpSource()> given) {
    source = std::move(given);
}

std::vector<HelpEntry> helpContents(const QString &folder) {
    static const QRegularExpression chapter("^## (.+)$");
    static const QRegularExpression link(R"(^[-*] +\[([^\]]+)\]\(([^)]+)\.md\))");
    std::vector<HelpEntry> contents;
    for (const QString &line : wholePage(folder, indexPage).split('\n')) {
        if (const auto found = chapter.match(line); found.hasMatch())
            contents.push_back({found.captured(1).trimmed(), {}});
        else if (const auto entry = link.match(line); entry.hasMatch())
            contents.push_back({entry.captured(1), entry.captured(2)});
    }
    return contents;
}

QString helpText(const QString &folder, const QString &page) {
    const QString whole = wholePage(folder, page);
    return whole.startsWith("<!--") ? whole.section('\n', 1) : whole;
}

QString helpPageOf(const QString &folder, const QString &screen) {
    for (const QString &page : pagesOf(folder)) {
        const QString first = wholePage(folder, page).section('\n', 0, 0);
        if (first.startsWith("<!--") && first.split(' ').contains(screen))
            return page;
    }
    return indexPage;
}

void showHelp(const QString &screen) {
    const HelpSource from = source ? source() : HelpSource{};
    if (wholePage(from.pages, indexPage).isEmpty()) {
        throw Fehler(fehlernummer::FileNotFound, {"Die Hilfe lässt sich nicht öffnen.", //
                                                  "The help cannot be opened."});
    }
    if (!window)
        window = new Help;
    window->take(from);
    window->turnTo(helpPageOf(from.pages, screen));
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->read();
    window->raise();
    window->activateWindow();
}

void closeHelp() {
    delete window;
}

} // namespace platform
