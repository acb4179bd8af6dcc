#include "protocols/frmBerichtSichern.h"

#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

namespace {

constexpr Beschriftung english[] = {
    {"laFrage", "Shall the protocol be printed?"},
    {"vbYes", "&Yes"},
    {"vbNo", "&No"},
    {"vbSec", "&Save"},
};
constexpr std::int16_t sichern = 11;

} // namespace

frmBerichtSichern::frmBerichtSichern() {
    ui.setupUi(this);
    onClick(ui.vbYes, [this] { antworten(platform::Yes); });
    onClick(ui.vbSec, [this] { antworten(sichern); });
    onClick(ui.vbNo, [this] { unload(); });
    onEscape([this] { unload(); });
}

void frmBerichtSichern::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
}

void frmBerichtSichern::antworten(std::int16_t antwort) {
    gDesktopFolge = Desktopfolge::Bericht;
    gBerichtAntwort = antwort;
    unload();
}
