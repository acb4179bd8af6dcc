// The dialogs before a measurement: which protocol, and that every way out is a decision.

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "frmProtokollNr.h"
#include "frmProtokollNr_1.h"
#include "protokolltest.h"

namespace {

int aktivierungen = 0;

class Messfenster : public Screen {
  public:
    static constexpr frm id = frm::Messen;
    Messfenster() { setCaption("Messen"); }

  protected:
    void Form_Activate() override { ++aktivierungen; }
};

class ProtokollDialog : public ProtokollTest {
  protected:
    ProtokollDialog() {
        bindScreen<Messfenster>();
        bindScreen<frmProtokollNr>();
        bindScreen<frmProtokollNr_1>();
        gMessStatus = 6;
        gMessungLäuft = true;
        gMessenAktiv = true;
        gProtokollTitel.clear();
        screen(frm::Messen).show();
        QCoreApplication::processEvents();
    }
    ~ProtokollDialog() override { platform::closeAllScreens(); }

    void öffnen(frm name = frm::ProtokollNr) {
        screen(name).showModal();
        mDialog = loaded(name);
        QCoreApplication::processEvents();
        EXPECT_FALSE(loaded(frm::Messen)->isVisible());
        aktivierungen = 0;
    }
    template <class T>
    T &control(const char *name) {
        return *mDialog->findChild<T *>(name);
    }
    void klick(const char *name) { control<QAbstractButton>(name).click(); }
    bool bereit() { return control<QPushButton>("pbok").isEnabled(); }
    QComboBox &liste() { return control<QComboBox>("cmbVorhanden"); }
    void enter(const char *name) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&control<QWidget>(name), &key);
    }
    /// Closed, with this outcome; the measurement is activated exactly once to read it.
    void erwarteEnde(int status, const QString &caption) {
        QCoreApplication::processEvents();
        EXPECT_FALSE(loaded(frm::ProtokollNr));
        EXPECT_EQ(gMessStatus, status);
        EXPECT_FALSE(gMessungLäuft);
        EXPECT_TRUE(loaded(frm::Messen)->isVisible());
        EXPECT_EQ(loaded(frm::Messen)->caption(), caption);
        EXPECT_EQ(aktivierungen, 1);
    }

    Screen *mDialog = nullptr;
};

TEST_F(ProtokollDialog, OffersOnlyWhatIsPossible) {
    öffnen();
    EXPECT_FALSE(gMessenAktiv);
    EXPECT_EQ(control<QLabel>("lbProtokollID").text(), "1 - ");
    EXPECT_TRUE(control<QRadioButton>("obNeu").isEnabled());
    EXPECT_FALSE(control<QRadioButton>("obVorhanden").isEnabled());
    EXPECT_FALSE(control<QRadioButton>("obLetztes").isEnabled());
    EXPECT_FALSE(bereit());
    mDialog->unload();

    kopf(2147483647);
    öffnen();
    ASSERT_EQ(mBoxes.size(), 1U);
    EXPECT_TRUE(mBoxes[0].text.startsWith("Fehler 9702 -  6 "));
    EXPECT_FALSE(control<QRadioButton>("obNeu").isEnabled());
    EXPECT_TRUE(control<QRadioButton>("obVorhanden").isEnabled());
}

TEST_F(ProtokollDialog, NewProtocol) {
    öffnen();
    enter("obNeu");
    EXPECT_TRUE(control<QLineEdit>("txtNeu").isVisible());
    EXPECT_TRUE(bereit());
    klick("pbok");
    erwarteEnde(0, "Messen       Prüfprotokoll: 1 -  ");
    EXPECT_EQ(gProtokollID, 1);
    EXPECT_EQ(gProtokollTitel, "1 -  ");
    EXPECT_EQ(zeilen("SELECT ProtokollID, Protokollname FROM Protokoll_temp"), "1| ");
    EXPECT_FALSE(gMessenAktiv);
}

TEST_F(ProtokollDialog, LeavingWithoutDecisionIsACancel) {
    for (const bool closeBox : {false, true}) {
        öffnen();
        klick("obNeu");
        gMessStatus = 0; // whatever it was before
        closeBox ? static_cast<void>(mDialog->close()) : klick("pbexit");
        erwarteEnde(4, "Messen");
        EXPECT_EQ(anzahl("Protokoll_temp"), 0);
        EXPECT_EQ(gProtokollTitel, "");
    }
}

