// The SQL that is delivered with the program: schema, stored queries, rows.
#pragma once

#include <QString>

/// The script by its file name, "schema.sql" for instance.
QString sqlScript(const QString &name);

/// Makes a new database file with schema, stored queries and delivered rows; with `demo` also
/// customers, units, recipes and protocols to try the program with. The file appears under its
/// name only when it is whole. Raises Fehler when it cannot be written.
void legeDatenbankAn(const QString &path, bool demo);

/// Gives the database of an older build what is new: views and triggers afresh, tables with their
/// delivered rows, columns at the end, indexes. Rows that are there stay as they are, but for those
/// of a staging table whose columns are out of date. All or nothing. Raises Fehler, also for a file
/// that is none of the program's, and where a new column would stand in another place than rows
/// are moved or read by.
void bringeDatenbankAufStand(const QString &path);
