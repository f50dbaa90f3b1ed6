#include "StoreFixture.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "store/Lookups.h"
#include "store/Store.h"
#include "support/Error.h"

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
        BuildFixture(reg);
        const QVariant value = GetFieldValue(keyField, valueField, table, id);
        QCOMPARE(IsNull(value), IsNull(expected));
        if (!IsNull(expected))
            QCOMPARE(value.toString(), expected.toString());
    }

    void namesOrTheMark()
    {
        TestRegister reg;
        BuildFixture(reg);
        QCOMPARE(GetContactName(1), QString("Petras Jonaitis"));
        QCOMPARE(GetContactName(qint64(2)), QString::fromUtf8("Ąžuolas Kazlauskas"));
        QCOMPARE(GetContactName(3), NullMark); // a company without a name
        QCOMPARE(GetContactName(99), NullMark);
        QCOMPARE(GetContactName(QVariant()), NullMark);
        QCOMPARE(GetCategoryName(2), QString::fromUtf8("Žemės nuoma"));
        QCOMPARE(GetCategoryName(99), NullMark);
        QCOMPARE(GetCategoryName(QVariant()), NullMark);
    }

    void lookupsFollowTheOptionsAndNullIdsTouchNothing()
    {
        TestRegister first;
        BuildFixture(first);
        TestRegister second("Other.mdb");
        second.insert("tbl_Contacts", {{"ContactID", 1}, {"FullName", "Kitas Žmogus"}});
        // second's options are in force: the lookups read its file.
        QCOMPARE(GetContactName(1), QString::fromUtf8("Kitas Žmogus"));
        SetRegValue("DbLocation", first.path());
        QCOMPARE(GetContactName(1), QString("Petras Jonaitis"));

        SetRegValue("DbLocation", second.dir() + "/nowhere/Kartella.mdb");
        QCOMPARE(GetContactName(QVariant()), NullMark);
        QCOMPARE(GetCategoryName(QVariant()), NullMark);
        try {
            GetContactName(1);
            QFAIL("a lookup on a missing register must fail");
        } catch (const Error& error) {
            QCOMPARE(error.number(), ErrorNumber::ConnectionFailed);
        }
        QVERIFY_THROWS_EXCEPTION(Error, GetFieldValue("KategID", "Mnemonic", "tbl_Document_Categories", 1));
    }
};

int RunLookupsTest(int argc, char** argv)
{
    LookupsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_lookups.moc"
