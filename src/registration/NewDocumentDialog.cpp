#include "registration/NewDocumentDialog.h"

#include "explorer/SelectionState.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "registration/FileNaming.h"
#include "registration/RegIndex.h"
#include "registration/ValueConversions.h"
#include "store/Lookups.h"
#include "store/Store.h"
#include "store/engine/Recordset.h"
#include "support/BoundList.h"
#include "support/BusyCursor.h"
#include "support/EnterAsTab.h"
#include "support/Error.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"
#include "support/ShellDialogs.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace kartella {

namespace {

const QString DocumentSource = QStringLiteral(
    "SHAPE {select RastasID,DokGavSiuntData,DokRegistracData,DokRegistracIndeksas,DokAntraste,DokPastaba,"
    "RastoKel,ContactID,KategID,SubKategID,KryptisID from tbl_Documents} AS ParentCMD APPEND ({select "
    "RastasID,TicklerDate,TicklerID,TicklerText from tbl_Tickler } AS ChildCMD RELATE RastasID TO RastasID) "
    "AS ChildCMD");
const QString ContactSource
    = QStringLiteral("select ContactID, FullName from tbl_Contacts order by FullName");
const QString CategorySource
    = QStringLiteral("select KategID,DokKategorija from tbl_Document_Categories order by DokKategorija;");
const QString SubCategorySource
    = QStringLiteral("select SubKategID,KategID,DokSubKategorija from tbl_Sub_Categories where KategID=");
const QString DateFormat = QStringLiteral("yyyy.MM.dd");

QPushButton* makeButton(const QString& name, const QString& caption, QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    // Enter never presses a button of this dialog by itself.
    button->setAutoDefault(false);
    return button;
}

QLabel* makeLabel(const QString& caption, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(caption, parent);
    label->setBuddy(buddy);
    return label;
}

} // namespace

NewDocumentDialog::NewDocumentDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmNewDocument"));
    setWindowTitle(QStringLiteral("New Document"));
    setModal(true);
    for (int number = 1; number <= 4; ++number) {
        m_adodc[std::size_t(number)] = new Recordset(this);
        m_adodc[std::size_t(number)]->setObjectName(QStringLiteral("Adodc") + QString::number(number));
    }
    buildWidgets();
    bindControls();
    Form_Load();
}

NewDocumentDialog::~NewDocumentDialog() = default;

QLineEdit* NewDocumentDialog::addTextBox(int index)
{
    auto* box = new QLineEdit(this);
    box->setObjectName(QStringLiteral("txtFields_") + QString::number(index));
    m_txtFields[std::size_t(index)] = box;
    return box;
}

void NewDocumentDialog::buildWidgets()
{
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("SSTab1"));
    m_tabs->addTab(buildGeneralTab(), QStringLiteral("General"));

    m_grid = new QTableView(this);
    m_grid->setObjectName(QStringLiteral("grdTickler"));
    m_grid->setAccessibleName(QStringLiteral("Reminders"));
    m_tabs->addTab(m_grid, QStringLiteral("Tickler"));

    m_notes = new QPlainTextEdit(this);
    m_notes->setObjectName(QStringLiteral("txtFields_6"));
    m_notes->setAccessibleName(QStringLiteral("Notes"));
    m_tabs->addTab(m_notes, QStringLiteral("Notes"));

    m_ok = makeButton(QStringLiteral("cmdOK"), QStringLiteral("OK"), this);
    m_cancel = makeButton(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), this);
    connect(m_ok, &QPushButton::clicked, this, &NewDocumentDialog::cmdOK_Click);
    connect(m_cancel, &QPushButton::clicked, this, &NewDocumentDialog::cmdCancel_Click);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    auto* upper = new QHBoxLayout;
    upper->addWidget(m_tabs, 1);
    upper->addWidget(buildCreateWith(), 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(upper, 1);
    layout->addLayout(buttons);

    // The row's key and its direction code live in boxes of their own that nobody sees.
    for (const int index : {0, 7}) {
        QLineEdit* hidden = addTextBox(index);
        hidden->setVisible(false);
    }

    // The order of the boxes on the first tab, then the buttons.
    const QList<QWidget*> order = {m_txtFields[4], m_sender->box(), m_txtFields[5], m_txtFields[1],
        m_txtFields[2], m_txtFields[3], m_category->box(), m_subCategory->box(), m_option[1], m_option[2],
        m_option[3], m_option[4], findChild<QPushButton*>(QStringLiteral("cmdWord")),
        findChild<QPushButton*>(QStringLiteral("cmdExcel")),
        findChild<QPushButton*>(QStringLiteral("cmdPower")),
        findChild<QPushButton*>(QStringLiteral("cmdAddExisting")), m_ok, m_cancel};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);

    m_keys = new EnterAsTab(this);
    for (QLineEdit* box : m_txtFields) {
        if (box)
            m_keys->Watch(box);
    }
    m_keys->Watch(m_notes);
    m_keys->OnEnter(m_grid, [this] { grdTickler_Enter(); });
    m_keys->OnEscape([this] {
        m_cancel->click();
        return true;
    });
    resize(640, 400);
}

