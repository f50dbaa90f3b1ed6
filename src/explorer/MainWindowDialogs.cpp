// MainWindow: the dialogs its commands open, each registered under its window's name.

#include "addressbook/import/OutlookImportCommand.h"
#include "explorer/MainWindow.h"
#include "registration/NewDocumentDialog.h"

namespace kartella {

void MainWindow::registerDialogs()
{
    setDialog(QStringLiteral("frmNewDocument"), [this](const QString& file) {
        NewDocumentDialog dialog(this);
        if (!file.isEmpty())
            dialog.setLocation(file);
        dialog.exec();
    });
    setDialog(QStringLiteral("outlookImport"), [](const QString&) { importOutlookData(); });
}

} // namespace kartella
