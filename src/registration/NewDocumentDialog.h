#pragma once

#include "capture/IncomingFile.h"
#include "registration/OfficeDocuments.h"

#include <QDialog>

class QGroupBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTableView;

namespace kartella {

class BoundList;
class EnterAsTab;
class FieldBinder;
class Recordset;
class RecordsetModel;

// frmNewDocument, "New Document": registers one document. Opening it starts a new row on a
// shaped recordset of the documents and their reminders (opened in batch mode, so nothing
// is written yet), selects the current category and proposes a registration index. The
// buttons under "Create With" make the document's file at once (or attach an existing
// one); OK refuses an index the register already has, offering the next free one, stores the row and the
// reminders typed in the grid with one updateBatch and raises the day's number; Cancel (Esc) drops them and,
// after a question, deletes a file that a creating button made.
class NewDocumentDialog : public QDialog
{
    Q_OBJECT

public:
    // Loads the dialog (the load sequence runs here); show it with exec().
    explicit NewDocumentDialog(QWidget* parent = nullptr);
    ~NewDocumentDialog() override;

    // Writes path into the Location box, as a file dropped on the document list does.
    void setLocation(const QString& path);
    // Attaches a file brought in from outside: it stands in the Location box, its name
    // proposes the description, and OK copies or moves it into the register's files folder
    // (placeIncomingFile), where the stored row finds it.
    void attachIncomingFile(const QString& path, Intake intake);
    // After OK: where the incoming file went.
    QString placedFile() const { return m_placedFile; }
    // Whether Esc (or the close box) closed the dialog, rather than its buttons.
    bool closedByEscape() const { return m_closedByEscape; }
    // Set once the load sequence has proposed an index.
    bool indexProposed() const { return m_indexProposed; }

public Q_SLOTS:
    void onCategoryChanged();
    void onDirectionChosen(int index);
    void createWithWord();
    void createWithExcel();
    void createWithPowerPoint();
    void addExistingFile();
    // Scan: the pages scanned become the document's PDF, named as a made file is.
    void scanDocument();
    void save();
    void cancel();
    // Closing without OK: asks before deleting a file made here, and stays open on No.
    void reject() override;

protected:
    void done(int result) override;

private:
    struct CreatingButton
    {
        QString title;
        QString categoryField;
        QString subCategoryField;
        void (*create)(const OfficeDocumentRequest&, const std::function<void(const QString&)>&);
    };

    void buildWidgets();
    QWidget* buildGeneralTab();
    QGroupBox* buildCreateWith();
    void bindControls();
    void load();
    // Proposes the index for the chosen category; a failed proposal empties the box.
    void proposeRegIndex();
    void createDocument(const CreatingButton& button);
    // The path of the scanned document's PDF; empty after telling the user why not.
    QString scannedFilePath();
    // A register of an older version counts the day's numbers in the user's options.
    void countInOptions();
    void onReminderGridEnter();
    // Copies or moves the incoming file to its place and names it in the row; false, after
    // telling why, when it can't.
    bool placeIncomingFile();
    void takeBackIncomingFile();

    // The new row with its reminders, and the rows of the three lists.
    Recordset* m_document = nullptr;
    Recordset* m_contacts = nullptr;
    Recordset* m_categories = nullptr;
    Recordset* m_subCategories = nullptr;
    QString m_listConnection;
    bool m_indexProposed = false;
    // The file a creating button made, until the dialog is closed.
    QString m_madeFile;
    // The file brought in, how it comes, and where OK put it.
    QString m_incomingFile;
    Intake m_intake = Intake::Copy;
    QString m_placedFile;
    bool m_closedByEscape = false;
    bool m_escapePressed = false;
    bool m_cancelPressed = false;

    // The row's key and its direction code are in boxes nobody sees.
    QLineEdit* m_documentId = nullptr;
    QLineEdit* m_directionCode = nullptr;
    QLineEdit* m_description = nullptr;
    QLineEdit* m_location = nullptr;
    QLineEdit* m_sentReceivedDate = nullptr;
    QLineEdit* m_registrationDate = nullptr;
    QLineEdit* m_regIndex = nullptr;
    QPlainTextEdit* m_notes = nullptr;
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
};

} // namespace kartella
