#include "ContactFiles.h"
#include "addressbook/import/ContactFile.h"
#include "addressbook/import/OutlookCsvReader.h"
#include "addressbook/import/VCardReader.h"
#include "base/Error.h"
#include "tst_contactimport.h"

#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;
namespace P = kartella::ContactProperty;

void ContactImportTest::outlookVCard21WithQuotedPrintableWindows1252()
{
    // As Outlook writes it: bare types, quoted-printable with soft line breaks, a charset.
    const QByteArray file
        = "BEGIN:VCARD\r\n"
          "VERSION:2.1\r\n"
          "N;LANGUAGE=de;CHARSET=Windows-1252;ENCODING=QUOTED-PRINTABLE:M=FCller;J=FCrgen\r\n"
          "FN;CHARSET=Windows-1252;ENCODING=QUOTED-PRINTABLE:J=FCrgen M=FCller\r\n"
          "ORG:Caf\xE9 GmbH;Einkauf\r\n"
          "TITLE:Gesch=E4ftsf=FChrer\r\n"
          "TEL;WORK;VOICE:+49 30 1234\r\n"
          "TEL;HOME;VOICE:+49 30 5678\r\n"
          "TEL;CELL;VOICE:+49 170 1\r\n"
          "TEL;WORK;FAX:+49 30 9999\r\n"
          "TEL;PAGER:777\r\n"
          "ADR;HOME:;;Heimweg 1;Potsdam;;14467;Deutschland\r\n"
          "ADR;WORK;CHARSET=Windows-1252;ENCODING=QUOTED-PRINTABLE:;;Hauptstra=DFe 5=0D=0A=\r\n"
          "Hinterhaus;Berlin;BE;10115;Deutschland\r\n"
          "URL;HOME:http://home.example\r\n"
          "URL;WORK:http://work.example\r\n"
          "EMAIL;INTERNET:first@example.de\r\n"
          "EMAIL;PREF;INTERNET:pref@example.de\r\n"
          "END:VCARD\r\n"
          "BEGIN:VCARD\r\n"
          "VERSION:2.1\r\n"
          "FN:Second One\r\n"
          "END:VCARD\r\n";
    const QList<ContactItem> contacts = readVCards(file);
    QCOMPARE(contacts.size(), 2);
    const ContactItem& c = contacts.first();
    QCOMPARE(c.value(P::FullName), QStringLiteral("Jürgen Müller"));
    QCOMPARE(c.value(P::CompanyName), QStringLiteral("Café GmbH"));
    QCOMPARE(c.value(P::Title), QStringLiteral("Gesch=E4ftsf=FChrer")); // not quoted-printable: as it stands
    QCOMPARE(c.value(P::Street), QStringLiteral("Hauptstraße 5\r\nHinterhaus"));
    QCOMPARE(c.value(P::City), QStringLiteral("Berlin"));
    QCOMPARE(c.value(P::State), QStringLiteral("BE"));
    QCOMPARE(c.value(P::PostalCode), QStringLiteral("10115"));
    QCOMPARE(c.value(P::Country), QStringLiteral("Deutschland"));
    QCOMPARE(c.value(P::Email), QStringLiteral("pref@example.de"));
    QCOMPARE(c.value(P::HomePage), QStringLiteral("http://work.example"));
    QCOMPARE(c.value(P::BusinessPhone), QStringLiteral("+49 30 1234"));
    QCOMPARE(c.value(P::HomePhone), QStringLiteral("+49 30 5678"));
    QCOMPARE(c.value(P::MobilePhone), QStringLiteral("+49 170 1"));
    QCOMPARE(c.value(P::Fax), QStringLiteral("+49 30 9999"));
    QCOMPARE(c.value(P::Pager), QStringLiteral("777"));
    QCOMPARE(contacts[1], (ContactItem {{P::FullName, QStringLiteral("Second One")}}));
}

