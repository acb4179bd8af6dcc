#include "simulatedline.h"

#include "platform/fehler.h"
#include "platform/ports.h"

namespace support {

using namespace platform;

class SimulatedLine::Device : public SerialDevice {
  public:
    Device(SimulatedLine &line, End &end) : mClock(line.mClock), mEnd(end) {}

    void open(const SerialSettings &) override {
        if (!mEnd.plugged)
            throw Fehler(fehlernummer::NoSuchPort, {"fehlt", "missing"});
        if (mEnd.occupied)
            throw Fehler(fehlernummer::PortInUse, {"belegt", "in use"});
        mGeneration = mEnd.generation;
        discard();
    }
    void write(const QByteArray &bytes) override {
        mEnd.farEnd->receive(std::string_view(bytes.constData(), size_t(bytes.size())),
                             mClock.elapsed());
    }
    QByteArray readAll() override {
        collect();
        return std::exchange(mEnd.arrived, {});
    }
    void discard() override { readAll(); }
    qsizetype waiting() override {
        collect();
        return mEnd.arrived.size();
    }
    bool lost() const override { return !mEnd.plugged || mGeneration != mEnd.generation; }

  private:
    void collect() {
        mEnd.arrived += QByteArray::fromStdString(mEnd.farEnd->take(mClock.elapsed()));
    }

    TestClock &mClock;
    End &mEnd;
    int mGeneration = 0;
};

SimulatedLine::SimulatedLine(TestClock &clock) : mClock(clock) {
    setSerialDeviceMaker([this](const QString &location) -> std::unique_ptr<SerialDevice> {
        const bool first = location.endsWith("ttyS0") || location.endsWith("COM1");
        if (!first && !location.endsWith("ttyS3") && !location.endsWith("COM4"))
            throw Fehler(fehlernummer::NoSuchPort, {"fehlt", "missing"});
        return std::make_unique<Device>(*this, mEnds[first ? 0 : 1]);
    });
    setPortLister([] {
        return std::vector<KnownPort>{{"/dev/ttyS0", ""}, {"/dev/ttyUSB0", "USB UART, Maker"}};
    });
    mClock.nextOutside = [this] {
        const auto one = mEnds[0].farEnd->nextEvent();
        const auto other = mEnds[1].farEnd->nextEvent();
        return one && other ? std::optional(std::min(*one, *other)) : one ? one : other;
    };
    mClock.outside = [this] {
        for (End &end : mEnds) {
            const std::string bytes = end.farEnd->take(mClock.elapsed());
            if (end.plugged)
                end.arrived += QByteArray::fromStdString(bytes);
        }
    };
}

SimulatedLine::~SimulatedLine() {
    setSerialDeviceMaker({});
    setPortLister({});
    mClock.nextOutside = {};
}

simulator::Stand &SimulatedLine::stand() {
    mStand.advance(mClock.elapsed());
    return mStand;
}

void SimulatedLine::unplug(SerialLine line) {
    end(line).plugged = false;
    ++end(line).generation;
    end(line).arrived.clear();
}

} // namespace support
