// A box in which the last key picks a word. The screen wires the events.
#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <span>

#include "platform/text.h"

class QComboBox;
class QKeyEvent;

/// A key and its word, in both languages.
struct Kürzel {
    platform::Text taste; ///< upper case
    platform::Text wort;
};
/// The word of a key in the language of the session; nothing for every other key.
std::optional<QString> kürzelwort(std::span<const Kürzel> kürzel, const QString &taste);

class Kürzelfeld {
  public:
    /// Called once, before everything else. `wort` knows the word of a key, which comes in upper
    /// case; a word goes into the box. Afterwards `danach`, if any, is told whether there was one.
    /// A key counts for one change, or with `behält` for all up to the next key.
    void verbinden(QComboBox *feld, std::function<std::optional<QString>(const QString &)> wort,
                   std::function<void(bool gefunden)> danach, bool behält = false);

    // Events of the box
    /// A key was pressed. False: it goes on to the box.
    bool taste(const QKeyEvent &event);
    /// A person has changed the text.
    void geändert();
    /// What was pressed counts no more.
    void vergessen() { mTaste.clear(); }

  private:
    QComboBox *mFeld = nullptr;
    std::function<std::optional<QString>(const QString &)> mWort;
    std::function<void(bool)> mDanach;
    QString mTaste;
    bool mBehält = false;
};
