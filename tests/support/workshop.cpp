#include "workshop.h"

#include <QDir>

#include <utility>

#include "app/start.h"
#include "boxtexts.h"
#include "link/anschluss.h"
#include "link/controller.h"
#include "link/einlauf.h"
#include "link/ergometer.h"
#include "platform/runtime.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/scripts.h"

namespace support {

using namespace platform;

Workshop::Workshop()
    : previousDirectory(QDir::currentPath()), clock(TestClock::install()), line(clock) {
    QDir::setCurrent(directory.path());
    setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    legeDatenbankAn(datenbankName, true);
    forgetSession();
    gSprache = 1;
    if (givenLanguage != 1)
        setLanguage(givenLanguage);
    gDesktopAktiv = true;
    controllerVorbereiten();
    einlaufVorbereiten();
    ergometerVorbereiten();
    setBeeper([this] { ++beeps; });
}

Workshop::~Workshop() {
    setBeeper({});
    programmAufräumen();
    QDir::setCurrent(previousDirectory);
    givenLanguage = 1;
    givenRow.clear();
}

void Workshop::forgetSession() {
    gDrehrichtung = 0;
    gMessStatus = {};
    gFormStatus = {};
    gEinlaufStatus = {};
    gDesktopFolge = {};
    gMessenFreigabe = gMessungLäuft = gMessenAktiv = gTimeoutTimer1 = gSS1Vorhanden = false;
    gSS1Geprüft = gSS2Geprüft = 0;
    MSComm2.setPortOpen(false);
    MSComm2.setCommPort(4);
    MSComm2.setSettings("4800,N,8,1");
    gSS2Vorhanden = gTimeoutSS2 = gEPModus = gToleranzOK = false;
    gEPProtokollID = gEPRezeptID = gEPZähler = 0;
    gKundenID = gGerätID = gRezeptID = gToleranzID = 0;
    gEinlaufzeit = gEinlaufLeistung = 0;
    gBerichtProtokoll = 0;
    gBerichtAntwort = 0;
    gPrüfer.clear();
    gProduktTitel.clear();
    gSeriennummer.clear();
    gNKGerätetyp.clear();
    gHebelarmDatum = gHebelarmFällig = gKalibrierdatum = {};
    kundeWählen({}, 0);
    gerätWählen({}, {});
    rezeptWählen({});
    normalZeigen({});
    datumZeigen({});
}

QStringList Workshop::column(const QString &sql, const Datenbank::Params &params) {
    const Recordset rows = gDatenbank.open(sql, params);
    QStringList values;
    for (int row = 0; row < rows.count(); ++row)
        values += rows.at(row, 0).toString();
    return values;
}

QString Workshop::grid(const QString &sql, const Datenbank::Params &params) {
    QStringList rows;
    for (Recordset all = gDatenbank.open(sql, params); !all.atEnd(); all.moveNext()) {
        QStringList cells;
        for (int cell = 0; cell < all.columns().size(); ++cell)
            cells += all[cell].isNull() ? "NULL" : all[cell].text();
        rows += cells.join('|');
    }
    return rows.join('+');
}

void Workshop::change(const QString &sql, const Datenbank::Params &params) {
    Datenbank other;
    other.openFile(datenbankName);
    if (sql.contains("DROP COLUMN")) {
        for (const char *what : {"neu", "geändert", "gelöscht"})
            other.execute("DROP TRIGGER IF EXISTS Nachweis_" + sql.section(' ', 2, 2) + '_' + what);
    }
    other.execute(sql, params);
}

void Workshop::spoil(const QString &event, const QString &table) {
    if (event == "SELECT") {
        change("ALTER TABLE " + table + " RENAME TO fort");
        unreadable = table;
        return;
    }
    change("CREATE TRIGGER fest BEFORE " + event + " ON " + table +
           " BEGIN SELECT RAISE(ABORT, 'x'); END");
}

void Workshop::mend() {
    change(unreadable.isEmpty() ? QString("DROP TRIGGER fest")
                                : "ALTER TABLE fort RENAME TO " + std::exchange(unreadable, {}));
}

void Workshop::setLanguage(int language) {
    change("UPDATE System SET Sprache = ?", {language});
    setNumberLocale(language == 1 ? QLocale(QLocale::German, QLocale::Germany)
                                  : QLocale(QLocale::English, QLocale::UnitedStates));
    gSprache = static_cast<std::int16_t>(language);
}

bool Workshop::english() {
    return gSprache == 2;
}

namespace {

/// The row of the key, its text filled with what stands in the brackets behind it.
std::pair<KnownBox, QString> known(const QString &written) {
    const QString key = written.section('(', 0, 0);
    for (const KnownBox &box : boxTexts) {
        if (key != box.key)
            continue;
        QString text = inSprache({box.german, box.english});
        const QString inside = written.section('(', 1).chopped(written.contains('(') ? 1 : 0);
        for (const QString &word : text.contains("%2") ? inside.split(", ") : QStringList{inside})
            text = text.contains("%1") || text.contains("%2") ? text.arg(word) : text;
        return {box, text};
    }
    throw std::runtime_error("no box " + written.toStdString());
}

} // namespace

void Workshop::expectKnown(const QString &key, int answer, std::function<void()> meanwhile) {
    const auto [box, text] = known(key);
    QString title = inSprache({box.title, box.titleEnglish});
    if (key.contains('('))
        title.replace("%1", key.section('(', 1).chopped(1));
    boxes.expect(text, title, box.flags, answer, std::move(meanwhile));
}

void Workshop::allowKnown(const QString &key, int answer) {
    boxes.allow(known(key).second, answer);
}

void Workshop::run(Journey journey) {
    support::run(clock, std::move(journey), [] { gDesktopAktiv = false; });
}

} // namespace support
