// Every road by keyboard: access keys, default buttons, labels of fields, and the way of the Tab
// key, on all screens there are.
#include <QAbstractScrollArea>
#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "session.h"
#include "workplace.h"

namespace {

using namespace support;

class Keyboard : public Workplace, public testing::WithParamInterface<int> {
  protected:
    Keyboard() { setLanguage(GetParam()); }

    static QString keyOf(const QString &text) { return QKeySequence::mnemonic(text).toString(); }

    /// All that Alt and a letter reach, and what a person is led to believe it does.
    static void expectOwnKeys(const Screen &screen) {
        QHash<QString, QStringList> users;
        const auto use = [&users](const QObject *object, const QString &text) {
            if (const QString key = keyOf(text); !key.isEmpty())
                users[key] += object->objectName();
        };
        for (const auto *button : screen.findChildren<QAbstractButton *>()) {
            use(button, button->text());
            const bool words = !button->text().isEmpty() && button->text()[0].isLetter();
            EXPECT_TRUE(!words || !keyOf(button->text()).isEmpty())
                << button->objectName().toStdString();
        }
        for (const auto *label : screen.findChildren<QLabel *>()) {
            use(label, label->text());
            EXPECT_TRUE(label->buddy() || keyOf(label->text()).isEmpty())
                << label->objectName().toStdString() << " leads nowhere";
        }
        for (const auto *frame : screen.findChildren<QGroupBox *>())
            use(frame, frame->title());
        for (const auto *bar : screen.findChildren<QMenuBar *>()) {
            for (const QAction *menu : bar->actions())
                use(menu->menu(), menu->text());
        }
        for (auto used = users.begin(); used != users.end(); ++used) {
            used->sort();
            const bool given = *used == QStringList{"pbDrehzNull", "pbNext"};
            EXPECT_TRUE(given || used->size() == 1)
                << used.key().toStdString() << ": " << used->join(' ').toStdString();
        }
    }
    static void expectOwnKeysInMenus(const Screen &screen) {
        for (const auto *menu : screen.findChildren<QMenu *>()) {
            QStringList keys;
            for (const QAction *entry : menu->actions()) {
                if (!entry->isSeparator())
                    keys += keyOf(entry->text());
            }
            EXPECT_FALSE(keys.contains("")) << menu->title().toStdString();
            EXPECT_EQ(keys.removeDuplicates(), 0) << menu->title().toStdString();
        }
    }
    static void expectDefaultButton(const Screen &screen) {
        for (const auto *button : screen.findChildren<QPushButton *>()) {
            EXPECT_EQ(button->isDefault(), button->text() == "&OK")
                << button->objectName().toStdString();
        }
    }
    static bool isField(const QWidget *widget) {
        if (widget->focusPolicy() == Qt::NoFocus)
            return false;
        return qobject_cast<const QComboBox *>(widget) ||
               (qobject_cast<const QLineEdit *>(widget) &&
                !qobject_cast<const QComboBox *>(widget->parentWidget())) ||
               (qobject_cast<const QScrollBar *>(widget) &&
                !qobject_cast<const QAbstractScrollArea *>(widget->parentWidget()->parentWidget()));
    }
    static void expectLabels(const Screen &screen) {
        QSet<const QWidget *> named;
        for (const auto *label : screen.findChildren<QLabel *>())
            named += label->buddy();
        for (const auto *widget : screen.findChildren<QWidget *>()) {
            const QString name = widget->objectName();
            const bool option = name == "cmbVorhanden"; // stands beside the one that opens it
            EXPECT_TRUE(!isField(widget) || option || named.contains(widget)) << name.toStdString();
        }
    }

