#include "explorer/ListModel.h"

#include "explorer/IconCache.h"
#include "preview/Thumbnails.h"
#include "store/engine/TextFold.h"

#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace kartella {

ListModel::ListModel(IconCache* icons, QObject* parent)
    : QAbstractTableModel(parent)
    , m_icons(icons)
{
    connect(this, &QAbstractItemModel::modelReset, this, [this] { m_awaitingThumbnails.clear(); });
}

void ListModel::setThumbnails(Thumbnails* thumbnails)
{
    if (m_thumbnails)
        disconnect(m_thumbnails, nullptr, this, nullptr);
    m_thumbnails = thumbnails;
    if (m_thumbnails)
        connect(m_thumbnails, &Thumbnails::ready, this, &ListModel::onThumbnailReady);
}

void ListModel::onThumbnailReady(const QString& path)
{
    const QList<int> rows = m_awaitingThumbnails.take(path);
    for (const int row : rows) {
        if (row < rowCount())
            Q_EMIT dataChanged(index(row, 0), index(row, 0), {Qt::DecorationRole});
    }
}

void ListModel::setColumns(const QList<ListColumn>& columns)
{
    beginResetModel();
    m_items.clear();
    m_source.reset();
    m_columns = columns;
    endResetModel();
    Q_EMIT columnsReplaced();
}

void ListModel::clear()
{
    setColumns({});
}

void ListModel::clearItems()
{
    beginResetModel();
    m_items.clear();
    m_source.reset();
    endResetModel();
}

void ListModel::setItems(std::vector<ListItem> items)
{
    beginResetModel();
    m_source.reset();
    m_items = std::move(items);
    applySort();
    endResetModel();
}

void ListModel::setSource(std::unique_ptr<ListRowSource> source)
{
    beginResetModel();
    m_items.clear();
    m_source = std::move(source);
    if (m_source && m_sorted)
        m_source->sort(m_sortKey, m_sortOrder);
    endResetModel();
}

ListItem ListModel::item(int row) const
{
    if (m_source)
        return m_source->item(row);
    return m_items[size_t(row)];
}

void ListModel::appendItem(ListItem item)
{
    if (m_source) {
        beginResetModel();
        m_source.reset();
        endResetModel();
    }
    const int row = int(m_items.size());
    beginInsertRows({}, row, row);
    m_items.push_back(std::move(item));
    endInsertRows();
}

void ListModel::setItemTag(int row, const QString& tag)
{
    if (row < 0 || row >= itemCount())
        return;
    if (m_source) {
        m_source->setItemTag(row, tag);
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
        return;
    }
    m_items[size_t(row)].tag = tag;
    m_items[size_t(row)].tagIsNull = false;
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int ListModel::rowOfKey(const QString& key) const
{
    if (m_source)
        return m_source->rowOfKey(key);
    for (size_t i = 0; i < m_items.size(); ++i) {
        if (m_items[i].key == key)
            return int(i);
    }
    return -1;
}

void ListModel::setLargeIcons(bool large)
{
    if (m_largeIcons == large)
        return;
    m_largeIcons = large;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::DecorationRole});
}

void ListModel::setSort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_sortKey = column;
    m_sortOrder = order;
    m_sorted = true;
    if (m_source)
        m_source->sort(column, order);
    else
        applySort();
    endResetModel();
    Q_EMIT sortChanged();
}

const QString& ListModel::columnText(const ListItem& item, int column)
{
    static const QString none;
    if (column == 0)
        return item.text;
    if (column >= 1 && column <= int(item.subItems.size()))
        return item.subItems[size_t(column - 1)];
    return none;
}