TEST_F(ProtokollDialog, StaysWhenTheHeadCannotBeWritten) {
    öffnen();
    klick("obNeu");
    kopf(1, "kam dazwischen");
    klick("pbok");
    QCoreApplication::processEvents();
    ASSERT_EQ(mBoxes.size(), 1U);
    EXPECT_TRUE(mBoxes[0].text.startsWith("Fehler 9704-  3022 "));
    EXPECT_TRUE(loaded(frm::ProtokollNr));
    EXPECT_EQ(gMessStatus, 6);
    EXPECT_EQ(aktivierungen, 0);
    mDialog->close();
    erwarteEnde(4, "Messen");
}

TEST_F(ProtokollDialog, ExistingProtocol) {
    kopf(1, "fremd", 8, 8);
    kopf(2, "A");
    kopf(3, "B");
    gDrehrichtung = 2;
    öffnen();
    klick("obVorhanden");
    EXPECT_EQ(liste().count(), 2);
    EXPECT_EQ(liste().currentText(), "");
    EXPECT_FALSE(bereit());
    enter("cmbVorhanden");
    EXPECT_TRUE(mBoxes.empty()) << "nothing typed, nothing looked up";

    liste().setEditText("1"); // another customer's
    enter("cmbVorhanden");
    ASSERT_EQ(mBoxes.size(), 1U);
    EXPECT_EQ(mBoxes[0].text, "Dieses Protokoll gibt es nicht!");
    EXPECT_EQ(mBoxes[0].title, "Meldung");
    EXPECT_EQ(mBoxes[0].flags, 48);
    EXPECT_FALSE(bereit());

    liste().setEditText("3");
    enter("cmbVorhanden");
    EXPECT_EQ(liste().currentText(), "3 - B");
    EXPECT_TRUE(bereit());

    // Ready, but then typed over: no head, or one that is not offered, no measurement.
    for (const char *nummer : {"77", "1"}) {
        mBoxes.clear();
        control<QPushButton>("pbok").setEnabled(true);
        liste().setEditText(nummer);
        klick("pbok");
        EXPECT_EQ(mBoxes.size(), 1U) << nummer;
        EXPECT_TRUE(loaded(frm::ProtokollNr));
        EXPECT_FALSE(bereit());
        EXPECT_EQ(gProtokollID, 4) << "the new number is still good";
    }
    EXPECT_EQ(zeilen("SELECT Drehrichtung FROM Protokoll_temp WHERE ProtokollID = 1"), "1");

    liste().setCurrentIndex(0);
    Q_EMIT liste().activated(0);
    klick("pbok");
    erwarteEnde(0, "Messen       Prüfprotokoll: 2 - A");
    EXPECT_EQ(gProtokollID, 2);
    EXPECT_EQ(zeilen("SELECT ProtokollID FROM Protokoll_temp WHERE Drehrichtung = 2"), "2");
}

TEST_F(ProtokollDialog, SingleExistingProtocolIsTakenAtOnce) {
    kopf(2, "A");
    öffnen();
    klick("obVorhanden");
    EXPECT_EQ(liste().currentText(), "2 - A");
    EXPECT_TRUE(bereit());
    liste().clearEditText();
    EXPECT_FALSE(bereit());
}

TEST_F(ProtokollDialog, LastProtocolIsContinuedAsItIs) {
    gSprache = 2;
    kopf(7, "Station");
    messwert(7);
    const QString vorher = zeilen("SELECT * FROM Protokoll_temp");
    öffnen();
    klick("obNeu");
    klick("obLetztes");
    EXPECT_FALSE(control<QLineEdit>("txtNeu").isVisible());
    EXPECT_EQ(liste().currentText(), "7-Station");
    klick("pbok");
    erwarteEnde(0, "Messen       Test Protocol: 7-Station");
    EXPECT_EQ(gProtokollID, 7);
    EXPECT_TRUE(gMessenAktiv);
    EXPECT_EQ(zeilen("SELECT * FROM Protokoll_temp"), vorher);
}

TEST_F(ProtokollDialog, ReducedForm) {
    kopf(4);
    öffnen(frm::ProtokollNr_1);
    EXPECT_EQ(control<QLabel>("lbProtokollID").text(), "5 - ");
    control<QLineEdit>("txtProtoName").setText("Name");
    klick("pbok");
    erwarteEnde(0, "Messen         Prüfprotokoll: 5 - Name");
    EXPECT_EQ(zeilen("SELECT Protokollname, NK_ID FROM Protokoll_temp WHERE ProtokollID = 5"),
              "Name|7");
}

} // namespace
