#include "masterdata/listenmaske.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

#include "session/sprache.h"
#include "windows/msgbox.h"

void Listenmaske::verdrahten(const Aufbau &aufbau, const Handler &bestätigt) {
    mAufbau = aufbau;
    const auto getippt = [this] {
        mSuche.textGeändert();
        detailsZeigen();
    };
    sucheVerdrahten(aufbau.feld, aufbau.liste, gefangen(aufbau.text, getippt), bestätigt);
    on(aufbau.filter, &QComboBox::currentIndexChanged, gefangen(aufbau.auswahl, [this] {
           mSuche.leeren();
           filterGewählt();
       }));
    onEnter(this, bestätigt);
    onEscape([this] { unload(); });
}

void Listenmaske::Form_Load() {
    gefangen(mAufbau.laden, [this] {
        beschriften();
        mGeladen = true; // also when the reading fails: it would fail again
        listenLesen();
        mAufbau.feld->setFocus();
    })();
}

void Listenmaske::Form_Activate() {
    if (!std::exchange(mGeladen, false))
        fnc_ListeAktualisieren();
}

void Listenmaske::listenLesen() {
    const QString chosen = mAufbau.filter->currentText();
    const Namensliste names(filternamen());
    {
        const QSignalBlocker quiet(mAufbau.filter);
        mAufbau.filter->clear();
        mAufbau.filter->addItem({}); // hides nothing
        mAufbau.filter->addItems(names.namen());
    }
    filterSetzen(chosen);
    namenLesen(mAufbau.filter->currentText());
    detailsZeigen();
}

void Listenmaske::filterSetzen(const QString &name) const {
    const QSignalBlocker quiet(mAufbau.filter);
    mAufbau.filter->setCurrentIndex(std::max(mAufbau.filter->findText(name), 0));
}

void Listenmaske::fnc_ListeAktualisieren() {
    gefangen(mAufbau.lesen, [this] { listenLesen(); })();
}

void Listenmaske::fnc_ListeLeeren() {
    filterSetzen({});
    mSuche.leeren();
    fnc_ListeAktualisieren();
    mAufbau.feld->setFocus();
}

void Listenmaske::fnc_Wählen(const QString &name) {
    mGeladen = true; // also when the reading fails: it would fail again
    gefangen(mAufbau.lesen, [&] {
        mSuche.leeren();
        listenLesen();
        if (!mSuche.namen().contains(name)) {
            filterSetzen({});
            listenLesen();
        }
        mSuche.leeren(); // the only one may have gone in by itself
        mSuche.übernehmen(name);
        mAufbau.feld->setFocus(); // Enter chooses it
    })();
}

void Listenmaske::neuen(frm maske) {
    gNeuModus = false;
    form(maske).showModal();
}

void Listenmaske::mitGezeigtem(frm maske) {
    if (mGezeigt != 0)
        form(maske).showModal();
    else
        erstWählen();
}

void Listenmaske::erstWählen() const {
    meldung(mAufbau.keiner, platform::Exclamation, mAufbau.achtung);
    mAufbau.feld->setFocus();
}
