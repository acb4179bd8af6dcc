// A person before the specifications Alpha, Beta and Gamma.
#pragma once

#include "choosing.h"

struct KnownBox {
    const char *name;
    int flags;
    const char *title, *titleEnglish, *german, *english;
};

inline constexpr KnownBox knownBoxes[] = {
    {"percent", 16, "Eingabefehler!", "Input Error!",
     "Der angegebene Wert liegt außerhalb des gültigen Bereichs!",
     "Value is not within the permissible interval!"},
    {"watt", 16, "Eingabfehler!", "Input Error",
     "Der angegebene Wert liegt außerhalb des gültigen Bereichs!",
     "Your indications are out of the permissible intervals!"},
    {"speed", 16, "Eingabfehler!", "Input Error!",
     "Der angegebene Wert liegt außerhalb des gültigen Bereichs!",
     "The value is not within the permissible interval."},
    {"double", 16, "Doppelter Eintrag", "Input Error",
     "Diese Bezeichnung für eine Toleranz gibt es bereits.\rBitte wählen Sie eine andere!",
     "This name for a tolerance already exists!\rPlease try again!"},
    {"incomplete", 48, "Unvollständige Angaben", "Incomlete Data",
     "Die Daten sind unvollständig.\rBitte vervollständigen Sie ihre Angaben!",
     "Data are incomplete.\rPlease complete it!"},
    {"inserted", 64, "Meldung", "Information", "Eingaben wurden gespeichert!",
     "Input data have been changed!"},
    {"updated", 64, "Meldung", "Information", "Eingaben wurden gespeichert!",
     "Data have been saved!"},
    {"delete?", 36, "Löschen", "Delete", "Sollen diese Daten jetzt gelöscht werden?",
     "Shall data be deleted?"},
    {"changed?", 36, "Änderungen speichern?", "Save changes?",
     "Wollen Sie die Änderungen speichern?", "Do you want to save the changes?"},
    {"new?", 51, "Daten speichern?", "Save data?",
     "Wollen Sie die Daten speichern?\r"
     "Klicken Sie auf Abbrechen, um ihre Eingabe zu beenden!",
     "Shall data be saved?\rPush 'Cancel' to determine your input!"},
    {"leaveEdit?", 52, "Änderungen speichern?", "Save changes?",
     "Sollen die Änderungen gespeichert werden?", "Shall changes be saved?"},
    {"leaveNew?", 52, "Daten speichern?", "Save data?",
     "Sollen die Daten vor Verlassen den Formulars gespeichert werden?",
     "Shall data be saved before exit?"},
    {"taken", 16, "Meldung", "Information",
     "Diese Bezeichnung für eine Toleranz ist bereits vorhanden.",
     "That name for a tolerance already exists."},
    {"combination", 64, "Information", "Information",
     "Diese Kombination von Watt und Prozent ist bereits vorhanden. Sie heißt Gamma",
     "This combination of Watt and percent already exists: Gamma"},
    {"interval", 16, "Eingabefehler", "Input Error",
     "Die Angaben befinden sich außerhalb des erlaubten Intervals!!\r"
     "Bitte überprüfen Sie Ihre Eingabe.",
     "Your indications are out of the permissible intervals!!\rPlease check your entry."},
};

class Specifications : public Choosing {
  protected:
    static constexpr frm screenName = frm::Toleranzen;
    static constexpr const char *fields[] = {"txtTolBez", "txtTolProz", "txtTolWatt",
                                             "txtAbw",    "cmbGKlasse", "txtMessverfahren"};
    static constexpr const char *untouched = "Alpha 5 3 2;Beta 10 5 5;Gamma 8 8 1";

