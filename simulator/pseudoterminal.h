// A pseudo terminal that stands for a serial device under a name in a directory.
#pragma once

#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace simulator {

class PseudoTerminal {
  public:
    using Received = std::function<void(const std::string &bytes)>;

    /// `link` is where programs find the device.
    PseudoTerminal(QString link, Received received);
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;

    /// Makes the device and the link, replacing a link that is there. Returns why it failed, or an
    /// empty text.
    QString plug();
    /// Both are gone, also for a program that has the device open.
    void unplug();
    bool plugged() const { return mMaster >= 0; }
    /// Never waits: what does not fit is lost, as on a line that nobody reads.
    void write(std::string_view bytes) const;

  private:
    QString failed(const char *what);
    void read();

    QString mLink;
    QString mDevice; // where the link leads
    Received mReceived;
    int mMaster = -1;
    int mSlave = -1; // held open, or the master fails while no program has the device open
    std::unique_ptr<QSocketNotifier> mNotifier;
};

} // namespace simulator
