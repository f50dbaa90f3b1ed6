#include "addressbook/ContactEditor.h"
#include "categories/NewCategoryDialog.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "registration/NewDocumentDialog.h"
#include "support/SelectionState.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <memory>

using namespace kartella;
using namespace kartella::test;

namespace {

std::unique_ptr<QDialog> makeDialog(const QString& kind)
{
    if (kind == "New Document")
        return std::make_unique<NewDocumentDialog>();
    if (kind == "New Contact")
        return std::make_unique<ContactEditor>();
    return std::make_unique<NewCategoryDialog>();
}

void showActive(QDialog* dialog)
{
    dialog->show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
}

} // namespace

// The keyboard of the data dialogs: where the focus is when they open, and that Enter on a
// focused button presses it while Enter in a box still moves on.
class DialogKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { selection() = SelectionState(); }

    void firstFieldHasTheFocus_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("first");
        QTest::newRow("New Document") << "New Document"
                                      << "txtFields_4";
        QTest::newRow("New Contact") << "New Contact"
                                     << "txtFields_1";
        QTest::newRow("New Category") << "New Category"
                                      << "txtFields_1";
    }

    void firstFieldHasTheFocus()
    {
        QFETCH(QString, kind);
        QFETCH(QString, first);
        TestRegister reg;
        ScriptedPrompter prompter;
        const auto dialog = makeDialog(kind);
        showActive(dialog.get());
        QVERIFY(QApplication::focusWidget());
        QCOMPARE(QApplication::focusWidget()->objectName(), first);
        // Typing at once goes into that field.
        QTest::keyClicks(QApplication::focusWidget(), "Yard");
        QCOMPARE(dialog->findChild<QLineEdit*>(first)->text(), "Yard");
    }

    // Tab onto a button and Enter presses it: Cancel closes the dialog, and nothing is stored.
    void enterPressesTheFocusedButton_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("cancel");
        QTest::addColumn<QString>("table");
        QTest::newRow("New Document") << "New Document"
                                      << "cmdCancel"
                                      << "tbl_Documents";
        QTest::newRow("New Contact") << "New Contact"
                                     << "cmdClose"
                                     << "tbl_Contacts";
        QTest::newRow("New Category") << "New Category"
                                      << "cmdCancel"
                                      << "tbl_Document_Categories";
    }

    void enterPressesTheFocusedButton()
    {
        QFETCH(QString, kind);
        QFETCH(QString, cancel);
        QFETCH(QString, table);
        TestRegister reg;
        ScriptedPrompter prompter;
        const auto dialog = makeDialog(kind);
        showActive(dialog.get());
        auto* button = dialog->findChild<QPushButton*>(cancel);
        // Backtab from the first field walks backwards to the buttons at the end.
        for (int step = 0; step < 40 && QApplication::focusWidget() != button; ++step)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), button);
        QTest::keyClick(button, Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
        QCOMPARE(reg.scalar("SELECT COUNT(*) FROM " + table).toInt(), 0);
        QVERIFY(prompter.prompts().isEmpty());
    }

    // Enter on Add Existing asks for the file; Enter in a box still moves on without
    // pressing anything.
    void enterOnAButtonAndInABox()
    {
        TestRegister reg;
        ScriptedPrompter prompter;
        NewDocumentDialog dialog;
        showActive(&dialog);
        auto* description = dialog.findChild<QLineEdit*>("txtFields_4");
        QTest::keyClick(description, Qt::Key_Return);
        QVERIFY(QApplication::focusWidget() != description);
        QVERIFY(dialog.isVisible());
        QVERIFY(prompter.fileRequests.isEmpty());

        auto* addExisting = dialog.findChild<QPushButton*>("cmdAddExisting");
        addExisting->setFocus(Qt::TabFocusReason);
        prompter.answerFile("/tmp/scan.pdf");
        QTest::keyClick(addExisting, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(prompter.fileRequests.size(), 1);
        QCOMPARE(dialog.findChild<QLineEdit*>("txtFields_5")->text(), "/tmp/scan.pdf");
        QVERIFY(dialog.isVisible());
    }
};

QTEST_MAIN(DialogKeysTest)
#include "tst_dialog_keys.moc"
