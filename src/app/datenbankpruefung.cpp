#include "app/datenbankpruefung.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressDialog>

#include <memory>

#include "app/datenbank.h"
#include "platform/clock.h"
#include "platform/fehler.h"
#include "platform/files.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/database.h"
#include "store/safety.h"
#include "store/sqltext.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

const Text titel{"Datenbank beschädigt", "Database Damaged"};
const Text titelSicherung{"Sicherungskopie", "Safety Copy"};

/// True for the operator's Yes.
bool gewollt(const QString &befund, const std::optional<SafetyCopy> &kopie) {
    const Text schaden{QString("Die Datenbank %1 ist beschädigt. Solange sie es ist, wird nicht "
                               "gemessen.\rBefund: %2\r\r")
                           .arg(datenbankName, befund),
                       QString("The database %1 is damaged. Nothing is measured as long as it "
                               "is.\rFound: %2\r\r")
                           .arg(datenbankName, befund)};
    if (!kopie && !gDatenbank.isOpen())
        return false; // what to do was told when it did not open
    if (!kopie) {
        meldung({schaden.german + "Im Ordner Sicherung liegt keine unbeschädigte Kopie. Bitte "
                                  "beenden Sie das Programm und legen Sie eine Sicherungskopie von "
                                  "einem anderen Datenträger unter ihrem Namen ab.",
                 schaden.english + "There is no sound copy in the folder Sicherung. Please end the "
                                   "program and put a safety copy from another disk under its "
                                   "name."},
                Critical, titel);
        return false;
    }
    const QString tag = datumText(kopie->day);
    return meldung({schaden.german +
                        QString("Die neueste unbeschädigte Sicherungskopie ist vom %1. Soll sie "
                                "eingesetzt werden? Was seitdem gespeichert wurde, fehlt darin; "
                                "die beschädigte Datei bleibt unter anderem Namen erhalten.")
                            .arg(tag),
                    schaden.english +
                        QString("The newest sound safety copy is of %1. Shall it be put in place? "
                                "What was saved since is not in it; the damaged file is kept under "
                                "another name.")
                            .arg(tag)},
                   YesNo + Critical + SecondButtonDefault, titel) == Yes;
}

bool einsetzen(const SafetyCopy &kopie) try {
    gDatenbank.close();
    if (openSomewhere(datenbankName)) {
        throw Fehler(fehlernummer::PathAccess,
                     {"Die Datenbank ist in einem anderen Programm geöffnet.",
                      "The database is open in another program."});
    }
    const QString abgelegt = restoreSafetyCopy(".", kopie, now().date());
    fnc_DatenbankÖffnen();
    const QString tag = datumText(kopie.day);
    if (gDatenbank.isOpen())
        imNachweisVermerken("Sicherungskopie vom " + tag + " eingesetzt");
    gDatenbankzustand = Datenbankzustand::Heil;
    meldung({QString("Die Sicherungskopie vom %1 ist eingesetzt.\rDie beschädigte Datenbank liegt "
                     "als %2 daneben.")
                 .arg(tag, abgelegt),
             QString("The safety copy of %1 is in place.\rThe damaged database lies beside it as "
                     "%2.")
                 .arg(tag, abgelegt)},
            Information, titel);
    return gDatenbank.isOpen();
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    const Text &grund = fehler.text();
    meldung({"Die Sicherungskopie konnte nicht eingesetzt werden. " + grund.german +
                 "\rSie ist unverändert und wird beim nächsten Start wieder angeboten.",
             "The safety copy could not be put in place. " + grund.english +
                 "\rIt is unchanged and is offered again at the next start."},
            Critical, titel);
    fnc_DatenbankÖffnen(true);
    gDatenbankzustand = Datenbankzustand::Beschädigt;
    return false;
}

/// Shows itself when the work takes long.
class Sicherungsfenster {
  public:
    Sicherungsfenster() { mZeit.start(); }

    /// False once it is to be skipped.
    bool weiter(int fertig, int gesamt) {
        constexpr int abstand = 100; // ms
        // The check of the copy, which says nothing meanwhile, takes about as long as the copying.
        const int geduld = gesamt > 0 && fertig >= gesamt ? sicherungsgeduld / 3 : sicherungsgeduld;
        if (!mFenster && mZeit.elapsed() < geduld)
            return true;
        if (!mFenster)
            öffnen();
        else if (mGezeigt.elapsed() < abstand)
            return true;
        mFenster->setMaximum(gesamt > 0 ? gesamt + 1 : 0); // of which the last is the check
        mFenster->setValue(fertig);
        QCoreApplication::processEvents();
        mGezeigt.start();
        return !mFenster->wasCanceled() && gDatenbank.isOpen(); // closed when told to end meanwhile
    }

  private:
    void öffnen() {
        mFenster = std::make_unique<QProgressDialog>();
        mFenster->setObjectName("Sicherungsfenster");
        mFenster->setWindowTitle(inSprache(titelSicherung));
        mFenster->setLabelText(inSprache({"Die Sicherungskopie des Tages wird angelegt.",
                                          "The safety copy of the day is being made."}));
        mFenster->setCancelButtonText(inSprache({"&Überspringen", "&Skip"}));
        mFenster->setWindowModality(Qt::ApplicationModal);
        mFenster->setAutoReset(false);
        mFenster->show();
    }

    QElapsedTimer mZeit, mGezeigt;
    std::unique_ptr<QProgressDialog> mFenster;
};

void sicherungMelden(const Text &was, const Fehler &fehler) {
    fehlerMerken(fehler);
    meldung({was.german + fehler.text().german, was.english + fehler.text().english}, Exclamation,
            titelSicherung);
}

} // namespace

bool datenbankPrüfen() try {
    const QString befund = Datenbank::damageIn(datenbankName);
    gDatenbankzustand = befund.isEmpty() ? Datenbankzustand::Heil : Datenbankzustand::Beschädigt;
    if (befund.isEmpty())
        return false;
    const std::optional<SafetyCopy> kopie = newestSoundCopy(".");
    return gewollt(befund, kopie) && einsetzen(*kopie);
} catch (const Fehler &fehler) {
    fehlerMerken(fehler); // told when it did not open; a lock alone is no damage
    return false;
}

void sicherungskopieAnlegen() {
    const QDate heute = now().date();
    if (!gDatenbank.isOpen() || gDatenbankzustand == Datenbankzustand::Beschädigt ||
        !safetyCopyDue(".", heute))
        return;
    try {
        Sicherungsfenster fenster;
        makeSafetyCopy(".", heute,
                       [&](int fertig, int gesamt) { return fenster.weiter(fertig, gesamt); });
    } catch (const Fehler &fehler) {
        if (fehler.number() == fehlernummer::UserInterrupt)
            return;
        return sicherungMelden(
            {"Heute konnte keine Sicherungskopie angelegt werden; die bisherigen bleiben. Bitte "
             "prüfen Sie, ob im Ordner Sicherung Platz ist und geschrieben werden darf.\r",
             "No safety copy could be made today; the former ones stay. Please check whether there "
             "is room in the folder Sicherung and whether it can be written.\r"},
            fehler);
    }
    try {
        pruneSafetyCopies(".");
    } catch (const Fehler &fehler) {
        sicherungMelden({"Die Sicherungskopie ist angelegt, aber ältere, die nicht mehr gebraucht "
                         "werden, konnten nicht gelöscht werden.\r",
                         "The safety copy was made, but older ones that are needed no more could "
                         "not be deleted.\r"},
                        fehler);
    }
}
