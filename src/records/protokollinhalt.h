// What hangs on the head of a protocol, in the working tables and in the archive.
#pragma once

#include <QString>

#include <functional>
#include <span>

#include "session/session.h"

enum class Bestand { Arbeit, Archiv };
enum class Inhalt { Messwerte, SecControl, Blutdruck };
inline constexpr Bestand alleBestände[] = {Bestand::Arbeit, Bestand::Archiv};
inline constexpr Inhalt alleInhalte[] = {Inhalt::Messwerte, Inhalt::SecControl, Inhalt::Blutdruck};

// The tables; both of a pair have the same columns, the number in ProtokollID.
QString kopftabelle(Bestand bestand);
QString tabelle(Bestand bestand, Inhalt inhalt);

bool vorhanden(Bestand bestand, Inhalt inhalt, Schlüssel protokollID);
bool kopfVorhanden(Bestand bestand, Schlüssel protokollID);
/// No measured value and no sheet.
bool inhaltslos(Bestand bestand, Schlüssel protokollID);

void inhaltLöschen(Bestand bestand, Inhalt inhalt, Schlüssel protokollID);
/// With it go the PDF files of its pages, unless the other table has the head, too. Not within
/// statements that hold together: files do not come back with them.
void kopfLöschen(Bestand bestand, Schlüssel protokollID);
// The two halves of it, for such statements: within them, and behind them.
void kopfzeileLöschen(Bestand bestand, Schlüssel protokollID);
void seitenOhneKopfAblegen(Schlüssel protokollID);
/// The same with many archived heads, in turn; `zwischendurch` is told from time to time how many
/// are gone. A failure is raised and leaves what went before it deleted.
void archivköpfeLöschen(std::span<const Schlüssel> protokolle,
                        const std::function<void(int gelöscht)> &zwischendurch);
