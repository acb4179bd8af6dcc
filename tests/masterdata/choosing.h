// A person before the lists of customers, units and recipes, in either language.
#pragma once

#include <QListView>

#include "auswahl.h"
#include "frmGeraet.h"
#include "frmKunden.h"
#include "frmRezepte.h"
#include "msgbox.h"
#include "session.h"
#include "workplace.h"

class Choosing : public support::Workplace, public testing::WithParamInterface<int> {
  protected:
    using Journey = support::Journey;

    Choosing() { setLanguage(GetParam()); }

    static QStringList rowsOf(const QAbstractItemModel *model) {
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row)
            rows += model->index(row, 0).data().toString();
        return rows;
    }
    static QStringList listed(frm name, const char *list) {
        return rowsOf(support::control<QListView>(name, list)->model());
    }
    static QStringList offered(frm name, const char *box) {
        return rowsOf(support::control<QComboBox>(name, box)->model());
    }
    /// What any keyboard or the clipboard may bring.
    static void paste(frm name, const char *box, const QString &what) {
        QLineEdit *edit = support::control<QComboBox>(name, box)->lineEdit();
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
    static Journey open(const char *button, frm name) {
        support::press(frm::Desktop, button);
        co_await arrive(name);
    }
    void expectUnitQuestion(int answer) {
        expectBox({"Wollen Sie jetzt ein Gerät zu diesem Kunden auswählen?",
                   "Do you want to select a unit for this customer now?"},
                  platform::YesNo + platform::Question,
                  {"Stammdaten auswählen", "Select Master Data"}, answer);
    }
    void expectRecipeQuestion(int answer) {
        expectBox({"Wollen Sie jetzt ein Rezept auswählen?", "Do you want to select a recipe now?"},
                  platform::YesNo + platform::Question,
                  {"Stammdaten auswählen", "Select Master Data"}, answer);
    }
    void expectTold(const Text &text, const Text &title, int icon = platform::Exclamation) {
        expectBox(text, icon, title);
    }
    Journey customer(const QString &name, int answer = platform::No) {
        co_await open("pbKunde", frm::Kunden);
        paste(frm::Kunden, "cmbKundenname", name);
        expectUnitQuestion(answer);
        support::press(frm::Kunden, "pbexit");
    }
    Journey unit(const QString &ident, int answer = platform::No) {
        co_await open("pbGerät", frm::Gerät);
        paste(frm::Gerät, "cmbIdent", ident);
        expectRecipeQuestion(answer);
        support::press(frm::Gerät, "pbok");
    }
    Journey recipe(const QString &name) {
        co_await open("pbRezept", frm::Rezepte);
        paste(frm::Rezepte, "cmbRezeptname", name);
        support::press(frm::Rezepte, "pbok");
        co_await arrive(frm::Desktop);
    }
};
