#pragma once

#include "categories/CategoryDialogBase.h"

namespace kartella {

// frmNewCategory, "Add New Category of Document": enters a new category with its
// subcategories. Two data controls carry the rows: the categories, on which the dialog
// starts a new row at once, and the subcategories of the category's key. The new row
// reaches the register at the first "Add New SubCategory" (so that subcategories can be
// filed under its key) or at OK; closing without OK (Cancel, Esc, the window's close
// button) takes back the rows stored by then. Enter in a box acts as Tab; Esc asks before
// closing only after a box was changed (the grid doesn't count).
class NewCategoryDialog : public CategoryDialogBase
{
    Q_OBJECT

public:
    explicit NewCategoryDialog(QWidget* parent = nullptr);
    ~NewCategoryDialog() override;

public Q_SLOTS:
    void addSubCategory() override;
    void save() override;
    void reject() override;

protected:
    void writeCell(int row, int column, const QString& value) override;
    void afterCellAction(int row, const QString& directory) override;
    bool restoreFolderAfterEmptyAnswer() const override { return true; }

private:
    void load();
    void addCategoryRow();
    void saveCategoryRow();
    void bindSubCategories();
    void rebindSubCategories();
    void onGridEnter();
    void moveToNextCell();

    Recordset* m_category = nullptr;
    Recordset* m_subCategories = nullptr;
    QString m_connection;
    // The key of the category that Add New SubCategory stored; 0 while none is.
    qint32 m_storedCategoryId = 0;
};

} // namespace kartella
