#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run runTool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(KARTELLA_DB_PATH), arguments);
    Run run;
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

} // namespace

class ToolTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void createInfoAndRefusal()
    {
        const QString path = m_dir.filePath("Naujas registras.mdb");
        Run run = runTool({"create", path});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(QFile::exists(path));

        run = runTool({"info", path});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out.split('\n', Qt::SkipEmptyParts),
            QStringList({"tbl_Document_Categories: 0", "tbl_Sub_Categories: 0", "tbl_Documents: 0",
                "tbl_Sub_Documents: 0", "tbl_Tickler: 0", "tbl_Contacts: 0", "tbl_Phones: 0",
                "tbl_HomePages: 0"}));

        const qint64 size = QFileInfo(path).size();
        for (const char* command : {"create", "sample"}) {
            run = runTool({command, path});
            QCOMPARE(run.exitCode, 1);
            QVERIFY2(run.err.startsWith("kartella-db: "), qPrintable(run.err));
            QCOMPARE(run.err.count('\n'), 1);
            QCOMPARE(QFileInfo(path).size(), size);
        }

        run = runTool({"info", m_dir.filePath("nera.mdb")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.startsWith("kartella-db: "));
        QVERIFY(!QFile::exists(m_dir.filePath("nera.mdb")));
    }

    void sampleThenInfo()
    {
        const QString path = m_dir.filePath("Pavyzdys.mdb");
        Run run = runTool({"sample", path, "--documents", "50", "--seed=3"});
        QCOMPARE(run.exitCode, 0);
        run = runTool({"info", path});
        QCOMPARE(run.exitCode, 0);
        const QStringList lines = run.out.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 8);
        QVERIFY(lines.contains("tbl_Documents: 50"));
        QVERIFY(lines.contains("tbl_Contacts: 60"));
        QVERIFY(QFileInfo(m_dir.filePath("Pavyzdys files")).isDir());
    }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("unknown command") << QStringList({"drop", "x.mdb"});
        QTest::newRow("no path") << QStringList({"create"});
        QTest::newRow("two paths") << QStringList({"info", "a.mdb", "b.mdb"});
        QTest::newRow("bad count") << QStringList({"sample", "x.mdb", "--documents", "many"});
        QTest::newRow("missing value") << QStringList({"sample", "x.mdb", "--seed"});
        QTest::newRow("option of another command") << QStringList({"create", "x.mdb", "--documents", "5"});
    }

    void usageErrors()
    {
        QFETCH(QStringList, arguments);
        QDir::setCurrent(m_dir.path());
        const Run run = runTool(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.startsWith("kartella-db: "));
        QVERIFY(run.err.contains("Usage: kartella-db create LOCATION"));
        QVERIFY(!QFile::exists(m_dir.filePath("x.mdb")));
    }

    void help()
    {
        const Run run = runTool({"--help"});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.out.startsWith("Usage: kartella-db"));
        QVERIFY(run.err.isEmpty());
    }
};

int runToolTest(int argc, char** argv)
{
    ToolTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_tool.moc"
