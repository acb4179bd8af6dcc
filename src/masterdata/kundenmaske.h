// The entry of a customer: layout, captions, order of the fields, and what is refused. The screens
// derived from it say what is loaded and what is saved.
#pragma once

#include "platform/text.h"
#include "records/kundendaten.h"
#include "session/screens.h"
#include "ui_kundenmaske.h"

class Kundenmaske : public Screen {
  protected:
    explicit Kundenmaske(const platform::Text &titel);

    virtual void pbSave_Click() = 0;

    /// Captions, the list of towns, and the keyboard to the name.
    void vorbereiten();
    void eintragen(const Kundendaten &kunde);
    Kundendaten eingabe() const;
    /// False, and told why, when there is no name or another customer bears it; not if it was so
    /// before. `kundenID` is the customer that is changed, 0 for a new one.
    bool prüfen(Schlüssel kundenID);
    /// Closes, and lets the list of customers show this one.
    void schließen(const QString &name);
    void setSpeichernEnabled(bool enabled) { ui.pbSave->setEnabled(enabled); }

  private:
    Ui::Kundenmaske ui;
    platform::Text mTitel;
    Kundendaten mVorher; ///< of the customer that is changed
};
