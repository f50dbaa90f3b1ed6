// kartella-db report: listing, writing, and the files it must never write over or leave
// half written.
#include "ReportFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

using namespace kartella;
using namespace kartella::test;

namespace {

struct ToolRun
{
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs the tool; with a small disk every write past a few kilobytes fails as on a full disk.
// A locale other than the tests' own is given as its name ("lt_LT"): its dates and numbers,
// with the texts in English as the tests read them.
ToolRun runTool(const QStringList& arguments, bool smallDisk = false, const QString& locale = {})
{
    QProcess tool;
    if (!locale.isEmpty()) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", locale + ".UTF-8");
        environment.insert("LANGUAGE", "en");
        tool.setProcessEnvironment(environment);
    }
    if (smallDisk) {
        tool.start("/bin/sh",
            QStringList {"-c", "ulimit -f 8; trap '' XFSZ; exec \"$0\" \"$@\"", KARTELLA_DB_TOOL, "report"}
                + arguments);
    } else {
        tool.start(KARTELLA_DB_TOOL, QStringList {"report"} + arguments);
    }
    if (!tool.waitForFinished(120000))
        return {};
    return {tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1,
        QString::fromUtf8(tool.readAllStandardOutput()), QString::fromUtf8(tool.readAllStandardError())};
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString pdfText(const QString& path, const QStringList& options = {})
{
    QProcess text;
    text.start("pdftotext", options + QStringList {path, "-"});
    text.waitForFinished(60000);
    return QString::fromUtf8(text.readAllStandardOutput());
}

} // namespace

class ReportToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theToolListsAndWritesReports()
    {
        ReportFixture fx;
        ToolRun run = runTool({"--list"});
        QCOMPARE(run.exitCode, 0);
        const QStringList listed = run.out.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(listed.size(), 8);
        QCOMPARE(listed.at(0).simplified(), QString("categories Categories"));
        QCOMPARE(listed.at(5).simplified(), QString("telephone-list Telephone List"));
        QCOMPARE(listed.at(7).simplified(), QString("this-month This Month"));

        const QString pdf = fx.reg.dir() + "/month.pdf";
        run = runTool({"this-month", pdf, "--register", fx.reg.path(), "--previous-month"});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, QString("pages: 1\n"));
        // Without --register the tool reads the register the options name.
        const QString phones = fx.reg.dir() + "/phones.pdf";
        QCOMPARE(runTool({"phones", phones}).exitCode, 0);
        QCOMPARE(
            QDir(fx.reg.dir()).entryList({"*.pdf*"}, QDir::Files), QStringList({"month.pdf", "phones.pdf"}));

