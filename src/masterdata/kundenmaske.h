// The entry of a customer: layout, captions, order of the fields, and what is refused. The screens
// derived from it say what is loaded and what is saved.
#pragma once

#include "platform/text.h"
#include "records/kundendaten.h"
#include "session/screens.h"
#include "ui_kundenmaske.h"

class Kundenmaske : public Screen {
  protected:
    struct Art {
        platform::Text titel;
        const char *laden, *speichern; ///< tags of the failure boxes
        platform::Text gespeichert;
        bool änderung; ///< of the one that the list shows
    };
    explicit Kundenmaske(const Art &art);

    void Form_Load() override;
    /// Raises what fails.
    virtual void speichern(const Kundendaten &kunde) = 0;

  private:
    void eintragen(const Kundendaten &kunde);
    Kundendaten eingabe() const;
    bool annehmbar();
    void pbSave_Click();

    Ui::Kundenmaske ui;
    Art mArt;
    Kundendaten mVorher; ///< of the customer that is changed
};
