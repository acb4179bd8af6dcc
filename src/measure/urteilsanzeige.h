// The strip over the verdict: a sign, then the deviation with its limit, its uncertainty and a
// scale, and the words that would be stored; or what it waits for. To be read from two metres.
#pragma once

#include <QWidget>

#include "measure/vorschau.h"
#include "windows/zeichen.h"

/// The ring of nothing to judge yet, for none.
platform::Zeichen zeichenZu(std::optional<Spruch> spruch);
/// How much of the time to the next result is over: an arc around the ring; a question mark when
/// it does not come.
void taktMalen(QPainter &painter, const QRectF &rect, const Taktstand &stand);

class Urteilsanzeige : public QWidget {
  public:
    explicit Urteilsanzeige(QWidget *parent = nullptr) : QWidget(parent) {
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    void zeige(const Vorschau &vorschau);
    void zeige(std::optional<Spruch> spruch, const QString &worte);
    /// While there is only the ring, it fills.
    void zeigeTakt(std::optional<Taktstand> stand);

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    struct Inhalt {
        std::optional<Spruch> spruch;
        QString worte; ///< where nothing is compared
        Vorschau vorschau;
        bool operator==(const Inhalt &) const = default;
    };
    void setInhalt(const Inhalt &inhalt, const QString &worte);
    QRectF zeichenPlatz() const;

    Inhalt mInhalt;
    std::optional<Taktstand> mTakt;
};
