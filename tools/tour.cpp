// Takes the main job and a final test by itself, in real time, against the stand behind COM1 and
// COM4 of the current directory: from the login to a recipe whose steps stand judged in the
// database, and from the head of a device to its report. Leaves a picture of each screen and page
// in tour/, the pages of the protocol as PDF files too, and prints the stored rows, the first of
// which lie in the archive then. Ends with 1 when a station is not reached.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>

#include <cmath>
#include <cstdio>
#include <vector>

#include "app/start.h"
#include "operate.h"
#include "platform/clock.h"
#include "platform/runtime.h"
#include "session/session.h"
#include "store/database.h"
#include "windows/msgbox.h"
#include "windows/preview.h"
#include "windows/stil.h"

namespace {

using namespace operate;

constexpr int longestWait = 60'000; // ms for one station: two six-round frames at 60 1/min and more

struct Station {
    const char *name;
    std::function<bool()> reached;
    std::function<void()> goOn;
};

/// The windows in which pages are looked at, as pictures. False while there are none.
bool savedPages(const QString &name) {
    int page = 0;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || !window->findChild<QAbstractButton *>("pbPages"))
            continue;
        window->resize(1000, 1300);
        window->findChild<QAbstractButton *>("pbWidth")->click();
        QApplication::processEvents();
        window->grab().save(QString("tour/%1 %2.png").arg(name).arg(++page));
    }
    return page > 0;
}

std::vector<Station> stations() {
    const auto front = [](frm name) { return [name] { return inFront(name); }; };
    const auto ready = [](frm name, const char *button) {
        return [name, button] { return canPress(name, button); };
    };
    // The step is shown and the motor has followed to its speed.
    const auto settled = [](const char *wanted) {
        const auto number = [](const char *box) {
            return Val(text(frm::Messen, box).replace(',', '.'));
        };
        return inFront(frm::Messen) && text(frm::Messen, "laPrSchritt") == wanted &&
               std::fabs(number("txtIST_n_torvena") - number("txtSoll_n")) < 0.5;
    };
    const auto step = [settled](const char *wanted) {
        return
            [settled, wanted] { return settled(wanted) && canPress(frm::Messen, "pbSpeichern"); };
    };
    // The second result of the step has come.
    const auto counted = [](const char *wanted) {
        return [wanted] {
            return inFront(frm::Messen) && text(frm::Messen, "laPrSchritt") == wanted &&
                   text(frm::Messen, "lblMessSchritte").startsWith('2');
        };
    };
    return {
        {"splash", front(frm::Splash), [] {}},
        {"login", front(frm::Login),
         [] {
             type(frm::Login, "txtUserName", "Rundgang");
             press(frm::Login, "pbok");
         }},
        {"desktop", front(frm::Desktop), [] { press(frm::Desktop, "pbKunde"); }},
        {"customers", front(frm::Kunden),
         [] {
             type(frm::Kunden, "cmbKundenname", "Klinikum Ährenfeld");
             press(frm::Kunden, "pbexit");
         }},
        {"units", front(frm::Gerät),
         [] {
             type(frm::Gerät, "cmbIdent", "AEH-001");
             enter(frm::Gerät, "cmbIdent");
         }},
        {"recipes", front(frm::Rezepte),
         [] {
             type(frm::Rezepte, "cmbRezeptname", "Kurzprüfung");
             press(frm::Rezepte, "pbok");
         }},
        {"desktop, chosen", ready(frm::Desktop, "pbMessen"),
         [] { press(frm::Desktop, "pbDrehR"); }},
        {"direction", front(frm::MotorDrehR),
         [] {
             press(frm::MotorDrehR, "obRechts");
             press(frm::MotorDrehR, "pbok");
         }},
        {"motor on", ready(frm::Desktop, "pbMotein"), [] { press(frm::Desktop, "pbMotein"); }},
        {"running in", ready(frm::Desktop, "pbMotaus"), [] { press(frm::Desktop, "pbMessen"); }},
        {"uncouple", front(frm::VorStatNPK), [] { press(frm::VorStatNPK, "pbok"); }},
        {"zero point", ready(frm::StatMessen, "pbWeiter"),
         [] { press(frm::StatMessen, "pbWeiter"); }},
        {"couple", front(frm::NachStatNPK), [] { press(frm::NachStatNPK, "pbok"); }},
        {"protocol", front(frm::ProtokollNr),
         [] {
             press(frm::ProtokollNr, "obNeu");
             type(frm::ProtokollNr, "txtNeu", "Rundgang");
             press(frm::ProtokollNr, "pbok");
         }},
        {"power step", step("1"), [] { press(frm::Messen, "pbSpeichern"); }},
        {"notice", front(frm::Meldung), [] {}},
        {"speed step", [settled] { return settled("2"); },
         [] { type(frm::Messen, "txtIST_n_ergom", "80"); }},
        {"speed read", step("2"), [] { press(frm::Messen, "pbSpeichern"); }},
        {"recipe done", ready(frm::Messen, "pbAbbrechen"),
         [] { press(frm::Messen, "pbAbbrechen"); }},
        {"desktop again", ready(frm::Desktop, "pbProtokoll"),
         [] { press(frm::Desktop, "pbProtokoll"); }},
        {"reports", ready(frm::Bericht, "OKButton"),
         [] {
             press(frm::Bericht, "cbKomplett");
             press(frm::Bericht, "cbVorschau");
             press(frm::Bericht, "OKButton");
         }},
        {"pages", [] { return savedPages("page"); },
         [] {
             platform::closePreviews();
             press(frm::Bericht, "pbSichern");
             press(frm::Bericht, "CancelButton"); // and into the archive
         }},
        {"desktop, archived", front(frm::Desktop),
         [] { operate::choose(frm::Desktop, "mnuProtVerw"); }},
        {"archive", front(frm::Bericht1),
         [] {
             auto *customer = control<QComboBox>(frm::Bericht1, "cmbKunde");
             customer->setCurrentText("Klinikum Ährenfeld");
             Q_EMIT customer->activated(customer->currentIndex());
             auto *protocol = control<QComboBox>(frm::Bericht1, "cmbBericht");
             protocol->setCurrentIndex(protocol->count() - 1);
         }},
        {"archived protocol", ready(frm::Bericht1, "rbDruck2_1"),
         [] { press(frm::Bericht1, "CancelButton"); }},
        {"final test", ready(frm::Desktop, "pbEndprüf"), [] { press(frm::Desktop, "pbEndprüf"); }},
        {"head", front(frm::Endprüf),
         [] {
             type(frm::Endprüf, "txtSerNr", "RG-1");
             press(frm::Endprüf, "pbok");
         }},
        {"head saved", ready(frm::Endprüf, "pbMessen"), [] { press(frm::Endprüf, "pbMessen"); }},
        {"uncouple the unit", front(frm::VorStatNPK), [] { press(frm::VorStatNPK, "pbok"); }},
        {"its zero point", ready(frm::StatMessen, "pbWeiter"),
         [] { press(frm::StatMessen, "pbWeiter"); }},
        {"couple the unit", front(frm::NachStatNPK), [] { press(frm::NachStatNPK, "pbok"); }},
        {"step alone", counted("1"), [] {}},
        {"second step alone", counted("2"), [] {}},
        {"third step alone", counted("3"), [] {}},
        {"its report", [] { return savedPages("final test"); }, [] { platform::closePreviews(); }},
        {"unit done", ready(frm::Endprüf, "pbBeenden"), [] { press(frm::Endprüf, "pbBeenden"); }},
        {"the end", ready(frm::Desktop, "pbBeenden"), [] {}},
    };
}

