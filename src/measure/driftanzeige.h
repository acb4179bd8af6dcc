// The bar of a drift over its scale from -300 to 300 mN m.
#pragma once

#include <QWidget>

#include "measure/statik.h"

class DriftAnzeige : public QWidget {
  public:
    explicit DriftAnzeige(QWidget *parent = nullptr);

    void setBalken(const DriftBalken &balken);
    const DriftBalken &balken() const { return mBalken; }

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    DriftBalken mBalken{balkenMitte, 0, false};
};
