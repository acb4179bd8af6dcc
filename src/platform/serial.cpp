#include "platform/serial.h"

#include <QDir>
#include <QFileInfo>
#include <QSerialPort>
#include <QStringList>

#include "platform/fehler.h"
#include "platform/ports.h"

namespace platform {

namespace {

SerialDeviceMaker deviceMaker;

Fehler badSettings(const QString &text) {
    return {
        fehlernummer::PortSettings,
        {"Die Schnittstellenparameter \"" + text + "\" sind auf diesem Anschluss nicht möglich.",
         "The interface settings \"" + text + "\" are not possible on this port."}};
}

class SystemPort : public SerialDevice {
  public:
    explicit SystemPort(const QString &location) : mLocation(location) {
        mPort.setPortName(location);
        QObject::connect(
            &mPort, &QSerialPort::errorOccurred, [this](QSerialPort::SerialPortError error) {
                if (mLost || (error != QSerialPort::ResourceError &&
                              error != QSerialPort::ReadError && error != QSerialPort::WriteError))
                    return;
                mLost = true;
                // A dead descriptor is readable for ever: close it once Qt is done.
                QMetaObject::invokeMethod(
                    &mPort, [this] { mPort.close(); }, Qt::QueuedConnection);
            });
    }

    void open(const SerialSettings &settings) override {
        if (mLocation.startsWith('/') && !QFileInfo::exists(mLocation))
            throw missing();
        if (!mPort.open(QIODevice::ReadWrite)) {
            // A name without hardware behind it fails in many ways.
            if (mPort.error() != QSerialPort::PermissionError)
                throw missing();
            if (accessDenied(mLocation))
                throw Fehler(fehlernummer::PortInUse, accessInWords(mLocation));
            throw Fehler(fehlernummer::PortInUse,
                         {"Der Anschluss ist belegt oder gesperrt (" + mPort.errorString() + ").",
                          "The port is in use or not accessible (" + mPort.errorString() + ")."});
        }
        // Lines send one and a half with five data bits where they send two with more.
        const bool one = settings.stopBits == 1;
        const auto stop = one ? QSerialPort::OneStop : QSerialPort::TwoStop;
        const bool possible = one || (settings.stopBits == 1.5) == (settings.dataBits == 5);
        const bool set = possible && mPort.setBaudRate(settings.baud) &&
                         mPort.setDataBits(QSerialPort::DataBits(settings.dataBits)) &&
                         mPort.setParity(parityOf(settings.parity)) && mPort.setStopBits(stop) &&
                         mPort.setFlowControl(QSerialPort::NoFlowControl);
        if (!set) {
            mPort.close();
            throw badSettings(QString("%1,%2,%3,%4")
                                  .arg(settings.baud)
                                  .arg(QChar(settings.parity))
                                  .arg(settings.dataBits)
                                  .arg(settings.stopBits));
        }
        mPort.clear();
    }

    void write(const QByteArray &bytes) override {
        mPort.write(bytes);
        mPort.flush(); // the waits between two writes are counted from here
    }

    QByteArray readAll() override { return mPort.readAll(); }
    void discard() override { mPort.clear(QSerialPort::Input); }
    qsizetype waiting() override { return mPort.bytesAvailable(); }
    bool lost() const override {
        return mLost || (mLocation.startsWith('/') && !QFileInfo::exists(mLocation));
    }

  private:
    static QSerialPort::Parity parityOf(char letter) {
        switch (letter) {
        case 'E':
            return QSerialPort::EvenParity;
        case 'O':
            return QSerialPort::OddParity;
        case 'S':
            return QSerialPort::SpaceParity;
        case 'M':
            return QSerialPort::MarkParity;
        default:
            return QSerialPort::NoParity;
        }
    }

    Fehler missing() const {
        const Text others = portsInWords();
        return {fehlernummer::NoSuchPort,
                {"Der Anschluss " + mLocation + " ist nicht vorhanden. " + others.german,
                 "The port " + mLocation + " does not exist. " + others.english}};
    }

