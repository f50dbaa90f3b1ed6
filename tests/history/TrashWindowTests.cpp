// The windows of the trash and the versions: the Deleted items node, New Version, the
// settings' tab, and what a register without a trash or on a server does.

#include "TrashFixture.h"
#include "TrashTest.h"
#include "addressbook/AddressBookFixture.h"
#include "addressbook/AddressBookWindow.h"
#include "dialogs/SettingsDialog.h"
#include "explorer/CommandsFixture.h"
#include "explorer/DeletedItemsNode.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/Lithuanian.h"
#include "harness/ScriptedPrompter.h"
#include "history/DeletedItemsWindow.h"
#include "history/KeepVersion.h"
#include "history/NewVersionCommand.h"
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
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace kartella;
using namespace kartella::test;

namespace {

// A file "signed.doc" in folder holding "signed", to stand in as a document's new version;
// empty when it can't be written.
QString signedCopy(const QString& folder)
{
    const QString path = folder + "/signed.doc";
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("signed") != 6)
        return {};
    return path;
}

} // namespace

// The tree's last node lists the deleted items; Enter restores one, the Delete key asks
// and deletes it for good, Empty Trash asks once.
void TrashTest::deletedItemsNodeByKeysAndMouse()
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

// Document > New Version... asks for the file and keeps the one it replaces.
void TrashTest::newVersionFromTheMenu()
{
    CommandsFixture fx;
    ScriptedPrompter prompter;
    const QString own = fx.makeFile("contract.doc");
    fx.setPath("tbl_Documents", "RastasID", fx.id["contract"], "RastoKel", own);
    const QString replacement = signedCopy(fx.reg.dir());
    QVERIFY(!replacement.isEmpty());
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

// A file dropped with Shift on a document's row is offered as its new version; No keeps the
// document's file, Yes replaces it and keeps the earlier one. Without Shift the drop still
// registers a new document.
void TrashTest::newVersionByDroppingWithShift()
{
    CommandsFixture fx;
    ScriptedPrompter prompter;
    const QString own = fx.makeFile("contract.doc");
    fx.setPath("tbl_Documents", "RastasID", fx.id["contract"], "RastoKel", own);
    const QString replacement = signedCopy(fx.reg.dir());
    QVERIFY(!replacement.isEmpty());
    MainWindow& w = fx.load();
    fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
    QTreeView* view = w.documentList()->detailsView();
    const QModelIndex target
        = fx.documents().index(fx.documents().rowOfKey(DocumentFills::itemKey(fx.id["contract"])), 0);
    QVERIFY(target.isValid());
    view->scrollTo(target);
    const QPoint pos = view->visualRect(target).center();
    const auto drop = [&](Qt::KeyboardModifiers modifiers) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(replacement)});
        // A drop goes where the drag entered, as from a file manager.
        QDragEnterEvent enter(pos, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(view->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event(QPointF(pos), Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(view->viewport(), &event);
        QVERIFY(event.isAccepted());
    };

    prompter.answer(MsgBoxResult::No);
    drop(Qt::ShiftModifier);
    QCOMPARE(prompter.take().size(), 1);
    QCOMPARE(TrashFixture::bytes(own), QByteArray("x"));
    QVERIFY(fx.opened.isEmpty());

    prompter.answer(MsgBoxResult::Yes);
    drop(Qt::ShiftModifier);
    const QList<ScriptedPrompter::Prompt> asked = prompter.take();
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first().text,
        "Put signed.doc in place of contract.doc, keeping contract.doc as an earlier version?");
    QCOMPARE(TrashFixture::bytes(own), QByteArray("signed"));
    QCOMPARE(TrashFixture::bytes(replacement), QByteArray("signed"));
    const QList<FileVersion> kept
        = Versions(versionsFolderFor(fx.reg.path()), DefaultVersionsPerDocument).list(fx.id["contract"]);
    QCOMPARE(kept.size(), 1);
    QCOMPARE(TrashFixture::bytes(kept.first().path), QByteArray("x"));
    QVERIFY(fx.opened.isEmpty());

    drop(Qt::NoModifier);
    QCOMPARE(fx.opened, QStringList {"frmNewDocument:" + replacement});
    QVERIFY(prompter.allAnswered());
}

// The settings' tab stores the limits and the shared folder.
void TrashTest::settingsTabStoresTheLimits()
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
void TrashTest::anOlderRegisterDeletesAsBeforeUntilUpgraded()
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

    // The register as it was before the trash's step, and the steps after it.
    constexpr int TrashStep = 10;
    fx.reg.exec(QStringLiteral("PRAGMA user_version = %1").arg(TrashStep - 1));
    const auto steps = upgradeRegister(fx.reg.path());
    QCOMPARE(int(steps.size()), newestSchemaVersion() - TrashStep + 1);
    QCOMPARE(steps.front()->version, TrashStep);
    Connection connection(fx.reg.connectionString());
    connection.open();
    QVERIFY(Trash::inRegister(connection));
}