    Specifications() { deliver(); }
    static void deliver() {
        change("DELETE FROM Toleranzen");
        change("INSERT INTO Toleranzen VALUES "
               "(11, 'Alpha', 5, 3, 2, 'Medizinische Geräte', 'Verfahren A'), "
               "(12, 'Beta', 10, 5, 5, 'Stationary Devices', 'Verfahren B'), "
               "(13, 'Gamma', 8, 8, 1, 'frei', 'Verfahren C')");
    }
    Journey openSpecifications() {
        if (!loaded(frm::Desktop))
            co_await logIn();
        support::choose(frm::Desktop, "mnuToleranzen");
        co_await arrive(screenName);
    }
    static Journey leave() {
        leaveBy(screenName, "Escape");
        co_await arrive(frm::Desktop);
    }
    QString rows() {
        return column("SELECT Bezeichnung || ' ' || Prozent || ' ' || Watt || ' ' || GrenzAbw "
                      "FROM Toleranzen ORDER BY ID")
            .join(';');
    }
    static void pickRow(int row) {
        auto *picker = support::control<QComboBox>(screenName, "cmbBezTol");
        support::turnTo(*picker);
        picker->setFocus();
        picker->setCurrentIndex(row);
        picker->activated(row);
    }
    void expect(const QString &name, int answer = platform::OK) {
        for (const KnownBox &box : knownBoxes) {
            if (name == box.name)
                return expectBox({box.german, box.english}, box.flags,
                                 {box.title, box.titleEnglish}, answer);
        }
        ADD_FAILURE() << "no box " << name.toStdString();
    }
    void expectMissing(const QString &tag) {
        const QString missing = "no such table: Toleranzen";
        expectFailure(tag, {" 3078 Die Tabelle wurde nicht gefunden: " + missing,
                            " 3078 Table not found: " + missing});
    }
    /// A way of such steps: "New" and other buttons, "pick Beta", "txtTolBez=X", "fill", "tab", or
    /// a box to come: "changed? yes", "noNumber Tol04 abc".
    void go(const QString &way) {
        for (const QString &what : way.split(';'))
            step(what, what.split(' '));
    }
    void step(const QString &what, const QStringList &words) {
        if (words[0] == "pick") {
            const QStringList entries = offered(screenName, "cmbBezTol");
            pickRow(static_cast<int>(entries.indexOf(entries.filter(words[1]).value(0))));
        } else if (what.contains('=')) {
            const QByteArray field = what.section('=', 0, 0).toUtf8();
            support::type(screenName, field, what.section('=', 1));
            if (what.endsWith('='))
                key(screenName, field, Qt::Key_Delete);
        } else if (what == "fill") {
            const char *values[] = {"Neu", "4", "2", "1", "m", "V"};
            for (size_t i = 0; i < std::size(fields); ++i)
                support::type(screenName, fields[i], values[i]);
            go("tab");
        } else if (what == "tab") {
            QTest::keyClick(loaded(screenName)->focusWidget(), Qt::Key_Tab);
        } else if (QStringList{"New", "Delete", "Save", "ok", "exit"}.contains(what)) {
            support::press(screenName, ("pb" + what).toUtf8());
        } else if (words[0] == "noNumber") {
            expectNoNumber(words[1], words[2]);
        } else {
            const QHash<QString, int> answers{
                {"yes", platform::Yes}, {"no", platform::No}, {"cancel", platform::Cancel}};
            expect(words[0], answers.value(words.value(1), platform::OK));
        }
    }
    /// Enabled buttons, name and numbers when the block is shown, the picker, the keyboard.
    static std::string look() {
        if (!loaded(screenName))
            return "closed";
        QString seen;
        for (const char *button : {"pbNew", "pbEdit", "pbDelete", "pbSave"})
            seen += enabled(screenName, button) ? button[2] : '-';
        QStringList shown;
        for (const char *field : {fields[1], fields[2], fields[3]})
            shown += support::text(screenName, field);
        seen += support::control(screenName, "txtTolBez")->isVisible()
                    ? " [" + support::text(screenName, "txtTolBez") + ' ' + shown.join('/') + "] "
                    : " [] ";
        seen += support::text(screenName, "cmbBezTol").section("   ", 0, 0);
        return (seen + " @" + loaded(screenName)->focusWidget()->objectName()).toStdString();
    }
};
