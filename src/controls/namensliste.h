// The names a person picks from, and what typing finds among them. No widget.
#pragma once

#include <QStringList>

#include <vector>

class Namensliste {
  public:
    Namensliste() = default;
    /// Takes the names in any order; blank ones are left out.
    explicit Namensliste(const QStringList &namen);

    /// As in a dictionary: accents and case decide last.
    const QStringList &namen() const { return mNamen; }

    struct Treffer {
        QStringList namen;
        /// The one that is meant while the text is not complete: the first name that begins with
        /// it, else the first. -1 without a text or without names.
        qsizetype vorschlag = -1;
    };
    /// The names that hold the text anywhere, without regard to case and accents. `*` stands for
    /// any run of letters, `?` for exactly one. An empty text finds all.
    Treffer treffer(const QString &text) const;

    /// The name that the text spells, in its own writing: the same letters, or else the same
    /// without regard to case. Empty when there is none.
    QString genau(const QString &text) const;

  private:
    QStringList mNamen;
    std::vector<QString> mGefaltet; ///< of each name, without case and accents; ascending
};
