// What stands in a zipped file, as a workbook is one, read by another program's means.
#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "cases.h"

namespace support {

class Parts {
  public:
    explicit Parts(const QString &path) {
        QProcess tar;
        tar.setWorkingDirectory(mFolder.path());
        tar.start("cmake", {"-E", "tar", "xf", path});
        EXPECT_TRUE(tar.waitForFinished() && tar.exitCode() == 0) << path;
    }
    QString operator[](const QString &name) const {
        QFile file(mFolder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }

  private:
    QTemporaryDir mFolder;
};

} // namespace support
