#include "windows/layout.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <kainjow/mustache.hpp>

#include "platform/fehler.h"

namespace platform {

namespace {

namespace mustache = kainjow::mustache;

constexpr int deepest = 4; // files that take in files

Fehler broken(const QString &place, const QString &german, const QString &english) {
    return {fehlernummer::LayoutBroken, {place + ": " + german, place + ": " + english}};
}

std::string escaped(const std::string &value) {
    QString text = QString::fromStdString(value).toHtmlEscaped();
    text.replace("\r\n", "\n").replace('\r', '\n').replace('\n', "<br/>");
    // Blanks that HTML would drop, and no number of a page in a value.
    static const QRegularExpression dropped("(^|(?<=[ >])) ");
    text.replace(dropped, "&nbsp;").replace('@', "&#64;");
    return text.toStdString();
}

mustache::data given(const QString &value) {
    // An empty text counts as true in a section; here it does not.
    return value.isEmpty() ? mustache::data(mustache::data::type::bool_false)
                           : mustache::data(value.toStdString());
}

mustache::data objectOf(const QStringList &columns, const LayoutFields &fields) {
    mustache::data object{mustache::data::type::object};
    for (const QString &name : columns)
        object.set(name.toStdString(), given(fields.value(name)));
    return object;
}

} // namespace

Layout::Layout(const QString &path) {
    QStringList open;
    take(path, open, 0);
}

// Appends the file, with those that it takes in where it names them.
void Layout::take(const QString &path, QStringList &open, int depth) {
    QFile file(path);
    const QFileInfo info(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        throw Fehler(fehlernummer::FileNotFound,
                     {"Die Datei " + path + " fehlt oder kann nicht gelesen werden.",
                      "The file " + path + " is missing or cannot be read."});
    }
    const QString text = QString::fromUtf8(file.readAll());
    const qsizetype openBefore = open.size();
    qsizetype taken = 0, counted = 0, line = 1;
    static const QRegularExpression tag(R"(\{\{(\{|[#^/>!&=]?)\s*(.*?)\s*(\}\}|\z))",
                                        QRegularExpression::DotMatchesEverythingOption);
    for (auto found = tag.globalMatch(text); found.hasNext();) {
        const auto match = found.next();
        const QString kind = match.captured(1), name = match.captured(2);
        line += QStringView(text).mid(counted, match.capturedStart() - counted).count(u'\n');
        counted = match.capturedStart();
        const QString place = QString("%1, %2").arg(info.fileName()).arg(line);
        // A brace that is missing takes in what stands behind it.
        static const QRegularExpression beyond("[{}\\n]");
        const bool more = kind != "!" && name.contains(beyond);
        if (match.captured(3).isEmpty() || more)
            throw broken(place, "Ein Feld ist nicht geschlossen.", "A field is not closed.");
        if (kind == "{" || kind == "&" || kind == "=") {
            throw broken(place, "Felder werden nur als {{Name}} geschrieben.",
                         "Fields are written as {{name}} only.");
        }
        if (kind == ">") {
            if (depth == deepest) {
                throw broken(place, "Die Dateien holen einander herein.",
                             "The files take in each other.");
            }
            mText += text.mid(taken, match.capturedStart() - taken);
            taken = match.capturedEnd();
            take(info.dir().filePath(name), open, depth + 1);
        } else if (kind == "/") {
            if (open.size() == openBefore || open.takeLast() != name) {
                throw broken(place, "{{/" + name + "}} schließt keinen Abschnitt.",
                             "{{/" + name + "}} closes no section.");
            }
        } else if (kind != "!") {
            mTags.push_back({kind.isEmpty() ? QChar(' ') : kind[0], name, open, place});
            if (!kind.isEmpty()) {
                open += name;
                mSections += name;
            }
        }
    }
    if (open.size() > openBefore) {
        const auto opened = std::find_if(mTags.rbegin(), mTags.rend(), [&](const Tag &one) {
            return one.kind != ' ' && one.name == open.last();
        });
        throw broken(opened->place, "Der Abschnitt {{#" + open.last() + "}} ist nicht geschlossen.",
                     "The section {{#" + open.last() + "}} is not closed.");
    }
    mText += text.mid(taken);
}

QString Layout::filled(const LayoutData &data) const {
    for (const Tag &tag : mTags) {
        const auto holds = [&](const QString &section) {
            return data.lists.value(section).columns.contains(tag.name);
        };
        const bool known = data.fields.contains(tag.name) ||
                           (tag.kind != ' ' && data.lists.contains(tag.name)) ||
                           std::any_of(tag.sections.begin(), tag.sections.end(), holds);
        if (!known) {
            throw broken(tag.place, "Das Feld " + tag.name + " gibt es nicht.",
                         "There is no field " + tag.name + '.');
        }
    }
    mustache::mustache layout(mText.toStdString());
    if (!layout.is_valid()) { // nothing that the scan lets pass is known to come here
        const QString reason = QString::fromStdString(layout.error_message());
        throw Fehler(fehlernummer::LayoutBroken, {reason, reason});
    }
    layout.set_custom_escape(escaped);
    mustache::data all = objectOf(data.fields.keys(), data.fields);
    for (auto list = data.lists.begin(); list != data.lists.end(); ++list) {
        mustache::data rows{mustache::data::type::list};
        for (const LayoutFields &row : list->rows)
            rows.push_back(objectOf(list->columns, row));
        all.set(list.key().toStdString(), rows);
    }
    return QString::fromStdString(layout.render(all));
}

} // namespace platform
