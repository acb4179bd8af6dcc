#include "app/frmUeber.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "platform/program.h"
#include "platform/spreadsheet.h"
#include "session/sprache.h"
#include "windows/plot.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "About torvena"},
    {"lbZweck", "Operator's workstation of a calibration stand for crank ergometers"},
    {"pbKopieren", "Co&py"},
    {"pbexit", "&Close"},
};

struct Bibliothek {
    const char *name;
    QString version;
    const char *lizenz; ///< by its SPDX name
};

/// What this process runs with; Mustache says its version in a comment only.
QList<Bibliothek> bibliotheken() {
    const QString pp = SQLITECPP_VERSION; // "3.02.01"
    const QStringList teile = pp.split('.');
    QStringList zahlen;
    for (const QString &teil : teile)
        zahlen += QString::number(teil.toInt());
    return {{"Qt", qVersion(), "LGPL-3.0-only"},
            {"SQLite", sqlite3_libversion(), "blessing (public domain)"},
            {"SQLiteCpp", zahlen.join('.'), "MIT"},
            {"QCustomPlot", plotLibraryVersion(), "GPL-3.0-or-later"},
            {"libxlsxwriter", spreadsheetLibraryVersion(), "BSD-2-Clause"},
            {"Mustache (kainjow)", "4.1", "BSL-1.0"}};
}

QString überText() {
    QStringList zeilen{
        "torvena " + programVersion(),
        inSprache({"Lizenz: GPL-3.0-or-later, ohne jede Gewährleistung",
                   "Licence: GPL-3.0-or-later, without any warranty"}),
        {},
        inSprache({"Arbeitsverzeichnis:", "Working directory:"}),
        QDir::toNativeSeparators(QDir::currentPath()),
        {},
        inSprache({"Bibliotheken und ihre Lizenzen:", "Libraries and their licences:"})};
    for (const Bibliothek &eine : bibliotheken())
        zeilen += QString("%1 %2: %3").arg(eine.name, eine.version, eine.lizenz);
    zeilen += inSprache({"Schrift der Protokolle: DejaVu Sans (Bitstream Vera)",
                         "Type of the protocols: DejaVu Sans (Bitstream Vera)"});
    return zeilen.join('\n');
}

} // namespace

frmÜber::frmÜber() {
    ui.setupUi(this);
    onClick(ui.pbKopieren,
            [this] { QGuiApplication::clipboard()->setText(ui.txtAngaben->toPlainText()); });
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmÜber::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    ui.lbName->setText("torvena " + programVersion());
    ui.txtAngaben->setPlainText(überText());
    ui.pbexit->setFocus();
}
