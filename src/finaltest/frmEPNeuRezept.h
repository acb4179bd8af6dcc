// A new final-test recipe with a tolerance class.
#pragma once

#include "controls/kuerzelfeld.h"
#include "masterdata/rezepteingabe.h"

class frmEPNeuRezept : public Rezepteingabe {
  public:
    static constexpr frm id = frm::EPNeuRezept;
    frmEPNeuRezept();

  protected:
    void beschriften() override;
    void toleranzenFüllen() override;
    Schlüssel anlegen(const QString &name, const QString &toleranz) override;
    void verwerfen(bool schritte, bool eingabe) override;
    void angenommen(const QWidget *feld) override;

  private:
    void txtLeistung_Enter();

    Kürzelfeld mKlassenkürzel;
};
