// Changes of records that are known by their key.
#pragma once

#include "store/database.h"

/// Raises NoCurrentRecord when the statement met no row: another program has deleted it.
void satzÄndern(const QString &sql, const Datenbank::Params &params);
