// Windows in which a report is looked at. They stand beside the screens and are none of them: they
// move no front, activate nothing, and the program goes on underneath.
#pragma once

#include <functional>

#include "platform/fehler.h"
#include "windows/print.h"

namespace platform {

struct PreviewTexts {
    QString print, save, close, pages, width, larger, smaller; ///< captions with their access keys
    QString pdfFiles;                                          ///< of the file dialog
    QString failed;                                    ///< title of the box that tells of a failure
    std::function<QString(const Fehler &fehler)> said; ///< its text
};
/// For the language in force.
void setPreviewTexts(std::function<PreviewTexts()> texts);

/// Opens one more window.
void showPreview(Report report);
/// The one opened last comes before the screens, with the keyboard; nothing without one.
void raisePreview();
void closePreviews();

} // namespace platform
