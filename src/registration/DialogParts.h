#pragma once

#include <QString>

class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace kartella {

// Small pieces that the registration dialogs build their windows from.

// A button that Enter never presses by itself.
QPushButton* makeDialogButton(const QString& name, const QString& caption, QWidget* parent);
// A label that is the buddy of its field.
QLabel* makeBuddyLabel(const QString& caption, QWidget* buddy, QWidget* parent);
// A text box named after its place among the dialog's fields ("txtFields_4").
QLineEdit* makeFieldBox(int index, QWidget* parent);

// Closes whatever busy pointers are still up, as every data dialog does when it closes.
void restoreDefaultCursor();

// "Error: <number> <description>" in a critical box under title: how a refused write to
// the register is told.
void reportStoreError(long number, const QString& description, const QString& title);

} // namespace kartella
