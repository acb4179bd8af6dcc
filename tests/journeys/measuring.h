// The measuring screen in the hands of an operator, and what a test sees of it.
#pragma once

#include "app/start.h"
#include "link/controller.h"
#include "link/einlauf.h"
#include "platform/runtime.h"
#include "session/session.h"
#include "standcommands.h"
#include "windows/waiting.h"
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
        views["samples"] = [] { // of the zero point
            return control(frm::StatMessen, "anzProben")->property("value").toString();
        };
        views["picture"] = [] { // of an instruction
            return platform::frontScreen()->findChild<QWidget *>("anzBild")->accessibleName();
        };
        views["motor"] = [this] { // as far as anybody knows, what can be pressed, and in truth
            return QString("%1%2%3 %4")
                .arg(gMotorEin ? "on" : "off", canPress(frm::Desktop, "pbMotein") ? " Motein" : "",
                     canPress(frm::Desktop, "pbMotaus") ? " Motaus" : "")
                .arg(line.stand().setSpeed());
        };
        views["spec"] = [] {
            return QString::number(gToleranzID) + ' ' + text(frm::Messen, "txtToleranz");
        };
        views["head"] = [] { // of the session's protocol
            return grid("SELECT Drehrichtung FROM Protokoll_temp WHERE ProtokollID = ?",
                        {gProtokollID});
        };
        views["steps"] = [] { // in the grid
            QStringList steps;
            for (const QString &row : rowsOf(control(frm::Messen, "DBGrid1")).split('+'))
                steps += row.section('|', 0, 0);
            return steps.join('+');
        };
        views["live"] = [] {
            QStringList values;
            for (const char *box : {"txtIST_n_torvena", "txtIST_D_torvena", "txtIST_P_torvena"})
                values += text(frm::Messen, box);
            return values.join('|');
        };
        views["strip"] = [] { // over the verdict
            return loaded(frm::Messen)->findChild<QWidget *>("anzUrteil")->accessibleName();
        };
        views["notice"] = [] {
            QString shown;
            for (const char *name : {"Meldung", "Meldung1"}) {
                if (const Screen *notice = screenNamed(name))
                    shown += notice->caption() + ": " +
                             shownBy(notice->findChild<QObject *>("laMeldung1")) + ' ' +
                             shownBy(notice->findChild<QObject *>("laMeldung2"));
            }
            return shown;
        };
        views["box"] = [this] { return boxes.seen().back().text; };
        views["told"] = [this] { return boxes.allCame() ? "yes" : "no"; };
        views["released"] = [] { return gMessenFreigabe ? "yes" : "no"; };
        views["process"] = [] {
            return gDesktopAktiv || gDatenbank.isOpen() || loaded(frm::Desktop) ? "runs" : "over";
        };
        views["status"] = [] { return QString::number(int(gMessStatus)); };
        views["waiting"] = [] { // the buttons that wait to be pressed
            QStringList names;
            for (const auto *button : loaded(frm::Messen)->findChildren<QAbstractButton *>()) {
                if (platform::isWaiting(button))
                    names += button->objectName();
            }
            return names.join(' ');
        };
        views["language"] = [] { return QString::number(gSprache); };
        views["terminated"] = [] { // by the system
            beendenOhneFrage();
            return "now";
        };
        views["shaft"] = [this] {
            return QString::fromStdString(simulator::runCommand("status", line.stand(), {}));
        };
        // Nothing was written, and a measurement needs the selection anew.
        roads["abort"] = [this](const QString &) {
            return go("? correctionAborted ; pbAbbrechen ; @Desktop ; idle == yes ; released == no "
                      "; cannot pbMessen mnuStartMessen ; shaft ~ offset=none factor=none");
        };
    }
};

} // namespace support
