#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace kartella {

// What the operating system says of the file system a path lies on: the type number of
// statfs (0 where it has none, as on Windows) and the mount's type name ("nfs4",
// "fuse.sshfs"). On Windows a remote drive reads as remote, whatever its name.
struct FileSystemType
{
    quint64 magic = 0;
    QByteArray name;
    bool remote = false;
};

// The file system of a path: of the path itself where it exists, else of the nearest folder
// above it that does. Nullopt when the system can't tell.
std::optional<FileSystemType> fileSystemTypeOf(const QString& path);

// Replaces how fileSystemTypeOf reads the system (tests give any type); an empty function
// puts the system's own reading back.
using FileSystemTypeReader = std::function<std::optional<FileSystemType>(const QString& path)>;
void setFileSystemTypeReader(FileSystemTypeReader reader);

// The name of the network file system a type stands for ("NFS", "SMB", "sshfs", ...), empty
// for a local one. FUSE is network only for the mounts known to reach another machine, since
// local disks are mounted through it too.
QString networkFileSystemName(const FileSystemType& type);

// The network file system a register file lies on, empty for a local file, for a location
// on a database server and where the system can't tell.
QString registerShareName(const QString& location);

// The status bar's notice for a register file on a network file system named shareName:
// SQLite's locks are only as good as the share's, so several writers belong on a server.
QString shareNoticeText(const QString& location, const QString& shareName);

} // namespace kartella
