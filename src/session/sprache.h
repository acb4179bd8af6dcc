// Texts in the language of the session, captions of screens, and the failure box.
#pragma once

#include <QString>
#include <QWidget>

#include <span>

#include "platform/fehler.h"

/// German for gSprache 1, English for anything else.
const QString &inSprache(const Text &text);

/// True for gSprache 1 or 2.
bool spracheGewählt();

/// A message box in the language of the session; returns the answer as msgBox does.
int meldung(const Text &text, int flags, const Text &titel);

/// The standard error box: "Fehler 1050 - " number, blank, description. Keeps number and text in
/// gFehlerNr and gFehlerText. The tags hold all that stands before the number.
void fehlerBox(const QString &kennungDeutsch, const QString &kennungEnglisch, const Fehler &fehler);
/// The same under titles of its own.
void fehlerBox(const Text &kennung, const Fehler &fehler, const Text &titel);
/// Only keeps number and text.
void fehlerMerken(const Fehler &fehler);

/// English twin of a caption. `name` is a control's or action's name, "" the screen itself;
/// a name with "#tip" behind it is the control's tool tip.
struct Beschriftung {
    const char *name;
    const char *english;
};

/// Writes the English captions over a screen whose German ones have just been set. Does nothing
/// unless gSprache is 2.
void englischBeschriften(QWidget &screen, std::span<const Beschriftung> texte);
