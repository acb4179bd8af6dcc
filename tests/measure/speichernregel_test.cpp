// When a step may be saved.
#include "measure/speichernregel.h"

#include <gtest/gtest.h>

#include "cases.h"

namespace {

using support::Case;
using support::cases;

// Who steers and whose the values are; power or speed; the boxes that are filled: speed n, torque
// D, power P, reading e. Behind it what a change of n, D, P and e makes of the button: on, on with
// the keyboard, off, or as it was.
TEST(Saving, NeedsEveryBoxOfTheStepMeasuredUnderTheSetPointShown) {
    for (const Case &c : cases(R"(
            person own power nDP -> keyboard on keyboard keyboard
            | person own power nDPe -> keyboard on keyboard keyboard
            | person own power nD -> off off off off | person own power DPe -> off off off off
            | person own power nPe -> off off off off | person foreign power nDP -> off off off off
            | person own speed nDPe -> on on on on | person own speed nDP -> off off off off
            | person own speed nDe -> off off off off | person foreign speed nDPe -> off off off off
            | person own none nDPe -> same same same same | person own none -> same same same same
            | nobody own power nDP -> same same same same | nobody own power nD -> off off off same
            | nobody foreign power nDP -> off off off off | nobody own speed nDPe -> on same on on
            | nobody own speed nDP -> off off off off | nobody foreign speed nDPe -> off off off off)")) {
        const QStringList in = c.in.split(' ');
        const QString filled = in.value(3);
        const auto box = [&](char name) { return QString(filled.contains(name) ? "1" : ""); };
        SchrittTexte schritt{"60", "100", box('n'), box('P'), box('e'), box('D')};
        schritt.prüfart = static_cast<int>(QStringList{"none", "power", "speed"}.indexOf(in[2]));
        QStringList found;
        for (const Messbox changed :
             {Messbox::n_torvena, Messbox::D_torvena, Messbox::P_torvena, Messbox::n_ergom}) {
            const Speichern regel =
                speichernRegel(changed, schritt, in[0] == "person", in[1] == "own");
            found += QStringList{"same", "off", "on", "keyboard"}[static_cast<int>(regel)];
        }
        EXPECT_EQ(found.join(' '), c.out) << c;
    }
}

} // namespace
