#include "link/ergometer.h"

#include <algorithm>

#include "platform/fehler.h"
#include "platform/runtime.h"
#include "records/leitung.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr int lückeMilliseconds = 20; // without a byte: nobody is sending
constexpr int restMilliseconds = 100; // without a byte: no more of this answer will come
constexpr double bitsOfAByte = 12;    // at most
constexpr long diagnoserunden = 90'000;
constexpr std::uint8_t antwortkopf = 'n';

bool leseläuft = false;

void leseFreiPrüfen() {
    if (leseläuft) {
        throw Fehler(fehlernummer::LineBusy,
                     {"Die Leitung zum Ergometer ist noch beschäftigt. Bitte warten Sie.",
                      "The line to the ergometer is still busy. Please wait."});
    }
}

/// One read on the line. A second one inside it is refused.
class Lesung {
  public:
    Lesung() {
        leseFreiPrüfen();
        leseläuft = true;
        gTimeoutSS2 = false;
        ti_nSSTwo.setEnabled(false);
        ti_nSSTwo.setEnabled(true);
    }
    ~Lesung() {
        ti_nSSTwo.setEnabled(false);
        leseläuft = false;
    }
    Lesung(const Lesung &) = delete;
    Lesung &operator=(const Lesung &) = delete;
};

double byteMilliseconds() {
    return 1000 * bitsOfAByte / SerialSettings::parse(MSComm2.Settings()).baud;
}

/// Tells when no byte has come for a while. On a slow line a byte takes its time.
class Stille {
  public:
    Stille() {
        mTimer.onTick = [this] {
            mTimer.setEnabled(false);
            mEingetreten = true;
        };
    }
    /// From now on.
    void erwarten(int milliseconds) {
        mEingetreten = false;
        mTimer.setEnabled(false);
        mTimer.setInterval(std::max(milliseconds, static_cast<int>(2 * byteMilliseconds())));
        mTimer.setEnabled(true);
    }
    bool eingetreten() const { return mEingetreten; }

  private:
    Timer mTimer;
    bool mEingetreten = false;
};

void öffnen() {
    MSComm2.recover();
    if (!MSComm2.PortOpen())
        MSComm2.setPortOpen(true);
}

/// What has arrived, and removes it.
QByteArray angekommen() {
    return MSComm2.InBufferCount() > 0 ? MSComm2.Input() : QByteArray();
}

/// Nothing when `vorbei`; gTimeoutSS2 tells a time-out.
std::optional<int> drehzahlFragen(const std::function<bool()> &vorbei) {
    const Lesung lesung;
    öffnen();
    MSComm2.discardInput();
    Stille stille;
    stille.erwarten(lückeMilliseconds);
    while (!stille.eingetreten()) {
        pump();
        if (vorbei())
            return std::nullopt;
        if (!angekommen().isEmpty())
            stille.erwarten(lückeMilliseconds);
        if (gTimeoutSS2)
            return std::nullopt;
    }
    MSComm2.Output("D\r");
    Drehzahldecoder decoder;
    Stille rest;
    while (!rest.eingetreten()) {
        pump();
        if (vorbei())
            return std::nullopt;
        const QByteArray bytes = angekommen();
        for (const char byte : bytes) {
            if (decoder.feed(static_cast<std::uint8_t>(byte))) {
                gTimeoutSS2 = false;
                return decoder.drehzahl();
            }
        }
        if (gTimeoutSS2)
            return std::nullopt;
        if (!bytes.isEmpty())
            rest.erwarten(restMilliseconds);
    }
    return decoder.drehzahl();
}

} // namespace

MSComm MSComm2 = [] {
    MSComm line;
    line.setCommPort(4);
    line.setSettings("4800,N,8,1");
    return line;
}();

const Anschluss ergometerleitung{MSComm2,
                                 "SecondInterface",
                                 gSS2Vorhanden,
                                 gSS2Geprüft,
                                 {"Fehler mSI 2 - ", "ERROR mSI 2 - "},
                                 leseFreiPrüfen};

void ergometerVorbereiten() {
    ti_nSSTwo.onTick = [] {
        ti_nSSTwo.setEnabled(false);
        gTimeoutSS2 = true;
    };
}

void fnc_SS2Prüfen() {
    const bool vorher = gSS2Vorhanden;
    if (portPrüfen(ergometerleitung) == fehlernummer::PortSettings)
        gSS2Vorhanden = vorher;
}

void fnc_SS2Speichern(const QString &port, const Schnittstelle &felder) {
    leseFreiPrüfen();
    const int number = static_cast<int>(Val(port));
    const QString parameter = felder.parameter();
    SerialSettings::parse(parameter); // the row is not written when the line would not take it
    portWechseln(MSComm2, number);
    leitungSpeichern(ergometerleitung.tabelle, {number, parameter});
    MSComm2.setSettings(parameter);
}

