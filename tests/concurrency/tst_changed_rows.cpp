// Two programs on one register change the same row, or one holds the register locked while
// the other stores: the user is told, and nothing typed is lost.
#include "../addressbook/AddressBookFixture.h"
#include "ConcurrencyFixture.h"
#include "addressbook/AddressBookWindow.h"
#include "addressbook/ContactEditor.h"
#include "categories/CategoryDialog.h"
#include "explorer/RemindersWindow.h"
#include "harness/ScriptedPrompter.h"
#include "platform/Prompter.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/RelatedDocumentDialog.h"
#include "store/engine/Connection.h"
#include "support/SelectionState.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSysInfo>
#include <QTreeView>
#include <QTreeWidget>

#include <cstring>

using namespace kartella;
using namespace kartella::test;

class ChangedRowsTest : public QObject
{
    Q_OBJECT

    // A register file and a server, each answered Reload (Yes) and Keep Mine (No).
    static void addPlacesAndAnswers()
    {
        QTest::addColumn<int>("where");
        QTest::addColumn<int>("answer");
        for (const int where : {int(TestRegister::File), int(TestRegister::Server)}) {
            const char* place = where == TestRegister::File ? "file" : "server";
            QTest::addRow("%s, Reload", place) << where << int(MsgBoxResult::Yes);
            QTest::addRow("%s, Keep Mine", place) << where << int(MsgBoxResult::No);
        }
    }

private Q_SLOTS:
    void cleanup() { selection() = SelectionState(); }

