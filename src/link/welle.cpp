#include "link/welle.h"

#include "session/motorfenster.h"
#include "session/session.h"

namespace {

void setzen(bool dreht) {
    if (gMotorEin != dreht) {
        gMotorEin = dreht;
        motorfenster().setMoteinEnabled(!dreht);
        motorfenster().setMotausEnabled(dreht);
    }
    welleZeigen();
}

} // namespace

void welleLäuftAn() {
    setzen(true);
}

void welleSteht() {
    setzen(false);
}
