#pragma once

#include <QString>
#include <QVariant>

#include <functional>

namespace kartella {

// The inputs of the three operations. templatePath Null or empty text = no template; absent = the
// caller gives none (frmRelated).
struct OfficeDocumentRequest
{
    QString description;
    QVariant folder; // Null allowed
    QVariant templatePath; // Null, empty, or a path
    QVariant category; // the category box's value: a KategID as text or number
    QString regIndex;
};

// Each makes the file and then calls setLocation(path) (the dialog's Location box) before showing
// the file. Stops quietly (setLocation not called) where the user was told why or chose Cancel.
// Throws kartella::Error when the Office suite fails or a conversion of the naming fails.
//
// Word and Excel make the document from the template; a template whose file is missing is
// offered to be left out (OK) or the creation to be stopped (Cancel). PowerPoint makes an
// empty presentation and asks nothing about the template.
void createWordDocument(
    const OfficeDocumentRequest& request, const std::function<void(const QString&)>& setLocation);
void createExcelDocument(
    const OfficeDocumentRequest& request, const std::function<void(const QString&)>& setLocation);
void createPowerPointDocument(
    const OfficeDocumentRequest& request, const std::function<void(const QString&)>& setLocation);

// Lets the next missing or stopped LibreOffice be told again (the notice comes once a run).
void forgetOfficeNotice();

} // namespace kartella
