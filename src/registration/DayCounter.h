#pragma once

#include <QDate>

namespace kartella {

class Connection;

// The register's own counter of the day's registration numbers: the table tbl_Day_Counter,
// one row a day (the date as yyyy-MM-dd) holding the last number taken, so that every user
// of one register counts on one counter. A register made before the table counts in each
// user's options (Date and TodayNumber) until it is upgraded.

// Whether the register on connection keeps the counter.
bool registerKeepsDayCounter(Connection& connection);

// The last number the counter gave on day; -1 when it gave none that day.
qint64 dayCounterValue(Connection& connection, const QDate& day);

// Moves the day's counter to number unless it stands there or further. Run it inside the
// write transaction that stores the number, so that no other writer counts in between.
void raiseDayCounter(Connection& connection, const QDate& day, qint64 number);

// Moves the day's counter back from number to the one before, when it stands at number.
// For a number held for a user who then did not take it; the caller checks, in the same
// write transaction, that no stored index holds it.
void giveBackDayNumber(Connection& connection, const QDate& day, qint64 number);

} // namespace kartella
