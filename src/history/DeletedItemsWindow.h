#pragma once

#include <QDialog>

class QPushButton;
class QTreeWidget;

namespace kartella {

// The register's trash as a window: the deleted items, newest first (what, kind, who, when),
// with Restore, Delete (for good, after a question) and Empty Trash (one question for all).
// It works on the register the options name; a failure is told and leaves the trash as it
// was. changed() tells whether anything came back or went, so that the caller shows it.
class DeletedItemsWindow : public QDialog
{
    Q_OBJECT

public:
    explicit DeletedItemsWindow(QWidget* parent = nullptr);

    bool changed() const { return m_changed; }
    QTreeWidget* itemList() const { return m_items; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill();
    void restoreSelected();
    void deleteSelected();
    void emptyTrash();
    void updateButtons();
    qint64 selectedItem() const;

    QTreeWidget* m_items = nullptr;
    QPushButton* m_restore = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_empty = nullptr;
    bool m_changed = false;
};

} // namespace kartella