void ContactImportTest::vCard40FromAnotherAddressBook()
{
    const QByteArray file = "BEGIN:VCARD\n"
                            "VERSION:4.0\n"
                            "FN:Ona Petraitienė\n"
                            "ORG:UAB \\\"Šviesa\\\"\\, filialas;Skyrius\n"
                            "TITLE:Direktorė\n"
                            "item1.TEL;VALUE=uri;TYPE=\"work,voice\":tel:+370-5-2123\n"
                            "  456\n"
                            "TEL;TYPE=cell:tel:+370-600-1\n"
                            "EMAIL;TYPE=home:ona@namai.lt\n"
                            "EMAIL;PREF=1:ona@darbas.lt\n"
                            "ADR;TYPE=home:;;Namų g. 2;Kaunas;;44000;Lietuva\n"
                            "ADR;TYPE=work:;;Gedimino pr. 9\\nIII aukštas;Vilnius;;01103;Lietuva\n"
                            "URL:https://sviesa.example\n"
                            "PHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQSkZJRgABAQ\n"
                            "END:VCARD\n"
                            "BEGIN:VCARD\n"
                            "VERSION:3.0\n"
                            "N:Kazlauskas;Jonas;Petras;Dr.;\n"
                            "TEL;TYPE=WORK,FAX:8-5-999\n"
                            "TEL:8-5-111\n"
                            "END:VCARD\n";
    const QList<ContactItem> contacts = readVCards(file);
    QCOMPARE(contacts.size(), 2);
    const ContactItem expected = {
        {P::FullName, QStringLiteral("Ona Petraitienė")},
        {P::CompanyName, QStringLiteral("UAB \"Šviesa\", filialas")},
        {P::Title, QStringLiteral("Direktorė")},
        {P::BusinessPhone, QStringLiteral("+370-5-2123 456")},
        {P::MobilePhone, QStringLiteral("+370-600-1")},
        {P::Email, QStringLiteral("ona@darbas.lt")},
        {P::Street, QStringLiteral("Gedimino pr. 9\nIII aukštas")},
        {P::City, QStringLiteral("Vilnius")},
        {P::PostalCode, QStringLiteral("01103")},
        {P::Country, QStringLiteral("Lietuva")},
        {P::HomePage, QStringLiteral("https://sviesa.example")},
    };
    QCOMPARE(contacts[0], expected);
    const ContactItem second = {
        {P::FullName, QStringLiteral("Jonas Petras Kazlauskas")},
        {P::Fax, QStringLiteral("8-5-999")},
        {P::BusinessPhone, QStringLiteral("8-5-111")},
    };
    QCOMPARE(contacts[1], second);
}

void ContactImportTest::vCardPhoneTypes_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QStringList>("properties");
    const QStringList none;
    QTest::newRow("no type") << QByteArray("TEL:1") << QStringList {P::BusinessPhone};
    QTest::newRow("only voice") << QByteArray("TEL;VOICE:1") << QStringList {P::BusinessPhone};
    QTest::newRow("work voice") << QByteArray("TEL;WORK;VOICE:1") << QStringList {P::BusinessPhone};
    QTest::newRow("work, TYPE= form") << QByteArray("TEL;TYPE=work:1") << QStringList {P::BusinessPhone};
    QTest::newRow("home") << QByteArray("TEL;TYPE=HOME;TYPE=VOICE:1") << QStringList {P::HomePhone};
    QTest::newRow("cell") << QByteArray("TEL;CELL:1") << QStringList {P::MobilePhone};
    QTest::newRow("work cell") << QByteArray("TEL;TYPE=work,cell:1")
                               << QStringList {P::BusinessPhone, P::MobilePhone};
    QTest::newRow("work fax") << QByteArray("TEL;WORK;FAX:1") << QStringList {P::Fax};
    QTest::newRow("fax alone") << QByteArray("TEL;TYPE=fax:1") << QStringList {P::Fax};
    QTest::newRow("home fax") << QByteArray("TEL;HOME;FAX:1") << none;
    QTest::newRow("pager") << QByteArray("TEL;PAGER:1") << QStringList {P::Pager};
    QTest::newRow("only preferred") << QByteArray("TEL;PREF:1") << QStringList {P::BusinessPhone};
    QTest::newRow("preferred voice, PREF= form")
        << QByteArray("TEL;PREF=1;TYPE=voice:1") << QStringList {P::BusinessPhone};
    QTest::newRow("an encoding is no type")
        << QByteArray("TEL;8BIT;7BIT:1") << QStringList {P::BusinessPhone};
    QTest::newRow("a parameter without a name")
        << QByteArray("TEL;=CELL:1") << QStringList {P::BusinessPhone};
    QTest::newRow("text message") << QByteArray("TEL;TYPE=text:1") << none;
}

