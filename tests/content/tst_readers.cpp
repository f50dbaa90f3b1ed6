#include "TestFiles.h"
#include "content/FileText.h"
#include "content/TextDecoding.h"
#include "harness/OfficeTemplates.h"
#include "platform/LibreOfficeSuite.h"

#include <QDir>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

constexpr qint64 Limit = 50 * 1024 * 1024;

QByteArray encoded(const char* encoding, const QString& text)
{
    QStringEncoder encoder(encoding);
    return encoder.encode(text);
}

// Makes the file of one kind of the data rows below in folder; its path.
QString makeFile(const QString& kind, const QDir& folder)
{
    const QString lithuanian = QStringLiteral("Ąžuolų Čiurlionio Šiaulių ĖĮŲŪ ęįųū žąsų");
    const QString path = folder.filePath(kind);
    if (kind == QLatin1String("text.pdf"))
        writePdf(path, {QStringLiteral("Sutartis su Šiaulių bendrove"), QStringLiteral("Antras lapas žąsų")});
    else if (kind == QLatin1String("text.odt"))
        writeOpenDocument(path, {QStringLiteral("Ąžuolų sąrašas"), QStringLiteral("Antra eilutė")});
    else if (kind == QLatin1String("text.docx"))
        writeWordDocument(path, {QStringLiteral("Čiuožykla žiemą"), QStringLiteral("Antra pastraipa")});
    else if (kind == QLatin1String("cells.xlsx"))
        writeSpreadsheet(path, {QStringLiteral("Šilutė"), QStringLiteral("Žemė")});
    else if (kind == QLatin1String("slides.pptx"))
        writePresentation(path, {QStringLiteral("Pirma skaidrė"), QStringLiteral("Antra skaidrė")});
    else if (kind == QLatin1String("utf8.txt"))
        writeBytes(path, lithuanian.toUtf8());
    else if (kind == QLatin1String("baltic.txt"))
        writeBytes(path, encoded("windows-1257", lithuanian));
    else if (kind == QLatin1String("utf16.txt"))
        writeBytes(path, encoded("UTF-16LE", QChar(QChar::ByteOrderMark) + lithuanian));
    else if (kind == QLatin1String("declared.html"))
        writeBytes(path,
            "<html><head><meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1257\">"
            "<style>p { color: red }</style><script>var hidden = 1;</script></head><body><p>"
                + encoded("windows-1257", lithuanian)
                + "</p><p>&scaron;ilas &amp; &#381;emaitija</p></body></html>");
    else if (kind == QLatin1String("plain.htm"))
        writeBytes(path, "<p>" + lithuanian.toUtf8() + "<br>kita</p>");
    else if (kind == QLatin1String("codepage.rtf"))
        writeBytes(path,
            "{\\rtf1\\ansi\\ansicpg1257\\deff0{\\fonttbl{\\f0 Times New Roman Baltic;}}{\\*\\generator "
            "Kartella;}"
            "\\pard \\'c0\\'feuolu \\'d0iauli\\'f8\\par \\u381?emaitija\\tab galas}");
    else if (kind == QLatin1String("quoted.eml"))
        writeBytes(path,
            "From: =?UTF-8?B?" + QStringLiteral("Ona Petraitienė").toUtf8().toBase64()
                + "?= <ona@example.lt>\r\nTo: jonas@example.lt\r\nSubject: =?ISO-8859-13?Q?Su=F0i?=\r\n "
                  "=?ISO-8859-13?Q?_=FEemaitija?=\r\n"
                  "Content-Type: text/plain; charset=ISO-8859-13\r\nContent-Transfer-Encoding: "
                  "quoted-printable\r\n\r\n"
                  "Laba diena, =C0=FEuolai ir =D0iauliai.=\r\n Pabaiga\r\n");
    else if (kind == QLatin1String("parts.eml"))
        writeBytes(path,
            "From: a@example.lt\nSubject: Sutartis\nContent-Type: multipart/mixed; boundary=\"XYZ\"\n\n"
            "--XYZ\nContent-Type: text/plain; charset=utf-8\nContent-Transfer-Encoding: base64\n\n"
                + QStringLiteral("Sveiki, čia sutartis").toUtf8().toBase64()
                + "\n--XYZ\nContent-Type: application/octet-stream\nContent-Disposition: attachment; "
                  "filename=x.bin\nContent-Transfer-Encoding: base64\n\n"
                + QByteArray("slaptas priedas").toBase64() + "\n--XYZ--\n");
    return path;
}

} // namespace

class ReadersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheTextOfEveryKind_data();
    void readsTheTextOfEveryKind();
    void recordsWhyAFileIsNotRead_data();
    void recordsWhyAFileIsNotRead();
    void decodesTheEncodingDeclaredElseUtf8ElseBaltic_data();
    void decodesTheEncodingDeclaredElseUtf8ElseBaltic();
    void readsTheOldOfficeFilesOurTemplatesMake_data();
    void readsTheOldOfficeFilesOurTemplatesMake();
};

void ReadersTest::readsTheTextOfEveryKind_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QStringList>("found");
    QTest::addColumn<QStringList>("absent");
    const QString lithuanian = QStringLiteral("Ąžuolų Čiurlionio Šiaulių ĖĮŲŪ ęįųū žąsų");
    QTest::newRow("pdf") << "text.pdf" << QStringList {"Sutartis su Šiaulių bendrove", "Antras lapas žąsų"}
                         << QStringList {"Vilniaus"};
    QTest::newRow("odt") << "text.odt" << QStringList {"Ąžuolų sąrašas\nAntra eilutė", "langelis\tkitas"}
                         << QStringList {"sąrašasAntra"};
    QTest::newRow("docx") << "text.docx" << QStringList {"Čiuožykla žiemą\nAntra pastraipa"}
                          << QStringList {"PAGE"};
    QTest::newRow("xlsx") << "cells.xlsx" << QStringList {"Šilutė\tŽemė\t1234.5"} << QStringList {};
    QTest::newRow("pptx") << "slides.pptx" << QStringList {"Pirma skaidrė\nAntra skaidrė"} << QStringList {};
    QTest::newRow("txt utf-8") << "utf8.txt" << QStringList {lithuanian} << QStringList {};
    QTest::newRow("txt windows-1257") << "baltic.txt" << QStringList {lithuanian} << QStringList {};
    QTest::newRow("txt utf-16") << "utf16.txt" << QStringList {lithuanian} << QStringList {};
    QTest::newRow("html declared") << "declared.html" << QStringList {lithuanian, "šilas & Žemaitija"}
                                   << QStringList {"hidden", "color", "<p>"};
    QTest::newRow("html utf-8") << "plain.htm" << QStringList {lithuanian + "\nkita"} << QStringList {"<br>"};
    QTest::newRow("rtf") << "codepage.rtf" << QStringList {"Ąžuolu Šiaulių\nŽemaitija\tgalas"}
                         << QStringList {"Times", "Kartella", "?"};
    QTest::newRow("eml quoted-printable")
        << "quoted.eml"
        << QStringList {"Subject: Suši žemaitija", "From: Ona Petraitienė <ona@example.lt>",
               "To: jonas@example.lt", "Ąžuolai ir Šiauliai. Pabaiga"}
        << QStringList {"=C0", "Content-Type"};
    QTest::newRow("eml multipart") << "parts.eml" << QStringList {"Subject: Sutartis", "Sveiki, čia sutartis"}
                                   << QStringList {"slaptas", "XYZ"};
}

void ReadersTest::readsTheTextOfEveryKind()
{
    QFETCH(QString, kind);
    QFETCH(QStringList, found);
    QFETCH(QStringList, absent);
    QTemporaryDir folder;
    const QString path = makeFile(kind, QDir(folder.path()));
    const FileText text = readFileText(path, Limit);
    QCOMPARE(text.state, TextState::Read);
    QVERIFY(text.reason.isEmpty());
    for (const QString& words : found)
        QVERIFY2(text.body.contains(words), qPrintable(words + " not in: " + text.body));
    for (const QString& words : absent)
        QVERIFY2(!text.body.contains(words), qPrintable(words + " in: " + text.body));
}

void ReadersTest::recordsWhyAFileIsNotRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("reason");
    const int failed = int(TextState::Failed);
    QTest::newRow("damaged pdf") << "broken.pdf" << QByteArray("%PDF-1.4\n1 0 obj << /Type /Cat") << failed
                                 << "damaged";
    QTest::newRow("not a pdf at all")
        << "broken2.pdf" << QByteArray("PK\x03\x04 nothing") << failed << "damaged";
    QTest::newRow("password-protected pdf")
        << "locked.pdf" << encryptedPdf() << failed << "password-protected";
    QTest::newRow("damaged docx") << "broken.docx" << QByteArray("PK\x03\x04 cut short") << failed
                                  << "damaged";
    QTest::newRow("password-protected docx")
        << "locked.docx" << QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 encrypted package") << failed
        << "password-protected";
    QTest::newRow("damaged rtf") << "broken.rtf" << QByteArray("not rtf") << failed << "damaged";
    QTest::newRow("image") << "scan.jpg" << QByteArray("\xFF\xD8\xFF\xE0 jpeg") << int(TextState::NoText)
                           << "";
    QTest::newRow("no extension") << "README" << QByteArray("text") << int(TextState::NoText) << "";
    QTest::newRow("larger than the limit")
        << "big.txt" << QByteArray(1024 * 1024 + 1, 'a') << failed << "larger than 1 MB";
    QTest::newRow("at the limit") << "limit.txt" << QByteArray(1024 * 1024, 'a') << int(TextState::Read)
                                  << "";
    QTest::newRow("file not found") << "" << QByteArray() << failed << "file not found";
}

void ReadersTest::recordsWhyAFileIsNotRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(int, state);
    QFETCH(QString, reason);
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("missing.pdf"));
    if (!name.isEmpty()) {
        path = folder.filePath(name);
        writeBytes(path, bytes);
    }
    const FileText text = readFileText(path, 1024 * 1024);
    QCOMPARE(int(text.state), state);
    QCOMPARE(text.reason, reason);
    if (text.state != TextState::Read)
        QVERIFY(text.body.isEmpty());
}

void ReadersTest::decodesTheEncodingDeclaredElseUtf8ElseBaltic_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("declared");
    const QString letters = QStringLiteral("ĄČĘĖĮŠŲŪŽ ąčęėįšųūž");
    QTest::newRow("utf-8 undeclared") << letters.toUtf8() << QByteArray();
    QTest::newRow("windows-1257 undeclared") << encoded("windows-1257", letters) << QByteArray();
    QTest::newRow("windows-1257 declared") << encoded("windows-1257", letters) << QByteArray("windows-1257");
    QTest::newRow("iso-8859-13 declared") << encoded("ISO-8859-13", letters) << QByteArray("ISO-8859-13");
    QTest::newRow("utf-8 declared") << letters.toUtf8() << QByteArray("UTF-8");
    QTest::newRow("unknown name declared") << letters.toUtf8() << QByteArray("x-no-such-charset");
    QTest::newRow("utf-16 with its mark")
        << encoded("UTF-16BE", QChar(QChar::ByteOrderMark) + letters) << QByteArray();
}

void ReadersTest::decodesTheEncodingDeclaredElseUtf8ElseBaltic()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, declared);
    QString text = decodeText(bytes, declared);
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    QCOMPARE(text, QStringLiteral("ĄČĘĖĮŠŲŪŽ ąčęėįšųūž"));
}

void ReadersTest::readsTheOldOfficeFilesOurTemplatesMake_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("doc") << int(OfficeSuite::Kind::Word);
    QTest::newRow("xls") << int(OfficeSuite::Kind::Excel);
    QTest::newRow("ppt") << int(OfficeSuite::Kind::PowerPoint);
}

void ReadersTest::readsTheOldOfficeFilesOurTemplatesMake()
{
    if (!hasLibreOffice())
        QSKIP("LibreOffice (soffice) is not installed: the old Office formats can't be made here");
    QFETCH(int, kind);
    const auto officeKind = OfficeSuite::Kind(kind);
    QTemporaryDir folder;
    // The template holds "Template marker <name>"; the new document is made from it as the
    // program makes one.
    const QString templatePath
        = makeOfficeTemplate(officeKind, folder.path(), QStringLiteral("Šiaulių žąsys"));
    QVERIFY(!templatePath.isEmpty());
    const QString document
        = folder.filePath(QStringLiteral("new.") + LibreOfficeSuite::extension(officeKind));
    LibreOfficeSuite().create(officeKind, templatePath, document);
    const FileText text = readFileText(document, Limit);
    QCOMPARE(text.state, TextState::Read);
    QVERIFY2(text.body.contains(QStringLiteral("Template marker Šiaulių žąsys")), qPrintable(text.body));
}

int runReadersTest(int argc, char** argv)
{
    ReadersTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_readers.moc"