QWidget* NewDocumentDialog::buildGeneralTab()
{
    auto* page = new QWidget(this);
    QLineEdit* description = addTextBox(4);
    auto* sender = new QComboBox(page);
    sender->setObjectName(QStringLiteral("cmbSender"));
    m_sender = new BoundList(sender, this);
    QLineEdit* location = addTextBox(5);
    location->setReadOnly(true);

    auto* dates = new QGroupBox(QStringLiteral("Date, Index"), page);
    dates->setObjectName(QStringLiteral("fraDateIndex"));
    auto* datesLayout = new QGridLayout(dates);
    const std::array<QString, 3> dateCaptions = {QStringLiteral("Send/Receive Date:"),
        QStringLiteral("Registration Date:"), QStringLiteral("Registration Index:")};
    for (int index = 1; index <= 3; ++index) {
        QLineEdit* box = addTextBox(index);
        datesLayout->addWidget(makeLabel(dateCaptions[std::size_t(index - 1)], box, dates), index - 1, 0);
        datesLayout->addWidget(box, index - 1, 1);
    }

    auto* categories = new QGroupBox(QStringLiteral("Category"), page);
    categories->setObjectName(QStringLiteral("fraCategory"));
    auto* categoryBox = new QComboBox(categories);
    categoryBox->setObjectName(QStringLiteral("cmbCategory"));
    categoryBox->setAccessibleName(QStringLiteral("Category"));
    auto* subCategoryBox = new QComboBox(categories);
    subCategoryBox->setObjectName(QStringLiteral("cmbSubCategory"));
    subCategoryBox->setAccessibleName(QStringLiteral("Subcategory"));
    m_category = new BoundList(categoryBox, this);
    m_subCategory = new BoundList(subCategoryBox, this);
    auto* categoryLayout = new QVBoxLayout(categories);
    categoryLayout->addWidget(categoryBox);
    categoryLayout->addWidget(subCategoryBox);

    auto* direction = new QGroupBox(QStringLiteral("Direction"), page);
    direction->setObjectName(QStringLiteral("fraDirection"));
    auto* directionLayout = new QVBoxLayout(direction);
    const std::array<QString, 4> directions = {QStringLiteral("Inner"), QStringLiteral("Outgoing"),
        QStringLiteral("Incoming"), QStringLiteral("Other")};
    for (int index = 1; index <= 4; ++index) {
        auto* option = new QRadioButton(directions[std::size_t(index - 1)], direction);
        option->setObjectName(QStringLiteral("Option_") + QString::number(index));
        connect(option, &QRadioButton::toggled, this, [this, index](bool checked) {
            if (checked)
                Option_Click(index);
        });
        m_option[std::size_t(index)] = option;
        directionLayout->addWidget(option);
    }

    auto* layout = new QGridLayout(page);
    layout->addWidget(makeLabel(QStringLiteral("Description:"), description, page), 0, 0);
    layout->addWidget(description, 0, 1, 1, 2);
    layout->addWidget(makeLabel(QStringLiteral("Sender/Receiver:"), sender, page), 1, 0);
    layout->addWidget(sender, 1, 1, 1, 2);
    layout->addWidget(makeLabel(QStringLiteral("Location:"), location, page), 2, 0);
    layout->addWidget(location, 2, 1, 1, 2);
    layout->addWidget(dates, 3, 0, 2, 2);
    layout->addWidget(categories, 3, 2);
    layout->addWidget(direction, 4, 2);
    layout->setRowStretch(5, 1);
    return page;
}

