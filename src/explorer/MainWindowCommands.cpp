// MainWindow: the commands that act by themselves, and the ones that open a dialog.
#include "base/Error.h"
#include "dialogs/SettingsStore.h"
#include "explorer/ContentProgress.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/IconCache.h"
#include "explorer/InboxView.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "explorer/RemindersCommand.h"
#include "explorer/ShareNotice.h"
#include "history/TrashCommands.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "platform/Shell.h"
#include "registration/ShellFiles.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/WriteContext.h"
#include "support/SelectionState.h"
#include "support/SharedPrinter.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPageSetupDialog>

namespace kartella {

namespace {
const QString DocumentListName = QStringLiteral("ListDokSarasas");
const QString RelatedListName = QStringLiteral("ListSusieti");

bool sameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QString deleteDocumentSql(qint32 id)
{
    return QStringLiteral("DELETE tbl_Documents.* FROM tbl_Documents WHERE tbl_Documents.RastasID=")
        + QString::number(id);
}

QString deleteSubDocumentSql(qint32 id)
{
    return QStringLiteral("DELETE tbl_Sub_Documents.*, tbl_Sub_Documents.SubRastasID FROM tbl_Sub_Documents "
                          "WHERE tbl_Sub_Documents.SubRastasID=")
        + QString::number(id);
}
} // namespace

void MainWindow::newDocument()
{
    const CommandScope command(QStringLiteral("New Document"));
    openDialog(QStringLiteral("frmNewDocument"));
}

void MainWindow::openDocument()
{
    openDocumentFile(m_state.selectedFilePath, QStringLiteral("open"));
}

void MainWindow::copyDocument()
{
    const CommandScope command(QStringLiteral("Copy/Move"));
    openDialog(QStringLiteral("frmCopyFile"));
}

void MainWindow::deleteSelected()
{
    if (m_inbox->isShown())
        return m_inbox->trashSelectedFile();
    deleteDocument();
}

void MainWindow::deleteSelectedCategory()
{
    deleteCategory();
}

void MainWindow::printSetup()
{
    // The page and printer of the shared printer; the reports read them when they print.
    QPageSetupDialog dialog(&sharedPrinter(), this);
    dialog.setWindowTitle(tr("Print Setup"));
    dialog.exec();
}

void MainWindow::printDocument()
{
    openDocumentFile(m_state.selectedFilePath, QStringLiteral("print"));
}

void MainWindow::newRelatedDocument()
{
    const CommandScope command(QStringLiteral("Related"));
    openDialog(QStringLiteral("frmRelated"));
}

void MainWindow::showDetails()
{
    const CommandScope command(QStringLiteral("Details"));
    if (sameName(m_state.activeListName, DocumentListName))
        openDialog(QStringLiteral("frmNew"));
    else if (sameName(m_state.activeListName, RelatedListName))
        openDialog(QStringLiteral("frmRelDescr"));
}

void MainWindow::showProperties()
{
    // A file that has gone gives no message here.
    if (QFileInfo::exists(m_state.selectedFilePath))
        Shell::instance().showProperties(m_state.selectedFilePath);
}

void MainWindow::exitProgram()
{
    close();
}

void MainWindow::editCategory()
{
    const CommandScope command(QStringLiteral("Category"));
    openDialog(QStringLiteral("frmCategory"));
}

void MainWindow::openDocumentFile(const QString& path, const QString& verb)
{
    if (path.isEmpty()) {
        msgBox(tr("Path to Location of this Document not included!"),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Information, tr("File not found"));
        return;
    }
    const QFileInfo file(path);
    if (!file.exists() || file.isDir()) {
        msgBox(tr("Path to file is invalid!"), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical,
            tr("Unable to open Document"));
        return;
    }
    // The result isn't looked at: the desktop reports its own failures.
    if (verb == QLatin1String("print"))
        Shell::instance().print(path);
    else
        Shell::instance().open(path);
}

void MainWindow::refresh()
{
    // A refresh after a change of register (Settings) first puts away everything of the
    // register left: its keys mean other rows, or none, in the new one.
    const QString location = getRegValue(QStringLiteral("DbLocation"));
    const bool newRegister = location != m_shownRegister;
    if (newRegister)
        leaveRegister(location);
    m_tree->clearNodes();
    // The tree of the view on show is built again.
    if (m_categoryView)
        fillCategoryTree();
    else
        fillContactTree();
    // Counted once the new register has opened: one that can't be opened is waited for once.
    if (newRegister) {
        if (m_tree->nodeCount() > 0)
            m_reminders->recount();
        return;
    }
    showNodeAgain();
}

void MainWindow::leaveRegister(const QString& location)
{
    m_shownRegister = location;
    m_contentProgress->start(location);
    leaveSearch();
    m_documentModel->clear();
    m_relatedModel->clear();
    showRelatedList(false);
    m_state.activeListName.clear();
    m_state.selectedDocumentId = 0;
    m_state.selectedSubDocumentId = 0;
    m_state.selectedItemText.clear();
    m_state.selectedFilePath.clear();
    m_state.documentListFilled = false;
    m_state.currentNodeKind = QStringLiteral("a");
    m_state.currentCategoryId = 0;
    m_state.currentSubCategoryId = 0;
    m_state.currentContactId = 0;
    m_state.currentLetterCode = 0;
    // Any click on the new tree acts, the root's too.
    m_lastNodeIndex = 0;
    m_lastNodeKey = QStringLiteral("ALL");
    m_refill = nullptr;
    disableDocumentCommands();
    setCommandEnabled(QStringLiteral("mnuCategoryOptions"), false);
    setCommandEnabled(QStringLiteral("mnuDeleteCategory"), false);
    setWindowTitle(QStringLiteral("Kartella"));
    m_count->clear();
    m_source->setText(sourcePanelText(location));
    m_shareNotice->registerOpened(location);
    m_reminders->forget();
}

void MainWindow::viewByCategory()
{
    switchView(true);
}

void MainWindow::viewByContacts()
{
    switchView(false);
}

void MainWindow::switchView(bool categories)
{
    action(QStringLiteral("mnuByCategory"))->setChecked(categories);
    action(QStringLiteral("mnuByContacts"))->setChecked(!categories);
    m_tree->clearNodes();
    m_categoryView = categories;
    storeTreeView();
    if (categories)
        fillCategoryTree();
    else
        fillContactTree();
    // The list and the title follow the new tree's root, the highlighted document kept.
    m_lastNodeKey = QStringLiteral("ALL");
    if (QTreeWidgetItem* root = m_tree->nodeByKey(m_lastNodeKey)) {
        const KeptSelection kept = keptSelection();
        m_tree->selectNode(root);
        m_lastNodeIndex = 0;
        onNodeClicked(root);
        restoreSelection(kept);
    }
}

void MainWindow::reloadAfterDelete()
{
    refillList();
}

void MainWindow::deleteDocument()
{
    const CommandScope command(QStringLiteral("Delete"));
    const QString active = m_state.activeListName;
    if (!sameName(active, DocumentListName) && !sameName(active, RelatedListName)) {
        msgBox(tr("Select document, please!"), MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation,
            tr("Unable to delete as requested"));
        return;
    }
    try {
        Connection connection;
        connection.open(plainConnectionString());
        if (sameName(active, RelatedListName))
            deleteRelatedDocument(connection);
        else
            deleteMainDocument(connection);
    } catch (const Error& error) {
        msgBox(error.description());
    }
}

void MainWindow::deleteRelatedDocument(Connection& connection)
{
    // A related document goes only together with its file; without one the user hears why
    // nothing happens.
    const QString path = m_state.selectedFilePath;
    const auto fileIsThere = [this, &path] {
        if (!path.isEmpty() && QFileInfo::exists(path))
            return true;
        const QString why = path.isEmpty()
            ? tr("This related document has no file. A related document is deleted "
                 "together with its file.")
            : tr("The file of this related document was not found:\n%1\nA related document "
                 "is deleted together with its file.")
                  .arg(QDir::toNativeSeparators(path));
        msgBox(why, MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, tr("Unable to delete as requested"));
        return false;
    };
    if (!fileIsThere())
        return;
    const qint32 id = m_state.selectedSubDocumentId;
    Recordset row;
    row.open(QStringLiteral("SELECT tbl_Sub_Documents.SubDocDescript FROM tbl_Sub_Documents WHERE "
                            "tbl_Sub_Documents.SubRastasID=")
            + QString::number(id),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    const QString description
        = row.eof() ? m_state.selectedItemText : displayText(row.collect(QStringLiteral("SubDocDescript")));
    row.close();
    if (!confirmDeletion(tr("Delete the related document \"%1\" and its file?").arg(description)))
        return;
    // The file may have gone while the question was open.
    if (!fileIsThere())
        return;
    if (Trash::inRegister(connection)) {
        if (!moveToRegisterTrash(connection, TrashKind::RelatedDocument, id))
            return;
    } else {
        if (!trashFileOf(connection, path, {}))
            return;
        connection.execute(deleteSubDocumentSql(id));
    }
    IconCache::shared().clear();
    refillList();
}

void MainWindow::deleteMainDocument(Connection& connection)
{
    const qint32 id = m_state.selectedDocumentId;
    Recordset document;
    document.open(QStringLiteral("SELECT tbl_Documents.DokAntraste, tbl_Documents.DokRegistracIndeksas, "
                                 "tbl_Documents.RastoKel FROM tbl_Documents WHERE tbl_Documents.RastasID=")
            + QString::number(id),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    if (document.eof()) {
        // Another program deleted it: the list shows what is left.
        document.close();
        refillList();
        return;
    }
    const QString description = displayText(document.collect(QStringLiteral("DokAntraste")));
    const QString index = displayText(document.collect(QStringLiteral("DokRegistracIndeksas")));
    const QVariant storedPath = document.collect(QStringLiteral("RastoKel"));
    document.close();
    const QString path = isNull(storedPath) ? QString() : storedPath.toString();

    Recordset children;
    children.open(
        QStringLiteral("SELECT tbl_Sub_Documents.SubRastasID, tbl_Sub_Documents.SubRastoKelias FROM "
                       "tbl_Sub_Documents WHERE tbl_Sub_Documents.RastasID=")
            + QString::number(id),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    QList<qint32> childIds;
    QStringList childPaths;
    while (!children.eof()) {
        childIds << children.collect(QStringLiteral("SubRastasID")).toInt();
        const QVariant childPath = children.collect(QStringLiteral("SubRastoKelias"));
        if (!isNull(childPath) && !childPath.toString().isEmpty())
            childPaths << childPath.toString();
        children.moveNext();
    }
    children.close();

    const bool hasFile = !path.isEmpty() && QFileInfo::exists(path);
    QString question = tr("Delete the document \"%1\"").arg(description);
    if (!index.isEmpty())
        question += QStringLiteral(" (%1)").arg(index);
    if (hasFile)
        question += tr(" and its file");
    if (childIds.size() == 1)
        question += tr(", with its related document and its file");
    else if (childIds.size() > 1)
        question += tr(", with its %1 related documents and their files").arg(childIds.size());
    if (!confirmDeletion(question + u'?'))
        return;
    if (Trash::inRegister(connection)) {
        if (moveToRegisterTrash(connection, TrashKind::Document, id)) {
            IconCache::shared().clear();
            refillList();
        }
        return;
    }

    // The document's own file first: while it can't go, the document stays whole. A file that
    // went while the question was open leaves nothing to keep the document for.
    if (hasFile && QFileInfo::exists(path) && !trashFileOf(connection, path, {id}))
        return;
    // A related document's file that stays behind is no matter: its row goes all the same.
    for (qint32 child : std::as_const(childIds))
        connection.execute(deleteSubDocumentSql(child));
    connection.execute(deleteDocumentSql(id));
    for (const QString& childPath : std::as_const(childPaths)) {
        if (QFileInfo::exists(childPath))
            trashFileOf(connection, childPath, {id});
    }
    IconCache::shared().clear();
    refillList();
}

bool MainWindow::confirmDeletion(const QString& question)
{
    return msgBox(question, MsgBoxStyle::YesNo + MsgBoxStyle::Question + MsgBoxStyle::DefaultButton2,
               tr("Confirm Deletion"))
        == MsgBoxResult::Yes;
}

bool MainWindow::trashFileOf(Connection& connection, const QString& path, const QList<qint32>& leaving)
{
    // A file another document still names stays where it is.
    const QString quoted = QString(path).replace(u'\'', QStringLiteral("''"));
    QString others
        = QStringLiteral("SELECT COUNT(*) AS Uses FROM tbl_Documents WHERE tbl_Documents.RastoKel='%1'")
              .arg(quoted);
    for (qint32 id : leaving)
        others += QStringLiteral(" AND tbl_Documents.RastasID<>") + QString::number(id);
    QString related = QStringLiteral(
        "SELECT COUNT(*) AS Uses FROM tbl_Sub_Documents WHERE tbl_Sub_Documents.SubRastoKelias='%1'")
                          .arg(quoted);
    for (qint32 id : leaving)
        related += QStringLiteral(" AND tbl_Sub_Documents.RastasID<>") + QString::number(id);
    if (leaving.isEmpty())
        related += QStringLiteral(" AND tbl_Sub_Documents.SubRastasID<>")
            + QString::number(m_state.selectedSubDocumentId);
    for (const QString& sql : {others, related}) {
        Recordset uses;
        uses.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        const bool used = uses.collect(QStringLiteral("Uses")).toInt() > 0;
        uses.close();
        if (used)
            return true;
    }
    QString error;
    if (moveFileToTrash(path, &error))
        return true;
    msgBox(tr("The file could not be moved to the trash:\n%1\n%2").arg(QDir::toNativeSeparators(path), error),
        MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, tr("Unable to delete as requested"));
    return false;
}

void MainWindow::deleteCategory()
{
    const CommandScope command(QStringLiteral("Delete"));
    QString question;
    QString sql;
    const bool category = m_state.currentNodeKind == QLatin1String("a");
    if (category) {
        question = tr("Do you wish to delete Category and SubCategories?");
        sql = QStringLiteral("DELETE tbl_Document_Categories.* FROM tbl_Document_Categories WHERE "
                             "tbl_Document_Categories.KategID=")
            + QString::number(m_state.currentCategoryId);
    } else if (m_state.currentNodeKind == QLatin1String("b")) {
        question = tr("Do you wish to delete SubCategory?");
        sql = QStringLiteral(
                  "DELETE tbl_Sub_Categories.* FROM tbl_Sub_Categories WHERE tbl_Sub_Categories.SubKategID=")
            + QString::number(m_state.currentSubCategoryId);
    } else {
        return;
    }
    if (msgBox(question, MsgBoxStyle::YesNo + MsgBoxStyle::Exclamation, tr("Confirm Deletion"))
        != MsgBoxResult::Yes)
        return;
    try {
        Connection connection;
        connection.open(plainConnectionString());
        if (!Trash::inRegister(connection))
            connection.execute(sql);
        else if (!moveToRegisterTrash(connection, category ? TrashKind::Category : TrashKind::SubCategory,
                     category ? m_state.currentCategoryId : m_state.currentSubCategoryId))
            return;
    } catch (const Error& error) {
        msgBox(error.description());
        return;
    }
    // The tree loses the node; the list shows the node the tree falls back on.
    refresh();
}

} // namespace kartella
