#include "harness/TestRegister.h"
#include "store/SampleRegister.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "support/Error.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace kartella;
using namespace kartella::test;

namespace {

const QDate Today(2024, 5, 20);

QStringList Column(const TestRegister& reg, const QString& sql)
{
    Connection connection(reg.connectionString());
    connection.Open();
    Recordset recordset;
    recordset.Open(sql, connection);
    QStringList values;
    for (; !recordset.Eof(); recordset.MoveNext())
        values << recordset.Fields(0).Value().toString();
    return values;
}

QSet<QString> ValueSet(const QStringList& values)
{
    return QSet<QString>(values.cbegin(), values.cend());
}

int Count(const TestRegister& reg, const QString& fromWhere)
{
    return reg.scalar("SELECT COUNT(*) " + fromWhere).toInt();
}

// Every row of every table as text, the register's own folder written as "<dir>".
QString Dump(const TestRegister& reg)
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
    connection.Open();
    QString dump;
    for (const auto& [table, key] : tables) {
        Recordset recordset;
        recordset.Open("SELECT * FROM " + table + " ORDER BY " + key, connection);
        for (; !recordset.Eof(); recordset.MoveNext()) {
            QStringList fields;
            for (int i = 0; i < recordset.FieldCount(); ++i)
                fields << recordset.Fields(i).Value().toString();
            dump += table + ':' + fields.join('|') + '\n';
        }
    }
    return dump.replace(QDir::toNativeSeparators(reg.dir()), "<dir>");
}

