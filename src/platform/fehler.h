// The one exception of the program: a number that the flows know and a text that a person can
// act on.
#pragma once

#include <exception>

#include "platform/text.h"

namespace platform {

class Fehler : public std::exception {
  public:
    Fehler(int number, Text text);

    int number() const { return mNumber; }
    const Text &text() const { return mText; }
    /// Number and German text in UTF-8, for logs of tests and of the command line.
    const char *what() const noexcept override { return mWhat.constData(); }

  private:
    int mNumber;
    Text mText;
    QByteArray mWhat;
};

/// Numbers that flows test for, or that a box shows.
namespace fehlernummer {
inline constexpr int Overflow = 6;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int UserInterrupt = 18;
inline constexpr int FileNotFound = 53;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathAccess = 75;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int LayoutBroken = 321;
inline constexpr int NoSuchScreen = 401;
inline constexpr int PrinterError = 482;
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int DuplicateKey = 3022;
inline constexpr int DatabaseNotFound = 3024;
inline constexpr int ReadOnly = 3027;
inline constexpr int DatabaseLocked = 3045;
inline constexpr int MissingTable = 3078;
inline constexpr int StatementFailed = 3075;
inline constexpr int MissingColumn = 3265;
inline constexpr int DatabaseDamaged = 3343;
inline constexpr int DatabaseNotOpen = 3420;
inline constexpr int PortIsOpen = 8000;
inline constexpr int NoSuchPort = 8002;
inline constexpr int PortInUse = 8005;
inline constexpr int PortNotOpen = 8018;
inline constexpr int PortSettings = 8012;
inline constexpr int PortLost = 8020;
inline constexpr int LineBusy = 8021;
} // namespace fehlernummer

} // namespace platform

using platform::Fehler;
using platform::Text;
