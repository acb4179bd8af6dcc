// A list of records in which a person searches, with a filter above it and the details of the one
// that the box names below. The screens derived from it say what is read and what is shown.
#pragma once

#include "controls/suchmaske.h"
#include "session/session.h"

class Listenmaske : public Suchmaske {
  public:
    /// Key of the record whose details are shown; 0 for none.
    Schlüssel gezeigt() const { return mGezeigt; }

    /// Reads the lists anew; what is shown stays if it is still there.
    void fnc_ListeAktualisieren();
    /// Reads the lists anew and shows no record.
    void fnc_ListeLeeren();
    /// Reads the lists anew and shows this record, also when the filter would hide it.
    void fnc_Wählen(const QString &name);

  protected:
    struct Aufbau {
        QComboBox *feld;
        QListView *liste;
        QComboBox *filter;
        platform::Text keiner, achtung; ///< told when nothing is shown that could be changed
        const char *laden, *lesen, *text, *auswahl; ///< tags of the failure boxes
    };
    /// Called once. `bestätigt` as of sucheVerdrahten.
    void verdrahten(const Aufbau &aufbau, const Handler &bestätigt);

    void Form_Load() override;
    void Form_Activate() override;

    // These raise what fails.
    virtual void beschriften() = 0;
    virtual QStringList filternamen() const = 0;
    virtual void namenLesen(const QString &filter) = 0; ///< into the list
    virtual void detailsZeigen() = 0;                   ///< of what the box names; notes gezeigt()

    /// A person has picked another filter.
    virtual void filterGewählt() { listenLesen(); }

    void listenLesen();
    /// The entry that hides nothing when there is no such one.
    void filterSetzen(const QString &name) const;
    void neuen(frm maske);
    /// Opens a screen for the record shown; without one a person is told.
    void mitGezeigtem(frm maske);
    void erstWählen() const;

    Schlüssel mGezeigt = 0;

  private:
    Aufbau mAufbau{};
    bool mGeladen = false; ///< the first activation follows the loading and reads nothing
};
