// The vCard reader at its edges: cards inside cards, lines outside them, values that look
// like something they are not.
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
