// The entry of a unit of the chosen customer: layout, captions, order of the fields, and what is
// refused. The screens derived from it say what is loaded and what is saved.
#pragma once

#include "platform/text.h"
#include "records/geraetedaten.h"
#include "session/screens.h"
#include "ui_geraetemaske.h"

#include <optional>

class Gerätemaske : public Screen {
  protected:
    struct Art {
        platform::Text titel;
        const char *laden, *speichern; ///< tags of the failure boxes
        platform::Text gespeichert;
        bool änderung; ///< of the one that the list shows
    };
    explicit Gerätemaske(const Art &art);

    void Form_Load() override;
    /// Raises what fails.
    virtual void speichern(const Gerätedaten &gerät) = 0;
    /// A remark above the fields; none without a text.
    void bemerken(const QString &text);

  private:
    void eintragen(const Gerätedaten &gerät);
    Gerätedaten eingabe() const;
    bool annehmbar();
    void pbSave_Click();

    Ui::Gerätemaske ui;
    Art mArt;
    Schlüssel mGerätID = 0;             ///< of the unit that is changed
    std::optional<Gerätedaten> mVorher; ///< the same
};
