// The SQL and SHAPE texts the program's windows, lists and reports send, word for word,
// run on the fixture register of StoreFixture.h.
#include "StoreFixture.h"
#include "harness/TestRegister.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QTest>

#include <memory>

using namespace kartella;
using namespace kartella::test;

namespace {

const QString DocumentSql
    = "SELECT tbl_Documents.RastasID, tbl_Documents.DokGavSiuntData, tbl_Documents.DokRegistracData, "
      "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, tbl_Documents.DokVykdytojas, "
      "tbl_Documents.DokIvykdymoZyma, tbl_Documents.RastoKel, tbl_Documents.ContactID, "
      "tbl_Contacts.FullName, "
      "tbl_Documents.KategID, tbl_Documents.DokPastaba FROM tbl_Contacts RIGHT JOIN tbl_Documents ON "
      "tbl_Contacts.ContactID = tbl_Documents.ContactID ";
const QString Dated = "WHERE tbl_Documents.DokRegistracData between #3/1/2024# and #4/1/2024#";
const QString Ordering = " ORDER BY tbl_Documents.DokRegistracData";
const QStringList DocumentColumns
    = {"RastasID", "DokGavSiuntData", "DokRegistracData", "DokRegistracIndeksas", "DokAntraste",
        "DokVykdytojas", "DokIvykdymoZyma", "RastoKel", "ContactID", "FullName", "KategID", "DokPastaba"};
const QString ContactFields
    = "ContactID,CompanyName,Title,Dear,FullName,Address,City,StateOrProvince,PostalCode,"
      "Country,EmailName,Notes";
const QString TicklerChild = " AS ParentCMD APPEND ({select RastasID,TicklerDate,TicklerID,TicklerText from "
                             "tbl_Tickler } AS ChildCMD "
                             "RELATE RastasID TO RastasID) AS ChildCMD";
const QString PhonesChild
    = " AS ParentCMD APPEND ({select ContactID,PhoneID,PhoneName,PhoneNumber from tbl_Phones } "
      "AS ChildCMD RELATE ContactID TO ContactID) AS ChildCMD";
const QString CRLF = "\r\n";

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

// Moves to the first row whose field has the value; false when there is none.
bool moveTo(Recordset& recordset, const QString& field, const QString& value)
{
    for (recordset.moveFirst(); !recordset.eof(); recordset.moveNext()) {
        if (recordset.fields(field).value().toString() == value)
            return true;
    }
    return false;
}

} // namespace

class StatementsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestRegister> m_register;
    std::unique_ptr<Connection> m_connection;

    void addSelect(const char* name, const QString& sql, const QStringList& columns, const QString& probe,
        const QStringList& rows, bool ordered = true)
    {
        QTest::newRow(name) << sql << columns << probe.split(',') << rows << ordered;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_register = std::make_unique<TestRegister>();
        buildFixture(*m_register);
        m_connection = std::make_unique<Connection>(m_register->connectionString());
        m_connection->open();
    }

    void cleanupTestCase()
    {
        m_connection.reset();
        m_register.reset();
    }

    void selects_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QStringList>("columns"); // the first columns, in order
        QTest::addColumn<QStringList>("probe"); // fields rendered per row
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<bool>("ordered");

        // Navigation tree.
        addSelect("categories of the tree",
            "SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija FROM "
            "tbl_Document_Categories ORDER BY tbl_Document_Categories.DokKategorija;",
            {"KategID", "DokKategorija"}, "KategID", {"3", "4", "1", "2"});
        addSelect("subcategories of the tree",
            "SELECT  tbl_Sub_Categories.SubKategID, tbl_Sub_Categories.KategID, "
            "tbl_Sub_Categories.DokSubKategorija "
            "FROM tbl_Sub_Categories WHERE tbl_Sub_Categories.KategID= 1",
            {"SubKategID", "KategID", "DokSubKategorija"}, "SubKategID,DokSubKategorija",
            {"1|Nuomos", "2|Darbo"}, false);
        addSelect("contacts of the tree",
            "SELECT ContactID,CompanyName,FullName AS FN FROM tbl_Contacts WHERE FullName <> '\"' ORDER BY "
            "FullName",
            {"ContactID", "CompanyName", "FN"}, "ContactID", {"4", "2", "1", "5"});

        // Document queries.
        addSelect("all documents", DocumentSql + Ordering, DocumentColumns, "RastasID",
            {"4", "1", "6", "2", "3", "5", "8", "7"});
        addSelect("documents without contact keep a Null name",
            DocumentSql + " WHERE tbl_Documents.KategID=1" + Ordering, DocumentColumns,
            "RastasID,FullName,DokRegistracData",
            {"1|Petras Jonaitis|2024-03-05", "2|-|2024-03-20",
                "8|Šarūnė Vaitkutė|" + firstOfPreviousMonth().toString(Qt::ISODate)});
        addSelect("date range, both ends included", DocumentSql + Dated + Ordering, DocumentColumns,
            "RastasID", {"1", "6", "2", "3"});
        addSelect("dates, category, direction",
            DocumentSql + Dated + " AND tbl_Documents.KategID=1 AND tbl_Documents.KryptisID=3" + Ordering,
            DocumentColumns, "RastasID", {"1"});
        addSelect("dates, category, subcategory",
            DocumentSql + Dated + " AND tbl_Documents.KategID=1 AND tbl_Documents.SubKategID=2" + Ordering,
            DocumentColumns, "RastasID", {"2"});
        addSelect("category and subcategory",
            DocumentSql + " WHERE tbl_Documents.KategID=1 AND tbl_Documents.SubKategID=1" + Ordering,
            DocumentColumns, "RastasID", {"1", "8"});
        addSelect("direction alone", DocumentSql + " WHERE tbl_Documents.KryptisID=3" + Ordering,
            DocumentColumns, "RastasID", {"1", "6", "5"});
        addSelect("contact builder, dated with direction",
            DocumentSql + Dated + " AND tbl_Documents.KryptisID=3" + Ordering, DocumentColumns, "RastasID",
            {"1", "6"});
        addSelect("range in reverse",
            DocumentSql + "WHERE tbl_Documents.DokRegistracData between #4/1/2024# and #3/1/2024#" + Ordering,
            DocumentColumns, "RastasID", {});

        // Related documents and the delete command.
        addSelect("related list",
            "SELECT tbl_Sub_Documents.SubRastasID, tbl_Sub_Documents.RastasID, "
            "tbl_Sub_Documents.SubDocDescript, "
            "tbl_Sub_Documents.ContactID, tbl_Sub_Documents.SubRastoKelias, "
            "tbl_Sub_Documents.SubRastGavimoData "
            "FROM tbl_Sub_Documents WHERE tbl_Sub_Documents.RastasID=1",
            {"SubRastasID", "RastasID", "SubDocDescript", "ContactID", "SubRastoKelias", "SubRastGavimoData"},
            "SubRastasID,ContactID,SubRastoKelias,SubRastGavimoData",
            {"1|1|/f/p1.doc|2024-03-06", "2|-|-|2024-03-07"}, false);
        addSelect("subdocuments before a delete",
            "SELECT tbl_Sub_Documents.*, tbl_Sub_Documents.RastasID FROM tbl_Sub_Documents WHERE "
            "tbl_Sub_Documents.RastasID=1",
            {"SubRastasID", "RastasID", "SubDocDescript", "ContactID", "SubRastoKelias", "SubRastGavimoData"},
            "SubRastasID,SubRastoKelias", {"1|/f/p1.doc", "2|-"}, false);

        // Document dialogs.
        addSelect("senders", "select ContactID, FullName from tbl_Contacts order by FullName",
            {"ContactID", "FullName"}, "ContactID", {"3", "4", "2", "1", "5"});
        addSelect("categories of a dialog",
            "select KategID,DokKategorija from tbl_Document_Categories order by DokKategorija;",
            {"KategID", "DokKategorija"}, "KategID", {"3", "4", "1", "2"});
        addSelect("subcategories, before a category is chosen",
            "select SubKategID,KategID,DokSubKategorija from tbl_Sub_Categories",
            {"SubKategID", "KategID", "DokSubKategorija"}, "SubKategID", {"1", "2", "3", "4", "5"}, false);
        addSelect("subcategories of a category",
            "select SubKategID,KategID,DokSubKategorija from tbl_Sub_Categories where KategID=1",
            {"SubKategID", "KategID", "DokSubKategorija"}, "SubKategID", {"1", "2"}, false);
        addSelect("details row as a table", "tbl_Documents",
            {"RastasID", "DokGavSiuntData", "DokRegistracData", "DokRegistracIndeksas", "DokAntraste",
                "DokVykdytojas", "DokIvykdymoZyma", "RastoKel", "ContactID", "KategID", "SubKategID",
                "DokPastaba", "KryptisID"},
            "RastasID,KryptisID", {"1|3", "2|2", "3|1", "4|4", "5|3", "6|3", "7|1", "8|2"}, false);

        // Category dialogs.
        addSelect("new category rows",
            "select "
            "KategID,DokKategorija,Mnemonic,DokKategDaug,DokTemplates,DokTemplatesExel,DokTemplatesPowPoint "
            "from tbl_Document_Categories",
            {"KategID", "DokKategorija", "Mnemonic", "DokKategDaug", "DokTemplates", "DokTemplatesExel",
                "DokTemplatesPowPoint"},
            "KategID,Mnemonic,DokKategDaug", {"1|SUT|/f/Sut", "2|ZEM|/f/Zem", "3|-|-", "4|CEK|/f/Cek"},
            false);
        addSelect("new category's subcategories",
            "select SubKategID,KategID,DokSubKategorija,SubPathToFiles,SubDokTemplates,SubDokTemplatesExel,"
            "SubDokTemplatesPowPoint from tbl_Sub_Categories WHERE KategID = 1",
            {"SubKategID", "KategID", "DokSubKategorija", "SubPathToFiles", "SubDokTemplates",
                "SubDokTemplatesExel", "SubDokTemplatesPowPoint"},
            "SubKategID,SubPathToFiles", {"1|/f/Sut/Nuoma", "2|-"}, false);
        addSelect("category details",
            "select "
            "KategID,DokKategorija,Mnemonic,DokKategDaug,DokTemplates,DokTemplatesExel,DokTemplatesPowPoint "
            "from tbl_Document_Categories WHERE KategID=2",
            {"KategID", "DokKategorija", "Mnemonic"}, "KategID,DokKategorija", {"2|Žemės nuoma"});
        addSelect("category details' subcategories",
            "select KategID,SubKategID,DokSubKategorija,SubPathToFiles,SubDokTemplates,SubDokTemplatesExel,"
            "SubDokTemplatesPowPoint from tbl_Sub_Categories WHERE KategID=3",
            {"KategID", "SubKategID", "DokSubKategorija", "SubPathToFiles"}, "SubKategID,DokSubKategorija",
            {"3|Metinės"});

        // Address book and contact editor.
        addSelect("address book", "select " + ContactFields + " from tbl_Contacts ORDER BY FullName",
            ContactFields.split(','), "ContactID", {"3", "4", "2", "1", "5"});
        addSelect("address book letter, any case",
            "select " + ContactFields + " from tbl_Contacts  WHERE FullName Like 'A%' ORDER BY FullName",
            ContactFields.split(','), "ContactID", {"4"});
        addSelect("web pages of a contact",
            "select HomeID,ContactID,Description,HomeWWW from tbl_HomePages WHERE ContactID=3",
            {"HomeID", "ContactID", "Description", "HomeWWW"}, "HomeID,Description", {"2|-"});

        // Contact import.
        addSelect("import contacts", "SELECT * FROM tbl_Contacts",
            {"ContactID", "CompanyName", "Title", "Dear", "FullName", "Address", "City", "StateOrProvince",
                "PostalCode", "Region", "Country", "EmailName", "Notes"},
            "ContactID", {"1", "2", "3", "4", "5"}, false);
        addSelect("import phones", "SELECT * FROM tbl_Phones",
            {"PhoneID", "ContactID", "PhoneName", "PhoneNumber"}, "PhoneID", {"1", "2", "3", "4", "5"},
            false);
        addSelect("import web pages", "SELECT * FROM tbl_HomePages",
            {"HomeID", "ContactID", "Description", "HomeWWW"}, "HomeID", {"1", "2"}, false);
        const QString find = "SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName FROM tbl_Contacts WHERE "
                             "tbl_Contacts.FullName Like '";
        addSelect("import finds a Lithuanian name in other case", find + "ĄŽUOLAS kazlauskas'",
            {"ContactID", "FullName"}, "ContactID", {"2"});
        addSelect(
            "import finds no stranger", find + "Nėra Tokio'", {"ContactID", "FullName"}, "ContactID", {});

        // Stored queries, as the reports read them.
        addSelect("previous month", "SELECT * FROM qry_Previous_Month",
            {"DokKategorija", "KategID", "DokRegistracData"}, "RastasID,FullName", {"8|Šarūnė Vaitkutė"});
    }

    void selects()
    {
        QFETCH(QString, sql);
        QFETCH(QStringList, columns);
        QFETCH(QStringList, probe);
        QFETCH(QStringList, rows);
        QFETCH(bool, ordered);
        Recordset recordset;
        if (!tryOpen(recordset, sql, *m_connection))
            return;
        QCOMPARE(recordset.fieldNames().mid(0, columns.size()), columns);
        QCOMPARE(recordset.recordCount(), rows.size());
        const QStringList actual = renderRows(recordset, probe);
        if (ordered)
            QCOMPARE(actual, rows);
        else
            QCOMPARE(sorted(actual), sorted(rows));
    }

    void shapes_data()
    {
        QTest::addColumn<QString>("shape");
        QTest::addColumn<QStringList>("parentColumns"); // in any order
        QTest::addColumn<QStringList>("parentProbe");
        QTest::addColumn<QStringList>("parentRows");
        QTest::addColumn<bool>("ordered");
        QTest::addColumn<QString>("chapter");
        QTest::addColumn<QString>("parentKey"); // value of the first probe field of the parent row to open
        QTest::addColumn<QStringList>("chapterColumns");
        QTest::addColumn<QStringList>("chapterProbe");
        QTest::addColumn<QStringList>("chapterRows"); // in order

        const QStringList tickler = {"RastasID", "TicklerDate", "TicklerID", "TicklerText"};
        const QStringList phones = {"ContactID", "PhoneID", "PhoneName", "PhoneNumber"};
        QTest::newRow("new document")
            << "SHAPE {select "
               "RastasID,DokGavSiuntData,DokRegistracData,DokRegistracIndeksas,DokAntraste,DokPastaba,"
               "RastoKel,ContactID,KategID,SubKategID,KryptisID from tbl_Documents}"
                + TicklerChild
            << QStringList {"RastasID", "DokGavSiuntData", "DokRegistracData", "DokRegistracIndeksas",
                   "DokAntraste", "DokPastaba", "RastoKel", "ContactID", "KategID", "SubKategID", "KryptisID",
                   "ChildCMD"}
            << QStringList {"RastasID"} << QStringList {"1", "2", "3", "4", "5", "6", "7", "8"} << false
            << "ChildCMD"
            << "1" << tickler << QStringList {"TicklerID", "TicklerDate"}
            << QStringList {"1|2024-03-15", "2|2024-03-01"};
        QTest::newRow("document details' reminders")
            << "SHAPE {select RastasID from tbl_Documents WHERE RastasID=4}" + TicklerChild
            << QStringList {"RastasID", "ChildCMD"} << QStringList {"RastasID"} << QStringList {"4"} << true
            << "ChildCMD"
            << "4" << tickler << QStringList {"TicklerID", "TicklerText"} << QStringList {"3|Patikrinti"};
        QTest::newRow("address book phones")
            << "SHAPE {select ContactID from tbl_Contacts WHERE ContactID=1}" + PhonesChild
            << QStringList {"ContactID", "ChildCMD"} << QStringList {"ContactID"} << QStringList {"1"} << true
            << "ChildCMD"
            << "1" << phones << QStringList {"PhoneID", "PhoneName"}
            << QStringList {"1|Business", "2|Mobile"};
        QTest::newRow("address book web pages")
            << "SHAPE {select ContactID from tbl_Contacts WHERE ContactID=1} AS ParentCMD APPEND ({select "
               "ContactID,HomeID,Description,HomeWWW from tbl_HomePages } AS ChildCMD RELATE ContactID TO "
               "ContactID) AS ChildCMD"
            << QStringList {"ContactID", "ChildCMD"} << QStringList {"ContactID"} << QStringList {"1"} << true
            << "ChildCMD"
            << "1" << QStringList {"ContactID", "HomeID", "Description", "HomeWWW"}
            << QStringList {"HomeID", "HomeWWW"} << QStringList {"1|https://alfa.lt"};
        QTest::newRow("contact editor, a contact without phones")
            << "SHAPE {select " + ContactFields + " from tbl_Contacts}" + PhonesChild
            << (ContactFields.split(',') << "ChildCMD") << QStringList {"ContactID"}
            << QStringList {"1", "2", "3", "4", "5"} << false << "ChildCMD"
            << "5" << phones << QStringList {"PhoneID"} << QStringList {};

        // Report commands.
        QTest::newRow("report Categories")
            << "SHAPE {SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija, " + CRLF
                + "tbl_Document_Categories.Mnemonic," + CRLF
                + "tbl_Document_Categories.DokKategDaug, tbl_Document_Categories.DokTemplates, "
                  "tbl_Document_Categories.DokTemplatesExel, tbl_Document_Categories.DokTemplatesPowPoint "
                  "FROM "
                  "tbl_Document_Categories ORDER By tbl_Document_Categories.DokKategorija}  AS Categories "
                  "APPEND "
                  "({SELECT tbl_Sub_Categories.SubKategID,"
                + CRLF
                + "tbl_Sub_Categories.KategID, tbl_Sub_Categories.DokSubKategorija, "
                  "tbl_Sub_Categories.SubPathToFiles, "
                  "tbl_Sub_Categories.SubDokTemplates, tbl_Sub_Categories.SubDokTemplatesExel, "
                  "tbl_Sub_Categories.SubDokTemplatesPowPoint FROM"
                + CRLF
                + "tbl_Sub_Categories}  AS SubCategories RELATE 'KategID' TO 'KategID') AS SubCategories"
            << QStringList {"KategID", "DokKategorija", "Mnemonic", "DokKategDaug", "DokTemplates",
                   "DokTemplatesExel", "DokTemplatesPowPoint", "SubCategories"}
            << QStringList {"KategID"} << QStringList {"3", "4", "1", "2"} << true << "SubCategories"
            << "1"
            << QStringList {"SubKategID", "KategID", "DokSubKategorija", "SubPathToFiles", "SubDokTemplates",
                   "SubDokTemplatesExel", "SubDokTemplatesPowPoint"}
            << QStringList {"SubKategID"} << QStringList {"1", "2"};
        const QString contactsReport = "SHAPE {SELECT ContactID, FullName, CompanyName FROM tbl_Contacts "
                                       "ORDER BY FullName, CompanyName}  AS Contacts "
                                       "APPEND ({SELECT PhoneID, ContactID, PhoneName, PhoneNumber FROM "
                                       "tbl_Phones ORDER BY PhoneName}  AS Phones "
                                       "RELATE 'ContactID' TO 'ContactID') AS Phones,({SELECT HomeID, "
                                       "ContactID, Description, HomeWWW FROM "
                                       "tbl_HomePages ORDER BY Description}  AS HomePages RELATE 'ContactID' "
                                       "TO 'ContactID') AS HomePages";
        const QStringList contactsColumns = {"ContactID", "FullName", "CompanyName", "Phones", "HomePages"};
        QTest::newRow("report Contacts, phones")
            << contactsReport << contactsColumns << QStringList {"ContactID"}
            << QStringList {"3", "4", "2", "1", "5"} << true << "Phones"
            << "1" << QStringList {"PhoneID", "ContactID", "PhoneName", "PhoneNumber"}
            << QStringList {"PhoneID", "PhoneName"} << QStringList {"1|Business", "2|Mobile"};
        QTest::newRow("report Contacts, web pages")
            << contactsReport << contactsColumns << QStringList {"ContactID"}
            << QStringList {"3", "4", "2", "1", "5"} << true << "HomePages"
            << "3" << QStringList {"HomeID", "ContactID", "Description", "HomeWWW"} << QStringList {"HomeID"}
            << QStringList {"2"};
        QTest::newRow("report DocByCateg")
            << "SHAPE {SELECT tbl_Documents.KategID, tbl_Document_Categories.Mnemonic, "
               "tbl_Document_Categories.DokKategorija, "
               "tbl_Document_Categories.KategID AS Expr1 FROM tbl_Document_Categories, tbl_Documents WHERE "
               "tbl_Document_Categories.KategID = tbl_Documents.KategID}  AS DocByCateg APPEND ({SELECT "
               "tbl_Documents.KategID, tbl_Documents.RastasID, tbl_Documents.DokAntraste, "
               "tbl_Documents.DokGavSiuntData, "
               "tbl_Documents.ContactID, tbl_Contacts.FullName, tbl_Documents.DokRegistracIndeksas FROM "
               "tbl_Documents, "
               "tbl_Contacts WHERE tbl_Documents.ContactID = tbl_Contacts.ContactID ORDER BY "
               "tbl_Documents.DokGavSiuntData, "
               "tbl_Documents.DokRegistracIndeksas}  AS Documents RELATE 'KategID' TO 'KategID') AS Documents"
            << QStringList {"KategID", "Mnemonic", "DokKategorija", "Expr1", "Documents"}
            << QStringList {"KategID", "Expr1"}
            << QStringList {"1|1", "1|1", "1|1", "2|2", "2|2", "3|3", "4|4"} << false << "Documents"
            << "1"
            << QStringList {"KategID", "RastasID", "DokAntraste", "DokGavSiuntData", "ContactID", "FullName",
                   "DokRegistracIndeksas"}
            << QStringList {"RastasID", "FullName"} << QStringList {"1|Petras Jonaitis", "8|Šarūnė Vaitkutė"};
        QTest::newRow("report DocByCor_Grouping")
            << "SHAPE {SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, tbl_Contacts.CompanyName, "
               "tbl_Documents.RastasID, "
               "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokRegistracData, "
               "tbl_Documents.DokAntraste, "
               "tbl_Documents.KategID, tbl_Document_Categories.DokKategorija FROM tbl_Document_Categories, "
               "tbl_Contacts, "
               "tbl_Documents WHERE tbl_Document_Categories.KategID = tbl_Documents.KategID AND "
               "tbl_Contacts.ContactID = "
               "tbl_Documents.ContactID ORDER BY tbl_Contacts.FullName}  AS DocByCor COMPUTE DocByCor, "
               "COUNT(DocByCor.'RastasID') AS Aggr1 BY 'ContactID','FullName'"
            << QStringList {"DocByCor", "Aggr1", "ContactID", "FullName"}
            << QStringList {"ContactID", "Aggr1"} << QStringList {"4|1", "2|1", "1|2", "5|2"} << true
            << "DocByCor"
            << "1"
            << QStringList {"ContactID", "FullName", "CompanyName", "RastasID", "DokRegistracIndeksas",
                   "DokRegistracData", "DokAntraste", "KategID", "DokKategorija"}
            << QStringList {"RastasID"} << QStringList {"1", "7"};
        QTest::newRow("report Command2_Grouping")
            << "SHAPE {SELECT tbl_Documents.RastasID, tbl_Documents.DokRegistracData, "
               "tbl_Documents.DokRegistracIndeksas, "
               "tbl_Documents.DokAntraste, tbl_Documents.ContactID, tbl_Contacts.FullName, "
               "tbl_Documents.KategID, "
               "tbl_Document_Categories.DokKategorija"
                + CRLF
                + "FROM tbl_Contacts RIGHT JOIN (tbl_Document_Categories INNER JOIN tbl_Documents ON "
                  "tbl_Document_Categories.KategID=tbl_Documents.KategID) ON "
                  "tbl_Contacts.ContactID=tbl_Documents.ContactID"
                + CRLF + "}  AS Command2 COMPUTE Command2 BY 'KategID','DokKategorija'"
            << QStringList {"Command2", "KategID", "DokKategorija"}
            << QStringList {"KategID", "DokKategorija"}
            << QStringList {"1|Sutartys", "2|Žemės nuoma", "3|Ataskaitos", "4|čekiai"} << false << "Command2"
            << "1"
            << QStringList {"RastasID", "DokRegistracData", "DokRegistracIndeksas", "DokAntraste",
                   "ContactID", "FullName", "KategID", "DokKategorija"}
            << QStringList {"RastasID", "FullName"}
            << QStringList {"1|Petras Jonaitis", "2|-", "8|Šarūnė Vaitkutė"};
        QTest::newRow("report Tickler_Grouping")
            << "SHAPE {SELECT tbl_Documents.RastasID, tbl_Documents.DokAntraste, tbl_Tickler.TicklerDate, "
               "tbl_Tickler.TicklerText FROM tbl_Documents INNER JOIN tbl_Tickler ON tbl_Documents.RastasID "
               "= "
               "tbl_Tickler.RastasID ORDER BY tbl_Tickler.TicklerDate;}  AS Tickler COMPUTE Tickler BY "
               "'RastasID','DokAntraste'"
            << QStringList {"Tickler", "RastasID", "DokAntraste"} << QStringList {"RastasID", "DokAntraste"}
            << QStringList {"4|Dokumentas 4", "1|Dokumentas 1"} << true << "Tickler"
            << "1" << QStringList {"RastasID", "DokAntraste", "TicklerDate", "TicklerText"}
            << QStringList {"TicklerDate", "TicklerText"}
            << QStringList {"2024-03-01|Ankstesnis", "2024-03-15|Priminti"};
        const QStringList addressFields = {"FullName", "ContactID", "Dear", "Address", "City",
            "StateOrProvince", "PostalCode", "Region", "Country", "CompanyName", "Title", "EmailName"};
        QTest::newRow("report AddressBook_Grouping")
            << "SHAPE {SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, tbl_Contacts.Dear, "
               "tbl_Contacts.Address, "
               "tbl_Contacts.City, tbl_Contacts.StateOrProvince, tbl_Contacts.PostalCode, "
               "tbl_Contacts.Region, "
               "tbl_Contacts.Country, tbl_Contacts.CompanyName, tbl_Contacts.Title, tbl_Contacts.EmailName, "
               "tbl_Phones.PhoneName, tbl_Phones.PhoneNumber"
                + CRLF
                + "FROM tbl_Contacts INNER JOIN tbl_Phones ON tbl_Contacts.ContactID = tbl_Phones.ContactID"
                + CRLF
                + "ORDER BY tbl_Contacts.FullName;}  AS AddressBook COMPUTE AddressBook BY "
                  "'FullName','ContactID','Dear','Address','City','StateOrProvince','PostalCode','Region','"
                  "Country',"
                  "'CompanyName','Title','EmailName'"
            << (QStringList(addressFields) << "AddressBook") << QStringList {"ContactID"}
            << QStringList {"3", "4", "2", "1"} << true << "AddressBook"
            << "1"
            << QStringList {"ContactID", "FullName", "Dear", "Address", "City", "StateOrProvince",
                   "PostalCode", "Region", "Country", "CompanyName", "Title", "EmailName", "PhoneName",
                   "PhoneNumber"}
            << QStringList {"PhoneName"} << QStringList {"Business", "Mobile"};
        QTest::newRow("report Command1_Grouping")
            << "SHAPE {SELECT * FROM `qry_Phones`}  AS Command1 COMPUTE Command1 BY 'FullName','ContactID'"
            << QStringList {"Command1", "FullName", "ContactID"} << QStringList {"ContactID"}
            << QStringList {"3", "4", "2", "1"} << true << "Command1"
            << "1" << QStringList {"ContactID", "FullName", "PhoneName", "PhoneNumber"}
            << QStringList {"PhoneName"} << QStringList {"Business", "Mobile"};
        QTest::newRow("report This_Month_Grouping")
            << "SHAPE {SELECT * FROM `qry_This_Month`}  AS This_Month COMPUTE This_Month BY "
               "'DokKategorija','KategID'"
            << QStringList {"This_Month", "DokKategorija", "KategID"}
            << QStringList {"KategID", "DokKategorija"} << QStringList {"2|Žemės nuoma"} << true
            << "This_Month"
            << "2"
            << QStringList {"DokKategorija", "KategID", "DokRegistracData", "DokRegistracIndeksas",
                   "DokAntraste", "FullName", "RastasID"}
            << QStringList {"RastasID", "FullName", "DokRegistracData"}
            << QStringList {"7|Petras Jonaitis|" + QDate::currentDate().toString(Qt::ISODate)};
    }

    void shapes()
    {
        QFETCH(QString, shape);
        QFETCH(QStringList, parentColumns);
        QFETCH(QStringList, parentProbe);
        QFETCH(QStringList, parentRows);
        QFETCH(bool, ordered);
        QFETCH(QString, chapter);
        QFETCH(QString, parentKey);
        QFETCH(QStringList, chapterColumns);
        QFETCH(QStringList, chapterProbe);
        QFETCH(QStringList, chapterRows);

        Recordset recordset;
        if (!tryOpen(recordset, shape, *m_connection))
            return;
        QCOMPARE(sorted(recordset.fieldNames()), sorted(parentColumns));
        QVERIFY(recordset.fields(chapter).isChapter());
        const QStringList actual = renderRows(recordset, parentProbe);
        QCOMPARE(ordered ? actual : sorted(actual), ordered ? parentRows : sorted(parentRows));

        QVERIFY(moveTo(recordset, parentProbe.first(), parentKey));
        Recordset* child = recordset.chapter(chapter);
        QVERIFY(child);
        QCOMPARE(child->fieldNames(), chapterColumns);
        QCOMPARE(renderRows(*child, chapterProbe), chapterRows);
    }

    // The statements that remove rows take exactly the rows named, and nothing else
    // but a category's subcategories.
    void deletes_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QStringList>("remaining"); // "table=keys" for each table that changes

        QTest::newRow("related document")
            << "DELETE tbl_Sub_Documents.*, tbl_Sub_Documents.SubRastasID FROM tbl_Sub_Documents WHERE "
               "tbl_Sub_Documents.SubRastasID=2"
            << QStringList {"tbl_Sub_Documents=1,3"};
        QTest::newRow("document")
            << "DELETE tbl_Documents.* FROM tbl_Documents WHERE tbl_Documents.RastasID=1"
            << QStringList {"tbl_Documents=2,3,4,5,6,7,8"};
        QTest::newRow("category") << "DELETE tbl_Document_Categories.* FROM tbl_Document_Categories WHERE "
                                     "tbl_Document_Categories.KategID=1"
                                  << QStringList {
                                         "tbl_Document_Categories=2,3,4", "tbl_Sub_Categories=3,4,5"};
        QTest::newRow("subcategory")
            << "DELETE tbl_Sub_Categories.* FROM tbl_Sub_Categories WHERE tbl_Sub_Categories.SubKategID=1"
            << QStringList {"tbl_Sub_Categories=2,3,4,5"};
        QTest::newRow("tree clean-up")
            << "DELETE tbl_Sub_Categories.*, tbl_Sub_Categories.KategID, tbl_Sub_Categories.DokSubKategorija "
               "From "
               "tbl_Sub_Categories WHERE (tbl_Sub_Categories.DokSubKategorija Is Null) OR KategID=0;"
            << QStringList {"tbl_Sub_Categories=1,2,3"};
    }

    void deletes()
    {
        QFETCH(QString, sql);
        QFETCH(QStringList, remaining);
        const QList<QPair<QString, QString>> tables = {
            {"tbl_Documents", "RastasID"},
            {"tbl_Sub_Documents", "SubRastasID"},
            {"tbl_Document_Categories", "KategID"},
            {"tbl_Sub_Categories", "SubKategID"},
            {"tbl_Contacts", "ContactID"},
            {"tbl_Phones", "PhoneID"},
            {"tbl_HomePages", "HomeID"},
            {"tbl_Tickler", "TicklerID"},
        };
        TestRegister reg;
        buildFixture(reg);
        const auto keys = [&](const QString& table, const QString& key) {
            Connection connection(reg.connectionString());
            connection.open();
            Recordset recordset;
            recordset.open("SELECT " + key + " FROM " + table + " ORDER BY " + key, connection);
            return renderRows(recordset, {key}).join(',');
        };
        QMap<QString, QString> before;
        for (const auto& [table, key] : tables)
            before[table] = keys(table, key);

        reg.exec(sql);

        QMap<QString, QString> expected = before;
        for (const QString& change : remaining)
            expected[change.section('=', 0, 0)] = change.section('=', 1);
        for (const auto& [table, key] : tables)
            QCOMPARE(keys(table, key), expected.value(table));
    }

    void moveRewritesOnePath()
    {
        TestRegister reg;
        buildFixture(reg);
        reg.exec("UPDATE tbl_Documents SET tbl_Documents.RastoKel = '/new place/Sąrašas.doc' WHERE "
                 "(((tbl_Documents.RastasID)=1));");
        QCOMPARE(reg.scalar("SELECT RastoKel FROM tbl_Documents WHERE RastasID=1").toString(),
            QString::fromUtf8("/new place/Sąrašas.doc"));
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE RastoKel IS NULL").toInt(), 7);
    }
};

int runStatementsTest(int argc, char** argv)
{
    StatementsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_statements.moc"
