// The recipes of the final test: to choose one for the desktop of the final test, and to change
// them. The chosen one's name is left in gEPRezeptWahl; the recipe that was in force when this
// screen was opened is so again when it closes.
#pragma once

#include "masterdata/rezeptwahl.h"

class frmEPRezepte : public Rezeptwahl {
  public:
    static constexpr frm id = frm::EPRezepte;
    frmEPRezepte();

  protected:
    void Form_Activate() override;
    void Form_Unload() override;
    void beschriften() override;
    bool wählt() const override { return true; }
    bool pflegt() const override { return true; }
    void einsetzen(const QString &name) override;
    void gewählt(const QString &name) override;
    void verlassen(bool gewählt) override;
    QString vorgewählt() const override;

  private:
    Schlüssel mVorher; ///< in force at the opening
};
