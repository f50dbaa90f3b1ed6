#include "EngineFixture.h"
#include "base/Error.h"
#include "store/engine/Recordset.h"
#include "store/engine/WriteContext.h"

#include <QScopeGuard>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

QString names(EngineRegister& reg)
{
    return reg.joined("SELECT FullName FROM tbl_Contacts ORDER BY ContactID");
}

void addContact(Connection& connection, const QString& name)
{
    Recordset contacts;
    contacts.open(
        "SELECT FullName FROM tbl_Contacts", connection, CursorTypeEnum::Dynamic, LockTypeEnum::Optimistic);
    contacts.addNew();
    contacts.fields("FullName").setValue(name);
    contacts.update();
}

} // namespace

class TransactionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A statement that fails inside a transaction undoes itself only: what was written
    // before it and after it is committed, on a server as in a file.
    void failedStatementUndoesOnlyItself()
    {
        EngineRegister reg;
        Connection& connection = reg.connection();
        connection.beginTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('before')");
        QVERIFY_THROWS_EXCEPTION(Error, reg.execute("INSERT INTO tbl_Nothing (FullName) VALUES ('x')"));
        Recordset broken;
        QVERIFY_THROWS_EXCEPTION(Error, broken.open("SELECT Nothing FROM tbl_Contacts", connection));
        // A recordset that reads the hidden key inside the transaction, and writes a row.
        addContact(connection, "after");
        connection.beginTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('inner')");
        QVERIFY_THROWS_EXCEPTION(Error, reg.execute("UPDATE tbl_Contacts SET Nothing = 1"));
        connection.commitTrans();
        connection.commitTrans();
        QCOMPARE(names(reg), QString("before,after,inner"));
    }

    // A transaction inside another rolls back its own writes only: the outer one keeps what
    // it wrote before and after it, and can roll back a second inner one too.
    void innerRollbackUndoesOnlyItsOwn()
    {
        EngineRegister reg;
        Connection& connection = reg.connection();
        connection.beginTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('before')");
        connection.beginTrans();
        addContact(connection, "inner");
        connection.rollbackTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('after')");
        connection.beginTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('second inner')");
        connection.rollbackTrans();
        connection.commitTrans();
        QCOMPARE(names(reg), QString("before,after"));
    }

    // A transaction whose note of who writes can't be written is not begun: the connection
    // holds no transaction after it, and the next one commits for others to read.
    void refusedContextLeavesNoTransaction()
    {
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("A server notes who writes in its session, not in a table.");
        reg.execute("DROP TABLE tbl_Write_Context");
        reg.execute("CREATE TABLE tbl_Write_Context (ContextID INTEGER PRIMARY KEY, Who TEXT CHECK (Who <> "
                    "'nobody'), Command TEXT)");
        const QString user = WriteContext::user();
        const auto restore = qScopeGuard([&] { WriteContext::setUser(user); });
        Connection& connection = reg.connection();
        WriteContext::setUser("nobody");
        QVERIFY_THROWS_EXCEPTION(Error, connection.beginTrans());
        WriteContext::setUser("somebody");
        connection.beginTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('kept')");
        connection.commitTrans();
        Connection other;
        other.open(reg.connectionString());
        Recordset contacts;
        contacts.open("SELECT FullName FROM tbl_Contacts", other);
        QCOMPARE(rows(contacts, {"FullName"}), QStringList({"kept"}));
    }

    // A register without the table of who writes is written without the note; once a table is
    // made for it, the next write notes who writes there, and in which command (empty outside
    // any).
    void contextTableMadeWhileOpen()
    {
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("A server notes who writes in its session, not in a table.");
        reg.execute("CREATE TABLE plain (id INTEGER PRIMARY KEY, a INTEGER)");
        reg.execute("CREATE TABLE written_by (who TEXT, command TEXT)");
        reg.execute("DROP TABLE tbl_Write_Context");
        reg.execute("INSERT INTO plain (a) VALUES (1)");
        reg.execute("CREATE TABLE tbl_Write_Context (ContextID INTEGER PRIMARY KEY, Who TEXT, Command TEXT)");
        reg.execute("CREATE TRIGGER noted AFTER INSERT ON plain BEGIN INSERT INTO written_by (who, command) "
                    "SELECT Who, Command FROM tbl_Write_Context; END");
        const QString user = WriteContext::user();
        const auto restore = qScopeGuard([&] { WriteContext::setUser(user); });
        WriteContext::setUser("somebody");
        // A recordset's write, which runs no statement of its own to find the new table by.
        Recordset rows;
        rows.open(
            "SELECT id, a FROM plain", reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        {
            CommandScope scope("Import");
            rows.addNew();
            rows.fields("a").setValue(2);
            rows.update();
        }
        reg.execute("INSERT INTO plain (a) VALUES (3)");
        QCOMPARE(
            reg.joined("SELECT who || ':' || command FROM written_by"), QString("somebody:Import,somebody:"));
    }

    // Only the connection's own temporary tables are written without a note of who writes: a
    // table of the register whose name starts with "temp" is written with one.
    void registerTableNamedLikeTempCarriesWhoWrites()
    {
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("A server notes who writes in its session, not in a table.");
        reg.execute("CREATE TABLE templates (a INTEGER)");
        reg.execute("CREATE TABLE written_by (who TEXT)");
        for (const char* change : {"INSERT", "UPDATE", "DELETE"}) {
            reg.execute(
                QStringLiteral("CREATE TRIGGER noted_%1 AFTER %1 ON templates BEGIN INSERT INTO written_by "
                               "(who) SELECT Who FROM tbl_Write_Context; END")
                    .arg(change));
        }
        const QString user = WriteContext::user();
        const auto restore = qScopeGuard([&] { WriteContext::setUser(user); });
        WriteContext::setUser("somebody");
        reg.execute("INSERT INTO templates (a) VALUES (1)");
        WriteContext::setUser("another");
        reg.execute("REPLACE INTO templates (a) VALUES (2)");
        WriteContext::setUser("third");
        reg.execute("UPDATE templates SET a = 3 WHERE a = 2");
        WriteContext::setUser("fourth");
        reg.execute("DELETE FROM templates WHERE a = 3");
        QCOMPARE(reg.joined("SELECT who FROM written_by"), QString("somebody,another,third,fourth"));
    }

    // A commit that finds its transaction ended already throws, keeps nothing of it, and
    // leaves no transaction open.
    void commitThatDidNotCommitIsAnError()
    {
        EngineRegister reg;
        Connection& connection = reg.connection();
        connection.beginTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('lost')");
        reg.execute("ROLLBACK");
        QString description;
        try {
            connection.commitTrans();
        } catch (const Error& error) {
            description = error.description();
        }
        QVERIFY2(description.contains("nothing written in it was kept"), qPrintable(description));
        try {
            connection.commitTrans();
            QFAIL("a commit without a transaction");
        } catch (const Error& error) {
            QCOMPARE(error.description(), QString("There is no transaction to commit."));
        }
        connection.beginTrans();
        addContact(connection, "kept");
        connection.commitTrans();
        QCOMPARE(names(reg), QString("kept"));
    }

    // The counter of a table's keys goes on past deleted rows and moves forward only.
    void keyCounterMovesForwardOnly()
    {
        EngineRegister reg;
        Connection& connection = reg.connection();
        QCOMPARE(connection.keyCounter("tbl_Contacts"), 0);
        for (const char* name : {"a", "b", "c"})
            addContact(connection, name);
        reg.execute("DELETE FROM tbl_Contacts WHERE FullName = 'c'");
        QCOMPARE(connection.keyCounter("tbl_Contacts"), 3);
        connection.raiseKeyCounter("tbl_Contacts", 10);
        connection.raiseKeyCounter("tbl_Contacts", 5);
        QCOMPARE(connection.keyCounter("tbl_Contacts"), 10);
        addContact(connection, "d");
        QCOMPARE(reg.joined("SELECT ContactID FROM tbl_Contacts ORDER BY ContactID"), QString("1,2,11"));
    }
};

int runTransactionTest(int argc, char** argv)
{
    TransactionTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_transactions.moc"
