#include "windows/msgbox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <optional>
#include <vector>

#include "windows/screen.h"

namespace platform {

namespace {

std::function<int(const Box &)> boxAnswerer;
std::function<QString(BoxAnswer)> boxCaptions;
std::function<void()> beeper;

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

} // namespace

int msgBox(const QString &text, int flags, const QString &title) {
    const HoldActivations hold;
    if (boxAnswerer)
        return boxAnswerer({text, title, flags});

    // A bare carriage return is a line end in the program's texts, but not for the widget.
    QString lines = text;
    lines.replace("\r\n", "\n").replace('\r', '\n');
    Screen *parent = frontScreen();
    std::optional<Running> parentStays;
    if (parent)
        parentStays.emplace(parent);
    QMessageBox box(iconOf(flags), title, lines, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    const std::vector<BoxAnswer> answers = buttonsOf(flags);
    std::vector<QPushButton *> buttons;
    buttons.reserve(answers.size());
    for (const BoxAnswer answer : answers)
        buttons.push_back(box.addButton(captionOf(answer), roleOf(answer)));
    const size_t wanted = (flags & ThirdButtonDefault) ? 2 : (flags & SecondButtonDefault) ? 1 : 0;
    box.setDefaultButton(buttons[std::min(wanted, buttons.size() - 1)]);
    // Escape and the close box answer with the harmless button; Yes/No must be answered.
    if ((flags & 15) != YesNo && (flags & 15) != AbortRetryIgnore) {
        for (size_t i = 0; i < answers.size(); ++i) {
            if (answers[i] == Cancel || answers.size() == 1)
                box.setEscapeButton(buttons[i]);
        }
    }
    box.exec();
    for (size_t i = 0; i < answers.size(); ++i) {
        if (box.clickedButton() == buttons[i])
            return answers[i];
    }
    return answers.back();
}

void setBoxAnswerer(std::function<int(const Box &)> answerer) {
    boxAnswerer = std::move(answerer);
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
