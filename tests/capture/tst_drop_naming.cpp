// Files dropped on the main window that the register's naming or its indexes turn away: the
// dialog stays, and nothing is left copied or stored that the user didn't keep.

#include "InboxFixture.h"
#include "explorer/FileDrops.h"
#include "explorer/MainWindow.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"

#include <QScopeGuard>
#include <QSignalSpy>

using namespace kartella;
using namespace kartella::test;

namespace {

// Types text over the registration index, as the user does; empty text clears it.
void typeIndex(NewDocumentDialog& dialog, const QString& text)
{
    auto* index = dialog.findChild<QLineEdit*>(QStringLiteral("txtFields_3"));
    index->setFocus();
    QTest::keyClick(index, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(index, Qt::Key_Delete);
    else
        QTest::keyClicks(index, text);
}

} // namespace

class DropNamingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A name the register's naming gives that is taken already is told, and the dialog stays
    // with nothing copied; OK again takes the next number.
    void aTakenNameKeepsTheDialog()
    {
        Fixture fx;
        const QString original = fx.outside + "/scan.pdf";
        writeFile(original, "new");
        writeFile(fx.letters + "/LET00001.pdf", "old");
        MainWindow window;
        window.load();
        window.show();
        QSignalSpy done(window.fileDrops(), &FileDrops::filesRegistered);
        bool stayed = false;
        DialogScript script({[&stayed](NewDocumentDialog& dialog) {
            PressOk(dialog);
            stayed = dialog.isVisible();
            PressOk(dialog);
        }});
        fx.prompter.answer(MsgBoxResult::Ok);
        dropFiles(window.tree()->viewport(), nodeCenter(window.tree(), "Letters"), {original});
        QVERIFY(done.wait(10000));
        QVERIFY(stayed);
        QCOMPARE(fx.prompter.texts(),
            QStringList {"The File with name " + fx.letters
                + "/LET00001.pdf exist. Depending on the File Name style, check Doc. Description, "
                  "Registration Index or other parameters."});
        QCOMPARE(readFile(fx.letters + "/LET00001.pdf"), QByteArray("old"));
        QCOMPARE(readFile(fx.letters + "/LET00002.pdf"), QByteArray("new"));
        QCOMPARE(fx.documents(),
            QStringList {QString::number(fx.lettersId) + "//" + fx.letters + "/LET00002.pdf"});
    }

    // A registration index another user stored meanwhile: the copy made for the row is taken
    // back, the next free index is offered, and Yes copies the file again for the row stored.
    void aTakenIndexPlacesTheFileAgain()
    {
        Fixture fx;
        const QString original = fx.outside + "/scan.pdf";
        writeFile(original, "new");
        fx.reg.insert("tbl_Documents", {{"DokRegistracIndeksas", "X/5"}});
        MainWindow window;
        window.load();
        window.show();
        QSignalSpy done(window.fileDrops(), &FileDrops::filesRegistered);
        DialogScript script({[](NewDocumentDialog& dialog) {
            typeIndex(dialog, "X/5");
            PressOk(dialog);
        }});
        fx.prompter.answer(MsgBoxResult::Yes);
        dropFiles(window.tree()->viewport(), nodeCenter(window.tree(), "Letters"), {original});
        QVERIFY(done.wait(10000));
        QCOMPARE(fx.prompter.texts().size(), 1);
        QVERIFY2(fx.prompter.texts().first().startsWith(
                     "The register already has a document with the index \"X/5\". Store this one as"),
            qPrintable(fx.prompter.texts().first()));
        QCOMPARE(QDir(fx.letters).entryList(QDir::Files), QStringList {"LET00002.pdf"});
        const QString placed = fx.letters + "/LET00002.pdf";
        QCOMPARE(fx.documents(), (QStringList {"//", QString::number(fx.lettersId) + "//" + placed}));
        QCOMPARE(readFile(placed), QByteArray("new"));
        QCOMPARE(readFile(original), QByteArray("new"));
    }

    // The offered index declined, another file chosen and the taken index tried again: the
    // dropped file's copy was taken back already and is not looked for again; Yes to the second
    // offer stores the chosen file where it is.
    void aDeclinedIndexThenAnotherFile()
    {
        Fixture fx;
        const QString dropped = fx.outside + "/dropped.pdf";
        const QString chosen = fx.outside + "/chosen.pdf";
        writeFile(dropped, "dropped");
        writeFile(chosen, "chosen");
        fx.reg.insert("tbl_Documents", {{"DokRegistracIndeksas", "X/5"}});
        MainWindow window;
        window.load();
        window.show();
        QSignalSpy done(window.fileDrops(), &FileDrops::filesRegistered);
        DialogScript script({[](NewDocumentDialog& dialog) {
            typeIndex(dialog, "X/5");
            PressOk(dialog);
            pressButton(dialog, "cmdAddExisting");
            typeIndex(dialog, "X/5");
            PressOk(dialog);
        }});
        fx.prompter.answer(MsgBoxResult::No).answerFile(chosen).answer(MsgBoxResult::Yes);
        dropFiles(window.tree()->viewport(), nodeCenter(window.tree(), "Letters"), {dropped});
        QVERIFY(done.wait(10000));
        const QStringList texts = fx.prompter.texts();
        QCOMPARE(texts.size(), 2);
        for (const QString& text : texts)
            QVERIFY2(text.startsWith("The register already has a document with the index \"X/5\"."),
                qPrintable(text));
        QCOMPARE(fx.documents(), (QStringList {"//", QString::number(fx.lettersId) + "//" + chosen}));
        QVERIFY(QDir(fx.letters).isEmpty());
        QCOMPARE(QDir(fx.outside).entryList(QDir::Files), (QStringList {"chosen.pdf", "dropped.pdf"}));
    }

    // Files named after the registration index: with the index box emptied, OK tells that no
    // name can be made and keeps the dialog, with nothing copied or stored; with an index,
    // the file takes its name.
    void noNameForTheFileKeepsTheDialog()
    {
        Fixture fx;
        const QString previous = getRegValue("FileName");
        const auto restore = qScopeGuard([&previous] { setRegValue("FileName", previous); });
        setRegValue("FileName", QString("2"));
        const QString original = fx.outside + "/scan.pdf";
        writeFile(original, "new");
        MainWindow window;
        window.load();
        window.show();
        QSignalSpy done(window.fileDrops(), &FileDrops::filesRegistered);
        bool stayed = false;
        QStringList storedMeanwhile;
        DialogScript script({[&](NewDocumentDialog& dialog) {
            typeIndex(dialog, QString());
            PressOk(dialog);
            stayed = dialog.isVisible();
            storedMeanwhile = fx.documents();
            typeIndex(dialog, "IDX-1");
            PressOk(dialog);
        }});
        fx.prompter.answer(MsgBoxResult::Ok);
        dropFiles(window.tree()->viewport(), nodeCenter(window.tree(), "Letters"), {original});
        QVERIFY(done.wait(10000));
        QVERIFY(stayed);
        QCOMPARE(storedMeanwhile, QStringList());
        QCOMPARE(fx.prompter.texts(),
            QStringList {"Can't create a file, because the Registration Index is empty. Enter valid "
                         "Registration Index, please."});
        QCOMPARE(
            fx.documents(), QStringList {QString::number(fx.lettersId) + "//" + fx.letters + "/IDX-1.pdf"});
        QCOMPARE(readFile(fx.letters + "/IDX-1.pdf"), QByteArray("new"));
    }
};

QTEST_MAIN(DropNamingTest)
#include "tst_drop_naming.moc"
