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
    };
    explicit Kundenmaske(const Art &art);

    void Form_Load() override;
    // These raise what fails.
    virtual void laden() {}
    virtual void speichern(const Kundendaten &kunde) = 0;

    void eintragen(const Kundendaten &kunde);
    void setSpeichernEnabled(bool enabled) { ui.pbSave->setEnabled(enabled); }

  private:
    Kundendaten eingabe() const;
    bool annehmbar();
    void pbSave_Click();

    Ui::Kundenmaske ui;
    Art mArt;
    Kundendaten mVorher; ///< of the customer that is changed
};
