#include "../addressbook/AddressBookFixture.h"
#include "ConcurrencyFixture.h"
#include "addressbook/AddressBookWindow.h"
#include "base/Error.h"
#include "categories/CategoryDialog.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerFixture.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "registration/DayCounter.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/FileNaming.h"
#include "registration/RegIndex.h"
#include "registration/RelatedDocumentDialog.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "support/SelectionState.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <functional>
#include <memory>

using namespace kartella;
using namespace kartella::test;

class ConcurrencyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { selection() = SelectionState(); }

    void harnessOnBothPlaces_data() { addPlaces(); }
    void harnessOnBothPlaces()
    {
        REGISTER_OR_SKIP(reg);
        const qint32 first = reg->insert("tbl_Contacts", {{"FullName", "Ona"}});
        const qint32 second = reg->insert("tbl_Contacts", {{"FullName", "Jonas"}, {"City", QVariant()}});
        QVERIFY(first > 0);
        QVERIFY(second != first);
        QCOMPARE(reg->scalar("SELECT FullName FROM tbl_Contacts WHERE ContactID=" + idText(second)), "Jonas");
        reg->exec("DELETE FROM tbl_Contacts WHERE ContactID=" + idText(first));
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Contacts").toInt(), 1);
        const qint32 document = reg->insert("tbl_Documents",
            {{"DokAntraste", "Lease"}, {"ContactID", second}, {"DokRegistracData", QDate(2024, 2, 29)}});
        QCOMPARE(reg->scalar("SELECT DokRegistracData FROM tbl_Documents WHERE RastasID=" + idText(document))
                     .toDate(),
            QDate(2024, 2, 29));
        QVERIFY(reg->path().startsWith("postgresql://") == (QTest::currentDataTag() == QByteArray("server")));
    }

    void sampleOnBothPlaces_data() { addPlaces(); }
    void sampleOnBothPlaces()
    {
        REGISTER_OR_SKIP(reg);
        SampleOptions options;
        options.documents = 20;
        options.today = QDate(2024, 3, 5);
        try {
            reg->fillSample(options);
        } catch (const Error& error) {
            QFAIL(qPrintable(error.description()));
        }
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 20);
    }

    // The details dialog is open on a document another program then deletes: the user's
    // change is refused with a message that says so, and the dialog stays to be cancelled.
    void detailsOfDeletedDocument_data() { addPlaces(); }
    void detailsOfDeletedDocument()
    {
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 lease = reg->insert("tbl_Documents", {{"DokAntraste", "Lease"}});
        const qint32 other = reg->insert("tbl_Documents", {{"DokAntraste", "Other"}});
        selection().selectedDocumentId = lease;
        DocumentDetailsDialog dialog;
        showActive(&dialog);
        reg->exec("DELETE FROM tbl_Documents WHERE RastasID=" + idText(lease));
        auto* description = child<QLineEdit>(&dialog, "txtFields_7");
        retype(description, "Changed");
        prompter.answer(MsgBoxResult::Ok);
        auto* apply = child<QPushButton>(&dialog, "cmdButton_2");
        QTest::keyClick(apply, Qt::Key_Space);
        QCOMPARE(prompter.texts(),
            QStringList {"This document was deleted by another user; your changes were not saved."});
        QVERIFY(dialog.isVisible());
        QCOMPARE(description->text(), "Changed");
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 1);
        QCOMPARE(
            reg->scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID=" + idText(other)), "Other");
        // Esc asks about the change still pending; No drops it and closes.
        prompter.answer(MsgBoxResult::No);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(prompter.allAnswered());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 1);
    }

    // Opened by key (as the reminders open it) for a document that is gone: it says so and
    // stores nothing.
    void detailsOpenedForDeletedDocument_data() { addPlaces(); }
    void detailsOpenedForDeletedDocument()
    {
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 lease = reg->insert("tbl_Documents", {{"DokAntraste", "Lease"}});
        reg->exec("DELETE FROM tbl_Documents WHERE RastasID=" + idText(lease));
        prompter.answer(MsgBoxResult::Ok);
        DocumentDetailsDialog dialog(lease);
        QCOMPARE(prompter.texts(), QStringList {"This document no longer exists."});
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 0);
    }

    // The related document's description, open on a row another program deletes: Esc's Yes
    // applies, which is refused with a message; the dialog stays with the typed text.
    void relatedDocumentDeleted_data() { addPlaces(); }
    void relatedDocumentDeleted()
    {
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 lease = reg->insert("tbl_Documents", {{"DokAntraste", "Lease"}});
        const qint32 annex
            = reg->insert("tbl_Sub_Documents", {{"RastasID", lease}, {"SubDocDescript", "Annex"}});
        const qint32 other
            = reg->insert("tbl_Sub_Documents", {{"RastasID", lease}, {"SubDocDescript", "Other"}});
        selection().selectedDocumentId = lease;
        selection().selectedSubDocumentId = annex;
        selection().selectedItemText = "Annex";
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
        showActive(&dialog);
        reg->exec("DELETE FROM tbl_Sub_Documents WHERE SubRastasID=" + idText(annex));
        auto* description = child<QPlainTextEdit>(&dialog, "txtFields_1");
        description->setFocus();
        QTest::keyClick(description, Qt::Key_End);
        QTest::keyClicks(description, " 2");
        prompter.answer(MsgBoxResult::Yes).answer(MsgBoxResult::Ok);
        QTest::keyClick(description, Qt::Key_Escape);
        QCOMPARE(prompter.take().last().text,
            "This related document was deleted by another user; your changes were not saved.");
        QVERIFY(dialog.isVisible());
        QCOMPARE(description->toPlainText(), "Annex 2");
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Sub_Documents").toInt(), 1);
        QCOMPARE(
            reg->scalar("SELECT SubDocDescript FROM tbl_Sub_Documents WHERE SubRastasID=" + idText(other)),
            "Other");
        auto* cancel = child<QPushButton>(&dialog, "cmdCancel");
        cancel->setFocus();
        QTest::keyClick(cancel, Qt::Key_Space);
        QVERIFY(!dialog.isVisible());
        QVERIFY(prompter.allAnswered());
    }

    void relatedDocumentOpenedAfterDeletion_data() { addPlaces(); }
    void relatedDocumentOpenedAfterDeletion()
    {
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 lease = reg->insert("tbl_Documents", {{"DokAntraste", "Lease"}});
        const qint32 annex
            = reg->insert("tbl_Sub_Documents", {{"RastasID", lease}, {"SubDocDescript", "Annex"}});
        selection().selectedDocumentId = lease;
        selection().selectedSubDocumentId = annex;
        reg->exec("DELETE FROM tbl_Sub_Documents WHERE SubRastasID=" + idText(annex));
        prompter.answer(MsgBoxResult::Ok);
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
        QCOMPARE(prompter.texts(), QStringList {"This related document no longer exists."});
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Sub_Documents").toInt(), 0);
    }

    // The main window with a document selected that another program then deletes: F5 shows
    // the register as it is now.
    void mainWindowAfterDeletion_data() { addPlaces(); }
    void mainWindowAfterDeletion()
    {
        QFETCH(int, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        ExplorerFixture fx {TestRegister::Where(where)};
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        fx.clickDocument("contract");
        QCOMPARE(selection().selectedDocumentId, fx.id["contract"]);
        QCOMPARE(fx.related().itemCount(), 2);
        const QString contract = idText(fx.id["contract"]);
        fx.reg.exec("DELETE FROM tbl_Sub_Documents WHERE RastasID=" + contract);
        fx.reg.exec("DELETE FROM tbl_Documents WHERE RastasID=" + contract);

        // F5 builds the tree and the list again: the deleted document is gone from the list,
        // nothing acts on it any longer, and nothing is asked.
        QTest::keyClick(&w, Qt::Key_F5);
        QVERIFY(w.tree()->nodeByKey("a" + idText(fx.id["Sutartys"])));
        QVERIFY(prompter.prompts().isEmpty());
        QCOMPARE(fx.documents().rowOfKey(DocumentFills::itemKey(fx.id["contract"])), -1);
        QVERIFY(selection().selectedDocumentId != fx.id["contract"]);
        QCOMPARE(fx.reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(), 4);
        // The window goes on: another document is chosen as before.
        fx.clickDocument("letter");
        QCOMPARE(selection().selectedDocumentId, fx.id["letter"]);
    }

    // Two users on one register count the day's registration indexes on the register's one
    // counter, whatever their options say; the file number counter stays each user's own.
    void countersOfAWorkgroup_data() { addPlaces(); }
    void countersOfAWorkgroup()
    {
        REGISTER_OR_SKIP(reg);
        const QDate today(2024, 3, 5);
        const qint32 contracts
            = reg->insert("tbl_Document_Categories", {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}});
        const QByteArray first = qgetenv("XDG_CONFIG_HOME");
        QTemporaryDir otherHome;
        const QByteArray second = otherHome.filePath("config").toUtf8();
        qputenv("XDG_CONFIG_HOME", second);
        seedOptionsIfMissing();
        setRegValue("DbLocation", reg->path());
        setRegValue("Provider", "Microsoft.Jet.OLEDB.4.0");
        resetTodayNumber(today);
        qputenv("XDG_CONFIG_HOME", first);
        resetTodayNumber(today);
        setRegValue("TodayNumber", "3");

        const auto asUser = [](const QByteArray& config, const std::function<QString()>& action) {
            qputenv("XDG_CONFIG_HOME", config);
            return action();
        };
        const auto index = [&] { return makeRegIndex(contracts, today); };
        const auto fileName = [&] { return makeFileNumberName(contracts); };
        // The first user stores the proposal: both are offered the next number.
        QCOMPARE(asUser(first, index), "AGR-20240305/1");
        QCOMPARE(asUser(second, index), "AGR-20240305/1");
        asUser(first, [&] {
            Connection connection;
            connection.open(plainConnectionString());
            connection.beginTrans();
            raiseDayCounter(connection, today, 1);
            connection.commitTrans();
            return QString();
        });
        QCOMPARE(asUser(second, index), "AGR-20240305/2");
        QCOMPARE(asUser(first, index), "AGR-20240305/2");
        QCOMPARE(asUser(first, fileName), "AGR00001");
        QCOMPARE(asUser(first, fileName), "AGR00002");
        QCOMPARE(asUser(second, fileName), "AGR00001");
        QCOMPARE(asUser(first, fileName), "AGR00003");
        QCOMPARE(asUser(second, [] { return getRegValue("FileNumber"); }), " 2");
        QCOMPARE(asUser(first, [] { return getRegValue("FileNumber"); }), " 4");
        QCOMPARE(asUser(second, [] { return getRegValue("TodayNumber"); }), "1");
        QCOMPARE(asUser(first, [] { return getRegValue("TodayNumber"); }), "3");
    }

    // Users refused the same index at the same moment are each offered a number of their
    // own: the reading of the held numbers and the raising of the counter are one step.
    void numbersHeldAtOnce_data() { addPlaces(); }
    void numbersHeldAtOnce()
    {
        REGISTER_OR_SKIP(reg);
        const QDate today(2024, 3, 5);
        constexpr int Each = 12;
        QStringList offered[2];
        QString failures[2];
        std::vector<std::unique_ptr<QThread>> users;
        for (int user = 0; user < 2; ++user) {
            users.emplace_back(QThread::create([&, user] {
                try {
                    Connection connection(plainConnectionString());
                    connection.open();
                    for (int i = 0; i < Each; ++i)
                        offered[user]
                            << reserveFreeRegIndex(connection, QStringLiteral("AGR-20240305/1"), today);
                } catch (const Error& error) {
                    failures[user] = error.description();
                }
            }));
        }
        for (const auto& thread : users)
            thread->start();
        for (const auto& thread : users)
            QVERIFY(thread->wait(60000));
        QCOMPARE(failures[0], QString());
        QCOMPARE(failures[1], QString());
        const QStringList all = offered[0] + offered[1];
        QCOMPARE(QSet<QString>(all.begin(), all.end()).size(), 2 * Each);
        Connection connection(plainConnectionString());
        connection.open();
        QCOMPARE(dayCounterValue(connection, today), 2 * Each + 1);
    }

    // The category dialog open on a category another program deletes.
    void categoryDeleted_data() { addPlaces(); }
    void categoryDeleted()
    {
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 contracts
            = reg->insert("tbl_Document_Categories", {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}});
        const qint32 letters = reg->insert("tbl_Document_Categories", {{"DokKategorija", "Letters"}});
        selection().currentCategoryId = contracts;
        selection().currentNodeKind = "a";
        CategoryDialog dialog;
        showActive(&dialog);
        reg->exec("DELETE FROM tbl_Document_Categories WHERE KategID=" + idText(contracts));
        auto* name = child<QLineEdit>(&dialog, "txtFields_1");
        retype(name, "Agreements");
        prompter.answer(MsgBoxResult::Ok);
        auto* ok = child<QPushButton>(&dialog, "cmdClose");
        ok->setFocus();
        QTest::keyClick(ok, Qt::Key_Space);
        QCOMPARE(prompter.texts(),
            QStringList {"This category was deleted by another user; your changes were not saved."});
        QVERIFY(dialog.isVisible());
        QCOMPARE(name->text(), "Agreements");
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Document_Categories").toInt(), 1);
        QCOMPARE(
            reg->scalar("SELECT DokKategorija FROM tbl_Document_Categories WHERE KategID=" + idText(letters)),
            "Letters");
        dialog.reject();
        QVERIFY(!dialog.isVisible());
    }

    // The address book on a contact another program deletes with its phones and web pages:
    // saving a change to the contact's boxes, or writing its web page in the grid, says so.
    void contactDeleted_data()
    {
        QTest::addColumn<int>("where");
        QTest::addColumn<bool>("webPage");
        for (const int where : {int(TestRegister::File), int(TestRegister::Server)}) {
            const char* place = where == TestRegister::File ? "file" : "server";
            QTest::addRow("%s, box", place) << where << false;
            QTest::addRow("%s, web page", place) << where << true;
        }
    }
    void contactDeleted()
    {
        QFETCH(bool, webPage);
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 ona
            = reg->insert("tbl_Contacts", {{"FullName", "Ona Petraitiene"}, {"City", "Vilnius"}});
        const qint32 jonas
            = reg->insert("tbl_Contacts", {{"FullName", "Jonas Jonaitis"}, {"City", "Kaunas"}});
        reg->insert("tbl_Phones", {{"ContactID", ona}, {"PhoneName", "Office"}, {"PhoneNumber", "212"}});
        reg->insert("tbl_HomePages", {{"ContactID", ona}, {"Description", "Own"}, {"HomeWWW", "www.ona.lt"}});
        reg->insert(
            "tbl_HomePages", {{"ContactID", jonas}, {"Description", "Own"}, {"HomeWWW", "www.jonas.lt"}});
        AddressBookWindow window;
        Shown w(&window);
        w.clickLine("Ona Petraitiene");
        for (const char* table : {"tbl_Phones", "tbl_HomePages", "tbl_Contacts"})
            reg->exec(QString("DELETE FROM ") + table + " WHERE ContactID=" + idText(ona));
        // A grid writes its cell at once; the boxes wait for the save question.
        if (webPage) {
            prompter.answer(MsgBoxResult::Ok);
            w.typeCell("dgrHP", 0, 3, "www.ona.eu");
            QCOMPARE(prompter.take().first().text,
                "This row was deleted by another user; your change was not saved.");
            QCOMPARE(w.column("dgrHP", 3), QStringList {"www.ona.lt"});
            w.clickLine("Jonas Jonaitis");
            QVERIFY(prompter.prompts().isEmpty());
        } else {
            retype(w.box(6), "Trakai");
            prompter.answer(MsgBoxResult::Yes).answer(MsgBoxResult::Ok);
            w.clickLine("Jonas Jonaitis");
            QCOMPARE(prompter.texts(),
                QStringList({"Do you want to save changes you made to Contact?",
                    "This contact was deleted by another user; your changes were not saved."}));
        }
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Contacts").toInt(), 1);
        QCOMPARE(reg->scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + idText(jonas)), "Kaunas");
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_HomePages").toInt(), 1);
        QCOMPARE(reg->scalar("SELECT HomeWWW FROM tbl_HomePages WHERE ContactID=" + idText(jonas)),
            "www.jonas.lt");
        // The window goes on working: the other contact is shown and closes without a question.
        QCOMPARE(w.box(4)->text(), "Jonas Jonaitis");
        QCOMPARE(w.column("dgrHP", 3), QStringList {"www.jonas.lt"});
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
        QVERIFY(prompter.allAnswered());
    }
};

QTEST_MAIN(ConcurrencyTest)
#include "tst_concurrency.moc"
