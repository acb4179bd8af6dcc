// The electrical safety check of a unit: three quantities, each with limit, value and uncertainty.
#pragma once

#include "protocols/pruefblatt.h"

class frmSecControl : public Prüfblatt {
  public:
    static constexpr frm id = frm::SecControl;
    frmSecControl();

  protected:
    void leerAblegen() override;
    void vorhandenesVerlassen() override;
};
