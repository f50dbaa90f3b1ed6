#include "EngineFixture.h"
#include "base/Error.h"
#include "platform/Translations.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqliteBackend.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSemaphore>
#include <QTest>
#include <QThread>
#include <QTranslator>

#include <atomic>

using namespace kartella;
using namespace kartella::test;

namespace {

// The error that opening the connection string gives, or -1 and "" when it opens.
std::pair<long, QString> openError(const QString& connectionString)
{
    try {
        Connection connection;
        connection.open(connectionString);
        return {-1, QString()};
    } catch (const Error& error) {
        return {error.number(), error.description()};
    }
}

// The program's Lithuanian texts while it lives; English again after.
class LithuanianTexts
{
public:
    LithuanianTexts()
        : m_before(QCoreApplication::instance()->findChildren<QTranslator*>())
    {
        installTranslations({QStringLiteral("lt")});
    }
    ~LithuanianTexts()
    {
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            if (!m_before.contains(translator)) {
                QCoreApplication::removeTranslator(translator);
                delete translator;
            }
        }
    }
    LithuanianTexts(const LithuanianTexts&) = delete;
    LithuanianTexts& operator=(const LithuanianTexts&) = delete;

private:
    const QList<QTranslator*> m_before;
};

// The server's process behind the connection.
qint64 serverProcess(Connection& connection)
{
    Recordset row;
    row.open(QStringLiteral("SELECT pg_backend_pid() AS pid"), connection);
    return row.fields(QStringLiteral("pid")).value().toLongLong();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class ConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void connectionStringForms_data()
    {
        QTest::addColumn<QString>("form");
        const QString jet = QStringLiteral("Microsoft.Jet.OLEDB.4.0");
        const QString old = QStringLiteral("microsoft.jet.oledb.3.51");
        QTest::newRow("plain") << plainConnectionString(jet, QStringLiteral("%1"));
        QTest::newRow("upper") << upperConnectionString(old, QStringLiteral("%1"));
        QTest::newRow("shape") << shapeConnectionString(jet, QStringLiteral("%1"));
        QTest::newRow("shape prefix") << shapePrefixConnectionString(old, QStringLiteral("%1"));
        QTest::newRow("shape upper") << shapeUpperConnectionString(jet, QStringLiteral("%1"));
        QTest::newRow("odd case and blanks")
            << QStringLiteral("provider = MICROSOFT.JET.OLEDB.4.0 ;data source=  %1  ");
    }

    // Every form opens the file at Data Source, also when its path holds blanks.
    void connectionStringForms()
    {
        QFETCH(QString, form);
        EngineRegister reg;
        QString spaced = reg.folder() + QStringLiteral("/a folder; with blanks/My register.mdb");
        if (reg.onServer()) {
            spaced = reg.path();
        } else {
            QVERIFY(QDir().mkpath(QFileInfo(spaced).path()));
            QVERIFY(QFile::copy(reg.path(), spaced));
        }
        Connection connection;
        connection.open(form.arg(spaced));
        QVERIFY(connection.isOpen());
        connection.execute(QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES ('x')"));
        connection.close();
        QVERIFY(!connection.isOpen());
    }

    void serverLocations_data()
    {
        QTest::addColumn<QString>("location");
        QTest::addColumn<bool>("server");
        QTest::newRow("postgresql") << "postgresql://host/register" << true;
        QTest::newRow("postgres") << "postgres://host/register" << true;
        QTest::newRow("any case, blanks around") << "  PostgreS://host/register " << true;
        QTest::newRow("a file") << "/home/ona/Kartella.mdb" << false;
        QTest::newRow("a file named like one") << "postgres.mdb" << false;
        QTest::newRow("one slash short") << "postgres:/host/register" << false;
        QTest::newRow("one slash short, long name") << "postgresql:/host/register" << false;
    }

    void serverLocations()
    {
        QFETCH(QString, location);
        QFETCH(bool, server);
        QCOMPARE(isServerLocation(location), server);
    }

    void openFailures_data()
    {
        QTest::addColumn<QString>("connectionString");
        QTest::addColumn<QString>("described");
        QTest::addColumn<QString>("inLithuanian");

        // Paths are relative to the test's folder, written as {dir}.
        const QString jet = QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= {dir}/");
        QTest::newRow("missing file") << jet + "none.mdb"
                                      << "Could not find file '{dir}/none.mdb'."
                                      << "Nerastas failas „{dir}/none.mdb“.";
        QTest::newRow("folder") << jet + "folder"
                                << "is a folder"
                                << "„{dir}/folder“ yra aplankas";
        QTest::newRow("text file") << jet + "notes.txt"
                                   << "is not a register"
                                   << "„{dir}/notes.txt“ nėra registras";
        QTest::newRow("damaged") << jet + "damaged.mdb"
                                 << "may be damaged"
                                 << "gali būti sugadintas";
        QTest::newRow("other database") << jet + "other.db"
                                        << "has no table tbl_Documents"
                                        << "nėra lentelės tbl_Documents";
        QTest::newRow("jet file") << jet + "old.mdb"
                                  << "kartella-db migrate"
                                  << "registru komanda „kartella-db migrate“";
        QTest::newRow("ace file") << jet + "new.accdb"
                                  << "Microsoft Access database"
                                  << "Microsoft Access duomenų bazė";
        QTest::newRow("unknown provider")
            << "Provider=SQLOLEDB;Data Source= {dir}/good.mdb"
            << "'SQLOLEDB'. Set the Provider option to Microsoft.Jet.OLEDB.4.0 or "
               "Microsoft.Jet.OLEDB.3.51."
            << "„SQLOLEDB“. Nuostatai Provider nurodykite Microsoft.Jet.OLEDB.4.0 arba "
               "Microsoft.Jet.OLEDB.3.51.";
        QTest::newRow("shape without data provider") << "Provider=MSDataShape;Data Source= {dir}/good.mdb"
                                                     << "names no provider"
                                                     << "nenurodytas tiekėjas";
        QTest::newRow("no data source") << "Provider=Microsoft.Jet.OLEDB.4.0"
                                        << "no Data Source"
                                        << "nėra Data Source";
    }

    void openFailures()
    {
        QFETCH(QString, connectionString);
        QFETCH(QString, described);
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("register files only");
        const QString dir = reg.folder();
        QVERIFY(QFile::copy(reg.path(), dir + "/good.mdb"));
        QVERIFY(QDir(dir).mkdir("folder"));
        writeFile(dir + "/notes.txt", "Not a database at all, just some text that is long enough.");
        QFile original(reg.path());
        QVERIFY(original.open(QIODevice::ReadOnly));
        QByteArray damaged = original.readAll();
        damaged.replace(100, 4000, QByteArray(4000, '\x5A'));
        writeFile(dir + "/damaged.mdb", damaged);
        QByteArray jetHeader(2048, '\0');
        jetHeader.replace(0, 19, QByteArray("\x00\x01\x00\x00Standard Jet DB", 19));
        writeFile(dir + "/old.mdb", jetHeader);
        jetHeader.replace(4, 15, "Standard ACE DB");
        writeFile(dir + "/new.accdb", jetHeader);
        // A database of another program: an SQLite file without the register's tables.
        writeFile(dir + "/other.db", QByteArray());
        Connection other(
            QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + dir + "/other.db");
        other.open();
        other.execute("CREATE TABLE other (a)");
        other.close();

        const auto [number, description] = openError(QString(connectionString).replace("{dir}", dir));
        QCOMPARE(number, ErrorNumber::ConnectionFailed);
        QVERIFY2(description.contains(QString(described).replace("{dir}", dir)), qPrintable(description));
        QVERIFY(!QFileInfo::exists(dir + "/none.mdb"));

        // The same failure on a Lithuanian desktop.
        QFETCH(QString, inLithuanian);
        const auto [numberInLithuanian, lithuanian] = [&] {
            const LithuanianTexts texts;
            return openError(QString(connectionString).replace("{dir}", dir));
        }();
        QCOMPARE(numberInLithuanian, ErrorNumber::ConnectionFailed);
        QVERIFY2(lithuanian.contains(QString(inLithuanian).replace("{dir}", dir)), qPrintable(lithuanian));
    }

    // A register that another program holds locked says so, whole, once the short wait at
    // opening is over; it opens again once the lock is gone.
    void lockedRegisterSaysWhoHoldsIt()
    {
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("register files only");
        Connection holder(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + reg.path());
        holder.open();
        holder.execute(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
        holder.execute(QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES ('held')"));
        reg.connection().close();
        const engine::OpeningWait shortWait(50);
        const auto [number, description]
            = openError(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + reg.path());
        QCOMPARE(number, ErrorNumber::ConnectionFailed);
        QCOMPARE(description,
            QStringLiteral("The register '%1' is in use by another program, which kept it locked; try again "
                           "once it is done.")
                .arg(reg.path()));
        holder.close();
        QCOMPARE(
            openError(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + reg.path()).first,
            -1L);
    }

    // A register another program holds for a moment only opens once the holder lets go.
    void openingWaitsForABriefHold()
    {
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("register files only");
        QSemaphore held;
        std::unique_ptr<QThread> brief(QThread::create([&reg, &held] {
            Connection other(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + reg.path());
            other.open();
            other.execute(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
            other.execute(QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES ('brief')"));
            held.release();
            QThread::msleep(300);
        }));
        brief->start();
        held.acquire();
        const qint64 opened
            = openError(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + reg.path()).first;
        brief->wait();
        QCOMPARE(opened, -1L);
    }

    void commandFailure()
    {
        EngineRegister reg;
        try {
            reg.execute(QStringLiteral("DELETE tbl_Nothing.* FROM tbl_Nothing WHERE tbl_Nothing.ID=1"));
            QFAIL("no error");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::CommandFailed);
            // SQLite: "no such table: tbl_Nothing"; PostgreSQL: "relation "tbl_nothing" does not exist".
            QVERIFY2(error.description().contains("tbl_Nothing", Qt::CaseInsensitive)
                    && (error.description().contains("no such table")
                        || error.description().contains("does not exist")),
                qPrintable(error.description()));
            QVERIFY(error.description().contains(
                "\nStatement: DELETE tbl_Nothing.* FROM tbl_Nothing WHERE tbl_Nothing.ID=1"));
        }
        Connection closed;
        QVERIFY_THROWS_EXCEPTION(Error, closed.execute("SELECT 1"));
    }

    // The statements of the program in Jet's dialect change the rows they name.
    void deleteAndUpdateStatements()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute(
            "INSERT INTO tbl_Sub_Categories (SubKategID, KategID, DokSubKategorija) VALUES (1, 7, 'A'), "
            "(2, 0, 'B'), (3, 7, Null), (4, 8, 'D')");
        reg.execute(
            "DELETE tbl_Sub_Categories.*, tbl_Sub_Categories.KategID, tbl_Sub_Categories.DokSubKategorija "
            "From tbl_Sub_Categories WHERE (tbl_Sub_Categories.DokSubKategorija Is Null) OR KategID=0;");
        QCOMPARE(reg.joined("SELECT SubKategID FROM tbl_Sub_Categories ORDER BY SubKategID"), QString("1,4"));
        reg.execute("DELETE tbl_Documents.* FROM tbl_Documents WHERE tbl_Documents.RastasID=2");
        reg.execute("UPDATE tbl_Documents SET tbl_Documents.RastoKel = '/tmp/it''s #1/2/2024#.doc' WHERE "
                    "(((tbl_Documents.RastasID)=3));");
        QCOMPARE(reg.joined("SELECT RastasID FROM tbl_Documents ORDER BY RastasID"), QString("1,3"));
        QCOMPARE(reg.scalar("SELECT RastoKel FROM tbl_Documents WHERE RastasID=3").toString(),
            QString("/tmp/it's #1/2/2024#.doc"));
        const QVariant date = reg.scalar("SELECT DokRegistracData FROM tbl_Documents WHERE "
                                         "DokRegistracData between #2/29/2024# and #3/1/2024#");
        QCOMPARE(date, QVariant(QDate(2024, 3, 1)));
    }

    // A server register, opened as it stands: a server that can't be reached or a database
    // that isn't a register give the connection error, soon.
    void serverOpenFailures_data()
    {
        QTest::addColumn<QString>("location");
        QTest::addColumn<QString>("described");
        QTest::addColumn<QString>("inLithuanian");
        QTest::newRow("no server at the port") << "postgresql://nobody@127.0.0.1:1/none"
                                               << "Could not connect to the register server"
                                               << "Nepavyko prisijungti prie registro serverio";
        QTest::newRow("no such database") << "{server}/kartella_no_such_database"
                                          << "kartella_no_such_database"
                                          << "Nepavyko prisijungti prie registro serverio „{server}/"
                                             "kartella_no_such_database“";
        QTest::newRow("database of another program") << "{other}"
                                                     << "has no table tbl_Documents"
                                                     << "„{other}“ yra duomenų bazė, bet ne registras";
    }

    void serverOpenFailures()
    {
        QFETCH(QString, location);
        QFETCH(QString, described);
        QFETCH(QString, inLithuanian);
        if (!testsOnServer())
            QSKIP("server registers only");
        ServerDatabase other;
        {
            Connection connection(
                plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), other.location()));
            connection.open();
            connection.execute("CREATE TABLE other (a integer)");
        }
        QString server = other.location();
        server.truncate(server.lastIndexOf(u'/'));
        location.replace("{server}", server).replace("{other}", other.location());
        inLithuanian.replace("{server}", server).replace("{other}", other.location());
        const QString connectionString
            = plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), location);
        const auto [number, description] = openError(connectionString);
        QCOMPARE(number, ErrorNumber::ConnectionFailed);
        QVERIFY2(description.contains(described), qPrintable(description));

        // The same failure on a Lithuanian desktop; the server's own words stay as they come.
        const auto [numberInLithuanian, lithuanian] = [&] {
            const LithuanianTexts texts;
            return openError(connectionString);
        }();
        QCOMPARE(numberInLithuanian, ErrorNumber::ConnectionFailed);
        QVERIFY2(lithuanian.contains(inLithuanian), qPrintable(lithuanian));
    }

    // A writer that finds the file locked by another connection's transaction waits for it;
    // on a server, a writer waits for a row another transaction changed.
    void secondWriterWaits()
    {
        EngineRegister reg;
        if (reg.onServer())
            reg.execute("INSERT INTO tbl_Contacts (ContactID, FullName) VALUES (1, 'none')");
        const QString change = reg.onServer()
            ? QStringLiteral("UPDATE tbl_Contacts SET FullName = FullName || ',%1' WHERE ContactID = 1")
            : QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES ('%1')");
        QSemaphore locked;
        QSemaphore release;
        QString threadError;
        QThread* holder = QThread::create([&] {
            try {
                Connection other(reg.connectionString());
                other.open();
                other.beginTrans();
                other.execute(change.arg("first"));
                locked.release();
                release.acquire();
                QThread::msleep(700);
                other.commitTrans();
            } catch (const Error& error) {
                threadError = error.description();
                locked.release();
            }
        });
        holder->start();
        locked.acquire();
        release.release();
        QElapsedTimer timer;
        timer.start();
        reg.execute(change.arg("second"));
        const qint64 waited = timer.elapsed();
        holder->wait();
        delete holder;
        QVERIFY2(threadError.isEmpty(), qPrintable(threadError));
        QVERIFY2(waited >= 500, qPrintable(QString::number(waited)));
        QCOMPARE(reg.joined("SELECT FullName FROM tbl_Contacts ORDER BY ContactID"),
            QString(reg.onServer() ? "none,first,second" : "first,second"));
    }

    // A statement stopped by its flag, set from another thread, fails at once; the connection
    // reads again once the flag is down.
    void stopFlagStopsTheRunningStatement()
    {
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("a server's statements are not stopped by a flag");
        Connection connection(reg.connectionString());
        connection.open();
        auto stop = std::make_shared<std::atomic<bool>>(false);
        connection.setStopFlag(stop);
        QThread* stopper = QThread::create([stop] {
            QThread::msleep(50);
            *stop = true;
        });
        stopper->start();
        bool failed = false;
        try {
            // Some minutes of counting unless stopped.
            Recordset rs;
            rs.open(QStringLiteral("WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < "
                                   "2000000000) SELECT COUNT(*) FROM n"),
                connection);
        } catch (const Error&) {
            failed = true;
        }
        stopper->wait();
        delete stopper;
        QVERIFY(failed);
        *stop = false;
        Recordset after;
        after.open(QStringLiteral("SELECT COUNT(*) AS N FROM tbl_Contacts"), connection);
        QCOMPARE(after.fields(0).value().toInt(), 0);
        // Without a flag nothing stops it.
        *stop = true;
        connection.setStopFlag(nullptr);
        after.close();
        after.open(QStringLiteral("SELECT COUNT(*) AS N FROM tbl_Contacts"), connection);
        QCOMPARE(after.fields(0).value().toInt(), 0);
    }

    // A closed connection's session with the server is used by the next connection, but never
    // one still open, one in a transaction, one the server ended, or one that would not see
    // a table changed since.
    void serverSessionsAreKept()
    {
        EngineRegister reg;
        if (!reg.onServer())
            QSKIP("server registers only");
        qint64 first = 0;
        {
            Connection connection(reg.connectionString());
            connection.open();
            first = serverProcess(connection);
        }
        Connection again(reg.connectionString());
        again.open();
        QCOMPARE(serverProcess(again), first);
        Connection beside(reg.connectionString());
        beside.open();
        QVERIFY(serverProcess(beside) != first);

        // Closed inside a transaction: its writes are undone with its session.
        again.beginTrans();
        again.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('never stored')");
        again.close();
        {
            Connection next(reg.connectionString());
            next.open();
            QVERIFY(serverProcess(next) != first);
        }
        QCOMPARE(reg.joined("SELECT FullName FROM tbl_Contacts"), QString());

        // A column added by another connection is there for a kept session.
        beside.close();
        reg.execute("ALTER TABLE \"tbl_Contacts\" ADD COLUMN \"Nickname\" varchar(20)");
        Connection kept(reg.connectionString());
        kept.open();
        Recordset contacts;
        contacts.open(QStringLiteral("tbl_Contacts"), kept, CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        contacts.addNew();
        contacts.fields(QStringLiteral("FullName")).setValue(QStringLiteral("Ona"));
        contacts.fields(QStringLiteral("Nickname")).setValue(QStringLiteral("Onutė"));
        contacts.update();
        QCOMPARE(reg.joined("SELECT Nickname FROM tbl_Contacts"), QString("Onutė"));

        // Ended by the server while kept: the next connection gets a session of its own.
        const qint64 ended = serverProcess(kept);
        contacts.close();
        kept.close();
        reg.scalar(QStringLiteral("SELECT pg_terminate_backend(%1)").arg(ended));
        Connection after(reg.connectionString());
        after.open();
        QVERIFY(serverProcess(after) != ended);
        QCOMPARE(reg.joined("SELECT FullName FROM tbl_Contacts"), QString("Ona"));
    }

    void transactions()
    {
        EngineRegister reg;
        reg.connection().beginTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('kept')");
        reg.connection().commitTrans();
        reg.connection().beginTrans();
        reg.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('dropped')");
        reg.connection().rollbackTrans();
        QCOMPARE(reg.joined("SELECT FullName FROM tbl_Contacts ORDER BY ContactID"), QString("kept"));
        QVERIFY_THROWS_EXCEPTION(Error, reg.connection().commitTrans());
    }
};

int runConnectionTest(int argc, char** argv)
{
    ConnectionTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_connection.moc"
