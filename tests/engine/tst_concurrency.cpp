// Two programs on one register, each with a connection of its own.
#include "EngineFixture.h"
#include "base/Error.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QSemaphore>
#include <QSet>
#include <QTest>
#include <QThread>

#include <memory>

using namespace kartella;
using namespace kartella::test;

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
};

int runConcurrencyTest(int argc, char** argv)
{
    ConcurrencyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_concurrency.moc"
