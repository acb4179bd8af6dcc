#include "way.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QWheelEvent>

#include <cxxabi.h>
#include <typeinfo>

#include "platform/runtime.h"
#include "session/session.h"
#include "standcommands.h"
#include "windows/waiting.h"

namespace support {

using platform::frontScreen;

namespace {

const QStringList questions{"can",   "cannot", "shown",    "hidden",
                            "focus", "waits",  "readonly", "checked"};

QString nameOf(const Screen *screen) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(*screen).name(), nullptr, nullptr, &status), &std::free);
    return status == 0 ? QString(name.get()).section("frm", -1) : QString();
}

/// On the screen at hand, or "Screen.control".
template <class Control = QObject>
Control *named(const QString &name) {
    const Screen *screen =
        name.contains('.') ? screenNamed(name.section('.', 0, 0)) : frontScreen();
    auto *found = screen ? screen->findChild<Control *>(name.section('.', -1)) : nullptr;
    if (!found)
        throw std::runtime_error("no control " + name.toStdString() + " on " +
                                 (screen ? nameOf(screen).toStdString() : "no screen"));
    return found;
}

bool is(const QString &state, const QString &name) {
    if (auto *action = qobject_cast<QAction *>(named(name)))
        return static_cast<Screen *>(action->parent())->usable() && action->isEnabled();
    auto *control = named<QWidget>(name);
    if (state == "shown")
        return control->isVisible();
    if (state == "focus")
        return control->window()->focusWidget() == control;
    if (state == "waits")
        return platform::isWaiting(named<QAbstractButton>(name));
    if (state == "checked")
        return named<QAbstractButton>(name)->isChecked();
    if (state == "readonly")
        return named<QLineEdit>(name)->isReadOnly();
    return static_cast<Screen *>(control->window())->usable() && control->isVisible() &&
           control->isEnabled();
}

void typeInto(const QString &name, const QString &keys, const QString &how) {
    auto *field = named<QWidget>(name);
    turnTo(*field);
    if (how == "+")
        return sendKeys(*field, keys);
    auto *combo = qobject_cast<QComboBox *>(field);
    auto *edit = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(field);
    if (how == "=")
        field->setFocus();
    if (edit)
        edit->selectAll();
    if (how == ":=")
        edit->insert(keys);
    else if (keys.isEmpty())
        QTest::keyClick(field, Qt::Key_Delete);
    else
        sendKeys(*field, keys);
}

void pick(const QString &name, const QString &value) {
    if (auto *bar = qobject_cast<QAbstractSlider *>(named(name)))
        return bar->setValue(value.toInt());
    auto *combo = named<QComboBox>(name);
    turnTo(*combo);
    int entry = combo->findText(value);
    if (entry < 0)
        entry = value.toInt() - 1;
    if (entry < 0)
        throw std::runtime_error(name.toStdString() + " does not offer " + value.toStdString());
    combo->setCurrentIndex(entry);
    combo->activated(entry);
}

void pressKey(const QString &name) {
    Screen *screen = frontScreen();
    turnTo(*screen);
    QWidget *focus = screen->focusWidget();
    const QKeyCombination keys = QKeySequence(name)[0];
    QTest::keyClick(focus ? focus : screen, keys.key(), keys.keyboardModifiers());
}

void click(const QString &list, const QString &entry) {
    auto *view = named<QAbstractItemView>(list);
    const QModelIndexList found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole,
                                                       entry, 1, Qt::MatchExactly);
    if (found.isEmpty())
        throw std::runtime_error(list.toStdString() + " does not show " + entry.toStdString());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(found[0]).center());
}

void turnWheel(QWidget *over) {
    QWheelEvent turn({5, 5}, over->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(over, &turn);
}

void press(const QString &name) {
    if (!is("can", name))
        throw std::runtime_error("cannot press " + name.toStdString());
    if (auto *action = qobject_cast<QAction *>(named(name)))
        return action->trigger();
    turnTo(*named<QWidget>(name));
    named<QAbstractButton>(name)->click();
}

} // namespace

Screen *screenNamed(const QString &name) {
    for (int id = 0; id <= int(frm::Test); ++id) {
        Screen *screen = loaded(frm(id));
        if (screen && nameOf(screen) == name)
            return screen;
    }
    return nullptr;
}

