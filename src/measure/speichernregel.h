// When pbSpeichern of the measurement screen may be pressed: as soon as every box that the step
// needs holds a value that was measured under the set-points shown.
#pragma once

#include "records/messwerte.h"

/// The boxes whose change asks.
enum class Messbox { n_torvena, D_torvena, P_torvena, n_ergom };

enum class Speichern {
    Bleibt, ///< as it is
    Aus,
    Ein,
    EinMitTastatur, ///< and Enter saves
};

/// `bedient`: a person steers the steps. `eigene`: the values are those of the set-points shown.
Speichern speichernRegel(Messbox geändert, const SchrittTexte &schritt, bool bedient, bool eigene);
