// The motor of the stand, as the buttons of a window run it.
#pragma once

#include <functional>

#include "link/einlauf.h"
#include "platform/text.h"
#include "session/motorfenster.h"

/// What a window says when the controller did not take its command.
struct Motortexte {
    platform::Text nichtEin, nichtEinTitel;
    platform::Text nichtAus, nichtAusTitel;
};

/// What it asks and tells before a measurement.
struct Messtexte {
    platform::Text nichtEingelaufen, nichtEingelaufenTitel;
    platform::Text ohneRichtung, ohneRichtungTitel;
};

class Motorbedienung {
  public:
    /// `einlauf` sets the countdown that a start begins.
    Motorbedienung(Motorfenster &fenster, Motortexte texte,
                   std::function<void()> einlauf = einlaufzeitSetzen)
        : mFenster(fenster), mTexte(std::move(texte)), mEinlauf(std::move(einlauf)) {}

    /// Starts the motor at 60 1/min in the direction of the session, and the running-in with it.
    /// The window takes no input meanwhile. False when the controller did not take it, which is
    /// told.
    bool ein();
    /// Stops the motor and the running-in. False when the controller did not take it, which is
    /// told: the motor counts as running then.
    bool aus();
    /// Asks and tells what stands before a measurement: the running-in, the direction, which is
    /// chosen next where there is none. True when a measurement may begin now.
    bool messbereit(const Messtexte &texte);

  private:
    Motorfenster &mFenster;
    Motortexte mTexte;
    std::function<void()> mEinlauf;
};