void printRows(const QString &head, const Recordset &rows) {
    std::printf("%s\n", head.toUtf8().constData());
    for (int row = 0; row < rows.count(); ++row) {
        QString line = QString("  %1").arg(rows.at(row, 0).toString(), -5);
        for (int column = 1; column < 8; ++column)
            line += QString(" %1").arg(rows.at(row, column).toString(), -8);
        std::printf("%s\n", line.trimmed().prepend("  ").toUtf8().constData());
    }
}

void printStored() {
    printRows(
        QString("stored under protocol %1:\n  step  set n    set P    n 1/min  M N m    P W   "
                "   read n   verdicts")
            .arg(gProtokollID),
        gDatenbank.open("SELECT Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, Ist_D_torvena, "
                        "Ist_P_torvena, Ist_n_ergom, MU_ohne || ' ' || MU_mit FROM Messwerte "
                        "WHERE ProtokollID = ? ORDER BY MDat",
                        {gProtokollID}));
    printRows("stored of the final test:",
              gDatenbank.open("SELECT Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, Ist_D_torvena, "
                              "Ist_P_torvena, Ist_n_ergom, Toleranz FROM EP_Messwerte "
                              "WHERE ProtokollID = ? ORDER BY Val(Prüfschritt)",
                              {gEPProtokollID}));
}

class Tour {
  public:
    Tour() : mStations(stations()) {
        QDir().mkpath("tour");
        platform::setBoxAnswerer([](const platform::Box &box) {
            std::printf("   box: %s\n", box.text.simplified().toUtf8().constData());
            std::fflush(stdout);
            return (box.flags & 15) == platform::YesNo ? platform::Yes : platform::OK;
        });
        mTimer.onTick = [this] { look(); };
        mTimer.setEnabled(true);
        mSince.start();
    }

  private:
    void look() {
        if (mBusy || mNext == mStations.size())
            return;
        const Station &station = mStations[mNext];
        if (!station.reached()) {
            if (mSince.elapsed() > longestWait) {
                std::printf("not reached: %s\n", station.name);
                mNext = mStations.size();
                QApplication::exit(1);
            }
            return;
        }
        mBusy = true; // painting below may look again
        Screen *screen = platform::frontScreen();
        QApplication::processEvents();
        const QString file =
            QString("tour/%1 %2.png").arg(mNext + 1, 2, 10, QChar('0')).arg(station.name);
        if (screen)
            screen->grab().save(file);
        std::printf("%2zu %s\n", mNext + 1, station.name);
        std::fflush(stdout);
        ++mNext;
        mBusy = false;
        mSince.restart();
        station.goOn();
        if (mNext == mStations.size()) {
            printStored();
            beendenOhneFrage();
        }
    }

    std::vector<Station> mStations;
    size_t mNext = 0;
    bool mBusy = false;
    platform::Timer mTimer{100};
    QElapsedTimer mSince;
};

} // namespace

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    platform::stilAnwenden(application);
    int result = 0;
    {
        programmStarten();
        Tour tour;
        result = QApplication::exec();
    }
    programmAufräumen();
    return result;
}
