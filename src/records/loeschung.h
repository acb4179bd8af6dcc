// Deleting a customer or a unit with all that hangs on it. The database has no cascades, and there
// is no transaction: what a failure finds deleted stays so. No widget.
#pragma once

#include <functional>

#include "session/session.h"

/// What is deleted together: protocols, units, the customer; protocols, the unit.
enum class Löschziel { Kunde, Gerät };

/// Protocols in work and archived ones.
int protokolleZählen(Löschziel ziel, Schlüssel schlüssel);
/// Units of the customer.
int geräteZählen(Schlüssel kundenID);

/// Raises the first failure; nothing after it has run then.
///
/// Protocols go together with their measured values, safety and blood-pressure sheets. Heads
/// without any of these stay with a customer and go with a unit. `zwischendurch` is called after
/// each protocol.
void datensatzLöschen(
    Löschziel ziel, Schlüssel schlüssel, const std::function<void()> &zwischendurch = [] {});
