// A serial line with the operations that the flows know, over QSerialPort or what a test puts in
// its place.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace platform {

/// "19200,N,8,1": baud, parity letter (N, E, O, S, M), data bits, stop bits (1, 1.5, 2).
struct SerialSettings {
    int baud = 19200;
    char parity = 'N';
    int dataBits = 8;
    double stopBits = 1;

    /// Raises PortSettings when the text is none of this kind.
    static SerialSettings parse(const QString &text);
};

/// The device behind a line. All raise Fehler; a device that is lost says so in lost().
class SerialDevice {
  public:
    virtual ~SerialDevice() = default;
    /// NoSuchPort, PortInUse or PortSettings.
    virtual void open(const SerialSettings &settings) = 0;
    virtual void write(const QByteArray &bytes) = 0;
    virtual QByteArray readAll() = 0;
    /// Throws away what has arrived, also what the system still holds.
    virtual void discard() = 0;
    virtual qsizetype waiting() = 0;
    /// True once the device has vanished while open.
    virtual bool lost() const = 0;
};

/// Makes the device for a location, which is a path or a system name. Given by tests; an empty
/// function gives the system's own ports back.
using SerialDeviceMaker = std::function<std::unique_ptr<SerialDevice>(const QString &location)>;
void setSerialDeviceMaker(SerialDeviceMaker maker);

/// Where port `number` is found: the entry COMn of the current directory when there is one, else
/// the system's port of that number.
QString serialLocation(int number);

class MSComm {
  public:
    int CommPort() const { return mPort; }
    /// PortIsOpen while the port is open.
    void setCommPort(int number);
    QString Settings() const { return mSettings; }
    /// Takes effect at once on an open port.
    void setSettings(const QString &settings);

    bool PortOpen() const { return mDevice != nullptr; }
    /// Opens an open port anew whose device vanished while nobody talked and is back by now. One
    /// that is not stays as it is: the next use tells it.
    void recover();
    /// Opening a closed port raises NoSuchPort, PortInUse or PortSettings.
    void setPortOpen(bool open);

    // All raise PortNotOpen on a closed port; PortLost, closing it, when the device has vanished.
    void Output(const QByteArray &bytes);
    qsizetype InBufferCount();
    void discardInput();
    QByteArray Input();

  private:
    SerialDevice &device();
    std::unique_ptr<SerialDevice> opened() const;

    std::unique_ptr<SerialDevice> mDevice;
    QString mSettings = "19200,N,8,1";
    int mPort = 1;
};

} // namespace platform

using platform::MSComm;
