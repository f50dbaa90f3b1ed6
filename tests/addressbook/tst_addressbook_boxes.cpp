// The boxes and keys of the address book and the contact editor: what a box shows and takes,
// where Tab, Ctrl+Delete and the access keys go.

#include "AddressBookFixture.h"
#include "harness/Lithuanian.h"
#include "addressbook/AddressBookWindow.h"
#include "addressbook/ContactEditor.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "support/RecordsetModel.h"

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>
#include <optional>
#include <utility>

using namespace kartella;
using namespace kartella::test;

class AddressBookBoxesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingLimits_data()
    {
        QTest::addColumn<int>("box");
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("limit");
        QTest::newRow("Company Name") << 1 << "CompanyName" << 50;
        QTest::newRow("Contact Title") << 2 << "Title" << 50;
        QTest::newRow("Contact Name") << 4 << "FullName" << 50;
        QTest::newRow("Street") << 5 << "Address" << 255;
        QTest::newRow("City") << 6 << "City" << 50;
    }

    // A stored value longer than its box's limit shows whole and is stored whole after an
    // edit of another box; typing stops at the limit, also in the next contact shown.
    void typingLimits()
    {
        QFETCH(int, box);
        QFETCH(QString, field);
        QFETCH(int, limit);
        AddressBookFixture fx;
        const QString longer = QString("Ąžuolynė ").repeated(limit / 9 + 2).left(limit + 7);
        const qint32 id = fx.reg.insert("tbl_Contacts", {{"FullName", "Aa first"}, {field, longer}});
        AddressBookWindow window;
        Shown w(&window);
        const auto shown
            = [&w, box] { return box == 5 ? w.textBox(box)->toPlainText() : w.box(box)->text(); };
        QWidget* typedInto = box == 5 ? static_cast<QWidget*>(w.textBox(box)) : w.box(box);
        w.clickLine(field == "FullName" ? longer : "Aa first");
        QCOMPARE(shown(), longer);
        // Typing at the end of the longer value adds nothing; deleting is free.
        typedInto->setFocus();
        QTest::keyClick(typedInto, Qt::Key_End, box == 5 ? Qt::ControlModifier : Qt::NoModifier);
        QTest::keyClicks(typedInto, "xyz");
        QCOMPARE(shown(), longer);
        QTest::keyClick(typedInto, Qt::Key_Backspace);
        QCOMPARE(shown(), longer.chopped(1));
        QTest::keyClicks(typedInto, "!");
        QCOMPARE(shown(), longer.chopped(1) + "!");
        fx.prompter.answer(MsgBoxResult::Yes);
        w.clickLine("Jonas Jonaitis");
        QCOMPARE(
            fx.reg.scalar("SELECT " + field + " FROM tbl_Contacts WHERE ContactID=" + QString::number(id))
                .toString(),
            longer.chopped(1) + "!");

        // A shorter value: up to the limit and not one more, pasted or typed.
        typedInto->setFocus();
        QTest::keyClick(typedInto, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(typedInto, Qt::Key_Delete);
        QTest::keyClicks(typedInto, QString(limit - 1, u'z'));
        QCOMPARE(shown().size(), limit - 1);
        QTest::keyClicks(typedInto, "ab");
        QCOMPARE(shown(), QString(limit - 1, u'z') + "a");
        QVERIFY(fx.prompter.allAnswered());
    }

    // Lines sort in the register's name order: Lithuanian letters beside their base letters,
    // letter case aside.
    void sortingFollowsTheNameOrder()
    {
        AddressBookFixture fx(false);
        for (const char* name : {"Zita", "Žydrūnas", "antanas", "Ąžuolas", "Bronius", "Česlovas"})
            fx.reg.insert("tbl_Contacts", {{"FullName", QString::fromUtf8(name)}});
        AddressBookWindow window;
        Shown w(&window);
        const QStringList ascending = {"antanas", "Ąžuolas", "Bronius", "Česlovas", "Zita", "Žydrūnas"};
        QCOMPARE(w.lines(), ascending);
        QTest::mouseClick(w.list()->header()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QStringList descending = ascending;
        std::reverse(descending.begin(), descending.end());
        QCOMPARE(w.lines(), descending);
        QTest::mouseClick(w.list()->header()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(w.lines(), ascending);
        w.clickLine("Česlovas");
        QCOMPARE(w.box(4)->text(), "Česlovas");
    }

    // The grids' last column reaches the edge, and a width the user drags comes back when the
    // address book opens again, on another contact too.
    void gridWidthsAreTheUsers()
    {
        AddressBookFixture fx;
        QVERIFY(writeRegValue(
            Hive::CurrentUser, optionsKeyPath(), QStringLiteral("AddressBookPhonesColumns"), {}));
        int dragged = 0;
        {
            AddressBookWindow window;
            window.resize(900, 600);
            Shown w(&window);
            w.clickLine("Ona Petraitiene");
            for (const char* name : {"grdDataGrid", "dgrHP"}) {
                QHeaderView* header = w.grid(name)->horizontalHeader();
                QCoreApplication::processEvents();
                QCOMPARE(
                    header->sectionViewportPosition(3) + header->sectionSize(3), header->viewport()->width());
            }
            QHeaderView* phones = w.grid("grdDataGrid")->horizontalHeader();
            QWidget* viewport = phones->viewport();
            const QPoint from(
                phones->sectionViewportPosition(2) + phones->sectionSize(2) - 1, phones->height() / 2);
            const QPoint to = from + QPoint(40, 0);
            QTest::mousePress(viewport, Qt::LeftButton, {}, from);
            for (const QPoint& at : {from + QPoint(20, 0), to}) {
                QMouseEvent move(
                    QEvent::MouseMove, at, viewport->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
                QApplication::sendEvent(viewport, &move);
            }
            QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
            dragged = phones->sectionSize(2);
            w.clickLine("Jonas Jonaitis");
            QCOMPARE(phones->sectionSize(2), dragged);
        }
        AddressBookWindow again;
        again.resize(900, 600);
        Shown w(&again);
        w.clickLine("Ona Petraitiene");
        QVERIFY(qAbs(w.grid("grdDataGrid")->horizontalHeader()->sectionSize(2) - dragged) <= 1);
    }

    // Tab in a multi-line box moves on as in any other box, and types no tab.
    void tabLeavesMultiLineBoxes()
    {
        AddressBookFixture fx;
        {
            AddressBookWindow window;
            Shown w(&window);
            w.clickLine("Ona Petraitiene");
            for (const auto& [box, next] : {std::pair {5, 6}, std::pair {11, -1}}) {
                QPlainTextEdit* text = w.textBox(box);
                text->setFocus();
                QTest::keyClick(text, Qt::Key_Tab);
                QVERIFY(!text->hasFocus());
                QVERIFY(!text->toPlainText().contains('\t'));
                if (next > 0)
                    QVERIFY(w.box(next)->hasFocus());
                else
                    QCOMPARE(QApplication::focusWidget(), w.grid("grdDataGrid"));
            }
        }
        ContactEditor editor;
        Shown e(&editor);
        editor.findChild<QTabWidget*>()->setCurrentIndex(3);
        e.textBox(11)->setFocus();
        QTest::keyClicks(e.textBox(11), "Met at the fair");
        QTest::keyClick(e.textBox(11), Qt::Key_Tab);
        QVERIFY(!e.textBox(11)->hasFocus());
        QCOMPARE(e.textBox(11)->toPlainText(), "Met at the fair");
        QVERIFY(fx.prompter.allAnswered());
    }

    // Ctrl+Delete deletes a word in a box and nothing in a grid; it deletes a contact only
    // where the contact list has the focus, after the question.
    void ctrlDeleteDeletesAContactOnlyInTheList()
    {
        AddressBookFixture fx;
        AddressBookWindow window;
        Shown w(&window);
        w.clickLine("Ona Petraitiene");
        w.box(6)->setFocus();
        w.box(6)->setText("Old Vilnius");
        w.box(6)->setCursorPosition(0);
        QTest::keyClick(w.box(6), Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(w.box(6)->text(), "Vilnius");
        w.textBox(5)->setFocus();
        QTest::keyClick(w.textBox(5), Qt::Key_Delete, Qt::ControlModifier);
        w.grid("grdDataGrid")->setFocus();
        QTest::keyClick(w.grid("grdDataGrid"), Qt::Key_Delete, Qt::ControlModifier);
        w.lineEdit("txtDial")->setFocus();
        QTest::keyClick(w.lineEdit("txtDial"), Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(fx.count("tbl_Contacts"), 4);
        QCOMPARE(fx.count("tbl_Phones"), 3);
        QVERIFY(fx.prompter.prompts().isEmpty());

        // In the list: the question, then No keeps the contact.
        fx.prompter.answer(MsgBoxResult::No);
        w.list()->setFocus();
        QTest::keyClick(w.list(), Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(fx.prompter.texts(),
            QStringList {"Delete the contact Ona Petraitiene with its phones and web pages?"});
        QCOMPARE(fx.count("tbl_Contacts"), 4);
    }

    // The toolbar's web address box has its width; the notes have no label; "All" has the
    // focus first and leads the tab order.
    void addressBookLayout()
    {
        AddressBookFixture fx;
        AddressBookWindow window;
        Shown w(&window);
        QCOMPARE(w.lineEdit("txtURL")->width(), RecordsetModel::twipsToPixels(5000, &window));
        for (const QLabel* label : window.findChildren<QLabel*>())
            QVERIFY2(label->text() != "Notes:", "a label for the notes");
        QCOMPARE(w.textBox(11)->accessibleName(), "Notes");
        auto* all = window.findChild<QPushButton*>("Command2_26");
        QCOMPARE(QApplication::focusWidget(), all);
        QTest::keyClick(all, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), window.findChild<QPushButton*>("Command2_0"));
        // Back from "All" the chain wraps to the toolbar's last box.
        all->setFocus();
        QTest::keyClick(all, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), w.lineEdit("txtURL"));
    }

    // The keys that add a phone or a web page from any tab are the ones the buttons' texts
    // mark in the interface's language; they type nothing.
    void contactEditorAccessKeys_data()
    {
        QTest::addColumn<bool>("lithuanian");
        QTest::addColumn<int>("phoneKey");
        QTest::addColumn<int>("urlKey");
        QTest::addColumn<QString>("phoneButton");
        QTest::newRow("English") << false << int(Qt::Key_P) << int(Qt::Key_U) << "Add &Phone";
        QTest::newRow("Lithuanian") << true << int(Qt::Key_T) << int(Qt::Key_U) << "Pridėti &telefoną";
    }
    void contactEditorAccessKeys()
    {
        QFETCH(bool, lithuanian);
        QFETCH(int, phoneKey);
        QFETCH(int, urlKey);
        QFETCH(QString, phoneButton);
        AddressBookFixture fx(false);
        std::optional<Lithuanian> language;
        if (lithuanian)
            QVERIFY(language.emplace().installed());
        ContactEditor editor;
        Shown e(&editor);
        QCOMPARE(editor.findChild<QPushButton*>("cmdAddPhone")->text(), phoneButton);
        QCOMPARE(clashingAccessKeys(&editor), QStringList());
        auto* tabs = editor.findChild<QTabWidget*>();
        QCOMPARE(tabs->currentIndex(), 0);
        e.box(4)->setFocus();
        QTest::keyClicks(e.box(4), "Ada");
        QTest::keyClick(e.box(4), Qt::Key(phoneKey), Qt::AltModifier);
        QCOMPARE(e.box(4)->text(), "Ada");
        QCOMPARE(fx.count("tbl_Contacts"), 1);
        QCOMPARE(tabs->currentIndex(), 1);
        QVERIFY(e.grid("grdDataGrid")->hasFocus());
        tabs->setCurrentIndex(0);
        e.box(6)->setFocus();
        QTest::keyClick(e.box(6), Qt::Key(urlKey), Qt::AltModifier);
        QCOMPARE(e.box(6)->text(), "");
        QCOMPARE(tabs->currentIndex(), 2);
        QVERIFY(e.grid("grdHomePages")->hasFocus());
        // On its own tab too, once.
        QTest::keyClick(e.grid("grdHomePages"), Qt::Key(phoneKey), Qt::AltModifier);
        QCOMPARE(tabs->currentIndex(), 1);
        QCOMPARE(fx.count("tbl_Contacts"), 1);
        QVERIFY(fx.prompter.allAnswered());
    }

    // A Lithuanian desktop: the window's texts and its questions are Lithuanian; the letters
    // of the filter stay what they filter by.
    void addressBookInLithuanian()
    {
        AddressBookFixture fx;
        Lithuanian language;
        QVERIFY(language.installed());
        AddressBookWindow window;
        Shown w(&window);
        QCOMPARE(window.windowTitle(), "Adresų knyga");
        QCOMPARE(window.findChild<QGroupBox*>("Frame1")->title(), "Filtras");
        QCOMPARE(window.findChild<QPushButton*>("Command2_26")->text(), "Visi");
        QCOMPARE(window.findChild<QPushButton*>("Command2_0")->text(), "&A");
        QCOMPARE(w.action("mnuNewContact")->text(), "Naujas kontaktas");
        // The key's name as Qt's own Lithuanian gives it.
        QCOMPARE(w.action("mnuNewContact")->toolTip(), "Naujas kontaktas (Vald+N)");
        QCOMPARE(w.list()->headerItem()->text(0), "Kontaktas");
        const QList<QLabel*> labels = window.findChildren<QLabel*>();
        const auto companyLabel = std::find_if(
            labels.begin(), labels.end(), [&w](const QLabel* label) { return label->buddy() == w.box(1); });
        QVERIFY(companyLabel != labels.end());
        QCOMPARE((*companyLabel)->text(), "Įmonė:");
        QCOMPARE(w.status(), "Įrašų: 4");
        QCOMPARE(w.grid("grdDataGrid")->model()->headerData(3, Qt::Horizontal).toString(), "Numeris");
        QCOMPARE(w.grid("dgrHP")->model()->headerData(3, Qt::Horizontal).toString(), "Adresas");
        QCOMPARE(clashingAccessKeys(&window), QStringList());

        w.clickLine("Ona Petraitiene");
        fx.prompter.answer(MsgBoxResult::No);
        w.action("mnuDelete")->trigger();
        QCOMPARE(fx.prompter.prompts().size(), 1);
        QCOMPARE(fx.prompter.prompts().first().text,
            "Šalinti kontaktą Ona Petraitiene kartu su jo telefonais ir tinklalapiais?");
        QCOMPARE(fx.prompter.prompts().first().title, "Šalinimo patvirtinimas");
        QCOMPARE(fx.count("tbl_Contacts"), 4);
        w.click("Command2_9");
        QCOMPARE(w.lines(), QStringList {"Jonas Jonaitis"});
        QCOMPARE(w.status(), "Įrašų: 1");
    }
};

QTEST_MAIN(AddressBookBoxesTest)
#include "tst_addressbook_boxes.moc"
