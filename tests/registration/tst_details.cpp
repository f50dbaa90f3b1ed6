#include "RegisterFixture.h"
#include "ShownTexts.h"
#include "explorer/DocumentFills.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "harness/Lithuanian.h"
#include "registration/DocumentDetailsDialog.h"
#include "store/engine/Recordset.h"
#include "support/RecordsetModel.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTableView>

using namespace kartella;
using namespace kartella::test;

// The details dialog of a document: what it shows, what it stores, and its keys.
class DetailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The row shows as stored (a Null direction as "Other"), its reminders alone in the
    // grid; Apply stores the edits of row and grid and keeps the dialog; the other rows
    // stay as they were.
    void detailsShowAndApply()
    {
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        QCOMPARE(dialog.windowTitle(), "Sutartis Description");
        QCOMPARE(dialog.objectName(), "frmNew");
        QVERIFY(dialog.isModal());
        for (const char* data : {"Adodc1", "Adodc2", "Adodc3", "Adodc4", "TicklerRecordset"})
            QVERIFY2(dialog.findChild<Recordset*>(data), data);
        QCOMPARE(dialog.findChild<QLabel*>("imdgLIcon")->accessibleName(), "File icon");
        // The location and the text status are shown, not typed: the file's place changes
        // by moving the file.
        QVERIFY(box(dialog, 14)->isReadOnly());
        QVERIFY(dialog.findChild<QLineEdit*>("txtFileText")->isReadOnly());
        const auto* ok = dialog.findChild<QPushButton*>("cmdButton_0");
        for (const char* button : {"cmdButton_1", "cmdButton_2"})
            QCOMPARE(dialog.findChild<QPushButton*>(button)->geometry().top(), ok->geometry().top());
        // Every caption, tooltip and spoken name, as written.
        QCOMPARE(shownTexts(dialog),
            QStringList({"Sutartis Description", "SSTab1: General | Tickler | Notes | History |  | ",
                "lstHistory: When, Who, Command, What, Change |  | Changes", ": &Changes: |  | ",
                ": &Earlier versions of the file: |  | ", "cmdOpenVersion: &Open |  | ",
                "cmdRestoreVersion: &Restore |  | ", "txtFields_12:  | Notes",
                "grdTickler: Date, Text |  | Reminders", "fraDateIndex: Date, Index |  | ",
                ": Send/Receive Date: |  | ", ": Registration Date: |  | ", ": Registration Index: |  | ",
                "fraCategory: Category |  | ", "cmbCategory: Category of Document | Category",
                "cmbSubCategory: SubCategory of Document | Subcategory", "fraDirection: Direction |  | ",
                "Option_1: Inner |  | ", "Option_2: Outgoing |  | ", "Option_3: Incoming |  | ",
                "Option_4: Other |  | ", ": Description: |  | ",
                "txtFields_7: Short Description of Document | ", ": Sender/Receiver: |  | ",
                ": Location: |  | ", "txtFields_14: Location of File | ",
                "txtFileText: Whether the text of the file was read for the search | ",
                ": Text of the file: |  | ", "cmdButton_0: OK |  | ", "cmdButton_1: Cancel |  | ",
                "cmdButton_2: &Apply |  | "}));
        QCOMPARE(overlaps(dialog), QStringList());
        // Grown taller, the window keeps its fields as they were, at the top.
        const QRect direction = dialog.findChild<QGroupBox*>("fraDirection")->geometry();
        dialog.resize(dialog.width(), dialog.height() + 300);
        dialog.layout()->activate();
        QCOMPARE(dialog.findChild<QGroupBox*>("fraDirection")->geometry(), direction);
        // Tab goes down the first tab's fields, a date section by section, then the buttons
        // (Apply waits disabled until something changes).
        box(dialog, 7)->setFocus();
        QCOMPARE(tabChain(16),
            QStringList({"cmbSender", "txtFields_14", "DTPicker1", "DTPicker1", "DTPicker1", "DTPicker2",
                "DTPicker2", "DTPicker2", "txtFields_3", "cmbCategory", "cmbSubCategory", "Option_1",
                "cmdButton_0", "cmdButton_1", "txtFileText", "qt_tabwidget_tabbar"}));
        QCOMPARE(box(dialog, 7)->text(), "Sutartis");
        QCOMPARE(box(dialog, 14)->text(), fx.leaseFile);
        QCOMPARE(box(dialog, 3)->text(), "AGR-1");
        QCOMPARE(dialog.findChild<QDateEdit*>("DTPicker1")->date(), QDate(2024, 1, 31));
        QCOMPARE(dialog.findChild<QDateEdit*>("DTPicker2")->text(), "2024.02.01");
        QCOMPARE(dialog.findChild<QDateEdit*>("DTPicker2")->date(), QDate(2024, 2, 1));
        QCOMPARE(dialog.findChild<QComboBox*>("cmbCategory")->currentText(), "Contracts");
        QVERIFY(dialog.findChild<QRadioButton*>("Option_4")->isChecked());
        QCOMPARE(dialog.findChild<QLabel*>("imdgLIcon")->property("noFile").toBool(), false);
        auto* apply = dialog.findChild<QPushButton*>("cmdButton_2");
        QVERIFY(!apply->isEnabled());
        QVERIFY(!dialog.detailsChanged());
        auto* grid = dialog.findChild<QTableView*>("grdTickler");
        QCOMPARE(grid->model()->index(0, 3).data().toString(), "Call back");
        QVERIFY(grid->model()->setData(grid->model()->index(0, 3), "Call at noon"));

        retype(box(dialog, 7), "Sutartis nr. 2");
        dialog.findChild<QRadioButton*>("Option_4")->setFocus();
        QTest::keyClick(dialog.findChild<QRadioButton*>("Option_4"), Qt::Key_Up);
        dialog.findChild<QDateEdit*>("DTPicker1")->setDate(QDate(2000, 2, 29));
        QVERIFY(apply->isEnabled());
        QTest::keyClick(apply, Qt::Key_Space);
        QVERIFY(dialog.isVisible());
        QVERIFY(!apply->isEnabled());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis nr. 2");
        QCOMPARE(fx.document("KryptisID", fx.lease).toInt(), 3);
        QCOMPARE(fx.document("DokGavSiuntData", fx.lease).toDate(), QDate(2000, 2, 29));
        QCOMPARE(fx.document("DokRegistracData", fx.lease).toDate(), QDate(2024, 2, 1));
        QCOMPARE(fx.reminders(),
            QString::number(fx.lease) + ":Call at noon," + QString::number(fx.other) + ":Other's");
        QCOMPARE(fx.document("DokAntraste", fx.other).toString(), "Other");
        QCOMPARE(fx.document("KryptisID", fx.other).toInt(), 2);
        // The history names the command that wrote.
        QCOMPARE(
            fx.reg.scalar("SELECT Command FROM tbl_History ORDER BY HistoryID DESC").toString(), "Details");
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // A document without a reachable file shows the no-file icon; OK without a change
    // writes nothing, the Null direction included.
    void noFileAndNoChange()
    {
        Fixture fx;
        QFile::remove(fx.leaseFile);
        DocumentDetailsDialog dialog;
        showActive(dialog);
        QCOMPARE(dialog.findChild<QLabel*>("imdgLIcon")->property("noFile").toBool(), true);
        click(dialog, "cmdButton_0");
        QVERIFY(!dialog.isVisible());
        QVERIFY(fx.document("KryptisID", fx.lease).isNull());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis");
    }

    // Esc: without a change it closes at once; with one it asks, and Yes applies and stays
    // (a second Esc then closes), No drops and closes, Cancel stays with the change.
    void escape_data()
    {
        QTest::addColumn<bool>("change");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("stored");
        QTest::addColumn<bool>("open");
        QTest::newRow("no change") << false << 0 << false << false;
        QTest::newRow("Yes") << true << int(MsgBoxResult::Yes) << true << true;
        QTest::newRow("No") << true << int(MsgBoxResult::No) << false << false;
        QTest::newRow("Cancel") << true << int(MsgBoxResult::Cancel) << false << true;
    }

    void escape()
    {
        QFETCH(bool, change);
        QFETCH(int, answer);
        QFETCH(bool, stored);
        QFETCH(bool, open);
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        if (change)
            retype(box(dialog, 7), "Changed");
        if (answer)
            fx.prompter.answer(answer);
        QTest::keyClick(box(dialog, 7), Qt::Key_Escape);
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), change ? 1 : 0);
        if (change) {
            QCOMPARE(prompts.first().text, ApplyQuestion);
            QCOMPARE(prompts.first().title, "Warning");
            QCOMPARE(prompts.first().style, MsgBoxStyle::YesNoCancel | MsgBoxStyle::Exclamation);
        }
        QCOMPARE(dialog.isVisible(), open);
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), stored ? "Changed" : "Sutartis");
        if (answer == MsgBoxResult::Yes) {
            QVERIFY(!dialog.findChild<QPushButton*>("cmdButton_2")->isEnabled());
            QTest::keyClick(box(dialog, 7), Qt::Key_Escape);
            QVERIFY(!dialog.isVisible());
        }
    }

    // The close box asks Yes/No when something changed; it closes either way.
    void closeBox_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("Yes") << int(MsgBoxResult::Yes);
        QTest::newRow("No") << int(MsgBoxResult::No);
    }

    void closeBox()
    {
        QFETCH(int, answer);
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 3), "AGR-2");
        fx.prompter.answer(answer);
        const QSignalSpy rejected(&dialog, &QDialog::rejected);
        dialog.close();
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts.first().text, ApplyQuestion);
        QCOMPARE(prompts.first().style, MsgBoxStyle::YesNo | MsgBoxStyle::Exclamation);
        QVERIFY(!dialog.isVisible());
        // Closed as Cancel closes it, so that whoever waits on the dialog learns it ended.
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(fx.document("DokRegistracIndeksas", fx.lease).toString(),
            answer == MsgBoxResult::Yes ? "AGR-2" : "AGR-1");
    }

    // In Lithuanian: the title made of the description, the captions, the question of the
    // close box through the prompter, and no two access keys of the General tab alike.
    void showsLithuanian()
    {
        Fixture fx;
        const Lithuanian lithuanian;
        QVERIFY(lithuanian.language().startsWith("lt"));
        DocumentDetailsDialog dialog;
        showActive(dialog);
        QCOMPARE(dialog.windowTitle(), "Sutartis – aprašymas");
        auto* tabs = dialog.findChild<QTabWidget*>("SSTab1");
        QCOMPARE(tabs->tabText(0), "Bendra");
        QCOMPARE(tabs->tabText(1), "Priminimai");
        QCOMPARE(box(dialog, 7)->toolTip(), "Trumpas dokumento aprašymas");
        QCOMPARE(dialog.findChild<QPushButton*>("cmdButton_0")->text(), "Gerai");
        QCOMPARE(dialog.findChild<QPushButton*>("cmdButton_2")->text(), "&Taikyti");
        const QStringList clashes = clashingAccessKeys(tabs->widget(0));
        QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(", ")));

        retype(box(dialog, 3), "AGR-2");
        fx.prompter.answer(MsgBoxResult::No);
        dialog.close();
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts.first().text, "Duomenų pakeitimai dar neįrašyti.\n\nAr norite juos įrašyti dabar?");
        QCOMPARE(prompts.first().title, "Įspėjimas");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(fx.document("DokRegistracIndeksas", fx.lease).toString(), "AGR-1");
    }

    // Choosing another category (by the keyboard) refills the subcategory list only: the
    // row keeps its subcategory until another one is chosen.
    void categoryChangeKeepsTheSubCategory()
    {
        Fixture fx;
        const qint32 leases = fx.reg.insert(
            "tbl_Sub_Categories", {{"KategID", fx.contracts}, {"DokSubKategorija", "Leases"}});
        const qint32 inbound
            = fx.reg.insert("tbl_Sub_Categories", {{"KategID", fx.letters}, {"DokSubKategorija", "Inbound"}});
        fx.reg.exec("UPDATE tbl_Documents SET SubKategID=" + QString::number(leases)
            + " WHERE RastasID=" + QString::number(fx.lease));
        DocumentDetailsDialog dialog;
        showActive(dialog);
        auto* subCategory = dialog.findChild<QComboBox*>("cmbSubCategory");
        QCOMPARE(subCategory->currentText(), "Leases");
        auto* category = dialog.findChild<QComboBox*>("cmbCategory");
        category->setFocus();
        QTest::keyClick(category, 'L');
        QCOMPARE(category->currentText(), "Letters");
        QVERIFY(dialog.detailsChanged());
        QCOMPARE(subCategory->count(), 1);
        QCOMPARE(subCategory->itemText(0), "Inbound");
        QVERIFY(dialog.apply());
        QCOMPARE(fx.document("KategID", fx.lease).toInt(), fx.letters);
        QCOMPARE(fx.document("SubKategID", fx.lease).toInt(), leases);
        QCOMPARE(fx.document("DokRegistracIndeksas", fx.lease).toString(), "AGR-1");
        Q_UNUSED(inbound);
    }

    // A write the register refuses, of the document or of a reminder, is reported as an
    // error with its number; the rows stay as stored, the dialog open with its changes.
    void refusedApplyLeavesTheRow_data()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("document") << "tbl_Documents";
        QTest::newRow("reminder") << "tbl_Tickler";
    }

    void refusedApplyLeavesTheRow()
    {
        QFETCH(QString, table);
        Fixture fx;
        const QString reminders = fx.reminders();
        fx.reg.exec("CREATE TRIGGER refuse BEFORE UPDATE ON " + table
            + " BEGIN SELECT RAISE(ABORT, 'refused here'); END");
        DocumentDetailsDialog dialog;
        showActive(dialog);
        if (table == "tbl_Tickler") {
            auto* grid = dialog.findChild<QTableView*>("grdTickler");
            QVERIFY(grid->model()->setData(grid->model()->index(0, 3), "Changed"));
        } else {
            retype(box(dialog, 7), "Changed");
        }
        fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdButton_0");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(prompts.first().text.startsWith("Error: ") && prompts.first().text.contains("refused here"),
            qPrintable(prompts.first().text));
        QCOMPARE(prompts.first().style, MsgBoxStyle::Critical);
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.detailsChanged());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis");
        QCOMPARE(fx.reminders(), reminders);
    }

    // An index changed to one another document has is refused, with the next free number
    // on offer; the document's own index, kept as it was, is no duplicate of itself, even
    // when an older register holds it twice.
    void duplicateIndexIsRefused()
    {
        Fixture fx;
        fx.reg.exec("UPDATE tbl_Documents SET DokRegistracIndeksas = 'AGR-7' WHERE RastasID = "
            + QString::number(fx.other));
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 3), "agr-7");
        fx.prompter.answer(MsgBoxResult::No);
        click(dialog, "cmdButton_0");
        QCOMPARE(fx.prompter.texts(),
            QStringList {"The register already has a document with the index \"agr-7\". Store this one as "
                         "\"agr-8\"?"});
        QVERIFY(dialog.isVisible());
        QCOMPARE(box(dialog, 3)->text(), "agr-7");
        // The index waits selected for another.
        QCOMPARE(QApplication::focusWidget(), box(dialog, 3));
        QCOMPARE(box(dialog, 3)->selectedText(), "agr-7");
        QCOMPARE(fx.document("DokRegistracIndeksas", fx.lease).toString(), "AGR-1");

        fx.prompter.answer(MsgBoxResult::Yes);
        click(dialog, "cmdButton_0");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(fx.document("DokRegistracIndeksas", fx.lease).toString(), "agr-8");

        fx.reg.exec("UPDATE tbl_Documents SET DokRegistracIndeksas = 'agr-8' WHERE RastasID = "
            + QString::number(fx.other));
        DocumentDetailsDialog again;
        showActive(again);
        retype(box(again, 7), "Sutartis nr. 2");
        click(again, "cmdButton_0");
        QVERIFY(!again.isVisible());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis nr. 2");
        QCOMPARE(fx.prompter.texts().size(), 2);
    }

    // A date the row doesn't hold shows blank, not as today; today picked in the calendar
    // (or Up on the blank box) is a change, and Apply stores it; Delete blanks a date again.
    void blankDates_data()
    {
        QTest::addColumn<bool>("calendar");
        QTest::newRow("calendar") << true;
        QTest::newRow("Up") << false;
    }

    void blankDates()
    {
        QFETCH(bool, calendar);
        Fixture fx;
        fx.reg.exec(
            "UPDATE tbl_Documents SET DokRegistracData=NULL WHERE RastasID=" + QString::number(fx.lease));
        DocumentDetailsDialog dialog;
        showActive(dialog);
        auto* registration = dialog.findChild<QDateEdit*>("DTPicker2");
        QVERIFY(registration->text().trimmed().isEmpty());
        QVERIFY(!dialog.detailsChanged());
        registration->setFocus();
        if (calendar) {
            QStyleOptionComboBox arrow;
            arrow.initFrom(registration);
            arrow.editable = true;
            arrow.subControls = QStyle::SC_All;
            QTest::mouseClick(registration, Qt::LeftButton, {},
                registration->style()
                    ->subControlRect(QStyle::CC_ComboBox, &arrow, QStyle::SC_ComboBoxArrow, registration)
                    .center());
            QCalendarWidget* days = registration->calendarWidget();
            QTRY_VERIFY(days->isVisible());
            QCOMPARE(days->selectedDate(), QDate::currentDate());
            QTest::keyClick(days->findChild<QTableView*>(), Qt::Key_Return);
            QTRY_VERIFY(!days->isVisible());
        } else {
            QTest::keyClick(registration, Qt::Key_Up);
        }
        QCOMPARE(registration->date(), QDate::currentDate());
        QVERIFY(dialog.detailsChanged());
        auto* sent = dialog.findChild<QDateEdit*>("DTPicker1");
        sent->setFocus();
        QTest::keyClick(sent, Qt::Key_Delete);
        QVERIFY(sent->text().trimmed().isEmpty());
        click(dialog, "cmdButton_2");
        QCOMPARE(fx.document("DokRegistracData", fx.lease).toDate(), QDate::currentDate());
        QVERIFY(fx.document("DokGavSiuntData", fx.lease).isNull());
        QVERIFY(fx.document("DokRegistracData", fx.other).isNull());
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // Reminders typed in the grid: Enter moves from the date to the text and from the text to
    // the next line, where a new reminder starts. A cell still being typed in is a change:
    // Apply is enabled at its first key, and Esc in it or the close box asks; Yes stores what
    // the cell holds.
    void reminderGrid()
    {
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        dialog.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(1);
        auto* grid = dialog.findChild<QTableView*>("grdTickler");
        auto* apply = dialog.findChild<QPushButton*>("cmdButton_2");
        // The text takes the room: its column is much wider than the date's.
        QVERIFY(grid->columnWidth(3) > 3 * grid->columnWidth(1));
        grid->setFocus();
        grid->setCurrentIndex(grid->model()->index(0, 1));
        QTest::keyClick(grid, Qt::Key_Return);
        QCOMPARE(grid->currentIndex(), grid->model()->index(0, 3));
        QTest::keyClick(grid, Qt::Key_Return);
        QCOMPARE(grid->currentIndex().row(), 1);
        grid->setCurrentIndex(grid->model()->index(1, 3));
        QVERIFY(!apply->isEnabled());

        QTest::keyClick(grid, 'P');
        QVERIFY(apply->isEnabled());
        QTest::keyClicks(QApplication::focusWidget(), "ay the rent");
        fx.prompter.answer(MsgBoxResult::Yes);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts.first().text, ApplyQuestion);
        QVERIFY(dialog.isVisible());
        const QString lease = QString::number(fx.lease);
        QCOMPARE(fx.reminders(),
            lease + ":Call back," + QString::number(fx.other) + ":Other's," + lease + ":Pay the rent");

        grid->setFocus();
        grid->setCurrentIndex(grid->model()->index(0, 3));
        QTest::keyClick(grid, 'R');
        QTest::keyClicks(QApplication::focusWidget(), "ing back");
        fx.prompter.answer(MsgBoxResult::Yes);
        dialog.close();
        QCOMPARE(fx.prompter.take().size(), 1);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(fx.reminders(),
            lease + ":Ring back," + QString::number(fx.other) + ":Other's," + lease + ":Pay the rent");
    }

    // Cancel drops what was changed in the boxes and in the grid without a question.
    void cancelDropsChanges()
    {
        Fixture fx;
        const QString reminders = fx.reminders();
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 7), "Changed");
        auto* grid = dialog.findChild<QTableView*>("grdTickler");
        QVERIFY(grid->model()->setData(grid->model()->index(0, 3), "Changed too"));
        click(dialog, "cmdButton_1");
        QVERIFY(!dialog.isVisible());
        QVERIFY(fx.prompter.prompts().isEmpty());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), "Sutartis");
        QCOMPARE(fx.reminders(), reminders);
    }

    // Tab in the Notes box moves on and types no tab; Enter there moves on as well.
    void notesTakeNoTab()
    {
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        dialog.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(2);
        auto* notes = dialog.findChild<QPlainTextEdit*>("txtFields_12");
        notes->setFocus();
        QTest::keyClicks(notes, "Urgent");
        QTest::keyClick(notes, Qt::Key_Tab);
        QVERIFY(QApplication::focusWidget() != notes);
        notes->setFocus();
        QTest::keyClick(notes, Qt::Key_Return);
        QVERIFY(QApplication::focusWidget() != notes);
        click(dialog, "cmdButton_0");
        QCOMPARE(fx.document("DokPastaba", fx.lease).toString(), "Urgent");
    }

    // Show Details or New Related Document on a document that another program deleted since
    // it was clicked: told, no dialog opens, and the list no longer shows the document.
    void goneDocument_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("Show Details") << "mnuShowDetails";
        QTest::newRow("New Related Document") << "mnuRelated";
    }

    void goneDocument()
    {
        QFETCH(QString, command);
        Fixture fx;
        MainWindow window;
        window.load();
        window.listCategory(fx.contracts, 0);
        const QString key = DocumentFills::itemKey(fx.lease);
        window.onDocumentClicked(window.documentModel()->rowOfKey(key));
        fx.reg.exec("DELETE FROM tbl_Sub_Documents");
        fx.reg.exec("DELETE FROM tbl_Documents WHERE RastasID=" + QString::number(fx.lease));
        OpenedDialogs opened;
        fx.prompter.answer(MsgBoxResult::Ok);
        QAction* action = window.action(command);
        QVERIFY(action->isEnabled());
        action->trigger();
        opened.watcher.stop();
        QCOMPARE(opened.names, QStringList());
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts.first().text, "This document no longer exists.");
        QCOMPARE(window.documentModel()->rowOfKey(key), -1);

        // Made for the gone document all the same, the dialog offers nothing to store.
        fx.prompter.answer(MsgBoxResult::Ok);
        DocumentDetailsDialog dialog;
        QCOMPARE(fx.prompter.take().size(), 1);
        for (const char* name : {"cmdButton_0", "cmdButton_2"})
            QVERIFY2(!dialog.findChild<QPushButton*>(name)->isEnabled(), name);
        QVERIFY(!dialog.findChild<QTabWidget*>("SSTab1")->isEnabled());
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    }

    // A register that can't give the dialog its rows, or a row its subcategories, is told as
    // an error of the register; the dialog still opens.
    void loadErrorsAreTold_data()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("contacts") << "tbl_Contacts";
        QTest::newRow("subcategories") << "tbl_Sub_Categories";
    }

    void loadErrorsAreTold()
    {
        QFETCH(QString, table);
        Fixture fx;
        fx.reg.exec("ALTER TABLE " + table + " RENAME TO tbl_Gone");
        fx.prompter.answer(MsgBoxResult::Ok);
        DocumentDetailsDialog dialog;
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(prompts.first().text.startsWith("Error: ") && prompts.first().text.contains(table),
            qPrintable(prompts.first().text));
        QCOMPARE(prompts.first().title, "Document Description");
    }
};

QTEST_MAIN(DetailsTest)
#include "tst_details.moc"