QGroupBox* NewDocumentDialog::buildCreateWith()
{
    auto* frame = new QGroupBox(QStringLiteral("Create With"), this);
    frame->setObjectName(QStringLiteral("fraCreateWith"));
    auto* layout = new QVBoxLayout(frame);
    const struct
    {
        const char* name;
        const char* caption;
        void (NewDocumentDialog::*slot)();
    } buttons[] = {
        {"cmdWord", "&Word", &NewDocumentDialog::cmdWord_Click},
        {"cmdExcel", "&Excel", &NewDocumentDialog::cmdExcel_Click},
        {"cmdPower", "&PowerPoint", &NewDocumentDialog::cmdPower_Click},
        {"cmdAddExisting", "&Add Existing", &NewDocumentDialog::cmdAddExisting_Click},
    };
    for (const auto& entry : buttons) {
        QPushButton* button
            = makeButton(QString::fromLatin1(entry.name), QString::fromLatin1(entry.caption), frame);
        connect(button, &QPushButton::clicked, this, entry.slot);
        layout->addWidget(button);
    }
    return frame;
}

void NewDocumentDialog::bindControls()
{
    Recordset* row = m_adodc[1];
    m_binder = new FieldBinder(row, this);
    m_binder->Bind(m_txtFields[4], QStringLiteral("DokAntraste"));
    m_binder->Bind(m_sender, QStringLiteral("ContactID"));
    m_binder->Bind(m_txtFields[5], QStringLiteral("RastoKel"));
    m_binder->BindDate(m_txtFields[1], QStringLiteral("DokGavSiuntData"), DateFormat);
    m_binder->BindDate(m_txtFields[2], QStringLiteral("DokRegistracData"), DateFormat);
    m_binder->Bind(m_txtFields[3], QStringLiteral("DokRegistracIndeksas"));
    m_binder->Bind(m_category, QStringLiteral("KategID"));
    m_binder->Bind(m_subCategory, QStringLiteral("SubKategID"));
    m_binder->Bind(m_txtFields[7], QStringLiteral("KryptisID"));
    m_binder->Bind(m_txtFields[0], QStringLiteral("RastasID"));
    m_binder->Bind(m_notes, QStringLiteral("DokPastaba"));

    m_sender->SetRowSource(m_adodc[2], QStringLiteral("FullName"), QStringLiteral("ContactID"));
    m_category->SetRowSource(m_adodc[3], QStringLiteral("DokKategorija"), QStringLiteral("KategID"));
    m_subCategory->SetRowSource(m_adodc[4], QStringLiteral("DokSubKategorija"), QStringLiteral("SubKategID"));
    connect(m_category, &BoundList::Change, this, &NewDocumentDialog::cmbCategory_Change);

    m_tickler = new RecordsetModel(this);
    m_tickler->SetAllowAddNew(true);
    m_tickler->AttachView(m_grid);
}

void NewDocumentDialog::Form_Load()
{
    const BusyCursor busy;
    // An error at any step ends the sequence: the dialog opens with what was done so far.
    try {
        const QString provider = GetRegValue(QStringLiteral("Provider"));
        const QString location = GetRegValue(QStringLiteral("DbLocation"));
        m_adodc[1]->Open(DocumentSource, ShapeUpperConnectionString(provider, location),
            CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);

        m_listConnection = PlainConnectionString(provider, location);
        m_adodc[2]->Open(ContactSource, m_listConnection);
        m_adodc[3]->Open(CategorySource, m_listConnection);

        m_tickler->SetRecordset(m_adodc[1]->Fields(QStringLiteral("ChildCMD")).Chapter());

        DialogReady = false;
        try {
            m_adodc[1]->AddNew();
        } catch (const Error& error) {
            MsgBox(error.description());
        }

        const SelectionState& selection = Selection();
        if (selection.CurrentCategoryId != 0) {
            // The category's change fills the subcategory list before its value is set.
            m_category->SetValue(selection.CurrentCategoryId);
            if (selection.CurrentSubCategoryId != 0)
                m_subCategory->SetValue(selection.CurrentSubCategoryId);
        }

        m_txtFields[3]->setText(MakeRegIndex(m_category->Value()));
        DialogReady = true;

        m_option[1]->setChecked(true);

        const QString today = QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
        m_txtFields[1]->setText(today);
        m_txtFields[2]->setText(today);

        m_tickler->SetColumnHidden(0, true);
        m_tickler->SetColumnHidden(2, true);
        m_tickler->SetColumnCaption(1, QStringLiteral("Date"));
        m_tickler->SetColumnWidth(1, 1000);
        m_tickler->SetColumnCaption(3, QStringLiteral("Text"));
        m_tickler->SetColumnWidth(3, 5200);
    } catch (const Error&) {
        // Silently: the steps that didn't run leave their effect undone.
    }
}

void NewDocumentDialog::SetLocation(const QString& path)
{
    m_txtFields[5]->setText(path);
}

