#include "measure/statikempfang.h"

#include <QScopeGuard>

#include <numeric>
#include <utility>

#include "link/controller.h"
#include "measure/statik.h"
#include "measure/stromlesen.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {
constexpr int streamMilliseconds = 15'000;
} // namespace

std::optional<std::vector<double>> statikEmpfangen(const Statikstrom &strom,
                                                   const std::function<void(int)> &fortschritt,
                                                   const std::function<bool()> &abbruch) {
    const auto entwarnen = qScopeGuard([] {
        Timer1.setEnabled(false);
        gTimeoutTimer1 = false;
    });
    fnc_PortÖffnen();
    countedDelay(kurzeVerzögerung);
    Timer1.setEnabled(false);
    Timer1.setInterval(streamMilliseconds);
    gTimeoutTimer1 = false;
    Timer1.setEnabled(true);
    MSComm1.discardInput();
    MSComm1.Output(strom.code == codeOffset ? "f" : "t");
    countedDelay(kurzeVerzögerung);

    StatikDecoder decoder(strom.code);
    std::vector<double> werte;
    int proben = 0;
    const auto fertig = [&] { return static_cast<int>(werte.size()) >= strom.anzahl; };
    stromLesen([&] { return !fertig() && !gTimeoutTimer1 && gDesktopAktiv && !abbruch(); },
               [&](std::uint8_t byte) {
                   if (!decoder.feed(byte))
                       return;
                   if (++proben > strom.verworfen)
                       werte.push_back(decoder.value());
                   fortschritt(proben);
               });
    Timer1.setEnabled(false);
    if (std::exchange(gTimeoutTimer1, false) && !fertig() && !abbruch()) {
        const Statikstrom stumm{strom.code};
        const Statikstrom &worte = proben > 0 ? strom : stumm;
        meldung(worte.mittendrin, Exclamation, worte.mittendrinTitel);
    }
    datenstromBeenden();
    if (!fertig() || abbruch())
        return std::nullopt;
    return werte;
}

double mittelwert(const std::vector<double> &werte) {
    return std::accumulate(werte.begin(), werte.end(), 0.0) / static_cast<double>(werte.size());
}
