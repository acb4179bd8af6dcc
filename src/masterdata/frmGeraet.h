// Lists the units of the chosen customer and chooses the one of the session.
#pragma once

#include "controls/suchmaske.h"
#include "records/geraetedaten.h"
#include "ui_frmGeraet.h"

class frmGerät : public Suchmaske {
  public:
    static constexpr frm id = frm::Gerät;
    frmGerät();

    /// The unit whose details are shown; 0 and empty for none.
    Schlüssel gerätID() const { return mGerätID; }
    QString gerätename() const; ///< its type
    QString identnummer() const;

    /// Reads the lists anew; what is shown stays if it is still there.
    void fnc_ListeAktualisieren();
    /// Reads the lists anew and shows no unit.
    void fnc_ListeLeeren();
    /// Reads the lists anew and shows this unit, also when the type is another one.
    void fnc_GerätWählen(const QString &identNr);

  protected:
    void Form_Load() override;
    void Form_Activate() override;

  private:
    void beschriften();
    void aktualisieren();
    void listenLesen();
    void typSetzen(const QString &typ);
    void identnummernLesen();
    void fnc_GerätZeigen();
    void zeigen(const Gerätedaten &gerät);
    Recordset einzigesGerät() const;
    bool gerätGezeigt();
    QString ident() const;
    Recordset gewähltesGerät();

    void cmbTyp_Click();
    void cmbIdent_Change();
    void pbNeu_Click();
    void pbchange_Click();
    void pbDelete_Click();
    void pbok_Click();

    Ui::frmGerät ui;
    qsizetype mOhneNummer = 0; ///< units that the list of ident numbers cannot show
    Schlüssel mGerätID = 0;
    bool mGeladen = false; ///< the first activation follows the loading and reads nothing
};
