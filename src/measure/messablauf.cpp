#include "measure/messablauf.h"

#include "measure/ordentlicherablauf.h"

namespace {
Messablauf *otherFlow = nullptr;
} // namespace

Messablauf &messablauf() {
    return otherFlow ? *otherFlow : ordentlicherAblauf();
}

void setMessablauf(Messablauf *ablauf) {
    otherFlow = ablauf;
}
