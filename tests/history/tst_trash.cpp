// The register's trash: what a delete takes away, what a restore gives back, the purge, and
// the trash as every connection to the register sees it.

#include "TrashFixture.h"
#include "TrashTest.h"
#include "base/Error.h"
#include "history/Trash.h"
#include "history/Versions.h"
#include "options/TrashOptions.h"
#include "platform/Clock.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

bool skipWithoutServer(TestRegister::Where where)
{
    return where == TestRegister::Server && !ServerDatabase::available();
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

// A delete takes exactly the item's rows and files; a restore gives back every row with
// its keys and values and every file with its bytes.
void TrashTest::deleteAndRestoreGiveBackEveryRowAndFile_data()
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
            << where << TrashKind::Document << "doc" << documentRows << QStringList {"doc", "rel1", "rel2"}
            << "Nuomos sutartis";
        QTest::newRow(QByteArray(on + "related document").constData())
            << where << TrashKind::RelatedDocument << "rel1"
            << QStringList {"tbl_Sub_Documents SubRastasID=%rel1("} << QStringList {"rel1"} << "Priedas 1";
        QTest::newRow(QByteArray(on + "category").constData())
            << where << TrashKind::Category << "Sutartys"
            << QStringList {"tbl_Document_Categories", "tbl_Sub_Categories"} << QStringList {} << "Sutartys";
        QTest::newRow(QByteArray(on + "subcategory").constData())
            << where << TrashKind::SubCategory << "Nuomos"
            << QStringList {"tbl_Sub_Categories SubKategID=%Nuomos("} << QStringList {} << "Nuomos";
        QTest::newRow(QByteArray(on + "contact").constData())
            << where << TrashKind::Contact << "Ona"
            << QStringList {"tbl_Contacts", "tbl_Phones", "tbl_HomePages"} << QStringList {} << "Ona Žemaitė";
    }
}

void TrashTest::deleteAndRestoreGiveBackEveryRowAndFile()
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
    const qint64 item = trash.deleteItem(kind, fx.id[name]);
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

// A path another file took while the document was in the trash: the file comes back
// beside it under the next free name, the row names that, and the restore says so.
void TrashTest::restoreOverATakenPathTakesTheNextFreeName()
{
    TrashFixture fx;
    Trash trash(fx.connection, fx.trashFolder);
    const qint64 item = trash.deleteDocument(fx.id["doc"]);
    fx.makeFile("sutartis.doc", "a newcomer");
    fx.makeFile("sutartis (2).doc", "another newcomer");
    const RestoreOutcome outcome = trash.restore(item);
    const QString moved = QFileInfo(fx.file["doc"]).absolutePath() + "/sutartis (3).doc";
    QCOMPARE(outcome.renamed.size(), 1);
    QCOMPARE(outcome.renamed.first().first, fx.file["doc"]);
    QCOMPARE(outcome.renamed.first().second, moved);
    QCOMPARE(TrashFixture::bytes(moved), QByteArray("the contract"));
    QCOMPARE(TrashFixture::bytes(fx.file["doc"]), QByteArray("a newcomer"));
    QCOMPARE(
        fx.reg
            .scalar(QStringLiteral("SELECT RastoKel FROM tbl_Documents WHERE RastasID=%1").arg(fx.id["doc"]))
            .toString(),
        moved);
    QCOMPARE(TrashFixture::bytes(fx.file["rel1"]), QByteArray("appendix\0one", 12));
}

// A document restored into a category deleted after it brings the category back, with
// the subcategories it took; the document's own subcategory with it.
void TrashTest::documentRestoredIntoADeletedCategoryBringsItBack()
{
    TrashFixture fx;
    const QStringList before = fx.snapshot();
    Trash trash(fx.connection, fx.trashFolder);
    const qint64 document = trash.deleteDocument(fx.id["doc"]);
    trash.deleteSubCategory(fx.id["Nuomos"]);
    trash.deleteCategory(fx.id["Sutartys"]);
    QCOMPARE(trash.items().size(), 3);
    const RestoreOutcome outcome = trash.restore(document);
    QCOMPARE(outcome.restored.size(), 3);
    QCOMPARE(outcome.restored.last().kind, TrashKind::Document);
    QCOMPARE(fx.snapshot(), before);
    QVERIFY(trash.items().isEmpty());
    // A related document restored after its document was deleted brings the document back.
    const qint64 related = trash.deleteRelatedDocument(fx.id["rel2"]);
    trash.deleteDocument(fx.id["doc"]);
    QCOMPARE(trash.restore(related).restored.size(), 2);
    QCOMPARE(fx.snapshot(), before);
    QCOMPARE(TrashFixture::bytes(fx.file["rel2"]), QByteArray("appendix two"));
}

// Items older than the limit go for good with their files; younger ones stay.
void TrashTest::purgeTakesOnlyItemsOlderThanTheLimit_data()
{
    QTest::addColumn<int>("daysAgo");
    QTest::addColumn<bool>("purged");
    QTest::newRow("a day short") << 89 << false;
    QTest::newRow("the limit to the second") << 90 << false;
    QTest::newRow("a day past") << 91 << true;
}

