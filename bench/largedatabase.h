// A database as it looks after decades: 50 000 protocols with a million measured values, 20 000
// customers, 60 000 units, 2 000 recipes, besides the rows of the demo.
#pragma once

#include <QString>

namespace bench {

/// The directory holds such a database when this returns; it is made if there is none, which takes
/// some seconds.
void prepareLargeDatabase(const QString &directory);

} // namespace bench