void ListModel::applySort()
{
    if (!m_sorted || m_sortKey < 0 || m_sortKey >= m_columns.size())
        return;
    const int column = m_sortKey;
    const bool ascending = m_sortOrder == Qt::AscendingOrder;
    if (m_columns[column].dates) {
        // A null date is less than any other.
        std::stable_sort(m_items.begin(), m_items.end(), [ascending](const ListItem& a, const ListItem& b) {
            return ascending ? a.date < b.date : b.date < a.date;
        });
        return;
    }
    std::stable_sort(
        m_items.begin(), m_items.end(), [column, ascending](const ListItem& a, const ListItem& b) {
            // The order of the register's names: Lithuanian letters beside their base letters.
            const QByteArray left = columnText(a, column).toUtf8();
            const QByteArray right = columnText(b, column).toUtf8();
            const int c = engine::compareNames(
                left.constData(), size_t(left.size()), right.constData(), size_t(right.size()));
            return ascending ? c < 0 : c > 0;
        });
}

QModelIndex ListModel::index(int row, int column, const QModelIndex& parent) const
{
    // Checked here rather than through rowCount and columnCount: the view asks for the index
    // of every row at each layout, a million of them for a large register.
    if (parent.isValid() || row < 0 || column < 0 || row >= itemCount() || column >= int(m_columns.size()))
        return {};
    return createIndex(row, column);
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : itemCount();
}

int ListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= itemCount())
        return {};
    if (role != Qt::DisplayRole && role != Qt::DecorationRole && role != MarkedTextRole)
        return {};
    const ListItem item = this->item(index.row());
    switch (role) {
    case MarkedTextRole:
        return columnText(item, index.column());
    case Qt::DisplayRole: {
        const QString& text = columnText(item, index.column());
        if (!text.contains(QChar(u'\x02')))
            return text;
        return QString(text).remove(QChar(u'\x02')).remove(QChar(u'\x03'));
    }
    case Qt::DecorationRole:
        if (index.column() != 0)
            return {};
        if (m_largeIcons && m_thumbnails && !item.tagIsNull && Thumbnails::shows(item.tag)) {
            const QIcon thumbnail = m_thumbnails->icon(item.tag);
            if (!thumbnail.isNull())
                return thumbnail;
            QList<int>& rows = m_awaitingThumbnails[item.tag];
            if (!rows.contains(index.row()))
                rows << index.row();
        }
        if (!item.iconKey.isEmpty() && m_icons)
            return m_largeIcons ? m_icons->large(item.iconKey) : m_icons->small(item.iconKey);
        return {};
    default:
        return {};
    }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0
        && section < m_columns.size())
        return m_columns[section].caption;
    return {};
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    // Never a parent: the view's layout then asks no row whether it has children.
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

QModelIndexList ListModel::match(
    const QModelIndex& start, int role, const QVariant& value, int hits, Qt::MatchFlags flags) const
{
    // Type-ahead over rows never read asks the database, not every row in turn.
    const bool typeAhead = role == Qt::DisplayRole && start.column() == 0 && hits == 1
        && (flags & Qt::MatchTypeMask) == Qt::MatchStartsWith && (flags & Qt::MatchWrap);
    if (!m_source || !typeAhead)
        return QAbstractTableModel::match(start, role, value, hits, flags);
    const int row = m_source->rowStartingWith(start.row(), value.toString());
    if (row < 0)
        return {};
    return {index(row, 0)};
}

QStringList ListModel::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

QMimeData* ListModel::mimeData(const QModelIndexList& indexes) const
{
    auto* data = new QMimeData;
    QList<QUrl> urls;
    if (dragFiles) {
        const QStringList files = dragFiles();
        for (const QString& file : files)
            urls << QUrl::fromLocalFile(file);
        data->setUrls(urls);
        return data;
    }
    for (const QModelIndex& index : indexes) {
        if (index.column() != 0 || index.row() >= itemCount())
            continue;
        const ListItem item = this->item(index.row());
        if (!item.tagIsNull && !item.tag.isEmpty())
            urls << QUrl::fromLocalFile(item.tag);
    }
    data->setUrls(urls);
    return data;
}

Qt::DropActions ListModel::supportedDragActions() const
{
    return Qt::CopyAction;
}

} // namespace kartella
