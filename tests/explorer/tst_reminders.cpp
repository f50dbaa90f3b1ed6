// Due reminders: which are due on a day, their order, "done" kept in the register (and a
// register made before it could be), the Reminders window and its place in the main window.
#include "dialogs/SettingsDialog.h"
#include "explorer/ExplorerList.h"
#include "explorer/MainWindow.h"
#include "explorer/RemindersCommand.h"
#include "explorer/RemindersWindow.h"
#include "harness/Lithuanian.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "reports/ReportCommands.h"
#include "reports/ReportLayouts.h"
#include "store/DueReminders.h"
#include "store/SchemaSteps.h"
#include "store/engine/Connection.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace kartella;
using namespace kartella::test;

namespace {

qint32 addDocument(const TestRegister& reg, const QString& index, const QString& description)
{
    return reg.insert(QStringLiteral("tbl_Documents"),
        {{"DokRegistracIndeksas", index}, {"DokAntraste", description},
            {"DokRegistracData", QDate(2024, 1, 2)}});
}

qint32 addReminder(const TestRegister& reg, qint32 document, const QVariant& date, const QString& text)
{
    return reg.insert(QStringLiteral("tbl_Tickler"),
        {{"RastasID", document}, {"TicklerDate", date}, {"TicklerText", text}});
}

std::vector<DueReminder> due(const TestRegister& reg, const QDate& today)
{
    Connection connection;
    connection.open(reg.connectionString());
    return dueReminders(connection, today);
}

QStringList texts(const std::vector<DueReminder>& reminders)
{
    QStringList list;
    for (const DueReminder& reminder : reminders)
        list << reminder.text;
    return list;
}

// The done column as it stands in each row, by reminder text, in key order.
QString doneColumn(const TestRegister& reg)
{
    return reg
        .scalar("SELECT group_concat(TicklerText || '=' || TicklerDone, ',') FROM (SELECT * FROM "
                "tbl_Tickler ORDER BY TicklerID)")
        .toString();
}

// The schema version of the registers made before the done column.
constexpr int VersionBeforeDone = 3;

// Takes a register back to the form before the done column, as an older program made it.
void makeOlder(const TestRegister& reg)
{
    // The history came later still: its triggers name the column.
    for (const char* change : {"Insert", "Update", "Delete"})
        reg.exec(QStringLiteral("DROP TRIGGER IF EXISTS trg_History_Tickler_") + QLatin1String(change));
    reg.exec("ALTER TABLE tbl_Tickler DROP COLUMN TicklerDone");
    reg.exec("DROP TABLE tbl_Day_Counter");
    reg.exec(QStringLiteral("PRAGMA user_version = %1").arg(VersionBeforeDone));
}

// Shows a window and makes it the active one, so that focus, shortcuts and keys work.
void activate(QWidget& window)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qWarning("The window didn't become active");
}

QTreeView* list(QWidget& window)
{
    return window.findChild<QTreeView*>("lstReminders");
}

QStringList column(QWidget& window, int column)
{
    QStringList cells;
    QAbstractItemModel* lines = list(window)->model();
    for (int row = 0; row < lines->rowCount(); ++row)
        cells << lines->index(row, column).data().toString();
    return cells;
}

QPoint lineCenter(QTreeView* lines, int row)
{
    return lines->visualRect(lines->model()->index(row, 0)).center();
}

} // namespace

class RemindersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Yesterday is overdue, today is due, tomorrow is not, across the turns of a month, a
    // leap February, a year and a century.
    void dueOnTheDayAndBefore_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::newRow("mid month") << QDate(2024, 5, 15);
        QTest::newRow("first of a month") << QDate(2024, 5, 1);
        QTest::newRow("last of a month") << QDate(2024, 4, 30);
        QTest::newRow("leap day") << QDate(2024, 2, 29);
        QTest::newRow("first of March after a leap day") << QDate(2024, 3, 1);
        QTest::newRow("new year's day") << QDate(2025, 1, 1);
        QTest::newRow("new year's eve") << QDate(2024, 12, 31);
        QTest::newRow("turn of a century") << QDate(2000, 1, 1);
    }

    void dueOnTheDayAndBefore()
    {
        QFETCH(QDate, today);
        TestRegister reg;
        const qint32 doc = addDocument(reg, "SUT-1", "Sutartis");
        addReminder(reg, doc, today.addDays(1), "tomorrow");
        addReminder(reg, doc, today, "today");
        addReminder(reg, doc, today.addDays(-1), "yesterday");
        addReminder(reg, doc, today.addYears(1), "next year");

        const std::vector<DueReminder> found = due(reg, today);
        QCOMPARE(texts(found), QStringList({"yesterday", "today"}));
        QVERIFY(found[0].overdue);
        QVERIFY(!found[1].overdue);
        QCOMPARE(found[0].date, today.addDays(-1));
        QCOMPARE(found[1].documentId, doc);
        QCOMPARE(found[1].regIndex, QString("SUT-1"));
        QCOMPARE(found[1].description, QString("Sutartis"));
    }

    // Overdue first and oldest first, then today's, then the dates nobody can read; done
    // reminders (any true value) and those of deleted documents are left out.
    void orderAndWhatIsLeftOut()
    {
        TestRegister reg;
        const QDate today(2024, 3, 1);
        const qint32 doc = addDocument(reg, "A-1", "Aktas");
        const qint32 gone = addDocument(reg, "B-2", "Byla");
        addReminder(reg, doc, today, "today");
        addReminder(reg, doc, "next Friday", "typed");
        addReminder(reg, doc, QDate(2024, 2, 29), "newer overdue");
        addReminder(reg, doc, "2024.01.15", "typed overdue");
        addReminder(reg, doc, "2024.03.02", "typed tomorrow");
        addReminder(reg, doc, QDate(2023, 12, 31), "older overdue");
        addReminder(reg, doc, QVariant(), "no date");
        const qint32 done = addReminder(reg, doc, QDate(2024, 1, 1), "done");
        reg.exec(QStringLiteral("UPDATE tbl_Tickler SET TicklerDone = -1 WHERE TicklerID = %1").arg(done));
        addReminder(reg, gone, QDate(2024, 1, 1), "orphan");
        reg.exec(QStringLiteral("DELETE FROM tbl_Documents WHERE RastasID = %1").arg(gone));

        const std::vector<DueReminder> found = due(reg, today);
        QCOMPARE(texts(found),
            QStringList({"older overdue", "typed overdue", "newer overdue", "today", "typed", "no date"}));
        QCOMPARE(found[4].dateText, QString("next Friday"));
        QVERIFY(!found[4].date.isValid());
        QVERIFY(!found[4].overdue);
        QVERIFY(found[1].overdue);
        Connection connection;
        connection.open(reg.connectionString());
        QCOMPARE(countDueReminders(connection, today), 6);
    }

    // A register made before the done column: every reminder is due as before; "Done" asks
    // to upgrade, No leaves the register as it was, Yes upgrades and then marks it.
    void olderRegisterAsksToUpgrade()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        const QDate today(2024, 3, 1);
        const qint32 doc = addDocument(reg, "A-1", "Aktas");
        addReminder(reg, doc, QDate(2024, 2, 1), "first");
        addReminder(reg, doc, QDate(2024, 2, 2), "second");
        makeOlder(reg);
        QCOMPARE(texts(due(reg, today)), QStringList({"first", "second"}));

        RemindersWindow window(today);
        auto* done = window.findChild<QPushButton*>("cmdDone");
        prompter.answer(MsgBoxResult::No);
        QTest::mouseClick(done, Qt::LeftButton);
        QCOMPARE(prompter.take().size(), 1);
        QCOMPARE(column(window, 4), QStringList({"first", "second"}));
        QCOMPARE(reg.scalar("PRAGMA user_version").toInt(), VersionBeforeDone);

        prompter.answer(MsgBoxResult::Yes);
        QTest::mouseClick(done, Qt::LeftButton);
        QCOMPARE(prompter.take().size(), 1);
        QCOMPARE(reg.scalar("PRAGMA user_version").toInt(), newestSchemaVersion());
        QCOMPARE(doneColumn(reg), QString("first=1,second=0"));
        QCOMPARE(column(window, 4), QStringList({"second"}));
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 1);
    }

    // Done marks the current line's reminder and no other; a window opened later (the next
    // start) doesn't show it. Keyboard and mouse alike.
    void doneSurvivesARestart()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        const QDate today(2025, 1, 1);
        const qint32 doc = addDocument(reg, "A-1", "Aktas");
        addReminder(reg, doc, QDate(2024, 12, 31), "old year");
        addReminder(reg, doc, today, "new year");
        addReminder(reg, doc, QDate(2025, 1, 2), "later");
        {
            RemindersWindow window(today);
            activate(window);
            QCOMPARE(column(window, 4), QStringList({"old year", "new year"}));
            QCOMPARE(column(window, 1), QStringList({"Overdue", "Today"}));
            list(window)->setFocus();
            QTest::keyClick(list(window), Qt::Key_Down);
            // The access key presses the button after its pressed look.
            QTest::keyClick(list(window), Qt::Key_D, Qt::AltModifier);
            QTRY_COMPARE(doneColumn(reg), QString("old year=0,new year=1,later=0"));
            QTest::mouseClick(window.findChild<QPushButton*>("cmdDone"), Qt::LeftButton);
            QCOMPARE(doneColumn(reg), QString("old year=1,new year=1,later=0"));
            QVERIFY(window.findChild<QLabel*>("lblNothingDue")->isVisible());
        }
        RemindersWindow again(today.addDays(1));
        QCOMPARE(column(again, 4), QStringList({"later"}));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // A long list reads the texts of the lines in view, not all of them: Ctrl+End reads the
    // last; Done on lines selected across the turn of a page marks those and no other.
    void longListReadsLinesAsTheyComeIntoView()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        const QDate today(2024, 3, 1);
        const qint32 doc = addDocument(reg, "A-1", "Aktas");
        reg.exec(
            QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 250) "
                           "INSERT INTO tbl_Tickler (RastasID, TicklerDate, TicklerText) "
                           "SELECT %1, '2024-02-01', 'r' || i FROM n")
                .arg(doc));
        RemindersWindow window(today);
        activate(window);
        QTreeView* lines = list(window);
        QCOMPARE(lines->model()->rowCount(), 250);
        QVERIFY2(
            window.model()->linesRead() <= 100, qPrintable(QString::number(window.model()->linesRead())));

        QTest::keyClick(lines, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(lines->currentIndex().row(), 249);
        QCOMPARE(lines->currentIndex().siblingAtColumn(4).data().toString(), QString("r250"));
        QCOMPARE(lines->currentIndex().siblingAtColumn(2).data().toString(), QString("A-1"));
        QVERIFY(window.model()->linesRead() <= 200);

        lines->scrollTo(lines->model()->index(98, 0));
        QTest::mouseClick(lines->viewport(), Qt::LeftButton, {}, lineCenter(lines, 98));
        QTest::keyClick(lines, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(lines, Qt::Key_Down, Qt::ShiftModifier);
        QTest::mouseClick(window.findChild<QPushButton*>("cmdDone"), Qt::LeftButton);
        QCOMPARE(reg.scalar("SELECT group_concat(TicklerText, ',') FROM tbl_Tickler WHERE TicklerDone = 1")
                     .toString(),
            QString("r99,r100,r101"));
        QCOMPARE(lines->model()->rowCount(), 247);
        QCOMPARE(lines->currentIndex().siblingAtColumn(4).data().toString(), QString("r102"));
        QCOMPARE(lines->model()->index(97, 4).data().toString(), QString("r98"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // Enter and a double click open the details of the line's own document.
    void linesOpenTheirDocumentsDetails()
    {
        TestRegister reg;
        const QDate today(2024, 5, 1);
        const qint32 first = addDocument(reg, "A-1", "Aktas");
        const qint32 second = addDocument(reg, "B-2", "Byla");
        addReminder(reg, second, QDate(2024, 4, 1), "of the second");
        addReminder(reg, first, today, "of the first");
        RemindersWindow window(today);
        activate(window);
        QList<qint32> opened;
        window.openDetails = [&](qint32 id) { opened << id; };

        QTest::keyClick(list(window), Qt::Key_Down);
        QTest::keyClick(list(window), Qt::Key_Return);
        QCOMPARE(opened, QList<qint32>({first}));
        QTreeView* lines = list(window);
        // The press and release of the first click come before the double click, as from a mouse.
        QTest::mouseClick(lines->viewport(), Qt::LeftButton, {}, lineCenter(lines, 0));
        QTest::mouseDClick(lines->viewport(), Qt::LeftButton, {}, lineCenter(lines, 0));
        QCOMPARE(opened, QList<qint32>({first, second}));
    }

    // The main window: the count in the status bar, the window at start when something is
    // due and the option is on, Ctrl+R at any time (saying when nothing is due).
    void mainWindowCountsAndShows_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("shownAtStart");
        QTest::newRow("option unset") << "Not Found" << true;
        QTest::newRow("option on") << "1" << true;
        QTest::newRow("option off") << "0" << false;
    }

    void mainWindowCountsAndShows()
    {
        QFETCH(QString, option);
        QFETCH(bool, shownAtStart);
        TestRegister reg;
        ScriptedPrompter prompter;
        if (option != "Not Found")
            setRegValue("ShowDueReminders", option);
        const QDate today(2024, 1, 31);
        const qint32 doc = addDocument(reg, "A-1", "Aktas");
        addReminder(reg, doc, QDate(2024, 1, 30), "overdue");
        addReminder(reg, doc, today, "today");
        addReminder(reg, doc, QDate(2024, 2, 1), "tomorrow");

        MainWindow window;
        window.reminders()->today = [today] { return today; };
        window.show();
        window.load();
        // Counted after the start, with the window shown at once when it is wanted.
        QTRY_COMPARE(window.findChild<QLabel*>("pnReminders")->text(), QString("2 reminders due"));
        QCOMPARE(window.reminders()->window() != nullptr, shownAtStart);
        // A line opens its document's details; the main window's selection stays as it was.
        QList<qint32> opened;
        window.reminders()->openDetails = [&](qint32 id) { opened << id; };
        selection().selectedDocumentId = 0;
        if (RemindersWindow* open = window.reminders()->window()) {
            QTest::keyClick(list(*open), Qt::Key_Return);
            QCOMPARE(opened, QList<qint32>({doc}));
            QCOMPARE(selection().selectedDocumentId, 0);
            open->close();
        }
        QApplication::processEvents();

        reg.exec("UPDATE tbl_Tickler SET TicklerDone = 1");
        activate(window);
        QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
        RemindersWindow* open = window.reminders()->window();
        QVERIFY(open);
        QVERIFY(open->findChild<QLabel*>("lblNothingDue")->isVisible());
        QVERIFY(!open->findChild<QPushButton*>("cmdDone")->isEnabled());
        QTest::mouseClick(open->findChild<QPushButton*>("cmdLater"), Qt::LeftButton);
        QCOMPARE(window.findChild<QLabel*>("pnReminders")->text(), QString("No reminders due"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // Done takes every line selected with Shift and Ctrl, and the status bar counts at once,
    // with the window still open.
    void doneTakesTheSelectedLinesAndRecounts()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        setRegValue("ShowDueReminders", 0);
        const QDate today(2024, 3, 1);
        const qint32 doc = addDocument(reg, "A-1", "Aktas");
        for (const char* text : {"first", "second", "third", "fourth"})
            addReminder(reg, doc, QDate(2024, 2, 29), text);
        MainWindow window;
        window.reminders()->today = [today] { return today; };
        window.load();
        auto* panel = window.findChild<QLabel*>("pnReminders");
        QTRY_COMPARE(panel->text(), QString("4 reminders due"));
        activate(window);
        QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
        RemindersWindow* open = window.reminders()->window();
        QVERIFY(open);
        activate(*open);
        QTreeView* lines = list(*open);
        // The first line is current: Shift+Down takes the second too, Ctrl+click the fourth.
        QTest::keyClick(lines, Qt::Key_Down, Qt::ShiftModifier);
        QTest::mouseClick(lines->viewport(), Qt::LeftButton, Qt::ControlModifier, lineCenter(lines, 3));
        QTest::mouseClick(open->findChild<QPushButton*>("cmdDone"), Qt::LeftButton);
        QCOMPARE(doneColumn(reg), QString("first=1,second=1,third=0,fourth=1"));
        QCOMPARE(column(*open, 4), QStringList {"third"});
        QVERIFY(open->isVisible());
        QCOMPARE(panel->text(), QString("1 reminder due"));
        QTest::mouseClick(open->findChild<QPushButton*>("cmdDone"), Qt::LeftButton);
        QCOMPARE(panel->text(), QString("No reminders due"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // Done on a reminder another user changed since the list was shown leaves it as it is and
    // shows it anew; one another user deleted leaves the list; both are told in one message.
    void doneOnARemindersChangedMeanwhile()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        const QDate today(2024, 3, 1);
        const qint32 doc = addDocument(reg, "A-1", "Aktas");
        const qint32 moved = addReminder(reg, doc, QDate(2024, 2, 28), "call back");
        const qint32 gone = addReminder(reg, doc, QDate(2024, 2, 29), "send the act");
        RemindersWindow window(today);
        activate(window);
        QCOMPARE(column(window, 4), (QStringList {"call back", "send the act"}));
        reg.exec(
            QStringLiteral("UPDATE tbl_Tickler SET TicklerText = 'call back on Monday' WHERE TicklerID = %1")
                .arg(moved));
        reg.exec(QStringLiteral("DELETE FROM tbl_Tickler WHERE TicklerID = %1").arg(gone));
        prompter.answer(MsgBoxResult::Ok);
        QTest::keyClick(list(window), Qt::Key_Down, Qt::ShiftModifier);
        auto* done = window.findChild<QPushButton*>("cmdDone");
        QTest::mouseClick(done, Qt::LeftButton);
        QCOMPARE(prompter.texts().size(), 1);
        QVERIFY2(prompter.texts().first().startsWith("A reminder was changed by another user")
                && prompter.texts().first().endsWith(
                    "\r\rA reminder was deleted by another user since the list was shown; it has "
                    "left the list."),
            qPrintable(prompter.texts().first()));
        QCOMPARE(doneColumn(reg), QString("call back on Monday=0"));
        QCOMPARE(column(window, 4), QStringList {"call back on Monday"});
        // Done again, on what it shows now, marks it.
        QTest::mouseClick(done, Qt::LeftButton);
        QCOMPARE(prompter.texts().size(), 1);
        QCOMPARE(doneColumn(reg), QString("call back on Monday=1"));
    }

    // The count is taken again when the New Document dialog closes, its reminders in mind.
    void countAgainAfterTheNewDocumentDialog()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        setRegValue("ShowDueReminders", 0);
        MainWindow window;
        window.reminders()->today = [] { return QDate(2024, 6, 30); };
        window.load();
        auto* panel = window.findChild<QLabel*>("pnReminders");
        QTRY_COMPARE(panel->text(), QString("No reminders due"));
        addReminder(reg, addDocument(reg, "A-1", "Aktas"), QDate(2024, 6, 30), "today");
        QCOMPARE(panel->text(), QString("No reminders due"));

        bool closed = false;
        QTimer responder;
        connect(&responder, &QTimer::timeout, this, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (!dialog || !dialog->isVisible() || dialog->objectName() != "frmNewDocument" || closed)
                return;
            closed = true;
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
        });
        responder.start(20);
        Q_EMIT window.documentList()->filesDropped({reg.path()});
        responder.stop();
        QVERIFY(closed);
        QCOMPARE(panel->text(), QString("1 reminder due"));
    }

    // The Reminder report leaves out a reminder marked done; a register made before the mark
    // lists every reminder.
    void reminderReportWithAndWithoutTheColumn_data()
    {
        QTest::addColumn<bool>("older");
        QTest::newRow("with the column") << false;
        QTest::newRow("older register") << true;
    }

    void reminderReportWithAndWithoutTheColumn()
    {
        QFETCH(bool, older);
        TestRegister reg;
        const qint32 doc = addDocument(reg, "A-1", "Aktas");
        addReminder(reg, doc, QDate(2024, 2, 1), "Pratęsti sutartį");
        const qint32 done = addReminder(reg, doc, QDate(2024, 2, 2), "Sumokėti");
        if (older)
            makeOlder(reg);
        else
            reg.exec(QStringLiteral("UPDATE tbl_Tickler SET TicklerDone = 1 WHERE TicklerID = %1").arg(done));
        ReportCommands commands;
        commands.setConnectionString(reg.connectionString());
        const ReportData data = commands.run(*findReportLayout("reminder"));
        QCOMPARE(data.childCount(), older ? 2 : 1);
    }

    // The option is stored when clicked and is no change that Esc asks about.
    void settingsOptionIsStoredAtOnce()
    {
        TestRegister reg;
        ScriptedPrompter prompter; // fails on the Esc question
        SettingsDialog dialog;
        activate(dialog);
        auto* box = dialog.findChild<QCheckBox*>("chkShowReminders");
        QVERIFY(box->isChecked());
        QCOMPARE(getRegValue("ShowDueReminders"), QString("Not Found"));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Space);
        QCOMPARE(getRegValue("ShowDueReminders"), QString("0"));
        QVERIFY(!showDueRemindersAtStart());
        QVERIFY(!dialog.settingsChanged());
        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QVERIFY(prompter.prompts().isEmpty());
    }

    // The Reminders window in Lithuanian: its title, header, due words, buttons with their
    // access keys apart, the status bar's count and a message; the lines and the count
    // still follow the register.
    void remindersWindowInLithuanian()
    {
        const Lithuanian lithuanian;
        QVERIFY(lithuanian.language().startsWith("lt"));
        const QDate today(2024, 3, 1);
        {
            TestRegister reg;
            ScriptedPrompter prompter;
            setRegValue("ShowDueReminders", 0);
            const qint32 doc = addDocument(reg, "A-1", "Aktas");
            addReminder(reg, doc, QDate(2024, 2, 29), "overdue");
            addReminder(reg, doc, today, "today");
            addReminder(reg, doc, "next Friday", "typed");
            MainWindow window;
            window.reminders()->today = [today] { return today; };
            window.load();
            auto* panel = window.findChild<QLabel*>("pnReminders");
            QTRY_COMPARE(panel->text(), QString("Priminimų: 3"));
            auto* go = window.menuBar()->findChild<QMenu*>("mnuGo");
            QVERIFY(actionTexts(go->actions()).contains("&Priminimai"));
            QVERIFY(clashingAccessKeys(actionTexts(go->actions())).isEmpty());

            activate(window);
            QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
            RemindersWindow* open = window.reminders()->window();
            QVERIFY(open);
            QCOMPARE(open->windowTitle(), QString("Priminimai"));
            QAbstractItemModel* lines = list(*open)->model();
            QStringList headers;
            for (int column = 0; column < lines->columnCount(); ++column)
                headers << lines->headerData(column, Qt::Horizontal).toString();
            QCOMPARE(
                headers, QStringList({"Data", "Terminas", "Registracijos indeksas", "Aprašymas", "Tekstas"}));
            QCOMPARE(column(*open, 1), QStringList({"Pavėluotas", "Šiandien", "Data neįskaitoma"}));
            QCOMPARE(column(*open, 4), QStringList({"overdue", "today", "typed"}));
            QStringList buttons;
            for (const QPushButton* button : open->findChildren<QPushButton*>())
                buttons << button->text();
            QCOMPARE(buttons, QStringList({"&Atlikta", "&Vėliau"}));
            QVERIFY(clashingAccessKeys(buttons).isEmpty());

            // Done on the current line: the count says so in Lithuanian; the last ones leave none.
            activate(*open);
            QTest::mouseClick(open->findChild<QPushButton*>("cmdDone"), Qt::LeftButton);
            QCOMPARE(doneColumn(reg), QString("overdue=1,today=0,typed=0"));
            QCOMPARE(panel->text(), QString("Priminimų: 2"));
            QTest::keyClick(list(*open), Qt::Key_Down, Qt::ShiftModifier);
            QTest::mouseClick(open->findChild<QPushButton*>("cmdDone"), Qt::LeftButton);
            QCOMPARE(panel->text(), QString("Priminimų nėra"));
            QVERIFY(open->findChild<QLabel*>("lblNothingDue")->isVisible());
            QCOMPARE(
                open->findChild<QLabel*>("lblNothingDue")->text(), QString("Laukiančių priminimų nėra."));
            QVERIFY(prompter.prompts().isEmpty());
        }
        // A register made before reminders could be done: the offer to upgrade, in Lithuanian.
        TestRegister reg;
        ScriptedPrompter prompter;
        addReminder(reg, addDocument(reg, "A-1", "Aktas"), QDate(2024, 2, 1), "first");
        makeOlder(reg);
        RemindersWindow window(today);
        prompter.answer(MsgBoxResult::No);
        QTest::mouseClick(window.findChild<QPushButton*>("cmdDone"), Qt::LeftButton);
        const QList<ScriptedPrompter::Prompt> prompts = prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(prompts.first().text.startsWith("Šis registras sukurtas senesne Kartella"),
            qPrintable(prompts.first().text));
        QVERIFY(prompts.first().text.endsWith("\r\rAtnaujinti dabar?"));
        QCOMPARE(prompts.first().title, QString("Priminimai"));
        QCOMPARE(reg.scalar("PRAGMA user_version").toInt(), VersionBeforeDone);
    }
};

QTEST_MAIN(RemindersTest)
#include "tst_reminders.moc"
