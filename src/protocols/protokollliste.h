// The list of existing protocols as the dialogs offer it: entries "12 - name", and a number may be
// typed. The number that stands in the box is kept in gProtokollWahl by the dialog.
#pragma once

#include <QStringList>

class QComboBox;
class QPushButton;

/// Fills the list anew. The box stays empty unless there is exactly one entry.
void protokollListeFüllen(QComboBox &liste, const QStringList &einträge);

/// Enter in the list: looks gProtokollWahl up among those that are offered, completes the entry
/// and goes on to the button, or says that there is none.
void protokollNachschlagen(QComboBox &liste, QPushButton &pbok);

/// Says that the protocol does not exist and goes back to the list.
void protokollFehlt(QComboBox &liste, QPushButton &pbok);
