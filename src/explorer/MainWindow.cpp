#include "explorer/MainWindow.h"

#include "base/Error.h"
#include "dialogs/MissingRegister.h"
#include "dialogs/SettingsStore.h"
#include "explorer/ContentProgress.h"
#include "explorer/DeletedItemsNode.h"
#include "explorer/DocumentFills.h"
#include "explorer/DocumentQueries.h"
#include "explorer/ExplorerList.h"
#include "explorer/FileDrops.h"
#include "explorer/IconCache.h"
#include "explorer/InboxView.h"
#include "explorer/ListModel.h"
#include "explorer/NavigationTree.h"
#include "explorer/RegisterUpgradeOffer.h"
#include "explorer/RemindersCommand.h"
#include "explorer/ShareNotice.h"
#include "options/OptionStore.h"
#include "platform/Clock.h"
#include "platform/Prompter.h"
#include "store/DefaultRegister.h"
#include "store/Schema.h"
#include "store/engine/SqliteBackend.h"
#include "support/BusyCursor.h"
#include "support/SelectionState.h"
#include "support/Splitter.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>

namespace kartella {

namespace {
// How long each opening of the register waits for another program's lock at the start.
constexpr int StartLockWaitMs = 1500;
} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_state(selection())
{
    setObjectName(QStringLiteral("Form2"));
    setWindowTitle(QStringLiteral("Kartella"));
    buildWindow();
    m_fills = std::make_unique<DocumentFills>(*m_documentModel, m_state);
    m_fills->setCount = [this](const QString& text) { m_count->setText(text); };
    m_fills->disableDocumentCommands = [this] { disableDocumentCommands(); };
    // A search's whole list replaces its first page under the same selection.
    m_fills->handOverSearch = [this](const std::function<void()>& handOver) {
        const KeptSelection kept = keptSelection();
        handOver();
        restoreSelection(kept);
    };
    m_fills->reportError
        = [this](long number, const QString& description) { reportConnectionError(number, description); };
    popupMenu = [](QMenu* menu, const QPoint& pos) { menu->exec(pos); };
}

MainWindow::~MainWindow() = default;

void MainWindow::buildWindow()
{
    m_band = addToolBar(tr("Band"));
    m_band->setObjectName(QStringLiteral("CoolBar1"));
    m_band->setMovable(false);

    m_direction = new QComboBox(m_band);
    m_direction->setObjectName(QStringLiteral("cboDirection"));
    m_direction->setToolTip(tr("Direction"));
    m_direction->setAccessibleName(tr("Direction"));
    // The list's index is the direction code the queries take; the texts are only shown.
    m_direction->addItems({tr("All"), tr("Inner"), tr("Outgoing"), tr("Incoming"), tr("Other")});

    m_startDate = new QDateEdit(m_band);
    m_startDate->setObjectName(QStringLiteral("txtStartDate"));
    m_startDate->setToolTip(tr("Set Start Date"));
    m_startDate->setAccessibleName(tr("Start date"));
    m_endDate = new QDateEdit(m_band);
    m_endDate->setObjectName(QStringLiteral("txtEndDate"));
    m_endDate->setToolTip(tr("Set End Date"));
    m_endDate->setAccessibleName(tr("End date"));
    for (QDateEdit* picker : {m_startDate, m_endDate}) {
        picker->setCalendarPopup(true);
        // Typing a date counts once it is complete (Enter or leaving the box), not per digit.
        picker->setKeyboardTracking(false);
    }
    m_band->addSeparator();
    m_band->addWidget(m_direction);
    m_band->addWidget(m_startDate);
    m_band->addWidget(m_endDate);
    buildSearch();

    m_tree = new NavigationTree(this);
    m_tree->setObjectName(QStringLiteral("acxTreeKategorijos"));
    m_tree->setAccessibleName(tr("Navigation tree"));

    IconCache& icons = IconCache::shared();
    m_documentModel = new ListModel(&icons, this);
    m_relatedModel = new ListModel(&icons, this);
    m_documents = new ExplorerList(m_documentModel, this);
    m_documents->setObjectName(QStringLiteral("ListDokSarasas"));
    m_documents->setAccessibleName(tr("Documents"));
    m_documents->setToolTip(tr("Click on column header to sort list entries in alternating sequence."));
    m_related = new ExplorerList(m_relatedModel, this);
    m_related->setObjectName(QStringLiteral("ListSusieti"));
    m_related->setAccessibleName(tr("Related documents"));
    // The search results show in the document list, in its columns and widths.
    m_documents->rememberColumnWidths(QStringLiteral("DocumentListColumns"));
    m_related->rememberColumnWidths(QStringLiteral("RelatedListColumns"));
    m_documents->rememberSort(QStringLiteral("DocumentListSort"));
    m_related->rememberSort(QStringLiteral("RelatedListSort"));

    m_listSplit = new QSplitter(Qt::Vertical, this);
    m_listSplit->setObjectName(QStringLiteral("splitLists"));
    m_listSplit->addWidget(m_documents);
    m_listSplit->addWidget(m_related);
    m_listSplit->setChildrenCollapsible(false);
    m_mainSplit = new QSplitter(Qt::Horizontal, this);
    m_mainSplit->setObjectName(QStringLiteral("splitMain"));
    m_mainSplit->addWidget(m_tree);
    m_mainSplit->addWidget(m_listSplit);
    m_mainSplit->setChildrenCollapsible(false);
    m_mainSplit->setStretchFactor(1, 1);
    setCentralWidget(m_mainSplit);

    QStatusBar* status = statusBar();
    status->setObjectName(QStringLiteral("StatusBar1"));
    m_count = new QLabel(status);
    m_count->setObjectName(QStringLiteral("pnCount"));
    m_count->setToolTip(tr("Object(s) count"));
    m_count->setMinimumWidth(120);
    m_source = new QLabel(status);
    m_source->setObjectName(QStringLiteral("pnSource"));
    m_source->setToolTip(tr("Location of Data Source "));
    status->addWidget(m_count);
    status->addWidget(m_source, 1);
    m_shareNotice = new ShareNotice(status);

    resize(1100, 700);

    // The three gaps: tree and lists side by side, the document list over the related one.
    m_splitters[0] = new Splitter(this);
    m_splitters[0]->create(m_mainSplit, true, 0, storedTreeSplit(30));
    m_splitters[1] = new Splitter(this);
    m_splitters[1]->create(m_listSplit, false, 0, 80);

    buildMenus();
    buildToolbar();
    buildPopups();
    m_reminders = new RemindersCommand(this);
    m_contentProgress = new ContentProgress(this);
    registerDialogs();
    restoreLayout();

    connect(m_tree, &NavigationTree::nodeClicked, this, &MainWindow::onNodeClicked);
    connect(m_tree, &NavigationTree::pressed, this, &MainWindow::onTreePressed);
    connect(m_documents, &ExplorerList::itemClicked, this, &MainWindow::onDocumentClicked);
    connect(m_documents, &ExplorerList::doubleClickedItem, this, &MainWindow::onDocumentDoubleClicked);
    connect(m_documents, &ExplorerList::columnClicked, this, &MainWindow::onDocumentColumnClicked);
    connect(m_documents, &ExplorerList::pressed, this, &MainWindow::onDocumentListPressed);
    connect(m_documents, &ExplorerList::filesDropped, this, &MainWindow::onFilesDropped);
    connect(m_documents, &ExplorerList::fileDroppedOnItem, this, &MainWindow::onFileDroppedOnDocument);
    connect(m_related, &ExplorerList::itemClicked, this, &MainWindow::onRelatedClicked);
    connect(m_related, &ExplorerList::filesDropped, this, &MainWindow::onRelatedFilesDropped);
    connect(m_documents, &ExplorerList::highlightCleared, this, &MainWindow::onDocumentHighlightCleared);
    connect(m_related, &ExplorerList::highlightCleared, this, &MainWindow::onRelatedHighlightCleared);
    connect(m_related, &ExplorerList::doubleClickedItem, this, &MainWindow::onRelatedDoubleClicked);
    connect(m_related, &ExplorerList::columnClicked, this, &MainWindow::onRelatedColumnClicked);
    connect(m_related, &ExplorerList::pressed, this, &MainWindow::onRelatedListPressed);

    // A document's file can be dragged out as a file list; files dropped on the list register.
    m_documentModel->dragFiles = [this] {
        return m_state.selectedFilePath.isEmpty() ? QStringList() : QStringList {m_state.selectedFilePath};
    };
    m_documents->setDragFilesOut(true);
    m_documents->setAcceptFileDrops(true);
    m_related->setAcceptFileDrops(true);
    buildPreview();
    m_inbox = new InboxView(this);
    m_drops = new FileDrops(this);
}

bool MainWindow::fileFound(const QString& path)
{
    return !path.isEmpty() && QFileInfo::exists(path);
}

QString MainWindow::defaultDbLocation()
{
    return defaultRegisterPath();
}

void MainWindow::offerDefaultRegister()
{
    const QString location = getRegValue(QStringLiteral("DbLocation"));
    if (!defaultRegisterInDataFolder() || location != defaultDbLocation() || fileFound(location))
        return;
    const int answer
        = msgBox(tr("There is no register at %1 yet.\n\nCreate an empty register there?").arg(location),
            MsgBoxStyle::YesNo + MsgBoxStyle::Question, QStringLiteral("Kartella"));
    if (answer != MsgBoxResult::Yes)
        return;
    try {
        const BusyCursor busy;
        QDir().mkpath(QFileInfo(location).absolutePath());
        createRegister(location);
    } catch (const Error& error) {
        // The connection message that follows names the register that couldn't be opened.
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, QStringLiteral("Kartella"));
    }
}

