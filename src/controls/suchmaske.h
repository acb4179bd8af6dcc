// A screen in which a person searches a list by a name box.
#pragma once

#include "controls/suchliste.h"
#include "session/screens.h"

class Suchmaske : public Screen {
  protected:
    /// Called once. `geändert` follows every change of the text; `bestätigt` an Enter or a double
    /// click, by which the person settles on a name.
    void sucheVerdrahten(QComboBox *feld, QListView *liste, const Handler &geändert,
                         const Handler &bestätigt);

    Suchliste mSuche;
};