void NewDocumentDialog::cmbCategory_Change()
{
    const QString category = m_category->Value();
    if (category.isEmpty())
        return;
    try {
        m_adodc[4]->Close();
        m_adodc[4]->Open(SubCategorySource + category, m_listConnection);
        // A subcategory never survives a change of category.
        m_subCategory->SetValue(QString());
        QCoreApplication::processEvents();
        if (DialogReady)
            m_txtFields[3]->setText(MakeRegIndex(category));
    } catch (const Error&) {
        // The rest of the change is skipped.
    }
}

void NewDocumentDialog::Option_Click(int index)
{
    m_txtFields[7]->setText(QString::number(index));
}

void NewDocumentDialog::cmdWord_Click()
{
    CreateDocument({QStringLiteral("Unable to create a New Word Document"), QStringLiteral("DokTemplates"),
        QStringLiteral("SubDokTemplates"), &CreateWordDocument});
}

void NewDocumentDialog::cmdExcel_Click()
{
    CreateDocument({QStringLiteral("Unable to create a New Excel Document"),
        QStringLiteral("DokTemplatesExel"), QStringLiteral("SubDokTemplatesExel"), &CreateExcelDocument});
}

void NewDocumentDialog::cmdPower_Click()
{
    CreateDocument(
        {QStringLiteral("Unable to create a New PowerPoint Document"), QStringLiteral("DokTemplatesPowPoint"),
            QStringLiteral("SubDokTemplatesPowPoint"), &CreatePowerPointDocument});
}

void NewDocumentDialog::CreateDocument(const CreatingButton& button)
{
    const QString directory = QDir::currentPath();
    const int warning = MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation;
    const QString category = m_category->Value();
    if (category.isEmpty()) {
        MsgBox(QStringLiteral("Select any Category, please!"), warning, button.title);
        return;
    }
    if (m_txtFields[4]->text().isEmpty()) {
        MsgBox(QStringLiteral("Document Description Required!"), warning, button.title);
        return;
    }
    // A failure (the office program missing, the save refused) ends here without a word,
    // leaving the current directory as it was left.
    try {
        if (m_txtFields[5]->text().isEmpty()) {
            const QString subCategory = m_subCategory->Value();
            // A subcategory's own template, or none: never its category's.
            const QVariant templatePath = subCategory.isEmpty()
                ? GetFieldValue(QStringLiteral("KategID"), button.categoryField,
                    QStringLiteral("tbl_Document_Categories"), ToLong(category))
                : GetFieldValue(QStringLiteral("SubKategID"), button.subCategoryField,
                    QStringLiteral("tbl_Sub_Categories"), ToLong(subCategory));
            const QVariant folder = GetDocumentFolder(category, subCategory);
            const OfficeDocumentRequest request {
                m_txtFields[4]->text(), folder, templatePath, category, m_txtFields[3]->text()};
            const BusyCursor busy;
            button.create(request, [this](const QString& path) { SetLocation(path); });
        }
        QDir::setCurrent(directory);
    } catch (const Error&) { }
}

void NewDocumentDialog::cmdAddExisting_Click()
{
    const QString directory = QDir::currentPath();
    const QString file = ShowOpenDialog({QStringLiteral("Select Document"), directory,
        QStringLiteral("All files (*.*)"), QStringLiteral("*.*")});
    if (file.isEmpty())
        return;
    SetLocation(file);
    QDir::setCurrent(directory);
}

void NewDocumentDialog::cmdOK_Click()
{
    // The row and its reminders in one go; a refused save keeps the dialog and the day's
    // number as they were.
    try {
        m_binder->Validate();
        m_adodc[1]->UpdateBatch(AffectEnum::All);
    } catch (const Error& error) {
        MsgBox(error.description());
        return;
    }
    try {
        const int next = LeadingInteger16(GetRegValue(QStringLiteral("TodayNumber"))) + 1;
        SetRegValue(QStringLiteral("TodayNumber"), QString::number(next));
    } catch (const Error& error) {
        MsgBox(error.description());
    }
    accept();
}

void NewDocumentDialog::cmdCancel_Click()
{
    reject();
}

void NewDocumentDialog::done(int result)
{
    DialogReady = false;
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    QDialog::done(result);
}

void NewDocumentDialog::grdTickler_Enter()
{
    // On to the next cell: from the text, down to the next row's and right.
    m_grid->setFocus(Qt::OtherFocusReason);
    if (m_grid->currentIndex().column() == 3)
        EnterAsTab::SendKey(m_grid, Qt::Key_Down);
    EnterAsTab::SendKey(m_grid, Qt::Key_Right);
}

} // namespace kartella
