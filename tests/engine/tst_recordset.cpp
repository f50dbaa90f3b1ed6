#include "EngineFixture.h"
#include "explorer/DocumentQueries.h"
#include "store/engine/Recordset.h"
#include "support/Error.h"

#include <QSignalSpy>
#include <QTest>

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
    recordset.MoveFirst();
    return Rows(recordset, {QStringLiteral("RastasID")});
}

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
        recordset.Open(DocumentSql() + "ORDER BY tbl_Documents.DokRegistracData DESC", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        QCOMPARE(recordset.FieldCount(), 12);
        QCOMPARE(recordset.RecordCount(), 3);
        QVERIFY(!recordset.IsUpdatable());
        QCOMPARE(Rows(recordset, {"RastasID", "DokRegistracData", "FullName", "KategID", "DokPastaba"}),
            QStringList({"3|2024-04-02|-|8|-", "2|2024-03-05|Petras|7|-", "1|2024-03-01|Petras|7|-"}));
        recordset.MoveFirst();
        const QVariant date = recordset.Fields("dokregistracdata").Value();
        QCOMPARE(date.typeId(), int(QMetaType::QDate));
        recordset.MoveNext();
        QCOMPARE(recordset.Collect("DokGavSiuntData"), QVariant(QDateTime(QDate(2024, 3, 2), QTime(10, 15))));
        QCOMPARE(recordset.Fields("RastasID").Value().toInt(), 2);
        QCOMPARE(recordset.RowValue(0, 0).toInt(), 3);
        QCOMPARE(recordset.CurrentRow(), 1);
        QVERIFY(IsNull(recordset.RowValue(7, 0)));
        QVERIFY(recordset.HasField("FULLNAME"));
        QVERIFY(!recordset.HasField("Nothing"));
        try {
            recordset.Fields("Nothing");
            QFAIL("no error");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::ItemNotFound);
        }
        // A table name reads the whole table.
        Recordset table;
        table.Open("tbl_Tickler", reg.connection());
        QCOMPARE(table.RecordCount(), 2);
        QVERIFY(table.IsUpdatable());
    }

    void navigation()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.Open("SELECT RastasID FROM tbl_Documents ORDER BY RastasID", reg.connection());
        QCOMPARE(recordset.RecordCount(), 8);
        QVERIFY(!recordset.Bof() && !recordset.Eof());
        QCOMPARE(recordset.AbsolutePosition(), 1);
        recordset.MovePrevious();
        QVERIFY(recordset.Bof());
        QCOMPARE(recordset.AbsolutePosition(), int(PositionEnum::BOF));
        QCOMPARE(recordset.CurrentRow(), -1);
        QVERIFY_THROWS_EXCEPTION(Error, recordset.MovePrevious());
        QVERIFY_THROWS_EXCEPTION(Error, recordset.Fields("RastasID").Value());
        recordset.MoveNext();
        recordset.Move(3);
        QCOMPARE(recordset.Collect("RastasID").toInt(), 4);
        recordset.Move(-2);
        QCOMPARE(recordset.AbsolutePosition(), 2);
        recordset.MoveLast();
        QCOMPARE(recordset.Collect("RastasID").toInt(), 8);
        recordset.MoveNext();
        QVERIFY(recordset.Eof());
        QCOMPARE(recordset.AbsolutePosition(), int(PositionEnum::EOF_));
        try {
            recordset.MoveNext();
            QFAIL("no error");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::NoCurrentRecord);
        }
        recordset.Move(-20);
        QVERIFY(recordset.Bof());
        recordset.SetAbsolutePosition(6);
        QCOMPARE(recordset.Collect("RastasID").toInt(), 6);
        QVERIFY_THROWS_EXCEPTION(Error, recordset.SetAbsolutePosition(9));

        Recordset empty;
        empty.Open("SELECT * FROM tbl_Documents WHERE RastasID > 100", reg.connection());
        QVERIFY(empty.Bof() && empty.Eof());
        QCOMPARE(empty.RecordCount(), 0);
        QCOMPARE(empty.AbsolutePosition(), int(PositionEnum::Unknown));
        empty.MoveFirst();
        empty.MoveLast();
        QVERIFY(empty.Eof());
    }

    void bookmarkRoundTrip()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.Open("SELECT RastasID FROM tbl_Documents ORDER BY RastasID", reg.connection());
        recordset.Move(4);
        const QVariant bookmark = recordset.Bookmark();
        recordset.MoveFirst();
        recordset.SetBookmark(bookmark);
        QCOMPARE(recordset.Collect("RastasID").toInt(), 5);
        // Hidden by a filter, the row can't be reached; after a requery the bookmark is stale.
        recordset.SetFilter("RastasID<3");
        QVERIFY_THROWS_EXCEPTION(Error, recordset.SetBookmark(bookmark));
        recordset.SetFilter("");
        recordset.SetBookmark(bookmark);
        QCOMPARE(recordset.Collect("RastasID").toInt(), 5);
        recordset.Requery();
        QVERIFY_THROWS_EXCEPTION(Error, recordset.SetBookmark(bookmark));
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
    }

    void filter()
    {
        QFETCH(QString, criteria);
        QFETCH(QStringList, expected);
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.Open("SELECT * FROM tbl_Documents ORDER BY RastasID", reg.connection());
        recordset.Move(6);
        recordset.SetFilter(criteria);
        QCOMPARE(recordset.Filter(), criteria);
        QCOMPARE(recordset.RecordCount(), expected.size());
        QCOMPARE(recordset.Eof(), expected.isEmpty());
        if (!expected.isEmpty())
            QCOMPARE(recordset.Collect("RastasID").toString(), expected.front());
        QCOMPARE(Rows(recordset, {"RastasID"}), expected);
        recordset.SetFilter(QString());
        QCOMPARE(recordset.RecordCount(), 8);
        QCOMPARE(recordset.AbsolutePosition(), 1);
    }

    void badFilter()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.Open("SELECT * FROM tbl_Documents", reg.connection());
        for (const char* criteria :
            {"Nothing=1", "RastasID==1", "(RastasID=1", "RastasID=1 AND", "RastasID ~ 2"}) {
            QVERIFY_THROWS_EXCEPTION(Error, recordset.SetFilter(criteria));
            QCOMPARE(recordset.RecordCount(), 8);
        }
    }

    void requerySeesNewRows()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        recordset.Open(
            "SELECT RastasID FROM tbl_Documents WHERE KategID=2 ORDER BY RastasID", reg.connection());
        recordset.MoveLast();
        reg.execute("INSERT INTO tbl_Documents (RastasID, KategID) VALUES (10, 2)");
        reg.execute("DELETE FROM tbl_Documents WHERE RastasID=4");
        QSignalSpy moved(&recordset, &Recordset::MoveComplete);
        QSignalSpy changed(&recordset, &Recordset::RecordsetChangeComplete);
        recordset.Requery();
        QCOMPARE(recordset.AbsolutePosition(), 1);
        QCOMPARE(ids(recordset), QStringList({"2", "6", "8", "10"}));
        QCOMPARE(changed.count(), 1);
        QVERIFY(moved.count() >= 1);
    }

    // MoveComplete tells every change of the current row, and only those.
    void moveCompleteFires()
    {
        EngineRegister reg;
        fillEight(reg);
        Recordset recordset;
        QSignalSpy moved(&recordset, &Recordset::MoveComplete);
        recordset.Open("SELECT * FROM tbl_Documents", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        QCOMPARE(moved.count(), 1);
        recordset.MoveNext();
        recordset.MovePrevious();
        recordset.MoveLast();
        recordset.MoveFirst();
        recordset.Move(2);
        recordset.SetAbsolutePosition(1);
        QCOMPARE(moved.count(), 7);
        recordset.Bookmark();
        recordset.RecordCount();
        recordset.Fields("DokAntraste").Value();
        QCOMPARE(moved.count(), 7);
        recordset.SetFilter("KategID=1");
        QCOMPARE(moved.count(), 8);
        recordset.AddNew();
        QCOMPARE(moved.count(), 9);
        recordset.CancelUpdate();
        QCOMPARE(moved.count(), 10);
    }
};

int RunRecordsetTest(int argc, char** argv)
{
    RecordsetTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_recordset.moc"
