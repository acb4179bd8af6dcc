#include "measure/frmGraphLite.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <numeric>

#include "measure/frmSetScale.h"
#include "platform/export.h"
#include "platform/runtime.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/stil.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Measuring Data"},
    {"pbSkalaN", "Scale of &Speed ..."},
    {"pbSkalaP", "Scale of &Power ..."},
    {"pbBild", "Save as P&icture"},
    {"pbZahlen", "Save as &Numbers"},
    {"pbBeenden", "&Terminate"},
};

constexpr int sekundenBisStill = 3;
constexpr double rasterX = 1000;
constexpr int kurveIst = 0, kurveMin = 1, kurveMax = 2;

const Text namen[] = {{"Drehzahl", "Speed"}, {"Leistung", "Power"}};
const Text &name(Diagramm diagramm) {
    return namen[std::size_t(diagramm)];
}
const Text &einheit(Diagramm diagramm) {
    static const Text einheiten[] = {{"1/min", "rpm"}, {"W", "W"}};
    return einheiten[std::size_t(diagramm)];
}
const Text minToleranz{"Min. Toleranz", "Min. tolerance"};
const Text maxToleranz{"Max. Toleranz", "Max. tolerance"};

} // namespace

frmGraphLite::frmGraphLite() : mStille(1000) {
    ui.setupUi(this);
    ui.glDrehzahl->onDoubleClick = handler([this] { skalaErfragen(Diagramm::Drehzahl); });
    ui.glLeistung->onDoubleClick = handler([this] { skalaErfragen(Diagramm::Leistung); });
    onClick(ui.pbSkalaN, [this] { skalaErfragen(Diagramm::Drehzahl); });
    onClick(ui.pbSkalaP, [this] { skalaErfragen(Diagramm::Leistung); });
    onClick(ui.pbBild, gefangen("2002 - ", [this] { bildSpeichern(); }));
    onClick(ui.pbZahlen, gefangen("2003 - ", [this] { zahlenSpeichern(); }));
    onClick(ui.pbBeenden, [this] { unload(); });
    mStille.onTick = handler([this] {
        if (std::exchange(mLiest, false) && ++mOhneDaten == sekundenBisStill)
            showInfo(inSprache({"Keine Daten vom Regler", "No data from the controller"}));
    });
}

void frmGraphLite::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    for (const Diagramm diagramm : diagramme)
        einrichten(diagramm);
    mStille.setEnabled(true);
    ui.pbBeenden->setFocus();
}

// However it is left, the step is measured anew; not when the session has ended or the line has
// gone.
void frmGraphLite::Form_Unload() {
    if (gMessStatus == Messstatus::Dynamisch)
        gMessStatus = gDesktopAktiv ? Messstatus::Messen : Messstatus::Ruhe;
    if (Screen *skala = loaded(frm::SetScale))
        skala->unload();
}

Plot &frmGraphLite::plot(Diagramm diagramm) const {
    return diagramm == Diagramm::Drehzahl ? *ui.glDrehzahl : *ui.glLeistung;
}

void frmGraphLite::einrichten(Diagramm diagramm) {
    Plot &bild = plot(diagramm);
    const QColor weiß(schildZeichen), ist(diagramm == Diagramm::Drehzahl ? Qt::blue : Qt::green);
    bild.setLook({schildGrund, weiß, weiß.darker(300)});
    bild.setLegendAbove();
    bild.addCurve(inSprache({"Ist - Wert", "Actual value"}), QPen(ist, 2));
    for (const Text &linie : {minToleranz, maxToleranz})
        bild.addCurve(inSprache(linie), QPen(weiß, 0, Qt::DashLine));
    bild.setAxisLabel(
        Plot::Y, QString("%1 (%2)").arg(inSprache(name(diagramm)), inSprache(einheit(diagramm))));
    bild.setAxisLabel(Plot::X, inSprache({"Die letzten Messwerte", "The last values"}));
    bild.setRange(Plot::X, {0, Messring::länge - 1});
    bild.setStep(Plot::X, rasterX);
    bild.setAccessibleName(inSprache(name(diagramm)));
    fnc_GraphBandFüllen(diagramm);
    achseZeigen(diagramm);
}

void frmGraphLite::fnc_GraphBandFüllen(Diagramm diagramm) {
    const Band &band = grafikband(diagramm);
    const std::vector<double> enden{0, Messring::länge - 1};
    plot(diagramm).setData(kurveMin, enden, {band.min, band.min});
    plot(diagramm).setData(kurveMax, enden, {band.max, band.max});
}

