#include "explorer/RemindersCommand.h"

#include "base/Error.h"
#include "explorer/RemindersWindow.h"
#include "store/DueReminders.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "support/BusyCursor.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

namespace kartella {

namespace {

QString panelText(int count)
{
    if (count < 0)
        return {};
    if (count == 0)
        return QStringLiteral("No reminders due");
    return count == 1 ? QStringLiteral("1 reminder due") : QStringLiteral("%1 reminders due").arg(count);
}

} // namespace

RemindersCommand::RemindersCommand(QMainWindow* window)
    : QObject(window)
    , today(reminderToday)
    , m_mainWindow(window)
{
    m_action = new QAction(QStringLiteral("&Reminders"), window);
    m_action->setObjectName(QStringLiteral("mnuReminders"));
    m_action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    m_action->setToolTip(QStringLiteral("The reminders due today and overdue"));
    if (auto* go = window->menuBar()->findChild<QMenu*>(QStringLiteral("mnuGo")))
        go->addAction(m_action);
    else
        window->addAction(m_action);
    connect(m_action, &QAction::triggered, this, &RemindersCommand::showWindow);

    m_panel = new QLabel(window->statusBar());
    m_panel->setObjectName(QStringLiteral("pnReminders"));
    m_panel->setToolTip(QStringLiteral("Due reminders (Ctrl+R shows them)"));
    window->statusBar()->addPermanentWidget(m_panel);
}

int RemindersCommand::recount()
{
    try {
        const BusyCursor busy;
        Connection connection;
        connection.open(plainConnectionString());
        m_count = int(dueReminders(connection, today()).size());
    } catch (const Error&) {
        // The register's own failure is told by the fills; the panel just stays empty.
        m_count = -1;
    }
    m_panel->setText(panelText(m_count));
    return m_count;
}

void RemindersCommand::forget()
{
    m_count = -1;
    m_panel->setText(panelText(m_count));
}

void RemindersCommand::showAtStart()
{
    // Shown once the start has finished, over the filled main window.
    if (recount() > 0 && showDueRemindersAtStart())
        QMetaObject::invokeMethod(this, &RemindersCommand::showWindow, Qt::QueuedConnection);
}

void RemindersCommand::showWindow()
{
    if (!m_window) {
        m_window = new RemindersWindow(today(), m_mainWindow);
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
