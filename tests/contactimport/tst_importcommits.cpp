// The import's transactions and failed steps: when the disk fills up at a commit, the rows
// the commit lost are written again, one at a time, or counted as failed when the user
// stops; rows are committed once a second; an item with failed steps is one failed item;
// the cut of a text to its field's width.
#include "ImportRuns.h"
#include "addressbook/import/ContactImporter.h"
#include "base/Error.h"
#include "faults/FullDiskVfs.h"
#include "store/Store.h"
#include "tst_contactimport.h"

#include <QFile>
#include <QHash>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <limits>
#include <sqlite3.h>

using namespace kartella;
using namespace kartella::test;
namespace P = kartella::ContactProperty;

namespace {

// Contacts with long notes, so that their rows need pages the register does not have yet:
// the disk fills up when the commit writes them. Each has a mobile number; one named with
// "refused" also has a business number the register refuses.
QList<ContactItem> contactsWithNotes(const QStringList& names)
{
    QList<ContactItem> items;
    for (const QString& name : names) {
        ContactItem item {{P::FullName, name}, {P::MobilePhone, QStringLiteral("+370 600 ") + name.right(1)},
            {P::Notes, QString(3000, u'n')}};
        if (name.contains(QStringLiteral("refused")))
            item.insert(P::BusinessPhone, QStringLiteral("refused"));
        items << item;
    }
    return items;
}

// Makes the register refuse the phone number "refused".
void refuseNumber(const TestRegister& reg)
{
    reg.exec(
        QStringLiteral("CREATE TRIGGER refuse_number BEFORE INSERT ON tbl_Phones "
                       "WHEN NEW.PhoneNumber = 'refused' BEGIN SELECT RAISE(ABORT, 'number refused'); END"));
}

// pause_ms(n), on every connection: waits n milliseconds.
void pause(sqlite3_context* context, int, sqlite3_value** arguments)
{
    QThread::msleep(static_cast<unsigned long>(sqlite3_value_int(arguments[0])));
    sqlite3_result_null(context);
}

int addPause(sqlite3* db, char**, const sqlite3_api_routines*)
{
    return sqlite3_create_function(db, "pause_ms", 1, SQLITE_UTF8, nullptr, pause, nullptr, nullptr);
}

QString connectionStringOf(const QString& path)
{
    return plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path);
}

} // namespace

void ContactImportTest::lostCommitWritesTheItemsAgain_data()
{
    QTest::addColumn<bool>("goOn");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("phones");
    QTest::addColumn<QList<int>>("counts"); // added, skipped, already there, failed, errors

    // The number after the refused one went with the lost commit, and its contact is not
    // written again: it was stored before, and counted as failed. The names committed
    // before the refused number are still known.
    QTest::newRow("yes") << true
                         << QStringList {QStringLiteral("Jonas 1"), QStringLiteral("Ona refused 2"),
                                QStringLiteral("Petras 4"), QStringLiteral("Rūta 5")}
                         << QStringList {QStringLiteral("2|+370 600 1"), QStringLiteral("4|+370 600 4"),
                                QStringLiteral("5|+370 600 5")}
                         << QList<int> {4, 2, 2, 1, 2};
    // The items of the lost commit count as failed, the names already there too.
    QTest::newRow("no") << false << QStringList {QStringLiteral("Jonas 1"), QStringLiteral("Ona refused 2")}
                        << QStringList {QStringLiteral("2|+370 600 1")} << QList<int> {2, 0, 0, 5, 2};
}

