// The check of a unit's blood-pressure system: its display at seven pressures, rising and falling.
#pragma once

#include "protocols/pruefblatt.h"

class frmBlutdruck : public Prüfblatt {
  public:
    static constexpr frm id = frm::Blutdruck;
    frmBlutdruck();

  private:
    void zeileAnlegen(int stufe);
};
