// The options file at its edges: sections and names written in another case, numbers as
// truth values, and the ends of the range of a whole-number option.
#include "base/Error.h"
#include "options/CaptureOptions.h"
#include "options/FirstRun.h"
#include "options/LanguageOption.h"
#include "options/OptionStore.h"
#include "options/PreviewOptions.h"
#include "options/SectionFile.h"
#include "options/TextOptions.h"
#include "options/TrashOptions.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace kartella;

class OptionBoundariesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_config;

    static QString fileText(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    static void writeFile(const QString& path, const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
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

    // Without XDG_CONFIG_HOME the options live in ~/.config.
    void configFolderWithoutXdg()
    {
        qunsetenv("XDG_CONFIG_HOME");
        QCOMPARE(configFolder(), QDir::homePath() + QStringLiteral("/.config"));
        QCOMPARE(optionsFilePath(), QDir::homePath() + QStringLiteral("/.config/Kartella/Options.ini"));
        QCOMPARE(iniFilePath(), QDir::homePath() + QStringLiteral("/.config/kartella.ini"));
    }

    // An empty expected value: the option isn't found in that file.
    void sectionAndNameInAnotherCase_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("read");

        QTest::newRow("section in capitals") << QByteArray("[OPTIONS]\nDbLocation=/a.mdb\n") << "/a.mdb";
        QTest::newRow("section in small letters") << QByteArray("[options]\nDbLocation=/a.mdb\n") << "/a.mdb";
        QTest::newRow("name in capitals") << QByteArray("[Options]\nDBLOCATION=/a.mdb\n") << "/a.mdb";
        QTest::newRow("name in small letters") << QByteArray("[Options]\ndblocation = /a.mdb\n") << " /a.mdb";
        QTest::newRow("both") << QByteArray("[oPTIONS]\r\ndBlOCATION=/a.mdb\r\n") << "/a.mdb";
        QTest::newRow("another section") << QByteArray("[Options]\n[Option]\nDbLocation=/a.mdb\n") << "";
        QTest::newRow("a longer name") << QByteArray("[Options]\nDbLocations=/a.mdb\n") << "";
        QTest::newRow("a shorter name") << QByteArray("[Options]\nDbLocatio=/a.mdb\n") << "";
        QTest::newRow("a section without a name") << QByteArray("[Options]\n[]\nDbLocation=/a.mdb\n") << "";
        QTest::newRow("a value ending in a bracket")
            << QByteArray("[Options]\nNote=[x]\nDbLocation=/a.mdb\n") << "/a.mdb";
    }

    void sectionAndNameInAnotherCase()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, read);
        writeFile(optionsFilePath(), content);
        QCOMPARE(
            getRegValue(QStringLiteral("DbLocation")), read.isEmpty() ? QStringLiteral("Not Found") : read);
        // A write goes to the line that is there, in the section as it is written.
        setRegValue(QStringLiteral("DbLocation"), QStringLiteral("/b.mdb"));
        QCOMPARE(getRegValue(QStringLiteral("dbLOCATION")), QStringLiteral("/b.mdb"));
        const QString text = fileText(optionsFilePath());
        QCOMPARE(text.count(QStringLiteral("/b.mdb")), 1);
        QCOMPARE(text.count(u'['), content.count('['));
        QCOMPARE(text.contains(QStringLiteral("/a.mdb")), read.isEmpty());
    }

    // A key path names a file under the hive's folder, its last part the section; a leading
    // "SOFTWARE" is left out. The machine's hive is /etc, reached here by a path that climbs out
    // of it into the test's own folder.
    void keyPathsNameFileAndSection_data()
    {
        QTest::addColumn<bool>("machine");
        QTest::addColumn<QString>("keyPath");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("section");
        QTest::newRow("the options") << false << "SOFTWARE\\Kartella\\Options"
                                     << "Kartella/Options.ini"
                                     << "Options";
        QTest::newRow("software in small letters") << false << "Software\\Acme\\Tools"
                                                   << "Acme/Tools.ini"
                                                   << "Tools";
        QTest::newRow("without software") << false << "Acme\\Tools"
                                          << "Acme/Tools.ini"
                                          << "Tools";
        QTest::newRow("software further in") << false << "Acme\\SOFTWARE\\Tools"
                                             << "Acme/SOFTWARE/Tools.ini"
                                             << "Tools";
        QTest::newRow("doubled backslashes") << false << "\\SOFTWARE\\\\Acme\\Tools\\"
                                             << "Acme/Tools.ini"
                                             << "Tools";
        QTest::newRow("software alone") << false << "SOFTWARE"
                                        << "Options.ini"
                                        << "Options";
        QTest::newRow("the machine's hive") << true << "..<config>\\Machine"
                                            << "Machine.ini"
                                            << "Machine";
    }
    void keyPathsNameFileAndSection()
    {
        QFETCH(bool, machine);
        QFETCH(QString, keyPath);
        QFETCH(QString, file);
        QFETCH(QString, section);
        keyPath.replace(QStringLiteral("<config>"), QString(m_config->path()).replace(u'/', u'\\'));
        const Hive hive = machine ? Hive::LocalMachine : Hive::CurrentUser;
        const QString path = m_config->filePath(file);
        QCOMPARE(readRegValue(hive, keyPath, QStringLiteral("Company"), QStringLiteral("none")),
            QStringLiteral("none"));
        QVERIFY(writeRegValue(hive, keyPath, QStringLiteral("Company"), QStringLiteral("Mėta")));
        QCOMPARE(fileText(path), u'[' + section + QStringLiteral("]\nCompany=Mėta\n"));
        QCOMPARE(readRegValue(hive, keyPath, QStringLiteral("company"), QStringLiteral("none")),
            QStringLiteral("Mėta"));
    }

    // Loading another file, or a missing one, leaves nothing of the file read before.
    void loadReplacesWhatWasRead()
    {
        const QString first = m_config->filePath(QStringLiteral("first.ini"));
        const QString second = m_config->filePath(QStringLiteral("second.ini"));
        writeFile(first, "[Options]\nDbLocation=/a.mdb\n");
        writeFile(second, "[Options]\nCompany=Mėta\n");
        SectionFile file;
        QCOMPARE(file.load(first), SectionFile::Status::Ok);
        QCOMPARE(
            file.value(QStringLiteral("options"), QStringLiteral("dblocation")), QStringLiteral("/a.mdb"));
        QCOMPARE(file.load(second), SectionFile::Status::Ok);
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("DbLocation")), std::nullopt);
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("Company")), QStringLiteral("Mėta"));
        QCOMPARE(file.load(m_config->filePath(QStringLiteral("none.ini"))), SectionFile::Status::Missing);
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("Company")), std::nullopt);
    }

    // Lines that end "\r\r\n" (a file converted twice) read without their carriage returns,
    // and read the same once saved.
    void doubledLineEndsReadTheSameAfterASave()
    {
        const QString path = m_config->filePath(QStringLiteral("doubled.ini"));
        writeFile(path, "[Options]\r\r\nDbLocation=/a.mdb\r\r\nNote= comment\r\r\n");
        SectionFile file;
        QCOMPARE(file.load(path), SectionFile::Status::Ok);
        QCOMPARE(
            file.value(QStringLiteral("Options"), QStringLiteral("DbLocation")), QStringLiteral("/a.mdb"));
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("Note")), QStringLiteral(" comment"));
        file.setValue(QStringLiteral("Options"), QStringLiteral("Company"), QStringLiteral("Mėta"));
        QVERIFY(file.save(path));
        SectionFile again;
        QCOMPARE(again.load(path), SectionFile::Status::Ok);
        QCOMPARE(again.value(QStringLiteral("Options"), QStringLiteral("Note")), QStringLiteral(" comment"));
        QCOMPARE(
            again.value(QStringLiteral("Options"), QStringLiteral("DbLocation")), QStringLiteral("/a.mdb"));
    }

    // A backslash escapes the character after it in a value of many lines; the last one,
    // with nothing after it, is itself.
    void backslashesOfAValueOfLines_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("value");
        QTest::newRow("line break") << QByteArray("@Lines(a\\nb)") << QStringLiteral("a\nb");
        QTest::newRow("escaped backslash") << QByteArray("@Lines(a\\\\n)") << QStringLiteral("a\\n");
        QTest::newRow("backslash last") << QByteArray("@Lines(a\\)") << QStringLiteral("a\\");
    }
    void backslashesOfAValueOfLines()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, value);
        const QString path = m_config->filePath(QStringLiteral("lines.ini"));
        writeFile(path, "[Options]\nNote=" + line + "\n");
        SectionFile file;
        QCOMPARE(file.load(path), SectionFile::Status::Ok);
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("Note")), value);
    }

    // The scan window's choices come back as saved, a second save over the first; a
    // resolution outside 25 to 4800 dpi reads as the default.
    void scanSettingsAndTheirResolutionRange_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("resolution");
        QTest::newRow("lowest") << "25" << 25;
        QTest::newRow("below") << "24" << DefaultScanResolution;
        QTest::newRow("highest") << "4800" << 4800;
        QTest::newRow("above") << "4801" << DefaultScanResolution;
        QTest::newRow("not a number") << "300dpi" << DefaultScanResolution;
    }
    void scanSettingsAndTheirResolutionRange()
    {
        QFETCH(QString, stored);
        QFETCH(int, resolution);
        saveScanSettings({QStringLiteral("test:0"), QStringLiteral("Flatbed"), QStringLiteral("Gray"), 150});
        saveScanSettings({QStringLiteral("test:1"), QStringLiteral("Automatic Document Feeder"),
            QStringLiteral("Color"), 600});
        const ScanSettings saved = scanSettings();
        QCOMPARE(saved.device, QStringLiteral("test:1"));
        QCOMPARE(saved.source, QStringLiteral("Automatic Document Feeder"));
        QCOMPARE(saved.mode, QStringLiteral("Color"));
        QCOMPARE(saved.resolution, 600);
        setRegValue(QStringLiteral("ScanResolution"), stored);
        QCOMPARE(scanSettings().resolution, resolution);
    }

    // Beside a register file its trash and versions folders; a register on a server keeps them
    // in the shared folder, and has none while no shared folder is named.
    void trashAndVersionsFolders()
    {
        seedOptionsIfMissing();
        QCOMPARE(trashFolderFor(QStringLiteral("/srv/docs/Kartella.mdb")),
            QStringLiteral("/srv/docs/Kartella.mdb.trash"));
        QCOMPARE(versionsFolderFor(QStringLiteral("/srv/docs/Kartella.mdb")),
            QStringLiteral("/srv/docs/Kartella.mdb.versions"));
        const QString server = QStringLiteral("postgresql://kartella@db.example:5432/registras");
        QCOMPARE(trashFolderFor(server), QString());
        QCOMPARE(versionsFolderFor(server), QString());
        // One day and one version are the least; anything less reads as the default.
        setTrashDays(1);
        setVersionsPerDocument(1);
        QCOMPARE(trashDays(), 1);
        QCOMPARE(versionsPerDocument(), 1);
        setTrashDays(0);
        setVersionsPerDocument(0);
        QCOMPARE(trashDays(), DefaultTrashDays);
        QCOMPARE(versionsPerDocument(), DefaultVersionsPerDocument);
        setSharedTrashFolder(QStringLiteral("/srv/shared"));
        QCOMPARE(trashFolderFor(server), QStringLiteral("/srv/shared/trash"));
        QCOMPARE(versionsFolderFor(server), QStringLiteral("/srv/shared/versions"));
    }

    // The inbox folder is stored without blanks around it; the windows hear of it only when it
    // changes. OCR languages unset or blank read as the default.
    void inboxFolderAndOcrLanguages()
    {
        QVERIFY(seedOptionsIfMissing());
        QSignalSpy changed(&captureOptions(), &CaptureOptionsNotifier::inboxFolderChanged);
        setInboxFolder(QStringLiteral(" /srv/inbox "));
        QCOMPARE(inboxFolder(), QStringLiteral("/srv/inbox"));
        QCOMPARE(changed.size(), 1);
        setInboxFolder(QStringLiteral("/srv/inbox"));
        QCOMPARE(changed.size(), 1);
        setInboxFolder(QStringLiteral("/srv/other"));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(inboxFolder(), QStringLiteral("/srv/other"));
        QCOMPARE(ocrLanguages(), DefaultOcrLanguages);
        setOcrLanguages(QStringLiteral(" lit "));
        QCOMPARE(ocrLanguages(), QStringLiteral("lit"));
        setOcrLanguages(QStringLiteral(" "));
        QCOMPARE(ocrLanguages(), DefaultOcrLanguages);
    }

    // The interface's language as the option holds it, written by hand in any case and with
    // blanks around; anything else follows the desktop.
    void languageAsStored_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("language");
        QTest::newRow("en") << "en" << int(InterfaceLanguage::English);
        QTest::newRow("EN") << "EN" << int(InterfaceLanguage::English);
        QTest::newRow("lt") << "lt" << int(InterfaceLanguage::Lithuanian);
        QTest::newRow("blanks around Lt") << " Lt " << int(InterfaceLanguage::Lithuanian);
        QTest::newRow("e") << "e" << int(InterfaceLanguage::Desktop);
        QTest::newRow("l") << "l" << int(InterfaceLanguage::Desktop);
        QTest::newRow("de") << "de" << int(InterfaceLanguage::Desktop);
        QTest::newRow("empty") << "" << int(InterfaceLanguage::Desktop);
    }
    void languageAsStored()
    {
        QFETCH(QString, stored);
        QFETCH(int, language);
        QVERIFY(seedOptionsIfMissing());
        setRegValue(QStringLiteral("Language"), stored);
        QCOMPARE(int(interfaceLanguage()), language);
    }

    // Each choice of language is one line of the options file, and gives the languages to
    // look for translations in.
    void languageChoices_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("languages");
        QTest::newRow("desktop") << int(InterfaceLanguage::Desktop)
                                 << "Language=" << QStringList {"de-DE", "lt"};
        QTest::newRow("English") << int(InterfaceLanguage::English) << "Language=en" << QStringList {};
        QTest::newRow("Lithuanian") << int(InterfaceLanguage::Lithuanian) << "Language=lt"
                                    << QStringList {"lt"};
    }
    void languageChoices()
    {
        QFETCH(int, language);
        QFETCH(QString, line);
        QFETCH(QStringList, languages);
        QVERIFY(seedOptionsIfMissing());
        setInterfaceLanguage(InterfaceLanguage(language));
        QVERIFY2(fileText(optionsFilePath()).contains(u'\n' + line + u'\n'), qPrintable(line));
        QCOMPARE(interfaceLanguages(InterfaceLanguage(language), {"de-DE", "lt"}), languages);
    }

    // The preview pane is on only for a 1 (blanks around allowed), and is stored as 1 or 0.
    void previewPaneOption_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("shown");
        QTest::newRow("1") << "1" << true;
        QTest::newRow("blanks around 1") << " 1 " << true;
        QTest::newRow("0") << "0" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("11") << "11" << false;
        QTest::newRow("-1") << "-1" << false;
    }
    void previewPaneOption()
    {
        QFETCH(QString, stored);
        QFETCH(bool, shown);
        QVERIFY(seedOptionsIfMissing());
        QVERIFY(!previewPaneShown());
        setRegValue(QStringLiteral("PreviewPane"), stored);
        QCOMPARE(previewPaneShown(), shown);
        setPreviewPaneShown(!shown);
        QCOMPARE(previewPaneShown(), !shown);
        QVERIFY(fileText(optionsFilePath()).contains(shown ? "\nPreviewPane=0\n" : "\nPreviewPane=1\n"));
    }

    // Users and README name the options by these names in the options file, under [Options].
    void optionsKeepTheirNamesInTheFile()
    {
        QVERIFY(seedOptionsIfMissing());
        setInboxFolder(QStringLiteral("/srv/inbox"));
        setOcrLanguages(QStringLiteral("lit"));
        saveScanSettings({QStringLiteral("test:0"), QStringLiteral("Flatbed"), QStringLiteral("Gray"), 150});
        setInterfaceLanguage(InterfaceLanguage::Lithuanian);
        setTrashDays(30);
        setVersionsPerDocument(5);
        setSharedTrashFolder(QStringLiteral("/srv/shared"));
        const QString text = fileText(optionsFilePath());
        QVERIFY2(text.startsWith(QStringLiteral("[Options]")), qPrintable(text));
        for (const char* line : {"InboxFolder=/srv/inbox", "OcrLanguages=lit", "ScanDevice=test:0",
                 "ScanSource=Flatbed", "ScanMode=Gray", "ScanResolution=150", "Language=lt", "TrashDays=30",
                 "VersionsPerDocument=5", "TrashFolder=/srv/shared"})
            QVERIFY2(text.contains(QLatin1String("\n") + QLatin1String(line) + QLatin1String("\n")), line);
    }

    // The size limits read from the file: a whole number of megabytes within their range, else
    // the default.
    void sizeLimitsAtTheirEnds_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<qint64>("megabytes");
        QTest::newRow("preview 0") << "PreviewCacheMB"
                                   << "0" << qint64(DefaultPreviewCacheMb);
        QTest::newRow("preview 1") << "PreviewCacheMB"
                                   << "1" << qint64(1);
        QTest::newRow("preview 100000") << "PreviewCacheMB"
                                        << "100000" << qint64(100000);
        QTest::newRow("preview 100001") << "PreviewCacheMB"
                                        << "100001" << qint64(DefaultPreviewCacheMb);
        QTest::newRow("preview word") << "PreviewCacheMB"
                                      << "big" << qint64(DefaultPreviewCacheMb);
        QTest::newRow("text 0") << "TextSizeLimitMB"
                                << "0" << qint64(DefaultTextSizeLimitMB);
        QTest::newRow("text 1") << "TextSizeLimitMB"
                                << "1" << qint64(1);
        QTest::newRow("text word") << "TextSizeLimitMB"
                                   << "big" << qint64(DefaultTextSizeLimitMB);
    }
    void sizeLimitsAtTheirEnds()
    {
        QFETCH(QString, option);
        QFETCH(QString, stored);
        QFETCH(qint64, megabytes);
        QVERIFY(seedOptionsIfMissing());
        setRegValue(option, stored);
        const qint64 read
            = option == QLatin1String("PreviewCacheMB") ? previewCacheLimitBytes() : textSizeLimitBytes();
        QCOMPARE(read, megabytes * 1024 * 1024);
    }

    // A line before the first section belongs to none: it is neither read nor written as an
    // option of a section. A value that only half looks like lines is kept as written.
    void linesOutsideSectionsAndHalfEncodedValues()
    {
        const QString path = m_config->filePath(QStringLiteral("edge.ini"));
        writeFile(path, "Stray=before\n[Options]\nOpen=@Lines(a\\nb\nClosed=a\\nb)\nBoth=@Lines(a\\nb)\n");
        SectionFile file;
        QCOMPARE(file.load(path), SectionFile::Status::Ok);
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("Stray")), std::nullopt);
        QCOMPARE(
            file.value(QStringLiteral("Options"), QStringLiteral("Open")), QStringLiteral("@Lines(a\\nb"));
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("Closed")), QStringLiteral("a\\nb)"));
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("Both")), QStringLiteral("a\nb"));
        file.setValue(QStringLiteral("Options"), QStringLiteral("Stray"), QStringLiteral("inside"));
        QVERIFY(file.save(path));
        const QString text = fileText(path);
        QVERIFY2(text.startsWith(QStringLiteral("Stray=before\n[Options]\n")), qPrintable(text));
        QVERIFY2(text.contains(QStringLiteral("\nStray=inside\n")), qPrintable(text));
        QCOMPARE(file.value(QStringLiteral("Options"), QStringLiteral("Stray")), QStringLiteral("inside"));
    }

    void iniSectionInAnotherCase()
    {
        writeFile(iniFilePath(), "[doccontr]\nALLDOCS=/docs\n[DOCCONTR2]\nCompany=Other\n");
        QCOMPARE(getIniValue(QStringLiteral("AllDocs")), QStringLiteral("/docs"));
        QCOMPARE(findIniValue(QStringLiteral("Company")), std::nullopt);
        QVERIFY(writeIniValue(QStringLiteral("allDocs"), QStringLiteral("/new")));
        QCOMPARE(getIniValue(QStringLiteral("AllDocs")), QStringLiteral("/new"));
        QCOMPARE(fileText(iniFilePath()).count(QStringLiteral("[")), 2);
    }

    // Any number but zero is true, "-1" as Visual Basic writes True first of all.
    void numbersAsTruthValues_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("flag");

        QTest::newRow("-1") << "-1" << true;
        QTest::newRow("1") << "1" << true;
        QTest::newRow("2") << "2" << true;
        QTest::newRow("-0.5") << "-0.5" << true;
        QTest::newRow("0.5") << "0.5" << true;
        QTest::newRow("0.001") << "0.001" << true;
        QTest::newRow("0") << "0" << false;
        QTest::newRow("-0") << "-0" << false;
        QTest::newRow("0.0") << "0.0" << false;
        QTest::newRow("blanks around -1") << " -1 " << true;
        QTest::newRow("True") << "True" << true;
        QTest::newRow("TRUE") << "TRUE" << true;
        QTest::newRow("false") << "false" << false;
    }

    void numbersAsTruthValues()
    {
        QFETCH(QString, text);
        QFETCH(bool, flag);
        QVERIFY(seedOptionsIfMissing());
        setRegValue(QStringLiteral("AutoRegIndex"), text);
        QCOMPARE(getRegFlag(QStringLiteral("AutoRegIndex")), flag);
    }

    // A fraction rounds half to even; past either end of 16 bits is an overflow (6).
    void wholeNumberRange_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        QTest::addColumn<long>("error");

        QTest::newRow("-1") << "-1" << -1 << 0L;
        QTest::newRow("-0.5") << "-0.5" << 0 << 0L;
        QTest::newRow("0.5") << "0.5" << 0 << 0L;
        QTest::newRow("1.5") << "1.5" << 2 << 0L;
        QTest::newRow("-1.5") << "-1.5" << -2 << 0L;
        QTest::newRow("32767") << "32767" << 32767 << 0L;
        QTest::newRow("-32768") << "-32768" << -32768 << 0L;
        QTest::newRow("32767.4") << "32767.4" << 32767 << 0L;
        QTest::newRow("32768") << "32768" << 0 << 6L;
        QTest::newRow("-32769") << "-32769" << 0 << 6L;
        QTest::newRow("32767.5") << "32767.5" << 0 << 6L;
    }

    void wholeNumberRange()
    {
        QFETCH(QString, text);
        QFETCH(int, number);
        QFETCH(long, error);
        QVERIFY(seedOptionsIfMissing());
        setRegValue(QStringLiteral("FileNumber"), text);
        try {
            QCOMPARE(getRegInteger(QStringLiteral("FileNumber")), number);
            QCOMPARE(error, 0L);
        } catch (const Error& thrown) {
            QCOMPARE(thrown.number(), error);
        }
    }
};

QTEST_GUILESS_MAIN(OptionBoundariesTest)

#include "tst_option_boundaries.moc"
