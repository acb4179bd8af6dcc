#include "measure/messablauf.h"

#include "measure/frmMessen.h"
#include "records/messwerte.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

/// The flow of the operator.
class OrdentlicherAblauf : public Messablauf {
  public:
    void beimÖffnen(frmMessen &) override {}
    Recordset schritte() override { return messSchritte(gRezeptID); }
    bool protokollErfragen() const override { return true; }
    bool bedient() const override { return true; }
    void vorSollwert() override {}
    void nachBlock() override {}
    void schrittFertig(frmMessen &screen) override { screen.fnc_MesswertSpeichern(); }
    void rezeptEnde(frmMessen &) override { gMessStatus = Messstatus::Ruhe; }

    void beimVerlassen(Weggang weggang) override {
        if (protokollHatMesswerte(gProtokollID)) {
            gBerichtAntwort = Yes;
            return;
        }
        if (protokollHatBlätter(gProtokollID))
            return;
        protokollkopfLöschen(gProtokollID);
        if (weggang == Weggang::Still)
            return;
        meldung({"Protokoll enthält keine Daten und wird gelöscht!",
                 "Protocol does not contain data and is deleted!"},
                Information, {"Beenden", "Message"});
    }
};

Messablauf *otherFlow = nullptr;
DynamikMessung *dynamics = nullptr;

} // namespace

Messablauf &messablauf() {
    static OrdentlicherAblauf ordinary;
    return otherFlow ? *otherFlow : ordinary;
}

void setMessablauf(Messablauf *ablauf) {
    otherFlow = ablauf;
}

DynamikMessung *dynamikMessung() {
    return dynamics;
}

void setDynamikMessung(DynamikMessung *messung) {
    dynamics = messung;
}
