#include "EngineFixture.h"
#include "store/engine/Recordset.h"

#include <QTest>

using namespace kartella;
using namespace kartella::test;

// SHAPE ... COMPUTE: rows grouped by fields, with aggregates over each group.
class ShapeComputeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void computeGroups()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("INSERT INTO tbl_Document_Categories (KategID, DokKategorija) VALUES (7, 'Sutartys'), "
                    "(8, 'Aktai')");
        reg.execute("INSERT INTO tbl_Documents (RastasID, ContactID, KategID) VALUES (4, 3, 8), (5, 1, 8)");
        Recordset groups;
        groups.open(
            "SHAPE {SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName, tbl_Contacts.CompanyName, "
            "tbl_Documents.RastasID, tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokRegistracData, "
            "tbl_Documents.DokAntraste, tbl_Documents.KategID, tbl_Document_Categories.DokKategorija FROM "
            "tbl_Document_Categories, tbl_Contacts, tbl_Documents WHERE tbl_Document_Categories.KategID = "
            "tbl_Documents.KategID AND tbl_Contacts.ContactID = tbl_Documents.ContactID ORDER BY "
            "tbl_Contacts.FullName}  AS DocByCor COMPUTE DocByCor, COUNT(DocByCor.'RastasID') AS Aggr1 BY "
            "'ContactID','FullName'",
            reg.connection());
        QCOMPARE(groups.fieldNames(), QStringList({"ContactID", "FullName", "Aggr1", "DocByCor"}));
        QStringList seen;
        while (!groups.eof()) {
            Recordset* chapter = groups.chapter("DocByCor");
            QStringList documents = rows(*chapter, {"RastasID"});
            documents.sort();
            seen << groups.collect("FullName").toString() + u'=' + groups.collect("Aggr1").toString() + u':'
                    + documents.join(u',');
            groups.moveNext();
        }
        QCOMPARE(seen, QStringList({"Petras=3:1,2,5", "Šarūnas=1:4"}));
    }

    // A group's parent row holds its key as read, whatever its kind.
    void groupKeysOfEveryKind_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QVariant>("key");
        QTest::newRow("whole number") << "INTEGER"
                                      << "5"
                                      << "6" << QVariant(5);
        QTest::newRow("real") << "REAL"
                              << "2.5"
                              << "3.5" << QVariant(2.5);
        QTest::newRow("text") << "TEXT"
                              << "'ąžuolas'"
                              << "'b'" << QVariant(QStringLiteral("ąžuolas"));
        QTest::newRow("date") << "DATE"
                              << "'2024-03-05'"
                              << "'2024-03-06'" << QVariant(QDate(2024, 3, 5));
        QTest::newRow("date and time")
            << "DATETIME"
            << "'2024-03-05 14:30:00'"
            << "'2024-03-05 14:31:00'" << QVariant(QDateTime(QDate(2024, 3, 5), QTime(14, 30)));
        QTest::newRow("bytes") << "BLOB"
                               << "x'00ff41'"
                               << "x'00'"
                               << QVariant(QByteArray("\0\xff"
                                                      "A",
                                      3));
    }

    void groupKeysOfEveryKind()
    {
        QFETCH(QString, type);
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QVariant, key);
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("the file's own column types");
        reg.execute("CREATE TABLE kinds (id INTEGER PRIMARY KEY, k " + type + ", v INTEGER)");
        reg.execute(
            QStringLiteral("INSERT INTO kinds (k, v) VALUES (%1, 1), (%2, 2), (%1, 4)").arg(first, second));
        Recordset groups;
        groups.open("SHAPE {SELECT k, v FROM kinds ORDER BY id} AS c COMPUTE c, SUM(c.v) AS S BY 'k'",
            reg.connection());
        QCOMPARE(groups.recordCount(), 2);
        const QVariant read = groups.collect("k");
        QCOMPARE(read.typeId(), key.typeId());
        QCOMPARE(read, key);
        QCOMPARE(groups.collect("S").toInt(), 5);
        QCOMPARE(groups.chapter("c")->recordCount(), 2);
    }

    // Groups in order of first appearance, Null grouping with Null, from a RIGHT JOIN.
    void computeWithNulls()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute("INSERT INTO tbl_Document_Categories (KategID, DokKategorija) VALUES (7, 'Sutartys'), "
                    "(8, 'Aktai')");
        Recordset groups;
        groups.open(
            "SHAPE {SELECT tbl_Documents.RastasID, tbl_Documents.DokRegistracData, "
            "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, tbl_Documents.ContactID, "
            "tbl_Contacts.FullName, tbl_Documents.KategID, tbl_Document_Categories.DokKategorija\r\nFROM "
            "tbl_Contacts RIGHT JOIN (tbl_Document_Categories INNER JOIN tbl_Documents ON "
            "tbl_Document_Categories.KategID=tbl_Documents.KategID) ON "
            "tbl_Contacts.ContactID=tbl_Documents.ContactID\r\n}  AS Command2 COMPUTE Command2 BY "
            "'FullName'",
            reg.connection());
        QCOMPARE(groups.recordCount(), 2);
        QStringList seen;
        while (!groups.eof()) {
            seen << groups.collect("FullName").toString() + u':'
                    + QString::number(groups.chapter("Command2")->recordCount());
            groups.moveNext();
        }
        seen.sort();
        QCOMPARE(seen, QStringList({":1", "Petras:2"}));
    }

    // Each aggregate over the rows of its group: COUNT of the chapter counts rows, COUNT of a
    // field its values; SUM, AVG, MIN and MAX pass over Null and give Null for no value at all.
    // Texts equal but for their case tie, and the first of them stands; the first value of a
    // group is neither its least nor its greatest.
    void computeAggregates()
    {
        EngineRegister reg;
        reg.execute(
            "INSERT INTO tbl_Contacts (ContactID, FullName, City) VALUES (1, 'Jonas', 'Vilnius'), "
            "(2, 'Ana', 'Vilnius'), (3, 'Petras', 'Vilnius'), (4, 'ana', 'Vilnius'), "
            "(5, 'Zita', 'Kaunas'), (6, Null, 'Kaunas'), (7, Null, 'Klaipėda'), (8, 'PETRAS', 'Vilnius')");
        Recordset groups;
        groups.open("SHAPE {SELECT ContactID, FullName, City FROM tbl_Contacts ORDER BY ContactID} AS c "
                    "COMPUTE c, COUNT(c) AS People, COUNT(c.FullName) AS Names, SUM(c.ContactID) AS Total, "
                    "AVG(c.ContactID) AS Mean, MIN(c.FullName) AS First, MAX(c.FullName) AS Last BY City",
            reg.connection());
        QCOMPARE(rows(groups, {"City", "People", "Names", "Total", "Mean", "First", "Last"}),
            QStringList(
                {"Vilnius|5|5|18|3.6|Ana|Petras", "Kaunas|2|1|11|5.5|Zita|Zita", "Klaipėda|1|0|7|7|-|-"}));
    }
};

int runShapeComputeTest(int argc, char** argv)
{
    ShapeComputeTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_shape_compute.moc"
