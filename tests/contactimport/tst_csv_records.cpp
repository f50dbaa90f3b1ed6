// The records of an Outlook CSV file at their edges: blank lines before the header and
// between contacts, an empty field at the end of a line, an empty file; the columns that
// make a file an export, and the separator of its header.
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
        QTest::newRow("old Mac line breaks")
            << QByteArray("First Name,Last Name\rJonas,Jonaitis\rOna,Onaitė\r")
            << QStringList {"Jonas Jonaitis", "Ona Onaitė"} << true;
        QTest::newRow("a quoted last field without a line break at the end")
            << QByteArray("First Name,Last Name\nJonas,\"Jonaitis\"") << QStringList {"Jonas Jonaitis"}
            << true;
        QTest::newRow("rows shorter than the header")
            << QByteArray("Company,First Name,Last Name\nUAB,Jonas\nUAB\n,,Onaitė\n")
            << QStringList {"Jonas", "", "Onaitė"} << true;
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

    // A header that names one known column is an export, whichever column it is.
    void eachKnownColumnAlone_data()
    {
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<QString>("property");
        const QList<std::pair<const char*, QString>> columns = {{"First Name", P::FullName},
            {"Middle Name", P::FullName}, {"Last Name", P::FullName}, {"Business Street", P::Street},
            {"Business Street 2", P::Street}, {"Business Street 3", P::Street}, {"Company", P::CompanyName},
            {"Job Title", P::Title}, {"Business City", P::City}, {"Business State", P::State},
            {"Business Postal Code", P::PostalCode}, {"Business Country/Region", P::Country},
            {"E-mail Address", P::Email}, {"Web Page", P::HomePage}, {"Business Phone", P::BusinessPhone},
            {"Home Phone", P::HomePhone}, {"Mobile Phone", P::MobilePhone}, {"Business Fax", P::Fax},
            {"Pager", P::Pager}, {"Notes", P::Notes}};
        for (const auto& [column, property] : columns)
            QTest::newRow(column) << QByteArray(column) << property;
    }

    void eachKnownColumnAlone()
    {
        QFETCH(QByteArray, column);
        QFETCH(QString, property);
        // Street 2 and 3 alone are not enough to know the file, but add to a street.
        const bool alone = !column.startsWith("Business Street ");
        const QByteArray file = (alone ? column : "Business Street," + column) + "\r\n"
            + (alone ? QByteArray() : QByteArray("Gedimino 1,")) + "Šviesa 7\r\n";
        bool known = false;
        const QList<ContactItem> contacts = readOutlookCsv(file, {}, &known);
        QVERIFY(known);
        const QString value = alone ? QStringLiteral("Šviesa 7") : QStringLiteral("Gedimino 1\nŠviesa 7");
        QCOMPARE(contacts, QList<ContactItem> {(ContactItem {{property, value}})});

        // In another letter case, with blanks around it, after an unknown column.
        const QByteArray other = "Nickname, " + column.toUpper() + " \r\nJoe,Šviesa 7\r\n";
        if (alone)
            QCOMPARE(readOutlookCsv(other),
                QList<ContactItem> {(ContactItem {{property, QStringLiteral("Šviesa 7")}})});
    }

    // The separator is the one the header line has most of outside quotes; a tie goes to
    // the comma, then to the semicolon.
    void separatorOfTheHeader_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("read"); // full name | company

        QTest::newRow("comma and tab tie")
            << QByteArray("First Name,Last Name\tCompany\nJonas,Jonaitis\tUAB\n") << "Jonas|";
        QTest::newRow("comma and semicolon tie")
            << QByteArray("First Name,Last Name;Company\nJonas,Jonaitis;UAB\n") << "Jonas|";
        QTest::newRow("semicolon and tab tie")
            << QByteArray("First Name;Last Name\tCompany\nJonas;Jonaitis\tUAB\n") << "Jonas|";
        QTest::newRow("one of each") << QByteArray("First Name,Last Name;Company\tX\nJonas,Jonaitis;UAB\tx\n")
                                     << "Jonas|";
        QTest::newRow("more commas than tabs")
            << QByteArray("First Name,Last Name,X\tCompany\nJonas,Jonaitis,x\tUAB\n") << "Jonas Jonaitis|";
        QTest::newRow("more tabs than commas")
            << QByteArray("First Name\tLast Name\tCompany,X\nJonas\tJonaitis\tUAB,x\n") << "Jonas Jonaitis|";
        QTest::newRow("more semicolons than tabs")
            << QByteArray("First Name;Last Name;Company\tX\nJonas;Jonaitis;UAB\tx\n") << "Jonas Jonaitis|";
        QTest::newRow("quoted separators do not count")
            << QByteArray("\"First, Name\";Last Name;\"Company, Ltd\"\nJonas,x;Jonaitis;UAB\n")
            << "Jonaitis|";
        QTest::newRow("only the header line counts")
            << QByteArray("First Name;Last Name\nJonas;Jonaitis,Petraitis,Ona,Rūta\n")
            << "Jonas Jonaitis,Petraitis,Ona,Rūta|";
    }

    void separatorOfTheHeader()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, read);
        const QList<ContactItem> contacts = readOutlookCsv(file);
        QCOMPARE(contacts.size(), 1);
        QCOMPARE(contacts[0].value(P::FullName) + u'|' + contacts[0].value(P::CompanyName), read);
    }
};

QTEST_GUILESS_MAIN(CsvRecordsTest)

#include "tst_csv_records.moc"