// The register refuses a number, the import goes on, and the commit at the end finds the
// disk full: the items after the refused number are written again, each on its own, once
// the user says Yes; No leaves them out, counted as failed.
void ContactImportTest::lostCommitWritesTheItemsAgain()
{
    QFETCH(bool, goOn);
    QFETCH(QStringList, stored);
    QFETCH(QStringList, phones);
    QFETCH(QList<int>, counts);
    TestRegister reg;
    reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), QStringLiteral("Jau Yra")}});
    refuseNumber(reg);
    const QList<ContactItem> items = contactsWithNotes(
        {QStringLiteral("Jonas 1"), QStringLiteral("Ona refused 2"), QStringLiteral("Jau Yra"),
            QStringLiteral("JONAS 1"), QStringLiteral("Petras 4"), QStringLiteral("Rūta 5")});
    FullDiskVfs disk;

    // The bytes the run needs with room on the disk; one less fails the last commit.
    qint64 needed = 0;
    {
        QTemporaryDir dir;
        const QString work = dir.filePath(QStringLiteral("work.mdb"));
        QVERIFY(QFile::copy(reg.path(), work));
        disk.arm(std::numeric_limits<qint64>::max());
        ContactImporter importer(connectionStringOf(work), [](const Error&) { return true; });
        QVERIFY(importer.run(items));
        needed = disk.written();
        disk.disarm();
        QCOMPARE(importer.counts().errors, 1);
    }

    QStringList told;
    ContactImporter importer(reg.connectionString(), [&](const Error& error) {
        told << error.description();
        if (told.size() == 1)
            return true; // the refused number
        disk.disarm();
        return goOn;
    });
    disk.arm(needed - 1);
    QCOMPARE(importer.run(items), goOn);
    QVERIFY(disk.refused());
    disk.disarm();
    QCOMPARE(told.size(), 2);
    QVERIFY2(told[0].contains(QStringLiteral("number refused")), qPrintable(told[0]));
    QVERIFY2(told[1].contains(QStringLiteral("disk that holds the register is full")), qPrintable(told[1]));

    QCOMPARE(contactNames(reg), QStringList {QStringLiteral("Jau Yra")} + stored);
    QCOMPARE(
        rows(reg, QStringLiteral("SELECT ContactID, PhoneNumber FROM tbl_Phones ORDER BY PhoneID")), phones);
    const ContactImportCounts& done = importer.counts();
    QCOMPARE((QList<int> {done.added, done.skipped, done.alreadyThere, done.failed, done.errors}), counts);
}

// No to a refused number whose commit then finds the disk full: the rows of that
// transaction are gone, and its items count as failed.
void ContactImportTest::stopWhenACommitIsLost()
{
    TestRegister reg;
    refuseNumber(reg);
    const QList<ContactItem> items = contactsWithNotes(
        {QStringLiteral("Jonas 1"), QStringLiteral("Ona refused 2"), QStringLiteral("Petras 3")});
    FullDiskVfs disk;

    // The bytes written up to the commit before the question; one less fails that commit.
    qint64 beforeQuestion = 0;
    {
        QTemporaryDir dir;
        const QString work = dir.filePath(QStringLiteral("work.mdb"));
        QVERIFY(QFile::copy(reg.path(), work));
        disk.arm(std::numeric_limits<qint64>::max());
        ContactImporter importer(connectionStringOf(work), [&](const Error&) {
            beforeQuestion = disk.written();
            return false;
        });
        QVERIFY(!importer.run(items));
        disk.disarm();
        QCOMPARE(importer.counts().added, 2);
    }

    QStringList told;
    ContactImporter importer(reg.connectionString(), [&](const Error& error) {
        told << error.description();
        return false;
    });
    disk.arm(beforeQuestion - 1);
    QVERIFY(!importer.run(items));
    QVERIFY(disk.refused());
    disk.disarm();
    QCOMPARE(told.size(), 2);
    QVERIFY2(told[0].contains(QStringLiteral("number refused")), qPrintable(told[0]));
    QVERIFY2(told[1].contains(QStringLiteral("disk that holds the register is full")), qPrintable(told[1]));
    QCOMPARE(contactNames(reg), QStringList());
    const ContactImportCounts& done = importer.counts();
    QCOMPARE((QList<int> {done.added, done.skipped, done.failed, done.errors}), (QList<int> {0, 0, 2, 1}));
}

void ContactImportTest::commitsOnceASecond_data()
{
    QTest::addColumn<int>("measured"); // how many items lead to the commit the disk fails
    QTest::addColumn<bool>("goOn");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QList<int>>("counts"); // added, skipped, failed, errors

    const QStringList all = {QStringLiteral("Jonas 1"), QStringLiteral("Lėtas 2"), QStringLiteral("Ona 3")};
    // Both items of the lost commit are written again, the slow one too.
    QTest::newRow("the commit after the slow contact, yes") << 2 << true << all << QList<int> {3, 1, 0, 1};
    // The rows committed after the slow contact stay; the two items after it count as failed.
    QTest::newRow("the last commit, no") << 4 << false << all.mid(0, 2) << QList<int> {2, 0, 2, 1};
    // The name committed before is still known: its second card is skipped again.
    QTest::newRow("the last commit, yes") << 4 << true << all << QList<int> {3, 1, 0, 1};
}

