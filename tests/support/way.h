// A person's way through the screens as text, one line after the other, steps parted by " ; ".
// All steps mean the screen that has the front; "Desktop.txtKunde" means another one.
//
//   @Kunden                   until this screen has the front
//   pbOk   obNeu   mnuEnde    presses, chooses
//   txtName = a b             types over what stands there (= 0,5 | 0.5);   := pastes
//   txtName + c               types behind it
//   cmbOrt > Bonn   > 2       picks from the list, by entry or number; moves the bar
//   txtName !                 Enter in it;   ^ turns to it
//   key Down 2   key Escape   in what has the keyboard;   close   the close box (close Messen)
//   mouse lstKunden Meier     clicks on this entry;   wheel cmbOrt   turns the wheel over it
//   ? saved   ? leave yes     this box is to come on this line and in this order; answered OK
//   ?* failure(1077)          this one may come at any time
//   txtName == a b            what is shown, "deutsch | english";   lstKunden rows a|b+c|d
//   name ~ ^a.*b              by pattern;   rows~ likewise
//   can pbOk pbNeu            cannot, shown, hidden, focus, waits likewise; readonly, checked
//   name == value             a view of the fixture: what it tells about the state
//   stored Soll_n == 60       columns of the rows that the session has stored
//   until name == value       waits for it;   pass 3000   step 2 80: measured at this speed
//   after 500 cannot pbOk     while something else waits
//   change UPDATE ...         by another program;   sql SELECT ... == value
//   spoil DELETE Rezepte      such a statement fails until   mend;   after spoil SELECT any does
//   login   protocol Links    a road of the fixture, with what it needs
//   stand load 100            a command of the simulated stand
//   line out   line in        the line to the controller, also   line taken;   line 4 out,
//   ergometer
//
// " # " begins a comment. Boxes that a line announces must have come at its end.
#pragma once

#include <map>

#include "operate.h"
#include "workshop.h"

namespace support {

using namespace operate;

class Way : public Workshop {
  protected:
    Way();

    Journey go(QString way);
    /// One step that takes no time.
    void act(const QString &step);
    /// Until the screen has the front and has had its activation.
    static Journey arrive(frm name);
    /// Until the step is measured at this speed and its live values are complete.
    static Journey settled(const char *step, double speed);

    /// Of "deutsch | english" what the session speaks.
    static QString spoken(const QString &both);

    std::map<QString, std::function<QString()>> views;
    std::map<QString, std::function<Journey(const QString &)>> roads;

  private:
    bool holds(const QString &step);
    QString seenBy(const QString &name, const QString &how);
    QString mSeen;
};

/// The first screen whose class is frm and this name; null when none is loaded.
Screen *screenNamed(const QString &name);
/// The rows of a list or grid, "a|b+c|d".
QString rowsOf(const QObject *object);

/// What one of the cases of a journey begins with.
struct Variant {
    QString suffix;
    int language = 1;
    QString row = {};
};
std::vector<Variant> oneVariant();
std::vector<Variant> bothLanguages();
std::vector<Variant> rowByRow(const std::vector<const char *> &rows);

/// Makes known to the runner what JOURNEY and its like say below.
template <class Fixture, class Case>
bool registerJourney(const char *suite, const char *name, const char *file, int line,
                     const std::vector<Variant> &variants) {
    for (const Variant &variant : variants) {
        testing::RegisterTest(suite, qUtf8Printable(name + variant.suffix), nullptr, nullptr, file,
                              line, [variant]() -> Fixture * {
                                  Workshop::givenLanguage = variant.language;
                                  Workshop::givenRow = variant.row;
                                  return new Case;
                              });
    }
    return true;
}

} // namespace support

// A case that is one journey: JOURNEY(Fixture, Name) { co_await ...; }. JOURNEY_P runs it in both
// languages; JOURNEY_ROWS once for each row behind the name, which it finds in `givenRow`, each in
// a program of its own.
#define JOURNEY_OF(fixture, name, variants)                                                        \
    struct fixture##_##name : fixture {                                                            \
        support::Journey way();                                                                    \
        void TestBody() override { run(way()); }                                                   \
    };                                                                                             \
    [[maybe_unused]] static const bool fixture##_##name##_known =                                  \
        support::registerJourney<fixture, fixture##_##name>(#fixture, #name, __FILE__, __LINE__,   \
                                                            variants);                             \
    support::Journey fixture##_##name::way()
#define JOURNEY(fixture, name) JOURNEY_OF(fixture, name, support::oneVariant())
#define JOURNEY_P(fixture, name) JOURNEY_OF(fixture, name, support::bothLanguages())
#define JOURNEY_ROWS(fixture, name, ...) JOURNEY_OF(fixture, name, support::rowByRow({__VA_ARGS__}))
