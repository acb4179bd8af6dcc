#include "platform/program.h"

#include <QCoreApplication>

#include <algorithm>
#include <string_view>

namespace platform {

QString programVersion() {
    return TORVENA_VERSION;
}

void introduce(const QString &name, QCommandLineParser &parser) {
    QCoreApplication::setApplicationName(name);
    QCoreApplication::setApplicationVersion(programVersion());
    parser.addHelpOption();
    parser.addVersionOption();
}

bool asksForWords(int argc, const char *const *argv) {
    return std::any_of(argv, argv + argc, [](std::string_view word) {
        return word == "-h" || word == "--help" || word == "--help-all" || word == "-v" ||
               word == "--version";
    });
}

} // namespace platform
