// The ergometer under test behind the second line: it takes a braking load and tells its speed.
// The line is plain ASCII without echo; what goes out ends in a carriage return.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

#include "link/anschluss.h"
#include "link/frames.h" // fnc_Transformation
#include "platform/clock.h"

/// Starts as port 4 with "4800,N,8,1"; its row of settings takes effect when it is saved.
extern MSComm MSComm2;
extern const Anschluss ergometerleitung;
inline bool gSS2Vorhanden = false; ///< the port exists; see fnc_SS2Prüfen
inline int gSS2Geprüft = 0;        ///< the port that this is about, 0 before the first trial
inline bool gTimeoutSS2 = false;   ///< the watchdog of a read has run out
inline Timer ti_nSSTwo(5000);      ///< that watchdog; ticks once

/// Connects the timer; called once before the first use, and again after the clock was replaced.
void ergometerVorbereiten();

/// Sets gSS2Vorhanden. A failure other than a missing port is shown and leaves it as it was.
/// Closes the port.
void fnc_SS2Prüfen();
/// Takes port and parameters into the line and its row. Raises Fehler.
void fnc_SS2Speichern(const QString &port, const Schnittstelle &felder);

/// The line that sets a load, W, of one to three digits, as text: "W050[13]" of "50". Empty for a
/// text of any other length.
QString lastzeile(const QString &ziffern);

/// Opens the port if it is closed and sends the bytes, behind what has arrived so far when
/// `verwerfen`. Raises as MSComm.
void ergometerSenden(const QByteArray &zeile, bool verwerfen = true);
/// Takes the load off: "W000", and the port is closed when that is through. Raises as MSComm.
void fnc_LastAbschalten();
/// The same on the way out of the process, whatever comes of it.
void lastStillschweigendAb();

/// How an answer is read: "n" and three digits. A first byte that is no "n" is looked at twice,
/// which is one time too often. Two screens differ in the end.
class Drehzahldecoder {
  public:
    /// True when the answer is complete: the third digit, or the second miss. Raises TypeMismatch
    /// for a byte that is no digit.
    bool feed(std::uint8_t byte);
    bool angekommen() const { return mIndex > 0; } ///< the "n" was there
    bool verfehlt() const { return mFehlgriffe >= 2; }
    /// What was told so far, 1/min: an answer that was cut is read as far as it goes.
    int drehzahl() const { return mDrehzahl; }

  private:
    int mIndex = 0;
    int mFehlgriffe = 0;
    int mDrehzahl = 0;
};

/// Asks the speed, and waits for the answer: at most five seconds, and 100 ms for the rest of one
/// that has begun. Answers the text for the box, with a leading blank. Nothing when none came,
/// which is told unless `abgelöst` says that nobody waits any more or the port was closed
/// meanwhile, or when the port is missing, which gSS2Vorhanden tells. Shows its failures
/// ("mSI 1 - "), also when a read is under way already.
std::optional<QString> fnc_ErgometerDrehzahlLesen(const std::function<bool()> &abgelöst);

/// The service screens' way to read an answer: `zeigen` gets the word for a good beginning, and two
/// misses are told in a box. Answers the speed, 1/min. Raises TypeMismatch as the decoder.
int antwortDeuten(const QByteArray &antwort, const std::function<void(const QString &)> &zeigen);
/// Told when nothing has come.
void keineAntwortMelden();
/// The service question: asks, waits until 100 ms pass without a byte, five seconds at most, and
/// tells in boxes what has come. Shows its failures ("mSI 1 - ").
void ergometerDiagnose(const std::function<void(const QString &)> &zeigen);
