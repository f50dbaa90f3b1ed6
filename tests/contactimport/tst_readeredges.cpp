// The vCard reader at its edges: cards inside cards, lines outside them, values that look
// like something they are not; the guess of a file's code page at its threshold.
#include "addressbook/import/TextDecoding.h"
#include "addressbook/import/VCardReader.h"
#include "tst_contactimport.h"

#include <QTest>

using namespace kartella;
namespace P = kartella::ContactProperty;

void ContactImportTest::vCardEdges_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QList<ContactItem>>("contacts");
    const auto named = [](const char* name) { return ContactItem {{P::FullName, QString::fromUtf8(name)}}; };

    QTest::newRow("an address beginning with tel")
        << QByteArray("BEGIN:VCARD\r\nFN:A\r\nEMAIL:telsiai@example.lt\r\nURL:telsiai.example.lt\r\n"
                      "TEL:tel.8 41 1\r\nEND:VCARD\r\n")
        << QList<ContactItem> {
               {{P::FullName, QStringLiteral("A")}, {P::Email, QStringLiteral("telsiai@example.lt")},
                   {P::HomePage, QStringLiteral("telsiai.example.lt")},
                   {P::BusinessPhone, QStringLiteral("tel.8 41 1")}}};
    QTest::newRow("a picture ending in '=' before the phone")
        << QByteArray("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:A\r\nPHOTO;ENCODING=b;TYPE=JPEG:/9j/4AA=\r\n"
                      "TEL:1\r\nEND:VCARD\r\n")
        << QList<ContactItem> {{{P::FullName, QStringLiteral("A")}, {P::BusinessPhone, QStringLiteral("1")}}};
    QTest::newRow("a web address ending in '=' before the phone")
        << QByteArray(
               "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:A\r\nURL:http://x.lt/?id=\r\nTEL;CELL:1\r\nEND:VCARD\r\n")
        << QList<ContactItem> {{{P::FullName, QStringLiteral("A")},
               {P::HomePage, QStringLiteral("http://x.lt/?id=")}, {P::MobilePhone, QStringLiteral("1")}}};
    QTest::newRow("quoted-printable codes in either case, and an '=' that starts none")
        << QByteArray("BEGIN:VCARD\r\nVERSION:2.1\r\nFN:A\r\n"
                      "NOTE;CHARSET=ISO-8859-1;ENCODING=QUOTED-PRINTABLE:=fax=AFy=90z E=mc2\r\n"
                      "END:VCARD\r\n")
        << QList<ContactItem> {{{P::FullName, QStringLiteral("A")},
               {P::Notes, QString::fromLatin1("\xFAx\xAFy\x90z E=mc2")}}};
    // A colon in a quoted parameter hides the encoding from the joining of lines: the value's
    // last '=' is a soft line break left at its end.
    QTest::newRow("quoted-printable ending in half a code, and in a soft line break")
        << QByteArray("BEGIN:VCARD\r\nVERSION:2.1\r\nFN;ENCODING=QUOTED-PRINTABLE:Ona=4\r\n"
                      "NOTE;X-PLACE=\"geo:54.7\";ENCODING=QUOTED-PRINTABLE:Vilnius=\r\nEND:VCARD\r\n")
        << QList<ContactItem> {
               {{P::FullName, QStringLiteral("Ona=4")}, {P::Notes, QStringLiteral("Vilnius")}}};
    // Without its parameter the value would be guessed windows-1252: it has no š or ž.
    QTest::newRow("a charset the guess would miss") << QByteArray(
        "BEGIN:VCARD\r\nFN;CHARSET=windows-1257:J\xFBrat\xEB B\xEBran\xE8i\xFBt\xEB\r\nEND:VCARD\r\n")
                                                    << QList<ContactItem> {named("Jūratė Bėrančiūtė")};
    QTest::newRow("values in base64 are not read") << QByteArray(
        "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:A\r\nNOTE;ENCODING=b:SGVsbG8=\r\n"
        "TITLE;BASE64:SGVsbG8=\r\nEND:VCARD\r\n") << QList<ContactItem> {named("A")};
    QTest::newRow("a value ending in a backslash")
        << QByteArray("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:A\r\nNOTE:C:\\Kontaktai\\\r\nEND:VCARD\r\n")
        << QList<ContactItem> {
               {{P::FullName, QStringLiteral("A")}, {P::Notes, QStringLiteral("C:Kontaktai\\")}}};
    QTest::newRow("values that read BEGIN, END and vCard")
        << QByteArray("BEGIN:VCARD\r\nFN:A\r\nNOTE:vCard\r\nTITLE:END\r\nORG:BEGIN\r\nTEL:1\r\nEND:VCARD\r\n")
        << QList<ContactItem> {{{P::FullName, QStringLiteral("A")}, {P::Notes, QStringLiteral("vCard")},
               {P::Title, QStringLiteral("END")}, {P::CompanyName, QStringLiteral("BEGIN")},
               {P::BusinessPhone, QStringLiteral("1")}}};
    QTest::newRow("a card inside a card")
        << QByteArray("BEGIN:VCARD\r\nVERSION:2.1\r\nN:Outer;Ona\r\nAGENT:\r\nBEGIN:VCARD\r\nVERSION:2.1\r\n"
                      "FN:Agent\r\nTEL:9\r\nEND:VCARD\r\nTEL;CELL:1\r\nEND:VCARD\r\n"
                      "BEGIN:VCARD\r\nFN:Next\r\nEND:VCARD\r\n")
        << QList<ContactItem> {
               {{P::FullName, QStringLiteral("Ona Outer")}, {P::MobilePhone, QStringLiteral("1")}},
               named("Next")};
    QTest::newRow("lines outside the cards")
        << QByteArray("FN:Stray\r\nEND:VCARD\r\nBEGIN:VCARD\r\nFN:A\r\nEND:VCARD\r\nTEL:2\r\nEND:VCARD\r\n"
                      "BEGIN:VCARD\r\nFN:B\r\nEND:VCARD\r\n")
        << QList<ContactItem> {named("A"), named("B")};
    QTest::newRow("a blank line before the first card")
        << QByteArray("\nBEGIN:VCARD\nFN:A\nEND:VCARD\n") << QList<ContactItem> {named("A")};
    QTest::newRow("no line break at the end")
        << QByteArray("BEGIN:VCARD\r\nFN:A\r\nEND:VCARD") << QList<ContactItem> {named("A")};
    QTest::newRow("an empty quoted charset is none") << QByteArray("BEGIN:VCARD\r\nFN;CHARSET=\"\":\xC5\xBD"
                                                                   "ana\r\nEND:VCARD\r\n")
                                                     << QList<ContactItem> {named("Žana")};
    QTest::newRow("a card not ended")
        << QByteArray("BEGIN:VCARD\r\nFN:A\r\nEND:VCARD\r\nBEGIN:VCARD\r\nFN:B\r\n")
        << QList<ContactItem> {named("A")};
    QTest::newRow("a group before the name")
        << QByteArray("BEGIN:VCARD\r\n.FN:A\r\nitem1.TEL;CELL:1\r\nEND:VCARD\r\n")
        << QList<ContactItem> {{{P::FullName, QStringLiteral("A")}, {P::MobilePhone, QStringLiteral("1")}}};
    QTest::newRow("only a home address")
        << QByteArray(
               "BEGIN:VCARD\r\nFN:A\r\nADR;TYPE=home:;;Namų g. 2;Kaunas;;44000;Lietuva\r\nEND:VCARD\r\n")
        << QList<ContactItem> {{{P::FullName, QStringLiteral("A")}, {P::Street, QStringLiteral("Namų g. 2")},
               {P::City, QStringLiteral("Kaunas")}, {P::PostalCode, QStringLiteral("44000")},
               {P::Country, QStringLiteral("Lietuva")}}};
    QTest::newRow("the work address before a home one")
        << QByteArray(
               "BEGIN:VCARD\r\nFN:A\r\nADR;WORK:;;Darbo g. 1;Vilnius\r\nADR;HOME:;;Namų g. 2;Kaunas;LT\r\n"
               "ADR;WORK:;;Kita g. 3;Alytus\r\nEND:VCARD\r\n")
        << QList<ContactItem> {{{P::FullName, QStringLiteral("A")}, {P::Street, QStringLiteral("Darbo g. 1")},
               {P::City, QStringLiteral("Vilnius")}}};
}

