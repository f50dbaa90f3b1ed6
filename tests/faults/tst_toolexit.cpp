// kartella-db on a disk that fills up: a command that prints an error exits non-zero, and
// the register it wrote to stays sound with the rows it had.
#include "faults/FaultFixture.h"
#include "faults/TestMounts.h"
#include "harness/OldRegister.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella::test;

namespace {

// What a run printed to stderr other than the progress of a copy.
QStringList errorLines(const ToolRun& run)
{
    QStringList lines = run.err.split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) { return line.startsWith("kartella-db: copying "); });
    return lines;
}

} // namespace

class ToolExitTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_sample;

private Q_SLOTS:
    void initTestCase()
    {
        m_sample = m_dir.filePath("Pavyzdys.mdb");
        const ToolRun run = runTool({"sample", m_sample, "--documents", "120"});
        QVERIFY2(run.exitCode == 0, qPrintable(run.err));
        QFile vcard(m_dir.filePath("kontaktai.vcf"));
        QVERIFY(vcard.open(QIODevice::WriteOnly));
        vcard.write(contactsVCard(1500));
    }

    void anErrorExitsNonZero_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<qint64>("free");
        for (const char* command : {"import", "copy", "sample", "upgrade", "create"}) {
            for (const qint64 free : {0, 4096, 32768, 131072})
                QTest::addRow("%s, %lld bytes free", command, free) << QString::fromLatin1(command) << free;
        }
    }

    void anErrorExitsNonZero()
    {
        QFETCH(QString, command);
        QFETCH(qint64, free);
        SmallDisk disk(2 * 1024 * 1024);
        if (!disk.isMounted())
            QSKIP(qPrintable(disk.skipReason()));

        // The register that the command writes, on the small disk.
        const QString onDisk = disk.filePath("Registras.mdb");
        QStringList arguments;
        if (command == "import") {
            QVERIFY(QFile::copy(m_sample, onDisk));
            arguments = QStringList {"import", onDisk, m_dir.filePath("kontaktai.vcf")};
        } else if (command == "copy") {
            arguments = QStringList {"copy", m_sample, onDisk};
        } else if (command == "upgrade") {
            makeOldRegister(onDisk);
            arguments = QStringList {"upgrade", onDisk};
        } else {
            arguments = QStringList {command, onDisk};
        }
        const bool existed = QFile::exists(onDisk);
        const RegisterSnapshot before = existed ? RegisterSnapshot::take(onDisk) : RegisterSnapshot();
        disk.leaveFree(free);

        const ToolRun run = runTool(arguments);
        disk.leaveFree(-1);
        QVERIFY2(run.finished, qPrintable(run.err));
        const QStringList errors = errorLines(run);
        if (!errors.isEmpty())
            QVERIFY2(run.exitCode != 0, qPrintable(errors.join('\n')));
        if (run.exitCode != 0) {
            QVERIFY(!errors.isEmpty());
            QVERIFY2(errors.first().startsWith("kartella-db: "), qPrintable(errors.first()));
        }
        if (free == 0)
            QVERIFY2(run.exitCode != 0, qPrintable(run.out));
        if (existed) {
            QCOMPARE(integrityCheck(onDisk), QStringLiteral("ok"));
            const QStringList lost = RegisterSnapshot::take(onDisk).lostOrChanged(before);
            if (command != "upgrade" || run.exitCode != 0)
                QVERIFY2(lost.isEmpty(), qPrintable(lost.join('\n')));
        } else if (run.exitCode != 0 && command != "create") {
            // A new register that could not be filled is not left behind half made.
            QVERIFY2(!QFile::exists(onDisk), qPrintable(run.err));
        }
    }
};

int runToolExitTest(int argc, char** argv)
{
    ToolExitTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_toolexit.moc"
