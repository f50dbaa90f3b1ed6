#include "addressbook/AddressBookWindow.h"

#include "addressbook/ContactEditor.h"
#include "addressbook/ContactQueries.h"
#include "addressbook/Dialing.h"
#include "base/Error.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "store/Store.h"
#include "store/engine/Recordset.h"
#include "support/BusyCursor.h"
#include "support/DialogParts.h"
#include "support/EnterAsTab.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kartella {

namespace {

constexpr int TagRole = Qt::UserRole;
// The positions of the list's two fields in the contact recordset.
constexpr int CompanyNameColumn = 1;
constexpr int FullNameColumn = 4;

QLabel* makeLabel(const QString& caption, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(caption, parent);
    label->setBuddy(buddy);
    return label;
}

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
    setWindowTitle(QStringLiteral("Address Book"));
    setModal(true);
    m_contacts = new Recordset(this);
    m_contacts->setObjectName(QStringLiteral("Adodc1"));
    m_phones = new Recordset(this);
    m_homePages = new Recordset(this);
    buildWidgets();
    load();
}

AddressBookWindow::~AddressBookWindow() = default;

void AddressBookWindow::buildWidgets()
{
    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("lvwFullNames"));
    m_list->setAccessibleName(QStringLiteral("Contacts"));
    m_list->setColumnCount(1);
    m_list->setHeaderLabels({QStringLiteral("Contact")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionsClickable(true);
    connect(m_list, &QTreeWidget::currentItemChanged, this,
        [this](QTreeWidgetItem* current) { onLineChosen(current); });
    connect(m_list->header(), &QHeaderView::sectionClicked, this, &AddressBookWindow::onHeaderClicked);

    m_status = new QStatusBar(this);
    m_status->setObjectName(QStringLiteral("StatusBar1"));
    m_status->setSizeGripEnabled(false);

    auto* left = new QVBoxLayout;
    left->addWidget(buildFilter());
    left->addWidget(m_list, 1);
    auto* body = new QHBoxLayout;
    body->addLayout(left, 1);
    body->addWidget(buildFields(), 2);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildToolbar());
    layout->addLayout(body, 1);
    layout->addWidget(m_status);

    m_keys = new EnterAsTab(this);
    for (QLineEdit* box : {m_contactId, m_companyName, m_title, m_dear, m_fullName, m_city, m_state,
             m_postalCode, m_country, m_email})
        m_keys->watch(box);
    m_keys->watch(m_address);
    m_keys->watch(m_notes);
    m_keys->onEnter(m_dialNumber, [this] { dial(); });
    m_keys->onEnter(m_url, [this] { browseUrl(); });
    resize(900, 600);
}

QWidget* AddressBookWindow::buildToolbar()
{
    auto* toolbar = new QToolBar(this);
    toolbar->setObjectName(QStringLiteral("Toolbar1"));
    toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto command = [&](const char* key, const QString& text, const char* icon, const QKeySequence& keys,
                             void (AddressBookWindow::*slot)()) {
        auto* action = toolbar->addAction(QIcon::fromTheme(QLatin1String(icon)), text);
        action->setObjectName(QLatin1String(key));
        action->setShortcut(keys);
        action->setToolTip(
            text + QStringLiteral(" (") + keys.toString(QKeySequence::NativeText) + QStringLiteral(")"));
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    command("mnuNewContact", QStringLiteral("New Contact"), "contact-new", QKeySequence(Qt::CTRL | Qt::Key_N),
        &AddressBookWindow::newContact);
    command("mnuDelete", QStringLiteral("Delete Contact"), "edit-delete",
        QKeySequence(Qt::CTRL | Qt::Key_Delete), &AddressBookWindow::deleteContact);
    m_dial = command("mnuDial", QStringLiteral("Dial"), "call-start", QKeySequence(Qt::CTRL | Qt::Key_D),
        &AddressBookWindow::dial);
    m_dialNumber = new QLineEdit(toolbar);
    m_dialNumber->setObjectName(QStringLiteral("txtDial"));
    m_dialNumber->setToolTip(QStringLiteral("Dialing Number"));
    m_dialNumber->setAccessibleName(QStringLiteral("Dialing Number"));
    m_dialNumber->setFixedWidth(RecordsetModel::twipsToPixels(2000, this));
    toolbar->addWidget(m_dialNumber);
    m_browse = command("mnuInternet", QStringLiteral("Browse URL"), "internet-web-browser",
        QKeySequence(Qt::CTRL | Qt::Key_B), &AddressBookWindow::browseUrl);
    m_url = new QLineEdit(toolbar);
    m_url->setObjectName(QStringLiteral("txtURL"));
    m_url->setAccessibleName(QStringLiteral("Web address"));
    m_url->setMinimumWidth(RecordsetModel::twipsToPixels(3000, this));
    toolbar->addWidget(m_url);
    command("mnuEMail", QStringLiteral("Mail to"), "mail-send", QKeySequence(Qt::CTRL | Qt::Key_M),
        &AddressBookWindow::mailTo);
    // A number or an address is offered only once a grid line gives one.
    m_dial->setEnabled(false);
    m_browse->setEnabled(false);
    return toolbar;
}

QWidget* AddressBookWindow::buildFilter()
{
    auto* frame = new QGroupBox(QStringLiteral("Filter"), this);
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* layout = new QGridLayout(frame);
    layout->setSpacing(2);
    const auto addButton = [&](int index, const QString& caption) {
        auto* button = new QPushButton(caption, frame);
        button->setObjectName(QStringLiteral("Command2_") + QString::number(index));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, index] { filterContacts(index); });
        return button;
    };
    // "All" comes first in the tab order, then A to M and N to Z in two columns.
    QPushButton* all = addButton(ContactQueries::AllContacts, QStringLiteral("All"));
    layout->addWidget(all, 0, 0, 1, 2);
    QWidget* previous = all;
    for (int index = 0; index < ContactQueries::AllContacts; ++index) {
        QPushButton* button = addButton(index, QStringLiteral("&") + ContactQueries::filterLetter(index));
        button->setMaximumWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("WWWW")));
        layout->addWidget(button, 1 + index % 13, index / 13);
        setTabOrder(previous, button);
        previous = button;
    }
    return frame;
}