void MainWindow::load()
{
    m_loading = true;
    // A register locked by another program is reported after a few seconds, not after
    // the full wait of every statement. Each step that opens the register shows the busy
    // pointer while it works; the questions and messages between them show the normal one.
    const engine::OpeningWait shortWait(StartLockWaitMs);
    // 1. Options that name no register get the default one; a register file that isn't
    // there is the user's to settle (or to leave for the settings). A register on a server
    // is opened as it stands: it is never replaced, created or looked for on disk.
    const bool located = settleRegisterLocation(defaultDbLocation());
    if (located)
        offerDefaultRegister();
    // 2. The source panel, with the location as the options hold it.
    const QString location = getRegValue(QStringLiteral("DbLocation"));
    m_shownRegister = location;
    m_source->setText(sourcePanelText(location));
    m_shareNotice->registerOpened(location);
    // Before any fill: a register of an earlier version is upgraded if the user agrees, and
    // otherwise counts as one that can't be opened. So does a server that can't be reached,
    // so that the start waits for it once rather than at every fill.
    const std::optional<Error> refused = located ? offerRegisterUpgrade(location) : std::nullopt;
    if (located && !refused)
        purgeOldDeletedItems();
    // 4. This month, from its first day to the first day of the next.
    const QDate today = Clock::currentDate();
    const QDate first(today.year(), today.month(), 1);
    m_startDate->setDate(first);
    m_endDate->setDate(first.addMonths(1));
    // 5, 6.
    showRelatedList(false);
    m_state.selectedFilePath.clear();
    m_state.currentCategoryId = 0;
    m_state.currentSubCategoryId = 0;
    m_state.currentNodeKind = QStringLiteral("a");
    m_categoryView = true;
    m_lastNodeIndex = 1;
    m_lastNodeKey = QStringLiteral("ALL");
    // 7. The direction box's click makes the first fill.
    m_direction->setCurrentIndex(0);
    if (located && !refused)
        onDirectionChanged();
    connect(m_direction, &QComboBox::currentIndexChanged, this, &MainWindow::onDirectionChanged);
    connect(m_startDate, &QDateEdit::dateChanged, this, &MainWindow::onStartDateChanged);
    connect(m_endDate, &QDateEdit::dateChanged, this, &MainWindow::onEndDateChanged);
    m_loading = false;
    // 8.
    if (!located || refused) {
        if (refused)
            reportConnectionError(refused->number(), refused->description());
        if (openSettings)
            openSettings();
        return;
    }
    // The tree as the user last left it.
    if (storedContactView())
        switchView(false);
    else
        fillCategoryTree();
    m_reminders->showAtStart();
    m_contentProgress->start(location);
}

