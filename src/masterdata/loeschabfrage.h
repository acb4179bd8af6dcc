// What the two screens that ask before a deletion have in common.
#pragma once

#include "loeschung.h"
#include "screens.h"

class QLabel;

class Löschabfrage : public Screen {
  protected:
    /// Deletes, which may take a while. The window says so and takes no more input, unless it
    /// fails: raises as datensatzLöschen.
    void löschen(const Löschplan &plan, int schlüssel, QLabel *frage);
};
