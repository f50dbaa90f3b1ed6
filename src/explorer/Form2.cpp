#include "explorer/Form2.h"

#include "explorer/DocumentFills.h"
#include "explorer/DocumentQueries.h"
#include "explorer/ExplorerList.h"
#include "explorer/IconCache.h"
#include "explorer/ListModel.h"
#include "explorer/NavigationTree.h"
#include "explorer/SelectionState.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "registration/NewDocumentDialog.h"
#include "support/BusyCursor.h"
#include "support/Error.h"
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

Form2::Form2(QWidget* parent)
    : QMainWindow(parent)
    , m_state(Selection())
{
    setObjectName(QStringLiteral("Form2"));
    setWindowTitle(QStringLiteral("Kartella"));
    buildWindow();
    m_fills = std::make_unique<DocumentFills>(*m_documentModel, m_state);
    m_fills->setCount = [this](const QString& text) { m_count->setText(text); };
    m_fills->disableDocumentCommands = [this] { DisableDocumentCommands(); };
    popupMenu = [](QMenu* menu, const QPoint& pos) { menu->exec(pos); };
}

Form2::~Form2() = default;

void Form2::buildWindow()
{
    m_coolBar = addToolBar(QStringLiteral("Band"));
    m_coolBar->setObjectName(QStringLiteral("CoolBar1"));
    m_coolBar->setMovable(false);

    m_direction = new QComboBox(m_coolBar);
    m_direction->setObjectName(QStringLiteral("cboDirection"));
    m_direction->setToolTip(QStringLiteral("Direction"));
    m_direction->setAccessibleName(QStringLiteral("Direction"));
    m_direction->addItems({QStringLiteral("All"), QStringLiteral("Inner"), QStringLiteral("Outgoing"),
        QStringLiteral("Incoming"), QStringLiteral("Other")});

    m_startDate = new QDateEdit(m_coolBar);
    m_startDate->setObjectName(QStringLiteral("txtStartDate"));
    m_startDate->setToolTip(QStringLiteral("Set Start Date"));
    m_startDate->setAccessibleName(QStringLiteral("Start date"));
    m_endDate = new QDateEdit(m_coolBar);
    m_endDate->setObjectName(QStringLiteral("txtEndDate"));
    m_endDate->setToolTip(QStringLiteral("Set End Date"));
    m_endDate->setAccessibleName(QStringLiteral("End date"));
    for (QDateEdit* picker : {m_startDate, m_endDate}) {
        picker->setCalendarPopup(true);
        // Typing a date counts once it is complete (Enter or leaving the box), not per digit.
        picker->setKeyboardTracking(false);
    }
    m_coolBar->addSeparator();
    m_coolBar->addWidget(m_direction);
    m_coolBar->addWidget(m_startDate);
    m_coolBar->addWidget(m_endDate);

    m_tree = new NavigationTree(this);
    m_tree->setObjectName(QStringLiteral("acxTreeKategorijos"));
    m_tree->setAccessibleName(QStringLiteral("Navigation tree"));

    IconCache& icons = IconCache::shared();
    m_documentModel = new ListModel(&icons, this);
    m_relatedModel = new ListModel(&icons, this);
    m_documents = new ExplorerList(m_documentModel, this);
    m_documents->setObjectName(QStringLiteral("ListDokSarasas"));
    m_documents->setAccessibleName(QStringLiteral("Documents"));
    m_documents->setToolTip(
        QStringLiteral("Click on column header to sort list entries in alternating sequence."));
    m_related = new ExplorerList(m_relatedModel, this);
    m_related->setObjectName(QStringLiteral("ListSusieti"));
    m_related->setAccessibleName(QStringLiteral("Related documents"));

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
    m_count->setToolTip(QStringLiteral("Object(s) count"));
    m_count->setMinimumWidth(120);
    m_source = new QLabel(status);
    m_source->setObjectName(QStringLiteral("pnSource"));
    m_source->setToolTip(QStringLiteral("Location of Data Source "));
    status->addWidget(m_count);
    status->addWidget(m_source, 1);

    resize(1100, 700);

    // The three gaps: tree and lists side by side, the document list over the related one.
    m_splitters[0] = new CSplitter(this);
    m_splitters[0]->Create(m_mainSplit, true, 0, 30);
    m_splitters[1] = new CSplitter(this);
    m_splitters[1]->Create(m_listSplit, false, 0, 80);

    buildMenus();
    buildToolbar();
    buildPopups();
    setDialog(QStringLiteral("frmNewDocument"), [this](const QString& file) {
        NewDocumentDialog dialog(this);
        if (!file.isEmpty())
            dialog.SetLocation(file);
        dialog.exec();
    });

    connect(m_tree, &NavigationTree::NodeClick, this, &Form2::acxTreeKategorijos_NodeClick);
    connect(m_tree, &NavigationTree::MouseDown, this, &Form2::acxTreeKategorijos_MouseDown);
    connect(m_documents, &ExplorerList::ItemClick, this, &Form2::ListDokSarasas_ItemClick);
    connect(m_documents, &ExplorerList::DblClick, this, &Form2::ListDokSarasas_DblClick);
    connect(m_documents, &ExplorerList::ColumnClick, this, &Form2::ListDokSarasas_ColumnClick);
    connect(m_documents, &ExplorerList::MouseDown, this, &Form2::ListDokSarasas_MouseDown);
    connect(m_documents, &ExplorerList::filesDropped, this, &Form2::ListDokSarasas_OLEDragDrop);
    connect(m_related, &ExplorerList::ItemClick, this, &Form2::ListSusieti_ItemClick);
    connect(m_related, &ExplorerList::DblClick, this, &Form2::ListSusieti_DblClick);
    connect(m_related, &ExplorerList::ColumnClick, this, &Form2::ListSusieti_ColumnClick);
    connect(m_related, &ExplorerList::MouseDown, this, &Form2::ListSusieti_MouseDown);

    // A document's file can be dragged out as a file list; files dropped on the list register.
    m_documentModel->dragFiles = [this] {
        return m_state.SelectedFilePath.isEmpty() ? QStringList() : QStringList {m_state.SelectedFilePath};
    };
    m_documents->setDragFilesOut(true);
    m_documents->setAcceptFileDrops(true);
}

