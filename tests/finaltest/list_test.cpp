// The list of all final tests.
#include "finaltest/frmEPListe.h"

#include <QTableView>

#include "workplace.h"

namespace {

using namespace support;

struct TestList : Workplace {
    TestList() {
        for (const char *table : {"EP", "EP_Messwerte"})
            change(QString("DELETE FROM %1").arg(table));
        views["row"] = [] {
            return QString::number(
                control<QTableView>(frm::EPListe, "dbgListe")->currentIndex().row());
        };
        roads["list"] = [](const QString &) -> Journey {
            form(frm::EPListe).show();
            co_await arrive(frm::EPListe);
        };
    }
    /// Serial number, date, type, customer; a letter of a verdict for each step: o, x, blank.
    static void device(int id, const QString &head, const QString &steps) {
        const QStringList f = head.split('/');
        change("INSERT INTO EP (EP_ID, SerienNr, Prüfdatum, Gerätetyp, Kunde) "
               "VALUES (?, ?, ?, ?, ?)",
               {id, f[0], f[1], f[2], f[3]});
        for (int step = 0; step < steps.size(); ++step)
            change("INSERT INTO EP_Messwerte (ProtokollID, Prüfschritt, Toleranz) VALUES (?, ?, ?)",
                   {id, QString::number(step + 1),
                    steps[step] == 'o'   ? QVariant("OK")
                    : steps[step] == 'x' ? QVariant("Außer Toleranz")
                    : steps[step] == 'e' ? QVariant("Out of tolerance")
                                         : QVariant()});
    }
};

JOURNEY_P(TestList, NarrowsWhileSomebodyTypes) {
    co_await logIn();
    co_await go(R"(
        list ; dbgListe rows ; cannot pbBericht ; txtSuche !
        laAnzahl == Es gibt noch keine Endprüfung. | There is no final test yet. ; pbexit ; @Desktop)");
    device(1, "ERG-100/01.02.2026/ec 3000/Klinikum Ährenfeld", "ooo");
    device(2, "ERG-7/28.01.2026/ec 3000/Praxis O'Neill", "oxe -");
    device(3, "erg-8/2026-02-14/ec 5000/", "");
    device(4, "ALT-1/gestern/ec 5000/Praxis O'Neill", "o");
    device(5, "ERG-101/01.02.2026/ec 5000/Werk", "x");
    co_await go(R"(
        list ; focus txtSuche ; laAnzahl == 5 Prüfungen | 5 tests
        dbgListe rows erg-8|2026-02-14|ec 5000||keine Messwerte+ERG-101|01.02.2026|ec 5000|Werk|1 Schritt, 0 OK, 1 außer Toleranz+ERG-100|01.02.2026|ec 3000|Klinikum Ährenfeld|3 Schritte, 3 OK+ERG-7|28.01.2026|ec 3000|Praxis O'Neill|5 Schritte, 1 OK, 2 außer Toleranz, 2 nicht beurteilt+ALT-1|gestern|ec 5000|Praxis O'Neill|1 Schritt, 1 OK | erg-8|2026-02-14|ec 5000||no measured values+ERG-101|01.02.2026|ec 5000|Werk|1 step, 0 OK, 1 out of tolerance+ERG-100|01.02.2026|ec 3000|Klinikum Ährenfeld|3 steps, 3 OK+ERG-7|28.01.2026|ec 3000|Praxis O'Neill|5 steps, 1 OK, 2 out of tolerance, 2 not judged+ALT-1|gestern|ec 5000|Praxis O'Neill|1 step, 1 OK
        cannot pbBericht ; key Down 2 ; can pbBericht
        txtSuche = erg-1 ; laAnzahl == 2 von 5 Prüfungen | 2 of 5 tests ; row == 1
        txtSuche = ÄHREN ec ; row == 0 ; txtSuche = o'n 5000 ; row == 0 ; dbgListe rows~ ^ALT[^+]*$
        txtSuche = außer | out of ; dbgListe rows~ ^ERG-101[^+]*.ERG-7[^+]*$
        txtSuche = Messkopf ; dbgListe rows ; cannot pbBericht ; txtSuche ! ; txtSuche = ; row == 0
        key Escape ; @Desktop)");
}

} // namespace
