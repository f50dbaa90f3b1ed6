#include "registration/NewDocumentDialog.h"

#include "base/Error.h"
#include "capture/ScanDialog.h"
#include "options/OptionStore.h"
#include "platform/Clock.h"
#include "platform/OfficeSuite.h"
#include "platform/Prompter.h"
#include "registration/DayCounter.h"
#include "registration/FileNaming.h"
#include "registration/RegIndex.h"
#include "registration/RegIndexOffer.h"
#include "registration/ValueConversions.h"
#include "store/Lookups.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "support/BoundList.h"
#include "support/BusyCursor.h"
#include "support/DialogParts.h"
#include "support/EnterAsTab.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"
#include "support/SelectionState.h"
#include "support/ShellDialogs.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
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
#include <QScopeGuard>
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

} // namespace

NewDocumentDialog::NewDocumentDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmNewDocument"));
    setWindowTitle(tr("New Document"));
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
    buildWidgets();
    bindControls();
    load();
    m_tabs->setCurrentIndex(0);
    m_description->setFocus(Qt::OtherFocusReason);
}

NewDocumentDialog::~NewDocumentDialog() = default;

void NewDocumentDialog::buildWidgets()
{
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("SSTab1"));
    m_tabs->addTab(buildGeneralTab(), tr("General"));

    m_grid = new QTableView(this);
    m_grid->setObjectName(QStringLiteral("grdTickler"));
    m_grid->setAccessibleName(tr("Reminders"));
    m_tabs->addTab(m_grid, tr("Tickler"));

    m_notes = new QPlainTextEdit(this);
    m_notes->setObjectName(QStringLiteral("txtFields_6"));
    m_notes->setAccessibleName(tr("Notes"));
    m_notes->setTabChangesFocus(true);
    m_tabs->addTab(m_notes, tr("Notes"));

    m_ok = makeDialogButton(QStringLiteral("cmdOK"), tr("OK"), this);
    m_cancel = makeDialogButton(QStringLiteral("cmdCancel"), tr("Cancel"), this);
    connect(m_ok, &QPushButton::clicked, this, &NewDocumentDialog::save);
    connect(m_cancel, &QPushButton::clicked, this, &NewDocumentDialog::cancel);

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
    m_documentId = makeFieldBox(0, this);
    m_directionCode = makeFieldBox(7, this);
    m_documentId->setVisible(false);
    m_directionCode->setVisible(false);

    // The order of the boxes on the first tab, then the buttons.
    const QList<QWidget*> order = {m_description, m_sender->box(), m_location, m_sentReceivedDate,
        m_registrationDate, m_regIndex, m_category->box(), m_subCategory->box(), m_inner, m_outgoing,
        m_incoming, m_otherDirection, findChild<QPushButton*>(QStringLiteral("cmdWord")),
        findChild<QPushButton*>(QStringLiteral("cmdExcel")),
        findChild<QPushButton*>(QStringLiteral("cmdPower")),
        findChild<QPushButton*>(QStringLiteral("cmdAddExisting")),
        findChild<QPushButton*>(QStringLiteral("cmdScan")), m_ok, m_cancel};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);

    m_keys = new EnterAsTab(this);
    for (QLineEdit* box : {m_documentId, m_sentReceivedDate, m_registrationDate, m_regIndex, m_description,
             m_location, m_directionCode})
        m_keys->watch(box);
    m_keys->watch(m_notes);
    m_keys->onEnter(m_grid, [this] { onReminderGridEnter(); });
    m_keys->onEscape([this] {
        m_escapePressed = true;
        m_cancel->click();
        m_escapePressed = false;
        return true;
    });
    resize(640, 400);
}

