// The choice of a protocol: a new one under the next number, or one of those that the list offers,
// whose number may be typed. A part of the dialogs that ask for it.
// The number that stands in the list's box is kept in gProtokollWahl.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>

#include <optional>

#include "windows/screen.h"

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

/// A dialog, Screen or one derived from it, with this choice: its controls and their events.
template <class Dialog>
class Wahldialog : public Dialog {
  protected:
    using Dialog::Dialog;

    /// `ui` has the controls of the choice under their names. As Protokollwahl::verbinden().
    template <class Ui>
    void wahlVerbinden(Ui &ui, QStringList (*einträge)()) {
        mWahl.verbinden(
            {ui.obNeu, ui.obVorhanden, ui.txtNeu, ui.lbProtokollID, ui.cmbVorhanden, ui.pbok},
            einträge);
        this->onClick(ui.obNeu, [this] { mWahl.neuGewählt(); });
        this->onClick(ui.obVorhanden, [this] { obVorhanden_Click(); });
        for (QRadioButton *wahl : {ui.obNeu, ui.obVorhanden})
            this->onEnter(wahl, [wahl] { wahl->click(); });
        this->onEnter(ui.txtNeu, [&ui] { ui.pbok->setFocus(); });
        this->on(ui.cmbVorhanden, &QComboBox::activated, [this] { mWahl.cmbVorhanden_Click(); });
        this->on(ui.cmbVorhanden, &QComboBox::editTextChanged,
                 [this] { mWahl.cmbVorhanden_Change(); });
        this->onEnter(ui.cmbVorhanden, [this] { cmbVorhanden_KeyPress(); });
        this->onClick(ui.pbok, [this] { pbok_Click(); });
    }

    virtual void obVorhanden_Click() = 0;
    virtual void cmbVorhanden_KeyPress() = 0;
    virtual void pbok_Click() = 0;

    Protokollwahl mWahl;
};
