#pragma once

#include <QDialog>
#include <QString>

#include <functional>

class QLineEdit;
class QModelIndex;
class QPushButton;
class QTableView;

namespace kartella {

class EnterAsTab;
class FieldBinder;
class Recordset;
class RecordsetModel;

// What the new-category and the category details dialogs share: the category's boxes with
// their chooser buttons, the subcategory grid, the buttons, the choosers and what a double
// click (or F4) on a template box or a grid cell does, Esc's question and the size limits.
// Each dialog supplies its recordsets and the steps where the two differ.
//
// The boxes, by the index of their objectName txtFields_N: 0 the key (hidden), 1 the
// title, 2 the mnemonic (3 characters at most), 3 the folder, 4 to 6 the Word, Excel and
// PowerPoint templates. Grid columns: 0 and 1 the keys (hidden), 2 the title, 3 the folder,
// 4 to 6 the templates.
class CategoryDialogBase : public QDialog
{
    Q_OBJECT

public:
    ~CategoryDialogBase() override;

    // Whether Esc asks before closing.
    bool isEdited() const { return m_edited; }

public Q_SLOTS:
    virtual void addSubCategory() = 0;
    // Takes the grid's current row away at once, without a question; the next row (or the
    // last) becomes current.
    virtual void deleteSubCategory();
    virtual void save() = 0;
    void cancel();
    void chooseCategoryFolder();
    void chooseWordTemplate();
    void chooseExcelTemplate();
    void choosePowerPointTemplate();

protected:
    struct Names
    {
        QString dialog;
        QString caption;
        QString addButton;
        QString okButton;
    };

    CategoryDialogBase(const Names& names, QWidget* parent);

    // Binds the boxes to the category row.
    void bindCategory(Recordset* category);
    // Shows subCategories (null: nothing) in the grid with the keys hidden and the captions.
    void showSubCategories(Recordset* subCategories);
    // Gives the visible grid columns but the last a seventh of the grid's width each; the
    // last one takes the rest.
    void spreadColumns();
    // Asks the unapplied-changes question with firstLine; Yes saves, No cancels.
    void askBeforeClosing(const QString& firstLine);
    // Gives a row just started on rows the key of the category, unless it has one: a row
    // started on the grid's new-row line belongs to the category as much as one started by
    // the button. Connect it to the move of the subcategories.
    static void fileNewRowUnderCategory(Recordset* rows, qint32 categoryId);
    // Runs action, telling any error in a plain message box; false when it failed.
    static bool reportErrors(const std::function<void()>& action);

    // Writes value into column of the grid's current row.
    virtual void writeCell(int row, int column, const QString& value) = 0;
    // After a double click's action: the grid shows the stored rows again, on row, and the
    // working folder goes back to directory where the dialog says so.
    virtual void afterCellAction(int row, const QString& directory) = 0;
    // Whether the working folder goes back after the folder chooser gave no answer.
    virtual bool restoreFolderAfterEmptyAnswer() const = 0;

    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    QLineEdit* m_categoryId = nullptr;
    QLineEdit* m_title = nullptr;
    QLineEdit* m_mnemonic = nullptr;
    QLineEdit* m_folder = nullptr;
    QLineEdit* m_wordTemplate = nullptr;
    QLineEdit* m_excelTemplate = nullptr;
    QLineEdit* m_powerPointTemplate = nullptr;
    QTableView* m_grid = nullptr;
    RecordsetModel* m_subCategoryModel = nullptr;
    FieldBinder* m_binder = nullptr;
    EnterAsTab* m_keys = nullptr;
    QPushButton* m_add = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
    bool m_edited = false;

private:
    void buildWidgets(const Names& names);
    QLineEdit* addTextBox(int index);
    QLineEdit* templateBox(QObject* object) const;
    void chooseTemplate(QLineEdit* box, int index);
    void openTemplateOfBox(QLineEdit* box);
    void actOnCell(const QModelIndex& index);
    // Delete is enabled only over rows, and the current row shows highlighted.
    void onSubCategoryRowsChanged();
};

} // namespace kartella