QWidget* NewDocumentDialog::buildGeneralTab()
{
    auto* page = new QWidget(this);
    m_description = makeFieldBox(4, this);
    QLineEdit* description = m_description;
    auto* sender = new QComboBox(page);
    sender->setObjectName(QStringLiteral("cmbSender"));
    m_sender = new BoundList(sender, this);
    m_location = makeFieldBox(5, this);
    QLineEdit* location = m_location;
    location->setReadOnly(true);

    auto* dates = new QGroupBox(tr("Date, Index"), page);
    dates->setObjectName(QStringLiteral("fraDateIndex"));
    auto* datesLayout = new QGridLayout(dates);
    m_sentReceivedDate = makeFieldBox(1, this);
    m_registrationDate = makeFieldBox(2, this);
    m_regIndex = makeFieldBox(3, this);
    const std::array<std::pair<QString, QLineEdit*>, 3> dateBoxes
        = {std::pair {tr("Send/Receive Date:"), m_sentReceivedDate},
            std::pair {tr("Registration Date:"), m_registrationDate},
            std::pair {tr("Registration Index:"), m_regIndex}};
    int line = 0;
    for (const auto& [caption, box] : dateBoxes) {
        datesLayout->addWidget(makeBuddyLabel(caption, box, dates), line, 0);
        datesLayout->addWidget(box, line++, 1);
    }

    const CategoryFrame categoryFrame = makeCategoryFrame(page);
    QGroupBox* categories = categoryFrame.frame;
    m_category = new BoundList(categoryFrame.category, this);
    m_subCategory = new BoundList(categoryFrame.subCategory, this);

    const DirectionFrame directions = makeDirectionFrame(page, [this](int code) { onDirectionChosen(code); });
    QGroupBox* direction = directions.frame;
    m_inner = directions.inner;
    m_outgoing = directions.outgoing;
    m_incoming = directions.incoming;
    m_otherDirection = directions.other;

    auto* layout = new QGridLayout(page);
    layout->addWidget(makeBuddyLabel(tr("Description:"), description, page), 0, 0);
    layout->addWidget(description, 0, 1, 1, 2);
    layout->addWidget(makeBuddyLabel(tr("Sender/Receiver:"), sender, page), 1, 0);
    layout->addWidget(sender, 1, 1, 1, 2);
    layout->addWidget(makeBuddyLabel(tr("Location:"), location, page), 2, 0);
    layout->addWidget(location, 2, 1, 1, 2);
    layout->addWidget(dates, 3, 0, 2, 2);
    layout->addWidget(categories, 3, 2);
    layout->addWidget(direction, 4, 2);
    layout->setRowStretch(5, 1);
    return page;
}

QGroupBox* NewDocumentDialog::buildCreateWith()
{
    QGroupBox* frame = makeCreateWithFrame(this,
        {[this] { createWithWord(); }, [this] { createWithExcel(); }, [this] { createWithPowerPoint(); },
            [this] { addExistingFile(); }});
    QPushButton* scan = makeDialogButton(QStringLiteral("cmdScan"), tr("&Scan"), frame);
    connect(scan, &QPushButton::clicked, this, &NewDocumentDialog::scanDocument);
    frame->layout()->addWidget(scan);
    return frame;
}

void NewDocumentDialog::bindControls()
{
    Recordset* row = m_document;
    m_binder = new FieldBinder(row, this);
    m_binder->bind(m_description, QStringLiteral("DokAntraste"));
    m_binder->bind(m_sender, QStringLiteral("ContactID"));
    m_binder->bind(m_location, QStringLiteral("RastoKel"));
    m_binder->bindDate(m_sentReceivedDate, QStringLiteral("DokGavSiuntData"), DateFormat);
    m_binder->bindDate(m_registrationDate, QStringLiteral("DokRegistracData"), DateFormat);
    m_binder->bind(m_regIndex, QStringLiteral("DokRegistracIndeksas"));
    m_binder->bind(m_category, QStringLiteral("KategID"));
    m_binder->bind(m_subCategory, QStringLiteral("SubKategID"));
    m_binder->bind(m_directionCode, QStringLiteral("KryptisID"));
    m_binder->bind(m_documentId, QStringLiteral("RastasID"));
    m_binder->bind(m_notes, QStringLiteral("DokPastaba"));

    m_sender->setRowSource(m_contacts, QStringLiteral("FullName"), QStringLiteral("ContactID"));
    m_category->setRowSource(m_categories, QStringLiteral("DokKategorija"), QStringLiteral("KategID"));
    m_subCategory->setRowSource(
        m_subCategories, QStringLiteral("DokSubKategorija"), QStringLiteral("SubKategID"));
    connect(m_category, &BoundList::changed, this, &NewDocumentDialog::onCategoryChanged);

    m_tickler = new RecordsetModel(this);
    m_tickler->setAllowAddNew(true);
    m_tickler->attachView(m_grid);
}

