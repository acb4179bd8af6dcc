// The measuring screen in the hands of an operator, and what a test sees of it.
#pragma once

#include "controller.h"
#include "einlauf.h"
#include "runtime.h"
#include "session.h"
#include "workplace.h"

namespace support {

class Measuring : public Workplace {
  protected:
    Measuring() {
        change(
            "INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID) VALUES (60, 'Ungleich', 2)");
        change("INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart) VALUES "
               "(60, '10', '70', 50, '1'), (60, '2', '80', 0, '2'), (60, '1', '60', 100, '1')");
        views["runningIn"] = [] {
            return QString("%1 %2").arg(gEinlaufzeit).arg(gEinlaufLeistung);
        };
        views["drift"] = [] { // on the screen of the zero point
            QStringList near;
            for (const char *shown : {"txtOffset2", "txtGain2", "lblOffsetDiff", "lblGainDiff"})
                near += text(frm::StatMessen, shown);
            return near.join(' ');
        };
        views["motor"] = [] { return gMotorEin ? QString("on") : QString("off"); };
        views["spec"] = [] {
            return QString::number(gToleranzID) + ' ' + text(frm::Messen, "txtToleranz");
        };
        views["head"] = [] { // of the session's protocol
            return grid("SELECT Drehrichtung FROM Protokoll_temp WHERE ProtokollID = ?",
                        {gProtokollID});
        };
    }
};

} // namespace support
