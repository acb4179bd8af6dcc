#include "link/anschluss.h"

#include "link/controller.h"
#include "platform/fehler.h"
#include "platform/runtime.h"
#include "records/leitung.h"
#include "session/sprache.h"

using namespace platform;

const Anschluss steuerleitung{
    MSComm1,          "Interface", gSS1Vorhanden, gSS1Geprüft, {"Fehler mI 2 - ", "ERROR mSI 2 - "},
    leitungFreiPrüfen};

namespace {

struct Parity {
    const char *word;
    char letter;
};
constexpr Parity parities[] = {
    {"Gerade", 'E'}, {"Ungerade", 'O'}, {"Keine", 'N'}, {"Markierung", 'M'}, {"Leerzeichen", 'S'},
};

QString wordOf(const QString &letter) {
    for (const Parity &parity : parities) {
        if (letter == QChar(parity.letter))
            return parity.word;
    }
    return {};
}

QString letterOf(const QString &word) {
    for (const Parity &parity : parities) {
        if (word == parity.word)
            return QChar(parity.letter);
    }
    return {};
}

} // namespace

Schnittstelle Schnittstelle::ausParameter(const QString &parameter) {
    return {parameter.section(',', 0, 0), wordOf(parameter.section(',', 1, 1)),
            parameter.section(',', 2, 2), parameter.section(',', 3)};
}

QString Schnittstelle::parameter() const {
    const QString stop = stoppbits == "1,5" ? "1.5" : stoppbits;
    return baud + ',' + letterOf(parität) + ',' + datenbits + ',' + stop;
}

const QStringList &Schnittstelle::baudraten() {
    static const QStringList list{"75",    "110",   "134",   "150",   "300",   "600",
                                  "1200",  "1800",  "2400",  "4800",  "7200",  "9600",
                                  "14400", "19200", "38400", "57600", "115200"};
    return list;
}

const QStringList &Schnittstelle::paritäten() {
    static const QStringList list = [] {
        QStringList words;
        for (const Parity &parity : parities)
            words += parity.word;
        return words;
    }();
    return list;
}

const QStringList &Schnittstelle::datenbitzahlen() {
    static const QStringList list{"4", "5", "6", "7", "8"};
    return list;
}

const QStringList &Schnittstelle::stoppbitzahlen() {
    static const QStringList list{"1", "1.5", "2"};
    return list;
}

int portPrüfen(const Anschluss &anschluss) try {
    anschluss.freiPrüfen(); // the trial would close the port under a running exchange
    if (!anschluss.leitung.PortOpen())
        anschluss.leitung.setPortOpen(true);
    anschluss.leitung.setPortOpen(false);
    anschluss.vorhanden = true;
    anschluss.geprüft = anschluss.leitung.CommPort();
    return 0;
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    if (fehler.number() == fehlernummer::NoSuchPort ||
        fehler.number() == fehlernummer::PortSettings) {
        anschluss.vorhanden = false; // of no use before the settings have been mended
        anschluss.geprüft = anschluss.leitung.CommPort();
    }
    if (fehler.number() != fehlernummer::NoSuchPort)
        fehlerBox(anschluss.kennung, fehler);
    return fehler.number();
}

void portWechseln(MSComm &leitung, int port) {
    if (leitung.PortOpen())
        leitung.setPortOpen(false);
    leitung.setCommPort(port);
}

void fnc_InterfaceSpeichern(const QString &port, const QString &baud, const QString &data,
                            const QString &parity, const QString &stop) {
    const int number = static_cast<int>(Val(port));
    leitungSpeichern(steuerleitung.tabelle,
                     {number, Schnittstelle{baud, parity, data, stop}.parameter()});
    MSComm1.setCommPort(number);
}
