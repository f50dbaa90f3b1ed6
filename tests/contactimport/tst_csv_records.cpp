// The records of an Outlook CSV file at their edges: blank lines before the header and
// between contacts, an empty field at the end of a line, an empty file.
#include "addressbook/import/OutlookCsvReader.h"

#include <QTest>

using namespace kartella;
namespace P = kartella::ContactProperty;

class CsvRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The full names read, in order; an empty list when the file holds no contacts.
    void blankLinesAreNoRecords_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<bool>("recognised");

        QTest::newRow("a blank line before the header")
            << QByteArray("\r\nFirst Name,Last Name\r\nJonas,Jonaitis\r\n") << QStringList {"Jonas Jonaitis"}
            << true;
        QTest::newRow("two blank lines before the header")
            << QByteArray("\n\nFirst Name,Last Name\nJonas,Jonaitis\n") << QStringList {"Jonas Jonaitis"}
            << true;
        QTest::newRow("a blank line between contacts")
            << QByteArray("First Name,Last Name\r\nJonas,Jonaitis\r\n\r\nOna,Onaitė\r\n")
            << QStringList {"Jonas Jonaitis", "Ona Onaitė"} << true;
        QTest::newRow("no line break at the end")
            << QByteArray("First Name,Last Name\nJonas,Jonaitis") << QStringList {"Jonas Jonaitis"} << true;
        QTest::newRow("an empty last field")
            << QByteArray("Last Name,Company\nJonaitis,\n") << QStringList {"Jonaitis"} << true;
        QTest::newRow("an empty file") << QByteArray() << QStringList {} << false;
        QTest::newRow("only blank lines") << QByteArray("\r\n\r\n") << QStringList {} << false;
    }

    void blankLinesAreNoRecords()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, names);
        QFETCH(bool, recognised);
        bool known = !recognised;
        const QList<ContactItem> contacts = readOutlookCsv(file, {}, &known);
        QCOMPARE(known, recognised);
        QStringList read;
        for (const ContactItem& contact : contacts)
            read << contact.value(P::FullName);
        QCOMPARE(read, names);
    }
};

QTEST_GUILESS_MAIN(CsvRecordsTest)

#include "tst_csv_records.moc"
