#include "recall/faelligkeit.h"

#include <QHash>
#include <QStringList>

#include "platform/runtime.h"
#include "session/sprache.h"
#include "store/sqltext.h"

namespace {

struct Brief {
    QStringList anschrift; ///< customer, street, postcode, town
    QStringList geräte;
};

QString text(std::string_view bytes) {
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QString feld(QString text) {
    return '"' + text.replace('"', "\"\"") + '"';
}

QString zeile(const QStringList &felder) {
    QStringList geschrieben;
    for (const QString &eines : felder)
        geschrieben += feld(eines);
    return geschrieben.join(platform::numberLocale().decimalPoint() == "," ? ';' : ',') + "\r\n";
}

QString gerät(const Wiedervorlage &vorlage, const Wiedervorlagezellen &zellen) {
    const QDate kalibriert = datumAus(vorlage.kalibriert);
    return inSprache({"%1 %2, Ident-Nr. %3, kalibriert %4, fällig %5",
                      "%1 %2, ident no. %3, calibrated %4, due %5"})
        .arg(text(zellen[4]), text(zellen[5]), text(zellen[6]), datumText(kalibriert),
             fälligImMonat(kalibriert))
        .trimmed();
}

} // namespace

Fälligkeit fälligkeit(const QDate &kalibriert, const QDate &heute) {
    const QDate fällig = nächsteKalibrierung(kalibriert);
    if (!fällig.isValid())
        return Fälligkeit::Keine;
    const int monate = (heute.year() - fällig.year()) * 12 + heute.month() - fällig.month();
    if (monate < 0)
        return Fälligkeit::Keine;
    return monate == 0 ? Fälligkeit::DieserMonat : Fälligkeit::Überfällig;
}

QString fälligImMonat(const QDate &kalibriert) {
    const QDate fällig = nächsteKalibrierung(kalibriert);
    return fällig.isValid() ? QString::asprintf("%02d/%04d", fällig.month(), fällig.year())
                            : QString();
}

QByteArray serienbrief(const std::vector<Wiedervorlage> &zeilen, const QDate &heute, bool alle) {
    std::vector<Wiedervorlage> fällige;
    for (const Wiedervorlage &eine : zeilen) {
        const QDate kalibriert = datumAus(eine.kalibriert);
        if (kalibriert.isValid() && (alle || fälligkeit(kalibriert, heute) != Fälligkeit::Keine))
            fällige.push_back(eine);
    }
    std::vector<Brief> briefe;
    QHash<qlonglong, size_t> nummer; // of a customer's letter
    alleTexteLesen(
        neueste(fällige), [&](const Wiedervorlage &eine, const Wiedervorlagezellen &zellen) {
            const auto brief = nummer.constFind(eine.kundenID);
            if (brief == nummer.constEnd()) {
                nummer.insert(eine.kundenID, briefe.size());
                briefe.push_back(
                    {{text(zellen[0]), text(zellen[1]), text(zellen[2]), text(zellen[3])}, {}});
            }
            briefe[nummer.value(eine.kundenID)].geräte += gerät(eine, zellen);
        });
    if (briefe.empty())
        return {};
    QString datei = zeile(inSprache({"Kunde|Straße|PLZ|Ort|Anzahl|Geräte",
                                     "Customer|Street|ZIP Code|City/Town|Count|Units"})
                              .split('|'));
    for (const Brief &brief : briefe)
        datei += zeile(brief.anschrift +
                       QStringList{QString::number(brief.geräte.size()), brief.geräte.join("; ")});
    return "\xEF\xBB\xBF" + datei.toUtf8(); // by its mark spreadsheets know the encoding
}
