// Form2: the tree's fills and node click, the lists' item clicks and the related list.
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/Form2.h"
#include "explorer/ListModel.h"
#include "explorer/NavigationTree.h"
#include "explorer/RelatedFill.h"
#include "explorer/SelectionState.h"
#include "explorer/TreeFills.h"
#include "support/BusyCursor.h"
#include "support/Error.h"

#include <QGuiApplication>
#include <QSplitter>

namespace kartella {

void Form2::FillCategoryTree()
{
    try {
        const BusyCursor busy;
        BuildCategoryTree(*m_tree);
    } catch (const Error& error) {
        // Only an unusable register is reported; any other error leaves the tree as far as it got.
        if (error.number() == ErrorNumber::ConnectionFailed) {
            reportConnectionError(error.number(), error.description());
            if (openSettings)
                openSettings();
        }
    }
}

void Form2::FillContactTree()
{
    try {
        const BusyCursor busy;
        BuildContactTree(*m_tree);
    } catch (const Error& error) {
        reportConnectionError(error.number(), error.description());
    }
}

void Form2::acxTreeKategorijos_NodeClick(QTreeWidgetItem* node)
{
    const int index = NavigationTree::nodeIndex(node);
    if (index == LastNodeIndex)
        return;
    const QString key = NavigationTree::nodeKey(node);
    if (key.compare(QLatin1String("ALL"), Qt::CaseInsensitive) == 0) {
        modListDocum1(0, direction());
        LastNodeIndex = index;
        setWindowTitle(node->text(0));
        m_state.CurrentCategoryId = 0;
        m_state.CurrentSubCategoryId = 0;
        setCommandEnabled(QStringLiteral("mnuCategoryOptions"), false);
        showRelatedList(false);
        return;
    }
    LastNodeIndex = index;
    if (CategoryView) {
        m_state.CurrentNodeKind = key.left(1);
        if (m_state.CurrentNodeKind == QLatin1String("a")) {
            m_state.CurrentCategoryId = key.mid(1).toInt();
            m_state.CurrentSubCategoryId = 0;
            modListDocum1(m_state.CurrentCategoryId, direction());
        } else if (m_state.CurrentNodeKind == QLatin1String("b")) {
            m_state.CurrentCategoryId = NavigationTree::nodeKey(node->parent()).mid(1).toInt();
            m_state.CurrentSubCategoryId = key.mid(1).toInt();
            modListDocum2(m_state.CurrentCategoryId, m_state.CurrentSubCategoryId, direction());
        }
        setCommandEnabled(QStringLiteral("mnuCategoryOptions"), true);
        setCommandEnabled(QStringLiteral("mnuDeleteCategory"), true);
        setWindowTitle(QStringLiteral("Exploring Category — ") + node->text(0));
    } else if (key.size() == 1) {
        m_state.CurrentLetterCode = qint16(key.at(0).unicode());
        ListByLetter(m_state.CurrentLetterCode, direction());
        setWindowTitle(QStringLiteral("Exploring  — ") + node->text(0));
    } else {
        m_state.CurrentLetterCode = 0;
        m_state.CurrentContactId = key.mid(2).toInt();
        ListByContact(direction());
        setWindowTitle(QStringLiteral("Exploring Contact  — ") + node->text(0));
    }
    m_state.SelectedDocumentId = 0;
    DisableDocumentCommands();
    FillRelatedList();
}

void Form2::ListDokSarasas_ItemClick(int row)
{
    if (row < 0 || row >= m_documentModel->itemCount())
        return;
    const ListItem& item = m_documentModel->item(row);
    if (item.key.compare(DocumentFills::EmptyKey, Qt::CaseInsensitive) == 0)
        return;
    m_state.SelectedDocumentId = DocumentFills::IdOfKey(item.key);
    m_state.SelectedItemText = item.text;
    m_state.ActiveListName = QStringLiteral("ListDokSarasas");
    m_state.SelectedFilePath = item.tag;
    setCommandEnabled(QStringLiteral("mnuRelated"), true);
    setCommandEnabled(QStringLiteral("mnuShowDetails"), true);
    UpdateCommandState();
    FillRelatedList();
}

void Form2::ListSusieti_ItemClick(int row)
{
    if (row < 0 || row >= m_relatedModel->itemCount())
        return;
    const ListItem& item = m_relatedModel->item(row);
    m_state.ActiveListName = QStringLiteral("ListSusieti");
    m_state.SelectedItemText = item.text;
    m_state.SelectedSubDocumentId = DocumentFills::IdOfKey(item.key);
    m_state.SelectedFilePath = item.tag;
    setCommandEnabled(QStringLiteral("mnuRelated"), false);
    setCommandEnabled(QStringLiteral("mnuShowDetails"), true);
    UpdateCommandState();
}

void Form2::FillRelatedList()
{
    bool found = false;
    try {
        found = FillRelatedRows(*m_relatedModel, m_state);
    } catch (const Error& error) {
        reportConnectionError(error.number(), error.description());
        m_relatedModel->clear();
    }
    showRelatedList(found);
}

void Form2::showRelatedList(bool visible)
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
