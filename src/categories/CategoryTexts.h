#pragma once

#include <QList>
#include <QPair>
#include <QString>

namespace kartella {

// The texts the two category dialogs run and show: their SQL, the questions of their
// choosers, and what a double click does in each column of the subcategory grid.

// A mnemonic starts a registration index; longer ones can't be typed.
inline constexpr int MnemonicLength = 3;

// Every category: the row source of the new-category dialog, which then adds a row.
QString allCategoriesSource();
// One category by id, for the category details dialog.
QString categorySource(qint32 categoryId);
// The subcategories of a category as the new-category dialog lists them (SubKategID
// first). categoryId is the text of the key box; empty before the category is saved,
// and then there is no statement at all (empty text).
QString newCategorySubCategorySource(const QString& categoryId);
// The subcategories of a category as the details dialog lists them (KategID first).
QString subCategorySource(qint32 categoryId);

// What a file chooser of the dialogs asks: title, filter label and pattern.
struct TemplateChooser
{
    QString title;
    QString filterLabel;
    QString pattern;
};

// What a double click does in a column of the subcategory grid.
struct GridCellAction
{
    enum Kind { Nothing, ChooseFolder, ChooseOrOpenTemplate };
    Kind kind = Nothing;
    // The folder chooser's prompt, or the template chooser.
    QString folderPrompt;
    TemplateChooser chooser;
};

// By zero-based grid column: 3 the folder, 4 to 6 the Word, Excel and PowerPoint
// templates; every other column does nothing.
GridCellAction gridCellAction(int column);
// The chooser behind the button of the category's own template box (4 Word, 5 Excel,
// 6 PowerPoint); an empty title for any other box.
TemplateChooser categoryTemplateChooser(int box);
// The caption of the grid's column (2 to 6); empty for the hidden key columns.
QString subCategoryCaption(int column);
// The captions of the fields of a category and of its subcategories, paired with the
// fields' names, as a row another user changed lists them.
QList<QPair<QString, QString>> categoryFieldCaptions();
// The folder chooser's prompt for the category's own folder.
QString categoryFolderPrompt(const QString& categoryTitle);
// The question asked on Esc after a change: the dialog's own first line, then the same
// second line for both dialogs.
QString unappliedChangesQuestion(const QString& firstLine);

} // namespace kartella
