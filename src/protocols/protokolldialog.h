// What the dialogs that settle the protocol of a measurement have in common. While one is up the
// measurement screen is hidden; it comes back with the outcome in gMessStatus.
#pragma once

#include <cstdint>

#include "fehler.h"
#include "screens.h"
#include "status.h"

class Protokolldialog : public Screen {
  protected:
    /// `vorsatz` stands before the protocol in the caption of the measurement screen.
    explicit Protokolldialog(Text vorsatz) : mVorsatz(std::move(vorsatz)) {}

    static constexpr std::int16_t angenommen =
        messstatus::Messen; ///< there is a head under gProtokollID
    static constexpr std::int16_t abgebrochen = messstatus::Ende;

    static void messfensterVerbergen();
    /// Closes the dialog with this outcome.
    void abschließen(std::int16_t messStatus);
    /// The chosen protocol for captions: its number and name.
    virtual QString titel() const = 0;

    void Form_Unload() override;

  private:
    Text mVorsatz;
    bool mAbgeschlossen = false;
};
