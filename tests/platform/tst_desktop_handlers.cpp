#include "addressbook/Dialing.h"
#include "harness/ScriptedPrompter.h"
#include "platform/DesktopHandlers.h"
#include "platform/DesktopShell.h"
#include "platform/DesktopTelephony.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace kartella;
using kartella::test::ScriptedPrompter;

namespace {

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(content);
}

} // namespace

// What the desktop has for a file's type or for tel: links: a desktop of its own for each
// test, with no program at all unless the test gives it one.
class DesktopHandlersTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_desktop;
    // The system's data folders without their programs: only the MIME types, which tell
    // a file's type.
    QTemporaryDir m_shared;
    QList<QPair<QByteArray, QByteArray>> m_saved;

    // Makes program the desktop's default for mimeType.
    void giveProgram(const QString& mimeType)
    {
        writeFile(m_desktop->filePath("data/applications/kartella-test.desktop"),
            "[Desktop Entry]\nType=Application\nName=Test\nExec=true %u\nMimeType=" + mimeType.toUtf8()
                + ";\n");
        writeFile(m_desktop->filePath("config/mimeapps.list"),
            "[Default Applications]\n" + mimeType.toUtf8() + "=kartella-test.desktop\n");
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable("xdg-mime").isEmpty())
            QSKIP("xdg-mime is not installed: the desktop can't be asked");
        const QString types = QStandardPaths::locate(
            QStandardPaths::GenericDataLocation, "mime", QStandardPaths::LocateDirectory);
        QVERIFY2(!types.isEmpty(), "no MIME types on this system");
        QVERIFY(QFile::link(types, m_shared.filePath("mime")));
    }

    void init()
    {
        m_desktop = std::make_unique<QTemporaryDir>();
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_DIRS",
                 "XDG_CURRENT_DESKTOP", "KDE_FULL_SESSION", "GNOME_DESKTOP_SESSION_ID", "DESKTOP_SESSION"})
            m_saved.append({name, qgetenv(name)});
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_desktop->filePath("config")));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_desktop->filePath("data")));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(m_desktop->filePath("none")));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(m_shared.path()));
        for (const char* name :
            {"XDG_CURRENT_DESKTOP", "KDE_FULL_SESSION", "GNOME_DESKTOP_SESSION_ID", "DESKTOP_SESSION"})
            qunsetenv(name);
    }

    void cleanup()
    {
        for (const auto& [name, value] : std::as_const(m_saved)) {
            if (value.isEmpty())
                qunsetenv(name.constData());
            else
                qputenv(name.constData(), value);
        }
        m_saved.clear();
        m_desktop.reset();
    }

    // Opening a document whose type no program opens says so, naming the type, and opens
    // nothing; with a program for the type (or for a type it is a kind of) it goes ahead.
    void openingWithoutAProgramSaysSo_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("handled"); // the type the desktop has a program for
        QTest::addColumn<QString>("named"); // in the message, when there is one
        QTest::newRow("PDF, no program") << "Aktas.pdf"
                                         << ""
                                         << "(application/pdf, .pdf)";
        QTest::newRow("PDF with a program") << "Aktas.pdf"
                                            << "application/pdf"
                                            << "";
        QTest::newRow("C source, plain text has a program") << "main.c"
                                                            << "text/plain"
                                                            << "";
        QTest::newRow("spreadsheet, only PDF has one") << "Lentele.ods"
                                                       << "application/pdf"
                                                       << ".ods)";
    }

    void openingWithoutAProgramSaysSo()
    {
        QFETCH(QString, file);
        QFETCH(QString, handled);
        QFETCH(QString, named);
        const QString path = m_desktop->filePath(file);
        writeFile(path, "x");
        if (!handled.isEmpty())
            giveProgram(handled);
        QCOMPARE(desktopOpensFile(path), named.isEmpty());
        if (named.isEmpty())
            return; // the program would be started
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        DesktopShell shell;
        QVERIFY(!shell.open(path));
        QCOMPARE(prompter.prompts().size(), 1);
        const auto message = prompter.prompts().first();
        QCOMPARE(message.title, QString("Unable to open Document"));
        QCOMPARE(message.style, MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation);
        QVERIFY2(message.text.startsWith("No program on this desktop opens files of the type "),
            qPrintable(message.text));
        QVERIFY2(message.text.contains(named), qPrintable(message.text));
    }

    // Dialing where nothing takes tel: links says so before asking to pick up the phone.
    void dialingWithoutATelHandlerSaysSo()
    {
        DesktopTelephony telephony;
        Telephony::setInstance(&telephony);
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        dialNumber("+370 5 212 3456");
        Telephony::setInstance(nullptr);
        QCOMPARE(prompter.prompts().size(), 1);
        const auto message = prompter.prompts().first();
        QCOMPARE(message.title, QString("Dial Number Error"));
        QVERIFY2(message.text.startsWith("Unable to dial number +370 5 212 3456: no program"),
            qPrintable(message.text));
        QVERIFY2(message.text.contains("tel: links"), qPrintable(message.text));

        giveProgram("x-scheme-handler/tel");
        QVERIFY(telephony.callsPossible());
    }
};

QTEST_MAIN(DesktopHandlersTest)
#include "tst_desktop_handlers.moc"
