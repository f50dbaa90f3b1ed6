// Deleting documents, related documents and categories from the main window: what is asked,
// what goes to the trash and what the lists show after.

#include "CommandsFixture.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QStandardPaths>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

class DeleteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The trash is the one of the tests' own data folder, emptied for each test.
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void init()
    {
        selection() = SelectionState();
        QDir(trashFolder()).removeRecursively();
    }

    // Every delete asks one question that names the document; its file goes to the trash.
    void deleteAsksOnceNamingTheDocument_data()
    {
        QTest::addColumn<QString>("file"); // "none", "gone", "there"
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QString>("question");
        const QString bare = "Delete the document \"work\" (SUT-2)?";
        const QString withFile = "Delete the document \"work\" (SUT-2) and its file?";
        QTest::newRow("no file, yes") << "none" << true << bare;
        QTest::newRow("no file, no: the row stays") << "none" << false << bare;
        QTest::newRow("vanished file, yes") << "gone" << true << bare;
        QTest::newRow("file, yes: to the trash") << "there" << true << withFile;
        QTest::newRow("file, no: both stay") << "there" << false << withFile;
    }

    void deleteAsksOnceNamingTheDocument()
    {
        QFETCH(QString, file);
        QFETCH(bool, yes);
        QFETCH(QString, question);
        CommandsFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        QString path;
        if (file == "there")
            path = fx.makeFile("work.doc");
        else if (file == "gone")
            path = fx.reg.dir() + "/nowhere.doc";
        if (!path.isEmpty())
            fx.setPath("tbl_Documents", "RastasID", fx.id["work"], "RastoKel", path);
        MainWindow& w = fx.load();
        w.show();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("work");
        prompter.answer(yes ? MsgBoxResult::Yes : MsgBoxResult::No);
        QTest::keyClick(w.documentList()->detailsView(), Qt::Key_Delete);
        QCOMPARE(prompter.texts(), QStringList {question});
        QCOMPARE(prompter.prompts().first().title, QString("Confirm Deletion"));
        QCOMPARE(prompter.prompts().first().style,
            MsgBoxStyle::YesNo + MsgBoxStyle::Question + MsgBoxStyle::DefaultButton2);
        QVERIFY(shell.calls().isEmpty());
        QCOMPARE(fx.documentExists("work"), !yes);
        QCOMPARE(fx.rowCount("tbl_Documents"), yes ? 4 : 5);
        if (file == "there") {
            QCOMPARE(QFile::exists(path), !yes);
            QCOMPARE(inTrash("work.doc"), yes);
        }
        QCOMPARE(fx.documentTexts(), yes ? QStringList {"contract"} : QStringList({"contract", "work"}));
    }

    void deleteWithRelatedDocuments()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        const QString own = fx.makeFile("contract.doc");
        const QString annex = fx.makeFile("annex.doc");
        fx.setPath("tbl_Documents", "RastasID", fx.id["contract"], "RastoKel", own);
        fx.setPath("tbl_Sub_Documents", "SubRastasID", fx.id["annex"], "SubRastoKelias", annex);
        MainWindow& w = fx.load();
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("contract");
        QVERIFY(w.relatedList()->isVisible());

        // No: nothing changes, no file is touched.
        const QString question = "Delete the document \"contract\" (SUT-1) and its file, with its 2 related "
                                 "documents and their files?";
        prompter.answer(MsgBoxResult::No);
        w.action("btnDelete")->trigger();
        QCOMPARE(prompter.texts(), QStringList {question});
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 2);
        QVERIFY(QFile::exists(own) && QFile::exists(annex));

        // Yes, once: the rows go, the files to the trash, but the copy's file stays: the
        // document "letter" still names it.
        prompter.answer(MsgBoxResult::Yes);
        w.action("btnDelete")->trigger();
        QCOMPARE(prompter.texts(), QStringList({question, question}));
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 0);
        QVERIFY(!fx.documentExists("contract"));
        QVERIFY(!QFile::exists(own) && inTrash("contract.doc"));
        QVERIFY(!QFile::exists(annex) && inTrash("annex.doc"));
        QVERIFY(QFile::exists(fx.existingFile));
        QVERIFY(shell.calls().isEmpty());
        QCOMPARE(fx.rowCount("tbl_Documents"), 4);
        QVERIFY(fx.documentExists("letter"));
        // The node's list shows the change; the related list is gone with its document.
        QCOMPARE(fx.documentTexts(), QStringList {"work"});
        QVERIFY(!w.relatedList()->isVisible());
    }

    void deleteRelatedDocument()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        const QString annex = fx.makeFile("annex.doc");
        fx.setPath("tbl_Sub_Documents", "SubRastasID", fx.id["annex"], "SubRastoKelias", annex);
        MainWindow& w = fx.load();
        fx.clickDocument("contract");
        const int annexRow = fx.related().rowOfKey(DocumentFills::itemKey(fx.id["annex"]));
        w.onRelatedClicked(annexRow);
        const QString question = "Delete the related document \"annex\" and its file?";
        prompter.answer(MsgBoxResult::No);
        w.action("mnuDelete")->trigger();
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 2);
        QVERIFY(QFile::exists(annex));
        prompter.answer(MsgBoxResult::Yes);
        w.action("mnuDelete")->trigger();
        QCOMPARE(prompter.texts(), QStringList({question, question}));
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 1);
        QVERIFY(!QFile::exists(annex) && inTrash("annex.doc"));
        QCOMPARE(fx.related().itemCount(), 1);
        QVERIFY(fx.documentExists("contract"));
        QCOMPARE(fx.documents().itemCount(), 5);
        // The document stays highlighted, its remaining related document listed.
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
        QVERIFY(w.relatedList()->isVisible());
        QVERIFY(shell.calls().isEmpty());
    }

    // A related document whose file is not there (none stored, or gone) stays, and the user is
    // told why; the shell is never asked.
    void deleteRelatedDocumentWithoutFile_data()
    {
        QTest::addColumn<bool>("stored");
        QTest::addColumn<QString>("told");
        QTest::newRow("no file stored") << false << "has no file";
        QTest::newRow("file gone") << true << "was not found";
    }

    void deleteRelatedDocumentWithoutFile()
    {
        QFETCH(bool, stored);
        QFETCH(QString, told);
        CommandsFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        if (stored)
            fx.setPath("tbl_Sub_Documents", "SubRastasID", fx.id["annex"], "SubRastoKelias",
                fx.reg.dir() + "/gone.doc");
        else
            fx.reg.exec(QString("UPDATE tbl_Sub_Documents SET SubRastoKelias = NULL WHERE SubRastasID=%1")
                            .arg(fx.id["annex"]));
        MainWindow& w = fx.load();
        w.activateWindow();
        fx.clickDocument("contract");
        w.onRelatedClicked(fx.related().rowOfKey(DocumentFills::itemKey(fx.id["annex"])));
        prompter.answer(MsgBoxResult::Ok);
        QTest::keyClick(w.relatedList()->detailsView(), Qt::Key_Delete);
        QCOMPARE(prompter.prompts().size(), 1);
        QVERIFY2(prompter.texts().first().contains(told), qPrintable(prompter.texts().first()));
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 2);
        QCOMPARE(fx.related().itemCount(), 2);
        QVERIFY(shell.calls().isEmpty());
    }

    void deleteBeforeAnyClickAsksForADocument()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.load();
        prompter.answer(MsgBoxResult::Ok);
        w.action("btnDelete")->trigger();
        QCOMPARE(prompter.texts(), QStringList {"Select document, please!"});
        QCOMPARE(prompter.prompts().first().title, QString("Unable to delete as requested"));
        QCOMPARE(prompter.prompts().first().style, MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation);
        QCOMPARE(fx.rowCount("tbl_Documents"), 5);
    }

    void deleteCategory_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("question");
        QTest::addColumn<int>("categories");
        QTest::addColumn<int>("subCategories");
        QTest::addColumn<QString>("shownKey"); // the node shown after: empty for the root
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("category") << "aSutartys"
                                  << "Do you wish to delete Category and SubCategories?" << 1 << 0 << ""
                                  << "CATEGORIES"
                                  << QStringList({"contract", "letter", "loose", "note", "work"});
        QTest::newRow("subcategory") << "bNuomos"
                                     << "Do you wish to delete SubCategory?" << 2 << 1 << "Sutartys"
                                     << "Exploring Category — Sutartys" << QStringList({"contract", "work"});
    }

    void deleteCategory()
    {
        QFETCH(QString, node);
        QFETCH(QString, question);
        QFETCH(int, categories);
        QFETCH(int, subCategories);
        QFETCH(QString, shownKey);
        QFETCH(QString, title);
        QFETCH(QStringList, shown);
        CommandsFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.load();
        fx.clickNode(node.left(1) + QString::number(fx.id[node.mid(1)]));
        fx.clickDocument("contract");
        prompter.answer(MsgBoxResult::No);
        w.action("mnuDeleteCategory")->trigger();
        QCOMPARE(prompter.prompts().last().text, question);
        QCOMPARE(prompter.prompts().last().style, MsgBoxStyle::YesNo + MsgBoxStyle::Exclamation);
        QCOMPARE(fx.rowCount("tbl_Document_Categories"), 2);
        prompter.answer(MsgBoxResult::Yes);
        w.action("mnuPopCatDel")->trigger();
        QCOMPARE(fx.rowCount("tbl_Document_Categories"), categories);
        QCOMPARE(fx.rowCount("tbl_Sub_Categories"), subCategories);
        // Documents keep their category; the node goes at once, and the tree and the list
        // show the node above it, the highlighted document kept.
        QCOMPARE(fx.rowCount("tbl_Documents"), 5);
        QVERIFY(!w.tree()->nodeByKey(node.left(1) + QString::number(fx.id[node.mid(1)])));
        QCOMPARE(NavigationTree::nodeKey(w.tree()->currentItem()),
            shownKey.isEmpty() ? QString("ALL") : "a" + QString::number(fx.id[shownKey]));
        QCOMPARE(w.windowTitle(), title);
        QCOMPARE(fx.documentTexts(), shown);
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
    }
};

QTEST_MAIN(DeleteTest)
#include "tst_delete.moc"
