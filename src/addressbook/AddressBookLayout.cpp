// The widgets of the address book window: toolbar, filter buttons, contact list, fields and
// grids, with their keys and tab order.

#include "addressbook/AddressBookWindow.h"
#include "addressbook/ContactQueries.h"
#include "addressbook/LimitedTextEdit.h"
#include "support/ColumnWidths.h"
#include "support/DialogParts.h"
#include "support/EnterAsTab.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"

#include <QAction>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>
#include <tuple>

namespace kartella {

namespace {

// The widths of the columns the boxes show: what may be typed into them.
constexpr int NameWidth = 50;
constexpr int StreetWidth = 255;
// A line box's own maximum: no limit.
constexpr int NoLimit = 32767;

QLabel* makeLabel(const QString& caption, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(caption, parent);
    label->setBuddy(buddy);
    return label;
}

} // namespace

void AddressBookWindow::buildWidgets()
{
    // Created in the order of the tab chain: "All" and the letters come first.
    QWidget* filter = buildFilter();

    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("lvwFullNames"));
    m_list->setAccessibleName(tr("Contacts"));
    m_list->setColumnCount(1);
    m_list->setHeaderLabels({tr("Contact")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionsClickable(true);
    ColumnWidths::attach(m_list->header(), QStringLiteral("AddressBookContactsColumns"));
    connect(m_list, &QTreeWidget::currentItemChanged, this,
        [this](QTreeWidgetItem* current) { onLineChosen(current); });
    connect(m_list->header(), &QHeaderView::sectionClicked, this, &AddressBookWindow::onHeaderClicked);
    // Ctrl+Delete deletes a contact only from the list; in a box it deletes a word.
    m_deleteKey = new QAction(tr("Delete Contact"), m_list);
    m_deleteKey->setObjectName(QStringLiteral("deleteContactKey"));
    m_deleteKey->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Delete));
    m_deleteKey->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_list->addAction(m_deleteKey);
    connect(m_deleteKey, &QAction::triggered, this, &AddressBookWindow::deleteContact);

    QWidget* fields = buildFields();
    QWidget* toolbar = buildToolbar();

    m_status = new QStatusBar(this);
    m_status->setObjectName(QStringLiteral("StatusBar1"));
    m_status->setSizeGripEnabled(false);

    auto* left = new QVBoxLayout;
    left->addWidget(filter);
    left->addWidget(m_list, 1);
    auto* body = new QHBoxLayout;
    body->addLayout(left, 1);
    body->addWidget(fields, 2);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(toolbar);
    layout->addLayout(body, 1);
    layout->addWidget(m_status);

    QWidget* previous = findChild<QPushButton*>(QStringLiteral("Command2_25"));
    for (QWidget* next : std::initializer_list<QWidget*> {m_list, m_companyName, m_title, m_dear, m_fullName,
             m_address, m_city, m_state, m_postalCode, m_country, m_email, m_notes, m_phoneGrid,
             m_homePageGrid, m_dialNumber, m_url}) {
        setTabOrder(previous, next);
        previous = next;
    }

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
    command("mnuNewContact", tr("New Contact"), "contact-new", QKeySequence(Qt::CTRL | Qt::Key_N),
        &AddressBookWindow::newContact);
    QAction* remove = command("mnuDelete", tr("Delete Contact"), "edit-delete",
        QKeySequence(Qt::CTRL | Qt::Key_Delete), &AddressBookWindow::deleteContact);
    // The key belongs to the list (m_deleteKey); the tool tip still names it.
    remove->setShortcut(QKeySequence());
    m_dial = command(
        "mnuDial", tr("Dial"), "call-start", QKeySequence(Qt::CTRL | Qt::Key_D), &AddressBookWindow::dial);
    m_dialNumber = new QLineEdit(toolbar);
    m_dialNumber->setObjectName(QStringLiteral("txtDial"));
    m_dialNumber->setToolTip(tr("Dialing Number"));
    m_dialNumber->setAccessibleName(tr("Dialing Number"));
    m_dialNumber->setFixedWidth(RecordsetModel::twipsToPixels(2000, this));
    toolbar->addWidget(m_dialNumber);
    m_browse = command("mnuInternet", tr("Browse URL"), "internet-web-browser",
        QKeySequence(Qt::CTRL | Qt::Key_B), &AddressBookWindow::browseUrl);
    m_url = new QLineEdit(toolbar);
    m_url->setObjectName(QStringLiteral("txtURL"));
    m_url->setAccessibleName(tr("Web address"));
    m_url->setFixedWidth(RecordsetModel::twipsToPixels(5000, this));
    toolbar->addWidget(m_url);
    command("mnuEMail", tr("Mail to"), "mail-send", QKeySequence(Qt::CTRL | Qt::Key_M),
        &AddressBookWindow::mailTo);
    // A number or an address is offered only once a grid line gives one.
    m_dial->setEnabled(false);
    m_browse->setEnabled(false);
    return toolbar;
}

