#include "controls/namensliste.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

#include "store/sqltext.h"

namespace {

QString vollständigFalten(const QString &text) {
    QString folded = text.normalized(QString::NormalizationForm_D);
    folded.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return folded.toCaseFolded();
}

/// Latin letters fold one by one, which is looked up: 20 000 names are folded whenever a list
/// opens.
QString ohneAkzente(const QString &text) {
    constexpr char16_t latin = 0x250; // the end of Latin Extended-B
    static const std::vector<QString> table = [] {
        std::vector<QString> letters;
        for (char16_t letter = 0; letter < latin; ++letter)
            letters.push_back(vollständigFalten(QString(QChar(letter))));
        return letters;
    }();
    QString folded;
    folded.reserve(text.size());
    for (const QChar letter : text) {
        if (letter.unicode() >= latin)
            return vollständigFalten(text);
        folded += table[letter.unicode()];
    }
    return folded;
}

bool istMuster(const QString &text) {
    return text.contains('*') || text.contains('?');
}

QRegularExpression ausdruck(const QString &muster) {
    return QRegularExpression(musterAusdruck(muster),
                              QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

Namensliste::Namensliste(const QStringList &namen) {
    std::vector<std::pair<QString, QString>> entries; // folded, name
    entries.reserve(static_cast<size_t>(namen.size()));
    for (const QString &name : namen) {
        if (!name.trimmed().isEmpty())
            entries.emplace_back(ohneAkzente(name.trimmed()), name);
    }
    std::sort(entries.begin(), entries.end());
    mNamen.reserve(static_cast<qsizetype>(entries.size()));
    mGefaltet.reserve(entries.size());
    for (auto &[folded, name] : entries) {
        mNamen += std::move(name);
        mGefaltet.push_back(std::move(folded));
    }
}

Namensliste::Treffer Namensliste::treffer(const QString &text) const {
    const QString sought = ohneAkzente(text.trimmed());
    if (sought.isEmpty())
        return {mNamen};
    const bool pattern = istMuster(sought);
    const QRegularExpression expression = pattern ? ausdruck(sought) : QRegularExpression();
    Treffer found;
    for (size_t i = 0; i < mGefaltet.size(); ++i) {
        const QString &folded = mGefaltet[i];
        if (pattern ? !expression.match(folded).hasMatch() : !folded.contains(sought))
            continue;
        if (found.vorschlag < 0 && folded.startsWith(sought))
            found.vorschlag = found.namen.size();
        found.namen += mNamen[static_cast<qsizetype>(i)];
    }
    if (found.vorschlag < 0 && !found.namen.isEmpty())
        found.vorschlag = 0;
    return found;
}

QString Namensliste::genau(const QString &text) const {
    const QString sought = text.trimmed();
    if (sought.isEmpty())
        return {};
    const auto [first, last] =
        std::equal_range(mGefaltet.begin(), mGefaltet.end(), ohneAkzente(sought));
    QString sameLetters;
    for (auto folded = first; folded != last; ++folded) {
        const QString &name = mNamen[folded - mGefaltet.begin()];
        if (name == text)
            return name;
        if (sameLetters.isEmpty() && name.trimmed().compare(sought, Qt::CaseInsensitive) == 0)
            sameLetters = name;
    }
    return sameLetters;
}
