// MainWindow: the dialogs its commands open, each registered under its window's name.

#include "addressbook/AddressBookWindow.h"
#include "addressbook/ContactEditor.h"
#include "addressbook/import/OutlookImportCommand.h"
#include "categories/CategoryDialog.h"
#include "categories/NewCategoryDialog.h"
#include "dialogs/AboutDialog.h"
#include "dialogs/SettingsDialog.h"
#include "dialogs/SettingsStore.h"
#include "explorer/DocumentFills.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "explorer/RemindersCommand.h"
#include "options/OptionStore.h"
#include "registration/CopyFileDialog.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/NewDocumentDialog.h"
#include "registration/RelatedDocumentDialog.h"
#include "reports/ReportPreview.h"
#include "store/engine/WriteContext.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QLabel>
#include <QTreeWidgetItem>

namespace kartella {

namespace {

// The category dialogs move the current category to the one they show; once closed, the
// category is again that of the node the user sees selected in the tree, so that a command
// on the tree never acts on another. A node of the contact tree leaves it as it was.
void restoreCategoryOfSelectedNode(const MainWindow& window, qint32 before)
{
    qint32 category = before;
    const QTreeWidgetItem* node = window.tree()->currentItem();
    if (window.isCategoryView() && node) {
        const QString key = NavigationTree::nodeKey(node);
        if (key.startsWith(QLatin1Char('a')))
            category = key.mid(1).toInt();
        else if (key.startsWith(QLatin1Char('b')) && node->parent())
            category = NavigationTree::nodeKey(node->parent()).mid(1).toInt();
        else
            category = 0;
    }
    selection().currentCategoryId = category;
}

// Runs a category dialog; true when the category it was to show had been deleted by
// another program.
template<typename Dialog>
bool openCategoryDialog(MainWindow* window)
{
    const qint32 before = selection().currentCategoryId;
    bool gone = false;
    {
        Dialog dialog(window);
        if constexpr (requires(Dialog & shown) { shown.categoryGone(); })
            gone = dialog.categoryGone();
        dialog.exec();
    }
    restoreCategoryOfSelectedNode(*window, before);
    return gone;
}

} // namespace

void MainWindow::registerDialogs()
{
    setDialog(QStringLiteral("frmNewDocument"), [this](const QString& file) {
        NewDocumentDialog dialog(this);
        if (!file.isEmpty())
            dialog.setLocation(file);
        dialog.exec();
        m_reminders->recount();
    });

    // A row another program deleted is told by its dialog, which then doesn't open; the
    // list that still showed it is filled again.
    setDialog(QStringLiteral("frmNew"), [this](const QString&) {
        bool gone = false;
        {
            DocumentDetailsDialog dialog(this);
            gone = dialog.documentGone();
            dialog.exec();
        }
        if (gone)
            reloadAfterDelete();
        m_reminders->recount();
    });
    // From the reminders window: the document of a reminder, the selection left as it is.
    m_reminders->openDetails = [this](qint32 documentId) {
        DocumentDetailsDialog dialog(documentId, this);
        if (dialog.documentGone()) {
            if (RemindersWindow* window = m_reminders->window())
                window->reload();
            m_reminders->recount();
            return;
        }
        dialog.exec();
    };
    const auto relatedDialog = [this](RelatedDocumentDialog::Mode mode) {
        return [this, mode](const QString& file) {
            RelatedDocumentDialog dialog(mode, this);
            if (dialog.relatedGone()) {
                // A new related document finds its document gone, an edited one itself.
                if (mode == RelatedDocumentDialog::Mode::Creating)
                    reloadAfterDelete();
                fillRelatedList();
                return;
            }
            if (!file.isEmpty())
                dialog.setLocation(file);
            dialog.exec();
        };
    };
    setDialog(QStringLiteral("frmRelated"), relatedDialog(RelatedDocumentDialog::Mode::Creating));
    setDialog(QStringLiteral("frmRelDescr"), relatedDialog(RelatedDocumentDialog::Mode::Editing));
    // A moved file shows its new place in its list item at once, so that the item never
    // leads to a file that has gone.
    setDialog(QStringLiteral("frmCopyFile"), [this](const QString&) {
        CopyFileDialog dialog(this);
        if (!dialog.hasFile())
            return;
        const bool related = m_state.activeListName == QLatin1String("ListSusieti");
        ListModel* list = related ? m_relatedModel : m_documentModel;
        const QString key
            = DocumentFills::itemKey(related ? m_state.selectedSubDocumentId : m_state.selectedDocumentId);
        connect(&dialog, &CopyFileDialog::fileMoved, this,
            [list, key](const QString& path) { list->setItemTag(list->rowOfKey(key), path); });
        dialog.exec();
    });

    // One settings window at a time; a new register location shows in the source panel and
    // rebuilds the tree once the window has closed, as F5 would.
    const auto settingsWindow = [this] {
        if (auto* open
            = findChild<SettingsDialog*>(QStringLiteral("frmSettings"), Qt::FindDirectChildrenOnly))
            return open;
        auto* dialog = new SettingsDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(dialog, &SettingsDialog::databaseLocationChanged, this, [this] {
            m_source->setText(sourcePanelText(getRegValue(QStringLiteral("DbLocation"))));
            QMetaObject::invokeMethod(
                action(QStringLiteral("mnuRefresh")), &QAction::trigger, Qt::QueuedConnection);
        });
        return dialog;
    };
    setDialog(QStringLiteral("frmSettings"), [settingsWindow](const QString&) {
        SettingsDialog* dialog = settingsWindow();
        dialog->show();
        dialog->raise();
        dialog->activateWindow();
    });
    openSettings = [settingsWindow] {
        SettingsDialog* dialog = settingsWindow();
        dialog->hide();
        dialog->exec();
    };

    setDialog(QStringLiteral("frmAbout"), [this](const QString&) {
        AboutDialog dialog(this);
        dialog.exec();
    });

    setDialog(QStringLiteral("frmNewCategory"), [this](const QString&) {
        const CommandScope command(QStringLiteral("Category"));
        openCategoryDialog<NewCategoryDialog>(this);
    });
    setDialog(QStringLiteral("frmCategory"), [this](const QString&) {
        if (openCategoryDialog<CategoryDialog>(this))
            refresh();
    });

    for (const ReportMenuEntry& report : reportMenuEntries())
        setDialog(report.dialog, [this, open = report.open](const QString&) { open(this); });

    setDialog(QStringLiteral("outlookImport"), [](const QString&) { importOutlookData(); });

    setDialog(QStringLiteral("frmCoresp"), [this](const QString&) { AddressBookWindow(this).exec(); });
    setDialog(QStringLiteral("frmCorr"), [this](const QString&) { ContactEditor(this).exec(); });
}

} // namespace kartella
