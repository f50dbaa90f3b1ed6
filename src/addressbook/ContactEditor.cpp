#include "addressbook/ContactEditor.h"

#include "addressbook/ContactQueries.h"
#include "base/Error.h"
#include "history/HistoryTab.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "store/Store.h"
#include "store/engine/Recordset.h"
#include "store/engine/WriteContext.h"
#include "support/BusyCursor.h"
#include "support/ChangedRowPrompt.h"
#include "support/DialogParts.h"
#include "support/EnterAsTab.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"

#include <QAbstractItemDelegate>
#include <QAction>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace kartella {

namespace {

QPushButton* makeButton(const QString& name, const QString& caption, QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void hideKeyColumns(RecordsetModel* model)
{
    model->setColumnHidden(0, true);
    model->setColumnHidden(1, true);
}

} // namespace

ContactEditor::ContactEditor(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCorr"));
    setWindowTitle(tr("New Contact"));
    setModal(true);
    m_contact = new Recordset(this);
    m_contact->setObjectName(QStringLiteral("datPrimaryRS"));
    m_homePages = new Recordset(this);
    m_homePages->setObjectName(QStringLiteral("adoHomePages"));
    buildWidgets();
    load();
    m_companyName->setFocus(Qt::OtherFocusReason);
}

ContactEditor::~ContactEditor() = default;

void ContactEditor::buildWidgets()
{
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("SSTab1"));
    m_tabs->addTab(buildContactTab(), tr("Contact Info"));

    const auto gridTab
        = [this](const char* buttonName, const QString& caption, const char* gridName,
              const QString& accessibleName, QTableView*& grid, void (ContactEditor::*slot)()) {
              auto* page = new QWidget(this);
              QPushButton* add = makeButton(QLatin1String(buttonName), caption, page);
              connect(add, &QPushButton::clicked, this, slot);
              grid = new QTableView(page);
              grid->setObjectName(QLatin1String(gridName));
              grid->setAccessibleName(accessibleName);
              auto* layout = new QVBoxLayout(page);
              layout->addWidget(add, 0, Qt::AlignLeft);
              layout->addWidget(grid, 1);
              return page;
          };
    m_tabs->addTab(gridTab("cmdAddPhone", tr("Add &Phone"), "grdDataGrid", tr("Phones"), m_phoneGrid,
                       &ContactEditor::addPhone),
        tr("Phones"));
    m_tabs->addTab(gridTab("cmdAddURL", tr("Add &URL"), "grdHomePages", tr("Home pages"), m_homePageGrid,
                       &ContactEditor::addUrl),
        tr("Home pages"));
    // The buttons' access keys work from every tab, not only while their button shows.
    // The key is the one the button's text marks, in the interface's language.
    const auto accessKey = [this](const char* buttonName, void (ContactEditor::*slot)()) {
        auto* button = findChild<QPushButton*>(QLatin1String(buttonName));
        button->setShortcut(QKeySequence());
        auto* action = new QAction(this);
        action->setShortcut(QKeySequence::mnemonic(button->text()));
        addAction(action);
        connect(action, &QAction::triggered, this, slot);
    };
    accessKey("cmdAddPhone", &ContactEditor::addPhone);
    accessKey("cmdAddURL", &ContactEditor::addUrl);
    m_notes = new QPlainTextEdit(this);
    m_notes->setObjectName(QStringLiteral("txtFields_11"));
    m_notes->setAccessibleName(QStringLiteral("Notes"));
    m_notes->setTabChangesFocus(true);
    m_tabs->addTab(m_notes, tr("Notes"));
    m_tabs->addTab(new HistoryTab(
                       HistoryTab::Contact, [this] { return m_contactId->text().toLongLong(); }, this),
        tr("History"));

    m_ok = makeButton(QStringLiteral("cmdOk"), tr("OK"), this);
    m_cancel = makeButton(QStringLiteral("cmdClose"), tr("Cancel"), this);
    connect(m_ok, &QPushButton::clicked, this, &ContactEditor::save);
    connect(m_cancel, &QPushButton::clicked, this, &ContactEditor::cancel);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addLayout(buttons);

    m_phoneModel = new RecordsetModel(this);
    m_phoneModel->attachView(m_phoneGrid);
    m_homePageModel = new RecordsetModel(this);
    m_homePageModel->attachView(m_homePageGrid);
    // The grids head their columns with the fields' names, in the interface's language.
    m_phoneModel->setColumnCaption(2, tr("PhoneName"));
    m_phoneModel->setColumnCaption(3, tr("PhoneNumber"));
    m_homePageModel->setColumnCaption(2, tr("Description"));
    m_homePageModel->setColumnCaption(3, tr("HomeWWW"));
    // A row reaches the register when the user leaves it.
    for (QTableView* grid : {m_phoneGrid, m_homePageGrid}) {
        connect(grid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current, const QModelIndex& previous) {
                if (previous.isValid() && current.row() != previous.row())
                    storeGridRows();
            });
    }

    m_keys = new EnterAsTab(this);
    for (QLineEdit* box : {m_contactId, m_companyName, m_title, m_dear, m_fullName, m_address, m_city,
             m_country, m_state, m_postalCode, m_email})
        m_keys->watch(box);
    m_keys->watch(m_notes);
    m_keys->onEnter(m_phoneGrid, [this] { onGridEnter(m_phoneGrid, m_phoneModel); });
    m_keys->onEnter(m_homePageGrid, [this] { onGridEnter(m_homePageGrid, m_homePageModel); });
    m_keys->onEscape([this] { return askBeforeClosing(); });
    resize(520, 420);
}

