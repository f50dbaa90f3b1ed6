#include "categories/CategoryDialogBase.h"

#include "base/Error.h"
#include "categories/CategoryTexts.h"
#include "platform/Prompter.h"
#include "platform/Shell.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"
#include "support/EnterAsTab.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"
#include "support/SelectionState.h"
#include "support/ShellDialogs.h"

#include <QDir>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace kartella {

namespace {

// The smallest size of the dialog, in twips.
constexpr int MinimumWidth = 7300;
constexpr int MinimumHeight = 4000;

QPushButton* makeButton(const QString& name, const QString& caption, QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    // Enter never presses a button of these dialogs by itself.
    button->setAutoDefault(false);
    return button;
}

bool isChooserKey(const QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    return key->key() == Qt::Key_F4 && key->modifiers() == Qt::NoModifier;
}

} // namespace

CategoryDialogBase::CategoryDialogBase(const Names& names, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(names.dialog);
    setWindowTitle(names.caption);
    setModal(true);
    buildWidgets(names);
    setMinimumSize(RecordsetModel::twipsToPixels(MinimumWidth, this),
        RecordsetModel::twipsToPixels(MinimumHeight, this));
    resize(RecordsetModel::twipsToPixels(9600, this), RecordsetModel::twipsToPixels(5600, this));
}

CategoryDialogBase::~CategoryDialogBase() = default;

QLineEdit* CategoryDialogBase::addTextBox(int index)
{
    auto* box = new QLineEdit(this);
    box->setObjectName(QStringLiteral("txtFields_") + QString::number(index));
    return box;
}

void CategoryDialogBase::buildWidgets(const Names& names)
{
    m_categoryId = addTextBox(0);
    m_categoryId->setVisible(false);
    m_title = addTextBox(1);
    m_mnemonic = addTextBox(2);
    m_mnemonic->setMaxLength(MnemonicLength);
    m_folder = addTextBox(3);
    m_wordTemplate = addTextBox(4);
    m_excelTemplate = addTextBox(5);
    m_powerPointTemplate = addTextBox(6);
    m_folder->setAccessibleName(tr("Path To Files"));
    m_wordTemplate->setAccessibleName(tr("Word Template"));
    m_excelTemplate->setAccessibleName(tr("Excel Template"));
    m_powerPointTemplate->setAccessibleName(tr("PowerPoint Template"));

    auto* fields = new QGridLayout;
    const auto addLabelled = [&](int line, const QString& caption, QLineEdit* box) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(box);
        fields->addWidget(label, line, 0);
        fields->addWidget(box, line, 1);
    };
    addLabelled(0, tr("Title of Category:"), m_title);
    addLabelled(1, tr("Mnemonic:"), m_mnemonic);
    const struct
    {
        const char* name;
        const char* caption;
        QLineEdit* box;
        void (CategoryDialogBase::*choose)();
    } choosers[] = {
        {"cmdPath", QT_TR_NOOP("Path To &Files:"), m_folder, &CategoryDialogBase::chooseCategoryFolder},
        {"cmdtemplateWord", QT_TR_NOOP("&Word Template:"), m_wordTemplate,
            &CategoryDialogBase::chooseWordTemplate},
        {"cmdTemplateExcel", QT_TR_NOOP("E&xcel Template:"), m_excelTemplate,
            &CategoryDialogBase::chooseExcelTemplate},
        {"cmdTemplatePP", QT_TR_NOOP("P&owerPoint Template:"), m_powerPointTemplate,
            &CategoryDialogBase::choosePowerPointTemplate},
    };
    int line = 2;
    for (const auto& entry : choosers) {
        QPushButton* button = makeButton(QLatin1String(entry.name), tr(entry.caption), this);
        connect(button, &QPushButton::clicked, this, entry.choose);
        fields->addWidget(button, line, 0);
        fields->addWidget(entry.box, line++, 1);
    }
    for (QLineEdit* box : {m_wordTemplate, m_excelTemplate, m_powerPointTemplate})
        box->installEventFilter(this);

    m_grid = new QTableView(this);
    m_grid->setObjectName(QStringLiteral("grdDataGrid"));
    m_grid->setAccessibleName(tr("Subcategories"));
    m_grid->installEventFilter(this);
    m_grid->viewport()->installEventFilter(this);
    m_subCategoryModel = new RecordsetModel(this);
    m_subCategoryModel->attachView(m_grid);
    // The row Delete acts on is highlighted whole; the last column takes the rest of the width.
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->horizontalHeader()->setStretchLastSection(true);
    connect(m_subCategoryModel, &QAbstractItemModel::modelReset, this,
        &CategoryDialogBase::onSubCategoryRowsChanged);
    connect(m_subCategoryModel, &QAbstractItemModel::layoutChanged, this,
        &CategoryDialogBase::onSubCategoryRowsChanged);
    connect(m_subCategoryModel, &QAbstractItemModel::rowsInserted, this,
        &CategoryDialogBase::onSubCategoryRowsChanged);
    connect(m_subCategoryModel, &QAbstractItemModel::rowsRemoved, this,
        &CategoryDialogBase::onSubCategoryRowsChanged);
    // A double click chooses a folder or a template, or opens one; typing or F2 edits.
    m_grid->setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed
        | QAbstractItemView::AnyKeyPressed);
    connect(m_grid, &QTableView::doubleClicked, this, &CategoryDialogBase::actOnCell);
    for (int column = 2; column <= 6; ++column)
        m_subCategoryModel->setColumnCaption(column, subCategoryCaption(column));

    m_add = makeButton(names.addButton, tr("&Add New SubCategory"), this);
    m_delete = makeButton(QStringLiteral("cmdDelete"), tr("&Delete SubCategory"), this);
    m_ok = makeButton(names.okButton, tr("OK"), this);
    m_cancel = makeButton(QStringLiteral("cmdCancel"), tr("Cancel"), this);
    connect(m_add, &QPushButton::clicked, this, &CategoryDialogBase::addSubCategory);
    connect(m_delete, &QPushButton::clicked, this, &CategoryDialogBase::deleteSubCategory);
    connect(m_ok, &QPushButton::clicked, this, &CategoryDialogBase::save);
    connect(m_cancel, &QPushButton::clicked, this, &CategoryDialogBase::cancel);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_add);
    buttons->addWidget(m_delete);
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(m_grid, 1);
    layout->addLayout(buttons);

    // Field to field first, so that Enter (as Tab) walks the category's boxes; then their
    // chooser buttons, the grid and the buttons beneath it.
    QList<QWidget*> order
        = {m_title, m_mnemonic, m_folder, m_wordTemplate, m_excelTemplate, m_powerPointTemplate};
    for (const auto& entry : choosers)
        order << findChild<QPushButton*>(QLatin1String(entry.name));
    order << m_grid << m_add << m_delete << m_ok << m_cancel;
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);

    m_keys = new EnterAsTab(this);
}

