#include "records/herausgabe.h"

#include "platform/export.h"
#include "store/database.h"

QString protokollHerausgeben(Schlüssel protokollID, HandoutFormat format) {
    return handOut(gDatenbank, {protokollID, protokollID}, format, platform::exportFolder()).path;
}
