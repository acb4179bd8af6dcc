#include "finaltest/frmTest.h"

#include "link/ergometer.h"
#include "platform/runtime.h"
#include "session/sprache.h"

using namespace platform;

frmTest::frmTest() {
    ui.setupUi(this);
    ui.DBGrid1->setAccessibleName("DBGrid1");
    onClick(ui.pbSend, gefangen("mSI 1 - ", [this] { pbSend_Click(); }));
    onClick(ui.pbLeistung, gefangen("mSI 1 - ", [this] { senden("W200[13]"); }));
    onClick(ui.pbNullLeistung, gefangen("mSI 1 - ", [this] { senden("W000[13]"); }));
    onClick(ui.pbSave, gefangen("mSI 1 - ", [this] { pbSave_Click(); }));
    onClick(ui.pbok, [this] { ui.Label1->setText(CStr(Val(ui.txtSSCode->text()))); });
    onClick(ui.pbexit, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmTest::Form_Load() try {
    ui.txtSSCode->setFocus();
    MSComm2.recover();
    if (!MSComm2.PortOpen())
        MSComm2.setPortOpen(true);
} catch (const Fehler &fehler) {
    fehlerBox("1002 - ", fehler);
}

QByteArray frmTest::fnc_Transformation(const QString &text) try {
    return zeilenbytes(text);
} catch (const Fehler &fehler) {
    fehlerBox("1003 - ", fehler);
    return {};
}

void frmTest::pbSend_Click() {
    MSComm2.discardInput();
    MSComm2.Output(fnc_Transformation(ui.txtSSCode->text() + "[13]"));
    MSComm2.discardInput();
}

void frmTest::senden(const QString &zeile) {
    ergometerSenden(fnc_Transformation(zeile));
}

void frmTest::pbSave_Click() {
    if (MSComm2.InBufferCount() < 1) {
        keineAntwortMelden();
        return;
    }
    const QByteArray antwort = MSComm2.Input();
    ui.Label1->setText(fnc_HexString(antwort));
    const auto zeigen = [this](const QString &wort) { ui.lbSSCode->setText(wort); };
    // The last byte, which ends the line, is not looked at.
    ui.txtSSCode->setText(Str(antwortDeuten(antwort.chopped(1), zeigen)));
}
