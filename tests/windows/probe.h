// Screens that keep a journal, and a desk to lay them on.
#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QHash>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "cases.h"
#include "platform/guard.h"
#include "testclock.h"
#include "windows/screen.h"

enum Id { A = 1000, B, C, D };

class Probe;

/// What the screens do besides being logged, "A.load".
inline QHash<QString, std::function<void(Probe &)>> plans;
inline QStringList journal;
inline int living = 0;

class Probe : public Screen {
  public:
    explicit Probe(int id) : mName('A' + id - A) {
        ++living;
        box->move(0, 40);
        other->move(0, 80);
        list->move(0, 120);
        list->addItems({"first", "second"});
        onClick(button, [this] { step(".click"); });
        onEnter(box, [this] { step(".enter"); });
        onLostFocus(box, [this] { step(".lost"); });
        timer.onTick = handler([this] { step(".tick"); });
    }
    ~Probe() override { --living; }

    void Form_Load() override { step(".load"); }
    void Form_Activate() override { step(".activate"); }
    void Form_Unload() override { step(".unload"); }
    bool Form_QueryUnload() override {
        if (const auto more = plans.value(mName + QString(".query")))
            more(*this);
        return agrees;
    }

    void go() { unload(); }
    void shut() { close(); }
    void click() { QTest::mouseClick(button, Qt::LeftButton); }

    bool agrees = true;
    QPushButton *button = new QPushButton(this);
    QLineEdit *box = new QLineEdit(this), *other = new QLineEdit(this);
    QComboBox *list = new QComboBox(this);
    platform::Timer timer{100};

  private:
    void step(const QString &what) {
        journal += mName + what;
        if (const auto more = plans.value(mName + what)) {
            more(*this);
            journal += mName + what + "-end"; // also shows that the instance still lives
        }
    }
    QChar mName;
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
            platform::registerScreen(id, {}, [id] { return std::make_unique<Probe>(id); });
    }
    ~Activation() override {
        platform::setUncaughtReporter({});
        platform::closeAllScreens();
        deliver();
        EXPECT_EQ(living, 0);
    }
    /// The journal since the last question.
    static QString told(bool delivered = true) {
        if (delivered)
            deliver();
        return std::exchange(journal, {}).join(' ');
    }
    /// Rows of what is done to screens and what is told then, parted by bars: "A+ B- > A.load =A".
    /// + shows, - hides, ! unloads, * shows modally, n as a notice, ~ takes out of use, ^ back into
    /// it, x closes, @ clicks its button, . loads; { and } begin and end a hold. Behind ">" the
    /// journal once events are delivered, behind ">>" before, "..." for whatever; "=A" has the
    /// front, "%AB" are usable.
    void rows(const QString &table) {
        for (const QString &row : table.split(" | ")) {
            SCOPED_TRACE(row.toStdString());
            for (const QString &step : row.section('>', 0, 0).split(' ', Qt::SkipEmptyParts))
                act(step[0].unicode() - u'A' + A, step.back());
            QString seen = told(!row.contains(">>"));
            const QStringList due = row.section('>', -1).split(' ', Qt::SkipEmptyParts);
            for (const QString &word : due) {
                if (word == "...")
                    seen = word;
                else if (word[0] == '=')
                    seen += " =" + those([](auto *it) { return it == platform::frontScreen(); });
                else if (word[0] == '%')
                    seen += " %" + those([](auto *it) { return it->usable(); });
            }
            EXPECT_EQ(seen.trimmed(), due.join(' '));
        }
    }
    void act(int id, QChar what) {
        static const QHash<QChar, void (Probe::*)()> steps{
            {'+', &Probe::show},    {'-', &Probe::hide},      {'!', &Probe::go},
            {'x', &Probe::shut},    {'*', &Probe::showModal}, {'n', &Probe::showNotice},
            {'~', &Probe::disable}, {'^', &Probe::enable},    {'@', &Probe::click}};
        if (what == '{')
            mHolds.push_back(std::make_unique<HoldActivations>());
        else if (what == '}')
            mHolds.pop_back();
        else if (Probe &it = probe(id); steps.contains(what))
            (it.*steps[what])();
    }

    support::TestClock &clock = support::TestClock::install();

  private:
    /// Those loaded of which this holds.
    static QString those(bool (*holds)(const Screen *)) {
        QString names;
        for (int id = A; id <= D; ++id) {
            if (const Screen *it = platform::loadedScreen(id); it && holds(it))
                names += QChar('A' + id - A);
        }
        return names;
    }
    std::vector<std::unique_ptr<HoldActivations>> mHolds;
};
