#pragma once

#include "registration/OfficeDocuments.h"

#include <QDialog>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;

namespace kartella {

class BoundList;
class EnterAsTab;
class FieldBinder;
class Recordset;

// The two dialogs of a related document, a row of tbl_Sub_Documents hanging on the
// selected document. Creating ("New Related Document", frmRelated) starts a new row and
// offers to make its file with the office programs or to attach an existing one; Editing
// ("Description of Related Document", frmRelDescr) shows the row of the selected related
// document. OK stores a new row under the document selected when the dialog opened (and
// refuses without one), an edited row under the document it has; Cancel and the close box
// drop it; Esc asks first when something was changed.
class RelatedDocumentDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Mode { Creating, Editing };

    explicit RelatedDocumentDialog(Mode mode, QWidget* parent = nullptr);
    ~RelatedDocumentDialog() override;

    // Writes path into the Location box, as a file dropped on the related list does.
    void setLocation(const QString& path);
    bool relatedChanged() const { return m_changed; }
    // The related document edited, or the document a new one would hang on, is no longer in
    // the register (told on loading); exec() then shows nothing.
    bool relatedGone() const { return m_gone; }
    Mode mode() const { return m_mode; }

    int exec() override;

public Q_SLOTS:
    void createWithWord();
    void createWithExcel();
    void createWithPowerPoint();
    void addExistingFile();
    void save();
    void cancel();

protected:
    void done(int result) override;

private:
    struct CreatingButton
    {
        QString title;
        QString message;
        void (*create)(const OfficeDocumentRequest&, const std::function<void(const QString&)>&);
    };

    void buildWidgets();
    QWidget* buildCreateWith();
    void bindControls();
    void load();
    void createDocument(const CreatingButton& button);
    bool askOnEscape();

    Mode m_mode;
    // The document a new row hangs on; 0 when none was selected.
    qint32 m_parentId = 0;
    Recordset* m_related = nullptr;
    Recordset* m_contacts = nullptr;
    bool m_changed = false;
    bool m_gone = false;

    QTabWidget* m_tabs = nullptr;
    QLineEdit* m_parent = nullptr;
    QPlainTextEdit* m_description = nullptr;
    QLineEdit* m_date = nullptr;
    QLineEdit* m_location = nullptr;
    // The keys of the row, in boxes nobody sees.
    QLineEdit* m_documentId = nullptr;
    QLineEdit* m_relatedId = nullptr;
    BoundList* m_contact = nullptr;
    FieldBinder* m_binder = nullptr;
    EnterAsTab* m_keys = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
};

} // namespace kartella
