#include "base/Error.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "platform/Clock.h"
#include "store/engine/Recordset.h"
#include "support/BoundList.h"
#include "support/EnterAsTab.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

using namespace kartella;
using kartella::test::ScriptedPrompter;
using kartella::test::TestRegister;

namespace {

const QString Documents = QStringLiteral("select RastasID,DokAntraste,DokRegistracData,DokPastaba,KategID "
                                         "from tbl_Documents order by RastasID");
const QString Shaped
    = QStringLiteral("SHAPE {select RastasID,DokAntraste from tbl_Documents order by RastasID} AS "
                     "ParentCMD APPEND ({select RastasID,TicklerDate,TicklerID,TicklerText from "
                     "tbl_Tickler } AS ChildCMD RELATE RastasID TO RastasID) AS ChildCMD");

// A register with two categories and two documents, the first with one reminder.
struct Fixture
{
    TestRegister reg;
    qint32 letters = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Letters"}});
    qint32 contracts = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Contracts"}});
    qint32 first = reg.insert("tbl_Documents",
        {{"DokAntraste", "Lease"}, {"DokRegistracData", QDate(2024, 3, 5)}, {"DokPastaba", "Two pages"},
            {"KategID", contracts}});
    qint32 second = reg.insert("tbl_Documents", {{"DokAntraste", "Invitation"}, {"KategID", letters}});
    qint32 reminder = reg.insert(
        "tbl_Tickler", {{"RastasID", first}, {"TicklerDate", QDate(2024, 4, 1)}, {"TicklerText", "Renew"}});

    QString source() const { return reg.connectionString(); }
};

// A dialog of the boxes the binder tests use, shown so that focus and keys work.
struct Form
{
    QDialog dialog;
    QLineEdit* description = new QLineEdit(&dialog);
    QLineEdit* date = new QLineEdit(&dialog);
    QPlainTextEdit* notes = new QPlainTextEdit(&dialog);
    QComboBox* category = new QComboBox(&dialog);
    QLineEdit* key = new QLineEdit(&dialog);

    Form()
    {
        auto* layout = new QVBoxLayout(&dialog);
        auto* label = new QLabel("Registration &Date:", &dialog);
        label->setBuddy(date);
        for (QWidget* widget : {static_cast<QWidget*>(description), static_cast<QWidget*>(label),
                 static_cast<QWidget*>(date), static_cast<QWidget*>(notes), static_cast<QWidget*>(category)})
            layout->addWidget(widget);
        key->setVisible(false);
    }

    bool show()
    {
        dialog.show();
        dialog.activateWindow();
        return QTest::qWaitForWindowActive(&dialog);
    }
};

QString errorOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const Error& e) {
        return e.description();
    }
    return {};
}

} // namespace

class BindingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The boxes show the current row, follow moves, and what is typed reaches the field and,
    // with Update, the register.
    void binderShowsWritesAndFollows()
    {
        Fixture fx;
        Recordset rows;
        rows.open(Documents, fx.source());
        Form form;
        FieldBinder binder(&rows);
        binder.bind(form.description, "DokAntraste");
        binder.bindDate(form.date, "DokRegistracData", "yyyy.MM.dd");
        binder.bind(form.notes, "DokPastaba");
        binder.bind(form.key, "RastasID");
        QSignalSpy changed(&binder, &FieldBinder::changed);
        QCOMPARE(form.description->text(), "Lease");
        QCOMPARE(form.date->text(), "2024.03.05");
        QCOMPARE(form.notes->toPlainText(), "Two pages");
        QCOMPARE(form.key->text(), QString::number(fx.first));

        rows.moveNext();
        QCOMPARE(form.description->text(), "Invitation");
        QCOMPARE(form.date->text(), QString());
        QCOMPARE(form.notes->toPlainText(), QString());
        QCOMPARE(changed.count(), 0); // showing a row changes nothing

        QVERIFY(form.show());
        form.description->selectAll();
        QTest::keyClicks(form.description, "Party");
        QTest::keyClicks(form.date, "2024.06.30");
        QCOMPARE(rows.fields("DokAntraste").value().toString(), "Party");
        QCOMPARE(rows.fields("DokRegistracData").value().toDate(), QDate(2024, 6, 30));
        QVERIFY(changed.count() > 0);
        // A field set by code shows in its box.
        rows.fields("DokPastaba").setValue("By hand");
        QCOMPARE(form.notes->toPlainText(), "By hand");
        rows.update();
        QCOMPARE(
            fx.reg.scalar(QString("SELECT DokAntraste FROM tbl_Documents WHERE RastasID=%1").arg(fx.second))
                .toString(),
            "Party");
        QCOMPARE(
            fx.reg.scalar(QString("SELECT DokPastaba FROM tbl_Documents WHERE RastasID=%1").arg(fx.second))
                .toString(),
            "By hand");

        // A new row shows empty boxes; emptying a box makes its field Null.
        rows.moveFirst();
        form.notes->clear();
        QVERIFY(isNull(rows.fields("DokPastaba").value()));
        rows.addNew();
        QCOMPARE(form.description->text(), QString());
        QCOMPARE(form.key->text(), QString());
    }

    void readDate_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("date");
        const QDate day(2024, 3, 5);
        QTest::newRow("display format") << "05 Mar 2024" << day;
        QTest::newRow("dotted") << "2024.03.05" << day;
        QTest::newRow("ISO") << " 2024-03-05 " << day;
        QTest::newRow("month first") << "3/5/2024" << day;
        QTest::newRow("system short form") << QLocale::system().toString(day, QLocale::ShortFormat) << day;
        QTest::newRow("no such day") << "2024.02.30" << QDate();
        QTest::newRow("words") << "soon" << QDate();
        QTest::newRow("half typed") << "2024.0" << QDate();
    }

    void readDate()
    {
        QFETCH(QString, text);
        QFETCH(QDate, date);
        QCOMPARE(FieldBinder::readDate(text, "dd MMM yyyy"), date);
    }

    // A two-digit year goes to the century nearest to today, whatever the locale.
    void twoDigitYearsNearToday_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QDate>("typed");
        QTest::addColumn<QDate>("read");
        const QDate lastOf2029(2029, 12, 31);
        const QDate firstOf2030(2030, 1, 1);
        for (const QString locale : {"de_DE", "en_US"}) {
            auto row = [&](const char* name, QDate today, QDate typed, QDate read) {
                QTest::addRow("%s %s", qPrintable(locale), name) << locale << today << typed << read;
            };
            row("new year's day 2030 on the day", firstOf2030, firstOf2030, firstOf2030);
            row("new year's day 2030 the day before", lastOf2029, firstOf2030, firstOf2030);
            row("last day of 2029 the day after", firstOf2030, lastOf2029, lastOf2029);
            row("1980 is 50 years back", firstOf2030, QDate(1980, 6, 1), QDate(1980, 6, 1));
            row("81 is 1981, not 2081", firstOf2030, QDate(2081, 6, 1), QDate(1981, 6, 1));
            row("2079 is 49 years ahead", firstOf2030, QDate(2079, 6, 1), QDate(2079, 6, 1));
            row("99 in 2001 is 1999", QDate(2001, 1, 1), QDate(1999, 12, 31), QDate(1999, 12, 31));
            row("00 in 2099 is 2100", QDate(2099, 12, 31), QDate(2100, 1, 1), QDate(2100, 1, 1));
        }
    }

    void twoDigitYearsNearToday()
    {
        QFETCH(QString, locale);
        QFETCH(QDate, today);
        QFETCH(QDate, typed);
        QFETCH(QDate, read);
        const QLocale before;
        QLocale::setDefault(QLocale(locale));
        SettableClock clock(today);
        const QString text = QLocale(locale).toString(typed, QLocale::ShortFormat);
        QVERIFY2(QLocale(locale).dateFormat(QLocale::ShortFormat).count(u'y') == 2, qPrintable(text));
        const QDate date = FieldBinder::readDate(text, "dd MMM yyyy");
        QLocale::setDefault(before);
        QCOMPARE(date, read);
    }

    // An unreadable date stops the save with a message naming the box; the field and the row
    // stay as they were until the date is typed right.
    void badDateFailsTheSave()
    {
        Fixture fx;
        Recordset rows;
        rows.open(Documents, fx.source(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        Form form;
        FieldBinder binder(&rows);
        binder.bind(form.description, "DokAntraste");
        binder.bindDate(form.date, "DokRegistracData", "yyyy.MM.dd");
        QVERIFY(form.show());
        const auto save = [&] {
            binder.validate();
            rows.updateBatch(AffectEnum::All);
        };
        const QString storedDate
            = QString("SELECT DokRegistracData FROM tbl_Documents WHERE RastasID=%1").arg(fx.first);
        form.description->setText("Lease, signed");
        form.date->selectAll();
        QTest::keyClicks(form.date, "2024.13.45");
        QVERIFY(!binder.isValid());
        const QString message = errorOf(save);
        QVERIFY2(message.contains("\"2024.13.45\"") && message.contains("Registration Date")
                && message.contains("yyyy.MM.dd"),
            qPrintable(message));
        QCOMPARE(rows.fields("DokRegistracData").value().toDate(), QDate(2024, 3, 5));
        QCOMPARE(fx.reg.scalar(storedDate).toDate(), QDate(2024, 3, 5));
        QCOMPARE(
            fx.reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE DokAntraste='Lease, signed'").toInt(), 0);

        form.date->setText("2024.12.24");
        QCOMPARE(errorOf(save), QString());
        QCOMPARE(fx.reg.scalar(storedDate).toDate(), QDate(2024, 12, 24));
        QCOMPARE(
            fx.reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE DokAntraste='Lease, signed'").toInt(), 1);
    }

    // A bound list shows its rows' names, stands for their keys, writes the key chosen to the
    // row's field, and refills from a new source keeping its value.
    void boundListSelectsAndWritesKeys()
    {
        Fixture fx;
        Recordset categories;
        categories.open(
            "select KategID,DokKategorija from tbl_Document_Categories order by DokKategorija", fx.source());
        Recordset rows;
        rows.open(Documents, fx.source());
        Form form;
        BoundList list(form.category);
        list.setRowSource(&categories, "DokKategorija", "KategID");
        QCOMPARE(form.category->count(), 2);
        QCOMPARE(form.category->itemText(0), "Contracts");
        FieldBinder binder(&rows);
        binder.bind(&list, "KategID");
        QCOMPARE(list.value(), QString::number(fx.contracts));
        QCOMPARE(list.text(), "Contracts");

        QSignalSpy change(&list, &BoundList::changed);
        rows.moveNext();
        QCOMPARE(list.text(), "Letters");
        QCOMPARE(change.count(), 1); // the value changed with the row

        QVERIFY(form.show());
        form.category->setFocus();
        QTest::keyClick(form.category, Qt::Key_Up);
        QCOMPARE(list.value(), QString::number(fx.contracts));
        QCOMPARE(rows.fields("KategID").value().toInt(), fx.contracts);
        QCOMPARE(change.count(), 2);

        list.setValue(QString());
        QCOMPARE(form.category->currentIndex(), -1);
        QVERIFY(isNull(rows.fields("KategID").value()));
        list.setValue(fx.letters);
        QCOMPARE(rows.fields("KategID").value().toInt(), fx.letters);
        QCOMPARE(change.count(), 4);
        list.setValue(QString::number(fx.letters));
        QCOMPARE(change.count(), 4); // the same key again is no change

        // Another source: the value stays, and shows only while the list holds it.
        categories.close();
        categories.open(QString("select KategID,DokKategorija from tbl_Document_Categories where KategID=%1")
                            .arg(fx.contracts),
            fx.source());
        QCOMPARE(form.category->count(), 1);
        QCOMPARE(list.value(), QString::number(fx.letters));
        QCOMPARE(list.text(), QString());
        list.setValue(fx.contracts);
        QCOMPARE(list.text(), "Contracts");
    }

    // The grid model: rows of a chapter, captions and hidden columns, cells written through,
    // and a new-row line whose row the parent's updateBatch stores with the parent's key.
    void modelShowsEditsAndAddsRows()
    {
        Fixture fx;
        ScriptedPrompter prompter;
        Recordset documents;
        documents.open(Shaped, fx.source(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        RecordsetModel model;
        QDialog dialog;
        auto* grid = new QTableView(&dialog);
        new QVBoxLayout(&dialog);
        dialog.layout()->addWidget(grid);
        model.setRecordset(documents.fields("ChildCMD").chapter());
        model.setAllowAddNew(true);
        model.setDateFormat("yyyy.MM.dd");
        model.attachView(grid);
        model.setColumnHidden(0, true);
        model.setColumnHidden(2, true);
        model.setColumnCaption(1, "Date");
        model.setColumnWidth(3, 1440);

        QCOMPARE(model.columnCount(), 4);
        QCOMPARE(model.rowCount(), 2); // the reminder and the new-row line
        QVERIFY(model.isNewRowLine(1));
        QCOMPARE(model.data(model.index(0, 1)).toString(), "2024.04.01");
        QCOMPARE(model.data(model.index(0, 3)).toString(), "Renew");
        QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), "Date");
        QCOMPARE(model.headerData(3, Qt::Horizontal).toString(), "TicklerText");
        QVERIFY(grid->isColumnHidden(0) && grid->isColumnHidden(2) && !grid->isColumnHidden(1));
        QCOMPARE(grid->columnWidth(3), grid->logicalDpiX());

        // The second document has no reminders; the grid follows the parent's moves.
        documents.moveNext();
        QCOMPARE(model.rowCount(), 1);
        QVERIFY(grid->isColumnHidden(0));
        documents.moveFirst();
        QCOMPARE(model.rowCount(), 2);

        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        // Typing in the new-row line starts a row.
        grid->setFocus();
        grid->setCurrentIndex(model.index(1, 3));
        QTest::keyClick(grid, 'C');
        QTest::keyClicks(QApplication::focusWidget(), "all back");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(model.rowCount(), 3);
        QCOMPARE(model.data(model.index(1, 3)).toString(), "Call back");
        QVERIFY(model.isNewRowLine(2));
        // A cell of a row already there.
        QVERIFY(model.setData(model.index(0, 3), "Renew the lease"));
        // A date that isn't one is refused with a message, and adds no row.
        prompter.answer(MsgBoxResult::Ok);
        QVERIFY(!model.setData(model.index(2, 1), "someday"));
        QCOMPARE(prompter.take().size(), 1);
        QCOMPARE(model.rowCount(), 3);

        documents.updateBatch(AffectEnum::All);
        QCOMPARE(fx.reg.scalar(QString("SELECT COUNT(*) FROM tbl_Tickler WHERE RastasID=%1").arg(fx.first))
                     .toInt(),
            2);
        QCOMPARE(fx.reg.scalar("SELECT RastasID FROM tbl_Tickler WHERE TicklerText='Call back'").toInt(),
            fx.first);
        QCOMPARE(
            fx.reg.scalar(QString("SELECT TicklerText FROM tbl_Tickler WHERE TicklerID=%1").arg(fx.reminder))
                .toString(),
            "Renew the lease");
        QVERIFY(prompter.allAnswered());

        // Without batch mode a typed cell is written at once.
        Recordset reminders;
        reminders.open("select TicklerID,TicklerText from tbl_Tickler order by TicklerID", fx.source());
        RecordsetModel plain;
        plain.setRecordset(&reminders);
        QVERIFY(plain.setData(plain.index(0, 1), "Renewed"));
        QCOMPARE(
            fx.reg.scalar(QString("SELECT TicklerText FROM tbl_Tickler WHERE TicklerID=%1").arg(fx.reminder))
                .toString(),
            "Renewed");
    }

    // Enter moves on as Tab does, in a multi-line box too, without typing anything; a widget
    // of its own handling gets its Enter; Esc goes to the dialog's hook.
    void enterMovesFocus()
    {
        Form form;
        auto* keys = new EnterAsTab(&form.dialog);
        keys->watch(form.description);
        keys->watch(form.date);
        keys->watch(form.notes);
        int comboEnters = 0;
        keys->onEnter(form.category, [&] { ++comboEnters; });
        int escapes = 0;
        keys->onEscape([&] {
            ++escapes;
            return true;
        });
        QVERIFY(form.show());
        form.description->setFocus();
        QTest::keyClick(form.description, Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), form.date);
        QTest::keyClick(form.date, Qt::Key_Enter);
        QCOMPARE(QApplication::focusWidget(), form.notes);
        QTest::keyClicks(form.notes, "a");
        QTest::keyClick(form.notes, Qt::Key_Return);
        QCOMPARE(form.notes->toPlainText(), "a");
        QCOMPARE(QApplication::focusWidget(), form.category);
        QTest::keyClick(form.category, Qt::Key_Return);
        QCOMPARE(comboEnters, 1);
        QCOMPARE(QApplication::focusWidget(), form.category);

        form.description->setFocus();
        QTest::keyClick(form.description, Qt::Key_Escape);
        QCOMPARE(escapes, 1);
        QVERIFY(form.dialog.isVisible());
    }
};

QTEST_MAIN(BindingTest)
#include "tst_binding.moc"
