#include "base/Error.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "platform/Translations.h"
#include "registration/FileNaming.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>

using namespace kartella;
using kartella::test::ScriptedPrompter;
using kartella::test::TestRegister;

class OptionStoreTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_config;

    static QString optionsText()
    {
        QFile file(optionsFilePath());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    static void writeOptionsFile(const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(optionsFilePath()).absolutePath());
        QFile file(optionsFilePath());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
    }

private Q_SLOTS:
    void init()
    {
        m_config = std::make_unique<QTemporaryDir>();
        QVERIFY(m_config->isValid());
        qputenv("XDG_CONFIG_HOME", m_config->path().toUtf8());
    }

    void optionsLiveInTheConfigFolder()
    {
        QCOMPARE(optionsFilePath(), m_config->path() + "/Kartella/Options.ini");
        QCOMPARE(iniFilePath(), m_config->path() + "/kartella.ini");
    }

    void missingKeyOnRead()
    {
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        QCOMPARE(getRegValue("DbLocation"), QString());
        QCOMPARE(prompter.prompts().size(), 1);
        const auto prompt = prompter.prompts().first();
        QCOMPARE(
            prompt.text, QString("Unable to get Registry Value SOFTWARE\\Kartella\\Options\\DbLocation"));
        QCOMPARE(prompt.title, QString("Kartella"));
        QCOMPARE(prompt.style, MsgBoxStyle::OkOnly);
    }

    void missingKeyOnWriteIsSilentAndCreatesNothing()
    {
        ScriptedPrompter prompter;
        setRegValue("DbLocation", QString("/tmp/x.mdb"));
        setRegValue("TodayNumber", 3);
        QVERIFY(prompter.prompts().isEmpty());
        QVERIFY(!QFile::exists(optionsFilePath()));
        QVERIFY(!optionsKeyExists());
    }

    void valuesRoundTrip_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("read");
        QTest::newRow("text") << "Microsoft.Jet.OLEDB.4.0"
                              << "Microsoft.Jet.OLEDB.4.0";
        QTest::newRow("empty is not absent") << ""
                                             << "";
        QTest::newRow("leading blank kept") << " 12"
                                            << " 12";
        QTest::newRow("blanks around") << "  a b  "
                                       << "  a b  ";
        QTest::newRow("path with blanks") << "/home/u/My Documents/Kartella.mdb"
                                          << "/home/u/My Documents/Kartella.mdb";
        QTest::newRow("backslashes") << "c:\\Docs\\"
                                     << "c:\\Docs\\";
        QTest::newRow("backslash before n") << "c:\\new\\r1"
                                            << "c:\\new\\r1";
        QTest::newRow("looks like the line form") << "@Lines(a\\nb)"
                                                  << "@Lines(a\\nb)";
        QTest::newRow("equals sign") << "a=b"
                                     << "a=b";
        QTest::newRow("line breaks") << "one\r\ntwo"
                                     << "one\r\ntwo";
        QTest::newRow("line feed alone") << "one\ntwo"
                                         << "one\ntwo";
        QTest::newRow("carriage return last") << "one\r"
                                              << "one\r";
        QTest::newRow("backslash and line break") << "c:\\new\nline"
                                                  << "c:\\new\nline";
        QTest::newRow("lithuanian") << "Ąžuolas Šarūnas"
                                    << "Ąžuolas Šarūnas";
        QTest::newRow("in quotes") << "\"Acme\""
                                   << "\"Acme\"";
        QTest::newRow("in quotes, blanks around") << " \" 1\" "
                                                  << " \" 1\" ";
        QTest::newRow("one quote") << "\""
                                   << "\"";
        QTest::newRow("lines in quotes") << "\"one\nDbLocation=/other.mdb\r\n\""
                                         << "\"one\nDbLocation=/other.mdb\r\n\"";
        QTest::newRow("254 characters") << QString(254, 'x') << QString(254, 'x');
        QTest::newRow("255 characters") << QString(255, 'x') << "Not Found";
    }

    void valuesRoundTrip()
    {
        QFETCH(QString, written);
        QFETCH(QString, read);
        QVERIFY(seedOptionsIfMissing());
        ScriptedPrompter prompter;
        setRegValue("Separator1", written);
        QCOMPARE(getRegValue("Separator1"), read);
        QVERIFY(prompter.prompts().isEmpty());
    }

    // A value written by hand, or by another program, reads back as it stands.
    void handWrittenValuesReadAsTheyStand_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("read");
        QTest::newRow("backslash in a path") << QByteArray("DbLocation=/srv/a\\b") << "/srv/a\\b";
        QTest::newRow("windows path")
            << QByteArray("DbLocation=C:\\Docs\\new\\Kartella.mdb") << "C:\\Docs\\new\\Kartella.mdb";
        QTest::newRow("double backslash")
            << QByteArray("DbLocation=\\\\server\\share") << "\\\\server\\share";
        QTest::newRow("trailing backslash") << QByteArray("DbLocation=C:\\") << "C:\\";
        QTest::newRow("ends in a quote") << QByteArray("DbLocation=Acme \"Ltd\"") << "Acme \"Ltd\"";
        QTest::newRow("ends in a bracket") << QByteArray("DbLocation=/srv/docs[2]") << "/srv/docs[2]";
    }

    void handWrittenValuesReadAsTheyStand()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, read);
        writeOptionsFile("[Options]\n" + line + "\n");
        QCOMPARE(getRegValue("DbLocation"), read);
        QVERIFY(writeIniValue("Company", "x"));
        QFile ini(iniFilePath());
        QVERIFY(ini.open(QIODevice::Append));
        ini.write("AllDocs" + line.mid(line.indexOf('=')) + "\n");
        ini.close();
        QCOMPARE(getIniValue("AllDocs"), read);
        // Writing another value keeps the line as it was.
        setRegValue("Filter", 1);
        QVERIFY(optionsText().contains(QString::fromUtf8(line) + "\n"));
    }

    // A value written in double quotes by hand reads as the text between them.
    void quotedValuesReadAsTheirText_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("read");
        QTest::newRow("leading blank kept") << QByteArray("FileNumber=\" 1\"") << " 1";
        QTest::newRow("blanks outside") << QByteArray("FileNumber = \" 1\"  ") << " 1";
        QTest::newRow("empty") << QByteArray("FileNumber=\"\"") << "";
        QTest::newRow("quotes inside") << QByteArray("FileNumber=\"a \"b\" c\"") << "a \"b\" c";
        QTest::newRow("not closed") << QByteArray("FileNumber=\" 1") << "\" 1";
        QTest::newRow("one quote") << QByteArray("FileNumber=\"") << "\"";
    }

    void quotedValuesReadAsTheirText()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, read);
        writeOptionsFile("[Options]\n" + line + "\n");
        QCOMPARE(getRegValue("FileNumber"), read);
        QVERIFY(writeIniValue("Company", "x"));
        QFile ini(iniFilePath());
        QVERIFY(ini.open(QIODevice::Append));
        ini.write(line.replace("FileNumber", "Name") + "\n");
        ini.close();
        QCOMPARE(getIniValue("Name"), read);
    }

    // The file name's running number written in quotes by hand gives the file its name, and
    // the next number is stored in the program's own form.
    void quotedFileNumberNamesTheFile()
    {
        TestRegister reg;
        const qint32 category
            = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Sutartys"}, {"Mnemonic", "AGR"}});
        QFile file(optionsFilePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString text = QString::fromUtf8(file.readAll());
        file.close();
        text.replace("FileNumber= 1\n", "FileNumber=\" 12\"\n");
        writeOptionsFile(text.toUtf8());
        QCOMPARE(makeFileNumberName(category), "AGR00012");
        QCOMPARE(getRegValue("FileNumber"), " 13");
        QCOMPARE(getRegInteger("FileNumber"), qint16(13));
    }

    // An option whose value can't be read as what it holds is named, with its value and the
    // file that keeps it; the error stays the conversion's.
    void wrongOptionIsNamed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("flag");
        QTest::addColumn<long>("error");
        QTest::newRow("a word for a number") << "FileNumber"
                                             << "twelve" << false << 13L;
        QTest::newRow("past 32767") << "TodayNumber"
                                    << "32768" << false << 6L;
        QTest::newRow("quotes within quotes") << "FileNumber"
                                              << "\" 1\"" << false << 13L;
        QTest::newRow("not a flag") << "AutoRegIndex"
                                    << "yes" << true << 13L;
    }

    void wrongOptionIsNamed()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(bool, flag);
        QFETCH(long, error);
        QVERIFY(seedOptionsIfMissing());
        setRegValue(name, value);
        try {
            if (flag)
                getRegFlag(name);
            else
                getRegInteger(name);
            QFAIL("no error");
        } catch (const Error& thrown) {
            QCOMPARE(thrown.number(), error);
            QVERIFY2(thrown.description().startsWith(
                         "The option " + name + " can't be read: it holds \"" + value + "\" ("),
                qPrintable(thrown.description()));
            QVERIFY2(
                thrown.description().endsWith("\r\rCorrect it in " + optionsFilePath() + ", then try again."),
                qPrintable(thrown.description()));
        }
        QCOMPARE(getRegValue(name), value);
    }

    void absentValueReadsNotFound()
    {
        QVERIFY(seedOptionsIfMissing());
        ScriptedPrompter prompter;
        QCOMPARE(getRegValue("DbLocation"), QString("Not Found"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    void namesIgnoreCase()
    {
        QVERIFY(seedOptionsIfMissing());
        setRegValue("Dblocation", QString("/data/one.mdb"));
        setRegValue("DBLOCATION", QString("/data/two.mdb"));
        QCOMPARE(getRegValue("DbLocation"), QString("/data/two.mdb"));
        QCOMPARE(getRegValue("dblocation"), QString("/data/two.mdb"));
        QCOMPARE(optionsText().count("=/data/"), 1);
        setRegValue("separator1", QString("#"));
        QCOMPARE(getRegValue("Separator1"), QString("#"));
        QCOMPARE(optionsText().count("eparator1="), 1);
    }

    void integersAreStoredAsText()
    {
        QVERIFY(seedOptionsIfMissing());
        setRegValue("TodayNumber", 5);
        QCOMPARE(getRegValue("TodayNumber"), QString("5"));
        setRegValue("TodayNumber", qint16(-3));
        QCOMPARE(getRegValue("TodayNumber"), QString("-3"));
        QVERIFY(optionsText().contains("TodayNumber=-3\n"));
    }

    void noCacheBetweenReads()
    {
        QVERIFY(seedOptionsIfMissing());
        QCOMPARE(getRegValue("Filter"), QString("0"));
        // Another program (or window) changes the file: the next read sees it.
        writeOptionsFile("[Options]\nFilter=1\n");
        QCOMPARE(getRegValue("Filter"), QString("1"));
        QCOMPARE(getRegValue("Provider"), QString("Not Found"));
    }

    void foreignLinesAreKept()
    {
        writeOptionsFile("; written by hand\n[Other]\nFilter=9\n\n[Options]\nProvider=X\n");
        setRegValue("Filter", 1);
        QCOMPARE(getRegValue("Filter"), QString("1"));
        QCOMPARE(getRegValue("Provider"), QString("X"));
        const QString text = optionsText();
        QVERIFY(text.startsWith("; written by hand\n[Other]\nFilter=9\n"));
        QVERIFY(text.contains("[Options]\nProvider=X\nFilter=1\n"));
    }

    // A new value goes after the last value of its section, before the blank lines and comments
    // that lead to the next one; a missing section is added at the end, after a blank line.
    void whereANewValueGoes_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("empty file") << QByteArray("") << "[Options]\nFilter=1\n";
        QTest::newRow("blank lines only") << QByteArray("\n\r\n\n") << "[Options]\nFilter=1\n";
        QTest::newRow("blanks and comments after the section")
            << QByteArray("[Options]\nProvider=X\n\n; next\n# also\n[Other]\nA=1\n")
            << "[Options]\nProvider=X\nFilter=1\n\n; next\n# also\n[Other]\nA=1\n";
        QTest::newRow("a section without values") << QByteArray("[Other]\nA=1\n[Options]\n; none yet\n")
                                                  << "[Other]\nA=1\n[Options]\nFilter=1\n; none yet\n";
        QTest::newRow("no such section")
            << QByteArray("[Other]\nA=1\n") << "[Other]\nA=1\n\n[Options]\nFilter=1\n";
    }

    void whereANewValueGoes()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, after);
        writeOptionsFile(before);
        ScriptedPrompter prompter;
        QCOMPARE(getRegValue("Filter"), QString("Not Found"));
        setRegValue("Filter", 1);
        QCOMPARE(optionsText(), after);
        QCOMPARE(getRegValue("Filter"), QString("1"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // A full disk (here a limit on the size of the files this process writes) refuses the
    // write and keeps the file as it was, whole.
    void fullDiskKeepsTheFileWhole()
    {
        writeOptionsFile("[Options]\nFilter=0\n");
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        rlimit saved {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &saved), 0);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const auto restore = qScopeGuard([&] {
            setrlimit(RLIMIT_FSIZE, &saved);
            std::signal(SIGXFSZ, handler);
        });
        rlimit small = saved;
        small.rlim_cur = 64;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
        setRegValue("Note", QString(200, 'x'));
        const bool iniWritten = writeIniValue("Address", QString(200, 'a'));
        const int seeded
            = writeRegValues(Hive::CurrentUser, optionsKeyPath(), {{"Company", QString(100, 'c')}}, true);
        setrlimit(RLIMIT_FSIZE, &saved);
        QCOMPARE(
            prompter.texts(), QStringList {"Unable to set Registry Value SOFTWARE\\Kartella\\Options\\Note"});
        QCOMPARE(optionsText(), QString("[Options]\nFilter=0\n"));
        QVERIFY(!iniWritten);
        QVERIFY(!QFile::exists(iniFilePath()));
        QCOMPARE(seeded, -1);
    }

    // Every message of the options speaks the interface's language.
    void messagesSpeakLithuanian()
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
        QVERIFY(installTranslations({"lt"}).startsWith("lt"));
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok)
            .answer(MsgBoxResult::Ok)
            .answer(MsgBoxResult::Ok)
            .answer(MsgBoxResult::Ok);
        getRegValue("DbLocation");
        QVERIFY(QDir().mkpath(optionsFilePath()));
        getRegValue("Filter");
        setRegValue("Filter", 1);
        const QString runtimeError
            = QString::fromUtf8("KLAIDA Nr. 75 : 0\rBaikite darbą ir bandykite dar kartą.");
        QCOMPARE(prompter.texts(),
            QStringList({QString::fromUtf8(
                             "Nepavyko gauti nuostatos reikšmės SOFTWARE\\Kartella\\Options\\DbLocation"),
                runtimeError, runtimeError,
                QString::fromUtf8(
                    "Nepavyko nustatyti nuostatos reikšmės SOFTWARE\\Kartella\\Options\\Filter")}));
        QCOMPARE(wrongOptionMessage("FileNumber", "x", "y"),
            QString::fromUtf8(
                "Nuostatos FileNumber perskaityti nepavyko: jos reikšmė „x“ (y).\r\rPataisykite ją ")
                + optionsFilePath() + QString::fromUtf8(" ir bandykite dar kartą."));
    }

    void unreadableKeyIsARuntimeError()
    {
        // A folder where the options file should be: the key is there, but can't be read.
        QVERIFY(QDir().mkpath(optionsFilePath()));
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        QCOMPARE(getRegValue("Filter"), QString());
        QCOMPARE(prompter.texts(), QStringList {"ERROR # 75 : 0\rPlease exit and try again."});

        // On write the run-time error comes first, then the failed write's own message.
        prompter.take();
        prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        setRegValue("Filter", 1);
        QCOMPARE(prompter.texts(),
            QStringList({"ERROR # 75 : 0\rPlease exit and try again.",
                "Unable to set Registry Value SOFTWARE\\Kartella\\Options\\Filter"}));
    }

    // A folder that takes no new files around an options file that takes writes (one an
    // administrator laid out): the value is written into the file itself.
    void fileWritableInAReadOnlyFolder()
    {
        writeOptionsFile("[Options]\nFilter=0\n");
        const QString folder = QFileInfo(optionsFilePath()).absolutePath();
        const auto read = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
        const auto enter = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
        const auto write = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
        QVERIFY(QFile::setPermissions(m_config->path(), read | enter | QFile::WriteOwner));
        QVERIFY(QFile::setPermissions(folder, read | enter));
        QVERIFY(QFile::setPermissions(optionsFilePath(), read | write));
        const auto writable = qScopeGuard([&folder] {
            QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        });
        // The superuser passes by a folder's permissions: the write is made as nobody.
        const uid_t user = geteuid();
        if (user == 0 && seteuid(65534) != 0)
            QSKIP("no other user to write as");
        const auto back = qScopeGuard([user] { [[maybe_unused]] const int ignored = seteuid(user); });
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        setRegValue("Filter", 1);
        QVERIFY2(prompter.prompts().isEmpty(), qPrintable(prompter.texts().join("|")));
        QCOMPARE(optionsText(), QString("[Options]\nFilter=1\n"));
    }

    void refusedWriteKeepsTheOldValue()
    {
        // A key the file system won't write, even for root: a link to a read-only kernel file.
        QDir().mkpath(QFileInfo(optionsFilePath()).absolutePath());
        QVERIFY(QFile::link("/proc/version", optionsFilePath()));
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        setRegValue("Filter", 1);
        QCOMPARE(prompter.texts(),
            QStringList {"Unable to set Registry Value SOFTWARE\\Kartella\\Options\\Filter"});
        QCOMPARE(prompter.prompts().first().style, MsgBoxStyle::OkOnly);
        QCOMPARE(getRegValue("Filter"), QString("Not Found"));
    }

    void iniValues()
    {
        ScriptedPrompter prompter;
        // No file at all.
        QCOMPARE(getIniValue("AllDocs"), QDir::homePath() + "/");
        QVERIFY(writeIniValue("Company", "UAB Kartella"));
        QVERIFY(writeIniValue("AllDocs", ""));
        QVERIFY(writeIniValue("FilterByDateOn", " 1"));
        // Key missing, key present and empty, keys in other case.
        QCOMPARE(getIniValue("Name"), QDir::homePath() + "/");
        QCOMPARE(getIniValue("AllDocs"), QString());
        QCOMPARE(getIniValue("company"), QString("UAB Kartella"));
        QCOMPARE(getIniValue("FilterByDateOn"), QString(" 1"));
        QFile file(iniFilePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().startsWith("[DocContr]\nCompany=UAB Kartella\n"));
        // A long value is cut to what the reader's buffer holds.
        QVERIFY(writeIniValue("Address", QString(300, 'a')));
        QCOMPARE(getIniValue("Address"), QString(254, 'a'));
        QVERIFY(prompter.prompts().isEmpty());
    }

    // An ini file that can't be read is not written over: the write fails and reads find nothing.
    void unreadableIniFileIsNotWritten()
    {
        QVERIFY(QDir().mkpath(iniFilePath()));
        QVERIFY(!writeIniValue("Company", "UAB Kartella"));
        QCOMPARE(findIniValue("Company"), std::nullopt);
        QCOMPARE(getIniValue("Company"), QDir::homePath() + "/");
        QVERIFY(QFileInfo(iniFilePath()).isDir());
    }

    void firstStartSeedsOnce()
    {
        QVERIFY(!optionsKeyExists());
        QVERIFY(seedOptionsIfMissing(QDate(2024, 3, 5)));
        QVERIFY(optionsKeyExists());
        const QList<QPair<QString, QString>> expected = {
            {"Provider", "Microsoft.Jet.OLEDB.4.0"},
            {"Filter", "0"},
            {"Network", "0"},
            {"AutoRegIndex", "1"},
            {"UseMnemonic", "1"},
            {"IndexStyle", "1"},
            {"Separator1", "-"},
            {"Separator2", "/"},
            {"FileName", "0"},
            {"Date", "2024 03 05"},
            {"TodayNumber", "1"},
            {"FileNumber", " 1"},
        };
        for (const auto& [name, value] : expected)
            QCOMPARE(getRegValue(name), value);
        QCOMPARE(getRegValue("DbLocation"), QString("Not Found"));

        setRegValue("TodayNumber", 7);
        QVERIFY(!seedOptionsIfMissing(QDate(2024, 3, 6)));
        QCOMPARE(getRegValue("TodayNumber"), QString("7"));
        QCOMPARE(getRegValue("Date"), QString("2024 03 05"));
    }

    // A first start that stopped after some values: the next start writes the rest and
    // keeps what is there.
    void firstStartFinishesAHalfKey()
    {
        writeOptionsFile("[Options]\nProvider=Microsoft.Jet.OLEDB.3.51\nFilter=1\n");
        QVERIFY(seedOptionsIfMissing(QDate(2030, 1, 1)));
        QCOMPARE(getRegValue("Provider"), QString("Microsoft.Jet.OLEDB.3.51"));
        QCOMPARE(getRegValue("Filter"), QString("1"));
        QCOMPARE(getRegValue("Network"), QString("0"));
        QCOMPARE(getRegValue("Date"), QString("2030 01 01"));
        QCOMPARE(getRegValue("FileNumber"), QString(" 1"));
        QCOMPARE(optionsText().count("Filter="), 1);
        QVERIFY(!seedOptionsIfMissing(QDate(2030, 1, 2)));
    }

    // A refused first write leaves no options file behind: the next start tries again.
    void refusedFirstStartLeavesNoKey()
    {
        const QString folder = QFileInfo(optionsFilePath()).absolutePath();
        QVERIFY(QDir().mkpath(QFileInfo(folder).absolutePath()));
        // A file where the folder should be: nothing can be written under it.
        QFile blocker(folder);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        QVERIFY(!seedOptionsIfMissing(QDate(2030, 1, 1)));
        QVERIFY(!optionsKeyExists());
        QVERIFY(QFile::remove(folder));
        QVERIFY(seedOptionsIfMissing(QDate(2030, 1, 1)));
        QCOMPARE(getRegValue("FileNumber"), QString(" 1"));
    }
};

QTEST_GUILESS_MAIN(OptionStoreTest)
#include "tst_optionstore.moc"
