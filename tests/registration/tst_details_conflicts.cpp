#include "RegisterFixture.h"
#include "harness/Lithuanian.h"
#include "registration/DocumentDetailsDialog.h"

#include <QComboBox>
#include <QDateEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTableView>

using namespace kartella;
using namespace kartella::test;

// The details dialog while another user writes the same document.
class DetailsConflictsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Another user stored the document while the dialog was open: OK tells so, with the
    // stored and the typed description, and the user reloads it (and types again), stores
    // theirs over it, or goes back to what was typed. Nothing typed is lost on the way, and
    // the other user's note and direction, fields not typed here, stay.
    void changedByAnotherUser_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("shownAfter");
        QTest::addColumn<QString>("storedAfter");
        QTest::newRow("Reload") << int(MsgBoxResult::Yes) << "Theirs"
                                << "Theirs";
        QTest::newRow("Keep Mine") << int(MsgBoxResult::No) << ""
                                   << "Mine";
        QTest::newRow("Cancel") << int(MsgBoxResult::Cancel) << "Mine"
                                << "Theirs";
    }

    void changedByAnotherUser()
    {
        QFETCH(int, answer);
        QFETCH(QString, shownAfter);
        QFETCH(QString, storedAfter);
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 7), "Mine");
        fx.reg.exec("UPDATE tbl_Documents SET DokAntraste='Theirs', DokPastaba='Their note', KryptisID=3 "
                    "WHERE RastasID="
            + QString::number(fx.lease));

        fx.prompter.answer(answer);
        click(dialog, "cmdButton_0");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(prompts.first().text.startsWith(
                     "This document was changed by another user since you opened it.\n\n")
                && prompts.first().text.contains("\nDescription: stored \"Theirs\", yours \"Mine\"\n"),
            qPrintable(prompts.first().text));
        QCOMPARE(prompts.first().title, "Document Description");
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), storedAfter);
        QCOMPARE(fx.document("DokPastaba", fx.lease).toString(), "Their note");
        if (shownAfter.isEmpty()) {
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            return;
        }
        QVERIFY(dialog.isVisible());
        QCOMPARE(box(dialog, 7)->text(), shownAfter);
        QCOMPARE(dialog.findChild<QPlainTextEdit*>("txtFields_12")->toPlainText(), "Their note");
        // The direction shows as stored once reloaded; going back to what was typed keeps it.
        QVERIFY(dialog.findChild<QRadioButton*>(answer == MsgBoxResult::Yes ? "Option_3" : "Option_4")
                    ->isChecked());

        // A later OK stores what the dialog holds then, over what the user was shown, a
        // direction chosen after the reload too.
        retype(box(dialog, 7), shownAfter + " again");
        auto* inner = dialog.findChild<QRadioButton*>("Option_1");
        inner->setFocus();
        QTest::keyClick(inner, Qt::Key_Space);
        click(dialog, "cmdButton_0");
        QVERIFY(fx.prompter.take().isEmpty());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(fx.document("DokAntraste", fx.lease).toString(), shownAfter + " again");
        QCOMPARE(fx.document("DokPastaba", fx.lease).toString(), "Their note");
        QCOMPARE(fx.document("KryptisID", fx.lease).toInt(), 1);
        QCOMPARE(fx.document("DokAntraste", fx.other).toString(), "Other");
    }

    // Another user changed the document's reminder while the dialog was open: OK tells so;
    // Keep Mine stores the reminder typed here, Reload shows the stored one in the grid.
    void reminderChangedByAnotherUser_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("storedAfter");
        QTest::newRow("Reload") << int(MsgBoxResult::Yes) << "Call at once";
        QTest::newRow("Keep Mine") << int(MsgBoxResult::No) << "Call at noon";
    }

    void reminderChangedByAnotherUser()
    {
        QFETCH(int, answer);
        QFETCH(QString, storedAfter);
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        fx.reg.exec(
            "UPDATE tbl_Tickler SET TicklerText='Call at once', TicklerDate='2024-05-01' WHERE RastasID="
            + QString::number(fx.lease));
        auto* grid = dialog.findChild<QTableView*>("grdTickler");
        QVERIFY(grid->model()->setData(grid->model()->index(0, 3), "Call at noon"));
        QVERIFY(grid->model()->setData(grid->model()->index(0, 1), QDate(2024, 6, 1)));
        fx.prompter.answer(answer);
        click(dialog, "cmdButton_0");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(
            prompts.first().text.startsWith("This document was changed by another user since you opened it.")
                && prompts.first().text.contains(
                    "\nReminder text: stored \"Call at once\", yours \"Call at noon\"\n")
                && prompts.first().text.contains("\nReminder date: stored 2024.05.01, yours 2024.06.01\n"),
            qPrintable(prompts.first().text));
        QCOMPARE(fx.reminders(),
            QString::number(fx.lease) + ":" + storedAfter + "," + QString::number(fx.other) + ":Other's");
        const bool reloaded = answer == MsgBoxResult::Yes;
        QCOMPARE(dialog.isVisible(), reloaded);
        if (reloaded)
            QCOMPARE(grid->model()->index(0, 3).data().toString(), "Call at once");
    }

    // Every field typed here and stored otherwise by another user is named in the question,
    // by its caption, with both values as the window shows them: a contact, a category, a
    // direction by name (a subcategory of another category than the one chosen by its key).
    void everyChangedFieldIsNamed()
    {
        Fixture fx;
        const qint32 bills = fx.reg.insert("tbl_Document_Categories", {{"DokKategorija", "Bills"}});
        const qint32 inbound
            = fx.reg.insert("tbl_Sub_Categories", {{"KategID", fx.letters}, {"DokSubKategorija", "Inbound"}});
        const qint32 paid
            = fx.reg.insert("tbl_Sub_Categories", {{"KategID", bills}, {"DokSubKategorija", "Paid"}});
        const qint32 jonas = fx.reg.insert("tbl_Contacts", {{"FullName", "Jonas Jonaitis"}});
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 7), "Mine");
        retype(box(dialog, 3), "AGR-9");
        auto* sender = dialog.findChild<QComboBox*>("cmbSender");
        sender->setFocus();
        QTest::keyClick(sender, 'O');
        QCOMPARE(sender->currentText(), "Ona Petraitiene");
        auto* category = dialog.findChild<QComboBox*>("cmbCategory");
        category->setFocus();
        QTest::keyClick(category, 'L');
        auto* subCategory = dialog.findChild<QComboBox*>("cmbSubCategory");
        subCategory->setFocus();
        QTest::keyClick(subCategory, 'I');
        QCOMPARE(subCategory->currentText(), "Inbound");
        dialog.findChild<QDateEdit*>("DTPicker1")->setDate(QDate(2024, 3, 1));
        dialog.findChild<QDateEdit*>("DTPicker2")->setDate(QDate(2024, 3, 2));
        auto* inner = dialog.findChild<QRadioButton*>("Option_1");
        inner->setFocus();
        QTest::keyClick(inner, Qt::Key_Space);
        auto* notes = dialog.findChild<QPlainTextEdit*>("txtFields_12");
        notes->setFocus();
        QTest::keyClicks(notes, "My note");
        fx.reg.exec(
            QString("UPDATE tbl_Documents SET DokAntraste='Theirs', DokRegistracIndeksas='AGR-8', "
                    "ContactID=%1, KategID=%2, SubKategID=%3, DokGavSiuntData='2024-04-01', "
                    "DokRegistracData='2024-04-02', KryptisID=3, DokPastaba='Their note' WHERE RastasID=%4")
                .arg(jonas)
                .arg(bills)
                .arg(paid)
                .arg(fx.lease));

        fx.prompter.answer(MsgBoxResult::Cancel);
        click(dialog, "cmdButton_0");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QStringList named;
        for (const QString& line : prompts.first().text.split(u'\n')) {
            if (line.contains(": stored "))
                named << line;
        }
        named.sort();
        QCOMPARE(named,
            QStringList({"Category: stored \"Bills\", yours \"Letters\"",
                "Description: stored \"Theirs\", yours \"Mine\"",
                "Direction: stored \"Incoming\", yours \"Inner\"",
                "Notes: stored \"Their note\", yours \"My note\"",
                "Registration Date: stored 2024.04.02, yours 2024.03.02",
                "Registration Index: stored \"AGR-8\", yours \"AGR-9\"",
                "Send/Receive Date: stored 2024.04.01, yours 2024.03.01",
                "Sender/Receiver: stored \"Jonas Jonaitis\", yours \"Ona Petraitiene\"",
                "Subcategory: stored \"" + QString::number(paid) + "\", yours \"Inbound\""}));
        QVERIFY(dialog.isVisible());
        Q_UNUSED(inbound);
    }

    // An index typed here is checked at every store: after a conflict the user went back
    // from, an index another user took meanwhile is still refused.
    void typedIndexCheckedAfterConflict()
    {
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 3), "AGR-7");
        retype(box(dialog, 7), "Mine");
        fx.reg.exec(
            "UPDATE tbl_Documents SET DokAntraste='Theirs' WHERE RastasID=" + QString::number(fx.lease));
        fx.prompter.answer(MsgBoxResult::Cancel);
        click(dialog, "cmdButton_0");
        QCOMPARE(fx.prompter.take().size(), 1);
        fx.reg.exec("UPDATE tbl_Documents SET DokRegistracIndeksas='AGR-7' WHERE RastasID="
            + QString::number(fx.other));
        fx.prompter.answer(MsgBoxResult::No);
        click(dialog, "cmdButton_0");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(
            prompts.first().text.startsWith("The register already has a document with the index \"AGR-7\"."),
            qPrintable(prompts.first().text));
        QVERIFY(dialog.isVisible());
        QCOMPARE(fx.document("DokRegistracIndeksas", fx.lease).toString(), "AGR-1");
    }

    // Another user deleted the document while the dialog was open: OK tells so, and nothing
    // comes back.
    void deletedByAnotherUser()
    {
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 7), "Mine");
        fx.reg.exec("DELETE FROM tbl_Tickler WHERE RastasID=" + QString::number(fx.lease));
        fx.reg.exec("DELETE FROM tbl_Sub_Documents WHERE RastasID=" + QString::number(fx.lease));
        fx.reg.exec("DELETE FROM tbl_Documents WHERE RastasID=" + QString::number(fx.lease));
        fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdButton_0");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(
            prompts.first().text, "This document was deleted by another user; your changes were not saved.");
        QCOMPARE(prompts.first().title, "Document Description");
        QVERIFY(fx.document("DokAntraste", fx.lease).isNull());
    }

    // In Lithuanian the question names the fields by their Lithuanian captions.
    void changedFieldNamedInLithuanian()
    {
        Fixture fx;
        const Lithuanian lithuanian;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 7), "Mine");
        fx.reg.exec(
            "UPDATE tbl_Documents SET DokAntraste='Theirs' WHERE RastasID=" + QString::number(fx.lease));
        fx.prompter.answer(MsgBoxResult::Cancel);
        click(dialog, "cmdButton_0");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(prompts.first().text.contains("\nAprašymas: "), qPrintable(prompts.first().text));
    }
};

QTEST_MAIN(DetailsConflictsTest)
#include "tst_details_conflicts.moc"