QWidget* AddressBookWindow::buildFilter()
{
    auto* frame = new QGroupBox(tr("Filter"), this);
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
    // "All" comes first in the tab order and has the focus when the window opens, then A to
    // M and N to Z in two columns.
    QPushButton* all = addButton(ContactQueries::AllContacts, tr("All"));
    layout->addWidget(all, 0, 0, 1, 2);
    all->setFocus(Qt::OtherFocusReason);
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
    m_address = new LimitedTextEdit(frame);
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
    // Tab leaves a multi-line box as it leaves any other.
    m_address->setTabChangesFocus(true);
    m_notes->setTabChangesFocus(true);

    m_phoneGrid = new QTableView(frame);
    m_phoneGrid->setObjectName(QStringLiteral("grdDataGrid"));
    m_phoneGrid->setAccessibleName(tr("Phones"));
    m_homePageGrid = new QTableView(frame);
    m_homePageGrid->setObjectName(QStringLiteral("dgrHP"));
    m_phoneModel = new RecordsetModel(this);
    m_phoneModel->setAllowAddNew(true);
    m_phoneModel->setRowName(tr("phone"));
    m_phoneModel->attachView(m_phoneGrid);
    m_homePageModel = new RecordsetModel(this);
    m_homePageModel->setAllowAddNew(true);
    m_homePageModel->setRowName(tr("web page"));
    m_homePageModel->attachView(m_homePageGrid);
    // The grids head their columns with the fields' names, in the interface's language.
    m_phoneModel->setColumnCaption(2, tr("PhoneName"));
    m_phoneModel->setColumnCaption(3, tr("PhoneNumber"));
    m_homePageModel->setColumnCaption(2, tr("Description"));
    m_homePageModel->setColumnCaption(3, tr("HomeWWW"));
    // The keys are hidden; the settings last across the contacts.
    const std::array<std::pair<RecordsetModel*, int>, 2> widths
        = {std::pair {m_phoneModel, 3000}, std::pair {m_homePageModel, 5000}};
    for (const auto& [model, lastWidth] : widths) {
        model->setColumnHidden(0, true);
        model->setColumnHidden(1, true);
        model->setColumnWidth(2, 2000);
        model->setColumnWidth(3, lastWidth);
    }
    // The user's widths, kept across runs, come after the grids' own at every new contact.
    const std::array<std::tuple<QTableView*, RecordsetModel*, QString>, 2> remembered
        = {std::tuple {m_phoneGrid, m_phoneModel, QStringLiteral("AddressBookPhonesColumns")},
            std::tuple {m_homePageGrid, m_homePageModel, QStringLiteral("AddressBookWebPagesColumns")}};
    for (const auto& [grid, model, optionName] : remembered) {
        ColumnWidths* widths = ColumnWidths::attach(grid->horizontalHeader(), optionName);
        connect(model, &QAbstractItemModel::modelReset, widths, &ColumnWidths::apply);
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
        std::pair {tr("Company Name:"), static_cast<QWidget*>(m_companyName)},
        std::pair {tr("Contact Title:"), static_cast<QWidget*>(m_title)},
        std::pair {tr("Dear:"), static_cast<QWidget*>(m_dear)},
        std::pair {tr("Contact Name:"), static_cast<QWidget*>(m_fullName)},
        std::pair {tr("Street:"), static_cast<QWidget*>(m_address)},
        std::pair {tr("City:"), static_cast<QWidget*>(m_city)},
        std::pair {tr("State/Province:"), static_cast<QWidget*>(m_state)},
        std::pair {tr("Postal/Zip code:"), static_cast<QWidget*>(m_postalCode)},
        std::pair {tr("Country:"), static_cast<QWidget*>(m_country)},
        std::pair {tr("EMail Address:"), static_cast<QWidget*>(m_email)},
    };
    int line = 0;
    for (const auto& [caption, box] : labelled) {
        auto* label = makeLabel(caption, box, frame);
        label->setObjectName(QStringLiteral("lblLabels_") + QString::number(line + 1));
        layout->addWidget(label, line, 0);
        layout->addWidget(box, line++, 1);
    }
    // The notes have no label of their own; the box's accessible name says what it is.
    layout->addWidget(m_notes, line++, 0, 1, 2);
    auto* phones = makeLabel(tr("Phones:"), m_phoneGrid, frame);
    phones->setObjectName(QStringLiteral("Label1"));
    layout->addWidget(phones, line++, 0, 1, 2);
    layout->setRowStretch(line, 1);
    layout->addWidget(m_phoneGrid, line++, 0, 1, 2);
    layout->addWidget(makeLabel(tr("Web Pages URL's:"), m_homePageGrid, frame), line++, 0, 1, 2);
    layout->setRowStretch(line, 1);
    layout->addWidget(m_homePageGrid, line++, 0, 1, 2);

    // Before the binder, so that a box's limit is lifted before a row shows in it.
    connect(m_contacts, &Recordset::moveComplete, this, &AddressBookWindow::liftTypingLimits);
    connect(m_contacts, &Recordset::recordsetChangeComplete, this, &AddressBookWindow::liftTypingLimits);
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
    connect(m_contacts, &Recordset::moveComplete, this, &AddressBookWindow::fitTypingLimits);
    connect(m_contacts, &Recordset::recordsetChangeComplete, this, &AddressBookWindow::fitTypingLimits);
    fitTypingLimits();
    return frame;
}

void AddressBookWindow::liftTypingLimits()
{
    for (QLineEdit* box : {m_companyName, m_title, m_fullName, m_city}) {
        if (box->maxLength() != NoLimit)
            box->setMaxLength(NoLimit);
    }
}

void AddressBookWindow::fitTypingLimits()
{
    for (QLineEdit* box : {m_companyName, m_title, m_fullName, m_city}) {
        const int limit = std::max(NameWidth, int(box->text().size()));
        if (box->maxLength() != limit)
            box->setMaxLength(limit);
    }
    m_address->setTypingLimit(std::max(StreetWidth, int(m_address->toPlainText().size())));
}

} // namespace kartella
