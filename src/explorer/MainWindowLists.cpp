// MainWindow: what the user does with the two lists and the tree besides a plain click.
#include "explorer/ExplorerList.h"
#include "explorer/InboxView.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "store/engine/WriteContext.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

namespace kartella {

void MainWindow::sortColumn(ExplorerList* list, int column)
{
    ListModel* model = list->model();
    // The empty state has one column: the headers asked for aren't there.
    if (column < 0 || column >= model->columnCount())
        return;
    Qt::SortOrder order = Qt::AscendingOrder;
    if (model->isSorted() && column == model->sortKey())
        order = model->sortOrder() == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    const int selected = list->selectedRow();
    const QString selectedKey = selected >= 0 ? model->item(selected).key : QString();
    model->setSort(column, order);
    if (!selectedKey.isEmpty())
        list->selectRow(model->rowOfKey(selectedKey));
    list->scrollToSelected();
}

void MainWindow::onDocumentColumnClicked(int column)
{
    sortColumn(m_documents, column);
}

void MainWindow::onRelatedColumnClicked(int column)
{
    sortColumn(m_related, column);
}

void MainWindow::arrangeByName()
{
    onDocumentColumnClicked(0);
}

void MainWindow::arrangeByRegIndex()
{
    onDocumentColumnClicked(1);
}

void MainWindow::arrangeByCorrespondent()
{
    onDocumentColumnClicked(2);
}

void MainWindow::arrangeByDate()
{
    // "by Date" sorts the column that bears the caption "Date".
    onDocumentColumnClicked(3);
}

void MainWindow::setView(int view)
{
    m_documents->setView(view);
    m_related->setView(view);
    const char* const entries[] = {"mnuLargeIcons", "mnuSmallIcons", "mnuList", "mnuDetails"};
    for (int i = 0; i < 4; ++i)
        action(QLatin1String(entries[i]))->setChecked(i == view);
    storeView();
}

void MainWindow::viewLargeIcons()
{
    setView(ExplorerList::LargeIcons);
}

void MainWindow::viewSmallIcons()
{
    setView(ExplorerList::SmallIcons);
}

void MainWindow::viewList()
{
    setView(ExplorerList::List);
}

void MainWindow::viewDetails()
{
    setView(ExplorerList::Report);
}

void MainWindow::onDocumentDoubleClicked()
{
    if (m_inbox->isShown())
        return m_inbox->registerSelectedFile();
    openDocumentFile(m_state.selectedFilePath, QStringLiteral("open"));
}

void MainWindow::onRelatedDoubleClicked()
{
    openDocumentFile(m_state.selectedFilePath, QStringLiteral("open"));
}

void MainWindow::enablePopupCommands()
{
    // Each entry of the menu as its File menu command stands.
    static const std::pair<const char*, const char*> entries[]
        = {{"mnuPopNew", "mnuNew"}, {"mnuPopOpen", "mnuOpen"}, {"mnuPopCopy", "mnuCopy"},
            {"mnuPopDelete", "mnuDelete"}, {"mnuPopPrint", "mnuPrint"}, {"mnuPopRelated", "mnuRelated"},
            {"mnuPopDetails", "mnuShowDetails"}, {"mnuPopProperties", "mnuProperties"}};
    for (const auto& [entry, command] : entries)
        setCommandEnabled(
            QLatin1String(entry), action(QLatin1String(command))->property("wantedEnabled").toBool());
}

void MainWindow::onDocumentListPressed(Qt::MouseButton button, const QPoint& globalPos)
{
    if (button != Qt::RightButton)
        return;
    // Beside the rows, or in an empty list, the menu offers what needs no document.
    enablePopupCommands();
    setCommandEnabled(
        QStringLiteral("mnuPopNewVersion"), action(QStringLiteral("mnuPopDetails"))->isEnabled());
    action(QStringLiteral("mnuPopRelated"))->setVisible(true);
    action(QStringLiteral("mnuhypen14"))->setVisible(true);
    popupMenu(m_documentMenu, globalPos);
}

void MainWindow::onRelatedListPressed(Qt::MouseButton button, const QPoint& globalPos)
{
    QCoreApplication::processEvents();
    if (button != Qt::RightButton)
        return;
    enablePopupCommands();
    // A related document's file is no document's own: it keeps no versions.
    setCommandEnabled(QStringLiteral("mnuPopNewVersion"), false);
    action(QStringLiteral("mnuPopRelated"))->setVisible(false);
    action(QStringLiteral("mnuhypen14"))->setVisible(false);
    popupMenu(m_documentMenu, globalPos);
}

void MainWindow::onTreePressed(Qt::MouseButton button, const QPoint& globalPos)
{
    if (button != Qt::RightButton)
        return;
    if (m_state.currentCategoryId == 0) {
        setCommandEnabled(QStringLiteral("mnuCategoryOptions"), false);
        setCommandEnabled(QStringLiteral("mnuDeleteCategory"), false);
        return;
    }
    if (m_categoryView)
        popupMenu(m_categoryMenu, globalPos);
}

void MainWindow::onFilesDropped(const QStringList& paths)
{
    // Each file opens the New Document dialog with its path in the Location box, one after another.
    if (!hasDialog(QStringLiteral("frmNewDocument")))
        return;
    const CommandScope command(QStringLiteral("New Document"));
    for (const QString& path : paths)
        openDialog(QStringLiteral("frmNewDocument"), path);
}

void MainWindow::onRelatedFilesDropped(const QStringList& paths)
{
    // Each file opens the New Related Document dialog the same way.
    if (!hasDialog(QStringLiteral("frmRelated")))
        return;
    const CommandScope command(QStringLiteral("Related"));
    for (const QString& path : paths)
        openDialog(QStringLiteral("frmRelated"), path);
}

} // namespace kartella
