#include "CategoryFixture.h"
#include "categories/CategoryDialog.h"
#include "history/DeletedItemsWindow.h"
#include "platform/Prompter.h"

#include <QHeaderView>
#include <QTreeWidget>

using namespace kartella;
using namespace kartella::test;

// The subcategory grid of the category details: double clicks, deleting, the current row
// and the columns.
class CategoryGridTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A double click (or F4) on a template cell that holds a path opens it through the
    // shell; on an empty one it asks for a file and stores the answer at once; on the
    // folder column it asks for a folder; on the title nothing happens.
    void gridDoubleClick_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("keyboard");
        QTest::addColumn<QString>("opened");
        QTest::addColumn<QString>("fileTitle");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("leases");
        QTest::addColumn<QString>("sales");
        const QString leases = "Leases|/srv/leases|/srv/lease.dot|";
        const QString sales = "Sales|||";
        QTest::newRow("set template") << 0 << 4 << false << "/srv/lease.dot"
                                      << ""
                                      << "" << leases << sales;
        QTest::newRow("set template, F4") << 0 << 4 << true << "/srv/lease.dot"
                                          << ""
                                          << "" << leases << sales;
        QTest::newRow("empty Word template") << 1 << 4 << false << ""
                                             << "Select a Word Template"
                                             << "" << leases << "Sales||/srv/chosen|";
        QTest::newRow("empty Excel template, F4") << 1 << 5 << true << ""
                                                  << "Select a Excel Template"
                                                  << "" << leases << "Sales|||/srv/chosen";
        QTest::newRow("empty Excel template of the first")
            << 0 << 5 << false << ""
            << "Select a Excel Template"
            << ""
            << "Leases|/srv/leases|/srv/lease.dot|/srv/chosen" << sales;
        QTest::newRow("folder") << 1 << 3 << false << ""
                                << ""
                                << "/srv/sales" << leases << "Sales|/srv/sales||";
        QTest::newRow("title") << 1 << 2 << false << ""
                               << ""
                               << "" << leases << sales;
    }

    void gridDoubleClick()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(bool, keyboard);
        QFETCH(QString, opened);
        QFETCH(QString, fileTitle);
        QFETCH(QString, folder);
        QFETCH(QString, leases);
        QFETCH(QString, sales);
        Fixture fx;
        selection().currentCategoryId = fx.contracts;
        const QString categories = fx.categories();
        CategoryDialog d;
        activate(&d);
        selection().currentCategoryId = fx.letters;
        if (!fileTitle.isEmpty())
            fx.prompter.answerFile("/srv/chosen");
        if (!folder.isEmpty())
            fx.prompter.answerFolder(folder);
        if (keyboard) {
            grid(&d)->setFocus();
            grid(&d)->setCurrentIndex(grid(&d)->model()->index(row, column));
            QTest::keyClick(grid(&d), Qt::Key_F4);
        } else {
            doubleClickCell(grid(&d), row, column);
        }
        QVERIFY(fx.prompter.allAnswered());
        QCOMPARE(selection().currentCategoryId, fx.contracts);
        const auto calls = fx.shell.take();
        QCOMPARE(calls.size(), opened.isEmpty() ? 0 : 1);
        if (!opened.isEmpty())
            QCOMPARE(calls[0].path, opened);
        QCOMPARE(fx.prompter.fileRequests.size(), fileTitle.isEmpty() ? 0 : 1);
        if (!fileTitle.isEmpty())
            QCOMPARE(fx.prompter.fileRequests[0].title, fileTitle);
        // Stored at once: Cancel keeps it.
        click(&d, "cmdCancel");
        const QString key = QString::number(fx.contracts);
        QCOMPARE(fx.subCategories(), key + "|" + leases + ";" + key + "|" + sales);
        QCOMPARE(fx.categories(), categories);
        QCOMPARE(d.findChild<QTableView*>("grdDataGrid")->model()->rowCount(), 2);
    }

    // "Delete SubCategory" takes the current row away at once, without a question, and the
    // next row (or the last) becomes current; Cancel doesn't bring it back. A register with
    // a trash keeps the row there, and Enter in Deleted items gives it back with its key and
    // values; an older register loses it for good.
    void deleteSubCategory_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("withTrash");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("current");
        QTest::newRow("first") << 0 << true << "Sales"
                               << "Sales";
        QTest::newRow("last") << 1 << true << "Leases"
                              << "Leases";
        QTest::newRow("first, register without a trash") << 0 << false << "Sales"
                                                         << "Sales";
    }

    void deleteSubCategory()
    {
        QFETCH(int, row);
        QFETCH(bool, withTrash);
        QFETCH(QString, left);
        QFETCH(QString, current);
        Fixture fx;
        if (!withTrash)
            fx.reg.exec("DROP TABLE tbl_Trash");
        const QString categories = fx.categories();
        const QString columns = "SubKategID,KategID,DokSubKategorija,SubPathToFiles,SubDokTemplates";
        const QString before = fx.rows("tbl_Sub_Categories", "SubKategID", columns);
        CategoryDialog d;
        activate(&d);
        QTableView* view = grid(&d);
        view->setFocus();
        view->setCurrentIndex(view->model()->index(row, 2));
        click(&d, "cmdDelete");
        QCOMPARE(view->model()->rowCount(), 1);
        QCOMPARE(view->model()->index(view->currentIndex().row(), 2).data().toString(), current);
        click(&d, "cmdCancel");
        QVERIFY(fx.prompter.prompts().isEmpty());
        QCOMPARE(
            fx.reg.scalar("SELECT GROUP_CONCAT(DokSubKategorija) FROM tbl_Sub_Categories").toString(), left);
        QCOMPARE(fx.categories(), categories);
        if (!withTrash)
            return;

        const qint32 deleted = row == 0 ? fx.leases : fx.sales;
        QCOMPARE(fx.reg.scalar("SELECT Kind || ':' || ItemKey FROM tbl_Trash").toString(),
            "subcategory:" + QString::number(deleted));
        DeletedItemsWindow trash;
        activate(&trash);
        QTreeWidget* items = trash.itemList();
        QCOMPARE(items->topLevelItemCount(), 1);
        QCOMPARE(items->topLevelItem(0)->text(0), row == 0 ? "Leases" : "Sales");
        items->setFocus();
        QTest::keyClick(items, Qt::Key_Return);
        QCOMPARE(items->topLevelItemCount(), 0);
        QVERIFY(fx.prompter.prompts().isEmpty());
        QCOMPARE(fx.rows("tbl_Sub_Categories", "SubKategID", columns), before);
        QCOMPARE(fx.categories(), categories);
    }

    // A subcategory another user deleted meanwhile: Delete says so, and the grid shows the
    // rows the register has.
    void deleteSubCategoryGoneMeanwhile()
    {
        Fixture fx;
        CategoryDialog d;
        activate(&d);
        fx.reg.exec("DELETE FROM tbl_Sub_Categories WHERE SubKategID=" + QString::number(fx.leases));
        fx.prompter.answer(MsgBoxResult::Ok);
        click(&d, "cmdDelete");
        QCOMPARE(fx.prompter.take().first().title, "Unable to delete as requested");
        QTableView* view = grid(&d);
        QCOMPARE(view->model()->rowCount(), 1);
        QCOMPARE(view->model()->index(view->currentIndex().row(), 2).data().toString(), "Sales");
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Trash").toInt(), 0);
    }

    // The current subcategory shows highlighted from the start, and Delete acts on it; on an
    // empty grid Delete is disabled.
    void currentRowAndDelete()
    {
        Fixture fx;
        CategoryDialog d;
        activate(&d);
        QTableView* view = grid(&d);
        auto* remove = d.findChild<QPushButton*>("cmdDelete");
        QVERIFY(view->selectionModel()->isRowSelected(0));
        QVERIFY(remove->isEnabled());
        click(&d, "cmdDelete");
        QVERIFY(view->selectionModel()->isRowSelected(0));
        QCOMPARE(view->model()->index(0, 2).data().toString(), "Sales");
        click(&d, "cmdDelete");
        QCOMPARE(view->model()->rowCount(), 0);
        QVERIFY(!remove->isEnabled());
        QVERIFY(fx.prompter.prompts().isEmpty());
        click(&d, "cmdClose");
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Sub_Categories").toInt(), 0);
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Document_Categories").toInt(), 2);
    }

    // The last column takes the width the others leave, so that its caption shows whole.
    void lastColumnTakesTheRest()
    {
        Fixture fx;
        CategoryDialog d;
        activate(&d);
        QTableView* view = grid(&d);
        QHeaderView* header = view->horizontalHeader();
        QTRY_COMPARE(header->sectionViewportPosition(6) + header->sectionSize(6), view->viewport()->width());
        QVERIFY(header->sectionSize(6) >= header->fontMetrics().horizontalAdvance("PowerPoint Template"));
        d.resize(d.width() + 200, d.height());
        QTRY_COMPARE(header->sectionViewportPosition(6) + header->sectionSize(6), view->viewport()->width());
    }

    // A title typed in a box, then a folder chosen by a double click in the grid: both reach
    // the register, the typed title is not lost to the grid's refresh.
    void typedBoxThenGridDoubleClick()
    {
        Fixture fx;
        CategoryDialog d;
        activate(&d);
        typeInto(box(&d, 1), "Agreements");
        fx.prompter.answerFolder("/srv/sales");
        doubleClickCell(grid(&d), 1, 3);
        QVERIFY(fx.prompter.allAnswered());
        QCOMPARE(box(&d, 1)->text(), "Agreements");
        click(&d, "cmdClose");
        QCOMPARE(fx.categories(), "Agreements|AGR|/srv/contracts|;Letters|LET||");
        QCOMPARE(fx.subCategories().section(';', 1), QString::number(fx.contracts) + "|Sales|/srv/sales||");
    }
};

QTEST_MAIN(CategoryGridTest)
#include "tst_category_grid.moc"
