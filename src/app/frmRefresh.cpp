#include "app/frmRefresh.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#include "app/datenbanktausch.h"
#include "platform/files.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/databasecopy.h"
#include "store/swap.h"
#include "windows/filechoice.h"
#include "windows/msgbox.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"", "Update Database"},     {"laDb_neu", "&Update file:"},
    {"pbSearch", "&Search ..."}, {"pbUpdateDb", "Update &Database"},
    {"pbexit", "&Cancel"},
};

Text kennung(const char *stelle) {
    return {QString("Mitteilung %1 - ").arg(stelle), QString("ERROR %1 - ").arg(stelle)};
}

void melden(const char *stelle, const Fehler &fehler) {
    fehlerBox(kennung(stelle), fehler);
}

/// Tells what kept a table from being copied, for the next one to go on. What undid all of it, or
/// was asked for, does not stay here, nor does damage, behind which the engine writes no more.
template <class Kopieren>
void anweisung(const char *stelle, RowCopy &kopie, Kopieren kopieren) {
    try {
        kopieren();
    } catch (const Fehler &fehler) {
        if (fehler.number() == fehlernummer::UserInterrupt ||
            fehler.number() == fehlernummer::DatabaseDamaged || !kopie.whole())
            throw;
        melden(stelle, fehler);
    }
}

} // namespace

frmRefresh::frmRefresh() {
    ui.setupUi(this);
    on(ui.txtDb_neu, &QLineEdit::textChanged, [this] { freigeben(); });
    onClick(ui.pbSearch, [this] { pbSearch_Click(); });
    onClick(ui.pbUpdateDb, [this] { pbUpdateDb_Click(); });
    onClick(ui.pbexit, [this] { pbexit_Click(); });
    onEnter(ui.txtDb_neu,
            [this] { (ui.pbUpdateDb->isEnabled() ? ui.pbUpdateDb : ui.pbSearch)->setFocus(); });
    onEscape([this] { pbexit_Click(); });
}

void frmRefresh::Form_Load() {
    beschriftungenSetzen(ui, *this, english);
    mOrdner = QDir::currentPath();
    const QString neu = QDir(mOrdner).filePath(gelieferteDatenbank);
    if (QFileInfo::exists(neu))
        ui.txtDb_neu->setText(QDir::toNativeSeparators(neu));
    arbeitZeigen(false);
    (ui.pbUpdateDb->isEnabled() ? ui.pbUpdateDb : ui.pbSearch)->setFocus();
}

// While rows are being copied closing is a cancel.
bool frmRefresh::Form_QueryUnload() {
    mAbbruch = true;
    return !mKopiert;
}

void frmRefresh::pbexit_Click() {
    if (mKopiert)
        mAbbruch = true;
    else
        unload();
}

void frmRefresh::freigeben() {
    ui.pbUpdateDb->setEnabled(!mKopiert && !ui.txtDb_neu->text().isEmpty());
    ui.pbSearch->setEnabled(!mKopiert);
    ui.txtDb_neu->setEnabled(!mKopiert);
}

void frmRefresh::arbeitZeigen(bool läuft) {
    mKopiert = läuft;
    ui.ProgressBar1->setValue(0);
    ui.ProgressBar1->setEnabled(läuft);
    if (läuft) {
        mAbbruch = false;
        mGezeigt.invalidate();
        ui.pbexit->setFocus();
    } else {
        schrittZeigen({});
    }
    freigeben();
}

void frmRefresh::schrittZeigen(const Text &text) {
    ui.laTabelle->setText(inSprache(text));
}

/// Shows what was changed and takes what the person does, ten times a second.
bool frmRefresh::weiter() {
    constexpr int abstand = 100; // ms
    if (!mGezeigt.isValid() || mGezeigt.elapsed() >= abstand) {
        QCoreApplication::processEvents();
        mGezeigt.start();
    }
    return !mAbbruch && gDesktopAktiv && !unloaded();
}

bool frmRefresh::fortschritt(const CopyState &stand) {
    constexpr qlonglong striche = 1000;
    if (stand.total > 0)
        ui.ProgressBar1->setValue(static_cast<int>(stand.done * striche / stand.total));
    const QLocale zahlen(inDeutsch() ? QLocale::German : QLocale::English);
    const QString tabelle = stand.table;
    const QString zeilen = zahlen.toString(stand.rows);
    schrittZeigen({QString("Tabelle %1, %2 Zeilen").arg(tabelle, zeilen),
                   QString("Table %1, %2 rows").arg(tabelle, zeilen)});
    return weiter();
}

void frmRefresh::pbSearch_Click() try {
    const QString datei =
        chooseFile(*this, caption(), mOrdner, QString(".mdb (%1)").arg(gelieferteDatenbank));
    if (!datei.isEmpty())
        ui.txtDb_neu->setText(QDir::toNativeSeparators(datei));
} catch (const Fehler &fehler) {
    melden("R_01", fehler);
}

