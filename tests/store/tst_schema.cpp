#include "StoreFixture.h"
#include "base/Error.h"
#include "harness/TestRegister.h"
#include "store/Schema.h"
#include "store/SchemaSteps.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QFile>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

// The fields of each table, with a value of the field's type for a full row.
QVariantMap fullRow(const QString& table)
{
    const QDate date(2024, 2, 29);
    if (table == "tbl_Documents")
        return {{"DokGavSiuntData", date}, {"DokRegistracData", date.addDays(1)},
            {"DokRegistracIndeksas", "SUT-1/2"}, {"DokAntraste", QString::fromUtf8("Sutartis dėl nuomos")},
            {"DokVykdytojas", "J. Jonaitis"}, {"DokIvykdymoZyma", QString::fromUtf8("Įvykdyta")},
            {"RastoKel", "/docs/a b/SUT-0001.doc"}, {"ContactID", 7}, {"KategID", 2}, {"SubKategID", 3},
            {"DokPastaba", "Eilutė 1\r\nEilutė 2"}, {"KryptisID", 4}};
    if (table == "tbl_Sub_Documents")
        return {{"RastasID", 5}, {"SubDocDescript", "Priedas"}, {"ContactID", 6},
            {"SubRastoKelias", "/docs/p.pdf"}, {"SubRastGavimoData", date}};
    if (table == "tbl_Document_Categories")
        return {{"DokKategorija", QString::fromUtf8("Įsakymai")}, {"Mnemonic", "ISK"},
            {"DokKategDaug", "/docs/Isk"}, {"DokTemplates", "/t/a.dot"}, {"DokTemplatesExel", "/t/a.xlt"},
            {"DokTemplatesPowPoint", "/t/a.pot"}};
    if (table == "tbl_Sub_Categories")
        return {{"KategID", 1}, {"DokSubKategorija", "Vidaus"}, {"SubPathToFiles", "/docs/Isk/V"},
            {"SubDokTemplates", "/t/b.dot"}, {"SubDokTemplatesExel", "/t/b.xlt"},
            {"SubDokTemplatesPowPoint", "/t/b.pot"}};
    if (table == "tbl_Contacts")
        return {{"CompanyName", "UAB Alfa"}, {"Title", "Direktorius"}, {"Dear", "Gerbiamasis Jonai"},
            {"FullName", "Jonas Jonaitis"}, {"Address", QString(255, QChar(0x0105))}, {"City", "Vilnius"},
            {"StateOrProvince", "Vilniaus apskr."}, {"PostalCode", "LT-01103"},
            {"Region", QString::fromUtf8("Aukštaitija")}, {"Country", "Lietuva"},
            {"EmailName", "jonas@alfa.lt"}, {"Notes", "Pastaba"}};
    if (table == "tbl_Phones")
        return {{"ContactID", 1}, {"PhoneName", "Mobile"}, {"PhoneNumber", "+370 612 34567"}};
    if (table == "tbl_HomePages")
        return {
            {"ContactID", 1}, {"Description", QString::fromUtf8("Svetainė")}, {"HomeWWW", "https://alfa.lt"}};
    return {{"RastasID", 1}, {"TicklerDate", date}, {"TicklerText", "Priminti"}, {"TicklerDone", 1}};
}

QStringList keys(const TestRegister& reg, const QString& sql)
{
    Connection connection(reg.connectionString());
    connection.open();
    Recordset recordset;
    recordset.open(sql, connection);
    QStringList keys;
    for (; !recordset.eof(); recordset.moveNext())
        keys << recordset.fields(0).value().toString();
    return keys;
}

} // namespace

class SchemaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTableTakesAFullRow_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("key");
        QTest::newRow("documents") << "tbl_Documents"
                                   << "RastasID";
        QTest::newRow("related documents") << "tbl_Sub_Documents"
                                           << "SubRastasID";
        QTest::newRow("categories") << "tbl_Document_Categories"
                                    << "KategID";
        QTest::newRow("subcategories") << "tbl_Sub_Categories"
                                       << "SubKategID";
        QTest::newRow("contacts") << "tbl_Contacts"
                                  << "ContactID";
        QTest::newRow("phones") << "tbl_Phones"
                                << "PhoneID";
        QTest::newRow("web pages") << "tbl_HomePages"
                                   << "HomeID";
        QTest::newRow("reminders") << "tbl_Tickler"
                                   << "TicklerID";
    }

    void everyTableTakesAFullRow()
    {
        QFETCH(QString, table);
        QFETCH(QString, key);
        TestRegister reg;
        const QVariantMap row = fullRow(table);
        // Keys come from the generator, one after the other.
        QCOMPARE(reg.insert(table, row), 1);
        QCOMPARE(reg.insert(table, row), 2);

        Connection connection(reg.connectionString());
        connection.open();
        Recordset recordset;
        recordset.open("SELECT * FROM " + table + " WHERE " + key + "=2", connection);
        QCOMPARE(recordset.recordCount(), 1);
        QStringList expectedFields = row.keys();
        expectedFields << key;
        QStringList fields = recordset.fieldNames();
        expectedFields.sort();
        fields.sort();
        QCOMPARE(fields, expectedFields);
        QCOMPARE(recordset.fields(key).value().toInt(), 2);
        for (auto it = row.cbegin(); it != row.cend(); ++it) {
            const QVariant value = recordset.fields(it.key()).value();
            if (it.value().typeId() == QMetaType::QDate) {
                QCOMPARE(value.typeId(), QMetaType::QDate);
                QCOMPARE(value.toDate(), it.value().toDate());
            } else if (it.value().typeId() == QMetaType::Int) {
                QCOMPARE(value.toLongLong(), it.value().toLongLong());
            } else {
                QCOMPARE(value.toString(), it.value().toString());
            }
        }
    }

    void monthViewsSelectByRegistrationMonth()
    {
        TestRegister reg;
        const QDate today = QDate::currentDate();
        const QDate firstOfMonth(today.year(), today.month(), 1);
        reg.insert("tbl_Document_Categories", {{"KategID", 1}, {"DokKategorija", "Sutartys"}});
        reg.insert("tbl_Contacts", {{"ContactID", 1}, {"FullName", "Ona Jonaitienė"}});
        const auto document = [&](int id, QDate registered, const QVariant& contact) {
            reg.insert("tbl_Documents",
                {{"RastasID", id}, {"DokRegistracData", registered}, {"KategID", 1}, {"ContactID", contact},
                    {"DokAntraste", QString("D" + QString::number(id))},
                    {"DokRegistracIndeksas", QString("I" + QString::number(id))}});
        };
        document(1, today, 1);
        document(2, firstOfMonth, QVariant());
        document(3, firstOfMonth.addDays(-1), 1);
        document(4, firstOfMonth.addMonths(-1), 1);
        document(5, firstOfMonth.addMonths(-2), 1);
        document(6, firstOfMonth.addMonths(1), 1);

        QCOMPARE(keys(reg, "SELECT RastasID FROM qry_This_Month ORDER BY RastasID"), QStringList({"1", "2"}));
        QCOMPARE(
            keys(reg, "SELECT RastasID FROM qry_Previous_Month ORDER BY RastasID"), QStringList({"3", "4"}));

        Connection connection(reg.connectionString());
        connection.open();
        for (const char* view : {"qry_This_Month", "qry_Previous_Month"}) {
            Recordset recordset;
            recordset.open(QString("SELECT * FROM ") + view, connection);
            QCOMPARE(recordset.fieldNames(),
                QStringList({"DokKategorija", "KategID", "DokRegistracData", "DokRegistracIndeksas",
                    "DokAntraste", "FullName", "RastasID"}));
        }
        Recordset thisMonth;
        thisMonth.open("SELECT * FROM qry_This_Month ORDER BY RastasID", connection);
        QCOMPARE(renderRows(thisMonth,
                     {"RastasID", "DokKategorija", "FullName", "DokRegistracIndeksas", "DokAntraste"}),
            QStringList({"1|Sutartys|Ona Jonaitienė|I1|D1", "2|Sutartys|-|I2|D2"}));
        thisMonth.moveFirst();
        QCOMPARE(thisMonth.fields("DokRegistracData").value().typeId(), QMetaType::QDate);
    }

    void phonesViewListsContactsWithPhones()
    {
        TestRegister reg;
        buildFixture(reg);
        Connection connection(reg.connectionString());
        connection.open();
        Recordset recordset;
        recordset.open("SELECT * FROM qry_Phones", connection);
        QCOMPARE(recordset.fieldNames(), QStringList({"ContactID", "FullName", "PhoneName", "PhoneNumber"}));
        QStringList rows = renderRows(recordset, {"ContactID", "PhoneName"});
        rows.sort();
        QCOMPARE(rows, QStringList({"1|Business", "1|Mobile", "2|Home", "3|Fax", "4|Mobile"}));
    }

    void deletingACategoryTakesOnlyItsSubCategories()
    {
        TestRegister reg;
        buildFixture(reg);
        reg.exec("DELETE tbl_Document_Categories.* FROM tbl_Document_Categories WHERE "
                 "tbl_Document_Categories.KategID=1");
        QCOMPARE(keys(reg, "SELECT SubKategID FROM tbl_Sub_Categories ORDER BY SubKategID"),
            QStringList({"3", "4", "5"}));
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE KategID=1").toInt(), 3);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE SubKategID=1").toInt(), 2);

        // A subcategory, a document or a contact takes nothing with it.
        reg.exec("DELETE FROM tbl_Sub_Categories WHERE SubKategID=3");
        reg.exec("DELETE FROM tbl_Documents WHERE RastasID=1");
        reg.exec("DELETE FROM tbl_Contacts WHERE ContactID=1");
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE SubKategID=3").toInt(), 1);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Tickler WHERE RastasID=1").toInt(), 2);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Sub_Documents WHERE RastasID=1").toInt(), 2);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Phones WHERE ContactID=1").toInt(), 2);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_HomePages WHERE ContactID=1").toInt(), 1);
    }

    void nameColumnsSortWithLithuanianLettersFolded_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("field");
        QTest::newRow("category") << "tbl_Document_Categories"
                                  << "DokKategorija";
        QTest::newRow("subcategory") << "tbl_Sub_Categories"
                                     << "DokSubKategorija";
        QTest::newRow("contact name") << "tbl_Contacts"
                                      << "FullName";
        QTest::newRow("company") << "tbl_Contacts"
                                 << "CompanyName";
    }

    void nameColumnsSortWithLithuanianLettersFolded()
    {
        QFETCH(QString, table);
        QFETCH(QString, field);
        TestRegister reg;
        const QStringList names
            = {"Zita", QString::fromUtf8("čiobrelis"), "Bronius", QString::fromUtf8("Ąžuolas")};
        for (const QString& name : names)
            reg.insert(table, {{field, name}});
        QCOMPARE(keys(reg, "SELECT " + field + " FROM " + table + " ORDER BY " + field),
            QStringList({QString::fromUtf8("Ąžuolas"), "Bronius", QString::fromUtf8("čiobrelis"), "Zita"}));
    }

    void createRegisterRefusesAnExistingFileAndStampsItsVersion()
    {
        TestRegister reg;
        QCOMPARE(reg.scalar("PRAGMA user_version").toInt(), newestSchemaVersion());
        QVERIFY(reg.scalar("PRAGMA application_id").toLongLong() != 0);

        QFile file(reg.path());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray before = file.readAll();
        file.close();
        QVERIFY_THROWS_EXCEPTION(Error, createRegister(reg.path()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), before);

        const QString nowhere = reg.dir() + "/missing folder/Kartella.mdb";
        QVERIFY_THROWS_EXCEPTION(Error, createRegister(nowhere));
        QVERIFY(!QFile::exists(nowhere));
    }
};

int runSchemaTest(int argc, char** argv)
{
    SchemaTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_schema.moc"
