#include "EngineFixture.h"
#include "base/Error.h"
#include "store/engine/Recordset.h"
#include "store/engine/ShapeCommand.h"

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
    return reg.joined("SELECT RastasID || ':' || TicklerText FROM tbl_Tickler ORDER BY TicklerID");
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
        parent.open(NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QCOMPARE(parent.fieldCount(), 12);
        const Field chapterField = parent.fields("ChildCMD");
        QVERIFY(chapterField.isChapter());
        QVERIFY(!parent.fields("RastasID").isChapter());
        QVERIFY(!chapterField.isChanged());
        Recordset* child = chapterField.chapter();
        QVERIFY(child);
        QCOMPARE(parent.chapter("childcmd"), child);
        QCOMPARE(child->fieldNames(), QStringList({"RastasID", "TicklerDate", "TicklerID", "TicklerText"}));
        QCOMPARE(rows(*child, {"TicklerText", "TicklerDate"}),
            QStringList({"Call|2024-03-15", "Write|2024-03-20"}));

        QSignalSpy childMoved(child, &Recordset::moveComplete);
        parent.moveNext();
        QCOMPARE(childMoved.count(), 1);
        QCOMPARE(child->recordCount(), 0);
        QVERIFY(child->eof());
        parent.moveFirst();
        QCOMPARE(child->recordCount(), 2);
        parent.moveLast();
        parent.moveNext();
        QCOMPARE(child->recordCount(), 0);
    }

    // A reminder added under a stored document takes its key at once.
    void chapterRowTakesTheParentKey()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.open(
            "SHAPE {select RastasID from tbl_Documents WHERE RastasID=2} AS ParentCMD APPEND ({select "
            "RastasID,TicklerDate,TicklerID,TicklerText from tbl_Tickler } AS ChildCMD RELATE RastasID TO "
            "RastasID) AS ChildCMD",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        Recordset* child = parent.chapter("ChildCMD");
        QCOMPARE(child->recordCount(), 0);
        child->addNew();
        QCOMPARE(child->collect("RastasID").toInt(), 2);
        child->fields("TicklerText").setValue("Pay");
        child->fields("TicklerDate").setValue("2024.05.01");
        child->update();
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,2:Pay"));
        QCOMPARE(child->collect("TicklerID").toInt(), 3);
    }

    // The New Document dialog: a new row and its reminders stored by one updateBatch(All).
    void newParentIsWrittenFirst()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.open(NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        Recordset* child = parent.chapter("ChildCMD");
        parent.addNew();
        QCOMPARE(child->recordCount(), 0);
        parent.fields("DokAntraste").setValue("Sutartis");
        parent.fields("DokRegistracData").setValue(QDate(2024, 6, 1));
        for (const char* text : {"One", "Two"}) {
            child->addNew();
            QVERIFY(isNull(child->collect("RastasID")));
            child->fields("TicklerText").setValue(text);
        }
        child->moveFirst();
        // Not written before the parent exists, even with an optimistic lock.
        QCOMPARE(reminders(reg), QString("1:Call,1:Write"));
        QCOMPARE(child->recordCount(), 2);
        parent.updateBatch(AffectEnum::All);
        QCOMPARE(parent.collect("RastasID").toInt(), 4);
        QCOMPARE(reg.scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID=4").toString(),
            QString("Sutartis"));
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,4:One,4:Two"));
        QCOMPARE(child->collect("RastasID").toInt(), 4);
        QVERIFY(!parent.hasPendingChanges());
        parent.moveFirst();
        parent.moveLast();
        QCOMPARE(rows(*child, {"TicklerText"}), QStringList({"One", "Two"}));
    }

    // A chapter's pending rows are the parent's too; a new first parent row holds its children
    // back like any other new parent.
    void pendingChildrenOfTheParent()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset batch;
        batch.open(NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        batch.chapter("ChildCMD")->addNew();
        batch.chapter("ChildCMD")->fields("TicklerText").setValue("Third");
        batch.chapter("ChildCMD")->update();
        QVERIFY(batch.hasPendingChanges());
        batch.updateBatch(AffectEnum::All);
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,1:Third"));

        Recordset first;
        first.open(QString(NewDocumentShape).replace("from tbl_Documents}", "from tbl_Documents WHERE 1=0}"),
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QCOMPARE(first.recordCount(), 0);
        first.addNew();
        first.fields("DokAntraste").setValue("Pirmas");
        Recordset* child = first.chapter("ChildCMD");
        child->addNew();
        child->fields("TicklerText").setValue("Early");
        child->update();
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,1:Third"));
        first.updateBatch(AffectEnum::All);
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,1:Third,4:Early"));
    }

    // The contact editor: the new contact is stored first, then its phones go in at once.
    void phonesOfANewContact()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset contacts;
        contacts.open(
            "SHAPE {select ContactID,CompanyName,Title,Dear,FullName,Address,City,StateOrProvince,"
            "PostalCode,Country,EmailName,Notes from tbl_Contacts} AS ParentCMD APPEND ({select ContactID,"
            "PhoneID,PhoneName,PhoneNumber from tbl_Phones } AS ChildCMD RELATE ContactID TO ContactID) AS "
            "ChildCMD",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        Recordset* phones = contacts.chapter("ChildCMD");
        contacts.addNew();
        contacts.fields("FullName").setValue("Rūta");
        contacts.updateBatch(AffectEnum::All);
        contacts.moveLast();
        QCOMPARE(contacts.collect("ContactID").toInt(), 6);
        phones->addNew();
        phones->fields("PhoneName").setValue("Mobile");
        phones->update();
        QCOMPARE(reg.scalar("SELECT ContactID || PhoneName FROM tbl_Phones").toString(), QString("6Mobile"));
        contacts.moveFirst();
        QCOMPARE(phones->recordCount(), 0);
        contacts.moveLast();
        QCOMPARE(phones->recordCount(), 1);
    }

    void requeryKeepsTheChapter()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.open(NewDocumentShape, reg.connection());
        Recordset* child = parent.chapter("ChildCMD");
        child->setFilter("TicklerText = 'write'");
        QCOMPARE(rows(*child, {"TicklerID"}), QStringList {"2"});
        reg.execute("INSERT INTO tbl_Tickler (RastasID, TicklerText) VALUES (1, 'Read'), (3, 'Sign')");
        parent.requery();
        QCOMPARE(parent.chapter("ChildCMD"), child);
        QCOMPARE(parent.fieldCount(), 12);
        QCOMPARE(child->fieldCount(), 4);
        // Read anew, the chapter is as when first opened: without the filter set on it.
        QVERIFY(child->filter().isEmpty());
        QCOMPARE(rows(*child, {"TicklerText"}), QStringList({"Call", "Write", "Read"}));
        parent.moveLast();
        QCOMPARE(rows(*child, {"TicklerText"}), QStringList {"Sign"});
    }

    // updateBatch(Current) writes the current parent with its own reminders only;
    // cancelBatch drops the rest, reminders included.
    void currentParentOnly()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.open(
            NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        Recordset* child = parent.chapter("ChildCMD");
        for (const char* title : {"A", "B"}) {
            parent.addNew();
            parent.fields("DokAntraste").setValue(title);
            child->addNew();
            child->fields("TicklerText").setValue(QString(QString(title) + QStringLiteral(" note")));
        }
        parent.moveFirst();
        child->addNew();
        child->fields("TicklerText").setValue("Old note");
        parent.moveLast();
        parent.updateBatch(AffectEnum::Current);
        QCOMPARE(reg.joined("SELECT DokAntraste FROM tbl_Documents WHERE RastasID > 3 ORDER BY RastasID"),
            QString("B"));
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,4:B note"));
        QVERIFY(parent.hasPendingChanges());
        parent.cancelBatch();
        QVERIFY(!parent.hasPendingChanges());
        QVERIFY(!child->hasPendingChanges());
        parent.updateBatch(AffectEnum::All);
        QCOMPARE(reminders(reg), QString("1:Call,1:Write,4:B note"));
        parent.moveFirst();
        QCOMPARE(rows(*child, {"TicklerText"}), QStringList({"Call", "Write"}));
    }

    // Reminders read with their document and changed later are written with it: by
    // updateBatch(Current) only while their document is the current row, by updateBatch(All)
    // whatever row is current.
    void changedChildrenWrittenWithTheirParent()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.open(
            QString(NewDocumentShape).replace("from tbl_Documents}", "from tbl_Documents ORDER BY RastasID}"),
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        Recordset* child = parent.chapter("ChildCMD");
        QCOMPARE(parent.collect("RastasID").toInt(), 1);
        child->fields("TicklerText").setValue("Call back");
        child->update();
        parent.moveLast();
        parent.updateBatch(AffectEnum::Current);
        QCOMPARE(reminders(reg), QString("1:Call,1:Write"));
        parent.moveFirst();
        parent.updateBatch(AffectEnum::Current);
        QCOMPARE(reminders(reg), QString("1:Call back,1:Write"));

        child->moveLast();
        child->fields("TicklerText").setValue("Write again");
        child->update();
        parent.moveLast();
        parent.updateBatch(AffectEnum::All);
        QCOMPARE(reminders(reg), QString("1:Call back,1:Write again"));
        QVERIFY(!parent.hasPendingChanges());
    }

    void cancelledParentDropsItsChildren()
    {
        EngineRegister reg;
        reg.fillSmall();
        {
            Recordset parent;
            parent.open(
                NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
            parent.addNew();
            parent.chapter("ChildCMD")->addNew();
            parent.chapter("ChildCMD")->fields("TicklerText").setValue("Lost");
            parent.chapter("ChildCMD")->updateBatch();
            QVERIFY(parent.hasPendingChanges());
        }
        QCOMPARE(reminders(reg), QString("1:Call,1:Write"));
        QCOMPARE(reg.scalar("SELECT count(*) FROM tbl_Documents").toInt(), 3);
    }

    // Chapters side by side; a chapter without a name after its parenthesis takes its
    // command's alias, and without that too it is called Chapter1.
    void severalChapters()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("INSERT INTO tbl_Phones (ContactID, PhoneName, PhoneNumber) VALUES (1, 'Home', '1'), "
                    "(1, 'Business', '2'), (3, 'Mobile', '3')");
        reg.execute("INSERT INTO tbl_HomePages (ContactID, Description, HomeWWW) VALUES (3, 'Own', 'x.lt')");
        Recordset contacts;
        contacts.open(
            "SHAPE {SELECT ContactID, FullName, CompanyName FROM tbl_Contacts ORDER BY FullName, "
            "CompanyName}  AS Contacts APPEND ({SELECT PhoneID, ContactID, PhoneName, PhoneNumber FROM "
            "tbl_Phones ORDER BY PhoneName}  AS Phones RELATE 'ContactID' TO 'ContactID'),"
            "({SELECT HomeID, ContactID, Description, HomeWWW FROM tbl_HomePages ORDER BY Description} "
            "RELATE 'ContactID' TO 'ContactID')",
            reg.connection());
        QStringList seen;
        while (!contacts.eof()) {
            Recordset* phones = contacts.fields("Phones").value().value<Recordset*>();
            Recordset* pages = contacts.chapter("Chapter1");
            seen << contacts.collect("FullName").toString() + u':' + rows(*phones, {"PhoneName"}).join(u',')
                    + u':' + rows(*pages, {"HomeWWW"}).join(u',');
            contacts.moveNext();
        }
        QCOMPARE(seen,
            QStringList(
                {"Ąžuolas::", "Petras:Business,Home:", "Šarūnas:Mobile:x.lt", "Saulius::", "šilas::"}));
    }

    // Rows relate by value: numbers whatever their type, text whatever its case. Null relates
    // to nothing: a parent without a key has no children, not those without one.
    void relationByValue_data()
    {
        QTest::addColumn<QString>("child");
        QTest::addColumn<QString>("relation");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("Null") << "SELECT RastasID, ContactID FROM tbl_Documents ORDER BY RastasID"
                              << "ContactID TO ContactID" << QStringList({"1:1,2", "2:1,2", "3:", "4:"});
        QTest::newRow("a whole number and a real")
            << "SELECT RastasID, RastasID * 1.0 AS Real FROM tbl_Documents ORDER BY RastasID"
            << "RastasID TO Real" << QStringList({"1:1", "2:2", "3:3", "4:4"});
        QTest::newRow("a real with a fraction")
            << "SELECT RastasID, RastasID + 0.5 AS Real FROM tbl_Documents ORDER BY RastasID"
            << "RastasID TO Real" << QStringList({"1:", "2:", "3:", "4:"});
        QTest::newRow("text in another case")
            << "SELECT RastasID, upper(DokAntraste) AS Title FROM tbl_Documents ORDER BY RastasID"
            << "DokAntraste TO Title" << QStringList({"1:1", "2:2", "3:3", "4:"});
    }

    void relationByValue()
    {
        QFETCH(QString, child);
        QFETCH(QString, relation);
        QFETCH(QStringList, expected);
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("INSERT INTO tbl_Documents (RastasID, ContactID) VALUES (4, Null)");
        Recordset parent;
        parent.open("SHAPE {SELECT RastasID, ContactID, DokAntraste FROM tbl_Documents ORDER BY RastasID} AS "
                    "Documents APPEND ({"
                + child + "} AS Same RELATE " + relation + ") AS Same",
            reg.connection());
        QStringList seen;
        while (!parent.eof()) {
            seen << parent.collect("RastasID").toString() + u':'
                    + rows(*parent.chapter("Same"), {"RastasID"}).join(u',');
            parent.moveNext();
        }
        QCOMPARE(seen, expected);
    }

    // The children of few parents are read by their keys alone, also when the child's field
    // has a name that must be quoted: a keyword, or one with a blank.
    void childFieldNamedLikeAKeyword()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("CREATE TABLE parts (\"Group\" integer, \"Part name\" text)");
        reg.execute("INSERT INTO parts (\"Group\", \"Part name\") VALUES (1, 'a'), (3, 'b'), (1, 'c')");
        Recordset contacts;
        contacts.open(
            "SHAPE {SELECT ContactID FROM tbl_Contacts WHERE ContactID < 4 ORDER BY ContactID} AS c "
            "APPEND ({SELECT * FROM parts} AS p RELATE ContactID TO 'Group') AS Parts",
            reg.connection());
        QStringList seen;
        while (!contacts.eof()) {
            seen << contacts.collect("ContactID").toString() + u':'
                    + rows(*contacts.chapter("Parts"), {"Part name"}).join(u',');
            contacts.moveNext();
        }
        QCOMPARE(seen, QStringList({"1:a,c", "2:", "3:b"}));
    }

    // What a command that can't be read or run says, whole; the command follows it.
    void badShapes_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("says");

        const QString read = QStringLiteral("The SHAPE command can't be read: ");
        const QString run = QStringLiteral("The SHAPE command can't be run: ");
        const QString contacts = QStringLiteral("SHAPE {select * from tbl_Contacts}");
        const QString phones = contacts + QStringLiteral(" APPEND ({select * from tbl_Phones} ");
        QTest::newRow("no braces") << "SHAPE select 1" << read + "'{' is expected at 'select'.";
        QTest::newRow("unclosed") << "SHAPE {select * from tbl_Contacts AS a"
                                  << read + "'}' is missing at the end.";
        QTest::newRow("no name after AS") << contacts + " AS " << read + "a name is expected at the end.";
        QTest::newRow("neither APPEND nor COMPUTE")
            << contacts + " AS c ORDER BY City" << read + "APPEND or COMPUTE is expected at 'ORDER'.";
        QTest::newRow("append without parenthesis")
            << contacts + " APPEND {select * from tbl_Phones} RELATE ContactID TO ContactID"
            << read + "'(' is expected at '{'.";
        QTest::newRow("no relate") << phones + ")" << read + "RELATE is expected at ')'.";
        QTest::newRow("no TO") << phones + "RELATE ContactID ContactID)"
                               << read + "TO is expected at 'ContactID'.";
        QTest::newRow("no child field")
            << phones + "RELATE ContactID TO )" << read + "a name is expected at ')'.";
        QTest::newRow("append unclosed")
            << phones + "RELATE ContactID TO ContactID" << read + "')' is expected at the end.";
        QTest::newRow("more after the end") << phones + "RELATE ContactID TO ContactID) AS P ORDER BY 1"
                                            << read + "the command goes on after its end at 'ORDER'.";
        QTest::newRow("bad aggregate") << contacts + " AS c COMPUTE c, TOTAL(c.x) BY 'City'"
                                       << read + "COUNT, SUM, MIN, MAX or AVG is expected at '('.";
        QTest::newRow("bad aggregate, blank before its parenthesis")
            << contacts + " AS c COMPUTE c, TOTAL (c.x) BY 'City'"
            << read + "COUNT, SUM, MIN, MAX or AVG is expected at '('.";
        QTest::newRow("bad aggregate at the end")
            << QString(contacts + " AS c COMPUTE c, TOTAL ")
            << read + "COUNT, SUM, MIN, MAX or AVG is expected at the end.";
        QTest::newRow("aggregate of another chapter") << contacts + " AS c COMPUTE c, COUNT(d.City) BY City"
                                                      << read + "the aggregate must name c at '.'.";
        QTest::newRow("no BY") << contacts + " AS c COMPUTE c  " << read + "BY is expected at the end.";

        QTest::newRow("unknown parent field")
            << phones + "RELATE Nothing TO ContactID) AS P" << run + "the parent has no field Nothing.";
        QTest::newRow("related by an earlier chapter") << phones
                + "RELATE ContactID TO ContactID) AS P, ({select * from tbl_Phones} RELATE P TO ContactID) "
                  "AS Q" << run + "the parent has no field P.";
        QTest::newRow("unknown child field")
            << phones + "RELATE ContactID TO 'Nothing') AS P" << run + "the child has no field Nothing.";
        QTest::newRow("unknown group field")
            << contacts + " AS c COMPUTE c BY 'Nothing'" << run + "the rows have no field Nothing.";
        QTest::newRow("unknown aggregate field") << contacts + " AS c COMPUTE c, SUM(c.Nothing) BY City"
                                                 << run + "the rows have no field Nothing.";
        QTest::newRow("chapter without a name")
            << contacts + " COMPUTE '' BY City" << run + "a chapter has no name.";
    }

    void badShapes()
    {
        QFETCH(QString, command);
        QFETCH(QString, says);
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        try {
            recordset.open(command, reg.connection());
            QFAIL("no error");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::CommandFailed);
            QCOMPARE(error.description(), says + QStringLiteral("\nCommand: ") + command);
        }
        QVERIFY(!recordset.isOpen());
    }

    // A source is a SHAPE command by its first word alone, followed by a blank or a brace;
    // a table whose name starts with the word is none.
    void shapeCommandByItsFirstWord_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<bool>("shape");

        QTest::newRow("blank") << "SHAPE {select 1}" << true;
        QTest::newRow("brace, small letters") << "shape{select 1}" << true;
        QTest::newRow("blanks around, a new line") << "  Shape\n{select 1}" << true;
        QTest::newRow("the word alone") << "SHAPE" << true;
        QTest::newRow("a longer name") << "Shapes" << false;
        QTest::newRow("a name with an underscore") << "SHAPE_1" << false;
        QTest::newRow("a select") << "SELECT * FROM Shapes" << false;
    }

    void shapeCommandByItsFirstWord()
    {
        QFETCH(QString, source);
        QFETCH(bool, shape);
        QCOMPARE(engine::isShapeCommand(source), shape);
    }

    // A key filter set before opening goes into the select; any other filter, or none,
    // reads the source whole.
    void keyFilterIntoTheSelect_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("select");
        QTest::newRow("table") << "tbl_Documents"
                               << "RastasID=5"
                               << "SELECT * FROM \"tbl_Documents\" WHERE RastasID=5";
        QTest::newRow("blanks, select with ;")
            << "select KategID from tbl_Document_Categories;"
            << " KategID = 12 "
            << "select KategID from tbl_Document_Categories WHERE KategID=12";
        QTest::newRow("a where of its own")
            << "select * from tbl_Tickler where TicklerText='x' order by 1"
            << "RastasID=-2"
            << "SELECT * FROM (select * from tbl_Tickler where TicklerText='x' "
               "order by 1) AS narrowed WHERE RastasID=-2";
        QTest::newRow("not a key filter") << "tbl_Documents"
                                          << "RastasID>5"
                                          << "SELECT * FROM \"tbl_Documents\"";
        QTest::newRow("text value") << "tbl_Documents"
                                    << "DokAntraste='5'"
                                    << "SELECT * FROM \"tbl_Documents\"";
        QTest::newRow("beyond 32 bits") << "tbl_Documents"
                                        << "RastasID=2147483648"
                                        << "SELECT * FROM \"tbl_Documents\"";
        QTest::newRow("below 32 bits") << "tbl_Documents"
                                       << "RastasID=-2147483649"
                                       << "SELECT * FROM \"tbl_Documents\"";
        QTest::newRow("largest key") << "tbl_Documents"
                                     << "RastasID=2147483647"
                                     << "SELECT * FROM \"tbl_Documents\" WHERE RastasID=2147483647";
        QTest::newRow("smallest key") << "tbl_Documents"
                                      << "RastasID=-2147483648"
                                      << "SELECT * FROM \"tbl_Documents\" WHERE RastasID=-2147483648";
    }

    void keyFilterIntoTheSelect()
    {
        QFETCH(QString, source);
        QFETCH(QString, filter);
        QFETCH(QString, select);
        QCOMPARE(engine::restrictedSelect(source, engine::keyRestriction(filter)), select);
    }

    // Filtered before opening, the recordset holds its row alone and edits it; another
    // filter later reads what it needs; a shaped source narrowed to one parent gives that
    // parent's children and stores a new one under its key.
    void keyFilterBeforeOpening()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset documents;
        documents.setFilter("RastasID=2");
        documents.open(
            "tbl_Documents", reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        QCOMPARE(documents.recordCount(), 1);
        QCOMPARE(documents.fields("RastasID").value().toInt(), 2);
        documents.fields("DokAntraste").setValue("Second");
        documents.updateBatch(AffectEnum::Current);
        QCOMPARE(reg.scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID=2").toString(), "Second");
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE DokAntraste='Second'").toInt(), 1);
        documents.setFilter("RastasID=3");
        QCOMPARE(documents.recordCount(), 1);
        QCOMPARE(documents.fields("RastasID").value().toInt(), 3);
        documents.setFilter("");
        QCOMPARE(documents.recordCount(), 3);

        Recordset shaped;
        shaped.open(
            "SHAPE {select RastasID from tbl_Documents WHERE RastasID=1} AS ParentCMD APPEND ({select "
            "RastasID,TicklerDate,TicklerID,TicklerText from tbl_Tickler } AS ChildCMD RELATE RastasID TO "
            "RastasID) AS ChildCMD",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        Recordset* child = shaped.chapter("ChildCMD");
        QCOMPARE(child->recordCount(), 2);
        child->addNew();
        child->fields("TicklerText").setValue("Third");
        shaped.updateBatch(AffectEnum::All);
        QCOMPARE(reminders(reg), "1:Call,1:Write,1:Third");
    }

    // Opened to add rows (pending rows only), a shaped source reads nothing, shows its new
    // rows and stores them with their children; showing all again reads the rest.
    void pendingRowsOnly()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset parent;
        parent.setFilterGroup(FilterGroupEnum::PendingRecords);
        parent.open(
            NewDocumentShape, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        QCOMPARE(parent.recordCount(), 0);
        QVERIFY(parent.eof());
        parent.addNew();
        parent.fields("DokAntraste").setValue("Fourth");
        Recordset* child = parent.chapter("ChildCMD");
        QCOMPARE(child->recordCount(), 0);
        child->addNew();
        child->fields("TicklerText").setValue("Soon");
        // The parent is the first row and has no key yet: its new child stays with it.
        parent.moveFirst();
        QCOMPARE(rows(*child, {"TicklerText"}), QStringList {"Soon"});
        QCOMPARE(parent.recordCount(), 1);
        parent.updateBatch(AffectEnum::All);
        const int id = reg.scalar("SELECT RastasID FROM tbl_Documents WHERE DokAntraste='Fourth'").toInt();
        QVERIFY(id > 3);
        QCOMPARE(reminders(reg), "1:Call,1:Write," + QString::number(id) + ":Soon");
        parent.setFilterGroup(FilterGroupEnum::None);
        QCOMPARE(parent.recordCount(), 4);
    }
};

int runShapeTest(int argc, char** argv)
{
    ShapeTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_shape.moc"
