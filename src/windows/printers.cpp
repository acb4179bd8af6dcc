#include "windows/printers.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace platform {

namespace {

PrinterStandIn theStandIn;
QString chosen;

QStringList systemPrinters() {
    return theStandIn.print ? theStandIn.names : QPrinterInfo::availablePrinterNames();
}

QString systemDefault() {
    return theStandIn.print ? theStandIn.standard : QPrinterInfo::defaultPrinterName();
}

} // namespace

QStringList printers() {
    return systemPrinters() + QStringList(pdfPrinter);
}

QString currentPrinter() {
    if (!chosen.isEmpty() && printers().contains(chosen))
        return chosen;
    const QString standard = systemDefault();
    return standard.isEmpty() ? pdfPrinter : standard;
}

void setCurrentPrinter(const QString &name) {
    const QString standard = systemDefault();
    chosen = name == (standard.isEmpty() ? pdfPrinter : standard) ? QString() : name;
}

QByteArray printReport(const Report &report) {
    const QString name = currentPrinter();
    if (name == pdfPrinter)
        return report.pdf();
    if (theStandIn.print) {
        theStandIn.print(name, report);
        return {};
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(name);
    printer.setDocName(report.title());
    report.paint(printer);
    return {};
}

void setPrinterStandIn(PrinterStandIn standIn) {
    theStandIn = std::move(standIn);
    chosen.clear();
}

} // namespace platform
