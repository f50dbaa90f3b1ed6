#include "AddressBookFixture.h"
#include "addressbook/AddressBookWindow.h"
#include "addressbook/ContactEditor.h"
#include "addressbook/ContactQueries.h"
#include "addressbook/Dialing.h"
#include "platform/Prompter.h"
#include "platform/Telephony.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

using namespace kartella;
using namespace kartella::test;

namespace {

const QString PickUp = QStringLiteral("Please pickup the phone and choose OK to dial ");
const QString SaveQuestion = QStringLiteral("Do you want to save changes you made to Contact?");

} // namespace

class AddressBookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filterCommand_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("condition");
        QTest::newRow("A") << 0 << "  WHERE FullName Like 'A%' ORDER BY FullName";
        QTest::newRow("Z") << 25 << "  WHERE FullName Like 'Z%' ORDER BY FullName";
        QTest::newRow("All") << 26 << " ORDER BY FullName";
    }

    void filterCommand()
    {
        QFETCH(int, index);
        QFETCH(QString, condition);
        QCOMPARE(ContactQueries::filter(index),
            "select "
            "ContactID,CompanyName,Title,Dear,FullName,Address,City,StateOrProvince,PostalCode,Country,"
            "EmailName,Notes from tbl_Contacts"
                + condition);
    }

    void childCommands()
    {
        QCOMPARE(ContactQueries::phonesOf("17"),
            "SHAPE {select ContactID from tbl_Contacts WHERE ContactID=17} AS ParentCMD APPEND ({select "
            "ContactID,PhoneID,PhoneName,PhoneNumber from tbl_Phones } AS ChildCMD RELATE ContactID TO "
            "ContactID) "
            "AS ChildCMD");
        QCOMPARE(ContactQueries::homePagesOf("17"),
            "SHAPE {select ContactID from tbl_Contacts WHERE ContactID=17} AS ParentCMD APPEND ({select "
            "ContactID,HomeID,Description,HomeWWW from tbl_HomePages } AS ChildCMD RELATE ContactID TO "
            "ContactID) AS ChildCMD");
        // No contact: a command that selects none.
        QVERIFY(ContactQueries::phonesOf("").contains("WHERE ContactID=0}"));
        QCOMPARE(ContactQueries::homePagesFor(QVariant()),
            "select HomeID,ContactID,Description,HomeWWW from tbl_HomePages WHERE ContactID=0");
        QCOMPARE(ContactQueries::lineText("Ona", "Lina"), "Ona");
        QCOMPARE(ContactQueries::lineText(QVariant(), "Lina"), "Lina");
        QCOMPARE(ContactQueries::lineText(QVariant(), QVariant()), "*_*_*_*");
        // An empty name is a name, not a Null.
        QCOMPARE(ContactQueries::lineText(QString(""), "Lina"), "");
    }

    void dialUrl_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("url");
        QTest::newRow("extension") << "+370 5 212 3456 ext. 12"
                                   << "tel:+37052123456;ext=12";
        QTest::newRow("extension word") << "+370 5 212 3456 Extension: 305"
                                        << "tel:+37052123456;ext=305";
        QTest::newRow("x") << "(8 5) 212-3456 x7"
                           << "tel:852123456;ext=7";
        QTest::newRow("x after digits") << "2123456x12"
                                        << "tel:2123456;ext=12";
        QTest::newRow("international") << "+370 (5) 212-3456"
                                       << "tel:+37052123456";
        QTest::newRow("label before") << "Fax: +370 5 212 3456"
                                      << "tel:+37052123456";
        QTest::newRow("dots and a plus inside") << "8.612 + 34567"
                                                << "tel:861234567";
        QTest::newRow("star and hash") << " *21# 5"
                                       << "tel:*21%235";
        QTest::newRow("a word with ext inside") << "8 612 next 5"
                                                << "tel:86125";
        QTest::newRow("only an extension") << "ext. 12"
                                           << "";
        QTest::newRow("no digits") << "call me"
                                   << "";
        QTest::newRow("empty") << ""
                               << "";
    }

    void dialUrl()
    {
        QFETCH(QString, typed);
        QFETCH(QString, url);
        QCOMPARE(kartella::Telephony::telUrl(typed).toString(QUrl::FullyEncoded), url);
        QCOMPARE(kartella::Telephony::telUrl(typed).isValid(), !url.isEmpty());
    }

    void links_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("web");
        QTest::newRow("bare host") << "www.example.lt"
                                   << "http://www.example.lt";
        QTest::newRow("with scheme") << "https://example.lt/a?b=1"
                                     << "https://example.lt/a?b=1";
        QTest::newRow("mail scheme kept") << "mailto:ona@example.lt"
                                          << "mailto:ona@example.lt";
    }

    void links()
    {
        QFETCH(QString, typed);
        QFETCH(QString, web);
        QCOMPARE(webUrl(typed).toString(), web);
        QCOMPARE(mailUrl("ona@example.lt").toString(), "mailto:ona@example.lt");
        QCOMPARE(mailUrl("").toString(), "mailto:");
    }

    void dialing_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("answer"); // to the pick-up question; 0 when none is asked
        QTest::addColumn<bool>("placed");
        QTest::addColumn<QStringList>("prompts");
        QTest::addColumn<QStringList>("calls");
        const QString number = "+370 (5) 212-3456";
        QTest::newRow("empty") << "" << 0 << true << QStringList {"Dial number isn't selected!"}
                               << QStringList();
        QTest::newRow("cancel") << number << int(MsgBoxResult::Cancel) << true
                                << QStringList {PickUp + number} << QStringList();
        QTest::newRow("placed") << number << int(MsgBoxResult::Ok) << true << QStringList {PickUp + number}
                                << QStringList {number};
        QTest::newRow("failed") << number << int(MsgBoxResult::Ok) << false
                                << QStringList {PickUp + number,
                                       "Unable to dial number " + number
                                           + "\r\rMake sure no other devices are using the Com port"}
                                << QStringList {number};
    }

    void dialing()
    {
        QFETCH(QString, number);
        QFETCH(int, answer);
        QFETCH(bool, placed);
        QFETCH(QStringList, prompts);
        QFETCH(QStringList, calls);
        ScriptedPrompter prompter;
        ScriptedTelephony telephony;
        telephony.setCallResult(placed);
        prompter.answer(answer ? answer : int(MsgBoxResult::Ok));
        if (prompts.size() > 1)
            prompter.answer(MsgBoxResult::Ok);
        dialNumber(number);
        QCOMPARE(prompter.texts(), prompts);
        QCOMPARE(telephony.calls, calls);
        const QList<int> styles = {number.isEmpty() ? 16 : 65, 16};
        const QStringList titles = {number.isEmpty() ? "Unable to dial" : "Dial Number", "Dial Number Error"};
        for (qsizetype i = 0; i < prompter.prompts().size(); ++i) {
            QCOMPARE(prompter.prompts()[i].style, styles[i]);
            QCOMPARE(prompter.prompts()[i].title, titles[i]);
        }
    }

    // A contact typed into the editor with two phones and a web page, found again in the
    // address book with its grids, and handed over from there.
    void contactEnteredIsFound()
    {
        AddressBookFixture fx(false);
        {
            ContactEditor editor;
            Shown e(&editor);
            e.box(4)->setFocus();
            QTest::keyClicks(e.box(4), "Ada Adomaite");
            QTest::keyClick(e.box(4), Qt::Key_Return);
            QVERIFY(e.box(5)->hasFocus());
            QTest::keyClicks(e.box(10), "ada@example.lt");
            e.click("cmdAddPhone");
            QCOMPARE(fx.count("tbl_Contacts"), 1);
            const qint32 id = fx.reg.scalar("SELECT ContactID FROM tbl_Contacts").toInt();
            QCOMPARE(e.box(0)->text(), QString::number(id));
            e.typeCell("grdDataGrid", 0, 2, "Office");
            e.typeCell("grdDataGrid", 0, 3, "8 5 211 1111");
            e.typeCell("grdDataGrid", 1, 2, "Mobile");
            e.typeCell("grdDataGrid", 1, 3, "8 600 00000");
            e.click("cmdAddURL");
            e.typeCell("grdHomePages", 0, 2, "Work");
            e.typeCell("grdHomePages", 0, 3, "www.ada.lt");
            e.click("cmdOk");
            QVERIFY(!editor.isVisible());
            QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Phones WHERE ContactID=" + QString::number(id))
                         .toInt(),
                2);
            QCOMPARE(
                fx.reg.scalar("SELECT HomeWWW FROM tbl_HomePages WHERE ContactID=" + QString::number(id)),
                "www.ada.lt");
            QCOMPARE(fx.reg.scalar("SELECT EmailName FROM tbl_Contacts").toString(), "ada@example.lt");
        }
        AddressBookWindow window;
        Shown w(&window);
        QCOMPARE(w.lines(), QStringList {"Ada Adomaite"});
        QCOMPARE(w.status(), "1 item(s)");
        QCOMPARE(w.column("grdDataGrid", 3), (QStringList {"8 5 211 1111", "8 600 00000"}));
        QCOMPARE(w.column("dgrHP", 3), QStringList {"www.ada.lt"});
        QCOMPARE(w.lineEdit("txtDial")->text(), "8 5 211 1111");
        QCOMPARE(w.lineEdit("txtURL")->text(), "www.ada.lt");
        QVERIFY(w.action("mnuDial")->isEnabled());

        // The second phone line chosen by the keyboard, dialled with Enter in the box.
        w.grid("grdDataGrid")->setFocus();
        QTest::keyClick(w.grid("grdDataGrid"), Qt::Key_Down);
        QCOMPARE(w.lineEdit("txtDial")->text(), "8 600 00000");
        fx.prompter.answer(MsgBoxResult::Ok);
        w.lineEdit("txtDial")->setFocus();
        QTest::keyClick(w.lineEdit("txtDial"), Qt::Key_Return);
        QCOMPARE(fx.telephony.calls, QStringList {"8 600 00000"});
        QTest::keyClick(&window, Qt::Key_B, Qt::ControlModifier);
        QTest::keyClick(&window, Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(
            fx.telephony.links, (QList<QUrl> {QUrl("http://www.ada.lt"), QUrl("mailto:ada@example.lt")}));
        QVERIFY(fx.prompter.allAnswered());
    }

    void filterButtons()
    {
        AddressBookFixture fx;
        AddressBookWindow window;
        Shown w(&window);
        // Nulls first, then by name; a company shows its name, a row with neither the mark.
        QCOMPARE(w.lines().mid(2), (QStringList {"Jonas Jonaitis", "Ona Petraitiene"}));
        QVERIFY(w.lines().mid(0, 2).contains("UAB Medis"));
        QVERIFY(w.lines().mid(0, 2).contains("*_*_*_*"));
        QCOMPARE(w.status(), "4 item(s)");

        // The letter's access key presses its button (after the button's pressed look).
        QTest::keyClick(w.list(), Qt::Key_O, Qt::AltModifier);
        QTRY_COMPARE(w.lines(), QStringList {"Ona Petraitiene"});
        QCOMPARE(w.box(4)->text(), "Ona Petraitiene");
        QCOMPARE(w.status(), "1 item(s)");
        QCOMPARE(w.column("grdDataGrid", 2), (QStringList {"Office", "Mobile"}));

        // No match: the list empties, the fields go blank, the grids and the status stay.
        w.click("Command2_25");
        QCOMPARE(w.lines(), QStringList());
        QCOMPARE(w.box(4)->text(), "");
        QCOMPARE(w.status(), "1 item(s)");
        QCOMPARE(w.column("grdDataGrid", 2), (QStringList {"Office", "Mobile"}));

        w.click("Command2_26");
        QCOMPARE(w.lines().size(), 4);
        QCOMPARE(w.status(), "4 item(s)");
        // The company's line has no full name: no letter finds it.
        w.click("Command2_20");
        QCOMPARE(w.lines(), QStringList());
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    void sortedListSelectsTheLinesContact()
    {
        AddressBookFixture fx;
        AddressBookWindow window;
        Shown w(&window);
        // The first click on the heading reverses the order of the texts.
        QTest::mouseClick(w.list()->header()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(w.lines(), (QStringList {"UAB Medis", "Ona Petraitiene", "Jonas Jonaitis", "*_*_*_*"}));

        w.clickLine("Jonas Jonaitis");
        QCOMPARE(w.box(4)->text(), "Jonas Jonaitis");
        QCOMPARE(w.box(6)->text(), "Kaunas");
        QCOMPARE(w.column("grdDataGrid", 3), QStringList {"37 22 11"});
        QCOMPARE(w.lineEdit("txtDial")->text(), "37 22 11");
        QCOMPARE(w.column("dgrHP", 3), QStringList());
        QCOMPARE(w.lineEdit("txtURL")->text(), "");
        QVERIFY(!w.action("mnuInternet")->isEnabled());

        // Up from Jonas by the keyboard: Ona, the line above in the reversed list.
        QTest::keyClick(w.list(), Qt::Key_Up);
        QCOMPARE(w.box(4)->text(), "Ona Petraitiene");
        QCOMPARE(w.lineEdit("txtURL")->text(), "www.example.lt");
        QVERIFY(w.action("mnuInternet")->isEnabled());

        // A contact without phones: nothing to dial.
        w.clickLine("UAB Medis");
        QCOMPARE(w.box(1)->text(), "UAB Medis");
        QCOMPARE(w.lineEdit("txtDial")->text(), "");
        QVERIFY(!w.action("mnuDial")->isEnabled());
        fx.prompter.answer(MsgBoxResult::Ok);
        w.lineEdit("txtDial")->setFocus();
        QTest::keyClick(w.lineEdit("txtDial"), Qt::Key_Return);
        QCOMPARE(fx.prompter.texts(), QStringList {"Dial number isn't selected!"});
        QVERIFY(fx.telephony.calls.isEmpty());
        // Mail to is never disabled: an empty address goes out.
        w.action("mnuEMail")->trigger();
        QCOMPARE(fx.telephony.links, QList<QUrl> {QUrl("mailto:")});
    }

    void saveQuestionOnLineChange_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("storedCity");
        QTest::addColumn<QString>("shownName");
        QTest::newRow("Yes") << int(MsgBoxResult::Yes) << "Trakai"
                             << "Jonas Jonaitis";
        QTest::newRow("No") << int(MsgBoxResult::No) << "Vilnius"
                            << "Jonas Jonaitis";
        QTest::newRow("Cancel") << int(MsgBoxResult::Cancel) << "Vilnius"
                                << "Ona Petraitiene";
    }

    void saveQuestionOnLineChange()
    {
        QFETCH(int, answer);
        QFETCH(QString, storedCity);
        QFETCH(QString, shownName);
        AddressBookFixture fx;
        AddressBookWindow window;
        Shown w(&window);
        w.clickLine("Ona Petraitiene");
        QVERIFY(fx.prompter.prompts().isEmpty());
        w.box(6)->selectAll();
        QTest::keyClicks(w.box(6), "Trakai");
        fx.prompter.answer(answer);
        w.clickLine("Jonas Jonaitis");
        QCOMPARE(fx.prompter.texts(), QStringList {SaveQuestion});
        QCOMPARE(fx.prompter.prompts().first().title, "Saving Contact Changes");
        QCOMPARE(fx.prompter.prompts().first().style, 35);
        QCOMPARE(fx.reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + QString::number(fx.ona)),
            storedCity);
        QCOMPARE(fx.reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + QString::number(fx.jonas)),
            "Kaunas");
        QCOMPARE(w.box(4)->text(), shownName);
        // After Cancel the list marks the contact shown again, and the same click asks again.
        QTRY_COMPARE(w.list()->currentItem()->text(0), shownName);
        if (answer == MsgBoxResult::Cancel) {
            fx.prompter.answer(MsgBoxResult::Cancel);
            w.clickLine("Jonas Jonaitis");
            QCOMPARE(fx.prompter.texts(), (QStringList {SaveQuestion, SaveQuestion}));
            QTRY_COMPARE(w.list()->currentItem()->text(0), "Ona Petraitiene");
            QCOMPARE(w.box(6)->text(), "Trakai");
            // Closing asks again while the change is pending (Cancel closes without saving).
            fx.prompter.answer(MsgBoxResult::Cancel);
        }
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
        QVERIFY(fx.prompter.allAnswered());
        QCOMPARE(fx.reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + QString::number(fx.ona)),
            storedCity);
    }

    // Delete Contact asks, No the default; Yes deletes the contact with its phones and web
    // pages, and its documents keep its key.
    void deleteAsksAndTakesPhonesAndWebPages()
    {
        AddressBookFixture fx;
        AddressBookWindow window;
        Shown w(&window);
        w.clickLine("Ona Petraitiene");
        fx.prompter.answer(MsgBoxResult::No);
        w.action("mnuDelete")->trigger();
        QCOMPARE(fx.prompter.texts(),
            QStringList {"Delete the contact Ona Petraitiene with its phones and web pages?"});
        QCOMPARE(fx.prompter.prompts().first().style,
            MsgBoxStyle::YesNo | MsgBoxStyle::Question | MsgBoxStyle::DefaultButton2);
        QCOMPARE(defaultResult(fx.prompter.prompts().first().style), int(MsgBoxResult::No));
        QCOMPARE(fx.count("tbl_Contacts"), 4);
        QCOMPARE(fx.count("tbl_Phones"), 3);

        fx.prompter.answer(MsgBoxResult::Yes);
        w.list()->setFocus();
        QTest::keyClick(w.list(), Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(fx.count("tbl_Contacts"), 3);
        QVERIFY(fx.reg.scalar("SELECT FullName FROM tbl_Contacts WHERE ContactID=" + QString::number(fx.ona))
                    .isNull());
        QCOMPARE(fx.reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + QString::number(fx.jonas)),
            "Kaunas");
        QCOMPARE(fx.column("SELECT PhoneNumber FROM tbl_Phones"), QStringList {"37 22 11"});
        QCOMPARE(fx.count("tbl_HomePages"), 0);
        QCOMPARE(fx.reg.scalar("SELECT ContactID FROM tbl_Documents").toInt(), fx.ona);
        QVERIFY(!w.lines().contains("Ona Petraitiene"));
        QCOMPARE(w.lines().size(), 3);
        QCOMPARE(w.status(), "3 item(s)");

        // Jonas, shown now, goes with his phone; a line without a name is asked by its mark.
        w.clickLine("Jonas Jonaitis");
        fx.prompter.answer(MsgBoxResult::Yes);
        w.action("mnuDelete")->trigger();
        QCOMPARE(
            fx.prompter.texts().last(), "Delete the contact Jonas Jonaitis with its phones and web pages?");
        QCOMPARE(fx.count("tbl_Phones"), 0);
        w.clickLine("*_*_*_*");
        fx.prompter.answer(MsgBoxResult::Yes);
        w.action("mnuDelete")->trigger();
        QCOMPARE(fx.prompter.texts().last(), "Delete the contact *_*_*_* with its phones and web pages?");
        // Down to the last contact: the window stays, with an empty list.
        fx.prompter.answer(MsgBoxResult::Yes);
        w.action("mnuDelete")->trigger();
        QCOMPARE(fx.count("tbl_Contacts"), 0);
        QCOMPARE(w.lines(), QStringList());
        QCOMPARE(w.box(4)->text(), "");
        w.action("mnuDelete")->trigger();
        QVERIFY(window.isVisible());
        QVERIFY(fx.prompter.allAnswered());
    }

    void emptyRegister()
    {
        AddressBookFixture fx(false);
        AddressBookWindow window;
        Shown w(&window);
        QCOMPARE(w.lines(), QStringList());
        QCOMPARE(w.status(), "0 item(s)");
        QCOMPARE(w.column("grdDataGrid", 3), QStringList());
        QVERIFY(!w.action("mnuDial")->isEnabled());
        w.click("Command2_0");
        QVERIFY(window.isVisible());
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    void editorKeys()
    {
        AddressBookFixture fx(false);
        {
            ContactEditor editor;
            Shown e(&editor);
            QTest::keyClick(&editor, Qt::Key_Escape);
            QVERIFY(!editor.isVisible());
            QVERIFY(fx.prompter.prompts().isEmpty());
        }
        {
            ContactEditor editor;
            Shown e(&editor);
            QTest::keyClicks(e.box(1), "X");
            fx.prompter.answer(MsgBoxResult::Cancel);
            QTest::keyClick(&editor, Qt::Key_Escape);
            QVERIFY(editor.isVisible());
            QCOMPARE(fx.prompter.texts(),
                QStringList {"Changes to contact have not applied.\n\nDo you want to apply these now?"});
            QCOMPARE(fx.prompter.prompts().first().style, 51);
            fx.prompter.answer(MsgBoxResult::Yes);
            QTest::keyClick(&editor, Qt::Key_Escape);
            QVERIFY(!editor.isVisible());
            QCOMPARE(fx.reg.scalar("SELECT CompanyName FROM tbl_Contacts"), "X");
        }
        {
            // Enter in the notes moves on; Add Phone stores the empty contact, Cancel keeps it.
            ContactEditor editor;
            Shown e(&editor);
            e.textBox(11)->setFocus();
            QTest::keyClick(e.textBox(11), Qt::Key_Return);
            QCOMPARE(e.textBox(11)->toPlainText(), "");
            e.click("cmdAddPhone");
            QCOMPARE(fx.count("tbl_Contacts"), 2);
            e.click("cmdAddURL");
            QCOMPARE(e.column("grdHomePages", 1), QStringList {e.box(0)->text()});
            e.click("cmdClose");
            QVERIFY(!editor.isVisible());
            QCOMPARE(fx.count("tbl_Contacts"), 2);
            QCOMPARE(fx.count("tbl_HomePages"), 0);
        }
        QVERIFY(fx.prompter.allAnswered());
    }
};

QTEST_MAIN(AddressBookTest)
#include "tst_addressbook.moc"
