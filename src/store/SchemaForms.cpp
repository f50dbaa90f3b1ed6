// The numbered steps of the register's schema (see SchemaSteps.h). Nothing here may name
// a collation or function of ours: a register stays plain SQLite.
#include "store/SchemaSteps.h"
#include "store/engine/Connection.h"

#include <QStringList>

namespace kartella {

namespace {

const QString CategoriesTable = QStringLiteral(
    "CREATE TABLE %1 (KategID INTEGER PRIMARY KEY AUTOINCREMENT, DokKategorija TEXT, Mnemonic TEXT, "
    "DokKategDaug TEXT, DokTemplates TEXT, DokTemplatesExel TEXT, DokTemplatesPowPoint TEXT)");
const QString SubCategoriesTable = QStringLiteral(
    "CREATE TABLE %1 (SubKategID INTEGER PRIMARY KEY AUTOINCREMENT, KategID INTEGER, "
    "DokSubKategorija TEXT, SubPathToFiles TEXT, SubDokTemplates TEXT, SubDokTemplatesExel TEXT, "
    "SubDokTemplatesPowPoint TEXT)");
const QString ContactsTable = QStringLiteral(
    "CREATE TABLE %1 (ContactID INTEGER PRIMARY KEY AUTOINCREMENT, CompanyName TEXT, Title TEXT, "
    "Dear TEXT, FullName TEXT, Address TEXT, City TEXT, StateOrProvince TEXT, PostalCode TEXT, "
    "Region TEXT, Country TEXT, EmailName TEXT, Notes TEXT)");

QStringList otherTables()
{
    return {
        QStringLiteral("CREATE TABLE tbl_Documents ("
                       "RastasID INTEGER PRIMARY KEY AUTOINCREMENT, DokGavSiuntData DATE, "
                       "DokRegistracData DATE, DokRegistracIndeksas TEXT, DokAntraste TEXT, "
                       "DokVykdytojas TEXT, DokIvykdymoZyma TEXT, RastoKel TEXT, ContactID INTEGER, "
                       "KategID INTEGER, SubKategID INTEGER, DokPastaba TEXT, KryptisID INTEGER)"),
        QStringLiteral("CREATE TABLE tbl_Sub_Documents ("
                       "SubRastasID INTEGER PRIMARY KEY AUTOINCREMENT, RastasID INTEGER, "
                       "SubDocDescript TEXT, ContactID INTEGER, SubRastoKelias TEXT, "
                       "SubRastGavimoData DATE)"),
        QStringLiteral("CREATE TABLE tbl_Tickler ("
                       "TicklerID INTEGER PRIMARY KEY AUTOINCREMENT, RastasID INTEGER, "
                       "TicklerDate DATE, TicklerText TEXT)"),
        QStringLiteral("CREATE TABLE tbl_Phones ("
                       "PhoneID INTEGER PRIMARY KEY AUTOINCREMENT, ContactID INTEGER, "
                       "PhoneName TEXT, PhoneNumber TEXT)"),
        QStringLiteral("CREATE TABLE tbl_HomePages ("
                       "HomeID INTEGER PRIMARY KEY AUTOINCREMENT, ContactID INTEGER, "
                       "Description TEXT, HomeWWW TEXT)"),
    };
}

// The lists select documents by date, category, subcategory and contact, always
// ordered by registration date; children are read by their parent's key.
QStringList documentIndexes()
{
    return {
        QStringLiteral("CREATE INDEX idx_Documents_RegistracData ON tbl_Documents (DokRegistracData)"),
        QStringLiteral("CREATE INDEX idx_Documents_KategID ON tbl_Documents (KategID, DokRegistracData)"),
        QStringLiteral("CREATE INDEX idx_Documents_SubKategID ON tbl_Documents (SubKategID)"),
        QStringLiteral("CREATE INDEX idx_Documents_ContactID ON tbl_Documents (ContactID, DokRegistracData)"),
        QStringLiteral("CREATE INDEX idx_Sub_Documents_RastasID ON tbl_Sub_Documents (RastasID)"),
        QStringLiteral("CREATE INDEX idx_Tickler_RastasID ON tbl_Tickler (RastasID)"),
        QStringLiteral("CREATE INDEX idx_Phones_ContactID ON tbl_Phones (ContactID)"),
        QStringLiteral("CREATE INDEX idx_HomePages_ContactID ON tbl_HomePages (ContactID)"),
    };
}

// The indexes of the tables with name columns.
QStringList nameTableIndexes()
{
    return {
        QStringLiteral("CREATE INDEX idx_Sub_Categories_KategID ON tbl_Sub_Categories (KategID)"),
        QStringLiteral("CREATE INDEX idx_Contacts_FullName ON tbl_Contacts (FullName)"),
    };
}

// The documents registered in one calendar month (local time), with their category's
// title and their contact's name; a document without contact or category still counts.
QString monthView(const QString& viewName, const QString& firstDay, const QString& nextFirstDay)
{
    const QString category = QStringLiteral("tbl_Document_Categories.DokKategorija");
    return QStringLiteral("CREATE VIEW ") + viewName
        + QStringLiteral(" AS SELECT tbl_Document_Categories.DokKategorija, tbl_Documents.KategID, "
                         "tbl_Documents.DokRegistracData, tbl_Documents.DokRegistracIndeksas, "
                         "tbl_Documents.DokAntraste, tbl_Contacts.FullName, tbl_Documents.RastasID "
                         "FROM (tbl_Documents LEFT JOIN tbl_Contacts "
                         "ON tbl_Contacts.ContactID = tbl_Documents.ContactID) "
                         "LEFT JOIN tbl_Document_Categories "
                         "ON tbl_Document_Categories.KategID = tbl_Documents.KategID "
                         "WHERE tbl_Documents.DokRegistracData >= ")
        + firstDay + QStringLiteral(" AND tbl_Documents.DokRegistracData < ") + nextFirstDay
        + QStringLiteral(" ORDER BY ") + nameOrderKey(category) + QStringLiteral(", ") + category
        + QStringLiteral(", tbl_Documents.DokRegistracData");
}

QStringList views()
{
    const QString thisMonth = QStringLiteral("date('now', 'localtime', 'start of month')");
    const QString nextMonth = QStringLiteral("date('now', 'localtime', 'start of month', '+1 month')");
    const QString previousMonth = QStringLiteral("date('now', 'localtime', 'start of month', '-1 month')");
    const QString name = QStringLiteral("tbl_Contacts.FullName");
    return {
        monthView(QStringLiteral("qry_This_Month"), thisMonth, nextMonth),
        monthView(QStringLiteral("qry_Previous_Month"), previousMonth, thisMonth),
        QStringLiteral(
            "CREATE VIEW qry_Phones AS SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, "
            "tbl_Phones.PhoneName, tbl_Phones.PhoneNumber "
            "FROM tbl_Contacts INNER JOIN tbl_Phones ON tbl_Contacts.ContactID = tbl_Phones.ContactID "
            "ORDER BY ")
            + nameOrderKey(name) + QStringLiteral(", ") + name + QStringLiteral(", tbl_Phones.PhoneName"),
    };
}

// A category takes its subcategories with it; nothing else cascades.
QString subCategoryTrigger()
{
    return QStringLiteral(
        "CREATE TRIGGER trg_Document_Categories_Delete AFTER DELETE ON tbl_Document_Categories "
        "BEGIN DELETE FROM tbl_Sub_Categories WHERE KategID = OLD.KategID; END");
}

// Replaces a table by one made from `definition`, with every row, every key and the
// table's key generator as they were. Its indexes go with the old table.
void rebuildTable(Connection& connection, const QString& table, const QString& definition)
{
    const QString fresh = table + QStringLiteral("_rebuilt");
    connection.execute(definition.arg(fresh));
    connection.execute(QStringLiteral("INSERT INTO %1 SELECT * FROM %2").arg(fresh, table));
    // The generator of keys goes on from where it stood, also past rows deleted at the end.
    connection.execute(QStringLiteral("DELETE FROM sqlite_sequence WHERE name = '%1'").arg(fresh));
    connection.execute(
        QStringLiteral("INSERT INTO sqlite_sequence (name, seq) SELECT '%1', seq FROM sqlite_sequence "
                       "WHERE name = '%2'")
            .arg(fresh, table));
    connection.execute(QStringLiteral("DROP TABLE ") + table);
    connection.execute(QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(fresh, table));
}

void dropViewsAndTriggers(Connection& connection)
{
    for (const char* view : {"qry_This_Month", "qry_Previous_Month", "qry_Phones"})
        connection.execute(QStringLiteral("DROP VIEW IF EXISTS ") + QLatin1String(view));
    connection.execute(QStringLiteral("DROP TRIGGER IF EXISTS trg_Document_Categories_Delete"));
}

void createViewsAndTriggers(Connection& connection)
{
    for (const QString& sql : views())
        connection.execute(sql);
    connection.execute(subCategoryTrigger());
}

void executeAll(Connection& connection, const QStringList& statements)
{
    for (const QString& sql : statements)
        connection.execute(sql);
}

} // namespace

// Step 1: the tables, indexes, views and trigger of a new register. Registers of this
// version made by earlier programs declared their name columns with the engine's collation;
// step 2 takes that away.
void createFirstForm(Connection& connection)
{
    connection.execute(CategoriesTable.arg(QStringLiteral("tbl_Document_Categories")));
    connection.execute(SubCategoriesTable.arg(QStringLiteral("tbl_Sub_Categories")));
    connection.execute(ContactsTable.arg(QStringLiteral("tbl_Contacts")));
    executeAll(connection, otherTables());
    executeAll(connection, documentIndexes());
    executeAll(connection, nameTableIndexes());
    createViewsAndTriggers(connection);
    // "KRTL": tells a later version one of its registers before it upgrades it.
    connection.execute(QStringLiteral("PRAGMA application_id = 1263686732"));
}

// Step 2: the three tables with name columns made again with plain TEXT columns, their
// indexes, the views and the trigger with them.
void plainNameColumns(Connection& connection)
{
    dropViewsAndTriggers(connection);
    // A view or trigger the user added that names a rebuilt table would make a rename
    // fail while the old table is gone; SQLite's legacy rename doesn't check them.
    connection.execute(QStringLiteral("PRAGMA legacy_alter_table = ON"));
    try {
        rebuildTable(connection, QStringLiteral("tbl_Document_Categories"), CategoriesTable);
        rebuildTable(connection, QStringLiteral("tbl_Sub_Categories"), SubCategoriesTable);
        rebuildTable(connection, QStringLiteral("tbl_Contacts"), ContactsTable);
    } catch (...) {
        connection.execute(QStringLiteral("PRAGMA legacy_alter_table = OFF"));
        throw;
    }
    connection.execute(QStringLiteral("PRAGMA legacy_alter_table = OFF"));
    executeAll(connection, nameTableIndexes());
    createViewsAndTriggers(connection);
}

// Step 5: the day's counter of registration indexes, one row a day (the date as
// yyyy-MM-dd and the last number taken), kept in the register so that every user of it
// counts on one counter.
void addDayCounter(Connection& connection)
{
    connection.execute(QStringLiteral("CREATE TABLE IF NOT EXISTS tbl_Day_Counter (CounterDay TEXT NOT NULL "
                                      "PRIMARY KEY, LastNumber INTEGER NOT NULL DEFAULT 0)"));
}

// Step 6: the lists of one direction read their rows in date order through an index.
void addDirectionIndex(Connection& connection)
{
    connection.execute(QStringLiteral(
        "CREATE INDEX IF NOT EXISTS idx_Documents_KryptisID ON tbl_Documents (KryptisID, DokRegistracData)"));
}

// Step 7: the text read from each document's file (see content/TextStore.h for the columns),
// one row per document, gone with its document.
void addDocumentTextStore(Connection& connection)
{
    connection.execute(QStringLiteral(
        "CREATE TABLE IF NOT EXISTS tbl_Document_Text (RastasID INTEGER NOT NULL PRIMARY KEY, "
        "FilePath TEXT, FileSize INTEGER, FileModified TEXT, State INTEGER NOT NULL DEFAULT 0, "
        "Reason TEXT, Body TEXT, ReadAt TEXT)"));
    connection.execute(QStringLiteral("CREATE TRIGGER IF NOT EXISTS trg_Document_Text_Delete AFTER DELETE ON "
                                      "tbl_Documents BEGIN DELETE FROM tbl_Document_Text WHERE RastasID = "
                                      "OLD.RastasID; END"));
}

} // namespace kartella