SampleOptions Options(int documents, quint32 seed = 7)
{
    SampleOptions options;
    options.documents = documents;
    options.today = Today;
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
        reg.fillSample(Options(300));

        QCOMPARE(Count(reg, "FROM tbl_Documents"), 300);
        QVERIFY(Count(reg, "FROM tbl_Document_Categories") >= 8);
        QCOMPARE(Count(reg, "FROM tbl_Contacts"), 60);

        // Categories: some without mnemonic, folder or subcategories.
        QVERIFY(Count(reg, "FROM tbl_Document_Categories WHERE Mnemonic IS NULL") > 0);
        QVERIFY(Count(reg, "FROM tbl_Document_Categories WHERE Mnemonic IS NOT NULL") > 0);
        QVERIFY(Count(reg, "FROM tbl_Document_Categories WHERE DokKategDaug IS NULL") > 0);
        QVERIFY(
            Count(reg,
                "FROM tbl_Document_Categories WHERE KategID NOT IN (SELECT KategID FROM tbl_Sub_Categories)")
            > 0);
        QVERIFY(Count(reg, "FROM tbl_Sub_Categories") > 0);
        QCOMPARE(Count(reg, "FROM tbl_Document_Categories WHERE LENGTH(Mnemonic) > 3"), 0);

        // Contacts: Lithuanian initials, lower-case initials, companies without a name.
        const QStringList names = Column(reg, "SELECT FullName FROM tbl_Contacts WHERE FullName IS NOT NULL");
        for (const char* initial : {"Ą", "Č", "Š", "Ž"}) {
            QVERIFY2(std::any_of(names.cbegin(), names.cend(),
                         [&](const QString& name) { return name.startsWith(QString::fromUtf8(initial)); }),
                initial);
        }
        QVERIFY(std::any_of(
            names.cbegin(), names.cend(), [](const QString& name) { return name.at(0).isLower(); }));
        QVERIFY(Count(reg, "FROM tbl_Contacts WHERE FullName IS NULL AND CompanyName IS NOT NULL") > 0);
        QCOMPARE(ValueSet(Column(reg, "SELECT DISTINCT PhoneName FROM tbl_Phones")),
            QSet<QString>({"Business", "Home", "Mobile", "Fax"}));
        QVERIFY(
            Count(reg, "FROM tbl_Contacts WHERE ContactID NOT IN (SELECT ContactID FROM tbl_Phones)") > 0);
        QVERIFY(
            Count(reg, "FROM tbl_Contacts WHERE ContactID NOT IN (SELECT ContactID FROM tbl_HomePages)") > 0);
        QVERIFY(Count(reg, "FROM tbl_HomePages") > 0);

        // Documents: three months back from today, four directions, each part sometimes missing.
        QCOMPARE(ValueSet(Column(reg, "SELECT DISTINCT KryptisID FROM tbl_Documents")),
            QSet<QString>({"1", "2", "3", "4"}));
        QCOMPARE(reg.scalar("SELECT MAX(DokRegistracData) FROM tbl_Documents").toDate(), Today);
        QVERIFY(reg.scalar("SELECT MIN(DokRegistracData) FROM tbl_Documents").toDate() > Today.addMonths(-3));
        for (int month = 0; month < 3; ++month) {
            const QDate first = QDate(Today.year(), Today.month(), 1).addMonths(-month);
            QVERIFY(
                Count(reg,
                    QString("FROM tbl_Documents WHERE DokRegistracData >= #%1# AND DokRegistracData < #%2#")
                        .arg(first.toString("M/d/yyyy"), first.addMonths(1).toString("M/d/yyyy")))
                > 0);
        }
        for (const char* field : {"ContactID", "KategID", "RastoKel", "DokPastaba", "SubKategID"})
            QVERIFY2(Count(reg, QString("FROM tbl_Documents WHERE %1 IS NULL").arg(field)) > 0, field);
        QVERIFY(Count(reg, "FROM tbl_Sub_Documents WHERE SubRastoKelias IS NULL") > 0);
        QVERIFY(Count(reg, "FROM tbl_Sub_Documents WHERE SubRastoKelias IS NOT NULL") > 0);
        QVERIFY(Count(reg, "FROM tbl_Tickler") > 0);
        QCOMPARE(
            Count(reg, "FROM tbl_Sub_Documents WHERE RastasID NOT IN (SELECT RastasID FROM tbl_Documents)"),
            0);

        // Files: most named paths exist, a few don't, of every type.
        QStringList paths = Column(reg, "SELECT RastoKel FROM tbl_Documents WHERE RastoKel IS NOT NULL");
        paths += Column(reg, "SELECT SubRastoKelias FROM tbl_Sub_Documents WHERE SubRastoKelias IS NOT NULL");
        QSet<QString> types;
        int missing = 0;
        for (const QString& path : std::as_const(paths)) {
            const QFileInfo info(path);
            QVERIFY2(info.absoluteFilePath().startsWith(SampleFilesFolder(reg.path())), qPrintable(path));
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
        first.fillSample(Options(120, 11));
        TestRegister second;
        second.fillSample(Options(120, 11));
        TestRegister other;
        other.fillSample(Options(120, 12));
        const QString dump = Dump(first);
        QVERIFY(dump.count('\n') > 300);
        QCOMPARE(Dump(second), dump);
        QVERIFY(Dump(other) != dump);
    }

    void fillsOnlyAnEmptyRegister()
    {
        TestRegister reg;
        reg.insert("tbl_Contacts", {{"FullName", "Jau Esantis"}});
        QVERIFY_THROWS_EXCEPTION(Error, reg.fillSample(Options(10)));
        QCOMPARE(Count(reg, "FROM tbl_Contacts"), 1);
        QCOMPARE(Count(reg, "FROM tbl_Documents"), 0);
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
        SampleOptions options = Options(documents);
        options.filesOnDisk = filesOnDisk;
        reg.fillSample(options);
        QCOMPARE(Count(reg, "FROM tbl_Documents"), documents);
        int existing = 0;
        for (const QString& path :
            Column(reg, "SELECT RastoKel FROM tbl_Documents WHERE RastoKel IS NOT NULL"))
            existing += QFileInfo::exists(path) ? 1 : 0;
        if (filesOnDisk >= 0)
            QCOMPARE(existing, filesOnDisk);
    }
};

int RunSampleTest(int argc, char** argv)
{
    SampleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sample.moc"
