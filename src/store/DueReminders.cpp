#include "store/DueReminders.h"

#include "base/Error.h"
#include "options/OptionStore.h"
#include "platform/Clock.h"
#include "store/engine/Connection.h"
#include "store/engine/DateText.h"
#include "store/engine/Recordset.h"

#include <QDateTime>

#include <algorithm>

namespace kartella {

namespace {

const QString ShowAtStartOption = QStringLiteral("ShowDueReminders");

// The date of a stored reminder date: a date as the engine returns it, or typed text that
// reads as one. An invalid date when it is neither.
QDate readableDate(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDate)
        return value.toDate();
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().date();
    if (value.isNull())
        return {};
    const QVariant parsed = engine::parseUserDate(value.toString().trimmed());
    if (parsed.typeId() == QMetaType::QDate)
        return parsed.toDate();
    if (parsed.typeId() == QMetaType::QDateTime)
        return parsed.toDateTime().date();
    return {};
}

// Groups in the order they are listed: overdue, today, unreadable date.
int group(const DueReminder& reminder)
{
    if (!reminder.date.isValid())
        return 2;
    return reminder.overdue ? 0 : 1;
}

} // namespace

QDate reminderToday()
{
    return Clock::currentDate();
}

void addReminderDoneColumn(Connection& connection)
{
    // SQLite can't add a column twice: a register whose version was set back by hand keeps it.
    if (hasReminderDoneColumn(connection))
        return;
    connection.execute(QStringLiteral("ALTER TABLE tbl_Tickler ADD COLUMN ")
        + QLatin1String(ReminderDoneColumn) + QStringLiteral(" INTEGER NOT NULL DEFAULT 0"));
}

bool hasReminderDoneColumn(Connection& connection)
{
    Recordset probe;
    probe.open(QStringLiteral("SELECT * FROM tbl_Tickler WHERE TicklerID = 0"), connection);
    const bool has = probe.hasField(QLatin1String(ReminderDoneColumn));
    probe.close();
    return has;
}

std::vector<DueReminder> dueReminders(Connection& connection, const QDate& today)
{
    const bool doneKept = hasReminderDoneColumn(connection);
    Recordset rows;
    rows.open(QStringLiteral("SELECT tbl_Tickler.TicklerID, tbl_Tickler.RastasID, tbl_Tickler.TicklerDate, "
                             "tbl_Tickler.TicklerText, tbl_Documents.DokRegistracIndeksas, "
                             "tbl_Documents.DokAntraste FROM tbl_Tickler INNER JOIN tbl_Documents ON "
                             "tbl_Tickler.RastasID = tbl_Documents.RastasID")
            + (doneKept ? QStringLiteral(" WHERE tbl_Tickler.") + QLatin1String(ReminderDoneColumn)
                        + QStringLiteral(" = 0")
                        : QString())
            + QStringLiteral(" ORDER BY tbl_Tickler.TicklerID"),
        connection);
    std::vector<DueReminder> due;
    for (; !rows.eof(); rows.moveNext()) {
        const QVariant stored = rows.fields(QStringLiteral("TicklerDate")).value();
        DueReminder reminder;
        reminder.date = readableDate(stored);
        if (reminder.date.isValid() && reminder.date > today)
            continue;
        reminder.reminderId = rows.fields(QStringLiteral("TicklerID")).value().toInt();
        reminder.documentId = rows.fields(QStringLiteral("RastasID")).value().toInt();
        reminder.dateText = stored.isNull() ? QString() : stored.toString();
        reminder.overdue = reminder.date.isValid() && reminder.date < today;
        reminder.regIndex = rows.fields(QStringLiteral("DokRegistracIndeksas")).value().toString();
        reminder.description = rows.fields(QStringLiteral("DokAntraste")).value().toString();
        reminder.text = rows.fields(QStringLiteral("TicklerText")).value().toString();
        due.push_back(reminder);
    }
    rows.close();
    std::stable_sort(due.begin(), due.end(), [](const DueReminder& a, const DueReminder& b) {
        if (group(a) != group(b))
            return group(a) < group(b);
        return group(a) == 0 && a.date < b.date;
    });
    return due;
}

void markReminderDone(Connection& connection, qint32 reminderId)
{
    if (!hasReminderDoneColumn(connection))
        throw Error(ErrorNumber::CommandFailed,
            QStringLiteral("This register was made by an older Kartella and has no place to keep a reminder "
                           "done. Upgrade it first."));
    connection.execute(QStringLiteral("UPDATE tbl_Tickler SET ") + QLatin1String(ReminderDoneColumn)
        + QStringLiteral(" = 1 WHERE TicklerID = ") + QString::number(reminderId));
}

bool showDueRemindersAtStart()
{
    return getRegValue(ShowAtStartOption).trimmed() != QLatin1String("0");
}

void setShowDueRemindersAtStart(bool show)
{
    setRegValue(ShowAtStartOption, show ? 1 : 0);
}

} // namespace kartella
