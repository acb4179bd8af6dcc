#include "sollwert.h"

#include "runtime.h"
#include "sqltext.h"

double boxWert(const QLineEdit *box) {
    QString text = box->text();
    fnc_KommaZuPunkt(text);
    return Val(text);
}