void NewDocumentDialog::load()
{
    const BusyCursor busy;
    // An error at any step ends the sequence: the dialog opens with what was done so far.
    try {
        const QString provider = getRegValue(QStringLiteral("Provider"));
        const QString location = getRegValue(QStringLiteral("DbLocation"));
        // Opened to add a row: no stored document or reminder is read.
        m_document->setFilterGroup(FilterGroupEnum::PendingRecords);
        m_document->open(DocumentSource, shapeUpperConnectionString(provider, location),
            CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);

        // The index is checked, and the day's number taken, in the transaction of the row.
        guardRegIndex(*m_document, [this] { return m_regIndex->text(); });

        m_listConnection = plainConnectionString(provider, location);
        m_contacts->open(ContactSource, m_listConnection);
        m_categories->open(CategorySource, m_listConnection);

        m_tickler->setRecordset(m_document->fields(QStringLiteral("ChildCMD")).chapter());

        m_indexProposed = false;
        try {
            m_document->addNew();
        } catch (const Error& error) {
            msgBox(error.description());
        }

        const SelectionState& state = selection();
        if (state.currentCategoryId != 0) {
            // The category's change fills the subcategory list before its value is set.
            m_category->setValue(state.currentCategoryId);
            if (state.currentSubCategoryId != 0)
                m_subCategory->setValue(state.currentSubCategoryId);
        }

        // A failed proposal leaves the index empty and nothing else: the dates, the direction
        // and the proposals of later category choices still come.
        proposeRegIndex();
        m_indexProposed = true;

        m_inner->setChecked(true);

        const QString today = QLocale::system().toString(Clock::currentDate(), QLocale::ShortFormat);
        m_sentReceivedDate->setText(today);
        m_registrationDate->setText(today);

        m_tickler->setColumnHidden(0, true);
        m_tickler->setColumnHidden(2, true);
        m_tickler->setColumnCaption(1, tr("Date"));
        m_tickler->setColumnWidth(1, 1000);
        m_tickler->setColumnCaption(3, tr("Text"));
        m_tickler->setColumnWidth(3, 5200);
    } catch (const Error&) {
        // Silently: the steps that didn't run leave their effect undone.
    }
}

void NewDocumentDialog::setLocation(const QString& path)
{
    m_location->setText(path);
}

void NewDocumentDialog::attachIncomingFile(const QString& path, Intake intake)
{
    m_incomingFile = path;
    m_intake = intake;
    setLocation(path);
    if (m_description->text().isEmpty())
        m_description->setText(QFileInfo(path).completeBaseName());
}

bool NewDocumentDialog::placeIncomingFile()
{
    try {
        const QString placed = kartella::placeIncomingFile(m_incomingFile, m_intake,
            {m_category->value(), m_subCategory->value(), m_description->text(), m_regIndex->text()});
        if (placed.isEmpty())
            return false;
        m_placedFile = placed;
        setLocation(placed);
        return true;
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
        return false;
    }
}

