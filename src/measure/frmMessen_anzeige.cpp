// What the measurement screen shows besides its boxes, painted: the strip over the verdict, the
// ring to the next result, how far the speed still is.
#include "measure/frmMessen.h"

#include <QHeaderView>
#include <QPainter>

#include <utility>

#include "measure/urteilsspalte.h"
#include "session/motorfenster.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/stil.h"

using namespace platform;

namespace {

void dreieckMalen(QPainter &painter, const QRectF &rect, bool aufwärts) {
    const QRectF in = rect.adjusted(2, 6, -2, -6);
    const double fuß = aufwärts ? in.bottom() : in.top(),
                 spitze = aufwärts ? in.top() : in.bottom();
    painter.setPen(Qt::NoPen);
    painter.setBrush(farben().akzent);
    painter.drawPolygon(QPolygonF{{in.left(), fuß}, {in.right(), fuß}, {in.center().x(), spitze}});
}

/// The key to the signs; answers how wide it is.
int legendeMalen(QPainter *painter, const QRectF &rect) {
    constexpr int zeichen = 16, abstand = 8;
    const std::pair<Spruch, QString> worte[] = {
        {Spruch::Ja, inSprache({"eingehalten", "complies"})},
        {Spruch::Offen, inSprache({"unentschieden", "undecided"})},
        {Spruch::Nein, inSprache({"nicht eingehalten", "does not comply"})}};
    const QFontMetrics maß(schrift(0));
    double x = rect.left();
    for (const auto &[spruch, wort] : worte) {
        const double y = rect.center().y();
        if (painter) {
            zeichenMalen(*painter, {x, y - zeichen / 2.0, zeichen, zeichen}, zeichenZu(spruch));
            painter->setFont(schrift(0));
            painter->setPen(farben().blass);
            painter->drawText(QPointF(x + zeichen + abstand, y + maß.ascent() / 2.0 - 1), wort);
        }
        x += zeichen + abstand + maß.horizontalAdvance(wort) + 3 * abstand;
    }
    return int(x - rect.left());
}

} // namespace

void frmMessen::anzeigenEinrichten() {
    QTableView *tabelle = raster();
    for (int spalte = 0; spalte < int(mAnsicht.spalten.size()); ++spalte) {
        const bool urteil = mAnsicht.urteile.contains(mAnsicht.spalten[size_t(spalte)].name);
        tabelle->setItemDelegateForColumn(spalte, urteil ? new Urteilsspalte(tabelle) : nullptr);
    }
    for (QWidget *teil :
         std::initializer_list<QWidget *>{ui.lbIST_n_ergom, ui.txtIST_n_ergom, ui.lbEinheitErgom}) {
        QSizePolicy platz = teil->sizePolicy();
        platz.setRetainSizeWhenHidden(true); // nothing moves from step to step
        teil->setSizePolicy(platz);
    }
    ui.anzLegende->setMinimumWidth(legendeMalen(nullptr, {}));
    ui.anzLegende->zeige(
        [](QPainter &painter, const QRectF &rect) { legendeMalen(&painter, rect); },
        inSprache({"Die Zeichen: eingehalten, unentschieden, nicht eingehalten",
                   "The signs: complies, undecided, does not comply"}));
    for (const QLineEdit *box : {ui.txtSoll_n, ui.txtSoll_P, ui.txtMessArt})
        on(box, &QLineEdit::textChanged, [this] { streifenZeigen(); });
}

void frmMessen::drehrichtungZeigen() {
    ui.laDrehR->setText(motorfenster().drehrichtung());
    ui.anzDrehR->zeige(
        [rechts = gDrehrichtung == 1](QPainter &painter, const QRectF &rect) {
            drehpfeilMalen(painter, rect, rechts, farben().text);
        },
        ui.laDrehR->text());
}

Phase frmMessen::phase() const {
    if (freieEingabe() && mEingabe.offen())
        return Phase::Eingabe;
    if (mZustand.ungesendet || mZustand.korrigiert || mZustand.neuZuSenden)
        return Phase::Ungesendet;
    if (mZustand.abgearbeitet)
        return Phase::Abgearbeitet;
    return mWerte == Werte::Fremde ? Phase::Ruht : Phase::Misst;
}

void frmMessen::streifenZeigen() {
    const SchrittTexte schritt = texte();
    const Streifen ist = streifen(phase(), schritt, mAnsicht.bedient);
    anlaufZeigen(ist == Streifen::Anlauf ? anlauf(schritt) : 0);
    if (ist == Streifen::Summe) {
        const Summe stand = summe(gespeicherteUrteile());
        ui.anzUrteil->zeige(stand.schlimmster(), stand.text());
    } else if (ist != Streifen::Urteil) {
        ui.anzUrteil->zeige(std::nullopt, streifenText(ist));
    } else if (const Vorschau urteil = vorschau(schritt); !urteil.vergleiche.empty()) {
        ui.anzUrteil->zeige(urteil);
    } else {
        ui.anzUrteil->zeige(std::nullopt, inSprache({"Nicht zu beurteilen", "Cannot be judged"}));
    }
}

// A failure is told when the step is to be stored.
Vorschau frmMessen::vorschau(const SchrittTexte &schritt) try {
    return messablauf().vorschau(schritt);
} catch (const Fehler &) {
    return {};
}

QStringList frmMessen::gespeicherteUrteile() const {
    QStringList worte;
    for (int spalte = 0; spalte < int(mAnsicht.spalten.size()); ++spalte) {
        if (mAnsicht.urteile.isEmpty() ||
            mAnsicht.spalten[size_t(spalte)].name != mAnsicht.urteile.last())
            continue;
        for (int zeile = 0; zeile < mRaster.rowCount(); ++zeile)
            worte += mRaster.data(mRaster.index(zeile, spalte), Qt::DisplayRole).toString();
    }
    return worte;
}

void frmMessen::anlaufZeigen(double fehlt) {
    const int richtung = fehlt > 0 ? 1 : fehlt < 0 ? -1 : 0;
    if (std::exchange(mAnlauf, richtung) == richtung)
        return; // nothing to paint anew
    if (richtung == 0) {
        ui.anzAnlauf->zeige(Bild::Maler(), {});
        return;
    }
    ui.anzAnlauf->zeige(
        [auf = richtung > 0](QPainter &painter, const QRectF &rect) {
            dreieckMalen(painter, rect, auf);
        },
        streifenText(Streifen::Anlauf));
}

void frmMessen::taktZeigen() {
    const std::optional<Taktstand> stand = mTakt.stand();
    ui.anzUrteil->zeigeTakt(stand);
    if (!stand) {
        ui.anzTakt->zeige(Bild::Maler(), {});
        return;
    }
    ui.anzTakt->zeige(
        [ist = *stand](QPainter &painter, const QRectF &rect) { taktMalen(painter, rect, ist); },
        stand->überfällig
            ? inSprache({"Die Messwerte bleiben aus", "No measured values come"})
            : inSprache({"Zeit bis zum nächsten Messwert", "Time to the next value"}));
}
