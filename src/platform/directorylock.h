// A directory in which one process at a time works.
#pragma once

#include <QString>

namespace platform {

/// Held until it is destroyed or the process is gone, however that ends: the system frees it.
class DirectoryLock {
  public:
    DirectoryLock() = default;
    ~DirectoryLock() { release(); }
    DirectoryLock(const DirectoryLock &) = delete;
    DirectoryLock &operator=(const DirectoryLock &) = delete;

    /// False when another process holds the directory. True also where it cannot be told, on a file
    /// system without locks or in a directory that cannot be written.
    bool take(const QString &directory);
    /// After a refusal: the process that holds it and its computer, "1234 (stand-2)"; empty when
    /// that is not known.
    QString holder() const { return mHolder; }
    void release();

  private:
    QString mPath;
    QString mHolder;
    int mFile = -1;
};

} // namespace platform