void ContactImportTest::vCardPhoneTypes()
{
    QFETCH(QByteArray, line);
    QFETCH(QStringList, properties);
    const QList<ContactItem> contacts
        = readVCards("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:A\r\n" + line + "\r\nEND:VCARD\r\n");
    QCOMPARE(contacts.size(), 1);
    QStringList found = contacts.first().keys();
    found.removeOne(P::FullName);
    properties.sort();
    QCOMPARE(found, properties);
    for (const QString& property : properties)
        QCOMPARE(contacts.first().value(property), QStringLiteral("1"));
}

void ContactImportTest::vCardFirstFittingLineWins()
{
    const QList<ContactItem> contacts
        = readVCards("BEGIN:VCARD\nFN:A\nTEL:plain\nTEL;CELL:cell1\nTEL;WORK:work1\n"
                     "TEL;CELL:cell2\nTEL;WORK:work2\nEMAIL:e1\nEMAIL:e2\n"
                     "URL:u1\nURL;TYPE=work:u2\nURL;TYPE=work:u3\nEND:VCARD\n");
    QCOMPARE(contacts.size(), 1);
    // A WORK number goes before one without a type even when it comes later.
    QCOMPARE(contacts[0].value(P::BusinessPhone), QStringLiteral("work1"));
    QCOMPARE(contacts[0].value(P::MobilePhone), QStringLiteral("cell1"));
    QCOMPARE(contacts[0].value(P::Email), QStringLiteral("e1"));
    QCOMPARE(contacts[0].value(P::HomePage), QStringLiteral("u2"));
}

void ContactImportTest::vCardBalticText_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("codePage");
    const QString name = QStringLiteral("Žydrūnas Šimkūnas-Čiurlionis");
    const QByteArray baltic = encoded(name, "windows-1257");
    QTest::newRow("charset parameter") << "BEGIN:VCARD\nFN;CHARSET=WINDOWS-1257:" + baltic + "\nEND:VCARD\n"
                                       << QString();
    QTest::newRow("quoted-printable charset") << "BEGIN:VCARD\nFN;CHARSET=windows-1257;QUOTED-PRINTABLE:=DE"
            + baltic.mid(1) + "\nEND:VCARD\n" << QString();
    QTest::newRow("guessed") << "BEGIN:VCARD\nFN:" + baltic + "\nEND:VCARD\n" << QString();
    // The file is plain ASCII; only the value's decoded bytes tell their code page.
    QByteArray quoted;
    for (const char byte : baltic)
        quoted += '=' + QByteArray(1, byte).toHex().toUpper();
    QTest::newRow("quoted-printable without charset")
        << "BEGIN:VCARD\nVERSION:2.1\nFN;ENCODING=QUOTED-PRINTABLE:" + quoted + "\nEND:VCARD\n"
        << QString();
    QTest::newRow("forced") << "BEGIN:VCARD\nFN:" + baltic + "\nEND:VCARD\n"
                            << QStringLiteral("windows-1257");
    QTest::newRow("utf-8 with mark") << "\xEF\xBB\xBF"
                                        "BEGIN:VCARD\nFN:"
            + name.toUtf8()
            + "\nEND:VCARD\n" << QStringLiteral("windows-1252");
}

void ContactImportTest::vCardBalticText()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, codePage);
    const QList<ContactItem> contacts = readVCards(file, codePage);
    QCOMPARE(contacts.size(), 1);
    QCOMPARE(contacts[0].value(P::FullName), QStringLiteral("Žydrūnas Šimkūnas-Čiurlionis"));
}

