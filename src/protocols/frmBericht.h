// Prints working protocols, and asks afterwards whether the protocol can go to the archive.
#pragma once

#include "protocols/berichtsmaske.h"

class frmBericht : public Berichtsmaske {
  public:
    static constexpr frm id = frm::Bericht;
    frmBericht();

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    void fnc_ProtokollListe() override;
    void gedruckt() override { mbGedruckt = true; }
    void pdfVorbereiten(Schlüssel protokollID) override;

  private:
    bool archivieren();

    bool mbGedruckt = false; ///< a page that counts as the protocol was printed
};
