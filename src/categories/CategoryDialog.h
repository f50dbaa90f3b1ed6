#pragma once

#include "categories/CategoryDialogBase.h"

#include <QVariant>

#include <memory>

namespace kartella {

class Connection;

// frmCategory, "Category": edits the category of the tree's selection (the whole category
// when a subcategory is selected) and its subcategories, on one connection of its own.
// Both recordsets write a grid double click's value and a deleted subcategory at once; OK
// writes what is still pending, Cancel leaves it. There is no Enter handling here; Esc asks
// before closing after a change to a box or to the grid, and does nothing at all once a
// subcategory is being added.
class CategoryDialog : public CategoryDialogBase
{
    Q_OBJECT

public:
    explicit CategoryDialog(QWidget* parent = nullptr);
    ~CategoryDialog() override;

    // Whether a subcategory was started with "Add New SubCategory".
    bool isAddingSubCategory() const { return m_addingSubCategory; }
    // The category is no longer in the register (told on loading); exec() then shows nothing.
    bool categoryGone() const { return m_gone; }

    int exec() override;

public Q_SLOTS:
    void addSubCategory() override;
    // A stored subcategory of a register with a trash goes to the trash, to be restored from
    // Deleted items with its key; a row not stored yet, or one of an older register, goes for
    // good as before.
    void deleteSubCategory() override;
    void save() override;

protected:
    void writeCell(int row, int column, const QString& value) override;
    void afterCellAction(int row, const QString& directory) override;
    bool restoreFolderAfterEmptyAnswer() const override { return false; }

private:
    void load();
    void refreshSubCategories();

    std::unique_ptr<Connection> m_connection;
    Recordset* m_category = nullptr;
    Recordset* m_subCategories = nullptr;
    qint32 m_categoryKey = 0;
    bool m_addingSubCategory = false;
    bool m_gone = false;
    QVariant m_savedBookmark;
};

} // namespace kartella
