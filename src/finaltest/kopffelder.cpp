#include "finaltest/kopffelder.h"

#include <QLocale>

#include "platform/runtime.h"

namespace {

constexpr unsigned messwert = Kopffeld::Freiwillig | Kopffeld::Zahl | Kopffeld::Leeren;

} // namespace

const std::vector<Kopffeld> &kopffelder() {
    using K = Kopffeld;
    static const std::vector<Kopffeld> felder{
        {"txtGerätetyp", "Gerätetyp"},
        {"txtSerNr", "SerienNr", K::Pflicht | K::EnterMitText | K::Bleibend | K::Leeren},
        {"txtMesskopf", "Messkopf", K::EnterMitText | K::Bleibend},
        {"txtKundenName", "Kunde", K::Leeren},
        {"txtMOhm", "IsolationsR", messwert},
        {"txtOhm", "SchutzleiterR", messwert},
        {"txtµA", "GeräteableitI", messwert},
        {"txt0auf", "auf0", messwert},
        {"txt50auf", "auf50", messwert},
        {"txt100auf", "auf100", messwert},
        {"txt150auf", "auf150", messwert},
        {"txt200auf", "auf200", messwert},
        {"txt250auf", "auf250", messwert},
        {"txt300auf", "auf300", messwert},
        {"txtAblass", "Ablassrate", K::Freiwillig, "cmbRezName"},
        {"txtPrüfer", "Prüfer"},
        {"txtPrüfDat", "Prüfdatum", K::Pflicht},
        {"txtKalDat", "kalibriertBis", K::Pflicht | K::EnterMitText, "pbDrehR"},
    };
    return felder;
}

EPKopf kopfAus(const QStringList &texte, bool überschreiben) {
    EPKopf kopf;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        const Kopffeld &feld = kopffelder()[static_cast<size_t>(i)];
        if (überschreiben && feld.ist(Kopffeld::Bleibend))
            continue;
        const bool fehlt = texte[i].isEmpty() && feld.ist(Kopffeld::Freiwillig);
        kopf.emplace_back(feld.spalte, fehlt ? QVariant() : QVariant(texte[i]));
    }
    return kopf;
}

QDate prüfdatumAus(const QString &text) {
    const QLocale &locale = platform::numberLocale();
    QString eigenes = locale.dateFormat(QLocale::ShortFormat);
    if (!eigenes.contains("yyyy"))
        eigenes.replace("yy", "yyyy");
    const QString datum = text.trimmed();
    for (const QString &format : {QString("d.M.yyyy"), QString("yyyy-M-d"), eigenes}) {
        if (const QDate ganz = QDate::fromString(datum, format); ganz.isValid())
            return ganz;
        const QDate kurz = QDate::fromString(datum, QString(format).replace("yyyy", "yy"));
        if (kurz.isValid()) // of this century
            return kurz.year() < 2000 ? kurz.addYears(100) : kurz;
    }
    return {};
}

QString kalibriertBis(const QDate &prüfdatum) {
    return platform::numberLocale().standaloneMonthName(prüfdatum.month()) + ' ' +
           QString::number(prüfdatum.year() + 2);
}
