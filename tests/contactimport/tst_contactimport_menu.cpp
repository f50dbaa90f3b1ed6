// The import reached from the main window's menu, by keyboard and by the action.
#include "ContactFiles.h"
#include "addressbook/import/OutlookImportCommand.h"
#include "explorer/MainWindow.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "platform/WidgetPrompter.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

class ContactImportMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void importFromToolsMenuByKeyboard()
    {
        TestRegister reg;
        QTemporaryDir dir;
        const QString path = writeContactFile(dir.path(), QStringLiteral("c.vcf"),
            "BEGIN:VCARD\r\nFN:Rūta Jankauskaitė\r\nTEL;CELL:+370 600 1\r\nEND:VCARD\r\n");
        ScriptedPrompter prompter;
        MainWindow w;
        w.show();
        w.load();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QAction* command = w.action(QStringLiteral("mnuOutlookData"));
        QVERIFY(command);
        QVERIFY(command->isEnabled());

        prompter.answer(MsgBoxResult::Yes).answerFile(path).answer(MsgBoxResult::Ok);
        QTest::keyClick(&w, Qt::Key_T, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_I);
        QTRY_VERIFY(prompter.allAnswered());
        QCOMPARE(prompter.texts().last(),
            QStringLiteral(
                "Contacts successfully imported.\n\n1 added, 0 skipped as already there, 0 failed."));
        // The chooser names the kinds of file it reads.
        QCOMPARE(prompter.fileRequests.size(), 1);
        const Prompter::OpenFileRequest& request = prompter.fileRequests.first();
        QCOMPARE(fileDialogFilter(request.filterLabel, request.pattern),
            QStringLiteral("vCard and Outlook CSV files (*.vcf *.vcard *.csv)"));
        QCOMPARE(reg.scalar(QStringLiteral("SELECT FullName FROM tbl_Contacts")).toString(),
            QStringLiteral("Rūta Jankauskaitė"));
        QCOMPARE(reg.scalar(QStringLiteral("SELECT PhoneName FROM tbl_Phones")).toString(),
            QStringLiteral("Mobile"));
        QVERIFY(!QGuiApplication::overrideCursor());

        // The second run finds the contact and adds nothing.
        prompter.answer(MsgBoxResult::Yes).answerFile(path).answer(MsgBoxResult::Ok);
        command->trigger();
        QVERIFY(prompter.allAnswered());
        QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Contacts")).toInt(), 1);
        QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Phones")).toInt(), 1);
        QCOMPARE(prompter.texts().last(),
            QStringLiteral(
                "Contacts successfully imported.\n\n0 added, 1 skipped as already there, 0 failed."));

        // An Outlook export whose notes hold a line break inside quotes.
        const QString csv = writeContactFile(dir.path(), QStringLiteral("c.csv"),
            "First Name,Last Name,Notes,Mobile Phone\r\n"
            "Ona,Petraitienė,\"Skambinti po 10,\r\nne anksčiau\",+370 600 2\r\n"
            "Rūta,Jankauskaitė,,\r\n");
        prompter.answer(MsgBoxResult::Yes).answerFile(csv).answer(MsgBoxResult::Ok);
        command->trigger();
        QVERIFY(prompter.allAnswered());
        QCOMPARE(prompter.texts().last(),
            QStringLiteral(
                "Contacts successfully imported.\n\n1 added, 1 skipped as already there, 0 failed."));
        QCOMPARE(
            reg.scalar(QStringLiteral("SELECT Notes FROM tbl_Contacts WHERE FullName = 'Ona Petraitienė'"))
                .toString(),
            QStringLiteral("Skambinti po 10,\r\nne anksčiau"));
    }

    // The busy pointer is gone while a failed step is asked about and when the import ends,
    // and a pointer set before the import is there again at each of its messages.
    void busyPointerOnlyWhileCopying()
    {
        TestRegister reg;
        reg.exec(
            QStringLiteral("CREATE TRIGGER refuse_name BEFORE INSERT ON tbl_Contacts "
                           "WHEN NEW.FullName = 'Refused' BEGIN SELECT RAISE(ABORT, 'name refused'); END"));
        QTemporaryDir dir;
        const QString path = writeContactFile(dir.path(), QStringLiteral("c.vcf"),
            "BEGIN:VCARD\r\nFN:Jonas\r\nEND:VCARD\r\nBEGIN:VCARD\r\nFN:Refused\r\nEND:VCARD\r\n"
            "BEGIN:VCARD\r\nFN:Ona\r\nEND:VCARD\r\n");
        const auto pointer = [] {
            const QCursor* cursor = QGuiApplication::overrideCursor();
            return cursor ? int(cursor->shape()) : -1;
        };
        ScriptedPrompter prompter;
        QList<int> seen;
        prompter.whileAsking = [&] {
            seen << pointer();
            prompter.whileAsking = [&] {
                seen << pointer();
                prompter.whileAsking = [&] { seen << pointer(); };
            };
        };
        prompter.answer(MsgBoxResult::Yes)
            .answerFile(path)
            .answer(MsgBoxResult::Yes)
            .answer(MsgBoxResult::Ok);
        QGuiApplication::setOverrideCursor(Qt::CrossCursor);
        importOutlookData();
        QCOMPARE(pointer(), int(Qt::CrossCursor));
        QGuiApplication::restoreOverrideCursor();
        QVERIFY(prompter.allAnswered());
        QCOMPARE(prompter.texts().size(), 3);
        QCOMPARE(seen, (QList<int> {Qt::CrossCursor, Qt::CrossCursor, Qt::CrossCursor}));
        QCOMPARE(reg.scalar(QStringLiteral("SELECT COUNT(*) FROM tbl_Contacts")).toInt(), 2);
        QCOMPARE(pointer(), -1);
    }
};

QTEST_MAIN(ContactImportMenuTest)
#include "tst_contactimport_menu.moc"
