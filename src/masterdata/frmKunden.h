// Lists and searches the customers and chooses the one of the session.
#pragma once

#include "masterdata/listenmaske.h"
#include "records/kundendaten.h"
#include "ui_frmKunden.h"

class frmKunden : public Listenmaske {
  public:
    static constexpr frm id = frm::Kunden;
    frmKunden();

    /// Of the customer whose details are shown; empty for none.
    QString kundenname() const { return mGezeigt == 0 ? QString() : mSuche.name(); }

  protected:
    bool Form_QueryUnload() override;

  private:
    void beschriften() override;
    QStringList filternamen() const override { return kundenorte(); }
    void namenLesen(const QString &ort) override { mSuche.füllen(kundennamen(ort)); }
    void detailsZeigen() override;
    void zeigen(const Kundendaten &kunde);
    void aktualisieren();

    void pbSearch_Click();
    void pbexit_Click();

    Ui::frmKunden ui;
    bool mGewählt = false;
};
