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
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        bool stays = false; // until a button is pressed
    } cases[] = {
        {OKOnly | Information, Qt::Key_Return, OK, QMessageBox::Information},
        {OKOnly | Critical, Qt::Key_Escape, OK, QMessageBox::Critical},
        {YesNo, Qt::Key_Enter, Yes},
        {YesNo | SecondButtonDefault | Exclamation, Qt::Key_Enter, No, QMessageBox::Warning},
        {YesNo, Qt::Key_Escape, Yes, QMessageBox::NoIcon, true},
        {YesNoCancel | ThirdButtonDefault, Qt::Key_Enter, Cancel},
        {YesNoCancel, Qt::Key_Escape, Cancel},
        {OKCancel | Question, Qt::Key_Return, OK, QMessageBox::Question},
        {OKCancel, Qt::Key_Escape, Cancel},
        {RetryCancel, Qt::Key_Escape, Cancel},
        {AbortRetryIgnore | SecondButtonDefault, Qt::Key_Return, Retry},
        {AbortRetryIgnore, Qt::Key_Escape, Abort, QMessageBox::NoIcon, true},
        {OKOnly | SecondButtonDefault, Qt::Key_Return, OK}, // no such button
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.flags << ' ' << c.key);
        QTimer::singleShot(0, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->text().toStdString(), "first\nsecond\nthird <b>");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->icon(), c.icon);
            EXPECT_EQ(box->windowTitle().toStdString(), "Title");
            QTest::keyClick(box, c.key);
            if (c.stays)
                box->close();
            EXPECT_EQ(box->isVisible(), c.stays);
            if (box->isVisible())
                box->buttons().at(0)->click();
        });
        EXPECT_EQ(msgBox("first\rsecond\r\nthird <b>", c.flags, "Title"), c.answer);
    }
}

} // namespace
