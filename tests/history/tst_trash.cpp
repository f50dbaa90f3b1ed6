// The register's trash: what a delete takes away, what a restore gives back, the purge, and
// the trash as every connection to the register sees it.

#include "TrashFixture.h"
#include "base/Error.h"
#include "dialogs/SettingsDialog.h"
#include "explorer/CommandsFixture.h"
#include "explorer/DeletedItemsNode.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "history/DeletedItemsWindow.h"
#include "history/KeepVersion.h"
#include "history/Trash.h"
#include "history/TrashCommands.h"
#include "history/VersionList.h"
#include "history/Versions.h"
#include "options/TrashOptions.h"
#include "platform/Clock.h"
#include "store/SchemaSteps.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

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
    void restoreOverATakenPathTakesTheNextFreeName()
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
                .scalar(
                    QStringLiteral("SELECT RastoKel FROM tbl_Documents WHERE RastasID=%1").arg(fx.id["doc"]))
                .toString(),
            moved);
        QCOMPARE(TrashFixture::bytes(fx.file["rel1"]), QByteArray("appendix\0one", 12));
    }

    // A document restored into a category deleted after it brings the category back, with
    // the subcategories it took; the document's own subcategory with it.
    void documentRestoredIntoADeletedCategoryBringsItBack()
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
    void purgeTakesOnlyItemsOlderThanTheLimit_data()
    {
        QTest::addColumn<int>("daysAgo");
        QTest::addColumn<bool>("purged");
        QTest::newRow("a day short") << 89 << false;
        QTest::newRow("the limit to the second") << 90 << false;
        QTest::newRow("a day past") << 91 << true;
    }

    void purgeTakesOnlyItemsOlderThanTheLimit()
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
    void deleteForGoodAndEmpty()
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
    void aFileThatCantMoveKeepsEverything()
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
    void theTrashIsSharedByEveryConnection_data()
    {
        QTest::addColumn<int>("where");
        QTest::newRow("file") << int(TestRegister::File);
        QTest::newRow("server") << int(TestRegister::Server);
    }

    void theTrashIsSharedByEveryConnection()
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
    void commandLineListsRestoresAndPurges()
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

    // The tree's last node lists the deleted items; Enter restores one, the Delete key asks
    // and deletes it for good, Empty Trash asks once.
    void deletedItemsNodeByKeysAndMouse()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        const QString own = fx.makeFile("contract.doc");
        fx.setPath("tbl_Documents", "RastasID", fx.id["contract"], "RastoKel", own);
        MainWindow& w = fx.load();
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        NavigationTree* tree = w.tree();
        const QTreeWidgetItem* node = tree->topLevelItem(tree->topLevelItemCount() - 1);
        QCOMPARE(NavigationTree::nodeKey(node), DeletedItemsKey);
        QCOMPARE(node->text(0), QString("Deleted items"));

        const auto deleteContract = [&] {
            fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
            fx.clickDocument("contract");
            prompter.answer(MsgBoxResult::Yes);
            w.action("btnDelete")->trigger();
            QVERIFY(!fx.documentExists("contract"));
            QVERIFY(!QFile::exists(own));
        };
        // Acts on the window the node opens, then closes it with Esc.
        const auto inDeletedItems = [&](const std::function<void(DeletedItemsWindow&)>& act) {
            bool acted = false;
            QTimer::singleShot(0, [&] {
                auto* window = qobject_cast<DeletedItemsWindow*>(QApplication::activeModalWidget());
                QVERIFY(window);
                act(*window);
                acted = true;
                QTest::keyClick(window, Qt::Key_Escape);
            });
            // The tree is built again after a restore: its nodes are new ones.
            QTreeWidgetItem* last = tree->nodeByKey(DeletedItemsKey);
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(last).center());
            QVERIFY(acted);
            // The window goes, and the tree shows again the node it showed before.
            QCOMPARE(tree->selectedItems().size(), 1);
            QVERIFY(tree->selectedItems().first() != last);
        };

        deleteContract();
        inDeletedItems([&](DeletedItemsWindow& window) {
            QTreeWidget* list = window.itemList();
            QCOMPARE(list->topLevelItemCount(), 1);
            QCOMPARE(list->topLevelItem(0)->text(0), QString("contract (SUT-1)"));
            QCOMPARE(list->topLevelItem(0)->text(1), QString("document"));
            QCOMPARE(list->topLevelItem(0)->text(2), Trash::whoIsWorking());
            list->setFocus();
            QTest::keyClick(list, Qt::Key_Return);
            QCOMPARE(list->topLevelItemCount(), 0);
            QVERIFY(!window.findChild<QPushButton*>("cmdEmptyTrash")->isEnabled());
        });
        QVERIFY(fx.documentExists("contract"));
        QCOMPARE(TrashFixture::bytes(own), QByteArray("x"));
        QVERIFY(fx.documentTexts().contains("contract"));
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 2);

        deleteContract();
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("work");
        prompter.answer(MsgBoxResult::Yes);
        w.action("btnDelete")->trigger();
        inDeletedItems([&](DeletedItemsWindow& window) {
            QTreeWidget* list = window.itemList();
            QCOMPARE(list->topLevelItemCount(), 2);
            list->setFocus();
            prompter.answer(MsgBoxResult::No);
            QTest::keyClick(list, Qt::Key_Delete);
            QCOMPARE(list->topLevelItemCount(), 2);
            prompter.answer(MsgBoxResult::Yes);
            QTest::keyClick(list, Qt::Key_Delete);
            QCOMPARE(list->topLevelItemCount(), 1);
            prompter.answer(MsgBoxResult::Yes);
            QTest::mouseClick(window.findChild<QPushButton*>("cmdEmptyTrash"), Qt::LeftButton);
            QCOMPARE(list->topLevelItemCount(), 0);
        });
        QCOMPARE(prompter.prompts().size(), 6);
        QCOMPARE(prompter.prompts().last().title, QString("Empty Trash"));
        QVERIFY(!fx.documentExists("contract"));
        QVERIFY(!fx.documentExists("work"));
        QCOMPARE(QDir(trashFolderFor(fx.reg.path())).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList());
    }

    // Each new version keeps the file it replaces; beyond the limit the oldest go; a restored
    // version becomes the file again and the file it replaces is kept in its turn.
    void versionsKeepReplaceRestoreAndLimit()
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

    // Document > New Version... asks for the file and keeps the one it replaces.
    void newVersionFromTheMenu()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        const QString own = fx.makeFile("contract.doc");
        fx.setPath("tbl_Documents", "RastasID", fx.id["contract"], "RastoKel", own);
        const QString replacement = fx.reg.dir() + "/signed.doc";
        QFile file(replacement);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("signed");
        file.close();
        MainWindow& w = fx.load();
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("contract");
        prompter.answerFile(QString());
        w.action("mnuNewVersion")->trigger();
        QCOMPARE(TrashFixture::bytes(own), QByteArray("x"));
        prompter.answerFile(replacement);
        w.action("mnuNewVersion")->trigger();
        QCOMPARE(TrashFixture::bytes(own), QByteArray("signed"));
        QCOMPARE(TrashFixture::bytes(replacement), QByteArray("signed"));
        const QList<FileVersion> kept
            = Versions(versionsFolderFor(fx.reg.path()), DefaultVersionsPerDocument).list(fx.id["contract"]);
        QCOMPARE(kept.size(), 1);
        QCOMPARE(TrashFixture::bytes(kept.first().path), QByteArray("x"));
        QVERIFY(prompter.texts().isEmpty());
        // The list of versions shows it; Restore brings it back and keeps the signed one.
        VersionList list(fx.id["contract"], own);
        QCOMPARE(list.list()->topLevelItemCount(), 1);
        QTest::mouseClick(list.findChild<QPushButton*>("cmdRestoreVersion"), Qt::LeftButton);
        QCOMPARE(TrashFixture::bytes(own), QByteArray("x"));
        QCOMPARE(list.list()->topLevelItemCount(), 2);
        // Before the program copies or moves over a file: a document's file is kept, another
        // file is not.
        QVERIFY(keepVersionBeforeReplacing(own));
        QVERIFY(keepVersionBeforeReplacing(replacement));
        list.fill();
        QCOMPARE(list.list()->topLevelItemCount(), 3);
    }

    // The settings' tab stores the limits and the shared folder.
    void settingsTabStoresTheLimits()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        QCOMPARE(trashDays(), 90);
        QCOMPARE(versionsPerDocument(), 20);
        SettingsDialog dialog;
        auto* days = dialog.findChild<QSpinBox*>("spnTrashDays");
        auto* versions = dialog.findChild<QSpinBox*>("spnVersions");
        QCOMPARE(days->value(), 90);
        days->setValue(30);
        versions->setValue(5);
        prompter.answerFolder(reg.dir());
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdBrowseTrashFolder"), Qt::LeftButton);
        QTest::mouseClick(dialog.findChild<QPushButton*>("btnOk"), Qt::LeftButton);
        QCOMPARE(trashDays(), 30);
        QCOMPARE(versionsPerDocument(), 5);
        QCOMPARE(sharedTrashFolder(), reg.dir());
        QCOMPARE(trashFolderFor("postgresql://u@h:5432/db"), reg.dir() + "/trash");
    }

    // A register without the trash deletes for good as it always did and shows no Deleted
    // items node; the upgrade gives it the trash.
    void anOlderRegisterDeletesAsBeforeUntilUpgraded()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        fx.reg.exec("DROP TABLE tbl_Trash");
        MainWindow& w = fx.load();
        QVERIFY(!w.tree()->nodeByKey(DeletedItemsKey));
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("work");
        prompter.answer(MsgBoxResult::Yes);
        w.action("btnDelete")->trigger();
        QVERIFY(!fx.documentExists("work"));
        QVERIFY(!QFileInfo::exists(trashFolderFor(fx.reg.path())));

        fx.reg.exec(QStringLiteral("PRAGMA user_version = %1").arg(newestSchemaVersion() - 1));
        const auto steps = upgradeRegister(fx.reg.path());
        QCOMPARE(steps.size(), size_t(1));
        QCOMPARE(steps.front()->version, newestSchemaVersion());
        Connection connection(fx.reg.connectionString());
        connection.open();
        QVERIFY(Trash::inRegister(connection));
    }

    // A register on a server: a delete with files asks for the shared folder once and keeps
    // it; a delete without files asks nothing; Cancel keeps everything and says why.
    void aServerRegisterAsksForTheSharedFolderOnce()
    {
        if (!ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        TrashFixture fx {TestRegister::Server};
        ScriptedPrompter prompter;
        QCOMPARE(registerTrashFolder(), QString());
        QVERIFY(moveToRegisterTrash(fx.connection, TrashKind::Contact, fx.id["Ona"]));
        const QStringList before = fx.snapshot();
        prompter.answerFolder(QString());
        prompter.answer(MsgBoxResult::Ok);
        QVERIFY(!moveToRegisterTrash(fx.connection, TrashKind::RelatedDocument, fx.id["rel1"]));
        QCOMPARE(prompter.texts(),
            QStringList {"No folder is named for the trash of this register: its files can't be kept."});
        QCOMPARE(fx.snapshot(), before);
        QVERIFY(QFileInfo::exists(fx.file["rel1"]));

        const QString shared = fx.reg.dir() + "/shared";
        prompter.answerFolder(shared);
        QVERIFY(moveToRegisterTrash(fx.connection, TrashKind::RelatedDocument, fx.id["rel1"]));
        QCOMPARE(sharedTrashFolder(), shared);
        QVERIFY(moveToRegisterTrash(fx.connection, TrashKind::Document, fx.id["doc"]));
        QVERIFY(prompter.allAnswered());
        QCOMPARE(QDir(shared + "/trash").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2);
        QVERIFY(!QFileInfo::exists(fx.file["doc"]));
        QCOMPARE(Trash(fx.connection, registerTrashFolder()).items().size(), 3);
    }
};

QTEST_MAIN(TrashTest)
#include "tst_trash.moc"
