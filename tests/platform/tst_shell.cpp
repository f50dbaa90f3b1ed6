#include "harness/Lithuanian.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "platform/DesktopShell.h"
#include "platform/FilePropertiesDialog.h"
#include "registration/ShellFiles.h"
#include "support/FileInfo.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMimeDatabase>
#include <QProgressDialog>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <sys/stat.h>

using namespace kartella;
using kartella::test::ScriptedPrompter;
using kartella::test::ScriptedShell;
using Kind = ScriptedShell::Kind;

namespace {

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(content), content.size());
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

// A file of size bytes of a repeating pattern.
QByteArray pattern(qint64 size)
{
    QByteArray data(size, Qt::Uninitialized);
    for (qint64 i = 0; i < size; ++i)
        data[i] = char(i % 251);
    return data;
}

} // namespace

class ShellTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deleteFile_data()
    {
        QTest::addColumn<bool>("exists");
        QTest::addColumn<QString>("answer"); // "yes", "no", or empty for no question
        QTest::addColumn<bool>("result");
        const auto row = [](const char* name, bool exists, const char* answer, bool result) {
            QTest::newRow(name) << exists << QString(answer) << result;
        };
        row("confirmed", true, "yes", true);
        row("refused", true, "no", false);
        row("missing file", false, "", false);
    }

    void deleteFile()
    {
        QFETCH(bool, exists);
        QFETCH(QString, answer);
        QFETCH(bool, result);
        QTemporaryDir dir;
        const QString path = dir.filePath("Sutartis 417.doc");
        if (exists)
            writeFile(path, "content");
        ScriptedShell shell;
        if (answer == "yes")
            shell.confirm();
        else if (answer == "no")
            shell.refuse();

        QCOMPARE(Shell::instance().deleteFile(path), result);
        QCOMPARE(QFile::exists(path), exists && !result);
        QVERIFY(shell.allAnswered());
        QCOMPARE(shell.calls().size(), 1);
        QCOMPARE(shell.calls().first().kind, Kind::Delete);
        QCOMPARE(shell.calls().first().result, result);
        QCOMPARE(shell.questions().size(), 1);
        const ScriptedShell::Question asked = shell.questions().first();
        if (exists) {
            QCOMPARE(asked.text, "Do you want to permanently delete the file 'Sutartis 417.doc'?");
            QCOMPARE(asked.title, "Delete File");
            QCOMPARE(asked.style, MsgBoxStyle::YesNo | MsgBoxStyle::Exclamation);
        } else {
            QCOMPARE(asked.style, MsgBoxStyle::OkOnly | MsgBoxStyle::Critical);
            QVERIFY2(asked.text.contains("can't be found"), qPrintable(asked.text));
        }
    }

    // Without a shell installed the questions go through the prompter.
    void defaultShellAsksThroughPrompter()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("a.txt");
        writeFile(path, "a");
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::No).answer(MsgBoxResult::Yes);
        QVERIFY(!Shell::instance().deleteFile(path));
        QVERIFY(Shell::instance().deleteFile(path));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(prompter.texts(), QStringList(2, "Do you want to permanently delete the file 'a.txt'?"));
        QCOMPARE(prompter.prompts().first().title, "Delete File");
        QVERIFY(!Shell::instance().open(path));
    }

    // A question to replace comes with an answer; a failure without one is told in a notice.
    void copyAndMove_data()
    {
        QTest::addColumn<bool>("moving");
        QTest::addColumn<QString>("target"); // new, other folder, existing, self, folder, no folder
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("result");
        const auto row
            = [](const char* name, bool moving, const char* target, const char* answer, bool result) {
                  QTest::newRow(name) << moving << QString(target) << QString(answer) << result;
              };
        row("copy to a new name", false, "new", "", true);
        row("copy over, refused", false, "existing", "no", false);
        row("copy over, confirmed", false, "existing", "yes", true);
        row("copy into a folder", false, "folder", "", true);
        row("copy onto itself", false, "self", "", false);
        row("copy to a missing folder", false, "no folder", "", false);
        row("move across folders", true, "other folder", "", true);
        row("move over, refused", true, "existing", "no", false);
        row("move over, confirmed", true, "existing", "yes", true);
        row("move onto itself", true, "self", "", false);
    }

    void copyAndMove()
    {
        QFETCH(bool, moving);
        QFETCH(QString, target);
        QFETCH(QString, answer);
        QFETCH(bool, result);
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir("Archyvas"));
        const QString source = dir.filePath("Sutartis.doc");
        const QByteArray content = pattern(3000);
        writeFile(source, content);
        QString to = dir.filePath("Kopija.doc");
        QString landing = to;
        if (target == "other folder" || target == "folder") {
            landing = dir.filePath("Archyvas/Sutartis.doc");
            to = target == "folder" ? dir.filePath("Archyvas") : landing;
        } else if (target == "existing") {
            writeFile(to, "old target");
        } else if (target == "self") {
            to = landing = source;
        } else if (target == "no folder") {
            to = landing = dir.filePath("Nera/Sutartis.doc");
        }
        ScriptedShell shell;
        if (answer == "yes")
            shell.confirm();
        else if (answer == "no")
            shell.refuse();

        const bool done
            = moving ? Shell::instance().moveFile(source, to) : Shell::instance().copyFile(source, to);
        QCOMPARE(done, result);
        QVERIFY(shell.allAnswered());
        // The source goes only with a completed move; the target has the source's content
        // only after a completed copy or move.
        QCOMPARE(QFile::exists(source), !(moving && result) || target == "self");
        QCOMPARE(readFile(source == landing ? source : landing),
            result || target == "self" ? content
                : target == "existing" ? "old target"
                                       : "<missing>");
        // No temporary file is left behind.
        const QStringList names = QDir(dir.path()).entryList(QDir::Files | QDir::Hidden);
        for (const QString& name : names)
            QVERIFY2(name == "Sutartis.doc" || name == "Kopija.doc", qPrintable(name));
        if (!answer.isEmpty()) {
            QCOMPARE(shell.questions().size(), 1);
            QCOMPARE(shell.questions().first().text,
                "The file 'Kopija.doc' already exists in '" % QDir::toNativeSeparators(dir.path())
                    % "'. Do you want to replace it?");
            QCOMPARE(shell.questions().first().style, MsgBoxStyle::YesNo | MsgBoxStyle::Exclamation);
        } else if (!result) {
            QCOMPARE(shell.questions().size(), 1);
            QCOMPARE(shell.questions().first().style, MsgBoxStyle::OkOnly | MsgBoxStyle::Critical);
        } else {
            QVERIFY(shell.questions().isEmpty());
        }
    }

    // A move to another file system is a copy, then the removal of the source.
    void moveAcrossFileSystems()
    {
        QTemporaryDir here;
        QTemporaryDir there(QStringLiteral("/dev/shm/kartella-XXXXXX"));
        struct stat a = {};
        struct stat b = {};
        if (!there.isValid() || ::stat(QFile::encodeName(here.path()).constData(), &a) != 0
            || ::stat(QFile::encodeName(there.path()).constData(), &b) != 0 || a.st_dev == b.st_dev)
            QSKIP("No second file system to move to");
        const QString source = here.filePath("a.doc");
        const QByteArray content = pattern(3 << 20);
        writeFile(source, content);
        QVERIFY(QFile::setPermissions(source, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
        const QFileDevice::Permissions permissions = QFile::permissions(source);
        const QDateTime modified = QFileInfo(source).lastModified().addSecs(-3600);
        {
            QFile file(source);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(modified, QFileDevice::FileModificationTime));
        }
        ScriptedShell shell;
        QVERIFY(Shell::instance().moveFile(source, there.path()));
        QVERIFY(!QFile::exists(source));
        const QString moved = there.filePath("a.doc");
        QCOMPARE(readFile(moved), content);
        QCOMPARE(QFile::permissions(moved), permissions);
        QCOMPARE(QFileInfo(moved).lastModified(), modified);
    }

    // Large files show a progress dialog whose Cancel stops the copy and leaves no trace.
    void progress()
    {
        QTemporaryDir dir;
        const QString small = dir.filePath("small.doc");
        const QString large = dir.filePath("large.doc");
        writeFile(small, pattern(1000));
        writeFile(large, pattern(3 << 20));
        DesktopShell shell;
        shell.setProgressThreshold(1 << 20);

        QVERIFY(shell.copyFile(small, dir.filePath("small copy.doc")));
        QCOMPARE(shell.progressShown(), 0);
        QVERIFY(shell.copyFile(large, dir.filePath("large copy.doc")));
        QCOMPARE(shell.progressShown(), 1);
        QCOMPARE(readFile(dir.filePath("large copy.doc")), readFile(large));

        bool cancelled = false;
        QTimer::singleShot(0, this, [&cancelled] {
            for (QWidget* w : QApplication::topLevelWidgets()) {
                if (auto* dialog = qobject_cast<QProgressDialog*>(w); dialog && dialog->isVisible()) {
                    dialog->cancel();
                    cancelled = true;
                }
            }
        });
        QVERIFY(!shell.copyFile(large, dir.filePath("cancelled.doc")));
        QVERIFY(cancelled);
        QVERIFY(!QFile::exists(dir.filePath("cancelled.doc")));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 4);
    }

    void printCommand_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("program");
        const QList<QPair<const char*, const char*>> rows
            = {{"Sutartis.doc", "soffice"}, {"Lentele.XLS", "soffice"}, {"Skaidres.ppt", "soffice"},
                {"Laiskas.odt", "soffice"}, {"Aktas.pdf", "lp"}, {"notes.txt", "lp"}, {"README", "lp"}};
        for (const auto& [file, program] : rows)
            QTest::newRow(file) << QString(file) << QString(program);
    }

    void printCommand()
    {
        QFETCH(QString, file);
        QFETCH(QString, program);
        const QString path = QDir::temp().filePath(file);
        const ShellCommand command = DesktopShell::printCommand(path);
        QCOMPARE(command.program, program);
        QCOMPARE(command.arguments.last(), path);
        if (program == "soffice")
            QCOMPARE(command.arguments.mid(0, 2), QStringList({"--headless", "-p"}));
    }

    // Printing fails, without a crash, when the file or the printing program is missing.
    void printFailures()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("a.pdf");
        DesktopShell shell;
        QVERIFY(!shell.print(path));
        writeFile(path, "%PDF-1.4");
        const QByteArray oldPath = qgetenv("PATH");
        qputenv("PATH", "");
        const bool printed = shell.print(path);
        qputenv("PATH", oldPath);
        QVERIFY(!printed);
    }

    void propertiesDialog()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("Pastabos.txt");
        writeFile(path, "hello");
        QVERIFY(QFile::setPermissions(
            path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup));
        const QDateTime modified(QDate(2024, 3, 5), QTime(14, 30));
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(modified, QFileDevice::FileModificationTime));
        }
        FilePropertiesDialog dialog(path);
        dialog.show();
        const auto field = [&dialog](const char* name) {
            auto* edit = dialog.findChild<QLineEdit*>(name);
            return edit ? edit->text() : QStringLiteral("<no field>");
        };
        QCOMPARE(dialog.windowTitle(), "Pastabos.txt Properties");
        QCOMPARE(field("txtName"), "Pastabos.txt");
        QCOMPARE(field("txtType"), QMimeDatabase().mimeTypeForName("text/plain").comment());
        QCOMPARE(field("txtSize"), "5 bytes");
        QCOMPARE(field("txtFolder"), QDir::toNativeSeparators(dir.path()));
        QCOMPARE(field("txtModified"), FilePropertiesDialog::dateText(modified));
        QVERIFY(field("txtModified").contains("2024"));
        QVERIFY(!field("txtCreated").isEmpty());
        QCOMPARE(field("txtPermissions"), "Read and write (rw-r-----)");
        for (QLineEdit* edit : dialog.findChildren<QLineEdit*>()) {
            QVERIFY2(!edit->accessibleName().isEmpty(), qPrintable(edit->objectName()));
            QVERIFY(edit->isReadOnly());
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        dialog.show();
        auto* close = dialog.findChild<QPushButton*>("cmdClose");
        QVERIFY(close);
        QCOMPARE(close->text(), "Close");
        QTest::mouseClick(close, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }

    // In Lithuanian the shell's questions and notices and the properties dialog speak Lithuanian;
    // FileInfo still names a launcher "Shortcut", as the code that compares it expects.
    void shellAndPropertiesInLithuanian()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("Pastabos.txt");
        writeFile(path, "hello");
        QVERIFY(QFile::setPermissions(
            path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup));
        const QString launcher = dir.filePath("Kartella.desktop");
        writeFile(launcher, "[Desktop Entry]\nType=Application\nName=Kartella\nExec=kartella\n");
        const kartella::test::Lithuanian lithuanian;
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::No).answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        QVERIFY(!Shell::instance().deleteFile(path));
        QVERIFY(!Shell::instance().deleteFile(dir.filePath("nėra.txt")));
        QVERIFY(!Shell::instance().copyFile(path, dir.filePath("nėra/Pastabos.txt")));
        QCOMPARE(prompter.prompts().size(), 3);
        QCOMPARE(prompter.prompts().at(0).title, "Failo šalinimas");
        QCOMPARE(prompter.prompts().at(0).text, "Ar tikrai visam laikui pašalinti failą „Pastabos.txt“?");
        QCOMPARE(prompter.prompts().at(1).title, "Klaida šalinant failą");
        QCOMPARE(prompter.prompts().at(1).text, "Nepavyko pašalinti „nėra.txt“: failas nerastas.");
        QCOMPARE(prompter.prompts().at(2).title, "Klaida kopijuojant failą");
        QVERIFY2(prompter.prompts().at(2).text.startsWith("Nepavyko nukopijuoti „Pastabos.txt“: aplanko „"),
            qPrintable(prompter.prompts().at(2).text));

        FilePropertiesDialog dialog(path);
        dialog.show();
        QCOMPARE(dialog.windowTitle(), "Pastabos.txt – savybės");
        QCOMPARE(dialog.findChild<QLineEdit*>("txtSize")->text(), "5 B");
        QCOMPARE(dialog.findChild<QLineEdit*>("txtPermissions")->text(), "Skaityti ir rašyti (rw-r-----)");
        QCOMPARE(dialog.findChild<QPushButton*>("cmdClose")->text(), "Uždaryti");
        QCOMPARE(kartella::test::clashingAccessKeys(dialog), QStringList());
        FileInfo info;
        info.createFromFile(launcher);
        QCOMPARE(info.typeName(), "Shortcut");
        QCOMPARE(FilePropertiesDialog(launcher).findChild<QLineEdit*>("txtType")->text(), "Nuoroda");
    }

    // The three routines go through the installed shell; the scripted one records what it is
    // asked to open, print and show.
    void shellRoutines()
    {
        QTemporaryDir dir;
        const QString source = dir.filePath("a.doc");
        writeFile(source, "a");
        ScriptedShell shell;
        QString copy = dir.filePath("b.doc");
        QVERIFY(shellCopyFile(source, copy));
        QString moved = dir.filePath("c.doc");
        QVERIFY(shellMoveFile(copy, moved));
        shell.refuse().confirm();
        QVERIFY(!shellDeleteFile(moved));
        QVERIFY(shellDeleteFile(moved));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList {"a.doc"});
        QVERIFY(Shell::instance().open(source));
        shell.setResult(Kind::Print, false);
        QVERIFY(!Shell::instance().print(source));
        Shell::instance().showProperties(source);

        const QList<ScriptedShell::Call> calls = shell.take();
        QList<Kind> kinds;
        for (const ScriptedShell::Call& call : calls)
            kinds << call.kind;
        QCOMPARE(kinds,
            QList<Kind>({Kind::Copy, Kind::Move, Kind::Delete, Kind::Delete, Kind::Open, Kind::Print,
                Kind::Properties}));
        QCOMPARE(calls[0].target, dir.filePath("b.doc"));
        QCOMPARE(calls[1].path, dir.filePath("b.doc"));
        QCOMPARE(calls[2].result, false);
        QCOMPARE(calls[3].path, moved);
        QCOMPARE(calls[5].result, false);
        QVERIFY(shell.calls().isEmpty());
    }

    // A file moved to the trash is gone from its folder, and the move says it went; a file
    // that isn't there is refused, with the reason.
    void fileToTheTrash()
    {
        QTemporaryDir home(QDir::homePath() + QStringLiteral("/trash-XXXXXX"));
        const QByteArray previous = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", home.filePath("data").toLocal8Bit());
        const auto restore = qScopeGuard([&previous] { qputenv("XDG_DATA_HOME", previous); });
        const QString path = home.filePath("a.doc");
        writeFile(path, "a");
        QString error;
        QVERIFY2(moveFileToTrash(path, &error), qPrintable(error));
        QVERIFY(!QFile::exists(path));
        QVERIFY(error.isEmpty());
        QVERIFY(!moveFileToTrash(path, &error));
        QVERIFY(!error.isEmpty());
    }

    // Without the shell a failed copy or move is tried again into target taken as a folder.
    void routinesWithoutShell_data()
    {
        QTest::addColumn<bool>("moving");
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QString>("targetAfter");
        QTest::addColumn<QString>("landing"); // where the source's content is, empty for nowhere
        const auto row = [](const char* name, bool moving, const char* target, bool result, const char* after,
                             const char* landing) {
            QTest::newRow(name) << moving << QString(target) << result << QString(after) << QString(landing);
        };
        row("copy to a file", false, "b.doc", true, "b.doc", "b.doc");
        row("copy over a file", false, "old.doc", true, "old.doc", "old.doc");
        row("copy to a folder", false, "Archyvas", true, "Archyvas/a.doc", "Archyvas/a.doc");
        row("copy to nowhere", false, "Nera/b.doc", false, "Nera/b.doc/a.doc", "");
        row("move to a file", true, "b.doc", true, "b.doc", "b.doc");
        row("move to a folder", true, "Archyvas", true, "Archyvas/a.doc", "Archyvas/a.doc");
        row("move over a file", true, "old.doc", false, "old.doc/a.doc", "");
    }

    void routinesWithoutShell()
    {
        QFETCH(bool, moving);
        QFETCH(QString, target);
        QFETCH(bool, result);
        QFETCH(QString, targetAfter);
        QFETCH(QString, landing);
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir("Archyvas"));
        const QString source = dir.filePath("a.doc");
        writeFile(source, "source");
        writeFile(dir.filePath("old.doc"), "old");
        QString to = dir.filePath(target);
        QCOMPARE(moving ? moveFileWithoutShell(source, to) : copyFileWithoutShell(source, to), result);
        QCOMPARE(to, QDir::toNativeSeparators(dir.filePath(targetAfter)));
        if (!landing.isEmpty())
            QCOMPARE(readFile(dir.filePath(landing)), "source");
        QCOMPARE(QFile::exists(source), !(moving && result));
        QCOMPARE(readFile(dir.filePath("old.doc")), landing == "old.doc" ? "source" : "old");
        QVERIFY(deleteFileWithoutShell(dir.filePath("old.doc")));
        QVERIFY(!deleteFileWithoutShell(dir.filePath("old.doc")));
    }
};

QTEST_MAIN(ShellTest)
#include "tst_shell.moc"
