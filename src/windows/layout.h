// A layout file filled with data: Mustache tags in the HTML that QTextDocument reads.
//
// Tags name fields ({{Kunde}}) and lists ({{#Bericht2}} … {{/Bericht2}}, once a row); {{#Field}}
// and
// {{^Field}} are for a field that is there or empty; {{>name.rpt}} takes in another file of the
// directory. Values are escaped, line ends kept. What a plain Mustache passes over in silence is a
// failure here, told with file and line: a name that does not exist, a section left open, a missing
// file, a raw tag.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

namespace platform {

using LayoutFields = QMap<QString, QString>;

struct LayoutList {
    QStringList columns;            ///< known names, also when there is no row
    std::vector<LayoutFields> rows; ///< a column that a row does not have is empty
};

struct LayoutData {
    LayoutFields fields;
    QMap<QString, LayoutList> lists;
};

class Layout {
  public:
    /// Reads the file and those that it takes in. Raises Fehler FileNotFound and LayoutBroken.
    explicit Layout(const QString &path);

    /// The names of all sections.
    const QStringList &sections() const { return mSections; }
    /// The text with the data. Raises LayoutBroken for a name that the data do not have.
    QString filled(const LayoutData &data) const;

  private:
    struct Tag {
        QChar kind; ///< '#', '^', or a blank for a field
        QString name;
        QStringList sections; ///< around it, outermost first
        QString place;        ///< file and line
    };
    void take(const QString &path, QStringList &open, int depth);

    QString mText;
    std::vector<Tag> mTags;
    QStringList mSections;
};

} // namespace platform
