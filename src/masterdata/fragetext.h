// The question before a deletion: a label that wraps, in which the numbers of what hangs on the
// record stand out. Its text is plain.
#pragma once

#include <QLabel>

class QTextLayout;

class Fragetext : public QLabel {
  public:
    using QLabel::QLabel;

    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    double setzen(QTextLayout &satz, int breite) const;
};
