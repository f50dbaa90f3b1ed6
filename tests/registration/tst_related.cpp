#include "RegisterFixture.h"
#include "ShownTexts.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "options/OptionStore.h"
#include "registration/RelatedDocumentDialog.h"
#include "store/engine/Recordset.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QPlainTextEdit>
#include <QTimer>

using namespace kartella;
using namespace kartella::test;

// The two dialogs of a related document: the new one with its creating buttons, and the
// edit of a stored one.
class RelatedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A new related document with an existing file: stored under the selected document with
    // its description, today's date and the file; the file stays where it is.
    void newRelatedWithExistingFile()
    {
        Fixture fx;
        const QString scan = fx.files.filePath("scan.pdf");
        writeFile(scan, "scan");
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        QCOMPARE(dialog.objectName(), "frmRelated");
        // Every caption, tooltip and spoken name, as written.
        QCOMPARE(shownTexts(dialog),
            QStringList({"New Related Document", "cmbContact: Select a Contact | ",
                "txtFields_5: Location of File | ", ": Parent Document: |  | ",
                ": Related Document Description: |  | ", ": Send/Receive Date: |  | ",
                ": Sender/Receiver: |  | ", ": Location: |  | ", "cmdOK: OK |  | ", "cmdCancel: Cancel |  | ",
                "fraCreateWith: Create With |  | ", "cmdWord: &Word |  | ", "cmdExcel: &Excel |  | ",
                "cmdPower: &PowerPoint |  | ", "cmdAddExisting: &Add Existing |  | "}));
        QCOMPARE(overlaps(dialog), QStringList());
        QVERIFY(dialog.isModal());
        QVERIFY(dialog.findChild<Recordset*>("Adodc1"));
        // The new row is all the dialog reads of the related documents.
        QCOMPARE(dialog.findChild<Recordset*>("datPrimaryRS")->recordCount(), 1);
        QVERIFY(dialog.findChild<QTabWidget*>("SSTab1"));
        // The parent and the location are shown, not typed; the keys are kept in boxes nobody
        // sees.
        QVERIFY(dialog.findChild<QLineEdit*>("txtParent")->isReadOnly());
        QVERIFY(box(dialog, 5)->isReadOnly());
        QVERIFY(box(dialog, 0)->isHidden());
        QVERIFY(box(dialog, 2)->isHidden());
        QCOMPARE(dialog.findChild<QLineEdit*>("txtParent")->text(), "Sutartis");
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), "Receipt");
        fx.prompter.answerFile(scan);
        click(dialog, "cmdAddExisting");
        QCOMPARE(fx.prompter.fileRequests.first().title, "Select the Document");
        QCOMPARE(fx.prompter.fileRequests.first().filterLabel, "All files (*.*)");
        QCOMPARE(fx.prompter.fileRequests.first().pattern, "*.*");
        QCOMPARE(box(dialog, 5)->text(), scan);
        click(dialog, "cmdOK");
        QVERIFY(!dialog.isVisible());
        const QVariant id = fx.reg.scalar("SELECT MAX(SubRastasID) FROM tbl_Sub_Documents");
        QCOMPARE(fx.related("RastasID", id.toInt()).toInt(), fx.lease);
        QCOMPARE(fx.related("SubDocDescript", id.toInt()).toString(), "Receipt");
        QCOMPARE(fx.related("SubRastoKelias", id.toInt()).toString(), scan);
        QCOMPARE(fx.related("SubRastGavimoData", id.toInt()).toDate(), QDate::currentDate());
        QCOMPARE(readFile(scan), "scan");
        QCOMPARE(fx.related("SubDocDescript", fx.annex).toString(), "Annex");
    }

    // The Word button makes a file without template in the current category's folder, named
    // under each naming system; only the file-number system moves its counter, and the day's
    // number never moves.
    void relatedFileUnderNamingSystems_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fileNumber");
        QTest::newRow("Mnemonic+Number") << "0"
                                         << "AGR00001.doc"
                                         << "2";
        QTest::newRow("Like Registration Index")
            << "2"
            << "AGR-" + QDate::currentDate().toString("yyyyMMdd") + "p1.doc"
            << "2";
    }

    void relatedFileUnderNamingSystems()
    {
        QFETCH(QString, system);
        QFETCH(QString, name);
        QFETCH(QString, fileNumber);
        Fixture fx;
        setRegValue("FileName", system);
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), "Receipt");
        click(dialog, "cmdWord");
        const QString path = QDir(fx.files.path()).filePath(name);
        QCOMPARE(box(dialog, 5)->text(), path);
        QCOMPARE(readFile(path), "made");
        QCOMPARE(fx.suite.templates, QStringList {QString()});
        QCOMPARE(getRegValue("FileNumber").trimmed(), fileNumber);
        QCOMPARE(getRegValue("TodayNumber"), "1");
        // Pressed again with a file in place, the button does nothing.
        click(dialog, "cmdWord");
        QCOMPARE(fx.suite.templates.size(), 1);
        QVERIFY(fx.prompter.prompts().isEmpty());
    }

    // The creating buttons' checks: a description first (each button's own words), then a
    // category chosen in the tree; the dialog stays open.
    void relatedCreatingChecks()
    {
        Fixture fx;
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        fx.prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        click(dialog, "cmdExcel");
        click(dialog, "cmdPower");
        selection().currentCategoryId = 0;
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), "Receipt");
        click(dialog, "cmdWord");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 3);
        QCOMPARE(prompts[0].text, "Document Description Required!");
        QCOMPARE(prompts[0].title, "Unable to create a new Excel Document");
        QCOMPARE(prompts[0].style, MsgBoxStyle::Critical);
        QCOMPARE(prompts[1].text, "SubDocument Description Required!");
        QCOMPARE(prompts[2].text, "Select any Category, please!");
        QVERIFY(dialog.isVisible());
        QVERIFY(fx.suite.templates.isEmpty());
    }

    // Editing a related document: its row shows; OK writes the description and keeps the
    // parent the row has, whatever document is selected; Esc after a change asks, No drops.
    void editRelated()
    {
        Fixture fx;
        fx.selectRelated();
        {
            RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
            showActive(dialog);
            QCOMPARE(dialog.objectName(), "frmRelDescr");
            QCOMPARE(shownTexts(dialog),
                QStringList({"Description of Related Document", "cmbContact: Select a Contact | ",
                    "txtFields_4: Location of File | ", ": Parent Document: |  | ",
                    ": Related Document Description: |  | ", ": Send/Receive Date: |  | ",
                    ": Sender/Receiver: |  | ", ": Location: |  | ", "cmdOK: OK |  | ",
                    "cmdCancel: Cancel |  | "}));
            QCOMPARE(overlaps(dialog), QStringList());
            QCOMPARE(dialog.findChild<QLineEdit*>("txtParent")->text(), "Annex");
            QCOMPARE(box(dialog, 4)->text(), fx.annexFile);
            QVERIFY(dialog.findChild<QLineEdit*>("txtParent")->isReadOnly());
            QVERIFY(box(dialog, 4)->isReadOnly());
            QVERIFY(!dialog.findChild<QPushButton*>("cmdWord"));
            QTest::keyClick(dialog.findChild<QPlainTextEdit*>("txtFields_1"), Qt::Key_End);
            QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), " 2");
            fx.prompter.answer(MsgBoxResult::No);
            QTest::keyClick(dialog.findChild<QPlainTextEdit*>("txtFields_1"), Qt::Key_Escape);
            QCOMPARE(fx.prompter.take().first().text, ApplyQuestion);
            QVERIFY(!dialog.isVisible());
            QCOMPARE(fx.related("SubDocDescript", fx.annex).toString(), "Annex");
        }
        selection().selectedDocumentId = 0;
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
        showActive(dialog);
        QTest::keyClick(dialog.findChild<QPlainTextEdit*>("txtFields_1"), Qt::Key_End);
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), " 2");
        click(dialog, "cmdOK");
        QCOMPARE(fx.related("SubDocDescript", fx.annex).toString(), "Annex 2");
        QCOMPARE(fx.related("RastasID", fx.annex).toInt(), fx.lease);
        QCOMPARE(fx.related("SubRastoKelias", fx.annex).toString(), fx.annexFile);

        // Esc after a change, answered Yes, writes it as OK does.
        RelatedDocumentDialog again(RelatedDocumentDialog::Mode::Editing);
        showActive(again);
        QTest::keyClick(again.findChild<QPlainTextEdit*>("txtFields_1"), Qt::Key_End);
        QTest::keyClicks(again.findChild<QPlainTextEdit*>("txtFields_1"), " 3");
        fx.prompter.answer(MsgBoxResult::Yes);
        QTest::keyClick(again.findChild<QPlainTextEdit*>("txtFields_1"), Qt::Key_Escape);
        QCOMPARE(fx.prompter.take().first().text, ApplyQuestion);
        QVERIFY(!again.isVisible());
        QCOMPARE(fx.related("SubDocDescript", fx.annex).toString(), "Annex 2 3");
    }

    // A related document another user deleted while it was open here: OK tells so and keeps
    // the dialog open.
    void relatedDeletedWhileEdited()
    {
        Fixture fx;
        fx.selectRelated();
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
        showActive(dialog);
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), " 2");
        fx.reg.exec("DELETE FROM tbl_Sub_Documents WHERE SubRastasID=" + QString::number(fx.annex));
        fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdOK");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts.first().text,
            "This related document was deleted by another user; your changes were not saved.");
        QCOMPARE(prompts.first().title, "Description of Related Document");
        QVERIFY(dialog.isVisible());
    }

    // Files dropped on the related list open New Related Document one after another, each
    // with its file in the Location box and marked as changed, so that Esc asks; Show
    // Details opens the dialog of the list last clicked.
    void dropOnTheRelatedListAndShowDetails()
    {
        Fixture fx;
        MainWindow window;
        window.load();
        window.listCategory(fx.contracts, 0);
        window.onDocumentClicked(window.documentModel()->rowOfKey(DocumentFills::itemKey(fx.lease)));
        const QStringList paths = {fx.files.filePath("a.pdf"), fx.files.filePath("b.pdf")};
        QStringList seen;
        QList<bool> changed;
        QTimer responder;
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<RelatedDocumentDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            seen << dialog->objectName() + ":" + dialog->findChild<QLineEdit*>("txtFields_5")->text();
            changed << dialog->relatedChanged();
            QTest::mouseClick(
                dialog->findChild<QPushButton*>(seen.size() == 1 ? "cmdOK" : "cmdCancel"), Qt::LeftButton);
        });
        responder.start(20);
        Q_EMIT window.relatedList()->filesDropped(paths);
        QCOMPARE(seen, QStringList({"frmRelated:" + paths[0], "frmRelated:" + paths[1]}));
        QCOMPARE(changed, QList<bool>({true, true}));
        QCOMPARE(
            fx.reg
                .scalar("SELECT COUNT(*) FROM tbl_Sub_Documents WHERE RastasID=" + QString::number(fx.lease))
                .toInt(),
            2);

        QStringList shown;
        disconnect(&responder, nullptr, this, nullptr);
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            shown << dialog->objectName();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        window.action("mnuShowDetails")->trigger();
        window.fillRelatedList();
        window.onRelatedClicked(window.relatedModel()->rowOfKey(DocumentFills::itemKey(fx.annex)));
        window.action("mnuShowDetails")->trigger();
        responder.stop();
        QCOMPARE(shown, QStringList({"frmNew", "frmRelDescr"}));
    }

    // A file dropped on the document list or on the related list is registered under the
    // command of the dialog it opens, and the history says so for every column of the new row.
    void droppedFileIsRecordedUnderItsCommand_data()
    {
        QTest::addColumn<bool>("related");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("command");
        QTest::newRow("document list") << false << "tbl_Documents"
                                       << "RastasID"
                                       << "New Document";
        QTest::newRow("related list") << true << "tbl_Sub_Documents"
                                      << "SubRastasID"
                                      << "Related";
    }

    void droppedFileIsRecordedUnderItsCommand()
    {
        QFETCH(bool, related);
        QFETCH(QString, table);
        QFETCH(QString, key);
        QFETCH(QString, command);
        Fixture fx;
        const QString dropped = fx.files.filePath("dropped.pdf");
        writeFile(dropped, "dropped");
        const int before = fx.reg.scalar("SELECT MAX(" + key + ") FROM " + table).toInt();
        MainWindow window;
        window.load();
        window.listCategory(fx.contracts, 0);
        window.onDocumentClicked(window.documentModel()->rowOfKey(DocumentFills::itemKey(fx.lease)));
        QStringList seen;
        QTimer responder;
        connect(&responder, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            seen << dialog->objectName();
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        });
        responder.start(20);
        Q_EMIT(related ? window.relatedList() : window.documentList())->filesDropped({dropped});
        responder.stop();
        QCOMPARE(seen, QStringList {related ? "frmRelated" : "frmNewDocument"});
        const int added = fx.reg.scalar("SELECT MAX(" + key + ") FROM " + table).toInt();
        QVERIFY(added > before);
        QCOMPARE(fx.reg
                     .scalar("SELECT GROUP_CONCAT(DISTINCT COALESCE(Command, '-')) FROM tbl_History WHERE "
                             "lower(TableName)=lower('"
                         + table + "') AND RowKey=" + QString::number(added))
                     .toString(),
            command);
    }

    // A new related document needs the document it hangs on: without one OK says so and
    // stores nothing, and the dialog stays.
    void newRelatedNeedsItsDocument()
    {
        Fixture fx;
        const QString before = fx.relatedRows();
        selection().selectedDocumentId = 0;
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFields_1"), "Receipt");
        fx.prompter.answer(MsgBoxResult::Ok);
        click(dialog, "cmdOK");
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QCOMPARE(prompts.first().style, MsgBoxStyle::Exclamation);
        QVERIFY(dialog.isVisible());
        QCOMPARE(fx.relatedRows(), before);
    }

    // Both dialogs show a date in the same short form, a day below 10 with its zero; Tab in
    // the description moves on and types no tab.
    void datesAndTab()
    {
        Fixture fx;
        fx.reg.exec("UPDATE tbl_Sub_Documents SET SubRastGavimoData='2024-11-04'");
        {
            RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
            showActive(dialog);
            QCOMPARE(box(dialog, 3)->text(), QDate::currentDate().toString("yyyy.MM.dd"));
            auto* description = dialog.findChild<QPlainTextEdit*>("txtFields_1");
            description->setFocus();
            QTest::keyClicks(description, "Receipt");
            QTest::keyClick(description, Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), box(dialog, 3));
            QCOMPARE(description->toPlainText(), "Receipt");
        }
        fx.selectRelated();
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
        showActive(dialog);
        QCOMPARE(box(dialog, 3)->text(), "2024.11.04");
    }

    // A register that can't give the dialog its rows is told as a data error.
    void loadErrorIsTold()
    {
        Fixture fx;
        fx.reg.exec("ALTER TABLE tbl_Contacts RENAME TO tbl_Gone");
        fx.prompter.answer(MsgBoxResult::Ok);
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        const auto prompts = fx.prompter.take();
        QCOMPARE(prompts.size(), 1);
        QVERIFY2(
            prompts.first().text.startsWith("Data error event hit err:"), qPrintable(prompts.first().text));
    }

    // Show Details on a related document that another program deleted since it was clicked:
    // told, no dialog opens, and the related list no longer shows it.
    void goneRelatedDocument()
    {
        Fixture fx;
        MainWindow window;
        window.load();
        window.listCategory(fx.contracts, 0);
        window.onDocumentClicked(window.documentModel()->rowOfKey(DocumentFills::itemKey(fx.lease)));
        window.fillRelatedList();
        const QString key = DocumentFills::itemKey(fx.annex);
        window.onRelatedClicked(window.relatedModel()->rowOfKey(key));
        fx.reg.exec("DELETE FROM tbl_Sub_Documents WHERE SubRastasID=" + QString::number(fx.annex));
        OpenedDialogs opened;
        fx.prompter.answer(MsgBoxResult::Ok);
        window.action("mnuShowDetails")->trigger();
        opened.watcher.stop();
        QCOMPARE(opened.names, QStringList());
        QCOMPARE(fx.prompter.take().first().text, "This related document no longer exists.");
        QCOMPARE(window.relatedModel()->rowOfKey(key), -1);
        QVERIFY(window.documentModel()->rowOfKey(DocumentFills::itemKey(fx.lease)) >= 0);

        // Made for the gone row all the same, the dialog offers nothing to store.
        fx.selectRelated();
        fx.prompter.answer(MsgBoxResult::Ok);
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Editing);
        QCOMPARE(fx.prompter.take().size(), 1);
        QVERIFY(!dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
        QVERIFY(!dialog.findChild<QTabWidget*>("SSTab1")->isEnabled());
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    }
};

QTEST_MAIN(RelatedTest)
#include "tst_related.moc"