QString rowsOf(const QObject *object) {
    const auto *combo = qobject_cast<const QComboBox *>(object);
    const auto *view = qobject_cast<const QAbstractItemView *>(combo ? combo->view() : object);
    const QAbstractItemModel *model = view->model();
    QStringList rows;
    for (int row = 0; row < model->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells += model->index(row, column).data().toString();
        rows += cells.join('|');
    }
    return rows.join('+');
}

std::vector<Variant> oneVariant() {
    return {{}};
}

std::vector<Variant> bothLanguages() {
    return {{"/1", 1}, {"/2", 2}};
}

std::vector<Variant> rowByRow(const std::vector<const char *> &rows) {
    std::vector<Variant> variants;
    for (const char *row : rows)
        variants.push_back({'/' + QString::number(variants.size()), 1, row});
    return variants;
}

Way::Way() {
    views["front"] = [] { return frontScreen() ? nameOf(frontScreen()) : QString(); };
    views["title"] = [] { return frontScreen()->caption(); };
    views["beeps"] = [this] { return QString::number(std::exchange(beeps, 0)); };
    views["speed"] = [this] { return QString::number(line.stand().speed(), 'g', 3); };
    views["load"] = [this] { return QString::number(line.stand().load()); };
    views["wire4"] = [this] { return QString::fromStdString(line.stand().secondWire()); };
    views["wireNow"] = [this] { return QString::fromStdString(line.stand().wire()); };
    views["wire"] = [this] { // since the last question
        const std::string all = line.stand().wire();
        line.stand().clearWires();
        return QString::fromStdString(all);
    };
    views["desktop"] = [] {
        QStringList shown;
        for (const char *box : {"txtKunde", "txtGerät", "txtGerätID", "txtRezept", "txtRezName"})
            shown += text(frm::Desktop, box);
        return shown.join('|');
    };
    views["session"] = [] {
        return QString("%1 %2 %3").arg(gKundenID).arg(gGerätID).arg(gRezeptID);
    };
    views["keyboard"] = [] { return frontScreen()->focusWidget()->objectName(); };
    views["selected"] = [] { // the row of the measured steps
        const auto *grid = control<QAbstractItemView>(frm::Messen, "DBGrid1");
        const QModelIndexList rows = grid->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows[0].data().toString() : QString();
    };
}

Journey Way::arrive(frm name) {
    co_await until("screen " + std::to_string(static_cast<int>(name)),
                   [name] { return inFront(name); });
    co_await pass(20);
}

Journey Way::settled(const char *step, double speed) {
    const auto complete = [step, speed] {
        return inFront(frm::Messen) && text(frm::Messen, "laPrSchritt") == step &&
               !text(frm::Messen, "txtIST_P_torvena").isEmpty() &&
               std::abs(CDbl(text(frm::Messen, "txtIST_n_torvena")) - speed) < 0.1;
    };
    const Until reached = until(std::string("step ") + step, complete);
    co_await reached;
    co_await pass(20);
}

QString Way::seenBy(const QString &name, const QString &how) {
    if (const auto view = views.find(name); view != views.end())
        return view->second();
    if (name.startsWith("sql "))
        return grid(name.mid(4));
    if (name.startsWith("stored "))
        return grid("SELECT " + name.mid(7) +
                        " FROM Messwerte_temp WHERE ProtokollID = ? ORDER BY MDat, rowid",
                    {gProtokollID});
    return how.startsWith("rows") ? rowsOf(named(name)) : shownBy(named(name));
}

QString Way::spoken(const QString &both) {
    if (!both.contains(" | ") && !both.startsWith("| "))
        return both;
    return (' ' + both).section(" | ", english() ? 1 : 0, english() ? 1 : 0).trimmed();
}

bool Way::holds(const QString &step) {
    const QString verb = step.section(' ', 0, 0);
    if (questions.contains(verb)) {
        const QString state = verb == "hidden" ? "shown" : verb == "cannot" ? "can" : verb;
        for (const QString &name : step.section(' ', 1).split(' ')) {
            if (is(state, name) != (state == verb)) {
                mSeen = name;
                return false;
            }
        }
        return true;
    }
    static const QRegularExpression comparison("^(.+?) (==|~|rows~|rows)(?: (.*))?$");
    const auto parts = comparison.match(step);
    const QString wanted = spoken(parts.captured(3));
    const QString seen = seenBy(parts.captured(1), parts.captured(2));
    const bool same = parts.captured(2).endsWith('~')
                          ? QRegularExpression(wanted).match(seen).hasMatch()
                          : seen == wanted;
    if (!same)
        mSeen = seen;
    return same;
}

