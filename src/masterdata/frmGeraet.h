// Lists the units of the chosen customer and chooses the one of the session.
#pragma once

#include "masterdata/listenmaske.h"
#include "records/geraetedaten.h"
#include "ui_frmGeraet.h"

class frmGerät : public Listenmaske {
  public:
    static constexpr frm id = frm::Gerät;
    frmGerät();

    /// The unit whose details are shown; blank for none.
    const Gerätedaten &gerät() const { return mGerät; }

  private:
    void beschriften() override;
    QStringList filternamen() const override { return gerätetypen(gKundenID); }
    void namenLesen(const QString &typ) override;
    void filterGewählt() override;
    void detailsZeigen() override;
    void zeigen(const Gerätedaten &gerät);
    void aktualisieren();
    Recordset einzigesGerät() const;
    QString ident() const;
    Recordset gewähltesGerät();

    void pbDelete_Click();
    void pbok_Click();

    Ui::frmGerät ui;
    Gerätedaten mGerät;
    qsizetype mOhneNummer = 0; ///< units that the list of ident numbers cannot show
};
