// Real message boxes: which button the keyboard presses, and how the text is shown.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "cases.h"
#include "windows/msgbox.h"

namespace {

using namespace platform;

TEST(MsgBox, KeysAnswerByTheFlags) {
    for (const auto &[flags, key, answer, icon] :
         std::initializer_list<std::tuple<int, Qt::Key, int, QMessageBox::Icon>>{
             {OKOnly | Information, Qt::Key_Return, OK, QMessageBox::Information},
             {OKOnly | Critical, Qt::Key_Escape, OK, QMessageBox::Critical},
             {YesNo, Qt::Key_Enter, Yes, {}},
             {YesNo | SecondButtonDefault | Exclamation, Qt::Key_Enter, No, QMessageBox::Warning},
             {YesNo, Qt::Key_Escape, Yes, {}},
             {YesNoCancel | ThirdButtonDefault, Qt::Key_Enter, Cancel, {}},
             {YesNoCancel, Qt::Key_Escape, Cancel, {}},
             {OKCancel | Question, Qt::Key_Return, OK, QMessageBox::Question},
             {OKCancel, Qt::Key_Escape, Cancel, {}},
             {RetryCancel, Qt::Key_Escape, Cancel, {}},
             {AbortRetryIgnore | SecondButtonDefault, Qt::Key_Return, Retry, {}},
             {AbortRetryIgnore, Qt::Key_Escape, Abort, {}},
             {OKOnly | SecondButtonDefault, Qt::Key_Return, OK, {}}}) { // no such button
        SCOPED_TRACE(testing::Message() << flags << ' ' << key);
        // With no button for Escape the box stays until one is pressed.
        const bool stays = key == Qt::Key_Escape && (answer == Yes || answer == Abort);
        QTimer::singleShot(0, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->windowTitle() + '/' + box->text(), "Title/first\nsecond\nthird <b>");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->icon(), icon);
            QTest::keyClick(box, key);
            if (stays)
                box->close();
            EXPECT_EQ(box->isVisible(), stays);
            if (box->isVisible())
                box->buttons().at(0)->click();
        });
        EXPECT_EQ(msgBox("first\rsecond\r\nthird <b>", flags, "Title"), answer);
    }
}

} // namespace