bool Form2::FileFound(const QString& path)
{
    return !path.isEmpty() && QFileInfo::exists(path);
}

QString Form2::DefaultDbLocation()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + QStringLiteral("/Kartella.mdb"));
}

void Form2::Form_Load()
{
    m_loading = true;
    // 1. A register that isn't there gives way to the default one.
    if (!FileFound(GetRegValue(QStringLiteral("DbLocation"))))
        SetRegValue(QStringLiteral("Dblocation"), DefaultDbLocation());
    // 2. The source panel.
    m_source->setText(
        QStringLiteral("Source : ") + GetRegValue(QStringLiteral("DbLocation")) + QStringLiteral("   "));
    // 4. This month, from its first day to the first day of the next.
    const QDate today = QDate::currentDate();
    const QDate first(today.year(), today.month(), 1);
    m_startDate->setDate(first);
    m_endDate->setDate(first.addMonths(1));
    // 5, 6.
    showRelatedList(false);
    m_state.SelectedFilePath.clear();
    m_state.CurrentCategoryId = 0;
    m_state.CurrentSubCategoryId = 0;
    m_state.CurrentNodeKind = QStringLiteral("a");
    CategoryView = true;
    LastNodeIndex = 1;
    // 7. The direction box's click makes the first fill.
    m_direction->setCurrentIndex(0);
    cboDirection_Click();
    connect(m_direction, &QComboBox::currentIndexChanged, this, &Form2::cboDirection_Click);
    connect(m_startDate, &QDateEdit::dateChanged, this, &Form2::txtStartDate_Change);
    connect(m_endDate, &QDateEdit::dateChanged, this, &Form2::txtEndDate_Change);
    m_loading = false;
    // 8.
    FillCategoryTree();
}

int Form2::direction() const
{
    return qMax(0, m_direction->currentIndex());
}