void TrashTest::purgeTakesOnlyItemsOlderThanTheLimit()
{
    QFETCH(int, daysAgo);
    QFETCH(bool, purged);
    TrashFixture fx;
    Trash trash(fx.connection, fx.trashFolder);
    const QDateTime now(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC);
    {
        SettableClock then(now.addDays(-daysAgo));
        trash.deleteDocument(fx.id["doc"]);
    }
    trash.deleteContact(fx.id["Ona"]);
    QCOMPARE(trash.purgeOlderThan(90, now), purged ? 1 : 0);
    QCOMPARE(trash.items().size(), purged ? 1 : 2);
    QCOMPARE(trash.items().first().kind, TrashKind::Contact);
    const int folders = QDir(fx.trashFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    QCOMPARE(folders, purged ? 0 : 1);
    QCOMPARE(QFileInfo::exists(fx.file["doc"]), false);
    QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 1);
}

// Delete there and Empty Trash: the rows and the files go for good.
void TrashTest::deleteForGoodAndEmpty()
{
    TrashFixture fx;
    Trash trash(fx.connection, fx.trashFolder);
    const QString versions = fx.reg.dir() + "/versions";
    trash.setVersionsFolder(versions);
    Versions(versions, 5).keep(fx.id["doc"], fx.file["doc"]);
    Versions(versions, 5).keep(fx.id["other"], fx.file["other"]);
    const qint64 related = trash.deleteRelatedDocument(fx.id["rel1"]);
    trash.deleteDocument(fx.id["doc"]);
    trash.deleteForGood(related);
    QCOMPARE(Versions(versions, 5).list(fx.id["doc"]).size(), 1);
    QCOMPARE(trash.items().size(), 1);
    QCOMPARE(QDir(fx.trashFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    QVERIFY_THROWS_EXCEPTION(Error, trash.restore(related));
    trash.empty();
    QVERIFY(trash.items().isEmpty());
    // The document's versions went with it; another document's stay.
    QVERIFY(Versions(versions, 5).list(fx.id["doc"]).isEmpty());
    QCOMPARE(Versions(versions, 5).list(fx.id["other"]).size(), 1);
    QCOMPARE(QDir(fx.trashFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 0);
    QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Sub_Documents").toInt(), 0);
}

// A file that can't leave keeps the whole document: no row goes, no file moves.
void TrashTest::aFileThatCantMoveKeepsEverything()
{
    TrashFixture fx;
    const QStringList before = fx.snapshot();
    // The trash folder is a file: nothing can be moved into it.
    QFile blocker(fx.trashFolder);
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    Trash trash(fx.connection, fx.trashFolder);
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("Not a directory"));
    QVERIFY_THROWS_EXCEPTION(Error, trash.deleteDocument(fx.id["doc"]));
    QCOMPARE(fx.snapshot(), before);
    for (const char* name : {"doc", "rel1", "rel2"})
        QVERIFY(QFileInfo::exists(fx.file[name]));
    QVERIFY(trash.items().isEmpty());
}

// Two connections share one trash: what one deletes, the other lists and restores.
void TrashTest::theTrashIsSharedByEveryConnection_data()
{
    QTest::addColumn<int>("where");
    QTest::newRow("file") << int(TestRegister::File);
    QTest::newRow("server") << int(TestRegister::Server);
}

void TrashTest::theTrashIsSharedByEveryConnection()
{
    QFETCH(int, where);
    if (skipWithoutServer(TestRegister::Where(where)))
        QSKIP(qPrintable(ServerDatabase::skipReason()));
    TrashFixture fx {TestRegister::Where(where)};
    const QStringList before = fx.snapshot();
    Connection other(fx.reg.connectionString());
    other.open();
    Trash mine(fx.connection, fx.trashFolder);
    Trash theirs(other, fx.trashFolder);
    mine.deleteDocument(fx.id["doc"]);
    const QList<TrashItem> seen = theirs.items();
    QCOMPARE(seen.size(), 1);
    QCOMPARE(theirs.findDocument("SUT-7"), seen.first().id);
    QCOMPARE(theirs.findDocument("SUT-8"), 0);
    theirs.restore(seen.first().id);
    QCOMPARE(fx.snapshot(), before);
    QVERIFY(mine.items().isEmpty());
    QCOMPARE(TrashFixture::bytes(fx.file["doc"]), QByteArray("the contract"));
}

// The tool lists the trash, restores a document by its registration index and purges;
// each says so, and exits non-zero with a reason when it can't.
void TrashTest::commandLineListsRestoresAndPurges()
{
    TrashFixture fx;
    const QString folder = trashFolderFor(fx.reg.path());
    {
        SettableClock clock(QDateTime(QDate(2026, 3, 1), QTime(10, 0), Qt::UTC));
        Trash trash(fx.connection, folder);
        trash.deleteDocument(fx.id["doc"]);
        trash.deleteContact(fx.id["Ona"]);
    }
    const QString who = Trash::whoIsWorking();
    const QString path = fx.reg.path();
    struct Run
    {
        QStringList arguments;
        int exitCode;
        QString out;
        QString error;
    };
    const Run runs[] = {
        {{"trash", path}, 0,
            QStringLiteral("contact\tOna Žemaitė\t%1\t2026-03-01 10:00:00 UTC\n"
                           "document\tSUT-7\t%1\t2026-03-01 10:00:00 UTC\n")
                .arg(who),
            ""},
        {{"restore", path, "SUT-8"}, 1, "",
            "kartella-db: the trash holds no document with the registration index \"SUT-8\"\n"},
        {{"restore", path}, 2, "", "kartella-db: restore needs PATH and INDEX\n"},
        {{"restore", path, "SUT-7"}, 0, "Restored document \"Nuomos sutartis\"\n", ""},
        {{"restore", path, "SUT-7"}, 1, "",
            "kartella-db: the trash holds no document with the registration index \"SUT-7\"\n"},
        {{"purge", path}, 2, "", "kartella-db: purge needs --older-than DAYS\n"},
        {{"purge", path, "--older-than", "x"}, 2, "",
            "kartella-db: --older-than needs a whole number of days, 0 or more\n"},
        {{"purge", path, "--older-than", "100000"}, 0, "Deleted for good: 0 items\n", ""},
        {{"purge", path, "--older-than", "0"}, 0, "Deleted for good: 1 item\n", ""},
        {{"trash", path}, 0, "The trash is empty.\n", ""},
        {{"trash", fx.reg.dir() + "/none.mdb"}, 1, "", "*"},
    };
    for (const Run& run : runs) {
        QProcess tool;
        tool.start(QStringLiteral(KARTELLA_DB_PATH), run.arguments);
        QVERIFY(tool.waitForFinished(30000));
        const QString error = QString::fromUtf8(tool.readAllStandardError());
        QCOMPARE(tool.exitCode(), run.exitCode);
        QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()), run.out);
        if (run.error == "*")
            QVERIFY(!error.isEmpty());
        else if (run.exitCode != 2)
            QCOMPARE(error, run.error);
        else
            QVERIFY2(error.startsWith(run.error), qPrintable(error));
    }
    // The restore gave the document back with its file.
    QCOMPARE(TrashFixture::bytes(fx.file["doc"]), QByteArray("the contract"));
    QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Sub_Documents").toInt(), 2);
    QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Contacts").toInt(), 0);
    // A register without the trash is told so.
    fx.reg.exec("DROP TABLE tbl_Trash");
    QProcess tool;
    tool.start(QStringLiteral(KARTELLA_DB_PATH), {"trash", path});
    QVERIFY(tool.waitForFinished(30000));
    QCOMPARE(tool.exitCode(), 1);
    QVERIFY(QString::fromUtf8(tool.readAllStandardError()).contains("has no trash"));
}

