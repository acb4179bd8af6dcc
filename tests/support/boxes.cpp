#include "boxes.h"

#include <gtest/gtest.h>

#include <utility>

#include "cases.h"

namespace support {

Boxes::Boxes() {
    platform::setBoxAnswerer([this](const platform::Box &box) { return answer(box); });
}

Boxes::~Boxes() {
    platform::setBoxAnswerer({});
    expectAllCame();
}

void Boxes::expectAllCame() {
    for (const Expected &missing : std::exchange(mExpected, {}))
        ADD_FAILURE() << "this box did not come: " << missing.text;
}

bool Boxes::Expected::matches(const platform::Box &box) const {
    return text.endsWith(QString("…")) ? box.text.startsWith(text.chopped(1)) : box.text == text;
}

void Boxes::expect(const QString &text, const QString &title, int flags, int answer,
                   std::function<void()> meanwhile) {
    mExpected.push_back({text, title, flags, answer, std::move(meanwhile)});
}

void Boxes::allow(const QString &text, int answer) {
    mAllowed.push_back({text, {}, -1, answer, {}});
}

int Boxes::answer(const platform::Box &box) {
    mSeen.push_back(box);
    if (!mExpected.empty() && mExpected.front().matches(box)) {
        const Expected expected = mExpected.front();
        mExpected.pop_front();
        if (expected.flags >= 0) {
            EXPECT_EQ(box.flags, expected.flags) << box.text;
            EXPECT_EQ(box.title, expected.title);
        }
        if (expected.meanwhile)
            expected.meanwhile();
        return expected.answer;
    }
    for (const Expected &allowed : mAllowed) {
        if (allowed.matches(box))
            return allowed.answer;
    }
    ADD_FAILURE() << "unexpected box: \"" << box.title << "\" \"" << box.text << "\" " << box.flags
                  << (mExpected.empty() ? QString() : "; awaited: " + mExpected.front().text);
    return (box.flags & 15) == platform::YesNo ? platform::No : platform::OK;
}

} // namespace support
