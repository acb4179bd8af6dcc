// What the two screens that ask before a deletion have in common.
#pragma once

#include "platform/text.h"
#include "records/loeschung.h"
#include "session/screens.h"

class QLabel;

/// The question before. Two sentences have a carriage return between them.
platform::Text kundenfrage(int geräte, int protokolle, const QString &name);
platform::Text gerätefrage(int protokolle, const QString &name);

class Löschabfrage : public Screen {
  protected:
    /// Deletes, which may take a while. The window says so and takes no more input, unless it
    /// fails: raises as datensatzLöschen.
    void löschen(Löschziel ziel, int schlüssel, QLabel *frage);
};
