#include "records/berichtsfelder.h"

#include "platform/runtime.h"
#include "session/sprache.h"
#include "store/sqltext.h"

using platform::LayoutFields;

namespace {

/// As the layouts show it: a number in the format of the session.
QString gezeigt(const QVariant &wert) {
    return wert.typeId() == QMetaType::Double ? CStr(wert.toDouble()) : wert.toString();
}

} // namespace

LayoutFields felder(const Recordset &zeilen, int zeile) {
    LayoutFields felder;
    for (int spalte = 0; spalte < zeilen.columns().size(); ++spalte)
        felder[zeilen.columns()[spalte]] = gezeigt(zeilen.at(zeile, spalte));
    // No other column is a date of ours: an ident number may well look like one.
    for (const char *spalte :
         {"ErstellDatum", "kalibriertVon", "kalibriertBis", "gemessenVon", "gemessenBis"})
        if (const auto feld = felder.find(spalte); feld != felder.end())
            if (const QDate datum = datumAus(*feld); datum.isValid())
                *feld = datumText(datum);
    return felder;
}

QString marke(bool gilt) {
    return gilt ? QStringLiteral("1") : QString();
}

QString anzahl(qsizetype zahl) {
    return zahl == 0 ? QString() : QString::number(zahl);
}

QString genau(double wert, qsizetype stellen) {
    const QString text = CStr(wert);
    return text.section(platform::numberLocale().decimalPoint(), 1).size() > stellen || stellen == 0
               ? text
               : Format(wert, "0." + QString(stellen, '0'));
}

QString mitVorzeichen(double wert) {
    return (wert > 0 ? "+" : "") + Format(wert, "0.00");
}

QString richtungswort(int richtung) {
    return richtung == 1   ? inSprache({"Rechtslauf", "Right"})
           : richtung == 2 ? inSprache({"Linkslauf", "Left"})
                           : QString();
}