void ContactImportTest::vCardEdges()
{
    QFETCH(QByteArray, file);
    QFETCH(QList<ContactItem>, contacts);
    QCOMPARE(readVCards(file), contacts);
}

void ContactImportTest::codePageGuess_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("codePage");
    const QString baltic = QStringLiteral("windows-1257");
    const QString western = QStringLiteral("windows-1252");
    const QByteArray nineOthers(9, '\xE9');

    QTest::newRow("plain ASCII") << QByteArray("Jonas Jonaitis") << western;
    QTest::newRow("only bytes below 0xC0") << QByteArray("\x8Akoda \x9A\xB5") << western;
    QTest::newRow("Western letters") << QByteArray("Gro\xDF M\xFCller") << western;
    QTest::newRow("Š") << QByteArray("\xD0iauliai") << baltic;
    QTest::newRow("Ž") << QByteArray("\xDEvejys") << baltic;
    QTest::newRow("š") << QByteArray("Ma\xF0ina") << baltic;
    QTest::newRow("ž") << QByteArray("Gra\xFEus") << baltic;
    QTest::newRow("one in ten") << QByteArray("\xD0") + nineOthers << baltic;
    QTest::newRow("one in eleven") << QByteArray("\xD0") + nineOthers + '\xE9' << western;
    QTest::newRow("0xC0 is one of the letters") << QByteArray("\xD0") + nineOthers + '\xC0' << western;
    QTest::newRow("0xBF is none") << QByteArray("\xD0") + nineOthers + '\xBF' << baltic;
}

void ContactImportTest::codePageGuess()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, codePage);
    QCOMPARE(guessCodePage(text), codePage);
}

void ContactImportTest::codePageNames()
{
    for (const char* name : {"windows-1257", " windows-1252 ", "UTF-8", "ISO-8859-13"})
        QVERIFY2(isKnownCodePage(QString::fromLatin1(name)), name);
    for (const char* name : {"", "  ", "nonsense", "windows-12570"})
        QVERIFY2(!isKnownCodePage(QString::fromLatin1(name)), name);

    const QByteArray utf8 = QStringLiteral("Žemaitė").toUtf8();
    for (const char* name : {"utf-8", "UTF8", " Utf-8 "})
        QCOMPARE(decodeText(utf8, QString::fromLatin1(name)), QStringLiteral("Žemaitė"));
    QCOMPARE(decodeText("\xDE"
                        "emait\xEB",
                 QStringLiteral("Windows-1257")),
        QStringLiteral("Žemaitė"));
    // An unknown name reads as windows-1252.
    for (const char* name : {"nonsense", ""})
        QCOMPARE(decodeText("Caf\xE9 \x80", QString::fromLatin1(name)), QStringLiteral("Café €"));
}
