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

void AddEmptyIcon(const QString& key)
{
    IconCache& cache = IconCache::shared();
    if (cache.contains(key))
        return;
    // Without the file the picture is simply empty.
    const QIcon snow(NoFileIconPath());
    cache.add(key, snow, snow);
}

void AddFileIcon(CFileInfo& info, const QString& key)
{
    IconCache& cache = IconCache::shared();
    if (cache.contains(key))
        return;
    cache.add(key, info.LargeIcon(), info.SmallIcon());
}

QString GetIconKey(const QString& path)
{
    // A Null path ("jj") and a file that isn't there both show the "no file" picture.
    CFileInfo* info = path == NoFilePath ? nullptr : GetFileInfoObject(path);
    if (!info) {
        AddEmptyIcon(EmptyIconKey);
        return EmptyIconKey;
    }
    QString key = info->DisplayName();
    if (info->TypeName() != QLatin1String("Shortcut") && info->ItemType() == 1)
        key = info->TypeName();
    AddFileIcon(*info, key);
    return key;
}

} // namespace kartella
