#include "EngineFixture.h"
#include "base/Error.h"
#include "explorer/DocumentQueries.h"
#include "store/engine/ConnectionString.h"
#include "store/engine/Recordset.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace kartella;
using namespace kartella::test;

namespace {

// Eight documents: RastasID 1..8, KategID 1 for odd and 2 for even ids, registered on
// March 1st..8th 2024, contact 1 "Petras" for ids up to 4, none above; DokAntraste
// "Doc 1".."Doc 8"; 3 and 6 have no description.
void fillEight(EngineRegister& reg)
{
    reg.execute("INSERT INTO tbl_Contacts (ContactID, FullName) VALUES (1, 'Petras')");
    for (int id = 1; id <= 8; ++id) {
        const QString description = id % 3 == 0 ? QStringLiteral("Null") : QStringLiteral("'Doc %1'").arg(id);
        reg.execute(
            QStringLiteral("INSERT INTO tbl_Documents (RastasID, KategID, DokRegistracData, ContactID, "
                           "DokAntraste) VALUES (%1, %2, #3/%1/2024#, %3, %4)")
                .arg(id)
                .arg(2 - id % 2)
                .arg(id <= 4 ? QStringLiteral("1") : QStringLiteral("Null"))
                .arg(description));
    }
}

QStringList ids(Recordset& recordset)
{
    recordset.moveFirst();
    return rows(recordset, {QStringLiteral("RastasID")});
}

// Operations the engine refuses, each with its own message.
enum class Refused {
    NoCurrentRecord,
    NoFieldNumber,
    ReadOnly,
    Join,
    OpenedTwice,
    OpenedTwiceByLocation,
    ConnectionOpenedTwice,
    NoPosition,
    BadBookmark,
    HiddenBookmark,
    KeyChanged,
    ChapterSet,
    DeleteAll,
    ResyncGroup,
    ResyncWhat,
    NoProvider,
    ClosedRequery,
    ClosedField,
    MovePastTheEnd,
    MoveClosed
};

} // namespace

class RecordsetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheDocumentList()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("UPDATE tbl_Documents SET DokGavSiuntData = '2024-03-02 10:15:00' WHERE RastasID = 2");
        Recordset recordset;
        recordset.open(documentSql() + "ORDER BY tbl_Documents.DokRegistracData DESC", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        QCOMPARE(recordset.fieldCount(), 12);
        QCOMPARE(recordset.recordCount(), 3);
        QVERIFY(!recordset.isUpdatable());
        QCOMPARE(rows(recordset, {"RastasID", "DokRegistracData", "FullName", "KategID", "DokPastaba"}),
            QStringList({"3|2024-04-02|-|8|-", "2|2024-03-05|Petras|7|-", "1|2024-03-01|Petras|7|-"}));
        recordset.moveFirst();
        const QVariant date = recordset.fields("dokregistracdata").value();
        QCOMPARE(date.typeId(), int(QMetaType::QDate));
        recordset.moveNext();
        QCOMPARE(recordset.collect("DokGavSiuntData"),
            reg.onServer() ? QVariant(QDate(2024, 3, 2))
                           : QVariant(QDateTime(QDate(2024, 3, 2), QTime(10, 15))));
        QCOMPARE(recordset.fields("RastasID").value().toInt(), 2);
        QCOMPARE(recordset.rowValue(0, 0).toInt(), 3);
        QCOMPARE(recordset.currentRow(), 1);
        QVERIFY(isNull(recordset.rowValue(7, 0)));
        QVERIFY(recordset.hasField("FULLNAME"));
        QVERIFY(!recordset.hasField("Nothing"));
        try {
            recordset.fields("Nothing");
            QFAIL("no error");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::ItemNotFound);
            QCOMPARE(error.description(),
                "Item cannot be found in the collection corresponding to the requested name or ordinal: "
                "'Nothing'");
        }
        // A table name reads the whole table.
        Recordset table;
        table.open("tbl_Tickler", reg.connection());
        QCOMPARE(table.recordCount(), 2);
        QVERIFY(table.isUpdatable());
        Recordset bracketed;
        bracketed.open("[tbl_Tickler]", reg.connection());
        QCOMPARE(bracketed.recordCount(), 2);
    }

    // A recordset that opened its own connection from a connection string lets it go when it
    // closes, not only when it is destroyed: a register file closed is held by nobody.
    void ownConnectionEndsAtClose()
    {
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("a server's session is kept for the next connection");
        if (!QDir(QStringLiteral("/proc/self/fd")).exists())
            QSKIP("the process's open files are counted in /proc");
        const auto openFiles = [] {
            return QDir(QStringLiteral("/proc/self/fd"))
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot)
                .size();
        };
        const qsizetype before = openFiles();
        Recordset recordset;
        recordset.open("tbl_Tickler", reg.connectionString());
        QVERIFY(openFiles() > before);
        recordset.close();
        QCOMPARE(openFiles(), before);
    }

    void navigation()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.open("SELECT RastasID FROM tbl_Documents ORDER BY RastasID", reg.connection());
        QCOMPARE(recordset.recordCount(), 8);
        QVERIFY(!recordset.bof() && !recordset.eof());
        QCOMPARE(recordset.absolutePosition(), 1);
        recordset.movePrevious();
        QVERIFY(recordset.bof());
        QCOMPARE(recordset.absolutePosition(), int(PositionEnum::BOF));
        QCOMPARE(recordset.currentRow(), -1);
        QVERIFY_THROWS_EXCEPTION(Error, recordset.movePrevious());
        QVERIFY_THROWS_EXCEPTION(Error, recordset.fields("RastasID").value());
        recordset.moveNext();
        recordset.move(3);
        QCOMPARE(recordset.collect("RastasID").toInt(), 4);
        recordset.move(-2);
        QCOMPARE(recordset.absolutePosition(), 2);
        recordset.moveLast();
        QCOMPARE(recordset.collect("RastasID").toInt(), 8);
        recordset.moveNext();
        QVERIFY(recordset.eof());
        QCOMPARE(recordset.absolutePosition(), int(PositionEnum::EOF_));
        try {
            recordset.moveNext();
            QFAIL("no error");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::NoCurrentRecord);
        }
        recordset.move(-20);
        QVERIFY(recordset.bof());
        recordset.setAbsolutePosition(6);
        QCOMPARE(recordset.collect("RastasID").toInt(), 6);
        QVERIFY_THROWS_EXCEPTION(Error, recordset.setAbsolutePosition(9));

        Recordset empty;
        empty.open("SELECT * FROM tbl_Documents WHERE RastasID > 100", reg.connection());
        QVERIFY(empty.bof() && empty.eof());
        QCOMPARE(empty.recordCount(), 0);
        QCOMPARE(empty.absolutePosition(), int(PositionEnum::Unknown));
        empty.moveFirst();
        empty.moveLast();
        QVERIFY(empty.eof());
    }

    void bookmarkRoundTrip()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.open("SELECT RastasID FROM tbl_Documents ORDER BY RastasID", reg.connection());
        recordset.move(4);
        const QVariant bookmark = recordset.bookmark();
        recordset.moveFirst();
        recordset.setBookmark(bookmark);
        QCOMPARE(recordset.collect("RastasID").toInt(), 5);
        // The first row's and the last row's bookmarks, at the ends of the rows read.
        recordset.moveFirst();
        const QVariant first = recordset.bookmark();
        recordset.moveLast();
        const QVariant last = recordset.bookmark();
        recordset.setBookmark(first);
        QCOMPARE(recordset.collect("RastasID").toInt(), 1);
        recordset.setBookmark(last);
        QCOMPARE(recordset.collect("RastasID").toInt(), 8);
        // One past the last row, as a bookmark made up from the last one, is refused.
        const QVariant pastTheEnd = QVariant((last.toLongLong() & ~qint64(0xFFFFFFFF)) | 8);
        QVERIFY_THROWS_EXCEPTION(Error, recordset.setBookmark(pastTheEnd));
        // Hidden by a filter, the row can't be reached; after a requery the bookmark is stale.
        recordset.setFilter("RastasID<3");
        QVERIFY_THROWS_EXCEPTION(Error, recordset.setBookmark(bookmark));
        recordset.setFilter("");
        recordset.setBookmark(bookmark);
        QCOMPARE(recordset.collect("RastasID").toInt(), 5);
        recordset.requery();
        QVERIFY_THROWS_EXCEPTION(Error, recordset.setBookmark(bookmark));
    }

    // A filter or a filter group set while a field is being typed writes the edit first, as a
    // move does.
    void filterWritesTheEditFirst()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.open("SELECT RastasID, DokAntraste FROM tbl_Documents ORDER BY RastasID", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.fields("DokAntraste").setValue("by filter");
        recordset.setFilter("RastasID > 4");
        QCOMPARE(recordset.editMode(), int(EditModeEnum::None));
        QCOMPARE(reg.scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID = 1").toString(),
            QString("by filter"));
        QCOMPARE(recordset.collect("RastasID").toInt(), 5);
        recordset.fields("DokAntraste").setValue("by group");
        recordset.setFilterGroup(FilterGroupEnum::None);
        QCOMPARE(recordset.editMode(), int(EditModeEnum::None));
        QCOMPARE(reg.scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID = 5").toString(),
            QString("by group"));
    }

    void filter_data()
    {
        QTest::addColumn<QString>("criteria");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("key") << "RastasID=5" << QStringList {"5"};
        QTest::newRow("blank after =") << "RastasID= 5" << QStringList {"5"};
        QTest::newRow("not equal") << "KategID<>1" << QStringList {"2", "4", "6", "8"};
        QTest::newRow("range") << "RastasID >= 3 AND RastasID < 6" << QStringList {"3", "4", "5"};
        QTest::newRow("or and parentheses")
            << "(RastasID=1 OR RastasID=8) AND KategID=2" << QStringList {"8"};
        QTest::newRow("like") << "DokAntraste Like 'doc 1%'" << QStringList {"1"};
        QTest::newRow("like star") << "DokAntraste LIKE '*7'" << QStringList {"7"};
        QTest::newRow("text") << "DokAntraste = 'DOC 2'" << QStringList {"2"};
        QTest::newRow("date") << "DokRegistracData > #3/6/2024#" << QStringList {"7", "8"};
        QTest::newRow("null") << "DokAntraste Is Null" << QStringList {"3", "6"};
        QTest::newRow("not null") << "ContactID Is Not Null AND DokAntraste Is Not Null"
                                  << QStringList {"1", "2", "4"};
        QTest::newRow("nothing") << "RastasID=50" << QStringList {};
        // A number and a word do not compare: neither is before the other.
        QTest::newRow("number against a word") << "RastasID > 'x'" << QStringList {};
        QTest::newRow("word against a number") << "DokAntraste < 5" << QStringList {};
    }

    void filter()
    {
        QFETCH(QString, criteria);
        QFETCH(QStringList, expected);
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.open("SELECT * FROM tbl_Documents ORDER BY RastasID", reg.connection());
        recordset.move(6);
        recordset.setFilter(criteria);
        QCOMPARE(recordset.filter(), criteria);
        QCOMPARE(recordset.recordCount(), expected.size());
        QCOMPARE(recordset.eof(), expected.isEmpty());
        if (!expected.isEmpty())
            QCOMPARE(recordset.collect("RastasID").toString(), expected.front());
        QCOMPARE(rows(recordset, {"RastasID"}), expected);
        recordset.setFilter(QString());
        QCOMPARE(recordset.recordCount(), 8);
        QCOMPARE(recordset.absolutePosition(), 1);

        // A filter group replaces the criteria.
        recordset.setFilter(criteria);
        recordset.setFilterGroup(FilterGroupEnum::None);
        QCOMPARE(recordset.filter(), QString());
        QCOMPARE(recordset.recordCount(), 8);
    }

    void badFilter()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.open("SELECT * FROM tbl_Documents", reg.connection());
        for (const char* criteria :
            {"Nothing=1", "RastasID==1", "(RastasID=1", "RastasID=1 AND", "RastasID ~ 2"}) {
            QVERIFY_THROWS_EXCEPTION(Error, recordset.setFilter(criteria));
            QCOMPARE(recordset.recordCount(), 8);
        }
    }

    void requerySeesNewRows()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.open(
            "SELECT RastasID FROM tbl_Documents WHERE KategID=2 ORDER BY RastasID", reg.connection());
        recordset.moveLast();
        reg.execute("INSERT INTO tbl_Documents (RastasID, KategID) VALUES (10, 2)");
        reg.execute("DELETE FROM tbl_Documents WHERE RastasID=4");
        QSignalSpy moved(&recordset, &Recordset::moveComplete);
        QSignalSpy changed(&recordset, &Recordset::recordsetChangeComplete);
        recordset.requery();
        QCOMPARE(recordset.absolutePosition(), 1);
        QCOMPARE(ids(recordset), QStringList({"2", "6", "8", "10"}));
        QCOMPARE(changed.count(), 1);
        QVERIFY(moved.count() >= 1);

        // A row this recordset wrote shows what another wrote over it since.
        Recordset mine;
        mine.open("SELECT RastasID, DokAntraste FROM tbl_Documents WHERE RastasID=2", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        mine.fields("DokAntraste").setValue("Mine");
        mine.update();
        reg.execute("UPDATE tbl_Documents SET DokAntraste = 'Theirs' WHERE RastasID=2");
        mine.requery();
        QCOMPARE(mine.collect("DokAntraste").toString(), QString("Theirs"));
        QCOMPARE(mine.fieldCount(), 2);
        QCOMPARE(recordset.fieldCount(), 1);
    }

    // moveComplete tells every change of the current row, and only those.
    void moveCompleteFires()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        QSignalSpy moved(&recordset, &Recordset::moveComplete);
        recordset.open("SELECT * FROM tbl_Documents", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        QCOMPARE(moved.count(), 1);
        recordset.moveNext();
        recordset.movePrevious();
        recordset.moveLast();
        recordset.moveFirst();
        recordset.move(2);
        recordset.setAbsolutePosition(1);
        QCOMPARE(moved.count(), 7);
        recordset.bookmark();
        recordset.recordCount();
        recordset.fields("DokAntraste").value();
        QCOMPARE(moved.count(), 7);
        recordset.setFilter("KategID=1");
        QCOMPARE(moved.count(), 8);
        recordset.addNew();
        QCOMPARE(moved.count(), 9);
        recordset.cancelUpdate();
        QCOMPARE(moved.count(), 10);
    }

    // What each refused operation says, whole: the user reads it in the message box.

    // A closed recordset refuses every move, read and change, in the same words, whatever
    // position it had.
    void closedRecordsetRefuses()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.open("SELECT RastasID FROM tbl_Documents ORDER BY RastasID", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.moveNext();
        const QVariant mark = recordset.bookmark();
        recordset.close();
        const std::pair<const char*, std::function<void()>> moves[] = {
            {"moveFirst", [&recordset] { recordset.moveFirst(); }},
            {"moveLast", [&recordset] { recordset.moveLast(); }},
            {"moveNext", [&recordset] { recordset.moveNext(); }},
            {"movePrevious", [&recordset] { recordset.movePrevious(); }},
            {"move(1)", [&recordset] { recordset.move(1); }},
            {"move(-1)", [&recordset] { recordset.move(-1); }},
            {"setAbsolutePosition(1)", [&recordset] { recordset.setAbsolutePosition(1); }},
            {"setBookmark", [&recordset, &mark] { recordset.setBookmark(mark); }},
            {"bookmark", [&recordset] { recordset.bookmark(); }},
            {"fields", [&recordset] { recordset.fields("RastasID"); }},
            {"addNew", [&recordset] { recordset.addNew(); }},
            {"update", [&recordset] { recordset.update(); }},
            {"cancelUpdate", [&recordset] { recordset.cancelUpdate(); }},
            {"updateBatch", [&recordset] { recordset.updateBatch(AffectEnum::All); }},
            {"cancelBatch", [&recordset] { recordset.cancelBatch(); }},
            {"deleteRecord", [&recordset] { recordset.deleteRecord(AffectEnum::Current); }},
            {"resync", [&recordset] { recordset.resync(AffectEnum::All, ResyncEnum::AllValues); }},
        };
        for (const auto& [name, move] : moves) {
            try {
                move();
                QFAIL(qPrintable(QString(name) + " was not refused"));
            } catch (const Error& error) {
                QCOMPARE(error.description(), "Operation is not allowed when the object is closed.");
            }
        }
    }

    void refusedOperationsSayWhy_data()
    {
        QTest::addColumn<int>("refusedCase");
        QTest::addColumn<QString>("message");
        const QString current
            = "Either BOF or EOF is True, or the current record has been deleted. Requested "
              "operation requires a current record.";
        const QString open = "Operation is not allowed when the object is open.";
        const QString change
            = "The recordset can't be changed: %1. Rows can be changed through a SELECT of one "
              "table.";
        QTest::newRow("no current record") << int(Refused::NoCurrentRecord) << current;
        QTest::newRow("no field of that number")
            << int(Refused::NoFieldNumber)
            << "Item cannot be found in the collection corresponding to the requested name or ordinal: 9";
        QTest::newRow("read-only") << int(Refused::ReadOnly) << change.arg("it was opened read-only");
        QTest::newRow("a join") << int(Refused::Join)
                                << change.arg("its rows come from more than one table or from expressions");
        QTest::newRow("opened twice") << int(Refused::OpenedTwice) << open;
        QTest::newRow("opened twice by location") << int(Refused::OpenedTwiceByLocation) << open;
        QTest::newRow("a connection opened twice") << int(Refused::ConnectionOpenedTwice) << open;
        QTest::newRow("no such position") << int(Refused::NoPosition) << "There is no record at position 9.";
        QTest::newRow("another recordset's bookmark")
            << int(Refused::BadBookmark) << "The bookmark is not valid for this recordset.";
        QTest::newRow("a bookmark the filter hides")
            << int(Refused::HiddenBookmark) << "The bookmarked record is deleted or hidden by the filter.";
        QTest::newRow("a key changed")
            << int(Refused::KeyChanged) << "Field 'RastasID' is the key of the row and can't be changed.";
        QTest::newRow("a chapter set")
            << int(Refused::ChapterSet)
            << "Field 'Reminders' holds the child rows of a SHAPE command and can't be set.";
        QTest::newRow("a delete of all")
            << int(Refused::DeleteAll) << "Delete removes the current record only.";
        QTest::newRow("a resync of a group")
            << int(Refused::ResyncGroup) << "Resync reads the current record or all records again.";
        QTest::newRow("a resync of nothing")
            << int(Refused::ResyncWhat) << "Resync reads the underlying values or all values again.";
        const QString closed = "Operation is not allowed when the object is closed.";
        QTest::newRow("a requery once closed") << int(Refused::ClosedRequery) << closed;
        QTest::newRow("a field kept past the close") << int(Refused::ClosedField) << closed;
        QTest::newRow("a move past the end") << int(Refused::MovePastTheEnd) << current;
        QTest::newRow("a move once closed") << int(Refused::MoveClosed) << closed;
        QTest::newRow("an unknown provider")
            << int(Refused::NoProvider)
            << QString("Provider cannot be found: 'Other.Provider'. Set the Provider option to %1 or %2.")
                   .arg(engine::Jet40Provider, engine::Jet351Provider);
    }

    void refusedOperationsSayWhy()
    {
        QFETCH(int, refusedCase);
        const auto refused = Refused(refusedCase);
        QFETCH(QString, message);
        EngineRegister reg;
        fillEight(reg);
        const QString documents = "SELECT RastasID, DokAntraste FROM tbl_Documents ORDER BY RastasID";
        Recordset recordset;
        recordset.open(documents, reg.connection(), CursorTypeEnum::Static,
            refused == Refused::ReadOnly ? LockTypeEnum::ReadOnly : LockTypeEnum::Optimistic);
        Recordset other;
        other.open(documents, reg.connection());
        Connection connection;
        try {
            switch (refused) {
            case Refused::NoCurrentRecord:
                recordset.moveLast();
                recordset.moveNext();
                recordset.fields("RastasID").value();
                break;
            case Refused::NoFieldNumber:
                recordset.fields(9);
                break;
            case Refused::ReadOnly:
                recordset.fields("DokAntraste").setValue("x");
                break;
            case Refused::Join: {
                Recordset join;
                join.open(
                    "SELECT tbl_Documents.RastasID, tbl_Contacts.FullName FROM tbl_Documents INNER JOIN "
                    "tbl_Contacts ON tbl_Contacts.ContactID = tbl_Documents.ContactID",
                    reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
                join.addNew();
                break;
            }
            case Refused::OpenedTwice:
                recordset.open(documents, reg.connection());
                break;
            case Refused::OpenedTwiceByLocation:
                recordset.open(documents, reg.connectionString());
                break;
            case Refused::ConnectionOpenedTwice:
                connection.open(reg.connectionString());
                connection.open(reg.connectionString());
                break;
            case Refused::NoPosition:
                recordset.setAbsolutePosition(9);
                break;
            case Refused::BadBookmark:
                other.requery();
                recordset.setBookmark(other.bookmark());
                break;
            case Refused::HiddenBookmark: {
                recordset.moveLast();
                const QVariant last = recordset.bookmark();
                recordset.setFilter("RastasID < 3");
                recordset.setBookmark(last);
                break;
            }
            case Refused::KeyChanged:
                recordset.fields("RastasID").setValue(99);
                break;
            case Refused::ChapterSet: {
                Recordset shaped;
                shaped.open("SHAPE {select RastasID from tbl_Documents WHERE RastasID=2} AS ParentCMD APPEND "
                            "({select RastasID, TicklerID from tbl_Tickler} AS Reminders RELATE RastasID TO "
                            "RastasID) AS Reminders",
                    reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
                shaped.fields("Reminders").setValue(1);
                break;
            }
            case Refused::DeleteAll:
                recordset.deleteRecord(AffectEnum::All);
                break;
            case Refused::ResyncGroup:
                recordset.resync(AffectEnum::Group);
                break;
            case Refused::ResyncWhat:
                recordset.resync(AffectEnum::All, 0);
                break;
            case Refused::ClosedRequery:
                recordset.close();
                recordset.requery();
                break;
            case Refused::MovePastTheEnd:
                recordset.moveLast();
                recordset.moveNext();
                recordset.move(1);
                break;
            case Refused::MoveClosed:
                recordset.close();
                recordset.move(-1);
                break;
            case Refused::ClosedField: {
                const Field kept = recordset.fields("RastasID");
                recordset.close();
                kept.value();
                break;
            }
            case Refused::NoProvider:
                if (reg.onServer())
                    QSKIP("A server's location is opened whatever the provider.");
                connection.open("Provider=Other.Provider;Data Source=" + reg.path());
                break;
            }
            QFAIL("not refused");
        } catch (const Error& error) {
            QCOMPARE(error.description(), message);
        }
        if (refused == Refused::ClosedRequery) {
            QVERIFY(!recordset.isOpen());
            QCOMPARE(recordset.fieldCount(), 0);
        }
    }
};

int runRecordsetTest(int argc, char** argv)
{
    RecordsetTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_recordset.moc"
