#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

namespace kartella {

class FileInfo;

// The pictures of the two explorer lists by key: one large and one small picture per
// key (imlstLIcon and imlstSIcon hold the same keys). It grows during fills, survives
// refills, and only the delete command empties it.
class IconCache
{
public:
    bool contains(const QString& key) const { return m_large.contains(key); }
    void add(const QString& key, const QIcon& large, const QIcon& small);
    QIcon large(const QString& key) const { return m_large.value(key); }
    QIcon small(const QString& key) const { return m_small.value(key); }
    qsizetype count() const { return m_large.size(); }
    void clear();

    // The cache both lists of the main window share.
    static IconCache& shared();

private:
    QHash<QString, QIcon> m_large;
    QHash<QString, QIcon> m_small;
};

// Image key for a document without a reachable file.
inline const QString EmptyIconKey = QStringLiteral("pctEmpty");
// Stands for a Null file path on the way to getIconKey.
inline const QString NoFilePath = QStringLiteral("jj");

// The image key for a file: "pctEmpty" for "jj" or a path that isn't there; otherwise
// the file's type name (its display name for a shortcut), with the pictures put into the
// shared cache on first sight of the key.
QString getIconKey(const QString& path);
// Puts the file's pictures into the shared cache under key, unless the key is there.
void addFileIcon(FileInfo& info, const QString& key);
// Puts the "no file" picture (snow.ico beside the program) under key, unless it is there.
void addEmptyIcon(const QString& key);

} // namespace kartella
