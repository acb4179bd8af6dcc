#include "motorbedienung.h"

#include "front.h"
#include "session.h"

namespace {

void setzen(bool dreht) {
    if (gMotorEin == dreht)
        return;
    gMotorEin = dreht;
    front().setMoteinEnabled(!dreht);
    front().setMotausEnabled(dreht);
}

} // namespace

void welleLäuftAn() {
    setzen(true);
}

void welleSteht() {
    setzen(false);
}
