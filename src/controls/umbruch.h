// Message texts on labels that wrap.
#pragma once

#include <QString>

/// Line ends as the widget knows them, and an invisible place to break in words that are longer
/// than a line could be.
inline QString umbrechbar(const QString &text) {
    constexpr int longest = 32; // letters
    QString wrapped;
    int letters = 0;
    for (const QChar c : text) {
        letters = c.isSpace() ? 0 : letters + 1;
        if (letters > longest && !c.isLowSurrogate() && !c.isMark()) {
            wrapped += QChar(0x200B);
            letters = 1;
        }
        wrapped += c == '\r' ? QChar('\n') : c;
    }
    return wrapped;
}
