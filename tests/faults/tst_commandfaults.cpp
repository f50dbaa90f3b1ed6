// A document's file that vanishes, or whose folder turns read-only, between the click and the
// command of the main window (open, print, delete, related delete): the user is told where
// something could not be done, and the register never names a file that was taken away or
// loses a row whose file stayed.
#include "explorer/CommandsFixture.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "faults/FaultFixture.h"
#include "faults/TestMounts.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>
#include <QTreeView>

#include <memory>

using namespace kartella;
using namespace kartella::test;

class CommandFaultsTest : public QObject
{
    Q_OBJECT

    // A file of the fixture's register in a folder of its own, which the test can turn read-only
    // without touching the register.
    static QString placeFile(CommandsFixture& fx, const QString& name)
    {
        const QString folder = fx.reg.dir() + "/files";
        QDir().mkpath(folder);
        const QString path = folder + u'/' + name;
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("x");
        return path;
    }

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void cleanupTestCase() { QStandardPaths::setTestModeEnabled(false); }
    void init() { selection() = SelectionState(); }

    // The fault strikes while the question "Delete ...?" is open and the user answers Yes.
    void faultWhileDeleteIsAsked_data()
    {
        QTest::addColumn<bool>("related");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<bool>("rowGoes");
        QTest::addColumn<QString>("told"); // the message after the question, empty for none
        QTest::newRow("document, file vanished") << false << "vanished" << true << QString();
        QTest::newRow("document, folder read-only") << false << "read-only" << false << "could not be moved";
        QTest::newRow("related, file vanished") << true << "vanished" << false << "was not found";
        QTest::newRow("related, folder read-only") << true << "read-only" << false << "could not be moved";
    }

    void faultWhileDeleteIsAsked()
    {
        QFETCH(bool, related);
        QFETCH(QString, fault);
        QFETCH(bool, rowGoes);
        QFETCH(QString, told);
        CommandsFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        const QString path = placeFile(fx, related ? "annex.doc" : "contract.doc");
        if (related)
            fx.setPath("tbl_Sub_Documents", "SubRastasID", fx.id["annex"], "SubRastoKelias", path);
        else
            fx.setPath("tbl_Documents", "RastasID", fx.id["contract"], "RastoKel", path);
        MainWindow& w = fx.load();
        w.show();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("contract");
        QWidget* list = w.documentList()->detailsView();
        if (related) {
            w.onRelatedClicked(fx.related().rowOfKey(DocumentFills::itemKey(fx.id["annex"])));
            list = w.relatedList()->detailsView();
        }
        const RegisterSnapshot before = RegisterSnapshot::take(fx.reg.path());

        std::unique_ptr<ReadOnlyFolder> readOnly;
        QString skipReason;
        prompter.whileAsking = [&] {
            if (fault == "vanished") {
                QFile::remove(path);
                return;
            }
            readOnly = std::make_unique<ReadOnlyFolder>(fx.reg.dir() + "/files");
            if (!readOnly->isMounted())
                skipReason = readOnly->skipReason();
        };
        prompter.answer(MsgBoxResult::Yes);
        if (!told.isEmpty())
            prompter.answer(MsgBoxResult::Ok);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Delete);
        if (!skipReason.isEmpty())
            QSKIP(qPrintable(skipReason));

        const QStringList texts = prompter.texts();
        QCOMPARE(texts.size(), told.isEmpty() ? 1 : 2);
        QVERIFY(texts.first().startsWith("Delete the "));
        if (!told.isEmpty())
            QVERIFY2(texts.last().contains(told), qPrintable(texts.last()));
        QVERIFY(shell.calls().isEmpty());
        QCOMPARE(integrityCheck(fx.reg.path()), QStringLiteral("ok"));
        const QString table = related ? "tbl_Sub_Documents" : "tbl_Documents";
        const QString key = related ? "SubRastasID" : "RastasID";
        const qint32 id = related ? fx.id["annex"] : fx.id["contract"];
        QCOMPARE(
            fx.reg.scalar(QString("SELECT COUNT(*) FROM %1 WHERE %2=%3").arg(table, key).arg(id)).toInt(),
            rowGoes ? 0 : 1);
        if (!rowGoes) {
            const QStringList lost = RegisterSnapshot::take(fx.reg.path()).lostOrChanged(before);
            QVERIFY2(lost.isEmpty(), qPrintable(lost.join('\n')));
        }
        // A row that stays names a file that is there, unless it was gone before.
        if (fault == "read-only")
            QVERIFY(QFile::exists(path));
    }

    // Open and Print of a document whose file went after it was selected: the user is told, and
    // the desktop is never asked to open what isn't there.
    void openAndPrintAVanishedFile_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("Open, Enter") << "Enter";
        QTest::newRow("Open, menu") << "mnuOpen";
        QTest::newRow("Print, Ctrl+P") << "Ctrl+P";
        QTest::newRow("Print, toolbar") << "btnPrint";
    }

    void openAndPrintAVanishedFile()
    {
        QFETCH(QString, command);
        CommandsFixture fx;
        ScriptedPrompter prompter;
        ScriptedShell shell;
        const QString path = placeFile(fx, "contract.doc");
        fx.setPath("tbl_Documents", "RastasID", fx.id["contract"], "RastoKel", path);
        MainWindow& w = fx.load();
        w.show();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        fx.clickNode("a" + QString::number(fx.id["Sutartys"]));
        fx.clickDocument("contract");
        QVERIFY(QFile::remove(path));
        const RegisterSnapshot before = RegisterSnapshot::take(fx.reg.path());

        prompter.answer(MsgBoxResult::Ok);
        QWidget* list = w.documentList()->detailsView();
        list->setFocus();
        if (command == "Enter")
            QTest::keyClick(list, Qt::Key_Return);
        else if (command == "Ctrl+P")
            QTest::keyClick(list, Qt::Key_P, Qt::ControlModifier);
        else
            w.action(command)->trigger();
        QCOMPARE(prompter.texts(), QStringList {"Path to file is invalid!"});
        QVERIFY(shell.calls().isEmpty());
        QVERIFY(RegisterSnapshot::take(fx.reg.path()).lostOrChanged(before).isEmpty());
    }
};

int runCommandFaultsTest(int argc, char** argv)
{
    CommandFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_commandfaults.moc"
