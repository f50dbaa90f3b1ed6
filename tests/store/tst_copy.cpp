// Copying a whole register between files and server databases.
#include "base/Error.h"
#include "harness/OldRegister.h"
#include "harness/ServerDatabase.h"
#include "store/RegisterCopy.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"
#include "store/SearchIndex.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sqlite3.h>

using namespace kartella;

namespace {

const QString JetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

// The eight tables and their keys.
const QList<QPair<QString, QString>> Tables = {
    {"tbl_Document_Categories", "KategID"},
    {"tbl_Sub_Categories", "SubKategID"},
    {"tbl_Contacts", "ContactID"},
    {"tbl_Phones", "PhoneID"},
    {"tbl_HomePages", "HomeID"},
    {"tbl_Documents", "RastasID"},
    {"tbl_Sub_Documents", "SubRastasID"},
    {"tbl_Tickler", "TicklerID"},
};

void execute(const QString& location, const QStringList& statements)
{
    Connection connection(plainConnectionString(JetProvider, location));
    connection.open();
    for (const QString& sql : statements)
        connection.execute(sql);
    connection.close();
}

QVariant scalar(const QString& location, const QString& sql)
{
    Connection connection(plainConnectionString(JetProvider, location));
    connection.open();
    Recordset rs;
    rs.open(sql, connection);
    return rs.eof() ? QVariant() : rs.fields(0).value();
}

// A value with its kind, so that a number copied as text or a date as a date with a time
// shows as a difference.
QString tagged(const QVariant& value)
{
    if (isNull(value))
        return QStringLiteral("Null");
    switch (value.typeId()) {
    case QMetaType::QDate:
        return "D:" + value.toDate().toString(Qt::ISODate);
    case QMetaType::QDateTime:
        return "T:" + value.toDateTime().toString(Qt::ISODate);
    case QMetaType::Int:
    case QMetaType::LongLong:
        return "I:" + QString::number(value.toLongLong());
    case QMetaType::Double:
        return "R:" + QString::number(value.toDouble(), 'g', 17);
    default:
        return "S:" + value.toString();
    }
}

// Every row of a table in the order of its key, as the engine reads it: the column names
// (lower case, as servers keep them) and one line per row.
QStringList engineRows(const QString& location, const QString& table, const QString& key)
{
    Connection connection(plainConnectionString(JetProvider, location));
    connection.open();
    Recordset rs;
    rs.open("SELECT * FROM " + table + " ORDER BY " + key, connection);
    QStringList columns = rs.fieldNames();
    std::sort(columns.begin(), columns.end(),
        [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    QStringList rows {columns.join(u'|').toLower()};
    for (; !rs.eof(); rs.moveNext()) {
        QStringList values;
        for (const QString& column : std::as_const(columns))
            values << tagged(rs.fields(column).value());
        rows << values.join(u'|');
    }
    return rows;
}

// Every row of a table in the order of its key as SQLite stores it: each value's storage
// class and bytes.
QStringList storedRows(const QString& path, const QString& table, const QString& key)
{
    sqlite3* db = nullptr;
    QStringList rows;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr)
        == SQLITE_OK) {
        sqlite3_stmt* statement = nullptr;
        const QByteArray sql = ("SELECT * FROM " + table + " ORDER BY " + key).toUtf8();
        if (sqlite3_prepare_v2(db, sql.constData(), -1, &statement, nullptr) == SQLITE_OK) {
            while (sqlite3_step(statement) == SQLITE_ROW) {
                QStringList values;
                for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_blob(statement, i));
                    values << QString::number(sqlite3_column_type(statement, i)) + u':'
                            + QString::fromLatin1(
                                QByteArray(bytes, sqlite3_column_bytes(statement, i)).toHex());
                }
                rows << values.join(u'|');
            }
        }
        sqlite3_finalize(statement);
    }
    sqlite3_close_v2(db);
    return rows;
}

qint64 rowCount(const QString& location, const QString& table)
{
    return scalar(location, "SELECT COUNT(*) FROM " + table).toLongLong();
}