    /// Tab comes to everything that can be used and back to where it began.
    static void expectTabGoesRound(frm name) {
        Screen *screen = loaded(name);
        QSet<QString> due;
        for (const auto *widget : screen->findChildren<QWidget *>()) {
            const bool option = qobject_cast<const QRadioButton *>(widget); // by arrow keys
            if (!option && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() &&
                widget->isVisible() && widget->isEnabled() && !widget->objectName().isEmpty() &&
                !widget->objectName().startsWith("qt_"))
                due += widget->objectName();
        }
        QWidget *first = screen->focusWidget();
        ASSERT_TRUE(first) << screen->caption().toStdString() << ": nothing has the keyboard";
        QWidget *at = first;
        QStringList way;
        do {
            way += at->objectName();
            EXPECT_TRUE(at->isVisible() && at->isEnabled()) << way.last().toStdString();
            QTest::keyClick(at, Qt::Key_Tab);
            at = screen->focusWidget();
        } while (at != first && way.size() < 40);
        EXPECT_EQ(at, first) << screen->caption().toStdString() << ": "
                             << way.join(' ').toStdString();
        for (const QString &passed : way)
            due -= passed;
        EXPECT_EQ(QStringList(due.begin(), due.end()).join(' ').toStdString(), "")
            << "not reached on " << screen->caption().toStdString();
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, Keyboard, testing::Values(1, 2));

TEST_P(Keyboard, KeysAreUniqueAndFieldsHaveLabels) {
    const auto journey = [this]() -> Journey {
        co_await select();
        gDrehrichtung = 1;
        int screens = 0;
        for (int name = 0; name <= int(frm::Test); ++name) {
            if (!exists(frm(name)))
                continue;
            ++screens;
            SCOPED_TRACE(name);
            const Screen &inspected = screen(frm(name));
            SCOPED_TRACE(inspected.caption().toStdString());
            expectOwnKeys(inspected);
            expectOwnKeysInMenus(inspected);
            expectDefaultButton(inspected);
            expectLabels(inspected);
        }
        EXPECT_GE(screens, 27);
    };
    run(journey());
}

TEST_P(Keyboard, TabGoesRoundOnTheMasterData) {
    struct Stop {
        const char *opens; // button or menu entry
        frm screen;
        const char *box; // into which is typed
        QString text;
        const char *leaves; // null: the next stop is opened from here
    };
    const DemoNames names = demoNames();
    const Stop stops[] = {
        {"pbKunde", frm::Kunden, "cmbKundenname", names.customer, nullptr},
        {"pbNeu", frm::NeuKunde, nullptr, {}, "pbexit"},
        {"pbchange", frm::ÄndKund, nullptr, {}, "pbexit"},
        {"pbDelete", frm::LöschKunde, nullptr, {}, "pbCancel"},
        {"pbexit", frm::Gerät, "cmbIdent", names.ident, nullptr}, // Yes, the units now
        {"pbNeu", frm::NeuGerät, nullptr, {}, "pbexit"},
        {"pbchange", frm::ÄndGerät, nullptr, {}, "pbexit"},
        {"pbDelete", frm::LöschGerät, nullptr, {}, "pbNo"},
        {"pbexit", frm::Desktop, nullptr, {}, nullptr},
        {"mnuToleranzen", frm::Toleranzen, nullptr, {}, "pbexit"},
        {"mnuRezepte", frm::Rezepte, "cmbRezeptname", names.recipe, nullptr},
        {"pbÄndRez", frm::ÄndRez, nullptr, {}, "pbexit"},
        {"pbNeuRezept", frm::NeuRezept, "txtRezName", "Neues", "pbexit"},
    };
    const auto journey = [&]() -> Journey {
        co_await logIn();
        boxes.allow("…", platform::Yes);
        frm at = frm::Desktop;
        for (const Stop &stop : stops) {
            if (loaded(at)->findChild<QAbstractButton *>(QString::fromUtf8(stop.opens)))
                press(at, stop.opens);
            else
                support::choose(at, stop.opens);
            co_await arrive(stop.screen);
            if (stop.box)
                type(stop.screen, stop.box, stop.text);
            expectTabGoesRound(stop.screen);
            if (stop.leaves) {
                press(stop.screen, stop.leaves);
                co_await arrive(at);
            } else {
                at = stop.screen;
            }
        }
    };
    run(journey());
}

TEST_P(Keyboard, TabGoesRoundOnTheWayToAMeasurement) {
    const auto journey = [this]() -> Journey {
        start();
        co_await arrive(frm::Login);
        expectTabGoesRound(frm::Login);
        type(frm::Login, "txtUserName", "M. Prüfer");
        press(frm::Login, "pbok");
        co_await arrive(frm::Desktop);
        expectTabGoesRound(frm::Desktop);
        const DemoNames names = demoNames();
        co_await choose(names.customer, names.ident, names.recipe);
        expectTabGoesRound(frm::Desktop);
        const std::pair<const char *, frm> buttons[] = {{"pbRezept", frm::Rezepte},
                                                        {"pbDrehR", frm::MotorDrehR}};
        for (const auto &[button, name] : buttons) {
            press(frm::Desktop, button);
            co_await arrive(name);
            if (name == frm::Rezepte)
                type(name, "cmbRezeptname", names.recipe);
            expectTabGoesRound(name);
            loaded(name)->close();
            co_await arrive(frm::Desktop);
        }
        const std::pair<const char *, frm> entries[] = {{"mnuSSParameter", frm::Interface},
                                                        {"mnuEinlaufen", frm::Einlaufen}};
        for (const auto &[entry, name] : entries) {
            support::choose(frm::Desktop, entry);
            co_await arrive(name);
            expectTabGoesRound(name);
            loaded(name)->close();
            co_await arrive(frm::Desktop);
        }
        co_await startMeasuring();
        expectTabGoesRound(frm::VorStatNPK);
        press(frm::VorStatNPK, "pbok");
        co_await until("the correction", [] { return canPress(frm::StatMessen, "pbWeiter"); });
        expectTabGoesRound(frm::StatMessen);
        press(frm::StatMessen, "pbWeiter");
        co_await arrive(frm::NachStatNPK);
        expectTabGoesRound(frm::NachStatNPK);
        press(frm::NachStatNPK, "pbok");
        co_await arrive(frm::ProtokollNr);
        expectTabGoesRound(frm::ProtokollNr);
        press(frm::ProtokollNr, "obNeu");
        expectTabGoesRound(frm::ProtokollNr);
        co_await newProtocol("Tasten");
        line.stand().setLoad(100);
        co_await settled("1", 60);
        save();
        co_await settled("2", 80);
        expectTabGoesRound(frm::Messen);
        press(frm::Messen, "pbFreieEing");
        co_await pass(100);
        expectTabGoesRound(frm::Messen);
        co_await leaveMeasuring();
        expectTabGoesRound(frm::Desktop);
    };
    run(journey());
}

} // namespace
