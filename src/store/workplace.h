// A working directory: what makes it one, and how a new one is filled.
#pragma once

#include <QString>

/// True when the database lies in the directory.
bool hasDatabase(const QString &directory);

/// Puts the delivered files of the program into the directory; one that lies there already stays.
/// The program must hold the resource layouts.qrc. False when one cannot be written.
bool deliverFiles(const QString &directory);

/// Makes the directory when it is missing, delivers the files, and makes the database, with sample
/// data for `demo`, or brings that of an older build up to date. Answers the path of the database.
/// Raises Fehler; a database that was there is then as it was.
QString setUpWorkplace(const QString &directory, bool demo);
