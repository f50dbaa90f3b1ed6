#include "harness/OldRegister.h"
#include "store/SchemaSteps.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

// The environment of a desktop in a language ("lt"), or the tests' own for an empty one.
QProcessEnvironment desktopIn(const QString& language)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (language == u"lt") {
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("lt_LT.UTF-8"));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("lt"));
    } else if (language == u"en") {
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.remove(QStringLiteral("LANGUAGE"));
    }
    return environment;
}

Run runTool(const QStringList& arguments, const QString& language = {})
{
    QProcess process;
    process.setProcessEnvironment(desktopIn(language));
    process.start(QStringLiteral(KARTELLA_DB_PATH), arguments);
    Run run;
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

} // namespace

class ToolTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void createInfoAndRefusal()
    {
        const QString path = m_dir.filePath("Naujas registras.mdb");
        Run run = runTool({"create", path});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(QFile::exists(path));

        run = runTool({"info", path});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out.split('\n', Qt::SkipEmptyParts),
            QStringList({"tbl_Document_Categories: 0", "tbl_Sub_Categories: 0", "tbl_Documents: 0",
                "tbl_Sub_Documents: 0", "tbl_Tickler: 0", "tbl_Contacts: 0", "tbl_Phones: 0",
                "tbl_HomePages: 0"}));

        const qint64 size = QFileInfo(path).size();
        for (const char* command : {"create", "sample"}) {
            run = runTool({command, path});
            QCOMPARE(run.exitCode, 1);
            QVERIFY2(run.err.startsWith("kartella-db: "), qPrintable(run.err));
            QCOMPARE(run.err.count('\n'), 1);
            QCOMPARE(QFileInfo(path).size(), size);
        }

        run = runTool({"info", m_dir.filePath("nera.mdb")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.startsWith("kartella-db: "));
        QVERIFY(!QFile::exists(m_dir.filePath("nera.mdb")));
    }

    void sampleThenInfo()
    {
        const QString path = m_dir.filePath("Pavyzdys.mdb");
        Run run = runTool({"sample", path, "--documents", "50", "--seed=3"});
        QCOMPARE(run.exitCode, 0);
        run = runTool({"info", path});
        QCOMPARE(run.exitCode, 0);
        const QStringList lines = run.out.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 8);
        QVERIFY(lines.contains("tbl_Documents: 50"));
        QVERIFY(lines.contains("tbl_Contacts: 60"));
        QVERIFY(QFileInfo(m_dir.filePath("Pavyzdys files")).isDir());
    }

    void copyOfASample()
    {
        const QString from = m_dir.filePath("Pavyzdys kopijai.mdb");
        const QString to = m_dir.filePath("Kopija.mdb");
        QCOMPARE(runTool({"sample", from, "--documents", "30", "--seed=5"}).exitCode, 0);
        // A deleted document's file in the trash and an earlier version of another's go along.
        const QStringList kept = {from + ".trash/17/Sutartis.doc", from + ".versions/4/1/Laiskas.odt"};
        for (const QString& file : kept) {
            QVERIFY(QDir().mkpath(QFileInfo(file).absolutePath()));
            QFile write(file);
            QVERIFY(write.open(QIODevice::WriteOnly));
            write.write(file.toUtf8());
        }

        Run run = runTool({"copy", from, to});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.isEmpty(), qPrintable(run.err));
        const QStringList lines = run.out.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 12);
        QCOMPARE(lines.at(5), "tbl_Documents: 30 copied");
        // A sample is no one's change: it has no history to copy.
        QCOMPARE(lines.at(8), "tbl_History: 0 copied");
        QCOMPARE(lines.at(10), "Copied " + from + " to " + to);
        QCOMPARE(lines.at(11), "Copied 2 files of deleted items and earlier versions");
        for (const QString& file : kept) {
            QFile copy(QString(file).replace(from, to));
            QVERIFY2(copy.open(QIODevice::ReadOnly), qPrintable(copy.fileName()));
            QCOMPARE(copy.readAll(), file.toUtf8());
        }
        run = runTool({"info", to});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.out.contains("tbl_Documents: 30\n"));

        // A second copy to the same file is refused and leaves the first as it is.
        const qint64 size = QFileInfo(to).size();
        const QDateTime modified = QFileInfo(to).lastModified();
        run = runTool({"copy", from, to});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.out.isEmpty(), qPrintable(run.out));
        QCOMPARE(run.err.count('\n'), 1);
        QVERIFY2(run.err.startsWith("kartella-db: A file named"), qPrintable(run.err));
        QVERIFY2(run.err.contains("Nothing was copied"), qPrintable(run.err));
        QCOMPARE(QFileInfo(to).size(), size);
        QCOMPARE(QFileInfo(to).lastModified(), modified);

        // A register of an older form is to be upgraded first.
        const QString old = m_dir.filePath("Senas.mdb");
        kartella::test::makeOldRegister(old);
        run = runTool({"copy", old, m_dir.filePath("Senojo kopija.mdb")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("kartella-db upgrade"), qPrintable(run.err));
        QVERIFY(!QFile::exists(m_dir.filePath("Senojo kopija.mdb")));
        QCOMPARE(runTool({"upgrade", old}).exitCode, 0);
        QCOMPARE(runTool({"copy", old, m_dir.filePath("Senojo kopija.mdb")}).exitCode, 0);

        run = runTool({"copy", m_dir.filePath("nera.mdb"), m_dir.filePath("Niekas.mdb")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.startsWith("kartella-db: no register at"), qPrintable(run.err));
        QVERIFY(!QFile::exists(m_dir.filePath("Niekas.mdb")));
    }

    // A server location goes to the engine as written: no command makes it a path of the
    // current folder or looks for a file by its name. The server named is not there.
    void serverLocationPassesThrough_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const QString server = "postgresql://kartella@127.0.0.1:1/nera";
        QTest::newRow("create") << QStringList {"create", server};
        QTest::newRow("sample") << QStringList {"sample", server, "--documents", "3"};
        QTest::newRow("info") << QStringList {"info", server};
        QTest::newRow("upgrade") << QStringList {"upgrade", server};
        QTest::newRow("search") << QStringList {"search", server, "sutartis"};
        QTest::newRow("import") << QStringList {"import", server, "kontaktai.vcf"};
        QTest::newRow("report") << QStringList {"report", "phones", "ataskaita.pdf", "--register", server};
        QTest::newRow("copy from") << QStringList {"copy", server, "kopija.mdb"};
        QTest::newRow("copy to") << QStringList {"copy", "registras.mdb", server};
    }

    void serverLocationPassesThrough()
    {
        QFETCH(QStringList, arguments);
        QTemporaryDir folder;
        QDir::setCurrent(folder.path());
        QFile contacts(folder.filePath("kontaktai.vcf"));
        QVERIFY(contacts.open(QIODevice::WriteOnly));
        contacts.write("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ona Petraitiene\r\nEND:VCARD\r\n");
        contacts.close();
        QCOMPARE(runTool({"create", "registras.mdb"}).exitCode, 0);
        const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);

        const Run run = runTool(arguments);
        QCOMPARE(run.exitCode, 1);
        // (Qt may warn on its own lines before.)
        QCOMPARE(run.err.count("kartella-db: "), 1);
        QVERIFY2(run.err.section('\n', -2).startsWith("kartella-db: "), qPrintable(run.err));
        QVERIFY2(!run.err.contains(folder.path()), qPrintable(run.err));
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
    }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("unknown command") << QStringList({"drop", "x.mdb"});
        QTest::newRow("no path") << QStringList({"create"});
        QTest::newRow("two paths") << QStringList({"info", "a.mdb", "b.mdb"});
        QTest::newRow("copy without TO") << QStringList({"copy", "x.mdb"});
        QTest::newRow("copy with three") << QStringList({"copy", "a.mdb", "b.mdb", "x.mdb"});
        QTest::newRow("bad count") << QStringList({"sample", "x.mdb", "--documents", "many"});
        QTest::newRow("missing value") << QStringList({"sample", "x.mdb", "--seed"});
        QTest::newRow("option of another command") << QStringList({"create", "x.mdb", "--documents", "5"});
    }

    void usageErrors()
    {
        QFETCH(QStringList, arguments);
        QDir::setCurrent(m_dir.path());
        const Run run = runTool(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.startsWith("kartella-db: "));
        QVERIFY(run.err.contains("Usage: kartella-db create LOCATION"));
        QVERIFY(!QFile::exists(m_dir.filePath("x.mdb")));
    }

    // The tool speaks the desktop's language: its help, its usage errors (also those of the
    // report command) and its errors, the register's own among them. English is as it was,
    // in the same blocks.
    void speaksTheDesktopsLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("outStart");
        QTest::addColumn<QStringList>("outHolds");
        QTest::addColumn<QString>("errHolds");
        QTest::newRow("help in English")
            << "en" << QStringList {"--help"} << 0 << "Usage: kartella-db create LOCATION\n"
            << QStringList {"       kartella-db --help\n\n  create   makes a new, empty register at LOCATION",
                   "           change, tab-separated\n\nEvery register named (LOCATION, FROM, TO, NEW",
                   "in the current folder.\n\nExit codes: 0 success, 1 failure, 2 usage error.\n"}
            << "";
        QTest::newRow("help in Lithuanian")
            << "lt" << QStringList {"--help"} << 0 << "Naudojimas: kartella-db create VIETA\n"
            << QStringList {"            kartella-db --help\n\n  create   sukuria naują tuščią registrą",
                   "atskirtus tabuliacija\n\nKiekvienas nurodytas registras",
                   "dabartiniame aplanke.\n\nIšėjimo kodai: 0 – pavyko, 1 – nepavyko, 2 – neteisingas "
                   "naudojimas.\n"}
            << "";
        QTest::newRow("usage error in Lithuanian")
            << "lt" << QStringList {"info", "a.mdb", "b.mdb"} << 2 << "" << QStringList {}
            << "kartella-db: nurodytas daugiau nei vienas KELIAS\nNaudojimas: kartella-db create VIETA\n";
        QTest::newRow("report usage error in Lithuanian")
            << "lt" << QStringList {"report", "phones"} << 2 << "" << QStringList {}
            << "kartella-db: report reikia PAVADINIMAS ir KELIAS.pdf (arba --list)\nNaudojimas: kartella-db "
               "report --list\n";
        QTest::newRow("no register in Lithuanian")
            << "lt" << QStringList {"info", "{dir}/nera.mdb"} << 1 << "" << QStringList {}
            << "kartella-db: nėra registro „{dir}/nera.mdb“\n";
        QTest::newRow("existing file in Lithuanian")
            << "lt" << QStringList {"create", "{dir}/yra.txt"} << 1 << "" << QStringList {}
            << "kartella-db: Failas „{dir}/yra.txt“ jau yra.\n";
        QTest::newRow("existing file in English")
            << "en" << QStringList {"create", "{dir}/yra.txt"} << 1 << "" << QStringList {}
            << "kartella-db: A file named \"{dir}/yra.txt\" already exists.\n";
    }

    void speaksTheDesktopsLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, outStart);
        QFETCH(QStringList, outHolds);
        QFETCH(QString, errHolds);
        QTemporaryDir dir;
        QFile existing(dir.filePath("yra.txt"));
        QVERIFY(existing.open(QIODevice::WriteOnly));
        existing.close();
        for (QString& argument : arguments)
            argument.replace("{dir}", dir.path());

        const Run run = runTool(arguments, language);
        QCOMPARE(run.exitCode, exitCode);
        // (An empty start matches any output, also none.)
        QVERIFY2(outStart.isEmpty() || run.out.startsWith(outStart), qPrintable(run.out));
        for (const QString& part : outHolds)
            QVERIFY2(run.out.contains(part), qPrintable(part));
        if (!outHolds.isEmpty())
            QVERIFY(run.out.endsWith(outHolds.last()));
        // (Qt may warn on its own lines before.)
        QVERIFY2(errHolds.isEmpty() || run.err.contains(QString(errHolds).replace("{dir}", dir.path())),
            qPrintable(run.err));
        if (errHolds.isEmpty())
            QVERIFY2(run.err.isEmpty(), qPrintable(run.err));
        QCOMPARE(QFileInfo(dir.filePath("yra.txt")).size(), 0);
    }

    // An upgrade tells its steps in the desktop's language, also those listed before any
    // translation was installed.
    void upgradeInTheDesktopsLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("firstStep");
        QTest::addColumn<QString>("lastLine");
        QTest::addColumn<QString>("upToDate");
        QTest::newRow("English") << "en"
                                 << "Step 2: name columns readable by any SQLite tool"
                                 << "The register is at schema version %1."
                                 << "The register is up to date (schema version %1).";
        QTest::newRow("Lithuanian") << "lt"
                                    << "2 žingsnis: pavadinimų stulpeliai, kuriuos skaito bet kuri SQLite "
                                       "priemonė"
                                    << "Registro schemos versija dabar %1."
                                    << "Registras jau atnaujintas (schemos versija %1).";
    }

    void upgradeInTheDesktopsLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, firstStep);
        QFETCH(QString, lastLine);
        QFETCH(QString, upToDate);
        QTemporaryDir dir;
        const QString path = dir.filePath("Senas.mdb");
        kartella::test::makeOldRegister(path);
        const QString newest = QString::number(kartella::newestSchemaVersion());

        Run run = runTool({"upgrade", path}, language);
        QCOMPARE(run.exitCode, 0);
        const QStringList lines = run.out.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), kartella::newestSchemaVersion());
        QCOMPARE(lines.first(), firstStep);
        QCOMPARE(lines.last(), lastLine.arg(newest));
        run = runTool({"upgrade", path}, language);
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, upToDate.arg(newest) + '\n');
    }

    void help()
    {
        const Run run = runTool({"--help"});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.out.startsWith("Usage: kartella-db"));
        QVERIFY(run.err.isEmpty());
    }
};

int runToolTest(int argc, char** argv)
{
    ToolTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_tool.moc"
