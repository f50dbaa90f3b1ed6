// MainWindow: New Version, the document's file replaced and the earlier one kept.
#include "capture/ScanDialog.h"
#include "explorer/ExplorerList.h"
#include "explorer/IconCache.h"
#include "explorer/MainWindow.h"
#include "history/NewVersionCommand.h"
#include "platform/Prompter.h"
#include "support/SelectionState.h"

#include <QFileInfo>
#include <QTemporaryDir>

namespace kartella {

namespace {

// A related document's file is no document's own: its versions would mix with the document's.
bool documentListActive(const SelectionState& state)
{
    if (state.activeListName.compare(QLatin1String("ListDokSarasas"), Qt::CaseInsensitive) == 0)
        return true;
    msgBox(MainWindow::tr("Select document, please!"), MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation,
        MainWindow::tr("New Version"));
    return false;
}

} // namespace

void MainWindow::newVersion()
{
    if (documentListActive(m_state)
        && replaceWithNewVersion(m_state.selectedDocumentId, m_state.selectedFilePath)) {
        IconCache::shared().clear();
        refillList();
    }
}

void MainWindow::scanNewVersion()
{
    if (!documentListActive(m_state)
        || !hasReplaceableFile(m_state.selectedDocumentId, m_state.selectedFilePath))
        return;
    const QString current = m_state.selectedFilePath;
    // The pages become a PDF: in place of another kind of file it would carry the wrong name.
    if (QFileInfo(current).suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) != 0) {
        msgBox(tr("Scanned pages make a PDF file, so they can replace only a PDF file; %1 is not one.")
                   .arg(QFileInfo(current).fileName()),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, tr("New Version"));
        return;
    }
    QTemporaryDir scratch;
    if (!scratch.isValid()) {
        msgBox(tr("No temporary folder could be made for the scanned pages: %1").arg(scratch.errorString()),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, tr("New Version"));
        return;
    }
    const qint64 documentId = m_state.selectedDocumentId;
    ScanDialog scan([&scratch] { return scratch.filePath(QStringLiteral("scan.pdf")); }, this);
    if (scan.exec() != QDialog::Accepted)
        return;
    if (putNewVersion(documentId, current, scan.savedPath())) {
        IconCache::shared().clear();
        refillList();
    }
}

void MainWindow::onFileDroppedOnDocument(const QString& path, int row)
{
    // The row takes the selection first, as a click on it would, so that the question names
    // the file of the document the user dropped on.
    m_documents->selectRow(row);
    if (replaceWithNewVersion(m_state.selectedDocumentId, m_state.selectedFilePath, path)) {
        IconCache::shared().clear();
        refillList();
    }
}

} // namespace kartella
