// The surface that the screens lie on: who has the front, which activations are due. Used by
// screen.cpp alone.
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace platform {

class Screen;

class Desk : public QObject {
  public:
    static Desk &instance();

    void add(int id, const QString &name, std::function<std::unique_ptr<Screen>()> make) {
        mMakers[id] = std::move(make);
        mNames[id] = name;
    }
    bool knows(int id) const { return mMakers.count(id) > 0; }
    QString nameOf(int id) const;
    QStringList names() const;
    Screen &get(int id);
    Screen *find(int id) const;
    void clear();

    Screen *front() const { return mFront; }
    void moveFrontTo(Screen &screen);
    void wentAway(Screen &screen);
    void becameUsable(Screen &screen);
    void activate(Screen &screen);
    void closeLater(Screen &screen);
    void retire(Screen &screen);
    void buryLater();

    void hold() { ++mHolds; }
    void release();
    bool held() const { return mHolds > 0; }
    const std::vector<Screen *> &visible() const { return mVisible; }

    bool eventFilter(QObject *watched, QEvent *event) override;

  protected:
    void customEvent(QEvent *event) override;

  private:
    Desk();
    void post();
    void bury();

    std::map<int, std::function<std::unique_ptr<Screen>()>> mMakers;
    std::map<int, QString> mNames;
    std::map<int, std::unique_ptr<Screen>> mScreens;
    std::vector<std::unique_ptr<Screen>> mRetired; // unloaded, perhaps still running
    std::vector<Screen *> mVisible;                // bottom to top
    std::vector<Screen *> mToClose;
    Screen *mFront = nullptr;
    int mHolds = 0;
    bool mActivationDue = false;
    bool mPosted = false;
    bool mBuryPosted = false;
};

} // namespace platform
