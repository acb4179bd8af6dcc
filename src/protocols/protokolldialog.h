// What the dialogs that settle the protocol of a measurement have in common. While one is up the
// measurement screen is hidden; it comes back with the outcome in gMessStatus.
#pragma once

#include <cstdint>

#include "platform/fehler.h"
#include "session/screens.h"
#include "session/status.h"

class Protokolldialog : public Screen {
  protected:
    /// `vorsatz` stands before the protocol in the caption of the measurement screen.
    explicit Protokolldialog(Text vorsatz) : mVorsatz(std::move(vorsatz)) {}

    static constexpr Messstatus angenommen =
        Messstatus::Messen; ///< there is a head under gProtokollID
    static constexpr Messstatus abgebrochen = Messstatus::Ende;

    static void messfensterVerbergen();
    /// Whether there is a specification to judge by; says so when there is none. Raises what the
    /// store raises.
    static bool spezifikationVorhanden();
    /// Closes the dialog with this outcome.
    void abschließen(Messstatus messStatus);
    /// The chosen protocol for captions: its number and name.
    virtual QString titel() const = 0;

    void Form_Unload() override;

  private:
    Text mVorsatz;
    bool mAbgeschlossen = false;
};
