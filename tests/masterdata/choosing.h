// A person before the lists of customers, units and recipes, in either language.
#pragma once

#include <QListView>
#include <QTableView>

#include "auswahl.h"
#include "frmGeraet.h"
#include "frmKunden.h"
#include "frmRezepte.h"
#include "front.h"
#include "msgbox.h"
#include "session.h"
#include "workplace.h"

class Choosing : public support::Workplace, public testing::WithParamInterface<int> {
  protected:
    using Journey = support::Journey;

    Choosing() { setLanguage(GetParam()); }
    static bool english() { return GetParam() == 2; } // before the start, too

    static QStringList rowsOf(const QAbstractItemModel *model) {
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells += model->index(row, column).data().toString();
            rows += cells.join('|');
        }
        return rows;
    }
    /// The rows of a list, or of a grid with its cells joined.
    static QStringList listed(frm name, const char *list) {
        return rowsOf(support::control<QAbstractItemView>(name, list)->model());
    }
    static QStringList offered(frm name, const char *box) {
        return rowsOf(support::control<QComboBox>(name, box)->model());
    }
    /// What any keyboard or the clipboard may bring.
    static void paste(frm name, const char *box, const QString &what) {
        auto *field = support::control<QWidget>(name, box);
        auto *edit = qobject_cast<QLineEdit *>(field);
        if (!edit)
            edit = qobject_cast<QComboBox *>(field)->lineEdit();
        edit->selectAll();
        edit->insert(what);
    }
    static void key(frm name, const char *box, Qt::Key key) {
        QTest::keyClick(support::control<QWidget>(name, box), key);
    }
    static void pick(frm name, const char *box, const QString &entry) {
        support::control<QComboBox>(name, box)->setCurrentText(entry);
    }
    static bool enabled(frm name, const char *button) {
        return support::control<QWidget>(name, button)->isEnabled();
    }
    static bool focused(frm name, const char *which) {
        return support::control<QWidget>(name, which)->hasFocus();
    }
    /// Customer, type, ident number, recipe and specification as the desktop shows them.
    static QString desktop() {
        QStringList shown;
        for (const char *box : {"txtKunde", "txtGerät", "txtGerätID", "txtRezept", "txtRezName"})
            shown += support::text(frm::Desktop, box);
        return shown.join('|');
    }
    /// Logs in if nobody has.
    Journey open(const char *button, frm name, frm from = frm::Desktop) {
        if (!loaded(frm::Desktop))
            co_await logIn();
        support::press(from, button);
        co_await arrive(name);
    }
    /// Another screen comes to the front and goes again by itself.
    Journey interruption() {
        const Screen *below = platform::frontScreen();
        ::screen(frm::Meldung1).show();
        co_await arrive(frm::Meldung1);
        const support::Until back =
            support::until("the way back", [below] { return platform::frontScreen() == below; });
        co_await back;
        co_await support::pass(100);
    }
    /// By a button, by "Escape", or by the close box, which has no name.
    static void leaveBy(frm name, const char *way) {
        if (!loaded(name))
            throw std::runtime_error("the screen is left already");
        if (!*way)
            loaded(name)->close();
        else if (way == QString("Escape"))
            QTest::keyClick(loaded(name), Qt::Key_Escape);
        else
            support::press(name, way);
    }
    void expectQuestion(const Text &text, int answer) {
        expectBox(text, platform::YesNo + platform::Question,
                  {"Stammdaten auswählen", "Select Master Data"}, answer);
    }
    void expectUnitQuestion(int answer) {
        expectQuestion({"Wollen Sie jetzt ein Gerät zu diesem Kunden auswählen?",
                        "Do you want to select a unit for this customer now?"},
                       answer);
    }
    void expectRecipeQuestion(int answer) {
        expectQuestion(
            {"Wollen Sie jetzt ein Rezept auswählen?", "Do you want to select a recipe now?"},
            answer);
    }
    void expectTold(const Text &text, const Text &title, int icon = platform::Exclamation) {
        expectBox(text, icon, title);
    }
    void expectNothingFound(const Text &title) {
        expectTold({"Es wurden keine Daten gefunden! ", "No data found! "}, title,
                   platform::Information);
    }
    void expectTorque() {
        expectBox({"Das zulässige Drehmoment ist überschritten!\r\n"
                   "Bitte geben Sie andere Werte ein!",
                   "The permissible torque has been exeeded!\r\nPlease enter other values!"},
                  platform::OKOnly, {"Drehmoment<=60Nm", "Torque<=60Nm"});
    }
    void expectFailure(const QString &tag, const Text &rest = {"…", "…"}) {
        expectBox({"Fehler " + tag + " - " + rest.german, "ERROR " + tag + " - " + rest.english},
                  platform::Critical, {"!! Achtung Fehler !!", " !! Attention !!"});
    }
    void expectNoRecord(const QString &tag) {
        expectFailure(tag, {" 3021 Kein aktueller Datensatz.", " 3021 No current record."});
    }
    void expectNoNumber(const QString &tag, const QString &text) {
        expectFailure(tag, {" 13 Typen unverträglich: \"" + text + "\" ist keine Zahl.",
                            " 13 Type mismatch: \"" + text + "\" is not a number."});
    }
    /// A statement on this table fails until the database is mended.
    static void spoil(const char *event, const char *table) {
        change(QString("CREATE TRIGGER fest BEFORE %1 ON %2 BEGIN SELECT RAISE(ABORT, 'x'); END")
                   .arg(event, table));
    }
    static void mend() { change("DROP TRIGGER fest"); }

    Journey customer(const QString &name, int answer = platform::No) {
        co_await open("pbKunde", frm::Kunden);
        paste(frm::Kunden, "cmbKundenname", name);
        expectUnitQuestion(answer);
        support::press(frm::Kunden, "pbexit");
        co_await arrive(answer == platform::Yes ? frm::Gerät : frm::Desktop);
    }
    Journey unit(const QString &ident, int answer = platform::No) {
        co_await open("pbGerät", frm::Gerät);
        paste(frm::Gerät, "cmbIdent", ident);
        co_await takeUnit(answer);
    }
    Journey takeUnit(int answer = platform::No) {
        expectRecipeQuestion(answer);
        support::press(frm::Gerät, "pbok");
        co_await arrive(answer == platform::Yes ? frm::Rezepte : frm::Desktop);
    }
    Journey recipe(const QString &name) {
        co_await open("pbRezept", frm::Rezepte);
        paste(frm::Rezepte, "cmbRezeptname", name);
        support::press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);
    }
    /// The list of recipes as the menu opens it.
    Journey maintain() {
        if (!loaded(frm::Desktop))
            co_await logIn();
        support::choose(frm::Desktop, "mnuRezepte");
        co_await arrive(frm::Rezepte);
    }
};
