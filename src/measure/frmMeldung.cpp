#include "measure/frmMeldung.h"

#include "measure/frmMessen.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/stil.h"
#include "windows/zeichen.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Message"}, {"laMeldung1", "Attention!"}, {"laMeldung2", "Next Test Step!"}};

} // namespace

frmMeldung::frmMeldung() {
    ui.setupUi(this);
    mTimer1.onTick = handler([this] {
        mTimer1.setEnabled(false);
        unload();
    });
}

void frmMeldung::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    auto *messen = loaded<frmMessen>();
    if (messen && !messen->läuftAllein()) // there the way out stays open
        messen->disable();
    const auto zeilen = [this](const Text &erste, const Text &zweite) {
        ui.laMeldung1->setText(inSprache(erste));
        ui.laMeldung2->setText(inSprache(zweite));
    };
    const QString schritt = messen ? messen->nächsterPrüfschritt() : QString();
    ui.anzZeichen->zeige(
        [schritt](QPainter &painter, const QRectF &rect) { weiterMalen(painter, rect, schritt); },
        schritt);
    if (gMessStatus == Messstatus::Ende) {
        ui.anzZeichen->zeige(
            [](QPainter &painter, const QRectF &rect) {
                haltMalen(painter, rect.adjusted(8, 8, -8, -8), farben().text);
            },
            {});
        zeilen({"Beenden", "Terminate"}, {"des Messens", "the Measuring"});
    } else if (gMessStatus == Messstatus::Starten) {
        zeilen({"Starten", "Start"}, {"des Messens", "the Measuring"});
        gMessStatus = Messstatus::Messen;
    }
    mTimer1.setEnabled(true);
}

void frmMeldung::Form_Unload() {
    auto *messen = loaded<frmMessen>();
    if (!messen)
        return;
    messen->enable();
    messen->meldungGeschlossen();
}
