#pragma once

#include <QDateTime>
#include <QFileInfoList>
#include <QHash>
#include <QObject>
#include <QString>

class QFileSystemWatcher;
class QTimer;

namespace kartella {

// The inbox folder: the files in it (not those in its subfolders, nor hidden ones) that are
// complete. The folder is watched; a file that appears, or changes, waits until its size and
// time have stayed the same from one look to the next (one settle interval apart), so that
// a file still being written or copied in is not offered half done.
class InboxFolder : public QObject
{
    Q_OBJECT

public:
    explicit InboxFolder(QObject* parent = nullptr);
    ~InboxFolder() override;

    // Watches path; empty text turns the inbox off. A folder that isn't there lists nothing.
    void setFolder(const QString& path);
    QString folder() const { return m_folder; }
    bool isOn() const { return !m_folder.isEmpty(); }

    // The complete files, by name.
    QFileInfoList files() const;
    int count() const;
    // Whether a file of that name is in the folder but still waits to be complete.
    bool isWaiting(const QString& name) const;

    // The time between two looks at the waiting files (1 s unless set).
    void setSettleInterval(int milliseconds);

public Q_SLOTS:
    // Reads the folder again: new files wait, gone ones leave, changed ones wait again.
    void rescan();
    // The look of the settle timer: files unchanged since the last look are complete.
    void checkWaitingFiles();

Q_SIGNALS:
    // The list of complete files changed.
    void filesChanged();

private:
    struct Seen
    {
        qint64 size = -1;
        QDateTime modified;
        bool complete = false;
    };

    // Reads the folder; with settle, a waiting file unchanged since the last look becomes complete.
    void look(bool settle);

    QString m_folder;
    QHash<QString, Seen> m_files;
    QFileSystemWatcher* m_watcher = nullptr;
    QTimer* m_settle = nullptr;
};

} // namespace kartella
