// A field for a date that takes what people type: "31.12.2024", "1.3.2024" and "31122024".
#pragma once

#include <QDateEdit>

namespace platform {

/// The field of the library goes on to the month after the second digit by itself, so that the
/// point behind the day would lead to the year, and it cuts the day to the month that stands there
/// still. Here what was typed from the day on is a date as soon as its year is complete.
class DateField : public QDateEdit {
  public:
    using QDateEdit::QDateEdit;

  protected:
    void keyPressEvent(QKeyEvent *key) override;
    void mousePressEvent(QMouseEvent *press) override;
    void focusInEvent(QFocusEvent *event) override;

  private:
    void take(QChar typed);

    QString mTyped;
    bool mMovedOn = false; ///< by itself, at the last digit
};

} // namespace platform
