#include "capture/InboxFolder.h"

#include <QDir>
#include <QFileSystemWatcher>
#include <QTimer>

#include <algorithm>

namespace kartella {

InboxFolder::InboxFolder(QObject* parent)
    : QObject(parent)
    , m_watcher(new QFileSystemWatcher(this))
    , m_settle(new QTimer(this))
{
    m_settle->setInterval(1000);
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &InboxFolder::rescan);
    connect(m_settle, &QTimer::timeout, this, &InboxFolder::checkWaitingFiles);
}

InboxFolder::~InboxFolder() = default;

void InboxFolder::setFolder(const QString& path)
{
    const QString folder = path.trimmed().isEmpty() ? QString() : QDir::cleanPath(path.trimmed());
    if (folder == m_folder)
        return;
    if (!m_watcher->directories().isEmpty())
        m_watcher->removePaths(m_watcher->directories());
    m_folder = folder;
    const bool hadFiles = count() > 0;
    m_files.clear();
    m_settle->stop();
    if (!m_folder.isEmpty() && QFileInfo(m_folder).isDir())
        m_watcher->addPath(m_folder);
    look(false);
    if (hadFiles && count() == 0)
        Q_EMIT filesChanged();
}

QFileInfoList InboxFolder::files() const
{
    QFileInfoList complete;
    for (auto it = m_files.cbegin(); it != m_files.cend(); ++it) {
        if (it->complete)
            complete << QFileInfo(QDir(m_folder).filePath(it.key()));
    }
    std::sort(complete.begin(), complete.end(),
        [](const QFileInfo& a, const QFileInfo& b) { return a.fileName() < b.fileName(); });
    return complete;
}

int InboxFolder::count() const
{
    return int(
        std::count_if(m_files.cbegin(), m_files.cend(), [](const Seen& seen) { return seen.complete; }));
}

bool InboxFolder::isWaiting(const QString& name) const
{
    const auto it = m_files.constFind(name);
    return it != m_files.cend() && !it->complete;
}

void InboxFolder::setSettleInterval(int milliseconds)
{
    m_settle->setInterval(milliseconds);
}

void InboxFolder::rescan()
{
    look(false);
}

void InboxFolder::checkWaitingFiles()
{
    look(true);
}

void InboxFolder::look(bool settle)
{
    QHash<QString, Seen> now;
    bool changed = false;
    if (!m_folder.isEmpty()) {
        const QFileInfoList entries = QDir(m_folder).entryInfoList(QDir::Files | QDir::NoDotAndDotDot);
        for (const QFileInfo& entry : entries) {
            Seen seen {entry.size(), entry.lastModified(), false};
            const auto before = m_files.constFind(entry.fileName());
            if (before != m_files.cend() && before->size == seen.size && before->modified == seen.modified)
                seen.complete = before->complete || settle;
            if (seen.complete != (before != m_files.cend() && before->complete))
                changed = true;
            now.insert(entry.fileName(), seen);
        }
    }
    for (auto it = m_files.cbegin(); it != m_files.cend(); ++it) {
        if (it->complete && !now.contains(it.key()))
            changed = true;
    }
    m_files = std::move(now);
    const bool waiting
        = std::any_of(m_files.cbegin(), m_files.cend(), [](const Seen& seen) { return !seen.complete; });
    if (waiting && !m_settle->isActive())
        m_settle->start();
    else if (!waiting)
        m_settle->stop();
    if (changed)
        Q_EMIT filesChanged();
}

} // namespace kartella
