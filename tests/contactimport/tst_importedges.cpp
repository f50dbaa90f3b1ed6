// The import at its edges: the same name twice in one file, a name another program stores
// while the import runs, the import's messages in Lithuanian, the busy state around its
// questions, and the name index it looks names up in.
#include "ContactFiles.h"
#include "ImportRuns.h"
#include "addressbook/import/ContactImporter.h"
#include "addressbook/import/ContactNameIndex.h"
#include "addressbook/import/OutlookImport.h"
#include "base/Error.h"
#include "harness/ServerDatabase.h"
#include "platform/Prompter.h"
#include "platform/Translations.h"
#include "store/engine/Connection.h"
#include "store/engine/Value.h"
#include "tst_contactimport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace kartella;
using namespace kartella::test;
namespace P = kartella::ContactProperty;

void ContactImportTest::sameNameTwiceInOneFile()
{
    TestRegister reg;
    QTemporaryDir dir;
    ScriptedPrompter prompter;
    const QString path = writeContactFile(dir.path(), QStringLiteral("c.vcf"),
        cards({QStringLiteral("Žana Petraitė"), QStringLiteral("ŽANA PETRAITĖ"), QStringLiteral("Ona"),
            QStringLiteral("žana petraitė")}));
    QVERIFY(importFile(prompter, path));
    QCOMPARE(contactNames(reg), (QStringList {QStringLiteral("Žana Petraitė"), QStringLiteral("Ona")}));
    QCOMPARE(prompter.texts().last(), closing(Success, 2, 2, 0));
}

// The names another program stores while the import waits for an answer are skipped as
// already there when the import goes on.
void ContactImportTest::namesStoredMeanwhileAreSkipped()
{
    TestRegister reg;
    refuseName(reg, TestRegister::File);
    const auto contact = [](const char* name, const char* mobile) {
        return ContactItem {
            {P::FullName, QString::fromUtf8(name)}, {P::MobilePhone, QString::fromUtf8(mobile)}};
    };
    QStringList told;
    ContactImporter importer(reg.connectionString(), [&](const Error& error) {
        told << error.description();
        reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), QStringLiteral("Petras")}});
        return true;
    });
    QVERIFY(importer.run(
        {contact("Jonas", "1"), contact("Refused", "2"), contact("PETRAS", "3"), contact("Ona", "4")}));
    QCOMPARE(told.size(), 1);
    QCOMPARE(contactNames(reg),
        (QStringList {QStringLiteral("Jonas"), QStringLiteral("Petras"), QStringLiteral("Ona")}));
    QCOMPARE(rows(reg, QStringLiteral("SELECT ContactID, PhoneNumber FROM tbl_Phones ORDER BY PhoneID")),
        (QStringList {QStringLiteral("1|1"), QStringLiteral("3|4")}));
    QCOMPARE(importer.counts().added, 2);
    QCOMPARE(importer.counts().alreadyThere, 1);
    QCOMPARE(importer.counts().failed, 1);
}

