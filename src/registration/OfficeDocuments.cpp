#include "registration/OfficeDocuments.h"

#include "platform/OfficeSuite.h"
#include "platform/Prompter.h"
#include "registration/FileNaming.h"
#include "store/engine/Value.h"

#include <QFileInfo>

namespace kartella {

namespace {

using LocationSetter = std::function<void(const QString&)>;

// The path of the new file, or empty text when it can't be made or is taken (after the
// message with takenTitle).
QString newFilePath(const OfficeDocumentRequest& request, const QString& extension, const QString& takenTitle)
{
    const QString path
        = makeNewFileName(request.description, extension, request.folder, request.category, request.regIndex);
    if (path.isEmpty())
        return {};
    if (QFileInfo::exists(path)) {
        msgBox(fileExistsMessage(path), MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, takenTitle);
        return {};
    }
    return path;
}

QString templateText(const QVariant& templatePath)
{
    return isNull(templatePath) ? QString() : templatePath.toString();
}

// Word and Excel: the template is used when its file is there; a missing one is left out if
// the user agrees. False when the user cancels.
bool chooseTemplate(const QVariant& templatePath, QString& chosen)
{
    chosen = templateText(templatePath);
    // A folder is no template: it is missing like a file that isn't there.
    if (chosen.isEmpty() || QFileInfo(chosen).isFile())
        return true;
    const int answer = msgBox(QStringLiteral("Can't achieve desired template ") % chosen
            % QStringLiteral(".\r\rIf you want to continue without template click OK"),
        MsgBoxStyle::OkCancel | MsgBoxStyle::Critical | MsgBoxStyle::DefaultButton2,
        QStringLiteral("Warning: Desired template not found"));
    if (answer != MsgBoxResult::Ok)
        return false;
    chosen.clear();
    return true;
}

void createFromTemplate(OfficeSuite::Kind kind, const QString& extension, const QString& takenTitle,
    const OfficeDocumentRequest& request, const LocationSetter& setLocation)
{
    const QString path = newFilePath(request, extension, takenTitle);
    if (path.isEmpty())
        return;
    QString templatePath;
    if (!chooseTemplate(request.templatePath, templatePath))
        return;
    OfficeSuite& suite = OfficeSuite::instance();
    suite.create(kind, templatePath, path);
    setLocation(path);
    suite.show(path);
}

} // namespace

void createWordDocument(const OfficeDocumentRequest& request, const LocationSetter& setLocation)
{
    createFromTemplate(OfficeSuite::Kind::Word, QStringLiteral(".doc"), QStringLiteral("Can't create a file"),
        request, setLocation);
}

void createExcelDocument(const OfficeDocumentRequest& request, const LocationSetter& setLocation)
{
    createFromTemplate(OfficeSuite::Kind::Excel, QStringLiteral(".xls"),
        QStringLiteral("Can't create a file. Try again."), request, setLocation);
}

void createPowerPointDocument(const OfficeDocumentRequest& request, const LocationSetter& setLocation)
{
    // The presentation is saved empty: a template would only be applied in the running
    // application, after the save.
    const QString path = newFilePath(request, QStringLiteral(".ppt"), QStringLiteral("Can't create a file"));
    if (path.isEmpty())
        return;
    OfficeSuite& suite = OfficeSuite::instance();
    suite.create(OfficeSuite::Kind::PowerPoint, QString(), path);
    setLocation(path);
    suite.show(path);
}

} // namespace kartella
