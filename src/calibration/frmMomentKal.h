// The two sides of the lever-arm calibration: each return to this screen measures the side on which
// the arm hangs, shows and judges it. Both in order, they are stored.
#pragma once

#include <array>

#include "calibration/moment.h"
#include "platform/fehler.h"
#include "session/screens.h"
#include "ui_frmMomentKal.h"

class frmMomentKal : public Screen {
  public:
    static constexpr frm id = frm::MomentKal;
    frmMomentKal();

    void showInfo(const QString &text) override { ui.laInfo->setText(text); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;

  private:
    /// What a run came to.
    enum class Lauf : std::int16_t { Unbrauchbar = 0, InOrdnung = 1, Außerhalb = 2 };
    /// Where one side is shown.
    struct Seitenfeld {
        QLineEdit *referenz, *wert;
        QLabel *differenz, *streuung;
        DriftAnzeige *balken;
        platform::Bild *urteil;
    };

    Lauf fnc_MomentMessen();
    void seiteZeigen(const Seitenurteil &urteil);
    void grenzenMelden(const Seitenurteil &urteil);
    void ergebnisZeigen(Lauf lauf);
    void weiterBeschriften();
    bool außerhalb(Seite seite) const;
    int gemessen() const;
    void montieren(const platform::Text &text, Seite seite);
    void speichern();
    void abbrechen();
    void korrekturLaden();
    Seitenfeld feld(Seite seite);

    void pbWeiter_Click();
    void pbWiederholen_Click();

    Ui::frmMomentKal ui;
    std::array<std::optional<Seitenurteil>, 2> mSeiten; ///< left, right
    Seite mZuletzt = Seite::Links; ///< measured last; before the first the arm is told to hang left
    bool mErledigt = false;        ///< closes without being cancelled: stored, or nothing to be had
};
