#include "tst_contactimport.h"

#include "ContactFiles.h"
#include "ImportRuns.h"
#include "addressbook/import/OutlookImport.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "platform/Prompter.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

void ContactImportTest::importWritesRowsInOrder()
{
    TestRegister reg;
    reg.insert(
        QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), QStringLiteral("Already There")}});
    const QByteArray file
        = "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:Ona Petraitienė\r\nORG:UAB Šviesa\r\nTITLE:Direktorė\r\n"
          "TEL;PAGER:5\r\nTEL;FAX:4\r\nTEL;CELL:3\r\nTEL;HOME:2\r\nTEL;WORK:1\r\n"
          "NOTE:Skambinti po 10\\, ne anksčiau\\nRaštinė\r\n 2 aukšte\r\n"
          "ADR;WORK:;;Gedimino 1;Vilnius;Vilniaus;01103;Lietuva\r\nEMAIL:ona@x.lt\r\n"
          "URL:http://x.lt\r\nEND:VCARD\r\n"
          "BEGIN:VCARD\r\nVERSION:2.1\r\nORG:Only Company\r\nTEL:9\r\nEND:VCARD\r\n"
          "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:No Phone\r\nEND:VCARD\r\n"
          "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:Web Only\r\nURL:http://w.lt\r\nEND:VCARD\r\n";
    QTemporaryDir dir;
    ScriptedPrompter prompter;
    QSignalSpy imported(&ContactImportNotifier::instance(), &ContactImportNotifier::contactsImported);
    QVERIFY(importFile(prompter, writeContactFile(dir.path(), QStringLiteral("c.vcf"), file)));

    QCOMPARE(prompter.texts(), (QStringList {Question, closing(Success, 3, 0, 0, 1)}));
    QCOMPARE(prompter.prompts()[0].title, QStringLiteral("Contact Manager"));
    QCOMPARE(prompter.prompts()[0].style, 36);
    QCOMPARE(prompter.prompts()[1].title, ClosingTitle);
    QCOMPARE(prompter.prompts()[1].style, 0);
    QCOMPARE(imported.size(), 1);

    QCOMPARE(rows(reg,
                 QStringLiteral(
                     "SELECT ContactID, CompanyName, Title, Dear, FullName, Address, City, StateOrProvince, "
                     "PostalCode, Country, EmailName, Notes FROM tbl_Contacts ORDER BY ContactID")),
        (QStringList {
            QStringLiteral(
                "1|<null>|<null>|<null>|Already There|<null>|<null>|<null>|<null>|<null>|<null>|<null>"),
            QStringLiteral(
                "2|UAB Šviesa|Direktorė|<null>|Ona Petraitienė|Gedimino 1|Vilnius|Vilniaus|01103|Lietuva|"
                "ona@x.lt|Skambinti po 10, ne anksčiau\nRaštinė 2 aukšte"),
            QStringLiteral(
                "3|<null>|<null>|<null>|No Phone|<null>|<null>|<null>|<null>|<null>|<null>|<null>"),
            QStringLiteral(
                "4|<null>|<null>|<null>|Web Only|<null>|<null>|<null>|<null>|<null>|<null>|<null>"),
        }));
    QCOMPARE(rows(reg,
                 QStringLiteral(
                     "SELECT PhoneID, ContactID, PhoneName, PhoneNumber FROM tbl_Phones ORDER BY PhoneID")),
        (QStringList {QStringLiteral("1|2|Business|1"), QStringLiteral("2|2|Home|2"),
            QStringLiteral("3|2|Mobile|3"), QStringLiteral("4|2|Fax|4"), QStringLiteral("5|2|Pager|5")}));
    QCOMPARE(rows(reg,
                 QStringLiteral(
                     "SELECT HomeID, ContactID, Description, HomeWWW FROM tbl_HomePages ORDER BY HomeID")),
        (QStringList {QStringLiteral("1|2|<null>|http://x.lt"), QStringLiteral("2|4|<null>|http://w.lt")}));
    // The history tells that the import wrote them.
    QCOMPARE(rows(reg,
                 QStringLiteral(
                     "SELECT TableName, COUNT(DISTINCT RowKey), Command FROM tbl_History WHERE RowKey > 1 "
                     "OR TableName <> 'tbl_Contacts' GROUP BY TableName, Command ORDER BY TableName")),
        (QStringList {QStringLiteral("tbl_Contacts|3|Import"), QStringLiteral("tbl_HomePages|2|Import"),
            QStringLiteral("tbl_Phones|5|Import")}));
}

