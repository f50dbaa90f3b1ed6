#include "addressbook/AddressBookWindow.h"

#include "addressbook/ContactEditor.h"
#include "addressbook/ContactLine.h"
#include "addressbook/ContactQueries.h"
#include "addressbook/Dialing.h"
#include "base/Error.h"
#include "history/TrashCommands.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/WriteContext.h"
#include "support/BusyCursor.h"
#include "support/ChangedRowPrompt.h"
#include "support/DialogParts.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>

namespace kartella {

namespace {

constexpr int TagRole = Qt::UserRole;
// The positions of the list's two fields in the contact recordset.
constexpr int CompanyNameColumn = 1;
constexpr int FullNameColumn = 4;

// The folder of the office programs, as the data error message names it; empty when
// LibreOffice isn't installed.
QString officeProgramFolder()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (program.isEmpty())
        return {};
    const QFileInfo info(program);
    const QString target = info.canonicalFilePath();
    return QDir::toNativeSeparators(QFileInfo(target.isEmpty() ? program : target).absolutePath());
}

// The text of column 3 of a grid's current row: the phone number or the web address.
QString currentCellText(const RecordsetModel* model)
{
    const QTableView* view = model->view();
    const QModelIndex current = view ? view->currentIndex() : QModelIndex();
    int row = current.row();
    if (!current.isValid() && model->recordset())
        row = model->recordset()->currentRow();
    if (row < 0 || row >= model->rowCount() || model->isNewRowLine(row))
        return {};
    return model->data(model->index(row, 3)).toString();
}

} // namespace

AddressBookWindow::AddressBookWindow(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCoresp"));
    setWindowTitle(tr("Address Book"));
    setModal(true);
    m_contacts = new Recordset(this);
    m_contacts->setObjectName(QStringLiteral("Adodc1"));
    m_phones = new Recordset(this);
    m_homePages = new Recordset(this);
    buildWidgets();
    load();
}

AddressBookWindow::~AddressBookWindow()
{
    // Closing the window commits a grid cell still being edited, after this part of the
    // window is gone: its edits must reach no member any more.
    m_homePageModel->disconnect(this);
}

void AddressBookWindow::load()
{
    const BusyCursor busy;
    const QString provider = getRegValue(QStringLiteral("Provider"));
    const QString location = getRegValue(QStringLiteral("DbLocation"));
    try {
        m_connection.setCursorLocation(CursorLocationEnum::UseClient);
        m_connection.open(shapeConnectionString(provider, location));
        // Edits of the fields wait for the answer to the save question.
        m_contacts->open(ContactQueries::allContacts(), plainConnectionString(provider, location),
            CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
    } catch (const Error& error) {
        showDataError(QString::number(error.number()), error.description());
        return;
    }
    fillContactList();
    bindContactChildren();
    showItemCount();
}

void AddressBookWindow::showDataError(const QString& number, const QString& description)
{
    msgBox(number + QStringLiteral("  ") + description + QStringLiteral("  ")
        + QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) + QStringLiteral("   ")
        + officeProgramFolder());
}

void AddressBookWindow::fillContactList()
{
    m_filling = true;
    m_list->clear();
    QList<QTreeWidgetItem*> lines;
    const int rows = m_contacts->isOpen() ? m_contacts->recordCount() : 0;
    lines.reserve(rows);
    for (int row = 0; row < rows; ++row) {
        auto* item = new ContactLine(QStringList {ContactQueries::lineText(
            m_contacts->rowValue(row, FullNameColumn), m_contacts->rowValue(row, CompanyNameColumn))});
        item->setData(0, TagRole, row + 1);
        lines.append(item);
    }
    m_list->addTopLevelItems(lines);
    if (m_sorted)
        m_list->sortItems(0, static_cast<Qt::SortOrder>(m_sortOrder));
    if (rows > 0) {
        m_contacts->moveFirst();
        // The line of the row the fields show.
        for (QTreeWidgetItem* item : std::as_const(lines)) {
            if (item->data(0, TagRole).toInt() == 1) {
                m_list->setCurrentItem(item);
                break;
            }
        }
    }
    m_filling = false;
}

