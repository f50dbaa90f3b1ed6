// MainWindow: the dialogs its commands open, each registered under its window's name.

#include "addressbook/AddressBookWindow.h"
#include "addressbook/ContactEditor.h"
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
    setDialog(QStringLiteral("frmCoresp"), [this](const QString&) { AddressBookWindow(this).exec(); });
    setDialog(QStringLiteral("frmCorr"), [this](const QString&) { ContactEditor(this).exec(); });
}

} // namespace kartella