        QCOMPARE(runTool({"no-such", fx.reg.dir() + "/x.pdf", "--register", fx.reg.path()}).exitCode, 2);
        QCOMPARE(
            runTool({"phones", fx.reg.dir() + "/x.pdf", "--register", fx.reg.dir() + "/missing.db"}).exitCode,
            1);
        QVERIFY(!QFile::exists(fx.reg.dir() + "/x.pdf"));

        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            QSKIP("pdftotext (poppler-utils) is missing");
        const QString content = pdfText(pdf, {"-layout"});
        QVERIFY2(content.contains("List Of documents By Categories"), qPrintable(content));
        QVERIFY(content.contains("Senas laiškas"));
        QVERIFY(content.contains("Jonas Jonaitis"));
        QVERIFY(!content.contains("Sutartis dėl nuomos"));
        QVERIFY(content.simplified().contains("page 1 of 1"));
        const QString phoneText = pdfText(phones);
        QVERIFY2(phoneText.contains("+370 600 1"), qPrintable(phoneText));
        QVERIFY(!phoneText.contains("Jonas Jonaitis"));
    }

    // A user whose dates are long and whose indexes are longer reads each whole, under the
    // column headings, in the PDF the tool writes.
    void datesAndIndexesAreWholeInTheWrittenPdf_data()
    {
        QTest::addColumn<QString>("report");
        QTest::addColumn<QString>("headings");
        QTest::newRow("by-contacts") << "by-contacts"
                                     << "Doc. Description Reg. Date Reg. Index Category";
        QTest::newRow("this-month") << "this-month"
                                    << "Reg. Date Reg. Index Doc. Description Sender/Receiver Category";
        QTest::newRow("by-category") << "by-category"
                                     << "Doc. Description Reg. Index Reg. Date Sender/Receiver";
    }

    void datesAndIndexesAreWholeInTheWrittenPdf()
    {
        QFETCH(QString, report);
        QFETCH(QString, headings);
        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            QSKIP("pdftotext (poppler-utils) is missing");
        ReportFixture fx;
        const QString index = "ATA-20261103/Metinė ataskaita";
        const QDate day = fx.thisMonth.addDays(27 - fx.thisMonth.day() + 1);
        fx.reg.insert("tbl_Documents",
            {{"KategID", 1}, {"ContactID", 1}, {"DokRegistracData", day}, {"DokRegistracIndeksas", index},
                {"DokAntraste", QString("Metinė veiklos ataskaita ").repeated(5).trimmed()}});
        const QString pdf = fx.reg.dir() + "/" + report + ".pdf";
        const ToolRun run = runTool({report, pdf, "--register", fx.reg.path()}, false, "lt_LT");
        QCOMPARE(run.exitCode, 0);
        const QString content = pdfText(pdf, {"-layout"});
        const QString date
            = QLocale(QLocale::Lithuanian, QLocale::Lithuania).toString(day, QLocale::ShortFormat);
        QVERIFY2(content.contains(index), qPrintable(content));
        QVERIFY2(content.contains(date), qPrintable(date + " in:\n" + content));
        QVERIFY2(content.simplified().contains(headings), qPrintable(content));
    }

    void theRegisterIsNeverTheReport()
    {
        ReportFixture fx;
        const QByteArray before = contentOf(fx.reg.path());
        QVERIFY(!before.isEmpty());
        QVERIFY(QFile::link(fx.reg.path(), fx.reg.dir() + "/link.mdb"));
        const QList<QStringList> attempts {{"phones", fx.reg.path(), "--register", fx.reg.path()},
            {"phones", fx.reg.path(), "--register", fx.reg.path(), "--overwrite"},
            {"phones", fx.reg.dir() + "/./Kartella.mdb", "--overwrite"},
            {"phones", fx.reg.dir() + "/link.mdb", "--register", fx.reg.path(), "--overwrite"}};
        for (const QStringList& arguments : attempts) {
            const ToolRun run = runTool(arguments);
            QVERIFY2(run.exitCode == 1, qPrintable(arguments.join(' ')));
            QVERIFY2(run.err.contains("is the register the report reads"), qPrintable(run.err));
            QVERIFY(run.out.isEmpty());
            QCOMPARE(contentOf(fx.reg.path()), before);
        }
    }

    void anExistingFileIsReplacedOnlyWhenAsked()
    {
        ReportFixture fx;
        const QString pdf = fx.reg.dir() + "/phones.pdf";
        QFile old(pdf);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("an older report");
        old.close();

        ToolRun run = runTool({"phones", pdf});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("exists; --overwrite replaces it"), qPrintable(run.err));
        QCOMPARE(contentOf(pdf), QByteArray("an older report"));

        run = runTool({"phones", pdf, "--overwrite"});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(contentOf(pdf).startsWith("%PDF-"));
        QCOMPARE(QDir(fx.reg.dir()).entryList({"phones*"}, QDir::Files), QStringList {"phones.pdf"});
    }

    void aReportThatCannotBeWrittenFailsAndLeavesNoFile()
    {
        ReportFixture fx;
        // A disk that fills up half way through the PDF.
        const QString pdf = fx.reg.dir() + "/phones.pdf";
        ToolRun run = runTool({"phones", pdf}, true);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("Can't write the file"), qPrintable(run.err));
        QVERIFY(!run.out.contains("pages"));
        QCOMPARE(QDir(fx.reg.dir()).entryList({"phones*"}, QDir::Files), QStringList {});

        // The same over an older report: it stays as it was.
        QFile old(pdf);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("an older report");
        old.close();
        run = runTool({"phones", pdf, "--overwrite"}, true);
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(contentOf(pdf), QByteArray("an older report"));
        QCOMPARE(QDir(fx.reg.dir()).entryList({"phones*"}, QDir::Files), QStringList {"phones.pdf"});

        // A device that takes nothing.
        if (QFile::exists("/dev/full")) {
            QCOMPARE(runTool({"phones", "/dev/full"}).exitCode, 1);
            run = runTool({"phones", "/dev/full", "--overwrite"});
            QCOMPARE(run.exitCode, 1);
            QVERIFY2(run.err.contains("Can't write the file"), qPrintable(run.err));
            QVERIFY(!run.out.contains("pages"));
        }
    }

    void aRegisterInAFolderWithAnApostropheAndAPercentSign()
    {
        ReportFixture fx;
        const QString folder = fx.reg.dir() + "/O'Brien 100%";
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::copy(fx.reg.path(), folder + "/Kartella.mdb"));
        const QString pdf = folder + "/d'Arc 50%.pdf";
        const ToolRun run = runTool({"telephone-list", pdf, "--register", folder + "/Kartella.mdb"});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(contentOf(pdf).startsWith("%PDF-"));
    }
};

int runReportToolTest(int argc, char** argv)
{
    ReportToolTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_report_tool.moc"