void ContactImportTest::duplicateRuleFoldsCaseOnly_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("imported");
    QTest::addColumn<bool>("added");
    QTest::newRow("same") << QStringLiteral("Jonas Jonaitis") << QStringLiteral("Jonas Jonaitis") << false;
    QTest::newRow("upper case") << QStringLiteral("Jonas Jonaitis") << QStringLiteral("JONAS JONAITIS")
                                << false;
    QTest::newRow("every Lithuanian letter")
        << QStringLiteral("ĄČĘĖĮŠŲŪŽ ąčęėįšųūž") << QStringLiteral("ąčęėįšųūž ĄČĘĖĮŠŲŪŽ") << false;
    QTest::newRow("other letters") << QStringLiteral("Jürgen Ørsted Δήμος")
                                   << QStringLiteral("JÜRGEN øRSTED ΔΉΜΟΣ") << false;
    QTest::newRow("accent differs") << QStringLiteral("Ona Petraitienė") << QStringLiteral("Ona Petraitiene")
                                    << true;
    QTest::newRow("base letter for Š") << QStringLiteral("Šarūnas") << QStringLiteral("Sarunas") << true;
    QTest::newRow("blanks differ") << QStringLiteral("Jonas Jonaitis") << QStringLiteral("Jonas  Jonaitis")
                                   << true;
    QTest::newRow("wildcard in name") << QStringLiteral("A_B 100%") << QStringLiteral("a_b 100%") << false;
    QTest::newRow("a wildcard is a plain character")
        << QStringLiteral("AxB") << QStringLiteral("a_b") << true;
    QTest::newRow("a quote is a plain character")
        << QStringLiteral("O'Brien") << QStringLiteral("o'brien") << false;
}

void ContactImportTest::duplicateRuleFoldsCaseOnly()
{
    QFETCH(QString, stored);
    QFETCH(QString, imported);
    QFETCH(bool, added);
    TestRegister reg;
    reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), stored}});
    QTemporaryDir dir;
    const QByteArray file = "BEGIN:VCARD\nFN:" + imported.toUtf8() + "\nTEL:1\nEND:VCARD\n";
    ScriptedPrompter prompter;
    // An open contact list is told to refresh only when contacts were added.
    QSignalSpy refreshes(&ContactImportNotifier::instance(), &ContactImportNotifier::contactsImported);
    QVERIFY(importFile(prompter, writeContactFile(dir.path(), QStringLiteral("c.vcf"), file)));
    QCOMPARE(refreshes.size(), added ? 1 : 0);
    QCOMPARE(contactNames(reg), added ? QStringList({stored, imported}) : QStringList {stored});
    QCOMPARE(rows(reg, QStringLiteral("SELECT ContactID, PhoneNumber FROM tbl_Phones")),
        added ? QStringList {QStringLiteral("2|1")} : QStringList {});
}

