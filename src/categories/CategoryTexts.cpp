#include "categories/CategoryTexts.h"

namespace kartella {

namespace {

const QString CategoryFields = QStringLiteral(
    "select KategID,DokKategorija,Mnemonic,DokKategDaug,DokTemplates,DokTemplatesExel,DokTemplatesPowPoint "
    "from tbl_Document_Categories");
const QString SubCategoryFields = QStringLiteral(
    "DokSubKategorija,SubPathToFiles,SubDokTemplates,SubDokTemplatesExel,SubDokTemplatesPowPoint "
    "from tbl_Sub_Categories WHERE KategID");

} // namespace

QString allCategoriesSource()
{
    return CategoryFields;
}

QString categorySource(qint32 categoryId)
{
    return CategoryFields + QStringLiteral(" WHERE KategID=") + QString::number(categoryId);
}

QString newCategorySubCategorySource(const QString& categoryId)
{
    if (categoryId.trimmed().isEmpty())
        return {};
    return QStringLiteral("select SubKategID,KategID,") + SubCategoryFields + QStringLiteral(" = ")
        + categoryId.trimmed();
}

QString subCategorySource(qint32 categoryId)
{
    return QStringLiteral("select KategID,SubKategID,") + SubCategoryFields + QStringLiteral("=")
        + QString::number(categoryId);
}

GridCellAction gridCellAction(int column)
{
    switch (column) {
    case 3:
        return {GridCellAction::ChooseFolder,
            QStringLiteral("Select a folder in which to place the new files of SubCategory:"), {}};
    case 4:
        return {GridCellAction::ChooseOrOpenTemplate, {},
            {QStringLiteral("Select a Word Template"), QStringLiteral("Word templates (*.dot)"),
                QStringLiteral("*.dot")}};
    case 5:
        return {GridCellAction::ChooseOrOpenTemplate, {},
            {QStringLiteral("Select a Excel Template"), QStringLiteral("Excel templates (*.xlt)"),
                QStringLiteral("*.xlt")}};
    case 6:
        return {GridCellAction::ChooseOrOpenTemplate, {},
            {QStringLiteral("Select a PowerPoint Template"), QStringLiteral("PowerPoint templates (*.pot)"),
                QStringLiteral("*.pot")}};
    default:
        return {};
    }
}

TemplateChooser categoryTemplateChooser(int box)
{
    switch (box) {
    case 4:
        return {QStringLiteral("Select the Word Template"), QStringLiteral("Word templates (*.dot)"),
            QStringLiteral("*.dot")};
    case 5:
        return {QStringLiteral("Select the Excel Template"), QStringLiteral("Excel templates (*.xlt)"),
            QStringLiteral("*.xlt")};
    case 6:
        return {QStringLiteral("Select the PowerPoint Template"),
            QStringLiteral("PowerPoint templates (*.pot)"), QStringLiteral("*.pot")};
    default:
        return {};
    }
}

QString subCategoryCaption(int column)
{
    switch (column) {
    case 2:
        return QStringLiteral("SubCategory");
    case 3:
        return QStringLiteral("Path To Files");
    case 4:
        return QStringLiteral("Word Template");
    case 5:
        return QStringLiteral("Excel Template");
    case 6:
        return QStringLiteral("PowerPoint Template");
    default:
        return {};
    }
}

QList<QPair<QString, QString>> categoryFieldCaptions()
{
    return {{QStringLiteral("DokKategorija"), QStringLiteral("Title of Category")},
        {QStringLiteral("Mnemonic"), QStringLiteral("Mnemonic")},
        {QStringLiteral("DokKategDaug"), QStringLiteral("Path To Files")},
        {QStringLiteral("DokTemplates"), QStringLiteral("Word Template")},
        {QStringLiteral("DokTemplatesExel"), QStringLiteral("Excel Template")},
        {QStringLiteral("DokTemplatesPowPoint"), QStringLiteral("PowerPoint Template")},
        {QStringLiteral("DokSubKategorija"), subCategoryCaption(2)},
        {QStringLiteral("SubPathToFiles"), QStringLiteral("SubCategory Path To Files")},
        {QStringLiteral("SubDokTemplates"), QStringLiteral("SubCategory Word Template")},
        {QStringLiteral("SubDokTemplatesExel"), QStringLiteral("SubCategory Excel Template")},
        {QStringLiteral("SubDokTemplatesPowPoint"), QStringLiteral("SubCategory PowerPoint Template")}};
}

QString categoryFolderPrompt(const QString& categoryTitle)
{
    return QStringLiteral("Select a folder in which to place the new files of - ") + categoryTitle
        + QStringLiteral(" - category:");
}

QString unappliedChangesQuestion(const QString& firstLine)
{
    return firstLine + QStringLiteral("\n\nDo you want to apply these now?");
}

} // namespace kartella
