#include "controls/kuerzelfeld.h"

#include <QKeyEvent>

#include "controls/eintrag.h"
#include "session/sprache.h"

std::optional<QString> kürzelwort(std::span<const Kürzel> kürzel, const QString &taste) {
    for (const Kürzel &k : kürzel) {
        if (taste == inSprache(k.taste))
            return inSprache(k.wort);
    }
    return std::nullopt;
}

void Kürzelfeld::verbinden(QComboBox *feld,
                           std::function<std::optional<QString>(const QString &)> wort,
                           std::function<void(bool)> danach, bool behält) {
    mFeld = feld;
    mWort = std::move(wort);
    mDanach = std::move(danach);
    mBehält = behält;
    ohneErgänzung(feld);
}

bool Kürzelfeld::taste(const QKeyEvent &event) {
    mTaste = event.text().toUpper();
    return false;
}

void Kürzelfeld::geändert() {
    const QString key = mBehält ? mTaste : std::exchange(mTaste, {});
    if (key.isEmpty())
        return;
    const std::optional<QString> word = mWort(key);
    if (word) {
        eintragSetzen(mFeld, *word);
        mFeld->lineEdit()->selectAll();
    }
    if (mDanach)
        mDanach(word.has_value());
}