void ContactImportTest::cutsAndRepeatedRuns()
{
    TestRegister reg;
    QTemporaryDir dir;
    const QString name50 = QString(49, u'n') + u'Ž';
    const QString name51 = QString(50, u'm') + u'X';
    const QString name60 = QString(60, u'L');
    const QString street = QString(254, u's') + QStringLiteral("ŪT") + QString(44, u'x'); // 300
    const QString company = QString(50, u'c') + u'D';
    const QString state = QString(20, u'r') + u'S';
    const QString country = QString(80, u'k');
    QString csv = QStringLiteral(
        "First Name,Last Name,Company,Business Street,Business State,Business Country/Region,"
        "Business Phone\r\n");
    csv += name50 + QStringLiteral(",,") + company + u',' + street + u',' + state + u',' + country
        + QStringLiteral(",1\r\n");
    csv += name51 + QStringLiteral(",,,,,,2\r\n");
    csv += QStringLiteral(",") + name60 + QStringLiteral(",,,,,3\r\n");
    csv += QStringLiteral(",,Company Only,,,,4\r\n");
    const QString path = writeContactFile(dir.path(), QStringLiteral("c.csv"), csv.toUtf8());

    ScriptedPrompter prompter;
    QVERIFY(importFile(prompter, path));
    QCOMPARE(contactNames(reg), (QStringList {name50, name51.left(50), name60.left(50)}));
    QCOMPARE(rows(reg,
                 QStringLiteral("SELECT CompanyName, Address, StateOrProvince, Country FROM tbl_Contacts "
                                "WHERE ContactID=1")),
        QStringList {company.left(50) + u'|' + QString(254, u's') + QStringLiteral("Ū|") + state.left(20)
            + u'|' + country});

    // Found again, apart from the names longer than 50, which are looked up whole and stored cut.
    QVERIFY(importFile(prompter, path));
    QCOMPARE(contactNames(reg),
        (QStringList {name50, name51.left(50), name60.left(50), name51.left(50), name60.left(50)}));
    QCOMPARE(rows(reg, QStringLiteral("SELECT ContactID, PhoneNumber FROM tbl_Phones ORDER BY PhoneID")),
        (QStringList {QStringLiteral("1|1"), QStringLiteral("2|2"), QStringLiteral("3|3"),
            QStringLiteral("4|2"), QStringLiteral("5|3")}));
    QCOMPARE(prompter.texts().filter(Success),
        (QStringList {closing(Success, 3, 0, 0, 1), closing(Success, 2, 1, 0, 1)}));
}

void ContactImportTest::namesWithQuotesAndWildcards_data()
{
    places();
}

// Quotes and Like's wildcards in a name are plain characters: such names are stored, and
// a duplicate is a name equal but for letter case, never one a wildcard would match.
void ContactImportTest::namesWithQuotesAndWildcards()
{
    QFETCH(TestRegister::Where, where);
    if (where == TestRegister::Server && !ServerDatabase::available())
        QSKIP(qPrintable(ServerDatabase::skipReason()));
    TestRegister reg(where);
    QTemporaryDir dir;
    ScriptedPrompter prompter;
    const QStringList five = {QStringLiteral("Jonas"), QStringLiteral("Seán O'Brien"),
        QStringLiteral("\"Jono\" ir Ko"), QStringLiteral("Joana D'Arc"), QStringLiteral("100 Tikras")};
    QVERIFY(importFile(prompter, writeContactFile(dir.path(), QStringLiteral("five.vcf"), cards(five))));
    QCOMPARE(contactNames(reg), five);
    QCOMPARE(prompter.take().size(), 2);

    reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), QStringLiteral("AxB")}});
    const QStringList more = {QStringLiteral("SEÁN O'BRIEN"), QStringLiteral("100% Tikras"),
        QStringLiteral("A_B"), QStringLiteral("\"jono\" IR ko"), QStringLiteral("%"), QStringLiteral("Jo'")};
    QVERIFY(importFile(prompter, writeContactFile(dir.path(), QStringLiteral("more.vcf"), cards(more))));
    const QStringList added = {QStringLiteral("AxB"), QStringLiteral("100% Tikras"), QStringLiteral("A_B"),
        QStringLiteral("%"), QStringLiteral("Jo'")};
    QCOMPARE(contactNames(reg), five + added);
    const QList<ScriptedPrompter::Prompt> prompts = prompter.take();
    QCOMPARE(prompts.size(), 2);
    QCOMPARE(prompts[1].text, closing(Success, 4, 2, 0));
}

void ContactImportTest::failedStepKeepsTheOtherRows_data()
{
    QTest::addColumn<TestRegister::Where>("where");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("closingText");
    for (const TestRegister::Where where : {TestRegister::File, TestRegister::Server}) {
        const char* place = where == TestRegister::File ? "file" : "server";
        QTest::addRow("%s, yes", place)
            << where << int(MsgBoxResult::Yes)
            << QStringList {QStringLiteral("Jonas"), QStringLiteral("Petras")} << closing(Success, 2, 0, 1);
        QTest::addRow("%s, no", place) << where << int(MsgBoxResult::No)
                                       << QStringList {QStringLiteral("Jonas")} << closing(Failure, 1, 0, 1);
    }
}

