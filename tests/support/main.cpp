#include <QApplication>
#include <QDir>

#include <gtest/gtest.h>

#include "windows/stil.h"

int main(int argc, char *argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QDir::homePath().toUtf8());
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    platform::stilAnwenden(application);
    return RUN_ALL_TESTS();
}
