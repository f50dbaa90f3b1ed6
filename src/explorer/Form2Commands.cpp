// Form2: the commands that act by themselves, and the ones that open a dialog.
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/Form2.h"
#include "explorer/IconCache.h"
#include "explorer/ListModel.h"
#include "explorer/NavigationTree.h"
#include "explorer/SelectionState.h"
#include "platform/Prompter.h"
#include "platform/Shell.h"
#include "registration/ShellFiles.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "support/Error.h"
#include "support/SharedPrinter.h"

#include <QAction>
#include <QFileInfo>
#include <QPrintDialog>

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

void Form2::mnuNew_Click()
{
    openDialog(QStringLiteral("frmNewDocument"));
}

void Form2::mnuOpen_Click()
{
    OpenDocumentFile(m_state.SelectedFilePath, QStringLiteral("open"));
}

void Form2::mnuCopy_Click()
{
    openDialog(QStringLiteral("frmCopyFile"));
}

void Form2::mnuDelete_Click()
{
    DeleteDocument();
}

void Form2::mnuDeleteCategory_Click()
{
    DeleteCategory();
}

void Form2::mnuPrintSetup_Click()
{
    QPrintDialog dialog(&SharedPrinter(), this);
    dialog.setWindowTitle(QStringLiteral("Print Setup"));
    dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize);
    dialog.exec();
}

void Form2::mnuPrint_Click()
{
    OpenDocumentFile(m_state.SelectedFilePath, QStringLiteral("print"));
}

void Form2::mnuRelated_Click()
{
    openDialog(QStringLiteral("frmRelated"));
}

void Form2::mnuShowDetails_Click()
{
    if (sameName(m_state.ActiveListName, DocumentListName))
        openDialog(QStringLiteral("frmNew"));
    else if (sameName(m_state.ActiveListName, RelatedListName))
        openDialog(QStringLiteral("frmRelDescr"));
}

void Form2::mnuProperties_Click()
{
    // A file that has gone gives no message here.
    if (QFileInfo::exists(m_state.SelectedFilePath))
        Shell::instance().ShowProperties(m_state.SelectedFilePath);
}

void Form2::mnuExit_Click()
{
    close();
}

void Form2::mnuCategoryOptions_Click()
{
    openDialog(QStringLiteral("frmCategory"));
}

void Form2::OpenDocumentFile(const QString& path, const QString& verb)
{
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("Path to Location of this Document not included!"),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Information, QStringLiteral("File not found"));
        return;
    }
    const QFileInfo file(path);
    if (!file.exists() || file.isDir()) {
        MsgBox(QStringLiteral("Path to file is invalid!"), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical,
            QStringLiteral("Unable to open Document"));
        return;
    }
    // The result isn't looked at: the desktop reports its own failures.
    if (verb == QLatin1String("print"))
        Shell::instance().Print(path);
    else
        Shell::instance().Open(path);
}

void Form2::mnuRefresh_Click()
{
    m_tree->clearNodes();
    // The tree of the view on show is built again.
    if (CategoryView)
        FillCategoryTree();
    else
        FillContactTree();
}

void Form2::mnuByCategory_Click()
{
    switchView(true);
}

void Form2::mnuByContacts_Click()
{
    switchView(false);
}

void Form2::switchView(bool categories)
{
    action(QStringLiteral("mnuByCategory"))->setChecked(categories);
    action(QStringLiteral("mnuByContacts"))->setChecked(!categories);
    m_tree->clearNodes();
    CategoryView = categories;
    // Any click after a switch acts, the root's too.
    LastNodeIndex = 0;
    if (categories)
        FillCategoryTree();
    else
        FillContactTree();
}

void Form2::reloadAfterDelete()
{
    if (m_state.CurrentNodeKind == QLatin1String("a"))
        modListDocum1(m_state.CurrentCategoryId, direction());
    else if (m_state.CurrentNodeKind == QLatin1String("b"))
        modListDocum2(m_state.CurrentCategoryId, m_state.CurrentSubCategoryId, direction());
    else
        modListDocum1(0, 0);
}

void Form2::DeleteDocument()
{
    const QString active = m_state.ActiveListName;
    if (!sameName(active, DocumentListName) && !sameName(active, RelatedListName)) {
        MsgBox(QStringLiteral("Select document, please!"), MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation,
            QStringLiteral("Unable to delete as requested"));
        return;
    }
    try {
        Connection connection;
        connection.Open(PlainConnectionString());
        Recordset children;
        children.Open(
            QStringLiteral("SELECT tbl_Sub_Documents.*, tbl_Sub_Documents.RastasID FROM tbl_Sub_Documents "
                           "WHERE tbl_Sub_Documents.RastasID=")
                + QString::number(m_state.SelectedDocumentId),
            connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        const QString path = m_state.SelectedFilePath;

        if (sameName(active, RelatedListName)) {
            // A related document goes only together with its file.
            if (ShellDeleteFile(path)) {
                connection.Execute(deleteSubDocumentSql(m_state.SelectedSubDocumentId));
                FillRelatedList();
            }
            return;
        }

        if (children.Eof()) {
            const bool reachable = !path.isEmpty() && QFileInfo::exists(path);
            if (!reachable || ShellDeleteFile(path))
                connection.Execute(deleteDocumentSql(m_state.SelectedDocumentId));
            children.Close();
            connection.Close();
            reloadAfterDelete();
            return;
        }

        if (MsgBox(QStringLiteral("Do you wish to delete document and their subdocuments?"),
                MsgBoxStyle::YesNo + MsgBoxStyle::Question, QStringLiteral("Confirm Deletion"))
            != MsgBoxResult::Yes)
            return;
        // Each related document's row goes first, then its file; a file that stays is no matter.
        while (!children.Eof()) {
            connection.Execute(deleteSubDocumentSql(children.Collect(QStringLiteral("SubRastasID")).toInt()));
            const QVariant childPath = children.Collect(QStringLiteral("SubRastoKelias"));
            if (!IsNull(childPath))
                ShellDeleteFile(childPath.toString());
            children.MoveNext();
        }
        connection.Execute(deleteDocumentSql(m_state.SelectedDocumentId));
        ShellDeleteFile(path);
        IconCache::shared().clear();
        modListDocum1(0, 0);
        FillRelatedList();
    } catch (const Error& error) {
        MsgBox(error.description());
    }
}

void Form2::DeleteCategory()
{
    QString question;
    QString sql;
    if (m_state.CurrentNodeKind == QLatin1String("a")) {
        question = QStringLiteral("Do you wish to delete Category and SubCategories?");
        sql = QStringLiteral("DELETE tbl_Document_Categories.* FROM tbl_Document_Categories WHERE "
                             "tbl_Document_Categories.KategID=")
            + QString::number(m_state.CurrentCategoryId);
    } else if (m_state.CurrentNodeKind == QLatin1String("b")) {
        question = QStringLiteral("Do you wish to delete SubCategory?");
        sql = QStringLiteral(
                  "DELETE tbl_Sub_Categories.* FROM tbl_Sub_Categories WHERE tbl_Sub_Categories.SubKategID=")
            + QString::number(m_state.CurrentSubCategoryId);
    } else {
        return;
    }
    if (MsgBox(question, MsgBoxStyle::YesNo + MsgBoxStyle::Exclamation, QStringLiteral("Confirm Deletion"))
        != MsgBoxResult::Yes)
        return;
    try {
        Connection connection;
        connection.Open(PlainConnectionString());
        connection.Execute(sql);
    } catch (const Error& error) {
        MsgBox(error.description());
    }
}

} // namespace kartella
