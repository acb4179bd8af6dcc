// Message boxes with the flag semantics of the program. A box is no screen: it activates nothing,
// and while it is open activations are held back.
#pragma once

#include <QString>

#include <functional>

namespace platform {

/// Added up to the flags of a box: one of each group.
enum BoxFlags {
    OKOnly = 0,
    OKCancel = 1,
    AbortRetryIgnore = 2,
    YesNoCancel = 3,
    YesNo = 4,
    RetryCancel = 5,
    Critical = 16,
    Question = 32,
    Exclamation = 48,
    Information = 64,
    SecondButtonDefault = 256,
    ThirdButtonDefault = 512,
};

enum BoxAnswer { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

struct Box {
    QString text;
    QString title;
    int flags = 0;
};

/// Shows the box before the front screen and returns the button that was pressed.
int msgBox(const QString &text, int flags, const QString &title);

/// What stands in for the person: a test's script, or a tour without one. An empty function gives
/// the person back.
void setBoxAnswerer(std::function<int(const Box &)> answerer);

/// Runs before each box opens, but not inside itself: what must not go on while somebody is waited
/// for. An empty function for nothing.
void setBeforeBox(std::function<void()> action);

/// The caption of a button, for the language in force.
void setBoxCaptions(std::function<QString(BoxAnswer)> captions);

/// The short sound that marks the end of a stage or a time-out.
void beep();
void setBeeper(std::function<void()> beeper);

} // namespace platform
