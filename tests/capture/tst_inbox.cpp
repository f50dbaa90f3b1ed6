// Files brought into the register: dropped on the main window, and waiting in the inbox folder.

#include "InboxFixture.h"
#include "capture/InboxFolder.h"
#include "dialogs/SettingsDialog.h"
#include "explorer/ExplorerList.h"
#include "explorer/FileDrops.h"
#include "explorer/InboxView.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/TestRegister.h"
#include "options/CaptureOptions.h"
#include "platform/Prompter.h"
#include "preview/PreviewPane.h"
#include "registration/NewDocumentDialog.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

#include <functional>

using namespace kartella;
using namespace kartella::test;

namespace {

void clickRow(MainWindow& window, int row)
{
    QTreeView* view = window.documentList()->detailsView();
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rect.center());
    QCOMPARE(window.documentList()->selectedRow(), row);
}

QStringList listedNames(const MainWindow& window)
{
    QStringList names;
    for (int row = 0; row < window.documentModel()->itemCount(); ++row)
        names << window.documentModel()->item(row).text;
    return names;
}

} // namespace

class InboxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A file dropped on a category's or a subcategory's node opens New Document on it; OK
    // copies the file into that folder under the register's naming, the original staying.
    void droppedOnANodeRegistersInItsCategory_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("category");
        QTest::addColumn<bool>("sub");
        QTest::addColumn<QString>("placedAs");
        QTest::newRow("category") << "Letters"
                                  << "Letters" << false << "letters/LET00001.pdf";
        QTest::newRow("subcategory") << "Leases"
                                     << "Contracts" << true << "leases/AGR00001.pdf";
    }
    void droppedOnANodeRegistersInItsCategory()
    {
        QFETCH(QString, node);
        QFETCH(QString, category);
        QFETCH(bool, sub);
        QFETCH(QString, placedAs);
        Fixture fx;
        const QString original = fx.outside + "/Invoice 12.pdf";
        writeFile(original, "%PDF-1.4 invoice");
        MainWindow window;
        window.load();
        window.show();
        QSignalSpy done(window.fileDrops(), &FileDrops::filesRegistered);
        DialogScript script({PressOk});
        const QPoint at = nodeCenter(window.tree(), node);
        QVERIFY(!at.isNull());
        dropFiles(window.tree()->viewport(), at, {original});
        QVERIFY(done.wait(10000));

        QCOMPARE(script.shown.size(), 1);
        QCOMPARE(script.shown[0].location, original);
        QCOMPARE(script.shown[0].category, category);
        QCOMPARE(script.shown[0].description, QString("Invoice 12"));
        const QString placed = fx.work.filePath(placedAs);
        QCOMPARE(done.first().first().toStringList(), QStringList {placed});
        const QString categoryId = QString::number(category == "Letters" ? fx.lettersId : fx.contractsId);
        QCOMPARE(fx.documents(),
            QStringList {
                categoryId + u'/' + (sub ? QString::number(fx.leasesId) : QString()) + u'/' + placed});
        QCOMPARE(readFile(placed), QByteArray("%PDF-1.4 invoice"));
        QCOMPARE(readFile(original), QByteArray("%PDF-1.4 invoice"));
        // The tree's own category is as the user left it.
        QCOMPARE(selection().currentCategoryId, 0);
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // A file chosen with Add Existing after the drop is the document's, where it is; the
    // dropped file is copied nowhere.
    void addExistingReplacesTheDroppedFile()
    {
        Fixture fx;
        const QString dropped = fx.outside + "/dropped.pdf";
        const QString chosen = fx.outside + "/chosen.pdf";
        writeFile(dropped, "dropped");
        writeFile(chosen, "chosen");
        MainWindow window;
        window.load();
        window.show();
        QSignalSpy done(window.fileDrops(), &FileDrops::filesRegistered);
        DialogScript script({[](NewDocumentDialog& dialog) {
            pressButton(dialog, "cmdAddExisting");
            PressOk(dialog);
        }});
        fx.prompter.answerFile(chosen);
        dropFiles(window.tree()->viewport(), nodeCenter(window.tree(), "Letters"), {dropped});
        QVERIFY(done.wait(10000));
        QCOMPARE(fx.documents(), QStringList {QString::number(fx.lettersId) + "//" + chosen});
        QVERIFY(QDir(fx.letters).isEmpty());
        QCOMPARE(QDir(fx.outside).entryList(QDir::Files), (QStringList {"chosen.pdf", "dropped.pdf"}));
    }

    // Several files dropped open one dialog after another: Cancel skips a file, Esc stops the
    // files left; a folder among them is named in a message and skipped.
    void severalDroppedFilesRegisterInTurn()
    {
        Fixture fx;
        QStringList paths;
        for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt", "e.txt"}) {
            paths << fx.outside + u'/' + QLatin1String(name);
            writeFile(paths.last(), name);
        }
        paths.insert(1, fx.letters);
        MainWindow window;
        window.load();
        window.show();
        QSignalSpy done(window.fileDrops(), &FileDrops::filesRegistered);
        const DialogStep inLetters = [](NewDocumentDialog& dialog) {
            chooseCategory(dialog, "Letters");
            PressOk(dialog);
        };
        DialogScript script({inLetters, PressCancel, inLetters, PressEsc});
        fx.prompter.answer(MsgBoxResult::Ok);
        dropFiles(&window, window.statusBar()->geometry().center(), paths);
        QVERIFY(done.wait(10000));

        QStringList locations;
        for (const auto& shown : script.shown)
            locations << shown.location;
        QCOMPARE(locations, (QStringList {paths[0], paths[2], paths[3], paths[4]}));
        const QString letters = QString::number(fx.lettersId);
        QCOMPARE(fx.documents(),
            (QStringList {letters + "//" + fx.letters + "/LET00001.txt",
                letters + "//" + fx.letters + "/LET00002.txt"}));
        QCOMPARE(readFile(fx.letters + "/LET00002.txt"), QByteArray("c.txt"));
        QCOMPARE(QDir(fx.outside).entryList(QDir::Files).size(), 5);
        QCOMPARE(fx.prompter.texts(),
            QStringList {"Only files can be registered; these are not files:\n" + fx.letters});
    }

    // The inbox node lists the folder's complete files; a file still growing waits; Enter
    // registers one and OK moves it out; Del asks and moves one to the trash.
    void inboxFilesWaitRegisterAndGoToTheTrash()
    {
        Fixture fx;
        setInboxFolder(fx.inbox);
        writeFile(fx.inbox + "/letter.pdf", "%PDF letter");
        MainWindow window;
        window.load();
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        InboxFolder* inbox = window.inbox()->folder();
        // The looks of the settle timer are the test's to give.
        inbox->setSettleInterval(3600 * 1000);
        NavigationTree* tree = window.tree();
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("Inbox (0)"));
        QCOMPARE(tree->topLevelItem(1)->text(0), QString("CATEGORIES"));
        QCOMPARE(window.lastNodeIndex(), 1);
        inbox->checkWaitingFiles();
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("Inbox (1)"));

        // A file being written waits until its size holds from one look to the next.
        writeFile(fx.inbox + "/scan.pdf", "%PDF part one");
        QTRY_VERIFY(inbox->isWaiting("scan.pdf"));
        // Another change in the folder, a moment later, doesn't make it complete.
        inbox->rescan();
        QVERIFY(inbox->isWaiting("scan.pdf"));
        writeFile(fx.inbox + "/scan.pdf", " and part two", QIODevice::Append);
        inbox->checkWaitingFiles();
        QVERIFY(inbox->isWaiting("scan.pdf"));
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("Inbox (1)"));
        inbox->checkWaitingFiles();
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("Inbox (2)"));

        QTest::mouseClick(
            tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(tree->topLevelItem(0)).center());
        QCOMPARE(window.windowTitle(), QString("Inbox"));
        QCOMPARE(listedNames(window), (QStringList {"letter.pdf", "scan.pdf"}));
        QCOMPARE(window.documentModel()->item(1).subItems[0], QLocale::system().formattedDataSize(26));
        window.action("mnuPreviewPane")->trigger();
        clickRow(window, 0);
        QTRY_COMPARE(window.previewPane()->shownPath(), fx.inbox + "/letter.pdf");
        for (const char* name : {"mnuShowDetails", "mnuRelated", "mnuCopy", "mnuMove", "mnuDeleteCategory"})
            QVERIFY2(!window.action(QLatin1String(name))->isEnabled(), name);
        QVERIFY(window.action("mnuDelete")->isEnabled());

        // A double-click or Enter opens New Document with the file; Cancel leaves it in the
        // inbox, OK moves it.
        QTreeView* view = window.documentList()->detailsView();
        {
            DialogScript script({PressCancel});
            QTest::mouseDClick(
                view->viewport(), Qt::LeftButton, {}, view->visualRect(view->model()->index(0, 0)).center());
            QCOMPARE(script.shown.size(), 1);
            QCOMPARE(script.shown[0].location, fx.inbox + "/letter.pdf");
        }
        QVERIFY(QFile::exists(fx.inbox + "/letter.pdf"));
        QVERIFY(fx.documents().isEmpty());
        {
            DialogScript script({[](NewDocumentDialog& dialog) {
                chooseCategory(dialog, "Letters");
                PressOk(dialog);
            }});
            QTest::keyClick(view, Qt::Key_Return);
            QCOMPARE(script.shown.size(), 1);
        }
        const QString placed = fx.letters + "/LET00001.pdf";
        QVERIFY(!QFile::exists(fx.inbox + "/letter.pdf"));
        QCOMPARE(readFile(placed), QByteArray("%PDF letter"));
        QCOMPARE(fx.documents(), QStringList {QString::number(fx.lettersId) + "//" + placed});
        QCOMPARE(listedNames(window), QStringList {"scan.pdf"});
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("Inbox (1)"));

        // Del asks; No keeps the file, Yes moves it to the trash.
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        clickRow(window, 0);
        QVERIFY(window.action("mnuDelete")->isEnabled());
        fx.prompter.answer(MsgBoxResult::No).answer(MsgBoxResult::Yes);
        QTest::keyClick(view, Qt::Key_Delete);
        QVERIFY(QFile::exists(fx.inbox + "/scan.pdf"));
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(fx.prompter.texts(), QStringList(2, "Move \"scan.pdf\" from the inbox to the trash?"));
        QVERIFY(!QFile::exists(fx.inbox + "/scan.pdf"));
        QCOMPARE(readFile(fx.dataHome + "/Trash/files/scan.pdf"), QByteArray("%PDF part one and part two"));
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("Inbox (0)"));
        QCOMPARE(fx.documents().size(), 1);

        // The inbox turned off in the settings: the node goes, and the list shows the root's.
        setInboxFolder(QString());
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("CATEGORIES"));
        for (int node = 0; node < tree->topLevelItemCount(); ++node)
            QVERIFY(!tree->topLevelItem(node)->text(0).startsWith("Inbox"));
        QCOMPARE(window.windowTitle(), QString("CATEGORIES"));
        QCOMPARE(window.documentModel()->columns().first().caption, QString("Doc. description"));
    }

    // The settings store the inbox folder and the OCR languages; a folder that isn't there
    // and languages not in Tesseract's form are told and leave the options as they were.
    void settingsStoreTheInboxAndTheLanguages_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("languages");
        QTest::addColumn<QString>("storedFolder");
        QTest::addColumn<QString>("storedLanguages");
        QTest::addColumn<int>("messages");
        QTest::newRow("both") << "inbox"
                              << "lit+eng+deu"
                              << "inbox"
                              << "lit+eng+deu" << 0;
        QTest::newRow("off, default languages") << ""
                                                << ""
                                                << ""
                                                << "lit+eng" << 0;
        QTest::newRow("no folder") << "nowhere"
                                   << "eng"
                                   << "before"
                                   << "eng" << 1;
        QTest::newRow("languages with blanks") << "inbox"
                                               << "lit eng"
                                               << "inbox"
                                               << "lit" << 1;
    }
    void settingsStoreTheInboxAndTheLanguages()
    {
        QFETCH(QString, folder);
        QFETCH(QString, languages);
        QFETCH(QString, storedFolder);
        QFETCH(QString, storedLanguages);
        QFETCH(int, messages);
        Fixture fx;
        const QString before = fx.folder("before");
        setInboxFolder(before);
        setOcrLanguages("lit");
        const auto path
            = [&fx](const QString& name) { return name.isEmpty() ? name : fx.work.filePath(name); };
        SettingsDialog dialog;
        dialog.show();
        auto* tabs = dialog.findChild<QTabWidget*>("SSTab1");
        for (int tab = 0; tab < tabs->count(); ++tab) {
            if (tabs->tabText(tab) == "Incoming Files")
                tabs->setCurrentIndex(tab);
        }
        QCOMPARE(tabs->tabText(tabs->currentIndex()), QString("Incoming Files"));
        auto* folderBox = dialog.findChild<QLineEdit*>("txtInboxFolder");
        auto* languagesBox = dialog.findChild<QLineEdit*>("txtOcrLanguages");
        QCOMPARE(folderBox->text(), before);
        folderBox->clear();
        QTest::keyClicks(folderBox, path(folder));
        languagesBox->clear();
        QTest::keyClicks(languagesBox, languages);
        for (int i = 0; i < messages; ++i)
            fx.prompter.answer(MsgBoxResult::Ok);
        QTest::mouseClick(dialog.findChild<QPushButton*>("btnOk"), Qt::LeftButton);
        QCOMPARE(fx.prompter.prompts().size(), messages);
        QCOMPARE(inboxFolder(), storedFolder == "before" ? before : path(storedFolder));
        QCOMPARE(ocrLanguages(), storedLanguages);
    }
};

QTEST_MAIN(InboxTest)
#include "tst_inbox.moc"
