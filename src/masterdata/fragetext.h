// The question before a deletion: a label that wraps, in which the numbers of what hangs on the
// record stand out. Its text is plain.
#pragma once

#include <QLabel>
#include <QTextLayout>

/// Where in a question it is told what hangs on the record: each number with what it counts. The
/// name of the record may hold numbers, too.
QList<QTextLayout::FormatRange> mengen(const QString &frage);

class Fragetext : public QLabel {
  public:
    using QLabel::QLabel;

    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    double setzen(QTextLayout &satz, int breite) const;
};
