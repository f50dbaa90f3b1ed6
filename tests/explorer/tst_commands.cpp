#include "CommandsFixture.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "store/engine/TextFold.h"
#include "support/SelectionState.h"
#include "support/Splitter.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QMimeData>
#include <QSplitter>
#include <QStandardPaths>
#include <QTest>
#include <QTreeView>

using namespace kartella;
using namespace kartella::test;

class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a command writes to the user's data folder goes to the tests' own.
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { selection() = SelectionState(); }

    void enablingFollowsTheSelection()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.load();
        // Start: document commands disabled in the menus, every toolbar button enabled.
        for (const QString& name : DocumentCommands + QStringList {"mnuDeleteCategory", "mnuCategoryOptions"})
            QVERIFY2(!fx.enabled(name), qPrintable(name));
        for (const char* name : {"mnuNew", "mnuPrintSetup", "mnuExit", "mnuRefresh"})
            QVERIFY2(fx.enabled(QString::fromLatin1(name)), name);
        for (int position : {1, 2, 4, 5, 6, 7, 9, 10, 12, 14, 15, 17})
            QVERIFY2(fx.toolbarEnabled(position) || position >= 14, qPrintable(QString::number(position)));
        QCOMPARE(w.toolbarButton(12)->objectName(), QString("btnView"));
        QVERIFY(w.action("mnuByCategory")->isChecked());
        QVERIFY(w.action("mnuDetails")->isChecked());

        // A document with a file.
        fx.clickDocument("letter");
        for (const QString& name : PathCommands + QStringList {"mnuDelete", "mnuRelated", "mnuShowDetails"})
            QVERIFY2(fx.enabled(name), qPrintable(name));
        for (int position : {2, 4, 5, 6, 7, 9, 10})
            QVERIFY(fx.toolbarEnabled(position));
        // A document without one: delete and details stay.
        fx.clickDocument("contract");
        for (const QString& name : PathCommands)
            QVERIFY2(!fx.enabled(name), qPrintable(name));
        for (const char* name :
            {"mnuDelete", "mnuRelated", "mnuShowDetails", "mnuPopDelete", "mnuPopDetails"})
            QVERIFY2(fx.enabled(QString::fromLatin1(name)), name);
        for (int position : {2, 4, 5, 7, 10})
            QVERIFY(!fx.toolbarEnabled(position));
        QVERIFY(fx.toolbarEnabled(6) && fx.toolbarEnabled(9));
        // A related document: no related document of a related one.
        w.onRelatedClicked(fx.related().rowOfKey(DocumentFills::itemKey(fx.id["copy"])));
        QVERIFY(!fx.enabled("mnuRelated"));
        QVERIFY(fx.enabled("mnuShowDetails") && fx.enabled("mnuOpen") && fx.enabled("mnuPopOpen"));

        // A node: document commands off, the context menu's entries keep their state.
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        for (const QString& name : DocumentCommands)
            QVERIFY2(!fx.enabled(name), qPrintable(name));
        for (int position : {2, 4, 5, 6, 7, 9, 10})
            QVERIFY(!fx.toolbarEnabled(position));
        QVERIFY(fx.enabled("mnuPopOpen"));
        QVERIFY(fx.enabled("mnuCategoryOptions") && fx.enabled("mnuDeleteCategory"));
        fx.clickNode("ALL");
        QVERIFY(!fx.enabled("mnuCategoryOptions"));
        QVERIFY(fx.enabled("mnuDeleteCategory"));

        // The empty state: a click on its item leaves everything as it was.
        fx.clickDocument("letter");
        fx.reg.exec("DELETE FROM tbl_Documents");
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        w.onDocumentClicked(0);
        for (const QString& name : DocumentCommands)
            QVERIFY2(!fx.enabled(name), qPrintable(name));
        QVERIFY(fx.enabled("mnuPopOpen"));
        QVERIFY(selection().selectedFilePath.isEmpty());
        QVERIFY(prompter.prompts().isEmpty());
    }

    void everyCommandHasItsDialog()
    {
        ExplorerFixture fx;
        MainWindow& w = fx.window();
        fx.clickDocument("contract");
        for (const QAction* command : w.findChildren<QAction*>())
            QVERIFY2(!command->toolTip().contains("not available"), qPrintable(command->objectName()));
        QVERIFY(w.action("mnuShowDetails")->isEnabled());
        QVERIFY(w.action("btnDetails")->isEnabled());
        QCOMPARE(w.action("btnDetails")->toolTip(), QString("Show Details (F3)"));
        QCOMPARE(w.action("btnDelete")->toolTip(), QString("Delete Document (Del)"));
        QVERIFY(w.action("mnuDelete")->isEnabled());
        QVERIFY(w.action("mnuRelated")->isEnabled());
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        QVERIFY(w.action("mnuDeleteCategory")->isEnabled());
        QVERIFY(w.action("mnuCategoryOptions")->isEnabled());
    }

    void openAndPrint()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        MainWindow& w = fx.load();
        // Before any click the toolbar is on and the path is empty.
        prompter.answer(MsgBoxResult::Ok);
        w.action("btnOpen")->trigger();
        QCOMPARE(prompter.texts(), QStringList {"Path to Location of this Document not included!"});
        QCOMPARE(prompter.prompts().last().title, QString("File not found"));
        QCOMPARE(prompter.prompts().last().style, MsgBoxStyle::OkOnly + MsgBoxStyle::Information);

        fx.clickDocument("note"); // its file has gone
        prompter.answer(MsgBoxResult::Ok);
        w.action("mnuPrint")->trigger();
        QCOMPARE(prompter.prompts().last().text, QString("Path to file is invalid!"));
        QCOMPARE(prompter.prompts().last().title, QString("Unable to open Document"));
        QCOMPARE(prompter.prompts().last().style, MsgBoxStyle::OkOnly + MsgBoxStyle::Critical);
        QVERIFY(shell.calls().isEmpty());

        fx.clickDocument("letter");
        w.action("mnuOpen")->trigger();
        w.action("mnuPopPrint")->trigger();
        w.action("mnuProperties")->trigger();
        QTreeView* view = w.documentList()->detailsView();
        const QModelIndex index
            = fx.documents().index(fx.documents().rowOfKey(DocumentFills::itemKey(fx.id["letter"])), 0);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
        const QList<ScriptedShell::Call> calls = shell.take();
        QCOMPARE(calls.size(), 4);
        QCOMPARE(calls[0].kind, ScriptedShell::Kind::Open);
        QCOMPARE(calls[1].kind, ScriptedShell::Kind::Print);
        QCOMPARE(calls[2].kind, ScriptedShell::Kind::Properties);
        QCOMPARE(calls[3].kind, ScriptedShell::Kind::Open);
        for (const auto& call : calls)
            QCOMPARE(call.path, fx.existingFile);
        QCOMPARE(prompter.prompts().size(), 2);
    }

    void columnSortAlternates()
    {
        CommandsFixture fx;
        MainWindow& w = fx.load();
        auto column = [&](int c) {
            QStringList out;
            for (int row = 0; row < fx.documents().itemCount(); ++row)
                out << ListModel::columnText(fx.documents().item(row), c);
            return out;
        };
        QStringList ascending = column(0);
        ascending.sort(Qt::CaseInsensitive);
        QStringList descending = ascending;
        std::reverse(descending.begin(), descending.end());
        w.onDocumentColumnClicked(0);
        QCOMPARE(column(0), ascending);
        w.onDocumentColumnClicked(0);
        QCOMPARE(column(0), descending);
        w.onDocumentColumnClicked(0);
        QCOMPARE(column(0), ascending);
        // Another column starts ascending; the sort stays across a refill.
        w.action("mnubyCorrespondent")->trigger();
        QStringList names = column(2);
        QVERIFY(std::is_sorted(names.begin(), names.end(), [](const QString& a, const QString& b) {
            const QByteArray left = a.toUtf8();
            const QByteArray right = b.toUtf8();
            return engine::compareNames(
                       left.constData(), size_t(left.size()), right.constData(), size_t(right.size()))
                < 0;
        }));
        w.action("mnubyCorrespondent")->trigger();
        QCOMPARE(column(2).first(), names.last());
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        QCOMPARE(column(2), QStringList({"benas Jonaitis", "Ąžuolas Kairys"})); // still descending
        // "by Date" sorts the "Date" column.
        w.action("mnubyDate")->trigger();
        QCOMPARE(fx.documents().sortKey(), 3);
        // The empty state has no such columns: nothing happens.
        fx.reg.exec("DELETE FROM tbl_Documents");
        fx.clickNode("ALL");
        w.action("mnubyRegIndex")->trigger();
        w.onDocumentColumnClicked(4);
        QCOMPARE(fx.documents().sortKey(), 3);
    }

    void viewModesApplyToBothLists()
    {
        CommandsFixture fx;
        MainWindow& w = fx.load();
        const QStringList menu = {"mnuLargeIcons", "mnuSmallIcons", "mnuList", "mnuDetails"};
        const QStringList toolbar = {"btnLarge", "btnSmall", "btnList", "btnDetailsV"};
        for (int view = 0; view < 4; ++view) {
            for (const QStringList* source : {&menu, &toolbar}) {
                w.action(source->at((view + 1) % 4))->trigger();
                w.action(source->at(view))->trigger();
                QCOMPARE(w.documentList()->view(), view);
                QCOMPARE(w.relatedList()->view(), view);
                for (int other = 0; other < 4; ++other)
                    QCOMPARE(w.action(menu[other])->isChecked(), other == view);
            }
        }
        // The view button's face does nothing.
        w.action("btnView")->trigger();
        QCOMPARE(w.documentList()->view(), 3);
    }

    void rightButtonMenus()
    {
        CommandsFixture fx;
        ScriptedShell shell;
        MainWindow& w = fx.load();
        QTreeView* documents = w.documentList()->detailsView();
        QWidget* related = w.relatedList()->detailsView()->viewport();
        auto rowCenter = [&](const QString& name) {
            const int row = fx.documents().rowOfKey(DocumentFills::itemKey(fx.id[name]));
            return documents->visualRect(fx.documents().index(row, 0)).center();
        };
        // Beside the rows with nothing highlighted: the menu offers New Document only.
        const QPoint below(5, documents->viewport()->height() - 3);
        fx.rightClick(documents->viewport(), below);
        QCOMPARE(fx.popups, QList<QMenu*> {w.documentContextMenu()});
        QVERIFY(fx.enabled("mnuPopNew"));
        for (const char* name : {"mnuPopOpen", "mnuPopCopy", "mnuPopNewVersion", "mnuPopDelete",
                 "mnuPopPrint", "mnuPopRelated", "mnuPopDetails", "mnuPopProperties"})
            QVERIFY2(!fx.enabled(name), name);
        // The right button highlights the row under it, and the menu acts on that row.
        fx.clickDocument("contract");
        fx.rightClick(documents->viewport(), rowCenter("letter"));
        QCOMPARE(selection().selectedDocumentId, fx.id["letter"]);
        QCOMPARE(fx.popups.size(), 2);
        for (const char* name : {"mnuPopNew", "mnuPopOpen", "mnuPopCopy", "mnuPopNewVersion", "mnuPopDelete",
                 "mnuPopPrint", "mnuPopRelated", "mnuPopDetails", "mnuPopProperties"})
            QVERIFY2(fx.enabled(name), name);
        QVERIFY(w.action("mnuPopRelated")->isVisible());
        w.action("mnuPopNew")->trigger();
        QCOMPARE(fx.opened, QStringList {"frmNewDocument"});
        // Enter on the highlighted row opens its document, as a double click does.
        QTest::keyClick(documents, Qt::Key_Return);
        QCOMPARE(shell.calls().size(), 1);
        QCOMPARE(shell.calls().first().kind, ScriptedShell::Kind::Open);
        QCOMPARE(shell.calls().first().path, fx.existingFile);

        // The related list's menu has no New Related.
        fx.clickDocument("contract");
        fx.rightClick(related);
        QCOMPARE(fx.popups.size(), 3);
        QVERIFY(!w.action("mnuPopRelated")->isVisible());
        QVERIFY(!fx.enabled("mnuPopNewVersion"));
        QVERIFY(!w.action("mnuhypen14")->isVisible());

        // The tree: no menu while no category is current; the category menu otherwise.
        fx.popups.clear();
        fx.rightClick(w.tree()->viewport());
        QVERIFY(fx.popups.isEmpty());
        QVERIFY(!fx.enabled("mnuCategoryOptions"));
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        fx.rightClick(w.tree()->viewport());
        QCOMPARE(fx.popups, QList<QMenu*> {w.categoryContextMenu()});
        w.action("mnuPopCatNewDoc")->trigger();
        QCOMPARE(fx.opened, QStringList({"frmNewDocument", "frmNewDocument"}));
        // Not in the contact view.
        w.action("mnuByContacts")->trigger();
        fx.rightClick(w.tree()->viewport());
        QCOMPARE(fx.popups.size(), 1);
    }

    void refreshAndViewSwitch()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.load();
        w.show();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        fx.clickDocument("note");
        // F5: the tree and the list are built again, the node and the document kept.
        fx.reg.insert("tbl_Document_Categories", {{"DokKategorija", "Aktai"}});
        fx.reg.insert("tbl_Documents",
            {{"DokAntraste", "late"}, {"KategID", fx.id["Raštai"]}, {"DokRegistracData", fx.thisMonth}});
        QTest::keyClick(&w, Qt::Key_F5);
        QCOMPARE(w.tree()->nodeByIndex(2)->text(0), QString("Aktai"));
        QCOMPARE(NavigationTree::nodeKey(w.tree()->currentItem()), "a" + QString::number(fx.id["Raštai"]));
        QCOMPARE(w.lastNodeIndex(), NavigationTree::nodeIndex(w.tree()->currentItem()));
        QCOMPARE(fx.documentTexts(), QStringList({"late", "letter", "note"}));
        QCOMPARE(selection().selectedDocumentId, fx.id["note"]);

        // By Contacts: the contact tree's root with its list and title, the document kept.
        w.action("mnuByContacts")->trigger();
        QVERIFY(w.action("mnuByContacts")->isChecked());
        QVERIFY(!w.action("mnuByCategory")->isChecked());
        QVERIFY(!w.isCategoryView());
        QCOMPARE(w.tree()->nodeByIndex(1)->text(0), QString("CONTACTS"));
        QCOMPARE(w.windowTitle(), QString("CONTACTS"));
        QCOMPARE(fx.documents().itemCount(), 6);
        QCOMPARE(selection().selectedDocumentId, fx.id["note"]);
        w.action("mnuByCategory")->trigger();
        QVERIFY(w.isCategoryView());
        QCOMPARE(w.windowTitle(), QString("CATEGORIES"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // The dialogs that write documents leave the list showing what they wrote.
    void listShowsWhatADialogWrote()
    {
        CommandsFixture fx;
        MainWindow& w = fx.load();
        w.show();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        w.setDialog("frmNewDocument", [&](const QString&) {
            fx.reg.insert("tbl_Documents", {{"DokAntraste", "fresh"}, {"DokRegistracData", fx.thisMonth}});
        });
        w.setDialog("frmRelated", [&](const QString&) {
            fx.reg.insert(
                "tbl_Sub_Documents", {{"RastasID", fx.id["contract"]}, {"SubDocDescript", "reply"}});
        });
        fx.clickDocument("contract");
        QTest::keyClick(&w, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(fx.documents().itemCount(), 6);
        QVERIFY(fx.documentTexts().contains("fresh"));
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
        w.action("mnuRelated")->trigger();
        QStringList related;
        for (int row = 0; row < fx.related().itemCount(); ++row)
            related << fx.related().item(row).text;
        related.sort();
        QCOMPARE(related, QStringList({"annex", "copy", "reply"}));
    }

    void dragOffersTheSelectedFile()
    {
        CommandsFixture fx;
        fx.load();
        fx.clickDocument("letter");
        std::unique_ptr<QMimeData> data(fx.documents().mimeData({fx.documents().index(0, 0)}));
        QCOMPARE(data->urls(), QList<QUrl> {QUrl::fromLocalFile(fx.existingFile)});
        QVERIFY(data->hasFormat("text/uri-list"));
        fx.clickDocument("loose");
        data.reset(fx.documents().mimeData({fx.documents().index(0, 0)}));
        QVERIFY(data->urls().isEmpty());
    }

    void splittersKeepTheirRules()
    {
        // The percent is limited to 1..99, and further so that no boundary comes nearer an
        // edge than the minimum distance.
        QSplitter splitter;
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        splitter.resize(400, 300);
        splitter.show();
        Splitter gap;
        gap.create(&splitter, true, 0, 0);
        QCOMPARE(gap.splitterSize(), 4);
        QCOMPARE(gap.percent(), gap.leastPercent());
        QVERIFY(splitter.sizes().first() >= gap.minimumDistance() - 2);
        gap.create(&splitter, true, 6, 120);
        QCOMPARE(gap.percent(), 100 - gap.leastPercent());
        QVERIFY(splitter.sizes().last() >= gap.minimumDistance() - 3);
        gap.setSplitPercent(50);
        QVERIFY(qAbs(gap.splitPercent() - 50) <= 1);
        // A drag past the edge stops at the panes' least size: none collapses.
        splitter.setSizes({0, 400});
        QVERIFY(splitter.sizes().first() > 0);

        // The related list: 0.8 of the height after each fill that shows it, whatever was dragged.
        CommandsFixture fx;
        MainWindow& w = fx.load();
        fx.clickDocument("contract");
        auto* lists = w.findChild<QSplitter*>("splitLists");
        lists->setSizes({100, lists->height() - 100});
        fx.clickDocument("letter");
        fx.clickDocument("contract");
        QVERIFY(qAbs(w.documentList()->height() - int(w.tree()->height() * 0.8)) <= 8);
    }

    void droppedFilesOpenTheDialogOneByOne()
    {
        CommandsFixture fx;
        MainWindow& w = fx.load();
        w.onFilesDropped({"/tmp/a.doc", "/tmp/b.xls", "/tmp/c.pdf"});
        QCOMPARE(fx.opened,
            QStringList(
                {"frmNewDocument:/tmp/a.doc", "frmNewDocument:/tmp/b.xls", "frmNewDocument:/tmp/c.pdf"}));
    }
};

QTEST_MAIN(CommandsTest)
#include "tst_commands.moc"
