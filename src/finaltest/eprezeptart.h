// What the editors of final-test recipes have of their own.
#pragma once

#include <optional>

#include "masterdata/rezeptart.h"
#include "session/sprache.h"

extern const Rezeptart neuesEPRezept, geändertesEPRezept;

/// Columns of the grids of steps.
extern const std::vector<Schrittgitter::Spalte> epSpalten;

/// The class that a key stands for. That of "O" is shorter than the entry of the list.
std::optional<QString> epKlasseZurTaste(const QString &taste);

/// German captions for those of the ordinary editors, and English ones.
void epBeschriften(QWidget &screen);
