#include "windows/msgbox.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>

#include <optional>
#include <utility>
#include <vector>

#include "windows/screen.h"
#include "windows/stil.h"

namespace platform {

namespace {

std::function<int(const Box &)> boxAnswerer;
std::function<QString(BoxAnswer)> boxCaptions;
std::function<void()> beeper;
std::function<void()> beforeBox;
bool preparing = false;

std::vector<BoxAnswer> buttonsOf(int flags) {
    switch (flags & 15) {
    case OKCancel:
        return {OK, Cancel};
    case AbortRetryIgnore:
        return {Abort, Retry, Ignore};
    case YesNoCancel:
        return {Yes, No, Cancel};
    case YesNo:
        return {Yes, No};
    case RetryCancel:
        return {Retry, Cancel};
    default:
        return {OK};
    }
}

QMessageBox::Icon iconOf(int flags) {
    switch (flags & 112) {
    case Critical:
        return QMessageBox::Critical;
    case Question:
        return QMessageBox::Question;
    case Exclamation:
        return QMessageBox::Warning;
    case Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QString captionOf(BoxAnswer answer) {
    static const char *const names[] = {"",       "&OK",     "&Cancel", "&Abort",
                                        "&Retry", "&Ignore", "&Yes",    "&No"};
    return boxCaptions ? boxCaptions(answer) : QString(names[answer]);
}

QMessageBox::ButtonRole roleOf(BoxAnswer answer) {
    switch (answer) {
    case OK:
        return QMessageBox::AcceptRole;
    case Yes:
    case No: // a lone NoRole would be taken for the escape button
        return QMessageBox::YesRole;
    default:
        return QMessageBox::RejectRole;
    }
}

/// The title again as a head, a text that is read at the stand, and a bar at what is critical.
class BoxWindow : public QMessageBox {
  public:
    BoxWindow(Icon icon, const QString &title, const QString &text, QWidget *parent)
        : QMessageBox(icon, title, text, NoButton, parent) {
        setTextFormat(Qt::PlainText);
        auto *label = findChild<QLabel *>("qt_msgbox_label");
        setSchrift(label, 12);
        auto *head = new QLabel(title, this);
        head->setTextFormat(Qt::PlainText);
        head->setMinimumWidth(420);
        setSchrift(head, 14, true);

        auto *grid = qobject_cast<QGridLayout *>(layout());
        int row = 0, column = 0, rows = 0, columns = 0;
        grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
        grid->removeWidget(label);
        auto *words = new QVBoxLayout; // a layout, not a widget: the box measures through it
        words->setContentsMargins(0, 0, 0, 16);
        words->setSpacing(8);
        words->addWidget(head);
        words->addWidget(label, 1);
        grid->addLayout(words, row, column, rows, columns);
    }

  protected:
    void paintEvent(QPaintEvent *event) override {
        QMessageBox::paintEvent(event);
        if (icon() == Critical)
            QPainter(this).fillRect(0, 0, 4, height(), farben().schlecht);
    }
};

} // namespace

int msgBox(const QString &text, int flags, const QString &title) {
    const HoldActivations hold;
    if (beforeBox && !std::exchange(preparing, true)) {
        const auto done = qScopeGuard([] { preparing = false; });
        const std::function<void()> action = beforeBox; // it may take itself away
        action();
    }
    if (boxAnswerer)
        return boxAnswerer({text, title, flags});

    // A bare carriage return is a line end in the program's texts, but not for the widget.
    QString lines = text;
    lines.replace("\r\n", "\n").replace('\r', '\n');
    Screen *parent = frontScreen();
    std::optional<Running> parentStays;
    if (parent)
        parentStays.emplace(parent);
    BoxWindow box(iconOf(flags), title, lines, parent);
    const std::vector<BoxAnswer> answers = buttonsOf(flags);
    std::vector<QPushButton *> buttons;
    buttons.reserve(answers.size());
    for (const BoxAnswer answer : answers) {
        buttons.push_back(box.addButton(captionOf(answer), roleOf(answer)));
        buttons.back()->setMinimumSize(104, 36);
    }
    const size_t wanted = (flags & ThirdButtonDefault) ? 2 : (flags & SecondButtonDefault) ? 1 : 0;
    box.setDefaultButton(buttons[std::min(wanted, buttons.size() - 1)]);
    // Escape and the close box answer with the harmless button; Yes/No must be answered.
    if ((flags & 15) != YesNo && (flags & 15) != AbortRetryIgnore) {
        for (size_t i = 0; i < answers.size(); ++i) {
            if (answers[i] == Cancel || answers.size() == 1)
                box.setEscapeButton(buttons[i]);
        }
    }
    const bool busy = QGuiApplication::overrideCursor(); // but here a person is waited for
    if (busy)
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    box.exec();
    if (busy)
        QGuiApplication::restoreOverrideCursor();
    for (size_t i = 0; i < answers.size(); ++i) {
        if (box.clickedButton() == buttons[i])
            return answers[i];
    }
    return answers.back();
}

void setBoxAnswerer(std::function<int(const Box &)> answerer) {
    boxAnswerer = std::move(answerer);
}

void setBeforeBox(std::function<void()> action) {
    beforeBox = std::move(action);
}

void setBoxCaptions(std::function<QString(BoxAnswer)> captions) {
    boxCaptions = std::move(captions);
}

void beep() {
    if (beeper)
        beeper();
    else
        QApplication::beep();
}

void setBeeper(std::function<void()> newBeeper) {
    beeper = std::move(newBeeper);
}

} // namespace platform
