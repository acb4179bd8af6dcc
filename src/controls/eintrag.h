// Editable boxes with a list.
#pragma once

#include <QComboBox>
#include <QLineEdit>

/// The list does not write into the box while a person types.
inline void ohneErgänzung(QComboBox *box) {
    box->setCompleter(nullptr);
}

/// What a person types takes the place of the text; a long one shows its start.
inline void zumErsetzenMarkieren(QLineEdit *feld) {
    const auto letters = static_cast<int>(feld->text().size());
    feld->setSelection(letters, -letters);
}

/// An entry of the list when it is one, so that the box knows its row: leaving the box then picks
/// nothing by itself. A long text shows its start.
inline void eintragSetzen(QComboBox *box, const QString &text) {
    box->setCurrentIndex(box->findText(text));
    box->setEditText(text);
    box->lineEdit()->setCursorPosition(0);
}
