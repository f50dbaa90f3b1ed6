#pragma once

#include "explorer/RemindersWindow.h"

#include <QDate>
#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>
#include <vector>

class QAction;
class QLabel;
class QMainWindow;
class QThread;

namespace kartella {

class AfterPaint;

// The main window's reminders: the Go menu's "Reminders" (Ctrl+R), the status bar panel
// with the number of due reminders, and the Reminders window at start when something is
// due and the user wants it shown. One window at a time; it doesn't block the main window.
class RemindersCommand : public QObject
{
    Q_OBJECT

public:
    // Adds the command to the window's menu named "mnuGo" and the panel to its status bar.
    explicit RemindersCommand(QMainWindow* window);
    ~RemindersCommand() override;

    // Today's date for the reminders (tests set a day of their own).
    std::function<QDate()> today;
    // Opens the details of a document, by its id; the Reminders window's lines use it.
    std::function<void(qint32 documentId)> openDetails;

    // Counts the due reminders again into the panel; the count of the last time, -1 when the
    // register couldn't be read (the panel is then empty).
    int recount();
    // Empties the panel, as when the register couldn't be read: another register is coming.
    void forget();
    // At the end of the main window's load: once the window has painted, counts on a thread
    // of its own, so that the window paints meanwhile, and then shows the Reminders window
    // if something is due and the option asks for it. countedAtStart tells when the count
    // is in the panel.
    void showAtStart();
    // Whether the count of the start is still to come.
    bool counting() const;
    // The Reminders window, also when nothing is due.
    void showWindow();

    int count() const { return m_count; }
    QAction* action() const { return m_action; }
    RemindersWindow* window() const { return m_window; }

Q_SIGNALS:
    void countedAtStart();

private:
    struct StartCount;
    void startCounting();
    void startCounted(const StartCount& counted, int generation);
    void openWindow(std::optional<std::vector<DueReminderKey>> keys);
    void waitForCounting();

    QMainWindow* m_mainWindow;
    QAction* m_action = nullptr;
    QLabel* m_panel = nullptr;
    QPointer<RemindersWindow> m_window;
    int m_count = -1;
    AfterPaint* m_afterPaint;
    QThread* m_counting = nullptr;
    // Taken up by each count and forget: a count of the start that comes back after
    // another is dropped.
    int m_generation = 0;
    int m_starts = 0;
};

} // namespace kartella
