// What a piece of code asked of the machine, counted for the whole process from its start.
#pragma once

namespace bench {

/// Calls of operator new, from any library.
long allocations();

/// Waits for the disk: calls of fsync and fdatasync.
struct Syncs {
    long count = 0;
    double seconds = 0;
};
Syncs syncs();

} // namespace bench
