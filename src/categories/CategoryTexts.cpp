#include "categories/CategoryTexts.h"

#include <QCoreApplication>

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
            QCoreApplication::translate(
                "kartella::CategoryTexts", "Select a folder in which to place the new files of SubCategory:"),
            {}};
    case 4:
        return {GridCellAction::ChooseOrOpenTemplate, {},
            {QCoreApplication::translate("kartella::CategoryTexts", "Select a Word Template"),
                QCoreApplication::translate("kartella::CategoryTexts", "Word templates (*.dot)"),
                QStringLiteral("*.dot")}};
    case 5:
        return {GridCellAction::ChooseOrOpenTemplate, {},
            {QCoreApplication::translate("kartella::CategoryTexts", "Select a Excel Template"),
                QCoreApplication::translate("kartella::CategoryTexts", "Excel templates (*.xlt)"),
                QStringLiteral("*.xlt")}};
    case 6:
        return {GridCellAction::ChooseOrOpenTemplate, {},
            {QCoreApplication::translate("kartella::CategoryTexts", "Select a PowerPoint Template"),
                QCoreApplication::translate("kartella::CategoryTexts", "PowerPoint templates (*.pot)"),
                QStringLiteral("*.pot")}};
    default:
        return {};
    }
}

TemplateChooser categoryTemplateChooser(int box)
{
    switch (box) {
    case 4:
        return {QCoreApplication::translate("kartella::CategoryTexts", "Select the Word Template"),
            QCoreApplication::translate("kartella::CategoryTexts", "Word templates (*.dot)"),
            QStringLiteral("*.dot")};
    case 5:
        return {QCoreApplication::translate("kartella::CategoryTexts", "Select the Excel Template"),
            QCoreApplication::translate("kartella::CategoryTexts", "Excel templates (*.xlt)"),
            QStringLiteral("*.xlt")};
    case 6:
        return {QCoreApplication::translate("kartella::CategoryTexts", "Select the PowerPoint Template"),
            QCoreApplication::translate("kartella::CategoryTexts", "PowerPoint templates (*.pot)"),
            QStringLiteral("*.pot")};
    default:
        return {};
    }
}

QString subCategoryCaption(int column)
{
    switch (column) {
    case 2:
        return QCoreApplication::translate("kartella::CategoryTexts", "SubCategory");
    case 3:
        return QCoreApplication::translate("kartella::CategoryTexts", "Path To Files");
    case 4:
        return QCoreApplication::translate("kartella::CategoryTexts", "Word Template");
    case 5:
        return QCoreApplication::translate("kartella::CategoryTexts", "Excel Template");
    case 6:
        return QCoreApplication::translate("kartella::CategoryTexts", "PowerPoint Template");
    default:
        return {};
    }
}

QList<QPair<QString, QString>> categoryFieldCaptions()
{
    return {{QStringLiteral("DokKategorija"),
                QCoreApplication::translate("kartella::CategoryTexts", "Title of Category")},
        {QStringLiteral("Mnemonic"), QCoreApplication::translate("kartella::CategoryTexts", "Mnemonic")},
        {QStringLiteral("DokKategDaug"),
            QCoreApplication::translate("kartella::CategoryTexts", "Path To Files")},
        {QStringLiteral("DokTemplates"),
            QCoreApplication::translate("kartella::CategoryTexts", "Word Template")},
        {QStringLiteral("DokTemplatesExel"),
            QCoreApplication::translate("kartella::CategoryTexts", "Excel Template")},
        {QStringLiteral("DokTemplatesPowPoint"),
            QCoreApplication::translate("kartella::CategoryTexts", "PowerPoint Template")},
        {QStringLiteral("DokSubKategorija"), subCategoryCaption(2)},
        {QStringLiteral("SubPathToFiles"),
            QCoreApplication::translate("kartella::CategoryTexts", "SubCategory Path To Files")},
        {QStringLiteral("SubDokTemplates"),
            QCoreApplication::translate("kartella::CategoryTexts", "SubCategory Word Template")},
        {QStringLiteral("SubDokTemplatesExel"),
            QCoreApplication::translate("kartella::CategoryTexts", "SubCategory Excel Template")},
        {QStringLiteral("SubDokTemplatesPowPoint"),
            QCoreApplication::translate("kartella::CategoryTexts", "SubCategory PowerPoint Template")}};
}

QString categoryFolderPrompt(const QString& categoryTitle)
{
    return QCoreApplication::translate(
        "kartella::CategoryTexts", "Select a folder in which to place the new files of - %1 - category:")
        .arg(categoryTitle);
}

QString unappliedChangesQuestion(const QString& firstLine)
{
    return firstLine
        + QCoreApplication::translate("kartella::CategoryTexts", "\n\nDo you want to apply these now?");
}

} // namespace kartella