// A register on a server: a delete with files asks for the shared folder once and keeps
// it; a delete without files asks nothing; Cancel keeps everything and says why.
void TrashTest::aServerRegisterAsksForTheSharedFolderOnce()
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

// A server register keeps versions in the shared folder too: a new version asks for it while
// none is named; cancelled, nothing is replaced and the user is told; named, the earlier file
// is kept there, and Copy/Move over a file keeps its version there without asking again.
void TrashTest::aServerRegisterAsksForTheVersionsFolder()
{
    if (!ServerDatabase::available())
        QSKIP(qPrintable(ServerDatabase::skipReason()));
    TrashFixture fx {TestRegister::Server};
    ScriptedPrompter prompter;
    const QString own = fx.file["doc"];
    const QByteArray earlier = TrashFixture::bytes(own);
    const QString replacement = signedCopy(fx.reg.dir());
    QVERIFY(!replacement.isEmpty());

    prompter.answerFolder(QString());
    prompter.answer(MsgBoxResult::Ok);
    QVERIFY(!putNewVersion(fx.id["doc"], own, replacement));
    QCOMPARE(prompter.texts(), QStringList {"No folder is named for the versions of this register's files."});
    QCOMPARE(TrashFixture::bytes(own), earlier);

    const QString shared = fx.reg.dir() + "/shared";
    prompter.answerFolder(shared);
    QVERIFY(putNewVersion(fx.id["doc"], own, replacement));
    QCOMPARE(TrashFixture::bytes(own), QByteArray("signed"));
    QCOMPARE(sharedTrashFolder(), shared);
    QVERIFY(keepVersionBeforeReplacing(own));
    QVERIFY(prompter.allAnswered());
    const QList<FileVersion> kept
        = Versions(shared + "/versions", DefaultVersionsPerDocument).list(fx.id["doc"]);
    QCOMPARE(kept.size(), 2);
    QCOMPARE(TrashFixture::bytes(kept.first().path), QByteArray("signed"));
    QCOMPARE(TrashFixture::bytes(kept.last().path), earlier);
}

// Ctrl+Delete in the address book moves the contact with its phones and web pages to the
// trash; restored, every row is back with its key.
void TrashTest::contactFromTheAddressBookComesBackWhole()
{
    AddressBookFixture fx;
    const QString phones
        = "SELECT PhoneID & ' ' & ContactID & ' ' & PhoneName & ' ' & PhoneNumber FROM tbl_Phones "
          "ORDER BY PhoneID";
    const QString pages
        = "SELECT HomeID & ' ' & ContactID & ' ' & HomeWWW FROM tbl_HomePages ORDER BY HomeID";
    const QStringList phonesBefore = fx.column(phones);
    const QStringList pagesBefore = fx.column(pages);
    {
        AddressBookWindow window;
        Shown w(&window);
        w.clickLine("Ona Petraitiene");
        fx.prompter.answer(MsgBoxResult::Yes);
        w.list()->setFocus();
        QTest::keyClick(w.list(), Qt::Key_Delete, Qt::ControlModifier);
        QVERIFY(!w.lines().contains("Ona Petraitiene"));
    }
    QCOMPARE(fx.count("tbl_Phones"), 1);
    QCOMPARE(fx.count("tbl_HomePages"), 0);
    Connection connection(fx.reg.connectionString());
    connection.open();
    Trash trash(connection, trashFolderFor(fx.reg.path()));
    const QList<TrashItem> items = trash.items();
    QCOMPARE(items.size(), 1);
    QCOMPARE(items.first().kind, TrashKind::Contact);
    QCOMPARE(items.first().key, qint64(fx.ona));
    trash.restore(items.first().id);
    QCOMPARE(fx.column(phones), phonesBefore);
    QCOMPARE(fx.column(pages), pagesBefore);
    QCOMPARE(fx.reg.scalar("SELECT FullName FROM tbl_Contacts WHERE ContactID=" + QString::number(fx.ona))
                 .toString(),
        QString("Ona Petraitiene"));
}