void frmGraphLite::achseZeigen(Diagramm diagramm) {
    const Achse &ist = achse(diagramm);
    plot(diagramm).setStep(Plot::Y, ist.raster());
    plot(diagramm).setRange(Plot::Y, {double(ist.von()), double(ist.bis())});
    plot(diagramm).repaintSoon();
}

void frmGraphLite::rahmen() {
    if (std::exchange(mOhneDaten, 0) >= sekundenBisStill)
        showInfo({});
}

void frmGraphLite::fnc_GraphZeichnen(const Messring &ring) {
    for (const Diagramm diagramm : diagramme) {
        const auto neue = diagramm == Diagramm::Drehzahl ? ring.drehzahlen() : ring.leistungen();
        auto &gezeigte = mWerte[std::size_t(diagramm)];
        gezeigte.assign(neue.begin(), neue.end());
        std::vector<double> stellen(gezeigte.size());
        std::iota(stellen.begin(), stellen.end(), 0);
        plot(diagramm).setData(kurveIst, stellen, gezeigte);
        const auto [kleinster, größter] = std::minmax_element(gezeigte.begin(), gezeigte.end());
        const Band &band = grafikband(diagramm);
        if (achse(diagramm).folgen({std::min(band.min, *kleinster), std::max(band.max, *größter)}))
            achseZeigen(diagramm);
        plot(diagramm).repaintSoon();
    }
    for (QPushButton *knopf : {ui.pbBild, ui.pbZahlen})
        knopf->setEnabled(true);
}

void frmGraphLite::skalaErfragen(Diagramm diagramm) {
    auto &dialog = form<frmSetScale>();
    dialog.erfragen(diagramm, {double(achse(diagramm).von()), double(achse(diagramm).bis())});
    dialog.showModal();
}

void frmGraphLite::skalieren(Diagramm diagramm, const Band &skala) {
    grafikband(diagramm) = skala;
    fnc_GraphBandFüllen(diagramm);
    achse(diagramm).wählen(skala);
    achseZeigen(diagramm);
}

void frmGraphLite::showInfo(const QString &text) {
    ui.laInfo->setText(text);
    ui.laInfo->setToolTip(text); // a long path is cut
}

// Both charts, one above the other, as they stand there.
void frmGraphLite::bildSpeichern() {
    const QImage oben = QImage::fromData(ui.glDrehzahl->picture());
    const QImage unten = QImage::fromData(ui.glLeistung->picture());
    QImage beide(std::max(oben.width(), unten.width()), oben.height() + unten.height(),
                 QImage::Format_RGB32);
    beide.fill(schildGrund);
    QPainter painter(&beide);
    painter.drawImage(0, 0, oben);
    painter.drawImage(0, oben.height(), unten);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    beide.save(&buffer, "PNG");
    gespeichert(exportFile(inSprache({"Messdaten", "MeasuringData"}), "png", bytes));
}

void frmGraphLite::zahlenSpeichern() {
    const bool komma = numberLocale().decimalPoint() == ",";
    const QString trenner = komma ? ";" : ",";
    QStringList kopf{inSprache({"Nr.", "No."})};
    for (const Diagramm diagramm : diagramme)
        for (const Text &zusatz : {Text(), minToleranz, maxToleranz})
            kopf += QString("%1 %2").arg(inSprache(name(diagramm)), inSprache(zusatz)).trimmed() +
                    QString(" (%1)").arg(inSprache(einheit(diagramm)));
    QStringList zeilen{kopf.join(trenner)};
    for (std::size_t nr = 0; nr < werte(Diagramm::Drehzahl).size(); ++nr) {
        QStringList zeile{QString::number(nr + 1)};
        for (const Diagramm diagramm : diagramme) {
            const Band &band = grafikband(diagramm);
            for (const double wert : {werte(diagramm)[nr], band.min, band.max})
                zeile += Format(wert, "0.00");
        }
        zeilen += zeile.join(trenner);
    }
    gespeichert(exportFile(inSprache({"Messdaten", "MeasuringData"}), "csv",
                           (zeilen.join("\r\n") + "\r\n").toUtf8()));
}

// In place of the notice, which comes again as long as nothing else does.
void frmGraphLite::gespeichert(const QString &pfad) {
    mOhneDaten = 0;
    showInfo(inSprache({"Gespeichert: ", "Saved: "}) + QDir::toNativeSeparators(pfad));
}
