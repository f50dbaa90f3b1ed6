// A dialog's OK while the register can't be written (its disk full, its folder turned
// read-only, another program holding the write lock): the save fails with a message, the
// dialog stays open with what was typed, and OK once the fault is gone saves.
#include "faults/FaultFixture.h"
#include "faults/FullDiskVfs.h"
#include "faults/TestMounts.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/RegisterFixture.h"

#include <QFileInfo>
#include <QTest>

#include <memory>
#include <sqlite3.h>

using namespace kartella;
using namespace kartella::test;

namespace {

// Another program's connection to the register holding its write lock while it lives.
class WriteLock
{
public:
    explicit WriteLock(const QString& path)
    {
        sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_exec(m_db, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    }
    ~WriteLock()
    {
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close_v2(m_db);
    }
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

private:
    sqlite3* m_db = nullptr;
};

// One fault while it lives; lift() ends it sooner.
class Fault
{
public:
    Fault(const QString& kind, const QString& registerPath, FullDiskVfs& vfs)
        : m_vfs(vfs)
    {
        if (kind == "disk full") {
            m_vfs.arm(0);
            m_armed = true;
        } else if (kind == "read-only folder") {
            m_folder = std::make_unique<ReadOnlyFolder>(QFileInfo(registerPath).absolutePath());
            if (!m_folder->isMounted())
                m_skipReason = m_folder->skipReason();
        } else if (kind == "write lock") {
            m_lock = std::make_unique<WriteLock>(registerPath);
        }
    }
    ~Fault() { lift(); }
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;

    QString skipReason() const { return m_skipReason; }
    void lift()
    {
        if (m_armed)
            m_vfs.disarm();
        m_armed = false;
        m_folder.reset();
        m_lock.reset();
    }

private:
    FullDiskVfs& m_vfs;
    bool m_armed = false;
    std::unique_ptr<ReadOnlyFolder> m_folder;
    std::unique_ptr<WriteLock> m_lock;
    QString m_skipReason;
};

} // namespace

class DialogFaultsTest : public QObject
{
    Q_OBJECT

    FullDiskVfs m_vfs;

    // The faults, and what the message names.
    static void addFaults()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("told");
        QTest::newRow("disk full") << "disk full"
                                   << "disk that holds the register is full";
        QTest::newRow("read-only folder") << "read-only folder"
                                          << "read-only";
        QTest::newRow("write lock") << "write lock"
                                    << "in use by another program";
    }

private Q_SLOTS:
    void detailsOkKeepsTheDialog_data() { addFaults(); }
    void detailsOkKeepsTheDialog()
    {
        QFETCH(QString, fault);
        QFETCH(QString, told);
        Fixture fx;
        const RegisterSnapshot before = RegisterSnapshot::take(fx.reg.path(), fx.files.path());
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 7), "Sutartis po gedimo");

        {
            Fault injected(fault, fx.reg.path(), m_vfs);
            if (!injected.skipReason().isEmpty())
                QSKIP(qPrintable(injected.skipReason()));
            fx.prompter.answer(MsgBoxResult::Ok);
            click(dialog, "cmdButton_0");
            const auto prompts = fx.prompter.take();
            QCOMPARE(prompts.size(), 1);
            QVERIFY2(
                prompts.first().text.contains(told, Qt::CaseInsensitive), qPrintable(prompts.first().text));
            QCOMPARE(prompts.first().style, MsgBoxStyle::Critical);
            QVERIFY(dialog.isVisible());
            QCOMPARE(box(dialog, 7)->text(), "Sutartis po gedimo");
        }
        QCOMPARE(integrityCheck(fx.reg.path()), QStringLiteral("ok"));
        QVERIFY(RegisterSnapshot::take(fx.reg.path(), fx.files.path()).lostOrChanged(before).isEmpty());

        click(dialog, "cmdButton_0");
        QVERIFY(fx.prompter.prompts().isEmpty());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis po gedimo");
    }
};

int runDialogFaultsTest(int argc, char** argv)
{
    DialogFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialogfaults.moc"