void Way::act(const QString &step) {
    static const QHash<QString, int> answers{
        {"yes", platform::Yes}, {"no", platform::No}, {"cancel", platform::Cancel}};
    static const QRegularExpression box("^(\\?\\*?) ([^( ]+(?:\\(.*\\))?)(?: (yes|no|cancel))?$");
    static const QRegularExpression compares(" (==|~|rows~?)( |$)");
    const QString verb = step.section(' ', 0, 0), rest = step.section(' ', 1);
    const QString operation = step.section(' ', 1, 1), value = step.section(' ', 2);
    if (const auto come = box.match(step); come.hasMatch()) {
        const int answer = answers.value(come.captured(3), platform::OK);
        come.captured(1) == "?" ? expectKnown(come.captured(2), answer)
                                : allowKnown(come.captured(2), answer);
    } else if (verb == "after") {
        clock.after(operation.toDouble(), [this, value] { act(value); });
    } else if (questions.contains(verb) || step.contains(compares)) {
        EXPECT_TRUE(holds(step)) << step << "\nseen: " << mSeen;
    } else if (verb == "key") {
        for (int i = 0; i < std::max(1, value.toInt()); ++i)
            pressKey(operation);
    } else if (verb == "close") {
        (rest.isEmpty() ? frontScreen() : screenNamed(rest))->close();
    } else if (verb == "mouse") {
        click(operation, value);
    } else if (verb == "wheel") {
        turnWheel(named<QWidget>(operation));
    } else if (verb == "change") {
        change(rest);
    } else if (verb == "spoil") {
        spoil(operation, value);
    } else if (verb == "mend") {
        mend();
    } else if (verb == "stand") {
        EXPECT_EQ(simulator::runCommand(rest.toStdString(), line.stand(), {}), "ok\n");
    } else if (verb == "line") {
        const SerialLine which =
            rest.startsWith("4 ") ? SerialLine::Ergometer : SerialLine::Controller;
        line.occupy(rest.endsWith("taken"), which);
        rest.endsWith("out") ? line.unplug(which) : line.plug(which);
    } else if (operation == "=" || operation == ":=" || operation == "+") {
        typeInto(verb, spoken(value), operation);
    } else if (operation == ">") {
        pick(verb, value);
    } else if (operation == "!" || operation == "^") {
        auto *control = named<QWidget>(verb);
        turnTo(*control);
        operation == "!" ? QTest::keyClick(control, Qt::Key_Return) : control->setFocus();
    } else {
        press(step);
    }
}

Journey Way::go(QString way) {
    for (const QString &written : way.split('\n')) {
        const QString steps = (' ' + written).section(" # ", 0, 0).trimmed();
        if (steps.isEmpty())
            continue;
        for (const QString &each : steps.split(" ; ", Qt::SkipEmptyParts)) {
            const QString step = each.trimmed();
            SCOPED_TRACE(steps.toStdString() + "  << " + step.toStdString());
            const QStringList words = step.split(' ');
            std::string problem;
            try {
                if (step.startsWith('@')) {
                    const QString name = step.mid(1);
                    const Until come = until(step.toStdString(),
                                             [this, name] { return views["front"]() == name; });
                    co_await come;
                    co_await pass(20);
                } else if (words[0] == "pass") {
                    co_await pass(words[1].toDouble());
                } else if (words[0] == "step") {
                    const QByteArray number = words[1].toUtf8();
                    Journey measured = settled(number, words[2].toDouble());
                    co_await measured;
                } else if (const auto road = roads.find(words[0]); road != roads.end()) {
                    const QString rest = step.section(' ', 1);
                    Journey taken = road->second(rest);
                    co_await taken;
                } else if (words[0] == "until") {
                    const QString awaited = step.mid(6);
                    const Until come = until(step.toStdString(), [this, awaited] {
                        try {
                            return holds(awaited);
                        } catch (const std::exception &) { // what it is about is not there yet
                            return false;
                        }
                    });
                    co_await come;
                } else {
                    act(step);
                }
            } catch (const std::exception &failed) {
                problem = failed.what();
            }
            if (!problem.empty())
                throw std::runtime_error(problem + "\n  at: " + steps.toStdString());
        }
        SCOPED_TRACE(steps.toStdString());
        boxes.expectAllCame();
    }
}

} // namespace support
