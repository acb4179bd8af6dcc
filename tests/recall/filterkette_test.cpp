// The chain of filters against a model that filters plain rows, order, due months, letters.
#include "recall/filterkette.h"

#include <algorithm>
#include <random>

#include "recall/faelligkeit.h"
#include "recall/kundenblatt.h"
#include "workshop.h"

namespace {

using namespace support;

struct Plain { // a customer, maybe with a unit, maybe with a protocol
    QHash<QString, QString> text;
    QDate date;
};
using Rows = std::vector<Plain>;

class Chain : public Workshop {
  protected:
    Chain() {
        gDatenbank.openFile(datenbankName);
        for (const char *table : {"Kunden", "Ergometer", "Protokoll"})
            change(QString("DELETE FROM ") + table);
        change("INSERT INTO Kunden VALUES (1, 'Müller''s', 'A 1', '100', 'Bonn'), "
               "(2, 'Ohne Gerät', 'B 2', '100', 'Köln'), (3, 'Ohne Protokoll', 'C 3', '200', "
               "'Bonn'), (70000, 'Zwei', NULL, '300', 'Köln'), (5, 'Fünf', 'E 5', '200', 'Köln')");
        // The last one has moved to another customer since its calibration; 8 is 1 once more.
        change("INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, Hersteller, IdentNr) VALUES "
               "(1, 1, 'T1', 'H1', 'I1'), (2, 1, 'T2', 'H1', 'I2'), (3, 3, 'T1', 'H2', 'I3'), "
               "(4, 70000, 'T2', 'H2', 'I4'), (5, 70000, NULL, 'H1', 'I5'), (6, 5, 'T1', 'H1', "
               "'I6'), (7, 5, 'T3', 'H2', 'I7'), (8, 1, 'T1', 'H1', 'I1')");
        change("INSERT INTO Protokoll (ProtokollID, Protokollname, KundenID, GerätID, ErstellDatum)"
               " VALUES (1, 'a', 1, 1, '2019-03-15'), (2, 'b', 1, 1, '2021-01-10'), "
               "(3, 'c', 1, 2, '2020-02-29'), (4, 'd', 70000, 4, '2020-12-31'), "
               "(5, 'e', 70000, 4, '2020-12-31'), (6, NULL, 5, 6, '2021-01-01'), "
               "(7, 'g', 1, 7, '2018-06-01'), (8, 'h', 70000, 5, NULL), (10, 'fort', 99, 1, "
               "'2017-01-01'), (11, 'weg', 1, 99, '2016-01-01'), (12, 'z', 1, 8, '2019-03-15')");
    }

    enum class Join { Product, ByUnit, Archive, Idents };
    /// By nested loops, with all conditions of the chain.
    static Rows rows(Join join) {
        Rows made;
        const auto query = [](const QString &sql) { return gDatenbank.open(sql); };
        const auto add = [&made](std::initializer_list<const Recordset *> parts) {
            Plain row;
            for (const Recordset *part : parts) {
                if (!part)
                    continue;
                const QString table = part->columns().contains("Straße")          ? "Kunden."
                                      : part->columns().contains("Protokollname") ? "Protokoll."
                                                                                  : "Ergometer.";
                for (int c = 0; c < part->columns().size(); ++c)
                    row.text[table + part->columns()[c]] = part->at(part->position(), c).toString();
            }
            row.date = QDate::fromString(row.text["Protokoll.ErstellDatum"], Qt::ISODate);
            made.push_back(row);
        };
        const auto of = [&](const char *what, const QString &key, const Recordset &row) {
            return query(QString("SELECT %1 WHERE %2 = %3").arg(what, key, row[key].text()));
        };
        constexpr auto units = "* FROM Ergometer", customers = "* FROM Kunden",
                       protocols = "ProtokollID, Protokollname, KundenID, GerätID, ErstellDatum "
                                   "FROM Protokoll";
        if (join == Join::Archive || join == Join::Idents) {
            for (Recordset p = query(QString("SELECT ") + protocols); !p.atEnd(); p.moveNext()) {
                const Recordset e = of(units, "GerätID", p);
                if (e.empty())
                    continue;
                const Recordset k = of(customers, "KundenID", join == Join::Idents ? e : p);
                if (!k.empty())
                    add({&p, &e, &k});
            }
            return made;
        }
        for (Recordset k = query("SELECT * FROM Kunden"); !k.atEnd(); k.moveNext()) {
            Recordset e = of(units, "KundenID", k);
            do {
                Recordset p = join == Join::Product ? of(protocols, "KundenID", k)
                              : e.empty()           ? Recordset()
                                                    : of(protocols, "GerätID", e);
                do {
                    add({&k, e.empty() ? nullptr : &e, p.empty() ? nullptr : &p});
                    p.moveNext();
                } while (!p.atEnd());
                e.moveNext();
            } while (!e.atEnd());
        }
        return made;
    }

