// Begin and end of the scale of a chart.
#pragma once

#include "measure/band.h"
#include "session/screens.h"
#include "ui_frmSetScale.h"

class frmSetScale : public Screen {
  public:
    static constexpr frm id = frm::SetScale;
    frmSetScale();

    /// For which chart, and what its axis shows now. What is chosen goes to frmGraphLite.
    void erfragen(Diagramm diagramm, const Band &achse);

  protected:
    void Form_Load() override;

  private:
    void pbok_Click();

    Ui::frmSetScale ui;
    Diagramm mDiagramm{};
};
