#include "support/RecordsetModel.h"

#include "base/Error.h"
#include "platform/Prompter.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"
#include "support/ChangedRowPrompt.h"
#include "support/DialogParts.h"

#include <QDate>
#include <QDateTime>
#include <QHeaderView>
#include <QLocale>
#include <QTableView>

namespace kartella {

RecordsetModel::RecordsetModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_dateFormat(QLocale::system().dateFormat(QLocale::ShortFormat))
{
    const auto count = [this] { m_shownRows = rowCount(); };
    connect(this, &QAbstractItemModel::modelReset, this, count);
    connect(this, &QAbstractItemModel::rowsInserted, this, count);
    connect(this, &QAbstractItemModel::rowsRemoved, this, count);
}

void RecordsetModel::setRecordset(Recordset* recordset)
{
    if (m_recordset)
        disconnect(m_recordset, nullptr, this, nullptr);
    beginResetModel();
    m_recordset = recordset;
    m_fields = recordset && recordset->isOpen() ? recordset->fieldNames() : QStringList();
    endResetModel();
    if (!recordset)
        return;
    connect(recordset, &Recordset::recordsetChangeComplete, this, [this] {
        if (!m_self)
            reload();
    });
    connect(recordset, &Recordset::fieldChangeComplete, this, &RecordsetModel::onFieldChanged);
    connect(recordset, &Recordset::moveComplete, this, &RecordsetModel::onMoved);
    connect(recordset, &QObject::destroyed, this, &RecordsetModel::reload);
    onMoved();
}

void RecordsetModel::reload()
{
    const QStringList fields
        = m_recordset && m_recordset->isOpen() ? m_recordset->fieldNames() : QStringList();
    if (fields == m_fields && rowCount() == m_shownRows) {
        // The same rows, their values perhaps new (written back, keys filled in).
        if (m_shownRows > 0 && !m_fields.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(m_shownRows - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_fields = m_recordset && m_recordset->isOpen() ? m_recordset->fieldNames() : QStringList();
    endResetModel();
}

void RecordsetModel::setColumnCaption(int column, const QString& caption)
{
    m_captions.insert(column, caption);
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void RecordsetModel::setColumnWidth(int column, int twips)
{
    m_widths.insert(column, twips);
    applyColumns();
}

void RecordsetModel::setColumnHidden(int column, bool hidden)
{
    m_hidden.insert(column, hidden);
    applyColumns();
}

void RecordsetModel::setAllowAddNew(bool allow)
{
    if (allow == m_allowAddNew)
        return;
    if (!m_recordset || !m_recordset->isOpen() || !m_recordset->isUpdatable()) {
        m_allowAddNew = allow;
        return;
    }
    // Only the new-row line comes or goes: the views keep their current cell.
    const int line = dataRows();
    if (allow) {
        beginInsertRows({}, line, line);
        m_allowAddNew = true;
        endInsertRows();
    } else {
        beginRemoveRows({}, line, line);
        m_allowAddNew = false;
        endRemoveRows();
    }
}

bool RecordsetModel::isNewRowLine(int row) const
{
    return row == dataRows() && rowCount() > dataRows();
}

int RecordsetModel::dataRows() const
{
    return m_recordset && m_recordset->isOpen() ? m_recordset->recordCount() : 0;
}

int RecordsetModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() || !m_recordset || !m_recordset->isOpen())
        return 0;
    return dataRows() + (m_allowAddNew && m_recordset->isUpdatable() ? 1 : 0);
}

int RecordsetModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_fields.size());
}

QString RecordsetModel::displayText(const QVariant& value) const
{
    if (isNull(value))
        return {};
    if (value.typeId() == QMetaType::QDate)
        return value.toDate().toString(m_dateFormat);
    if (value.typeId() == QMetaType::QDateTime) {
        const QDateTime moment = value.toDateTime();
        return moment.time() == QTime(0, 0) ? moment.date().toString(m_dateFormat)
                                            : QLocale::system().toString(moment, QLocale::ShortFormat);
    }
    return value.toString();
}

QVariant RecordsetModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    if (index.row() >= dataRows())
        return QString();
    return displayText(m_recordset->rowValue(index.row(), index.column()));
}

QVariant RecordsetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return isNewRowLine(section) ? QStringLiteral("*") : QString::number(section + 1);
    return m_captions.contains(section) ? m_captions.value(section) : m_fields.value(section);
}

Qt::ItemFlags RecordsetModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    bool chapter = false;
    try {
        chapter = m_recordset->fields(index.column()).isChapter();
    } catch (const Error&) {
        chapter = true;
    }
    if (m_recordset->isUpdatable() && !chapter)
        result |= Qt::ItemIsEditable;
    return result;
}

bool RecordsetModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    const bool adding = isNewRowLine(index.row());
    if (adding && value.toString().isEmpty())
        return false; // nothing typed: no row
    const bool done = adding ? addRow(index.column(), value) : setCell(index.row(), index.column(), value);
    if (done)
        Q_EMIT edited();
    return done;
}

