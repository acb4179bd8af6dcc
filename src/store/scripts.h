// The SQL that is delivered with the program: schema, stored queries, rows.
#pragma once

#include <QString>

#include <functional>
#include <vector>

class Datenbank;

/// Counts the states of the schema; raised by one with each change that a directory in use must
/// get.
inline constexpr int datenbankStand = 5;

/// A delivered script by the name of its file.
QString sqlScript(const QString &name);

/// What a new database is made of, in this order; with `demo` also customers, units, recipes and
/// protocols to try the program with. The trail is laid over it then (trail.h).
std::vector<QString> databaseScripts(bool demo);

/// Makes a new database file of these. It appears under its name only when it is whole. Raises
/// Fehler when it cannot be written.
void legeDatenbankAn(const QString &path, bool demo);

/// Makes a new database without the rows of a stand, into which `fill` puts those that it has, all
/// or none of them. Raises as legeDatenbankAn(), and what `fill` raises; there is no file then.
void legeDatenbankAn(const QString &path, const std::function<void(Datenbank &)> &fill);

/// Makes an update file: a database without the rows of a stand, which asks for this version (one
/// of updateVersions). Raises as legeDatenbankAn().
void legeUpdateAn(const QString &path, const QString &version);

/// Gives the database of an older build what is new: views and triggers afresh, tables with their
/// delivered rows, columns at the end, indexes in the place of those that they supersede. Rows that
/// are there stay as they are, but for those of a staging table whose columns are out of date. All
/// or nothing. The trail goes on. Raises Fehler, also for a file that is none of the program's, and
/// where a new column would stand in another place than rows are moved or read by.
void bringeDatenbankAufStand(const QString &path);

/// Whether an open database is of an older build than this one.
bool datenbankVeraltet(Datenbank &datenbank);
/// The same after a copy of the file was put beside it; returns the name of the copy. A copy for
/// nothing is taken away again.
QString sichereUndBringeAufStand(const QString &path);
