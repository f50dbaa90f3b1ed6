#include "base/Error.h"
#include "harness/OfficeTemplates.h"
#include "harness/ScriptedShell.h"
#include "platform/LibreOfficeSuite.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <functional>
#include <unistd.h>

using namespace kartella;
using Kind = OfficeSuite::Kind;

Q_DECLARE_METATYPE(OfficeSuite::Kind)

namespace {

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString& path, const QByteArray& content, QFile::Permissions permissions = {})
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return false;
    return !permissions || file.setPermissions(permissions);
}

// The description of the kartella::Error that call throws; "no error" when none.
QString errorOf(const std::function<void()>& call, long* number = nullptr)
{
    try {
        call();
    } catch (const Error& e) {
        if (number)
            *number = e.number();
        return e.description();
    }
    return QStringLiteral("no error");
}

// A program called soffice, in a folder of its own, that runs script.
QString fakeOffice(const QTemporaryDir& dir, const QByteArray& script)
{
    const QString folder = dir.filePath("bin");
    QDir().mkpath(folder);
    writeFile(
        folder + "/soffice", "#!/bin/sh\n" + script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder;
}

class PathOverride
{
public:
    explicit PathOverride(const QString& path)
        : m_old(qgetenv("PATH"))
    {
        qputenv("PATH", path.toLocal8Bit());
    }
    ~PathOverride() { qputenv("PATH", m_old); }

private:
    QByteArray m_old;
};

} // namespace

class OfficeTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_templates;

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable("soffice").isEmpty())
            QSKIP("LibreOffice isn't installed");
    }

    // Per kind: from a template made by LibreOffice, from nothing, and onto a taken path.
    void create_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("stream"); // the main stream of the compound file
        QTest::newRow("Word") << Kind::Word << "dot:MS Word 97 Vorlage"
                              << "WordDocument";
        QTest::newRow("Excel") << Kind::Excel << "xlt:MS Excel 97 Vorlage/Template"
                               << "Workbook";
        QTest::newRow("PowerPoint") << Kind::PowerPoint << "pot:MS PowerPoint 97 Vorlage"
                                    << "PowerPoint Document";
    }

    void create()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, filter);
        QFETCH(QString, stream);
        const QString name = QTest::currentDataTag();
        const QString templatePath = test::makeOfficeTemplate(kind, m_templates.path(), name);
        QVERIFY2(!templatePath.isEmpty(), "LibreOffice made no template");
        QTemporaryDir out;
        const QString extension = "." + LibreOfficeSuite::extension(kind);
        const QString fromTemplate = out.filePath("From template" + extension);
        const QString empty = out.filePath("Empty" + extension);
        LibreOfficeSuite suite;

        // The program's events go on while the file is made (the windows keep painting).
        int ticks = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, this, [&] { ++ticks; });
        ticker.start(20);
        QCOMPARE(errorOf([&] { suite.create(kind, templatePath, fromTemplate); }), "no error");
        ticker.stop();
        QVERIFY2(ticks > 0, "the events stood still while LibreOffice worked");
        QCOMPARE(errorOf([&] { suite.create(kind, QString(), empty); }), "no error");
        const QMimeDatabase mime;
        for (const QString& made : {fromTemplate, empty}) {
            const QMimeType type = mime.mimeTypeForFile(made, QMimeDatabase::MatchContent);
            QVERIFY2(type.inherits("application/x-ole-storage"), qPrintable(type.name()));
            QVERIFY(test::fileHoldsText(made, stream));
        }
        const QString marker = "Template marker " + name;
        QVERIFY(test::fileHoldsText(fromTemplate, marker));
        QVERIFY(!test::fileHoldsText(empty, marker));
        // Nothing but the new file is left in the target's folder.
        QCOMPARE(QDir(out.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);

        long number = 0;
        const QByteArray before = readFile(empty);
        QVERIFY(errorOf([&] { suite.create(kind, QString(), empty); }, &number).contains("already exists"));
        QCOMPARE(number, OfficeErrorNumber::FileExists);
        QCOMPARE(readFile(empty), before);
    }

    // A LibreOffice that the user is running doesn't stand in the way.
    void besideUserInstance()
    {
        QProcess user;
        user.setChildProcessModifier([] { ::setpgid(0, 0); });
        user.start("soffice", {"--headless", "--norestore"});
        QVERIFY(user.waitForStarted());
        const pid_t group = pid_t(user.processId());
        QVERIFY(group > 0);
        QTest::qWait(3000);
        QTemporaryDir out;
        LibreOfficeSuite suite;
        const QString target = out.filePath("a.doc");
        const QString error = errorOf([&] { suite.create(Kind::Word, QString(), target); });
        // The launcher may be gone already; the office it started is still in its group.
        ::kill(-group, SIGKILL);
        user.waitForFinished();
        QCOMPARE(error, "no error");
        QVERIFY(QFile::exists(target));
    }

    void failures()
    {
        QTemporaryDir dir;
        const QString target = dir.filePath("a.doc");
        LibreOfficeSuite suite;
        long number = 0;
        {
            PathOverride path("");
            const QString error = errorOf([&] { suite.create(Kind::Word, QString(), target); }, &number);
            QVERIFY2(
                error.contains("libreoffice-writer-nogui") && error.contains("soffice"), qPrintable(error));
            QCOMPARE(number, OfficeErrorNumber::NotInstalled);
        }
        QVERIFY(errorOf([&] {
            suite.create(Kind::Word, dir.filePath("none.dot"), target);
        }).contains("none.dot"));
        {
            PathOverride path(fakeOffice(dir, "echo 'Error: source file could not be loaded'\nexit 0\n"));
            const QString error = errorOf([&] { suite.create(Kind::Excel, QString(), target); }, &number);
            QVERIFY2(error.contains("source file could not be loaded"), qPrintable(error));
            QCOMPARE(number, OfficeErrorNumber::Failed);
        }
        {
            PathOverride path(fakeOffice(dir, "echo 'broken profile' >&2\nexit 3\n"));
            const QString error = errorOf([&] { suite.create(Kind::Word, QString(), target); }, &number);
            QVERIFY2(error.contains("broken profile") && error.contains("3"), qPrintable(error));
        }
        // On timeout the whole process tree is stopped.
        const QString childPid = dir.filePath("child.pid");
        {
            PathOverride path(
                fakeOffice(dir, "/bin/sleep 60 &\necho $! > '" + childPid.toLocal8Bit() + "'\nwait\n"));
            suite.setTimeout(1500);
            QElapsedTimer clock;
            clock.start();
            const QString error
                = errorOf([&] { suite.create(Kind::PowerPoint, QString(), target); }, &number);
            QVERIFY2(error.contains("1.5 seconds"), qPrintable(error));
            QCOMPARE(number, OfficeErrorNumber::TimedOut);
            QVERIFY(clock.elapsed() < 10000);
        }
        const pid_t child = pid_t(readFile(childPid).trimmed().toInt());
        QVERIFY(child > 0);
        QTRY_VERIFY(::kill(child, 0) != 0);
        QVERIFY(!QFile::exists(target));
    }

    void showOpensThroughShell()
    {
        test::ScriptedShell shell;
        LibreOfficeSuite suite;
        suite.show("/docs/a.doc");
        QCOMPARE(shell.calls().size(), 1);
        QCOMPARE(shell.calls().first().kind, test::ScriptedShell::Kind::Open);
        QCOMPARE(shell.calls().first().path, "/docs/a.doc");
        shell.setResult(test::ScriptedShell::Kind::Open, false);
        QVERIFY(errorOf([&] { suite.show("/docs/a.doc"); }).contains("a.doc"));
    }
};

QTEST_GUILESS_MAIN(OfficeTest)
#include "tst_office.moc"
