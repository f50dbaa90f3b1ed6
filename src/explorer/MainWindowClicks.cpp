// MainWindow: the tree's fills and node click, the lists' item clicks and the related list.
#include "base/Error.h"
#include "explorer/DeletedItemsNode.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/InboxView.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "explorer/RelatedFill.h"
#include "explorer/TreeFills.h"
#include "history/DeletedItemsWindow.h"
#include "options/OptionStore.h"
#include "store/SchemaSteps.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "support/BusyCursor.h"
#include "support/SelectionState.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QSplitter>

namespace kartella {

namespace {

bool serverHoldsRegister()
{
    Connection connection;
    connection.open(plainConnectionString());
    return schemaVersion(connection) > 0;
}

} // namespace

void MainWindow::fillCategoryTree()
{
    try {
        const BusyCursor busy;
        // A database file opens empty where there is nothing in it; it is no register. A
        // location on a server names no file.
        const QString written = getRegValue(QStringLiteral("DbLocation"));
        const QFileInfo location(written);
        if (!isServerLocation(written) && location.isFile() && location.size() == 0)
            throw Error(ErrorNumber::ConnectionFailed,
                tr("'%1' is not a register: the file is empty.").arg(location.filePath()));
        // A database on a server opens whatever it holds; one without a register of ours
        // would show as a tree without even its root.
        if (isServerLocation(written) && !serverHoldsRegister())
            throw Error(ErrorNumber::ConnectionFailed,
                tr("The database '%1' holds no register.").arg(written.trimmed()));
        buildCategoryTree(*m_tree);
        m_inbox->addNode();
    } catch (const Error& error) {
        // Only an unusable register is reported; any other error leaves the tree as far as it got.
        if (error.number() == ErrorNumber::ConnectionFailed) {
            reportConnectionError(error.number(), error.description());
            if (openSettings)
                openSettings();
        }
    }
}

void MainWindow::fillContactTree()
{
    try {
        const BusyCursor busy;
        buildContactTree(*m_tree);
        m_inbox->addNode();
    } catch (const Error& error) {
        reportConnectionError(error.number(), error.description());
    }
}

void MainWindow::onNodeClicked(QTreeWidgetItem* node)
{
    if (NavigationTree::nodeKey(node) == DeletedItemsKey) {
        DeletedItemsWindow window(this);
        window.exec();
        window.changed() ? refresh() : m_tree->selectNode(m_tree->nodeByKey(m_lastNodeKey));
        return;
    }
    // A click leaves a search shown, also on the node last clicked.
    if (leaveSearch())
        m_lastNodeIndex = 0;
    const int index = NavigationTree::nodeIndex(node);
    if (index == m_lastNodeIndex) {
        refillList();
        return;
    }
    const QString key = NavigationTree::nodeKey(node);
    m_lastNodeKey = key;
    if (InboxView::isInboxNode(node)) {
        m_lastNodeIndex = index;
        m_inbox->show();
        return;
    }
    if (key.compare(QLatin1String("ALL"), Qt::CaseInsensitive) == 0) {
        listCategory(0, direction());
        m_lastNodeIndex = index;
        setWindowTitle(node->text(0));
        m_state.currentCategoryId = 0;
        m_state.currentSubCategoryId = 0;
        setCommandEnabled(QStringLiteral("mnuCategoryOptions"), false);
        showRelatedList(false);
        return;
    }
    m_lastNodeIndex = index;
    if (m_categoryView) {
        m_state.currentNodeKind = key.left(1);
        if (m_state.currentNodeKind == QLatin1String("a")) {
            m_state.currentCategoryId = key.mid(1).toInt();
            m_state.currentSubCategoryId = 0;
            listCategory(m_state.currentCategoryId, direction());
        } else if (m_state.currentNodeKind == QLatin1String("b")) {
            m_state.currentCategoryId = NavigationTree::nodeKey(node->parent()).mid(1).toInt();
            m_state.currentSubCategoryId = key.mid(1).toInt();
            listSubCategory(m_state.currentCategoryId, m_state.currentSubCategoryId, direction());
        }
        setCommandEnabled(QStringLiteral("mnuCategoryOptions"), true);
        setCommandEnabled(QStringLiteral("mnuDeleteCategory"), true);
        setWindowTitle(tr("Exploring Category — %1").arg(node->text(0)));
    } else if (key.size() == 1) {
        m_state.currentLetterCode = qint16(key.at(0).unicode());
        listByLetter(m_state.currentLetterCode, direction());
        setWindowTitle(tr("Exploring  — %1").arg(node->text(0)));
    } else {
        m_state.currentLetterCode = 0;
        m_state.currentContactId = key.mid(2).toInt();
        listByContact(direction());
        setWindowTitle(tr("Exploring Contact  — %1").arg(node->text(0)));
    }
    m_state.selectedDocumentId = 0;
    disableDocumentCommands();
    fillRelatedList();
}

MainWindow::KeptSelection MainWindow::keptSelection() const
{
    // The documents the commands act on, which are those highlighted.
    KeptSelection kept;
    if (m_state.activeListName.isEmpty() || m_state.selectedDocumentId == 0)
        return kept;
    kept.document = DocumentFills::itemKey(m_state.selectedDocumentId);
    kept.relatedActive = m_state.activeListName == QLatin1String("ListSusieti");
    if (kept.relatedActive && m_state.selectedSubDocumentId != 0)
        kept.related = DocumentFills::itemKey(m_state.selectedSubDocumentId);
    return kept;
}

void MainWindow::restoreSelection(const KeptSelection& kept)
{
    const int document = kept.document.isEmpty() ? -1 : m_documentModel->rowOfKey(kept.document);
    if (document < 0)
        return;
    // The highlight fills the related list of the document again.
    m_documents->selectRow(document);
    m_documents->scrollToSelected();
    const int related = kept.related.isEmpty() ? -1 : m_relatedModel->rowOfKey(kept.related);
    if (related >= 0 && kept.relatedActive)
        m_related->selectRow(related);
}

void MainWindow::refillList()
{
    const KeptSelection kept = keptSelection();
    if (!refillSearch()) {
        if (!m_refill)
            return;
        m_refill();
    }
    restoreSelection(kept);
    if (m_documents->selectedRow() < 0)
        fillRelatedList();
}

void MainWindow::showNodeAgain()
{
    QTreeWidgetItem* node = m_tree->nodeByKey(m_lastNodeKey);
    if (node) {
        m_tree->selectNode(node);
        m_lastNodeIndex = NavigationTree::nodeIndex(node);
        refillList();
        return;
    }
    if (m_categoryView && m_lastNodeKey.startsWith(u'b'))
        node = m_tree->nodeByKey(QStringLiteral("a") + QString::number(m_state.currentCategoryId));
    if (!node)
        node = m_tree->nodeByKey(QStringLiteral("ALL"));
    if (!node)
        return;
    const KeptSelection kept = keptSelection();
    m_tree->selectNode(node);
    m_lastNodeIndex = 0;
    onNodeClicked(node);
    restoreSelection(kept);
}

void MainWindow::onDocumentClicked(int row)
{
    if (m_inbox->isShown())
        return m_inbox->onFileClicked(row);
    if (row < 0 || row >= m_documentModel->itemCount())
        return;
    const ListItem& item = m_documentModel->item(row);
    if (item.key.compare(DocumentFills::EmptyKey, Qt::CaseInsensitive) == 0)
        return;
    m_state.selectedDocumentId = DocumentFills::idOfKey(item.key);
    m_state.selectedItemText = item.text;
    m_state.activeListName = QStringLiteral("ListDokSarasas");
    m_state.selectedFilePath = item.tag;
    setCommandEnabled(QStringLiteral("mnuRelated"), true);
    setCommandEnabled(QStringLiteral("mnuShowDetails"), true);
    updateCommandState();
    fillRelatedList();
}

void MainWindow::onRelatedClicked(int row)
{
    if (row < 0 || row >= m_relatedModel->itemCount())
        return;
    const ListItem& item = m_relatedModel->item(row);
    m_state.activeListName = QStringLiteral("ListSusieti");
    m_state.selectedItemText = item.text;
    m_state.selectedSubDocumentId = DocumentFills::idOfKey(item.key);
    m_state.selectedFilePath = item.tag;
    setCommandEnabled(QStringLiteral("mnuRelated"), false);
    setCommandEnabled(QStringLiteral("mnuShowDetails"), true);
    updateCommandState();
}

void MainWindow::onDocumentHighlightCleared()
{
    // The document last highlighted may be gone from sight (a click beside the rows, a
    // Ctrl+click on it, a refill): forget it and its related documents, so that the
    // commands answer as they do before any click and nothing is made without a parent.
    // Before the first click the toolbar stays as the start leaves it.
    const bool hadDocument = !m_state.activeListName.isEmpty() || m_state.selectedDocumentId != 0;
    m_state.activeListName.clear();
    m_state.selectedDocumentId = 0;
    m_state.selectedSubDocumentId = 0;
    m_state.selectedItemText.clear();
    m_state.selectedFilePath.clear();
    if (hadDocument)
        disableDocumentCommands();
    m_relatedModel->clear();
    showRelatedList(false);
}

void MainWindow::onRelatedHighlightCleared()
{
    m_state.selectedSubDocumentId = 0;
    if (m_state.activeListName != QLatin1String("ListSusieti"))
        return;
    // The related document was the one acted on: its parent stays highlighted above.
    const int row = m_documents->selectedRow();
    if (row >= 0)
        onDocumentClicked(row);
    else
        onDocumentHighlightCleared();
}

void MainWindow::fillRelatedList()
{
    bool found = false;
    try {
        found = fillRelatedRows(*m_relatedModel, m_state);
    } catch (const Error& error) {
        reportConnectionError(error.number(), error.description());
        m_relatedModel->clear();
    }
    showRelatedList(found);
}

void MainWindow::showRelatedList(bool visible)
{
    m_related->setVisible(visible);
    if (!visible)
        return;
    // The document list takes 0.8 of the tree's height, the related list the rest.
    const int height = m_tree->height();
    const int documents = int(height * 0.8);
    m_listSplit->setSizes({documents, qMax(1, height - documents)});
}

} // namespace kartella
