#include "registration/DayCounter.h"

#include "store/SchemaSteps.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"

namespace kartella {

namespace {

// The first schema whose registers keep the counter.
constexpr int DayCounterVersion = 5;

QString dayText(const QDate& day)
{
    return sqlString(day.toString(Qt::ISODate));
}

} // namespace

bool registerKeepsDayCounter(Connection& connection)
{
    return schemaVersion(connection) >= DayCounterVersion;
}

qint64 dayCounterValue(Connection& connection, const QDate& day)
{
    Recordset row;
    row.open(QStringLiteral("SELECT LastNumber FROM tbl_Day_Counter WHERE CounterDay = ") + dayText(day),
        connection);
    const qint64 value = row.eof() ? -1 : row.fields(QStringLiteral("LastNumber")).value().toLongLong();
    row.close();
    return value;
}

void raiseDayCounter(Connection& connection, const QDate& day, qint64 number)
{
    const qint64 current = dayCounterValue(connection, day);
    if (current < 0) {
        connection.execute(QStringLiteral("INSERT INTO tbl_Day_Counter (CounterDay, LastNumber) VALUES (")
            + dayText(day) + QStringLiteral(", ") + QString::number(number) + QStringLiteral(")"));
    } else if (number > current) {
        connection.execute(QStringLiteral("UPDATE tbl_Day_Counter SET LastNumber = ")
            + QString::number(number) + QStringLiteral(" WHERE CounterDay = ") + dayText(day));
    }
}

void giveBackDayNumber(Connection& connection, const QDate& day, qint64 number)
{
    if (number > 0 && dayCounterValue(connection, day) == number)
        connection.execute(QStringLiteral("UPDATE tbl_Day_Counter SET LastNumber = ")
            + QString::number(number - 1) + QStringLiteral(" WHERE CounterDay = ") + dayText(day));
}

} // namespace kartella