void NewDocumentDialog::takeBackIncomingFile()
{
    if (m_placedFile.isEmpty())
        return;
    if (!kartella::takeBackIncomingFile(m_placedFile, m_incomingFile, m_intake))
        msgBox(tr("The file \"%1\" can't be taken back to \"%2\".").arg(m_placedFile, m_incomingFile),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
    m_placedFile.clear();
    setLocation(m_incomingFile);
}

void NewDocumentDialog::onCategoryChanged()
{
    const QString category = m_category->value();
    if (category.isEmpty())
        return;
    try {
        m_subCategories->close();
        m_subCategories->open(SubCategorySource + category, m_listConnection);
        // A subcategory never survives a change of category.
        m_subCategory->setValue(QString());
        QCoreApplication::processEvents();
        if (m_indexProposed)
            proposeRegIndex();
    } catch (const Error&) {
        // The rest of the change is skipped.
    }
}

void NewDocumentDialog::proposeRegIndex()
{
    QString index;
    try {
        index = makeRegIndex(m_category->value());
    } catch (const Error&) {
        // No proposal: the user types the index or leaves it empty.
    }
    m_regIndex->setText(index);
}

void NewDocumentDialog::onDirectionChosen(int index)
{
    m_directionCode->setText(QString::number(index));
}

void NewDocumentDialog::createWithWord()
{
    createDocument({tr("Unable to create a New Word Document"), QStringLiteral("DokTemplates"),
        QStringLiteral("SubDokTemplates"), &createWordDocument});
}

void NewDocumentDialog::createWithExcel()
{
    createDocument({tr("Unable to create a New Excel Document"), QStringLiteral("DokTemplatesExel"),
        QStringLiteral("SubDokTemplatesExel"), &createExcelDocument});
}

void NewDocumentDialog::createWithPowerPoint()
{
    createDocument({tr("Unable to create a New PowerPoint Document"), QStringLiteral("DokTemplatesPowPoint"),
        QStringLiteral("SubDokTemplatesPowPoint"), &createPowerPointDocument});
}

void NewDocumentDialog::createDocument(const CreatingButton& button)
{
    const QString directory = QDir::currentPath();
    const int warning = MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation;
    const QString category = m_category->value();
    if (category.isEmpty()) {
        msgBox(tr("Select any Category, please!"), warning, button.title);
        return;
    }
    if (m_description->text().isEmpty()) {
        msgBox(tr("Document Description Required!"), warning, button.title);
        return;
    }
    // A failure ends here, leaving the current directory as it was left.
    try {
        if (m_location->text().isEmpty()) {
            const QString subCategory = m_subCategory->value();
            // A subcategory's own template, or none: never its category's.
            const QVariant templatePath = subCategory.isEmpty()
                ? getFieldValue(QStringLiteral("KategID"), button.categoryField,
                    QStringLiteral("tbl_Document_Categories"), toLong(category))
                : getFieldValue(QStringLiteral("SubKategID"), button.subCategoryField,
                    QStringLiteral("tbl_Sub_Categories"), toLong(subCategory));
            const QVariant folder = getDocumentFolder(category, subCategory);
            const OfficeDocumentRequest request {
                m_description->text(), folder, templatePath, category, m_regIndex->text()};
            const BusyCursor busy;
            // While LibreOffice works the window paints, but a click in it must not start a
            // second file or close the dialog under the first.
            QWidget* createWith = findChild<QWidget*>(QStringLiteral("fraCreateWith"));
            const QList<QWidget*> held = {createWith, m_ok, m_cancel};
            for (QWidget* widget : held)
                widget->setEnabled(false);
            const auto release = qScopeGuard([&held] {
                for (QWidget* widget : held)
                    widget->setEnabled(true);
            });
            button.create(request, [this](const QString& path) {
                m_madeFile = path;
                setLocation(path);
            });
        }
        QDir::setCurrent(directory);
    } catch (const Error& error) {
        // A missing or stalled office program has had its notice; anything else (an option
        // that can't be read, say) is told here instead of a button that does nothing.
        if (error.number() != OfficeErrorNumber::NotInstalled
            && error.number() != OfficeErrorNumber::TimedOut)
            msgBox(error.description(), warning, button.title);
    }
}

void NewDocumentDialog::scanDocument()
{
    const QString title = tr("Unable to scan a New Document");
    const int warning = MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation;
    if (m_category->value().isEmpty()) {
        msgBox(tr("Select any Category, please!"), warning, title);
        return;
    }
    // The description names the file only under the naming system "1"; else it may be typed
    // after the scan (File > Scan New Document... opens the scan window at once).
    if (m_description->text().isEmpty() && getRegValue(QStringLiteral("FileName")).trimmed() == u'1') {
        msgBox(tr("Document Description Required!"), warning, title);
        return;
    }
    if (!m_location->text().isEmpty()) {
        msgBox(tr("The document has its file already: %1").arg(m_location->text()), warning, title);
        return;
    }
    // The name is taken (and the running number counted) only when Done saves the pages.
    ScanDialog scan([this] { return scannedFilePath(); }, this);
    if (scan.exec() != QDialog::Accepted || scan.savedPath().isEmpty())
        return;
    m_madeFile = scan.savedPath();
    setLocation(m_madeFile);
}

QString NewDocumentDialog::scannedFilePath()
{
    const QString title = tr("Unable to scan a New Document");
    try {
        const QString category = m_category->value();
        const QVariant folder = getDocumentFolder(category, m_subCategory->value());
        const QString path = makeNewFileName(
            m_description->text(), QStringLiteral(".pdf"), folder, category, m_regIndex->text());
        if (path.isEmpty())
            return {};
        if (QFileInfo::exists(path)) {
            msgBox(fileExistsMessage(path), MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, title);
            return {};
        }
        return path;
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, title);
        return {};
    }
}