QWidget* ContactEditor::buildContactTab()
{
    auto* page = new QWidget(this);
    m_contactId = makeFieldBox(0, this);
    m_contactId->setVisible(false);
    m_companyName = makeFieldBox(1, this);
    m_title = makeFieldBox(2, this);
    m_dear = makeFieldBox(3, this);
    m_fullName = makeFieldBox(4, this);
    m_address = makeFieldBox(5, this);
    m_city = makeFieldBox(6, this);
    m_country = makeFieldBox(7, this);
    m_state = makeFieldBox(8, this);
    m_postalCode = makeFieldBox(9, this);
    m_email = makeFieldBox(10, this);
    const std::array<std::pair<QString, QLineEdit*>, 10> labelled = {
        std::pair {tr("Company Name:"), m_companyName},
        std::pair {tr("Title:"), m_title},
        std::pair {tr("Dear:"), m_dear},
        std::pair {tr("FullName:"), m_fullName},
        std::pair {tr("Address:"), m_address},
        std::pair {tr("City:"), m_city},
        std::pair {tr("Country:"), m_country},
        std::pair {tr("State/Province:"), m_state},
        std::pair {tr("Zip/Postal Code:"), m_postalCode},
        std::pair {tr("EmailName:"), m_email},
    };
    auto* layout = new QGridLayout(page);
    int line = 0;
    for (const auto& [caption, box] : labelled) {
        auto* label = new QLabel(caption, page);
        label->setObjectName(QStringLiteral("lblLabels_") + QString::number(line + 1));
        label->setBuddy(box);
        layout->addWidget(label, line, 0);
        layout->addWidget(box, line++, 1);
    }
    layout->setRowStretch(line, 1);
    return page;
}

