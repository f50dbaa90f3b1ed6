#pragma once

#include "store/engine/Connection.h"

#include <QDialog>

class QAction;
class QLineEdit;
class QPlainTextEdit;
class QStatusBar;
class QTableView;
class QTreeWidget;
class QTreeWidgetItem;

namespace kartella {

class EnterAsTab;
class FieldBinder;
class LimitedTextEdit;
class Recordset;
class RecordsetModel;

// frmCoresp, "Address Book": the contacts with their phones and web pages. The fields show
// the contact recordset's current row; the list has one line per row, each remembering its
// row's position, so that a click on a line (sorted or not) moves the recordset there. The
// letter buttons filter the contacts by full name; the two grids show the phones and web
// pages of the current contact, opened again for each contact. Edits of the fields stay
// pending until the user answers the save question (on a line change, a filter or closing).
// The toolbar dials the number of the phone line chosen, opens the web page chosen and
// starts a mail to the contact's address. The widgets are built in AddressBookLayout.cpp.
class AddressBookWindow : public QDialog
{
    Q_OBJECT

public:
    explicit AddressBookWindow(QWidget* parent = nullptr);
    ~AddressBookWindow() override;

public Q_SLOTS:
    void filterContacts(int index);
    void newContact();
    void deleteContact();
    void dial();
    void browseUrl();
    void mailTo();

protected:
    void done(int result) override;

private:
    void buildWidgets();
    QWidget* buildToolbar();
    QWidget* buildFilter();
    QWidget* buildFields();
    void load();
    void fillContactList();
    void bindContactChildren();
    void onLineChosen(QTreeWidgetItem* item);
    // Marks the line of the contact the fields show again, after a line change was cancelled.
    void markShownLine();
    // The name boxes take a stored value whole, however long; their limit holds for typing.
    // Before a row shows, no box may cut it; after, each box's limit is its own or the
    // length of what it shows.
    void liftTypingLimits();
    void fitTypingLimits();
    void onHeaderClicked(int column);
    void onPhoneRowChanged();
    void onHomePageRowChanged();
    // Asks whether to save the changes of the current contact; false on Cancel.
    bool askToSave();
    // False when a contact another user changed meanwhile was not stored over: the window
    // stays on it.
    bool saveChanges();
    void clearFlags();
    void showItemCount();
    void showDataError(const QString& number, const QString& description);

    Connection m_connection;
    Recordset* m_contacts = nullptr;
    Recordset* m_phones = nullptr;
    Recordset* m_homePages = nullptr;
    RecordsetModel* m_phoneModel = nullptr;
    RecordsetModel* m_homePageModel = nullptr;
    FieldBinder* m_binder = nullptr;
    EnterAsTab* m_keys = nullptr;
    bool m_contactChanged = false;
    bool m_phonesChanged = false;
    bool m_homePagesChanged = false;
    // The list is being filled or marked by the program, not by the user.
    bool m_filling = false;
    // The list's order; it is sorted once its heading was clicked.
    int m_sortOrder = Qt::AscendingOrder;
    bool m_sorted = false;

    QTreeWidget* m_list = nullptr;
    QTableView* m_phoneGrid = nullptr;
    QTableView* m_homePageGrid = nullptr;
    QStatusBar* m_status = nullptr;
    QLineEdit* m_dialNumber = nullptr;
    QLineEdit* m_url = nullptr;
    QAction* m_dial = nullptr;
    QAction* m_browse = nullptr;
    // Ctrl+Delete where the contact list has the focus.
    QAction* m_deleteKey = nullptr;

    // The row's key is in a box nobody sees; it chooses the phones and web pages.
    QLineEdit* m_contactId = nullptr;
    QLineEdit* m_companyName = nullptr;
    QLineEdit* m_title = nullptr;
    QLineEdit* m_dear = nullptr;
    QLineEdit* m_fullName = nullptr;
    LimitedTextEdit* m_address = nullptr;
    QLineEdit* m_city = nullptr;
    QLineEdit* m_state = nullptr;
    QLineEdit* m_postalCode = nullptr;
    QLineEdit* m_country = nullptr;
    QLineEdit* m_email = nullptr;
    QPlainTextEdit* m_notes = nullptr;
};

} // namespace kartella
