// The question of the first start: in which directory this person works. It comes before all
// screens and is none.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// What a directory is good for.
enum class Befund {
    WirdAngelegt, ///< is not there, and can be made
    Leer,
    MitDatenbank,
    MitAnderem, ///< other files lie there
    KeinVerzeichnis,
    NichtBeschreibbar,
};
Befund verzeichnisBefund(const QString &pfad);

class Verzeichnisfrage : public QDialog {
  public:
    /// In the language of the session. `fort` is the remembered directory that cannot be reached,
    /// or empty.
    Verzeichnisfrage(const QString &vorschlag, const QString &fort);

    /// Absolute; one that is typed without a root counts from the home of the person.
    QString verzeichnis() const;

  private:
    void suchen();
    void befundZeigen();

    QLineEdit *mPfad;
    QLabel *mBefund;
    QPushButton *mOk;
};
