#include "platform/fehler.h"

namespace platform {

Fehler::Fehler(int number, Text text)
    : mNumber(number),
      mText(std::move(text)),
      mWhat(QByteArray::number(mNumber) + ' ' + mText.german.toUtf8()) {}

} // namespace platform
