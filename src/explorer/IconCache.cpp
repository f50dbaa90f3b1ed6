#include "explorer/IconCache.h"

#include "support/FileInfo.h"

namespace kartella {

void IconCache::add(const QString& key, const QIcon& large, const QIcon& small)
{
    m_large.insert(key, large);
    m_small.insert(key, small);
}

void IconCache::clear()
{
    m_large.clear();
    m_small.clear();
}

IconCache& IconCache::shared()
{
    static IconCache cache;
    return cache;
}

void addEmptyIcon(const QString& key)
{
    IconCache& cache = IconCache::shared();
    if (cache.contains(key))
        return;
    // Without the file the picture is simply empty.
    const QIcon snow(noFileIconPath());
    cache.add(key, snow, snow);
}

void addFileIcon(FileInfo& info, const QString& key)
{
    IconCache& cache = IconCache::shared();
    if (cache.contains(key))
        return;
    cache.add(key, info.largeIcon(), info.smallIcon());
}

QString getIconKey(const QString& path)
{
    // A Null path ("jj") and a file that isn't there both show the "no file" picture.
    FileInfo* info = path == NoFilePath ? nullptr : getFileInfoObject(path);
    if (!info) {
        addEmptyIcon(EmptyIconKey);
        return EmptyIconKey;
    }
    QString key = info->displayName();
    if (info->typeName() != QLatin1String("Shortcut") && info->itemType() == 1)
        key = info->typeName();
    addFileIcon(*info, key);
    return key;
}

} // namespace kartella
