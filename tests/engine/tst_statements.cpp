#include "EngineFixture.h"
#include "base/Error.h"
#include "store/engine/Recordset.h"

#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

// fillSmall, with categories 7 "Sutartys" (subcategories 1, 2) and 8 "Aktai", phones of
// contacts 1 and 3, a web page of contact 1 and a related document of document 1.
void fillRegister(EngineRegister& reg)
{
    reg.fillSmall();
    reg.execute(
        "INSERT INTO tbl_Document_Categories (KategID, DokKategorija, Mnemonic) VALUES (7, 'Sutartys', "
        "'SUT'), (8, 'Aktai', Null)");
    reg.execute(
        "INSERT INTO tbl_Sub_Categories (SubKategID, KategID, DokSubKategorija) VALUES (1, 7, 'Nuoma'), "
        "(2, 7, 'Pirkimas')");
    reg.execute(
        "INSERT INTO tbl_Phones (ContactID, PhoneName, PhoneNumber) VALUES (1, 'Mobile', '+370 600'), "
        "(1, 'Business', '+370 5'), (3, 'Home', '8 5')");
    reg.execute("INSERT INTO tbl_HomePages (ContactID, Description, HomeWWW) VALUES (1, 'Own', 'petras.lt')");
    reg.execute(
        "INSERT INTO tbl_Sub_Documents (RastasID, SubDocDescript, SubRastGavimoData) VALUES (1, 'Priedas', "
        "#3/2/2024#)");
}

} // namespace

class StatementsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The selects of the program's windows and routines, as they stand there.
    void selectsAsWritten_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<int>("rows");

        QTest::newRow("category tree")
            << "SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija "
               "FROM tbl_Document_Categories ORDER BY tbl_Document_Categories.DokKategorija;"
            << 2;
        QTest::newRow("subcategories")
            << "SELECT  tbl_Sub_Categories.SubKategID, tbl_Sub_Categories.KategID, "
               "tbl_Sub_Categories.DokSubKategorija FROM tbl_Sub_Categories WHERE "
               "tbl_Sub_Categories.KategID= 7"
            << 2;
        QTest::newRow("contact tree")
            << "SELECT ContactID,CompanyName,FullName AS FN FROM tbl_Contacts WHERE FullName "
               "<> '\"' ORDER BY FullName"
            << 5;
        QTest::newRow("dated list")
            << "SELECT tbl_Documents.RastasID, tbl_Documents.DokGavSiuntData, "
               "tbl_Documents.DokRegistracData, "
               "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, tbl_Documents.DokVykdytojas, "
               "tbl_Documents.DokIvykdymoZyma, tbl_Documents.RastoKel, tbl_Documents.ContactID, "
               "tbl_Contacts.FullName, "
               "tbl_Documents.KategID, tbl_Documents.DokPastaba FROM tbl_Contacts RIGHT JOIN tbl_Documents "
               "ON "
               "tbl_Contacts.ContactID = tbl_Documents.ContactID  WHERE tbl_Documents.DokRegistracData "
               "between "
               "#3/1/2024# and #4/1/2024# AND tbl_Documents.KategID=7 ORDER BY tbl_Documents.DokRegistracData"
            << 2;
        QTest::newRow("related list") << "SELECT tbl_Sub_Documents.SubRastasID, tbl_Sub_Documents.RastasID, "
                                         "tbl_Sub_Documents.SubDocDescript, "
                                         "tbl_Sub_Documents.ContactID, tbl_Sub_Documents.SubRastoKelias, "
                                         "tbl_Sub_Documents.SubRastGavimoData "
                                         "FROM tbl_Sub_Documents WHERE tbl_Sub_Documents.RastasID=1"
                                      << 1;
        QTest::newRow("delete's children") << "SELECT tbl_Sub_Documents.*, tbl_Sub_Documents.RastasID FROM "
                                              "tbl_Sub_Documents WHERE tbl_Sub_Documents.RastasID=1"
                                           << 1;
        QTest::newRow("sender list") << "select ContactID, FullName from tbl_Contacts order by FullName" << 5;
        QTest::newRow("category list")
            << "select KategID,DokKategorija from tbl_Document_Categories order by "
               "DokKategorija;"
            << 2;
        QTest::newRow("subcategory list")
            << "select SubKategID,KategID,DokSubKategorija from tbl_Sub_Categories "
               "where KategID=7"
            << 2;
        QTest::newRow("contact name")
            << "SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName FROM tbl_Contacts "
               "WHERE tbl_Contacts.ContactID=2"
            << 1;
        QTest::newRow("address book letter")
            << "select "
               "ContactID,CompanyName,Title,Dear,FullName,Address,City,StateOrProvince,PostalCode,Country,"
               "EmailName,Notes from tbl_Contacts  WHERE FullName Like 'S%' ORDER BY FullName"
            << 1;
        QTest::newRow("duplicate by name")
            << "SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName FROM tbl_Contacts "
               "WHERE tbl_Contacts.FullName Like 'ŠARŪNAS'"
            << 1;
        QTest::newRow("import") << "SELECT * FROM tbl_Contacts" << 5;
        QTest::newRow("category dialog") << "select "
                                            "KategID,DokKategorija,Mnemonic,DokKategDaug,DokTemplates,"
                                            "DokTemplatesExel,DokTemplatesPowPoint "
                                            "from tbl_Document_Categories WHERE KategID=7"
                                         << 1;
        QTest::newRow("web pages")
            << "select HomeID,ContactID,Description,HomeWWW from tbl_HomePages WHERE ContactID=1" << 1;
        QTest::newRow("phones shape")
            << "SHAPE {select ContactID from tbl_Contacts WHERE ContactID=1} AS ParentCMD APPEND ({select "
               "ContactID,PhoneID,PhoneName,PhoneNumber from tbl_Phones } AS ChildCMD RELATE ContactID TO "
               "ContactID) "
               "AS ChildCMD"
            << 1;
    }

    void selectsAsWritten()
    {
        QFETCH(QString, sql);
        QFETCH(int, rows);
        EngineRegister reg;
        fillRegister(reg);
        Recordset recordset;
        recordset.open(sql, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        QCOMPARE(recordset.recordCount(), rows);
    }

    // The report commands, each as parent rows with their chapter.
    void reportCommands_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("parentField");
        QTest::addColumn<QString>("chapter");
        QTest::addColumn<QStringList>("groups");

        QTest::newRow("Categories")
            << "SHAPE {SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija, \r\n"
               "tbl_Document_Categories.Mnemonic,\r\ntbl_Document_Categories.DokKategDaug, "
               "tbl_Document_Categories.DokTemplates, tbl_Document_Categories.DokTemplatesExel, "
               "tbl_Document_Categories.DokTemplatesPowPoint FROM tbl_Document_Categories ORDER By "
               "tbl_Document_Categories.DokKategorija}  AS Categories APPEND ({SELECT "
               "tbl_Sub_Categories.SubKategID,"
               "\r\ntbl_Sub_Categories.KategID, tbl_Sub_Categories.DokSubKategorija, "
               "tbl_Sub_Categories.SubPathToFiles, "
               "tbl_Sub_Categories.SubDokTemplates, tbl_Sub_Categories.SubDokTemplatesExel, "
               "tbl_Sub_Categories.SubDokTemplatesPowPoint FROM\r\ntbl_Sub_Categories}  AS SubCategories "
               "RELATE "
               "'KategID' TO 'KategID') AS SubCategories"
            << "DokKategorija"
            << "SubCategories" << QStringList {"Aktai:0", "Sutartys:2"};
        QTest::newRow("DocByCateg")
            << "SHAPE {SELECT tbl_Documents.KategID, tbl_Document_Categories.Mnemonic, "
               "tbl_Document_Categories.DokKategorija, tbl_Document_Categories.KategID AS Expr1 FROM "
               "tbl_Document_Categories, tbl_Documents WHERE tbl_Document_Categories.KategID = "
               "tbl_Documents.KategID}  "
               "AS DocByCateg APPEND ({SELECT tbl_Documents.KategID, tbl_Documents.RastasID, "
               "tbl_Documents.DokAntraste, "
               "tbl_Documents.DokGavSiuntData, tbl_Documents.ContactID, tbl_Contacts.FullName, "
               "tbl_Documents.DokRegistracIndeksas FROM tbl_Documents, tbl_Contacts WHERE "
               "tbl_Documents.ContactID = "
               "tbl_Contacts.ContactID ORDER BY tbl_Documents.DokGavSiuntData, "
               "tbl_Documents.DokRegistracIndeksas}  AS "
               "Documents RELATE 'KategID' TO 'KategID') AS Documents"
            << "DokKategorija"
            << "Documents" << QStringList {"Sutartys:2", "Sutartys:2", "Aktai:0"};
        QTest::newRow("Tickler")
            << "SHAPE {SELECT tbl_Documents.RastasID, tbl_Documents.DokAntraste, tbl_Tickler.TicklerDate, "
               "tbl_Tickler.TicklerText FROM tbl_Documents INNER JOIN tbl_Tickler ON tbl_Documents.RastasID "
               "= "
               "tbl_Tickler.RastasID ORDER BY tbl_Tickler.TicklerDate;}  AS Tickler COMPUTE Tickler BY "
               "'RastasID','DokAntraste'"
            << "DokAntraste"
            << "Tickler" << QStringList {"First:2"};
        QTest::newRow("AddressBook")
            << "SHAPE {SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, tbl_Contacts.Dear, "
               "tbl_Contacts.Address, "
               "tbl_Contacts.City, tbl_Contacts.StateOrProvince, tbl_Contacts.PostalCode, "
               "tbl_Contacts.Region, "
               "tbl_Contacts.Country, tbl_Contacts.CompanyName, tbl_Contacts.Title, tbl_Contacts.EmailName, "
               "tbl_Phones.PhoneName, tbl_Phones.PhoneNumber\r\nFROM tbl_Contacts INNER JOIN tbl_Phones ON "
               "tbl_Contacts.ContactID = tbl_Phones.ContactID\r\nORDER BY tbl_Contacts.FullName;}  AS "
               "AddressBook "
               "COMPUTE AddressBook BY "
               "'FullName','ContactID','Dear','Address','City','StateOrProvince','PostalCode',"
               "'Region','Country','CompanyName','Title','EmailName'"
            << "FullName"
            << "AddressBook" << QStringList {"Petras:2", "Šarūnas:1"};
        QTest::newRow("Command1")
            << "SHAPE {SELECT * FROM `qry_Phones`}  AS Command1 COMPUTE Command1 BY 'FullName','ContactID'"
            << "FullName"
            << "Command1" << QStringList {"Petras:2", "Šarūnas:1"};
        QTest::newRow("This_Month") << "SHAPE {SELECT * FROM `qry_This_Month`}  AS This_Month COMPUTE "
                                       "This_Month BY 'DokKategorija','KategID'"
                                    << "DokKategorija"
                                    << "This_Month" << QStringList {};
        QTest::newRow("view by name")
            << "SHAPE {qry_Previous_Month}  AS This_Month COMPUTE This_Month BY 'DokKategorija','KategID'"
            << "DokKategorija"
            << "This_Month" << QStringList {};
    }

    void reportCommands()
    {
        QFETCH(QString, command);
        QFETCH(QString, parentField);
        QFETCH(QString, chapter);
        QFETCH(QStringList, groups);
        EngineRegister reg;
        fillRegister(reg);
        Recordset recordset;
        recordset.open(command, reg.connection());
        QStringList seen;
        while (!recordset.eof()) {
            seen << recordset.collect(parentField).toString() + u':'
                    + QString::number(recordset.chapter(chapter)->recordCount());
            recordset.moveNext();
        }
        QCOMPARE(seen, groups);
    }

    // A table another program made on a register file: its columns read by their declared
    // types as SQLite names them, a type the engine does not know as text.
    void typesDeclaredByAnotherProgram_data()
    {
        QTest::addColumn<QString>("declared");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QVariant>("read");
        QTest::newRow("unknown, holding DE") << "NODE"
                                             << "'abc'" << QVariant(QStringLiteral("abc"));
        QTest::newRow("decimal") << "DECIMAL(10,2)"
                                 << "2.5" << QVariant(2.5);
        QTest::newRow("money") << "MONEY"
                               << "3.25" << QVariant(3.25);
    }

    void typesDeclaredByAnotherProgram()
    {
        QFETCH(QString, declared);
        QFETCH(QString, stored);
        QFETCH(QVariant, read);
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("A server's columns have the server's own types.");
        reg.execute(QStringLiteral("CREATE TABLE other (v %1)").arg(declared));
        reg.execute(QStringLiteral("INSERT INTO other (v) VALUES (%1)").arg(stored));
        Recordset recordset;
        recordset.open("SELECT v FROM other", reg.connection());
        QCOMPARE(recordset.fields(0).value(), read);
    }

    // A value written into a column that another program declared is converted as its type
    // says: a whole number, a real or a date refuses words, a text keeps them, a blob keeps a
    // number as it is. A type's name counts only whole: "STRING" is no INT, "NODE" no DEC.
    void writingIntoTypesOfAnotherProgram_data()
    {
        QTest::addColumn<QString>("declared");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("stored");
        for (const char* type : {"STRING", "BOOK", "BIG", "DATUM", "TIMESTAMX", "REACH", "FLOP", "DOUGH",
                 "MENU", "NODE", "CURRENCX", "MONEX"})
            QTest::addRow("%s keeps words", type) << type << QVariant("abc") << "text:abc";
        for (const char* type : {"INTEGER", "BOOLEAN", "BIT", "DATE", "DATETIME", "TIMESTAMP", "REAL",
                 "FLOAT", "DOUBLE", "NUMERIC", "DECIMAL", "CURRENCY", "MONEY"})
            QTest::addRow("%s refuses words", type) << type << QVariant("abc") << "refused";
        for (const char* type : {"BLOB", "CHABLOB", "CLOSEBLOB", "TEXBLOB", "MEMBLOB"})
            QTest::addRow("%s keeps a number", type) << type << QVariant(12) << "integer:12";
        for (const char* type : {"VARCHAR(20)", "CLOB", "TEXT"})
            QTest::addRow("%s makes a number text", type) << type << QVariant(12) << "text:12";
    }

    void writingIntoTypesOfAnotherProgram()
    {
        QFETCH(QString, declared);
        QFETCH(QVariant, value);
        QFETCH(QString, stored);
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("A server's columns have the server's own types.");
        reg.execute(QStringLiteral("CREATE TABLE other (id INTEGER PRIMARY KEY, v %1)").arg(declared));
        Recordset recordset;
        recordset.open(
            "SELECT id, v FROM other", reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.addNew();
        try {
            recordset.fields("v").setValue(value);
            recordset.update();
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::TypeMismatch);
            QCOMPARE(QStringLiteral("refused"), stored);
            return;
        }
        QCOMPARE(reg.joined("SELECT typeof(v) || ':' || v FROM other"), stored);
    }

    // The report of all documents by category: a RIGHT JOIN of a join, grouped.
    // A table and a field whose names hold a double quote are read and written under them.
    void namesWithADoubleQuote()
    {
        EngineRegister reg;
        reg.execute(R"(CREATE TABLE "say ""hi""" (id INTEGER PRIMARY KEY, "the ""word""" TEXT))");
        Recordset rows;
        rows.open(R"(SELECT * FROM "say ""hi""")", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        rows.addNew();
        rows.fields("id").setValue(1);
        rows.fields(R"(the "word")").setValue("hello");
        rows.update();
        rows.fields(R"(the "word")").setValue("again");
        rows.update();
        QCOMPARE(reg.joined(R"(SELECT "the ""word""" FROM "say ""hi""")"), QString("again"));
    }

    void allDocumentsByCategory()
    {
        EngineRegister reg;
        fillRegister(reg);
        Recordset recordset;
        recordset.open("SHAPE {SELECT tbl_Documents.RastasID, tbl_Documents.DokRegistracData, "
                       "tbl_Documents.DokRegistracIndeksas, "
                       "tbl_Documents.DokAntraste, tbl_Documents.ContactID, tbl_Contacts.FullName, "
                       "tbl_Documents.KategID, "
                       "tbl_Document_Categories.DokKategorija\r\nFROM tbl_Contacts RIGHT JOIN "
                       "(tbl_Document_Categories INNER JOIN "
                       "tbl_Documents ON tbl_Document_Categories.KategID=tbl_Documents.KategID) ON "
                       "tbl_Contacts.ContactID=tbl_Documents.ContactID\r\n}  AS Command2 COMPUTE Command2 BY "
                       "'KategID','DokKategorija'",
            reg.connection());
        QStringList seen;
        while (!recordset.eof()) {
            Recordset* chapter = recordset.chapter("Command2");
            QStringList names = rows(*chapter, {"RastasID", "FullName"});
            names.sort();
            seen << recordset.collect("DokKategorija").toString() + u'=' + names.join(u',');
            recordset.moveNext();
        }
        seen.sort();
        QCOMPARE(seen, QStringList({"Aktai=3|-", "Sutartys=1|Petras,2|Petras"}));
    }
};

int runStatementsTest(int argc, char** argv)
{
    StatementsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_statements.moc"
