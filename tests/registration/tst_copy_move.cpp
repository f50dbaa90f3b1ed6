#include "RegisterFixture.h"
#include "ShownTexts.h"
#include "explorer/DocumentFills.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "history/Versions.h"
#include "options/TrashOptions.h"
#include "registration/CopyFileDialog.h"
#include "registration/StoredPaths.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QTimer>

using namespace kartella;
using namespace kartella::test;

// Copying and moving the file of a document or related document.
class CopyMoveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The name a copy or a move gives the file: what follows the last separator of either
    // kind, so that a path stored on Windows names the same file here.
    void fileNames_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("name");
        QTest::newRow("bare name") << "lease.doc"
                                   << "lease.doc";
        QTest::newRow("in a folder") << "/home/ona/lease.doc"
                                     << "lease.doc";
        QTest::newRow("at the root") << "/lease.doc"
                                     << "lease.doc";
        QTest::newRow("Windows path") << "C:\\Docs\\lease.doc"
                                      << "lease.doc";
        QTest::newRow("Windows root") << "\\lease.doc"
                                      << "lease.doc";
        QTest::newRow("both separators") << "C:\\Docs/old\\lease.doc"
                                         << "lease.doc";
    }

    void fileNames()
    {
        QFETCH(QString, path);
        QFETCH(QString, name);
        QCOMPARE(fileNameOf(path), name);
    }

    // Copy leaves row and source; Move rewrites the row of the right table (through a
    // folder with an apostrophe), the selection and the shown path; the other table and
    // rows stay as they were.
    void copyAndMove_data()
    {
        QTest::addColumn<bool>("related");
        QTest::newRow("document") << false;
        QTest::newRow("related document") << true;
    }

    void copyAndMove()
    {
        QFETCH(bool, related);
        Fixture fx;
        if (related)
            fx.selectRelated();
        const QString source = related ? fx.annexFile : fx.leaseFile;
        const QByteArray content = readFile(source);
        const QString copies = fx.files.filePath("copies");
        const QString moved = fx.files.filePath("O'Brien's");
        QDir().mkpath(copies);
        QDir().mkpath(moved);
        CopyFileDialog dialog;
        QVERIFY(dialog.hasFile());
        showActive(dialog);
        QCOMPARE(dialog.objectName(), "frmCopyFile");
        QCOMPARE(shownTexts(dialog),
            QStringList({"Copy/Move File", "txtDestination:  | Destination folder",
                "cmdDestFolder: Destination |  | ", "cmdCopy: Copy |  | ", "cmdMove: Move |  | ",
                "cmdClose: Close |  | ", ": Document Description: |  | ", ": Current Location: |  | ",
                ": Size: |  | ", ": Date: |  | "}));
        QCOMPARE(overlaps(dialog), QStringList());
        QVERIFY(dialog.isModal());
        // Grown, the window keeps its fields at the top and its buttons at the bottom right;
        // the fields take the new width, the captions keep theirs.
        auto* destination = dialog.findChild<QLineEdit*>("txtDestination");
        const int fieldsStart = destination->geometry().left();
        dialog.resize(dialog.width() + 300, 600);
        dialog.layout()->activate();
        QCOMPARE(destination->geometry().left(), fieldsStart);
        QVERIFY(destination->geometry().right() > dialog.width() - 30);
        QVERIFY(destination->geometry().bottom() < 300);
        QVERIFY(dialog.findChild<QPushButton*>("cmdClose")->geometry().top() > 500);
        QVERIFY(dialog.findChild<QPushButton*>("cmdCopy")->geometry().left() > dialog.width() / 4);
        QCOMPARE(dialog.findChild<QLineEdit*>("txtDocument")->text(), related ? "Annex" : "Sutartis");
        QCOMPARE(dialog.findChild<QLabel*>("txtPathNow")->text(), source);
        QCOMPARE(dialog.findChild<QLabel*>("txtFileSize")->text(), QString::number(content.size()));

        fx.prompter.answerFolder(copies);
        click(dialog, "cmdDestFolder");
        QCOMPARE(fx.prompter.folderPrompts, QStringList {"Select a Folder in which you'll to copy/move:"});
        click(dialog, "cmdCopy");
        QCOMPARE(readFile(QDir(copies).filePath(fileNameOf(source))), content);
        QCOMPARE(readFile(source), content);
        QCOMPARE(selection().selectedFilePath, source);

        retype(dialog.findChild<QLineEdit*>("txtDestination"), moved);
        click(dialog, "cmdMove");
        const QString target = QDir(moved).filePath(fileNameOf(source));
        QVERIFY(!QFile::exists(source));
        QCOMPARE(readFile(target), content);
        QCOMPARE(selection().selectedFilePath, target);
        QCOMPARE(dialog.findChild<QLabel*>("txtPathNow")->text(), target);
        QCOMPARE(fx.document("RastoKel", fx.lease).toString(), related ? fx.leaseFile : target);
        QCOMPARE(fx.related("SubRastoKelias", fx.annex).toString(), related ? target : fx.annexFile);
        QCOMPARE(fx.document("RastoKel", fx.other).toString(), fx.files.filePath("other.doc"));
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // A target already there: the shell asks, and a refusal changes nothing, neither file
    // nor row; an empty destination is told.
    void refusedOverwriteChangesNothing()
    {
        Fixture fx;
        const QString folder = fx.files.filePath("taken");
        QDir().mkpath(folder);
        const QString taken = QDir(folder).filePath("lease.doc");
        writeFile(taken, "older");
        CopyFileDialog dialog;
        showActive(dialog);
        fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdMove");
        QCOMPARE(fx.prompter.take().first().text, "Select the destination folder, please!");
        dialog.findChild<QLineEdit*>("txtDestination")->setText(folder);
        fx.shell.refuse();
        click(dialog, "cmdMove");
        QCOMPARE(fx.shell.questions().size(), 1);
        QCOMPARE(readFile(taken), "older");
        QCOMPARE(readFile(fx.leaseFile), "lease");
        QCOMPARE(fx.document("RastoKel", fx.lease).toString(), fx.leaseFile);
        QCOMPARE(selection().selectedFilePath, fx.leaseFile);
        QCOMPARE(dialog.findChild<QLabel*>("txtPathNow")->text(), fx.leaseFile);
    }

    // Copy or Move over another document's file: once the user says Yes, the file replaced is
    // kept as that document's version first; No keeps no version and changes nothing; a
    // version that can't be kept is told, and both files and the rows stay as they were.
    void replacingADocumentsFileKeepsItsVersion_data()
    {
        QTest::addColumn<bool>("move");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<bool>("versionsUnwritable");
        QTest::newRow("copy, Yes") << false << true << false;
        QTest::newRow("copy, No") << false << false << false;
        QTest::newRow("copy, no version can be kept") << false << true << true;
        QTest::newRow("move, Yes") << true << true << false;
        QTest::newRow("move, No") << true << false << false;
        QTest::newRow("move, no version can be kept") << true << true << true;
    }

    void replacingADocumentsFileKeepsItsVersion()
    {
        QFETCH(bool, move);
        QFETCH(bool, yes);
        QFETCH(bool, versionsUnwritable);
        Fixture fx;
        const QString folder = fx.files.filePath("taken");
        QDir().mkpath(folder);
        const QString taken = QDir(folder).filePath("lease.doc");
        writeFile(taken, "older");
        fx.reg.exec(
            "UPDATE tbl_Documents SET RastoKel='" + taken + "' WHERE RastasID=" + QString::number(fx.other));
        const QString versionsFolder = versionsFolderFor(fx.reg.path());
        if (versionsUnwritable)
            writeFile(versionsFolder, "a file where the folder would be");
        CopyFileDialog dialog;
        showActive(dialog);
        retype(dialog.findChild<QLineEdit*>("txtDestination"), folder);
        if (yes)
            fx.shell.confirm();
        else
            fx.shell.refuse();
        if (versionsUnwritable)
            fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, move ? "cmdMove" : "cmdCopy");
        QVERIFY(fx.shell.allAnswered());
        QVERIFY(fx.prompter.allAnswered());

        const bool replaced = yes && !versionsUnwritable;
        QCOMPARE(readFile(taken), replaced ? "lease" : "older");
        QCOMPARE(readFile(fx.leaseFile), replaced && move ? "" : "lease");
        QCOMPARE(fx.document("RastoKel", fx.lease).toString(), replaced && move ? taken : fx.leaseFile);
        QCOMPARE(fx.document("RastoKel", fx.other).toString(), taken);
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), versionsUnwritable ? 1 : 0);
        if (versionsUnwritable) {
            QVERIFY2(prompts.first().text.startsWith("The file " + QDir::toNativeSeparators(taken)
                         + " was not replaced: an earlier version of it could not be kept.\n\n"),
                qPrintable(prompts.first().text));
            return;
        }
        QStringList kept;
        for (const FileVersion& version : Versions(versionsFolder, 20).list(fx.other))
            kept << QString::fromUtf8(readFile(version.path));
        QCOMPARE(kept, yes ? QStringList {"older"} : QStringList());
        QVERIFY(!QFileInfo::exists(QDir(versionsFolder).filePath(QString::number(fx.lease))));
    }

    // Nothing clicked, or a file that has gone: told, and the dialog isn't to be shown.
    void copyWithoutFile_data()
    {
        QTest::addColumn<bool>("clicked");
        QTest::newRow("nothing clicked") << false;
        QTest::newRow("file gone") << true;
    }

    void copyWithoutFile()
    {
        QFETCH(bool, clicked);
        Fixture fx;
        if (clicked)
            QFile::remove(fx.leaseFile);
        else
            selection().activeListName.clear();
        fx.prompter.answer(MsgBoxResult::Ok);
        CopyFileDialog dialog;
        QVERIFY(!dialog.hasFile());
        QCOMPARE(fx.prompter.take().size(), 1);
    }

    // Through the main window: after a move the clicked item leads to the new path at once.
    void moveShowsInTheList()
    {
        Fixture fx;
        MainWindow window;
        window.load();
        window.listCategory(fx.contracts, 0);
        const int row = window.documentModel()->rowOfKey(DocumentFills::itemKey(fx.lease));
        QVERIFY(row >= 0);
        window.onDocumentClicked(row);
        const QString folder = fx.files.filePath("moved");
        QDir().mkpath(folder);
        QTimer responder;
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<CopyFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            responder.stop();
            dialog->findChild<QLineEdit*>("txtDestination")->setText(folder);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdMove"), Qt::LeftButton);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
        });
        responder.start(20);
        QAction* move = window.action("mnuMove");
        QVERIFY(move->isEnabled());
        move->trigger();
        const QString target = QDir(folder).filePath("lease.doc");
        QCOMPARE(window.documentModel()->item(row).tag, target);
        window.onDocumentClicked(row);
        QCOMPARE(selection().selectedFilePath, target);
    }

    // A move stores where the file really is, or refuses before anything moves: a folder
    // typed relative to the working folder is stored absolute; a folder that holds a folder
    // of the file's name is refused; a row that can't be written gets the file moved back.
    void moveStoresWhereTheFileIs_data()
    {
        QTest::addColumn<QString>("destination");
        QTest::addColumn<bool>("clash");
        QTest::addColumn<bool>("refusedRow");
        QTest::addColumn<bool>("moved");
        QTest::newRow("typed relative folder") << "backup" << false << false << true;
        QTest::newRow("folder of the file's name") << "backup" << true << false << false;
        QTest::newRow("row refused") << "backup" << false << true << false;
    }

    void moveStoresWhereTheFileIs()
    {
        QFETCH(QString, destination);
        QFETCH(bool, clash);
        QFETCH(bool, refusedRow);
        QFETCH(bool, moved);
        Fixture fx;
        const QString folder = fx.files.filePath(destination);
        QDir().mkpath(folder);
        if (clash)
            QDir().mkpath(QDir(folder).filePath("lease.doc"));
        if (refusedRow)
            fx.reg.exec("CREATE TRIGGER refuse BEFORE UPDATE ON tbl_Documents BEGIN SELECT RAISE(ABORT, "
                        "'refused here'); END");
        const QString working = QDir::currentPath();
        QDir::setCurrent(fx.files.path());
        CopyFileDialog dialog;
        showActive(dialog);
        retype(dialog.findChild<QLineEdit*>("txtDestination"), destination);
        if (clash || refusedRow)
            fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdMove");
        QDir::setCurrent(working);
        const QString target = QDir(folder).filePath("lease.doc");
        const QString now = moved ? target : fx.leaseFile;
        QCOMPARE(readFile(now), "lease");
        QCOMPARE(QFileInfo(moved ? fx.leaseFile : target).isFile(), false);
        QCOMPARE(fx.document("RastoKel", fx.lease).toString(), now);
        QCOMPARE(selection().selectedFilePath, now);
        QCOMPARE(dialog.findChild<QLabel*>("txtPathNow")->text(), now);
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), moved ? 0 : 1);
        if (refusedRow)
            QVERIFY2(
                prompts.first().text.contains("refused here") && prompts.first().text.contains("moved back"),
                qPrintable(prompts.first().text));
    }

    // A folder chosen, then the chooser cancelled: the destination is empty again, and Copy
    // asks for one instead of copying.
    void folderChooserCancelled()
    {
        Fixture fx;
        CopyFileDialog dialog;
        showActive(dialog);
        fx.prompter.answerFolder(fx.files.filePath("copies")).answerFolder(QString());
        click(dialog, "cmdDestFolder");
        QCOMPARE(dialog.findChild<QLineEdit*>("txtDestination")->text(), fx.files.filePath("copies"));
        click(dialog, "cmdDestFolder");
        QCOMPARE(dialog.findChild<QLineEdit*>("txtDestination")->text(), QString());
        fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdCopy");
        QCOMPARE(fx.prompter.take().first().text, "Select the destination folder, please!");
        QVERIFY(fx.shell.calls().isEmpty());
    }
};

QTEST_MAIN(CopyMoveTest)
#include "tst_copy_move.moc"
