#include "explorer/RemindersModel.h"

#include "base/Error.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QCoreApplication>
#include <QFont>

#include <algorithm>

namespace kartella {

namespace {

// Lines read together: more than a screen of them.
constexpr int PageSize = 100;
// Texts kept at most; past this, the oldest read are forgotten and read again if needed.
constexpr int LinesKept = 20 * PageSize;

QString dueText(const DueReminderKey& key)
{
    if (!key.date.isValid())
        return QCoreApplication::translate("kartella::RemindersModel", "Date unreadable");
    return key.overdue ? QCoreApplication::translate("kartella::RemindersModel", "Overdue")
                       : QCoreApplication::translate("kartella::RemindersModel", "Today");
}

} // namespace

RemindersModel::RemindersModel(QObject* parent)
    : QAbstractTableModel(parent)
{ }

void RemindersModel::reload(const QDate& today)
{
    beginResetModel();
    m_today = today;
    m_keys.clear();
    m_read.clear();
    try {
        Connection connection;
        connection.open(plainConnectionString());
        m_keys = dueReminderKeys(connection, today);
    } catch (const Error&) {
        endResetModel();
        throw;
    }
    endResetModel();
}

void RemindersModel::setKeys(const QDate& today, std::vector<DueReminderKey> keys)
{
    beginResetModel();
    m_today = today;
    m_keys = std::move(keys);
    m_read.clear();
    endResetModel();
}

void RemindersModel::removeLine(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    beginRemoveRows({}, row, row);
    m_read.remove(m_keys[std::size_t(row)].reminderId);
    m_keys.erase(m_keys.begin() + row);
    endRemoveRows();
}

DueReminder RemindersModel::reminder(int row) const
{
    const DueReminderKey& key = m_keys[std::size_t(row)];
    if (!m_read.contains(key.reminderId))
        readPageOf(row);
    if (const auto at = m_read.constFind(key.reminderId); at != m_read.cend())
        return *at;
    DueReminder bare;
    bare.reminderId = key.reminderId;
    bare.date = key.date;
    bare.overdue = key.overdue;
    return bare;
}

void RemindersModel::readPageOf(int row) const
{
    if (m_read.size() >= LinesKept)
        m_read.clear();
    const int first = row / PageSize * PageSize;
    const int last = std::min(rowCount(), first + PageSize);
    std::vector<qint32> ids;
    for (int i = first; i < last; ++i) {
        if (!m_read.contains(m_keys[std::size_t(i)].reminderId))
            ids.push_back(m_keys[std::size_t(i)].reminderId);
    }
    try {
        Connection connection;
        connection.open(plainConnectionString());
        for (DueReminder& reminder : remindersById(connection, ids, m_today))
            m_read.insert(reminder.reminderId, std::move(reminder));
    } catch (const Error&) {
        // A register that can't be read now shows the lines' dates alone; the next paint tries again.
        return;
    }
    // A reminder gone since the list was read (its document deleted) shows its date alone.
    for (const qint32 id : ids) {
        if (!m_read.contains(id)) {
            DueReminder gone;
            gone.reminderId = id;
            m_read.insert(id, gone);
        }
    }
}

int RemindersModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_keys.size());
}

int RemindersModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RemindersModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const DueReminderKey& key = m_keys[std::size_t(index.row())];
    if (role == Qt::FontRole && index.column() == DueColumn && key.overdue) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case DateColumn:
        return key.date.isValid() ? key.date.toString(QStringLiteral("yyyy.MM.dd"))
                                  : reminder(index.row()).dateText;
    case DueColumn:
        return dueText(key);
    case IndexColumn:
        return reminder(index.row()).regIndex;
    case DescriptionColumn:
        return reminder(index.row()).description;
    case TextColumn:
        return reminder(index.row()).text;
    default:
        return {};
    }
}

QVariant RemindersModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    static const char* const titles[] = {QT_TR_NOOP("Date"), QT_TR_NOOP("Due"),
        QT_TR_NOOP("Registration Index"), QT_TR_NOOP("Description"), QT_TR_NOOP("Text")};
    if (section < 0 || section >= int(std::size(titles)))
        return {};
    return tr(titles[section]);
}

} // namespace kartella