// A register holding the sample and rows at the edges: the largest key, a gap in the
// documents' keys, a reminder marked done, a date with a time, quotes, a line break and
// the Lithuanian letters, fields left Null.
void makeSource(const QString& location)
{
    createRegister(location);
    SampleOptions options;
    options.documents = 120;
    options.today = QDate(2024, 5, 20);
    options.seed = 17;
    options.filesOnDisk = 0;
    fillSampleRegister(location, options);
    execute(location,
        {"INSERT INTO tbl_Contacts (ContactID, FullName, Notes) VALUES (2147483647, 'Kvirinas Žąsinaitis', "
         "'It''s \"quoted\"\nand on two lines')",
            "INSERT INTO tbl_Documents (RastasID, DokRegistracData, DokGavSiuntData, DokAntraste, ContactID, "
            "KryptisID) VALUES (1000000, #5/31/2024 23:59:59#, Null, 'Ūkio sutartis', 2147483647, 3)",
            "INSERT INTO tbl_Sub_Documents (SubRastasID, RastasID) VALUES (2147483647, 1000000)",
            "UPDATE tbl_Tickler SET TicklerDone = 1 WHERE TicklerID = 2",
            "DELETE FROM tbl_Documents WHERE RastasID = 5"});
}

// Runs step; an error fails the running test (and gives false) instead of ending the test
// program.
template<typename Step>
bool guarded(Step step)
{
    try {
        step();
        return true;
    } catch (const Error& error) {
        QTest::qFail(qPrintable(error.description()), __FILE__, __LINE__);
        return false;
    }
}

// What `kartella-db search` prints for the words on the register at location.
QString searchWithTool(const QString& location, const QString& words)
{
    QProcess tool;
    tool.start(QStringLiteral(KARTELLA_DB_PATH), QStringList {"search", location} + words.split(u' '));
    if (!tool.waitForFinished(60000) || tool.exitCode() != 0)
        return "failed: " + QString::fromUtf8(tool.readAllStandardError());
    return QString::fromUtf8(tool.readAllStandardOutput());
}

struct Locations
{
    QString from;
    QString to;
    std::unique_ptr<test::ServerDatabase> fromServer;
    std::unique_ptr<test::ServerDatabase> toServer;
};

} // namespace

class CopyTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;

    // The locations of one row of a test over the back end pairs; false when the row skips.
    bool locations(Locations& where)
    {
        QFETCH(bool, fromServer);
        QFETCH(bool, toServer);
        if ((fromServer || toServer) && !test::ServerDatabase::available()) {
            QTest::qSkip("KARTELLA_TEST_POSTGRESQL is not set: no PostgreSQL server to copy to or from",
                __FILE__, __LINE__);
            return false;
        }
        return guarded([&] {
            if (fromServer) {
                where.fromServer = std::make_unique<test::ServerDatabase>();
                where.from = where.fromServer->location();
            } else {
                where.from = m_dir->filePath("Šaltinis.mdb");
            }
            if (toServer) {
                where.toServer = std::make_unique<test::ServerDatabase>();
                where.to = where.toServer->location();
            } else {
                where.to = m_dir->filePath("Kopija.mdb");
            }
            makeSource(where.from);
        });
    }

    static void backEndPairs()
    {
        QTest::addColumn<bool>("fromServer");
        QTest::addColumn<bool>("toServer");
        QTest::newRow("file to file") << false << false;
        QTest::newRow("file to server") << false << true;
        QTest::newRow("server to file") << true << false;
        QTest::newRow("server to server") << true << true;
    }

    // The copy is there no more: no file, or a server database with empty tables.
    static void verifyNothingKept(const QString& to)
    {
        if (!isServerLocation(to)) {
            QVERIFY2(!QFile::exists(to), qPrintable(to));
            return;
        }
        for (const auto& [table, key] : Tables)
            QCOMPARE(rowCount(to, table), 0);
    }

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        // A register on a server keeps its sample files in the current folder.
        QDir::setCurrent(m_dir->path());
    }

    void cleanup() { m_dir.reset(); }

    void copyKeepsEveryRowAndKey_data() { backEndPairs(); }

    void copyKeepsEveryRowAndKey()
    {
        Locations where;
        if (!locations(where))
            return;

        RegisterCopyReport report;
        if (!guarded([&] { report = copyRegister(where.from, where.to); }))
            return;
        QVERIFY(report.complete());
        QVERIFY(report.undone.isEmpty());
        const bool fileToServer = !isServerLocation(where.from) && isServerLocation(where.to);
        QStringList expected;
        for (const auto& [table, key] : Tables) {
            const qint64 rows = rowCount(where.from, table);
            QVERIFY2(rows > 0, qPrintable(table));
            expected << table + ": " + QString::number(rows) + " copied";
            // A server keeps the day of a date with a time of day.
            if (fileToServer && table == "tbl_Documents")
                expected << "  dates that lost their time of day (a register on a server keeps the day): 1";
        }
        // The register's history and trash come along, the history's rows as they were.
        for (const char* record : {"tbl_History", "tbl_Trash"})
            expected << QString(record) + ": " + QString::number(rowCount(where.from, record)) + " copied";
        QCOMPARE(report.lines(), expected);
        QVERIFY(rowCount(where.from, "tbl_History") > 0);
        QCOMPARE(rowCount(where.to, "tbl_History"), rowCount(where.from, "tbl_History"));

        for (const auto& [table, key] : Tables) {
            QStringList rows = engineRows(where.from, table, key);
            if (fileToServer)
                rows.replaceInStrings(QRegularExpression("T:(\\d{4}-\\d\\d-\\d\\d)T[0-9:]+"), "D:\\1");
            QCOMPARE(engineRows(where.to, table, key), rows);
        }
        if (!isServerLocation(where.from) && !isServerLocation(where.to)) {
            for (const auto& [table, key] : Tables) {
                const QStringList stored = storedRows(where.from, table, key);
                QVERIFY(!stored.isEmpty());
                QCOMPARE(storedRows(where.to, table, key), stored);
            }
        }
        // The edges arrived as they were, the done mark among them.
        QCOMPARE(scalar(where.to, "SELECT TicklerDone FROM tbl_Tickler WHERE TicklerID = 2").toInt(), 1);
        QCOMPARE(scalar(where.to, "SELECT COUNT(*) FROM tbl_Tickler WHERE TicklerDone <> 0").toInt(), 1);
        QCOMPARE(
            scalar(where.to, "SELECT FullName FROM tbl_Contacts WHERE ContactID = 2147483647").toString(),
            QString::fromUtf8("Kvirinas Žąsinaitis"));
        QCOMPARE(scalar(where.to, "SELECT COUNT(*) FROM tbl_Documents WHERE RastasID = 5").toInt(), 0);

        // The copy's search index holds the copied documents, their contacts' names too.
        const QString hit = QString::fromUtf8("\t2024-05-31\tŪkio sutartis\n");
        QCOMPARE(searchWithTool(where.to, "ukio sutart"), hit);
        QCOMPARE(searchWithTool(where.to, "zasinait"), hit);
        QCOMPARE(rowCount(where.to, SearchTable), rowCount(where.from, "tbl_Documents"));

        Connection target(plainConnectionString(JetProvider, where.to));
        target.open();
        // New rows of the copy get keys above the copied ones.
        const qint64 lastDocument = scalar(where.to, "SELECT MAX(RastasID) FROM tbl_Documents").toLongLong();
        Recordset documents;
        documents.open("SELECT * FROM tbl_Documents WHERE 1 = 0", target, CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        documents.addNew();
        documents.fields("DokAntraste").setValue("Naujas po kopijos");
        documents.update();
        QVERIFY(documents.fields("RastasID").value().toLongLong() > lastDocument);
        const qint64 lastReminder = scalar(where.to, "SELECT MAX(TicklerID) FROM tbl_Tickler").toLongLong();
        Recordset reminders;
        reminders.open("SELECT * FROM tbl_Tickler WHERE 1 = 0", target, CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        reminders.addNew();
        reminders.fields("TicklerText").setValue("Naujas priminimas");
        reminders.update();
        QVERIFY(reminders.fields("TicklerID").value().toLongLong() > lastReminder);
        target.close();

        // The source is as it was.
        QCOMPARE(rowCount(where.from, "tbl_Documents"), 120);
    }

    void copyKeepsKeyCounters_data() { backEndPairs(); }

    // The keys of rows deleted from the end of the source's tables are given to no new row
    // of the copy.
    void copyKeepsKeyCounters()
    {
        Locations where;
        if (!locations(where))
            return;
        struct Written
        {
            QString table;
            QString key;
            QString field;
        };
        const QList<Written> written
            = {{"tbl_Documents", "RastasID", "DokAntraste"}, {"tbl_HomePages", "HomeID", "HomeWWW"},
                {"tbl_Tickler", "TicklerID", "TicklerText"}, {"tbl_Phones", "PhoneID", "PhoneNumber"}};
        QHash<QString, qint64> lastKeys;
        for (const Written& table : written) {
            const qint64 last
                = scalar(where.from, "SELECT MAX(" + table.key + ") FROM " + table.table).toLongLong();
            lastKeys.insert(table.table, last);
            execute(where.from,
                {"DELETE FROM " + table.table + " WHERE " + table.key + " = " + QString::number(last)});
        }
        RegisterCopyReport report;
        if (!guarded([&] { report = copyRegister(where.from, where.to); }))
            return;
        QVERIFY(report.complete());

        Connection target(plainConnectionString(JetProvider, where.to));
        target.open();
        for (const Written& table : written) {
            Recordset rows;
            rows.open("SELECT * FROM " + table.table + " WHERE 1 = 0", target, CursorTypeEnum::Static,
                LockTypeEnum::Optimistic);
            rows.addNew();
            rows.fields(table.field).setValue("Naujas");
            rows.update();
            const qint64 key = rows.fields(table.key).value().toLongLong();
            const qint64 last = lastKeys.value(table.table);
            QVERIFY2(key > last,
                qPrintable(table.table + ": " + QString::number(key) + " after " + QString::number(last)));
        }
        target.close();
    }

    void occupiedTargetIsRefused_data() { backEndPairs(); }

    // A register is there already, with a contact of its own.
    void occupiedTargetIsRefused()
    {
        Locations where;
        if (!locations(where))
            return;
        if (!guarded([&] {
                createRegister(where.to);
                execute(where.to, {"INSERT INTO tbl_Contacts (ContactID, FullName) VALUES (7, 'Lieka')"});
            }))
            return;
        QByteArray before;
        if (!isServerLocation(where.to)) {
            QFile file(where.to);
            QVERIFY(file.open(QIODevice::ReadOnly));
            before = file.readAll();
        }

        try {
            copyRegister(where.from, where.to);
            QFAIL("an occupied target was taken");
        } catch (const Error& error) {
            QVERIFY2(error.description().contains("Nothing was copied"), qPrintable(error.description()));
        }
        QVERIFY(guarded([&] {
            QCOMPARE(engineRows(where.to, "tbl_Contacts", "ContactID").mid(1),
                QStringList {"Null|Null|Null|I:7|Null|Null|Null|S:Lieka|Null|Null|Null|Null|Null"});
            for (const auto& [table, key] : Tables)
                QCOMPARE(rowCount(where.to, table), table == "tbl_Contacts" ? 1 : 0);
        }));
        if (!isServerLocation(where.to)) {
            QFile file(where.to);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), before);
        }
    }

    void olderSourceIsRefused()
    {
        const QString from = m_dir->filePath("Senas.mdb");
        const QString to = m_dir->filePath("Kopija.mdb");
        test::makeOldRegister(from);
        QFile file(from);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray before = file.readAll();
        file.close();
        try {
            copyRegister(from, to);
            QFAIL("a register of an older form was copied");
        } catch (const Error& error) {
            QVERIFY2(error.description().contains("kartella-db upgrade"), qPrintable(error.description()));
            QVERIFY2(error.description().contains("schema version 1"), qPrintable(error.description()));
        }
        QVERIFY(!QFile::exists(to));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), before);
    }

    void failureKeepsNothing_data() { backEndPairs(); }

    // A failure after some tables went over, with the documents written already.
    void failureKeepsNothing()
    {
        Locations where;
        if (!locations(where))
            return;
        QStringList tablesDone;
        try {
            copyRegister(where.from, where.to, [&](const QString& table, qint64 written, qint64 rows) {
                if (table == "tbl_Sub_Documents")
                    throw Error(ErrorNumber::CommandFailed, "The line went down.");
                if (written == rows)
                    tablesDone << table;
            });
            QFAIL("the copy went on after a failure");
        } catch (const Error& error) {
            QVERIFY2(error.description().startsWith("The line went down. Nothing was copied"),
                qPrintable(error.description()));
            QVERIFY2(
                error.description().contains(isServerLocation(where.to) ? "without rows" : "removed again"),
                qPrintable(error.description()));
        }
        QCOMPARE(tablesDone.size(), 6);
        verifyNothingKept(where.to);
    }

    void valueTheTargetRefusesKeepsNothing_data()
    {
        QTest::addColumn<bool>("fromServer");
        QTest::addColumn<bool>("toServer");
        QTest::newRow("file to file") << false << false;
        QTest::newRow("file to server") << false << true;
    }

    // A register whose reminders table was made again by another tool, without the rule
    // that a done mark is never Null; the last table to go over holds such a row.
    void valueTheTargetRefusesKeepsNothing()
    {
        Locations where;
        if (!locations(where))
            return;
        if (!guarded([&] {
                execute(where.from,
                    {"CREATE TABLE tbl_Tickler_loose (TicklerID INTEGER PRIMARY KEY AUTOINCREMENT, RastasID "
                     "INTEGER, "
                     "TicklerDate DATE, TicklerText TEXT, TicklerDone INTEGER)",
                        "INSERT INTO tbl_Tickler_loose SELECT * FROM tbl_Tickler", "DROP TABLE tbl_Tickler",
                        "ALTER TABLE tbl_Tickler_loose RENAME TO tbl_Tickler",
                        "UPDATE tbl_Tickler SET TicklerDone = Null WHERE TicklerID = 3"});
            }))
            return;
        try {
            copyRegister(where.from, where.to);
            QFAIL("a Null done mark was copied");
        } catch (const Error& error) {
            QVERIFY2(error.description().contains("Nothing was copied"), qPrintable(error.description()));
        }
        verifyNothingKept(where.to);
    }

    void differingCountKeepsNothing_data() { backEndPairs(); }

    // Someone adds a phone to the source while the copy runs.
    void differingCountKeepsNothing()
    {
        Locations where;
        if (!locations(where))
            return;
        const qint64 phones = rowCount(where.from, "tbl_Phones");
        RegisterCopyReport report;
        if (!guarded([&] {
                report = copyRegister(
                    where.from, where.to, [&](const QString& table, qint64 written, qint64 rows) {
                        if (table == "tbl_Phones" && written == rows)
                            execute(where.from, {"INSERT INTO tbl_Phones (PhoneName) VALUES ('Naujas')"});
                    });
            }))
            return;
        QVERIFY(!report.complete());
        QVERIFY(report.lines().contains(
            QStringLiteral("tbl_Phones: %1 in the source, %2 in the copy: the counts differ")
                .arg(phones + 1)
                .arg(phones)));
        QVERIFY(report.lines().contains("tbl_Contacts: 61 copied"));
        QVERIFY2(report.undone.startsWith("Nothing was copied"), qPrintable(report.undone));
        verifyNothingKept(where.to);
    }
};

int runCopyTest(int argc, char** argv)
{
    CopyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_copy.moc"
