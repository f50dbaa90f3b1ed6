// A register made or upgraded by Kartella opens in any SQLite tool: here, the sqlite3
// library with nothing of ours registered.
#include "base/Error.h"
#include "harness/OldRegister.h"
#include "harness/TestRegister.h"
#include "store/SchemaSteps.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sqlite3.h>

using namespace kartella;
using namespace kartella::test;

namespace {

const QStringList Tables = {"tbl_Document_Categories", "tbl_Sub_Categories", "tbl_Documents",
    "tbl_Sub_Documents", "tbl_Tickler", "tbl_Contacts", "tbl_Phones", "tbl_HomePages"};
const QStringList Views = {"qry_This_Month", "qry_Previous_Month", "qry_Phones"};

// Per table: its key, a text column to write, and the name columns.
struct TableColumns
{
    QString key;
    QString text;
    QStringList names;
};

TableColumns columnsOf(const QString& table)
{
    if (table == "tbl_Document_Categories")
        return {"KategID", "Mnemonic", {"DokKategorija"}};
    if (table == "tbl_Sub_Categories")
        return {"SubKategID", "SubPathToFiles", {"DokSubKategorija"}};
    if (table == "tbl_Documents")
        return {"RastasID", "DokAntraste", {}};
    if (table == "tbl_Sub_Documents")
        return {"SubRastasID", "SubDocDescript", {}};
    if (table == "tbl_Tickler")
        return {"TicklerID", "TicklerText", {}};
    if (table == "tbl_Contacts")
        return {"ContactID", "Notes", {"FullName", "CompanyName"}};
    if (table == "tbl_Phones")
        return {"PhoneID", "PhoneNumber", {}};
    return {"HomeID", "HomeWWW", {}};
}

// Every row of every table and sqlite_sequence, read through the engine, field by field.
QStringList dumpRegister(const QString& path)
{
    Connection connection(plainConnectionString("Microsoft.Jet.OLEDB.4.0", path));
    connection.open();
    QStringList lines;
    for (const QString& table : Tables + QStringList {"sqlite_sequence"}) {
        const QString order = table == "sqlite_sequence" ? "name" : columnsOf(table).key;
        Recordset rs;
        rs.open("SELECT * FROM " + table + " ORDER BY " + order, connection);
        for (; !rs.eof(); rs.moveNext()) {
            QStringList fields;
            for (int i = 0; i < rs.fieldCount(); ++i)
                fields << rs.fields(i).name() + "=" + rs.fields(i).value().toString();
            lines << table + ": " + fields.join('|');
        }
    }
    return lines;
}

QStringList engineNames(const QString& path, const QString& sql)
{
    Connection connection(plainConnectionString("Microsoft.Jet.OLEDB.4.0", path));
    connection.open();
    Recordset rs;
    rs.open(sql, connection);
    QStringList names;
    for (; !rs.eof(); rs.moveNext())
        names << rs.fields(0).value().toString();
    return names;
}

// The sqlite3 library as any other program has it: no collation, no function of ours.
class PlainSqlite
{
public:
    explicit PlainSqlite(const QString& path)
    {
        sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, SQLITE_OPEN_READWRITE, nullptr);
    }
    ~PlainSqlite() { sqlite3_close_v2(m_db); }

    // Runs sql to its end; gives the error message, or "" and the rows counted.
    QString run(const QString& sql, int* rows = nullptr)
    {
        sqlite3_stmt* statement = nullptr;
        int code = sqlite3_prepare_v2(m_db, sql.toUtf8().constData(), -1, &statement, nullptr);
        int count = 0;
        if (code == SQLITE_OK) {
            while ((code = sqlite3_step(statement)) == SQLITE_ROW)
                ++count;
        }
        const QString error = code == SQLITE_DONE ? QString() : QString::fromUtf8(sqlite3_errmsg(m_db));
        sqlite3_finalize(statement);
        if (rows)
            *rows = count;
        return error.isEmpty() ? QString() : error + " in: " + sql;
    }

    qint64 number(const QString& sql)
    {
        sqlite3_stmt* statement = nullptr;
        qint64 value = -1;
        if (sqlite3_prepare_v2(m_db, sql.toUtf8().constData(), -1, &statement, nullptr) == SQLITE_OK
            && sqlite3_step(statement) == SQLITE_ROW)
            value = sqlite3_column_int64(statement, 0);
        sqlite3_finalize(statement);
        return value;
    }

private:
    sqlite3* m_db = nullptr;
};

} // namespace

class PlainRegisterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anySqliteToolReadsAndWrites_data()
    {
        QTest::addColumn<QString>("made");
        QTest::newRow("create") << "create";
        QTest::newRow("sample") << "sample";
        QTest::newRow("upgraded") << "upgraded";
    }

    void anySqliteToolReadsAndWrites()
    {
        QFETCH(QString, made);
        TestRegister reg;
        QString path = reg.path();
        if (made == "sample") {
            reg.fillSample({});
        } else if (made == "upgraded") {
            path = reg.dir() + "/old.mdb";
            makeOldRegister(path);
            upgradeRegister(path);
        }

        PlainSqlite db(path);
        QCOMPARE(db.number("SELECT count(*) FROM sqlite_master WHERE sql LIKE '%NAMEFOLD%'"), 0);
        QCOMPARE(db.run("PRAGMA integrity_check"), QString());
        for (const QString& source : Tables + Views) {
            int rows = -1;
            QCOMPARE(db.run("SELECT * FROM " + source, &rows), QString());
            QCOMPARE(db.number("SELECT count(*) FROM " + source), qint64(rows));
        }
        for (const QString& table : Tables) {
            const TableColumns columns = columnsOf(table);
            for (const QString& name : columns.names) {
                QCOMPARE(db.run("SELECT * FROM " + table + " ORDER BY " + name), QString());
                QCOMPARE(db.run("SELECT * FROM " + table + " WHERE " + name + " < 'M'"), QString());
            }
            const qint64 before = db.number("SELECT count(*) FROM " + table);
            QCOMPARE(db.run("INSERT INTO " + table + " (" + columns.text + ") VALUES ('įrašas')"), QString());
            const qint64 key = db.number("SELECT last_insert_rowid()");
            QVERIFY(key > 0);
            QStringList sets = {columns.text + " = 'pakeista'"};
            for (const QString& name : columns.names)
                sets << name + " = 'Žvejys'";
            QCOMPARE(db.run("UPDATE " + table + " SET " + sets.join(", ") + " WHERE " + columns.key + " = "
                         + QString::number(key)),
                QString());
            QCOMPARE(
                db.number("SELECT count(*) FROM " + table + " WHERE " + columns.text + " = 'pakeista'"), 1);
            QCOMPARE(db.run("DELETE FROM " + table + " WHERE " + columns.key + " = " + QString::number(key)),
                QString());
            QCOMPARE(db.number("SELECT count(*) FROM " + table), before);
        }
        QCOMPARE(db.run("SELECT * FROM qry_Phones ORDER BY FullName COLLATE NOCASE"), QString());
    }

    void upgradeKeepsEveryRowAndKey()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("Kartella.mdb");
        makeOldRegister(path);
        {
            Connection connection(plainConnectionString("Microsoft.Jet.OLEDB.4.0", path));
            connection.open();
            connection.execute("CREATE VIEW my_contacts AS SELECT FullName FROM tbl_Contacts");
        }
        const QStringList before = dumpRegister(path);
        QCOMPARE(before.size(), 24);
        QVERIFY(before.contains("sqlite_sequence: name=tbl_Contacts|seq=8"));
        QVERIFY(registerNeedsUpgrade(path));

        const std::vector<const SchemaStep*> done = upgradeRegister(path);
        QCOMPARE(done.size(), std::size_t(newestSchemaVersion() - 1));
        QCOMPARE(done.front()->version, 2);
        // Every row as it was; reminders gain their done flag, not done.
        QStringList expected = before;
        for (QString& line : expected) {
            if (line.startsWith("tbl_Tickler: "))
                line += "|TicklerDone=0";
        }
        QCOMPARE(dumpRegister(path), expected);
        QVERIFY(!registerNeedsUpgrade(path));
        QCOMPARE(PlainSqlite(path).number("PRAGMA user_version"), qint64(newestSchemaVersion()));
        // The day's counter of the registration indexes is there, empty until a number is taken.
        QCOMPARE(PlainSqlite(path).number("SELECT count(*) FROM tbl_Day_Counter"), 0);
        QVERIFY(upgradeRegister(path).empty());

        // The program's orderings by name stay folded; the indexes and the cascade are back.
        QCOMPARE(engineNames(path, "SELECT FullName FROM tbl_Contacts ORDER BY FullName"),
            QStringList({"antanas", "Ąžuolas", "Petras", "Šarūnė"}));
        QCOMPARE(
            engineNames(path, "SELECT DokKategorija FROM tbl_Document_Categories ORDER BY DokKategorija"),
            QStringList({"Ąžuolynas", "bylos", "Zita"}));
        QCOMPARE(engineNames(path, "SELECT FullName FROM qry_Phones"), QStringList({"Ąžuolas"}));
        PlainSqlite db(path);
        QCOMPARE(
            db.number(
                "SELECT count(*) FROM sqlite_master WHERE name IN ('idx_Contacts_FullName', "
                "'idx_Sub_Categories_KategID', 'idx_Documents_KategID', "
                "'trg_Document_Categories_Delete', 'qry_This_Month', 'qry_Previous_Month', 'qry_Phones')"),
            7);
        int userRows = 0;
        QCOMPARE(db.run("SELECT * FROM my_contacts", &userRows), QString());
        QCOMPARE(userRows, 4);
        QCOMPARE(db.run("DELETE FROM tbl_Document_Categories WHERE KategID = 3"), QString());
        QCOMPARE(db.number("SELECT group_concat(SubKategID) FROM tbl_Sub_Categories"), 2);
        // A new row takes a key past the deleted ones, as before the upgrade.
        QCOMPARE(db.run("INSERT INTO tbl_Contacts (FullName) VALUES ('Naujas')"), QString());
        QCOMPARE(db.number("SELECT max(ContactID) FROM tbl_Contacts"), 9);
    }

    void upgradeRefusesOrLeavesTheRegisterAsItWas_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("newer register") << QString("PRAGMA user_version = %1").arg(newestSchemaVersion() + 1);
        QTest::newRow("no version") << "PRAGMA user_version = 0";
        QTest::newRow("step fails halfway") << "ALTER TABLE tbl_Contacts ADD COLUMN Extra TEXT";
    }

    void upgradeRefusesOrLeavesTheRegisterAsItWas()
    {
        QFETCH(QString, change);
        QTemporaryDir dir;
        const QString path = dir.filePath("Kartella.mdb");
        makeOldRegister(path);
        {
            Connection connection(plainConnectionString("Microsoft.Jet.OLEDB.4.0", path));
            connection.open();
            connection.execute(change);
        }
        const QStringList before = dumpRegister(path);
        const qint64 version = PlainSqlite(path).number("PRAGMA user_version");
        QVERIFY_THROWS_EXCEPTION(Error, upgradeRegister(path));
        QCOMPARE(dumpRegister(path), before);
        PlainSqlite db(path);
        QCOMPARE(db.number("PRAGMA user_version"), version);
        QCOMPARE(db.number("SELECT count(*) FROM sqlite_master WHERE sql LIKE '%NAMEFOLD%'"), 3);
    }

    void toolUpgradesOnceAndSaysSo()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("Senas registras.mdb");
        makeOldRegister(path);
        QString steps;
        for (const SchemaStep& step : schemaSteps()) {
            if (step.version > 1)
                steps += QString("Step %1: %2\n").arg(step.version).arg(step.summary);
        }
        const QString newest = QString::number(newestSchemaVersion());
        for (const QString& expected :
            {QString(steps + "The register is at schema version " + newest + ".\n"),
                QString("The register is up to date (schema version " + newest + ").\n")}) {
            QProcess tool;
            tool.start(KARTELLA_DB_PATH, {"upgrade", path});
            QVERIFY(tool.waitForFinished(60000));
            QCOMPARE(tool.exitCode(), 0);
            QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()), expected);
        }
        QProcess tool;
        tool.start(KARTELLA_DB_PATH, {"upgrade", dir.filePath("nera.mdb")});
        QVERIFY(tool.waitForFinished(60000));
        QCOMPARE(tool.exitCode(), 1);
        QVERIFY(!QFile::exists(dir.filePath("nera.mdb")));
    }
};

int runPlainRegisterTest(int argc, char** argv)
{
    PlainRegisterTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_plain_register.moc"