void ContactImportTest::vCardNotes_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("notes");
    const auto card = [](const char* version, const QByteArray& lines) -> QByteArray {
        return "BEGIN:VCARD\r\nVERSION:" + QByteArray(version) + "\r\nFN:A\r\n" + lines + "END:VCARD\r\n";
    };
    QTest::newRow("2.1 folded before a blank of the text")
        << card("2.1", "NOTE:Call after\r\n 10 o'clock\r\n") << QStringLiteral("Call after 10 o'clock");
    QTest::newRow("2.1 quoted-printable line breaks") << card("2.1",
        "NOTE;CHARSET=Windows-1252;ENCODING=QUOTED-PRINTABLE:Pirmadien=EF=0D=0A=\r\n"
        " antradien=EF=\r\n"
        "; ne savaitgal=EF\r\n") << QStringLiteral("Pirmadienï\r\n antradienï; ne savaitgalï");
    QTest::newRow("2.1 semicolon as it stands")
        << card("2.1", "NOTE:Tue; Thu\r\n") << QStringLiteral("Tue; Thu");
    QTest::newRow("3.0 folded inside a word")
        << card("3.0", "NOTE:Call after 1\r\n 0 o'clock\r\n") << QStringLiteral("Call after 10 o'clock");
    QTest::newRow("3.0 escaped") << card(
        "3.0", "NOTE:Line 1\\nLine 2\\, with comma\\; and semicolon\\\\ back\\N end\r\n")
                                 << QStringLiteral("Line 1\nLine 2, with comma; and semicolon\\ back\n end");
    QTest::newRow("3.0 folded and escaped") << card("3.0", "NOTE:Ona\\nPetr\r\n\taitienė\\, direktorė\r\n")
                                            << QStringLiteral("Ona\nPetraitienė, direktorė");
    QTest::newRow("3.0 after a 2.1 card")
        << card("2.1", "NOTE:first\r\n") + card("3.0", "NOTE:Call after 1\r\n 0 o'clock\r\n")
        << QStringLiteral("Call after 10 o'clock");
    QTest::newRow("two notes") << card("4.0", "NOTE:one\r\nNOTE:\r\nNOTE:two\r\n")
                               << QStringLiteral("one\ntwo");
    QTest::newRow("no note") << card("3.0", "") << QString();
}

void ContactImportTest::vCardNotes()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, notes);
    const QList<ContactItem> contacts = readVCards(file);
    QVERIFY(!contacts.isEmpty());
    QCOMPARE(contacts.last().value(P::Notes), notes);
    QCOMPARE(contacts.last().contains(P::Notes), !notes.isEmpty());
}

namespace {

// The columns of a real Outlook export, in its order, with the values of one row.
const QStringList csvHeader = {QStringLiteral("Title"), QStringLiteral("First Name"),
    QStringLiteral("Middle Name"), QStringLiteral("Last Name"), QStringLiteral("Suffix"),
    QStringLiteral("Company"), QStringLiteral("Department"), QStringLiteral("Job Title"),
    QStringLiteral("Business Street"), QStringLiteral("Business Street 2"),
    QStringLiteral("Business Street 3"), QStringLiteral("Business City"), QStringLiteral("Business State"),
    QStringLiteral("Business Postal Code"), QStringLiteral("Business Country/Region"),
    QStringLiteral("Home Street"), QStringLiteral("Business Fax"), QStringLiteral("Business Phone"),
    QStringLiteral("Home Phone"), QStringLiteral("Mobile Phone"), QStringLiteral("Pager"),
    QStringLiteral("E-mail Address"), QStringLiteral("E-mail 2 Address"), QStringLiteral("Notes"),
    QStringLiteral("Web Page")};

QByteArray csvFile(QChar separator, const QList<QStringList>& rows)
{
    QString text;
    const auto quoted = [](QString field) -> QString {
        if (field.isEmpty())
            return field;
        return u'"' + field.replace(u'"', QStringLiteral("\"\"")) + u'"';
    };
    QStringList header;
    for (const QString& name : csvHeader)
        header << quoted(name);
    text += header.join(separator) + QStringLiteral("\r\n");
    for (const QStringList& row : rows) {
        QStringList fields;
        for (const QString& field : row)
            fields << quoted(field);
        text += fields.join(separator) + QStringLiteral("\r\n");
    }
    return text.toUtf8();
}

} // namespace