// A restore in the window over a path another file took meanwhile tells where the file went.
void TrashTest::restoreInTheWindowTellsOfATakenPath()
{
    TrashFixture fx;
    ScriptedPrompter prompter;
    Trash(fx.connection, trashFolderFor(fx.reg.path())).deleteRelatedDocument(fx.id["rel2"]);
    fx.makeFile("priedas 2.txt", "a newcomer");
    DeletedItemsWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.itemList()->topLevelItem(0)->text(0), QString("Priedas 2 (SUT-7)"));
    prompter.answer(MsgBoxResult::Ok);
    QTest::mouseClick(window.findChild<QPushButton*>("cmdRestore"), Qt::LeftButton);
    const QString moved = QFileInfo(fx.file["rel2"]).absolutePath() + "/priedas 2 (2).txt";
    QCOMPARE(prompter.texts(),
        QStringList {
            "Another file took the place of a restored one meanwhile; the restored file got a new name:\n"
            + QDir::toNativeSeparators(fx.file["rel2"]) + "\n    -> " + QDir::toNativeSeparators(moved)});
    QCOMPARE(TrashFixture::bytes(moved), QByteArray("appendix two"));
    QCOMPARE(TrashFixture::bytes(fx.file["rel2"]), QByteArray("a newcomer"));
    QCOMPARE(window.itemList()->topLevelItemCount(), 0);
    QVERIFY(window.changed());
}

// In Lithuanian the window, its kinds and its questions speak Lithuanian, while the register
// keeps the kinds in English.
void TrashTest::deletedItemsWindowSpeaksLithuanian()
{
    TrashFixture fx;
    ScriptedPrompter prompter;
    Trash trash(fx.connection, trashFolderFor(fx.reg.path()));
    trash.deleteRelatedDocument(fx.id["rel2"]);
    trash.deleteDocument(fx.id["doc"]);
    const Lithuanian lithuanian;
    DeletedItemsWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.windowTitle(), QString("Pašalinti elementai"));
    QTreeWidget* list = window.itemList();
    QStringList headers;
    for (int column = 0; column < list->columnCount(); ++column)
        headers << list->headerItem()->text(column);
    QCOMPARE(headers, (QStringList {"Elementas", "Rūšis", "Pašalino", "Kada"}));
    QCOMPARE(window.findChild<QLabel*>()->text(), QString("&Pašalinti elementai:"));
    QCOMPARE(window.findChild<QPushButton*>("cmdRestore")->text(), QString("&Atkurti"));
    QCOMPARE(window.findChild<QPushButton*>("cmdDelete")->text(), QString("Ša&linti"));
    QCOMPARE(window.findChild<QPushButton*>("cmdEmptyTrash")->text(), QString("&Išvalyti šiukšlinę"));
    QCOMPARE(clashingAccessKeys(window), QStringList());
    QCOMPARE(list->topLevelItem(0)->text(1), QString("dokumentas"));
    QCOMPARE(list->topLevelItem(1)->text(1), QString("susijęs dokumentas"));
    QCOMPARE(
        fx.reg.scalar("SELECT Kind FROM tbl_Trash ORDER BY TrashID").toString(), QString("related document"));

    list->setFocus();
    prompter.answer(MsgBoxResult::No);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(prompter.prompts().size(), 1);
    QCOMPARE(prompter.prompts().first().title, QString("Šalinimo patvirtinimas"));
    QCOMPARE(prompter.prompts().first().text,
        QString("Pašalinti „Nuomos sutartis (SUT-7)“ visam laikui? Vėliau jo nebus galima atkurti."));
    QCOMPARE(list->topLevelItemCount(), 2);

    // Enter restores the document, then its related document.
    QTest::keyClick(list, Qt::Key_Return);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(list->topLevelItemCount(), 0);
    QVERIFY(prompter.allAnswered());
}

// The main window's start purges the items deleted longer ago than the options' days, with
// their files, and keeps those deleted since.
void TrashTest::startPurgesItemsOlderThanTheLimit()
{
    CommandsFixture fx;
    setTrashDays(30);
    const QString own = fx.makeFile("contract.doc");
    fx.setPath("tbl_Documents", "RastasID", fx.id["contract"], "RastoKel", own);
    const QDateTime now(QDate(2026, 3, 1), QTime(12, 0));
    {
        Connection connection(fx.reg.connectionString());
        connection.open();
        Trash trash(connection, trashFolderFor(fx.reg.path()));
        {
            const SettableClock then(now.addDays(-31));
            trash.deleteDocument(fx.id["contract"]);
        }
        const SettableClock then(now.addDays(-29));
        trash.deleteDocument(fx.id["work"]);
    }
    const QDir folder(trashFolderFor(fx.reg.path()));
    QCOMPARE(folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);

    const SettableClock today(now);
    fx.load();
    Connection connection(fx.reg.connectionString());
    connection.open();
    const QList<TrashItem> left = Trash(connection, trashFolderFor(fx.reg.path())).items();
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().key, qint64(fx.id["work"]));
    QCOMPARE(folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
    QVERIFY(!QFileInfo::exists(own));
    QVERIFY(!fx.documentExists("contract"));
}
