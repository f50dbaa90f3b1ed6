#include "explorer/InboxView.h"

#include "capture/InboxFolder.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/IconCache.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "explorer/RemindersCommand.h"
#include "options/CaptureOptions.h"
#include "platform/Prompter.h"
#include "registration/NewDocumentDialog.h"
#include "store/engine/WriteContext.h"
#include "support/SelectionState.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>

namespace kartella {

const QString InboxView::NodeKey = QStringLiteral("INBOX");

namespace {

const QString ItemPrefix = QStringLiteral("inbox:");
// The node's caption, the window's title and the title of its messages.
QString inboxTitle()
{
    return QCoreApplication::translate("kartella::InboxView", "Inbox");
}

ListItem fileItem(const QFileInfo& file)
{
    ListItem item;
    item.text = file.fileName();
    item.subItems[0] = QLocale::system().formattedDataSize(file.size());
    item.subItems[1] = file.lastModified().toString(QStringLiteral("yyyy.MM.dd HH:mm"));
    item.key = ItemPrefix + file.fileName();
    item.tag = file.absoluteFilePath();
    item.tagIsNull = false;
    item.iconKey = getIconKey(file.absoluteFilePath());
    item.date = file.lastModified().date();
    return item;
}

} // namespace

InboxView::InboxView(MainWindow* window)
    : QObject(window)
    , m_window(window)
    , m_folder(new InboxFolder(this))
{
    m_folder->setFolder(inboxFolder());
    connect(m_folder, &InboxFolder::filesChanged, this, &InboxView::onFilesChanged);
    connect(&captureOptions(), &CaptureOptionsNotifier::inboxFolderChanged, this,
        &InboxView::onFolderOptionChanged);
}

InboxView::~InboxView() = default;

QString InboxView::nodeText() const
{
    return QStringLiteral("%1 (%2)").arg(inboxTitle(), QString::number(m_folder->count()));
}

void InboxView::addNode()
{
    NavigationTree* tree = m_window->m_tree;
    if (!m_folder->isOn() || tree->nodeByKey(NodeKey))
        return;
    // Added last, so that the other nodes keep their indices, and shown first.
    QTreeWidgetItem* node
        = tree->addNode({}, NodeKey, nodeText(), QStringLiteral("Closed"), QStringLiteral("Open"));
    tree->takeTopLevelItem(tree->indexOfTopLevelItem(node));
    tree->insertTopLevelItem(0, node);
}

bool InboxView::isInboxNode(const QTreeWidgetItem* node)
{
    return NavigationTree::nodeKey(node) == NodeKey;
}

bool InboxView::isShown() const
{
    return m_window->m_lastNodeKey == NodeKey && !m_window->isSearching();
}

void InboxView::show()
{
    SelectionState& state = m_window->m_state;
    state.currentCategoryId = 0;
    state.currentSubCategoryId = 0;
    state.currentNodeKind.clear();
    state.selectedDocumentId = 0;
    m_window->setWindowTitle(inboxTitle());
    m_window->setCommandEnabled(QStringLiteral("mnuCategoryOptions"), false);
    m_window->setCommandEnabled(QStringLiteral("mnuDeleteCategory"), false);
    m_window->disableDocumentCommands();
    m_window->showRelatedList(false);
    m_window->m_refill = [this] { fillList(); };
    fillList();
}

void InboxView::fillList()
{
    ListModel* model = m_window->m_documentModel;
    ExplorerList* list = m_window->m_documents;
    const int selected = list->selectedRow();
    const QString kept = selected >= 0 ? model->item(selected).key : QString();
    const QFileInfoList files = m_folder->files();
    if (files.isEmpty()) {
        m_window->m_fills->showEmptyList();
        return;
    }
    model->setColumns({{tr("Name"), 3500}, {tr("Size"), 1200}, {tr("Date"), 1800, true}});
    std::vector<ListItem> items;
    items.reserve(files.size());
    for (const QFileInfo& file : files)
        items.push_back(fileItem(file));
    model->setItems(std::move(items));
    list->applyColumnWidths();
    m_window->m_count->setText(tr("%1 object(s)").arg(files.size()));
    const int row = kept.isEmpty() ? -1 : model->rowOfKey(kept);
    if (row >= 0)
        list->selectRow(row);
}

void InboxView::onFileClicked(int row)
{
    ListModel* model = m_window->m_documentModel;
    if (row < 0 || row >= model->itemCount())
        return;
    const ListItem item = model->item(row);
    if (!item.key.startsWith(ItemPrefix))
        return;
    SelectionState& state = m_window->m_state;
    state.selectedDocumentId = 0;
    state.selectedSubDocumentId = 0;
    state.selectedItemText = item.text;
    state.activeListName = QStringLiteral("ListDokSarasas");
    state.selectedFilePath = item.tag;
    // A file, not a document: it opens, prints, shows its properties and goes to the trash.
    m_window->disableDocumentCommands();
    for (const char* name : {"mnuOpen", "mnuPrint", "mnuProperties", "mnuDelete"})
        m_window->setCommandEnabled(QLatin1String(name), true);
}

void InboxView::registerSelectedFile()
{
    const QString path = m_window->m_state.selectedFilePath;
    if (m_window->m_documents->selectedRow() < 0 || path.isEmpty())
        return;
    if (!QFileInfo(path).isFile()) {
        msgBox(tr("The file \"%1\" is no longer in the inbox.").arg(path),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, inboxTitle());
        m_folder->rescan();
        return;
    }
    {
        const CommandScope command(QStringLiteral("New Document"));
        NewDocumentDialog dialog(m_window);
        dialog.attachIncomingFile(path, Intake::Move);
        dialog.exec();
    }
    m_window->m_reminders->recount();
    m_folder->rescan();
}

void InboxView::trashSelectedFile()
{
    const QString path = m_window->m_state.selectedFilePath;
    if (m_window->m_documents->selectedRow() < 0 || path.isEmpty())
        return;
    const QString name = QFileInfo(path).fileName();
    if (msgBox(tr("Move \"%1\" from the inbox to the trash?").arg(name),
            MsgBoxStyle::YesNo | MsgBoxStyle::Question, inboxTitle())
        != MsgBoxResult::Yes)
        return;
    QFile file(path);
    if (!file.moveToTrash()) {
        msgBox(tr("\"%1\" can't be moved to the trash: %2").arg(name, file.errorString()),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, inboxTitle());
    }
    m_folder->rescan();
}

void InboxView::onFilesChanged()
{
    if (QTreeWidgetItem* node = m_window->m_tree->nodeByKey(NodeKey))
        node->setText(0, nodeText());
    if (isShown())
        fillList();
}

void InboxView::onFolderOptionChanged()
{
    // The tree is built again, with the node or without it.
    m_folder->setFolder(inboxFolder());
    m_window->refresh();
}

} // namespace kartella
