#include "MdbSource.h"
#include "base/Error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;

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

bool runQuietly(const QString& program, const QStringList& arguments, const QString& folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    return process.waitForFinished(180000) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
}

// The Jet 4 example database of the npm package node-adodb (one table, Users, with
// English and Chinese text), fetched once into the build tree. Empty with a reason when
// npm or the network is missing.
QString jetSample(QString& reason)
{
    const QString folder = QStringLiteral(KARTELLA_JET_SAMPLE_DIR);
    const QString sample = folder + QStringLiteral("/package/examples/node-adodb.mdb");
    if (QFileInfo::exists(sample))
        return sample;
    const QString npm = QStandardPaths::findExecutable(QStringLiteral("npm"));
    if (npm.isEmpty()) {
        reason = QStringLiteral("npm is not installed; the Jet sample can't be fetched");
        return {};
    }
    QDir().mkpath(folder);
    if (!runQuietly(npm, {"pack", "node-adodb@5.0.3", "--silent"}, folder)) {
        reason = QStringLiteral("npm pack node-adodb failed (no network?)");
        return {};
    }
    if (!runQuietly(
            QStringLiteral("tar"), {"xzf", "node-adodb-5.0.3.tgz", "package/examples/node-adodb.mdb"}, folder)
        || !QFileInfo::exists(sample)) {
        reason = QStringLiteral("the node-adodb package holds no examples/node-adodb.mdb");
        return {};
    }
    return sample;
}

} // namespace

class MdbTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_sample;
    QString m_reason;

private Q_SLOTS:
    void initTestCase() { m_sample = jetSample(m_reason); }

    void init()
    {
        if (m_sample.isEmpty())
            QSKIP(qPrintable(m_reason));
    }

    void readsTablesOfAJetFile()
    {
        tool::MdbSource source(m_sample, QStringLiteral("CP1257"));
        QCOMPARE(source.version(), QStringLiteral("Jet 4"));
        QCOMPARE(source.tableNames(), QStringList({"Users"}));
        QVERIFY(!source.readTable(QStringLiteral("tbl_Documents")));
        QVERIFY(!source.readTable(QStringLiteral("MSysObjects")));

        const auto users = source.readTable(QStringLiteral("users"));
        QVERIFY(users);
        QCOMPARE(users->name, QStringLiteral("Users"));
        QCOMPARE(
            users->columns, QStringList({"UserId", "UserName", "UserSex", "UserBirthday", "UserMarried"}));
        QCOMPARE(users->rows.size(), 3);
        QCOMPARE(users->statedRows, 3);
        QCOMPARE(users->rows.at(0), QVariantList({"1", "Nuintun", "Male", "1989-01-25 00:00:00", "1"}));
        QCOMPARE(users->rows.at(1), QVariantList({"2", "Angela", "Female", "1988-12-18 00:00:00", "0"}));
        // Jet 4 text is Unicode whatever code page is asked for.
        QCOMPARE(users->rows.at(2),
            QVariantList({"3", QStringLiteral("张三"), QStringLiteral("男"), "1986-12-18 00:00:00", "1"}));
        tool::MdbSource western(m_sample, QStringLiteral("CP1252"));
        QCOMPARE(
            western.readTable(QStringLiteral("Users"))->rows.at(2).at(1).toString(), QStringLiteral("张三"));
    }

    void refusesWhatItCantRead_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("codePage");
        QTest::newRow("no file") << "nera.mdb" << QString() << "CP1257";
        QTest::newRow("not Jet") << "tekstas.mdb"
                                 << "Tai ne duomenų bazė"
                                 << "CP1257";
        QTest::newRow("empty file") << "tuscias.mdb"
                                    << ""
                                    << "CP1257";
        QTest::newRow("unknown code page") << "" << QString() << "CP9999";
    }

    void refusesWhatItCantRead()
    {
        QFETCH(QString, fileName);
        QFETCH(QString, content);
        QFETCH(QString, codePage);
        QString path = m_sample;
        if (!fileName.isEmpty()) {
            path = m_dir.filePath(fileName);
            if (!content.isNull()) {
                QFile file(path);
                QVERIFY(file.open(QIODevice::WriteOnly));
                file.write(content.toUtf8());
            }
        }
        QVERIFY_THROWS_EXCEPTION(Error, tool::MdbSource(path, codePage));
    }

    void migrateReportsWhatIsMissing()
    {
        const QString target = m_dir.filePath("Naujas registras.mdb");
        Run run = runTool({"migrate", m_sample, target, "--codepage", "CP1252"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.isEmpty(), qPrintable(run.err));
        QStringList lines = run.out.split('\n', Qt::SkipEmptyParts);
        QVERIFY(lines.takeFirst().endsWith("node-adodb.mdb (Jet 4)"));
        QCOMPARE(lines,
            QStringList({"tbl_Document_Categories: missing from the old file",
                "tbl_Sub_Categories: missing from the old file", "tbl_Contacts: missing from the old file",
                "tbl_Phones: missing from the old file", "tbl_HomePages: missing from the old file",
                "tbl_Documents: missing from the old file", "tbl_Sub_Documents: missing from the old file",
                "tbl_Tickler: missing from the old file", "Other tables of the old file, not migrated: Users",
                "Not everything arrived in " + QFileInfo(target).absoluteFilePath()}));
        run = runTool({"info", target});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out.count(": 0\n"), 8);

        // An existing register is never overwritten.
        const qint64 size = QFileInfo(target).size();
        run = runTool({"migrate", m_sample, target});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.startsWith("kartella-db: "));
        QCOMPARE(QFileInfo(target).size(), size);
    }

    void migrateRefusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("unknown code page") << QStringList({"SAMPLE", "NEW", "--codepage=KOI9"}) << 1;
        QTest::newRow("no old file") << QStringList({"nera.mdb", "NEW"}) << 1;
        QTest::newRow("one path") << QStringList({"SAMPLE"}) << 2;
        QTest::newRow("three paths") << QStringList({"SAMPLE", "NEW", "X"}) << 2;
        QTest::newRow("code page without value") << QStringList({"SAMPLE", "NEW", "--codepage"}) << 2;
        QTest::newRow("sample option") << QStringList({"SAMPLE", "NEW", "--documents", "3"}) << 2;
    }

    void migrateRefusals()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        const QString target = m_dir.filePath("neturi-atsirasti.mdb");
        arguments.replaceInStrings("SAMPLE", m_sample).replaceInStrings("NEW", target);
        arguments.prepend("migrate");
        const Run run = runTool(arguments);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY(run.err.startsWith("kartella-db: "));
        QVERIFY(!QFileInfo::exists(target));
    }
};

int runMdbTest(int argc, char** argv)
{
    MdbTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mdb.moc"
