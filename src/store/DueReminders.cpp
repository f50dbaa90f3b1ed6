#include "store/DueReminders.h"

#include "base/Error.h"
#include "options/OptionStore.h"
#include "platform/Clock.h"
#include "store/StoreText.h"
#include "store/engine/Connection.h"
#include "store/engine/DateText.h"
#include "store/engine/Recordset.h"

#include <QDateTime>
#include <QHash>
#include <QStringList>

#include <algorithm>
#include <iterator>

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

// The statements of the due reminders. A reminder's date is "dated" when the register
// keeps it in its own form (a date on a server; ISO text, "yyyy-MM-dd" and any time after
// it, in a register file), which the database compares and sorts; any other value (Null,
// text typed as a date, text that is none) is "undated" and read here, one by one: a
// register has few of those.
class DueSql
{
public:
    DueSql(Connection& connection, const QDate& today)
        : m_server(connection.dialect() == SqlDialect::PostgreSql)
        , m_today(today)
    {
        if (hasReminderDoneColumn(connection))
            m_notDone = QStringLiteral("tbl_Tickler.") + QLatin1String(ReminderDoneColumn)
                + QStringLiteral(" = 0 AND ");
    }

    QString from() const
    {
        return QStringLiteral(
            "tbl_Tickler INNER JOIN tbl_Documents ON tbl_Tickler.RastasID = tbl_Documents.RastasID");
    }

    // The dated reminders that are due.
    QString dated() const
    {
        return QStringLiteral(" WHERE ") + m_notDone + u'(' + storedForm()
            + QStringLiteral(") AND tbl_Tickler.TicklerDate < #")
            + m_today.addDays(1).toString(QStringLiteral("yyyy-MM-dd")) + u'#';
    }

    // By date (a time in the text left out), then by id.
    QString datedOrder() const
    {
        return m_server
            ? QStringLiteral(" ORDER BY tbl_Tickler.TicklerDate, tbl_Tickler.TicklerID")
            : QStringLiteral(" ORDER BY substr(tbl_Tickler.TicklerDate, 1, 10), tbl_Tickler.TicklerID");
    }

    // The undated reminders that are due, their dates read here: the text read as a date
    // on or before today, or no date at all. In the order of their ids.
    std::vector<DueReminderKey> undatedDue(Connection& connection) const
    {
        std::vector<DueReminderKey> due;
        Recordset rows;
        rows.open(QStringLiteral("SELECT tbl_Tickler.TicklerID, tbl_Tickler.TicklerDate FROM ") + from()
                + QStringLiteral(" WHERE ") + m_notDone + QStringLiteral("NOT (") + storedForm()
                + QStringLiteral(") ORDER BY tbl_Tickler.TicklerID"),
            connection);
        for (; !rows.eof(); rows.moveNext()) {
            DueReminderKey key;
            key.reminderId = rows.fields(0).value().toInt();
            key.date = readableDate(rows.fields(1).value());
            if (!key.date.isValid() || key.date <= m_today)
                due.push_back(key);
        }
        rows.close();
        return due;
    }

private:
    // Whether the stored date is in the register's own form.
    QString storedForm() const
    {
        if (m_server)
            return QStringLiteral("tbl_Tickler.TicklerDate IS NOT NULL");
        return QStringLiteral(
            "tbl_Tickler.TicklerDate IS NOT NULL AND typeof(tbl_Tickler.TicklerDate) = 'text' "
            "AND substr(tbl_Tickler.TicklerDate, 5, 1) = '-' AND "
            "substr(tbl_Tickler.TicklerDate, 8, 1) = '-' AND "
            "substr(tbl_Tickler.TicklerDate, 1, 1) BETWEEN '0' AND '9'");
    }

    bool m_server;
    QDate m_today;
    QString m_notDone;
};

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
    const std::vector<DueReminderKey> keys = dueReminderKeys(connection, today);
    std::vector<qint32> ids;
    ids.reserve(keys.size());
    for (const DueReminderKey& key : keys)
        ids.push_back(key.reminderId);
    return remindersById(connection, ids, today);
}

int countDueReminders(Connection& connection, const QDate& today)
{
    const DueSql sql(connection, today);
    Recordset rows;
    rows.open(QStringLiteral("SELECT COUNT(*) FROM ") + sql.from() + sql.dated(), connection);
    const int count = rows.eof() ? 0 : rows.fields(0).value().toInt();
    rows.close();
    return count + int(sql.undatedDue(connection).size());
}

