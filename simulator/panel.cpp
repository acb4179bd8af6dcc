#include "panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cmath>
#include <iterator>

namespace simulator {

namespace {

constexpr int StrongestLoad = 800; // W, end of the knob
constexpr int RefreshPeriod = 200; // ms

struct FaultChoice {
    const char *name;
    Faults faults;
};

const FaultChoice FaultChoices[] = {
    {"Keine", {}},
    {"Controller stumm", {.silent = true}},
    {"Nächste drei Frames ohne Echo", {.deafFrames = 3}},
    {"Echo 1,5 s verspätet", {.echoDelay = 1500}},
    {"Echo 2,5 s verspätet", {.echoDelay = 2500}},
    {"Ein Byte vor dem Echo", {.extraBytes = 1}},
    {"Ein Byte fehlt im Echo", {.lostBytes = 1}},
    {"Jeder zweite Sechs-Runden-Frame gekürzt", {.cutEvery = 2}},
    {"Zufällige Bytes auf der Leitung", {.babble = true}},
    {"Falsche Betriebsart", {.wrongMode = true}},
    {"Ergometer stumm", {.silentErgometer = true}},
    {"Ergometer antwortet 3 s verspätet", {.answerDelay = 3000}},
    {"Ergometer antwortet 6 s verspätet", {.answerDelay = 6000}},
    {"Ergometer antwortet mit falschem Zeichen", {.wrongAnswer = true}},
    {"Ergometer bricht nach zwei Zeichen ab", {.answerLength = 2}},
    {"Ergometer sendet Buchstaben statt Ziffern", {.letterAnswer = true}},
};

QLabel *value(QFormLayout *form, const char *caption, const char *name) {
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    label->setFont(font);
    form->addRow(QString::fromUtf8(caption), label);
    return label;
}

QString shown(double number, int decimals, const char *unit) {
    return QLocale(QLocale::German).toString(number, 'f', decimals) + ' ' + unit;
}

template <class Control, class Value>
void follow(Control *control, Value value) {
    const QSignalBlocker blocker(control);
    if constexpr (std::is_same_v<Control, QCheckBox>)
        control->setChecked(value);
    else if constexpr (std::is_same_v<Control, QComboBox>)
        control->setCurrentIndex(value);
    else if (control->value() != value) // keeps a number that is being typed
        control->setValue(value);
}

/// The choice that these faults are, or nothing for any others.
int choiceOf(const Faults &faults) {
    for (std::size_t i = 0; i < std::size(FaultChoices); ++i) {
        Faults choice = FaultChoices[i].faults;
        if (choice.deafFrames > 0 && faults.deafFrames > 0)
            choice.deafFrames = faults.deafFrames; // counts down by itself
        if (choice == faults)
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace

Panel::Panel(Lines &lines) : mLines(lines) {
    setWindowTitle("Simulierter Stand");
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(display());
    layout->addWidget(ergometer());
    layout->addWidget(controller());
    layout->addWidget(faults());
    layout->addStretch();
    mRefresh.setInterval(RefreshPeriod);
    mRefresh.callOnTimeout([this] { refresh(); });
    refresh();
}

void Panel::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    refresh();
    mRefresh.start();
}

void Panel::hideEvent(QHideEvent *event) {
    mRefresh.stop();
    QWidget::hideEvent(event);
}

QGroupBox *Panel::display() {
    auto *box = new QGroupBox("Anzeige");
    auto *form = new QFormLayout(box);
    mSetSpeed = value(form, "Solldrehzahl", "laSetSpeed");
    mSpeed = value(form, "Istdrehzahl", "laSpeed");
    mTorque = value(form, "Drehmoment", "laTorque");
    mPower = value(form, "Leistung", "laPower");
    mMotor = value(form, "Motor", "laMotor");
    return box;
}

QGroupBox *Panel::ergometer() {
    auto *box = new QGroupBox("Ergometer");
    auto *form = new QFormLayout(box);
    mGivenLoad = value(form, "Vorgabe über COM4", "laGivenLoad");
    mLoad = new QSpinBox;
    mLoad->setObjectName("sbLoad");
    mLoad->setRange(0, StrongestLoad);
    mLoad->setSingleStep(5);
    mLoad->setSuffix(" W");
    mLoad->setKeyboardTracking(false);
    mLoadSlider = new QSlider(Qt::Horizontal);
    mLoadSlider->setObjectName("slLoad");
    mLoadSlider->setRange(0, StrongestLoad);
    mLoadSlider->setSingleStep(5);
    mLoadSlider->setPageStep(25);
    mLoadSlider->setTickPosition(QSlider::TicksBelow);
    mLoadSlider->setTickInterval(100);
    const auto set = [this](int watts) {
        mLines.with([watts](Stand &stand) { stand.setLoad(watts); });
        refresh();
    };
    connect(mLoad, &QSpinBox::valueChanged, this, set);
    connect(mLoadSlider, &QSlider::valueChanged, this, set);
    form->addRow("&Bremsleistung", mLoad);
    form->addRow(mLoadSlider);

    mCoupled = new QCheckBox("&Gelenkwelle angekuppelt");
    mCoupled->setObjectName("cbCoupled");
    connect(mCoupled, &QCheckBox::toggled, this,
            [this](bool on) { mLines.with([on](Stand &stand) { stand.setCoupled(on); }); });
    form->addRow(mCoupled);
    return box;
}

QGroupBox *Panel::controller() {
    auto *box = new QGroupBox("Normal");
    auto *form = new QFormLayout(box);
    mLeverArm = new QComboBox;
    mLeverArm->setObjectName("cmbLeverArm");
    mLeverArm->addItems({"Keiner", "Links", "Rechts"}); // in the order of LeverArm
    connect(mLeverArm, &QComboBox::currentIndexChanged, this, [this](int side) {
        mLines.with([side](Stand &stand) { stand.setLeverArm(static_cast<LeverArm>(side)); });
    });
    form->addRow("&Hebelarm", mLeverArm);

    mLeverMode = new QCheckBox("Modus Hebelarm&kalibrierung");
    mLeverMode->setObjectName("cbLeverMode");
    connect(mLeverMode, &QCheckBox::toggled, this,
            [this](bool on) { mLines.with([on](Stand &stand) { stand.setLeverMode(on); }); });
    form->addRow(mLeverMode);
    return box;
}

QGroupBox *Panel::faults() {
    auto *box = new QGroupBox("Störungen");
    auto *form = new QFormLayout(box);
    mFault = new QComboBox;
    mFault->setObjectName("cmbFault");
    mFault->setPlaceholderText("Mehrere");
    for (const FaultChoice &choice : FaultChoices)
        mFault->addItem(QString::fromUtf8(choice.name));
    connect(mFault, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0)
            mLines.with([index](Stand &stand) { stand.setFaults(FaultChoices[index].faults); });
    });
    form->addRow("&Störung", mFault);