void AddressBookWindow::bindContactChildren()
{
    const QString id = m_contactId->text();
    try {
        m_phones->close();
        m_homePages->close();
        m_phones->open(
            ContactQueries::phonesOf(id), m_connection, CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        m_homePages->open(
            ContactQueries::homePagesOf(id), m_connection, CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        m_phoneModel->setRecordset(m_phones->chapter(QStringLiteral("ChildCMD")));
        m_homePageModel->setRecordset(m_homePages->chapter(QStringLiteral("ChildCMD")));
    } catch (const Error& error) {
        msgBox(error.description());
    }
    onPhoneRowChanged();
    onHomePageRowChanged();
    clearFlags();
}

void AddressBookWindow::clearFlags()
{
    m_contactChanged = false;
    m_phonesChanged = false;
    m_homePagesChanged = false;
}

void AddressBookWindow::showItemCount()
{
    m_status->showMessage(tr("%1 item(s)").arg(m_list->topLevelItemCount()));
}

void AddressBookWindow::filterContacts(int index)
{
    if ((m_contactChanged || m_phonesChanged || m_homePagesChanged) && !askToSave())
        return;
    const BusyCursor busy;
    try {
        m_contacts->close();
        m_contacts->open(ContactQueries::filter(index), plainConnectionString(), CursorTypeEnum::Static,
            LockTypeEnum::BatchOptimistic);
    } catch (const Error& error) {
        showDataError(QString::number(error.number()), error.description());
    }
    m_filling = true;
    m_list->clear();
    m_filling = false;
    // No match: the list stays empty, the grids and the status text as they were.
    if (!m_contacts->isOpen() || m_contacts->recordCount() == 0)
        return;
    fillContactList();
    bindContactChildren();
    showItemCount();
}

void AddressBookWindow::onLineChosen(QTreeWidgetItem* item)
{
    if (m_filling || !item)
        return;
    // On Cancel the fields and grids stay on the earlier contact, and so does the list's mark
    // once the click is over: a click on the line asks again.
    if ((m_contactChanged || m_phonesChanged || m_homePagesChanged) && !askToSave()) {
        QTimer::singleShot(0, this, &AddressBookWindow::markShownLine);
        return;
    }
    try {
        m_contacts->moveFirst();
        m_contacts->move(item->data(0, TagRole).toInt() - 1);
    } catch (const Error& error) {
        msgBox(error.description());
    }
    bindContactChildren();
}

void AddressBookWindow::markShownLine()
{
    const int position = m_contacts->isOpen() ? m_contacts->currentRow() + 1 : 0;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* line = m_list->topLevelItem(i);
        if (line->data(0, TagRole).toInt() == position) {
            m_filling = true;
            m_list->setCurrentItem(line);
            m_filling = false;
            return;
        }
    }
}

bool AddressBookWindow::askToSave()
{
    const int answer = msgBox(tr("Do you want to save changes you made to Contact?"),
        MsgBoxStyle::YesNoCancel | MsgBoxStyle::Question, tr("Saving Contact Changes"));
    if (answer == MsgBoxResult::Cancel)
        return false;
    if (answer == MsgBoxResult::Yes) {
        // A contact another user changed meanwhile and not stored over stays shown.
        if (!saveChanges())
            return false;
    } else {
        // No: the typed changes are dropped.
        try {
            m_contacts->cancelBatch();
        } catch (const Error& error) {
            msgBox(error.description());
        }
    }
    clearFlags();
    return true;
}

bool AddressBookWindow::saveChanges()
{
    // A refused save is told and leaves the stored row as it was.
    try {
        const auto store = [this](Recordset& rows, int affect, bool& changed) {
            if (!changed)
                return true;
            if (!storeResolvingChanges(
                    rows, affect, tr("contact"), ContactEditor::fieldCaptions(), windowTitle())) {
                // Reloaded, what is shown is what is stored; else the change still waits.
                changed = rows.hasPendingChanges();
                return false;
            }
            return true;
        };
        if (!store(*m_contacts, AffectEnum::Current, m_contactChanged))
            return false;
        if (m_phones->isOpen() && !store(*m_phones, AffectEnum::All, m_phonesChanged))
            return false;
        if (m_homePages->isOpen() && !store(*m_homePages, AffectEnum::All, m_homePagesChanged))
            return false;
    } catch (const Error& error) {
        if (!rowWasDeleted(error)) {
            msgBox(error.description());
            return true;
        }
        reportDeletedRow(tr("contact"), windowTitle());
        // Nothing of the gone contact can be stored: its pending changes are dropped.
        try {
            m_contacts->cancelBatch();
        } catch (const Error&) { }
    }
    return true;
}

void AddressBookWindow::onHeaderClicked(int column)
{
    // The one column is the sort key from the start, ascending: each click flips the order.
    Q_UNUSED(column);
    m_sortOrder = m_sortOrder == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    m_sorted = true;
    m_list->header()->setSortIndicatorShown(true);
    m_list->header()->setSortIndicator(0, static_cast<Qt::SortOrder>(m_sortOrder));
    m_list->sortItems(0, static_cast<Qt::SortOrder>(m_sortOrder));
    if (QTreeWidgetItem* current = m_list->currentItem())
        m_list->scrollToItem(current);
}

void AddressBookWindow::onPhoneRowChanged()
{
    if (m_phoneModel->columnCount() != 4)
        return;
    m_dialNumber->setText(currentCellText(m_phoneModel));
    m_dial->setEnabled(!m_dialNumber->text().isEmpty());
}

void AddressBookWindow::onHomePageRowChanged()
{
    if (m_homePageModel->columnCount() != 4)
        return;
    m_url->setText(currentCellText(m_homePageModel));
    m_browse->setEnabled(!m_url->text().isEmpty());
}

void AddressBookWindow::newContact()
{
    ContactEditor editor(this);
    editor.exec();
}

void AddressBookWindow::deleteContact()
{
    const CommandScope command(QStringLiteral("Delete"));
    // The contact goes with its phones and web pages; its documents keep its key.
    try {
        if (!m_contacts->isOpen() || m_contacts->eof() || m_contacts->bof())
            return;
        const QString name = ContactQueries::lineText(m_contacts->collect(QStringLiteral("FullName")),
            m_contacts->collect(QStringLiteral("CompanyName")));
        if (msgBox(tr("Delete the contact %1 with its phones and web pages?").arg(name),
                MsgBoxStyle::YesNo | MsgBoxStyle::Question | MsgBoxStyle::DefaultButton2,
                tr("Confirm Deletion"))
            != MsgBoxResult::Yes)
            return;
        Connection connection(plainConnectionString());
        connection.open();
        if (Trash::inRegister(connection)) {
            if (!moveToRegisterTrash(connection, TrashKind::Contact,
                    m_contacts->collect(QStringLiteral("ContactID")).toLongLong()))
                return;
        } else {
            m_contacts->deleteRecord(AffectEnum::Current);
            m_contacts->updateBatch(AffectEnum::All);
            // The grids hold the rows of the contact the fields showed.
            for (Recordset* children : {m_phoneModel->recordset(), m_homePageModel->recordset()}) {
                while (children && children->isOpen() && children->recordCount() > 0) {
                    children->moveFirst();
                    children->deleteRecord(AffectEnum::Current);
                }
            }
        }
        m_contacts->requery();
    } catch (const Error& error) {
        msgBox(error.description());
        try {
            m_contacts->cancelBatch();
        } catch (const Error&) { }
    }
    fillContactList();
    bindContactChildren();
    showItemCount();
}

void AddressBookWindow::dial()
{
    dialNumber(m_dialNumber->text());
}

void AddressBookWindow::browseUrl()
{
    openUrlShortcut(m_url->text());
}

void AddressBookWindow::mailTo()
{
    sendMailTo(m_email->text());
}

void AddressBookWindow::done(int result)
{
    if (m_contactChanged) {
        // Cancel closes the window too, without saving.
        const int answer = msgBox(tr("Do you want to save changes you made to Contact?"),
            MsgBoxStyle::YesNoCancel | MsgBoxStyle::Question, tr("Saving Contact Changes"));
        if (answer == MsgBoxResult::Yes && !saveChanges())
            return;
        clearFlags();
    }
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    QDialog::done(result);
}

} // namespace kartella
