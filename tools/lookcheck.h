// What can be measured of a screen's look: whether it fits, whether a caption is cut.
#pragma once

#include <QStringList>

class QWidget;

namespace lookcheck {

/// The largest window that an operator's screen of 1366 × 768 takes.
inline constexpr int widest = 1340, highest = 670;

/// One line a fault: what is larger than the screen, and which visible caption does not fit its
/// place.
QStringList faults(const QWidget &window);

} // namespace lookcheck