    // The address book on a contact another program changes: the save question's Yes tells
    // so, with the stored and the typed city, and the user reloads the contact (the window
    // stays on it, showing what is stored) or stores theirs over it; the other program's
    // address, a field not typed here, stays either way.
    void contactChanged_data() { addPlacesAndAnswers(); }
    void contactChanged()
    {
        QFETCH(int, answer);
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 ona = reg->insert("tbl_Contacts",
            {{"FullName", "Ona Petraitiene"}, {"City", "Vilnius"}, {"Address", "Gedimino 1"}});
        reg->insert("tbl_Contacts", {{"FullName", "Jonas Jonaitis"}, {"City", "Kaunas"}});
        AddressBookWindow window;
        Shown w(&window);
        w.clickLine("Ona Petraitiene");
        reg->exec(
            "UPDATE tbl_Contacts SET City='Alytus', Address='Laisves 2' WHERE ContactID=" + idText(ona));
        retype(w.box(6), "Trakai");
        prompter.answer(MsgBoxResult::Yes).answer(answer);
        w.clickLine("Jonas Jonaitis");
        const QStringList texts = prompter.texts();
        QCOMPARE(texts.size(), 2);
        QCOMPARE(texts.first(), "Do you want to save changes you made to Contact?");
        QVERIFY2(texts.last().startsWith("This contact was changed by another user since you opened it.\n\n"
                                         "City: stored \"Alytus\", yours \"Trakai\"\n\n"),
            qPrintable(texts.last()));
        const bool reloaded = answer == MsgBoxResult::Yes;
        QCOMPARE(reg->scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + idText(ona)),
            reloaded ? "Alytus" : "Trakai");
        QCOMPARE(reg->scalar("SELECT Address FROM tbl_Contacts WHERE ContactID=" + idText(ona)), "Laisves 2");
        if (reloaded) {
            QCOMPARE(w.box(4)->text(), "Ona Petraitiene");
            QCOMPARE(w.box(6)->text(), "Alytus");
            QTRY_COMPARE(w.list()->currentItem()->text(0), "Ona Petraitiene");
            // The user may type again, and the next save stores it.
            retype(w.box(6), "Birzai");
            prompter.answer(MsgBoxResult::Yes);
            w.clickLine("Jonas Jonaitis");
            QCOMPARE(prompter.texts().size(), 3);
            QCOMPARE(reg->scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + idText(ona)), "Birzai");
        }
        QCOMPARE(w.box(4)->text(), "Jonas Jonaitis");
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
        QVERIFY(prompter.allAnswered());
    }

    // The address book's phone and web-page grids write a cell at once: a value another
    // program changed meanwhile asks Reload (the cell shows what is stored), Keep Mine (the
    // typed value is stored) or Cancel (nothing stored; the cell keeps what was typed, and the
    // next write of the row stores it). The other program's name of the row stays either way.
    void gridCellChanged_data()
    {
        QTest::addColumn<int>("where");
        QTest::addColumn<QString>("grid");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("typedKept");
        struct Grid
        {
            const char* name;
            const char* object;
        };
        for (const int where : {int(TestRegister::File), int(TestRegister::Server)}) {
            const char* place = where == TestRegister::File ? "file" : "server";
            for (const Grid grid : {Grid {"phone", "grdDataGrid"}, Grid {"web page", "dgrHP"}}) {
                QTest::addRow("%s, %s, Cancel", place, grid.name)
                    << where << grid.object << int(MsgBoxResult::Cancel) << true;
                // The web-page grid answers as the phone grid does: one answer is enough.
                if (std::strcmp(grid.name, "phone") != 0)
                    continue;
                QTest::addRow("%s, %s, Reload", place, grid.name)
                    << where << grid.object << int(MsgBoxResult::Yes) << false;
                QTest::addRow("%s, %s, Keep Mine", place, grid.name)
                    << where << grid.object << int(MsgBoxResult::No) << true;
            }
        }
    }
    void gridCellChanged()
    {
        QFETCH(QString, grid);
        QFETCH(int, answer);
        QFETCH(bool, typedKept);
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const bool phones = grid == "grdDataGrid";
        // The table, its key, the row's name and its value, and the values of the case.
        const QString table = phones ? "tbl_Phones" : "tbl_HomePages";
        const QString key = phones ? "PhoneID" : "HomeID";
        const QString nameField = phones ? "PhoneName" : "Description";
        const QString valueField = phones ? "PhoneNumber" : "HomeWWW";
        const QString what = phones ? "phone" : "web page";
        const QStringList values = phones ? QStringList {"8 600 11111", "8 600 22222", "8 600 33333"}
                                          : QStringList {"www.ona.lt", "www.ona.eu", "www.petraitis.lt"};
        const QString theirs = values.at(1);
        const QString mine = values.at(2);
        const qint32 ona = reg->insert("tbl_Contacts", {{"FullName", "Ona Petraitiene"}});
        const qint32 row
            = reg->insert(table, {{"ContactID", ona}, {nameField, "Mobile"}, {valueField, values.at(0)}});
        const QString where = " FROM " + table + " WHERE " + key + "=" + idText(row);
        AddressBookWindow window;
        Shown w(&window);
        w.clickLine("Ona Petraitiene");
        reg->exec("UPDATE " + table + " SET " + nameField + "='Work', " + valueField + "='" + theirs + "'"
            + " WHERE " + key + "=" + idText(row));
        prompter.answer(answer);
        const QByteArray gridName = grid.toLatin1();
        w.typeCell(gridName.constData(), 0, 3, mine);
        const QStringList texts = prompter.texts();
        QCOMPARE(texts.size(), 1);
        QVERIFY2(
            texts.first().startsWith("This " + what + " was changed by another user since you opened it.\n\n")
                && texts.first().contains("stored \"" + theirs + "\", yours \"" + mine + "\""),
            qPrintable(texts.first()));
        const QString value = "SELECT " + valueField + where;
        QCOMPARE(reg->scalar(value), answer == MsgBoxResult::No ? mine : theirs);
        QCOMPARE(w.column(gridName.constData(), 3), QStringList {typedKept ? mine : theirs});
        QCOMPARE(reg->scalar("SELECT " + nameField + where), "Work");
        if (answer == MsgBoxResult::Cancel) {
            // Typing on in the row writes it, the kept value with it, over what was shown.
            w.typeCell(gridName.constData(), 0, 2, "Home");
            QCOMPARE(prompter.texts().size(), 1);
            QCOMPARE(reg->scalar(value), mine);
            QCOMPARE(reg->scalar("SELECT " + nameField + where), "Home");
        }
        QVERIFY(prompter.allAnswered());
    }

    // The new-contact editor, its contact stored by Add Phone, on a contact another program
    // then changes: OK tells so; Keep Mine stores the typed city, Reload shows the stored one
    // for a later OK; the other program's e-mail address stays either way.
    void newContactChanged_data() { addPlacesAndAnswers(); }
    void newContactChanged()
    {
        QFETCH(int, answer);
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        ContactEditor editor;
        Shown e(&editor);
        e.box(4)->setFocus();
        QTest::keyClicks(e.box(4), "Ada Adomaite");
        QTest::keyClicks(e.box(6), "Vilnius");
        e.click("cmdAddPhone");
        const QString id = reg->scalar("SELECT ContactID FROM tbl_Contacts").toString();
        reg->exec("UPDATE tbl_Contacts SET City='Kaunas', EmailName='ada@kaunas.lt' WHERE ContactID=" + id);
        retype(e.box(6), "Trakai");
        prompter.answer(answer);
        e.click("cmdOk");
        const QStringList texts = prompter.texts();
        QCOMPARE(texts.size(), 1);
        QVERIFY2(texts.first().startsWith("This contact was changed by another user since you opened it.\n\n")
                && texts.first().contains("\nCity: stored \"Kaunas\", yours \"Trakai\"\n"),
            qPrintable(texts.first()));
        const bool reloaded = answer == MsgBoxResult::Yes;
        QCOMPARE(reg->scalar("SELECT City FROM tbl_Contacts WHERE ContactID=" + id),
            reloaded ? "Kaunas" : "Trakai");
        QCOMPARE(editor.isVisible(), reloaded);
        if (reloaded) {
            QCOMPARE(e.box(6)->text(), "Kaunas");
            e.click("cmdOk");
            QVERIFY(!editor.isVisible());
        }
        QCOMPARE(reg->scalar("SELECT EmailName FROM tbl_Contacts WHERE ContactID=" + id), "ada@kaunas.lt");
        QCOMPARE(reg->scalar("SELECT COUNT(*) FROM tbl_Contacts").toInt(), 1);
        QVERIFY(prompter.allAnswered());
    }

    // The category dialog on a category another program renamed: OK tells so; Reload shows
    // the stored title in the dialog, Keep Mine stores the typed one; the other program's
    // mnemonic stays either way.
    void categoryChanged_data() { addPlacesAndAnswers(); }
    void categoryChanged()
    {
        QFETCH(int, answer);
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 contracts
            = reg->insert("tbl_Document_Categories", {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}});
        selection().currentCategoryId = contracts;
        selection().currentNodeKind = "a";
        CategoryDialog dialog;
        showActive(&dialog);
        reg->exec("UPDATE tbl_Document_Categories SET DokKategorija='Deals', Mnemonic='DL' WHERE KategID="
            + idText(contracts));
        auto* name = child<QLineEdit>(&dialog, "txtFields_1");
        retype(name, "Agreements");
        prompter.answer(answer);
        auto* ok = child<QPushButton>(&dialog, "cmdClose");
        ok->setFocus();
        QTest::keyClick(ok, Qt::Key_Space);
        const QStringList texts = prompter.texts();
        QCOMPARE(texts.size(), 1);
        QVERIFY2(texts.first().startsWith("This category was changed by another user since you opened it.\n\n"
                                          "Title of Category: stored \"Deals\", yours \"Agreements\"\n\n"),
            qPrintable(texts.first()));
        const bool reloaded = answer == MsgBoxResult::Yes;
        const QString sql
            = "SELECT DokKategorija FROM tbl_Document_Categories WHERE KategID=" + idText(contracts);
        QCOMPARE(reg->scalar(sql), reloaded ? "Deals" : "Agreements");
        QCOMPARE(
            reg->scalar("SELECT Mnemonic FROM tbl_Document_Categories WHERE KategID=" + idText(contracts)),
            "DL");
        QCOMPARE(dialog.isVisible(), reloaded);
        if (reloaded) {
            QCOMPARE(name->text(), "Deals");
            dialog.reject();
        }
        QVERIFY(prompter.allAnswered());
    }

    // The related document's description, date and contact, open on a row another program
    // changes: OK tells so with both of each, the contacts by name; Keep Mine stores the typed
    // ones beside the other program's location, Reload shows the stored ones in the dialog.
    void relatedDocumentChanged_data() { addPlacesAndAnswers(); }
    void relatedDocumentChanged()
    {
        QFETCH(int, answer);
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 lease = reg->insert("tbl_Documents", {{"DokAntraste", "Lease"}});
        const qint32 annex
            = reg->insert("tbl_Sub_Documents", {{"RastasID", lease}, {"SubDocDescript", "Annex"}});
        reg->insert("tbl_Contacts", {{"FullName", "Ona Petraitiene"}});
        const qint32 jonas = reg->insert("tbl_Contacts", {{"FullName", "Jonas Jonaitis"}});
        selection().selectedDocumentId = lease;
        selection().selectedSubDocumentId = annex;
        selection().selectedItemText = "Annex";
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
        showActive(&dialog);
        reg->exec("UPDATE tbl_Sub_Documents SET SubDocDescript='Annex A', SubRastoKelias='annex.odt', "
                  "SubRastGavimoData='2024-11-30', ContactID="
            + idText(jonas) + " WHERE SubRastasID=" + idText(annex));
        auto* contact = child<QComboBox>(&dialog, "cmbContact");
        contact->setFocus();
        QTest::keyClick(contact, 'O');
        auto* date = child<QLineEdit>(&dialog, "txtFields_3");
        date->setFocus();
        date->selectAll();
        QTest::keyClicks(date, "2024.12.01");
        auto* description = child<QPlainTextEdit>(&dialog, "txtFields_1");
        description->setFocus();
        QTest::keyClick(description, Qt::Key_End);
        QTest::keyClicks(description, " 2");
        prompter.answer(answer);
        auto* ok = child<QPushButton>(&dialog, "cmdOK");
        ok->setFocus();
        QTest::keyClick(ok, Qt::Key_Space);
        const QStringList texts = prompter.texts();
        QCOMPARE(texts.size(), 1);
        QVERIFY2(
            texts.first().startsWith("This related document was changed by another user since you opened "
                                     "it.\n\n")
                && texts.first().contains(
                    "\nRelated Document Description: stored \"Annex A\", yours \"Annex 2\"\n")
                && texts.first().contains(
                    "\nSender/Receiver: stored \"Jonas Jonaitis\", yours \"Ona Petraitiene\"\n")
                && texts.first().contains("\nSend/Receive Date: stored 2024.11.30, yours 2024.12.01\n"),
            qPrintable(texts.first()));
        const bool reloaded = answer == MsgBoxResult::Yes;
        const QString where = " FROM tbl_Sub_Documents WHERE SubRastasID=" + idText(annex);
        QCOMPARE(reg->scalar("SELECT SubDocDescript" + where), reloaded ? "Annex A" : "Annex 2");
        QCOMPARE(reg->scalar("SELECT SubRastoKelias" + where), "annex.odt");
        QCOMPARE(
            reg->scalar("SELECT FullName FROM tbl_Contacts WHERE ContactID=(SELECT ContactID" + where + ")"),
            reloaded ? "Jonas Jonaitis" : "Ona Petraitiene");
        QCOMPARE(dialog.isVisible(), reloaded);
        if (reloaded) {
            QCOMPARE(description->toPlainText(), "Annex A");
            dialog.reject();
        }
        QVERIFY(prompter.allAnswered());
    }

    // Done in the Reminders window on a reminder another program changed or deleted since the
    // window read it: nothing is written over it, the user is told, and the window reads its
    // rows again. The other reminder, unchanged, is done as before.
    void reminderDoneAfterAnotherProgram_data()
    {
        QTest::addColumn<int>("where");
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("told");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QString>("stored");
        for (const int where : {int(TestRegister::File), int(TestRegister::Server)}) {
            const char* place = where == TestRegister::File ? "file" : "server";
            QTest::addRow("%s, changed", place)
                << where << "UPDATE tbl_Tickler SET TicklerText='call on Monday' WHERE TicklerText='call'"
                << "A reminder was changed by another user since the list was shown; it is not marked "
                   "done. The list shows it as it is now."
                << QStringList {"call on Monday"} << "call on Monday=0,send=1";
            QTest::addRow("%s, deleted", place)
                << where << "DELETE FROM tbl_Tickler WHERE TicklerText='call'"
                << "A reminder was deleted by another user since the list was shown; it has left the "
                   "list."
                << QStringList {} << "send=1";
        }
    }
    void reminderDoneAfterAnotherProgram()
    {
        QFETCH(QString, change);
        QFETCH(QString, told);
        QFETCH(QStringList, shown);
        QFETCH(QString, stored);
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 lease = reg->insert("tbl_Documents", {{"DokAntraste", "Lease"}});
        reg->insert("tbl_Tickler",
            {{"RastasID", lease}, {"TicklerDate", QDate(2024, 2, 28)}, {"TicklerText", "call"}});
        reg->insert("tbl_Tickler",
            {{"RastasID", lease}, {"TicklerDate", QDate(2024, 2, 29)}, {"TicklerText", "send"}});
        RemindersWindow window(QDate(2024, 3, 1));
        showActive(&window);
        auto* lines = child<QTreeView>(&window, "lstReminders");
        const auto texts = [lines] {
            QStringList cells;
            for (int row = 0; row < lines->model()->rowCount(); ++row)
                cells << lines->model()->index(row, 4).data().toString();
            return cells;
        };
        QCOMPARE(texts(), (QStringList {"call", "send"}));
        reg->exec(change);
        prompter.answer(MsgBoxResult::Ok);
        lines->setFocus();
        QTest::keyClick(lines, Qt::Key_Down, Qt::ShiftModifier);
        QTest::mouseClick(child<QPushButton>(&window, "cmdDone"), Qt::LeftButton);
        QCOMPARE(prompter.texts(), QStringList {told});
        QCOMPARE(texts(), shown);
        QStringList rows;
        for (const QString& text : {QStringLiteral("call on Monday"), QStringLiteral("send")}) {
            const QVariant mark
                = reg->scalar("SELECT TicklerDone FROM tbl_Tickler WHERE TicklerText='" + text + "'");
            if (mark.isValid() && !mark.isNull())
                rows << text + '=' + QString::number(mark.toInt() != 0 ? 1 : 0);
        }
        QCOMPARE(rows.join(','), stored);
        QVERIFY(prompter.allAnswered());
    }

    // Another program holds the register locked (a write transaction on the file, the row on
    // the server) while the details are stored: OK waits, then tells the register is in use,
    // by whom where the server can tell; the dialog keeps what was typed, and once the lock
    // is gone a later OK stores it beside the other program's change.
    void busyRegister_data() { addPlaces(); }
    void busyRegister()
    {
        REGISTER_OR_SKIP(reg);
        ScriptedPrompter prompter;
        const qint32 lease = reg->insert("tbl_Documents", {{"DokAntraste", "Lease"}});
        selection().selectedDocumentId = lease;
        const int wait = Connection::lockWaitMs();
        Connection::setLockWaitMs(300);
        const auto restoreWait = qScopeGuard([wait] { Connection::setLockWaitMs(wait); });
        DocumentDetailsDialog dialog;
        showActive(&dialog);

        Connection other(reg->connectionString());
        other.open();
        other.beginTrans();
        other.execute("UPDATE tbl_Documents SET DokPastaba='Their note' WHERE RastasID=" + idText(lease));
        auto* description = child<QLineEdit>(&dialog, "txtFields_7");
        retype(description, "Changed");
        prompter.answer(MsgBoxResult::Ok);
        auto* ok = child<QPushButton>(&dialog, "cmdButton_0");
        QTest::keyClick(ok, Qt::Key_Space);
        const QStringList texts = prompter.texts();
        QCOMPARE(texts.size(), 1);
        // On the server the holder is named as its program named itself: Kartella, a user, a host.
        const bool onServer = reg->path().startsWith("postgresql://");
        const QString told = texts.first();
        QVERIFY2(told.contains(onServer ? "The register is in use by Kartella "
                                        : "The register is in use by another program, ")
                && told.contains(", which kept it locked for 0.3 seconds; try again.")
                && !told.contains("Statement:"),
            qPrintable(told));
        if (onServer)
            QVERIFY2(told.contains(QRegularExpression("by Kartella \\S+@"
                         + QRegularExpression::escape(QSysInfo::machineHostName()) + ", which")),
                qPrintable(told));
        QVERIFY(dialog.isVisible());
        QCOMPARE(description->text(), "Changed");
        QCOMPARE(
            reg->scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID=" + idText(lease)), "Lease");

        other.commitTrans();
        QTest::keyClick(ok, Qt::Key_Space);
        QCOMPARE(prompter.texts().size(), 1);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(
            reg->scalar("SELECT DokAntraste FROM tbl_Documents WHERE RastasID=" + idText(lease)), "Changed");
        QCOMPARE(reg->scalar("SELECT DokPastaba FROM tbl_Documents WHERE RastasID=" + idText(lease)),
            "Their note");
    }
};

QTEST_MAIN(ChangedRowsTest)
#include "tst_changed_rows.moc"
