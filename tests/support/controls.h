// All that a screen shows in words.
#pragma once

#include <QStringList>

#include "operate.h"

namespace support {

using namespace operate;

/// All captions of the screen, of menus, headings and hints too, for looking for left-over German.
QStringList visibleTexts(const Screen &screen);

} // namespace support
