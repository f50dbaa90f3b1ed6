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
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kartella {

namespace {

const QString Title = QStringLiteral("Reminders");

enum Column { DateColumn, DueColumn, IndexColumn, DescriptionColumn, TextColumn };

QString dueText(const DueReminder& reminder)
{
    if (!reminder.date.isValid())
        return QStringLiteral("Date unreadable");
    return reminder.overdue ? QStringLiteral("Overdue") : QStringLiteral("Today");
}

// Enter on a line acts as a double click, whatever the style makes of it.
class ActivateOnEnter : public QObject
{
public:
    ActivateOnEnter(QTreeWidget* list, std::function<void()> activate)
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

RemindersWindow::RemindersWindow(const QDate& today, QWidget* parent)
    : QDialog(parent)
    , m_today(today)
{
    setObjectName(QStringLiteral("frmReminders"));
    setWindowTitle(Title);

    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("lstReminders"));
    m_list->setAccessibleName(QStringLiteral("Due reminders"));
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setHeaderLabels({QStringLiteral("Date"), QStringLiteral("Due"),
        QStringLiteral("Registration Index"), QStringLiteral("Description"), QStringLiteral("Text")});
    m_list->header()->setStretchLastSection(true);

    m_nothingDue = new QLabel(QStringLiteral("No reminders are due."), this);
    m_nothingDue->setObjectName(QStringLiteral("lblNothingDue"));

    m_done = new QPushButton(QStringLiteral("&Done"), this);
    m_done->setObjectName(QStringLiteral("cmdDone"));
    m_done->setToolTip(QStringLiteral("Mark the selected reminders done: they are not shown again"));
    m_done->setAutoDefault(false);
    auto* later = new QPushButton(QStringLiteral("&Later"), this);
    later->setObjectName(QStringLiteral("cmdLater"));
    later->setToolTip(QStringLiteral("Close; the reminders show again at the next start"));
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
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &RemindersWindow::openCurrentDetails);
    new ActivateOnEnter(m_list, [this] { openCurrentDetails(); });

    reload();
}

RemindersWindow::~RemindersWindow() = default;

void RemindersWindow::reload()
{
    const int row = currentRow();
    try {
        const BusyCursor busy;
        Connection connection;
        connection.open(plainConnectionString());
        m_reminders = dueReminders(connection, m_today);
    } catch (const Error& error) {
        m_reminders.clear();
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, Title);
    }
    fill();
    if (row > 0)
        m_list->setCurrentItem(m_list->topLevelItem(qMin(row, m_list->topLevelItemCount() - 1)));
}

void RemindersWindow::fill()
{
    m_list->clear();
    for (const DueReminder& reminder : m_reminders) {
        auto* line = new QTreeWidgetItem(m_list);
        line->setText(DateColumn,
            reminder.date.isValid() ? reminder.date.toString(QStringLiteral("yyyy.MM.dd"))
                                    : reminder.dateText);
        line->setText(DueColumn, dueText(reminder));
        line->setText(IndexColumn, reminder.regIndex);
        line->setText(DescriptionColumn, reminder.description);
        line->setText(TextColumn, reminder.text);
        if (reminder.overdue) {
            QFont bold = line->font(DueColumn);
            bold.setBold(true);
            line->setFont(DueColumn, bold);
        }
    }
    for (int column = DateColumn; column < TextColumn; ++column)
        m_list->resizeColumnToContents(column);
    const bool any = !m_reminders.empty();
    m_list->setVisible(any);
    m_nothingDue->setVisible(!any);
    m_done->setEnabled(any);
    if (any) {
        m_list->setCurrentItem(m_list->topLevelItem(0));
        m_list->setFocus();
    }
}

int RemindersWindow::currentRow() const
{
    QTreeWidgetItem* line = m_list->currentItem();
    return line ? m_list->indexOfTopLevelItem(line) : -1;
}

void RemindersWindow::openCurrentDetails()
{
    const int row = currentRow();
    if (row < 0 || row >= int(m_reminders.size()) || !openDetails)
        return;
    openDetails(m_reminders[std::size_t(row)].documentId);
}

bool RemindersWindow::offerUpgrade()
{
    if (msgBox(
            QStringLiteral("This register was made by an older Kartella and can't keep a reminder done "
                           "until it is upgraded. Nothing in it is lost by the upgrade.\r\rUpgrade it now?"),
            MsgBoxStyle::YesNo + MsgBoxStyle::Question, Title)
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
    for (QTreeWidgetItem* line : m_list->selectedItems())
        rows.push_back(m_list->indexOfTopLevelItem(line));
    if (rows.empty())
        rows.push_back(currentRow());
    std::erase_if(rows, [this](int row) { return row < 0 || row >= int(m_reminders.size()); });
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
        for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
            markReminderDone(connection, m_reminders[std::size_t(*row)].reminderId);
            m_reminders.erase(m_reminders.begin() + *row);
        }
    } catch (const Error& error) {
        fill();
        Q_EMIT remindersDone();
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, Title);
        return;
    }
    fill();
    if (first < m_list->topLevelItemCount())
        m_list->setCurrentItem(m_list->topLevelItem(first));
    Q_EMIT remindersDone();
}

} // namespace kartella
