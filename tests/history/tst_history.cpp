// The history of every change: what each write records, with whom and which command; a
// failed change and another program's writes; an older register; the History tab and
// kartella-db history.
#include "addressbook/ContactEditor.h"
#include "base/Error.h"
#include "harness/Lithuanian.h"
#include "harness/OldRegister.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "history/HistoryLog.h"
#include "history/HistorySchema.h"
#include "history/HistoryText.h"
#include "history/Trash.h"
#include "registration/DocumentDetailsDialog.h"
#include "store/SchemaSteps.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/WriteContext.h"

#include <QApplication>
#include <QDate>
#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include <memory>

using namespace kartella;
using namespace kartella::test;

namespace {

const QString Clerk = QStringLiteral("ona@registry");

void addPlaces()
{
    QTest::addColumn<int>("where");
    QTest::newRow("file") << int(TestRegister::File);
    QTest::newRow("server") << int(TestRegister::Server);
}

std::unique_ptr<TestRegister> makeRegister()
{
    QFETCH(int, where);
    if (where == TestRegister::Server && !ServerDatabase::available())
        return nullptr;
    return std::make_unique<TestRegister>(TestRegister::Where(where));
}

#define REGISTER_OR_SKIP(reg)                                                                                \
    std::unique_ptr<TestRegister> reg;                                                                       \
    try {                                                                                                    \
        reg = makeRegister();                                                                                \
    } catch (const Error& error) {                                                                           \
        QFAIL(qPrintable(error.description()));                                                              \
    }                                                                                                        \
    if (!reg)                                                                                                \
        QSKIP(qPrintable(ServerDatabase::skipReason()));

// The history of a document as "table column: before -> after" lines, newest first, with
// the command of each.
QStringList changes(const std::vector<HistoryEntry>& entries)
{
    QStringList lines;
    for (const HistoryEntry& entry : entries)
        lines << QStringLiteral("%1 %2 %3.%4: %5 -> %6")
                     .arg(entry.anotherProgram ? QStringLiteral("(other)") : entry.command, entry.change,
                         entry.table, entry.column, entry.before.toString(), entry.after.toString());
    return lines;
}

struct ToolRun
{
    int exitCode = -1;
    QStringList lines;
    QString err;
};

// kartella-db history, with each line's when column left out (it is local time).
ToolRun runHistoryTool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(KARTELLA_DB_PATH), QStringList {QStringLiteral("history")} + arguments);
    ToolRun run;
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = process.exitCode();
    run.err = QString::fromUtf8(process.readAllStandardError());
    const QStringList lines
        = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines)
        run.lines << line.section(u'\t', 1);
    return run;
}

} // namespace

class HistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { WriteContext::setUser(Clerk); }
    void cleanup() { WriteContext::setUser({}); }

    void eachCommandRecordsItsRowsWithWhoAndWhen_data() { addPlaces(); }
    void eachCommandRecordsItsRowsWithWhoAndWhen()
    {
        REGISTER_OR_SKIP(reg);
        const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
        Connection connection(reg->connectionString());
        connection.open();
        qint64 document = 0;
        {
            const CommandScope command(QStringLiteral("New Document"));
            Recordset documents;
            documents.open(QStringLiteral("SELECT * FROM tbl_Documents WHERE RastasID = 0"), connection,
                CursorTypeEnum::Static, LockTypeEnum::Optimistic);
            documents.addNew();
            documents.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("Lease"));
            documents.fields(QStringLiteral("DokRegistracIndeksas")).setValue(QStringLiteral("A-1"));
            documents.update();
            document = documents.fields(QStringLiteral("RastasID")).value().toLongLong();
        }
        {
            const CommandScope command(QStringLiteral("Details"));
            Recordset documents;
            documents.open(
                QStringLiteral("SELECT * FROM tbl_Documents WHERE RastasID = ") + QString::number(document),
                connection, CursorTypeEnum::Static, LockTypeEnum::Optimistic);
            documents.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("Lease, signed"));
            documents.fields(QStringLiteral("DokRegistracIndeksas")).setValue(QStringLiteral("A-1"));
            documents.update();
            connection.execute(
                QStringLiteral("INSERT INTO tbl_Tickler (RastasID, TicklerText) VALUES (%1, 'Call')")
                    .arg(document));
        }
        {
            const CommandScope command(QStringLiteral("Reminders Done"));
            connection.execute(QStringLiteral("DELETE FROM tbl_Tickler WHERE RastasID = %1").arg(document));
        }
        // Another document's change stays in its own history.
        reg->insert(
            QStringLiteral("tbl_Documents"), {{QStringLiteral("DokAntraste"), QStringLiteral("Other")}});

        const std::vector<HistoryEntry> history = documentHistory(connection, document);
        const QStringList expected = {
            QStringLiteral("Reminders Done delete tbl_Tickler.TicklerText: Call -> "),
            QStringLiteral("Reminders Done delete tbl_Tickler.RastasID: %1 -> ").arg(document),
            QStringLiteral("Details insert tbl_Tickler.TicklerText:  -> Call"),
            QStringLiteral("Details insert tbl_Tickler.RastasID:  -> %1").arg(document),
            QStringLiteral("Details update tbl_Documents.DokAntraste: Lease -> Lease, signed"),
            QStringLiteral("New Document insert tbl_Documents.DokRegistracIndeksas:  -> A-1"),
            QStringLiteral("New Document insert tbl_Documents.DokAntraste:  -> Lease"),
        };
        QStringList found = changes(history);
        // The columns of one row come in the back end's order; the rows in the order of their writes.
        found.erase(std::remove_if(found.begin(), found.end(),
                        [](const QString& line) {
                            return line.contains(QLatin1String("TicklerID"))
                                || line.contains(QLatin1String("TicklerDone"));
                        }),
            found.end());
        QCOMPARE(QSet<QString>(found.begin(), found.end()), QSet<QString>(expected.begin(), expected.end()));
        QCOMPARE(found.size(), expected.size());
        QVERIFY(found.indexOf(expected[0]) < found.indexOf(expected[2]));
        QVERIFY(found.indexOf(expected[4]) < found.indexOf(expected[5]));
        const QString who = reg->path().startsWith(QLatin1String("postgres")) ? QString() : Clerk;
        for (const HistoryEntry& entry : history) {
            QVERIFY2(entry.changedAt >= before && entry.changedAt <= QDateTime::currentDateTimeUtc(),
                qPrintable(entry.changedAt.toString(Qt::ISODateWithMs)));
            QCOMPARE(entry.documentId, document);
            if (!who.isEmpty())
                QCOMPARE(entry.who, who);
            else
                QVERIFY(!entry.who.isEmpty()); // the server's role
        }
        // The writer's context is gone with its transaction: another program finds none.
        if (connection.dialect() == SqlDialect::Sqlite)
            QCOMPARE(reg->scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Write_Context")).toInt(), 0);

        // A contact with its phone is one contact's history; a category is the register's.
        qint64 contact = 0;
        {
            const CommandScope command(QStringLiteral("Contact"));
            Recordset contacts;
            contacts.open(QStringLiteral("SELECT * FROM tbl_Contacts WHERE ContactID = 0"), connection,
                CursorTypeEnum::Static, LockTypeEnum::Optimistic);
            contacts.addNew();
            contacts.fields(QStringLiteral("FullName")).setValue(QStringLiteral("Ona"));
            contacts.update();
            contact = contacts.fields(QStringLiteral("ContactID")).value().toLongLong();
            connection.execute(
                QStringLiteral("INSERT INTO tbl_Phones (ContactID, PhoneNumber) VALUES (%1, '555')")
                    .arg(contact));
            connection.execute(
                QStringLiteral("INSERT INTO tbl_Document_Categories (DokKategorija) VALUES ('Leases')"));
        }
        QStringList ofContact = changes(contactHistory(connection, contact));
        ofContact = ofContact.filter(QStringLiteral("insert"));
        QVERIFY2(ofContact.contains(QStringLiteral("Contact insert tbl_Phones.PhoneNumber:  -> 555")),
            qPrintable(ofContact.join(u'\n')));
        QVERIFY(ofContact.contains(QStringLiteral("Contact insert tbl_Contacts.FullName:  -> Ona")));
        QVERIFY(changes(registerHistory(connection))
                    .contains(
                        QStringLiteral("Contact insert tbl_Document_Categories.DokKategorija:  -> Leases")));

        // A key shows as the name it stands for.
        connection.execute(QStringLiteral("UPDATE tbl_Documents SET ContactID = %1 WHERE RastasID = %2")
                               .arg(contact)
                               .arg(document));
        const std::vector<HistoryEntry> latest = documentHistory(connection, document);
        const HistoryNames names = historyNames(connection, latest);
        QCOMPARE(historyLine(latest.front(), &names)->change,
            QStringLiteral("Sender/Receiver changed from (empty) to \"Ona\""));
    }

    void failedChangeLeavesNoHistory_data() { addPlaces(); }
    void failedChangeLeavesNoHistory()
    {
        REGISTER_OR_SKIP(reg);
        const qint32 document = reg->insert(
            QStringLiteral("tbl_Documents"), {{QStringLiteral("DokAntraste"), QStringLiteral("Lease")}});
        Connection connection(reg->connectionString());
        connection.open();
        const qsizetype recorded = registerHistory(connection).size();
        const CommandScope command(QStringLiteral("Details"));
        Recordset documents;
        documents.open(
            QStringLiteral("SELECT * FROM tbl_Documents WHERE RastasID = ") + QString::number(document),
            connection, CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        // Another user changes the row meanwhile: the update is refused, and records nothing.
        reg->exec(QStringLiteral("UPDATE tbl_Documents SET DokAntraste = 'Theirs' WHERE RastasID = %1")
                      .arg(document));
        const qsizetype theirs = registerHistory(connection).size();
        QCOMPARE(theirs, recorded + 1);
        documents.fields(QStringLiteral("DokAntraste")).setValue(QStringLiteral("Mine"));
        QVERIFY_THROWS_EXCEPTION(Error, documents.update());
        documents.cancelUpdate();
        QCOMPARE(registerHistory(connection).size(), theirs);

        // A history that cannot be written fails the change with it.
        if (connection.dialect() == SqlDialect::Sqlite)
            reg->exec(QStringLiteral(
                "CREATE TRIGGER trg_Full BEFORE INSERT ON tbl_History BEGIN SELECT RAISE(ABORT, "
                "'disk full'); END"));
        else
            reg->exec(QStringLiteral(
                "ALTER TABLE \"tbl_History\" ADD CONSTRAINT full_disk CHECK (\"HistoryID\" < 0) "
                "NOT VALID"));
        QVERIFY_THROWS_EXCEPTION(Error,
            connection.execute(
                QStringLiteral("UPDATE tbl_Documents SET DokAntraste = 'Mine' WHERE RastasID = %1")
                    .arg(document)));
        QCOMPARE(
            reg->scalar(
                   QStringLiteral("SELECT DokAntraste FROM tbl_Documents WHERE RastasID = %1").arg(document))
                .toString(),
            QStringLiteral("Theirs"));
        QCOMPARE(registerHistory(connection).size(), theirs);
    }

    void anotherProgramsWriteIsRecordedAsSuch_data() { addPlaces(); }
    void anotherProgramsWriteIsRecordedAsSuch()
    {
        REGISTER_OR_SKIP(reg);
        const qint32 document = reg->insert(
            QStringLiteral("tbl_Documents"), {{QStringLiteral("DokAntraste"), QStringLiteral("Lease")}});
        Connection other(reg->connectionString());
        other.setCarriesContext(false);
        other.open();
        {
            // A command of this program in the same thread names none of the other's writes.
            const CommandScope command(QStringLiteral("Details"));
            other.execute(
                QStringLiteral("UPDATE tbl_Documents SET DokPastaba = 'by hand' WHERE RastasID = %1")
                    .arg(document));
        }
        const std::vector<HistoryEntry> history = documentHistory(other, document);
        QVERIFY(!history.empty());
        const HistoryEntry& latest = history.front();
        QCOMPARE(latest.column, QStringLiteral("DokPastaba"));
        QVERIFY(latest.anotherProgram);
        QCOMPARE(historyLine(latest)->command, QStringLiteral("another program"));
        QCOMPARE(historyLine(latest)->change, QStringLiteral("Notes changed from (empty) to \"by hand\""));
        if (other.dialect() == SqlDialect::Sqlite)
            QVERIFY(latest.who.isEmpty());
        // The program's own insert before it said who it was.
        QVERIFY(!history.back().anotherProgram);
    }

    void historyTabAndToolShowNewestFirstInPlainWords()
    {
        TestRegister reg;
        const qint32 document = reg.insert(QStringLiteral("tbl_Documents"),
            {{QStringLiteral("DokAntraste"), QStringLiteral("Lease")},
                {QStringLiteral("DokRegistracIndeksas"), QStringLiteral("A-1")},
                {QStringLiteral("DokRegistracData"), QDate(2024, 2, 29)}});
        reg.insert(
            QStringLiteral("tbl_Documents"), {{QStringLiteral("DokAntraste"), QStringLiteral("Other")}});
        DocumentDetailsDialog dialog(document);
        dialog.show();
        auto* description = dialog.findChild<QLineEdit*>(QStringLiteral("txtFields_7"));
        QVERIFY(description);
        description->setFocus();
        description->selectAll();
        QTest::keyClicks(description, QStringLiteral("Lease, signed"));
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdButton_2")), Qt::LeftButton);
        QCOMPARE(
            reg.scalar(
                   QStringLiteral("SELECT DokAntraste FROM tbl_Documents WHERE RastasID = %1").arg(document))
                .toString(),
            QStringLiteral("Lease, signed"));

        // The tab is the last one; Ctrl+Tab reaches it from the first.
        auto* tabs = dialog.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
        tabs->setFocus();
        for (int i = 1; i < tabs->count(); ++i)
            QTest::keyClick(tabs, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), QStringLiteral("History"));
        auto* table = dialog.findChild<QTableWidget*>(QStringLiteral("lstHistory"));
        QVERIFY(table && table->isVisible());
        QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
        QStringList rows;
        for (int row = 0; row < table->rowCount(); ++row) {
            QStringList cells;
            for (int column = 1; column < table->columnCount(); ++column)
                cells << table->item(row, column)->text();
            rows << cells.join(u'|');
        }
        const QString day = QLocale().toString(QDate(2024, 2, 29), QLocale::ShortFormat);
        // The save's lines come first (the dialog stores the direction it shows beside the
        // description), then those of the document's making.
        QCOMPARE(QSet<QString>(rows.begin(), rows.begin() + 2),
            (QSet<QString> {Clerk
                    + QStringLiteral(
                        "|Details|Document changed|Description changed from \"Lease\" to \"Lease, signed\""),
                Clerk
                    + QStringLiteral(
                        "|Details|Document changed|Direction changed from (empty) to \"Other\"")}));
        QCOMPARE(QSet<QString>(rows.begin() + 2, rows.end()),
            (QSet<QString> {Clerk + QStringLiteral("||Document added|Description: \"Lease\""),
                Clerk + QStringLiteral("||Document added|Registration Index: \"A-1\""),
                Clerk + QStringLiteral("||Document added|Registration Date: ") + day}));
        QCOMPARE(rows.size(), 5);
        const QDateTime when
            = QDateTime::fromString(table->item(0, 0)->text(), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        QVERIFY(qAbs(when.secsTo(QDateTime::currentDateTime())) < 60);
        dialog.reject();

        // The tool prints the same lines, for one document or the whole register.
        ToolRun run = runHistoryTool({reg.path(), QStringLiteral("A-1")});
        QCOMPARE(run.exitCode, 0);
        QStringList expected = rows;
        for (QString& line : expected)
            line.replace(u'|', u'\t');
        QCOMPARE(run.lines, expected);
        run = runHistoryTool({reg.path()});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.lines.mid(0, 2), expected.mid(0, 2));
        QVERIFY(run.lines.contains(Clerk + QStringLiteral("\t\tDocument added\tDescription: \"Other\"")));
        run = runHistoryTool({reg.path(), QStringLiteral("B-2")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.lines.isEmpty());
        QCOMPARE(
            run.err.trimmed(), QStringLiteral("kartella-db: no document has the registration index \"B-2\""));

        // A document in the trash keeps its history, the delete's lines first.
        Connection connection(reg.connectionString());
        connection.open();
        Trash(connection, QString()).deleteDocument(document);
        run = runHistoryTool({reg.path(), QStringLiteral("A-1")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.lines.size() > expected.size());
        QCOMPARE(run.lines.mid(run.lines.size() - expected.size()), expected);
    }

    void lineSaysTheChangeInPlainWords_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QVariant>("before");
        QTest::addColumn<QVariant>("after");
        QTest::addColumn<QString>("what");
        QTest::addColumn<QString>("text");
        const QString leap = QLocale().toString(QDate(2024, 2, 29), QLocale::ShortFormat);
        QTest::newRow("update") << "update"
                                << "tbl_Documents"
                                << "DokAntraste" << QVariant("Old") << QVariant("New") << "Document changed"
                                << "Description changed from \"Old\" to \"New\"";
        QTest::newRow("date alone") << "insert"
                                    << "tbl_Tickler"
                                    << "TicklerDate" << QVariant() << QVariant("2024-02-29")
                                    << "Reminder added"
                                    << "Reminder date: " + leap;
        QTest::newRow("date at midnight") << "delete"
                                          << "tbl_Sub_Documents"
                                          << "SubRastGavimoData" << QVariant("2024-02-29 00:00:00")
                                          << QVariant() << "Related document deleted"
                                          << "Send/Receive Date was " + leap;
        QTest::newRow("a time is no date")
            << "update"
            << "tbl_Contacts"
            << "Notes" << QVariant("2024-02-29 12:00:00") << QVariant() << "Contact changed"
            << "Notes changed from \"2024-02-29 12:00:00\" to (empty)";
        QTest::newRow("emptied") << "update"
                                 << "tbl_Phones"
                                 << "PhoneNumber" << QVariant("555") << QVariant("") << "Phone changed"
                                 << "Phone number changed from \"555\" to (empty)";
        QTest::newRow("named key") << "update"
                                   << "tbl_Documents"
                                   << "KategID" << QVariant(3) << QVariant(9) << "Document changed"
                                   << "Category changed from \"Leases\" to \"9\"";
        QTest::newRow("direction") << "update"
                                   << "tbl_Documents"
                                   << "KryptisID" << QVariant(2) << QVariant(3) << "Document changed"
                                   << "Direction changed from \"Outgoing\" to \"Incoming\"";
        QTest::newRow("no caption") << "update"
                                    << "tbl_Contacts"
                                    << "Extra" << QVariant(1) << QVariant(2) << "Contact changed"
                                    << "Extra changed from \"1\" to \"2\"";
    }
    void lineSaysTheChangeInPlainWords()
    {
        QFETCH(QString, change);
        QFETCH(QString, table);
        QFETCH(QString, column);
        QFETCH(QVariant, before);
        QFETCH(QVariant, after);
        HistoryEntry entry;
        entry.change = change;
        entry.table = table;
        entry.column = column;
        entry.before = before;
        entry.after = after;
        HistoryNames names;
        names.categories.insert(3, QStringLiteral("Leases"));
        const std::optional<HistoryLine> line = historyLine(entry, &names);
        QVERIFY(line);
        QTEST(line->what, "what");
        QTEST(line->change, "text");
    }

    void pausedHistoryRecordsNothingUntilResumed_data() { addPlaces(); }
    void pausedHistoryRecordsNothingUntilResumed()
    {
        REGISTER_OR_SKIP(reg);
        Connection connection(reg->connectionString());
        connection.open();
        const qsizetype before = registerHistory(connection).size();
        connection.beginTrans();
        pauseHistory(connection);
        connection.execute(QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES ('Copied')"));
        resumeHistory(connection);
        connection.commitTrans();
        QCOMPARE(registerHistory(connection).size(), before);
        // A pause rolled back leaves the history on.
        connection.beginTrans();
        pauseHistory(connection);
        connection.rollbackTrans();
        connection.execute(QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES ('Typed')"));
        const std::vector<HistoryEntry> history = registerHistory(connection);
        QCOMPARE(qsizetype(history.size()), before + 1);
        QCOMPARE(history.front().after.toString(), QStringLiteral("Typed"));
    }

    void olderRegisterWorksWithoutHistory()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("old.mdb"));
        makeOldRegister(path);
        Connection connection(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + path);
        connection.open();
        const CommandScope command(QStringLiteral("Details"));
        connection.execute(
            QStringLiteral("UPDATE tbl_Documents SET DokAntraste = 'Changed' WHERE RastasID = 1"));
        connection.beginTrans();
        connection.execute(QStringLiteral("DELETE FROM tbl_Tickler"));
        connection.commitTrans();
        QVERIFY(!registerHasHistory(connection));
        QVERIFY(documentHistory(connection, 1).empty());
        QVERIFY(registerHistory(connection).empty());
        // The tool says why it prints nothing.
        const ToolRun run = runHistoryTool({path});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.lines.isEmpty());
        QCOMPARE(run.err.trimmed(),
            QStringLiteral("kartella-db: the register at %1 has no history: it was made by an earlier "
                           "Kartella (see kartella-db upgrade)")
                .arg(path));
        connection.close();

        // The upgrade brings the history, and the next change is in it.
        upgradeRegister(path);
        connection.open();
        QVERIFY(registerHasHistory(connection));
        connection.execute(
            QStringLiteral("UPDATE tbl_Documents SET DokAntraste = 'Again' WHERE RastasID = 1"));
        QCOMPARE(changes(documentHistory(connection, 1)),
            QStringList {QStringLiteral("Details update tbl_Documents.DokAntraste: Changed -> Again")});
    }

    // In Lithuanian the tab speaks Lithuanian, the command names included, though the register
    // keeps them in English.
    void historyTabSpeaksLithuanian()
    {
        TestRegister reg;
        const qint32 document = reg.insert(QStringLiteral("tbl_Documents"),
            {{QStringLiteral("DokAntraste"), QStringLiteral("Lease")}, {QStringLiteral("KryptisID"), 2}});
        {
            Connection connection(reg.connectionString());
            connection.open();
            Trash trash(connection, reg.dir() + QStringLiteral("/trash"));
            trash.deleteDocument(document);
            trash.restore(trash.items().first().id);
        }
        const Lithuanian lithuanian;
        QVERIFY(lithuanian.installed());
        DocumentDetailsDialog dialog(document);
        dialog.show();
        auto* description = dialog.findChild<QLineEdit*>(QStringLiteral("txtFields_7"));
        description->setFocus();
        description->selectAll();
        QTest::keyClicks(description, QStringLiteral("Lease, signed"));
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdButton_2")), Qt::LeftButton);
        auto* tabs = dialog.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
        tabs->setFocus();
        for (int i = 1; i < tabs->count(); ++i)
            QTest::keyClick(tabs, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(tabs->currentWidget()->objectName(), QStringLiteral("tabHistory"));

        auto* table = dialog.findChild<QTableWidget*>(QStringLiteral("lstHistory"));
        QStringList headers;
        for (int column = 0; column < table->columnCount(); ++column)
            headers << table->horizontalHeaderItem(column)->text();
        QCOMPARE(headers,
            (QStringList {QStringLiteral("Kada"), QStringLiteral("Kas"), QStringLiteral("Komanda"),
                QStringLiteral("Kas pakeista"), QStringLiteral("Pakeitimas")}));
        const QLabel* label = nullptr;
        for (const QLabel* each : tabs->currentWidget()->findChildren<QLabel*>()) {
            if (each->buddy() == table)
                label = each;
        }
        QVERIFY(label);
        QCOMPARE(label->text(), QStringLiteral("&Pakeitimai:"));
        QStringList rows;
        for (int row = 0; row < table->rowCount(); ++row)
            rows << table->item(row, 2)->text() + u'|' + table->item(row, 3)->text() + u'|'
                    + table->item(row, 4)->text();
        QVERIFY2(
            rows.contains(QStringLiteral(
                "Išsami informacija|Pakeistas dokumentas|Aprašymas: pakeista iš „Lease“ į „Lease, signed“")),
            qPrintable(rows.join(u'\n')));
        QVERIFY2(rows.contains(QStringLiteral("Atkurti|Pridėtas dokumentas|Aprašymas: „Lease“")),
            qPrintable(rows.join(u'\n')));
        QVERIFY2(rows.contains(QStringLiteral("Atkurti|Pridėtas dokumentas|Kryptis: „Siunčiamas“")),
            qPrintable(rows.join(u'\n')));
        // What the register keeps stays English.
        QVERIFY(
            reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_History WHERE Command = 'Restore'")).toInt()
            > 0);
        QCOMPARE(
            reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_History WHERE Command = 'Atkurti'")).toInt(),
            0);
        QVERIFY(clashingAccessKeys(*tabs->currentWidget()).isEmpty());
        dialog.reject();
    }

    void contactEditorShowsTheContactsHistory()
    {
        TestRegister reg;
        ContactEditor editor;
        editor.show();
        QApplication::setActiveWindow(&editor);
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        auto* name = editor.findChild<QLineEdit*>(QStringLiteral("txtFields_4"));
        name->setFocus();
        QTest::keyClicks(name, QStringLiteral("Ona Petraitiene"));
        // Add Phone stores the contact first.
        QTest::keyClick(name, Qt::Key_P, Qt::AltModifier);
        auto* tabs = editor.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
        tabs->setCurrentIndex(tabs->count() - 1);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), QStringLiteral("History"));
        auto* table = editor.findChild<QTableWidget*>(QStringLiteral("lstHistory"));
        QCOMPARE(table->rowCount(), 1);
        QCOMPARE(table->item(0, 1)->text(), Clerk);
        QCOMPARE(table->item(0, 2)->text(), QStringLiteral("Contact"));
        QCOMPARE(table->item(0, 3)->text(), QStringLiteral("Contact added"));
        QCOMPARE(table->item(0, 4)->text(), QStringLiteral("FullName: \"Ona Petraitiene\""));
        editor.reject();
    }
};

QTEST_MAIN(HistoryTest)
#include "tst_history.moc"