void ContactImportTest::outlookCsvSeparators_data()
{
    QTest::addColumn<QChar>("separator");
    QTest::newRow("comma") << QChar(u',');
    QTest::newRow("semicolon") << QChar(u';');
    QTest::newRow("tab") << QChar(u'\t');
}

void ContactImportTest::outlookCsvSeparators()
{
    QFETCH(QChar, separator);
    const QStringList full = {QStringLiteral("Mr."), QStringLiteral("John"), QStringLiteral("Q."),
        QStringLiteral("Smith"), QStringLiteral("Jr."), QStringLiteral("Acme, \"Ltd\"; Co"),
        QStringLiteral("Sales"), QStringLiteral("Manager"), QStringLiteral("1 Main St\r\nSuite 2"),
        QStringLiteral(""), QStringLiteral("Back door"), QStringLiteral("Springfield"), QStringLiteral("IL"),
        QStringLiteral("62701"), QStringLiteral("United States"), QStringLiteral("Home st"),
        QStringLiteral("555-0199"), QStringLiteral("555-0100"), QStringLiteral("555-0101"),
        QStringLiteral("555-0102"), QStringLiteral("555-0103"), QStringLiteral("john@acme.example"),
        QStringLiteral("other@x"), QStringLiteral("notes\twith tab"), QStringLiteral("http://acme.example")};
    QStringList companyOnly(csvHeader.size());
    companyOnly[5] = QStringLiteral("Only Company");
    QStringList lastOnly(csvHeader.size());
    lastOnly[3] = QStringLiteral("Jonaitis");
    const QList<ContactItem> contacts = readOutlookCsv(csvFile(separator, {full, companyOnly, lastOnly}));
    QCOMPARE(contacts.size(), 3);
    const ContactItem expected = {
        {P::FullName, QStringLiteral("John Q. Smith")},
        {P::CompanyName, QStringLiteral("Acme, \"Ltd\"; Co")},
        {P::Title, QStringLiteral("Manager")},
        {P::Street, QStringLiteral("1 Main St\r\nSuite 2\nBack door")},
        {P::City, QStringLiteral("Springfield")},
        {P::State, QStringLiteral("IL")},
        {P::PostalCode, QStringLiteral("62701")},
        {P::Country, QStringLiteral("United States")},
        {P::Email, QStringLiteral("john@acme.example")},
        {P::HomePage, QStringLiteral("http://acme.example")},
        {P::BusinessPhone, QStringLiteral("555-0100")},
        {P::HomePhone, QStringLiteral("555-0101")},
        {P::MobilePhone, QStringLiteral("555-0102")},
        {P::Fax, QStringLiteral("555-0199")},
        {P::Pager, QStringLiteral("555-0103")},
        {P::Notes, QStringLiteral("notes\twith tab")},
    };
    QCOMPARE(contacts[0], expected);
    QCOMPARE(contacts[1], (ContactItem {{P::CompanyName, QStringLiteral("Only Company")}}));
    QCOMPARE(contacts[2], (ContactItem {{P::FullName, QStringLiteral("Jonaitis")}}));
}