// Rows are committed once their transaction is a second old, at the end of an item. The
// disk fills up at the commit after a slow contact or at the last one: the commit's items
// are written again on Yes, each on its own, and those committed before stay.
void ContactImportTest::commitsOnceASecond()
{
    QFETCH(int, measured);
    QFETCH(bool, goOn);
    QFETCH(QStringList, stored);
    QFETCH(QList<int>, counts);
    // A contact whose row takes over a second to store: its trigger waits that long.
    QVERIFY(sqlite3_auto_extension(reinterpret_cast<void (*)()>(addPause)) == SQLITE_OK);
    const auto noPause
        = qScopeGuard([] { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(addPause)); });
    TestRegister reg;
    reg.exec(
        QStringLiteral("CREATE TRIGGER slow_name AFTER INSERT ON tbl_Contacts WHEN NEW.FullName = 'Lėtas 2' "
                       "BEGIN SELECT pause_ms(1020); END"));
    const QList<ContactItem> items = contactsWithNotes({QStringLiteral("Jonas 1"), QStringLiteral("Lėtas 2"),
        QStringLiteral("Ona 3"), QStringLiteral("LĖTAS 2")});
    FullDiskVfs disk;

    // The bytes written by the first items up to their commit, the same in every run; one
    // byte less fails that commit. Measured once for each count.
    static QHash<int, qint64> neededFor;
    if (!neededFor.contains(measured)) {
        QTemporaryDir dir;
        const QString work = dir.filePath(QStringLiteral("work.mdb"));
        QVERIFY(QFile::copy(reg.path(), work));
        disk.arm(std::numeric_limits<qint64>::max());
        ContactImporter importer(connectionStringOf(work), [](const Error&) { return true; });
        QVERIFY(importer.run(items.mid(0, measured)));
        neededFor.insert(measured, disk.written());
        disk.disarm();
    }

    QStringList told;
    ContactImporter importer(reg.connectionString(), [&](const Error& error) {
        told << error.description();
        disk.disarm();
        return goOn;
    });
    disk.arm(neededFor.value(measured) - 1);
    QCOMPARE(importer.run(items), goOn);
    disk.disarm();
    QCOMPARE(told.size(), 1);
    QVERIFY2(told[0].contains(QStringLiteral("disk that holds the register is full")), qPrintable(told[0]));
    QCOMPARE(contactNames(reg), stored);
    QStringList phones;
    for (int i = 0; i < stored.size(); ++i)
        phones << QString::number(i + 1) + QStringLiteral("|+370 600 ") + stored[i].right(1);
    QCOMPARE(
        rows(reg, QStringLiteral("SELECT ContactID, PhoneNumber FROM tbl_Phones ORDER BY PhoneID")), phones);
    const ContactImportCounts& done = importer.counts();
    QCOMPARE((QList<int> {done.added, done.skipped, done.failed, done.errors}), counts);
}

// Each failed step is an error; an item with failed steps is one failed item.
void ContactImportTest::failedStepsOfOneItem()
{
    TestRegister reg;
    refuseNumber(reg);
    QStringList told;
    ContactImporter importer(reg.connectionString(), [&](const Error& error) {
        told << error.description();
        return true;
    });
    const ContactItem twice
        = {{P::FullName, QStringLiteral("Ona")}, {P::BusinessPhone, QStringLiteral("refused")},
            {P::HomePhone, QStringLiteral("1")}, {P::MobilePhone, QStringLiteral("refused")}};
    const ContactItem once = {{P::FullName, QStringLiteral("Jonas")}, {P::Pager, QStringLiteral("refused")}};
    QVERIFY(importer.run({twice, once, {{P::FullName, QStringLiteral("Rūta")}}}));
    QCOMPARE(told.size(), 3);
    QCOMPARE(contactNames(reg),
        (QStringList {QStringLiteral("Ona"), QStringLiteral("Jonas"), QStringLiteral("Rūta")}));
    QCOMPARE(rows(reg, QStringLiteral("SELECT ContactID, PhoneName, PhoneNumber FROM tbl_Phones")),
        QStringList {QStringLiteral("1|Home|1")});
    const ContactImportCounts& done = importer.counts();
    QCOMPARE((QList<int> {done.added, done.failed, done.errors}), (QList<int> {3, 2, 3}));
}

void ContactImportTest::cutsKeepPairsWhole_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("cut");
    const QString smile = QStringLiteral("\U0001F600"); // two UTF-16 units
    const QString n49(49, u'n');

    QTest::newRow("longer") << QStringLiteral("Petraitienė") << 5 << QStringLiteral("Petra");
    QTest::newRow("as long") << QStringLiteral("Ona") << 3 << QStringLiteral("Ona");
    QTest::newRow("shorter") << QStringLiteral("Ona") << 50 << QStringLiteral("Ona");
    QTest::newRow("not cut") << QString(300, u'x') << -1 << QString(300, u'x');
    QTest::newRow("a pair across the end") << n49 + smile << 50 << n49;
    QTest::newRow("a pair inside") << n49.left(48) + smile << 50 << n49.left(48) + smile;
    QTest::newRow("a pair at the start") << smile + u'x' << 1 << QString();
}

void ContactImportTest::cutsKeepPairsWhole()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(QString, cut);
    QCOMPARE(cutText(text, width), cut);
}
