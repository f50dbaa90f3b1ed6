#pragma once

#include "explorer/RemindersModel.h"

#include <QDate>
#include <QDialog>

#include <functional>
#include <optional>
#include <vector>

class QLabel;
class QPushButton;
class QTreeView;

namespace kartella {

// The "Reminders" window: the reminders due on a given day, overdue ones first and marked
// so. Enter or a double click on a line opens that document's details through
// openDetails; "Done" marks the selected reminders done and takes them off the list; "Later"
// (or Esc) closes the window and leaves every reminder as it was.
class RemindersWindow : public QDialog
{
    Q_OBJECT

public:
    // Reads the due reminders, unless their keys come read already (off the window's thread).
    explicit RemindersWindow(const QDate& today, QWidget* parent = nullptr,
        std::optional<std::vector<DueReminderKey>> keys = std::nullopt);
    ~RemindersWindow() override;

    // Opens the details of a document, by its id.
    std::function<void(qint32 documentId)> openDetails;

    // Reads the due reminders again from the register.
    void reload();
    RemindersModel* model() const { return m_model; }

Q_SIGNALS:
    // Done took reminders off the list: the count of due reminders changed.
    void remindersDone();

public Q_SLOTS:
    void markDone();
    void openCurrentDetails();

private:
    void showLines(int current);
    int currentRow() const;
    // On a register without the done column: asks to upgrade it; true once it has it.
    bool offerUpgrade();

    QDate m_today;
    RemindersModel* m_model = nullptr;
    QTreeView* m_list = nullptr;
    QLabel* m_nothingDue = nullptr;
    QPushButton* m_done = nullptr;
};

} // namespace kartella
