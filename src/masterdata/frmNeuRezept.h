// A new recipe with a specification. The steps of another one may be copied into it.
#pragma once

#include "masterdata/rezepteingabe.h"

class frmNeuRezept : public Rezepteingabe {
  public:
    static constexpr frm id = frm::NeuRezept;
    frmNeuRezept();

    // For the copy of another recipe's steps
    void fnc_GitterAktualisieren() { gitterAktualisieren(); }
    using Rezepteingabe::neuenSchrittFreigeben;

  protected:
    void beschriften() override;
    void toleranzenFüllen() override;
    Schlüssel anlegen(const QString &name, const QString &toleranz) override;
    void verwerfen(bool schritte, bool eingabe) override;
};
