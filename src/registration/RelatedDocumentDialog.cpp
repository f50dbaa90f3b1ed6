#include "registration/RelatedDocumentDialog.h"

#include "base/Error.h"
#include "options/OptionStore.h"
#include "platform/Clock.h"
#include "platform/Prompter.h"
#include "registration/RegIndex.h"
#include "store/Lookups.h"
#include "store/Store.h"
#include "store/engine/Recordset.h"
#include "support/BoundList.h"
#include "support/BusyCursor.h"
#include "support/ChangedRowPrompt.h"
#include "support/DialogParts.h"
#include "support/EnterAsTab.h"
#include "support/FieldBinder.h"
#include "support/SelectionState.h"
#include "support/ShellDialogs.h"

#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kartella {

namespace {

const QString RelatedSource
    = QStringLiteral("select RastasID,SubDocDescript,SubRastasID,SubRastGavimoData,ContactID,SubRastoKelias "
                     "from tbl_Sub_Documents");
const QString ContactSource = QStringLiteral("SELECT ContactID,FullName from tbl_Contacts order by FullName");
const QString DateFormat = QStringLiteral("yyyy.MM.dd");

bool documentExists(qint32 id)
{
    return !getFieldValue(
        QStringLiteral("RastasID"), QStringLiteral("RastasID"), QStringLiteral("tbl_Documents"), id)
                .isNull();
}

} // namespace

RelatedDocumentDialog::RelatedDocumentDialog(Mode mode, QWidget* parent)
    : QDialog(parent)
    , m_mode(mode)
{
    const bool creating = mode == Mode::Creating;
    setObjectName(creating ? QStringLiteral("frmRelated") : QStringLiteral("frmRelDescr"));
    setWindowTitle(creating ? tr("New Related Document") : tr("Description of Related Document"));
    setModal(true);
    m_related = new Recordset(this);
    m_related->setObjectName(QStringLiteral("datPrimaryRS"));
    m_contacts = new Recordset(this);
    m_contacts->setObjectName(QStringLiteral("Adodc1"));
    buildWidgets();
    bindControls();
    load();
}

RelatedDocumentDialog::~RelatedDocumentDialog() = default;

void RelatedDocumentDialog::buildWidgets()
{
    m_tabs = new QTabWidget(this);
    auto* tabs = m_tabs;
    tabs->setObjectName(QStringLiteral("SSTab1"));
    auto* page = new QWidget(tabs);
    tabs->addTab(page, QString(10, u' '));

    m_parent = new QLineEdit(page);
    m_parent->setObjectName(QStringLiteral("txtParent"));
    m_parent->setReadOnly(true);
    m_description = new QPlainTextEdit(page);
    m_description->setObjectName(QStringLiteral("txtFields_1"));
    m_description->setTabChangesFocus(true);
    m_date = makeFieldBox(3, page);
    auto* contact = new QComboBox(page);
    contact->setObjectName(QStringLiteral("cmbContact"));
    contact->setToolTip(tr("Select a Contact"));
    m_contact = new BoundList(contact, this);
    // The Location box has another place among the fields in each of the two dialogs.
    m_location = makeFieldBox(m_mode == Mode::Creating ? 5 : 4, page);
    m_location->setReadOnly(true);
    m_location->setToolTip(tr("Location of File"));
    m_documentId = makeFieldBox(0, page);
    m_relatedId = makeFieldBox(2, page);
    m_documentId->setVisible(false);
    m_relatedId->setVisible(false);

    auto* grid = new QGridLayout(page);
    int line = 0;
    const auto addRow = [&](const QString& caption, QWidget* field) {
        grid->addWidget(makeBuddyLabel(caption, field, page), line, 0, Qt::AlignTop);
        grid->addWidget(field, line++, 1);
    };
    addRow(tr("Parent Document:"), m_parent);
    addRow(tr("Related Document Description:"), m_description);
    addRow(tr("Send/Receive Date:"), m_date);
    addRow(tr("Sender/Receiver:"), contact);
    addRow(tr("Location:"), m_location);

    m_ok = makeDialogButton(QStringLiteral("cmdOK"), tr("OK"), this);
    m_cancel = makeDialogButton(QStringLiteral("cmdCancel"), tr("Cancel"), this);
    connect(m_ok, &QPushButton::clicked, this, &RelatedDocumentDialog::save);
    connect(m_cancel, &QPushButton::clicked, this, &RelatedDocumentDialog::cancel);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);

    auto* upper = new QHBoxLayout;
    upper->addWidget(tabs, 1);
    if (m_mode == Mode::Creating)
        upper->addWidget(buildCreateWith(), 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(upper, 1);
    layout->addLayout(buttons);

    m_keys = new EnterAsTab(this);
    m_keys->onEscape([this] { return askOnEscape(); });
    resize(560, 320);
}

