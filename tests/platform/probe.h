// Screens that keep a journal, and a desk to lay them on.
#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <map>
#include <string>
#include <vector>

#include "cases.h"
#include "screen.h"
#include "testclock.h"

using platform::Timer;

enum Id { A = 1000, B, C, D };

class Probe;

/// What the instances of one screen do besides being logged.
struct Plan {
    std::function<void(Probe &)> load, activate, unload, click, tick;
    std::function<bool(Probe &)> queryUnload;
    std::function<void(Probe &)> lost = {};
};

inline std::map<int, Plan> plans;
inline std::vector<std::string> journal;
inline int living = 0;

class Probe : public Screen {
  public:
    explicit Probe(int id)
        : mName(1, static_cast<char>('A' + id - A)),
          mPlan(plans[id]),
          button(new QPushButton(this)),
          box(new QLineEdit(this)),
          other(new QLineEdit(this)),
          list(new QComboBox(this)) {
        ++living;
        box->move(0, 40);
        other->move(0, 80);
        list->move(0, 120);
        list->addItems({"first", "second"});
        onClick(button, [this] { step("click", mPlan.click); });
        onEnter(box, [this] { step("enter", {}); });
        onLostFocus(box, [this] { step("lost", mPlan.lost); });
        timer.onTick = handler([this] { step("tick", mPlan.tick); });
    }
    ~Probe() override { --living; }

    void Form_Load() override { step("load", mPlan.load); }
    void Form_Activate() override { step("activate", mPlan.activate); }
    void Form_Unload() override { step("unload", mPlan.unload); }
    bool Form_QueryUnload() override { return !mPlan.queryUnload || mPlan.queryUnload(*this); }

  private:
    void step(const char *what, const std::function<void(Probe &)> &more) {
        journal.push_back(mName + '.' + what);
        if (!more)
            return;
        more(*this);
        journal.push_back(mName + '.' + what + "-end"); // also shows that the instance still lives
    }
    std::string mName;
    Plan mPlan;

  public:
    QPushButton *button;
    QLineEdit *box, *other;
    QComboBox *list;
    Timer timer{100};
};

inline Probe &probe(int id) {
    return static_cast<Probe &>(platform::screenWithId(id));
}

inline void deliver() {
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
}

class Activation : public testing::Test {
  protected:
    Activation() {
        plans.clear();
        for (int id = A; id <= D; ++id)
            platform::registerScreen(id, [id] { return std::make_unique<Probe>(id); });
    }
    ~Activation() override {
        platform::setUncaughtReporter({});
        platform::closeAllScreens();
        deliver();
        EXPECT_EQ(living, 0);
    }
    /// The journal since the last question.
    static std::string told(bool delivered = true) {
        if (delivered)
            deliver();
        std::string all;
        for (const std::string &entry : std::exchange(journal, {}))
            all += (all.empty() ? "" : " ") + entry;
        return all;
    }
    /// Rows of what is done to screens and what is told then, parted by bars: "A+ B- > A.load =A".
    /// + shows, - hides, ! unloads, * shows modally, n as a notice, ~ takes out of use, ^ back into
    /// it, x closes, @ clicks its button; { and } begin and end a hold. Behind ">" the journal once
    /// events are delivered, behind ">>" before, "..." for whatever; "=A" has the front, "%AB" are
    /// usable.
    void rows(const QString &table) {
        for (const QString &row : table.split(" | ")) {
            SCOPED_TRACE(row.toStdString());
            const bool atOnce = row.contains(">>");
            const QString done = row.section('>', 0, 0);
            for (const QString &step : done.split(' ', Qt::SkipEmptyParts))
                act(step[0].unicode() - u'A' + A, step.back());
            const std::string journaled = told(!atOnce);
            QStringList entries;
            for (const QString &word : row.section('>', -1).split(' ', Qt::SkipEmptyParts)) {
                if (word.startsWith('=')) {
                    EXPECT_EQ(front(), word == "=0" ? 0 : word[1].unicode() - u'A' + A);
                } else if (word.startsWith('%')) {
                    EXPECT_EQ('%' + usable(), word);
                } else {
                    entries += word;
                }
            }
            EXPECT_EQ(entries == QStringList{"..."} ? "..." : journaled,
                      entries.join(' ').toStdString());
        }
    }
    /// Shows them one above the other and forgets about it.
    static void lay(std::initializer_list<int> ids) {
        for (const int id : ids)
            probe(id).show();
        told();
    }

    support::TestClock &clock = support::TestClock::install();

  private:
    void act(int id, QChar what) {
        const std::map<QChar, std::function<void()>> steps{
            {'+', [id] { probe(id).show(); }},
            {'-', [id] { probe(id).hide(); }},
            {'!', [id] { probe(id).unload(); }},
            {'*', [id] { probe(id).showModal(); }},
            {'n', [id] { probe(id).showNotice(); }},
            {'~', [id] { probe(id).disable(); }},
            {'^', [id] { probe(id).enable(); }},
            {'x', [id] { probe(id).close(); }},
            {'@', [id] { QTest::mouseClick(probe(id).button, Qt::LeftButton); }},
            {'{', [this] { mHolds.push_back(std::make_unique<HoldActivations>()); }},
            {'}', [this] { mHolds.pop_back(); }}};
        steps.at(what)();
    }
    static int front() {
        for (int id = A; id <= D; ++id) {
            if (platform::loadedScreen(id) && platform::frontScreen() == platform::loadedScreen(id))
                return id;
        }
        return 0;
    }
    static QString usable() {
        QString names;
        for (int id = A; id <= D; ++id) {
            if (platform::loadedScreen(id) && platform::loadedScreen(id)->usable())
                names += QChar('A' + id - A);
        }
        return names;
    }
    std::vector<std::unique_ptr<HoldActivations>> mHolds;
};
