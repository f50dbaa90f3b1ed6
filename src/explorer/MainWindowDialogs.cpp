// MainWindow: the dialogs its commands open, each registered under its window's name.

#include "explorer/MainWindow.h"
#include "registration/NewDocumentDialog.h"
#include "reports/ReportPreview.h"

namespace kartella {

void MainWindow::registerDialogs()
{
    setDialog(QStringLiteral("frmNewDocument"), [this](const QString& file) {
        NewDocumentDialog dialog(this);
        if (!file.isEmpty())
            dialog.setLocation(file);
        dialog.exec();
    });
    for (const ReportMenuEntry& report : reportMenuEntries())
        setDialog(report.dialog, [this, open = report.open](const QString&) { open(this); });
}

} // namespace kartella
