#include "faults/TestMounts.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStorageInfo>
#include <QTemporaryDir>

namespace kartella::test {

namespace {

const QString FillerName = QStringLiteral(".filler");

int runQuietly(const QString& program, const QStringList& arguments, QString* error = nullptr)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(30000))
        return -1;
    if (error)
        *error = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

} // namespace

SmallDisk::SmallDisk(qint64 sizeBytes)
{
    QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/kartella-small-disk-XXXXXX"));
    dir.setAutoRemove(false);
    m_path = dir.path();
    QString error;
    if (runQuietly(QStringLiteral("mount"),
            {"-t", "tmpfs", "-o", QStringLiteral("size=%1").arg(sizeBytes), "tmpfs", m_path}, &error)
        != 0) {
        m_skipReason = QStringLiteral("can't mount a small tmpfs for a full disk (needs root): ") + error;
        QDir().rmdir(m_path);
        return;
    }
    m_mounted = true;
}

SmallDisk::~SmallDisk()
{
    if (m_mounted)
        runQuietly(QStringLiteral("umount"), {m_path});
    QDir().rmdir(m_path);
}

qint64 SmallDisk::freeBytes() const
{
    return QStorageInfo(m_path).bytesAvailable();
}

void SmallDisk::leaveFree(qint64 freeBytes)
{
    QFile filler(filePath(FillerName));
    if (freeBytes < 0) {
        filler.remove();
        return;
    }
    if (!filler.open(QIODevice::Append))
        return;
    const QByteArray block(4096, 'x');
    while (this->freeBytes() > freeBytes) {
        const qint64 chunk = std::min<qint64>(block.size(), this->freeBytes() - freeBytes);
        if (filler.write(block.constData(), chunk) != chunk || !filler.flush())
            break;
    }
}

ReadOnlyFolder::ReadOnlyFolder(const QString& path)
    : m_path(path)
{
    QString error;
    if (runQuietly(QStringLiteral("mount"), {"--bind", m_path, m_path}, &error) != 0) {
        m_skipReason = QStringLiteral("can't bind-mount a folder read-only (needs root): ") + error;
        return;
    }
    m_mounted = true;
    if (runQuietly(QStringLiteral("mount"), {"-o", "remount,bind,ro", m_path}, &error) != 0) {
        m_skipReason = QStringLiteral("can't make a bind mount read-only: ") + error;
        release();
    }
}

ReadOnlyFolder::~ReadOnlyFolder()
{
    release();
}

void ReadOnlyFolder::release()
{
    if (m_mounted)
        runQuietly(QStringLiteral("umount"), {m_path});
    m_mounted = false;
}

} // namespace kartella::test
