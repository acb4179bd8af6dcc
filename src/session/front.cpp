#include "front.h"

#include <algorithm>
#include <vector>

namespace {

class NoFront : public Front {
  public:
    void setMoteinEnabled(bool) override {}
    void setMotausEnabled(bool) override {}
    void setDrehREnabled(bool) override {}
    void setMessenEnabled(bool) override {}
    void showDrehrichtung(const QString &) override {}
    void showEinlauf(const QString &) override {}
    QString drehrichtung() const override { return {}; }
    void showMotorInfo(const QString &) override {}
    void enableFront() override {}
    void disableFront() override {}
    void focusBeenden() override {}
};

std::vector<Front *> &fronts() {
    static std::vector<Front *> entered;
    return entered;
}

} // namespace

Front &front() {
    static NoFront none;
    return fronts().empty() ? none : *fronts().back();
}

void enterFront(Front &front) {
    leaveFront(front);
    fronts().push_back(&front);
}

void leaveFront(Front &front) {
    auto &all = fronts();
    all.erase(std::remove(all.begin(), all.end(), &front), all.end());
}
