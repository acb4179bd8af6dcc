#include "measure/sollwert.h"

#include "platform/runtime.h"

using namespace platform;

const Sollwertgrenze drehzahlgrenze{
    130,
    {"Drehzahl muss ein nummerischer Wert sein!", "Number of revolutions must be a numeric value!"},
    {"Drehzahl liegt außerhalb des gültigen Bereiches",
     "The permissible number of revolutions has been exeeded!"}};

const Sollwertgrenze leistungsgrenze{
    800,
    {"Leistung muss ein nummerischer Wert sein!", "Power must be a numeric value!"},
    {"Leistung liegt außerhalb des gültigen Bereiches", "Permissible power has been exeeded!"}};

const Text *Sollwertgrenze::mangel(const QString &text) const {
    if (!IsNumeric(text))
        return &keineZahl;
    const double wert = CDbl(text);
    return wert < 0 || wert > höchstens ? &außerhalb : nullptr;
}
