#include "categories/NewCategoryDialog.h"

#include "base/Error.h"
#include "categories/CategoryTexts.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"
#include "support/EnterAsTab.h"
#include "support/RecordsetModel.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace kartella {

NewCategoryDialog::NewCategoryDialog(QWidget* parent)
    : CategoryDialogBase({QStringLiteral("frmNewCategory"), tr("Add New Category of Document"),
                             QStringLiteral("cmdAddSub"), QStringLiteral("cmdOk")},
        parent)
{
    m_category = new Recordset(this);
    m_category->setObjectName(QStringLiteral("datPrimaryRS"));
    m_subCategories = new Recordset(this);
    m_subCategories->setObjectName(QStringLiteral("adoSecondaryRS"));
    bindCategory(m_category);
    connect(m_category, &Recordset::moveComplete, this,
        [this] { reportErrors([this] { bindSubCategories(); }); });
    connect(m_subCategories, &Recordset::moveComplete, this,
        [this] { fileNewRowUnderCategory(m_subCategories, m_categoryId->text().toInt()); });

    for (QLineEdit* box :
        {m_title, m_mnemonic, m_folder, m_wordTemplate, m_excelTemplate, m_powerPointTemplate})
        m_keys->watch(box);
    m_keys->onEnter(m_grid, [this] { onGridEnter(); });
    m_keys->onEscape([this] {
        askBeforeClosing(tr("Changes to contact have not applied."));
        return true;
    });
    load();
}

NewCategoryDialog::~NewCategoryDialog() = default;

void NewCategoryDialog::load()
{
    try {
        m_connection = upperConnectionString(
            getRegValue(QStringLiteral("Provider")), getRegValue(QStringLiteral("DbLocation")));
        m_category->open(allCategoriesSource(), m_connection);
    } catch (const Error& error) {
        msgBox(tr("Data error event hit err:") + error.description());
        return;
    }
    addCategoryRow();
    m_edited = false;
}

void NewCategoryDialog::addCategoryRow()
{
    reportErrors([this] { m_category->addNew(); });
}

void NewCategoryDialog::saveCategoryRow()
{
    // The new row gets its key; moving to it shows the key and binds the grid to it.
    reportErrors([this] {
        m_category->updateBatch(AffectEnum::All);
        m_category->moveLast();
        if (m_storedCategoryId == 0)
            m_storedCategoryId = m_categoryId->text().toInt();
    });
}

void NewCategoryDialog::reject()
{
    // Closing without OK takes back the category that Add New SubCategory stored, and the
    // subcategories filed under it. A failure is told, and the dialog closes all the same.
    if (m_storedCategoryId != 0) {
        const QString key = QString::number(m_storedCategoryId);
        m_storedCategoryId = 0;
        showSubCategories(nullptr);
        m_subCategories->close();
        m_category->close();
        reportErrors([this, &key] {
            Connection connection;
            connection.open(m_connection);
            connection.beginTrans();
            try {
                connection.execute(QStringLiteral("DELETE FROM tbl_Sub_Categories WHERE KategID=") + key);
                connection.execute(
                    QStringLiteral("DELETE FROM tbl_Document_Categories WHERE KategID=") + key);
                connection.commitTrans();
            } catch (const Error&) {
                connection.rollbackTrans();
                throw;
            }
        });
    }
    CategoryDialogBase::reject();
}

void NewCategoryDialog::bindSubCategories()
{
    const QString source = newCategorySubCategorySource(m_category->isOpen() && m_category->currentRow() >= 0
            ? m_category->collect(QStringLiteral("KategID")).toString()
            : QString());
    if (source == m_subCategories->source() && m_subCategories->isOpen())
        return;
    m_subCategories->close();
    if (!source.isEmpty())
        m_subCategories->open(source, m_connection);
    showSubCategories(m_subCategories->isOpen() ? m_subCategories : nullptr);
}

void NewCategoryDialog::rebindSubCategories()
{
    reportErrors([this] {
        showSubCategories(nullptr);
        m_subCategories->close();
        bindSubCategories();
    });
}

void NewCategoryDialog::addSubCategory()
{
    // A failed save is told and the rest goes on: the database then refuses the row.
    saveCategoryRow();
    reportErrors([this] {
        if (!m_subCategories->isOpen())
            bindSubCategories();
        m_subCategoryModel->setAllowAddNew(true);
        m_subCategories->addNew();
        m_subCategories->fields(QStringLiteral("KategID")).setValue(m_categoryId->text().toInt());
        m_grid->setFocus(Qt::OtherFocusReason);
        m_grid->setCurrentIndex(m_subCategoryModel->index(m_subCategories->currentRow(), 2));
    });
}

void NewCategoryDialog::onGridEnter()
{
    // A cell being typed is stored once its editor has seen the key; the move waits for that.
    QMetaObject::invokeMethod(this, &NewCategoryDialog::moveToNextCell, Qt::QueuedConnection);
}

void NewCategoryDialog::moveToNextCell()
{
    const QModelIndex current = m_grid->currentIndex();
    m_subCategoryModel->setAllowAddNew(false);
    m_grid->setFocus(Qt::OtherFocusReason);
    if (current.isValid() && current.row() < m_subCategoryModel->rowCount())
        m_grid->setCurrentIndex(m_subCategoryModel->index(current.row(), current.column()));
    EnterAsTab::sendKey(m_grid, Qt::Key_Right);
}

void NewCategoryDialog::writeCell(int row, int column, const QString& value)
{
    m_subCategories->setAbsolutePosition(row + 1);
    m_subCategories->fields(column).setValue(value);
}

void NewCategoryDialog::afterCellAction(int row, const QString& directory)
{
    Q_UNUSED(directory);
    reportErrors([this] { m_subCategories->update(); });
    rebindSubCategories();
    // The grid's rows are read anew: the row is found again by its place.
    if (m_subCategories->isOpen() && row < m_subCategories->recordCount()) {
        reportErrors([this, row] { m_subCategories->setAbsolutePosition(row + 1); });
        m_grid->setCurrentIndex(m_subCategoryModel->index(row, m_grid->currentIndex().column()));
    }
}

void NewCategoryDialog::save()
{
    // A refused row is told and the dialog stays, with nothing lost.
    if (!m_category->isOpen()) {
        cancel();
        return;
    }
    const bool stored = reportErrors([this] {
        m_category->updateBatch(AffectEnum::All);
        if (m_subCategories->isOpen())
            m_subCategories->updateBatch(AffectEnum::All);
    });
    if (stored)
        accept();
}

} // namespace kartella