// A step that fails is asked about; what was written before it stays, and on Yes the
// import goes on, on a server as in a file.
void ContactImportTest::failedStepKeepsTheOtherRows()
{
    QFETCH(TestRegister::Where, where);
    QFETCH(int, answer);
    QFETCH(QStringList, stored);
    QFETCH(QString, closingText);
    if (where == TestRegister::Server && !ServerDatabase::available())
        QSKIP(qPrintable(ServerDatabase::skipReason()));
    TestRegister reg(where);
    refuseName(reg, where);
    QTemporaryDir dir;
    ScriptedPrompter prompter;
    const QByteArray file = "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Jonas\r\nTEL;TYPE=CELL:1\r\nEND:VCARD\r\n"
        + cards({QStringLiteral("Refused")})
        + "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Petras\r\nTEL;TYPE=CELL:3\r\nEND:VCARD\r\n";
    QCOMPARE(importFile(prompter, writeContactFile(dir.path(), QStringLiteral("c.vcf"), file), {answer}),
        answer == MsgBoxResult::Yes);
    QCOMPARE(contactNames(reg), stored);
    QCOMPARE(rows(reg, QStringLiteral("SELECT PhoneNumber FROM tbl_Phones ORDER BY PhoneID")),
        answer == MsgBoxResult::Yes ? QStringList({QStringLiteral("1"), QStringLiteral("3")})
                                    : QStringList {QStringLiteral("1")});
    const QList<ScriptedPrompter::Prompt> prompts = prompter.prompts();
    QCOMPARE(prompts.size(), 3);
    QCOMPARE(prompts[1].title, QStringLiteral("Error in ImportOutlookData()"));
    QCOMPARE(prompts[1].style, 20);
    QVERIFY2(prompts[1].text.startsWith(
                 QStringLiteral("An error occured while importing data. The error was error "
                                "number -2147217900: ")),
        qPrintable(prompts[1].text));
    QVERIFY(prompts[1].text.contains(QStringLiteral("name refused")));
    QVERIFY(prompts[1].text.endsWith(QStringLiteral("Would you like to continue trying to import data?")));
    QCOMPARE(prompts[2].text, closingText);
    QCOMPARE(prompts[2].title, ClosingTitle);
}

void ContactImportTest::questionAndFileChoice()
{
    TestRegister reg;
    reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), QStringLiteral("Kept")}});
    QTemporaryDir dir;
    const QString good
        = writeContactFile(dir.path(), QStringLiteral("c.vcf"), cards({QStringLiteral("New")}));
    ScriptedPrompter prompter;

    prompter.answer(MsgBoxResult::No);
    QVERIFY(!OutlookImport().run());
    QCOMPARE(prompter.take().size(), 1);
    QVERIFY(prompter.fileRequests.isEmpty());

    prompter.answer(MsgBoxResult::Yes).answerFile(QString());
    QVERIFY(!OutlookImport().run());
    QCOMPARE(prompter.take().size(), 1);
    QCOMPARE(prompter.fileRequests.size(), 1);

    const QString missing = dir.filePath(QStringLiteral("missing.csv"));
    prompter.answer(MsgBoxResult::Yes).answerFile(missing).answer(MsgBoxResult::Ok);
    QVERIFY(!OutlookImport().run());
    QList<ScriptedPrompter::Prompt> prompts = prompter.take();
    QCOMPARE(prompts.size(), 2);
    QVERIFY(prompts[1].text.startsWith(QStringLiteral("An error occured while importing data.  ")));
    QVERIFY(prompts[1].text.contains(missing));
    QCOMPARE(prompts[1].style, 0);
    QCOMPARE(prompts[1].title, programTitle());

    const QString empty = writeContactFile(dir.path(), QStringLiteral("empty.vcf"), "\r\n");
    prompter.answer(MsgBoxResult::Yes).answerFile(empty).answer(MsgBoxResult::Ok);
    QVERIFY(!OutlookImport().run());
    prompts = prompter.take();
    QCOMPARE(prompts.size(), 2);
    QCOMPARE(prompts[1].text, QStringLiteral("Unable to find Outlook Contacts folder"));
    QCOMPARE(prompts[1].style, 16);
    QCOMPARE(contactNames(reg), QStringList {QStringLiteral("Kept")});

    // With the register gone every step fails; No at the first question stops the run.
    QFile::remove(reg.path());
    prompter.answer(MsgBoxResult::Yes).answerFile(good).answer(MsgBoxResult::No).answer(MsgBoxResult::Ok);
    QVERIFY(!OutlookImport().run());
    prompts = prompter.take();
    QCOMPARE(prompts.size(), 3);
    QCOMPARE(prompts[2].text, closing(Failure, 0, 0, 0));
    QVERIFY(prompter.allAnswered());
}

