#include "base/Error.h"
#include "harness/TestRegister.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/migration/RegisterMigration.h"
#include "store/migration/TableMapping.h"

#include <QMap>
#include <QTest>

using namespace kartella;
using namespace kartella::migration;

namespace {

// Tables held in memory, with their values in the reader's text form.
class MemorySource final : public SourceDatabase
{
public:
    void add(
        const QString& name, const QStringList& columns, const QList<QVariantList>& rows, int statedRows = -1)
    {
        m_tables.append({name, columns, rows, statedRows});
    }
    QStringList tableNames() override
    {
        QStringList names;
        for (const SourceTable& table : std::as_const(m_tables))
            names << table.name;
        return names;
    }
    std::optional<SourceTable> readTable(const QString& name) override
    {
        for (const SourceTable& table : std::as_const(m_tables)) {
            if (table.name.compare(name, Qt::CaseInsensitive) == 0)
                return table;
        }
        return std::nullopt;
    }

private:
    QList<SourceTable> m_tables;
};

const QVariant Null;

// Every register table with rows that carry Null values, dates with and without a time,
// Lithuanian text, quotes, a long memo and keys with gaps.
MemorySource fullSource(const QString& memo)
{
    MemorySource source;
    source.add("tbl_Document_Categories",
        {"KategID", "DokKategorija", "Mnemonic", "DokKategDaug", "DokTemplates", "DokTemplatesExel",
            "DokTemplatesPowPoint"},
        {{"3", "Sutartys", "S", "Sutarčių", "C:\\Šablonai\\sutartis.dot", Null, Null},
            {"7", "Įsakymai", Null, Null, Null, "ataskaita.xlt", "pristatymas.pot"}});
    source.add("tbl_Sub_Categories",
        {"SubKategID", "KategID", "DokSubKategorija", "SubPathToFiles", "SubDokTemplates",
            "SubDokTemplatesExel", "SubDokTemplatesPowPoint"},
        {{"12", "3", "Nuomos", "D:\\Dokumentai\\Nuoma", Null, Null, Null}});
    source.add("tbl_Contacts",
        {"ContactID", "CompanyName", "Title", "Dear", "FullName", "Address", "City", "StateOrProvince",
            "PostalCode", "Region", "Country", "EmailName", "Notes"},
        {{"1", "UAB \"Žalgiris\"", "Direktorius", "Gerb.", "Ąžuolas Šimkūnas", "Gedimino pr. 1", "Vilnius",
             Null, "LT-01103", Null, "Lietuva", "a@zalgiris.lt", memo},
            {"40", Null, Null, Null, "O'Brien", Null, Null, Null, Null, Null, Null, Null, Null}});
    source.add("tbl_Phones", {"PhoneID", "ContactID", "PhoneName", "PhoneNumber"},
        {{"5", "1", "Darbo", "+370 5 212 3456"}});
    source.add("tbl_HomePages", {"HomeID", "ContactID", "Description", "HomeWWW"},
        {{"9", "40", "Svetainė", "https://example.lt/"}});
    source.add("tbl_Documents",
        {"RastasID", "DokGavSiuntData", "DokRegistracData", "DokRegistracIndeksas", "DokAntraste",
            "DokVykdytojas", "DokIvykdymoZyma", "RastoKel", "ContactID", "KategID", "SubKategID",
            "DokPastaba", "KryptisID"},
        {{"100", "2003-12-31 00:00:00", "2004-01-02 00:00:00", "S-1", "Nuomos sutartis", "Jonaitė",
             "Įvykdyta", "D:\\Dokumentai\\S-1.doc", "1", "3", "12", "Pastaba", "1"},
            {"101", Null, "2004-02-29 14:30:05", Null, Null, Null, Null, Null, Null, Null, Null, Null, "4"}});
    source.add("tbl_Sub_Documents",
        {"SubRastasID", "RastasID", "SubDocDescript", "ContactID", "SubRastoKelias", "SubRastGavimoData"},
        {{"2", "100", "Priedas", "40", "D:\\Priedas.doc", "2004-01-05 00:00:00"}});
    source.add("tbl_Tickler", {"TicklerID", "RastasID", "TicklerDate", "TicklerText"},
        {{"8", "101", "2004-03-01 00:00:00", "Priminti"}});
    return source;
}

// Each row of table as field values in key order.
QList<QVariantList> readBack(const test::TestRegister& reg, const TableMapping& mapping)
{
    Connection connection;
    connection.open(reg.connectionString());
    Recordset rows;
    rows.open(QStringLiteral("SELECT * FROM ") + mapping.table + QStringLiteral(" ORDER BY ")
            + mapping.fields.first().name,
        connection);
    QList<QVariantList> result;
    for (; !rows.eof(); rows.moveNext()) {
        QVariantList row;
        for (const FieldMapping& field : mapping.fields)
            row << rows.fields(field.name).value();
        result << row;
    }
    return result;
}

// A stored value for comparison: Null as "<null>", a date as ISO, the rest as text.
QString shown(const QVariant& value)
{
    if (isNull(value))
        return QStringLiteral("<null>");
    if (value.typeId() == QMetaType::QDate)
        return value.toDate().toString(Qt::ISODate);
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    return value.toString();
}

} // namespace

class MappingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTableAndFieldArrives()
    {
        const QString memo = QString(70000, u'ū') + QStringLiteral("\npabaiga");
        MemorySource source = fullSource(memo);
        test::TestRegister reg;
        const MigrationReport report = migrateRegister(source, reg.path());
        QVERIFY(report.complete());
        QCOMPARE(report.tables.size(), 8);
        QVERIFY(report.otherTables.isEmpty());

        for (const TableMapping& mapping : registerTables()) {
            const SourceTable original = *source.readTable(mapping.table);
            const QList<QVariantList> stored = readBack(reg, mapping);
            QCOMPARE(stored.size(), original.rows.size());
            for (int r = 0; r < stored.size(); ++r) {
                for (int f = 0; f < mapping.fields.size(); ++f) {
                    QString expected = shown(original.rows.at(r).at(f));
                    if (mapping.fields.at(f).kind == FieldKind::Date && expected.endsWith(" 00:00:00"))
                        expected.chop(9);
                    QVERIFY2(shown(stored.at(r).at(f)) == expected,
                        qPrintable(mapping.table + " " + mapping.fields.at(f).name + ": "
                            + shown(stored.at(r).at(f)).left(60) + " != " + expected.left(60)));
                }
            }
        }
        QCOMPARE(report.lines(),
            QStringList(
                {"tbl_Document_Categories: 2 read, 2 written", "tbl_Sub_Categories: 1 read, 1 written",
                    "tbl_Contacts: 2 read, 2 written", "tbl_Phones: 1 read, 1 written",
                    "tbl_HomePages: 1 read, 1 written", "tbl_Documents: 2 read, 2 written",
                    "tbl_Sub_Documents: 1 read, 1 written", "tbl_Tickler: 1 read, 1 written"}));

        // New rows continue after the highest migrated key.
        const qint32 next = reg.insert("tbl_Documents", {{"DokAntraste", "Naujas"}});
        QCOMPARE(next, 102);
    }

    void missingTablesAndFieldsAreNamed()
    {
        MemorySource source;
        source.add("TBL_CONTACTS", {"ContactID", "FullName", "Fax"}, {{"4", "Ona Petraitienė", "123"}});
        source.add("tbl_Phones", {"PhoneID", "ContactID", "PhoneName", "PhoneNumber"},
            {{"1", "4", "Darbo", "8 5 2000000"}, {"2", "4", Null, Null}}, 3);
        source.add("Switchboard Items", {"ItemNumber"}, {});
        test::TestRegister reg;
        const MigrationReport report = migrateRegister(source, reg.path());
        QVERIFY(!report.complete());
        QCOMPARE(reg.scalar("SELECT FullName FROM tbl_Contacts WHERE ContactID = 4").toString(),
            QStringLiteral("Ona Petraitienė"));
        QVERIFY(isNull(reg.scalar("SELECT Dear FROM tbl_Contacts WHERE ContactID = 4")));
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Phones").toInt(), 2);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 0);
        QCOMPARE(report.lines(),
            QStringList({"tbl_Document_Categories: missing from the old file",
                "tbl_Sub_Categories: missing from the old file", "tbl_Contacts: 1 read, 1 written",
                "  fields missing from the old file (left empty): CompanyName, Title, Dear, Address, City, "
                "StateOrProvince, PostalCode, Region, Country, EmailName, Notes",
                "  fields of the old file not migrated: Fax", "tbl_Phones: 2 read, 2 written",
                "  the old file counts 3 rows in this table", "tbl_HomePages: missing from the old file",
                "tbl_Documents: missing from the old file", "tbl_Sub_Documents: missing from the old file",
                "tbl_Tickler: missing from the old file",
                "Other tables of the old file, not migrated: Switchboard Items"}));
    }

    void badValueWritesNothing()
    {
        MemorySource source;
        source.add("tbl_Contacts", {"ContactID", "FullName"}, {{"1", "Jonas"}});
        source.add("tbl_Documents", {"RastasID", "DokRegistracData"},
            {{"1", "2004-01-02 00:00:00"}, {"2", "2004-02-30 00:00:00"}});
        test::TestRegister reg;
        try {
            migrateRegister(source, reg.path());
            QFAIL("a date that doesn't exist was taken");
        } catch (const Error& error) {
            QCOMPARE(error.description(),
                QStringLiteral(
                    "tbl_Documents, row 2, field DokRegistracData: \"2004-02-30 00:00:00\" is no date."));
        }
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Contacts").toInt(), 0);
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 0);
    }

    void convertsValues_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QVariant>("raw");
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<bool>("fits");
        const int integer = int(FieldKind::Integer);
        const int date = int(FieldKind::Date);
        const int text = int(FieldKind::Text);
        QTest::newRow("whole number") << integer << QVariant("2147483647") << QVariant(2147483647LL) << true;
        QTest::newRow("negative") << integer << QVariant("-1") << QVariant(-1LL) << true;
        QTest::newRow("printed as real") << integer << QVariant("12.0") << QVariant(12LL) << true;
        QTest::newRow("fraction") << integer << QVariant("1.5") << QVariant() << false;
        QTest::newRow("word") << integer << QVariant("du") << QVariant() << false;
        QTest::newRow("null number") << integer << QVariant() << QVariant() << true;
        QTest::newRow("midnight") << date << QVariant("1899-12-30 00:00:00") << QVariant(QDate(1899, 12, 30))
                                  << true;
        QTest::newRow("with time") << date << QVariant("2024-03-05 23:59:59")
                                   << QVariant("2024-03-05 23:59:59") << true;
        QTest::newRow("leap day") << date << QVariant("2000-02-29 00:00:00") << QVariant(QDate(2000, 2, 29))
                                  << true;
        QTest::newRow("no such day") << date << QVariant("2100-02-29 00:00:00") << QVariant() << false;
        QTest::newRow("year 100") << date << QVariant("0100-01-01 00:00:01")
                                  << QVariant("0100-01-01 00:00:01") << true;
        QTest::newRow("year 99") << date << QVariant("0099-12-31 00:00:00") << QVariant() << false;
        QTest::newRow("year 9999") << date << QVariant("9999-12-31") << QVariant(QDate(9999, 12, 31)) << true;
        QTest::newRow("minus year") << date << QVariant("-2024-03-05 14:30:01") << QVariant() << false;
        QTest::newRow("month first") << date << QVariant("03/05/24 00:00:00") << QVariant() << false;
        QTest::newRow("null date") << date << QVariant() << QVariant() << true;
        QTest::newRow("text kept") << text << QVariant("  Šiauliai ") << QVariant("  Šiauliai ") << true;
        QTest::newRow("empty text") << text << QVariant("") << QVariant("") << true;
    }

    void convertsValues()
    {
        QFETCH(int, kind);
        QFETCH(QVariant, raw);
        QFETCH(QVariant, expected);
        QFETCH(bool, fits);
        QString problem;
        const QVariant value = convertValue(raw, FieldKind(kind), problem);
        QCOMPARE(problem.isEmpty(), fits);
        if (fits)
            QCOMPARE(value, expected);
    }
};

int runMappingTest(int argc, char** argv)
{
    MappingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_migration.moc"
