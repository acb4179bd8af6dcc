#include "link/frames.h"

#include "platform/fehler.h"
#include "platform/runtime.h"
#include "session/sprache.h"

using namespace platform;

namespace {
constexpr double digitsPerRpm = 35;
}

QString fnc_DrehzahlZiffern(QString &text) {
    fnc_KommaZuPunkt(text);
    text = QString::number(Int(Val(text) * digitsPerRpm), 'f', 0).rightJustified(4, '0');
    return text;
}

QString frameText(const QString &command, std::int16_t direction, QString value) {
    return command + (direction == 1 ? '-' : ' ') + fnc_DrehzahlZiffern(value);
}

QString fnc_HexString(const QByteArray &bytes) {
    return QString::fromLatin1(bytes.toHex().toUpper());
}

QByteArray zeilenbytes(const QString &text) {
    QString output;
    QString before;
    qsizetype start = -1; // of the digits; no bracket has opened yet
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '[') {
            start = i + 1;
            before = output;
        } else if (text[i] == ']') {
            bool ok = false;
            const int code = start < 0 ? -1 : text.mid(start, i - start).toInt(&ok);
            if (!ok || code < 0 || code > 255) {
                throw Fehler(fehlernummer::TypeMismatch,
                             {"Zwischen den Klammern steht kein Zeichencode: " + text,
                              "There is no character code between the brackets: " + text});
            }
            output = before + QChar(code);
        } else {
            output += text[i];
        }
    }
    return output.toLatin1();
}

QByteArray fnc_Transformation(const QString &text) try {
    return zeilenbytes(text);
} catch (const Fehler &fehler) {
    fehlerBox("mSI 4 - ", fehler);
    return {};
}

bool FrequenzDecoder::feed(std::uint8_t byte) {
    switch (mState) {
    case 0:
        if (byte == 0xFF)
            mState = 1;
        return false;
    case 1:
        mState = byte == 0xFB ? 2 : 0;
        mStep = 0;
        return false;
    default:
        break;
    }
    switch (mStep) {
    case 0:
        mValue = byte * 256;
        mStep = 1;
        return false;
    case 1:
        mValue += byte;
        mStep = 2;
        return false;
    case 2:
        if (byte == 0xFF)
            mStep = 3;
        return false;
    default:
        // The mark behind the value is the next record's head. It confirms a low value; after a
        // high one the step stays here, so the next record falls out of step and is passed over.
        if (byte != 0xFB)
            mState = 0;
        else if (mValue < limit)
            return true;
        else
            mValue = 0;
        return false;
    }
}
