#include "protocols/frmPrinterPDF.h"

#include <QDir>
#include <QHeaderView>

#include "platform/fehler.h"
#include "records/system.h"
#include "session/sprache.h"
#include "windows/msgbox.h"
#include "windows/printers.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "PDF Printer"},
    {"lbDrucker", "&Printer:"},
    {"lbOrdner", "&Folder:"},
    {"pbexit", "&Cancel"},
};

} // namespace

frmPrinterPDF::frmPrinterPDF() {
    ui.setupUi(this);
    mOrdner.setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
    mOrdner.setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    ui.Dir1->setModel(&mOrdner);
    ui.Dir1->header()->hide();
    for (const int spalte : {1, 2, 3})
        ui.Dir1->hideColumn(spalte);
    on(ui.Dir1->selectionModel(), &QItemSelectionModel::currentChanged, [this] {
        ui.laOrdner->setText(QDir::toNativeSeparators(mOrdner.filePath(ui.Dir1->currentIndex())));
    });
    on(&mOrdner, &QFileSystemModel::directoryLoaded, [this] { // the way to the folder, step by step
        ui.Dir1->scrollTo(ui.Dir1->currentIndex(), QAbstractItemView::PositionAtCenter);
    });
    on(ui.Combo1, &QComboBox::activated, [this] { druckerZeigen(ui.Combo1->currentText()); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmPrinterPDF::Form_Load() try {
    beschriftungenSetzen(ui, *this, english);
    const Druckereinstellung einstellung = druckereinstellung();
    mOrdner.setRootPath(QDir::rootPath());
    ui.Combo1->addItems(printers());
    ui.Combo1->setCurrentIndex(ui.Combo1->findText(einstellung.drucker, Qt::MatchExactly));
    druckerZeigen(ui.Combo1->currentText());
    if (!einstellung.drucker.isEmpty() && ui.Combo1->currentIndex() < 0) {
        meldung({"Bisheriger PDF-Drucker wurde entfernt! - Gibt es nicht mehr.",
                 "PDF printer has been removed or is not available anymore."},
                Critical, {"Meldung", "PDF printer"});
    }
    ordnerWählen(einstellung.drucker.isEmpty() ? QString() : einstellung.ordner);
} catch (const Fehler &fehler) {
    fehlerBox("frmPDF01 - ", fehler);
}

void frmPrinterPDF::druckerZeigen(const QString &name) {
    ui.laCurrentPrinter->setText(
        name.isEmpty()
            ? inSprache({"Kein PDF-Drucker ausgewählt!", "No PDF printer selected! "})
            : inSprache({"Aktueller PDF-Drucker:   ", "Current PDF printer:   "}) + name);
}

void frmPrinterPDF::ordnerWählen(const QString &ordner) {
    const QDir gesucht(ordner.isEmpty() ? "." : ordner);
    if (!gesucht.exists()) {
        throw Fehler(fehlernummer::FileNotFound,
                     {"Den Ordner " + ordner + " gibt es zur Zeit nicht.",
                      "The folder " + ordner + " is not there at present."});
    }
    ui.Dir1->setCurrentIndex(mOrdner.index(gesucht.absolutePath()));
}

void frmPrinterPDF::pbok_Click() try {
    const QString ordner = ui.Dir1->currentIndex().isValid()
                               ? mOrdner.filePath(ui.Dir1->currentIndex())
                               : druckereinstellung().ordner; // not there at present
    druckereinstellungSpeichern({ui.Combo1->currentText(), ordner});
    druckerZeigen(ui.Combo1->currentText());
    unload();
} catch (const Fehler &fehler) {
    fehlerBox("frmPDF01 - ", fehler);
}
