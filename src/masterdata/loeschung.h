// Deleting a customer or a unit with all that hangs on it. The database has no cascades, and there
// is no transaction: what a failure finds deleted stays so. No widget.
#pragma once

#include <functional>

#include "session.h"
#include "text.h"

/// What is deleted together. Both run through the same steps.
struct Löschplan;
extern const Löschplan kundenplan; ///< protocols, units, the customer
extern const Löschplan geräteplan; ///< protocols, the unit

/// Protocols in work and archived ones.
int protokolleZählen(const Löschplan &plan, Schlüssel schlüssel);
/// Units of the customer.
int geräteZählen(Schlüssel kundenID);

/// Raises the first failure; nothing after it has run then.
///
/// Protocols go together with their measured values, safety and blood-pressure sheets. Heads
/// without any of these stay with a customer and go with a unit. `zwischendurch` is called after
/// each protocol.
void datensatzLöschen(
    const Löschplan &plan, Schlüssel schlüssel, const std::function<void()> &zwischendurch = [] {});

/// The question before. Two sentences have a carriage return between them.
platform::Text kundenfrage(int geräte, int protokolle, const QString &name);
platform::Text gerätefrage(int protokolle, const QString &name);
