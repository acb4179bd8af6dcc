// Digits, frames and byte streams of the controller line, without the line.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

/// The four digits of a set-point: speed in 1/min times 35, cut to a whole number, padded with
/// zeros. A decimal comma counts as a point. Above 285.7 1/min there are more than four. The digits
/// are written back into the text.
QString fnc_DrehzahlZiffern(QString &text);

/// Command letter, direction sign ("-" for Rechtslauf, else a blank), digits.
QString frameText(const QString &command, std::int16_t direction, QString value);

/// Two upper-case hex digits for each byte.
QString fnc_HexString(const QByteArray &bytes);

/// The bytes of a line to the ergometer. A decimal code in brackets is the character of that code:
/// "W000[13]" ends in a carriage return. An unclosed "[" vanishes and leaves its digits. Raises
/// TypeMismatch for what cannot be read as a code.
QByteArray zeilenbytes(const QString &text);
/// The same, trapped: reported in a box, and the result is empty.
QByteArray fnc_Transformation(const QString &text);

/// Reads the frequency stream until the shaft turns slower than half a revolution per second.
class FrequenzDecoder {
  public:
    /// True when the byte completed a value below the limit.
    bool feed(std::uint8_t byte);
    /// The value that ended the reading, in thousandths of a hertz.
    int value() const { return mValue; }

    static constexpr int limit = 500;

  private:
    int mState = 0;
    int mStep = 0;
    int mValue = 0;
};
