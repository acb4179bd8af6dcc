// Lists the recipes. Opened to choose the recipe of the session, it offers nothing else; opened for
// maintenance it leads to the editors.
//
// What is picked here is at once the recipe of the session variables, since the editors work on it.
// Leaving without a choice puts the recipe that the desktop shows back in force.
#pragma once

#include "masterdata/rezepttafel.h"
#include "ui_frmRezepte.h"

class frmRezepte : public Rezepttafel {
  public:
    static constexpr frm id = frm::Rezepte;
    frmRezepte();

    /// Reads the list of names anew; the text of the box stays.
    void fnc_ListeFüllen();
    /// The same; raises what fails.
    void listeLesen();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void beschriften();
    void aktualisieren();
    bool rezeptGezeigt();
    void bestätigen();

    void cmbRezeptname_Change();
    void cmbRezeptname_Click();
    void pbNeuRezept_Click();
    void pbÄndRez_Click();
    void pbDelete_Click();
    void pbok_Click();

    Ui::frmRezepte ui;
    QString mGezeigt; ///< the recipe whose steps are shown
    bool mGewählt = false;
};
