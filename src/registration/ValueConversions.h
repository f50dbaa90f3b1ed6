#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

namespace kartella {

// Conversions of option texts and bound values to numbers, dates and truth values. A
// text that isn't of the wanted kind throws kartella::Error 13 (type mismatch), a number
// out of range Error 6 (overflow); nothing is ever guessed.

[[noreturn]] void raiseTypeMismatch(const QString& what);
[[noreturn]] void raiseOverflow(const QString& what);

// A date stored as "yyyy mm dd" (2024 03 05).
QDate toStoredDate(const QString& text);
// The text form of a date as it is stored: "yyyy mm dd".
QString storedDateText(const QDate& date);

// A number (0 false, any other true) or "True"/"False".
bool toTruthValue(const QString& text);

// A 16-bit integer from number text; a fraction rounds half to even.
qint16 toInteger16(const QString& text);
// A 32-bit integer from a bound value: a number, or number text. Null and empty text are
// a type mismatch.
qint32 toLong(const QVariant& value);
// The number at the start of the text, whole part only (text that doesn't start with a
// number gives 0), as a 16-bit integer.
qint16 leadingInteger16(const QString& text);

// A number as text with the leading blank of a positive number (" 12", "-3").
QString numberWithSignPlace(qint64 number);

} // namespace kartella
