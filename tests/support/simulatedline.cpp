#include "simulatedline.h"

#include "platform/fehler.h"

namespace support {

using namespace platform;

class SimulatedLine::Device : public SerialDevice {
  public:
    explicit Device(SimulatedLine &line) : mLine(line) {}

    void open(const SerialSettings &) override {
        if (!mLine.mPlugged)
            throw Fehler(fehlernummer::NoSuchPort, {"fehlt", "missing"});
        if (mLine.mOccupied)
            throw Fehler(fehlernummer::PortInUse, {"belegt", "in use"});
        mGeneration = mLine.mGeneration;
        discard();
    }
    void write(const QByteArray &bytes) override {
        mLine.mFarEnd->receive(std::string_view(bytes.constData(), size_t(bytes.size())),
                               mLine.mClock.elapsed());
    }
    QByteArray readAll() override {
        collect();
        return std::exchange(mLine.mArrived, {});
    }
    void discard() override { readAll(); }
    qsizetype waiting() override {
        collect();
        return mLine.mArrived.size();
    }
    bool lost() const override { return !mLine.mPlugged || mGeneration != mLine.mGeneration; }

  private:
    void collect() {
        mLine.mArrived += QByteArray::fromStdString(mLine.mFarEnd->take(mLine.mClock.elapsed()));
    }

    SimulatedLine &mLine;
    int mGeneration = 0;
};

SimulatedLine::SimulatedLine(TestClock &clock) : mClock(clock) {
    setSerialDeviceMaker([this](const QString &location) -> std::unique_ptr<SerialDevice> {
        if (!location.endsWith("ttyS0") && !location.endsWith("COM1"))
            throw Fehler(fehlernummer::NoSuchPort, {"fehlt", "missing"});
        return std::make_unique<Device>(*this);
    });
    mClock.nextOutside = [this] { return mFarEnd->nextEvent(); };
    mClock.outside = [this] {
        const std::string bytes = mFarEnd->take(mClock.elapsed());
        if (mPlugged)
            mArrived += QByteArray::fromStdString(bytes);
    };
}

SimulatedLine::~SimulatedLine() {
    setSerialDeviceMaker({});
    mClock.nextOutside = {};
}

simulator::Stand &SimulatedLine::stand() {
    mStand.stand.advance(mClock.elapsed());
    return mStand.stand;
}

void SimulatedLine::unplug() {
    mPlugged = false;
    ++mGeneration;
    mArrived.clear();
}

} // namespace support