QWidget* RelatedDocumentDialog::buildCreateWith()
{
    return makeCreateWithFrame(this,
        {[this] { createWithWord(); }, [this] { createWithExcel(); }, [this] { createWithPowerPoint(); },
            [this] { addExistingFile(); }});
}

void RelatedDocumentDialog::bindControls()
{
    m_binder = new FieldBinder(m_related, this);
    m_binder->bind(m_documentId, QStringLiteral("RastasID"));
    m_binder->bind(m_description, QStringLiteral("SubDocDescript"));
    m_binder->bind(m_relatedId, QStringLiteral("SubRastasID"));
    m_binder->bindDate(m_date, QStringLiteral("SubRastGavimoData"), DateFormat);
    m_binder->bind(m_contact, QStringLiteral("ContactID"));
    m_binder->bind(m_location, QStringLiteral("SubRastoKelias"));
    connect(m_binder, &FieldBinder::changed, this, [this] { m_changed = true; });
    m_contact->setRowSource(m_contacts, QStringLiteral("FullName"), QStringLiteral("ContactID"));
}

void RelatedDocumentDialog::load()
{
    const BusyCursor busy;
    const SelectionState& state = selection();
    bool parentGone = false;
    try {
        const QString connection = plainConnectionString();
        // A new row needs none of the stored ones.
        if (m_mode == Mode::Creating)
            m_related->setFilterGroup(FilterGroupEnum::PendingRecords);
        else
            m_related->setFilter(
                QStringLiteral("SubRastasID= ") + QString::number(state.selectedSubDocumentId));
        m_related->open(RelatedSource, connection, CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        m_contacts->open(ContactSource, connection);
        if (m_mode == Mode::Creating) {
            m_parentId = state.selectedDocumentId;
            parentGone = m_parentId != 0 && !documentExists(m_parentId);
            try {
                m_related->addNew();
            } catch (const Error& error) {
                msgBox(error.description());
            }
        }
        m_parent->setText(state.selectedItemText);
        if (m_mode == Mode::Creating)
            m_date->setText(Clock::currentDate().toString(DateFormat));
    } catch (const Error& error) {
        msgBox(tr("Data error event hit err:") + error.description());
    }
    // The document, or the related document edited, deleted by another program since it was
    // selected: there is nothing to hang a row on or to edit.
    const bool rowGone = m_mode == Mode::Editing && m_related->isOpen() && m_related->eof();
    if (parentGone || rowGone) {
        m_gone = true;
        msgBox(parentGone ? tr("This document no longer exists.")
                          : tr("This related document no longer exists."),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
        const QList<QWidget*> editing = {m_tabs, m_ok};
        for (QWidget* widget : editing)
            widget->setEnabled(false);
    }
    m_changed = false;
}

int RelatedDocumentDialog::exec()
{
    return m_gone ? int(QDialog::Rejected) : QDialog::exec();
}

void RelatedDocumentDialog::setLocation(const QString& path)
{
    m_location->setText(path);
}

void RelatedDocumentDialog::createWithWord()
{
    createDocument({tr("Unable to create a new Word Document"), tr("SubDocument Description Required!"),
        &createWordDocument});
}

void RelatedDocumentDialog::createWithExcel()
{
    createDocument({tr("Unable to create a new Excel Document"), tr("Document Description Required!"),
        &createExcelDocument});
}

void RelatedDocumentDialog::createWithPowerPoint()
{
    createDocument({tr("Unable to create a new PowerPoint Document"), tr("SubDocument Description Required!"),
        &createPowerPointDocument});
}

void RelatedDocumentDialog::createDocument(const CreatingButton& button)
{
    const QString description = m_description->toPlainText();
    if (description.isEmpty()) {
        msgBox(button.message, MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, button.title);
        return;
    }
    if (!m_location->text().isEmpty())
        return;
    // The file goes to the folder of the category chosen in the tree; the contact view
    // chooses none.
    const qint32 category = selection().currentCategoryId;
    if (category == 0) {
        msgBox(
            tr("Select any Category, please!"), MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, button.title);
        return;
    }
    try {
        const QVariant folder = getFieldValue(QStringLiteral("KategID"), QStringLiteral("DokKategDaug"),
            QStringLiteral("tbl_Document_Categories"), category);
        const OfficeDocumentRequest request {
            description, folder, QVariant(), category, makeRegIndex(category)};
        const BusyCursor busy;
        button.create(request, [this](const QString& path) { setLocation(path); });
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, button.title);
    }
}

void RelatedDocumentDialog::addExistingFile()
{
    const QString directory = QDir::currentPath();
    const QString file = showOpenDialog(
        {tr("Select the Document"), directory, tr("All files (*.*)"), QStringLiteral("*.*")});
    if (file.isEmpty())
        return;
    setLocation(file);
    QDir::setCurrent(directory);
}

void RelatedDocumentDialog::save()
{
    // A new row hangs on the document selected when the dialog opened; an edited one keeps
    // the parent it has.
    if (m_mode == Mode::Creating) {
        if (m_parentId == 0) {
            msgBox(tr("A related document needs its document: select one in the list first, please!"),
                MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
            return;
        }
        m_documentId->setText(QString::number(m_parentId));
    }
    try {
        if (m_mode == Mode::Creating && !documentExists(m_parentId)) {
            reportDeletedRow(tr("document"), windowTitle());
            return;
        }
        m_binder->validate();
        // A row another user changed since it was read is told; it stays here unless the
        // user stores theirs over it.
        const QList<QPair<QString, QString>> captions
            = {{QStringLiteral("SubDocDescript"), tr("Related Document Description")},
                {QStringLiteral("SubRastGavimoData"), tr("Send/Receive Date")},
                {QStringLiteral("ContactID"), tr("Sender/Receiver")},
                {QStringLiteral("SubRastoKelias"), tr("Location")}};
        const ShownNames contactNames = [this](const QString& field, const QVariant& value) {
            return field == QLatin1String("ContactID") ? m_contact->textOf(value) : QString();
        };
        if (!storeResolvingChanges(
                *m_related, AffectEnum::All, tr("related document"), captions, windowTitle(), contactNames))
            return;
    } catch (const Error& error) {
        if (rowWasDeleted(error))
            reportDeletedRow(tr("related document"), windowTitle());
        else
            msgBox(error.description());
        return;
    }
    accept();
}

void RelatedDocumentDialog::cancel()
{
    reject();
}

bool RelatedDocumentDialog::askOnEscape()
{
    if (!m_changed) {
        cancel();
        return true;
    }
    const int answer = askToApplyChanges();
    if (answer == MsgBoxResult::Yes)
        save();
    else if (answer == MsgBoxResult::No)
        cancel();
    return true;
}

void RelatedDocumentDialog::done(int result)
{
    restoreDefaultCursor();
    QDialog::done(result);
}

} // namespace kartella
