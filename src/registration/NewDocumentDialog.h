#pragma once

#include "registration/OfficeDocuments.h"

#include <QDialog>

#include <array>

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
// one); OK stores the row and the reminders typed in the grid with one UpdateBatch and
// raises the day's number; Cancel (Esc) drops them, leaving a file already made on disk.
class NewDocumentDialog : public QDialog
{
    Q_OBJECT

public:
    // Loads the dialog (the load sequence runs here); show it with exec().
    explicit NewDocumentDialog(QWidget* parent = nullptr);
    ~NewDocumentDialog() override;

    // The data controls: 1 the row and its reminders, 2 contacts, 3 categories,
    // 4 subcategories of the chosen category.
    Recordset* Adodc(int number) const { return m_adodc.at(std::size_t(number)); }
    // Writes path into the Location box, as a file dropped on the document list does.
    void SetLocation(const QString& path);
    // Set once the load sequence has proposed an index.
    bool DialogReady = false;

public Q_SLOTS:
    void cmbCategory_Change();
    void Option_Click(int index);
    void cmdWord_Click();
    void cmdExcel_Click();
    void cmdPower_Click();
    void cmdAddExisting_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

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
    void Form_Load();
    void CreateDocument(const CreatingButton& button);
    void grdTickler_Enter();
    QLineEdit* addTextBox(int index);

    std::array<Recordset*, 5> m_adodc = {};
    QString m_listConnection;
    std::array<QLineEdit*, 8> m_txtFields = {}; // index 6 is the Notes box, m_notes
    QPlainTextEdit* m_notes = nullptr;
    std::array<QRadioButton*, 5> m_option = {}; // 1 to 4, the direction codes
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
