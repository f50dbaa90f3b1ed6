#pragma once

// What the tests of the category dialogs share: a register with categories, and the keys,
// clicks and modal runs a user gives the dialogs.

#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/TestRegister.h"
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

namespace kartella::test {

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

inline QLineEdit* box(QWidget* dialog, int index)
{
    return dialog->findChild<QLineEdit*>("txtFields_" + QString::number(index));
}

inline QTableView* grid(QWidget* dialog)
{
    return dialog->findChild<QTableView*>("grdDataGrid");
}

inline void click(QWidget* dialog, const char* button)
{
    QPushButton* target = dialog->findChild<QPushButton*>(button);
    QVERIFY2(target, button);
    QTest::mouseClick(target, Qt::LeftButton);
}

inline void activate(QWidget* dialog)
{
    dialog->show();
    dialog->activateWindow();
    QApplication::setActiveWindow(dialog);
    if (!QTest::qWaitForWindowActive(dialog))
        qWarning("The dialog didn't become active");
}

// Types text where the focus is, key by key, as a user does: the first key of a grid cell
// opens its editor, the rest go into it.
inline void typeHere(const QString& text)
{
    for (const QChar c : text)
        QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
}

inline void typeInto(QLineEdit* target, const QString& text)
{
    target->setFocus();
    target->selectAll();
    QTest::keyClick(target, Qt::Key_Delete);
    QTest::keyClicks(target, text);
}

inline void doubleClickCell(QTableView* view, int row, int column)
{
    const QRect rect = view->visualRect(view->model()->index(row, column));
    // The press and release of the first click come before the double click, as from a mouse.
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rect.center());
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, rect.center());
}

inline void showMainWindow(MainWindow& window)
{
    window.resize(1000, 700);
    window.show();
    window.load();
    if (!QTest::qWaitForWindowExposed(&window))
        qWarning("The main window wasn't exposed");
}

// Clicks a node of the tree with the mouse, as the user selects it.
inline void clickNode(MainWindow& window, QTreeWidgetItem* node)
{
    NavigationTree* tree = window.tree();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    tree->scrollToItem(node);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(node).center());
}

// Runs drive on the modal dialog that action opens, while it runs.
inline void driveModal(QAction* action, const std::function<void(QWidget*)>& drive)
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

} // namespace kartella::test
