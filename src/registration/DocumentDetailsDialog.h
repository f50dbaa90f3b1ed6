#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTableView;

namespace kartella {

class BoundList;
class DateBox;
class EnterAsTab;
class FieldBinder;
class Recordset;
class RecordsetModel;

// frmNew: the details of the selected document and its reminders, to read and change.
// Nothing is stored until the user applies ("&Apply", or OK which applies and closes).
// Unapplied changes are asked about on Esc (Yes applies and stays, No drops and closes) and
// on the close box (Yes applies, No drops; it closes both ways); Cancel drops them without
// a word. A refused write is reported and leaves the stored row as it was, the dialog open.
class DocumentDetailsDialog : public QDialog
{
    Q_OBJECT

public:
    // Loads the row of the selected document; show it with exec().
    explicit DocumentDetailsDialog(QWidget* parent = nullptr);
    // Loads the row of the document documentId, whatever is selected.
    explicit DocumentDetailsDialog(qint32 documentId, QWidget* parent = nullptr);
    ~DocumentDetailsDialog() override;

    // Something was changed and not yet applied.
    bool detailsChanged() const { return m_changed; }
    // The document is no longer in the register (told on loading); exec() then shows nothing.
    bool documentGone() const { return m_gone; }

    int exec() override;

public Q_SLOTS:
    // Stores the row and the reminders when something changed; false when the store refused.
    bool apply();
    void save();
    void cancel();

protected:
    void closeEvent(QCloseEvent* event) override;
    void done(int result) override;

private:
    // The title of the messages the dialog gives.
    static QString errorTitle();
    void buildWidgets();
    QWidget* buildGeneralTab();
    void bindControls();
    void load();
    void showRow();
    void fillSubCategories(const QString& category);
    void onCategoryChanged();
    void onDirectionChosen(int code);
    void markChanged();
    void setClean();
    void showIcon();
    void showDate(DateBox* picker, const QString& field);
    void writeDate(const QVariant& date, const QString& field);
    // Takes what an open cell editor of the reminder grid holds into its row.
    void commitOpenEditor();
    QRadioButton* directionButton(int code) const;
    void showDirection();
    // Asks what to do with rows (the document's, or its reminders) that another user changed
    // since they were read; true when the user stores theirs over it.
    bool resolveChangedDocument(Recordset& rows);
    // A key field's value by the name the window shows for it (a contact, a category, a
    // direction); empty text for other fields and unknown keys.
    QString shownName(const QString& field, const QVariant& value) const;
    bool askOnEscape();
    void onReminderGridEnter();

    // The last failure to fill the subcategories that was told.
    QString m_subCategoryError;
    Recordset* m_document = nullptr;
    Recordset* m_contacts = nullptr;
    Recordset* m_categories = nullptr;
    Recordset* m_subCategories = nullptr;
    // The row's reminders, as a child of a shaped recordset of the row alone.
    Recordset* m_reminders = nullptr;
    QString m_listConnection;
    qint32 m_documentId = 0;
    QString m_storedIndex; // the registration index as the register holds it
    bool m_changed = false;
    bool m_showing = false;
    bool m_gone = false;

    QLabel* m_icon = nullptr;
    QLineEdit* m_description = nullptr;
    QLineEdit* m_location = nullptr;
    QLineEdit* m_regIndex = nullptr;
    QLineEdit* m_directionCode = nullptr;
    QPlainTextEdit* m_notes = nullptr;
    DateBox* m_sentReceivedDate = nullptr;
    DateBox* m_registrationDate = nullptr;
    // The direction codes 1 to 4.
    QRadioButton* m_inner = nullptr;
    QRadioButton* m_outgoing = nullptr;
    QRadioButton* m_incoming = nullptr;
    QRadioButton* m_otherDirection = nullptr;
    BoundList* m_sender = nullptr;
    BoundList* m_category = nullptr;
    BoundList* m_subCategory = nullptr;
    QTabWidget* m_tabs = nullptr;
    QTableView* m_grid = nullptr;
    RecordsetModel* m_tickler = nullptr;
    FieldBinder* m_binder = nullptr;
    EnterAsTab* m_keys = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_apply = nullptr;
};

} // namespace kartella
