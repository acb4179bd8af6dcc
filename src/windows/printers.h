// The printers that can be chosen: the system's, and a writer of PDF files that is always there.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>

#include "windows/print.h"

namespace platform {

/// The name of the writer that is built in. It puts no file anywhere: whoever prints gets the
/// bytes.
inline const QString pdfPrinter = QStringLiteral("torvena PDF");

/// All names, the built-in one last.
QStringList printers();
/// The one in force: what was set, as long as it is there; else the system's default; else the
/// built-in one.
QString currentPrinter();
/// The system's default again when it is this one, or there is none and it is the built-in one.
void setCurrentPrinter(const QString &name);

/// Prints on the printer in force. On the built-in one the result is the file, else empty. Raises
/// PrinterError.
QByteArray printReport(const Report &report);

/// What stands in for the system's printers in tests.
struct PrinterStandIn {
    QStringList names;
    QString standard; ///< the system's default; may be empty
    std::function<void(const QString &printer, const Report &report)> print;
};
/// An empty name list and no function give the system's printers back.
void setPrinterStandIn(PrinterStandIn standIn);

} // namespace platform
