// torvena-bench [DIR] [--benchmark_...]: DIR keeps the large database from run to run.
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "figures.h"
#include "largedatabase.h"
#include "largeplace.h"

QString bench::largeDirectory;

int main(int argc, char *argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QTemporaryDir own(QDir::current().absoluteFilePath("torvena-bench-XXXXXX"));
    bench::largeDirectory = argc > 1 ? QDir(argv[1]).absolutePath() : own.path();
    bench::prepareLargeDatabase(bench::largeDirectory);
    benchmark::RunSpecifiedBenchmarks();
    bench::writeFigures();
    return testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}
