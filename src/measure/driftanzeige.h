// The bar of a drift over its scale, with the zones of its judgement, each under its sign.
#pragma once

#include <QWidget>

#include <optional>

#include "measure/statik.h"

class DriftAnzeige : public QWidget {
  public:
    explicit DriftAnzeige(QWidget *parent = nullptr) : QWidget(parent) {}

    /// Of the scale, in mN m on either side. A warning at the limit itself is none.
    struct Skala {
        double warnung = statikWarnung, grenze = statikGrenze;
        double ende = statikGrenze + 40; ///< where the lane ends
    };
    void setSkala(const Skala &skala);
    /// Until then there is a scale only.
    void setBalken(const DriftBalken &balken);

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    Skala mSkala;
    std::optional<DriftBalken> mBalken;
};