QString lastzeile(const QString &ziffern) {
    if (ziffern.isEmpty() || ziffern.size() > 3)
        return {};
    return "W" + ziffern.rightJustified(3, '0') + "[13]";
}

void ergometerSenden(const QByteArray &zeile, bool verwerfen) {
    öffnen();
    if (verwerfen)
        MSComm2.discardInput();
    MSComm2.Output(zeile);
}

void fnc_LastAbschalten() {
    const QByteArray zeile = "W000\r";
    ergometerSenden(zeile);
    // A port that is closed goes back to the settings that it had, also under its last bytes.
    constexpr double roundsOfAMillisecond = 20'000;
    countedDelay(static_cast<long>(static_cast<double>(zeile.size()) * byteMilliseconds() *
                                   roundsOfAMillisecond));
    MSComm2.setPortOpen(false);
}

void lastStillschweigendAb() try { fnc_LastAbschalten(); } catch (const Fehler &fehler) {
    fehlerMerken(fehler);
}

bool Drehzahldecoder::feed(std::uint8_t byte) {
    if (mIndex == 0) {
        if (byte == antwortkopf)
            mIndex = 1;
        else
            mFehlgriffe = 2;
        return verfehlt();
    }
    if (mIndex > 3)
        return true;
    if (byte < '0' || byte > '9') {
        const QString code = QString::number(byte);
        throw Fehler(
            fehlernummer::TypeMismatch,
            {"Das Ergometer hat statt einer Ziffer das Zeichen mit dem Code " + code + " gesendet.",
             "Instead of a digit the ergometer has sent the character of code " + code + '.'});
    }
    constexpr int stellenwert[] = {0, 100, 10, 1};
    mDrehzahl += (byte - '0') * stellenwert[mIndex];
    return ++mIndex > 3;
}

std::optional<QString> fnc_ErgometerDrehzahlLesen(const std::function<bool()> &abgelöst) try {
    const auto vorbei = [&abgelöst] { return !gDesktopAktiv || !MSComm2.PortOpen() || abgelöst(); };
    if (const auto drehzahl = drehzahlFragen(vorbei))
        return Str(*drehzahl);
    if (!vorbei()) {
        meldung(
            {"Keine Kommunikation mit dem Ergometer!!", "No communication with this ergometer!"},
            Critical, {"!! Achtung Fehler !!", "!! Attention !!"});
    }
    gTimeoutSS2 = false;
    return std::nullopt;
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    if (fehler.number() == fehlernummer::NoSuchPort)
        gSS2Vorhanden = false;
    else if (gDesktopAktiv && !abgelöst())
        fehlerBox("mSI 1 - ", fehler);
    return std::nullopt;
}

int antwortDeuten(const QByteArray &antwort, const std::function<void(const QString &)> &zeigen) {
    Drehzahldecoder decoder;
    for (const char byte : antwort) {
        const bool fertig = decoder.feed(static_cast<std::uint8_t>(byte));
        if (decoder.angekommen())
            zeigen("Drehzahl angekommen");
        if (fertig)
            break;
    }
    if (decoder.verfehlt())
        msgBox("Fehler bei Übertragung der Drehzahl!", Critical, "Übertragungsfehler");
    return decoder.drehzahl();
}

void keineAntwortMelden() {
    msgBox("Keine Kommunikation mit dem Ergometer!!", Critical, "Fehlermeldung");
}

void ergometerDiagnose(const std::function<void(const QString &)> &zeigen) try {
    QByteArray antwort;
    {
        const Lesung lesung;
        öffnen();
        MSComm2.discardInput();
        MSComm2.Output("D\r");
        MSComm2.discardInput();
        countedDelay(diagnoserunden);
        Stille stille;
        stille.erwarten(restMilliseconds);
        while (!stille.eingetreten() && !gTimeoutSS2 && gDesktopAktiv && MSComm2.PortOpen()) {
            pump();
            if (!MSComm2.PortOpen())
                return;
            if (const QByteArray bytes = angekommen(); !bytes.isEmpty()) {
                antwort += bytes;
                stille.erwarten(restMilliseconds);
            }
        }
    }
    gTimeoutSS2 = false;
    if (!gDesktopAktiv)
        return;
    if (antwort.isEmpty()) {
        keineAntwortMelden();
        return;
    }
    msgBox(fnc_HexString(antwort), OKOnly, "Ergometer");
    msgBox(QString::number(antwortDeuten(antwort, zeigen)), OKOnly, "Ergometer");
} catch (const Fehler &fehler) {
    fehlerBox("mSI 1 - ", fehler);
}
