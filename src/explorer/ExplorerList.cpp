#include "explorer/ExplorerList.h"

#include "explorer/ListModel.h"
#include "options/OptionStore.h"
#include "support/ColumnWidths.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QListView>
#include <QMimeData>
#include <QMouseEvent>
#include <QStackedLayout>
#include <QTreeView>
#include <QUrl>

namespace kartella {

namespace {
constexpr int SmallIconSize = 16;
constexpr int LargeIconSize = 32;
} // namespace

ExplorerList::ExplorerList(ListModel* model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_stack(new QStackedLayout(this))
    , m_details(new QTreeView(this))
    , m_icons(new QListView(this))
    , m_selection(new QItemSelectionModel(model, this))
{
    m_stack->setContentsMargins(0, 0, 0, 0);

    m_details->setModel(model);
    m_details->setSelectionModel(m_selection);
    m_details->setRootIsDecorated(false);
    m_details->setItemsExpandable(false);
    m_details->setUniformRowHeights(true);
    m_details->setAllColumnsShowFocus(true);
    m_details->setSortingEnabled(false);
    m_details->setIconSize(QSize(SmallIconSize, SmallIconSize));
    m_details->header()->setSectionsClickable(true);
    m_details->header()->setSectionsMovable(false);
    m_details->header()->setStretchLastSection(false);
    connect(m_details->header(), &QHeaderView::sectionClicked, this, &ExplorerList::columnClicked);

    m_icons->setModel(model);
    m_icons->setSelectionModel(m_selection);
    m_icons->setUniformItemSizes(true);
    m_icons->setMovement(QListView::Static);
    m_icons->setResizeMode(QListView::Adjust);
    m_icons->setWrapping(true);

    for (QAbstractItemView* view :
        {static_cast<QAbstractItemView*>(m_details), static_cast<QAbstractItemView*>(m_icons)}) {
        view->setSelectionMode(QAbstractItemView::SingleSelection);
        view->setSelectionBehavior(QAbstractItemView::SelectRows);
        view->setEditTriggers(QAbstractItemView::NoEditTriggers);
        view->setDragDropMode(QAbstractItemView::NoDragDrop);
        view->viewport()->installEventFilter(this);
        view->installEventFilter(this);
        connect(view, &QAbstractItemView::pressed, this, &ExplorerList::onClicked);
        connect(view, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT doubleClickedItem(index.row()); });
        m_stack->addWidget(view);
    }
    connect(m_selection, &QItemSelectionModel::selectionChanged, this, &ExplorerList::onSelectionChanged);
    // New columns get the model's widths; a sort or a refill keeps those the user gave them.
    connect(model, &ListModel::columnsReplaced, this, &ExplorerList::applyColumnWidths);
    // A reset drops the selection without a word: say so.
    connect(model, &QAbstractItemModel::modelReset, this, &ExplorerList::onSelectionChanged);
    connect(model, &QAbstractItemModel::modelReset, this, &ExplorerList::showSortIndicator);
    connect(model, &ListModel::sortChanged, this, &ExplorerList::storeSort);
    m_stack->setCurrentWidget(m_details);
    setFocusProxy(m_details);
}

QAbstractItemView* ExplorerList::currentView() const
{
    return m_view == Report ? static_cast<QAbstractItemView*>(m_details) : m_icons;
}

void ExplorerList::setView(int view)
{
    m_view = qBound(int(LargeIcons), view, int(Report));
    m_model->setLargeIcons(m_view == LargeIcons);
    switch (m_view) {
    case LargeIcons:
        m_icons->setViewMode(QListView::IconMode);
        m_icons->setFlow(QListView::LeftToRight);
        m_icons->setIconSize(QSize(LargeIconSize, LargeIconSize));
        m_icons->setGridSize(QSize(LargeIconSize * 4, LargeIconSize * 2 + fontMetrics().height() * 2));
        m_icons->setWordWrap(true);
        break;
    case SmallIcons:
        m_icons->setViewMode(QListView::ListMode);
        m_icons->setFlow(QListView::LeftToRight);
        m_icons->setIconSize(QSize(SmallIconSize, SmallIconSize));
        m_icons->setGridSize(QSize(twipsToPixels(2000, this), fontMetrics().height() + 6));
        m_icons->setWordWrap(false);
        break;
    case List:
        m_icons->setViewMode(QListView::ListMode);
        m_icons->setFlow(QListView::TopToBottom);
        m_icons->setIconSize(QSize(SmallIconSize, SmallIconSize));
        m_icons->setGridSize(QSize());
        m_icons->setWordWrap(false);
        break;
    default:
        break;
    }
    m_icons->setWrapping(true);
    m_stack->setCurrentWidget(currentView());
    setFocusProxy(currentView());
    scrollToSelected();
}

int ExplorerList::selectedRow() const
{
    const QModelIndexList rows = m_selection->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void ExplorerList::selectRow(int row)
{
    if (row < 0 || row >= m_model->rowCount()) {
        m_selection->clearSelection();
        return;
    }
    m_selection->setCurrentIndex(
        m_model->index(row, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ExplorerList::scrollToSelected()
{
    const int row = selectedRow();
    if (row >= 0)
        currentView()->scrollTo(m_model->index(row, 0));
}

int ExplorerList::twipsToPixels(int twips, const QWidget* widget)
{
    const int dpi = widget ? widget->logicalDpiX() : 96;
    return twips * dpi / 1440;
}

void ExplorerList::applyColumnWidths()
{
    const QList<ListColumn>& columns = m_model->columns();
    for (int i = 0; i < columns.size(); ++i)
        m_details->setColumnWidth(i, twipsToPixels(columns[i].widthTwips, this));
    if (m_userWidths)
        m_userWidths->apply();
}

void ExplorerList::rememberColumnWidths(const QString& optionName)
{
    m_userWidths = ColumnWidths::attach(m_details->header(), optionName);
}

void ExplorerList::rememberSort(const QString& optionName)
{
    m_sortOption = optionName;
    // "column,order": the column from 0, the order 0 ascending or 1 descending.
    const QStringList stored = readRegValue(Hive::CurrentUser, optionsKeyPath(), optionName, {}).split(u',');
    bool columnRead = false;
    bool orderRead = false;
    const int column = stored.value(0).toInt(&columnRead);
    const int order = stored.value(1).toInt(&orderRead);
    if (stored.size() != 2 || !columnRead || !orderRead || column < 0 || (order != 0 && order != 1))
        return;
    // The columns may come later: the model keeps the sort for them.
    const QSignalBlocker quiet(m_model);
    m_model->setSort(column, order == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
    showSortIndicator();
}

void ExplorerList::storeSort()
{
    if (m_sortOption.isEmpty() || !m_model->isSorted())
        return;
    writeRegValue(Hive::CurrentUser, optionsKeyPath(), m_sortOption,
        QStringLiteral("%1,%2")
            .arg(m_model->sortKey())
            .arg(m_model->sortOrder() == Qt::AscendingOrder ? 0 : 1));
}

void ExplorerList::showSortIndicator()
{
    QHeaderView* header = m_details->header();
    const bool shown = m_model->isSorted() && m_model->sortKey() < m_model->columnCount();
    header->setSortIndicatorShown(shown);
    if (shown)
        header->setSortIndicator(m_model->sortKey(), m_model->sortOrder());
}

void ExplorerList::setAcceptFileDrops(bool accept)
{
    m_acceptDrops = accept;
    for (QAbstractItemView* view :
        {static_cast<QAbstractItemView*>(m_details), static_cast<QAbstractItemView*>(m_icons)})
        view->viewport()->setAcceptDrops(accept);
}

void ExplorerList::setDragFilesOut(bool enabled)
{
    for (QAbstractItemView* view :
        {static_cast<QAbstractItemView*>(m_details), static_cast<QAbstractItemView*>(m_icons)}) {
        view->setDragEnabled(enabled);
        view->setDefaultDropAction(Qt::CopyAction);
    }
}

void ExplorerList::onSelectionChanged()
{
    // Whatever highlights a row makes it the one the commands act on.
    m_movedSincePress = true;
    const int row = selectedRow();
    if (row >= 0)
        Q_EMIT itemClicked(row);
    else
        Q_EMIT highlightCleared();
}

void ExplorerList::onClicked(const QModelIndex& index)
{
    // A press that moved the selection was answered already; a press on the highlighted
    // row counts as a click of its own.
    if (index.isValid() && !m_movedSincePress)
        Q_EMIT itemClicked(index.row());
}

bool ExplorerList::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::RightButton) {
            // The menu acts on the row under the pointer; beside the rows, on the one highlighted.
            const QModelIndex under = currentView()->indexAt(mouse->position().toPoint());
            if (watched == currentView()->viewport() && under.isValid() && under.row() != selectedRow())
                selectRow(under.row());
            Q_EMIT pressed(mouse->button(), mouse->globalPosition().toPoint());
            return true;
        }
        Q_EMIT pressed(mouse->button(), mouse->globalPosition().toPoint());
        m_movedSincePress = false;
        break;
    }
    case QEvent::KeyPress: {
        // Enter opens the highlighted row, as a double click does.
        auto* key = static_cast<QKeyEvent*>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (enter && (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && selectedRow() >= 0) {
            Q_EMIT doubleClickedItem(selectedRow());
            return true;
        }
        break;
    }
    case QEvent::ContextMenu: {
        // The menu key acts as the right button over the selected item.
        auto* menu = static_cast<QContextMenuEvent*>(event);
        if (menu->reason() == QContextMenuEvent::Keyboard) {
            QAbstractItemView* view = currentView();
            const int row = selectedRow();
            const QPoint local = row >= 0 ? view->visualRect(m_model->index(row, 0)).center() : QPoint(8, 8);
            Q_EMIT pressed(Qt::RightButton, view->viewport()->mapToGlobal(local));
        }
        return true;
    }
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto* drag = static_cast<QDropEvent*>(event);
        if (m_acceptDrops && drag->mimeData()->hasUrls() && drag->source() == nullptr) {
            drag->setDropAction(Qt::CopyAction);
            drag->accept();
            return true;
        }
        break;
    }
    case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        if (!m_acceptDrops || !drop->mimeData()->hasUrls())
            break;
        QStringList paths;
        for (const QUrl& url : drop->mimeData()->urls()) {
            if (url.isLocalFile())
                paths << url.toLocalFile();
        }
        drop->setDropAction(Qt::CopyAction);
        drop->accept();
        const QModelIndex target = watched == currentView()->viewport()
            ? currentView()->indexAt(drop->position().toPoint())
            : QModelIndex();
        if (paths.size() == 1 && target.isValid() && drop->modifiers().testFlag(Qt::ShiftModifier))
            Q_EMIT fileDroppedOnItem(paths.first(), target.row());
        else if (!paths.isEmpty())
            Q_EMIT filesDropped(paths);
        return true;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kartella