    const auto plugBox = [this, form](const char *caption, const char *name, Line line) {
        auto *plug = new QCheckBox(QString::fromUtf8(caption));
        plug->setObjectName(name);
        connect(plug, &QCheckBox::toggled, this, [this, line](bool on) {
            const QString failure = mLines.plug(line, on);
            refresh();
            if (!failure.isEmpty())
                QMessageBox::warning(this, windowTitle(), failure);
        });
        form->addRow(plug);
        return plug;
    };
    mFirstLine = plugBox("COM&1 eingesteckt (Controller)", "cbFirstLine", Line::Controller);
    mSecondLine = plugBox("COM&4 eingesteckt (Ergometer)", "cbSecondLine", Line::Ergometer);
    return box;
}

void Panel::refresh() {
    mLines.with([this](const Stand &stand) {
        mSetSpeed->setText(shown(stand.setSpeed(), 1, "1/min"));
        mSpeed->setText(shown(stand.speed(), 1, "1/min"));
        mTorque->setText(shown(stand.torque(), 2, "N m"));
        mPower->setText(shown(stand.power(), 1, "W"));
        mMotor->setText(!stand.motorOn()                        ? "aus"
                        : stand.direction() == Direction::Right ? "ein, Rechtslauf"
                                                                : "ein, Linkslauf");
        const int watts = static_cast<int>(std::lround(stand.load()));
        follow(mLoad, std::min(watts, StrongestLoad));
        follow(mLoadSlider, std::min(watts, StrongestLoad));
        mGivenLoad->setText(stand.givenLoad() ? shown(*stand.givenLoad(), 0, "W") : "keine");
        follow(mCoupled, stand.coupled());
        follow(mLeverArm, static_cast<int>(stand.leverArm()));
        follow(mLeverMode, stand.leverMode());
        follow(mFault, choiceOf(stand.faults()));
    });
    follow(mFirstLine, mLines.plugged(Line::Controller));
    follow(mSecondLine, mLines.plugged(Line::Ergometer));
}

} // namespace simulator
