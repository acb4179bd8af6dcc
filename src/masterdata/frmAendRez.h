// Changes a recipe; its specification stands in gRezeptName.
#pragma once

#include "masterdata/rezeptaenderung.h"

class frmÄndRez : public Rezeptänderung {
  public:
    static constexpr frm id = frm::ÄndRez;
    frmÄndRez();

  protected:
    void toleranzenFüllen() override;
    QString toleranzInKraft() override { return gRezeptName; }
    void toleranzSpeichern(const QString &name) override;
    void tasteUnbekannt() override;
};
