// Real message boxes: which button the keyboard presses, and how the text is shown.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "msgbox.h"

namespace {

using namespace platform;

TEST(MsgBox, KeysAnswerByTheFlags) {
    const struct {
        int flags;
        Qt::Key key;
        int answer;
    } cases[] = {
        {OKOnly, Qt::Key_Return, OK},
        {OKOnly, Qt::Key_Escape, OK},
        {YesNo, Qt::Key_Enter, Yes},
        {YesNo | SecondButtonDefault | Exclamation, Qt::Key_Enter, No},
        {YesNoCancel | ThirdButtonDefault, Qt::Key_Enter, Cancel},
        {YesNoCancel, Qt::Key_Escape, Cancel},
        {OKCancel | Question, Qt::Key_Return, OK},
        {OKCancel, Qt::Key_Escape, Cancel},
        {RetryCancel, Qt::Key_Escape, Cancel},
        {AbortRetryIgnore | SecondButtonDefault, Qt::Key_Return, Retry},
        {OKOnly | SecondButtonDefault, Qt::Key_Return, OK}, // no such button
    };
    for (const auto &c : cases) {
        QString shown;
        QTimer::singleShot(0, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            shown = box->text();
            QTest::keyClick(box, c.key);
        });
        EXPECT_EQ(msgBox("first\rsecond\r\nthird <b>", c.flags, "Title"), c.answer)
            << c.flags << ' ' << c.key;
        EXPECT_EQ(shown, "first\nsecond\nthird <b>");
    }
}

TEST(MsgBox, AYesNoQuestionMustBeAnswered) {
    for (const int flags : {int(YesNo), int(AbortRetryIgnore)}) {
        QTimer::singleShot(0, [] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            QTest::keyClick(box, Qt::Key_Escape);
            box->close();
            EXPECT_TRUE(box->isVisible());
            if (box->isVisible())
                box->buttons().at(0)->click();
        });
        const int answer = msgBox("?", flags, "Title");
        EXPECT_EQ(answer, flags == YesNo ? Yes : Abort);
    }
}

} // namespace
