#include "link/anschlussmaske.h"

#include <QScopedValueRollback>

#include "platform/fehler.h"
#include "platform/ports.h"
#include "records/leitung.h"
#include "session/sprache.h"
#include "windows/stil.h"
#include "windows/zeichen.h"

using namespace platform;

Anschlussmaske::Anschlussmaske(const Anschluss &anschluss) : mAnschluss(anschluss) {
    ui.setupUi(this);
    for (QWidget *zustand :
         {static_cast<QWidget *>(ui.Schild), static_cast<QWidget *>(ui.Label4)}) {
        QSizePolicy platz = zustand->sizePolicy();
        platz.setRetainSizeWhenHidden(true);
        zustand->setSizePolicy(platz);
        zustand->hide(); // nothing was tried yet
    }
    ui.cmbBaud->addItems(Schnittstelle::baudraten());
    ui.cmbDatenbits->addItems(Schnittstelle::datenbitzahlen());
    ui.cmbParitaet->addItems(Schnittstelle::paritäten());
    ui.cmbStoppbits->addItems(Schnittstelle::stoppbitzahlen());
    on(ui.SbCOM, &QScrollBar::valueChanged, [this] { SbCOM_Change(); });
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void Anschlussmaske::einstellungZeigen(std::optional<int> port) {
    const Leitungseinstellung row = leitungLesen(mAnschluss.tabelle);
    const int number = port.value_or(row.port);
    ui.SbCOM->setValue(number);                  // txtCOM is empty, so nothing is tried
    ui.txtCOM->setText(QString::number(number)); // also one above those of the bar
    const Schnittstelle fields = Schnittstelle::ausParameter(row.parameter);
    ui.cmbBaud->setCurrentIndex(ui.cmbBaud->findText(fields.baud));
    ui.cmbParitaet->setCurrentIndex(ui.cmbParitaet->findText(fields.parität));
    ui.cmbDatenbits->setCurrentIndex(ui.cmbDatenbits->findText(fields.datenbits));
    // The list may be worded with a decimal comma.
    const auto stop = Schnittstelle::stoppbitzahlen().indexOf(fields.stoppbits);
    ui.cmbStoppbits->setCurrentIndex(static_cast<int>(stop));
    if (mAnschluss.geprüft == mAnschluss.leitung.CommPort())
        zustandZeigen();
}

Schnittstelle Anschlussmaske::felder() const {
    return {ui.cmbBaud->currentText(), ui.cmbParitaet->currentText(),
            ui.cmbDatenbits->currentText(), ui.cmbStoppbits->currentText()};
}

void Anschlussmaske::SbCOM_Change() {
    const int value = ui.SbCOM->value();
    if (value > höchsterAnschluss) {
        ui.SbCOM->setValue(höchsterAnschluss); // comes back here
        return;
    }
    if (mVersuchLäuft)
        return;
    const bool tryIt = !ui.txtCOM->text().isEmpty();
    if (tryIt) {
        // A box takes the release of the mouse away, and a pressed bar would go on by itself.
        ui.SbCOM->setEnabled(false);
        ui.SbCOM->setEnabled(true);
        ui.SbCOM->setFocus();
        if (anschlussVergeben(value))
            return;
        const QScopedValueRollback trial(mVersuchLäuft, true);
        portWechseln(mAnschluss.leitung, value);
        if (portPrüfen(mAnschluss) == platform::fehlernummer::PortSettings)
            mAnschluss.vorhanden = true; // there, and its settings are mended here
    }
    ui.txtCOM->setText(QString::number(value));
    if (tryIt)
        zustandZeigen();
}

void Anschlussmaske::zustandZeigen() {
    const bool da = mAnschluss.vorhanden;
    ui.Label2->setText(
        inSprache(da ? Text{"Vorhanden.", "Existing"} : Text{"Nicht vorhanden!", "Not existing!"}));
    setTon(ui.Schild, da ? Ton::Da : Ton::Fehlt);
    ui.anzVorhanden->zeige(
        [da](QPainter &painter, const QRectF &rect) {
            strichMalen(painter, rect, da ? Zeichen::Gut : Zeichen::Schlecht, schildZeichen);
        },
        ui.Label2->text());
    ui.Schild->show();
    if (!da)
        ui.Label4->setText(fehlendesZeigen());
    ui.Label4->setVisible(!da);
}

QString Anschlussmaske::fehlendesZeigen() const {
    const int port = mAnschluss.leitung.CommPort();
    QStringList zeilen{mOhneAnschluss,
                       inSprache({"Anschluss %1 ist der Eintrag COM%1 des Arbeitsverzeichnisses, "
                                  "sonst /dev/ttyS%2.",
                                  "Port %1 is the entry COM%1 of the working directory, else "
                                  "/dev/ttyS%2."})
                           .arg(port)
                           .arg(port - 1),
                       inSprache(portsInWords())};
    zeilen.removeAll(QString());
    return zeilen.join('\n');
}
