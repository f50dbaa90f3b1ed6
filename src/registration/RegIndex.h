#pragma once

#include "platform/Clock.h"

#include <QDate>
#include <QString>
#include <QVariant>

#include <functional>

namespace kartella {

class Connection;
class Recordset;

// Registration indexes: mnemonic, Separator1, date, Separator2 and the number of the day,
// made from the options AutoRegIndex, UseMnemonic, IndexStyle, Separator1, Separator2,
// Date and TodayNumber, read at each call. Failed conversions and lookups throw
// kartella::Error (13 type mismatch, 6 overflow, 3021 no such category).

// The proposal for a category (a KategID, or empty text or Null when none is chosen: then
// the index has no mnemonic). Empty text when AutoRegIndex is off. A register that keeps
// the day's counter gives the number (lastDayNumber + 1) and the options are left alone;
// in an older register's place, when the stored Date isn't today the day's count restarts
// (resetTodayNumber) before anything else can fail; nothing else is written.
QString makeRegIndex(const QVariant& category, const QDate& today = Clock::currentDate());

// The date part in one of six styles: 1 yyyymmdd, 2 mmddyyyy, 3 ddmmyyyy, 4 yymmdd,
// 5 mmddyy, 6 ddmmyy; any other style gives empty text.
QString formatIndexDate(const QDate& date, int style);

// Sets Date to today and TodayNumber to 1.
void resetTodayNumber(const QDate& today = Clock::currentDate());

// The sample of the settings dialog: "AGR" (with UseMnemonic on), Separator1, the date
// in IndexStyle, Separator2 and "1". Restarts the day's count on a new day whatever
// AutoRegIndex says.
QString regIndexSample(const QDate& today = Clock::currentDate());

// Whether a document of the register on connection, other than the one whose key is except,
// has this index (letter case aside, as the engine compares text).
bool regIndexTaken(Connection& connection, const QString& index, qint32 except = 0);

// The closing number of index when it is an index of the day (the text before the number
// ends in today's date text and Separator2, the number of the day being one for all
// categories); 0 for any other index.
qint64 dayNumberOf(const QString& index, const QDate& today = Clock::currentDate());

// The last number of the day in a register that keeps the day's counter: the counter's, or,
// before anything was counted today, the highest number its indexes of the day hold.
qint64 lastDayNumber(Connection& connection, const QDate& today = Clock::currentDate());

// index with its closing number raised past every number the register holds for the same
// day: an index that ends in today's date text and Separator2 counts the day's numbers of
// every mnemonic (the number of the day is one for all categories); any other index counts
// those that differ from it only in their closing number. The day's counter of a register
// that keeps one counts too.
QString nextFreeRegIndex(
    Connection& connection, const QString& index, const QDate& today = Clock::currentDate());

// nextFreeRegIndex, drawn in a write transaction of its own that also raises the day's
// counter to it, so that the number is held for the caller: users refused at once are each
// offered a different number, and new proposals start past it. A number offered and then not
// stored leaves a gap, as a ticket drawn and thrown away does.
QString reserveFreeRegIndex(
    Connection& connection, const QString& index, const QDate& today = Clock::currentDate());

// Gives back a number reserveFreeRegIndex held, when the user did not take it and nobody
// counted past it since: the next offer is the same number again.
void releaseRegIndex(Connection& connection, const QString& index, const QDate& today = Clock::currentDate());

// Makes document's updateBatch guard a registration index that it stores (index() gives it
// at the time of the write; empty text when there is none to check, as when it is unchanged):
// inside the write transaction, with every other writer of the register held off, the batch
// is refused with ErrorNumber::DuplicateValue when another document of the register (one
// whose key isn't documentId) has the index already, and a register that keeps the day's
// counter has it raised to the index's number of the day.
void guardRegIndex(Recordset& document, std::function<QString()> index, qint32 documentId = 0);

} // namespace kartella
