#include "EngineFixture.h"
#include "base/Error.h"
#include "platform/Clock.h"
#include "store/engine/Recordset.h"

#include <QLocale>
#include <QSignalSpy>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

const QString Contacts
    = QStringLiteral("SELECT ContactID, FullName, City FROM tbl_Contacts ORDER BY ContactID");

QString names(EngineRegister& reg)
{
    return reg.joined("SELECT FullName FROM tbl_Contacts ORDER BY ContactID");
}

long errorOf(const std::function<void()>& action, QString* description = nullptr)
{
    try {
        action();
    } catch (const Error& error) {
        if (description)
            *description = error.description();
        return error.number();
    }
    return 0;
}

} // namespace

class EditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void batchRowsWaitForUpdateBatch()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        recordset.addNew();
        QCOMPARE(recordset.editMode(), int(EditModeEnum::Add));
        recordset.fields("FullName").setValue(QStringLiteral("Naujas"));
        recordset.update();
        QCOMPARE(recordset.editMode(), int(EditModeEnum::None));
        recordset.addNew();
        recordset.fields("FullName").setValue(QStringLiteral("Kitas"));
        recordset.moveFirst();
        recordset.fields("City").setValue(QStringLiteral("Vilnius"));
        recordset.moveLast();
        QVERIFY(recordset.hasPendingChanges());
        QCOMPARE(recordset.recordCount(), 7);
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius"));
        QVERIFY(isNull(recordset.fields("ContactID").value()));
        // The pending group shows the rows waiting to be written: two new, one changed.
        recordset.setFilterGroup(FilterGroupEnum::PendingRecords);
        QCOMPARE(recordset.recordCount(), 3);
        recordset.setFilterGroup(FilterGroupEnum::None);
        QCOMPARE(recordset.recordCount(), 7);
        recordset.moveLast();

        // Current: only "Kitas", which gets its key back.
        recordset.updateBatch(AffectEnum::Current);
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius,Kitas"));
        QCOMPARE(recordset.fields("ContactID").value().toInt(), 6);
        QCOMPARE(recordset.fields("FullName").underlyingValue().toString(), QString("Kitas"));
        QVERIFY(recordset.hasPendingChanges());
        QVERIFY(isNull(reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=1")));

        recordset.updateBatch(AffectEnum::All);
        QVERIFY(!recordset.hasPendingChanges());
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius,Kitas,Naujas"));
        QCOMPARE(
            reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=1").toString(), QString("Vilnius"));
        recordset.movePrevious();
        QCOMPARE(recordset.collect("ContactID").toInt(), 7);
    }

    void closeAndDestroyWriteNothing()
    {
        EngineRegister reg;
        reg.fillSmall();
        {
            Recordset recordset;
            recordset.open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
            recordset.addNew();
            recordset.fields("FullName").setValue(QStringLiteral("Dingęs"));
            recordset.update();
            recordset.moveFirst();
            recordset.deleteRecord();
            recordset.close();
            QVERIFY(!recordset.isOpen());
            recordset.open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
            recordset.fields("FullName").setValue(QStringLiteral("Pakeistas"));
            recordset.moveNext();
            recordset.fields("FullName").setValue(QStringLiteral("Nebaigtas"));
            QCOMPARE(recordset.editMode(), int(EditModeEnum::InProgress));
            recordset.close();
            QCOMPARE(recordset.editMode(), int(EditModeEnum::None));
        }
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius"));
    }

    void immediateUpdateAndDelete()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        QSignalSpy fieldChanged(&recordset, &Recordset::fieldChangeComplete);
        recordset.open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.addNew();
        recordset.fields("FullName").setValue(QStringLiteral("Jonas"));
        QCOMPARE(fieldChanged.count(), 1);
        QCOMPARE(fieldChanged.front().front().toString(), QString("FullName"));
        recordset.update();
        QCOMPARE(recordset.collect("ContactID").toInt(), 6);
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius,Jonas"));

        // A change written by a move, another dropped by cancelUpdate.
        recordset.moveFirst();
        recordset.fields("City").setValue(QStringLiteral("Kaunas"));
        QCOMPARE(recordset.editMode(), int(EditModeEnum::InProgress));
        QVERIFY(isNull(recordset.fields("City").underlyingValue()));
        recordset.moveNext();
        QCOMPARE(reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=1").toString(), QString("Kaunas"));
        recordset.fields("City").setValue(QStringLiteral("Alytus"));
        recordset.cancelUpdate();
        QVERIFY(isNull(recordset.collect("City")));
        QVERIFY(!recordset.hasPendingChanges());

        // A deleted row stays current until a move, without fields.
        recordset.deleteRecord();
        QCOMPARE(names(reg), QString("Petras,Šarūnas,šilas,Saulius,Jonas"));
        QCOMPARE(recordset.recordCount(), 5);
        QCOMPARE(errorOf([&] { recordset.collect("FullName"); }), ErrorNumber::NoCurrentRecord);
        recordset.moveNext();
        QCOMPARE(recordset.collect("FullName").toString(), QString("Šarūnas"));
        recordset.moveFirst();
        QCOMPARE(recordset.collect("FullName").toString(), QString("Petras"));

        // A row added right after a delete leaves the deleted one behind.
        recordset.moveNext();
        recordset.deleteRecord();
        recordset.addNew();
        recordset.fields("FullName").setValue(QStringLiteral("Ona"));
        recordset.update();
        recordset.moveFirst();
        QCOMPARE(rows(recordset, {"FullName"}), QStringList({"Petras", "šilas", "Saulius", "Jonas", "Ona"}));

        // A row added and cancelled gives back the row that was current, wherever it was.
        recordset.moveFirst();
        recordset.moveNext();
        recordset.addNew();
        recordset.cancelUpdate();
        QCOMPARE(recordset.collect("FullName").toString(), QString("šilas"));
        QCOMPARE(recordset.absolutePosition(), 2);
    }

    void batchDeleteAndCancelBatch()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        recordset.move(1);
        recordset.deleteRecord();
        recordset.moveNext();
        recordset.fields("FullName").setValue(QStringLiteral("Pakeistas"));
        recordset.addNew();
        recordset.fields("FullName").setValue(QStringLiteral("Naujas"));
        QCOMPARE(recordset.recordCount(), 5);
        // Views follow the current row the cancel leaves.
        QSignalSpy moved(&recordset, &Recordset::moveComplete);
        recordset.cancelBatch();
        QCOMPARE(moved.count(), 1);
        QVERIFY(!recordset.hasPendingChanges());
        QCOMPARE(recordset.recordCount(), 5);
        recordset.moveFirst();
        QCOMPARE(
            rows(recordset, {"FullName"}), QStringList({"Petras", "Ąžuolas", "Šarūnas", "šilas", "Saulius"}));

        recordset.moveFirst();
        recordset.deleteRecord();
        recordset.moveNext();
        recordset.updateBatch();
        QCOMPARE(names(reg), QString("Ąžuolas,Šarūnas,šilas,Saulius"));
    }

    void valuesOfDateAndNumberFields_data()
    {
        QTest::addColumn<QVariant>("input");
        QTest::addColumn<QVariant>("stored");

        QTest::newRow("QDate") << QVariant(QDate(2024, 3, 5)) << QVariant("2024-03-05");
        QTest::newRow("QDateTime") << QVariant(QDateTime(QDate(2024, 3, 5), QTime(8, 9, 10)))
                                   << QVariant("2024-03-05 08:09:10");
        QTest::newRow("ISO text") << QVariant("2024-03-05") << QVariant("2024-03-05");
        QTest::newRow("dotted text") << QVariant("2024.03.05") << QVariant("2024-03-05");
        QTest::newRow("month first") << QVariant("3/5/2024") << QVariant("2024-03-05");
        QTest::newRow("with time") << QVariant("3/5/2024 17:30") << QVariant("2024-03-05 17:30:00");
        QTest::newRow("empty") << QVariant("") << QVariant();
        QTest::newRow("words") << QVariant("next week") << QVariant(13);
        QTest::newRow("no such day") << QVariant("2024-02-30") << QVariant(13);
        QTest::newRow("number") << QVariant(45000) << QVariant(13);
    }

    void valuesOfDateAndNumberFields()
    {
        QFETCH(QVariant, input);
        QFETCH(QVariant, stored);
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.open("SELECT RastasID, DokRegistracData, KategID FROM tbl_Documents WHERE RastasID=1",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QString description;
        const long error
            = errorOf([&] { recordset.fields("DokRegistracData").setValue(input); }, &description);
        if (stored.typeId() == QMetaType::Int) {
            QCOMPARE(error, long(stored.toInt()));
            QVERIFY2(description.contains("DokRegistracData"), qPrintable(description));
            QCOMPARE(recordset.editMode(), int(EditModeEnum::None));
            QCOMPARE(reg.scalar("SELECT DokRegistracData FROM tbl_Documents WHERE RastasID=1").toString(),
                QString("2024-03-01"));
            return;
        }
        QCOMPARE(error, 0L);
        recordset.update();
        // A server's date column keeps the day of a time given.
        if (reg.onServer() && stored.typeId() == QMetaType::QString)
            stored = stored.toString().left(10);
        QCOMPARE(
            reg.scalar("SELECT CAST(DokRegistracData AS TEXT) FROM tbl_Documents WHERE RastasID=1"), stored);
        recordset.requery();
        QCOMPARE(isNull(recordset.collect("DokRegistracData")), isNull(stored));
    }

    // A date another program wrote in another of its text forms is found as the moment it
    // names when the row is written back over it.
    void dateStoredInAnotherForm_data()
    {
        QTest::addColumn<QString>("storedText");
        QTest::newRow("T before the time") << "2024-03-05T08:09:10";
        QTest::newRow("milliseconds") << "2024-03-05 08:09:10.000";
        QTest::newRow("a day as a moment") << "2024-03-05 00:00:00";
    }

    void dateStoredInAnotherForm()
    {
        QFETCH(QString, storedText);
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("a server stores a date in one form");
        reg.fillSmall();
        reg.execute("UPDATE tbl_Documents SET DokRegistracData = '" + storedText + "' WHERE RastasID=1");
        Recordset recordset;
        recordset.open("SELECT RastasID, DokRegistracData FROM tbl_Documents WHERE RastasID=1",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.fields("DokRegistracData").setValue(QDate(2024, 4, 1));
        QCOMPARE(errorOf([&] { recordset.update(); }), 0L);
        QCOMPARE(reg.scalar("SELECT DokRegistracData FROM tbl_Documents WHERE RastasID=1").toString(),
            QString("2024-04-01"));
    }

    // A date typed in the application's short form, day first, reads as that day.
    void dateInTheLocaleForm()
    {
        EngineRegister reg;
        reg.fillSmall();
        const QLocale previous;
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        Recordset recordset;
        recordset.open("SELECT RastasID, DokRegistracData FROM tbl_Documents WHERE RastasID=1",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.fields("DokRegistracData").setValue(QStringLiteral("05/03/2024"));
        QLocale::setDefault(previous);
        QCOMPARE(recordset.collect("DokRegistracData"), QVariant(QDate(2024, 3, 5)));
    }

    // A date typed with a two-digit year goes to the century nearest to today (a tie to
    // the past), in the locale's short form and month first alike.
    void twoDigitYearsNearToday_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QDate>("read");
        const QDate today(2026, 11, 24);
        QTest::newRow("30 is 2030") << today << "01.06.30" << QDate(2030, 6, 1);
        QTest::newRow("75 is 49 years ahead") << today << "01.06.75" << QDate(2075, 6, 1);
        QTest::newRow("76 is a tie, the past") << today << "01.06.76" << QDate(1976, 6, 1);
        QTest::newRow("77 is 1977") << today << "01.06.77" << QDate(1977, 6, 1);
        QTest::newRow("00 in 2099 is 2100") << QDate(2099, 12, 31) << "01.01.00" << QDate(2100, 1, 1);
        QTest::newRow("month first, 30 is 2030") << today << "6/1/30" << QDate(2030, 6, 1);
    }

    void twoDigitYearsNearToday()
    {
        QFETCH(QDate, today);
        QFETCH(QString, typed);
        QFETCH(QDate, read);
        EngineRegister reg;
        reg.fillSmall();
        const SettableClock clock(today);
        const QLocale previous;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        Recordset recordset;
        recordset.open("SELECT RastasID, DokRegistracData FROM tbl_Documents WHERE RastasID=1",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.fields("DokRegistracData").setValue(typed);
        QLocale::setDefault(previous);
        QCOMPARE(recordset.collect("DokRegistracData"), QVariant(read));
    }

    // Of a field selected twice, both copies change, and the row is written once.
    void fieldSelectedTwice()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute(
            "INSERT INTO tbl_Sub_Documents (SubRastasID, RastasID, SubDocDescript) VALUES (1, 1, 'a'), "
            "(2, 1, 'b')");
        Recordset recordset;
        recordset.open("SELECT tbl_Sub_Documents.*, tbl_Sub_Documents.RastasID FROM tbl_Sub_Documents WHERE "
                       "tbl_Sub_Documents.RastasID=1",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QCOMPARE(recordset.fieldCount(), 7);
        QVERIFY(recordset.isUpdatable());
        recordset.fields(6).setValue(2);
        QCOMPARE(recordset.collect("RastasID").toInt(), 2);
        recordset.update();
        recordset.moveNext();
        recordset.deleteRecord();
        QCOMPARE(
            reg.joined("SELECT SubRastasID || ':' || RastasID FROM tbl_Sub_Documents ORDER BY SubRastasID"),
            QString("1:2"));
    }

    void textIntoNumberField()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.open("SELECT RastasID, KategID FROM tbl_Documents WHERE RastasID=1", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.fields("KategID").setValue(QStringLiteral(" 12 "));
        QCOMPARE(recordset.collect("KategID"), QVariant(12));
        recordset.fields("KategID").setValue(QStringLiteral(""));
        QVERIFY(isNull(recordset.collect("KategID")));
        QCOMPARE(errorOf([&] { recordset.fields("KategID").setValue(QStringLiteral("abc")); }),
            ErrorNumber::TypeMismatch);
        recordset.update();
        QVERIFY(isNull(reg.scalar("SELECT KategID FROM tbl_Documents WHERE RastasID=1")));
        QCOMPARE(errorOf([&] { recordset.fields("RastasID").setValue(5); }), 3251L);
    }

    // A value a column can't take is refused with a message that names it, what the column
    // wants and the field; the row keeps what it held.
    void refusedValuesAreNamed_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("message");
        QTest::newRow("words for a whole number")
            << "n" << QVariant("abc") << "Type mismatch: 'abc' is not a whole number (field n).";
        QTest::newRow("a date for a whole number")
            << "n" << QVariant(QDate(2024, 3, 5))
            << "Type mismatch: '2024-03-05' is not a whole number (field n).";
        QTest::newRow("too large a whole number")
            << "n" << QVariant(1e19) << "Overflow: 1e+19 doesn't fit field n.";
        QTest::newRow("words for a number")
            << "r" << QVariant("abc") << "Type mismatch: 'abc' is not a number (field r).";
        QTest::newRow("a date for a number")
            << "r" << QVariant(QDate(2024, 3, 5)) << "Type mismatch: '2024-03-05' is not a number (field r).";
        QTest::newRow("words for a date")
            << "d" << QVariant("abc") << "Type mismatch: 'abc' is not a date (field d).";
        QTest::newRow("a number for a date")
            << "d" << QVariant(12) << "Type mismatch: '12' is not a date (field d).";
        QTest::newRow("bytes for a date") << "d" << QVariant(QByteArray("2024-03-05"))
                                          << "Type mismatch: '2024-03-05' is not a date (field d).";
        QTest::newRow("no date") << "d" << QVariant(QDate(2024, 2, 30))
                                 << "Type mismatch: '' is not a date (field d).";
        QTest::newRow("no moment") << "d" << QVariant(QDateTime(QDate(2024, 2, 30), QTime(1, 0)))
                                   << "Type mismatch: '' is not a date (field d).";
    }

    void refusedValuesAreNamed()
    {
        QFETCH(QString, field);
        QFETCH(QVariant, value);
        QFETCH(QString, message);
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("The conversions are the engine's own, whatever the database.");
        reg.execute("CREATE TABLE kinds (id INTEGER PRIMARY KEY, n INTEGER, r REAL, d DATE)");
        reg.execute("INSERT INTO kinds (id, n, r, d) VALUES (1, 7, 2.5, '2024-03-01')");
        Recordset recordset;
        recordset.open("SELECT id, n, r, d FROM kinds", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        QString description;
        QVERIFY(errorOf([&] { recordset.fields(field).setValue(value); }, &description) != 0);
        QCOMPARE(description, message);
        recordset.update();
        QCOMPARE(reg.joined("SELECT n || '|' || r || '|' || d FROM kinds"), QString("7|2.5|2024-03-01"));
    }

    // A recordset whose connection was closed refuses to write, with an error.
    void closedConnection()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        reg.connection().close();
        QCOMPARE(recordset.collect("FullName").toString(), QString("Petras"));
        recordset.fields("City").setValue("Vilnius");
        QString description;
        QCOMPARE(errorOf([&] { recordset.update(); }, &description), 3704L);
        QCOMPARE(description, QString("Operation is not allowed when the object is closed."));
        QCOMPARE(recordset.editMode(), int(EditModeEnum::InProgress));
        QCOMPARE(errorOf([&] { recordset.requery(); }), 3704L);

        // Opening on a closed connection changes nothing: the filter set ahead waits for the
        // open that succeeds.
        Recordset later;
        later.setFilter(QStringLiteral("FullName = 'Saulius'"));
        QCOMPARE(errorOf([&] { later.open(Contacts, reg.connection()); }, &description), 3704L);
        QCOMPARE(description, QString("Operation is not allowed when the object is closed."));
        QVERIFY(!later.isOpen());
        QCOMPARE(later.source(), QString());
        reg.connection().open();
        later.open(Contacts, reg.connection());
        QCOMPARE(later.recordCount(), 1);
    }

    void readOnlyRecordsets()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset join;
        join.open(
            "SELECT tbl_Documents.RastasID, tbl_Contacts.FullName FROM tbl_Documents INNER JOIN tbl_Contacts "
            "ON tbl_Contacts.ContactID = tbl_Documents.ContactID",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QVERIFY(!join.isUpdatable());
        QString description;
        QCOMPARE(errorOf([&] { join.fields("FullName").setValue("x"); }, &description), 3251L);
        QVERIFY2(description.contains("more than one table"), qPrintable(description));
        QCOMPARE(errorOf([&] { join.addNew(); }), 3251L);
        QCOMPARE(errorOf([&] { join.deleteRecord(); }), 3251L);

        Recordset readOnly;
        readOnly.open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::ReadOnly);
        QCOMPARE(errorOf([&] { readOnly.fields("FullName").setValue("x"); }), 3251L);
    }

    // Without the key among its columns, a recordset reads the row key hidden.
    void keyNotSelected()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.open("SELECT FullName FROM tbl_Contacts WHERE FullName Like 'š%'", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QCOMPARE(recordset.fieldNames(), QStringList {"FullName"});
        QVERIFY(recordset.isUpdatable());
        recordset.moveLast();
        recordset.fields("FullName").setValue(QStringLiteral("Šilas"));
        recordset.update();
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,Šilas,Saulius"));
    }

    // A table of another program without a key of one column is written by the rows' own
    // number in the file.
    void tableWithoutOneKey_data()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("no key") << "CREATE TABLE loose (a TEXT, b INTEGER)";
        QTest::newRow("key of two columns") << "CREATE TABLE loose (a TEXT, b INTEGER, PRIMARY KEY (a, b))";
    }

    void tableWithoutOneKey()
    {
        QFETCH(QString, table);
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("a file's own row numbers");
        reg.execute(table);
        reg.execute("INSERT INTO loose (a, b) VALUES ('x', 1)");
        reg.execute("INSERT INTO loose (a, b) VALUES ('y', 2)");
        Recordset recordset;
        recordset.open("SELECT a, b FROM loose ORDER BY b", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        QVERIFY(recordset.isUpdatable());
        recordset.moveLast();
        recordset.fields("a").setValue(QStringLiteral("z"));
        recordset.update();
        recordset.moveFirst();
        recordset.deleteRecord();
        QCOMPARE(reg.joined("SELECT a || b FROM loose ORDER BY b"), QString("z2"));
    }

    // The work given to a batch runs in its transaction, on its connection: the first ahead
    // of every row, the second once they are all written. Either refusing writes nothing and
    // keeps the rows pending.
    void batchWorkRunsInTheBatchsTransaction_data()
    {
        QTest::addColumn<QString>("refusing");
        QTest::addColumn<QStringList>("seen");
        QTest::addColumn<QString>("written");
        const QString before = "Petras,Ąžuolas,Šarūnas,šilas,Saulius";
        const QString after = before + ",Zita";
        QTest::newRow("neither refuses") << "" << QStringList({before, after}) << after;
        QTest::newRow("the first refuses") << "first" << QStringList({before}) << before;
        QTest::newRow("the second refuses") << "second" << QStringList({before, after}) << before;
    }

    void batchWorkRunsInTheBatchsTransaction()
    {
        QFETCH(QString, refusing);
        QFETCH(QStringList, seen);
        QFETCH(QString, written);
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        QStringList saw;
        const auto look = [&](Connection& connection, const QString& which) {
            Recordset contacts;
            contacts.open("SELECT FullName FROM tbl_Contacts ORDER BY ContactID", connection);
            saw << rows(contacts, {"FullName"}).join(u',');
            if (which == refusing)
                throw Error(ErrorNumber::CommandFailed, "refused: " + which);
        };
        recordset.setBatchWork(
            [&](Connection& c) { look(c, "first"); }, [&](Connection& c) { look(c, "second"); });
        recordset.addNew();
        recordset.fields("FullName").setValue("Zita");
        QString description;
        QCOMPARE(errorOf([&] { recordset.updateBatch(); }, &description),
            refusing.isEmpty() ? 0L : long(ErrorNumber::CommandFailed));
        QCOMPARE(saw, seen);
        QCOMPARE(names(reg), written);
        QCOMPARE(recordset.hasPendingChanges(), !refusing.isEmpty());
    }

    // A refused batch writes none of its rows and keeps them all pending.
    void refusedBatchLeavesDataIntact()
    {
        EngineRegister reg;
        reg.createStrictTable();
        Recordset recordset;
        recordset.open("SELECT id, name FROM strict", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::BatchOptimistic);
        recordset.addNew();
        recordset.fields("name").setValue("first");
        recordset.addNew();
        QString description;
        QCOMPARE(errorOf([&] { recordset.updateBatch(); }, &description), ErrorNumber::CommandFailed);
        QVERIFY2(description.contains("NOT NULL") || description.contains("not-null constraint"),
            qPrintable(description));
        QCOMPARE(reg.scalar("SELECT count(*) FROM strict").toInt(), 0);
        QVERIFY(recordset.hasPendingChanges());
        QVERIFY(isNull(recordset.collect("id")));
        recordset.fields("name").setValue("second");
        recordset.updateBatch();
        // A server's key generator doesn't go back with the refused rows: the keys may skip.
        QCOMPARE(reg.joined("SELECT name FROM strict ORDER BY id"), QString("first,second"));
        QCOMPARE(reg.scalar("SELECT count(DISTINCT id) FROM strict").toInt(), 2);

        // An immediate Update that fails keeps the edit.
        recordset.close();
        recordset.open("SELECT id, name FROM strict", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        recordset.addNew();
        QCOMPARE(errorOf([&] { recordset.update(); }), ErrorNumber::CommandFailed);
        QCOMPARE(recordset.editMode(), int(EditModeEnum::Add));
        recordset.fields("name").setValue("third");
        recordset.update();
        QCOMPARE(
            reg.scalar("SELECT name FROM strict WHERE id = " + recordset.collect("id").toString()).toString(),
            QString("third"));
        QCOMPARE(reg.scalar("SELECT count(DISTINCT id) FROM strict").toInt(), 3);
    }
};

int runEditTest(int argc, char** argv)
{
    EditTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_edit.moc"
