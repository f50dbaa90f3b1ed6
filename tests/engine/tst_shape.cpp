#include "EngineFixture.h"
#include "store/engine/Recordset.h"
#include "support/Error.h"

#include <QSignalSpy>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

const QString NewDocumentShape = QStringLiteral(
    "SHAPE {select "
    "RastasID,DokGavSiuntData,DokRegistracData,DokRegistracIndeksas,DokAntraste,DokPastaba,RastoKel,"
    "ContactID,KategID,SubKategID,KryptisID from tbl_Documents} AS ParentCMD APPEND ({select "
    "RastasID,TicklerDate,"
    "TicklerID,TicklerText from tbl_Tickler } AS ChildCMD RELATE RastasID TO RastasID) AS ChildCMD");

QString reminders(EngineRegister& reg)
{
    return reg
        .scalar("SELECT group_concat(RastasID || ':' || TicklerText, ',') FROM (SELECT * FROM tbl_Tickler "
                "ORDER BY TicklerID)")
        .toString();
}

} // namespace

class ShapeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chapterFollowsItsParent()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.Open(NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QCOMPARE(parent.FieldCount(), 12);
        const Field chapterField = parent.Fields("ChildCMD");
        QVERIFY(chapterField.IsChapter());
        QVERIFY(!parent.Fields("RastasID").IsChapter());
        Recordset* child = chapterField.Chapter();
        QVERIFY(child);
        QCOMPARE(parent.Chapter("childcmd"), child);
        QCOMPARE(child->FieldNames(), QStringList({"RastasID", "TicklerDate", "TicklerID", "TicklerText"}));
        QCOMPARE(Rows(*child, {"TicklerText", "TicklerDate"}),
            QStringList({"Call|2024-03-15", "Write|2024-03-20"}));

        QSignalSpy childMoved(child, &Recordset::MoveComplete);
        parent.MoveNext();
        QCOMPARE(childMoved.count(), 1);
        QCOMPARE(child->RecordCount(), 0);
        QVERIFY(child->Eof());
        parent.MoveFirst();
        QCOMPARE(child->RecordCount(), 2);
        parent.MoveLast();
        parent.MoveNext();
        QCOMPARE(child->RecordCount(), 0);
    }

    // A reminder added under a stored document takes its key at once.
    void chapterRowTakesTheParentKey()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.Open(
            "SHAPE {select RastasID from tbl_Documents WHERE RastasID=2} AS ParentCMD APPEND ({select "
            "RastasID,TicklerDate,TicklerID,TicklerText from tbl_Tickler } AS ChildCMD RELATE RastasID TO "
            "RastasID) AS ChildCMD",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        Recordset* child = parent.Chapter("ChildCMD");
        QCOMPARE(child->RecordCount(), 0);
        child->AddNew();
        QCOMPARE(child->Collect("RastasID").toInt(), 2);
        child->Fields("TicklerText").SetValue("Pay");
        child->Fields("TicklerDate").SetValue("2024.05.01");
        child->Update();
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,2:Pay"));
        QCOMPARE(child->Collect("TicklerID").toInt(), 3);
    }

    // The New Document dialog: a new row and its reminders stored by one UpdateBatch(All).
    void newParentIsWrittenFirst()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.Open(NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        Recordset* child = parent.Chapter("ChildCMD");
        parent.AddNew();
        QCOMPARE(child->RecordCount(), 0);
        parent.Fields("DokAntraste").SetValue("Sutartis");
        parent.Fields("DokRegistracData").SetValue(QDate(2024, 6, 1));
        for (const char* text : {"One", "Two"}) {
            child->AddNew();
            QVERIFY(IsNull(child->Collect("RastasID")));
            child->Fields("TicklerText").SetValue(text);
        }
        child->MoveFirst();
        // Not written before the parent exists, even with an optimistic lock.
        QCOMPARE(reminders(reg), QString("1:Call,1:Write"));
        QCOMPARE(child->RecordCount(), 2);
        parent.UpdateBatch(AffectEnum::All);
        QCOMPARE(parent.Collect("RastasID").toInt(), 4);
        QCOMPARE(reg.scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID=4").toString(),
            QString("Sutartis"));
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,4:One,4:Two"));
        QCOMPARE(child->Collect("RastasID").toInt(), 4);
        QVERIFY(!parent.HasPendingChanges());
        parent.MoveFirst();
        parent.MoveLast();
        QCOMPARE(Rows(*child, {"TicklerText"}), QStringList({"One", "Two"}));
    }

    // The contact editor: the new contact is stored first, then its phones go in at once.
    void phonesOfANewContact()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset contacts;
        contacts.Open(
            "SHAPE {select ContactID,CompanyName,Title,Dear,FullName,Address,City,StateOrProvince,"
            "PostalCode,Country,EmailName,Notes from tbl_Contacts} AS ParentCMD APPEND ({select ContactID,"
            "PhoneID,PhoneName,PhoneNumber from tbl_Phones } AS ChildCMD RELATE ContactID TO ContactID) AS "
            "ChildCMD",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        Recordset* phones = contacts.Chapter("ChildCMD");
        contacts.AddNew();
        contacts.Fields("FullName").SetValue("Rūta");
        contacts.UpdateBatch(AffectEnum::All);
        contacts.MoveLast();
        QCOMPARE(contacts.Collect("ContactID").toInt(), 6);
        phones->AddNew();
        phones->Fields("PhoneName").SetValue("Mobile");
        phones->Update();
        QCOMPARE(reg.scalar("SELECT ContactID || PhoneName FROM tbl_Phones").toString(), QString("6Mobile"));
        contacts.MoveFirst();
        QCOMPARE(phones->RecordCount(), 0);
        contacts.MoveLast();
        QCOMPARE(phones->RecordCount(), 1);
    }

    void requeryKeepsTheChapter()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.Open(NewDocumentShape, reg.connection());
        Recordset* child = parent.Chapter("ChildCMD");
        child->SetFilter("TicklerText = 'write'");
        QCOMPARE(Rows(*child, {"TicklerID"}), QStringList {"2"});
        reg.execute("INSERT INTO tbl_Tickler (RastasID, TicklerText) VALUES (1, 'Read'), (3, 'Sign')");
        parent.Requery();
        QCOMPARE(parent.Chapter("ChildCMD"), child);
        child->SetFilter(QString());
        QCOMPARE(Rows(*child, {"TicklerText"}), QStringList({"Call", "Write", "Read"}));
        parent.MoveLast();
        QCOMPARE(Rows(*child, {"TicklerText"}), QStringList {"Sign"});
    }

    // UpdateBatch(Current) writes the current parent with its own reminders only;
    // CancelBatch drops the rest, reminders included.
    void currentParentOnly()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.Open(
            NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        Recordset* child = parent.Chapter("ChildCMD");
        for (const char* title : {"A", "B"}) {
            parent.AddNew();
            parent.Fields("DokAntraste").SetValue(title);
            child->AddNew();
            child->Fields("TicklerText").SetValue(QString(QString(title) + QStringLiteral(" note")));
        }
        parent.MoveFirst();
        child->AddNew();
        child->Fields("TicklerText").SetValue("Old note");
        parent.MoveLast();
        parent.UpdateBatch(AffectEnum::Current);
        QCOMPARE(
            reg.scalar("SELECT group_concat(DokAntraste) FROM tbl_Documents WHERE RastasID > 3").toString(),
            QString("B"));
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,4:B note"));
        QVERIFY(parent.HasPendingChanges());
        parent.CancelBatch();
        QVERIFY(!parent.HasPendingChanges());
        QVERIFY(!child->HasPendingChanges());
        parent.UpdateBatch(AffectEnum::All);
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,4:B note"));
        parent.MoveFirst();
        QCOMPARE(Rows(*child, {"TicklerText"}), QStringList({"Call", "Write"}));
    }

    void cancelledParentDropsItsChildren()
    {
        EngineRegister reg;
        reg.fillSmall();
        {
            Recordset parent;
            parent.Open(
                NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
            parent.AddNew();
            parent.Chapter("ChildCMD")->AddNew();
            parent.Chapter("ChildCMD")->Fields("TicklerText").SetValue("Lost");
            parent.Chapter("ChildCMD")->UpdateBatch();
            QVERIFY(parent.HasPendingChanges());
        }
        QCOMPARE(reminders(reg), QString("1:Call,1:Write"));
        QCOMPARE(reg.scalar("SELECT count(*) FROM tbl_Documents").toInt(), 3);
    }

    void severalChapters()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("INSERT INTO tbl_Phones (ContactID, PhoneName, PhoneNumber) VALUES (1, 'Home', '1'), "
                    "(1, 'Business', '2'), (3, 'Mobile', '3')");
        reg.execute("INSERT INTO tbl_HomePages (ContactID, Description, HomeWWW) VALUES (3, 'Own', 'x.lt')");
        Recordset contacts;
        contacts.Open(
            "SHAPE {SELECT ContactID, FullName, CompanyName FROM tbl_Contacts ORDER BY FullName, "
            "CompanyName}  AS Contacts APPEND ({SELECT PhoneID, ContactID, PhoneName, PhoneNumber FROM "
            "tbl_Phones ORDER BY PhoneName}  AS Phones RELATE 'ContactID' TO 'ContactID') AS Phones,"
            "({SELECT HomeID, ContactID, Description, HomeWWW FROM tbl_HomePages ORDER BY Description}  AS "
            "HomePages RELATE 'ContactID' TO 'ContactID') AS HomePages",
            reg.connection());
        QStringList seen;
        while (!contacts.Eof()) {
            Recordset* phones = contacts.Fields("Phones").Value().value<Recordset*>();
            Recordset* pages = contacts.Chapter("HomePages");
            seen << contacts.Collect("FullName").toString() + u':' + Rows(*phones, {"PhoneName"}).join(u',')
                    + u':' + Rows(*pages, {"HomeWWW"}).join(u',');
            contacts.MoveNext();
        }
        QCOMPARE(seen,
            QStringList(
                {"Ąžuolas::", "Petras:Business,Home:", "Šarūnas:Mobile:x.lt", "Saulius::", "šilas::"}));
    }

    void computeGroups()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("INSERT INTO tbl_Document_Categories (KategID, DokKategorija) VALUES (7, 'Sutartys'), "
                    "(8, 'Aktai')");
        reg.execute("INSERT INTO tbl_Documents (RastasID, ContactID, KategID) VALUES (4, 3, 8), (5, 1, 8)");
        Recordset groups;
        groups.Open(
            "SHAPE {SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, tbl_Contacts.CompanyName, "
            "tbl_Documents.RastasID, tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokRegistracData, "
            "tbl_Documents.DokAntraste, tbl_Documents.KategID, tbl_Document_Categories.DokKategorija FROM "
            "tbl_Document_Categories, tbl_Contacts, tbl_Documents WHERE tbl_Document_Categories.KategID = "
            "tbl_Documents.KategID AND tbl_Contacts.ContactID = tbl_Documents.ContactID ORDER BY "
            "tbl_Contacts.FullName}  AS DocByCor COMPUTE DocByCor, COUNT(DocByCor.'RastasID') AS Aggr1 BY "
            "'ContactID','FullName'",
            reg.connection());
        QCOMPARE(groups.FieldNames(), QStringList({"ContactID", "FullName", "Aggr1", "DocByCor"}));
        QStringList seen;
        while (!groups.Eof()) {
            Recordset* rows = groups.Chapter("DocByCor");
            QStringList documents = Rows(*rows, {"RastasID"});
            documents.sort();
            seen << groups.Collect("FullName").toString() + u'=' + groups.Collect("Aggr1").toString() + u':'
                    + documents.join(u',');
            groups.MoveNext();
        }
        QCOMPARE(seen, QStringList({"Petras=3:1,2,5", "Šarūnas=1:4"}));
    }

    // Groups in order of first appearance, Null grouping with Null, from a RIGHT JOIN.
    void computeWithNulls()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("INSERT INTO tbl_Document_Categories (KategID, DokKategorija) VALUES (7, 'Sutartys'), "
                    "(8, 'Aktai')");
        Recordset groups;
        groups.Open(
            "SHAPE {SELECT tbl_Documents.RastasID, tbl_Documents.DokRegistracData, "
            "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, tbl_Documents.ContactID, "
            "tbl_Contacts.FullName, tbl_Documents.KategID, tbl_Document_Categories.DokKategorija\r\nFROM "
            "tbl_Contacts RIGHT JOIN (tbl_Document_Categories INNER JOIN tbl_Documents ON "
            "tbl_Document_Categories.KategID=tbl_Documents.KategID) ON "
            "tbl_Contacts.ContactID=tbl_Documents.ContactID\r\n}  AS Command2 COMPUTE Command2 BY "
            "'FullName'",
            reg.connection());
        QCOMPARE(groups.RecordCount(), 2);
        QStringList seen;
        while (!groups.Eof()) {
            seen << groups.Collect("FullName").toString() + u':'
                    + QString::number(groups.Chapter("Command2")->RecordCount());
            groups.MoveNext();
        }
        seen.sort();
        QCOMPARE(seen, QStringList({":1", "Petras:2"}));
    }

    void badShapes_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("no braces") << "SHAPE select 1";
        QTest::newRow("unclosed") << "SHAPE {select * from tbl_Contacts AS a";
        QTest::newRow("no relate")
            << "SHAPE {select * from tbl_Contacts} APPEND ({select * from tbl_Phones})";
        QTest::newRow("unknown field")
            << "SHAPE {select * from tbl_Contacts} APPEND ({select * from tbl_Phones} "
               "RELATE Nothing TO ContactID) AS P";
        QTest::newRow("unknown group field")
            << "SHAPE {select * from tbl_Contacts} AS c COMPUTE c BY 'Nothing'";
        QTest::newRow("bad aggregate")
            << "SHAPE {select * from tbl_Contacts} AS c COMPUTE c, TOTAL(c.x) BY 'City'";
    }

    void badShapes()
    {
        QFETCH(QString, command);
        EngineRegister reg;
        Recordset recordset;
        try {
            recordset.Open(command, reg.connection());
            QFAIL("no error");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::CommandFailed);
            QVERIFY2(error.description().contains("SHAPE"), qPrintable(error.description()));
        }
        QVERIFY(!recordset.IsOpen());
    }
};

int RunShapeTest(int argc, char** argv)
{
    ShapeTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_shape.moc"
