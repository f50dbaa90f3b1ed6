#include "store/Schema.h"

#include "base/Error.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace kartella {

namespace {

// "KRTL": lets a later version recognise one of its registers before it upgrades it.
constexpr qint32 ApplicationId = 0x4B52544C;
constexpr int SchemaVersion = 1;

const QString JetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

QStringList tableStatements()
{
    const QString name = QStringLiteral(" TEXT COLLATE ") + QLatin1String(NameCollation);
    return {
        QStringLiteral("CREATE TABLE tbl_Document_Categories ("
                       "KategID INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "DokKategorija")
            + name
            + QStringLiteral(", Mnemonic TEXT, DokKategDaug TEXT, DokTemplates TEXT, "
                             "DokTemplatesExel TEXT, DokTemplatesPowPoint TEXT)"),
        QStringLiteral("CREATE TABLE tbl_Sub_Categories ("
                       "SubKategID INTEGER PRIMARY KEY AUTOINCREMENT, KategID INTEGER, "
                       "DokSubKategorija")
            + name
            + QStringLiteral(", SubPathToFiles TEXT, SubDokTemplates TEXT, SubDokTemplatesExel TEXT, "
                             "SubDokTemplatesPowPoint TEXT)"),
        QStringLiteral("CREATE TABLE tbl_Contacts ("
                       "ContactID INTEGER PRIMARY KEY AUTOINCREMENT, CompanyName")
            + name + QStringLiteral(", Title TEXT, Dear TEXT, FullName") + name
            + QStringLiteral(", Address TEXT, City TEXT, StateOrProvince TEXT, PostalCode TEXT, "
                             "Region TEXT, Country TEXT, EmailName TEXT, Notes TEXT)"),
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
QStringList indexStatements()
{
    return {
        QStringLiteral("CREATE INDEX idx_Documents_RegistracData ON tbl_Documents (DokRegistracData)"),
        QStringLiteral("CREATE INDEX idx_Documents_KategID ON tbl_Documents (KategID, DokRegistracData)"),
        QStringLiteral("CREATE INDEX idx_Documents_SubKategID ON tbl_Documents (SubKategID)"),
        QStringLiteral("CREATE INDEX idx_Documents_ContactID ON tbl_Documents (ContactID, DokRegistracData)"),
        QStringLiteral("CREATE INDEX idx_Sub_Documents_RastasID ON tbl_Sub_Documents (RastasID)"),
        QStringLiteral("CREATE INDEX idx_Tickler_RastasID ON tbl_Tickler (RastasID)"),
        QStringLiteral("CREATE INDEX idx_Sub_Categories_KategID ON tbl_Sub_Categories (KategID)"),
        QStringLiteral("CREATE INDEX idx_Phones_ContactID ON tbl_Phones (ContactID)"),
        QStringLiteral("CREATE INDEX idx_HomePages_ContactID ON tbl_HomePages (ContactID)"),
        QStringLiteral("CREATE INDEX idx_Contacts_FullName ON tbl_Contacts (FullName)"),
    };
}

// The documents registered in one calendar month (local time), with their category's
// title and their contact's name; a document without contact or category still counts.
QString monthView(const QString& viewName, const QString& firstDay, const QString& nextFirstDay)
{
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
        + QStringLiteral(" ORDER BY tbl_Document_Categories.DokKategorija, tbl_Documents.DokRegistracData");
}

QStringList viewStatements()
{
    const QString thisMonth = QStringLiteral("date('now', 'localtime', 'start of month')");
    const QString nextMonth = QStringLiteral("date('now', 'localtime', 'start of month', '+1 month')");
    const QString previousMonth = QStringLiteral("date('now', 'localtime', 'start of month', '-1 month')");
    return {
        monthView(QStringLiteral("qry_This_Month"), thisMonth, nextMonth),
        monthView(QStringLiteral("qry_Previous_Month"), previousMonth, thisMonth),
        QStringLiteral(
            "CREATE VIEW qry_Phones AS SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, "
            "tbl_Phones.PhoneName, tbl_Phones.PhoneNumber "
            "FROM tbl_Contacts INNER JOIN tbl_Phones ON tbl_Contacts.ContactID = tbl_Phones.ContactID "
            "ORDER BY tbl_Contacts.FullName, tbl_Phones.PhoneName"),
    };
}

// A category takes its subcategories with it; nothing else cascades.
QString subCategoryTrigger()
{
    return QStringLiteral(
        "CREATE TRIGGER trg_Document_Categories_Delete AFTER DELETE ON tbl_Document_Categories "
        "BEGIN DELETE FROM tbl_Sub_Categories WHERE KategID = OLD.KategID; END");
}

} // namespace

void createRegisterSchema(Connection& connection)
{
    QStringList statements = tableStatements();
    statements += indexStatements();
    statements += viewStatements();
    statements << subCategoryTrigger();
    statements << QStringLiteral("PRAGMA application_id = ") + QString::number(ApplicationId);
    statements << QStringLiteral("PRAGMA user_version = ") + QString::number(SchemaVersion);
    for (const QString& sql : std::as_const(statements))
        connection.execute(sql);
}

void createRegister(const QString& path)
{
    const QString nativePath = QFileInfo(path).absoluteFilePath();
    if (QFileInfo::exists(nativePath))
        throw Error(ErrorNumber::PathFileAccess,
            QStringLiteral("A file named \"") + nativePath + QStringLiteral("\" already exists."));

    // The engine opens only files that exist; the register starts as an empty file.
    QFile file(nativePath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw Error(ErrorNumber::PathFileAccess,
            QStringLiteral("Can't create \"") + nativePath + QStringLiteral("\": ") + file.errorString());
    file.close();

    try {
        Connection connection;
        connection.open(plainConnectionString(JetProvider, nativePath));
        connection.beginTrans();
        createRegisterSchema(connection);
        connection.commitTrans();
        connection.close();
    } catch (...) {
        QFile::remove(nativePath);
        throw;
    }
}

} // namespace kartella
