#include "explorer/DocumentQueries.h"
#include "options/OptionStore.h"

#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;

namespace {

const QString Base = QStringLiteral(
    "SELECT tbl_Documents.RastasID, tbl_Documents.DokGavSiuntData, tbl_Documents.DokRegistracData, "
    "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, tbl_Documents.DokVykdytojas, "
    "tbl_Documents.DokIvykdymoZyma, tbl_Documents.RastoKel, tbl_Documents.ContactID, tbl_Contacts.FullName, "
    "tbl_Documents.KategID, tbl_Documents.DokPastaba FROM tbl_Contacts RIGHT JOIN tbl_Documents ON "
    "tbl_Contacts.ContactID = tbl_Documents.ContactID ");
const QString Range
    = QStringLiteral("WHERE tbl_Documents.DokRegistracData between #3/1/2024# and #4/1/2024#");
const QString Order = QStringLiteral(" ORDER BY tbl_Documents.DokRegistracData");
const QDate rangeStart(2024, 3, 1);
const QDate rangeEnd(2024, 4, 1);

} // namespace

class QueriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void workedExample()
    {
        QCOMPARE(categoryListSql(7, 3, true, rangeStart, rangeEnd),
            QString(Base
                + "WHERE tbl_Documents.DokRegistracData between #3/1/2024# and #4/1/2024# AND "
                  "tbl_Documents.KategID=7 AND tbl_Documents.KryptisID=3 ORDER BY "
                  "tbl_Documents.DokRegistracData"));
        QCOMPARE(datedDocumentSql(rangeStart, rangeEnd), QString(Base + Range));
    }

    // Builders: A categoryListSql, B categoryDatedListSql, C subCategoryListSql, D subCategoryDatedListSql,
    // E contactDocumentSql, F contactDatedDocumentSql. "tail" follows the base text.
    void builders_data()
    {
        QTest::addColumn<char>("rule");
        QTest::addColumn<int>("category");
        QTest::addColumn<int>("subCategory");
        QTest::addColumn<int>("direction");
        QTest::addColumn<bool>("filterOn");
        QTest::addColumn<QString>("tail");

        const QString cat = QStringLiteral(" AND tbl_Documents.KategID=7");
        const QString sub = QStringLiteral(" AND tbl_Documents.SubKategID=12");
        const QString dir = QStringLiteral(" AND tbl_Documents.KryptisID=3");
        const QString whereCat = QStringLiteral(" WHERE tbl_Documents.KategID=7");
        const QString whereDir = QStringLiteral(" WHERE tbl_Documents.KryptisID=3");

        QTest::newRow("A off, nothing") << 'A' << 0 << 0 << 0 << false << Order;
        QTest::newRow("A off, category") << 'A' << 7 << 0 << 0 << false << QString(whereCat + Order);
        QTest::newRow("A off, both") << 'A' << 7 << 0 << 3 << false << QString(whereCat + dir + Order);
        QTest::newRow("A off, direction") << 'A' << 0 << 0 << 3 << false << QString(whereDir + Order);
        QTest::newRow("A on, nothing") << 'A' << 0 << 0 << 0 << true << QString(Range + Order);
        QTest::newRow("A on, category") << 'A' << 7 << 0 << 0 << true << QString(Range + cat + Order);
        QTest::newRow("A on, direction") << 'A' << 0 << 0 << 3 << true << QString(Range + dir + Order);
        QTest::newRow("B, nothing") << 'B' << 0 << 0 << 0 << false << QString(Range + Order);
        QTest::newRow("B, direction") << 'B' << 0 << 0 << 3 << false << QString(Range + dir + Order);
        QTest::newRow("B, both") << 'B' << 7 << 0 << 3 << false << QString(Range + cat + dir + Order);
        QTest::newRow("C off, subcategory alone is ignored") << 'C' << 0 << 12 << 0 << false << Order;
        QTest::newRow("C off, no category") << 'C' << 0 << 12 << 3 << false << QString(whereDir + Order);
        QTest::newRow("C off, category, sub")
            << 'C' << 7 << 12 << 0 << false << QString(whereCat + sub + Order);
        QTest::newRow("C off, all") << 'C' << 7 << 12 << 3 << false << QString(whereCat + sub + dir + Order);
        QTest::newRow("C on, nothing") << 'C' << 0 << 0 << 0 << true << QString(Range + Order);
        QTest::newRow("C on, sub alone") << 'C' << 0 << 12 << 0 << true << QString(Range + sub + Order);
        QTest::newRow("C on, all") << 'C' << 7 << 12 << 3 << true << QString(Range + cat + sub + dir + Order);
        QTest::newRow("D, nothing") << 'D' << 0 << 0 << 0 << false << QString(Range + Order);
        QTest::newRow("D, sub, direction")
            << 'D' << 0 << 12 << 3 << false << QString(Range + sub + dir + Order);
        QTest::newRow("D, all") << 'D' << 7 << 12 << 3 << false << QString(Range + cat + sub + dir + Order);
        QTest::newRow("E off, nothing") << 'E' << 0 << 0 << 0 << false << Order;
        QTest::newRow("E off, direction") << 'E' << 0 << 0 << 3 << false << QString(whereDir + Order);
        QTest::newRow("E on, nothing") << 'E' << 0 << 0 << 0 << true << QString(Range + Order);
        QTest::newRow("E on, direction") << 'E' << 0 << 0 << 3 << true << QString(Range + dir + Order);
        QTest::newRow("F, nothing") << 'F' << 0 << 0 << 0 << false << QString(Range + Order);
        QTest::newRow("F, direction") << 'F' << 0 << 0 << 3 << false << QString(Range + dir + Order);
    }

    void builders()
    {
        QFETCH(char, rule);
        QFETCH(int, category);
        QFETCH(int, subCategory);
        QFETCH(int, direction);
        QFETCH(bool, filterOn);
        QFETCH(QString, tail);
        QString sql;
        if (rule == 'A')
            sql = categoryListSql(category, direction, filterOn, rangeStart, rangeEnd);
        else if (rule == 'B')
            sql = categoryDatedListSql(category, direction, rangeStart, rangeEnd);
        else if (rule == 'C')
            sql = subCategoryListSql(category, subCategory, direction, filterOn, rangeStart, rangeEnd);
        else if (rule == 'D')
            sql = subCategoryDatedListSql(category, subCategory, direction, rangeStart, rangeEnd);
        else if (rule == 'E')
            sql = contactDocumentSql(direction, filterOn, rangeStart, rangeEnd);
        else
            sql = contactDatedDocumentSql(direction, rangeStart, rangeEnd);
        QCOMPARE(sql, QString(Base + tail));
    }

    void datesAreMonthFirstInAnyLocale_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("text");
        QTest::newRow("no leading zeros") << QDate(2024, 3, 5) << "3/5/2024";
        QTest::newRow("two digits") << QDate(1999, 12, 31) << "12/31/1999";
        QTest::newRow("day above 12") << QDate(2024, 1, 13) << "1/13/2024";
    }

    void datesAreMonthFirstInAnyLocale()
    {
        QFETCH(QDate, date);
        QFETCH(QString, text);
        QLocale::setDefault(QLocale(QLocale::Lithuanian, QLocale::Lithuania));
        const QString sql = datedDocumentSql(date, date);
        QLocale::setDefault(QLocale::c());
        QCOMPARE(sql,
            QString(Base + "WHERE tbl_Documents.DokRegistracData between #" + text + "# and #" + text + "#"));
    }

    void filterOption_data()
    {
        QTest::addColumn<QString>("stored"); // a null QString: no such value
        QTest::addColumn<bool>("on");
        QTest::newRow("1") << "1" << true;
        QTest::newRow("0") << "0" << false;
        QTest::newRow("-1") << "-1" << true;
        QTest::newRow("leading blank") << " 1" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("not a number") << "yes" << false;
        QTest::newRow("absent") << QString() << false;
    }

    void filterOption()
    {
        QFETCH(QString, stored);
        QFETCH(bool, on);
        QTemporaryDir config;
        qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
        QVERIFY(writeRegValue(Hive::CurrentUser, optionsKeyPath(), "Provider", "x"));
        if (!stored.isNull())
            setRegValue("Filter", stored);
        QCOMPARE(filterOptionOn(), on);
    }
};

QTEST_GUILESS_MAIN(QueriesTest)
#include "tst_queries.moc"