void ContactImportTest::outlookCsvCodePages_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("codePage");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("city");
    const QString lithuanian = QStringLiteral("Žydrūnas Šimkus");
    const QString western = QStringLiteral("François Müller-Ødegård");
    const auto file
        = [](const QString& first, const QString& last, const QString& city, const char* codePage) {
              return encoded(QStringLiteral("First Name;Last Name;Business City\r\n") + first + u';' + last
                      + u';' + city + QStringLiteral("\r\n"),
                  codePage);
          };
    QTest::newRow("windows-1257 guessed") << file(
        QStringLiteral("Žydrūnas"), QStringLiteral("Šimkus"), QStringLiteral("Šiauliai"), "windows-1257")
                                          << QString() << lithuanian << QStringLiteral("Šiauliai");
    QTest::newRow("windows-1252 guessed") << file(QStringLiteral("François"),
        QStringLiteral("Müller-Ødegård"), QStringLiteral("Zürich"), "windows-1252")
                                          << QString() << western << QStringLiteral("Zürich");
    QTest::newRow("windows-1257 forced") << file(
        QStringLiteral("Žydrūnas"), QStringLiteral("Šimkus"), QStringLiteral("Šiauliai"), "windows-1257")
                                         << QStringLiteral("windows-1257") << lithuanian
                                         << QStringLiteral("Šiauliai");
    QTest::newRow("utf-8 with mark") << "\xEF\xBB\xBF"
            + file(QStringLiteral("Žydrūnas"), QStringLiteral("Šimkus"), QStringLiteral("Šiauliai"), "UTF-8")
                                     << QStringLiteral("windows-1252") << lithuanian
                                     << QStringLiteral("Šiauliai");
    QTest::newRow("utf-8 without mark") << file(
        QStringLiteral("François"), QStringLiteral("Müller-Ødegård"), QStringLiteral("Zürich"), "UTF-8")
                                        << QString() << western << QStringLiteral("Zürich");
}

void ContactImportTest::outlookCsvCodePages()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, codePage);
    QFETCH(QString, name);
    QFETCH(QString, city);
    const QList<ContactItem> contacts = readOutlookCsv(file, codePage);
    QCOMPARE(contacts.size(), 1);
    QCOMPARE(contacts[0].value(P::FullName), name);
    QCOMPARE(contacts[0].value(P::City), city);
}

void ContactImportTest::outlookCsvNotes_data()
{
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<QString>("notes");
    QTest::newRow("windows line break") << QChar(u',') << QStringLiteral("Line 1\r\nLine 2");
    QTest::newRow("unix line break, semicolons")
        << QChar(u';') << QStringLiteral("Skambinti po 10;\nne \"Šviesai\", o jai");
    QTest::newRow("blank lines inside") << QChar(u'\t') << QStringLiteral("a\r\n\r\n\r\nb");
    QTest::newRow("empty") << QChar(u',') << QString();
}

void ContactImportTest::outlookCsvNotes()
{
    QFETCH(QChar, separator);
    QFETCH(QString, notes);
    QStringList row(csvHeader.size());
    row[1] = QStringLiteral("Ona");
    row[csvHeader.indexOf(QStringLiteral("Notes"))] = notes;
    QStringList next(csvHeader.size());
    next[1] = QStringLiteral("Next");
    const QList<ContactItem> contacts = readOutlookCsv(csvFile(separator, {row, next}));
    QCOMPARE(contacts.size(), 2);
    QCOMPARE(contacts[0].value(P::Notes), notes);
    QCOMPARE(contacts[1], (ContactItem {{P::FullName, QStringLiteral("Next")}}));
}

void ContactImportTest::unreadableFiles()
{
    QTemporaryDir dir;
    const QString missing = dir.filePath(QStringLiteral("missing.vcf"));
    const QString binary
        = writeContactFile(dir.path(), QStringLiteral("photo.csv"), QByteArray("\x89PNG\r\n\x1a\n\0\0", 10));
    QStringList paths = {missing, binary};
    // A file that opens but whose reading fails.
    if (QFile::exists(QStringLiteral("/proc/self/mem")))
        paths << QStringLiteral("/proc/self/mem");
    for (const QString& path : std::as_const(paths)) {
        try {
            readContactFile(path);
            QFAIL("no error");
        } catch (const Error& error) {
            QVERIFY2(error.description().contains(path), qPrintable(error.description()));
        }
    }
    // An empty file and a header alone are read: they hold no contacts.
    QVERIFY(readContactFile(writeContactFile(dir.path(), QStringLiteral("empty.vcf"), {})).isEmpty());
    QVERIFY(readContactFile(writeContactFile(dir.path(), QStringLiteral("h.csv"), "First Name,Last Name\r\n"))
                .isEmpty());
}
