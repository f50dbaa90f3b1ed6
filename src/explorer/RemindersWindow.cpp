#include "explorer/RemindersWindow.h"

#include "base/Error.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "store/SchemaSteps.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/WriteContext.h"
#include "support/BusyCursor.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace kartella {

namespace {

// Enter on a line acts as a double click, whatever the style makes of it.
class ActivateOnEnter : public QObject
{
public:
    ActivateOnEnter(QTreeView* list, std::function<void()> activate)
        : QObject(list)
        , m_activate(std::move(activate))
    {
        list->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                m_activate();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_activate;
};

} // namespace

RemindersWindow::RemindersWindow(
    const QDate& today, QWidget* parent, std::optional<std::vector<DueReminderKey>> keys)
    : QDialog(parent)
    , m_today(today)
{
    setObjectName(QStringLiteral("frmReminders"));
    setWindowTitle(tr("Reminders"));

    m_model = new RemindersModel(this);
    m_list = new QTreeView(this);
    m_list->setObjectName(QStringLiteral("lstReminders"));
    m_list->setAccessibleName(tr("Due reminders"));
    m_list->setRootIsDecorated(false);
    m_list->setItemsExpandable(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setModel(m_model);
    m_list->header()->setStretchLastSection(true);
    // Columns are sized to the lines in view: they are the only ones read.
    m_list->header()->setResizeContentsPrecision(0);

    m_nothingDue = new QLabel(tr("No reminders are due."), this);
    m_nothingDue->setObjectName(QStringLiteral("lblNothingDue"));

    m_done = new QPushButton(tr("&Done"), this);
    m_done->setObjectName(QStringLiteral("cmdDone"));
    m_done->setToolTip(tr("Mark the selected reminders done: they are not shown again"));
    m_done->setAutoDefault(false);
    auto* later = new QPushButton(tr("&Later"), this);
    later->setObjectName(QStringLiteral("cmdLater"));
    later->setToolTip(tr("Close; the reminders show again at the next start"));
    later->setAutoDefault(false);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_done);
    buttons->addWidget(later);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_nothingDue);
    layout->addLayout(buttons);
    resize(760, 320);

    connect(m_done, &QPushButton::clicked, this, &RemindersWindow::markDone);
    connect(later, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_list, &QTreeView::doubleClicked, this, &RemindersWindow::openCurrentDetails);
    new ActivateOnEnter(m_list, [this] { openCurrentDetails(); });

    if (keys) {
        m_model->setKeys(m_today, std::move(*keys));
        showLines(0);
    } else {
        reload();
    }
}

RemindersWindow::~RemindersWindow() = default;

void RemindersWindow::reload()
{
    const int row = currentRow();
    try {
        const BusyCursor busy;
        m_model->reload(m_today);
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, tr("Reminders"));
    }
    showLines(std::max(row, 0));
}

void RemindersWindow::showLines(int current)
{
    const int count = m_model->rowCount();
    const bool any = count > 0;
    m_list->setVisible(any);
    m_nothingDue->setVisible(!any);
    m_done->setEnabled(any);
    if (!any)
        return;
    for (int column = RemindersModel::DateColumn; column < RemindersModel::TextColumn; ++column)
        m_list->resizeColumnToContents(column);
    m_list->setCurrentIndex(m_model->index(std::min(current, count - 1), 0));
    m_list->setFocus();
}

int RemindersWindow::currentRow() const
{
    const QModelIndex current = m_list->currentIndex();
    return current.isValid() ? current.row() : -1;
}

void RemindersWindow::openCurrentDetails()
{
    const int row = currentRow();
    if (row < 0 || row >= m_model->rowCount() || !openDetails)
        return;
    const qint32 documentId = m_model->reminder(row).documentId;
    if (documentId != 0)
        openDetails(documentId);
}

bool RemindersWindow::offerUpgrade()
{
    if (msgBox(tr("This register was made by an older Kartella and can't keep a reminder done "
                  "until it is upgraded. Nothing in it is lost by the upgrade.\r\rUpgrade it now?"),
            MsgBoxStyle::YesNo + MsgBoxStyle::Question, tr("Reminders"))
        != MsgBoxResult::Yes)
        return false;
    const BusyCursor busy;
    upgradeRegister(getRegValue(QStringLiteral("DbLocation")));
    return true;
}

void RemindersWindow::markDone()
{
    const CommandScope command(QStringLiteral("Reminders Done"));
    // Every selected line, or the current one when none is selected.
    std::vector<int> rows;
    for (const QModelIndex& line : m_list->selectionModel()->selectedRows())
        rows.push_back(line.row());
    if (rows.empty())
        rows.push_back(currentRow());
    std::erase_if(rows, [this](int row) { return row < 0 || row >= m_model->rowCount(); });
    if (rows.empty())
        return;
    std::sort(rows.begin(), rows.end());
    const int first = rows.front();
    try {
        Connection connection;
        connection.open(plainConnectionString());
        if (!hasReminderDoneColumn(connection)) {
            connection.close();
            if (!offerUpgrade())
                return;
            connection.open(plainConnectionString());
        }
        // From the last line up, so that a failure leaves the lines done so far off the list.
        // A reminder another user changed or deleted since it was shown is left as it is: the
        // user is told, and the list is read again to show the reminders as they are now.
        bool changed = false;
        bool gone = false;
        for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
            const ReminderMark mark = markReminderDoneAsShown(connection, m_model->reminder(*row));
            if (mark == ReminderMark::Changed)
                changed = true;
            else if (mark == ReminderMark::Gone)
                gone = true;
            if (mark != ReminderMark::Changed)
                m_model->removeLine(*row);
        }
        if (changed || gone) {
            reload();
            Q_EMIT remindersDone();
            QStringList told;
            if (changed)
                told << tr("A reminder was changed by another user since the list was shown; it is "
                           "not marked done. The list shows it as it is now.");
            if (gone)
                told << tr("A reminder was deleted by another user since the list was shown; it has "
                           "left the list.");
            msgBox(told.join(QStringLiteral("\r\r")), MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation,
                tr("Reminders"));
            return;
        }
    } catch (const Error& error) {
        showLines(first);
        Q_EMIT remindersDone();
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, tr("Reminders"));
        return;
    }
    m_list->selectionModel()->clearSelection();
    showLines(first);
    Q_EMIT remindersDone();
}

} // namespace kartella
