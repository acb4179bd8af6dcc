// Changes a final-test recipe. A value goes into the working copy when its field is left, with the
// line for the ergometer that follows from the power; one that makes the step impermissible waits
// until the step is permissible again.
#pragma once

#include "masterdata/rezeptaenderung.h"

class frmEPÄndRez : public Rezeptänderung {
  public:
    static constexpr frm id = frm::EPÄndRez;
    frmEPÄndRez();

  protected:
    void beschriften() override;
    void toleranzenFüllen() override;
    QString toleranzInKraft() override;
    void toleranzSpeichern(const QString &name) override;
    void toleranzGespeichert() override;
    void tasteUnbekannt() override;
    void angenommen(const QWidget *feld) override;
    bool übernehmbar() override;
    void nichtsOffen() override { mOffen = false; }

  private:
    void vorschlagen();
    bool eintragen();
    void txtSSCode_GotFocus();
    void txtSSCode_LostFocus();

    bool mOffen = false; ///< a value of the stored step that is shown waits to go in
};
