#include "records/nachweis.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

#include "session/sprache.h"
#include "store/database.h"
#include "store/sqltext.h"
#include "store/trail.h"

namespace {

QString utc(const QDate &tag) {
    return tag.startOfDay().toUTC().toString(Qt::ISODateWithMs);
}

QString ortszeit(const QString &zeit) {
    return zeitpunktText(QDateTime::fromString(zeit, Qt::ISODateWithMs).toLocalTime());
}

QString vorgangswort(const QString &vorgang) {
    for (const Text &wort : {Text{"neu", "new"},
                             {"geändert", "changed"},
                             {"gelöscht", "deleted"},
                             {"Bestand", "state"},
                             {"Vermerk", "note"}})
        if (vorgang == wort.german)
            return inSprache(wort);
    return vorgang;
}

/// Of a JSON object the members in the order in which they stand; Qt would sort them.
std::vector<std::pair<QString, QJsonValue>> felder(const QString &zeile) {
    std::vector<std::pair<QString, QJsonValue>> alle;
    const QJsonObject werte = QJsonDocument::fromJson(zeile.toUtf8()).object();
    for (auto feld = werte.begin(); feld != werte.end(); ++feld)
        alle.emplace_back(feld.key(), feld.value());
    std::sort(alle.begin(), alle.end(), [&](const auto &eins, const auto &zwei) {
        return zeile.indexOf('"' + eins.first + "\":") < zeile.indexOf('"' + zwei.first + "\":");
    });
    return alle;
}

QString text(const QJsonValue &wert) {
    return wert.toVariant().toString();
}

QString änderung(const QString &alt, const QString &neu) {
    const QJsonObject vorher = QJsonDocument::fromJson(alt.toUtf8()).object();
    QStringList teile;
    for (const auto &[name, wert] : felder(neu.isEmpty() ? alt : neu)) {
        if (alt.isEmpty() || neu.isEmpty()) {
            if (!text(wert).isEmpty())
                teile += name + ": " + text(wert);
        } else if (vorher[name] != wert) {
            teile += name + ": " + text(vorher[name]) + " → " + text(wert);
        }
    }
    return teile.join("; ");
}

/// The state of tables, and which of them were others than the links before had said.
QString bestand(const QString &gesagt) {
    const QJsonObject werte = QJsonDocument::fromJson(gesagt.toUtf8()).object();
    QString ergebnis = text(werte["Anlass"]);
    if (const qsizetype tabellen = werte["Tabellen"].toObject().size(); tabellen > 0)
        ergebnis += inSprache({"; Tabellen: ", "; tables: "}) + QString::number(tabellen);
    QStringList abweichend;
    for (const QJsonValue &tabelle : werte["Abweichend"].toArray())
        abweichend += tabelle.toString();
    if (!abweichend.isEmpty())
        ergebnis += inSprache({"; am Nachweis vorbei geändert: ", "; changed past the trail: "}) +
                    abweichend.join(", ");
    return ergebnis;
}

} // namespace

Nachweisliste nachweis(const Nachweisfilter &filter) {
    QStringList bedingungen{"1"};
    Datenbank::Params werte;
    const QString nummern = "json_extract(IFNULL(Neu, Alt), '$.ProtokollID', '$.EP_ID')";
    const auto nummer = [](Schlüssel eine) { return '[' + QString::number(eine) + ",null]"; };
    if (filter.protokollID != 0) {
        bedingungen += nummern + " = ? AND Tabelle <> 'EP_Messwerte'";
        werte.push_back(nummer(filter.protokollID));
    }
    if (filter.epID != 0) {
        bedingungen += nummern + " IN (?, ?) AND Tabelle IN ('EP', 'EP_Messwerte')";
        werte.push_back(nummer(filter.epID));
        werte.push_back("[null," + QString::number(filter.epID) + ']');
    }
    if (filter.tag.isValid()) {
        bedingungen += "Zeit >= ? AND Zeit < ?";
        werte.push_back(utc(filter.tag));
        werte.push_back(utc(filter.tag.addDays(1)));
    }
    if (!filter.person.isEmpty()) {
        bedingungen += "Gleich(Person, ?)";
        werte.push_back(filter.person);
    }
    const qlonglong vor = filter.vor > 0
                              ? filter.vor
                              : gDatenbank.open("SELECT IFNULL(MAX(Nr), 0) + 1 FROM Nachweis")[0]
                                    .value()
                                    .toLongLong();
    const bool mitNummer = filter.protokollID != 0 || filter.epID != 0;
    const qlonglong ab = mitNummer ? 1 : std::max(vor - nachweisSpanne, qlonglong(1));
    bedingungen += "Nr < ? AND Nr >= ?";
    werte.push_back(vor);
    werte.push_back(ab);
    Nachweisliste liste;
    liste.weiter = ab > 1 ? ab : 0;
    std::vector<std::vector<QVariant>> zeilen;
    gDatenbank.each("SELECT Nr, Zeit, Person, Tabelle, Vorgang, Schlüssel, Alt, Neu FROM Nachweis "
                    "WHERE " +
                        bedingungen.join(" AND ") + " ORDER BY Nr DESC LIMIT " +
                        QString::number(nachweisGrenze + 1),
                    werte, [&](const Row &glied) {
                        if (zeilen.size() == nachweisGrenze) {
                            liste.weiter = zeilen.back()[0].toLongLong();
                            return;
                        }
                        const bool zeile = !glied.isNull(3);
                        zeilen.push_back({glied.whole(0), ortszeit(glied.text(1)), glied.text(2),
                                          glied.text(3), vorgangswort(glied.text(4)),
                                          zeile ? glied.text(5) : QString(),
                                          zeile ? änderung(glied.text(6), glied.text(7))
                                                : bestand(glied.text(7))});
                    });
    liste.zeilen = Recordset(
        {"Nr", "Zeit", "Person", "Tabelle", "Vorgang", "Schlüssel", "Änderung"}, std::move(zeilen));
    return liste;
}

QString nachweisStand() {
    const TrailHead stand = trailHead(gDatenbank);
    return stand.number == 0 ? QString()
                             : QString::number(stand.number) + " / " + stand.hash.left(16);
}
