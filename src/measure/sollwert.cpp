#include "sollwert.h"

#include "runtime.h"
#include "sqltext.h"

double boxWert(QString text) {
    fnc_KommaZuPunkt(text);
    return Val(text);
}