int MainWindow::direction() const
{
    return qMax(0, m_direction->currentIndex());
}

void MainWindow::onDirectionChanged()
{
    if (m_inbox->isShown())
        return;
    if (refillSearch())
        return;
    const int code = direction();
    if (m_categoryView) {
        if (m_state.currentNodeKind == QLatin1String("b"))
            listSubCategory(m_state.currentCategoryId, m_state.currentSubCategoryId, code);
        else if (m_state.currentNodeKind == QLatin1String("a"))
            listCategory(m_state.currentCategoryId, code);
    } else if (m_state.currentLetterCode != 0) {
        listByLetter(m_state.currentLetterCode, code);
    } else {
        listByContact(code);
    }
}

void MainWindow::onStartDateChanged()
{
    dateChanged(tr("Select Start Date LESS then End Date, please"));
}

void MainWindow::onEndDateChanged()
{
    dateChanged(tr("Select End Date GREATHER then Start Date, please."));
}

void MainWindow::dateChanged(const QString& message)
{
    if (m_endDate->date() < m_startDate->date()) {
        msgBox(message, MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, tr("Date Set Error"));
        return;
    }
    refillByDates();
}

void MainWindow::refillByDates()
{
    if (m_inbox->isShown())
        return;
    if (refillSearch(true))
        return;
    const int code = direction();
    if (m_categoryView) {
        if (m_state.currentNodeKind == QLatin1String("b"))
            listSubCategoryWithinDates(m_state.currentCategoryId, m_state.currentSubCategoryId, code);
        else if (m_state.currentNodeKind == QLatin1String("a"))
            listCategoryWithinDates(m_state.currentCategoryId, code);
    } else if (m_state.currentLetterCode != 0) {
        listByLetterWithinDates(m_state.currentLetterCode, code);
    } else {
        listByContactWithinDates(code);
    }
}

