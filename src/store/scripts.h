// The SQL that is delivered with the program: schema, stored queries, rows.
#pragma once

#include <QString>

#include <vector>

/// What a new database is made of, in this order; with `demo` also customers, units, recipes and
/// protocols to try the program with.
std::vector<QString> databaseScripts(bool demo);

/// Makes a new database file of these. It appears under its name only when it is whole. Raises
/// Fehler when it cannot be written.
void legeDatenbankAn(const QString &path, bool demo);

/// Gives the database of an older build what is new: views and triggers afresh, tables with their
/// delivered rows, columns at the end, indexes. Rows that are there stay as they are, but for those
/// of a staging table whose columns are out of date. All or nothing. Raises Fehler, also for a file
/// that is none of the program's, and where a new column would stand in another place than rows
/// are moved or read by.
void bringeDatenbankAufStand(const QString &path);
