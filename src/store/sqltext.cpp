#include "sqltext.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <fcntl.h>
#include <unistd.h>

#include <utility>

#include "fehler.h"

using namespace platform;

QString musterAusdruck(const QString &muster) {
    QString expression;
    QString letters; // escaped as one run, since a character may be a pair of them
    const auto endRun = [&] {
        expression += QRegularExpression::escape(std::exchange(letters, {}));
    };
    for (const QChar c : muster) {
        if (c != '*' && c != '?') {
            letters += c;
            continue;
        }
        endRun();
        if (c == '?')
            expression += '.';
        else if (!expression.endsWith(".*")) // one is enough, and many take very long
            expression += ".*";
    }
    endRun();
    return expression;
}

namespace {

QRegularExpression expressionFor(const QString &muster) {
    QRegularExpression pattern(QRegularExpression::anchoredPattern(musterAusdruck(muster)),
                               QRegularExpression::CaseInsensitiveOption |
                                   QRegularExpression::DotMatchesEverythingOption |
                                   QRegularExpression::UseUnicodePropertiesOption);
    pattern.optimize();
    return pattern;
}

} // namespace

bool passtZumMuster(const QString &muster, const QString &text) {
    // A query asks for one pattern row after row.
    static QString lastMuster;
    static QRegularExpression last = expressionFor(lastMuster);
    if (muster != lastMuster) {
        lastMuster = muster;
        last = expressionFor(muster);
    }
    return last.match(text).hasMatch();
}

QDate datumAus(const QString &iso) {
    return QDate::fromString(iso.left(10), Qt::ISODate);
}

QString datumText(const QDate &datum) {
    return datum.toString("dd.MM.yyyy");
}

void fnc_KommaZuPunkt(QString &text) {
    text.replace(',', '.');
}

QString fnc_OhnePunkt(const QString &text) {
    return QString(text).remove('.');
}

namespace {

class OpenFile {
  public:
    explicit OpenFile(const QString &path)
        : mDescriptor(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC)) {}
    ~OpenFile() {
        if (mDescriptor >= 0)
            ::close(mDescriptor);
    }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;
    bool ok() const { return mDescriptor >= 0; }
    /// Whether another process holds a lock on any byte, as the database engine does while in use.
    bool lockedByAnother() const {
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        return ::fcntl(mDescriptor, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    }

  private:
    int mDescriptor;
};

} // namespace

bool fnc_DateiGeöffnet(const QString &path) {
    if (!QFileInfo::exists(path)) {
        throw Fehler(fehlernummer::FileNotFound, {"Die Datei " + path + " wurde nicht gefunden.",
                                                  "The file " + path + " was not found."});
    }
    const OpenFile file(path);
    return !file.ok() || file.lockedByAnother();
}
