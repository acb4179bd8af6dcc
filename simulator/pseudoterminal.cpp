#include "pseudoterminal.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace simulator {

namespace {

constexpr int ReceiveBuffer = 1024; // bytes that wait for a reader, more get lost

void closeDescriptor(int &descriptor) {
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}

} // namespace

PseudoTerminal::PseudoTerminal(QString link, Received received)
    : mLink(std::move(link)), mReceived(std::move(received)) {}

PseudoTerminal::~PseudoTerminal() {
    unplug();
}

QString PseudoTerminal::plug() {
    if (plugged())
        return {};
    const QFileInfo there(mLink);
    if (there.exists() && !there.isSymLink())
        return QString("%1 is there and not a link").arg(mLink);

    mMaster = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (mMaster < 0 || ::grantpt(mMaster) != 0 || ::unlockpt(mMaster) != 0)
        return failed("pseudo terminal");
    char name[128];
    if (::ptsname_r(mMaster, name, sizeof name) != 0)
        return failed("pseudo terminal");
    mSlave = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios settings;
    if (mSlave < 0 || ::tcgetattr(mSlave, &settings) != 0)
        return failed(name);
    ::cfmakeraw(&settings);
    if (::tcsetattr(mSlave, TCSANOW, &settings) != 0 ||
        ::fcntl(mMaster, F_SETFL, ::fcntl(mMaster, F_GETFL) | O_NONBLOCK) != 0)
        return failed(name);

    mDevice = QFile::decodeName(name);
    if (there.isSymLink())
        QFile::remove(mLink);
    if (::symlink(name, QFile::encodeName(mLink).constData()) != 0)
        return failed(QFile::encodeName(mLink).constData());
    mNotifier = std::make_unique<QSocketNotifier>(mMaster, QSocketNotifier::Read);
    QObject::connect(mNotifier.get(), &QSocketNotifier::activated, mNotifier.get(),
                     [this] { read(); });
    return {};
}

QString PseudoTerminal::failed(const char *what) {
    QString reason = QString("%1: %2").arg(QFile::decodeName(what), std::strerror(errno));
    unplug();
    return reason;
}

void PseudoTerminal::unplug() {
    // Another stand may have taken over the name since.
    if (!mDevice.isEmpty() && QFile::symLinkTarget(mLink) == mDevice)
        QFile::remove(mLink);
    mDevice.clear();
    mNotifier.reset();
    closeDescriptor(mSlave);
    closeDescriptor(mMaster);
}

void PseudoTerminal::write(std::string_view bytes) const {
    int unread = 0;
    if (!plugged() || ::ioctl(mSlave, FIONREAD, &unread) != 0 || unread >= ReceiveBuffer)
        return;
    [[maybe_unused]] const ssize_t written = ::write(mMaster, bytes.data(), bytes.size());
}

void PseudoTerminal::read() {
    char bytes[512];
    const ssize_t count = ::read(mMaster, bytes, sizeof bytes);
    if (count > 0)
        mReceived({bytes, static_cast<std::size_t>(count)});
    else if (count == 0 || (errno != EAGAIN && errno != EINTR))
        mNotifier->setEnabled(false); // a dead device would wake us for ever
}

} // namespace simulator
