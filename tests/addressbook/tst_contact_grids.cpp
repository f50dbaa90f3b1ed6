// The phone and web page grids of the contact editor and the address book: what a cell's
// editor holds when the user ends it, and which rows reach the register, and when.

#include "AddressBookFixture.h"
#include "addressbook/AddressBookWindow.h"
#include "addressbook/ContactEditor.h"
#include "platform/Prompter.h"
#include "support/RecordsetModel.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

// How the user ends the typing of a cell.
enum class Ending { Enter, Tab, Escape, Click };

// Opens the editor of a grid cell and types text into it, leaving the editor open.
QLineEdit* startTyping(QTableView* grid, int row, int column, const QString& text)
{
    const QModelIndex index = grid->model()->index(row, column);
    grid->setFocus();
    grid->setCurrentIndex(index);
    grid->edit(index);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (editor)
        QTest::keyClicks(editor, text);
    return editor;
}

const auto* modelOf(const QTableView* grid)
{
    return qobject_cast<const RecordsetModel*>(grid->model());
}

} // namespace

class ContactGridsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endingACellInTheEditor_data()
    {
        QTest::addColumn<QString>("addButton");
        QTest::addColumn<QString>("gridName");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<int>("ending");
        QTest::addColumn<bool>("kept");
        const std::array<std::array<const char*, 4>, 2> grids = {{
            {"cmdAddPhone", "grdDataGrid", "tbl_Phones", "PhoneName"},
            {"cmdAddURL", "grdHomePages", "tbl_HomePages", "Description"},
        }};
        const std::array<std::pair<const char*, Ending>, 4> endings = {{
            {"Enter", Ending::Enter},
            {"Tab", Ending::Tab},
            {"Esc", Ending::Escape},
            {"OK clicked", Ending::Click},
        }};
        for (const auto& [button, grid, table, column] : grids) {
            for (const auto& [name, ending] : endings) {
                QTest::addRow("%s, %s", grid, name)
                    << button << grid << table << column << int(ending) << (ending != Ending::Escape);
            }
        }
    }

    // New contact: the first row typed and ended in each way, and then a second row in a
    // contact that is stored by then. Enter keeps the text and ends the adding of rows;
    // Esc drops only the cell being typed.
    void endingACellInTheEditor()
    {
        QFETCH(QString, addButton);
        QFETCH(QString, gridName);
        QFETCH(QString, table);
        QFETCH(QString, column);
        QFETCH(int, ending);
        QFETCH(bool, kept);
        AddressBookFixture fx(false);
        ContactEditor editor;
        Shown e(&editor);
        QTest::keyClicks(e.box(4), "Ada Adomaite");
        e.click(qPrintable(addButton));
        QTableView* grid = e.grid(qPrintable(gridName));
        QVERIFY(grid->isVisible());
        const int row = grid->currentIndex().row();
        QLineEdit* cell = startTyping(grid, row, 2, "Office");
        QVERIFY(cell);
        switch (Ending(ending)) {
        case Ending::Enter:
            QTest::keyClick(cell, Qt::Key_Return);
            QVERIFY(!modelOf(grid)->allowAddNew());
            // Enter moved one cell on, to the number or address of the same row.
            QCOMPARE(grid->currentIndex(), grid->model()->index(row, 3));
            break;
        case Ending::Tab:
            QTest::keyClick(cell, Qt::Key_Tab);
            break;
        case Ending::Escape:
            QTest::keyClick(cell, Qt::Key_Escape);
            QVERIFY(editor.isVisible());
            break;
        case Ending::Click:
            break;
        }
        const QString stored = "SELECT " + column + " FROM " + table + " ORDER BY 1";
        if (Ending(ending) != Ending::Click) {
            // Esc leaves a web page row that Add URL started empty, as it was.
            QStringList shown = e.column(qPrintable(gridName), 2);
            shown.removeAll(QString());
            QCOMPARE(shown, kept ? QStringList {"Office"} : QStringList());
            // A second row in the stored contact, ended by Enter.
            e.click(qPrintable(addButton));
            QLineEdit* second = startTyping(grid, grid->currentIndex().row(), 2, "Home");
            QVERIFY(second);
            QTest::keyClick(second, Qt::Key_Return);
        }
        e.click("cmdOk");
        QVERIFY(!editor.isVisible());
        const QStringList rows = fx.column(stored);
        QStringList expected;
        if (kept)
            expected << "Office";
        if (Ending(ending) != Ending::Click)
            expected << "Home";
        QCOMPARE(rows, expected);
        QCOMPARE(fx.count(table), int(expected.size()));
        QVERIFY(fx.prompter.allAnswered());
    }

    void endingACellOfAnExistingContact_data()
    {
        QTest::addColumn<QString>("gridName");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<int>("ending");
        for (const char* grid : {"grdDataGrid", "dgrHP"}) {
            const bool phones = QByteArray(grid) == "grdDataGrid";
            const char* table = phones ? "tbl_Phones" : "tbl_HomePages";
            const char* column = phones ? "PhoneName" : "Description";
            QTest::addRow("%s, Enter", grid) << grid << table << column << int(Ending::Enter);
            QTest::addRow("%s, Tab", grid) << grid << table << column << int(Ending::Tab);
            QTest::addRow("%s, Esc", grid) << grid << table << column << int(Ending::Escape);
            QTest::addRow("%s, City clicked", grid) << grid << table << column << int(Ending::Click);
        }
    }

    // The address book's grids add rows to the contact shown; a row typed into the new-row
    // line is in the register once its cell is ended, except by Esc.
    void endingACellOfAnExistingContact()
    {
        QFETCH(QString, gridName);
        QFETCH(QString, table);
        QFETCH(QString, column);
        QFETCH(int, ending);
        AddressBookFixture fx;
        const QString ofOna
            = "SELECT COUNT(*) FROM " + table + " WHERE ContactID=" + QString::number(fx.ona) + " AND ";
        const int before = fx.count(table);
        AddressBookWindow window;
        Shown w(&window);
        w.clickLine("Ona Petraitiene");
        QTableView* grid = w.grid(qPrintable(gridName));
        const QPersistentModelIndex typed = grid->model()->index(modelOf(grid)->rowCount() - 1, 2);
        QLineEdit* cell = startTyping(grid, typed.row(), 2, "Fax");
        QVERIFY(cell);
        switch (Ending(ending)) {
        case Ending::Enter:
            QTest::keyClick(cell, Qt::Key_Return);
            break;
        case Ending::Tab:
            QTest::keyClick(cell, Qt::Key_Tab);
            break;
        case Ending::Escape:
            QTest::keyClick(cell, Qt::Key_Escape);
            break;
        case Ending::Click:
            QTest::mouseClick(w.box(6), Qt::LeftButton);
            break;
        }
        QTRY_VERIFY(!grid->indexWidget(typed));
        QVERIFY(window.isVisible());
        const bool kept = Ending(ending) != Ending::Escape;
        QCOMPARE(fx.reg.scalar(ofOna + column + "='Fax'").toInt(), kept ? 1 : 0);
        QCOMPARE(fx.count(table), before + (kept ? 1 : 0));
        // Nothing of the contact itself changed: closing asks nothing.
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
        QCOMPARE(fx.reg.scalar(ofOna + column + "='Fax'").toInt(), kept ? 1 : 0);
        QVERIFY(fx.prompter.allAnswered());
    }

    // Rows typed and left stay after Cancel, whichever add button was pressed last; a web
    // page row that Add URL started and nobody typed into isn't stored.
    void rowsLeftSurviveCancel()
    {
        AddressBookFixture fx(false);
        const auto phones = [&fx] {
            const QStringList names = fx.column("SELECT PhoneName FROM tbl_Phones ORDER BY PhoneID");
            const QStringList numbers = fx.column("SELECT PhoneNumber FROM tbl_Phones ORDER BY PhoneID");
            QStringList rows;
            for (qsizetype i = 0; i < names.size(); ++i)
                rows << names[i] + ':' + numbers.value(i);
            return rows;
        };
        {
            ContactEditor editor;
            Shown e(&editor);
            QTest::keyClicks(e.box(4), "Ada Adomaite");
            e.click("cmdAddPhone");
            e.typeCell("grdDataGrid", 0, 2, "Office");
            e.typeCell("grdDataGrid", 0, 3, "8 5 211 1111");
            // The row was left: it is in the register while the dialog is still open.
            QCOMPARE(phones(), QStringList {"Office:8 5 211 1111"});
            e.typeCell("grdDataGrid", 1, 2, "Mobile");
            e.typeCell("grdDataGrid", 1, 3, "8 600 00000");
            QCOMPARE(e.column("grdDataGrid", 3), (QStringList {"8 5 211 1111", "8 600 00000"}));
            e.click("cmdClose");
            QVERIFY(!editor.isVisible());
        }
        QCOMPARE(fx.count("tbl_Contacts"), 1);
        const QString id = fx.reg.scalar("SELECT ContactID FROM tbl_Contacts").toString();
        QCOMPARE(phones(), (QStringList {"Office:8 5 211 1111", "Mobile:8 600 00000"}));
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Phones WHERE ContactID=" + id).toInt(), 2);
        {
            // Web pages typed, then a phone: Add Phone pressed last, then Esc and No.
            ContactEditor editor;
            Shown e(&editor);
            QTest::keyClicks(e.box(4), "Bronius");
            e.click("cmdAddURL");
            e.typeCell("grdHomePages", 0, 2, "Work");
            e.typeCell("grdHomePages", 0, 3, "www.bronius.lt");
            e.click("cmdAddPhone");
            e.typeCell("grdDataGrid", 0, 2, "Home");
            // Typing in the name after the store is dropped by No; the rows are not.
            e.widget->findChild<QTabWidget*>()->setCurrentIndex(0);
            QTest::keyClicks(e.box(6), "Kaunas");
            fx.prompter.answer(MsgBoxResult::No);
            QTest::keyClick(&editor, Qt::Key_Escape);
            QVERIFY(!editor.isVisible());
        }
        const QString bronius
            = fx.reg.scalar("SELECT ContactID FROM tbl_Contacts WHERE FullName='Bronius'").toString();
        QVERIFY(fx.reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + bronius).isNull());
        QCOMPARE(
            fx.reg.scalar("SELECT HomeWWW FROM tbl_HomePages WHERE ContactID=" + bronius), "www.bronius.lt");
        QCOMPARE(fx.reg.scalar("SELECT PhoneName FROM tbl_Phones WHERE ContactID=" + bronius), "Home");
        {
            ContactEditor editor;
            Shown e(&editor);
            e.click("cmdAddURL");
            e.click("cmdClose");
        }
        QCOMPARE(fx.count("tbl_Contacts"), 3);
        QCOMPARE(fx.count("tbl_HomePages"), 1);
        QVERIFY(fx.prompter.allAnswered());
    }
};

QTEST_MAIN(ContactGridsTest)
#include "tst_contact_grids.moc"
