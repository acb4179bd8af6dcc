// The message boxes of a test: which one comes, and what is answered. A box that nobody expected
// fails the test, and so does one that was expected and did not come.
#pragma once

#include <QString>

#include <functional>
#include <list>
#include <vector>

#include "windows/msgbox.h"

namespace support {

class Boxes {
  public:
    Boxes();
    ~Boxes();
    Boxes(const Boxes &) = delete;
    Boxes &operator=(const Boxes &) = delete;

    /// This box comes next, after those that are expected before it. `meanwhile` runs while it is
    /// open. A text with a "…" at its end needs to begin the box's own; flags below 0 are not
    /// looked at, nor the title then.
    void expect(const QString &text, const QString &title, int flags, int answer = platform::OK,
                std::function<void()> meanwhile = {});
    /// This box may come any number of times.
    void allow(const QString &text, int answer = platform::OK);

    const std::vector<platform::Box> &seen() const { return mSeen; }
    bool allCame() const { return mExpected.empty(); }
    /// Each expected one that has not come by now fails the test, and is awaited no more.
    void expectAllCame();

  private:
    struct Expected {
        QString text;
        QString title;
        int flags = -1;
        int answer = platform::OK;
        std::function<void()> meanwhile;
        bool matches(const platform::Box &box) const;
    };
    int answer(const platform::Box &box);

    std::list<Expected> mExpected;
    std::vector<Expected> mAllowed;
    std::vector<platform::Box> mSeen;
};

} // namespace support
