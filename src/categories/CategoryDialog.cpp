#include "categories/CategoryDialog.h"

#include "base/Error.h"
#include "categories/CategoryTexts.h"
#include "history/Trash.h"
#include "history/TrashCommands.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"
#include "support/BusyCursor.h"
#include "support/ChangedRowPrompt.h"
#include "support/DialogParts.h"
#include "support/EnterAsTab.h"
#include "support/RecordsetModel.h"
#include "support/SelectionState.h"

#include <QDir>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace kartella {

CategoryDialog::CategoryDialog(QWidget* parent)
    : CategoryDialogBase(
        {QStringLiteral("frmCategory"), tr("Category"), QStringLiteral("cmdAdd"), QStringLiteral("cmdClose")},
        parent)
{
    for (QLineEdit* box : {m_wordTemplate, m_excelTemplate, m_powerPointTemplate})
        box->setToolTip(tr("To edit template double click this field"));
    m_category = new Recordset(this);
    m_category->setObjectName(QStringLiteral("CategoryRecordset"));
    m_subCategories = new Recordset(this);
    m_subCategories->setObjectName(QStringLiteral("SubCategoryRecordset"));
    bindCategory(m_category);
    connect(m_subCategories, &Recordset::moveComplete, this,
        [this] { fileNewRowUnderCategory(m_subCategories, m_categoryKey); });
    connect(m_subCategoryModel, &RecordsetModel::edited, this, [this] { m_edited = true; });
    m_keys->onEscape([this] {
        if (!m_addingSubCategory)
            askBeforeClosing(tr("You have category details changes that have not applied."));
        return true;
    });
    load();
}

CategoryDialog::~CategoryDialog()
{
    // Closing the dialog commits a grid cell still being edited, after this part of the
    // dialog is gone: its edits must reach no member any more.
    m_subCategoryModel->disconnect(this);
}

int CategoryDialog::exec()
{
    return m_gone ? int(QDialog::Rejected) : CategoryDialogBase::exec();
}

void CategoryDialog::load()
{
    const BusyCursor busy;
    m_categoryKey = selection().currentCategoryId;
    try {
        m_connection = std::make_unique<Connection>();
        m_connection->setCursorLocation(CursorLocationEnum::UseClient);
        m_connection->open(upperConnectionString(
            getRegValue(QStringLiteral("Provider")), getRegValue(QStringLiteral("DbLocation"))));
        m_category->open(
            categorySource(m_categoryKey), *m_connection, CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        m_subCategories->open(subCategorySource(m_categoryKey), *m_connection, CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        showSubCategories(m_subCategories);
    } catch (const Error& error) {
        msgBox(error.description());
    }
    // A category deleted meanwhile (or a register out of reach) leaves nothing to edit:
    // no subcategory may be filed under a missing key.
    if (!m_category->isOpen() || m_category->recordCount() == 0) {
        if (m_category->isOpen()) {
            m_gone = true;
            msgBox(tr("This category no longer exists."), MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation,
                windowTitle());
        }
        m_add->setEnabled(false);
    }
    m_edited = false;
    m_subCategoryModel->setAllowAddNew(false);
}

void CategoryDialog::addSubCategory()
{
    reportErrors([this] {
        m_subCategoryModel->setAllowAddNew(true);
        if (m_subCategories->recordCount() > 0 && m_subCategories->currentRow() >= 0)
            m_savedBookmark = m_subCategories->bookmark();
        m_subCategories->addNew();
        m_addingSubCategory = true;
        m_subCategories->fields(QStringLiteral("KategID")).setValue(m_categoryKey);
        m_grid->setFocus(Qt::OtherFocusReason);
        m_grid->setCurrentIndex(m_subCategoryModel->index(m_subCategories->currentRow(), 2));
    });
}

void CategoryDialog::deleteSubCategory()
{
    if (!m_subCategories->isOpen() || m_subCategories->recordCount() == 0
        || m_subCategories->currentRow() < 0)
        return;
    qint64 key = 0;
    bool trash = false;
    reportErrors([this, &key, &trash] {
        if (m_subCategories->editMode() == EditModeEnum::Add)
            return;
        const QVariant stored = m_subCategories->fields(QStringLiteral("SubKategID")).value();
        key = isNull(stored) ? 0 : stored.toLongLong();
        trash = key != 0 && Trash::inRegister(*m_connection);
    });
    if (!trash) {
        CategoryDialogBase::deleteSubCategory();
        return;
    }
    const int row = m_subCategories->currentRow();
    // What was typed into the row goes with it.
    reportErrors([this] {
        if (m_subCategories->editMode() != EditModeEnum::None)
            m_subCategories->cancelUpdate();
    });
    // Told when it fails; the grid shows the rows as they are either way (another user may
    // have deleted the row meanwhile).
    moveToRegisterTrash(*m_connection, TrashKind::SubCategory, key);
    refreshSubCategories();
    const int count = m_subCategories->isOpen() ? m_subCategories->recordCount() : 0;
    if (count == 0)
        return;
    const int next = qMin(row, count - 1);
    reportErrors([this, next] { m_subCategories->setAbsolutePosition(next + 1); });
    const int column = m_grid->currentIndex().isValid() ? m_grid->currentIndex().column() : 2;
    m_grid->selectionModel()->setCurrentIndex(m_subCategoryModel->index(next, column),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void CategoryDialog::writeCell(int row, int column, const QString& value)
{
    m_subCategoryModel->setData(m_subCategoryModel->index(row, column), value);
}

void CategoryDialog::afterCellAction(int row, const QString& directory)
{
    QDir::setCurrent(directory);
    reportErrors([this] {
        if (m_subCategories->editMode() != EditModeEnum::None)
            m_subCategories->update();
    });
    refreshSubCategories();
    // The rows are read anew: the row is found again by its place.
    if (m_subCategories->isOpen() && row < m_subCategories->recordCount()) {
        reportErrors([this, row] { m_subCategories->setAbsolutePosition(row + 1); });
        m_grid->setCurrentIndex(m_subCategoryModel->index(row, m_grid->currentIndex().column()));
    }
    spreadColumns();
}

void CategoryDialog::refreshSubCategories()
{
    reportErrors([this] {
        showSubCategories(nullptr);
        // What is typed in the boxes and not yet stored would be lost to a requery.
        if (m_category->editMode() == EditModeEnum::None)
            m_category->requery();
        m_subCategories->requery();
        showSubCategories(m_subCategories);
    });
}

void CategoryDialog::save()
{
    try {
        // A row another user changed meanwhile is told, and stays here unless the user
        // stores theirs over it.
        if (m_category->isOpen()
            && !storeResolvingChanges(
                *m_category, AffectEnum::Current, tr("category"), categoryFieldCaptions(), windowTitle()))
            return;
        if (m_subCategories->isOpen()
            && !storeResolvingChanges(
                *m_subCategories, AffectEnum::All, tr("category"), categoryFieldCaptions(), windowTitle()))
            return;
    } catch (const Error& error) {
        // Refused: the dialog stays with what was typed, for the user to cancel or retry.
        if (rowWasDeleted(error))
            reportDeletedRow(tr("category"), windowTitle());
        else
            msgBox(error.description());
        return;
    }
    m_edited = false;
    m_addingSubCategory = false;
    accept();
}

} // namespace kartella
