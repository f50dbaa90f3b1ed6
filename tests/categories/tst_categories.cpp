#include "categories/CategoryDialog.h"
#include "categories/CategoryTexts.h"
#include "categories/NewCategoryDialog.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/TestRegister.h"
#include "platform/Prompter.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeWidgetItem>

#include <functional>

using namespace kartella;
using namespace kartella::test;

namespace {

// A register with one category of two subcategories, the first with a folder and a Word
// template, and a second category that no test edits; the tree's selection on the first.
struct Fixture
{
    TestRegister reg;
    ScriptedPrompter prompter;
    ScriptedShell shell;
    qint32 contracts = 0;
    qint32 letters = 0;
    qint32 leases = 0;
    qint32 sales = 0;

    Fixture()
    {
        contracts = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}, {"DokKategDaug", "/srv/contracts"}});
        letters = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Letters"}, {"Mnemonic", "LET"}});
        leases = reg.insert("tbl_Sub_Categories",
            {{"KategID", contracts}, {"DokSubKategorija", "Leases"}, {"SubPathToFiles", "/srv/leases"},
                {"SubDokTemplates", "/srv/lease.dot"}});
        sales = reg.insert("tbl_Sub_Categories", {{"KategID", contracts}, {"DokSubKategorija", "Sales"}});
        selection() = SelectionState();
        selection().currentCategoryId = contracts;
        selection().currentSubCategoryId = leases;
        selection().currentNodeKind = "b";
    }
    ~Fixture() { selection() = SelectionState(); }

    // Every category and every subcategory, one line a row in key order.
    QString categories() const
    {
        return rows("tbl_Document_Categories", "KategID", "DokKategorija,Mnemonic,DokKategDaug,DokTemplates");
    }
    QString subCategories() const
    {
        return rows("tbl_Sub_Categories", "SubKategID",
            "KategID,DokSubKategorija,SubPathToFiles,SubDokTemplates,SubDokTemplatesExel");
    }
    QString rows(const QString& table, const QString& key, const QString& fields) const
    {
        const QString concat = QString(fields).replace(",", ",'')||'|'||COALESCE(");
        return reg
            .scalar("SELECT GROUP_CONCAT(line, ';') FROM (SELECT COALESCE(" + concat + ",'') AS line FROM "
                + table + " ORDER BY " + key + ")")
            .toString();
    }
};

QLineEdit* box(QWidget* dialog, int index)
{
    return dialog->findChild<QLineEdit*>("txtFields_" + QString::number(index));
}

QTableView* grid(QWidget* dialog)
{
    return dialog->findChild<QTableView*>("grdDataGrid");
}

void click(QWidget* dialog, const char* button)
{
    QPushButton* target = dialog->findChild<QPushButton*>(button);
    QVERIFY2(target, button);
    QTest::mouseClick(target, Qt::LeftButton);
}

void activate(QWidget* dialog)
{
    dialog->show();
    dialog->activateWindow();
    QApplication::setActiveWindow(dialog);
    if (!QTest::qWaitForWindowActive(dialog))
        qWarning("The dialog didn't become active");
}

// Types text where the focus is, key by key, as a user does: the first key of a grid cell
// opens its editor, the rest go into it.
void typeHere(const QString& text)
{
    for (const QChar c : text)
        QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
}

void typeInto(QLineEdit* target, const QString& text)
{
    target->setFocus();
    target->selectAll();
    QTest::keyClick(target, Qt::Key_Delete);
    QTest::keyClicks(target, text);
}

void doubleClickCell(QTableView* view, int row, int column)
{
    const QRect rect = view->visualRect(view->model()->index(row, column));
    // The press and release of the first click come before the double click, as from a mouse.
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rect.center());
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, rect.center());
}

void showMainWindow(MainWindow& window)
{
    window.resize(1000, 700);
    window.show();
    window.load();
    if (!QTest::qWaitForWindowExposed(&window))
        qWarning("The main window wasn't exposed");
}

// Clicks a node of the tree with the mouse, as the user selects it.
void clickNode(MainWindow& window, QTreeWidgetItem* node)
{
    NavigationTree* tree = window.tree();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    tree->scrollToItem(node);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(node).center());
}

// Runs drive on the modal dialog that action opens, while it runs.
void driveModal(QAction* action, const std::function<void(QWidget*)>& drive)
{
    bool driven = false;
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        driven = dialog != nullptr;
        if (dialog) {
            activate(dialog);
            drive(dialog);
            if (dialog->isVisible())
                click(dialog, "cmdCancel");
        }
    });
    action->trigger();
    QVERIFY2(driven, "no dialog came");
}

} // namespace

class CategoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Before the new category is saved it has no key, and there is nothing to list.
    void noSubCategoryStatementWithoutKey()
    {
        QCOMPARE(newCategorySubCategorySource(""), QString());
        QCOMPARE(newCategorySubCategorySource("  "), QString());
        QVERIFY(newCategorySubCategorySource("12").endsWith("WHERE KategID = 12"));
        QVERIFY(subCategorySource(12).startsWith("select KategID,SubKategID,"));
    }

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

    // The mnemonic takes 3 characters at most, typed or pasted.
    void mnemonicLimit_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::newRow("two") << "AB"
                             << "AB";
        QTest::newRow("three") << "ABC"
                               << "ABC";
        QTest::newRow("four") << "ABCD"
                              << "ABC";
        QTest::newRow("seven") << "ABCDEFG"
                               << "ABC";
    }

    void mnemonicLimit()
    {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        Fixture fx;
        CategoryDialog d;
        activate(&d);
        typeInto(box(&d, 2), typed);
        click(&d, "cmdClose");
        QCOMPARE(fx.reg
                     .scalar("SELECT Mnemonic FROM tbl_Document_Categories WHERE KategID="
                         + QString::number(fx.contracts))
                     .toString(),
            stored);
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
        if (details || !title.isEmpty() || change == "grid")
            QCOMPARE(stored.toString(), title.isEmpty() ? QString() : title);
        else
            QCOMPARE(stored.toString(), "Contracts"); // no new row
    }

    // Cancel after "Add New SubCategory" keeps the category saved by it, and the
    // subcategory typed in the grid, but not what was typed after.
    void cancelKeepsSavedCategory()
    {
        Fixture fx;
        const QString subCategories = fx.subCategories();
        NewCategoryDialog d;
        activate(&d);
        typeInto(box(&d, 1), "Reports");
        typeInto(box(&d, 2), "REP");
        click(&d, "cmdAddSub");
        typeHere("Yearly");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(grid(&d)->currentIndex().column(), 3);
        typeInto(box(&d, 3), "/srv/never");
        click(&d, "cmdCancel");
        QVERIFY(!d.isVisible());
        QCOMPARE(fx.categories(), "Contracts|AGR|/srv/contracts|;Letters|LET||;Reports|REP||");
        const QString reports = box(&d, 0)->text();
        QCOMPARE(fx.subCategories(), subCategories + ";" + reports + "|Yearly|||");
    }

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

    // "Delete SubCategory" removes the current row at once, without a question, and
    // the next row (or the last) becomes current; Cancel doesn't bring it back.
    void deleteSubCategory_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("current");
        QTest::newRow("first") << 0 << "Sales"
                               << "Sales";
        QTest::newRow("last") << 1 << "Leases"
                              << "Leases";
    }

    void deleteSubCategory()
    {
        QFETCH(int, row);
        QFETCH(QString, left);
        QFETCH(QString, current);
        Fixture fx;
        const QString categories = fx.categories();
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
};

QTEST_MAIN(CategoriesTest)
#include "tst_categories.moc"
