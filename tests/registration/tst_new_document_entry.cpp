#include "NewDocumentFixture.h"
#include "ShownTexts.h"
#include "explorer/ExplorerList.h"
#include "explorer/MainWindow.h"
#include "harness/Lithuanian.h"
#include "options/OptionStore.h"
#include "registration/DateBox.h"
#include "store/engine/Recordset.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTimer>

using namespace kartella;
using namespace kartella::test;

// The New Document dialog as a form: the index it proposes, its keys, the reminders, a
// refused save and files dropped on the document list.
class NewDocumentEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // In Lithuanian: the captions, the reminders' columns, a refusal through the prompter, and
    // no two access keys of the dialog alike.
    void showsLithuanian()
    {
        Fixture fx;
        const Lithuanian lithuanian;
        QVERIFY(lithuanian.language().startsWith("lt"));
        Dialog d;
        QCOMPARE(d.dialog.windowTitle(), "Naujas dokumentas");
        auto* tabs = d.dialog.findChild<QTabWidget*>("SSTab1");
        QCOMPARE(tabs->tabText(0), "Bendra");
        QCOMPARE(tabs->tabText(1), "Priminimai");
        QCOMPARE(tabs->tabText(2), "Pastabos");
        QStringList buddies;
        for (const QLabel* label : d.dialog.findChildren<QLabel*>()) {
            if (label->buddy() == d.box(4) || label->buddy() == d.box(3))
                buddies.append(label->text());
        }
        buddies.sort();
        QCOMPARE(buddies, QStringList({"Aprašymas:", "Registracijos indeksas:"}));
        QCOMPARE(d.dialog.findChild<QPushButton*>("cmdOK")->text(), "Gerai");
        QCOMPARE(d.dialog.findChild<QPushButton*>("cmdCancel")->text(), "Atsisakyti");
        QCOMPARE(d.dialog.findChild<QPushButton*>("cmdScan")->text(), "&Skenuoti");
        QCOMPARE(d.grid()->model()->headerData(1, Qt::Horizontal).toString(), "Data");
        QCOMPARE(d.grid()->model()->headerData(3, Qt::Horizontal).toString(), "Tekstas");
        const QStringList clashes = clashingAccessKeys(&d.dialog);
        QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(", ")));

        // Word without a description is refused, in Lithuanian.
        fx.prompter.answer(MsgBoxResult::Ok);
        d.click("cmdWord");
        QCOMPARE(fx.prompter.prompts().size(), 1);
        QCOMPARE(fx.prompter.prompts().first().text, "Būtinas dokumento aprašymas!");
        QCOMPARE(fx.prompter.prompts().first().title, "Nepavyko sukurti naujo Word dokumento");
        QVERIFY(fx.suite.calls.isEmpty());
        QVERIFY(d.dialog.isVisible());
    }

    // Proposals reserve nothing; a change of category proposes anew and clears the
    // subcategory. The register counts the day's numbers and leaves the options alone; a
    // register of an older version counts in the options, where a new day restarts the count.
    void indexProposals_data()
    {
        QTest::addColumn<bool>("older");
        QTest::newRow("counter in the register") << false;
        QTest::newRow("older register") << true;
    }
    void indexProposals()
    {
        QFETCH(bool, older);
        Fixture fx;
        if (older)
            fx.makeOlderThanDayCounter();
        selection().currentSubCategoryId = fx.lease;
        const QString first = "AGR-" + today("yyyyMMdd") + "/1";
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), first);
            d.type(3, "typed");
            d.choose("cmbCategory", 'L');
            QCOMPARE(d.box(3)->text(), today("yyyyMMdd") + "/1");
            QCOMPARE(d.combo("cmbSubCategory")->currentIndex(), -1);
            QCOMPARE(d.combo("cmbSubCategory")->count(), 0);
            d.click("cmdCancel");
        }
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), first);
            QTest::keyClick(&d.dialog, Qt::Key_Escape);
            QVERIFY(!d.dialog.isVisible());
        }
        QCOMPARE(fx.documents(), 0);

        const QString yesterday = QDate::currentDate().addDays(-1).toString("yyyy MM dd");
        setRegValue("Date", yesterday);
        setRegValue("TodayNumber", "7");
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), first);
            QCOMPARE(getRegValue("Date"), older ? today("yyyy MM dd") : yesterday);
            d.click("cmdOK");
        }
        QCOMPARE(getRegValue("TodayNumber"), older ? "2" : "7");
        if (!older)
            QCOMPARE(fx.dayCounter(), today("yyyy-MM-dd") + "=1");
        QCOMPARE(fx.stored("SubKategID").toInt(), fx.lease);
        Dialog d;
        QCOMPARE(d.box(3)->text(), "AGR-" + today("yyyyMMdd") + "/2");
    }

    // The day's count starts from the highest number the register holds for the day, of any
    // category; an index the register already has is refused, and the next number the
    // register leaves free is offered; the counter follows what is stored, other users' too.
    void duplicateIndexIsRefused_data()
    {
        QTest::addColumn<int>("where");
        QTest::newRow("file") << int(TestRegister::File);
        QTest::newRow("server") << int(TestRegister::Server);
    }
    void duplicateIndexIsRefused()
    {
        QFETCH(int, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        Fixture fx({}, TestRegister::Where(where));
        const QString day = today("yyyyMMdd");
        fx.reg.insert("tbl_Documents",
            {{"DokAntraste", "Lease"}, {"DokRegistracIndeksas", QString("AGR-" + day + "/1")}});
        fx.reg.insert(
            "tbl_Documents", {{"DokAntraste", "Letter"}, {"DokRegistracIndeksas", QString(day + "/4")}});
        fx.reg.insert("tbl_Documents", {{"DokAntraste", "Old"}, {"DokRegistracIndeksas", "AGR-20000101/9"}});
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), "AGR-" + day + "/5");
            d.type(3, "agr-" + day + "/1");
            fx.prompter.answer(MsgBoxResult::No);
            d.click("cmdOK");
            QCOMPARE(fx.prompter.texts(),
                QStringList {"The register already has a document with the index \"agr-" + day
                    + "/1\". Store this one as \"agr-" + day + "/5\"?"});
            QVERIFY(d.dialog.isVisible());
            QCOMPARE(fx.documents(), 3);
            QCOMPARE(d.box(3)->text(), "agr-" + day + "/1");

            fx.prompter.answer(MsgBoxResult::Yes);
            d.click("cmdOK");
            QVERIFY(!d.dialog.isVisible());
        }
        QCOMPARE(fx.documents(), 4);
        QCOMPARE(fx.stored("DokRegistracIndeksas").toString(), "agr-" + day + "/5");
        QCOMPARE(fx.dayCounter(), today("yyyy-MM-dd") + "=5");

        // Another user's program took numbers up to 8 meanwhile: the open dialog's /6 is still
        // free and stored; the next proposal follows the counter.
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), "AGR-" + day + "/6");
            fx.reg.exec("UPDATE tbl_Day_Counter SET LastNumber = 8");
            d.click("cmdOK");
            QVERIFY(!d.dialog.isVisible());
        }
        QCOMPARE(fx.dayCounter(), today("yyyy-MM-dd") + "=8");
        {
            Dialog d;
            QCOMPARE(d.box(3)->text(), "AGR-" + day + "/9");
            d.type(3, "agr-20000101/9");
            fx.prompter.answer(MsgBoxResult::Yes);
            d.click("cmdOK");
        }
        QCOMPARE(fx.stored("DokRegistracIndeksas").toString(), "agr-20000101/10");
        {
            Dialog d;
            d.type(3, "AGR-20000101/8");
            d.click("cmdOK");
            QVERIFY(!d.dialog.isVisible());
        }
        QCOMPARE(fx.stored("DokRegistracIndeksas").toString(), "AGR-20000101/8");
        QCOMPARE(fx.prompter.texts().size(), 3);
        QCOMPARE(fx.dayCounter(), today("yyyy-MM-dd") + "=8");
    }

    // Enter moves on from a box as Tab does, from the Notes box too, without a line end; Tab
    // in the Notes box moves on and types no tab.
    // Every caption, tooltip and spoken name of the window, as written.
    void wordsOfTheWindow()
    {
        Fixture fx;
        Dialog d;
        for (const char* data : {"Adodc1", "Adodc2", "Adodc3", "Adodc4"})
            QVERIFY2(d.dialog.findChild<Recordset*>(data), data);
        QCOMPARE(shownTexts(d.dialog),
            QStringList({"New Document", "SSTab1: General | Tickler | Notes |  | ", "txtFields_6:  | Notes",
                "grdTickler: Date, Text |  | Reminders", "fraDateIndex: Date, Index |  | ",
                ": Send/Receive Date: |  | ", ": Registration Date: |  | ", ": Registration Index: |  | ",
                "fraCategory: Category |  | ", "cmbCategory:  | Category", "cmbSubCategory:  | Subcategory",
                "fraDirection: Direction |  | ", "Option_1: Inner |  | ", "Option_2: Outgoing |  | ",
                "Option_3: Incoming |  | ", "Option_4: Other |  | ", ": Description: |  | ",
                ": Sender/Receiver: |  | ", ": Location: |  | ", "cmdOK: OK |  | ", "cmdCancel: Cancel |  | ",
                "fraCreateWith: Create With |  | ", "cmdWord: &Word |  | ", "cmdExcel: &Excel |  | ",
                "cmdPower: &PowerPoint |  | ", "cmdAddExisting: &Add Existing |  | ",
                "cmdScan: &Scan |  | "}));
        QCOMPARE(overlaps(d.dialog), QStringList());
        // The location is shown, not typed: the buttons that make or attach the file fill it.
        QVERIFY(d.box(5)->isReadOnly());
        QVERIFY(d.dialog.isModal());
        // Grown taller, the window keeps its fields as they were, at the top.
        const QRect direction = d.dialog.findChild<QGroupBox*>("fraDirection")->geometry();
        d.dialog.resize(d.dialog.width(), d.dialog.height() + 300);
        d.dialog.layout()->activate();
        QCOMPARE(d.dialog.findChild<QGroupBox*>("fraDirection")->geometry(), direction);
    }

    // A value that isn't a day blanks a date box, whatever it showed before; a blank box
    // gives no value at all.
    void dateBoxBlanks_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("nothing") << QVariant();
        QTest::newRow("no day") << QVariant(QDate());
        QTest::newRow("text") << QVariant(QStringLiteral("soon"));
        QTest::newRow("31 February") << QVariant(QStringLiteral("2026-02-31"));
    }

    void dateBoxBlanks()
    {
        QFETCH(QVariant, value);
        DateBox box;
        box.setValue(QDate(2026, 3, 4));
        QCOMPARE(box.value(), QVariant(QDate(2026, 3, 4)));
        box.setValue(value);
        QVERIFY(box.isBlank());
        QCOMPARE(box.value(), QVariant());
        QVERIFY(box.text().trimmed().isEmpty());
    }

    // Tab goes down the first tab's fields, the buttons that make the file, then OK and
    // Cancel; Enter in a box moves on as Tab does, and leaves the notes too.
    void enterActsAsTab()
    {
        Fixture fx;
        Dialog d;
        d.box(4)->setFocus();
        QCOMPARE(tabChain(16),
            QStringList({"cmbSender", "txtFields_5", "txtFields_1", "txtFields_2", "txtFields_3",
                "cmbCategory", "cmbSubCategory", "Option_1", "cmdWord", "cmdExcel", "cmdPower",
                "cmdAddExisting", "cmdScan", "cmdOK", "cmdCancel", "qt_tabwidget_tabbar"}));
        d.box(4)->setFocus();
        QTest::keyClick(d.box(4), Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), d.combo("cmbSender"));
        d.box(3)->setFocus();
        QTest::keyClick(d.box(3), Qt::Key_Enter);
        QCOMPARE(QApplication::focusWidget(), d.combo("cmbCategory"));
        d.dialog.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(2);
        auto* notes = d.dialog.findChild<QPlainTextEdit*>("txtFields_6");
        notes->setFocus();
        QTest::keyClicks(notes, "Urgent");
        QTest::keyClick(notes, Qt::Key_Return);
        QVERIFY(QApplication::focusWidget() != notes);
        notes->setFocus();
        QTest::keyClick(notes, Qt::Key_Tab);
        QVERIFY(QApplication::focusWidget() != notes);
        d.click("cmdOK");
        QCOMPARE(fx.stored("DokPastaba").toString(), "Urgent");
    }

    // A reminder typed in the grid's new-row line, Enter moving on from date to text, is
    // stored with the new document's key.
    void reminderGetsTheNewKey()
    {
        Fixture fx;
        const qint32 older = fx.reg.insert("tbl_Documents", {{"DokAntraste", "Older"}});
        Dialog d;
        d.dialog.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(1);
        QTableView* grid = d.grid();
        // The text takes the room: its column is much wider than the date's.
        QVERIFY(grid->columnWidth(3) > 3 * grid->columnWidth(1));
        grid->setFocus();
        grid->setCurrentIndex(grid->model()->index(0, 1));
        QTest::keyClick(grid, '2');
        QTest::keyClicks(QApplication::focusWidget(), "024.05.01");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(grid->currentIndex().column(), 3);
        QTest::keyClick(grid, 'C');
        QTest::keyClicks(QApplication::focusWidget(), "all the bank");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(grid->currentIndex().row(), 1);
        QCOMPARE(grid->model()->rowCount(), 2);
        d.click("cmdOK");
        const qint32 key = fx.stored("RastasID").toInt();
        QVERIFY(key != older);
        QCOMPARE(fx.reg.scalar(QString("SELECT RastasID FROM tbl_Tickler WHERE TicklerText='Call the bank'"))
                     .toInt(),
            key);
        QCOMPARE(fx.reg.scalar("SELECT TicklerDate FROM tbl_Tickler").toDate(), QDate(2024, 5, 1));
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Tickler").toInt(), 1);
    }

    // An unreadable date stops OK with a message: the dialog stays, nothing is stored and the
    // day's number stays; corrected, OK stores it.
    void refusedSaveKeepsTheDialog()
    {
        Fixture fx;
        Dialog d;
        d.type(4, "Lease");
        d.type(1, "2024.99.99");
        fx.prompter.answer(MsgBoxResult::Ok);
        d.click("cmdOK");
        const auto prompt = fx.prompter.take();
        QCOMPARE(prompt.size(), 1);
        QVERIFY2(
            prompt.first().text.contains("2024.99.99") && prompt.first().text.contains("Send/Receive Date"),
            qPrintable(prompt.first().text));
        QCOMPARE(prompt.first().style, MsgBoxStyle::OkOnly);
        QVERIFY(d.dialog.isVisible());
        QCOMPARE(fx.documents(), 0);
        QCOMPARE(fx.dayCounter(), QString());

        d.type(1, "2024.09.30");
        d.click("cmdOK");
        QVERIFY(!d.dialog.isVisible());
        QCOMPARE(fx.stored("DokGavSiuntData").toDate(), QDate(2024, 9, 30));
        QCOMPARE(fx.dayCounter(), today("yyyy-MM-dd") + "=1");
    }

    // Three files dropped on the main window's document list open the dialog three times, one
    // after another, each with its file in the Location box.
    void dropOnTheDocumentList()
    {
        Fixture fx;
        MainWindow window;
        window.load();
        window.show();
        QStringList paths;
        for (const char* name : {"a.doc", "b.xls", "c.pdf"})
            paths << fx.files.filePath(QString::fromLatin1(name));
        QStringList seen;
        const QList<const char*> answers = {"cmdOK", "cmdCancel", "cmdOK"};
        QTimer responder;
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<NewDocumentDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible() || seen.size() >= answers.size())
                return;
            seen << dialog->findChild<QLineEdit*>("txtFields_5")->text();
            QTest::mouseClick(dialog->findChild<QPushButton*>(answers[seen.size() - 1]), Qt::LeftButton);
        });
        responder.start(20);
        // The list's drop handling turns the dropped data into this signal.
        Q_EMIT window.documentList()->filesDropped(paths);
        responder.stop();
        QCOMPARE(seen, paths);
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 2);
        QCOMPARE(fx.reg
                     .scalar("SELECT COUNT(*) FROM tbl_Documents WHERE RastoKel='" + paths[0]
                         + "' OR RastoKel='" + paths[2] + "'")
                     .toInt(),
            2);
    }
};

QTEST_MAIN(NewDocumentEntryTest)
#include "tst_new_document_entry.moc"
