// Two programs on one register, each with a connection of its own.
#include "EngineFixture.h"
#include "base/Error.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/RecordsetData.h"

#include <QLocale>
#include <QSemaphore>
#include <QSet>
#include <QTest>
#include <QThread>

#include <memory>

using namespace kartella;
using namespace kartella::test;
using namespace Qt::StringLiterals;

namespace {

// A table with a column of each kind a row's edit may change.
void createMeasures(EngineRegister& reg)
{
    reg.execute(reg.onServer()
            ? QStringLiteral("CREATE TABLE measures (id integer PRIMARY KEY, note text, amount integer, "
                             "ratio double precision, day date, taken timestamp, other text)")
            : QStringLiteral("CREATE TABLE measures (id INTEGER PRIMARY KEY, note TEXT, amount INTEGER, "
                             "ratio DOUBLE, day DATE, taken DATETIME, other TEXT)"));
}

void openMeasure(Recordset& recordset, Connection& connection, int lockType)
{
    recordset.open(
        QStringLiteral("SELECT * FROM measures WHERE id = 1"), connection, CursorTypeEnum::Static, lockType);
}

// Whether a value read back is the one written, a time to the second as it is stored.
bool sameStored(const QVariant& read, const QVariant& written)
{
    if (read.isNull() || written.isNull())
        return read.isNull() == written.isNull();
    switch (written.typeId()) {
    case QMetaType::Double:
        return read.toDouble() == written.toDouble();
    case QMetaType::QDate:
        return read.toDate() == written.toDate();
    case QMetaType::QDateTime: {
        const QDateTime moment = written.toDateTime();
        return read.toDateTime() == moment.addMSecs(-moment.time().msec());
    }
    default:
        return read.toString() == written.toString();
    }
}

QString shown(const QVariant& value)
{
    return value.isNull() ? QStringLiteral("Null") : value.toString();
}

} // namespace

class ConcurrencyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Two clients adding documents and reminders at the same moment: every new row gets a
    // key no other row has, and each client is told the key its own row got.
    void newKeysNeverCollide()
    {
        EngineRegister reg;
        constexpr int Rows = 40;
        QSemaphore ready;
        QSemaphore go;
        QString errors[2];
        QList<qint64> keys[2];
        auto client = [&](int index) {
            try {
                Connection connection(reg.connectionString());
                connection.open();
                Recordset documents;
                documents.open(QStringLiteral("SELECT * FROM tbl_Documents WHERE RastasID = 0"), connection,
                    CursorTypeEnum::Static, LockTypeEnum::Optimistic);
                ready.release();
                go.acquire();
                for (int i = 0; i < Rows; ++i) {
                    documents.addNew();
                    documents.fields(QStringLiteral("DokAntraste"))
                        .setValue(QStringLiteral("%1-%2").arg(index).arg(i));
                    documents.update();
                    keys[index] << documents.fields(QStringLiteral("RastasID")).value().toLongLong();
                }
            } catch (const Error& error) {
                errors[index] = error.description();
                ready.release();
            }
        };
        std::unique_ptr<QThread> first(QThread::create(client, 0));
        std::unique_ptr<QThread> second(QThread::create(client, 1));
        first->start();
        second->start();
        ready.acquire(2);
        go.release(2);
        first->wait();
        second->wait();
        QVERIFY2(errors[0].isEmpty(), qPrintable(errors[0]));
        QVERIFY2(errors[1].isEmpty(), qPrintable(errors[1]));

        const QList<qint64> all = keys[0] + keys[1];
        QCOMPARE(QSet<qint64>(all.begin(), all.end()).size(), 2 * Rows);
        QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Documents")).toInt(), 2 * Rows);
        // The key each client was given holds that client's row.
        for (int index = 0; index < 2; ++index) {
            for (int i = 0; i < Rows; i += 13)
                QCOMPARE(reg.scalar(QStringLiteral("SELECT DokAntraste FROM tbl_Documents WHERE RastasID = ")
                                + QString::number(keys[index][i]))
                             .toString(),
                    QStringLiteral("%1-%2").arg(index).arg(i));
        }

        // Rows written with their keys given (a copy, a migration) don't lead the key generator
        // into them.
        reg.execute(
            QStringLiteral("INSERT INTO tbl_Documents (RastasID, DokAntraste) VALUES (1000, 'given')"));
        Recordset documents;
        documents.open(QStringLiteral("SELECT * FROM tbl_Documents WHERE RastasID = 0"), reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        documents.addNew();
        documents.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("after"));
        documents.update();
        QVERIFY(documents.fields(QStringLiteral("RastasID")).value().toLongLong() > 1000);
    }

    // Two clients edit the same column of one row: the second write is refused as changed,
    // keeps what its client typed and leaves the first client's value stored. Read again, it
    // stores over it; and a client's own writes never look like another's change.
    void editedByBoth_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QVariant>("original");
        QTest::addColumn<QVariant>("theirs");
        QTest::addColumn<QVariant>("mine");
        const QVariant null;
        QTest::newRow("text") << "note" << QVariant(u"first"_s) << QVariant(u"theirs"_s)
                              << QVariant(u"mine"_s);
        QTest::newRow("text from Null") << "note" << null << QVariant(u"theirs"_s) << QVariant(u"mine"_s);
        QTest::newRow("text to Null") << "note" << QVariant(u"first"_s) << null << QVariant(u"mine"_s);
        QTest::newRow("empty text") << "note" << QVariant(u""_s) << QVariant(u" "_s) << QVariant(u"mine"_s);
        QTest::newRow("integer") << "amount" << QVariant(5) << QVariant(6) << QVariant(7);
        QTest::newRow("integer from Null") << "amount" << null << QVariant(0) << QVariant(7);
        QTest::newRow("real") << "ratio" << QVariant(0.1) << QVariant(0.2) << QVariant(1.0 / 3);
        QTest::newRow("real from Null") << "ratio" << null << QVariant(0.1) << QVariant(2.5);
        QTest::newRow("date") << "day" << QVariant(QDate(2024, 2, 29)) << QVariant(QDate(2024, 3, 1))
                              << QVariant(QDate(1999, 12, 31));
        QTest::newRow("date from Null")
            << "day" << null << QVariant(QDate(2000, 1, 1)) << QVariant(QDate(2024, 3, 1));
        QTest::newRow("time") << "taken" << QVariant(QDateTime(QDate(2024, 3, 1), QTime(12, 0)))
                              << QVariant(QDateTime(QDate(2024, 3, 1), QTime(12, 0, 1)))
                              << QVariant(QDateTime(QDate(2024, 3, 1), QTime(23, 59, 59, 123)));
        QTest::newRow("time from Null")
            << "taken" << null << QVariant(QDateTime(QDate(2024, 3, 1), QTime(0, 0)))
            << QVariant(QDateTime(QDate(2024, 3, 2), QTime(0, 0)));
    }

    void editedByBoth()
    {
        QFETCH(QString, field);
        QFETCH(QVariant, original);
        QFETCH(QVariant, theirs);
        QFETCH(QVariant, mine);
        EngineRegister reg;
        createMeasures(reg);
        {
            Recordset first;
            first.open(QStringLiteral("SELECT * FROM measures WHERE id = 0"), reg.connection(),
                CursorTypeEnum::Static, LockTypeEnum::Optimistic);
            first.addNew();
            first.fields(QStringLiteral("id")).setValue(1);
            first.fields(QStringLiteral("other")).setValue(QStringLiteral("kept"));
            first.fields(field).setValue(original);
            first.update();
        }
        const QString stored
            = QStringLiteral("SELECT ") + field + QStringLiteral(" FROM measures WHERE id = 1");
        Recordset mineRows;
        openMeasure(mineRows, reg.connection(), LockTypeEnum::BatchOptimistic);

        Connection other(reg.connectionString());
        other.open();
        Recordset theirRows;
        openMeasure(theirRows, other, LockTypeEnum::Optimistic);
        theirRows.fields(field).setValue(theirs);
        theirRows.update();

        mineRows.fields(field).setValue(mine);
        try {
            mineRows.updateBatch(AffectEnum::Current);
            QFAIL("the second write went over the first");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::RowChanged);
            QVERIFY2(error.description().startsWith(
                         QStringLiteral("Row cannot be located for updating. Some values may have been "
                                        "changed since it was last read.")),
                qPrintable(error.description()));
        }
        QVERIFY2(sameStored(reg.scalar(stored), theirs), qPrintable(shown(reg.scalar(stored))));
        QVERIFY(engine::sameFieldValue(mineRows.fields(field).value(), mine));
        QVERIFY(mineRows.hasPendingChanges());

        // Read again, the row shows what the other client stored under what was typed here.
        mineRows.resync(AffectEnum::Current, ResyncEnum::UnderlyingValues);
        QVERIFY(sameStored(mineRows.fields(field).underlyingValue(), theirs));
        QVERIFY(engine::sameFieldValue(mineRows.fields(field).value(), mine));
        QVERIFY(mineRows.fields(field).isChanged());
        QVERIFY(!mineRows.fields(QStringLiteral("other")).isChanged());
        mineRows.updateBatch(AffectEnum::Current);
        QVERIFY2(sameStored(reg.scalar(stored), mine), qPrintable(shown(reg.scalar(stored))));

        // The row as written here is the row the next write finds.
        mineRows.fields(field).setValue(theirs);
        mineRows.updateBatch(AffectEnum::Current);
        QVERIFY2(sameStored(reg.scalar(stored), theirs), qPrintable(shown(reg.scalar(stored))));
        QCOMPARE(reg.scalar(QStringLiteral("SELECT other FROM measures WHERE id = 1")).toString(),
            QStringLiteral("kept"));
    }

    // Another client's change to other columns of the row is kept by a write of this one, and
    // the row read again without the changes here shows what is stored.
    void changesToOtherColumnsMerge()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset mine;
        mine.open(QStringLiteral("SELECT * FROM tbl_Documents WHERE RastasID = 1"), reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        Connection other(reg.connectionString());
        other.open();
        other.execute(QStringLiteral("UPDATE tbl_Documents SET DokPastaba = 'their note', KategID = 8 "
                                     "WHERE RastasID = 1"));

        mine.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("My title"));
        mine.updateBatch(AffectEnum::Current);
        QCOMPARE(reg.joined(QStringLiteral("SELECT DokAntraste FROM tbl_Documents WHERE RastasID = 1")),
            QStringLiteral("My title"));
        QCOMPARE(reg.joined(QStringLiteral("SELECT DokPastaba FROM tbl_Documents WHERE RastasID = 1")),
            QStringLiteral("their note"));
        QCOMPARE(
            reg.scalar(QStringLiteral("SELECT KategID FROM tbl_Documents WHERE RastasID = 1")).toInt(), 8);

        // A conflict read again with the changes dropped shows the stored row, and nothing waits.
        other.execute(
            QStringLiteral("UPDATE tbl_Documents SET DokAntraste = 'Their title' WHERE RastasID = 1"));
        mine.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("Mine again"));
        QVERIFY_THROWS_EXCEPTION(Error, mine.updateBatch(AffectEnum::Current));
        mine.resync(AffectEnum::Current, ResyncEnum::AllValues);
        QVERIFY(!mine.hasPendingChanges());
        QCOMPARE(
            mine.fields(QStringLiteral("DokAntraste")).value().toString(), QStringLiteral("Their title"));
        QCOMPARE(mine.fields(QStringLiteral("DokPastaba")).value().toString(), QStringLiteral("their note"));
        QCOMPARE(mine.fields(QStringLiteral("KategID")).value().toInt(), 8);
        mine.fields(QStringLiteral("DokPastaba")).setValue(QStringLiteral("my note"));
        mine.updateBatch(AffectEnum::Current);
        QCOMPARE(reg.joined(QStringLiteral("SELECT DokAntraste FROM tbl_Documents WHERE RastasID = 1")),
            QStringLiteral("Their title"));
        QCOMPARE(reg.joined(QStringLiteral("SELECT DokPastaba FROM tbl_Documents WHERE RastasID = 1")),
            QStringLiteral("my note"));

        // An edit in progress is dropped the same way.
        Recordset editing;
        editing.open(QStringLiteral("SELECT RastasID, DokAntraste FROM tbl_Documents WHERE RastasID = 1"),
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        editing.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("Typed"));
        editing.resync(AffectEnum::Current, ResyncEnum::AllValues);
        QCOMPARE(editing.editMode(), int(EditModeEnum::None));
        QCOMPARE(
            editing.fields(QStringLiteral("DokAntraste")).value().toString(), QStringLiteral("Their title"));

        // Read again under the stored values only, an edit in progress keeps what was typed,
        // and writing it then goes over the other client's value.
        editing.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("Typed again"));
        other.execute(
            QStringLiteral("UPDATE tbl_Documents SET DokAntraste = 'Third title' WHERE RastasID = 1"));
        editing.resync(AffectEnum::Current, ResyncEnum::UnderlyingValues);
        QCOMPARE(
            editing.fields(QStringLiteral("DokAntraste")).value().toString(), QStringLiteral("Typed again"));
        QCOMPARE(editing.fields(QStringLiteral("DokAntraste")).underlyingValue().toString(),
            QStringLiteral("Third title"));
        QVERIFY(editing.fields(QStringLiteral("DokAntraste")).isChanged());
        editing.update();
        QCOMPARE(reg.joined(QStringLiteral("SELECT DokAntraste FROM tbl_Documents WHERE RastasID = 1")),
            QStringLiteral("Typed again"));
    }

    // A row read again while a field is being typed: the typed field stays, the fields not
    // typed take what another client stored, and the write stores both so, whether the current
    // row or all rows were read again, by a batch or by a recordset that writes at update().
    void editKeptOverAResync_data()
    {
        QTest::addColumn<int>("affect");
        QTest::addColumn<int>("lockType");
        QTest::newRow("batch, current") << int(AffectEnum::Current) << int(LockTypeEnum::BatchOptimistic);
        QTest::newRow("batch, all") << int(AffectEnum::All) << int(LockTypeEnum::BatchOptimistic);
        QTest::newRow("update, current") << int(AffectEnum::Current) << int(LockTypeEnum::Optimistic);
        QTest::newRow("update, all") << int(AffectEnum::All) << int(LockTypeEnum::Optimistic);
    }

    void editKeptOverAResync()
    {
        QFETCH(int, affect);
        QFETCH(int, lockType);
        EngineRegister reg;
        reg.fillSmall();
        Recordset mine;
        mine.open(QStringLiteral("SELECT RastasID, DokAntraste, DokPastaba FROM tbl_Documents WHERE RastasID "
                                 "IN (1, 2) ORDER BY RastasID"),
            reg.connection(), CursorTypeEnum::Static, lockType);
        mine.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("Typed"));
        Connection other(reg.connectionString());
        other.open();
        other.execute(
            QStringLiteral("UPDATE tbl_Documents SET DokPastaba = 'their note' WHERE RastasID = 1"));
        mine.resync(affect, ResyncEnum::UnderlyingValues);
        QCOMPARE(mine.fields(QStringLiteral("DokAntraste")).value().toString(), QStringLiteral("Typed"));
        QCOMPARE(mine.fields(QStringLiteral("DokPastaba")).value().toString(), QStringLiteral("their note"));
        if (lockType == LockTypeEnum::BatchOptimistic) {
            mine.updateBatch(AffectEnum::All);
        } else {
            QCOMPARE(mine.editMode(), int(EditModeEnum::InProgress));
            mine.update();
        }
        QCOMPARE(reg.joined(QStringLiteral("SELECT DokAntraste || '|' || DokPastaba FROM tbl_Documents WHERE "
                                           "RastasID = 1")),
            QStringLiteral("Typed|their note"));

        // Read again with the changes dropped, the typed value goes and nothing is left to write.
        mine.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("Dropped"));
        mine.resync(affect, ResyncEnum::AllValues);
        QCOMPARE(mine.editMode(), int(EditModeEnum::None));
        QVERIFY(!mine.hasPendingChanges());
        QCOMPARE(mine.fields(QStringLiteral("DokAntraste")).value().toString(), QStringLiteral("Typed"));
    }

    // A row another client deleted: changing it reports it gone and changes nothing else;
    // deleting it again is no error; reading it finds nothing.
    void rowDeletedByAnother()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset mine;
        mine.open(QStringLiteral("SELECT * FROM tbl_Contacts WHERE ContactID = 2"), reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QVERIFY(!mine.eof());

        Connection other(reg.connectionString());
        other.open();
        other.execute(QStringLiteral("DELETE FROM tbl_Contacts WHERE ContactID = 2"));

        mine.fields(QStringLiteral("FullName")).setValue(QStringLiteral("Ąžuolas Jr."));
        try {
            mine.update();
            QFAIL("the update of a deleted row went through");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::RowDeleted);
            QVERIFY2(error.description().contains(QStringLiteral("another user may have deleted it")),
                qPrintable(error.description()));
        }
        QCOMPARE(reg.joined(QStringLiteral("SELECT FullName FROM tbl_Contacts ORDER BY ContactID")),
            QStringLiteral("Petras,Šarūnas,šilas,Saulius"));
        mine.cancelUpdate();

        Recordset again;
        again.open(QStringLiteral("SELECT * FROM tbl_Contacts WHERE ContactID = 2"), reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QVERIFY(again.eof());
        mine.deleteRecord();
        QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Contacts")).toInt(), 4);
    }

    // Another program's short write holds the register for a moment: a write meanwhile waits
    // for it and is then stored, rather than refused.
    void writeWaitsForAShortWrite()
    {
        EngineRegister reg;
        reg.fillSmall();
        QSemaphore holding;
        QString error;
        std::unique_ptr<QThread> other(QThread::create([&] {
            try {
                Connection writer(reg.connectionString());
                writer.open();
                writer.beginTrans();
                writer.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('first')");
                holding.release();
                QThread::msleep(300);
                writer.commitTrans();
            } catch (const Error& failure) {
                error = failure.description();
                holding.release();
            }
        }));
        other->start();
        holding.acquire();
        Connection mine(reg.connectionString());
        mine.open();
        mine.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('second')");
        other->wait();
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(
            reg.joined("SELECT FullName FROM tbl_Contacts WHERE FullName IN ('first', 'second') ORDER BY "
                       "ContactID"),
            "first,second");
    }

    // A search keeps its found rows in a temporary table while another program holds the
    // register file for writing: those rows are no rows of the register, and wait for no one.
    void temporaryRowsWaitForNoWriter()
    {
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("the lock of a register file");
        reg.fillSmall();
        const int lockWait = Connection::lockWaitMs();
        Connection::setLockWaitMs(300);
        Connection writer(reg.connectionString());
        writer.open();
        writer.beginTrans();
        writer.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('held')");
        Connection reader(reg.connectionString());
        reader.open();
        Connection::setLockWaitMs(lockWait);
        reader.execute("CREATE TEMP TABLE found (RastasID INTEGER PRIMARY KEY)");
        reader.execute("INSERT OR IGNORE INTO temp.found (RastasID) SELECT ContactID FROM tbl_Contacts; "
                       "INSERT OR IGNORE INTO temp.found (RastasID) SELECT ContactID + 3 FROM tbl_Contacts");
        reader.execute("DELETE FROM temp.found WHERE RastasID = 8");
        Recordset found;
        found.open(QStringLiteral("SELECT COUNT(*) AS N FROM temp.found"), reader);
        QCOMPARE(found.fields(QStringLiteral("N")).value().toInt(), 7);
        found.close();
        // A row of the register still waits, and is refused when the writer holds on.
        try {
            reader.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('waits')");
            QFAIL("written past the writer's lock");
        } catch (const Error& error) {
            QCOMPARE(error.description().section(u'\n', 0, 0),
                QString("The register is in use by another program, which kept it locked for %1 seconds; try "
                        "again.")
                    .arg(QLocale().toString(0.3)));
        }
        writer.rollbackTrans();
    }
};

int runConcurrencyTest(int argc, char** argv)
{
    ConcurrencyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_concurrency.moc"
