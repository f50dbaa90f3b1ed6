#pragma once

#include <QWidget>

class QListView;
class QStackedLayout;
class QTreeView;
class QAbstractItemView;
class QItemSelectionModel;
class QModelIndex;

namespace kartella {

class ColumnWidths;
class ListModel;

// A list view in the manner of a file explorer: one model shown in one of four views
// (large icons, small icons, list, details with columns), with keyed rows, a sort by
// column, and the mouse and drag-and-drop events the main window acts on.
class ExplorerList : public QWidget
{
    Q_OBJECT

public:
    enum ViewMode { LargeIcons = 0, SmallIcons = 1, List = 2, Report = 3 };

    ExplorerList(ListModel* model, QWidget* parent = nullptr);

    ListModel* model() const { return m_model; }
    int view() const { return m_view; }
    void setView(int view);
    // Row of the selected item, -1 when none.
    int selectedRow() const;
    void selectRow(int row);
    void scrollToSelected();
    // Applies the model's column widths (twips) to the details view, then those the user
    // set, once the list remembers them.
    void applyColumnWidths();
    // Remembers the widths the user gives the details view's columns in the option
    // optionName, across runs; the last column then takes the rest of the list's width.
    void rememberColumnWidths(const QString& optionName);
    // Remembers the list's sort (column and order) in the option optionName, across runs,
    // and gives the list the sort stored there.
    void rememberSort(const QString& optionName);
    // Whether files dropped on the list are taken (emitted as filesDropped, or as
    // fileDroppedOnItem for one file dropped on an item with Shift held).
    void setAcceptFileDrops(bool accept);
    // Whether an item's file can be dragged out of the list.
    void setDragFilesOut(bool enabled);
    // The view showing now, and the two views.
    QAbstractItemView* currentView() const;
    QTreeView* detailsView() const { return m_details; }
    QListView* iconView() const { return m_icons; }

    static int twipsToPixels(int twips, const QWidget* widget);

Q_SIGNALS:
    // An item was highlighted, whatever did it (a click, a key, Space, a drag across the
    // rows, focus, code), or a highlighted item was clicked again.
    void itemClicked(int row);
    // No item is highlighted any more (after a fill, for one).
    void highlightCleared();
    // A row was double-clicked, or Enter was pressed on the highlighted one.
    void doubleClickedItem(int row);
    // A column header was clicked (0-based position).
    void columnClicked(int column);
    // A mouse button went down over the list (Qt button, position on screen); the right
    // button first highlights the row under it.
    void pressed(Qt::MouseButton button, const QPoint& globalPos);
    void filesDropped(const QStringList& paths);
    // One file was dropped with Shift held on the item in row: it is meant for that item.
    void fileDroppedOnItem(const QString& path, int row);
    // A drag of the selected item's file is starting: the receiver gives the file to offer.
    void dragRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void onSelectionChanged();
    void onClicked(const QModelIndex& index);
    // The header's arrow shows the model's sort.
    void showSortIndicator();
    void storeSort();

    ListModel* m_model;
    QStackedLayout* m_stack;
    QTreeView* m_details;
    QListView* m_icons;
    QItemSelectionModel* m_selection;
    ColumnWidths* m_userWidths = nullptr;
    QString m_sortOption;
    int m_view = Report;
    bool m_acceptDrops = false;
    // Whether the selection moved since the last mouse press.
    bool m_movedSincePress = false;
};

} // namespace kartella
