#include "preview/PreviewCache.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace kartella {

PreviewCache::PreviewCache(const QString& folder, qint64 limitBytes)
    : m_folder(folder)
    , m_limitBytes(limitBytes)
{ }

QString PreviewCache::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
        + QStringLiteral("/kartella");
}

QString PreviewCache::entryPath(const QFileInfo& source, const QString& suffix) const
{
    const QByteArray identity = source.absoluteFilePath().toUtf8() + '\n' + QByteArray::number(source.size())
        + '\n' + QByteArray::number(source.lastModified().toMSecsSinceEpoch());
    const QByteArray name = QCryptographicHash::hash(identity, QCryptographicHash::Sha1).toHex();
    return m_folder + u'/' + QString::fromLatin1(name) + u'.' + suffix;
}

QString PreviewCache::find(const QFileInfo& source, const QString& suffix) const
{
    const QString path = entryPath(source, suffix);
    QFile entry(path);
    if (!entry.exists())
        return {};
    // Marks it as used; a cache on a read-only disk still serves what it holds.
    if (entry.open(QIODevice::ReadWrite))
        entry.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
    return path;
}

QString PreviewCache::store(const QString& made, const QFileInfo& source, const QString& suffix) const
{
    if (!QDir().mkpath(m_folder))
        return {};
    const QString path = entryPath(source, suffix);
    // Written beside the entry and renamed over it, so that a reader never sees half of it.
    const QString partial = path + QStringLiteral(".part");
    QFile::remove(partial);
    if (!QFile::rename(made, partial) && !QFile::copy(made, partial))
        return {};
    QFile::remove(path);
    if (!QFile::rename(partial, path)) {
        QFile::remove(partial);
        return {};
    }
    QFile entry(path);
    if (entry.open(QIODevice::ReadWrite))
        entry.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
    trim(path);
    return path;
}

qint64 PreviewCache::usedBytes() const
{
    qint64 used = 0;
    const QFileInfoList entries = QDir(m_folder).entryInfoList(QDir::Files);
    for (const QFileInfo& entry : entries)
        used += entry.size();
    return used;
}

void PreviewCache::trim(const QString& keep) const
{
    QFileInfoList entries = QDir(m_folder).entryInfoList(QDir::Files);
    qint64 used = 0;
    for (const QFileInfo& entry : entries)
        used += entry.size();
    if (used <= m_limitBytes)
        return;
    std::sort(entries.begin(), entries.end(),
        [](const QFileInfo& a, const QFileInfo& b) { return a.lastModified() < b.lastModified(); });
    for (const QFileInfo& entry : entries) {
        if (used <= m_limitBytes)
            break;
        if (entry.absoluteFilePath() == QFileInfo(keep).absoluteFilePath())
            continue;
        if (QFile::remove(entry.absoluteFilePath()))
            used -= entry.size();
    }
}

} // namespace kartella