void CategoryDialogBase::bindCategory(Recordset* category)
{
    m_binder = new FieldBinder(category, this);
    m_binder->bind(m_categoryId, QStringLiteral("KategID"));
    m_binder->bind(m_title, QStringLiteral("DokKategorija"));
    m_binder->bind(m_mnemonic, QStringLiteral("Mnemonic"));
    m_binder->bind(m_folder, QStringLiteral("DokKategDaug"));
    m_binder->bind(m_wordTemplate, QStringLiteral("DokTemplates"));
    m_binder->bind(m_excelTemplate, QStringLiteral("DokTemplatesExel"));
    m_binder->bind(m_powerPointTemplate, QStringLiteral("DokTemplatesPowPoint"));
    connect(m_binder, &FieldBinder::changed, this, [this] { m_edited = true; });
}

void CategoryDialogBase::showSubCategories(Recordset* subCategories)
{
    m_subCategoryModel->setRecordset(subCategories);
    m_subCategoryModel->setColumnHidden(0, true);
    m_subCategoryModel->setColumnHidden(1, true);
    for (int column = 2; column <= 6; ++column)
        m_subCategoryModel->setColumnCaption(column, subCategoryCaption(column));
    spreadColumns();
}

void CategoryDialogBase::spreadColumns()
{
    const int width = m_grid->viewport()->width() + m_grid->verticalHeader()->width();
    const int seventh = width / 7;
    for (int column = 2; column <= 5; ++column)
        m_grid->setColumnWidth(column, seventh);
}

