#include "measure/sollwert.h"

#include "platform/runtime.h"
#include "store/sqltext.h"

double boxWert(QString text) {
    fnc_KommaZuPunkt(text);
    return Val(text);
}
