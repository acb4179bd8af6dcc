// Reads a database file of the kind that the program had before (Jet 3 and 4) through mdbtools, as
// child processes on a copy of it. Nothing that they say is taken on trust: the code that they end
// with, the number of rows and the number of columns each decide.
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

/// Texts as mdbtools writes them. An empty one is Null: the file does not tell them apart.
struct JetTable {
    QStringList columns;
    std::vector<QStringList> rows; ///< of as many values as there are columns
};

class JetFile {
  public:
    /// Raises FileNotFound, PermissionDenied for one that cannot be copied, TypeMismatch for a file
    /// of another kind, PathAccess where mdbtools is missing.
    explicit JetFile(const QString &path);

    /// Raises DatabaseDamaged, as all of these, for what gives a reason to doubt the result.
    QStringList tables() const;
    JetTable table(const QString &name) const;

  private:
    QByteArray run(const QString &program, const QStringList &arguments) const;

    QTemporaryDir mFolder; // holds the copy
    QString mCopy, mName;
};