void ContactImportTest::commandLine_data()
{
    places();
}

// kartella-db import: quotes in names, its summary, and a status that tells of any error.
void ContactImportTest::commandLine()
{
    QFETCH(TestRegister::Where, where);
    if (where == TestRegister::Server && !ServerDatabase::available())
        QSKIP(qPrintable(ServerDatabase::skipReason()));
    TestRegister reg(where);
    reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), QStringLiteral("ŠARŪNAS")}});
    QTemporaryDir dir;
    const QByteArray csv = encoded(QStringLiteral("First Name\tLast Name\tMobile Phone\r\nŠarūnas\t\t1\r\n"
                                                  "Žana\tO'Neil\t2\r\nŽygimantas\t\t3\r\n"),
        "windows-1257");
    const QString path = writeContactFile(dir.path(), QStringLiteral("c.csv"), csv);
    const auto run = [&](const QStringList& arguments, QString* out, QString* err) {
        QProcess tool;
        tool.start(QStringLiteral(KARTELLA_DB_PATH), arguments);
        tool.waitForFinished(60000);
        *out = QString::fromUtf8(tool.readAllStandardOutput());
        *err = QString::fromUtf8(tool.readAllStandardError());
        return tool.exitCode();
    };
    QString out;
    QString err;
    QCOMPARE(run({QStringLiteral("import"), reg.path(), path, QStringLiteral("--codepage"),
                     QStringLiteral("windows-1257")},
                 &out, &err),
        0);
    QCOMPARE(out, QStringLiteral("2 contacts added, 1 skipped, 0 failed\n"));
    QCOMPARE(err, QString());
    QCOMPARE(contactNames(reg),
        (QStringList {
            QStringLiteral("ŠARŪNAS"), QStringLiteral("Žana O'Neil"), QStringLiteral("Žygimantas")}));
    QCOMPARE(rows(reg,
                 QStringLiteral("SELECT ContactID, PhoneName, PhoneNumber FROM tbl_Phones ORDER BY PhoneID")),
        (QStringList {QStringLiteral("2|Mobile|2"), QStringLiteral("3|Mobile|3")}));

    // A contact the register refuses: the others are stored, the summary counts it, the status is 1.
    refuseName(reg, where);
    const QString refused = writeContactFile(dir.path(), QStringLiteral("r.vcf"),
        cards({QStringLiteral("Ona"), QStringLiteral("Refused"), QStringLiteral("Žana O'Neil")}));
    QCOMPARE(run({QStringLiteral("import"), reg.path(), refused}, &out, &err), 1);
    QCOMPARE(out, QStringLiteral("1 contacts added, 1 skipped, 1 failed\n"));
    QVERIFY2(
        err.contains(QStringLiteral("error -2147217900")) && err.contains(QStringLiteral("name refused")),
        qPrintable(err));
    QCOMPARE(contactNames(reg).size(), 4);

    QCOMPARE(
        run({QStringLiteral("import"), reg.path(), dir.filePath(QStringLiteral("none.vcf"))}, &out, &err), 1);
    QVERIFY2(err.contains(QStringLiteral("none.vcf")), qPrintable(err));
    QCOMPARE(
        run({QStringLiteral("import"), reg.path(), path, QStringLiteral("--codepage=nonsense")}, &out, &err),
        1);
    QCOMPARE(run({QStringLiteral("import"), reg.path()}, &out, &err), 2);
    QCOMPARE(contactNames(reg).size(), 4);
}

QTEST_GUILESS_MAIN(ContactImportTest)
