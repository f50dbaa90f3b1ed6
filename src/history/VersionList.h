#pragma once

#include <QWidget>

class QPushButton;
class QTreeWidget;

namespace kartella {

// The earlier files of one document, newest first (when kept, size, who replaced it), with
// Open (shows the version through the shell) and Restore (the version becomes the current
// file, the current one kept as a version). For the document's History tab.
class VersionList : public QWidget
{
    Q_OBJECT

public:
    // The versions of the document whose current file is at currentPath, in the versions
    // folder of the register the options name.
    VersionList(qint64 documentId, QString currentPath, QWidget* parent = nullptr);

    QTreeWidget* list() const { return m_list; }
    // Reads the versions again.
    void fill();

Q_SIGNALS:
    // A version became the current file.
    void restored();

private:
    void openSelected();
    void restoreSelected();
    void updateButtons();

    qint64 m_documentId;
    QString m_currentPath;
    QTreeWidget* m_list = nullptr;
    QPushButton* m_open = nullptr;
    QPushButton* m_restore = nullptr;
};

} // namespace kartella
