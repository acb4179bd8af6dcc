// The recipes. Opened to choose the recipe of the session, it offers nothing else; opened for
// maintenance it leads to the editors. Leaving without a choice puts the recipe that the desktop
// shows back in force.
#pragma once

#include "masterdata/rezeptwahl.h"
#include "session/session.h"

class frmRezepte : public Rezeptwahl {
  public:
    static constexpr frm id = frm::Rezepte;
    frmRezepte();

  protected:
    void beschriften() override;
    bool wählt() const override { return gRezeptAufruf; }
    bool pflegt() const override { return !gRezeptAufruf; }
    void einsetzen(const QString &name) override;
    void gewählt(const QString &name) override;
    void verlassen(bool gewählt) override;
    void Form_Unload() override;
};
