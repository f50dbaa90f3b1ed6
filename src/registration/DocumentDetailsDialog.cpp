#include "registration/DocumentDetailsDialog.h"

#include "base/Error.h"
#include "history/HistoryTab.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "registration/DateBox.h"
#include "registration/FileTextStatus.h"
#include "registration/RegIndex.h"
#include "store/Store.h"
#include "store/engine/Recordset.h"
#include "support/BoundList.h"
#include "support/BusyCursor.h"
#include "support/DialogParts.h"
#include "support/EnterAsTab.h"
#include "support/FieldBinder.h"
#include "support/FileInfo.h"
#include "support/RecordsetModel.h"
#include "support/SelectionState.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace kartella {

namespace {

const QString DocumentTable = QStringLiteral("tbl_Documents");
const QString ContactSource
    = QStringLiteral("select ContactID, FullName from tbl_Contacts order by FullName");
const QString CategorySource
    = QStringLiteral("select KategID,DokKategorija from tbl_Document_Categories order by DokKategorija;");
const QString SubCategorySource
    = QStringLiteral("select SubKategID,KategID,DokSubKategorija from tbl_Sub_Categories where KategID=");
const QString SentReceivedField = QStringLiteral("DokGavSiuntData");
const QString RegistrationField = QStringLiteral("DokRegistracData");
const QString DateFormat = QStringLiteral("yyyy.MM.dd");

QString reminderSource(qint32 documentId)
{
    const QString id = QString::number(documentId);
    return QStringLiteral("SHAPE {select RastasID from tbl_Documents WHERE RastasID=") + id
        + QStringLiteral("} AS ParentCMD APPEND ({select RastasID,TicklerDate,TicklerID,TicklerText from "
                         "tbl_Tickler } AS ChildCMD RELATE RastasID TO RastasID) AS ChildCMD");
}

// The delegate of the reminder grid. An editor that opens is a change of the dialog, so that
// a reminder still being typed is asked about; Esc in it keeps what was typed in the row and
// then asks as Esc does anywhere in the dialog.
class ReminderDelegate : public QStyledItemDelegate
{
public:
    ReminderDelegate(std::function<void()> opened, std::function<void()> escape, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_opened(std::move(opened))
        , m_escape(std::move(escape))
    { }

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        m_opened();
        return QStyledItemDelegate::createEditor(parent, option, index);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* editor = qobject_cast<QWidget*>(watched);
        if (editor && event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            Q_EMIT commitData(editor);
            Q_EMIT closeEditor(editor, QAbstractItemDelegate::NoHint);
            m_escape();
            return true;
        }
        return QStyledItemDelegate::eventFilter(watched, event);
    }

private:
    std::function<void()> m_opened;
    std::function<void()> m_escape;
};

} // namespace

DocumentDetailsDialog::DocumentDetailsDialog(QWidget* parent)
    : DocumentDetailsDialog(selection().selectedDocumentId, parent)
{ }

DocumentDetailsDialog::DocumentDetailsDialog(qint32 documentId, QWidget* parent)
    : QDialog(parent)
    , m_documentId(documentId)
{
    setObjectName(QStringLiteral("frmNew"));
    setWindowTitle(errorTitle());
    setModal(true);
    const auto dataControl = [this](const char* name) {
        auto* recordset = new Recordset(this);
        recordset->setObjectName(QLatin1String(name));
        return recordset;
    };
    m_document = dataControl("Adodc1");
    m_contacts = dataControl("Adodc2");
    m_categories = dataControl("Adodc3");
    m_subCategories = dataControl("Adodc4");
    m_reminders = dataControl("TicklerRecordset");
    buildWidgets();
    bindControls();
    load();
}

DocumentDetailsDialog::~DocumentDetailsDialog()
{
    // Closing the dialog commits a grid cell still being edited, after this part of the
    // dialog is gone: its edits must reach no member any more.
    m_tickler->disconnect(this);
}

