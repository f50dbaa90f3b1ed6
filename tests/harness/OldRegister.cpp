#include "harness/OldRegister.h"

#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QFile>
#include <QStringList>
#include <QTest>

namespace kartella::test {

namespace {

// The form of a version 1 register as earlier programs made it: name columns, their index
// and the views ordered by them with the engine's collation.
QStringList oldForm()
{
    return {
        "CREATE TABLE tbl_Document_Categories (KategID INTEGER PRIMARY KEY AUTOINCREMENT, DokKategorija "
        "TEXT "
        "COLLATE NAMEFOLD, Mnemonic TEXT, DokKategDaug TEXT, DokTemplates TEXT, DokTemplatesExel TEXT, "
        "DokTemplatesPowPoint TEXT)",
        "CREATE TABLE tbl_Sub_Categories (SubKategID INTEGER PRIMARY KEY AUTOINCREMENT, KategID INTEGER, "
        "DokSubKategorija TEXT COLLATE NAMEFOLD, SubPathToFiles TEXT, SubDokTemplates TEXT, "
        "SubDokTemplatesExel "
        "TEXT, SubDokTemplatesPowPoint TEXT)",
        "CREATE TABLE tbl_Contacts (ContactID INTEGER PRIMARY KEY AUTOINCREMENT, CompanyName TEXT "
        "COLLATE "
        "NAMEFOLD, Title TEXT, Dear TEXT, FullName TEXT COLLATE NAMEFOLD, Address TEXT, City TEXT, "
        "StateOrProvince TEXT, PostalCode TEXT, Region TEXT, Country TEXT, EmailName TEXT, Notes TEXT)",
        "CREATE TABLE tbl_Documents (RastasID INTEGER PRIMARY KEY AUTOINCREMENT, DokGavSiuntData DATE, "
        "DokRegistracData DATE, DokRegistracIndeksas TEXT, DokAntraste TEXT, DokVykdytojas TEXT, "
        "DokIvykdymoZyma "
        "TEXT, RastoKel TEXT, ContactID INTEGER, KategID INTEGER, SubKategID INTEGER, DokPastaba TEXT, "
        "KryptisID "
        "INTEGER)",
        "CREATE TABLE tbl_Sub_Documents (SubRastasID INTEGER PRIMARY KEY AUTOINCREMENT, RastasID "
        "INTEGER, "
        "SubDocDescript TEXT, ContactID INTEGER, SubRastoKelias TEXT, SubRastGavimoData DATE)",
        "CREATE TABLE tbl_Tickler (TicklerID INTEGER PRIMARY KEY AUTOINCREMENT, RastasID INTEGER, "
        "TicklerDate "
        "DATE, TicklerText TEXT)",
        "CREATE TABLE tbl_Phones (PhoneID INTEGER PRIMARY KEY AUTOINCREMENT, ContactID INTEGER, "
        "PhoneName TEXT, "
        "PhoneNumber TEXT)",
        "CREATE TABLE tbl_HomePages (HomeID INTEGER PRIMARY KEY AUTOINCREMENT, ContactID INTEGER, "
        "Description "
        "TEXT, HomeWWW TEXT)",
        "CREATE INDEX idx_Sub_Categories_KategID ON tbl_Sub_Categories (KategID)",
        "CREATE INDEX idx_Contacts_FullName ON tbl_Contacts (FullName)",
        "CREATE INDEX idx_Documents_KategID ON tbl_Documents (KategID, DokRegistracData)",
        "CREATE VIEW qry_Phones AS SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, "
        "tbl_Phones.PhoneName, "
        "tbl_Phones.PhoneNumber FROM tbl_Contacts INNER JOIN tbl_Phones ON tbl_Contacts.ContactID = "
        "tbl_Phones.ContactID ORDER BY tbl_Contacts.FullName, tbl_Phones.PhoneName",
        "CREATE VIEW qry_This_Month AS SELECT tbl_Document_Categories.DokKategorija, "
        "tbl_Documents.KategID, "
        "tbl_Documents.DokRegistracData, tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, "
        "tbl_Contacts.FullName, tbl_Documents.RastasID FROM (tbl_Documents LEFT JOIN tbl_Contacts ON "
        "tbl_Contacts.ContactID = tbl_Documents.ContactID) LEFT JOIN tbl_Document_Categories ON "
        "tbl_Document_Categories.KategID = tbl_Documents.KategID ORDER BY "
        "tbl_Document_Categories.DokKategorija",
        "CREATE VIEW qry_Previous_Month AS SELECT * FROM qry_This_Month",
        "CREATE TRIGGER trg_Document_Categories_Delete AFTER DELETE ON tbl_Document_Categories BEGIN "
        "DELETE FROM "
        "tbl_Sub_Categories WHERE KategID = OLD.KategID; END",
        "PRAGMA application_id = 1263686732",
        "PRAGMA user_version = 1",
    };
}

// Rows of the old register: keys with gaps, and a last category and contact deleted, so
// that the key generators stand past the highest key.
QStringList oldRows()
{
    return {
        "INSERT INTO tbl_Document_Categories (KategID, DokKategorija, Mnemonic) VALUES (1, 'Zita', 'ZIT'), "
        "(3, 'Ąžuolynas', 'AZU'), (4, 'bylos', NULL), (9, 'Čekiai', 'CEK')",
        "DELETE FROM tbl_Document_Categories WHERE KategID = 9",
        "INSERT INTO tbl_Sub_Categories (SubKategID, KategID, DokSubKategorija) VALUES (2, 1, 'Vidaus'), "
        "(5, 3, 'Ąsočiai'), (6, 4, NULL)",
        "INSERT INTO tbl_Contacts (ContactID, CompanyName, FullName) VALUES (1, 'UAB Beta', 'Petras'), "
        "(2, 'Ąžuolo UAB', 'Ąžuolas'), (5, NULL, 'antanas'), (7, 'X', 'Šarūnė'), (8, 'Y', 'Zenonas')",
        "DELETE FROM tbl_Contacts WHERE ContactID = 8",
        "INSERT INTO tbl_Documents (RastasID, DokRegistracData, DokAntraste, ContactID, KategID, KryptisID) "
        "VALUES (1, '2024-03-01', 'Sutartis', 2, 3, 1), (4, '2024-02-29', 'Aktas', NULL, 1, 3)",
        "INSERT INTO tbl_Sub_Documents (SubRastasID, RastasID, SubDocDescript) VALUES (3, 1, 'Priedas')",
        "INSERT INTO tbl_Tickler (TicklerID, RastasID, TicklerDate, TicklerText) VALUES (2, 1, '2024-03-15', "
        "'Priminti')",
        "INSERT INTO tbl_Phones (PhoneID, ContactID, PhoneName, PhoneNumber) VALUES (1, 2, 'Mobile', '+370 "
        "612')",
        "INSERT INTO tbl_HomePages (HomeID, ContactID, HomeWWW) VALUES (4, 1, 'https://beta.lt')",
    };
}

} // namespace

void makeOldRegister(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    Connection connection(plainConnectionString("Microsoft.Jet.OLEDB.4.0", path));
    connection.open();
    for (const QString& sql : oldForm() + oldRows())
        connection.execute(sql);
}

} // namespace kartella::test
