#include "support/FileInfo.h"

#include "platform/Prompter.h"
#include "support/DataFiles.h"
#include "support/PathUtils.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <QStyle>

namespace kartella {

namespace {

constexpr int SmallSize = 16;
constexpr int LargeSize = 32;
constexpr int ShellSize = 32;

const QMimeDatabase& mimeDatabase()
{
    static const QMimeDatabase db;
    return db;
}

// By name first; the content is read only when the name tells nothing.
QMimeType mimeTypeOf(const QFileInfo& info)
{
    QMimeType type = mimeDatabase().mimeTypeForFile(info, QMimeDatabase::MatchExtension);
    if (type.isDefault() && info.isFile())
        type = mimeDatabase().mimeTypeForFile(info, QMimeDatabase::MatchContent);
    return type;
}

bool isLauncher(const QFileInfo& info)
{
    return !info.isDir() && info.fileName().endsWith(QLatin1String(".desktop"), Qt::CaseInsensitive);
}

// The plain Name= and Icon= entries of a launcher's [Desktop Entry] group.
struct LauncherEntries
{
    QString name;
    QString icon;
};

LauncherEntries readLauncher(const QString& path)
{
    LauncherEntries entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return entries;
    constexpr qint64 MaxLauncherSize = 64 * 1024;
    const QStringList lines = QString::fromUtf8(file.read(MaxLauncherSize)).split(QLatin1Char('\n'));
    bool inEntryGroup = false;
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        if (line.startsWith(QLatin1Char('['))) {
            inEntryGroup = line == QLatin1String("[Desktop Entry]");
            continue;
        }
        if (!inEntryGroup)
            continue;
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (eq <= 0)
            continue;
        const QString key = line.left(eq).trimmed();
        const QString value = line.mid(eq + 1).trimmed();
        if (key == QLatin1String("Name"))
            entries.name = value;
        else if (key == QLatin1String("Icon"))
            entries.icon = value;
    }
    return entries;
}

bool isDriveRoot(const QString& path)
{
    if (path.size() <= 3 && path.size() >= 2 && path.at(1) == QLatin1Char(':'))
        return true;
    return path == QDir::rootPath();
}

QIcon plainIcon(bool folder)
{
    const QIcon themed
        = QIcon::fromTheme(folder ? QStringLiteral("folder") : QStringLiteral("text-x-generic"));
    if (!themed.isNull())
        return themed;
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        return QApplication::style()->standardIcon(folder ? QStyle::SP_DirIcon : QStyle::SP_FileIcon);
    return {};
}

QIcon iconFromEntry(const QString& entry)
{
    if (entry.isEmpty())
        return {};
    if (QDir::isAbsolutePath(entry))
        return QFileInfo::exists(entry) ? QIcon(entry) : QIcon();
    return QIcon::fromTheme(entry);
}

} // namespace

void FileInfo::clear()
{
    *this = FileInfo();
}

void FileInfo::describe(const QFileInfo& info, bool byFileItself)
{
    m_isFolder = info.isDir();
    m_displayName = QFileInfo(QDir::cleanPath(info.filePath())).fileName();
    if (m_displayName.isEmpty()) // the root folder
        m_displayName = QDir::toNativeSeparators(info.filePath());
    if (isLauncher(info)) {
        m_typeName = QStringLiteral("Shortcut");
        m_mimeName = QStringLiteral("application/x-desktop");
        if (info.exists()) {
            const LauncherEntries entries = readLauncher(info.filePath());
            if (!entries.name.isEmpty())
                m_displayName = entries.name;
            if (byFileItself)
                m_launcherIcon = entries.icon;
        }
        return;
    }
    const QMimeType type = mimeTypeOf(info);
    m_mimeName = type.name();
    m_typeName = type.comment();
}

void FileInfo::createFromFile(const QString& path)
{
    clear();
    if (path.isEmpty())
        return;
    const QFileInfo info(path);
    if (!info.exists())
        return;
    describe(info, true);
    m_item = path;
    m_itemType = FileOrFolder;
}

void FileInfo::setItem(const QString& path)
{
    clear();
    if (path.isEmpty())
        return;
    if (isDriveRoot(path)) {
        const QFileInfo info(path);
        if (!info.exists())
            return;
        describe(info, false);
    } else {
        QString searched = path;
        denormalizePath(searched);
        const QFileInfo info(searched);
        if (!info.exists())
            msgBox(QCoreApplication::translate("kartella::FileInfo", "API Error"),
                MsgBoxStyle::OkOnly | MsgBoxStyle::Critical,
                QCoreApplication::translate("kartella::FileInfo", "Operating System Error"));
        describe(info, false);
    }
    m_item = path;
    m_itemType = FileOrFolder;
}

QString FileInfo::displayName() const
{
    if (m_itemType == Nothing || m_displayName.isEmpty())
        return QStringLiteral("Unknown");
    return m_displayName;
}

QString FileInfo::typeName() const
{
    if (m_itemType == Nothing || m_typeName.isEmpty())
        return QStringLiteral("None");
    return m_typeName;
}

QIcon FileInfo::typeIcon() const
{
    if (!m_launcherIcon.isEmpty()) {
        const QIcon own = iconFromEntry(m_launcherIcon);
        if (!own.isNull())
            return own;
    }
    const QMimeType type = mimeDatabase().mimeTypeForName(m_mimeName);
    if (type.isValid()) {
        QIcon themed = QIcon::fromTheme(type.iconName());
        if (themed.isNull())
            themed = QIcon::fromTheme(type.genericIconName());
        if (!themed.isNull())
            return themed;
    }
    return plainIcon(m_isFolder);
}

QIcon FileInfo::icon(int size) const
{
    if (m_itemType == Nothing)
        return {};
    const QIcon base = typeIcon();
    const QPixmap pixmap = base.pixmap(size, size);
    return pixmap.isNull() ? base : QIcon(pixmap);
}

QIcon FileInfo::smallIcon() const
{
    return icon(SmallSize);
}

QIcon FileInfo::largeIcon() const
{
    return icon(LargeSize);
}

QIcon FileInfo::shellIcon() const
{
    return icon(ShellSize);
}

FileInfo* getFileInfoObject(const QString& path)
{
    if (path.isEmpty() || !QFileInfo::exists(path))
        return nullptr;
    static FileInfo shared;
    shared.createFromFile(path);
    return &shared;
}

void useIconThemeFallback()
{
    const QString adwaita = QStringLiteral("Adwaita");
    QIcon::setFallbackThemeName(adwaita);
    // Without a desktop (or on a platform that names no theme) the loader knows neither a
    // theme nor the system's icon folders.
    if (QIcon::themeName().isEmpty())
        QIcon::setThemeName(adwaita);
    QStringList searchPaths = QIcon::themeSearchPaths();
    const QStringList systemFolders = QStandardPaths::locateAll(
        QStandardPaths::GenericDataLocation, QStringLiteral("icons"), QStandardPaths::LocateDirectory);
    for (const QString& folder : systemFolders) {
        if (!searchPaths.contains(folder))
            searchPaths.append(folder);
    }
    QIcon::setThemeSearchPaths(searchPaths);
}

QString noFileIconPath()
{
    return findDataFile(QStringLiteral("snow.ico"));
}

} // namespace kartella