    using Chosen = std::vector<std::pair<int, Filterwert>>; ///< in the order of the choices
    static bool passes(const Plain &row, const Chosen &chosen, Filterart art) {
        const bool recall = art == Filterart::Wiedervorlage;
        for (const auto &[position, value] : chosen) {
            const auto &data = filterpositionen(art)[size_t(position)];
            const QString column = position == kundenfilter
                                       ? "Kunden.Name"
                                       : data.bedingung.simplified().section(' ', 0, 0);
            const QString wanted =
                data.liste == "cmbID" ? value.text.section(" - ", 0, 0) : value.text;
            if (position == datumsfilter) {
                const int years = recall ? -2 : 0;
                if (!row.date.isValid() || row.date < value.von.addYears(years) ||
                    row.date > value.bis.addYears(years))
                    return false;
            } else if (row.text.value(column) != wanted) {
                return false;
            }
        }
        return true;
    }
    static QStringList sorted(QStringList texts) {
        texts.removeDuplicates();
        texts.sort();
        return texts;
    }
    static QStringList wanted(Join join, const QString &column, const Chosen &chosen,
                              Filterart art) {
        QStringList texts;
        for (const Plain &row : rows(join)) {
            if (passes(row, chosen, art))
                texts += column == "ID" ? row.text["Protokoll.ProtokollID"] + " - " +
                                              row.text["Protokoll.Protokollname"]
                                        : row.text.value(column);
        }
        return sorted(texts);
    }
    static QStringList offered(const Filterkette &chain, Filterart art, int position) {
        if (filterpositionen(art)[size_t(position)].liste != "cmbID")
            return sorted(filterliste(chain.füllanweisung(position)));
        QStringList texts;
        for (const Schlüssel id : protokollliste(chain.füllanweisung(position)))
            texts += protokolleintrag(id);
        return sorted(texts);
    }
    /// The rows that the screen shows, each once.
    static QStringList shown(const Filterkette &chain, Filterart art) {
        QStringList texts;
        if (art == Filterart::Wiedervorlage) {
            for (const Wiedervorlage &row :
                 wiedervorlagen(chain.fnc_Where(), chain.fnc_OrderBy())) {
                const Wiedervorlagetexte t = texteLesen(row);
                texts += QStringList{t.kunde,     t.plz,     t.hersteller,
                                     t.gerätetyp, t.identNr, QString::fromStdString(row.kalibriert)}
                             .join('|');
            }
            EXPECT_EQ(texts.size(), QSet<QString>(texts.begin(), texts.end()).size());
            return sorted(texts);
        }
        for (const Schlüssel id : archivierte(chain.fnc_Where(), chain.fnc_OrderBy()))
            texts += texteLesen(id).protokoll;
        return sorted(texts);
    }
    static QStringList wantedRows(const Chosen &chosen, Filterart art) {
        if (art == Filterart::Löschen)
            return wanted(Join::Archive, "ID", chosen, art);
        QStringList texts;
        for (const Plain &row : rows(Join::ByUnit)) {
            const auto &t = row.text;
            if (passes(row, chosen, art))
                texts += QStringList{t["Kunden.Name"],          t["Kunden.PLZ"],
                                     t["Ergometer.Hersteller"], t["Ergometer.Gerätetyp"],
                                     t["Ergometer.IdentNr"],    t["Protokoll.ErstellDatum"]}
                             .join('|');
        }
        return sorted(texts);
    }
    static QStringList wantedList(int position, const Chosen &chosen, Filterart art) {
        const QString list = filterpositionen(art)[size_t(position)].liste;
        const bool deletion = art == Filterart::Löschen;
        if (list == "cmbID")
            return wanted(Join::Archive, "ID", chosen, art);
        if (list == "cmbIdent")
            return wanted(Join::Idents, "Ergometer.IdentNr", chosen, art);
        if (list == "cmbTyp" && deletion)
            return wanted(Join::Archive, "Ergometer.Gerätetyp", chosen, art);
        const QHash<QString, QString> columns{{"cmbKunde", "Kunden.Name"},
                                              {"cmbPLZ", "Kunden.PLZ"},
                                              {"cmbOrt", "Kunden.Ort"},
                                              {"cmbTyp", "Ergometer.Gerätetyp"},
                                              {"cmbHersteller", "Ergometer.Hersteller"}};
        return wanted(Join::Product, columns[list], chosen, art);
    }
};

TEST_F(Chain, NarrowsAsTheModelDoes) {
    std::mt19937 dice(13);
    const auto below = [&](qsizetype n) { return int(dice() % unsigned(n)); };
    for (const Filterart art : {Filterart::Wiedervorlage, Filterart::Löschen}) {
        for (int round = 0; round < 40; ++round) {
            Filterkette chain(art);
            Chosen chosen;
            std::array<QStringList, filteranzahl> lists;
            for (int p = 0; p < datumsfilter; ++p)
                if (!filterpositionen(art)[size_t(p)].liste.isEmpty())
                    lists[size_t(p)] = offered(chain, art, p);
            QString road;
            for (int choice = 0; choice < 7; ++choice) {
                const int position = below(filteranzahl);
                Filterwert value;
                if (position == datumsfilter) {
                    value.von = QDate(2018, 1, 1).addDays(below(900));
                    value.bis = value.von.addDays(1 + below(1500));
                } else {
                    const QStringList &list = lists[size_t(position)];
                    if (list.size() < 2)
                        continue;
                    value.text = list[below(list.size())];
                    if (value.text.isEmpty())
                        continue;
                }
                chain.wählen(position, value);
                road += QString(" %1=%2%3").arg(position).arg(value.text, value.von.toString());
                SCOPED_TRACE(road.toStdString());
                const auto used = std::find_if(chosen.begin(), chosen.end(), [&](const auto &one) {
                    return one.first == position;
                });
                chosen.erase(used, chosen.end());
                chosen.emplace_back(position, value);
                for (int p = 0; p < filteranzahl; ++p) {
                    const bool inUse = std::any_of(chosen.begin(), chosen.end(),
                                                   [p](const auto &one) { return one.first == p; });
                    ASSERT_EQ(chain.inGebrauch(p), inUse) << p;
                    if (inUse)
                        continue;
                    if (p == datumsfilter) {
                        const auto [first, last] = filterdaten(chain.füllanweisung(p));
                        QStringList days =
                            wanted(Join::Product, "Protokoll.ErstellDatum", chosen, art);
                        days.removeAll("");
                        ASSERT_EQ(first.toString(Qt::ISODate), days.value(0));
                        ASSERT_EQ(last.toString(Qt::ISODate), days.isEmpty() ? "" : days.last());
                    } else if (!filterpositionen(art)[size_t(p)].liste.isEmpty()) {
                        lists[size_t(p)] = offered(chain, art, p);
                        ASSERT_EQ(lists[size_t(p)], wantedList(p, chosen, art)) << p;
                    }
                }
                ASSERT_EQ(shown(chain, art), wantedRows(chosen, art));
            }
        }
    }
}

TEST_F(Chain, OffersEverythingAtTheStart) {
    const auto lists = [](Filterart art) {
        const Filterkette chain(art);
        QStringList texts;
        for (int p = 0; p < datumsfilter; ++p)
            if (!filterpositionen(art)[size_t(p)].liste.isEmpty())
                texts += offered(chain, art, p).join(',');
        return texts.join(" | ");
    };
    EXPECT_EQ(lists(Filterart::Wiedervorlage), "100,200,300 | Bonn,Köln | Fünf,Müller's,Ohne "
                                               "Gerät,Ohne Protokoll,Zwei | H1,H2 | ,T1,T2,T3");
    EXPECT_EQ(lists(Filterart::Löschen),
              "1 - a,10 - fort,11 - weg,12 - z,2 - b,3 - c,4 - d,5 - e,6 - ,7 - g,8 - h | "
              "Fünf,Müller's,Zwei | I1,I2,I3,I4,I5,I6,I7 | ,T1,T2,T3");
    EXPECT_EQ(shown(Filterkette(Filterart::Wiedervorlage), Filterart::Wiedervorlage),
              wantedRows({}, Filterart::Wiedervorlage));
}

TEST_F(Chain, WithTwoCustomersOfANameKeepsTheOneBefore) {
    change("INSERT INTO Kunden (KundenID, Name) VALUES (6, 'Zwei')");
    Filterkette chain(Filterart::Wiedervorlage);
    chain.wählen(kundenfilter, {.text = "Zwei"});
    EXPECT_EQ(chain.kundenID(), 0);
    chain.wählen(kundenfilter, {.text = "fünf"});
    EXPECT_EQ(chain.kundenID(), 5);
    chain.wählen(kundenfilter, {.text = "Zwei"});
    EXPECT_EQ(chain.kundenID(), 5);
    EXPECT_EQ(chain.rang(kundenfilter), 3);
}

TEST_F(Chain, SortsByTheColumnChosen) {
    for (const auto &c : cases(R"(
            0 -> Fünf, Müller's, Ohne Gerät, Ohne Protokoll, Zwei | 3 -> Bonn, Köln
            | 5 -> "", 2017-01-01, 2018-06-01, 2019-03-15, 2020-02-29, 2020-12-31, 2021-01-01, 2021-01-10
            | 7 -> "", T1, T2, T3)")) {
        for (const bool rising : {true, false}) {
            Filterkette chain(Filterart::Wiedervorlage);
            chain.mSortSpalte = std::int16_t(c.in.toInt());
            chain.mAufsteigend = rising;
            QStringList seen;
            for (const Wiedervorlage &row :
                 wiedervorlagen(chain.fnc_Where(), chain.fnc_OrderBy())) {
                const Wiedervorlagetexte t = texteLesen(row);
                const QString of[] = {t.kunde, {},         {},
                                      t.ort,   {},         QString::fromStdString(row.kalibriert),
                                      {},      t.gerätetyp};
                if (seen.isEmpty() || seen.last() != of[c.in.toInt()])
                    seen += of[c.in.toInt()];
            }
            if (!rising)
                std::reverse(seen.begin(), seen.end());
            EXPECT_EQ(seen.join(", "), QString(c.out).replace("\"\"", "")) << c;
        }
    }
    const auto order = [](Filterart art, int column) {
        Filterkette chain(art);
        chain.mSortSpalte = std::int16_t(column);
        return chain.fnc_OrderBy().simplified();
    };
    EXPECT_EQ(order(Filterart::Wiedervorlage, 9), "");
    EXPECT_EQ(order(Filterart::Löschen, 6), "");
    EXPECT_EQ(order(Filterart::Löschen, 4), "ORDER BY Ergometer.Gerätetyp");
}

TEST_F(Chain, UnitsAreDueByTheMonthAndCustomersGetOneLetter) {
    for (const auto &c : cases(R"(
            2019-03-15 -> 03/2021, 2 | 2020-02-29 -> 02/2022, 2 | 2024-10-31 -> 10/2026, 2
            | 2024-11-01 -> 11/2026, 1 | 2024-11-30 -> 11/2026, 1 | 2024-12-01 -> 12/2026, 0)")) {
        const QDate calibrated = QDate::fromString(c.in, Qt::ISODate);
        EXPECT_EQ(fälligImMonat(calibrated), c.out_(0));
        EXPECT_EQ(int(fälligkeit(calibrated, QDate(2026, 11, 23))), c.out_(1).toInt()) << c;
    }
    EXPECT_EQ(nächsteKalibrierung(QDate(2020, 2, 29)), QDate(2022, 2, 28));
    EXPECT_EQ(kalibriertFür(QDate(2024, 2, 29)), QDate(2022, 2, 28));
    EXPECT_EQ(fälligkeit({}, QDate(2026, 11, 23)), Fälligkeit::Keine);
    change("DELETE FROM Protokoll WHERE ProtokollID = 12");
    const auto letters = [](const QDate &today, bool all) {
        return QString::fromUtf8(serienbrief(
            wiedervorlagen({}, " ORDER BY Kunden.Name, Ergometer.GerätID"), today, all));
    };
    // Not by the older calibration of unit 1, not yet by the newer one of units 1 and 6.
    EXPECT_EQ(
        letters(QDate(2022, 12, 1), false),
        QString(
            "\ufeff\"Kunde\";\"Straße\";\"PLZ\";\"Ort\";\"Anzahl\";\"Geräte\"\r\n"
            "\"Fünf\";\"E 5\";\"200\";\"Köln\";\"1\";\"H2 T3, Ident-Nr. I7, kalibriert 01.06.2018, "
            "fällig 06/2020\"\r\n"
            "\"Müller's\";\"A 1\";\"100\";\"Bonn\";\"1\";\"H1 T2, Ident-Nr. I2, kalibriert "
            "29.02.2020, fällig 02/2022\"\r\n"
            "\"Zwei\";\"\";\"300\";\"Köln\";\"1\";\"H2 T2, Ident-Nr. I4, kalibriert 31.12.2020, "
            "fällig 12/2022\"\r\n"));
    EXPECT_EQ(letters(QDate(2019, 1, 1), false), "");
    setLanguage(2);
    EXPECT_TRUE(letters(QDate(2019, 1, 1), true)
                    .contains("\r\n\"Fünf\",\"E 5\",\"200\",\"Köln\",\"2\",\"H1 T1, ident no. I6, "
                              "calibrated 01.01.2021, due 01/2023; H2 T3,"));
    EXPECT_EQ(raised([] { // are not written in part
                  fnc_KundenExport(std::make_shared<const std::vector<Wiedervorlage>>(1'048'576));
              }),
              6);
}

} // namespace
