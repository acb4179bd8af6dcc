#include "records/system.h"

#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"

void systemLesen(SystemTitel *titel) {
    const Recordset system = gDatenbank.open("SELECT * FROM System");
    if (system.count() != 1)
        return;
    gProduktTitel = system[1].text();
    if (titel)
        *titel = {system[0].text(), gProduktTitel};
    gLaufzeitMin = gEinlaufMin = static_cast<std::int16_t>(system[2].whole());
    gEinlaufSek = 0;
    gEinlaufzeit = system[3].isNull() ? 10 : system[3].number();
    gEinlaufLeistung = system[8].number();
    gSprache = static_cast<std::int16_t>(system[6].whole());
}

void einlaufzeitSpeichern(double zeit) {
    gDatenbank.execute("UPDATE System SET Einlzeit2 = ?", {zeit});
}

void einlaufleistungSpeichern(double watt) {
    gDatenbank.execute("UPDATE System SET EinlW = ?", {watt});
}

Druckereinstellung druckereinstellung() {
    const Recordset system = gDatenbank.open("SELECT DruckerPDF, PDFOrdner FROM System");
    return {system[0].text(), system[1].text()};
}

void druckereinstellungSpeichern(const Druckereinstellung &einstellung) {
    gDatenbank.execute("UPDATE System SET DruckerPDF = ?", {einstellung.drucker});
    gDatenbank.execute("UPDATE System SET PDFOrdner = ?", {einstellung.ordner});
}

bool endprüfungFreigegeben() {
    try {
        const Recordset system = gDatenbank.open("SELECT Endprüfung FROM System");
        return !system.empty() && system[0].whole() != 0;
    } catch (const Fehler &fehler) {
        fehlerMerken(fehler); // an older database does not have the setting
        return false;
    }
}