void frmRefresh::pbUpdateDb_Click() try {
    const QString quelle = QDir::fromNativeSeparators(ui.txtDb_neu->text());
    QDir::setCurrent(mOrdner);
    gUpdateBeimBeenden = false; // what an earlier one has filled is filled anew
    {
        arbeitZeigen(true);
        const auto fertig = qScopeGuard([this] { arbeitZeigen(false); });
        schrittZeigen({"Die neue Datenbank wird kopiert.", "The new database is being copied."});
        copyDatabase(quelle, gefüllteDatenbank, [this] { return weiter(); });
        if (fnc_SecCopy())
            fnc_CopyTableContent();
    }
    if (!gUpdateBeimBeenden) {
        ui.pbSearch->setFocus();
        return;
    }
    if (meldung({"Bitte starten Sie das Programm neu, um die aktualisierte Datenbank zu "
                 "aktivieren! ",
                 "To activate the new database restart the program, please!"},
                OKCancel + Exclamation, {"Achtung!", "Restart"}) == OK)
        unload();
    else
        gUpdateBeimBeenden = false;
} catch (const Fehler &fehler) {
    if (fehler.number() != fehlernummer::UserInterrupt)
        melden("R_09", fehler);
    ui.pbSearch->setFocus();
}

/// Without one nothing goes on: what the version leaves behind would be nowhere.
bool frmRefresh::fnc_SecCopy() try {
    schrittZeigen({"Die Sicherungskopie wird angelegt.", "The safety copy is being made."});
    safetyCopy(datenbankName, [this] { return weiter(); });
    return true;
} catch (const Fehler &fehler) {
    if (fehler.number() != fehlernummer::UserInterrupt)
        melden("R_02", fehler);
    removeFile(gefüllteDatenbank);
    return false;
}

void frmRefresh::fnc_CopyTableContent() try {
    CopyRecord übernommen;
    quint32 stand = 0;
    try {
        stand = gDatenbank.changeMark();
        RowCopy kopie(datenbankName, gefüllteDatenbank,
                      [this](const CopyState &zustand) { return fortschritt(zustand); });
        const QString version = kopie.version();
        kopie.announce(kopie.tables());
        if (version == "203") {
            version203Kopieren(kopie);
        } else if (version == "470") {
            fnc_CopyTableContent_v470(kopie);
        } else {
            fnc_CopyTableContent_nkd(kopie);
            fnc_CopyTableContent_v301(kopie);
        }
        übernommen = kopie.finish();
    } catch (const Fehler &) {
        removeFile(gefüllteDatenbank);
        throw;
    }
    tauschVormerken(übernommen, stand);
    if (!übernommen.otherUncertainties.isEmpty())
        abweichendeUnsicherheitMelden(übernommen.otherUncertainties);
} catch (const Fehler &fehler) {
    if (fehler.number() == fehlernummer::UserInterrupt)
        return;
    if (fehler.number() != fehlernummer::MissingTable) {
        return fehlerBox({"Fehler R_10 - ", "ERROR R_10 - "}, fehler,
                         {"Mitteilung!", "Attention!"});
    }
    fehlerMerken(fehler);
    meldung({"Die ausgewählte Datenbank ist keine Update-Datenbank.\rDas Update kann nicht "
             "ausgeführt werden!",
             "The chosen database can not be used for updating the database.\rChoose another "
             "database (on the update disc)!"},
            Exclamation, {"Achtung!", "Attention!"});
}

void frmRefresh::version203Kopieren(RowCopy &kopie) {
    if (fnc_CopyTableContent_nkd(kopie) || !fnc_TableSystemExists())
        fnc_CopyTableContent_v203(kopie);
    else
        fnc_CopyTableContent_v301(kopie);
}

void frmRefresh::fnc_CopyTableContent_v203(RowCopy &kopie) {
    for (const char *tabelle : {"Ergometer", "Interface", "Kunden", "Protokoll", "Rezepte"})
        anweisung("R_04", kopie, [&] { kopie.add(tabelle); });
    anweisung("R_04", kopie, [&] { kopie.addRecipeNamesOf203(); });
}

void frmRefresh::fnc_CopyTableContent_v301(RowCopy &kopie) {
    for (const char *tabelle : {"Blutdruck", "Blutdruck_temp", "Ergometer", "Interface", "Kunden",
                                "Messwerte", "Messwerte_temp", "Protokoll", "Protokoll_temp",
                                "Rezepte", "Rezeptnamen", "SecControl", "SecControl_temp"})
        anweisung("R_05", kopie, [&] { kopie.add(tabelle); });
    for (const char *tabelle : {"System", "Toleranzen"}) // the old ones take their place
        anweisung("R_05", kopie, [&] { kopie.replace(tabelle); });
}

/// All that both files have, each key as it was.
void frmRefresh::fnc_CopyTableContent_v470(RowCopy &kopie) {
    for (const QString &tabelle : kopie.tables())
        anweisung("R_08", kopie, [&] { kopie.replace(tabelle); });
    anweisung("R_08", kopie, [&] { kopie.addDeliveredCalibration(); });
}

bool frmRefresh::fnc_CopyTableContent_nkd(RowCopy &kopie) {
    bool eine = false;
    anweisung("R_06", kopie, [&] { eine = kopie.addCalibration(); });
    return eine;
}

/// A table that is not there is an answer and no failure.
bool frmRefresh::fnc_TableSystemExists() try {
    gDatenbank.open("SELECT Version FROM System");
    return true;
} catch (const Fehler &fehler) {
    if (fehler.number() != fehlernummer::MissingTable &&
        fehler.number() != fehlernummer::MissingColumn)
        melden("R_07", fehler);
    return false;
}

void frmRefresh::abweichendeUnsicherheitMelden(const QStringList &tabellen) {
    const QString namen = tabellen.join(", ");
    meldung({"Die Messunsicherheiten der bisherigen Datenbank weichen von den ausgelieferten ab "
             "und wurden übernommen: " +
                 namen,
             "The uncertainties of the database in use differ from the delivered ones and were "
             "taken over: " +
                 namen},
            Information, {"Mitteilung!", "Attention!"});
}
