// Form2: what the user does with the two lists and the tree besides a plain click.
#include "explorer/ExplorerList.h"
#include "explorer/Form2.h"
#include "explorer/ListModel.h"
#include "explorer/SelectionState.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

namespace kartella {

void Form2::sortColumn(ExplorerList* list, int column)
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

void Form2::ListDokSarasas_ColumnClick(int column)
{
    sortColumn(m_documents, column);
}

void Form2::ListSusieti_ColumnClick(int column)
{
    sortColumn(m_related, column);
}

void Form2::mnubyName_Click()
{
    ListDokSarasas_ColumnClick(0);
}

void Form2::mnubyRegIndex_Click()
{
    ListDokSarasas_ColumnClick(1);
}

void Form2::mnubyCorrespondent_Click()
{
    ListDokSarasas_ColumnClick(2);
}

void Form2::mnubyDate_Click()
{
    // "by Date" sorts the column that bears the caption "Date".
    ListDokSarasas_ColumnClick(3);
}

void Form2::setView(int view)
{
    m_documents->SetView(view);
    m_related->SetView(view);
    const char* const entries[] = {"mnuLargeIcons", "mnuSmallIcons", "mnuList", "mnuDetails"};
    for (int i = 0; i < 4; ++i)
        action(QLatin1String(entries[i]))->setChecked(i == view);
}

void Form2::mnuLargeIcons_Click()
{
    setView(ExplorerList::LargeIcons);
}

void Form2::mnuSmallIcons_Click()
{
    setView(ExplorerList::SmallIcons);
}

void Form2::mnuList_Click()
{
    setView(ExplorerList::List);
}

void Form2::mnuDetails_Click()
{
    setView(ExplorerList::Report);
}

void Form2::ListDokSarasas_DblClick()
{
    OpenDocumentFile(m_state.SelectedFilePath, QStringLiteral("open"));
}

void Form2::ListSusieti_DblClick()
{
    OpenDocumentFile(m_state.SelectedFilePath, QStringLiteral("open"));
}

void Form2::ListDokSarasas_MouseDown(Qt::MouseButton button, const QPoint& globalPos)
{
    if (button != Qt::RightButton)
        return;
    const int row = m_documents->selectedRow();
    if (row < 0 || m_documentModel->item(row).key.compare(QLatin1String("Empty"), Qt::CaseInsensitive) == 0)
        return;
    action(QStringLiteral("mnuPopRelated"))->setVisible(true);
    action(QStringLiteral("mnuhypen14"))->setVisible(true);
    popupMenu(m_popUp, globalPos);
}

void Form2::ListSusieti_MouseDown(Qt::MouseButton button, const QPoint& globalPos)
{
    QCoreApplication::processEvents();
    if (button != Qt::RightButton)
        return;
    action(QStringLiteral("mnuPopRelated"))->setVisible(false);
    action(QStringLiteral("mnuhypen14"))->setVisible(false);
    popupMenu(m_popUp, globalPos);
}

void Form2::acxTreeKategorijos_MouseDown(Qt::MouseButton button, const QPoint& globalPos)
{
    if (button != Qt::RightButton)
        return;
    if (m_state.CurrentCategoryId == 0) {
        setCommandEnabled(QStringLiteral("mnuCategoryOptions"), false);
        setCommandEnabled(QStringLiteral("mnuDeleteCategory"), false);
        return;
    }
    if (CategoryView)
        popupMenu(m_popCat, globalPos);
}

void Form2::ListDokSarasas_OLEDragDrop(const QStringList& paths)
{
    // Each file opens the New Document dialog with its path in the Location box, one after another.
    if (!hasDialog(QStringLiteral("frmNewDocument")))
        return;
    for (const QString& path : paths)
        openDialog(QStringLiteral("frmNewDocument"), path);
}

} // namespace kartella
