// The bar of a drift over its scale from -300 to 300 mN m, with the zones of its judgement, each
// under its sign.
#pragma once

#include <QWidget>

#include <optional>

#include "measure/statik.h"

class DriftAnzeige : public QWidget {
  public:
    explicit DriftAnzeige(QWidget *parent = nullptr) : QWidget(parent) {}

    /// Until then there is a scale only.
    void setBalken(const DriftBalken &balken);

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    std::optional<DriftBalken> mBalken;
};