bool RecordsetModel::addRow(int column, const QVariant& value)
{
    const int row = dataRows();
    // The new-row line becomes the new row, and a new new-row line follows it.
    beginInsertRows({}, row + 1, row + 1);
    m_self = true;
    try {
        m_recordset->addNew();
    } catch (const Error& error) {
        m_self = false;
        endInsertRows();
        reload();
        msgBox(error.description());
        return false;
    }
    m_self = false;
    endInsertRows();
    if (setCell(row, column, value))
        return true;
    beginRemoveRows({}, row + 1, row + 1);
    m_self = true;
    try {
        m_recordset->cancelUpdate();
    } catch (const Error&) {
        // The row was never more than an edit; nothing is left to undo.
    }
    m_self = false;
    endRemoveRows();
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    return false;
}

bool RecordsetModel::setCell(int row, int column, const QVariant& value)
{
    m_self = true;
    try {
        if (m_recordset->currentRow() != row)
            m_recordset->setAbsolutePosition(row + 1);
        const QString text = value.toString();
        m_recordset->fields(column).setValue(text.isEmpty() ? QVariant() : value);
        if (m_recordset->editMode() != EditModeEnum::None)
            m_recordset->update();
    } catch (const Error& error) {
        if (rowWasDeleted(error)) {
            // Nothing can be stored in a row that is gone: the cell goes back to what it showed.
            try {
                m_recordset->cancelUpdate();
            } catch (const Error&) {
                // Not in an edit any more: nothing to undo.
            }
            m_self = false;
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
            msgBox(tr("This row was deleted by another user; your change was not saved."),
                MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, QString());
            return false;
        }
        m_self = false;
        if (rowWasChanged(error))
            return resolveChangedCell(row);
        msgBox(error.description());
        return false;
    }
    m_self = false;
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    return true;
}

bool RecordsetModel::resolveChangedCell(int row)
{
    QList<QPair<QString, QString>> captions;
    for (auto caption = m_captions.cbegin(); caption != m_captions.cend(); ++caption) {
        if (caption.key() < m_fields.size())
            captions.append({m_fields.at(caption.key()), caption.value()});
    }
    bool stored = false;
    for (;;) {
        const ChangedRowChoice choice = resolveChangedRow(*m_recordset, m_rowName, captions, QString());
        m_self = true;
        try {
            if (choice == ChangedRowChoice::KeepMine) {
                // The typed value waits in the row, read again underneath it: write the row.
                m_recordset->updateBatch(AffectEnum::Current);
                stored = true;
            } else if (choice == ChangedRowChoice::Reload) {
                // The row holds what is stored now; the typed value goes.
                m_recordset->cancelUpdate();
            }
            // Cancel leaves the typed value waiting in the row, shown in the cell: the next
            // write of the row (another of its cells typed) stores it over what was shown.
        } catch (const Error& error) {
            m_self = false;
            if (rowWasChanged(error))
                continue; // changed again while the user chose
            msgBox(error.description());
        }
        m_self = false;
        break;
    }
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    return stored;
}

void RecordsetModel::onFieldChanged(const QString& name)
{
    if (m_self || !m_recordset)
        return;
    const int row = m_recordset->currentRow();
    const int column = int(m_fields.indexOf(name));
    if (row >= 0 && column >= 0)
        Q_EMIT dataChanged(index(row, column), index(row, column));
}

void RecordsetModel::onMoved()
{
    if (!m_view || !m_recordset || m_syncing)
        return;
    const int row = m_recordset->currentRow();
    const QModelIndex current = m_view->currentIndex();
    if (row < 0 || current.row() == row)
        return;
    int column = current.isValid() ? current.column() : 0;
    while (column < columnCount() - 1 && m_view->isColumnHidden(column))
        ++column;
    m_syncing = true;
    m_view->setCurrentIndex(index(row, column));
    m_syncing = false;
}

void RecordsetModel::onViewCurrentChanged(const QModelIndex& current)
{
    if (m_syncing || !m_recordset || !current.isValid() || current.row() >= dataRows())
        return;
    if (m_recordset->currentRow() == current.row())
        return;
    m_syncing = true;
    try {
        m_recordset->setAbsolutePosition(current.row() + 1);
    } catch (const Error& error) {
        msgBox(error.description());
    }
    m_syncing = false;
}

void RecordsetModel::attachView(QTableView* view)
{
    m_view = view;
    view->setModel(this);
    view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked
        | QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    view->setSelectionBehavior(QAbstractItemView::SelectItems);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &RecordsetModel::onViewCurrentChanged, Qt::UniqueConnection);
    connect(this, &QAbstractItemModel::modelReset, this, &RecordsetModel::applyColumns, Qt::UniqueConnection);
    applyColumns();
}

void RecordsetModel::applyColumns()
{
    if (!m_view)
        return;
    for (auto it = m_widths.cbegin(); it != m_widths.cend(); ++it)
        m_view->setColumnWidth(it.key(), twipsToPixels(it.value(), m_view));
    for (int column = 0; column < columnCount(); ++column)
        m_view->setColumnHidden(column, m_hidden.value(column, false));
}

int RecordsetModel::twipsToPixels(int twips, const QWidget* widget)
{
    const int dpi = widget ? widget->logicalDpiX() : 96;
    return (twips * dpi + 720) / 1440;
}

} // namespace kartella