void DocumentDetailsDialog::buildWidgets()
{
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("SSTab1"));
    m_tabs->addTab(buildGeneralTab(), tr("General"));

    m_grid = new QTableView(this);
    m_grid->setObjectName(QStringLiteral("grdTickler"));
    m_grid->setAccessibleName(tr("Reminders"));
    m_grid->setItemDelegate(
        new ReminderDelegate([this] { markChanged(); }, [this] { askOnEscape(); }, m_grid));
    m_tabs->addTab(m_grid, tr("Tickler"));

    m_notes = new QPlainTextEdit(this);
    m_notes->setObjectName(QStringLiteral("txtFields_12"));
    m_notes->setAccessibleName(tr("Notes"));
    m_notes->setTabChangesFocus(true);
    m_tabs->addTab(m_notes, tr("Notes"));
    m_tabs->addTab(new HistoryTab(
                       HistoryTab::Document, [this] { return qint64(m_documentId); }, this),
        tr("History"));

    m_ok = makeDialogButton(QStringLiteral("cmdButton_0"), tr("OK"), this);
    m_cancel = makeDialogButton(QStringLiteral("cmdButton_1"), tr("Cancel"), this);
    m_apply = makeDialogButton(QStringLiteral("cmdButton_2"), tr("&Apply"), this);
    connect(m_ok, &QPushButton::clicked, this, &DocumentDetailsDialog::save);
    connect(m_cancel, &QPushButton::clicked, this, &DocumentDetailsDialog::cancel);
    connect(m_apply, &QPushButton::clicked, this, &DocumentDetailsDialog::apply);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_apply);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addLayout(buttons);

    m_directionCode = makeFieldBox(4, this);
    m_directionCode->setVisible(false);

    const QList<QWidget*> order = {m_description, m_sender->box(), m_location, m_sentReceivedDate,
        m_registrationDate, m_regIndex, m_category->box(), m_subCategory->box(), m_inner, m_outgoing,
        m_incoming, m_otherDirection, m_ok, m_cancel, m_apply};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);

    m_keys = new EnterAsTab(this);
    for (QWidget* box : {static_cast<QWidget*>(m_description), static_cast<QWidget*>(m_location),
             static_cast<QWidget*>(m_regIndex), static_cast<QWidget*>(m_notes)})
        m_keys->watch(box);
    m_keys->onEnter(m_grid, [this] { onReminderGridEnter(); });
    m_keys->onEscape([this] { return askOnEscape(); });
    resize(640, 420);
}

