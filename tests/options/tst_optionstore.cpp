#include "harness/ScriptedPrompter.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace kartella;
using kartella::test::ScriptedPrompter;

class OptionStoreTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_config;

    static QString optionsText()
    {
        QFile file(OptionsFilePath());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    static void writeOptionsFile(const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(OptionsFilePath()).absolutePath());
        QFile file(OptionsFilePath());
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
        QCOMPARE(OptionsFilePath(), m_config->path() + "/Kartella/Options.ini");
        QCOMPARE(IniFilePath(), m_config->path() + "/kartella.ini");
    }

    void missingKeyOnRead()
    {
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        QCOMPARE(GetRegValue("DbLocation"), QString());
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
        SetRegValue("DbLocation", QString("/tmp/x.mdb"));
        SetRegValue("TodayNumber", 3);
        QVERIFY(prompter.prompts().isEmpty());
        QVERIFY(!QFile::exists(OptionsFilePath()));
        QVERIFY(!OptionsKeyExists());
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
        QTest::newRow("equals sign") << "a=b"
                                     << "a=b";
        QTest::newRow("line breaks") << "one\r\ntwo"
                                     << "one\r\ntwo";
        QTest::newRow("lithuanian") << "Ąžuolas Šarūnas"
                                    << "Ąžuolas Šarūnas";
        QTest::newRow("254 characters") << QString(254, 'x') << QString(254, 'x');
        QTest::newRow("255 characters") << QString(255, 'x') << "Not Found";
    }

    void valuesRoundTrip()
    {
        QFETCH(QString, written);
        QFETCH(QString, read);
        QVERIFY(SeedOptionsIfMissing());
        ScriptedPrompter prompter;
        SetRegValue("Separator1", written);
        QCOMPARE(GetRegValue("Separator1"), read);
        QVERIFY(prompter.prompts().isEmpty());
    }

    void absentValueReadsNotFound()
    {
        QVERIFY(SeedOptionsIfMissing());
        ScriptedPrompter prompter;
        QCOMPARE(GetRegValue("DbLocation"), QString("Not Found"));
        QVERIFY(prompter.prompts().isEmpty());
    }

    void namesIgnoreCase()
    {
        QVERIFY(SeedOptionsIfMissing());
        SetRegValue("Dblocation", QString("/data/one.mdb"));
        SetRegValue("DBLOCATION", QString("/data/two.mdb"));
        QCOMPARE(GetRegValue("DbLocation"), QString("/data/two.mdb"));
        QCOMPARE(GetRegValue("dblocation"), QString("/data/two.mdb"));
        QCOMPARE(optionsText().count("=/data/"), 1);
        SetRegValue("separator1", QString("#"));
        QCOMPARE(GetRegValue("Separator1"), QString("#"));
        QCOMPARE(optionsText().count("eparator1="), 1);
    }

    void integersAreStoredAsText()
    {
        QVERIFY(SeedOptionsIfMissing());
        SetRegValue("TodayNumber", 5);
        QCOMPARE(GetRegValue("TodayNumber"), QString("5"));
        SetRegValue("TodayNumber", qint16(-3));
        QCOMPARE(GetRegValue("TodayNumber"), QString("-3"));
        QVERIFY(optionsText().contains("TodayNumber=-3\n"));
    }

    void noCacheBetweenReads()
    {
        QVERIFY(SeedOptionsIfMissing());
        QCOMPARE(GetRegValue("Filter"), QString("0"));
        // Another program (or window) changes the file: the next read sees it.
        writeOptionsFile("[Options]\nFilter=1\n");
        QCOMPARE(GetRegValue("Filter"), QString("1"));
        QCOMPARE(GetRegValue("Provider"), QString("Not Found"));
    }

    void foreignLinesAreKept()
    {
        writeOptionsFile("; written by hand\n[Other]\nFilter=9\n\n[Options]\nProvider=X\n");
        SetRegValue("Filter", 1);
        QCOMPARE(GetRegValue("Filter"), QString("1"));
        QCOMPARE(GetRegValue("Provider"), QString("X"));
        const QString text = optionsText();
        QVERIFY(text.startsWith("; written by hand\n[Other]\nFilter=9\n"));
        QVERIFY(text.contains("[Options]\nProvider=X\nFilter=1\n"));
    }

    void unreadableKeyIsARuntimeError()
    {
        // A folder where the options file should be: the key is there, but can't be read.
        QVERIFY(QDir().mkpath(OptionsFilePath()));
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        QCOMPARE(GetRegValue("Filter"), QString());
        QCOMPARE(prompter.texts(), QStringList {"ERROR # 75 : 0\rPlease exit and try again."});

        // On write the run-time error comes first, then the failed write's own message.
        prompter.take();
        prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        SetRegValue("Filter", 1);
        QCOMPARE(prompter.texts(),
            QStringList({"ERROR # 75 : 0\rPlease exit and try again.",
                "Unable to set Registry Value SOFTWARE\\Kartella\\Options\\Filter"}));
    }

    void refusedWriteKeepsTheOldValue()
    {
        // A key the file system won't write, even for root: a link to a read-only kernel file.
        QDir().mkpath(QFileInfo(OptionsFilePath()).absolutePath());
        QVERIFY(QFile::link("/proc/version", OptionsFilePath()));
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        SetRegValue("Filter", 1);
        QCOMPARE(prompter.texts(),
            QStringList {"Unable to set Registry Value SOFTWARE\\Kartella\\Options\\Filter"});
        QCOMPARE(prompter.prompts().first().style, MsgBoxStyle::OkOnly);
        QCOMPARE(GetRegValue("Filter"), QString("Not Found"));
    }

    void iniValues()
    {
        ScriptedPrompter prompter;
        // No file at all.
        QCOMPARE(GetIniValue("AllDocs"), QDir::homePath() + "/");
        QVERIFY(WriteIniValue("Company", "UAB Kartella"));
        QVERIFY(WriteIniValue("AllDocs", ""));
        QVERIFY(WriteIniValue("FilterByDateOn", " 1"));
        // Key missing, key present and empty, keys in other case.
        QCOMPARE(GetIniValue("Name"), QDir::homePath() + "/");
        QCOMPARE(GetIniValue("AllDocs"), QString());
        QCOMPARE(GetIniValue("company"), QString("UAB Kartella"));
        QCOMPARE(GetIniValue("FilterByDateOn"), QString(" 1"));
        QFile file(IniFilePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().startsWith("[DocContr]\nCompany=UAB Kartella\n"));
        // A long value is cut to what the reader's buffer holds.
        QVERIFY(WriteIniValue("Address", QString(300, 'a')));
        QCOMPARE(GetIniValue("Address"), QString(254, 'a'));
        QVERIFY(prompter.prompts().isEmpty());
    }

    void firstStartSeedsOnce()
    {
        QVERIFY(!OptionsKeyExists());
        QVERIFY(SeedOptionsIfMissing(QDate(2024, 3, 5)));
        QVERIFY(OptionsKeyExists());
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
            QCOMPARE(GetRegValue(name), value);
        QCOMPARE(GetRegValue("DbLocation"), QString("Not Found"));

        SetRegValue("TodayNumber", 7);
        QVERIFY(!SeedOptionsIfMissing(QDate(2024, 3, 6)));
        QCOMPARE(GetRegValue("TodayNumber"), QString("7"));
        QCOMPARE(GetRegValue("Date"), QString("2024 03 05"));
    }
};

QTEST_GUILESS_MAIN(OptionStoreTest)
#include "tst_optionstore.moc"
