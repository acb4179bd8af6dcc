// A screen in which a person searches a list by a name box.
#pragma once

#include "controls/suchliste.h"
#include "platform/text.h"
#include "session/screens.h"

class Suchmaske : public Screen {
  protected:
    /// Called once. `geändert` follows every change of the text; `bestätigt` an Enter or a double
    /// click, by which the person settles on a name.
    void sucheVerdrahten(QComboBox *feld, QListView *liste, const Handler &geändert,
                         const Handler &bestätigt);

    /// Completes what stands in the box, as Suchliste. True when it names one now; otherwise the
    /// person is to confirm what has gone in, or is told that nothing fits.
    bool nameFestlegen(const platform::Text &titel);
    static void nichtsGefunden(const platform::Text &titel);

    Suchliste mSuche;

  private:
    QComboBox *mFeld = nullptr;
};
