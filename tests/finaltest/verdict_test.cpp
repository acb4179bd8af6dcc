// The verdicts of the final test at the limits of each class, reckoned by hand, under both number
// formats, as the rows keep them.
#include "finaltest/epablauf.h"
#include "measure/messablauf.h"
#include "platform/runtime.h"
#include "records/epmesswerte.h"
#include "session/session.h"
#include "workshop.h"

namespace {

using namespace support;

struct EPVerdict : Workshop {
    EPVerdict() {
        gDatenbank.openFile(datenbankName);
        epAblaufEinsetzen();
    }
    ~EPVerdict() override { epAblaufWegnehmen(); }
};

TEST_F(EPVerdict, AtTheLimitsOfEachClass) {
    // class; W set, W measured, 1/min of the standard, 1/min read; "none" is a row without verdict
    const QString table = R"(
        M; 100; 105.00; 60.00;  60 -> good | M; 100; 105.01; 60.00;  60 -> bad
        | M; 100; 95.00; 60.00;  60 -> good | M; 100; 94.99; 60.00;  60 -> bad
        | M; 40; 43.00; 60.00;  60 -> good | M; 40; 43.01; 60.00;  60 -> bad
        | M; 40; 37.00; 60.00;  60 -> good | M; 40; 36.99; 60.00;  60 -> bad
        | M; 60; 63.00; 60.00;  60 -> good | M; 60; 63.01; 60.00;  60 -> bad
        | M; 60.2; 63.21; 60.00;  60 -> good | M; 60.2; 63.22; 60.00;  60 -> bad
        | M; 0; 3.00; 60.00;  60 -> good | M; 0; 3.01; 60.00;  60 -> bad
        | M; 800; 840.00; 60.00;  60 -> good | M; 800; 840.01; 60.00;  60 -> bad
        | M; 100; 100.00; 62.00;  60 -> good | M; 100; 100.00; 62.01;  60 -> bad
        | M; 100; 100.00; 58.00;  60 -> good | M; 100; 100.00; 57.99;  60 -> bad
        | M; 100; 100.00; 60.10;  62 -> good | M; 100; 105.01; 62.01;  60 -> bad
        | S; 200; 220.00; 60.00;  60 -> good | S; 200; 220.01; 60.00;  60 -> bad
        | S; 200; 180.00; 60.00;  60 -> good | S; 200; 179.99; 60.00;  60 -> bad
        | S; 30; 35.00; 60.00;  60 -> good | S; 30; 35.01; 60.00;  60 -> bad
        | S; 50; 55.00; 60.00;  60 -> good | S; 50; 55.01; 60.00;  60 -> bad
        | S; 0; 5.00; 60.00;  60 -> good | S; 0; 5.01; 60.00;  60 -> bad
        | S; 100; 100.00; 65.00;  60 -> good | S; 100; 100.00; 65.01;  60 -> bad
        | S; 100; 100.00; 55.00;  60 -> good | S; 100; 100.00; 54.99;  60 -> bad
        | T; 106; 109.18; 60.00;  60 -> good | T; 106; 109.19; 60.00;  60 -> bad
        | T; 106; 102.82; 60.00;  60 -> good | T; 106; 102.81; 60.00;  60 -> bad
        | T; 100; 103.00; 60.00;  999 -> good | T; 100; 103.01; 60.00;  60 -> bad
        | T; 20; 23.00; 60.00;  0 -> good | T; 20; 23.01; 60.00;  60 -> bad
        | T; 200.1; 206.10; 60.00;  60 -> good | T; 200.1; 206.11; 60.00;  60 -> bad
        | T; 100; 100.00; 60.00;  -> good | E; 300; 309.00; 60.00; 999 -> good
        | E; 300; 309.01; 60.00;  60 -> bad | M; 100; 100.00; 60.00;  -> none
        | M; 100; ; 60.00;  60 -> none | M; 100; 100.00; abc;  60 -> none
        | S; x; 100.00; 60.00;  60 -> none | N; 100; 200.00; 60.00;  99 -> none
        | W; 100; ; 60.00;  -> none)";
    const QMap<QString, QString> classes{
        {"M", "medizinische Geräte"}, {"S", "stationäre Trainingsgeräte"},
        {"T", "Toleranz 3%"},         {"E", "Tolerance 3%"},
        {"N", "ohne Toleranzen"},     {"W", "without Tolerances"}};
    for (const int language : {1, 2}) {
        setLanguage(language);
        const auto words = QMap<QString, QString>{
            {"good", "OK"}, {"bad", language == 1 ? "Außer Toleranz" : "Out of tolerance"}};
        for (const Case &c : cases(table)) {
            QStringList in = c.in.split(';');
            for (qsizetype i = 1; i < in.size(); ++i)
                in[i] = (i < 4 ? in[i].trimmed() : in[i].mid(1))
                            .replace('.', platform::numberLocale().decimalPoint());
            gRezeptName = classes[in[0]];
            gDatenbank.execute("DELETE FROM EP_Messwerte");
            gToleranzOK = true; // of a step before
            messablauf().ansicht();
            messablauf().spezifikation();
            SchrittTexte step{"60", in[1], in[3], in[2], in.value(4), "16", "1", Prüfart::Drehzahl};
            const bool failing = c.out == "none" && !gRezeptName.startsWith("ohne") &&
                                 !gRezeptName.startsWith("without");
            if (failing)
                boxes.expect(language == 1 ? "Fehler 3018 -  13 …" : "ERROR 3018 -  13 …", {}, -1);
            EXPECT_TRUE(messablauf().speichern(step)) << c;
            EXPECT_EQ(grid("SELECT IFNULL(Toleranz, '') FROM EP_Messwerte"), words[c.out]) << c;
            EXPECT_EQ(gToleranzOK, c.out == "good") << c;
            boxes.expectAllCame();
        }
    }
    // Without tolerances a power measurement has no speed that would be kept.
    gRezeptName = "ohne Toleranzen";
    messablauf().spezifikation();
    SchrittTexte step{"60", "100", "60", "100", " 60", "16", "2", Prüfart::Leistung};
    messablauf().speichern(step);
    EXPECT_EQ(grid("SELECT Ist_n_ergom FROM EP_Messwerte WHERE Prüfschritt = '2'"), "0");
}

} // namespace
