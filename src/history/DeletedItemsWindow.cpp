#include "history/DeletedItemsWindow.h"

#include "base/Error.h"
#include "history/Trash.h"
#include "history/TrashCommands.h"
#include "options/OptionStore.h"
#include "options/TrashOptions.h"
#include "platform/Prompter.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kartella {

namespace {

constexpr int ItemIdRole = Qt::UserRole;

// Runs work on the register's trash; a failure is told. False when it failed.
template<typename Work>
bool onTrash(Work work)
{
    try {
        Connection connection(plainConnectionString());
        connection.open();
        Trash trash(connection, registerTrashFolder());
        trash.setVersionsFolder(versionsFolderFor(getRegValue(QStringLiteral("DbLocation")).trimmed()));
        work(trash);
        return true;
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical,
            DeletedItemsWindow::tr("Deleted items"));
        return false;
    }
}

} // namespace

DeletedItemsWindow::DeletedItemsWindow(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDeletedItems"));
    setWindowTitle(tr("Deleted items"));
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(tr("&Deleted items:"), this);
    m_items = new QTreeWidget(this);
    m_items->setObjectName(QStringLiteral("lstDeletedItems"));
    m_items->setRootIsDecorated(false);
    m_items->setSelectionMode(QAbstractItemView::SingleSelection);
    m_items->setHeaderLabels({tr("What"), tr("Kind"), tr("Deleted by"), tr("When")});
    m_items->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    label->setBuddy(m_items);
    layout->addWidget(label);
    layout->addWidget(m_items);

    auto* buttons = new QDialogButtonBox(this);
    m_restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::ActionRole);
    m_restore->setObjectName(QStringLiteral("cmdRestore"));
    m_delete = buttons->addButton(tr("De&lete"), QDialogButtonBox::ActionRole);
    m_delete->setObjectName(QStringLiteral("cmdDelete"));
    m_empty = buttons->addButton(tr("&Empty Trash"), QDialogButtonBox::ActionRole);
    m_empty->setObjectName(QStringLiteral("cmdEmptyTrash"));
    QPushButton* close = buttons->addButton(QDialogButtonBox::Close);
    close->setObjectName(QStringLiteral("cmdClose"));
    layout->addWidget(buttons);
    connect(m_restore, &QPushButton::clicked, this, &DeletedItemsWindow::restoreSelected);
    connect(m_delete, &QPushButton::clicked, this, &DeletedItemsWindow::deleteSelected);
    connect(m_empty, &QPushButton::clicked, this, &DeletedItemsWindow::emptyTrash);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_items, &QTreeWidget::itemSelectionChanged, this, &DeletedItemsWindow::updateButtons);
    connect(m_items, &QTreeWidget::itemActivated, this, &DeletedItemsWindow::restoreSelected);
    // The Delete key deletes the highlighted item for good, after the question.
    m_items->installEventFilter(this);
    resize(640, 360);
    fill();
}

bool DeletedItemsWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_items && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        deleteSelected();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void DeletedItemsWindow::fill()
{
    m_items->clear();
    onTrash([this](Trash& trash) {
        for (const TrashItem& item : trash.items()) {
            QString what = item.title;
            if (!item.registrationIndex.isEmpty())
                what += QStringLiteral(" (%1)").arg(item.registrationIndex);
            auto* row = new QTreeWidgetItem(m_items,
                {what, TrashKind::shownName(item.kind), item.deletedBy,
                    QLocale().toString(item.deletedAt.toLocalTime(), QLocale::ShortFormat)});
            row->setData(0, ItemIdRole, item.id);
        }
    });
    if (m_items->topLevelItemCount() > 0)
        m_items->setCurrentItem(m_items->topLevelItem(0));
    updateButtons();
}

qint64 DeletedItemsWindow::selectedItem() const
{
    const QTreeWidgetItem* row = m_items->currentItem();
    return row ? row->data(0, ItemIdRole).toLongLong() : 0;
}

void DeletedItemsWindow::updateButtons()
{
    m_restore->setEnabled(selectedItem() != 0);
    m_delete->setEnabled(selectedItem() != 0);
    m_empty->setEnabled(m_items->topLevelItemCount() > 0);
}

void DeletedItemsWindow::restoreSelected()
{
    const qint64 item = selectedItem();
    if (item == 0)
        return;
    RestoreOutcome outcome;
    if (onTrash([&](Trash& trash) { outcome = trash.restore(item); })) {
        m_changed = true;
        tellRenamedFiles(outcome);
    }
    fill();
}

void DeletedItemsWindow::deleteSelected()
{
    const QTreeWidgetItem* row = m_items->currentItem();
    if (!row)
        return;
    if (msgBox(tr("Delete \"%1\" for good? It can't be restored afterwards.").arg(row->text(0)),
            MsgBoxStyle::YesNo + MsgBoxStyle::Exclamation + MsgBoxStyle::DefaultButton2,
            tr("Confirm Deletion"))
        != MsgBoxResult::Yes)
        return;
    const qint64 item = selectedItem();
    onTrash([item](Trash& trash) { trash.deleteForGood(item); });
    fill();
}

void DeletedItemsWindow::emptyTrash()
{
    if (msgBox(tr("Delete all %1 deleted items for good? They can't be restored afterwards.")
                   .arg(m_items->topLevelItemCount()),
            MsgBoxStyle::YesNo + MsgBoxStyle::Exclamation + MsgBoxStyle::DefaultButton2, tr("Empty Trash"))
        != MsgBoxResult::Yes)
        return;
    onTrash([](Trash& trash) { trash.empty(); });
    fill();
}

} // namespace kartella