QWidget* DocumentDetailsDialog::buildGeneralTab()
{
    auto* page = new QWidget(this);
    m_icon = new QLabel(page);
    m_icon->setObjectName(QStringLiteral("imdgLIcon"));
    m_icon->setAccessibleName(tr("File icon"));
    m_icon->setFixedSize(36, 36);
    m_description = makeFieldBox(7, this);
    m_description->setToolTip(tr("Short Description of Document"));
    auto* sender = new QComboBox(page);
    sender->setObjectName(QStringLiteral("cmbSender"));
    m_sender = new BoundList(sender, this);
    m_location = makeFieldBox(14, this);
    m_location->setReadOnly(true);
    m_location->setToolTip(tr("Location of File"));

    auto* dates = new QGroupBox(tr("Date, Index"), page);
    dates->setObjectName(QStringLiteral("fraDateIndex"));
    const auto makePicker = [dates](const char* name) {
        auto* picker = new DateBox(dates);
        picker->setObjectName(QLatin1String(name));
        picker->setDisplayFormat(DateFormat);
        return picker;
    };
    m_sentReceivedDate = makePicker("DTPicker1");
    m_registrationDate = makePicker("DTPicker2");
    m_regIndex = makeFieldBox(3, this);
    auto* datesLayout = new QGridLayout(dates);
    int line = 0;
    for (const auto& [caption, box] :
        {std::pair<QString, QWidget*> {tr("Send/Receive Date:"), m_sentReceivedDate},
            std::pair<QString, QWidget*> {tr("Registration Date:"), m_registrationDate},
            std::pair<QString, QWidget*> {tr("Registration Index:"), m_regIndex}}) {
        datesLayout->addWidget(makeBuddyLabel(caption, box, dates), line, 0);
        datesLayout->addWidget(box, line++, 1);
    }

    const CategoryFrame categoryFrame = makeCategoryFrame(page);
    QGroupBox* categories = categoryFrame.frame;
    categoryFrame.category->setToolTip(tr("Category of Document"));
    categoryFrame.subCategory->setToolTip(tr("SubCategory of Document"));
    m_category = new BoundList(categoryFrame.category, this);
    m_subCategory = new BoundList(categoryFrame.subCategory, this);

    const DirectionFrame directions = makeDirectionFrame(page, [this](int code) { onDirectionChosen(code); });
    QGroupBox* direction = directions.frame;
    m_inner = directions.inner;
    m_outgoing = directions.outgoing;
    m_incoming = directions.incoming;
    m_otherDirection = directions.other;

    auto* layout = new QGridLayout(page);
    layout->addWidget(m_icon, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(makeBuddyLabel(tr("Description:"), m_description, page), 0, 1);
    layout->addWidget(m_description, 0, 2, 1, 2);
    layout->addWidget(makeBuddyLabel(tr("Sender/Receiver:"), sender, page), 1, 1);
    layout->addWidget(sender, 1, 2, 1, 2);
    layout->addWidget(makeBuddyLabel(tr("Location:"), m_location, page), 2, 1);
    layout->addWidget(m_location, 2, 2, 1, 2);
    layout->addWidget(dates, 3, 0, 2, 3);
    layout->addWidget(categories, 3, 3);
    layout->addWidget(direction, 4, 3);
    layout->addWidget(new FileTextStatus(m_documentId, page), 5, 0, 1, 4);
    layout->setRowStretch(6, 1);
    return page;
}

void DocumentDetailsDialog::bindControls()
{
    m_binder = new FieldBinder(m_document, this);
    m_binder->bind(m_description, QStringLiteral("DokAntraste"));
    m_binder->bind(m_sender, QStringLiteral("ContactID"));
    m_binder->bind(m_location, QStringLiteral("RastoKel"));
    m_binder->bind(m_regIndex, QStringLiteral("DokRegistracIndeksas"));
    m_binder->bind(m_category, QStringLiteral("KategID"));
    m_binder->bind(m_subCategory, QStringLiteral("SubKategID"));
    m_binder->bind(m_directionCode, QStringLiteral("KryptisID"));
    m_binder->bind(m_notes, QStringLiteral("DokPastaba"));
    connect(m_binder, &FieldBinder::changed, this, &DocumentDetailsDialog::markChanged);

    m_sender->setRowSource(m_contacts, QStringLiteral("FullName"), QStringLiteral("ContactID"));
    m_category->setRowSource(m_categories, QStringLiteral("DokKategorija"), QStringLiteral("KategID"));
    m_subCategory->setRowSource(
        m_subCategories, QStringLiteral("DokSubKategorija"), QStringLiteral("SubKategID"));
    connect(m_category, &BoundList::changed, this, &DocumentDetailsDialog::onCategoryChanged);
    connect(m_document, &Recordset::moveComplete, this, &DocumentDetailsDialog::showRow);

    connect(m_sentReceivedDate, &DateBox::valueChanged, this,
        [this](const QVariant& date) { writeDate(date, SentReceivedField); });
    connect(m_registrationDate, &DateBox::valueChanged, this,
        [this](const QVariant& date) { writeDate(date, RegistrationField); });

    m_tickler = new RecordsetModel(this);
    m_tickler->setAllowAddNew(true);
    m_tickler->attachView(m_grid);
    connect(m_tickler, &RecordsetModel::edited, this, &DocumentDetailsDialog::markChanged);
}

void DocumentDetailsDialog::load()
{
    const BusyCursor busy;
    const qint32 id = m_documentId;
    try {
        const QString provider = getRegValue(QStringLiteral("Provider"));
        const QString location = getRegValue(QStringLiteral("DbLocation"));
        m_listConnection = plainConnectionString(provider, location);
        // Filtered before it opens, the table is read for this row alone.
        m_document->setFilter(QStringLiteral("RastasID=") + QString::number(id));
        m_document->open(
            DocumentTable, m_listConnection, CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        // A changed index is checked against the other documents when it is stored.
        m_storedIndex = m_document->eof()
            ? QString()
            : m_document->fields(QStringLiteral("DokRegistracIndeksas")).value().toString();
        guardRegIndex(
            *m_document,
            [this] { return m_regIndex->text() == m_storedIndex ? QString() : m_regIndex->text(); }, id);
        m_contacts->open(ContactSource, m_listConnection);
        m_categories->open(CategorySource, m_listConnection);

        m_reminders->open(reminderSource(id), shapeConnectionString(provider, location),
            CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        m_tickler->setRecordset(m_reminders->fields(QStringLiteral("ChildCMD")).chapter());
        m_tickler->setColumnHidden(0, true);
        m_tickler->setColumnHidden(2, true);
        m_tickler->setColumnCaption(1, tr("Date"));
        m_tickler->setColumnWidth(1, 1000);
        m_tickler->setColumnCaption(3, tr("Text"));
        m_tickler->setColumnWidth(3, 6540);
    } catch (const Error& error) {
        reportStoreError(error.number(), error.description(), errorTitle());
    }
    // A document deleted by another program since its key was taken: nothing to show, and
    // nothing the form could store but a new row.
    if (m_document->isOpen() && m_document->eof()) {
        m_gone = true;
        msgBox(tr("This document no longer exists."), MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation,
            errorTitle());
        for (QWidget* editing :
            {static_cast<QWidget*>(m_tabs), static_cast<QWidget*>(m_ok), static_cast<QWidget*>(m_apply)})
            editing->setEnabled(false);
    }

    setWindowTitle(tr("%1 Description").arg(m_description->text()));
    showIcon();
    if (auto* history = findChild<HistoryTab*>(); history && !m_gone)
        history->showFileVersions(id, m_location->text());

    showDirection();
    setClean();
}

void DocumentDetailsDialog::showDirection()
{
    const int direction = m_document->isOpen() && !m_document->eof()
        ? m_document->fields(QStringLiteral("KryptisID")).value().toInt()
        : 0;
    QRadioButton* chosen = directionButton(direction);
    (chosen ? chosen : m_otherDirection)->setChecked(true);
}

void DocumentDetailsDialog::showRow()
{
    if (m_document->eof() || m_document->bof())
        return;
    const QVariant category = m_document->fields(QStringLiteral("KategID")).value();
    fillSubCategories(category.isNull() ? QString() : category.toString());
    m_showing = true;
    showDate(m_sentReceivedDate, SentReceivedField);
    showDate(m_registrationDate, RegistrationField);
    m_showing = false;
}

void DocumentDetailsDialog::showDate(DateBox* picker, const QString& field)
{
    picker->setValue(m_document->fields(field).value());
}

void DocumentDetailsDialog::writeDate(const QVariant& date, const QString& field)
{
    if (m_showing || !m_document->isOpen() || m_document->eof())
        return;
    try {
        m_document->fields(field).setValue(date);
        markChanged();
    } catch (const Error& error) {
        msgBox(error.description());
    }
}

void DocumentDetailsDialog::fillSubCategories(const QString& category)
{
    try {
        m_subCategories->close();
        m_subCategories->open(SubCategorySource + category, m_listConnection);
    } catch (const Error& error) {
        // A row without a category has no subcategories to offer. The list is filled for the
        // row and again for its category: a failure is told once.
        if (!category.isEmpty() && error.description() != m_subCategoryError) {
            m_subCategoryError = error.description();
            reportStoreError(error.number(), error.description(), errorTitle());
        }
    }
}

void DocumentDetailsDialog::onCategoryChanged()
{
    if (m_showing)
        return;
    fillSubCategories(m_category->value());
    markChanged();
}

void DocumentDetailsDialog::onDirectionChosen(int code)
{
    // A row shown again shows its stored direction: nothing for the row to take.
    if (m_showing)
        return;
    m_directionCode->setText(QString::number(code));
    markChanged();
}

QRadioButton* DocumentDetailsDialog::directionButton(int code) const
{
    switch (code) {
    case 1:
        return m_inner;
    case 2:
        return m_outgoing;
    case 3:
        return m_incoming;
    case 4:
        return m_otherDirection;
    default:
        return nullptr;
    }
}

QString DocumentDetailsDialog::errorTitle()
{
    return tr("Document Description");
}

void DocumentDetailsDialog::showIcon()
{
    const QString path = m_location->text();
    QIcon icon;
    if (!path.isEmpty() && QFileInfo::exists(path)) {
        FileInfo info;
        info.createFromFile(path);
        icon = info.shellIcon();
    }
    if (icon.isNull()) {
        icon = QIcon(noFileIconPath());
        m_icon->setProperty("noFile", true);
    } else {
        m_icon->setProperty("noFile", false);
    }
    m_icon->setPixmap(icon.pixmap(32, 32));
}

void DocumentDetailsDialog::markChanged()
{
    m_changed = true;
    m_apply->setEnabled(true);
}

void DocumentDetailsDialog::setClean()
{
    m_changed = false;
    m_apply->setEnabled(false);
}

void DocumentDetailsDialog::save()
{
    if (apply())
        accept();
}

void DocumentDetailsDialog::cancel()
{
    setClean();
    reject();
}

bool DocumentDetailsDialog::askOnEscape()
{
    if (!m_changed) {
        cancel();
        return true;
    }
    const int answer = askToApplyChanges();
    if (answer == MsgBoxResult::Yes)
        apply();
    else if (answer == MsgBoxResult::No)
        cancel();
    return true;
}

void DocumentDetailsDialog::closeEvent(QCloseEvent* event)
{
    if (m_changed) {
        const int answer = msgBox(tr("You have details changes that have not applied.\n\n"
                                     "Do you want to apply these now?"),
            MsgBoxStyle::YesNo | MsgBoxStyle::Exclamation, tr("Warning"));
        // A refused write keeps the window, so that nothing typed is lost unasked.
        if (answer == MsgBoxResult::Yes && !apply()) {
            event->ignore();
            return;
        }
    }
    setClean();
    QDialog::closeEvent(event);
}

int DocumentDetailsDialog::exec()
{
    return m_gone ? int(QDialog::Rejected) : QDialog::exec();
}

void DocumentDetailsDialog::done(int result)
{
    restoreDefaultCursor();
    QDialog::done(result);
}

void DocumentDetailsDialog::commitOpenEditor()
{
    const QModelIndex current = m_grid->currentIndex();
    QWidget* editor = m_grid->indexWidget(current);
    if (!editor)
        return;
    QAbstractItemDelegate* delegate = m_grid->itemDelegateForIndex(current);
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void DocumentDetailsDialog::onReminderGridEnter()
{
    m_grid->setFocus(Qt::OtherFocusReason);
    if (m_grid->currentIndex().column() == 3)
        EnterAsTab::sendKey(m_grid, Qt::Key_Down);
    EnterAsTab::sendKey(m_grid, Qt::Key_Right);
}

} // namespace kartella
