#pragma once

#include "store/DueReminders.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QHash>

#include <vector>

namespace kartella {

// The lines of the Reminders window. reload reads which reminders are due and in what
// order; the texts of a line (index, description, the reminder's own text) are read a page
// at a time when the view first asks for them, and only the last few pages are kept.
class RemindersModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { DateColumn, DueColumn, IndexColumn, DescriptionColumn, TextColumn, ColumnCount };

    explicit RemindersModel(QObject* parent = nullptr);

    // Reads the due reminders of the register the options name. Throws kartella::Error,
    // leaving the model empty.
    void reload(const QDate& today);
    // The same with the due reminders' keys read already, in their order.
    void setKeys(const QDate& today, std::vector<DueReminderKey> keys);
    // Takes a line off, as when its reminder was marked done.
    void removeLine(int row);

    qint32 reminderId(int row) const { return m_keys[std::size_t(row)].reminderId; }
    // The whole reminder of a line, read if it wasn't; only its key when it can't be read.
    DueReminder reminder(int row) const;
    // How many lines' texts are held now.
    int linesRead() const { return int(m_read.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void readPageOf(int row) const;

    QDate m_today;
    std::vector<DueReminderKey> m_keys;
    mutable QHash<qint32, DueReminder> m_read;
};

} // namespace kartella
