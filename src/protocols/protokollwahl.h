// The choice of a protocol: a new one under the next number, or one of those that the list offers,
// whose number may be typed. A part of the dialogs that ask for it; the screen wires the events.
// The number that stands in the list's box is kept in gProtokollWahl.
#pragma once

#include <QStringList>

#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

class Protokollwahl {
  public:
    struct Felder {
        QRadioButton *neu, *vorhanden;
        QLineEdit *name;  ///< of a new one
        QLabel *nummer;   ///< of a new one
        QComboBox *liste; ///< of existing ones
        QPushButton *ok;
    };
    /// Called once, before everything else. `einträge` is what the list offers, as "12 - name".
    void verbinden(const Felder &felder, QStringList (*einträge)());

    /// Fills the list; without an entry there is no such option. Raises what the store raises.
    void listeZeigen() const;
    /// Takes the next number; without one there is no new protocol. Raises what the store raises.
    void nummerVergeben() const;

    // The two options
    void neuGewählt() const;
    /// Fill the list before.
    void vorhandenGewählt() const;

    // Events of the list's box
    void cmbVorhanden_Click() const;
    void cmbVorhanden_Change() const;
    /// Enter: completes the entry and goes on to the button, or says that there is none.
    void nachschlagen() const;

    /// The entry of the number in the box, which it then shows; says so when there is none.
    std::optional<QString> gewählterEintrag() const;
    /// Says that the protocol does not exist and goes back to the list.
    void fehltMelden() const;

    /// Offers this one entry alone.
    void einzigenZeigen(const QString &eintrag) const;

  private:
    Felder mFelder{};
    QStringList (*mEinträge)() = nullptr;
};
