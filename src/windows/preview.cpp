#include "windows/preview.h"

#include <QApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <vector>

#include "windows/msgbox.h"
#include "windows/printers.h"
#include "windows/stil.h"

namespace platform {

namespace {

std::function<PreviewTexts()> captions;
std::vector<QPointer<QWidget>> windows;

class Preview : public QWidget {
  public:
    explicit Preview(Report report)
        : mReport(std::move(report)),
          mTexts(captions ? captions() : PreviewTexts{}),
          mPrinter(QPrinter::HighResolution),
          mView(new QPrintPreviewWidget(&mPrinter, this)) {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowTitle(mReport.title());
        mPrinter.setOutputFormat(QPrinter::PdfFormat); // its pages alone are wanted
        connect(mView, &QPrintPreviewWidget::paintRequested, this,
                [this](QPrinter *printer) { mReport.paint(*printer); });
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(8, 8, 8, 8);
        column->setSpacing(8);
        auto *buttons = new QHBoxLayout;
        buttons->setSpacing(8);
        column->addLayout(buttons);
        column->addWidget(mView, 1);
        const auto button = [&](const char *name, const QString &caption, auto action) {
            auto *made = new QPushButton(caption, this);
            made->setObjectName(name);
            connect(made, &QPushButton::clicked, this, action);
            buttons->addWidget(made);
            return made;
        };
        button("pbSmaller", mTexts.smaller, [this] { mView->zoomOut(); });
        button("pbLarger", mTexts.larger, [this] { mView->zoomIn(); });
        button("pbWidth", mTexts.width, [this] { mView->fitToWidth(); });
        button("pbPages", mTexts.pages, [this] { mView->setAllPagesViewMode(); });
        buttons->addStretch();
        button("pbPrint", mTexts.print, [this] { print(); });
        button("pbSave", mTexts.save, [this] { save(); });
        button("pbClose", mTexts.close, [this] { close(); })->setDefault(true);
        new QShortcut(QKeySequence(Qt::Key_Escape), this, [this] { close(); });
        resize(900, 660);
    }

  private:
    void print() {
        told([this] {
            const QByteArray pdf = printReport(mReport);
            if (!pdf.isEmpty()) // no paper: the file is what there is
                save();
        });
    }

    void save() {
        told([this] {
            const QString path = QFileDialog::getSaveFileName(
                this, QString(mTexts.save).remove('&'), mReport.title() + ".pdf",
                mTexts.pdfFiles + " (*.pdf)");
            if (!path.isEmpty())
                saveReport(mReport.pdf(), path);
        });
    }

    template <class Action>
    void told(Action action) {
        try {
            action();
        } catch (const Fehler &fehler) {
            msgBox(mTexts.said(fehler), Critical, mTexts.failed);
        }
    }

    Report mReport;
    PreviewTexts mTexts;
    QPrinter mPrinter;
    QPrintPreviewWidget *mView;
};

} // namespace

void setPreviewTexts(std::function<PreviewTexts()> texts) {
    captions = std::move(texts);
}

void showPreview(Report report) {
    auto *window = new Preview(std::move(report));
    windows.emplace_back(window);
    window->show();
}

void raisePreview() {
    if (windows.empty() || !windows.back())
        return;
    windows.back()->raise();
    windows.back()->activateWindow();
}

void closePreviews() {
    for (const QPointer<QWidget> &window : std::exchange(windows, {}))
        delete window;
}

} // namespace platform
