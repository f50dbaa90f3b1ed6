#include "base/Error.h"
#include "harness/TestRegister.h"
#include "store/SampleRegister.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace kartella;
using namespace kartella::test;

namespace {

const QDate today(2024, 5, 20);

QStringList column(const TestRegister& reg, const QString& sql)
{
    Connection connection(reg.connectionString());
    connection.open();
    Recordset recordset;
    recordset.open(sql, connection);
    QStringList values;
    for (; !recordset.eof(); recordset.moveNext())
        values << recordset.fields(0).value().toString();
    return values;
}

QSet<QString> valueSet(const QStringList& values)
{
    return QSet<QString>(values.cbegin(), values.cend());
}

int count(const TestRegister& reg, const QString& fromWhere)
{
    return reg.scalar("SELECT COUNT(*) " + fromWhere).toInt();
}

// Every row of every table as text, the register's own folder written as "<dir>".
QString dump(const TestRegister& reg)
{
    const QList<QPair<QString, QString>> tables = {
        {"tbl_Document_Categories", "KategID"},
        {"tbl_Sub_Categories", "SubKategID"},
        {"tbl_Contacts", "ContactID"},
        {"tbl_Phones", "PhoneID"},
        {"tbl_HomePages", "HomeID"},
        {"tbl_Documents", "RastasID"},
        {"tbl_Sub_Documents", "SubRastasID"},
        {"tbl_Tickler", "TicklerID"},
    };
    Connection connection(reg.connectionString());
    connection.open();
    QString dump;
    for (const auto& [table, key] : tables) {
        Recordset recordset;
        recordset.open("SELECT * FROM " + table + " ORDER BY " + key, connection);
        for (; !recordset.eof(); recordset.moveNext()) {
            QStringList fields;
            for (int i = 0; i < recordset.fieldCount(); ++i)
                fields << recordset.fields(i).value().toString();
            dump += table + ':' + fields.join('|') + '\n';
        }
    }
    return dump.replace(QDir::toNativeSeparators(reg.dir()), "<dir>");
}

SampleOptions sampleOptions(int documents, quint32 seed = 7)
{
    SampleOptions options;
    options.documents = documents;
    options.today = today;
    options.seed = seed;
    return options;
}

} // namespace

class SampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsEveryKindOfRow()
    {
        TestRegister reg;
        reg.fillSample(sampleOptions(300));

        QCOMPARE(count(reg, "FROM tbl_Documents"), 300);
        QVERIFY(count(reg, "FROM tbl_Document_Categories") >= 8);
        QCOMPARE(count(reg, "FROM tbl_Contacts"), 60);

        // Categories: some without mnemonic, folder or subcategories.
        QVERIFY(count(reg, "FROM tbl_Document_Categories WHERE Mnemonic IS NULL") > 0);
        QVERIFY(count(reg, "FROM tbl_Document_Categories WHERE Mnemonic IS NOT NULL") > 0);
        QVERIFY(count(reg, "FROM tbl_Document_Categories WHERE DokKategDaug IS NULL") > 0);
        QVERIFY(
            count(reg,
                "FROM tbl_Document_Categories WHERE KategID NOT IN (SELECT KategID FROM tbl_Sub_Categories)")
            > 0);
        QVERIFY(count(reg, "FROM tbl_Sub_Categories") > 0);
        QCOMPARE(count(reg, "FROM tbl_Document_Categories WHERE LENGTH(Mnemonic) > 3"), 0);

        // Contacts: Lithuanian initials, lower-case initials, companies without a name.
        const QStringList names = column(reg, "SELECT FullName FROM tbl_Contacts WHERE FullName IS NOT NULL");
        for (const char* initial : {"Ą", "Č", "Š", "Ž"}) {
            QVERIFY2(std::any_of(names.cbegin(), names.cend(),
                         [&](const QString& name) { return name.startsWith(QString::fromUtf8(initial)); }),
                initial);
        }
        QVERIFY(std::any_of(
            names.cbegin(), names.cend(), [](const QString& name) { return name.at(0).isLower(); }));
        QVERIFY(count(reg, "FROM tbl_Contacts WHERE FullName IS NULL AND CompanyName IS NOT NULL") > 0);
        QCOMPARE(valueSet(column(reg, "SELECT DISTINCT PhoneName FROM tbl_Phones")),
            QSet<QString>({"Business", "Home", "Mobile", "Fax"}));
        QVERIFY(
            count(reg, "FROM tbl_Contacts WHERE ContactID NOT IN (SELECT ContactID FROM tbl_Phones)") > 0);
        QVERIFY(
            count(reg, "FROM tbl_Contacts WHERE ContactID NOT IN (SELECT ContactID FROM tbl_HomePages)") > 0);
        QVERIFY(count(reg, "FROM tbl_HomePages") > 0);

        // Documents: three months back from today, four directions, each part sometimes missing.
        QCOMPARE(valueSet(column(reg, "SELECT DISTINCT KryptisID FROM tbl_Documents")),
            QSet<QString>({"1", "2", "3", "4"}));
        QCOMPARE(reg.scalar("SELECT MAX(DokRegistracData) FROM tbl_Documents").toDate(), today);
        QVERIFY(reg.scalar("SELECT MIN(DokRegistracData) FROM tbl_Documents").toDate() > today.addMonths(-3));
        for (int month = 0; month < 3; ++month) {
            const QDate first = QDate(today.year(), today.month(), 1).addMonths(-month);
            QVERIFY(
                count(reg,
                    QString("FROM tbl_Documents WHERE DokRegistracData >= #%1# AND DokRegistracData < #%2#")
                        .arg(first.toString("M/d/yyyy"), first.addMonths(1).toString("M/d/yyyy")))
                > 0);
        }
        for (const char* field : {"ContactID", "KategID", "RastoKel", "DokPastaba", "SubKategID"})
            QVERIFY2(count(reg, QString("FROM tbl_Documents WHERE %1 IS NULL").arg(field)) > 0, field);
        QVERIFY(count(reg, "FROM tbl_Sub_Documents WHERE SubRastoKelias IS NULL") > 0);
        QVERIFY(count(reg, "FROM tbl_Sub_Documents WHERE SubRastoKelias IS NOT NULL") > 0);
        QVERIFY(count(reg, "FROM tbl_Tickler") > 0);
        QCOMPARE(
            count(reg, "FROM tbl_Sub_Documents WHERE RastasID NOT IN (SELECT RastasID FROM tbl_Documents)"),
            0);

        // Files: most named paths exist, a few don't, of every type.
        QStringList paths = column(reg, "SELECT RastoKel FROM tbl_Documents WHERE RastoKel IS NOT NULL");
        paths += column(reg, "SELECT SubRastoKelias FROM tbl_Sub_Documents WHERE SubRastoKelias IS NOT NULL");
        QSet<QString> types;
        int missing = 0;
        for (const QString& path : std::as_const(paths)) {
            const QFileInfo info(path);
            QVERIFY2(info.absoluteFilePath().startsWith(sampleFilesFolder(reg.path())), qPrintable(path));
            if (!info.exists()) {
                ++missing;
                continue;
            }
            QVERIFY(info.size() > 0);
            types << info.suffix();
        }
        QVERIFY(missing > 0 && missing <= 5);
        QCOMPARE(types, QSet<QString>({"doc", "xls", "ppt", "pdf", "txt", "odt"}));
        QVERIFY(paths.size() - missing <= 300);
    }

    void sameSeedSameRegister()
    {
        TestRegister first;
        first.fillSample(sampleOptions(120, 11));
        TestRegister second;
        second.fillSample(sampleOptions(120, 11));
        TestRegister other;
        other.fillSample(sampleOptions(120, 12));
        const QString dumped = dump(first);
        QVERIFY(dumped.count('\n') > 300);
        QCOMPARE(dump(second), dumped);
        QVERIFY(dump(other) != dumped);
    }

    void fillsOnlyAnEmptyRegister()
    {
        TestRegister reg;
        reg.insert("tbl_Contacts", {{"FullName", "Jau Esantis"}});
        QVERIFY_THROWS_EXCEPTION(Error, reg.fillSample(sampleOptions(10)));
        QCOMPARE(count(reg, "FROM tbl_Contacts"), 1);
        QCOMPARE(count(reg, "FROM tbl_Documents"), 0);
    }

    void smallAndEmptySamples_data()
    {
        QTest::addColumn<int>("documents");
        QTest::addColumn<int>("filesOnDisk");
        QTest::newRow("no documents") << 0 << -1;
        QTest::newRow("one document") << 1 << -1;
        QTest::newRow("no files") << 40 << 0;
        QTest::newRow("all files") << 25 << 25;
    }

    void smallAndEmptySamples()
    {
        QFETCH(int, documents);
        QFETCH(int, filesOnDisk);
        TestRegister reg;
        SampleOptions options = sampleOptions(documents);
        options.filesOnDisk = filesOnDisk;
        reg.fillSample(options);
        QCOMPARE(count(reg, "FROM tbl_Documents"), documents);
        int existing = 0;
        for (const QString& path :
            column(reg, "SELECT RastoKel FROM tbl_Documents WHERE RastoKel IS NOT NULL"))
            existing += QFileInfo::exists(path) ? 1 : 0;
        if (filesOnDisk >= 0)
            QCOMPARE(existing, filesOnDisk);
    }
};

int runSampleTest(int argc, char** argv)
{
    SampleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sample.moc"