void Form2::cboDirection_Click()
{
    const int code = direction();
    if (CategoryView) {
        if (m_state.CurrentNodeKind == QLatin1String("b"))
            modListDocum2(m_state.CurrentCategoryId, m_state.CurrentSubCategoryId, code);
        else if (m_state.CurrentNodeKind == QLatin1String("a"))
            modListDocum1(m_state.CurrentCategoryId, code);
    } else if (m_state.CurrentLetterCode != 0) {
        ListByLetter(m_state.CurrentLetterCode, code);
    } else {
        ListByContact(code);
    }
}

void Form2::txtStartDate_Change()
{
    dateChanged(QStringLiteral("Select Start Date LESS then End Date, please"));
}

void Form2::txtEndDate_Change()
{
    dateChanged(QStringLiteral("Select End Date GREATHER then Start Date, please."));
}

void Form2::dateChanged(const QString& message)
{
    if (m_endDate->date() < m_startDate->date()) {
        MsgBox(message, MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, QStringLiteral("Date Set Error"));
        return;
    }
    RefillByDates();
}

void Form2::RefillByDates()
{
    const int code = direction();
    if (CategoryView) {
        if (m_state.CurrentNodeKind == QLatin1String("b"))
            modListDocum22(m_state.CurrentCategoryId, m_state.CurrentSubCategoryId, code);
        else if (m_state.CurrentNodeKind == QLatin1String("a"))
            modListDocum12(m_state.CurrentCategoryId, code);
    } else if (m_state.CurrentLetterCode != 0) {
        ListByLetterDated(m_state.CurrentLetterCode, code);
    } else {
        ListByContactDated(code);
    }
}

void Form2::runFill(const std::function<void()>& fill)
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

void Form2::reportConnectionError(long number, const QString& description)
{
    MsgBox(QStringLiteral("Error: ") + QString::number(number) + u' ' + description
            + QStringLiteral("\rSelect correct database type and file, please!"),
        MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, QStringLiteral("Connection to database error:"));
}

void Form2::modListDocum1(qint32 category, int direction)
{
    runFill([&] {
        m_fills->FillDocumentList(
            CategoryListSql(category, direction, FilterOptionOn(), m_startDate->date(), m_endDate->date()));
    });
}

void Form2::modListDocum12(qint32 category, int direction)
{
    runFill([&] {
        m_fills->FillDocumentList(
            CategoryDatedListSql(category, direction, m_startDate->date(), m_endDate->date()));
    });
}

void Form2::modListDocum2(qint32 category, qint32 subCategory, int direction)
{
    runFill([&] {
        m_fills->FillDocumentList(SubCategoryListSql(
            category, subCategory, direction, FilterOptionOn(), m_startDate->date(), m_endDate->date()));
    });
}

void Form2::modListDocum22(qint32 category, qint32 subCategory, int direction)
{
    runFill([&] {
        m_fills->FillDocumentList(SubCategoryDatedListSql(
            category, subCategory, direction, m_startDate->date(), m_endDate->date()));
    });
}

void Form2::ListByLetter(qint16 letterCode, int direction)
{
    runFill([&] {
        m_fills->FillLetterList(
            ContactDocumentSql(direction, FilterOptionOn(), m_startDate->date(), m_endDate->date()),
            letterCode);
    });
}

void Form2::ListByContact(int direction)
{
    runFill([&] {
        m_fills->FillContactDocumentList(
            ContactDocumentSql(direction, FilterOptionOn(), m_startDate->date(), m_endDate->date()));
    });
}

void Form2::ListByLetterDated(qint16 letterCode, int direction)
{
    runFill([&] {
        m_fills->FillLetterList(
            ContactDatedDocumentSql(direction, m_startDate->date(), m_endDate->date()), letterCode);
    });
}

void Form2::ListByContactDated(int direction)
{
    runFill([&] {
        m_fills->FillContactDocumentList(
            ContactDatedDocumentSql(direction, m_startDate->date(), m_endDate->date()));
    });
}

} // namespace kartella
