// The SQL that is delivered with the program: schema, stored queries, rows.
#pragma once

#include <QString>

/// The script by its file name, "schema.sql" for instance.
QString sqlScript(const QString &name);

/// Makes a new database file with schema, stored queries and delivered rows; with `demo` also
/// customers, units, recipes and protocols to try the program with. The file appears under its
/// name only when it is whole. Raises Fehler when it cannot be written.
void legeDatenbankAn(const QString &path, bool demo);
