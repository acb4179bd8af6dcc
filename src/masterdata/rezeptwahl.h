// Lists the recipes of one kind: to choose one, to change them, or both.
//
// What is picked here is at once the recipe that the session variables name, since the editors work
// on it. Leaving without a choice is to put the former one back in force.
#pragma once

#include "masterdata/rezepttafel.h"
#include "ui_rezeptwahl.h"

class Rezeptwahl : public Rezepttafel {
  public:
    /// Reads the list of names anew; the text of the box stays. Raises what fails.
    void listeLesen();

  protected:
    struct Art {
        Rezepttabellen tabellen;
        const Schlüssel &rezeptID; ///< of the recipe in force
        frm neu, ändern;           ///< the editors
        std::vector<Schrittgitter::Spalte> spalten;
        platform::Text zähler;     ///< before the number of recipes
        platform::Text änderung;   ///< caption of the editor; the name in the place of %1
        platform::Text nochKeines; ///< in the box when there is no recipe
        struct Kennungen {
            const char *ändern, *klick, *aktivieren, *laden, *entladen, *liste, *editor, *löschen,
                *wählen;
        } kennung; ///< of the failure boxes
    };
    explicit Rezeptwahl(const Art &art);

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

    virtual void beschriften();
    virtual bool wählt() const = 0;
    virtual bool pflegt() const = 0;
    // These raise what fails.
    /// Puts it in force and shows it.
    virtual void einsetzen(const QString &name) = 0;
    virtual void gewählt(const QString &name) = 0;
    /// Left without a choice, or by one.
    virtual void verlassen(bool gewählt) = 0;
    /// The recipe that stands in the box when nothing else is asked for; empty for none.
    virtual QString vorgewählt() const { return einziges(); }
    /// The only recipe there is.
    QString einziges() const;

    Ui::Rezeptwahl ui;

  private:
    void fnc_ListeFüllen();
    void aktualisieren();
    bool rezeptGezeigt();
    void bestätigen();

    void cmbRezeptname_Change();
    void cmbRezeptname_Click();
    void pbNeuRezept_Click();
    void pbÄndRez_Click();
    void pbDelete_Click();
    void pbok_Click();

    const Art mArt;
    QString mGezeigt; ///< the recipe whose steps are shown
    bool mGewählt = false;
};
