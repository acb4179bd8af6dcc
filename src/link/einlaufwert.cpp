#include "link/einlaufwert.h"

#include "platform/runtime.h"

std::optional<double> einlaufWert(const QString &text, double grenze) {
    bool numeric = IsNumeric(text);
    const double value =
        numeric ? CDbl(text) : QString(text).replace(',', '.').trimmed().toDouble(&numeric);
    if (!numeric || !(value >= 0 && value < grenze)) // not a number compares false
        return {};
    return value;
}
