#include "explorer/DocumentFills.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/IconCache.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

using namespace kartella;
using namespace kartella::test;

namespace {

struct SelectionFixture : ExplorerFixture
{
    QStringList opened;

    MainWindow& load()
    {
        MainWindow& w = window();
        for (const char* name : {"frmNew", "frmRelDescr"})
            w.setDialog(QString::fromLatin1(name), [this, name](const QString&) { opened << name; });
        w.popupMenu = [](QMenu*, const QPoint&) {};
        return w;
    }
    QTreeView* view() { return window().documentList()->detailsView(); }
    int highlighted() { return window().documentList()->selectedRow(); }
    qint32 idOfRow(int row) { return DocumentFills::idOfKey(documents().item(row).key); }
    QString nameOfRow(int row) { return documents().item(row).text; }
};

} // namespace

class ListSelectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { selection() = SelectionState(); }

    // Tab into the list, Space, arrows: the commands reach the row the user sees highlighted.
    void keyboardHighlightIsWhatTheCommandsReach()
    {
        SelectionFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        MainWindow& w = fx.load();
        w.activateWindow();
        fx.clickDocument("note");
        const int noteRow = fx.highlighted();
        QCOMPARE(selection().selectedDocumentId, fx.id["note"]);

        // The list is refilled in another order, keeping no row: the state forgets "note".
        w.findChild<QComboBox*>("cboDirection")->setCurrentIndex(3);
        QCOMPARE(fx.highlighted(), -1);
        QCOMPARE(selection().selectedDocumentId, 0);
        QCOMPARE(selection().selectedFilePath, QString());
        QCOMPARE(selection().selectedItemText, QString());
        QCOMPARE(selection().activeListName, QString());
        QVERIFY(!w.action("btnDelete")->isEnabled());
        QTest::keyClick(fx.view(), Qt::Key_Delete);
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 5);
        QVERIFY(shell.calls().isEmpty());

        // Back to all directions; the view gets the focus and Space highlights its current row.
        w.findChild<QComboBox*>("cboDirection")->setCurrentIndex(0);
        fx.view()->setFocus();
        fx.view()->setCurrentIndex(fx.documents().index(noteRow == 0 ? 1 : 0, 0));
        fx.view()->selectionModel()->clearSelection();
        selection() = SelectionState();
        QTest::keyClick(fx.view(), Qt::Key_Space);
        int row = fx.highlighted();
        QVERIFY(row >= 0);
        QCOMPARE(selection().selectedDocumentId, fx.idOfRow(row));
        QCOMPARE(selection().selectedItemText, fx.nameOfRow(row));
        QCOMPARE(selection().activeListName, QString("ListDokSarasas"));

        // Each arrow moves the state along, row by row.
        for (int step = 0; step < 3 && row + 1 < fx.documents().itemCount(); ++step) {
            QTest::keyClick(fx.view(), Qt::Key_Down);
            QCOMPARE(fx.highlighted(), row + 1);
            row = fx.highlighted();
            QCOMPARE(selection().selectedDocumentId, fx.idOfRow(row));
            QCOMPARE(selection().selectedFilePath, fx.documents().item(row).tag);
        }

        // F4 shows the properties of the highlighted document's file, F3 its details.
        const int letterRow = fx.documents().rowOfKey(DocumentFills::itemKey(fx.id["letter"]));
        while (fx.highlighted() != letterRow)
            QTest::keyClick(fx.view(), fx.highlighted() < letterRow ? Qt::Key_Down : Qt::Key_Up);
        QTest::keyClick(fx.view(), Qt::Key_F4);
        QCOMPARE(shell.calls().size(), 1);
        QCOMPARE(shell.calls().first().path, fx.existingFile);
        QTest::keyClick(fx.view(), Qt::Key_F3);
        QCOMPARE(fx.opened, QStringList {"frmNew"});
        QCOMPARE(selection().selectedDocumentId, fx.id["letter"]);
        QVERIFY(prompter.prompts().isEmpty());
    }

    // When no document is highlighted any more, whatever took the highlight away, nothing
    // acts on the document last highlighted: its related documents go from the screen and
    // the document commands are disabled, as before any click.
    void noHighlightedDocumentLeavesNothingToActOn_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("click under the rows") << "under";
        QTest::newRow("Ctrl+click on the highlighted row") << "ctrl";
        QTest::newRow("dates that leave no document") << "dates";
    }

    void noHighlightedDocumentLeavesNothingToActOn()
    {
        QFETCH(QString, how);
        SelectionFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.load();
        w.setDialog("frmRelated", [&fx](const QString&) { fx.opened << "frmRelated"; });
        fx.clickDocument("contract");
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
        QVERIFY(w.relatedList()->isVisible());
        QVERIFY(w.action("mnuRelated")->isEnabled());

        QTreeView* view = fx.view();
        if (how == "under") {
            const QRect last = view->visualRect(fx.documents().index(fx.documents().itemCount() - 1, 0));
            QTest::mouseClick(
                view->viewport(), Qt::LeftButton, {}, QPoint(last.center().x(), last.bottom() + 40));
        } else if (how == "ctrl") {
            const QModelIndex row = fx.documents().index(fx.highlighted(), 0);
            QTest::mouseClick(
                view->viewport(), Qt::LeftButton, Qt::ControlModifier, view->visualRect(row).center());
        } else {
            w.findChild<QDateEdit*>("txtStartDate")->setDate(QDate(2001, 1, 1));
            w.findChild<QDateEdit*>("txtEndDate")->setDate(QDate(2001, 1, 2));
            QCOMPARE(fx.documents().item(0).key, QString("Empty"));
        }

        QCOMPARE(fx.highlighted(), -1);
        QCOMPARE(selection().selectedDocumentId, 0);
        QVERIFY(!w.relatedList()->isVisible());
        QCOMPARE(fx.related().itemCount(), 0);
        for (const char* command : {"mnuRelated", "mnuShowDetails", "mnuCopy", "mnuMove", "mnuDelete",
                 "mnuOpen", "mnuProperties", "btnDetails", "btnCopy", "btnDelete"})
            QVERIFY2(!w.action(command)->isEnabled(), command);
        // Neither the keys nor the menu open a dialog on the document that was highlighted.
        QTest::keyClick(view, Qt::Key_F3);
        w.action("mnuRelated")->trigger();
        QCOMPARE(fx.opened, QStringList());
        QVERIFY(prompter.prompts().isEmpty());

        // A click on a row makes it the one acted on again.
        if (how == "dates")
            fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("contract");
        QVERIFY(w.relatedList()->isVisible());
        QVERIFY(w.action("mnuRelated")->isEnabled());
        w.action("mnuRelated")->trigger();
        QCOMPARE(fx.opened, QStringList {"frmRelated"});
    }

    // A drag across the rows of the related list leaves the state on the row it ends on.
    void dragAcrossRowsMovesTheState()
    {
        SelectionFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.load();
        fx.clickDocument("contract");
        QCOMPARE(fx.related().itemCount(), 2);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QTreeView* view = w.relatedList()->detailsView();
        QWidget* viewport = view->viewport();
        const QPoint first = view->visualRect(fx.related().index(0, 1)).center();
        const QPoint second = view->visualRect(fx.related().index(1, 1)).center();
        QTest::mousePress(viewport, Qt::LeftButton, {}, first);
        const qint32 firstId = DocumentFills::idOfKey(fx.related().item(0).key);
        QCOMPARE(selection().selectedSubDocumentId, firstId);
        QMouseEvent move(
            QEvent::MouseMove, second, viewport->mapToGlobal(second), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &move);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, second);
        QCOMPARE(w.relatedList()->selectedRow(), 1);
        QCOMPARE(selection().selectedSubDocumentId, DocumentFills::idOfKey(fx.related().item(1).key));
        QCOMPARE(selection().selectedItemText, fx.related().item(1).text);
        QCOMPARE(selection().selectedFilePath, fx.related().item(1).tag);
        QCOMPARE(selection().activeListName, QString("ListSusieti"));
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
    }

    // A column sorts in the order of the register's names: every Lithuanian letter beside
    // its base letter, case ignored; the widths the user gave the columns stay. There is no
    // index past the last row or column, and no row has children.
    void sortFoldsLithuanianLettersAndKeepsWidths()
    {
        IconCache icons;
        ListModel model(&icons);
        model.setColumns({{"Name", 1500}, {"Index", 1500}});
        const QStringList names = {"Zebra", "žuvis", "Ūla", "Ųla", "uoga", "Šarūnas", "sala", "Įvadas", "ir",
            "Ėglė", "Ęsas", "ežeras", "Čiurlionis", "cukrus", "Ąžuolas", "ąsa", "Beržas", "Antanas"};
        std::vector<ListItem> items;
        for (const QString& name : names) {
            ListItem item;
            item.text = name;
            item.key = name;
            items.push_back(item);
        }
        model.setItems(std::move(items));
        ExplorerList list(&model);
        list.resize(600, 400);
        list.show();
        list.detailsView()->setColumnWidth(0, 321);
        model.setSort(0, Qt::AscendingOrder);
        QStringList sorted;
        for (int row = 0; row < model.itemCount(); ++row)
            sorted << model.item(row).text;
        const QStringList expected = {"Antanas", "ąsa", "Ąžuolas", "Beržas", "Čiurlionis", "cukrus", "Ėglė",
            "Ęsas", "ežeras", "ir", "Įvadas", "sala", "Šarūnas", "Ūla", "Ųla", "uoga", "Zebra", "žuvis"};
        QCOMPARE(sorted, expected);
        QCOMPARE(list.detailsView()->columnWidth(0), 321);
        model.setSort(0, Qt::DescendingOrder);
        QCOMPARE(model.item(0).text, QString("žuvis"));
        QCOMPARE(model.item(model.itemCount() - 1).text, QString("Antanas"));
        QCOMPARE(list.detailsView()->columnWidth(0), 321);
        QVERIFY(model.index(int(names.size()) - 1, 1).isValid());
        QVERIFY(!model.index(int(names.size()), 0).isValid());
        QVERIFY(!model.index(0, 2).isValid());
        QVERIFY(!model.index(-1, 0).isValid());
        QVERIFY(!model.index(0, 0, model.index(0, 0)).isValid());
        QVERIFY(model.flags(model.index(0, 0)).testFlag(Qt::ItemNeverHasChildren));
    }

    // The Date columns of the document list and the related list sort as dates, across the
    // turn of a month and of a year, and the header shows the arrow of the sort.
    void datesSortAsDatesWithTheArrow()
    {
        SelectionFixture fx;
        const qint32 category = fx.reg.insert("tbl_Document_Categories", {{"DokKategorija", "Datos"}});
        const QList<QDate> dates = {QDate(2024, 11, 1), QDate(2024, 10, 1), QDate(2024, 10, 11),
            QDate(2024, 11, 12), QDate(2023, 12, 31)};
        for (const QDate& date : dates)
            fx.id[date.toString(Qt::ISODate)] = fx.reg.insert("tbl_Documents",
                {{"DokAntraste", date.toString(Qt::ISODate)}, {"KategID", category},
                    {"DokRegistracData", date}});
        for (const QDate& date : dates)
            fx.reg.insert("tbl_Sub_Documents",
                {{"RastasID", fx.id["2024-11-01"]}, {"SubDocDescript", date.toString(Qt::ISODate)},
                    {"SubRastGavimoData", date}});
        MainWindow& w = fx.load();
        w.show();
        fx.clickNode("a" + QString::number(category));
        auto clickHeader = [](ExplorerList* list, int column) {
            QHeaderView* header = list->detailsView()->header();
            const QPoint at(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                header->height() / 2);
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
        };
        auto order = [](const ListModel& model) {
            QStringList texts;
            for (int row = 0; row < model.itemCount(); ++row)
                texts << model.item(row).text;
            return texts;
        };
        const QStringList ascending = {"2023-12-31", "2024-10-01", "2024-10-11", "2024-11-01", "2024-11-12"};
        QStringList descending = ascending;
        std::reverse(descending.begin(), descending.end());
        QHeaderView* header = w.documentList()->detailsView()->header();
        QVERIFY(!header->isSortIndicatorShown());
        clickHeader(w.documentList(), 3);
        QCOMPARE(order(fx.documents()), ascending);
        QVERIFY(header->isSortIndicatorShown());
        QCOMPARE(header->sortIndicatorSection(), 3);
        QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
        clickHeader(w.documentList(), 3);
        QCOMPARE(order(fx.documents()), descending);
        QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);
        clickHeader(w.documentList(), 0);
        QCOMPARE(header->sortIndicatorSection(), 0);
        QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);

        fx.clickDocument("2024-11-01");
        QVERIFY(w.relatedList()->isVisible());
        clickHeader(w.relatedList(), 2);
        QCOMPARE(order(fx.related()), ascending);
        QCOMPARE(w.relatedList()->detailsView()->header()->sortIndicatorSection(), 2);
        clickHeader(w.relatedList(), 2);
        QCOMPARE(order(fx.related()), descending);
    }

    // Size and place, the tree's share, the view, the tree's mode and each list's sort come
    // back at the next start.
    void layoutIsRememberedBetweenRuns()
    {
        SelectionFixture fx;
        {
            MainWindow& w = fx.load();
            w.show();
            QVERIFY(QTest::qWaitForWindowExposed(&w));
            w.resize(900, 600);
            w.findChild<QSplitter*>("splitMain")->setSizes({400, 496});
            w.action("mnuList")->trigger();
            w.action("mnuByContacts")->trigger();
            w.onDocumentColumnClicked(3);
            w.onDocumentColumnClicked(3);
            fx.clickDocument("contract");
            w.onRelatedColumnClicked(1);
            w.close();
        }
        MainWindow again;
        again.show();
        again.load();
        QVERIFY(QTest::qWaitForWindowExposed(&again));
        QCOMPARE(again.size(), QSize(900, 600));
        const QList<int> sizes = again.findChild<QSplitter*>("splitMain")->sizes();
        QVERIFY2(qAbs(sizes.first() - 400) <= 10, qPrintable(QString::number(sizes.first())));
        QCOMPARE(again.documentList()->view(), int(ExplorerList::List));
        QCOMPARE(again.relatedList()->view(), int(ExplorerList::List));
        QVERIFY(again.action("mnuList")->isChecked());
        QVERIFY(!again.isCategoryView());
        QVERIFY(again.action("mnuByContacts")->isChecked());
        QCOMPARE(again.tree()->nodeByIndex(1)->text(0), QString("CONTACTS"));
        QCOMPARE(again.documentModel()->sortKey(), 3);
        QCOMPARE(again.documentModel()->sortOrder(), Qt::DescendingOrder);
        QCOMPARE(again.relatedModel()->sortKey(), 1);
        QCOMPARE(again.relatedModel()->sortOrder(), Qt::AscendingOrder);
    }

    // Print Setup is the page and printer setup, not a print dialog.
    void printSetupIsThePageSetup()
    {
        SelectionFixture fx;
        MainWindow& w = fx.load();
        QString shownClass;
        QString title;
        QTimer::singleShot(0, this, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            shownClass = QString::fromLatin1(dialog->metaObject()->className());
            title = dialog->windowTitle();
            QVERIFY(dialog->inherits("QPageSetupDialog"));
            static_cast<QDialog*>(dialog)->reject();
        });
        w.action("mnuPrintSetup")->trigger();
        QCOMPARE(title, QString("Print Setup"));
        QVERIFY2(!shownClass.contains("PrintDialog"), qPrintable(shownClass));
    }

    // Hovering a menu entry shows no tool tip; the toolbar's buttons keep theirs.
    void menuEntriesHaveNoToolTips()
    {
        SelectionFixture fx;
        MainWindow& w = fx.load();
        QList<QMenu*> menus = {w.documentContextMenu(), w.categoryContextMenu()};
        for (QAction* entry : w.menuBar()->actions()) {
            if (entry->menu())
                menus << entry->menu();
        }
        for (QMenu* menu : menus) {
            menu->popup(QPoint(10, 10));
            QVERIFY(QTest::qWaitForWindowExposed(menu));
            for (QAction* entry : menu->actions()) {
                if (entry->isSeparator() || !entry->isVisible())
                    continue;
                const QPoint at = menu->actionGeometry(entry).center();
                QHelpEvent hover(QEvent::ToolTip, at, menu->mapToGlobal(at));
                QApplication::sendEvent(menu, &hover);
                QVERIFY2(!QToolTip::isVisible(), qPrintable(entry->objectName() + ": " + QToolTip::text()));
            }
            menu->hide();
        }
        QVERIFY(w.action("btnContacts")->toolTip().startsWith("Address Book"));
    }
};

QTEST_MAIN(ListSelectionTest)
#include "tst_list_selection.moc"
