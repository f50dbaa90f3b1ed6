#include "dialogs/SettingsDialog.h"
#include "dialogs/SettingsFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace kartella;
using namespace kartella::test;

namespace {

// How many rows a table of the register in use holds.
int rowCount(const QString& table)
{
    Connection connection;
    connection.open(plainConnectionString());
    Recordset rows;
    rows.open("SELECT COUNT(*) AS N FROM " + table, connection);
    return rows.fields(QStringLiteral("N")).value().toInt();
}

} // namespace

class RegisterChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { selection() = SelectionState(); }

    // The tree rebuilds after OK on a new register location, and only then.
    void newLocationRebuildsTheTree_data()
    {
        QTest::addColumn<bool>("newLocation");
        QTest::newRow("new provider alone") << false;
        QTest::newRow("new location") << true;
    }

    void newLocationRebuildsTheTree()
    {
        QFETCH(bool, newLocation);
        TestRegister reg;
        ScriptedPrompter prompter;
        reg.insert("tbl_Document_Categories", {{"DokKategorija", "Alpha"}});
        MainWindow window;
        window.show();
        window.load();
        QCOMPARE(categoryNodeTexts(window), QStringList({"Alpha"}));
        // The other register: this one with a second category.
        reg.insert("tbl_Document_Categories", {{"DokKategorija", "Gamma"}});
        const QString other = reg.dir() + "/Other.mdb";
        QVERIFY(QFile::copy(reg.path(), other));
        reg.exec("DELETE FROM tbl_Document_Categories WHERE DokKategorija = 'Gamma'");

        window.action("mnuOptions")->trigger();
        auto* dialog = window.findChild<SettingsDialog*>("frmSettings");
        QVERIFY(dialog);
        QVERIFY(dialog->isVisible());
        QVERIFY(!dialog->isModal());
        if (newLocation) {
            prompter.answerFile(other);
            QTest::mouseClick(dialog->findChild<QPushButton*>("btnDbName"), Qt::LeftButton);
            QCOMPARE(prompter.fileRequests.first().title, "Select the Database File");
            QCOMPARE(prompter.fileRequests.first().filterLabel, "Access databases (*.mdb)");
            QCOMPARE(prompter.fileRequests.first().pattern, "*.mdb");
            QCOMPARE(prompter.fileRequests.first().startFolder, QString());
        } else {
            dialog->findChild<QComboBox*>("cboDbType")->setFocus();
            QTest::keyClick(dialog->findChild<QComboBox*>("cboDbType"), Qt::Key_Down);
        }
        QTest::mouseClick(dialog->findChild<QPushButton*>("btnOk"), Qt::LeftButton);
        QTRY_VERIFY(!window.findChild<SettingsDialog*>("frmSettings"));
        QTest::qWait(50);
        const QString source = window.findChild<QLabel*>("pnSource")->text();
        if (newLocation) {
            QCOMPARE(getRegValue("DbLocation"), other);
            QCOMPARE(source, "Source : " + other + "   ");
            QCOMPARE(categoryNodeTexts(window), QStringList({"Alpha", "Gamma"}));
        } else {
            QCOMPARE(getRegValue("DbLocation"), reg.path());
            QCOMPARE(getRegValue("Provider"), "Microsoft.Jet.OLEDB.3.51");
            QCOMPARE(source, "Source : " + reg.path() + "   ");
            QCOMPARE(categoryNodeTexts(window), QStringList({"Alpha"}));
        }
        QVERIFY(prompter.prompts().isEmpty());
    }

    // Settings > Database Location, another register, OK: nothing of the register left stays
    // on screen or in the selection, so that no command acts on its keys in the new one.
    void registerChangeClearsTheMainWindow()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        const QDate today = QDate::currentDate();
        const qint32 category = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Alpha"}});
        const qint32 document = reg.insert("tbl_Documents",
            {{"DokAntraste", "B's document"}, {"KategID", category}, {"DokRegistracData", today}});
        reg.insert("tbl_Tickler", {{"RastasID", document}, {"TicklerDate", today}, {"TicklerText", "call"}});
        // Register B: the same keys, one reminder due. A: its own document under that key,
        // with a related document and no reminder.
        const QString other = reg.dir() + "/Other.mdb";
        QVERIFY(QFile::copy(reg.path(), other));
        reg.exec("DELETE FROM tbl_Tickler");
        reg.exec("UPDATE tbl_Documents SET DokAntraste = 'A''s document'");
        reg.insert("tbl_Sub_Documents", {{"RastasID", document}, {"SubDocDescript", "annex"}});

        MainWindow window;
        window.resize(1000, 700);
        window.show();
        window.load();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTreeView* documents = window.documentList()->detailsView();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QTest::mouseClick(documents->viewport(), Qt::LeftButton, {},
            documents->visualRect(window.documentModel()->index(0, 0)).center());
        QCOMPARE(selection().selectedDocumentId, document);
        QVERIFY(window.relatedList()->isVisible());
        QTRY_COMPARE(window.findChild<QLabel*>("pnReminders")->text(), "No reminders due");

        window.action("mnuOptions")->trigger();
        auto* dialog = window.findChild<SettingsDialog*>("frmSettings");
        QVERIFY(dialog);
        auto* box = dialog->findChild<QLineEdit*>("txtDbLocation");
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, other);
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_VERIFY(!window.findChild<SettingsDialog*>("frmSettings"));
        QTRY_COMPARE(categoryNodeTexts(window), QStringList({"Alpha"}));

        QCOMPARE(window.documentModel()->itemCount(), 0);
        QCOMPARE(window.relatedModel()->itemCount(), 0);
        QVERIFY(!window.relatedList()->isVisible());
        QCOMPARE(selection().selectedDocumentId, 0);
        QCOMPARE(selection().selectedFilePath, QString());
        QCOMPARE(selection().activeListName, QString());
        for (const char* command : {"mnuDelete", "mnuShowDetails", "mnuRelated", "mnuCopy", "mnuMove",
                 "btnDelete", "btnDetails", "mnuCategoryOptions"})
            QVERIFY2(!window.action(command)->isEnabled(), command);
        QCOMPARE(window.windowTitle(), "Kartella");
        QCOMPARE(window.findChild<QLabel*>("pnCount")->text(), QString());
        QCOMPARE(window.findChild<QLabel*>("pnSource")->text(), "Source : " + other + "   ");
        QTRY_COMPARE(window.findChild<QLabel*>("pnReminders")->text(), "1 reminder due");

        // Del deletes nothing of the new register.
        QTest::keyClick(documents, Qt::Key_Delete);
        QCOMPARE(rowCount("tbl_Documents"), 1);
        QCOMPARE(rowCount("tbl_Tickler"), 1);

        // The root of the new tree lists the new register's documents.
        NavigationTree* tree = window.tree();
        QTreeWidgetItem* root = tree->nodeByKey("ALL");
        QVERIFY(root);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(root).center());
        QCOMPARE(window.documentModel()->itemCount(), 1);
        QCOMPARE(window.documentModel()->item(0).text, "B's document");
        QVERIFY(prompter.prompts().isEmpty());
    }

    // A register that can't be opened at start, a broken file or a server that can't be
    // reached: the message, then the settings dialog modally, showing the location as
    // written; a correct type and file, OK, and the tree is there without a restart.
    void brokenRegisterAtStartRecovers_data()
    {
        QTest::addColumn<QString>("location"); // empty: a file that is no register
        QTest::newRow("broken file") << QString();
        QTest::newRow("unreachable server") << "postgresql://nobody@127.0.0.1:1/none";
    }

    void brokenRegisterAtStartRecovers()
    {
        QFETCH(QString, location);
        TestRegister reg;
        ScriptedPrompter prompter;
        reg.insert("tbl_Document_Categories", {{"DokKategorija", "Alpha"}});
        setRegValue("Provider", "Bogus");
        if (location.isEmpty()) {
            location = reg.dir() + "/Broken.mdb";
            QFile junk(location);
            QVERIFY(junk.open(QIODevice::WriteOnly));
            junk.write("not a register");
            junk.close();
        }
        setRegValue("DbLocation", location);
        prompter.answer(MsgBoxResult::Ok);
        prompter.answerFile(reg.path());
        bool wasModal = false;
        int shownType = 0;
        QString shownLocation;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<SettingsDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            wasModal = true;
            auto* type = dialog->findChild<QComboBox*>("cboDbType");
            shownType = type->currentIndex();
            shownLocation = dialog->findChild<QLineEdit*>("txtDbLocation")->text();
            type->setFocus();
            QTest::keyClick(type, Qt::Key_Down);
            QTest::mouseClick(dialog->findChild<QPushButton*>("btnDbName"), Qt::LeftButton);
            QTest::mouseClick(dialog->findChild<QPushButton*>("btnOk"), Qt::LeftButton);
        });
        MainWindow window;
        window.show();
        window.load();
        QVERIFY(wasModal);
        QCOMPARE(shownType, -1);
        QCOMPARE(shownLocation, location);
        QCOMPARE(prompter.prompts().size(), 1);
        QCOMPARE(prompter.prompts().first().title, "Connection to database error:");
        QTRY_COMPARE(categoryNodeTexts(window), QStringList({"Alpha"}));
        QCOMPARE(getRegValue("Provider"), "Microsoft.Jet.OLEDB.4.0");
        QCOMPARE(getRegValue("DbLocation"), reg.path());
        QCOMPARE(window.findChild<QLabel*>("pnSource")->text(), "Source : " + reg.path() + "   ");
        QCOMPARE(prompter.prompts().size(), 1);
        QVERIFY(prompter.allAnswered());
    }

    // A change to a server that can't be reached: the source panel shows the location as
    // typed, the rebuilt tree fails with the connection message and the settings open
    // again modally, with no busy pointer over either.
    void unreachableServerAfterAChange()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        reg.insert("tbl_Document_Categories", {{"DokKategorija", "Alpha"}});
        MainWindow window;
        window.show();
        window.load();
        QCOMPARE(categoryNodeTexts(window), QStringList({"Alpha"}));

        window.action("mnuOptions")->trigger();
        auto* dialog = window.findChild<SettingsDialog*>("frmSettings");
        QVERIFY(dialog);
        auto* box = dialog->findChild<QLineEdit*>("txtDbLocation");
        const QString server = "postgresql://nobody@127.0.0.1:1/none";
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, server);
        prompter.answer(MsgBoxResult::Ok);
        bool reopened = false;
        bool busy = true;
        QString shownAgain;
        // The settings come back modally from inside the refresh: answered from a timer.
        QTimer watch;
        watch.setInterval(10);
        connect(&watch, &QTimer::timeout, this, [&] {
            auto* again = qobject_cast<SettingsDialog*>(QApplication::activeModalWidget());
            if (!again)
                return;
            watch.stop();
            reopened = true;
            busy = QGuiApplication::overrideCursor() != nullptr;
            shownAgain = again->findChild<QLineEdit*>("txtDbLocation")->text();
            QTest::mouseClick(again->findChild<QPushButton*>("btnCancel"), Qt::LeftButton);
        });
        watch.start();
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_VERIFY(reopened);
        QVERIFY(!busy);
        QCOMPARE(shownAgain, server);
        QCOMPARE(getRegValue("DbLocation"), server);
        QCOMPARE(window.findChild<QLabel*>("pnSource")->text(), "Source : " + server + "   ");
        QCOMPARE(prompter.prompts().size(), 1);
        QCOMPARE(prompter.prompts().first().title, "Connection to database error:");
        QVERIFY(prompter.prompts().first().text.startsWith("Error: -2147467259 "));
        QCOMPARE(window.tree()->nodeCount(), 0);
        QVERIFY(!QGuiApplication::overrideCursor());
    }
};

QTEST_MAIN(RegisterChangeTest)
#include "tst_register_change.moc"
