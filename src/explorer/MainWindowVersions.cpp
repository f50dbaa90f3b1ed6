// MainWindow: New Version, the document's file replaced and the earlier one kept.
#include "explorer/IconCache.h"
#include "explorer/MainWindow.h"
#include "history/NewVersionCommand.h"
#include "platform/Prompter.h"
#include "support/SelectionState.h"

namespace kartella {

void MainWindow::newVersion()
{
    // A related document's file is no document's own: its versions would mix with the
    // document's.
    if (m_state.activeListName.compare(QLatin1String("ListDokSarasas"), Qt::CaseInsensitive) != 0) {
        msgBox(tr("Select document, please!"), MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation,
            tr("New Version"));
        return;
    }
    if (replaceWithNewVersion(m_state.selectedDocumentId, m_state.selectedFilePath)) {
        IconCache::shared().clear();
        refillList();
    }
}

} // namespace kartella