void NewDocumentDialog::addExistingFile()
{
    const QString directory = QDir::currentPath();
    const QString file
        = showOpenDialog({tr("Select Document"), directory, tr("All files (*.*)"), QStringLiteral("*.*")});
    if (file.isEmpty())
        return;
    setLocation(file);
    QDir::setCurrent(directory);
}

void NewDocumentDialog::save()
{
    // The row and its reminders in one go; a refused save keeps the dialog and the day's
    // number as they were.
    try {
        for (;;) {
            m_binder->validate();
            // The file first, so that the stored row never names a file that isn't there. A
            // file chosen with Add Existing since stands in its stead, and is left where it is.
            if (!m_incomingFile.isEmpty() && m_location->text() == m_incomingFile && !placeIncomingFile())
                return;
            try {
                m_document->updateBatch(AffectEnum::All);
                break;
            } catch (const Error& error) {
                takeBackIncomingFile();
                if (error.number() != ErrorNumber::DuplicateValue)
                    throw;
            }
            if (!offerFreeRegIndex(m_regIndex, m_listConnection, windowTitle()))
                return;
        }
    } catch (const Error& error) {
        msgBox(error.description());
        return;
    }
    countInOptions();
    accept();
}

void NewDocumentDialog::countInOptions()
{
    // A register that keeps the day's counter has counted already, in the row's transaction.
    try {
        Connection connection;
        connection.open(m_listConnection);
        if (registerKeepsDayCounter(connection))
            return;
        const int next = leadingInteger16(getRegValue(QStringLiteral("TodayNumber"))) + 1;
        setRegValue(QStringLiteral("TodayNumber"), QString::number(next));
    } catch (const Error& error) {
        msgBox(error.description());
    }
}

void NewDocumentDialog::cancel()
{
    m_cancelPressed = true;
    reject();
    m_cancelPressed = false;
}

void NewDocumentDialog::reject()
{
    // Nothing reaches the register before OK; a file a creating button made is taken back
    // too, once the user agrees. No keeps the dialog open.
    if (!m_madeFile.isEmpty()) {
        const QString question
            = tr("Discard the new document and delete the file \"%1\" made for it?").arg(m_madeFile);
        if (msgBox(question, MsgBoxStyle::YesNo | MsgBoxStyle::Question, windowTitle()) != MsgBoxResult::Yes)
            return;
        QFile file(m_madeFile);
        if (file.exists() && !file.remove()) {
            msgBox(tr("The file \"%1\" can't be deleted: %2").arg(m_madeFile, file.errorString()),
                MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
        }
        m_madeFile.clear();
    }
    // Esc, and the close box that bypasses the buttons, stop what was to follow the dialog.
    m_closedByEscape = m_escapePressed || !m_cancelPressed;
    QDialog::reject();
}

void NewDocumentDialog::done(int result)
{
    m_indexProposed = false;
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    QDialog::done(result);
}

void NewDocumentDialog::onReminderGridEnter()
{
    // On to the next cell: from the text, down to the next row's and right.
    m_grid->setFocus(Qt::OtherFocusReason);
    if (m_grid->currentIndex().column() == 3)
        EnterAsTab::sendKey(m_grid, Qt::Key_Down);
    EnterAsTab::sendKey(m_grid, Qt::Key_Right);
}

} // namespace kartella