void ContactEditor::load()
{
    const BusyCursor busy;
    try {
        const QString provider = getRegValue(QStringLiteral("Provider"));
        const QString location = getRegValue(QStringLiteral("DbLocation"));
        m_homePagesConnection = plainConnectionString(provider, location);
        m_binder = new FieldBinder(m_contact, this);
        m_binder->bind(m_contactId, QStringLiteral("ContactID"));
        m_binder->bind(m_companyName, QStringLiteral("CompanyName"));
        m_binder->bind(m_title, QStringLiteral("Title"));
        m_binder->bind(m_dear, QStringLiteral("Dear"));
        m_binder->bind(m_fullName, QStringLiteral("FullName"));
        m_binder->bind(m_address, QStringLiteral("Address"));
        m_binder->bind(m_city, QStringLiteral("City"));
        m_binder->bind(m_country, QStringLiteral("Country"));
        m_binder->bind(m_state, QStringLiteral("StateOrProvince"));
        m_binder->bind(m_postalCode, QStringLiteral("PostalCode"));
        m_binder->bind(m_email, QStringLiteral("EmailName"));
        m_binder->bind(m_notes, QStringLiteral("Notes"));
        connect(m_binder, &FieldBinder::changed, this, [this] { m_edited = true; });
        connect(m_contact, &Recordset::moveComplete, this, &ContactEditor::showHomePages);
        // Nothing is written until a button stores the row.
        m_contact->open(ContactQueries::contactsWithPhones(), shapePrefixConnectionString(provider, location),
            CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        m_phoneModel->setRecordset(m_contact->chapter(QStringLiteral("ChildCMD")));
        addContactRow();
        hideKeyColumns(m_phoneModel);
    } catch (const Error& error) {
        msgBox(tr("Data error event hit err:") + error.description());
    }
    m_edited = false;
}

void ContactEditor::addContactRow()
{
    try {
        m_contact->addNew();
    } catch (const Error& error) {
        msgBox(error.description());
    }
}

void ContactEditor::saveContactRow()
{
    const CommandScope command(QStringLiteral("Contact"));
    try {
        m_contact->updateBatch(AffectEnum::All);
        m_contact->moveLast();
    } catch (const Error& error) {
        msgBox(error.description());
    }
}

void ContactEditor::showHomePages()
{
    try {
        // Web pages typed for the contact before are kept, not dropped with the old rows.
        dropUntypedHomePage();
        if (m_homePages->isOpen() && m_homePages->hasPendingChanges())
            m_homePages->updateBatch(AffectEnum::All);
        m_homePages->close();
        const bool onRow = !m_contact->eof() && !m_contact->bof();
        m_homePages->open(ContactQueries::homePagesFor(
                              onRow ? m_contact->collect(QStringLiteral("ContactID")) : QVariant()),
            m_homePagesConnection, CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        m_homePageModel->setRecordset(m_homePages);
        hideKeyColumns(m_homePageModel);
    } catch (const Error& error) {
        msgBox(error.description());
    }
}

void ContactEditor::addPhone()
{
    saveContactRow();
    m_phoneModel->setAllowAddNew(true);
    m_tabs->setCurrentWidget(m_phoneGrid->parentWidget());
    m_phoneGrid->setFocus(Qt::OtherFocusReason);
    m_phoneGrid->setCurrentIndex(m_phoneModel->index(m_phoneModel->rowCount() - 1, 2));
}

void ContactEditor::addUrl()
{
    saveContactRow();
    m_homePageModel->setAllowAddNew(true);
    try {
        m_homePages->addNew();
        // This recordset has no relation that would fill the key.
        m_homePages->fields(QStringLiteral("ContactID")).setValue(m_contactId->text().toInt());
    } catch (const Error& error) {
        msgBox(error.description());
    }
    m_tabs->setCurrentWidget(m_homePageGrid->parentWidget());
    m_homePageGrid->setFocus(Qt::OtherFocusReason);
    m_homePageGrid->setCurrentIndex(m_homePageModel->index(m_homePages->currentRow(), 2));
}

void ContactEditor::onGridEnter(QTableView* grid, RecordsetModel* model)
{
    // Enter ends the adding of rows and moves one cell on; what the cell's editor holds goes
    // into the row first, as Tab would take it.
    const QModelIndex current = grid->currentIndex();
    if (QWidget* editor = current.isValid() ? grid->indexWidget(current) : nullptr)
        grid->itemDelegateForIndex(current)->setModelData(editor, model, current);
    model->setAllowAddNew(false);
    grid->setFocus(Qt::OtherFocusReason);
    EnterAsTab::sendKey(grid, Qt::Key_Right);
}

void ContactEditor::dropUntypedHomePage()
{
    // The grid takes each typed cell into its row at once, so a row still being added has
    // had nothing typed into it.
    if (m_homePages->isOpen() && m_homePages->editMode() == EditModeEnum::Add)
        m_homePages->cancelUpdate();
}

void ContactEditor::storeGridRows()
{
    const CommandScope command(QStringLiteral("Contact"));
    try {
        if (Recordset* phones = m_phoneModel->recordset(); phones && phones->isOpen())
            phones->updateBatch(AffectEnum::All);
        dropUntypedHomePage();
        if (m_homePages->isOpen())
            m_homePages->updateBatch(AffectEnum::All);
    } catch (const Error& error) {
        msgBox(error.description());
    }
}

QList<QPair<QString, QString>> ContactEditor::fieldCaptions()
{
    return {{QStringLiteral("CompanyName"), tr("Company Name")}, {QStringLiteral("Title"), tr("Title")},
        {QStringLiteral("Dear"), tr("Dear")}, {QStringLiteral("FullName"), tr("FullName")},
        {QStringLiteral("Address"), tr("Address")}, {QStringLiteral("City"), tr("City")},
        {QStringLiteral("Country"), tr("Country")}, {QStringLiteral("StateOrProvince"), tr("State/Province")},
        {QStringLiteral("PostalCode"), tr("Zip/Postal Code")}, {QStringLiteral("EmailName"), tr("EmailName")},
        {QStringLiteral("Notes"), tr("Notes")}, {QStringLiteral("PhoneName"), tr("Phone")},
        {QStringLiteral("PhoneNumber"), tr("Phone number")}, {QStringLiteral("Description"), tr("Web page")},
        {QStringLiteral("HomeWWW"), tr("Web address")}};
}

void ContactEditor::save()
{
    // A refused row keeps the dialog open with what was typed; so does a row another user
    // changed since it was stored here, unless the user stores theirs over it.
    try {
        m_binder->validate();
        if (!storeResolvingChanges(
                *m_contact, AffectEnum::All, tr("contact"), fieldCaptions(), windowTitle()))
            return;
        if (m_homePages->isOpen()
            && !storeResolvingChanges(
                *m_homePages, AffectEnum::All, tr("contact"), fieldCaptions(), windowTitle()))
            return;
    } catch (const Error& error) {
        msgBox(error.description());
        return;
    }
    accept();
}

void ContactEditor::cancel()
{
    reject();
}

bool ContactEditor::askBeforeClosing()
{
    if (!m_edited) {
        cancel();
        return true;
    }
    const int answer = msgBox(tr("Changes to contact have not applied.\n\nDo you want to apply these now?"),
        MsgBoxStyle::YesNoCancel | MsgBoxStyle::Exclamation, tr("Warning"));
    if (answer == MsgBoxResult::Yes)
        save();
    else if (answer == MsgBoxResult::No)
        cancel();
    return true;
}

void ContactEditor::done(int result)
{
    if (result == Rejected)
        storeGridRows();
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    QDialog::done(result);
}

} // namespace kartella