void MainWindow::runFill(const std::function<void()>& fill)
{
    try {
        const BusyCursor busy;
        fill();
    } catch (const Error& error) {
        // At start the tree reports an unusable register, right after this first fill.
        if (!m_loading)
            reportConnectionError(error.number(), error.description());
    }
}

void MainWindow::reportConnectionError(long number, const QString& description)
{
    // The location in the description may hold a password the user typed into it.
    msgBox(tr("Error: %1 %2\rSelect correct database type and file, please!")
               .arg(QString::number(number), withoutPasswords(description)),
        MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, tr("Connection to database error:"));
}

void MainWindow::listCategory(qint32 category, int direction)
{
    m_refill = [this, category, direction] { listCategory(category, direction); };
    runFill([&] {
        m_fills->fillDocumentList(
            categoryListSql(category, direction, filterOptionOn(), m_startDate->date(), m_endDate->date()));
    });
}

void MainWindow::listCategoryWithinDates(qint32 category, int direction)
{
    m_refill = [this, category, direction] { listCategoryWithinDates(category, direction); };
    runFill([&] {
        m_fills->fillDocumentList(
            categoryDatedListSql(category, direction, m_startDate->date(), m_endDate->date()));
    });
}

void MainWindow::listSubCategory(qint32 category, qint32 subCategory, int direction)
{
    m_refill
        = [this, category, subCategory, direction] { listSubCategory(category, subCategory, direction); };
    runFill([&] {
        m_fills->fillDocumentList(subCategoryListSql(
            category, subCategory, direction, filterOptionOn(), m_startDate->date(), m_endDate->date()));
    });
}

void MainWindow::listSubCategoryWithinDates(qint32 category, qint32 subCategory, int direction)
{
    m_refill = [this, category, subCategory, direction] {
        listSubCategoryWithinDates(category, subCategory, direction);
    };
    runFill([&] {
        m_fills->fillDocumentList(subCategoryDatedListSql(
            category, subCategory, direction, m_startDate->date(), m_endDate->date()));
    });
}

void MainWindow::listByLetter(qint16 letterCode, int direction)
{
    m_refill = [this, letterCode, direction] { listByLetter(letterCode, direction); };
    runFill([&] {
        m_fills->fillLetterList(
            contactDocumentSql(direction, filterOptionOn(), m_startDate->date(), m_endDate->date()),
            letterCode);
    });
}

void MainWindow::listByContact(int direction)
{
    m_refill = [this, direction] { listByContact(direction); };
    runFill([&] {
        m_fills->fillContactDocumentList(
            contactDocumentSql(direction, filterOptionOn(), m_startDate->date(), m_endDate->date()));
    });
}

void MainWindow::listByLetterWithinDates(qint16 letterCode, int direction)
{
    m_refill = [this, letterCode, direction] { listByLetterWithinDates(letterCode, direction); };
    runFill([&] {
        m_fills->fillLetterList(
            contactDatedDocumentSql(direction, m_startDate->date(), m_endDate->date()), letterCode);
    });
}

void MainWindow::listByContactWithinDates(int direction)
{
    m_refill = [this, direction] { listByContactWithinDates(direction); };
    runFill([&] {
        m_fills->fillContactDocumentList(
            contactDatedDocumentSql(direction, m_startDate->date(), m_endDate->date()));
    });
}

} // namespace kartella
