#include "session/pruefart.h"

#include "session/sprache.h"

int Prüfart::ausAnfang(const QString &text) {
    const QChar first = text.isEmpty() ? QChar() : text[0].toUpper();
    if (first == 'L' || first == 'P')
        return Leistung;
    return first == 'D' || first == 'S' ? Drehzahl : Keine;
}

int Prüfart::ausText(const QString &text) {
    if (text == inSprache(leistungText))
        return Leistung;
    return text == inSprache(drehzahlText) ? Drehzahl : Keine;
}

std::optional<QString> Prüfart::ausTaste(const QString &taste) {
    for (const auto &[code, text] : {std::pair{"1", &leistungText}, {"2", &drehzahlText}}) {
        const QString &shown = inSprache(*text);
        if (taste == code || taste.compare(shown.left(1), Qt::CaseInsensitive) == 0)
            return shown;
    }
    return std::nullopt;
}
