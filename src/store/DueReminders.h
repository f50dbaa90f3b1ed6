#pragma once

#include <QDate>
#include <QString>

#include <vector>

namespace kartella {

class Connection;

// Reminders that have fallen due: the rows of tbl_Tickler dated today or earlier that
// the user has not marked done. A register keeps "done" in tbl_Tickler.TicklerDone (0 not
// done, anything else done), a column that registers made before it lack: there every
// reminder counts as not done, and none can be marked.

inline constexpr const char* ReminderDoneColumn = "TicklerDone";

struct DueReminder
{
    qint32 reminderId = 0; // TicklerID
    qint32 documentId = 0; // RastasID
    QDate date; // invalid when the stored date can't be read as one
    QString dateText; // the date as stored, for a date that can't be read
    bool overdue = false; // dated before today
    QString regIndex;
    QString description;
    QString text;
};

// Today's date for the reminders. The one place that asks the system for it.
QDate reminderToday();

// The schema step that adds the done column (default 0) to tbl_Tickler.
void addReminderDoneColumn(Connection& connection);

// Whether the open register has the done column.
bool hasReminderDoneColumn(Connection& connection);

// A due reminder's place in the list of them: what its order and its Due column need.
struct DueReminderKey
{
    qint32 reminderId = 0;
    QDate date; // invalid when the stored date can't be read as one
    bool overdue = false;
};

// The due reminders on the open register, given today's date: overdue ones first (oldest
// first), then today's, then those whose date can't be read (a date typed as text that
// isn't one is better seen than lost), each group in the order of TicklerID. A reminder
// of a document that is no longer there is left out.
std::vector<DueReminder> dueReminders(Connection& connection, const QDate& today);

// How many reminders dueReminders would give, counted by the database: only the rows
// whose stored date is no date the register's own form reads are read here.
int countDueReminders(Connection& connection, const QDate& today);

// The keys of dueReminders, in its order, without the texts: a list reads those with
// remindersById for the rows it shows.
std::vector<DueReminderKey> dueReminderKeys(Connection& connection, const QDate& today);

// The reminders of the given ids that are still there with their documents, in the order
// of ids; an id no longer there is left out.
std::vector<DueReminder> remindersById(
    Connection& connection, const std::vector<qint32>& ids, const QDate& today);

// Marks one reminder done. Throws kartella::Error when the register has no done column.
void markReminderDone(Connection& connection, qint32 reminderId);

// What marking a reminder done met.
enum class ReminderMark {
    Done, // it was as shown, and is done now
    Changed, // another user changed its date or text since it was shown: left as it is
    Gone, // another user deleted it
};
// Marks the reminder done only when it still holds the date and text shown (both read with
// it by readDueReminders), in one write transaction. Throws kartella::Error as
// markReminderDone does.
ReminderMark markReminderDoneAsShown(Connection& connection, const DueReminder& shown);

// The option "Show due reminders at start": on unless it is stored as off.
bool showDueRemindersAtStart();
void setShowDueRemindersAtStart(bool show);

} // namespace kartella
