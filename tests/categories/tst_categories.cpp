#include "CategoryFixture.h"
#include "categories/CategoryDialog.h"
#include "categories/NewCategoryDialog.h"
#include "harness/Lithuanian.h"
#include "platform/Prompter.h"

#include <QDir>

using namespace kartella;
using namespace kartella::test;

// The category dialogs: entering a category, its boxes and choosers, the keys, and the
// category details opened from the tree.
class CategoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A category with two subcategories entered from the Go menu by the keyboard; the tree
    // shows it after Refresh, not before; a double click in the grid doesn't leave the
    // current category on the new one once the dialog is closed.
    void newCategoryEndToEnd()
    {
        Fixture fx;
        const QString before = fx.subCategories();
        MainWindow window;
        showMainWindow(window);
        const QString contractsKey = "a" + QString::number(fx.contracts);
        QTreeWidgetItem* contracts = window.tree()->nodeByKey(contractsKey);
        QVERIFY(contracts);
        clickNode(window, contracts);
        QCOMPARE(selection().currentCategoryId, fx.contracts);
        QVERIFY(window.action("mnuNewCategory")->isEnabled());
        QVERIFY(window.action("btnNewCat")->isEnabled());

        qint32 duringDoubleClick = 0;
        driveModal(window.action("mnuNewCategory"), [&](QWidget* d) {
            QCOMPARE(d->objectName(), "frmNewCategory");
            QCOMPARE(d->windowTitle(), "Add New Category of Document");
            typeInto(box(d, 1), "Invoices");
            QTest::keyClick(box(d, 1), Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget(), box(d, 2));
            typeHere("INVOICE");
            for (const char* name : {"Paid", "Unpaid"}) {
                click(d, "cmdAddSub");
                QVERIFY(!box(d, 0)->text().isEmpty());
                QCOMPARE(QApplication::focusWidget(), grid(d));
                typeHere(name);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                QTRY_COMPARE(grid(d)->currentIndex().column(), 3);
                QCOMPARE(grid(d)->model()->rowCount(), grid(d)->currentIndex().row() + 1);
            }
            // A folder for the second subcategory.
            fx.prompter.answerFolder("/srv/unpaid");
            doubleClickCell(grid(d), 1, 3);
            duringDoubleClick = selection().currentCategoryId;
            click(d, "cmdOk");
            QVERIFY(!d->isVisible());
        });
        QVERIFY(fx.prompter.allAnswered());
        QCOMPARE(fx.prompter.folderPrompts,
            QStringList {"Select a folder in which to place the new files of SubCategory:"});
        const qint32 invoices
            = fx.reg.scalar("SELECT KategID FROM tbl_Document_Categories WHERE DokKategorija='Invoices'")
                  .toInt();
        QVERIFY(invoices > fx.letters);
        QCOMPARE(duringDoubleClick, invoices);
        QCOMPARE(selection().currentCategoryId, fx.contracts);
        QCOMPARE(fx.categories(), "Contracts|AGR|/srv/contracts|;Letters|LET||;Invoices|INV||");
        const QString invoicesKey = QString::number(invoices);
        QCOMPARE(fx.subCategories(),
            before + ";" + invoicesKey + "|Paid|||;" + invoicesKey + "|Unpaid|/srv/unpaid||");

        const QString key = "a" + invoicesKey;
        QVERIFY(!window.tree()->nodeByKey(key));
        window.action("mnuRefresh")->trigger();
        QTreeWidgetItem* node = window.tree()->nodeByKey(key);
        QVERIFY(node);
        QCOMPARE(node->text(0), "Invoices");
        QCOMPARE(node->childCount(), 2);
        QCOMPARE(node->child(0)->text(0), "Paid");
        QCOMPARE(node->child(1)->text(0), "Unpaid");
    }

    // Esc closes at once when nothing changed, asks after a change (in the details dialog a
    // change in the grid too), and does nothing while a subcategory is being added there.
    void escape_data()
    {
        QTest::addColumn<bool>("details");
        QTest::addColumn<QString>("change"); // "", "box", "grid", "adding"
        QTest::addColumn<int>("answer"); // 0: no question expected
        QTest::addColumn<bool>("open"); // still open after Esc
        QTest::addColumn<QString>("title"); // the category's stored title afterwards
        QTest::newRow("new, untouched") << false << "" << 0 << false << "";
        QTest::newRow("new, typed, No") << false << "box" << MsgBoxResult::No << false << "";
        QTest::newRow("new, typed, Cancel") << false << "box" << MsgBoxResult::Cancel << true << "";
        QTest::newRow("new, typed, Yes") << false << "box" << MsgBoxResult::Yes << false << "Typed";
        QTest::newRow("new, grid only") << false << "grid" << 0 << false << "";
        QTest::newRow("details, untouched") << true << "" << 0 << false << "Contracts";
        QTest::newRow("details, typed, No") << true << "box" << MsgBoxResult::No << false << "Contracts";
        QTest::newRow("details, typed, Yes") << true << "box" << MsgBoxResult::Yes << false << "Typed";
        QTest::newRow("details, grid, Cancel")
            << true << "grid" << MsgBoxResult::Cancel << true << "Contracts";
        QTest::newRow("details, adding") << true << "adding" << 0 << true << "Contracts";
    }

    void escape()
    {
        QFETCH(bool, details);
        QFETCH(QString, change);
        QFETCH(int, answer);
        QFETCH(bool, open);
        QFETCH(QString, title);
        Fixture fx;
        std::unique_ptr<QDialog> d;
        if (details)
            d = std::make_unique<CategoryDialog>();
        else
            d = std::make_unique<NewCategoryDialog>();
        activate(d.get());
        if (change == "box") {
            typeInto(box(d.get(), 1), "Typed");
        } else if (change == "grid") {
            if (!details)
                click(d.get(), "cmdAddSub");
            grid(d.get())->setFocus();
            grid(d.get())->setCurrentIndex(grid(d.get())->model()->index(0, 2));
            typeHere("Renamed");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } else if (change == "adding") {
            click(d.get(), "cmdAdd");
        }
        if (answer)
            fx.prompter.answer(answer);
        QTest::keyClick(d.get(), Qt::Key_Escape);
        QVERIFY(fx.prompter.allAnswered());
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), answer ? 1 : 0);
        if (answer) {
            QCOMPARE(prompts[0].text,
                (details ? "You have category details changes that have not applied."
                         : "Changes to contact have not applied.")
                    + QString("\n\nDo you want to apply these now?"));
            QCOMPARE(prompts[0].title, "Warning");
            QCOMPARE(prompts[0].style, MsgBoxStyle::YesNoCancel | MsgBoxStyle::Exclamation);
        }
        QCOMPARE(d->isVisible(), open);
        const QVariant stored
            = fx.reg.scalar("SELECT DokKategorija FROM tbl_Document_Categories WHERE KategID NOT IN ("
                + QString::number(fx.letters) + ") ORDER BY KategID DESC");
        if (details || !title.isEmpty())
            QCOMPARE(stored.toString(), title.isEmpty() ? QString() : title);
        else
            QCOMPARE(stored.toString(), "Contracts"); // no new row
    }

    // Both dialogs in Lithuanian: the title, the grid's captions, the Esc question made of its
    // two parts, and no two access keys alike.
    void showsLithuanian_data()
    {
        QTest::addColumn<bool>("details");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("firstLine");
        QTest::newRow("details") << true << "Kategorija"
                                 << "Kategorijos duomenų pakeitimai dar neįrašyti.";
        QTest::newRow("new category") << false << "Nauja dokumentų kategorija"
                                      << "Pakeitimai dar neįrašyti.";
    }

    void showsLithuanian()
    {
        QFETCH(bool, details);
        QFETCH(QString, title);
        QFETCH(QString, firstLine);
        Fixture fx;
        const Lithuanian lithuanian;
        QVERIFY(lithuanian.language().startsWith("lt"));
        std::unique_ptr<QDialog> d;
        if (details)
            d = std::make_unique<CategoryDialog>();
        else
            d = std::make_unique<NewCategoryDialog>();
        activate(d.get());
        QCOMPARE(d->windowTitle(), title);
        QCOMPARE(grid(d.get())->model()->headerData(2, Qt::Horizontal).toString(), "Pakategorė");
        QCOMPARE(grid(d.get())->model()->headerData(3, Qt::Horizontal).toString(), "Failų aplankas");
        QCOMPARE(d->findChild<QPushButton*>("cmdDelete")->text(), "Ša&linti pakategorę");
        const QStringList clashes = clashingAccessKeys(d.get());
        QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(", ")));

        typeInto(box(d.get(), 1), "Sutartys");
        fx.prompter.answer(MsgBoxResult::Cancel);
        QTest::keyClick(d.get(), Qt::Key_Escape);
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts[0].text, firstLine + "\n\nAr norite juos įrašyti dabar?");
        QCOMPARE(prompts[0].title, "Įspėjimas");
        QVERIFY(d->isVisible());
    }

    // Closing without OK after "Add New SubCategory" takes back the category stored by it and
    // the subcategory typed in the grid, after Esc's question; the other rows stay as they were.
    void closingTakesBackTheSavedCategory_data()
    {
        QTest::addColumn<QString>("close");
        QTest::newRow("Cancel") << "Cancel";
        QTest::newRow("Esc, No") << "Esc";
        QTest::newRow("window closed") << "close";
    }

    void closingTakesBackTheSavedCategory()
    {
        QFETCH(QString, close);
        Fixture fx;
        const QString categories = fx.categories();
        const QString subCategories = fx.subCategories();
        NewCategoryDialog d;
        activate(&d);
        typeInto(box(&d, 1), "Reports");
        typeInto(box(&d, 2), "REP");
        click(&d, "cmdAddSub");
        typeHere("Yearly");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(grid(&d)->currentIndex().column(), 3);
        QVERIFY(fx.categories().endsWith(";Reports|REP||"));
        QVERIFY(fx.subCategories().endsWith("|Yearly|||"));
        if (close == "Cancel") {
            click(&d, "cmdCancel");
        } else if (close == "Esc") {
            fx.prompter.answer(MsgBoxResult::No);
            QTest::keyClick(&d, Qt::Key_Escape);
            QCOMPARE(fx.prompter.take().size(), 1);
        } else {
            d.close();
        }
        QVERIFY(!d.isVisible());
        QVERIFY(fx.prompter.prompts().isEmpty());
        QCOMPARE(fx.categories(), categories);
        QCOMPARE(fx.subCategories(), subCategories);
    }

    // Enter moves on in the new-category dialog and does nothing in the details dialog; a
    // subcategory added in either is filed under the category shown.
    void keyboard()
    {
        Fixture fx;
        {
            CategoryDialog d;
            activate(&d);
            box(&d, 1)->setFocus();
            QTest::keyClick(box(&d, 1), Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget(), box(&d, 1));
            QVERIFY(d.isVisible());
            click(&d, "cmdAdd");
            QVERIFY(d.isAddingSubCategory());
            typeHere("Rentals");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            // A second one on the new-row line that follows.
            QTableView* view = grid(&d);
            view->setCurrentIndex(view->model()->index(view->model()->rowCount() - 1, 2));
            typeHere("Deposits");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QTest::keyClick(&d, Qt::Key_Escape);
            QVERIFY(d.isVisible());
            QVERIFY(fx.prompter.prompts().isEmpty());
            click(&d, "cmdClose");
            QVERIFY(!d.isVisible());
        }
        QCOMPARE(
            fx.subCategories().section(';', 2), QString("%1|Rentals|||;%1|Deposits|||").arg(fx.contracts));
        {
            NewCategoryDialog d;
            activate(&d);
            typeInto(box(&d, 1), "Notes");
            QTest::keyClick(box(&d, 1), Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget(), box(&d, 2));
            for (int next : {3, 4, 5, 6}) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                QCOMPARE(QApplication::focusWidget(), box(&d, next));
            }
            click(&d, "cmdAddSub");
            typeHere("Minutes");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QTRY_COMPARE(grid(&d)->currentIndex().column(), 3);
            click(&d, "cmdOk");
        }
        const QVariant notes
            = fx.reg.scalar("SELECT KategID FROM tbl_Document_Categories WHERE DokKategorija='Notes'");
        QCOMPARE(
            fx.reg.scalar("SELECT KategID FROM tbl_Sub_Categories WHERE DokSubKategorija='Minutes'"), notes);
    }

    // From a subcategory node the details dialog shows its whole category; the category's
    // own choosers fill its boxes, and OK stores them.
    void detailsOfSubCategoryNode()
    {
        Fixture fx;
        MainWindow window;
        showMainWindow(window);
        QTreeWidgetItem* node = window.tree()->nodeByKey("b" + QString::number(fx.sales));
        QVERIFY(node);
        clickNode(window, node);
        QCOMPARE(selection().currentCategoryId, fx.contracts);
        QVERIFY(window.action("mnuCategoryOptions")->isEnabled());
        for (const char* command : {"mnuCategoryOptions", "mnuPopCatEdit"}) {
            driveModal(window.action(command), [&](QWidget* d) {
                QCOMPARE(d->objectName(), "frmCategory");
                QCOMPARE(box(d, 1)->text(), "Contracts");
                QCOMPARE(box(d, 2)->text(), "AGR");
                QTableView* view = grid(d);
                QCOMPARE(view->model()->rowCount(), 2);
                QCOMPARE(view->model()->index(0, 2).data().toString(), "Leases");
                QCOMPARE(view->model()->index(1, 2).data().toString(), "Sales");
                QVERIFY(view->isColumnHidden(0));
                QVERIFY(view->isColumnHidden(1));
                QCOMPARE(view->model()->headerData(2, Qt::Horizontal).toString(), "SubCategory");
                QCOMPARE(view->model()->headerData(6, Qt::Horizontal).toString(), "PowerPoint Template");
            });
        }
        driveModal(window.action("mnuCategoryOptions"), [&](QWidget* d) {
            fx.prompter.answerFolder("/srv/agreements").answerFile("/srv/agreement.dot");
            click(d, "cmdPath");
            click(d, "cmdtemplateWord");
            click(d, "cmdClose");
        });
        QCOMPARE(fx.prompter.folderPrompts,
            QStringList {"Select a folder in which to place the new files of - Contracts - category:"});
        QCOMPARE(fx.prompter.fileRequests.size(), 1);
        QCOMPARE(fx.prompter.fileRequests[0].title, "Select the Word Template");
        QCOMPARE(fx.prompter.fileRequests[0].filterLabel, "Word templates (*.dot)");
        QCOMPARE(fx.categories(), "Contracts|AGR|/srv/agreements|/srv/agreement.dot;Letters|LET||");
        QCOMPARE(selection().currentCategoryId, fx.contracts);
    }

    // The Excel and PowerPoint choosers of the category: each asks with its own title and
    // filter from the working folder, fills its box, and OK stores it.
    void templateChoosers_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("pattern");
        QTest::newRow("Excel") << "cmdTemplateExcel" << 5 << "DokTemplatesExel"
                               << "Select the Excel Template"
                               << "Excel templates (*.xlt)"
                               << "*.xlt";
        QTest::newRow("PowerPoint") << "cmdTemplatePP" << 6 << "DokTemplatesPowPoint"
                                    << "Select the PowerPoint Template"
                                    << "PowerPoint templates (*.pot)"
                                    << "*.pot";
    }

    void templateChoosers()
    {
        QFETCH(QString, button);
        QFETCH(int, index);
        QFETCH(QString, field);
        QFETCH(QString, title);
        QFETCH(QString, filter);
        QFETCH(QString, pattern);
        Fixture fx;
        CategoryDialog d;
        activate(&d);
        fx.prompter.answerFile("/srv/chosen").answerFile(QString());
        click(&d, qPrintable(button));
        QCOMPARE(box(&d, index)->text(), "/srv/chosen");
        // A chooser cancelled leaves the box as it was.
        click(&d, qPrintable(button));
        QCOMPARE(box(&d, index)->text(), "/srv/chosen");
        QCOMPARE(fx.prompter.fileRequests.size(), 2);
        QCOMPARE(fx.prompter.fileRequests[0].title, title);
        QCOMPARE(fx.prompter.fileRequests[0].filterLabel, filter);
        QCOMPARE(fx.prompter.fileRequests[0].pattern, pattern);
        QCOMPARE(fx.prompter.fileRequests[0].startFolder, QDir::currentPath());
        click(&d, "cmdClose");
        QCOMPARE(fx.reg
                     .scalar("SELECT " + field
                         + " FROM tbl_Document_Categories WHERE KategID=" + QString::number(fx.contracts))
                     .toString(),
            "/srv/chosen");
        QCOMPARE(fx.reg
                     .scalar("SELECT COALESCE(" + field
                         + ", '') FROM tbl_Document_Categories WHERE KategID=" + QString::number(fx.letters))
                     .toString(),
            QString());
    }

    // Category details of a category that another program deleted since its node was
    // clicked: told, no dialog opens, and the tree no longer shows it.
    void goneCategory()
    {
        Fixture fx;
        MainWindow window;
        showMainWindow(window);
        const QString key = "a" + QString::number(fx.letters);
        clickNode(window, window.tree()->nodeByKey(key));
        QCOMPARE(selection().currentCategoryId, fx.letters);
        fx.reg.exec("DELETE FROM tbl_Document_Categories WHERE KategID=" + QString::number(fx.letters));
        QStringList opened;
        QTimer watcher;
        QObject::connect(&watcher, &QTimer::timeout, [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                opened << dialog->objectName();
                dialog->reject();
            }
        });
        watcher.start(10);
        fx.prompter.answer(MsgBoxResult::Ok);
        window.action("mnuCategoryOptions")->trigger();
        watcher.stop();
        QCOMPARE(opened, QStringList());
        QCOMPARE(fx.prompter.take().first().text, "This category no longer exists.");
        QVERIFY(!window.tree()->nodeByKey(key));
        QVERIFY(window.tree()->nodeByKey("a" + QString::number(fx.contracts)));
    }
};

QTEST_MAIN(CategoriesTest)
#include "tst_categories.moc"
