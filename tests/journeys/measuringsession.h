// The measuring screen in the hands of an operator.
#pragma once

#include <QTableView>

#include "session.h"
#include "waiting.h"
#include "workplace.h"

namespace support {

class MeasuringSession : public Workplace {
  protected:
    static QString shown(const char *box) { return text(frm::Messen, box); }
    static bool waits(const char *button) {
        return platform::isWaiting(control<QAbstractButton>(frm::Messen, button));
    }
    static bool live() { return !shown("txtIST_n_torvena").isEmpty(); }
    static QStringList gridSteps() {
        const QAbstractItemModel *model = control<QTableView>(frm::Messen, "DBGrid1")->model();
        QStringList steps;
        for (int row = 0; row < model->rowCount(); ++row)
            steps += model->index(row, 0).data().toString();
        return steps;
    }
    static QString selectedStep() {
        const auto *grid = control<QTableView>(frm::Messen, "DBGrid1");
        const QModelIndexList rows = grid->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows[0].data().toString() : QString();
    }
    QStringList rows(const QString &columns) {
        return column("SELECT " + columns +
                          " FROM Messwerte_temp WHERE ProtokollID = ? "
                          "ORDER BY MDat, rowid",
                      {gProtokollID});
    }
    /// Set-points of free input; the type by its key.
    static void typeSetpoints(const QString &speed, const QString &power, const QString &key) {
        type(frm::Messen, "txtSoll_n", speed);
        enter(frm::Messen, "txtSoll_n");
        type(frm::Messen, "txtSoll_P", power);
        enter(frm::Messen, "txtSoll_P");
        type(frm::Messen, "cmbMessArt", key);
    }
    Journey freeInput() {
        press(frm::Messen, "pbFreieEing");
        co_await until("free input", [] { return shown("laPrSchritt") == "FR"; });
        co_await pass(20);
    }
};

} // namespace support
