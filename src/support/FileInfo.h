#pragma once

#include <QIcon>
#include <QString>

class QFileInfo;

namespace kartella {

// A file's or folder's name, type and icons as the desktop shows them. The display name
// is the name a file manager shows; the type name is the comment of the file's MIME type
// (found by name, by content only when the name tells nothing); the icons come from the
// icon theme. A desktop launcher (.desktop file) stands for a shortcut: its type name is
// "Shortcut" and, read through createFromFile, its icon is its own.
class FileInfo
{
public:
    // What the object describes.
    enum Type { Nothing = 0, FileOrFolder = 1 };

    // Describes an existing file by the file itself (a launcher gets its own icon). A
    // path that isn't there leaves the object empty.
    void createFromFile(const QString& path);

    // Describes path by its name and kind, the icon being that of its type. One trailing
    // separator is ignored. A path that isn't there is reported ("API Error", title
    // "Operating System Error") and then described by its name alone. A drive root
    // ("C:\", or "/" here) isn't searched for.
    void setItem(const QString& path);

    QString item() const { return m_item; }
    int itemType() const { return m_itemType; }
    // "Unknown" when empty or when the object describes nothing.
    QString displayName() const;
    // "None" when empty or when the object describes nothing.
    QString typeName() const;

    // 16 pixels, 32 pixels, and the size the desktop uses for shell items (32); a null
    // icon when the object describes nothing.
    QIcon smallIcon() const;
    QIcon largeIcon() const;
    QIcon shellIcon() const;

private:
    void clear();
    void describe(const QFileInfo& info, bool byFileItself);
    QIcon icon(int size) const;
    QIcon typeIcon() const;

    QString m_item;
    int m_itemType = Nothing;
    QString m_displayName;
    QString m_typeName;
    QString m_mimeName;
    QString m_launcherIcon; // Icon= entry of a launcher described by the file itself
    bool m_isFolder = false;
};

// The one shared object, filled by createFromFile for path; nullptr when path isn't
// there. Each call overwrites what the last one read.
FileInfo* getFileInfoObject(const QString& path);

// Makes "Adwaita" the theme in which icons missing from the current theme are looked for
// (and the theme itself where the platform names none), and lets the icon loader search
// the system's icon folders. Called once at start-up.
void useIconThemeFallback();

// The picture of a document whose file can't be reached: snow.ico among the program's data
// files (see support/DataFiles.h); empty when it is missing.
QString noFileIconPath();

} // namespace kartella
