// Texts in the language of the session, captions of screens, and the failure box.
#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <span>

#include "platform/fehler.h"

/// German for gSprache 1, English for anything else.
const QString &inSprache(const Text &text);

/// True for gSprache 1 or 2.
bool spracheGewählt();

/// True for gSprache 1.
bool inDeutsch();

/// A message box in the language of the session; returns the answer as msgBox does.
int meldung(const Text &text, int flags, const Text &titel);

/// The standard error box: "Fehler " or "ERROR ", the tag, the number, blank, description. Keeps
/// number and text in gFehlerNr and gFehlerText. The tag holds all that stands before the number.
void fehlerBox(const QString &kennung, const Fehler &fehler);
/// The same where the tag has a wording of its own in each language, and maybe titles.
void fehlerBox(const Text &kennung, const Fehler &fehler,
               const Text &titel = {"!! Achtung Fehler !!", " !! Attention !!"});
/// What a control is wired to: runs the body and shows in the standard error box what it raises.
std::function<void()> gefangen(const QString &kennung, std::function<void()> body);
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

/// The captions of a screen in the language of the session: German as designed, English from the
/// table; without a language as they are.
template <class Ui>
void beschriftungenSetzen(Ui &ui, QWidget &screen, std::span<const Beschriftung> texte) {
    if (inDeutsch())
        ui.retranslateUi(&screen);
    englischBeschriften(screen, texte);
}
