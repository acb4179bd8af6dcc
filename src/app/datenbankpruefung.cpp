#include "app/datenbankpruefung.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
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

Text schadenText(const QString &befund) {
    return {QString("Die Datenbank %1 ist beschädigt. Solange sie es ist, wird nicht "
                    "gemessen.\rBefund: %2\r\r")
                .arg(datenbankName, befund),
            QString("The database %1 is damaged. Nothing is measured as long as it "
                    "is.\rFound: %2\r\r")
                .arg(datenbankName, befund)};
}

void ohneKopieMelden(const QString &befund) {
    const Text schaden = schadenText(befund);
    meldung({schaden.german + "Im Ordner Sicherung liegt keine unbeschädigte Kopie. Bitte "
                              "beenden Sie das Programm und legen Sie eine Sicherungskopie von "
                              "einem anderen Datenträger unter ihrem Namen ab.",
             schaden.english + "There is no sound copy in the folder Sicherung. Please end the "
                               "program and put a safety copy from another disk under its "
                               "name."},
            Critical, titel);
}

/// True for the operator's Yes. `befund` is empty for a database that is missing.
bool gewollt(const QString &befund, const SafetyCopy &kopie) {
    const bool fehlt = befund.isEmpty();
    const Text schaden = fehlt ? Text{QString("Die Datenbank %1 fehlt.\r\r").arg(datenbankName),
                                      QString("The database %1 is missing.\r\r").arg(datenbankName)}
                               : schadenText(befund);
    const Text bleibt = fehlt ? Text{".", "."}
                              : Text{"; die beschädigte Datei bleibt unter anderem Namen erhalten.",
                                     "; the damaged file is kept under another name."};
    const QString tag = datumText(kopie.day);
    return meldung({schaden.german +
                        QString("Die neueste unbeschädigte Sicherungskopie ist vom %1. Soll sie "
                                "eingesetzt werden? Was seitdem gespeichert wurde, fehlt darin")
                            .arg(tag) +
                        bleibt.german,
                    schaden.english +
                        QString("The newest sound safety copy is of %1. Shall it be put in place? "
                                "What was saved since is not in it")
                            .arg(tag) +
                        bleibt.english},
                   YesNo + Critical + SecondButtonDefault,
                   fehlt ? Text{"Datenbank fehlt", "Database Missing"} : titel) == Yes;
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
    Text eingesetzt{QString("Die Sicherungskopie vom %1 ist eingesetzt.").arg(tag),
                    QString("The safety copy of %1 is in place.").arg(tag)};
    if (!abgelegt.isEmpty()) {
        eingesetzt.german +=
            QString("\rDie beschädigte Datenbank liegt als %1 daneben.").arg(abgelegt);
        eingesetzt.english += QString("\rThe damaged database lies beside it as %1.").arg(abgelegt);
    }
    meldung(eingesetzt, Information, titel);
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
    const bool fehlt = !QFileInfo::exists(datenbankName); // told when it did not open
    const QString befund = fehlt ? QString() : Datenbank::damageIn(datenbankName);
    if (!fehlt) {
        gDatenbankzustand =
            befund.isEmpty() ? Datenbankzustand::Heil : Datenbankzustand::Beschädigt;
        if (befund.isEmpty())
            return false;
    }
    const std::optional<SafetyCopy> kopie = newestSoundCopy(".");
    if (kopie)
        return gewollt(befund, *kopie) && einsetzen(*kopie);
    if (gDatenbank.isOpen())
        ohneKopieMelden(befund);
    return false; // what to do with one that did not open was told then
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
