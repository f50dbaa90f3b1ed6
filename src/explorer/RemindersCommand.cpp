#include "explorer/RemindersCommand.h"

#include "base/Error.h"
#include "explorer/AfterPaint.h"
#include "explorer/RemindersWindow.h"
#include "store/DueReminders.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "support/BusyCursor.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QThread>

#include <memory>

namespace kartella {

namespace {

QString panelText(int count)
{
    if (count < 0)
        return {};
    if (count == 0)
        return QCoreApplication::translate("kartella::RemindersCommand", "No reminders due");
    return count == 1
        ? QCoreApplication::translate("kartella::RemindersCommand", "1 reminder due")
        : QCoreApplication::translate("kartella::RemindersCommand", "%1 reminders due").arg(count);
}

} // namespace

// What the thread of the start's count hands back: the count (-1 when the register couldn't
// be read) and, when the window is to show, the keys of its lines.
struct RemindersCommand::StartCount
{
    int count = -1;
    std::optional<std::vector<DueReminderKey>> keys;
};

RemindersCommand::RemindersCommand(QMainWindow* window)
    : QObject(window)
    , today(reminderToday)
    , m_mainWindow(window)
    , m_afterPaint(new AfterPaint(window, this))
{
    m_action = new QAction(tr("&Reminders"), window);
    m_action->setObjectName(QStringLiteral("mnuReminders"));
    m_action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    m_action->setToolTip(tr("The reminders due today and overdue"));
    if (auto* go = window->menuBar()->findChild<QMenu*>(QStringLiteral("mnuGo")))
        go->addAction(m_action);
    else
        window->addAction(m_action);
    connect(m_action, &QAction::triggered, this, &RemindersCommand::showWindow);

    m_panel = new QLabel(window->statusBar());
    m_panel->setObjectName(QStringLiteral("pnReminders"));
    m_panel->setToolTip(tr("Due reminders (Ctrl+R shows them)"));
    window->statusBar()->addPermanentWidget(m_panel);
}

RemindersCommand::~RemindersCommand()
{
    waitForCounting();
}

bool RemindersCommand::counting() const
{
    return m_counting != nullptr || m_afterPaint->waiting();
}

void RemindersCommand::waitForCounting()
{
    if (!m_counting)
        return;
    m_counting->wait();
    delete m_counting;
    m_counting = nullptr;
}

int RemindersCommand::recount()
{
    ++m_generation;
    try {
        const BusyCursor busy;
        Connection connection;
        connection.open(plainConnectionString());
        m_count = countDueReminders(connection, today());
    } catch (const Error&) {
        // The register's own failure is told by the fills; the panel just stays empty.
        m_count = -1;
    }
    m_panel->setText(panelText(m_count));
    return m_count;
}

void RemindersCommand::forget()
{
    m_afterPaint->cancel();
    ++m_generation;
    m_count = -1;
    m_panel->setText(panelText(m_count));
}

void RemindersCommand::showAtStart()
{
    // A count of an earlier start still running is waited for and dropped.
    waitForCounting();
    // The count reads every due reminder, which grow with the register: it waits until the
    // window has painted its first screen.
    m_afterPaint->run([this] { startCounting(); });
}

void RemindersCommand::startCounting()
{
    const int generation = ++m_generation;
    const QString connectionString = plainConnectionString();
    const QDate day = today();
    const bool showing = showDueRemindersAtStart();
    auto counted = std::make_shared<StartCount>();
    m_counting = QThread::create([connectionString, day, showing, counted] {
        try {
            Connection connection;
            connection.open(connectionString);
            counted->count = countDueReminders(connection, day);
            // The window's lines too, so that it opens without reading them on the window's thread.
            if (counted->count > 0 && showing)
                counted->keys = dueReminderKeys(connection, day);
        } catch (const Error&) {
            // The register's own failure is told by the fills; the panel just stays empty.
        }
    });
    m_counting->setObjectName(QStringLiteral("CountingReminders"));
    const int start = ++m_starts;
    connect(m_counting, &QThread::finished, this, [this, start, counted, generation] {
        // A count waited for by a later start is over already.
        if (start != m_starts || !m_counting)
            return;
        waitForCounting();
        startCounted(*counted, generation);
    });
    m_counting->start(QThread::LowPriority);
}

void RemindersCommand::startCounted(const StartCount& counted, int generation)
{
    if (generation == m_generation) {
        m_count = counted.count;
        m_panel->setText(panelText(m_count));
        // Shown over the filled main window.
        if (counted.keys)
            openWindow(counted.keys);
    }
    Q_EMIT countedAtStart();
}

void RemindersCommand::showWindow()
{
    openWindow(std::nullopt);
}

void RemindersCommand::openWindow(std::optional<std::vector<DueReminderKey>> keys)
{
    if (!m_window) {
        m_window = new RemindersWindow(today(), m_mainWindow, std::move(keys));
        m_window->setAttribute(Qt::WA_DeleteOnClose);
        m_window->openDetails = [this](qint32 documentId) {
            if (openDetails)
                openDetails(documentId);
            recount();
            if (m_window)
                m_window->reload();
        };
        connect(m_window, &QDialog::finished, this, [this] { recount(); });
        connect(m_window, &RemindersWindow::remindersDone, this, [this] { recount(); });
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

} // namespace kartella