// Each new version keeps the file it replaces; beyond the limit the oldest go; a restored
// version becomes the file again and the file it replaces is kept in its turn.
void TrashTest::versionsKeepReplaceRestoreAndLimit()
{
    TrashFixture fx;
    const QString folder = fx.reg.dir() + "/versions";
    Versions versions(folder, 3);
    const QString current = fx.file["doc"];
    const QDateTime start(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC);
    for (int i = 1; i <= 4; ++i) {
        SettableClock clock(start.addSecs(i * 60));
        versions.replace(fx.id["doc"], current,
            fx.makeFile(QString("new %1.doc").arg(i), "version " + QByteArray::number(i)));
    }
    QCOMPARE(TrashFixture::bytes(current), QByteArray("version 4"));
    QList<FileVersion> kept = versions.list(fx.id["doc"]);
    QCOMPARE(kept.size(), 3);
    const QByteArray expected[] = {"version 3", "version 2", "version 1"};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(TrashFixture::bytes(kept[i].path), expected[i]);
        QCOMPARE(kept[i].keptAt, start.addSecs((4 - i) * 60));
        QCOMPARE(kept[i].size, qint64(expected[i].size()));
        QCOMPARE(kept[i].keptBy, Trash::whoIsWorking());
    }
    // The oldest of the limit is restored; the current file is kept first, which drops
    // that oldest version from the folder, but not from what comes back.
    {
        SettableClock clock(start.addSecs(10 * 60));
        versions.restore(fx.id["doc"], current, kept[2]);
    }
    QCOMPARE(TrashFixture::bytes(current), QByteArray("version 1"));
    kept = versions.list(fx.id["doc"]);
    QCOMPARE(kept.size(), 3);
    QCOMPARE(TrashFixture::bytes(kept[0].path), QByteArray("version 4"));
    QCOMPARE(TrashFixture::bytes(kept[2].path), QByteArray("version 2"));
    // Another document's versions are its own.
    QVERIFY(versions.list(fx.id["other"]).isEmpty());
}

QTEST_MAIN(TrashTest)
