#include "windows/filechoice.h"

#include <QFileDialog>

namespace platform {

namespace {
std::function<QString(const QString &)> fileChooser;
} // namespace

QString chooseFile(QWidget &over, const QString &title, const QString &folder,
                   const QString &filter) {
    return fileChooser ? fileChooser(filter)
                       : QFileDialog::getOpenFileName(&over, title, folder, filter);
}

void setFileChooser(std::function<QString(const QString &)> chooser) {
    fileChooser = std::move(chooser);
}

} // namespace platform
