// The register's trash: what a delete takes away, what a restore gives back, the purge, and
// the trash as every connection to the register sees it.

#include "TrashFixture.h"
#include "history/Trash.h"
#include "platform/Clock.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

bool skipWithoutServer(TestRegister::Where where)
{
    return where == TestRegister::Server && !ServerDatabase::available();
}

qint64 deleteItem(Trash& trash, const QString& kind, qint64 key)
{
    if (kind == TrashKind::Document)
        return trash.deleteDocument(key);
    if (kind == TrashKind::RelatedDocument)
        return trash.deleteRelatedDocument(key);
    if (kind == TrashKind::Category)
        return trash.deleteCategory(key);
    if (kind == TrashKind::SubCategory)
        return trash.deleteSubCategory(key);
    return trash.deleteContact(key);
}

QStringList without(const QStringList& rows, const QStringList& gone)
{
    QStringList left;
    for (const QString& row : rows) {
        bool goes = false;
        for (const QString& start : gone)
            goes = goes || row.startsWith(start);
        if (!goes)
            left << row;
    }
    return left;
}

} // namespace

class TrashTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A delete takes exactly the item's rows and files; a restore gives back every row with
    // its keys and values and every file with its bytes.
    void deleteAndRestoreGiveBackEveryRowAndFile_data()
    {
        QTest::addColumn<int>("where");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("rowsGone"); // the starts of the rows the delete takes
        QTest::addColumn<QStringList>("filesGone");
        QTest::addColumn<QString>("title");
        const QStringList documentRows {
            "tbl_Documents RastasID=%doc(", "tbl_Sub_Documents", "tbl_Tickler", "tbl_Document_Text"};
        for (const int where : {int(TestRegister::File), int(TestRegister::Server)}) {
            const QByteArray on = where == TestRegister::File ? "file: " : "server: ";
            QTest::newRow(QByteArray(on + "document").constData())
                << where << TrashKind::Document << "doc" << documentRows
                << QStringList {"doc", "rel1", "rel2"} << "Nuomos sutartis";
            QTest::newRow(QByteArray(on + "related document").constData())
                << where << TrashKind::RelatedDocument << "rel1"
                << QStringList {"tbl_Sub_Documents SubRastasID=%rel1("} << QStringList {"rel1"}
                << "Priedas 1";
            QTest::newRow(QByteArray(on + "category").constData())
                << where << TrashKind::Category << "Sutartys"
                << QStringList {"tbl_Document_Categories", "tbl_Sub_Categories"} << QStringList {}
                << "Sutartys";
            QTest::newRow(QByteArray(on + "subcategory").constData())
                << where << TrashKind::SubCategory << "Nuomos"
                << QStringList {"tbl_Sub_Categories SubKategID=%Nuomos("} << QStringList {} << "Nuomos";
            QTest::newRow(QByteArray(on + "contact").constData())
                << where << TrashKind::Contact << "Ona"
                << QStringList {"tbl_Contacts", "tbl_Phones", "tbl_HomePages"} << QStringList {}
                << "Ona Žemaitė";
        }
    }

    void deleteAndRestoreGiveBackEveryRowAndFile()
    {
        QFETCH(int, where);
        QFETCH(QString, kind);
        QFETCH(QString, name);
        QFETCH(QStringList, rowsGone);
        QFETCH(QStringList, filesGone);
        QFETCH(QString, title);
        if (skipWithoutServer(TestRegister::Where(where)))
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        TrashFixture fx {TestRegister::Where(where)};
        for (QString& start : rowsGone) {
            for (auto it = fx.id.cbegin(); it != fx.id.cend(); ++it)
                start.replace(u'%' + it.key() + u'(', QString::number(it.value()) + u'(');
        }
        const QStringList before = fx.snapshot();
        QHash<QString, QByteArray> contents;
        for (auto it = fx.file.cbegin(); it != fx.file.cend(); ++it)
            contents[it.key()] = TrashFixture::bytes(it.value());

        Trash trash(fx.connection, fx.trashFolder);
        SettableClock clock(QDateTime(QDate(2026, 3, 1), QTime(12, 0)));
        const qint64 item = deleteItem(trash, kind, fx.id[name]);
        QCOMPARE(fx.snapshot(), without(before, rowsGone));
        QVERIFY(fx.snapshot().size() < before.size());
        for (auto it = fx.file.cbegin(); it != fx.file.cend(); ++it)
            QCOMPARE(QFileInfo::exists(it.value()), !filesGone.contains(it.key()));
        const QList<TrashItem> items = trash.items();
        QCOMPARE(items.size(), 1);
        QCOMPARE(items.first().id, item);
        QCOMPARE(items.first().kind, kind);
        QCOMPARE(items.first().key, qint64(fx.id[name]));
        QCOMPARE(items.first().title, title);
        QCOMPARE(items.first().deletedBy, Trash::whoIsWorking());
        QCOMPARE(items.first().deletedAt, clock.now().toUTC());

        const RestoreOutcome outcome = trash.restore(item);
        QVERIFY(outcome.renamed.isEmpty());
        QCOMPARE(fx.snapshot(), before);
        for (auto it = fx.file.cbegin(); it != fx.file.cend(); ++it)
            QCOMPARE(TrashFixture::bytes(it.value()), contents[it.key()]);
        QVERIFY(trash.items().isEmpty());
        QCOMPARE(QDir(fx.trashFolder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
    }
};

QTEST_GUILESS_MAIN(TrashTest)
#include "tst_trash.moc"
