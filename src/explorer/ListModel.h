#pragma once

#include <QAbstractTableModel>
#include <QDate>
#include <QHash>
#include <QIcon>

#include <array>
#include <functional>
#include <memory>
#include <vector>

namespace kartella {

class IconCache;
class Thumbnails;

struct ListColumn
{
    QString caption;
    int widthTwips = 1500;
    // The column shows the row's date: it sorts by ListItem::date, not by its text.
    bool dates = false;
};

// One row of a list view: its text (first column), the texts of the other columns,
// a key, a tag (the file's path; null when the row has none), the key of its icon and the
// date a column of dates shows (null when the row has none).
struct ListItem
{
    QString text;
    std::array<QString, 5> subItems;
    QString key;
    QString tag;
    bool tagIsNull = true;
    QString iconKey;
    QDate date;
};

// Rows a list reads from the database as they come into view, in the database's order:
// the list knows their number and asks for each row when it shows or uses it.
class ListRowSource
{
public:
    virtual ~ListRowSource() = default;
    virtual int count() const = 0;
    // Row `row` of the list (0 <= row < count()), read with its page when not at hand.
    virtual ListItem item(int row) = 0;
    // The row of a key, -1 when the list has none.
    virtual int rowOfKey(const QString& key) = 0;
    virtual void setItemTag(int row, const QString& tag) = 0;
    // Orders the rows by the list's column (its text as the register orders names, or its
    // dates); the rows at hand are dropped.
    virtual void sort(int column, Qt::SortOrder order) = 0;
    // The first row from `from` on, wrapping round once, whose text starts with text
    // (without regard to case); -1 when none does.
    virtual int rowStartingWith(int from, const QString& text) = 0;
};

// The rows and columns of one explorer list. The sort (key, order, whether sorted) is
// the list's own and stays in force across refills; sorting compares the columns' text
// in the order of the register's names (case and Lithuanian letters folded), and a column
// of dates by the dates, rows without one first.
class ListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ListModel(IconCache* icons, QObject* parent = nullptr);

    // A column's text with the marks a search's passage puts around its hit (U+0002 and
    // U+0003); the display text has none.
    static constexpr int MarkedTextRole = Qt::UserRole + 1;

    // Columns: replacing them clears the items.
    void setColumns(const QList<ListColumn>& columns);
    const QList<ListColumn>& columns() const { return m_columns; }
    void clear();
    void clearItems();
    // Replaces all items at once (sorted if the list is sorted).
    void setItems(std::vector<ListItem> items);
    void appendItem(ListItem item);
    // Replaces all items by the rows of source, read as they come into view and sorted by
    // the database in the list's sort.
    void setSource(std::unique_ptr<ListRowSource> source);
    ListRowSource* source() const { return m_source.get(); }
    int itemCount() const { return m_source ? m_source->count() : int(m_items.size()); }
    ListItem item(int row) const;
    int rowOfKey(const QString& key) const;
    // Gives the item of row another file path (its tag), as after a move of its file.
    void setItemTag(int row, const QString& tag);

    // Large or small pictures for the items (large icons view, or the others).
    void setLargeIcons(bool large);
    // With large pictures, a PDF's or an image's row shows its thumbnail once it is made,
    // its type's picture until then.
    void setThumbnails(Thumbnails* thumbnails);

    int sortKey() const { return m_sortKey; }
    Qt::SortOrder sortOrder() const { return m_sortOrder; }
    bool isSorted() const { return m_sorted; }
    void setSort(int column, Qt::SortOrder order);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
        Qt::MatchFlags flags) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override;

    // The files a drag out of the list offers (none: the dragged items' own tags).
    std::function<QStringList()> dragFiles;

    // The text an item shows in a column.
    static const QString& columnText(const ListItem& item, int column);

Q_SIGNALS:
    // setColumns replaced the columns (their widths are the model's again).
    void columnsReplaced();
    // setSort gave the list another sort key or order.
    void sortChanged();

private:
    void applySort();
    void onThumbnailReady(const QString& path);

    IconCache* m_icons;
    Thumbnails* m_thumbnails = nullptr;
    // The rows that showed their type's picture while their thumbnail was being made.
    mutable QHash<QString, QList<int>> m_awaitingThumbnails;
    QList<ListColumn> m_columns;
    std::vector<ListItem> m_items;
    std::unique_ptr<ListRowSource> m_source;
    bool m_largeIcons = false;
    int m_sortKey = 0;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    bool m_sorted = false;
};

} // namespace kartella
