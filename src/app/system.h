// The one row of settings.
#pragma once

#include <QString>

struct SystemTitel {
    QString firma;
    QString produkt;
};

/// Takes title, running-in and language into the session. With no row or more than one nothing is
/// taken and the titles are empty. Raises Fehler.
SystemTitel systemLesen();

/// True when this installation shows reset and final test; false when the setting cannot be read.
bool endprüfungFreigegeben();
