#include "calibration/moment.h"

#include <cmath>

#include "platform/runtime.h"

namespace {
constexpr double linksBis = 9000, rechtsAb = 11'000; // raw
constexpr double rohJeEinheit = 50;
constexpr double kleinstesMoment = 20; // N m
constexpr double mNmJeNm = 1000;
} // namespace

std::optional<double> erdschwere(const QString &text) {
    QString punkt = text.trimmed();
    fnc_KommaZuPunkt(punkt);
    bool zahl = false;
    const double wert = QLocale::c().toDouble(punkt, &zahl);
    return zahl ? std::optional(wert) : std::nullopt;
}

bool erdschwereGültig(double wert) {
    return wert >= kleinsteSchwere && wert <= größteSchwere;
}

double fnc_Mittelwert(std::vector<double> &proben, const Momentrechnung &rechnung,
                      Hebelarmmomente &letzte) {
    double moment = 0;
    double summe = 0;
    for (double &probe : proben) {
        const double roh = probe;
        if (roh <= linksBis || roh >= rechtsAb) {
            moment = rechnung.schwereFaktor * (roh - rechnung.offsetRoh) / rohJeEinheit *
                     rechnung.momentFaktor;
            (roh <= linksBis ? letzte.links : letzte.rechts) = moment;
        }
        probe = moment;
        summe += moment;
    }
    return summe / static_cast<double>(proben.size());
}

double fnc_Streuung(const std::vector<double> &momente, double mittelwert) {
    double quadrate = 0;
    for (const double moment : momente)
        quadrate += (moment - mittelwert) * (moment - mittelwert);
    const auto n = static_cast<double>(momente.size());
    return std::sqrt(quadrate / ((n - 1) * n));
}

Seitenurteil seiteBeurteilen(double mittel, double streuung, const Hebelarmmomente &referenz,
                             double grenzwert) {
    if (!(std::fabs(mittel) >= kleinstesMoment)) // nor is what is no number
        return {};
    Seitenurteil urteil{mittel < 0 ? Seite::Links : Seite::Rechts, mittel, streuung, 0, {}, false};
    urteil.differenz = mittel - (mittel < 0 ? referenz.links : referenz.rechts);
    urteil.balken = driftBalken(urteil.differenz * mNmJeNm, momentGrenze, false);
    urteil.streuungZuGroß = !(streuung <= grenzwert);
    return urteil;
}