QWidget* AddressBookWindow::buildFields()
{
    auto* frame = new QGroupBox(this);
    frame->setObjectName(QStringLiteral("Frame2"));
    m_contactId = makeFieldBox(0, this);
    m_contactId->setVisible(false);
    m_companyName = makeFieldBox(1, this);
    m_title = makeFieldBox(2, this);
    m_dear = makeFieldBox(3, this);
    m_fullName = makeFieldBox(4, this);
    m_address = new QPlainTextEdit(frame);
    m_address->setObjectName(QStringLiteral("txtFields_5"));
    m_address->setFixedHeight(m_address->fontMetrics().lineSpacing() * 3 + 12);
    m_city = makeFieldBox(6, this);
    m_state = makeFieldBox(7, this);
    m_postalCode = makeFieldBox(8, this);
    m_country = makeFieldBox(9, this);
    m_email = makeFieldBox(10, this);
    m_notes = new QPlainTextEdit(frame);
    m_notes->setObjectName(QStringLiteral("txtFields_11"));
    m_notes->setAccessibleName(QStringLiteral("Notes"));
    m_notes->setFixedHeight(m_address->height());
    for (QLineEdit* box : {m_companyName, m_title, m_fullName, m_city})
        box->setMaxLength(50);

    m_phoneGrid = new QTableView(frame);
    m_phoneGrid->setObjectName(QStringLiteral("grdDataGrid"));
    m_phoneGrid->setAccessibleName(QStringLiteral("Phones"));
    m_homePageGrid = new QTableView(frame);
    m_homePageGrid->setObjectName(QStringLiteral("dgrHP"));
    m_phoneModel = new RecordsetModel(this);
    m_phoneModel->setAllowAddNew(true);
    m_phoneModel->attachView(m_phoneGrid);
    m_homePageModel = new RecordsetModel(this);
    m_homePageModel->setAllowAddNew(true);
    m_homePageModel->attachView(m_homePageGrid);
    // The keys are hidden; the settings last across the contacts.
    const std::array<std::pair<RecordsetModel*, int>, 2> widths
        = {std::pair {m_phoneModel, 3000}, std::pair {m_homePageModel, 5000}};
    for (const auto& [model, lastWidth] : widths) {
        model->setColumnHidden(0, true);
        model->setColumnHidden(1, true);
        model->setColumnWidth(2, 2000);
        model->setColumnWidth(3, lastWidth);
    }
    connect(m_phoneGrid->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &AddressBookWindow::onPhoneRowChanged);
    connect(m_homePageGrid->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &AddressBookWindow::onHomePageRowChanged);
    // Web page edits make the save question come up; phone edits don't.
    connect(m_homePageModel, &RecordsetModel::edited, this, [this] {
        m_homePagesChanged = true;
        m_phonesChanged = true;
    });

    auto* layout = new QGridLayout(frame);
    const std::array<std::pair<QString, QWidget*>, 10> labelled = {
        std::pair {QStringLiteral("Company Name:"), static_cast<QWidget*>(m_companyName)},
        std::pair {QStringLiteral("Contact Title:"), static_cast<QWidget*>(m_title)},
        std::pair {QStringLiteral("Dear:"), static_cast<QWidget*>(m_dear)},
        std::pair {QStringLiteral("Contact Name:"), static_cast<QWidget*>(m_fullName)},
        std::pair {QStringLiteral("Street:"), static_cast<QWidget*>(m_address)},
        std::pair {QStringLiteral("City:"), static_cast<QWidget*>(m_city)},
        std::pair {QStringLiteral("State/Province:"), static_cast<QWidget*>(m_state)},
        std::pair {QStringLiteral("Postal/Zip code:"), static_cast<QWidget*>(m_postalCode)},
        std::pair {QStringLiteral("Country:"), static_cast<QWidget*>(m_country)},
        std::pair {QStringLiteral("EMail Address:"), static_cast<QWidget*>(m_email)},
    };
    int line = 0;
    for (const auto& [caption, box] : labelled) {
        auto* label = makeLabel(caption, box, frame);
        label->setObjectName(QStringLiteral("lblLabels_") + QString::number(line + 1));
        layout->addWidget(label, line, 0);
        layout->addWidget(box, line++, 1);
    }
    layout->addWidget(makeLabel(QStringLiteral("Notes:"), m_notes, frame), line, 0);
    layout->addWidget(m_notes, line++, 1);
    auto* phones = makeLabel(QStringLiteral("Phones:"), m_phoneGrid, frame);
    phones->setObjectName(QStringLiteral("Label1"));
    layout->addWidget(phones, line++, 0, 1, 2);
    layout->setRowStretch(line, 1);
    layout->addWidget(m_phoneGrid, line++, 0, 1, 2);
    layout->addWidget(makeLabel(QStringLiteral("Web Pages URL's:"), m_homePageGrid, frame), line++, 0, 1, 2);
    layout->setRowStretch(line, 1);
    layout->addWidget(m_homePageGrid, line++, 0, 1, 2);

    m_binder = new FieldBinder(m_contacts, this);
    m_binder->bind(m_contactId, QStringLiteral("ContactID"));
    m_binder->bind(m_companyName, QStringLiteral("CompanyName"));
    m_binder->bind(m_title, QStringLiteral("Title"));
    m_binder->bind(m_dear, QStringLiteral("Dear"));
    m_binder->bind(m_fullName, QStringLiteral("FullName"));
    m_binder->bind(m_address, QStringLiteral("Address"));
    m_binder->bind(m_city, QStringLiteral("City"));
    m_binder->bind(m_state, QStringLiteral("StateOrProvince"));
    m_binder->bind(m_postalCode, QStringLiteral("PostalCode"));
    m_binder->bind(m_country, QStringLiteral("Country"));
    m_binder->bind(m_email, QStringLiteral("EmailName"));
    m_binder->bind(m_notes, QStringLiteral("Notes"));
    connect(m_binder, &FieldBinder::changed, this, [this] { m_contactChanged = true; });
    return frame;
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
        auto* item = new QTreeWidgetItem({ContactQueries::lineText(
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
    m_status->showMessage(QString::number(m_list->topLevelItemCount()) + QStringLiteral(" item(s)"));
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
    // On Cancel the fields and grids stay on the earlier contact, though the list marks this line.
    if ((m_contactChanged || m_phonesChanged || m_homePagesChanged) && !askToSave())
        return;
    try {
        m_contacts->moveFirst();
        m_contacts->move(item->data(0, TagRole).toInt() - 1);
    } catch (const Error& error) {
        msgBox(error.description());
    }
    bindContactChildren();
}

bool AddressBookWindow::askToSave()
{
    const int answer = msgBox(QStringLiteral("Do you want to save changes you made to Contact?"),
        MsgBoxStyle::YesNoCancel | MsgBoxStyle::Question, QStringLiteral("Saving Contact Changes"));
    if (answer == MsgBoxResult::Cancel)
        return false;
    if (answer == MsgBoxResult::Yes) {
        saveChanges();
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

void AddressBookWindow::saveChanges()
{
    // A refused save is told and leaves the stored row as it was.
    try {
        if (m_contactChanged)
            m_contacts->updateBatch(AffectEnum::Current);
        if (m_phonesChanged && m_phones->isOpen())
            m_phones->updateBatch(AffectEnum::All);
        if (m_homePagesChanged && m_homePages->isOpen())
            m_homePages->updateBatch(AffectEnum::All);
    } catch (const Error& error) {
        if (!rowWasDeleted(error)) {
            msgBox(error.description());
            return;
        }
        reportDeletedRow(QStringLiteral("contact"), windowTitle());
        // Nothing of the gone contact can be stored: its pending changes are dropped.
        try {
            m_contacts->cancelBatch();
        } catch (const Error&) { }
    }
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
    // No question; the contact's phones, web pages and documents stay where they are.
    try {
        if (!m_contacts->isOpen() || m_contacts->eof() || m_contacts->bof())
            return;
        m_contacts->deleteRecord(AffectEnum::Current);
        m_contacts->updateBatch(AffectEnum::All);
        m_contacts->requery();
    } catch (const Error& error) {
        msgBox(error.description());
        try {
            m_contacts->cancelBatch();
        } catch (const Error&) { }
    }
    fillContactList();
    m_contactChanged = false;
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
        const int answer = msgBox(QStringLiteral("Do you want to save changes you made to Contact?"),
            MsgBoxStyle::YesNoCancel | MsgBoxStyle::Question, QStringLiteral("Saving Contact Changes"));
        if (answer == MsgBoxResult::Yes)
            saveChanges();
        clearFlags();
    }
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    QDialog::done(result);
}

} // namespace kartella
