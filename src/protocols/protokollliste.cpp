#include "protocols/protokollliste.h"

#include <QComboBox>
#include <QPushButton>

#include "records/protokollnummer.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

void protokollListeFüllen(QComboBox &liste, const QStringList &einträge) {
    liste.clear();
    liste.addItems(einträge);
    liste.setCurrentIndex(einträge.size() == 1 ? 0 : -1);
}

void protokollNachschlagen(QComboBox &liste, QPushButton &pbok) {
    if (liste.currentText().isEmpty())
        return;
    const QStringList gefunden = protokolleMitNummer(gProtokollWahl);
    if (gefunden.isEmpty()) {
        protokollFehlt(liste, pbok);
    } else if (gefunden.size() == 1) {
        liste.setEditText(gefunden[0]);
        pbok.setEnabled(true);
        pbok.setFocus();
    } else {
        liste.clearEditText();
        pbok.setEnabled(false);
        meldung({"Es ist ein Fehler aufgetreten. Bitte suchen Sie das Protokoll in der Liste.",
                 "An error has occured. Please search the list for the protocol!"},
                platform::Exclamation, {"Fehler!", "Error!"});
    }
}

void protokollFehlt(QComboBox &liste, QPushButton &pbok) {
    meldung({"Dieses Protokoll gibt es nicht!", "This protocol does not exist!"},
            platform::Exclamation, {"Meldung", "Message"});
    liste.setFocus();
    pbok.setEnabled(false);
}
