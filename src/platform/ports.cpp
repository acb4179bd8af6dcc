#include "platform/ports.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSerialPortInfo>
#include <QStringList>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr int highestPort = 99; ///< of which an entry COMn is looked for

constexpr int mostLines = 8;

PortLister portLister;

std::vector<KnownPort> systemPorts() {
    std::vector<KnownPort> ports;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        QStringList words{port.description(), port.manufacturer()};
        words.removeAll(QString());
        words.removeDuplicates();
        ports.push_back({port.systemLocation(), words.join(", ")});
    }
    return ports;
}

QString withDevice(const QString &location, const std::vector<KnownPort> &ports) {
    for (const KnownPort &port : ports) {
        if (port.location == location && !port.device.isEmpty())
            return location + " (" + port.device + ')';
    }
    return location;
}

QString userName() {
    const passwd *entry = ::getpwuid(::geteuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(::geteuid());
}

/// Through links; a file or a directory under the name of a port is none.
bool isDevice(const QString &entry) {
    struct stat device {};
    return ::stat(QFile::encodeName(entry).constData(), &device) == 0 && S_ISCHR(device.st_mode);
}

/// Entered in the group by now, which holds from the next login on.
bool isMember(const group &owners, const QString &user) {
    for (char **member = owners.gr_mem; member && *member; ++member) {
        if (user == QString::fromLocal8Bit(*member))
            return true;
    }
    return false;
}

} // namespace

void setPortLister(PortLister lister) {
    portLister = std::move(lister);
}

std::vector<KnownPort> knownPorts() {
    return portLister ? portLister() : systemPorts();
}

Text portsInWords() {
    const std::vector<KnownPort> ports = knownPorts();
    QStringList lines, linked;
    for (int number = 1; number <= highestPort; ++number) {
        const QFileInfo entry(QString("COM%1").arg(number));
        if (!isDevice(entry.filePath()))
            continue;
        const QString target = entry.canonicalFilePath();
        linked += target;
        lines += QString("COM%1: ").arg(number) + withDevice(target, ports);
    }
    for (const KnownPort &port : ports) {
        if (!linked.contains(port.location))
            lines += withDevice(port.location, ports);
    }
    if (lines.isEmpty()) {
        return {"An diesem Rechner ist kein serieller Anschluss vorhanden. Bitte prüfen Sie das "
                "Kabel.",
                "This computer has no serial port. Please check the cable."};
    }
    if (lines.size() > mostLines)
        lines = lines.first(mostLines) << "...";
    const QString list = lines.join('\n');
    return {"Vorhanden:\n" + list, "There are:\n" + list};
}

bool accessDenied(const QString &location) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(location).constData(), R_OK | W_OK,
                       AT_EACCESS) != 0 &&
           errno == EACCES;
}

Text accessInWords(const QString &location) {
    const Text denied{"Sie dürfen den Anschluss " + location + " nicht öffnen. ",
                      "You may not open the port " + location + ". "};
    const auto add = [&denied](const Text &more) {
        return Text{denied.german + more.german, denied.english + more.english};
    };
    struct stat device {};
    const bool found = ::stat(QFile::encodeName(location).constData(), &device) == 0;
    const group *owners =
        found && (device.st_mode & S_IRGRP) && (device.st_mode & S_IWGRP) && device.st_gid != 0
            ? ::getgrgid(device.st_gid)
            : nullptr;
    if (!owners)
        return add({"Seine Zugriffsrechte erlauben es nur seinem Eigentümer; bitte wenden Sie sich "
                    "an den Verwalter des Rechners.",
                    "Its permissions allow that to its owner only; please ask the administrator of "
                    "the computer."});
    const QString name = QString::fromLocal8Bit(owners->gr_name);
    const QString user = userName();
    if (isMember(*owners, user))
        return add({"Er gehört der Gruppe " + name +
                        ", in die Sie schon aufgenommen sind; das "
                        "gilt, sobald Sie sich am Rechner ab- und wieder anmelden.",
                    "It belongs to the group " + name +
                        ", which you are in already; that holds "
                        "as soon as you log out of the computer and in again."});
    return add(
        {"Er gehört der Gruppe " + name + ", in der Sie nicht sind. Geben Sie \"sudo adduser " +
             user + ' ' + name + "\" ein, und melden Sie sich am Rechner ab und wieder an.",
         "It belongs to the group " + name + ", which you are not in. Enter \"sudo adduser " +
             user + ' ' + name + "\", then log out of the computer and in again."});
}

} // namespace platform