// Every message of the import, and the chooser, speak the interface's language.
void ContactImportTest::importSpeaksLithuanian()
{
    const QList<QTranslator*> before = QCoreApplication::instance()->findChildren<QTranslator*>();
    const auto english = qScopeGuard([&before] {
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            if (!before.contains(translator)) {
                QCoreApplication::removeTranslator(translator);
                delete translator;
            }
        }
    });
    QVERIFY(installTranslations({QStringLiteral("lt")}).startsWith(QLatin1String("lt")));
    TestRegister reg;
    refuseName(reg, TestRegister::File);
    QTemporaryDir dir;
    ScriptedPrompter prompter;
    const QString question = QStringLiteral("Bus importuoti VISI Outlook kontaktai. Ar tęsti?");
    const QString readError = QStringLiteral("Importuojant duomenis įvyko klaida.  ");

    const QString missing = dir.filePath(QStringLiteral("nėra.vcf"));
    prompter.answer(MsgBoxResult::Yes).answerFile(missing).answer(MsgBoxResult::Ok);
    QVERIFY(!OutlookImport().run());
    QList<ScriptedPrompter::Prompt> prompts = prompter.take();
    QCOMPARE(prompts.size(), 2);
    QCOMPARE(prompts[0].text, question);
    QCOMPARE(prompts[0].title, QStringLiteral("Kontaktų tvarkyklė"));
    QCOMPARE(prompter.fileRequests.size(), 1);
    QCOMPARE(prompter.fileRequests[0].title, QStringLiteral("Importuoti kontaktus"));
    QCOMPARE(prompter.fileRequests[0].filterLabel, QStringLiteral("vCard ir Outlook CSV failai"));
    QCOMPARE(prompter.fileRequests[0].pattern, QStringLiteral("*.vcf;*.vcard;*.csv"));
    QCOMPARE(prompter.fileRequests[0].startFolder, QDir::homePath());
    QVERIFY2(prompts[1].text.startsWith(readError + QStringLiteral("Kontaktų failo „") + missing
                 + QStringLiteral("“ nepavyko perskaityti: ")),
        qPrintable(prompts[1].text));

    // A file that opens but whose reading fails.
    if (QFile::exists(QStringLiteral("/proc/self/mem"))) {
        prompter.answer(MsgBoxResult::Yes)
            .answerFile(QStringLiteral("/proc/self/mem"))
            .answer(MsgBoxResult::Ok);
        QVERIFY(!OutlookImport().run());
        const QString text = prompter.take().last().text;
        QVERIFY2(text.startsWith(
                     readError + QStringLiteral("Kontaktų failo „/proc/self/mem“ nepavyko perskaityti: ")),
            qPrintable(text));
    }

    const QString picture = writeContactFile(dir.path(), QStringLiteral("p.csv"), "\x89PNG\r\n");
    prompter.answer(MsgBoxResult::Yes).answerFile(picture).answer(MsgBoxResult::Ok);
    QVERIFY(!OutlookImport().run());
    QCOMPARE(prompter.take().last().text,
        readError + QStringLiteral("Kontaktų failas „") + picture
            + QStringLiteral("“ nėra nei vCard failas, nei Outlook CSV eksportas."));

    const QString empty = writeContactFile(dir.path(), QStringLiteral("e.vcf"), "\r\n");
    prompter.answer(MsgBoxResult::Yes).answerFile(empty).answer(MsgBoxResult::Ok);
    QVERIFY(!OutlookImport().run());
    QCOMPARE(prompter.take().last().text, QStringLiteral("Nepavyko rasti Outlook kontaktų aplanko"));

    // A contact without a name, one stored, one the register refuses: Yes at its error, then
    // the same file again and No.
    const QString file = writeContactFile(dir.path(), QStringLiteral("c.vcf"),
        "BEGIN:VCARD\r\nORG:Be vardo\r\nEND:VCARD\r\n"
            + cards({QStringLiteral("Jonas"), QStringLiteral("Refused")}));
    const QString closingTitle = QStringLiteral("Kontaktų importas iš Outlook");
    const QStringList closings = {
        QStringLiteral("Kontaktai sėkmingai importuoti.\n\n"
                       "Pridėta: 1, praleista (jau yra): 0, nepavyko: 1, praleista be vardo: 1."),
        QStringLiteral("Kontaktai neimportuoti.\n\n"
                       "Pridėta: 0, praleista (jau yra): 1, nepavyko: 1, praleista be vardo: 1."),
    };
    for (const int answer : {MsgBoxResult::Yes, MsgBoxResult::No}) {
        QCOMPARE(importFile(prompter, file, {answer}), answer == MsgBoxResult::Yes);
        prompts = prompter.take();
        QCOMPARE(prompts.size(), 3);
        QCOMPARE(prompts[1].title, QStringLiteral("Klaida ImportOutlookData()"));
        QVERIFY2(prompts[1].text.startsWith(
                     QStringLiteral("Importuojant duomenis įvyko klaida. Klaidos numeris -2147217900: ")),
            qPrintable(prompts[1].text));
        QVERIFY2(prompts[1].text.endsWith(QStringLiteral("Ar bandyti importuoti toliau?")),
            qPrintable(prompts[1].text));
        QCOMPARE(prompts[2].text, closings[answer == MsgBoxResult::Yes ? 0 : 1]);
        QCOMPARE(prompts[2].title, closingTitle);
    }
    QCOMPARE(contactNames(reg), QStringList {QStringLiteral("Jonas")});
}

void ContactImportTest::busyOnlyWhileWriting_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("changes");
    // Each change of the busy state, with the messages shown before it.
    QTest::newRow("yes") << int(MsgBoxResult::Yes)
                         << QStringList {QStringLiteral("busy after 1"), QStringLiteral("idle after 1"),
                                QStringLiteral("busy after 2"), QStringLiteral("idle after 2")};
    QTest::newRow("no") << int(MsgBoxResult::No)
                        << QStringList {QStringLiteral("busy after 1"), QStringLiteral("idle after 1"),
                               QStringLiteral("idle after 2"), QStringLiteral("idle after 2")};
}