std::vector<DueReminderKey> dueReminderKeys(Connection& connection, const QDate& today)
{
    const DueSql sql(connection, today);
    std::vector<DueReminderKey> dated;
    Recordset rows;
    rows.open(QStringLiteral("SELECT tbl_Tickler.TicklerID, tbl_Tickler.TicklerDate FROM ") + sql.from()
            + sql.dated() + sql.datedOrder(),
        connection);
    for (; !rows.eof(); rows.moveNext()) {
        DueReminderKey key;
        key.reminderId = rows.fields(0).value().toInt();
        key.date = readableDate(rows.fields(1).value());
        dated.push_back(key);
    }
    rows.close();

    // Dates typed as text come between the others by their date; those that can't be read
    // go last.
    std::vector<DueReminderKey> undated = sql.undatedDue(connection);
    const auto unreadable = std::stable_partition(
        undated.begin(), undated.end(), [](const DueReminderKey& key) { return key.date.isValid(); });
    std::vector<DueReminderKey> keys;
    keys.reserve(dated.size() + undated.size());
    const auto before = [](const DueReminderKey& a, const DueReminderKey& b) {
        return a.date != b.date ? a.date < b.date : a.reminderId < b.reminderId;
    };
    std::stable_sort(undated.begin(), unreadable, before);
    std::merge(dated.begin(), dated.end(), undated.begin(), unreadable, std::back_inserter(keys), before);
    keys.insert(keys.end(), unreadable, undated.end());
    for (DueReminderKey& key : keys)
        key.overdue = key.date.isValid() && key.date < today;
    return keys;
}

std::vector<DueReminder> remindersById(
    Connection& connection, const std::vector<qint32>& ids, const QDate& today)
{
    std::vector<DueReminder> found;
    // A few hundred ids to a statement keep it short on either back end.
    constexpr std::size_t Batch = 500;
    for (std::size_t from = 0; from < ids.size(); from += Batch) {
        QStringList list;
        for (std::size_t i = from; i < std::min(ids.size(), from + Batch); ++i)
            list << QString::number(ids[i]);
        Recordset rows;
        rows.open(
            QStringLiteral("SELECT tbl_Tickler.TicklerID, tbl_Tickler.RastasID, tbl_Tickler.TicklerDate, "
                           "tbl_Tickler.TicklerText, tbl_Documents.DokRegistracIndeksas, "
                           "tbl_Documents.DokAntraste FROM tbl_Tickler INNER JOIN tbl_Documents ON "
                           "tbl_Tickler.RastasID = tbl_Documents.RastasID WHERE tbl_Tickler.TicklerID IN (")
                + list.join(u',') + u')',
            connection);
        QHash<qint32, DueReminder> byId;
        for (; !rows.eof(); rows.moveNext()) {
            const QVariant stored = rows.fields(QStringLiteral("TicklerDate")).value();
            DueReminder reminder;
            reminder.date = readableDate(stored);
            reminder.reminderId = rows.fields(QStringLiteral("TicklerID")).value().toInt();
            reminder.documentId = rows.fields(QStringLiteral("RastasID")).value().toInt();
            reminder.dateText = stored.isNull() ? QString() : stored.toString();
            reminder.overdue = reminder.date.isValid() && reminder.date < today;
            reminder.regIndex = rows.fields(QStringLiteral("DokRegistracIndeksas")).value().toString();
            reminder.description = rows.fields(QStringLiteral("DokAntraste")).value().toString();
            reminder.text = rows.fields(QStringLiteral("TicklerText")).value().toString();
            byId.insert(reminder.reminderId, reminder);
        }
        rows.close();
        for (std::size_t i = from; i < std::min(ids.size(), from + Batch); ++i) {
            const auto at = byId.constFind(ids[i]);
            if (at != byId.cend())
                found.push_back(*at);
        }
    }
    return found;
}

void markReminderDone(Connection& connection, qint32 reminderId)
{
    if (!hasReminderDoneColumn(connection))
        throw Error(ErrorNumber::CommandFailed,
            kartella::StoreText::tr(
                "This register was made by an older Kartella and has no place to keep a reminder "
                "done. Upgrade it first."));
    connection.execute(QStringLiteral("UPDATE tbl_Tickler SET ") + QLatin1String(ReminderDoneColumn)
        + QStringLiteral(" = 1 WHERE TicklerID = ") + QString::number(reminderId));
}

ReminderMark markReminderDoneAsShown(Connection& connection, const DueReminder& shown)
{
    if (!hasReminderDoneColumn(connection))
        markReminderDone(connection, shown.reminderId); // tells why it can't
    connection.beginTrans();
    try {
        connection.lockForWriting(QStringLiteral("reminders"));
        Recordset row;
        row.open(QStringLiteral("SELECT TicklerDate, TicklerText FROM tbl_Tickler WHERE TicklerID = ")
                + QString::number(shown.reminderId),
            connection);
        ReminderMark mark = ReminderMark::Done;
        if (row.eof()) {
            mark = ReminderMark::Gone;
        } else {
            const QVariant stored = row.fields(QStringLiteral("TicklerDate")).value();
            const bool sameDate = shown.date.isValid()
                ? readableDate(stored) == shown.date
                : (stored.isNull() ? QString() : stored.toString()) == shown.dateText;
            if (!sameDate || row.fields(QStringLiteral("TicklerText")).value().toString() != shown.text)
                mark = ReminderMark::Changed;
        }
        row.close();
        if (mark == ReminderMark::Done)
            markReminderDone(connection, shown.reminderId);
        connection.commitTrans();
        return mark;
    } catch (...) {
        connection.rollbackTrans();
        throw;
    }
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
