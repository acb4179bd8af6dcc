// Lists and searches the customers and chooses the one of the session.
#pragma once

#include "controls/suchmaske.h"
#include "records/kundendaten.h"
#include "ui_frmKunden.h"

class frmKunden : public Suchmaske {
  public:
    static constexpr frm id = frm::Kunden;
    frmKunden();

    /// The customer whose details are shown; 0 and empty for none.
    Schlüssel kundenID() const { return mKundenID; }
    QString kundenname() const;

    /// Reads the lists anew; what is shown stays if it is still there.
    void fnc_ListeAktualisieren();
    /// Reads the lists anew and shows no customer.
    void fnc_ListeLeeren();
    /// Reads the lists anew and shows this customer, also when the town is another one.
    void fnc_KundeWählen(const QString &name);

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;

  private:
    void beschriften();
    void aktualisieren();
    void fnc_KundeZeigen();
    void zeigen(const Kundendaten &kunde);
    void listenLesen();
    void alleOrte();
    bool kundeGezeigt();

    void cmbKundenname_Change();
    void cmbOrt_Click();
    void pbSearch_Click();
    void pbNeu_Click();
    void pbchange_Click();
    void pbDelete_Click();
    void pbexit_Click();

    Ui::frmKunden ui;
    Schlüssel mKundenID = 0;
    bool mGeladen = false; ///< the first activation follows the loading and reads nothing
    bool mGewählt = false;
};
