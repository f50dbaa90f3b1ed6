// A document's file that vanishes, or a register or folder that refuses the change, between
// opening the copy/move dialog and its command: the user is told, and the register and the
// files still agree, each row naming a file that is there.
#include "faults/FaultFixture.h"
#include "faults/FullDiskVfs.h"
#include "faults/TestMounts.h"
#include "harness/ScriptedOfficeSuite.h"
#include "platform/OfficeSuite.h"
#include "registration/CopyFileDialog.h"
#include "registration/RegisterFixture.h"
#include "registration/RelatedDocumentDialog.h"

#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include <memory>

using namespace kartella;
using namespace kartella::test;

class FileFaultsTest : public QObject
{
    Q_OBJECT

    FullDiskVfs m_vfs;

private Q_SLOTS:
    void copyAndMoveKeepRowAndFileTogether_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("command");
        for (const char* command : {"cmdCopy", "cmdMove"}) {
            QTest::addRow("file vanished, %s", command) << "file vanished" << command;
            QTest::addRow("read-only destination, %s", command) << "read-only destination" << command;
            QTest::addRow("register disk full, %s", command) << "register disk full" << command;
        }
    }

    void copyAndMoveKeepRowAndFileTogether()
    {
        QFETCH(QString, fault);
        QFETCH(QString, command);
        Fixture fx;
        const QString destination = fx.files.filePath("kopijos");
        QDir().mkpath(destination);
        const QString moved = QDir(destination).filePath("lease.doc");
        CopyFileDialog dialog;
        showActive(dialog);
        retype(dialog.findChild<QLineEdit*>("txtDestination"), destination);
        const RegisterSnapshot before = RegisterSnapshot::take(fx.reg.path());

        std::unique_ptr<ReadOnlyFolder> readOnly;
        if (fault == "file vanished") {
            QVERIFY(QFile::remove(fx.leaseFile));
        } else if (fault == "read-only destination") {
            readOnly = std::make_unique<ReadOnlyFolder>(destination);
            if (!readOnly->isMounted())
                QSKIP(qPrintable(readOnly->skipReason()));
        } else {
            m_vfs.arm(0);
        }
        // Whatever the command says is answered; what matters is that it says something
        // when it did not do its work, and that nothing is lost.
        for (int i = 0; i < 3; ++i)
            fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, qPrintable(command));
        m_vfs.disarm();
        readOnly.reset();
        // The shell tells of the file operations it could not do, the program of the rest.
        QStringList told = fx.prompter.texts();
        for (const ScriptedShell::Question& notice : fx.shell.questions())
            told << notice.text;

        QCOMPARE(integrityCheck(fx.reg.path()), QStringLiteral("ok"));
        const QString rowPath = fx.document("RastoKel", fx.lease).toString();
        if (fault == "file vanished") {
            QVERIFY2(!told.isEmpty(), "nothing told");
            QVERIFY(RegisterSnapshot::take(fx.reg.path()).lostOrChanged(before).isEmpty());
            QVERIFY(!QFile::exists(moved));
            return;
        }
        // The row names a file that is there, with the document's content.
        QVERIFY2(readFile(rowPath) == "lease", qPrintable(rowPath + " / " + told.join('\n')));
        const bool done = command == "cmdCopy" ? readFile(moved) == "lease" : rowPath == moved;
        if (!done)
            QVERIFY2(!told.isEmpty(), "nothing told");
        if (command == "cmdMove" && !done)
            QVERIFY2(!QFile::exists(moved) || readFile(fx.leaseFile) == "lease", qPrintable(told.join('\n')));
    }

    // LibreOffice missing, stopped after its time limit, or ending without a document: the
    // related document's Word button says so, and the dialog keeps what was typed and makes
    // the document once Office works.
    void relatedWordWithOfficeFailing_data()
    {
        QTest::addColumn<long>("failure");
        QTest::newRow("not installed") << long(OfficeErrorNumber::NotInstalled);
        QTest::newRow("timed out") << long(OfficeErrorNumber::TimedOut);
        QTest::newRow("no document") << long(OfficeErrorNumber::Failed);
    }

    void relatedWordWithOfficeFailing()
    {
        QFETCH(long, failure);
        Fixture fx;
        ScriptedOfficeSuite office;
        office.failWith(failure);
        const RegisterSnapshot before = RegisterSnapshot::take(fx.reg.path(), fx.files.path());
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        auto* description = dialog.findChild<QPlainTextEdit*>("txtFields_1");
        QTest::keyClicks(description, "Aktas");
        // The error, after a notice of what to install the first time Office is missing.
        fx.prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        click(dialog, "cmdWord");
        QVERIFY(!fx.prompter.take().isEmpty());
        QVERIFY(dialog.isVisible());
        QCOMPARE(description->toPlainText(), "Aktas");
        QVERIFY(box(dialog, 5)->text().isEmpty());
        QVERIFY(RegisterSnapshot::take(fx.reg.path(), fx.files.path()).lostOrChanged(before).isEmpty());
        QCOMPARE(RegisterSnapshot::take(fx.reg.path(), fx.files.path()).files.size(), before.files.size());

        office.failWith(0);
        click(dialog, "cmdWord");
        QVERIFY(QFile::exists(box(dialog, 5)->text()));
        click(dialog, "cmdOK");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(fx.relatedRows(), QStringLiteral("%1:Annex,%1:Aktas").arg(fx.lease));
        QVERIFY(fx.prompter.prompts().isEmpty());
    }
};

int runFileFaultsTest(int argc, char** argv)
{
    FileFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_filefaults.moc"
