#pragma once

#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedTelephony.h"
#include "harness/TestRegister.h"

#include <QStringList>
#include <QWidget>

class QAction;
class QLineEdit;
class QPlainTextEdit;
class QTableView;
class QTreeWidget;

namespace kartella::test {

// A register with four contacts: Ona with two phones and a web page, Jonas with one phone,
// a company without a contact name, and a row with neither; a document of Ona's.
struct AddressBookFixture
{
    TestRegister reg;
    ScriptedPrompter prompter;
    ScriptedTelephony telephony;
    qint32 ona = 0;
    qint32 jonas = 0;
    qint32 company = 0;
    qint32 nameless = 0;
    qint32 document = 0;

    explicit AddressBookFixture(bool withContacts = true);
    int count(const QString& table) const;
    // The texts of the first field of sql's rows, in order (Null as "").
    QStringList column(const QString& sql) const;
};

// A window shown and active, so that focus and keys work, with its controls by name.
struct Shown
{
    explicit Shown(QWidget* widget);

    QWidget* widget;
    QLineEdit* box(int index) const;
    QPlainTextEdit* textBox(int index) const;
    QTableView* grid(const char* name) const;
    QAction* action(const char* name) const;
    QTreeWidget* list() const;
    QLineEdit* lineEdit(const char* name) const;
    void click(const char* button) const;
    // The lines of the contact list, top to bottom.
    QStringList lines() const;
    // Clicks the list line with text.
    void clickLine(const QString& text) const;
    // The texts of a grid's column over its data rows.
    QStringList column(const char* grid, int column) const;
    QString status() const;
    // Types text into a grid cell through its editor, ending with Tab.
    void typeCell(const char* grid, int row, int column, const QString& text) const;
};

} // namespace kartella::test
