// MainWindow: the dialogs its commands open, each registered under its window's name.

#include "categories/CategoryDialog.h"
#include "categories/NewCategoryDialog.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "registration/NewDocumentDialog.h"
#include "support/SelectionState.h"

#include <QTreeWidgetItem>

namespace kartella {

namespace {

// The category dialogs move the current category to the one they show; once closed, the
// category is again that of the node the user sees selected in the tree, so that a command
// on the tree never acts on another. A node of the contact tree leaves it as it was.
void restoreCategoryOfSelectedNode(const MainWindow& window, qint32 before)
{
    qint32 category = before;
    const QTreeWidgetItem* node = window.tree()->currentItem();
    if (window.isCategoryView() && node) {
        const QString key = NavigationTree::nodeKey(node);
        if (key.startsWith(QLatin1Char('a')))
            category = key.mid(1).toInt();
        else if (key.startsWith(QLatin1Char('b')) && node->parent())
            category = NavigationTree::nodeKey(node->parent()).mid(1).toInt();
        else
            category = 0;
    }
    selection().currentCategoryId = category;
}

template<typename Dialog>
void openCategoryDialog(MainWindow* window)
{
    const qint32 before = selection().currentCategoryId;
    {
        Dialog dialog(window);
        dialog.exec();
    }
    restoreCategoryOfSelectedNode(*window, before);
}

} // namespace

void MainWindow::registerDialogs()
{
    setDialog(QStringLiteral("frmNewDocument"), [this](const QString& file) {
        NewDocumentDialog dialog(this);
        if (!file.isEmpty())
            dialog.setLocation(file);
        dialog.exec();
    });
    setDialog(QStringLiteral("frmNewCategory"),
        [this](const QString&) { openCategoryDialog<NewCategoryDialog>(this); });
    setDialog(
        QStringLiteral("frmCategory"), [this](const QString&) { openCategoryDialog<CategoryDialog>(this); });
}

} // namespace kartella
