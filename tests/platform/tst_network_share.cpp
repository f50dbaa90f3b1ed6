#include "explorer/MainWindow.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "platform/NetworkShare.h"
#include "store/Schema.h"

#include <QDir>
#include <QLabel>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

// Every path reads as lying on the file system given, while the object lives.
class FileSystemOverride
{
public:
    explicit FileSystemOverride(FileSystemType type)
    {
        setFileSystemTypeReader([this](const QString& path) {
            asked << path;
            return std::optional<FileSystemType>(m_type);
        });
        m_type = std::move(type);
    }
    ~FileSystemOverride() { setFileSystemTypeReader({}); }
    FileSystemOverride(const FileSystemOverride&) = delete;
    FileSystemOverride& operator=(const FileSystemOverride&) = delete;

    void set(FileSystemType type) { m_type = std::move(type); }
    QStringList asked;

private:
    FileSystemType m_type;
};

int run(const QString& program, const QStringList& arguments, QString* error)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(30000))
        return -1;
    *error = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QLabel* notice(const MainWindow& window)
{
    return window.findChild<QLabel*>(QStringLiteral("pnShare"));
}

} // namespace

class TestNetworkShare : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileSystemTypes_data()
    {
        QTest::addColumn<quint64>("magic");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("remote");
        QTest::addColumn<QString>("share");
        QTest::newRow("nfs") << quint64(0x6969) << QByteArray("nfs4") << false << "NFS";
        QTest::newRow("smb") << quint64(0x517B) << QByteArray("smbfs") << false << "SMB";
        QTest::newRow("cifs") << quint64(0xFF534D42) << QByteArray("cifs") << false << "SMB";
        QTest::newRow("smb2") << quint64(0xFE534D42) << QByteArray("smb3") << false << "SMB";
        QTest::newRow("9p") << quint64(0x01021997) << QByteArray("9p") << false << "9p";
        QTest::newRow("afs") << quint64(0x5346414F) << QByteArray("afs") << false << "AFS";
        QTest::newRow("ceph") << quint64(0x00C36400) << QByteArray("ceph") << false << "Ceph";
        QTest::newRow("sshfs") << quint64(0x65735546) << QByteArray("fuse.sshfs") << false << "sshfs";
        QTest::newRow("ntfs-3g through fuse") << quint64(0x65735546) << QByteArray("fuseblk") << false << "";
        QTest::newRow("ext4") << quint64(0xEF53) << QByteArray("ext4") << false << "";
        QTest::newRow("tmpfs") << quint64(0x01021994) << QByteArray("tmpfs") << false << "";
        QTest::newRow("btrfs") << quint64(0x9123683E) << QByteArray("btrfs") << false << "";
        QTest::newRow("overlay") << quint64(0x794C7630) << QByteArray("overlay") << false << "";
        QTest::newRow("windows network drive")
            << quint64(0) << QByteArray("NTFS") << true << "a network drive";
        QTest::newRow("windows local drive") << quint64(0) << QByteArray("NTFS") << false << "";
        QTest::newRow("name alone") << quint64(0) << QByteArray("cifs") << false << "SMB";
    }

    // A register file is on a share by the file system its folder reads as; a register on a
    // server never is, whatever the folder the program runs in.
    void fileSystemTypes()
    {
        QFETCH(quint64, magic);
        QFETCH(QByteArray, name);
        QFETCH(bool, remote);
        QFETCH(QString, share);
        const FileSystemOverride system({magic, name, remote});
        QCOMPARE(registerShareName(QStringLiteral("/mnt/office/Kartella.mdb")), share);
        QCOMPARE(system.asked, QStringList({"/mnt/office/Kartella.mdb"}));
        QCOMPARE(registerShareName(QStringLiteral("postgresql://kartella@db.example.lt:5432/registras")),
            QString());
        QCOMPARE(registerShareName(QString()), QString());
        QCOMPARE(system.asked.size(), 1);
    }

    // A folder bind-mounted from a tmpfs: the system's own reading finds the tmpfs beneath
    // the bind mount, for the file and for a file not made yet, and calls it local.
    void bindMountOfTmpfsIsLocal()
    {
        QTemporaryDir base;
        const QString disk = base.filePath(QStringLiteral("disk"));
        const QString bound = base.filePath(QStringLiteral("bound"));
        QVERIFY(QDir().mkpath(disk) && QDir().mkpath(bound));
        QString error;
        if (run(QStringLiteral("mount"), {"-t", "tmpfs", "-o", "size=4m", "tmpfs", disk}, &error) != 0)
            QSKIP(qPrintable("can't mount a tmpfs (needs root): " + error));
        const auto unmountDisk = qScopeGuard([&] { run(QStringLiteral("umount"), {disk}, &error); });
        if (run(QStringLiteral("mount"), {"--bind", disk, bound}, &error) != 0)
            QSKIP(qPrintable("can't bind-mount a folder (needs root): " + error));
        const auto unmountBound = qScopeGuard([&] { run(QStringLiteral("umount"), {bound}, &error); });

        const QString registerPath = bound + QStringLiteral("/Kartella.mdb");
        createRegister(registerPath);
        QVERIFY(QFile::exists(disk + QStringLiteral("/Kartella.mdb")));
        for (const QString& path : QStringList {registerPath, bound + QStringLiteral("/sub/New.mdb")}) {
            const std::optional<FileSystemType> type = fileSystemTypeOf(path);
            QVERIFY2(type, qPrintable(path));
            QCOMPARE(type->magic, quint64(0x01021994));
            QCOMPARE(type->name, QByteArray("tmpfs"));
            QCOMPARE(registerShareName(path), QString());
        }
    }

    // The main window tells of a register on a share in its status bar when it opens it, once
    // per register: opened again after another, it is not told again; a local one never is.
    void mainWindowTellsOncePerRegister()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        const QString second = reg.dir() + QStringLiteral("/Second.mdb");
        const QString local = reg.dir() + QStringLiteral("/Local.mdb");
        createRegister(second);
        createRegister(local);
        FileSystemOverride system({0x6969, "nfs4", false});

        MainWindow window;
        window.show();
        window.load();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(notice(window));
        QVERIFY(notice(window)->isVisible());
        const QString expected = "The register is on a network share (NFS), whose locks several writers "
                                 "can't rely on: a workgroup is safer on a PostgreSQL server. Move it "
                                 "there with: kartella-db copy \""
            + QDir::toNativeSeparators(reg.path()) + "\" postgresql://USER@HOST:PORT/DATABASE";
        QCOMPARE(notice(window)->text(), expected);
        QCOMPARE(notice(window)->toolTip(), expected);
        QVERIFY(!notice(window)->accessibleName().isEmpty());

        // F5 on the same register changes nothing.
        QTest::keyClick(&window, Qt::Key_F5);
        QVERIFY(notice(window)->isVisible());
        QCOMPARE(notice(window)->text(), expected);

        const auto openRegister = [&](const QString& location) {
            setRegValue(QStringLiteral("DbLocation"), location);
            QTest::keyClick(&window, Qt::Key_F5);
        };
        openRegister(second);
        QVERIFY(notice(window)->isVisible());
        QVERIFY(
            notice(window)->text().contains("kartella-db copy \"" + QDir::toNativeSeparators(second) + '"'));
        openRegister(reg.path());
        QVERIFY(!notice(window)->isVisible());
        QVERIFY(notice(window)->text().isEmpty());

        system.set({0xEF53, "ext4", false});
        openRegister(local);
        QVERIFY(!notice(window)->isVisible());
        QVERIFY(prompter.prompts().isEmpty());
    }
};

QTEST_MAIN(TestNetworkShare)
#include "tst_network_share.moc"
