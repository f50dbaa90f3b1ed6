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
#include <QTest>
#include <QTreeView>

using namespace kartella;
using namespace kartella::test;

namespace {

const QStringList PathCommands = {"mnuOpen", "mnuCopy", "mnuMove", "mnuPrint", "mnuProperties", "mnuPopCopy",
    "mnuPopOpen", "mnuPopPrint", "mnuPopProperties"};
const QStringList DocumentCommands = {"mnuOpen", "mnuCopy", "mnuMove", "mnuDelete", "mnuPrint", "mnuRelated",
    "mnuShowDetails", "mnuProperties"};
const QStringList Dialogs
    = {"frmNewDocument", "frmCopyFile", "frmRelated", "frmNew", "frmRelDescr", "frmCategory"};

// A main window with every dialog registered as a recorder, and the menus it would pop up.
struct CommandsFixture : ExplorerFixture
{
    QStringList opened;
    QList<QMenu*> popups;

    MainWindow& load()
    {
        MainWindow& w = window();
        for (const QString& name : Dialogs)
            w.setDialog(name, [this, name](const QString& file) {
                opened << name + (file.isEmpty() ? QString() : QString(":" + file));
            });
        w.popupMenu = [this](QMenu* menu, const QPoint&) { popups << menu; };
        return w;
    }

    bool enabled(const QString& name) { return window().action(name)->isEnabled(); }
    bool toolbarEnabled(int position) { return window().toolbarButton(position)->isEnabled(); }
    int rowCount(const QString& table) { return reg.scalar("SELECT COUNT(*) FROM " + table).toInt(); }
    bool documentExists(const QString& name)
    {
        return reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE RastasID=" + QString::number(id[name]))
                   .toInt()
            == 1;
    }
    void rightClick(QWidget* viewport, const QPoint& pos = {5, 5})
    {
        QTest::mousePress(viewport, Qt::RightButton, {}, pos);
        QTest::mouseRelease(viewport, Qt::RightButton, {}, pos);
    }
    QString makeFile(const QString& name)
    {
        const QString path = reg.dir() + "/" + name;
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write("x");
        return path;
    }
    void setPath(
        const QString& table, const QString& key, qint32 keyValue, const QString& field, const QString& path)
    {
        reg.exec(QString("UPDATE %1 SET %2 = '%3' WHERE %4=%5").arg(table, field, path, key).arg(keyValue));
    }
};

} // namespace

