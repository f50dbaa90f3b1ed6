// A disk that fills up while the program writes to a register: the write fails with a
// message, and the register stays sound with every row it held before.
#include "addressbook/import/ContactFile.h"
#include "addressbook/import/ContactImporter.h"
#include "base/Error.h"
#include "faults/FaultFixture.h"
#include "faults/FullDiskVfs.h"
#include "faults/ListSource.h"
#include "harness/OldRegister.h"
#include "harness/TestRegister.h"
#include "store/RegisterCopy.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"
#include "store/SchemaSteps.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/migration/RegisterMigration.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <limits>

using namespace kartella;
using namespace kartella::test;

namespace {

// Points of the sweep over the bytes a write needs: enough to meet every phase of it
// (journal, pages, commit) without running it once per byte.
constexpr int SweepPoints = 14;

QString connectionStringOf(const QString& path)
{
    return plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path);
}

// One write path: it runs on `work` (a fresh copy of the fixture's register) and may write
// `target`; it returns what it told the user (or throws kartella::Error, which is what the
// program shows).
using Write = std::function<QStringList(const QString& work, const QString& target)>;

} // namespace

Q_DECLARE_METATYPE(Write)

class DiskFullTest : public QObject
{
    Q_OBJECT

    FullDiskVfs m_vfs;

private Q_SLOTS:
    void aFullDiskLosesNothing_data()
    {
        QTest::addColumn<QString>("fixture");
        QTest::addColumn<bool>("allOrNothing");
        QTest::addColumn<Write>("write");

        const Write import = [](const QString& work, const QString&) {
            QStringList told;
            ContactImporter importer(connectionStringOf(work), [&told](const Error& error) {
                told << error.description();
                return true;
            });
            QTemporaryDir dir;
            QFile file(dir.filePath("kontaktai.vcf"));
            file.open(QIODevice::WriteOnly);
            file.write(contactsVCard(300));
            file.close();
            importer.run(readContactFile(file.fileName(), {}));
            // kartella-db exits with the count of errors.
            if (!told.isEmpty() && importer.counts().errors == 0)
                told << QStringLiteral("told, but counted no error");
            return told;
        };
        const Write copy = [](const QString& work, const QString& target) {
            const RegisterCopyReport report = copyRegister(work, target);
            return report.complete() ? QStringList() : QStringList {report.undone};
        };
        const Write upgrade = [](const QString& work, const QString&) {
            upgradeRegister(work);
            return QStringList();
        };
        const Write migrate = [](const QString&, const QString& target) {
            ListSource source;
            createRegister(target);
            // The report names the tables the source lacks; a failure throws.
            migration::migrateRegister(source, target);
            return QStringList();
        };
        const Write sample = [](const QString&, const QString& target) {
            createRegister(target);
            SampleOptions options;
            options.documents = 60;
            options.filesOnDisk = 0;
            fillSampleRegister(target, options);
            return QStringList();
        };
        QTest::newRow("import") << "sample" << false << import;
        QTest::newRow("copy") << "sample" << true << copy;
        QTest::newRow("upgrade") << "old" << false << upgrade;
        QTest::newRow("migrate") << "sample" << true << migrate;
        QTest::newRow("sample") << "sample" << true << sample;
    }

    void aFullDiskLosesNothing()
    {
        QFETCH(QString, fixture);
        QFETCH(bool, allOrNothing);
        QFETCH(Write, write);

        TestRegister reg;
        if (fixture == "old") {
            QFile::remove(reg.path());
            makeOldRegister(reg.path());
        } else {
            SampleOptions options;
            options.documents = 40;
            options.filesOnDisk = 0;
            reg.fillSample(options);
        }
        const RegisterSnapshot before = RegisterSnapshot::take(reg.path());

        // The bytes the write needs when the disk has room.
        qint64 needed = 0;
        {
            QTemporaryDir dir;
            const QString work = dir.filePath("work.mdb");
            QVERIFY(QFile::copy(reg.path(), work));
            m_vfs.arm(std::numeric_limits<qint64>::max());
            const QStringList told = write(work, dir.filePath("target.mdb"));
            needed = m_vfs.written();
            m_vfs.disarm();
            QVERIFY2(told.isEmpty(), qPrintable(told.join('\n')));
            QVERIFY(needed > 0);
        }

        for (int point = 0; point < SweepPoints; ++point) {
            const qint64 budget = needed * point / SweepPoints;
            const QByteArray whereText
                = "at byte " + QByteArray::number(budget) + " of " + QByteArray::number(needed);
            const char* where = whereText.constData();
            QTemporaryDir dir;
            const QString work = dir.filePath("work.mdb");
            const QString target = dir.filePath("target.mdb");
            QVERIFY(QFile::copy(reg.path(), work));

            QStringList told;
            m_vfs.arm(budget);
            try {
                told = write(work, target);
            } catch (const Error& error) {
                told << error.description();
            }
            const bool refused = m_vfs.refused();
            m_vfs.disarm();

            QVERIFY2(refused, where);
            QVERIFY2(!told.isEmpty(), where);
            // The first message names the cause; those after it may tell what it undid.
            QVERIFY2(told.first().contains("disk that holds the register is full"),
                qPrintable(told.join('\n') + ' ' + where));
            for (const QString& message : std::as_const(told))
                QVERIFY2(message.contains("disk that holds the register is full")
                        || message.startsWith("The changes were not stored"),
                    qPrintable(message + ' ' + where));
            QCOMPARE(integrityCheck(work), QStringLiteral("ok"));
            const QStringList lost = RegisterSnapshot::take(work).lostOrChanged(before);
            QVERIFY2(lost.isEmpty(), qPrintable(lost.join('\n') + ' ' + where));
            if (allOrNothing && QFile::exists(target) && QFile(target).size() > 0) {
                // A new register keeps the empty schema at most.
                QCOMPARE(integrityCheck(target), QStringLiteral("ok"));
                const RegisterSnapshot made = RegisterSnapshot::take(target);
                for (auto table = made.tables.cbegin(); table != made.tables.cend(); ++table)
                    QVERIFY2(table->isEmpty(), qPrintable(table.key() + ' ' + where));
            }
            if (fixture == "old") {
                Connection connection(connectionStringOf(work));
                connection.open();
                // Each step is whole or not there; the failed one is not.
                QVERIFY(schemaVersion(connection) < newestSchemaVersion());
            }
        }
    }
};

int runDiskFullTest(int argc, char** argv)
{
    DiskFullTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_diskfull.moc"
