#pragma once

#include <QString>

#include <functional>

class QComboBox;
class QGroupBox;
class QRadioButton;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace kartella {

class Error;

// Small pieces that the data dialogs build their windows from.

// A button that Enter never presses by itself.
QPushButton* makeDialogButton(const QString& name, const QString& caption, QWidget* parent);
// A label that is the buddy of its field.
QLabel* makeBuddyLabel(const QString& caption, QWidget* buddy, QWidget* parent);
// A text box named after its place among the dialog's fields ("txtFields_4").
QLineEdit* makeFieldBox(int index, QWidget* parent);

// The "Category" frame with the category and subcategory boxes (cmbCategory, cmbSubCategory).
struct CategoryFrame
{
    QGroupBox* frame;
    QComboBox* category;
    QComboBox* subCategory;
};
CategoryFrame makeCategoryFrame(QWidget* parent);

// The "Direction" frame with its buttons Option_1 to Option_4 in the order of their direction
// codes; chosen is told the code of the button the user checks.
struct DirectionFrame
{
    QGroupBox* frame;
    QRadioButton* inner;
    QRadioButton* outgoing;
    QRadioButton* incoming;
    QRadioButton* other;
};
DirectionFrame makeDirectionFrame(QWidget* parent, const std::function<void(int code)>& chosen);

// The "Create With" frame: cmdWord, cmdExcel, cmdPower and cmdAddExisting, each running
// its action when clicked.
struct CreateWithActions
{
    std::function<void()> word;
    std::function<void()> excel;
    std::function<void()> powerPoint;
    std::function<void()> addExisting;
};
QGroupBox* makeCreateWithFrame(QWidget* parent, const CreateWithActions& actions);

// Asks whether to apply the changes not yet applied: a MsgBoxResult (Yes, No or Cancel).
int askToApplyChanges();

// Closes whatever busy pointers are still up, as every data dialog does when it closes.
void restoreDefaultCursor();

// "Error: <number> <description>" in a critical box under title: how a refused write to
// the register is told.
void reportStoreError(long number, const QString& description, const QString& title);

// Whether a refused write says that its row is no longer in the register: another program
// deleted it while it was open here.
bool rowWasDeleted(const Error& error);

// "This <what> was deleted by another user; your changes were not saved." in an
// exclamation box under title.
void reportDeletedRow(const QString& what, const QString& title);

} // namespace kartella