void CategoryDialogBase::onSubCategoryRowsChanged()
{
    if (!m_delete)
        return;
    Recordset* rows = m_subCategoryModel->recordset();
    const bool any = rows && rows->isOpen() && rows->recordCount() > 0;
    m_delete->setEnabled(any);
    if (!any)
        return;
    const int row = rows->currentRow();
    if (row < 0 || row >= rows->recordCount() || m_grid->selectionModel()->isRowSelected(row))
        return;
    const int column = m_grid->currentIndex().isValid() ? m_grid->currentIndex().column() : 2;
    m_grid->selectionModel()->setCurrentIndex(m_subCategoryModel->index(row, column),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

bool CategoryDialogBase::reportErrors(const std::function<void()>& action)
{
    try {
        action();
        return true;
    } catch (const Error& error) {
        msgBox(error.description());
        return false;
    }
}

void CategoryDialogBase::fileNewRowUnderCategory(Recordset* rows, qint32 categoryId)
{
    if (categoryId == 0 || !rows->isOpen() || rows->editMode() != EditModeEnum::Add)
        return;
    reportErrors([rows, categoryId] {
        Field key = rows->fields(QStringLiteral("KategID"));
        if (isNull(key.value()))
            key.setValue(categoryId);
    });
}

void CategoryDialogBase::deleteSubCategory()
{
    Recordset* rows = m_subCategoryModel->recordset();
    if (!rows || !rows->isOpen() || rows->recordCount() == 0)
        return;
    // No question: the row goes at once, and the next one (or the last) becomes current.
    reportErrors([rows] {
        rows->deleteRecord(AffectEnum::Current);
        rows->moveNext();
        if (rows->eof())
            rows->moveLast();
    });
    onSubCategoryRowsChanged();
}

void CategoryDialogBase::cancel()
{
    reject();
}

void CategoryDialogBase::askBeforeClosing(const QString& firstLine)
{
    if (!m_edited) {
        cancel();
        return;
    }
    const int answer = msgBox(unappliedChangesQuestion(firstLine),
        MsgBoxStyle::YesNoCancel | MsgBoxStyle::Exclamation, tr("Warning"));
    if (answer == MsgBoxResult::Yes)
        save();
    else if (answer == MsgBoxResult::No)
        cancel();
}

void CategoryDialogBase::chooseCategoryFolder()
{
    const QString directory = QDir::currentPath();
    const QString folder = chooseFolder(categoryFolderPrompt(m_title->text()));
    if (!folder.isEmpty() || restoreFolderAfterEmptyAnswer())
        QDir::setCurrent(directory);
    if (!folder.isEmpty())
        m_folder->setText(folder);
}

void CategoryDialogBase::chooseWordTemplate()
{
    chooseTemplate(m_wordTemplate, 4);
}

void CategoryDialogBase::chooseExcelTemplate()
{
    chooseTemplate(m_excelTemplate, 5);
}

void CategoryDialogBase::choosePowerPointTemplate()
{
    chooseTemplate(m_powerPointTemplate, 6);
}

void CategoryDialogBase::chooseTemplate(QLineEdit* box, int index)
{
    const QString directory = QDir::currentPath();
    const TemplateChooser chooser = categoryTemplateChooser(index);
    const QString file = showOpenDialog({chooser.title, directory, chooser.filterLabel, chooser.pattern});
    if (file.isEmpty())
        return;
    box->setText(file);
    QDir::setCurrent(directory);
}

void CategoryDialogBase::openTemplateOfBox(QLineEdit* box)
{
    if (box->text().isEmpty())
        return;
    const QString directory = QDir::currentPath();
    Shell::instance().open(box->text());
    QDir::setCurrent(directory);
}

QLineEdit* CategoryDialogBase::templateBox(QObject* object) const
{
    for (QLineEdit* box : {m_wordTemplate, m_excelTemplate, m_powerPointTemplate}) {
        if (object == box)
            return box;
    }
    return nullptr;
}

bool CategoryDialogBase::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_grid->viewport() && event->type() == QEvent::Resize)
        spreadColumns();
    // A double click or F4 on a template box opens its template; on a grid cell, the
    // cell's chooser or template.
    const bool chooserKey = isChooserKey(event);
    if (chooserKey || event->type() == QEvent::MouseButtonDblClick) {
        if (QLineEdit* box = templateBox(watched)) {
            openTemplateOfBox(box);
            return true;
        }
        if (watched == m_grid && chooserKey) {
            actOnCell(m_grid->currentIndex());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void CategoryDialogBase::actOnCell(const QModelIndex& index)
{
    Recordset* rows = m_subCategoryModel->recordset();
    // Before the category is saved there is no key to file a subcategory under.
    if (!index.isValid() || !rows || !rows->isOpen() || m_categoryId->text().isEmpty())
        return;
    selection().currentCategoryId = m_categoryId->text().toInt();
    const int row = index.row();
    const int column = index.column();
    if (row >= rows->recordCount())
        return;
    const GridCellAction action = gridCellAction(column);
    if (action.kind == GridCellAction::Nothing)
        return;
    const QString directory = QDir::currentPath();
    const QString cell = rows->rowValue(row, column).toString();
    if (action.kind == GridCellAction::ChooseFolder) {
        const QString folder = chooseFolder(action.folderPrompt);
        if (folder.isEmpty())
            return;
        writeCell(row, column, folder);
    } else if (cell.isEmpty()) {
        const TemplateChooser& chooser = action.chooser;
        const QString file = showOpenDialog({chooser.title, directory, chooser.filterLabel, chooser.pattern});
        if (file.isEmpty())
            return;
        writeCell(row, column, file);
    } else {
        // A set template is opened, never replaced this way: the user clears the cell first.
        Shell::instance().open(cell);
    }
    afterCellAction(row, directory);
}

void CategoryDialogBase::done(int result)
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    QDialog::done(result);
}

} // namespace kartella
