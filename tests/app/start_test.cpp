// The program as a whole: what nobody caught, the buttons of its boxes, the end of the process,
// help and reset on the desktop, and the working standard in use.
#include <QApplication>
#include <QMessageBox>
#include <QTextBrowser>
#include <QTimer>

#include "app/seriennummer.h"
#include "app/start.h"
#include "platform/guard.h"
#include "session/session.h"
#include "windows/help.h"
#include "windows/msgbox.h"
#include "workplace.h"

namespace {

using namespace support;
using namespace platform;

class Program : public Workplace {
  protected:
    Program() {
        change("UPDATE System SET Endprüfung = -1");
        views["standard"] = [] {
            return QString("%1 %2 %3").arg(gSeriennummer).arg(gNormalGainL).arg(gNormalOffset);
        };
    }
    /// The page that the help shows, none when it is closed.
    static QString helpPage() {
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            const auto *page = window->findChild<QTextBrowser *>("txtPage");
            if (page && window->isVisible())
                return page->toPlainText().section('\n', 0, 0);
        }
        return {};
    }
    /// The captions of a real box with these buttons.
    static QString captions(int flags) {
        QStringList all;
        setBoxAnswerer({});
        QTimer::singleShot(0, [&all] {
            const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            for (const QAbstractButton *button : box->buttons())
                all += button->text();
            box->buttons().at(0)->click();
        });
        msgBox("?", flags, "");
        all.sort();
        return all.join(' ');
    }
};

JOURNEY_P(Program, TellsWhatNobodyCaught) {
    co_await logIn();
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec(); // else an exit of a case before this one ends the boxes at once
    expectKnown("uncaught(13, 6)");
    guarded([] { throw Fehler(13, {"6", "6"}); });
    expectKnown("uncaught(0, x)");
    guarded([] { throw std::runtime_error("x"); });
    co_await go(R"(
        wire == ; pbReset ; wire == r ; can pbReset
        key F1)");
    EXPECT_EQ(helpPage(),
              english() ? "Main window and registration" : "Hauptfenster und Anmeldung");
    closeHelp();
    co_await go("@Desktop ; mnuSSParameter ; @Interface ; key F1 ; pbexit ; @Desktop");
    EXPECT_EQ(helpPage(), english() ? "Interfaces and running-in parameters"
                                    : "Schnittstellen und Einlaufparameter");
    setHelpSource({});
    co_await go("? noHelp ; mnuHelp");
    EXPECT_EQ(captions(YesNoCancel) + ' ' + captions(AbortRetryIgnore) + ' ' + captions(OKOnly),
              english() ? "&Cancel &No &Yes &Abort &Ignore &Retry &OK"
                        : "&Abbrechen &Ja &Nein &Ignorieren &Wiederholen A&bbrechen &OK");
}

JOURNEY_ROWS(Program, EndsTheProcess, "@Login ; pbCancel", "@Login ; close",
             "@Desktop ; ? end yes ; pbBeenden", "@Desktop ; from outside") {
    if (givenRow.startsWith("@Desktop"))
        co_await logIn();
    else
        start();
    co_await go(givenRow.section(" ; ", 0, 0));
    QTimer::singleShot(0, [this] {
        for (const QString &step : givenRow.split(" ; ").mid(1))
            step == "from outside" ? beendenOhneFrage() : act(step);
    });
    QTimer::singleShot(5'000, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

// By its serial number, with the latest of its rows: what is the matter, the box of each attempt.
JOURNEY_ROWS(Program, FindsTheStandard, "//", "stand serial XX-1/noCalibration",
             "stand fault silent on//noSerialNumber", "line out//noEngine") {
    co_await logIn();
    gSeriennummer.clear();
    gNormalOffset = 0;
    bool found = false;
    QString told;
    Seriennummer search([&told](const QString &info) { told = info; }, [&found] { found = true; });
    const QStringList row = givenRow.split('/');
    co_await go(row[0]);
    for (const QString &box : row.mid(1)) {
        if (!box.isEmpty())
            expectKnown(box);
        search.Seriennummer_ermitteln();
        EXPECT_EQ(told, row[0] == "line out" ? "" : "Die Seriennummer wird ermittelt!");
        co_await pass(2'100);
        boxes.expectAllCame();
    }
    EXPECT_EQ(found, row[0].isEmpty());
    co_await go(found ? "standard == TN-1001 12490 10000" : "");
}

} // namespace
