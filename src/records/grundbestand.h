// What a database needs before the first measurement, and has.
#pragma once

struct Grundbestand {
    bool normal = false; ///< calibration data of a working standard
    bool kunde = false, gerät = false, spezifikation = false, rezept = false;

    bool vollständig() const { return normal && kunde && gerät && spezifikation && rezept; }
};

/// Raises Fehler.
Grundbestand grundbestandLesen();
