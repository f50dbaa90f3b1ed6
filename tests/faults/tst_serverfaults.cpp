// The PostgreSQL server stops while a dialog is open: OK gives the connection message and
// keeps what was typed, and once the server is back OK saves, without a restart. The test
// starts a server of its own (scripts/postgres-test-server), so that stopping it disturbs
// no other test.
#include "harness/TestRegister.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/RegisterFixture.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace kartella;
using namespace kartella::test;

namespace {

QString run(const QString& program, const QStringList& arguments, int* exitCode = nullptr)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60000);
    if (exitCode)
        *exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

// A private server: started by the test script, then stopped and started again through
// pg_ctl on the same cluster.
class PrivateServer
{
public:
    PrivateServer()
        : m_dir(QStringLiteral("/tmp/kartella-faults-pg-%1").arg(QCoreApplication::applicationPid()))
    {
        int code = -1;
        m_location = run(
            QStringLiteral(KARTELLA_SOURCE_DIR "/scripts/postgres-test-server"), {"start", m_dir}, &code);
        if (code != 0)
            m_location.clear();
        const QStringList bins = QDir(QStringLiteral("/usr/lib/postgresql"))
                                     .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        if (!bins.isEmpty())
            m_pgCtl = QStringLiteral("/usr/lib/postgresql/") + bins.last() + QStringLiteral("/bin/pg_ctl");
    }
    ~PrivateServer()
    {
        if (!m_location.isEmpty())
            run(QStringLiteral(KARTELLA_SOURCE_DIR "/scripts/postgres-test-server"), {"stop", m_dir});
    }
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;

    QString location() const { return m_location; }
    bool stop() { return pgCtl({"--mode=fast", "--wait", "stop"}); }
    bool start()
    {
        const QString port = QString::number(QUrl(m_location).port());
        return pgCtl({"--log=" + m_dir + "/server.log", "--wait", "--options=-p " + port, "start"});
    }

private:
    bool pgCtl(const QStringList& arguments)
    {
        int code = -1;
        run(QStringLiteral("runuser"),
            QStringList {"-u", "postgres", "--", m_pgCtl, "--pgdata=" + m_dir + "/data"} + arguments, &code);
        return code == 0;
    }

    QString m_dir;
    QString m_location;
    QString m_pgCtl;
};

} // namespace

class ServerFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void detailsOkWhileTheServerIsAway()
    {
        PrivateServer server;
        if (server.location().isEmpty())
            QSKIP("no private PostgreSQL server could be started (scripts/postgres-test-server)");
        const QByteArray previous = qgetenv("KARTELLA_TEST_POSTGRESQL");
        qputenv("KARTELLA_TEST_POSTGRESQL", server.location().toUtf8());
        {
            TestRegister reg(TestRegister::Server);
            ScriptedPrompter prompter;
            const qint32 id = reg.insert("tbl_Documents", {{"DokAntraste", "Sutartis"}, {"KryptisID", 1}});
            selection() = SelectionState();
            selection().activeListName = "ListDokSarasas";
            selection().selectedDocumentId = id;
            selection().selectedItemText = "Sutartis";
            DocumentDetailsDialog dialog;
            showActive(dialog);
            retype(box(dialog, 7), "Sutartis be serverio");

            QVERIFY(server.stop());
            prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
            click(dialog, "cmdButton_0");
            const QStringList told = prompter.texts();
            prompter.take();
            QVERIFY(!told.isEmpty());
            QVERIFY2(told.first().contains("server", Qt::CaseInsensitive)
                    || told.first().contains("connect", Qt::CaseInsensitive),
                qPrintable(told.join('\n')));
            QVERIFY(dialog.isVisible());
            QCOMPARE(box(dialog, 7)->text(), "Sutartis be serverio");

            QVERIFY(server.start());
            click(dialog, "cmdButton_0");
            QVERIFY2(prompter.prompts().isEmpty(), qPrintable(prompter.texts().join('\n')));
            QVERIFY(!dialog.isVisible());
            QCOMPARE(reg.scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID=" + QString::number(id))
                         .toString(),
                "Sutartis be serverio");
            selection() = SelectionState();
        }
        qputenv("KARTELLA_TEST_POSTGRESQL", previous);
    }
};

int runServerFaultsTest(int argc, char** argv)
{
    ServerFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_serverfaults.moc"
