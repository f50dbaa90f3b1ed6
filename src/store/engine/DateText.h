#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringView>
#include <QTime>
#include <QVariant>

#include <cstddef>

namespace kartella::engine {

// Dates as the engine stores, reads and accepts them.

// A year written with two digits (its last two are taken), in the century that puts it
// nearest to today by the installed clock; a tie goes to the past. Every date read with a
// two-digit year goes by this one rule.
int yearNearToday(int twoDigitYear);
// A date read from a form with a two-digit year, moved into that century (day and month
// kept; 29 February becomes the 28th in a year that has none).
QDate inCenturyNearToday(const QDate& date);

// Stored form: "yyyy-MM-dd", or "yyyy-MM-dd HH:mm:ss" when there is a time.
QString isoText(const QDate& date);
QString isoText(const QDateTime& dateTime);

// Reads the stored form from UTF-8 bytes: the Julian day, and the time of day when the
// text has one. False when the text isn't in that form.
bool parseIsoBytes(const char* text, std::size_t size, qint64& julianDay, int& msecsOfDay, bool& hasTime);

// The inside of a Jet date literal #...#: month first ("3/5/2024", "3/5/2024 14:30:00",
// "3/5/2024 2:30 PM"; a two-digit year as yearNearToday reads it), whatever the locale, or ISO. Gives a
// QDate, or a QDateTime when a time is given; an invalid QVariant when the text is no date.
QVariant parseJetDate(QStringView text);

// Text that a user typed for a date, tried in this order: ISO and "yyyy.MM.dd" (each with
// an optional time), the short date form of the system's and of the application's locale,
// and "M/d/yyyy" (with an optional time). An invalid QVariant when none fits.
QVariant parseUserDate(const QString& text);

} // namespace kartella::engine
