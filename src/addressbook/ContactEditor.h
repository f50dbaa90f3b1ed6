#pragma once

#include <QDialog>
#include <QList>
#include <QPair>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTableView;

namespace kartella {

class EnterAsTab;
class FieldBinder;
class Recordset;
class RecordsetModel;

// frmCorr, "New Contact": enters one new contact with its phones and web pages. It starts on
// a new, unsaved row of the contacts. A phone or web page needs its contact's key, which
// exists only once the contact is stored: so Add Phone and Add URL store the contact first
// and then open a new line in their grid. The rows of either grid are stored as the user
// leaves them, and when the dialog closes: Cancel keeps them and drops only the contact's
// own typing since it was last stored. OK stores everything.
class ContactEditor : public QDialog
{
    Q_OBJECT

public:
    explicit ContactEditor(QWidget* parent = nullptr);
    ~ContactEditor() override;

    // The captions of a contact's fields, its phones' and its web pages', paired with the
    // fields' names, as a row another user changed lists them.
    static QList<QPair<QString, QString>> fieldCaptions();

public Q_SLOTS:
    void addPhone();
    void addUrl();
    void save();
    void cancel();

protected:
    void done(int result) override;

private:
    void buildWidgets();
    QWidget* buildContactTab();
    void load();
    void addContactRow();
    void saveContactRow();
    void showHomePages();
    void onGridEnter(QTableView* grid, RecordsetModel* model);
    // Writes the rows typed into the grids; a web page row started by Add URL and never
    // typed into is dropped instead.
    void storeGridRows();
    void dropUntypedHomePage();
    bool askBeforeClosing();

    Recordset* m_contact = nullptr;
    Recordset* m_homePages = nullptr;
    QString m_homePagesConnection;
    RecordsetModel* m_phoneModel = nullptr;
    RecordsetModel* m_homePageModel = nullptr;
    FieldBinder* m_binder = nullptr;
    EnterAsTab* m_keys = nullptr;
    bool m_edited = false;

    QTabWidget* m_tabs = nullptr;
    QTableView* m_phoneGrid = nullptr;
    QTableView* m_homePageGrid = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;

    // The row's key is in a box nobody sees; it goes into new web page rows.
    QLineEdit* m_contactId = nullptr;
    QLineEdit* m_companyName = nullptr;
    QLineEdit* m_title = nullptr;
    QLineEdit* m_dear = nullptr;
    QLineEdit* m_fullName = nullptr;
    QLineEdit* m_address = nullptr;
    QLineEdit* m_city = nullptr;
    QLineEdit* m_country = nullptr;
    QLineEdit* m_state = nullptr;
    QLineEdit* m_postalCode = nullptr;
    QLineEdit* m_email = nullptr;
    QPlainTextEdit* m_notes = nullptr;
};

} // namespace kartella
