#include "app/frmLogin.h"

#include <QCoreApplication>

#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

namespace {
constexpr Beschriftung english[] = {
    {"", "Registration"},           {"laText", "Please enter your name."},
    {"lblUserName", "&Inspector:"}, {"pbok", "&OK"},
    {"pbCancel", "&Cancel"},
};
}

frmLogin::frmLogin() {
    ui.setupUi(this);
    onClick(ui.pbok, [this] { pbok_Click(); });
    onClick(ui.pbCancel, [this] { pbCancel_Click(); });
    onEnter(ui.txtUserName, [this] { pbok_Click(); });
    onEscape([this] { pbCancel_Click(); });
}

void frmLogin::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    form(frm::Splash).disable();
    ui.txtUserName->setFocus();
}

void frmLogin::Form_Unload() {
    if (mAngemeldet)
        return;
    if (Screen *splash = loaded(frm::Splash))
        splash->unload();
    QCoreApplication::exit(0);
}

void frmLogin::pbok_Click() {
    const QString name = ui.txtUserName->text();
    if (name.isEmpty()) {
        meldung({"Ungültige Anmeldung! Bitte versuchen Sie es noch einmal!",
                 "Invalid registration! Please try it again!"},
                platform::Critical, {"Anmeldung", "Registration"});
        ui.txtUserName->setFocus();
        return;
    }
    gPrüfer = name;
    mAngemeldet = true;
    if (Screen *splash = loaded(frm::Splash))
        splash->unload();
    unload();
    form(frm::Desktop).show();
}

void frmLogin::pbCancel_Click() {
    unload();
}
