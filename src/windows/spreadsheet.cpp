#include "windows/spreadsheet.h"

#include <QDesktopServices>
#include <QUrl>

namespace platform {

namespace {
std::function<bool(const QString &)> fileOpener;
} // namespace

bool openFile(const QString &path) {
    return fileOpener ? fileOpener(path) : QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void setFileOpener(std::function<bool(const QString &path)> opener) {
    fileOpener = std::move(opener);
}

} // namespace platform
