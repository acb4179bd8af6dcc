// The front of the stand: what a person at it would turn, and what its display would show.
#pragma once

#include "lines.h"

#include <QWidget>

class QComboBox;
class QCheckBox;
class QGroupBox;
class QLabel;
class QSlider;
class QSpinBox;

namespace simulator {

class Panel : public QWidget {
  public:
    /// `lines` outlives the panel.
    explicit Panel(Lines &lines);

  protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

  private:
    QGroupBox *display();
    QGroupBox *ergometer();
    QGroupBox *controller();
    QGroupBox *faults();
    void refresh();

    Lines &mLines;
    QTimer mRefresh;
    QLabel *mSetSpeed = nullptr;
    QLabel *mSpeed = nullptr;
    QLabel *mTorque = nullptr;
    QLabel *mPower = nullptr;
    QLabel *mMotor = nullptr;
    QLabel *mGivenLoad = nullptr;
    QSpinBox *mLoad = nullptr;
    QSlider *mLoadSlider = nullptr;
    QCheckBox *mCoupled = nullptr;
    QComboBox *mLeverArm = nullptr;
    QCheckBox *mLeverMode = nullptr;
    QComboBox *mFault = nullptr;
    QCheckBox *mFirstLine = nullptr;
    QCheckBox *mSecondLine = nullptr;
};

} // namespace simulator
