// The help: pages of Markdown in a window with contents, search and a way back. The window stands
// beside the screens and is none of them: it moves no front, activates nothing, and the program
// goes on underneath.
//
// A page's first line, <!-- frmKunden frmNeuKunde -->, names the screens that it explains. The page
// index.md is the contents: its second headings are the chapters, its list entries link to pages.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace platform {

struct HelpTexts {
    QString title, back, forward, contents, close; ///< the last four with their access keys
    QString search;                                ///< in the empty field
    QString nothing;                               ///< where no page holds what was typed
};

struct HelpSource {
    QString pages;    ///< folder of the pages, NAME.md
    QString drawings; ///< folder of NAME-LANGUAGE.svg
    QString pictures; ///< folder of NAME.png; one that is missing is left out
    QString language; ///< "de" or "en"
    HelpTexts texts;
};
/// For the language in force.
void setHelpSource(std::function<HelpSource()> source);

/// One line of the contents: a chapter has no page.
struct HelpEntry {
    QString title, page;
};
std::vector<HelpEntry> helpContents(const QString &folder);
/// A page without its first line. Empty where there is none.
QString helpText(const QString &folder, const QString &page);
/// The page that explains a screen, "index" where none does.
QString helpPageOf(const QString &folder, const QString &screen);

/// Shows the page of a screen, in the window that is there or a new one. Raises FileNotFound where
/// there are no pages.
void showHelp(const QString &screen);
void closeHelp();

} // namespace platform
