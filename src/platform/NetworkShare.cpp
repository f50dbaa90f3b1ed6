#include "platform/NetworkShare.h"

#include "store/engine/Connection.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <array>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <sys/vfs.h>
#endif

namespace kartella {

namespace {

FileSystemTypeReader& installedReader()
{
    static FileSystemTypeReader reader;
    return reader;
}

// The path itself where it exists, else the nearest folder above it that does: a register
// file about to be made lies on its folder's file system.
QString existingPathAt(const QString& path)
{
    QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    while (!info.exists()) {
        const QString parent = info.absolutePath();
        if (parent == info.absoluteFilePath())
            return {};
        info = QFileInfo(parent);
    }
    return info.absoluteFilePath();
}

std::optional<FileSystemType> readSystemType(const QString& path)
{
    const QString existing = existingPathAt(path);
    if (existing.isEmpty())
        return std::nullopt;
    FileSystemType type;
    const QStorageInfo storage(existing);
    type.name = storage.fileSystemType();
#ifdef Q_OS_WIN
    const QString root = QDir::toNativeSeparators(storage.isValid() ? storage.rootPath() : existing.left(3));
    type.remote = root.startsWith(QLatin1String("\\\\"))
        || GetDriveTypeW(reinterpret_cast<const wchar_t*>(root.utf16())) == DRIVE_REMOTE;
#else
    struct statfs system
    {
    };
    if (statfs(QFile::encodeName(existing).constData(), &system) != 0)
        return std::nullopt;
    type.magic = static_cast<quint64>(system.f_type) & 0xFFFFFFFFu;
#endif
    return type;
}

// The network file systems of Linux by their statfs type number (linux/magic.h and the
// file systems' own headers).
constexpr std::array<std::pair<quint64, const char*>, 13> NetworkMagics {{
    {0x6969, "NFS"},
    {0x517B, "SMB"},
    {0xFF534D42, "SMB"}, // cifs
    {0xFE534D42, "SMB"}, // smb2 and smb3
    {0x01021997, "9p"},
    {0x5346414F, "AFS"}, // OpenAFS
    {0x6B414653, "AFS"}, // kAFS
    {0x00C36400, "Ceph"},
    {0x73757245, "Coda"},
    {0x564C, "NCP"},
    {0x0BD00BD0, "Lustre"},
    {0x01161970, "GFS2"},
    {0x7461636F, "OCFS2"},
}};

constexpr quint64 FuseMagic = 0x65735546;

// FUSE mounts that reach another machine, by the part of their type name after "fuse.".
constexpr std::array<const char*, 10> NetworkFuseNames {"sshfs", "rclone", "s3fs", "glusterfs", "gcsfuse",
    "ceph-fuse", "curlftpfs", "smbnetfs", "davfs", "afpfs"};

// Type names without a type number (Windows, a reader that gives none).
constexpr std::array<std::pair<const char*, const char*>, 10> NetworkNames {{
    {"nfs", "NFS"},
    {"nfs4", "NFS"},
    {"cifs", "SMB"},
    {"smbfs", "SMB"},
    {"smb3", "SMB"},
    {"9p", "9p"},
    {"afs", "AFS"},
    {"ceph", "Ceph"},
    {"davfs", "WebDAV"},
    {"fuse.sshfs", "sshfs"},
}};

} // namespace

std::optional<FileSystemType> fileSystemTypeOf(const QString& path)
{
    const FileSystemTypeReader& reader = installedReader();
    return reader ? reader(path) : readSystemType(path);
}

void setFileSystemTypeReader(FileSystemTypeReader reader)
{
    installedReader() = std::move(reader);
}

QString networkFileSystemName(const FileSystemType& type)
{
    for (const auto& [magic, name] : NetworkMagics) {
        if (type.magic == magic)
            return QString::fromLatin1(name);
    }
    const QByteArray name = type.name.toLower();
    if (type.magic == FuseMagic || name.startsWith("fuse.")) {
        const QByteArray kind = name.mid(name.indexOf('.') + 1);
        for (const char* known : NetworkFuseNames) {
            if (kind == known)
                return QString::fromLatin1(known);
        }
        return type.remote ? QCoreApplication::translate("kartella::NetworkShare", "a network drive")
                           : QString();
    }
    if (type.magic == 0) {
        for (const auto& [known, shown] : NetworkNames) {
            if (name == known)
                return QString::fromLatin1(shown);
        }
    }
    return type.remote ? QCoreApplication::translate("kartella::NetworkShare", "a network drive") : QString();
}

QString registerShareName(const QString& location)
{
    if (location.trimmed().isEmpty() || isServerLocation(location))
        return {};
    const std::optional<FileSystemType> type = fileSystemTypeOf(location.trimmed());
    return type ? networkFileSystemName(*type) : QString();
}

QString shareNoticeText(const QString& location, const QString& shareName)
{
    return QCoreApplication::translate("kartella::NetworkShare",
        "The register is on a network share (%1), whose locks several writers "
        "can't rely on: a workgroup is safer on a PostgreSQL server. Move it "
        "there with: kartella-db copy \"%2\" postgresql://USER@HOST:PORT/DATABASE")
        .arg(shareName, QDir::toNativeSeparators(location.trimmed()));
}

} // namespace kartella
