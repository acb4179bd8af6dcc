#include "boxes.h"

#include <gtest/gtest.h>

namespace support {

Boxes::Boxes() {
    platform::setBoxAnswerer([this](const platform::Box &box) { return answer(box); });
}

Boxes::~Boxes() {
    platform::setBoxAnswerer({});
    for (const Expected &missing : mExpected)
        ADD_FAILURE() << "this box did not come: " << missing.text.toStdString();
}

bool Boxes::Expected::matches(const platform::Box &box) const {
    const bool sameText =
        text.endsWith(QString("…")) ? box.text.startsWith(text.chopped(1)) : box.text == text;
    return sameText;
}

void Boxes::expect(const QString &text, int answer, std::function<void()> meanwhile) {
    mExpected.push_back({text, {}, -1, answer, std::move(meanwhile)});
}

void Boxes::expect(const QString &text, const QString &title, int flags, int answer) {
    mExpected.push_back({text, title, flags, answer, {}});
}

void Boxes::allow(const QString &text, int answer) {
    mAllowed.push_back({text, {}, -1, answer, {}});
}

int Boxes::answer(const platform::Box &box) {
    mSeen.push_back(box);
    for (auto it = mExpected.begin(); it != mExpected.end(); ++it) {
        if (!it->matches(box))
            continue;
        const Expected expected = *it;
        mExpected.erase(it);
        if (expected.flags >= 0) {
            EXPECT_EQ(box.flags, expected.flags) << box.text.toStdString();
            EXPECT_EQ(box.title.toStdString(), expected.title.toStdString());
        }
        if (expected.meanwhile)
            expected.meanwhile();
        return expected.answer;
    }
    for (const Expected &allowed : mAllowed) {
        if (allowed.matches(box))
            return allowed.answer;
    }
    ADD_FAILURE() << "unexpected box: \"" << box.title.toStdString() << "\" \""
                  << box.text.toStdString() << '"';
    return (box.flags & 15) == platform::YesNo ? platform::No : platform::OK;
}

} // namespace support
