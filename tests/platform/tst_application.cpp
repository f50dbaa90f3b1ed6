#include "base/Error.h"
#include "harness/ScriptedPrompter.h"
#include "platform/Application.h"
#include "platform/WidgetPrompter.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <cstring>
#include <stdexcept>

using namespace kartella;

namespace {
// An object whose event handler fails the way a command may fail.
class Failing : public QObject
{
public:
    bool standard = false;
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        if (standard)
            throw std::runtime_error("disk full");
        throw Error(ErrorNumber::CommandFailed, QStringLiteral("The register refused the row."));
    }
};
// Started as "--show-title TITLE KIND" under a real X server: shows a window of that
// kind ("message" or "main") with that title, prints its X window id and waits.
int showTitledWindow(int argc, char* argv[])
{
    Application app(argc, argv);
    const QString title = QString::fromUtf8(argv[2]);
    std::unique_ptr<QWidget> window;
    if (std::strcmp(argv[3], "message") == 0)
        window = buildMessageBox(QStringLiteral("Delete?"), 4 + 32, title);
    else
        window = std::make_unique<QMainWindow>();
    window->setWindowTitle(title);
    window->show();
    QCoreApplication::processEvents();
    std::printf("%llu\n", static_cast<unsigned long long>(window->winId()));
    std::fflush(stdout);
    QTimer::singleShot(20000, &app, &QCoreApplication::quit);
    return app.exec();
}
} // namespace

class ApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEscapedErrorIsShownAndTheProgramGoesOn()
    {
        test::ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        Failing object;
        QCoreApplication::postEvent(&object, new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        object.standard = true;
        QCoreApplication::postEvent(&object, new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        QCOMPARE(prompter.texts(), QStringList({"The register refused the row.", "disk full"}));
        QCOMPARE(prompter.prompts().first().title, QString("Kartella"));
        QCOMPARE(prompter.prompts().first().style, MsgBoxStyle::OkOnly);
    }

    void titlesShowExactlyAsGiven_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("title");
        QTest::newRow("message") << "message" << QString("Confirm Deletion");
        QTest::newRow("main window") << "main" << QString("Exploring Category — Ataskaitos");
        QTest::newRow("program's name") << "message" << QString("Kartella");
    }

    // The offscreen platform shows no title at all: this runs the window on an X server
    // and reads the title the window manager would show.
    void titlesShowExactlyAsGiven()
    {
        QFETCH(QString, kind);
        QFETCH(QString, title);
        const QString xvfb = QStandardPaths::findExecutable("Xvfb");
        const QString xprop = QStandardPaths::findExecutable("xprop");
        if (xvfb.isEmpty() || xprop.isEmpty())
            QSKIP("Xvfb or xprop is not installed: window titles on X are not checked");
        QProcess server;
        server.start(xvfb, {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "800x600x24"});
        if (!server.waitForStarted(5000) || !server.waitForReadyRead(10000))
            QSKIP("No X server could be started: window titles on X are not checked");
        const QString display = ":" + QString::fromLatin1(server.readLine()).trimmed();

        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("DISPLAY", display);
        env.insert("QT_QPA_PLATFORM", "xcb");
        QProcess window;
        window.setProcessEnvironment(env);
        window.start(QCoreApplication::applicationFilePath(), {"--show-title", title, kind});
        QVERIFY2(window.waitForReadyRead(15000), window.readAllStandardError().constData());
        const QString id = QString::fromLatin1(window.readLine()).trimmed();

        QProcess query;
        query.setProcessEnvironment(env);
        query.start(xprop, {"-id", id, "_NET_WM_NAME"});
        QVERIFY(query.waitForFinished(10000));
        const QString shown = QString::fromUtf8(query.readAllStandardOutput()).trimmed();

        window.kill();
        window.waitForFinished();
        server.kill();
        server.waitForFinished();
        QCOMPARE(shown, "_NET_WM_NAME(UTF8_STRING) = \"" + title + "\"");
    }
};

int main(int argc, char* argv[])
{
    if (argc == 4 && std::strcmp(argv[1], "--show-title") == 0)
        return showTitledWindow(argc, argv);
    Application app(argc, argv);
    ApplicationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"
