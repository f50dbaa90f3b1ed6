#pragma once

#include <QString>

namespace kartella::test {

// A folder on a file system of its own, a few hundred kilobytes large, that the test fills
// up to a given free space: a tmpfs mounted while the object lives. Mounting needs root
// (tests run as root here); where it fails, skipReason() says why and the test skips.
class SmallDisk
{
public:
    explicit SmallDisk(qint64 sizeBytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isMounted() const { return m_mounted; }
    QString skipReason() const { return m_skipReason; }
    QString path() const { return m_path; }
    QString filePath(const QString& name) const { return m_path + u'/' + name; }

    // Fills the disk with a file until at most freeBytes are left; leaveFree(-1) removes it.
    void leaveFree(qint64 freeBytes);
    qint64 freeBytes() const;

private:
    QString m_path;
    QString m_skipReason;
    bool m_mounted = false;
};

// While it lives, a folder reads as it did but refuses every change, to root as well: the
// folder bind-mounted read-only onto itself. Where mounting fails, skipReason() says why.
class ReadOnlyFolder
{
public:
    explicit ReadOnlyFolder(const QString& path);
    ~ReadOnlyFolder();
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

    bool isMounted() const { return m_mounted; }
    QString skipReason() const { return m_skipReason; }
    // Lets the folder be written again.
    void release();

private:
    QString m_path;
    QString m_skipReason;
    bool m_mounted = false;
};

} // namespace kartella::test
