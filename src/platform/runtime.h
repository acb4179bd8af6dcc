// Numbers as text and text as numbers, by the rules that the whole program keeps.
//
// Two worlds meet here. Val and Str speak the language of statements and frames: a decimal point,
// whatever the locale. CDbl, CStr, IsNumeric and Format speak the language of the person: the
// number format set with setNumberLocale(), the user's own unless a program or test says otherwise.
#pragma once

#include <QLocale>
#include <QString>

namespace platform {

void setNumberLocale(const QLocale &locale);
const QLocale &numberLocale();

/// The leading number of the text with a decimal point; blanks, tabs and line ends are skipped.
/// Reading ends at the first other character, so "12,5" is 12 and "abc" is 0.
double Val(const QString &text);

/// The same where a comma is a decimal point as well: what was typed under either number format.
double ValBeider(const QString &text);

/// Replaces every "," by ".", in place.
void fnc_KommaZuPunkt(QString &text);

/// The text without any ".".
QString fnc_OhnePunkt(const QString &text);

/// Decimal point, up to 15 significant digits, one leading blank in place of a plus sign.
QString Str(double value);

/// As Str, with the decimal sign of the session and without the blank.
QString CStr(double value);

/// The number that stands in the text under the session's number format. A text with group
/// separators is no number: "0.700" could be meant as 0.7 where the comma is decimal. Raises
/// TypeMismatch when the text holds no number or more than one.
double CDbl(const QString &text);

/// True when CDbl would succeed.
bool IsNumeric(const QString &text);

/// Patterns "0", "00", "0.0", "0.00", "###", ...: digits before and behind the decimal sign; "0"
/// is always shown, "#" only when needed. Decimal halves are rounded away from zero.
QString Format(double value, const QString &pattern);

/// Rounds to `digits` decimals, halves to the even neighbour. Judged on the 15 significant decimal
/// digits of the value, so that binary noise does not decide: Round(2.5) = 2, Round(0.35, 1) = 0.4.
double Round(double value, int digits = 0);

/// The greatest whole number not above the value: Int(-0.5) = -1.
double Int(double value);

} // namespace platform

using platform::CDbl;
using platform::CStr;
using platform::fnc_KommaZuPunkt;
using platform::fnc_OhnePunkt;
using platform::Format;
using platform::Int;
using platform::IsNumeric;
using platform::Round;
using platform::Str;
using platform::Val;
using platform::ValBeider;
