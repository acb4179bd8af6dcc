#include "records/berichtsdateien.h"

#include <QDir>
#include <QFileInfo>

#include "platform/clock.h"
#include "platform/fehler.h"
#include "records/bericht.h"
#include "records/system.h"

namespace {

/// That of this session, and that of the next run.
QStringList gewählteOrdner() {
    QStringList ordner{gPDFOrdner};
    try {
        ordner += druckereinstellung().ordner;
    } catch (const Fehler &) { // the number is free all the same
    }
    ordner.removeAll({});
    ordner.removeDuplicates();
    return ordner;
}

void ablegen(const QFileInfo &datei) {
    const QDir ersetzt(datei.dir().filePath("ersetzt"));
    if (!datei.isFile() || !ersetzt.mkpath("."))
        return;
    const QString stamm = ersetzt.filePath(datei.completeBaseName() +
                                           platform::now().toString("_yyyy-MM-dd_HH-mm-ss-zzz"));
    QString name = stamm + '.' + datei.suffix();
    for (int noch = 2; QFileInfo::exists(name); ++noch)
        name = QString("%1_%2.%3").arg(stamm).arg(noch).arg(datei.suffix());
    QFile::rename(datei.filePath(), name);
}

} // namespace

QString protokollordner(const QString &ordner, Schlüssel protokollID) {
    return QDir(ordner).filePath("PDF/" + QString::number(protokollID));
}

void seitenAblegen(Schlüssel protokollID) {
    for (const QString &ordner : gewählteOrdner()) {
        const QString stamm =
            protokollordner(ordner, protokollID) + '/' + QString::number(protokollID);
        for (const Seitendaten &seite : seitendaten()) {
            for (const QString &endung : {seite.datei.german, seite.datei.english})
                ablegen(QFileInfo(stamm + endung));
        }
    }
}
