#include "StoreFixture.h"
#include "base/Error.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "store/Lookups.h"
#include "store/Store.h"

#include <QTest>

using namespace kartella;
using namespace kartella::test;

class LookupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldValueByKey_data()
    {
        QTest::addColumn<QString>("keyField");
        QTest::addColumn<QString>("valueField");
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("id");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("mnemonic") << "KategID"
                                  << "Mnemonic"
                                  << "tbl_Document_Categories" << 1 << QVariant("SUT");
        QTest::newRow("folder") << "KategID"
                                << "DokKategDaug"
                                << "tbl_Document_Categories" << 2 << QVariant("/f/Zem");
        QTest::newRow("Null mnemonic") << "KategID"
                                       << "Mnemonic"
                                       << "tbl_Document_Categories" << 3 << QVariant();
        QTest::newRow("no such category") << "KategID"
                                          << "Mnemonic"
                                          << "tbl_Document_Categories" << 99 << QVariant();
        QTest::newRow("subcategory folder") << "SubKategID"
                                            << "SubPathToFiles"
                                            << "tbl_Sub_Categories" << 1 << QVariant("/f/Sut/Nuoma");
        QTest::newRow("Null template") << "SubKategID"
                                       << "SubDokTemplates"
                                       << "tbl_Sub_Categories" << 1 << QVariant();
    }

    void fieldValueByKey()
    {
        QFETCH(QString, keyField);
        QFETCH(QString, valueField);
        QFETCH(QString, table);
        QFETCH(int, id);
        QFETCH(QVariant, expected);
        TestRegister reg;
        buildFixture(reg);
        const QVariant value = getFieldValue(keyField, valueField, table, id);
        QCOMPARE(isNull(value), isNull(expected));
        if (!isNull(expected))
            QCOMPARE(value.toString(), expected.toString());
    }

    void namesOrTheMark()
    {
        TestRegister reg;
        buildFixture(reg);
        QCOMPARE(getContactName(1), QString("Petras Jonaitis"));
        QCOMPARE(getContactName(qint64(2)), QString::fromUtf8("Ąžuolas Kazlauskas"));
        QCOMPARE(getContactName(3), NullMark); // a company without a name
        QCOMPARE(getContactName(99), NullMark);
        QCOMPARE(getContactName(QVariant()), NullMark);
        QCOMPARE(getCategoryName(2), QString::fromUtf8("Žemės nuoma"));
        QCOMPARE(getCategoryName(99), NullMark);
        QCOMPARE(getCategoryName(QVariant()), NullMark);
    }

    void lookupsFollowTheOptionsAndNullIdsTouchNothing()
    {
        TestRegister first;
        buildFixture(first);
        TestRegister second("Other.mdb");
        second.insert("tbl_Contacts", {{"ContactID", 1}, {"FullName", "Kitas Žmogus"}});
        // second's options are in force: the lookups read its file.
        QCOMPARE(getContactName(1), QString::fromUtf8("Kitas Žmogus"));
        setRegValue("DbLocation", first.path());
        QCOMPARE(getContactName(1), QString("Petras Jonaitis"));

        setRegValue("DbLocation", second.dir() + "/nowhere/Kartella.mdb");
        QCOMPARE(getContactName(QVariant()), NullMark);
        QCOMPARE(getCategoryName(QVariant()), NullMark);
        try {
            getContactName(1);
            QFAIL("a lookup on a missing register must fail");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::ConnectionFailed);
        }
        QVERIFY_THROWS_EXCEPTION(Error, getFieldValue("KategID", "Mnemonic", "tbl_Document_Categories", 1));
    }
};

int runLookupsTest(int argc, char** argv)
{
    LookupsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_lookups.moc"