class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    void deleteWithoutRelatedDocuments_data()
    {
        QTest::addColumn<QString>("file"); // "none", "gone", "there"
        QTest::addColumn<int>("answer"); // the shell's question: 1 confirm, 0 refuse, -1 none asked
        QTest::addColumn<bool>("rowGone");
        QTest::newRow("no file: no question") << "none" << -1 << true;
        QTest::newRow("vanished file: no question") << "gone" << -1 << true;
        QTest::newRow("file confirmed") << "there" << 1 << true;
        QTest::newRow("file refused: the row stays") << "there" << 0 << false;
    }

    void deleteWithoutRelatedDocuments()
    {
        QFETCH(QString, file);
        QFETCH(int, answer);
        QFETCH(bool, rowGone);
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
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("work");
        if (answer == 1)
            shell.confirm();
        else if (answer == 0)
            shell.refuse();
        w.action("mnuDelete")->trigger();
        QVERIFY(shell.allAnswered());
        QCOMPARE(shell.questions().size(), answer < 0 ? 0 : 1);
        QCOMPARE(fx.documentExists("work"), !rowGone);
        if (file == "there")
            QCOMPARE(QFile::exists(path), !rowGone);
        // The node's documents are listed again, whatever happened.
        QCOMPARE(fx.documentTexts(), rowGone ? QStringList {"contract"} : QStringList({"contract", "work"}));
        QVERIFY(prompter.prompts().isEmpty());
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
        fx.clickNode("b" + QString::number(fx.id["Nuomos"]));
        fx.clickDocument("contract");
        QVERIFY(w.relatedList()->isVisible());

        // No: nothing changes, no file is touched.
        prompter.answer(MsgBoxResult::No);
        w.action("btnDelete")->trigger();
        QCOMPARE(prompter.prompts().last().text,
            QString("Do you wish to delete document and their subdocuments?"));
        QCOMPARE(prompter.prompts().last().title, QString("Confirm Deletion"));
        QCOMPARE(prompter.prompts().last().style, MsgBoxStyle::YesNo + MsgBoxStyle::Question);
        QVERIFY(shell.calls().isEmpty());
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 2);

        // Yes: the related rows go whatever their files do; the annex's file is refused, the
        // copy's file (shared with "letter") and the document's own confirmed.
        prompter.answer(MsgBoxResult::Yes);
        shell.refuse().confirm().confirm();
        w.action("btnDelete")->trigger();
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 0);
        QVERIFY(!fx.documentExists("contract"));
        QVERIFY(QFile::exists(annex));
        QVERIFY(!QFile::exists(own));
        const QList<ScriptedShell::Call> calls = shell.take();
        // Each related document's own file, in the order of its rows, then the document's.
        QCOMPARE(calls.size(), 3);
        QStringList paths;
        for (const ScriptedShell::Call& call : calls) {
            QCOMPARE(call.kind, ScriptedShell::Kind::Delete);
            paths << call.path;
        }
        QCOMPARE(paths, QStringList({annex, fx.existingFile, own}));
        // The other documents' rows are as they were.
        QCOMPARE(fx.rowCount("tbl_Documents"), 4);
        QVERIFY(fx.documentExists("letter"));
        // All documents are listed now, whatever node is selected; the related list is gone.
        QCOMPARE(fx.documentTexts(), QStringList({"letter", "loose", "note", "work"}));
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
        shell.refuse();
        w.action("mnuDelete")->trigger();
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 2);
        QVERIFY(QFile::exists(annex));
        shell.confirm();
        w.action("mnuDelete")->trigger();
        QCOMPARE(fx.rowCount("tbl_Sub_Documents"), 1);
        QVERIFY(!QFile::exists(annex));
        QCOMPARE(fx.related().itemCount(), 1);
        QVERIFY(fx.documentExists("contract"));
        QCOMPARE(fx.documents().itemCount(), 5);
        QVERIFY(prompter.prompts().isEmpty());
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
        QTest::newRow("category") << "aSutartys"
                                  << "Do you wish to delete Category and SubCategories?" << 1 << 0;
        QTest::newRow("subcategory") << "bNuomos"
                                     << "Do you wish to delete SubCategory?" << 2 << 1;
    }

    void deleteCategory()
    {
        QFETCH(QString, node);
        QFETCH(QString, question);
        QFETCH(int, categories);
        QFETCH(int, subCategories);
        CommandsFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.load();
        fx.clickNode(node.left(1) + QString::number(fx.id[node.mid(1)]));
        prompter.answer(MsgBoxResult::No);
        w.action("mnuDeleteCategory")->trigger();
        QCOMPARE(prompter.prompts().last().text, question);
        QCOMPARE(prompter.prompts().last().style, MsgBoxStyle::YesNo + MsgBoxStyle::Exclamation);
        QCOMPARE(fx.rowCount("tbl_Document_Categories"), 2);
        prompter.answer(MsgBoxResult::Yes);
        w.action("mnuPopCatDel")->trigger();
        QCOMPARE(fx.rowCount("tbl_Document_Categories"), categories);
        QCOMPARE(fx.rowCount("tbl_Sub_Categories"), subCategories);
        // Documents keep their category; the tree keeps the node until a refresh.
        QCOMPARE(fx.rowCount("tbl_Documents"), 5);
        QVERIFY(w.tree()->nodeByKey(node.left(1) + QString::number(fx.id[node.mid(1)])));
        w.action("mnuRefresh")->trigger();
        QVERIFY(!w.tree()->nodeByKey(node.left(1) + QString::number(fx.id[node.mid(1)])));
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
        MainWindow& w = fx.load();
        QWidget* documents = w.documentList()->detailsView()->viewport();
        QWidget* related = w.relatedList()->detailsView()->viewport();
        // Nothing selected yet: no menu.
        fx.rightClick(documents);
        QVERIFY(fx.popups.isEmpty());
        fx.clickDocument("contract");
        fx.rightClick(documents);
        QCOMPARE(fx.popups, QList<QMenu*> {w.documentContextMenu()});
        QVERIFY(w.action("mnuPopRelated")->isVisible());
        fx.rightClick(related);
        QCOMPARE(fx.popups.size(), 2);
        QVERIFY(!w.action("mnuPopRelated")->isVisible());
        QVERIFY(!w.action("mnuhypen14")->isVisible());
        fx.rightClick(documents);
        QVERIFY(w.action("mnuPopRelated")->isVisible());
        // The right button doesn't move the selection: the menu acts on the last click.
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);

        // The tree: no menu while no category is current; the category menu otherwise.
        fx.popups.clear();
        fx.rightClick(w.tree()->viewport());
        QVERIFY(fx.popups.isEmpty());
        QVERIFY(!fx.enabled("mnuCategoryOptions"));
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        fx.rightClick(w.tree()->viewport());
        QCOMPARE(fx.popups, QList<QMenu*> {w.categoryContextMenu()});
        w.action("mnuPopCatNewDoc")->trigger();
        QCOMPARE(fx.opened, QStringList {"frmNewDocument"});
        // Not in the contact view.
        w.action("mnuByContacts")->trigger();
        fx.rightClick(w.tree()->viewport());
        QCOMPARE(fx.popups.size(), 1);

        // The empty state offers no menu.
        fx.reg.exec("DELETE FROM tbl_Documents");
        w.action("mnuByCategory")->trigger();
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        w.documentList()->selectRow(0);
        fx.rightClick(documents);
        QCOMPARE(fx.popups.size(), 1);
    }

    void refreshAndViewSwitch()
    {
        CommandsFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.load();
        fx.clickNode("a" + QString::number(fx.id["Raštai"]));
        const int last = w.lastNodeIndex();
        fx.reg.insert("tbl_Document_Categories", {{"DokKategorija", "Aktai"}});
        w.action("mnuRefresh")->trigger();
        QCOMPARE(w.lastNodeIndex(), last);
        QCOMPARE(w.tree()->nodeByIndex(2)->text(0), QString("Aktai"));
        QCOMPARE(fx.documentTexts(), QStringList({"letter", "note"})); // the list stays

        w.action("mnuByContacts")->trigger();
        QVERIFY(w.action("mnuByContacts")->isChecked());
        QVERIFY(!w.action("mnuByCategory")->isChecked());
        QVERIFY(!w.isCategoryView());
        QCOMPARE(w.lastNodeIndex(), 0);
        QCOMPARE(w.tree()->nodeByIndex(1)->text(0), QString("CONTACTS"));
        // After the switch any click acts, the root's too.
        fx.clickNode("ALL");
        QCOMPARE(fx.documents().itemCount(), 5);
        w.action("mnuByContacts")->trigger();
        QCOMPARE(w.lastNodeIndex(), 0);
        w.action("mnuByCategory")->trigger();
        QVERIFY(w.isCategoryView());
        QVERIFY(prompter.prompts().isEmpty());
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