    QSerialPort mPort;
    QString mLocation;
    bool mLost = false;
};

} // namespace

SerialSettings SerialSettings::parse(const QString &text) {
    const QStringList fields = text.split(',');
    if (fields.size() != 4 || fields[1].trimmed().size() != 1)
        throw badSettings(text);
    SerialSettings settings;
    bool baudOk = false;
    bool dataOk = false;
    bool stopOk = false;
    settings.baud = fields[0].trimmed().toInt(&baudOk);
    settings.parity = fields[1].trimmed().toUpper().at(0).toLatin1();
    settings.dataBits = fields[2].trimmed().toInt(&dataOk);
    settings.stopBits = fields[3].trimmed().toDouble(&stopOk);
    const bool stopKnown =
        settings.stopBits == 1 || settings.stopBits == 1.5 || settings.stopBits == 2;
    if (!baudOk || !dataOk || !stopOk || !stopKnown || settings.baud <= 0 ||
        settings.dataBits < 4 || settings.dataBits > 8 ||
        !QString("NEOSM").contains(QChar(settings.parity)))
        throw badSettings(text);
    return settings;
}

void setSerialDeviceMaker(SerialDeviceMaker maker) {
    deviceMaker = std::move(maker);
}

QString serialLocation(int number) {
    QString entry = QDir::current().absoluteFilePath(QString("COM%1").arg(number));
    const QFileInfo info(entry);
    if (info.exists() || info.isSymLink()) // a link whose device has gone is still the entry
        return entry;
#ifdef Q_OS_WIN
    return QString("COM%1").arg(number);
#else
    return QString("/dev/ttyS%1").arg(number - 1);
#endif
}

void MSComm::setCommPort(int number) {
    if (mDevice && number != mPort) {
        throw Fehler(fehlernummer::PortIsOpen,
                     {"Die Nummer eines offenen Anschlusses lässt sich nicht ändern.",
                      "The number of an open port cannot be changed."});
    }
    mPort = number;
}

void MSComm::setSettings(const QString &settings) {
    SerialSettings::parse(settings);
    mSettings = settings;
    if (mDevice) {
        setPortOpen(false);
        setPortOpen(true);
    }
}

void MSComm::setPortOpen(bool open) {
    if (!open) {
        mDevice.reset();
        return;
    }
    if (mDevice) {
        throw Fehler(fehlernummer::PortIsOpen,
                     {"Der Anschluss ist bereits offen.", "The port is already open."});
    }
    mDevice = opened();
}

std::unique_ptr<SerialDevice> MSComm::opened() const {
    const SerialSettings settings = SerialSettings::parse(mSettings);
    const QString location = serialLocation(mPort);
    auto device = deviceMaker ? deviceMaker(location) : std::make_unique<SystemPort>(location);
    device->open(settings);
    return device;
}

void MSComm::recover() {
    if (!mDevice || !mDevice->lost())
        return;
    try {
        mDevice = opened();
    } catch (const Fehler &) { // it is away still
    }
}

SerialDevice &MSComm::device() {
    if (!mDevice) {
        throw Fehler(fehlernummer::PortNotOpen,
                     {"Der Anschluss ist nicht offen.", "The port is not open."});
    }
    if (mDevice->lost()) {
        mDevice.reset();
        throw Fehler(fehlernummer::PortLost,
                     {"Die Verbindung ist unterbrochen. Bitte prüfen Sie Kabel und Anschluss.",
                      "The connection is lost. Please check cable and port."});
    }
    return *mDevice;
}

void MSComm::Output(const QByteArray &bytes) {
    device().write(bytes);
    device(); // what was lost by writing is told at once
}

qsizetype MSComm::InBufferCount() {
    return device().waiting();
}

void MSComm::discardInput() {
    device().discard();
}

QByteArray MSComm::Input() {
    return device().readAll();
}

} // namespace platform