// Busy from the file's first row to its last, idle while a failed step is asked about.
void ContactImportTest::busyOnlyWhileWriting()
{
    QFETCH(int, answer);
    QFETCH(QStringList, changes);
    TestRegister reg;
    refuseName(reg, TestRegister::File);
    QTemporaryDir dir;
    ScriptedPrompter prompter;
    prompter.answer(MsgBoxResult::Yes)
        .answerFile(writeContactFile(dir.path(), QStringLiteral("c.vcf"),
            cards({QStringLiteral("Jonas"), QStringLiteral("Refused"), QStringLiteral("Ona")})))
        .answer(answer)
        .answer(MsgBoxResult::Ok);
    OutlookImport import;
    QStringList seen;
    import.busyChanged = [&](bool busy) {
        seen << (busy ? QStringLiteral("busy after %1") : QStringLiteral("idle after %1"))
                    .arg(prompter.prompts().size());
};
QCOMPARE(import.run(), answer == MsgBoxResult::Yes);
QCOMPARE(seen, changes);
QCOMPARE(prompter.prompts().size(), 3);
}

void ContactImportTest::nameIndexAnswersAsItsStatement_data()
{
    places();
}

// Before its names are loaded the index asks the register; after, it answers from what it
// read and was told, the same.
void ContactImportTest::nameIndexAnswersAsItsStatement()
{
    QFETCH(TestRegister::Where, where);
    if (where == TestRegister::Server && !ServerDatabase::available())
        QSKIP(qPrintable(ServerDatabase::skipReason()));
    TestRegister reg(where);
    const QStringList stored = {QStringLiteral("Jonas Jonaitis"), QStringLiteral("ĄČĘĖĮŠŲŪŽ ąčęėįšųūž"),
        QStringLiteral("A_B 100%"), QStringLiteral("O'Brien"), QStringLiteral("Back\\slash")};
    for (const QString& name : stored)
        reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), name}});
    // The name looked up, and the key of the contact found (0: none).
    const QList<std::pair<QString, int>> lookups
        = {{QStringLiteral("JONAS JONAITIS"), 1}, {QStringLiteral("Jonas  Jonaitis"), 0},
            {QStringLiteral("ąčęėįšųūž ĄČĘĖĮŠŲŪŽ"), 2}, {QStringLiteral("acee"), 0},
            {QStringLiteral("a_b 100%"), 3}, {QStringLiteral("AxB 1000"), 0}, {QStringLiteral("o'brien"), 4},
            {QStringLiteral("back\\SLASH"), 5}, {QStringLiteral("Jonas%"), 0}, {QString(), 0}};
    Connection connection(reg.connectionString());
    connection.open();
    ContactNameIndex names(connection);
    const auto answers = [&] {
        QStringList found;
        for (const auto& [name, key] : lookups) {
            const QVariant id = names.find(name);
            found << name + u'=' + (isNull(id) ? QStringLiteral("none") : id.toString());
        }
        return found;
    };
    QStringList expected;
    for (const auto& [name, key] : lookups)
        expected << name + u'=' + (key == 0 ? QStringLiteral("none") : QString::number(key));
    QCOMPARE(answers(), expected);
    names.load();
    QCOMPARE(answers(), expected);

    // Told of one it stored, then of one that was not kept; another program's name is
    // found once the index is refreshed.
    names.add(QStringLiteral("Ona"), 9);
    QCOMPARE(names.find(QStringLiteral("ONA")).toInt(), 9);
    names.forget(QStringLiteral("oNA"));
    QVERIFY(isNull(names.find(QStringLiteral("Ona"))));
    reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), QStringLiteral("Petras")}});
    QVERIFY(isNull(names.find(QStringLiteral("Petras"))));
    names.refresh();
    QVERIFY(isNull(names.find(QStringLiteral("Petras")))); // its key 6 is below 9
    // Loaded again, it holds what the register holds.
    names.add(QStringLiteral("Not Kept"), 8);
    names.load();
    QCOMPARE(names.find(QStringLiteral("PETRAS")).toInt(), 6);
    QVERIFY(isNull(names.find(QStringLiteral("Not Kept"))));
    reg.insert(QStringLiteral("tbl_Contacts"), {{QStringLiteral("FullName"), QStringLiteral("Rūta")}});
    names.refresh();
    QCOMPARE(names.find(QStringLiteral("RŪTA")).toInt(), 7);

    // A load that fails leaves the names unread: the statement answers again.
    const QString rename = where == TestRegister::File
        ? QStringLiteral("ALTER TABLE %1 RENAME TO %2")
        : QStringLiteral("ALTER TABLE \"%1\" RENAME TO \"%2\"");
    reg.exec(rename.arg(QStringLiteral("tbl_Contacts"), QStringLiteral("tbl_Contacts_Away")));
    QVERIFY_THROWS_EXCEPTION(Error, names.load());
    reg.exec(rename.arg(QStringLiteral("tbl_Contacts_Away"), QStringLiteral("tbl_Contacts")));
    QCOMPARE(names.find(QStringLiteral("jonas jonaitis")).toInt(), 1);
}
