#include "registration/OfficeDocuments.h"

#include "base/Error.h"
#include "platform/OfficeSuite.h"
#include "platform/Prompter.h"
#include "registration/FileNaming.h"
#include "store/engine/Value.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace kartella {

namespace {

using LocationSetter = std::function<void(const QString&)>;

bool g_officeNoticeShown = false;

// Makes the file; a failure that isn't about the document (LibreOffice missing, or
// stopped at its time limit) is told once per run, naming what to install. The error
// goes on to the caller either way.
void createWithSuite(OfficeSuite::Kind kind, const QString& templatePath, const QString& path)
{
    try {
        OfficeSuite::instance().create(kind, templatePath, path);
    } catch (const Error& error) {
        const bool missing = error.number() == OfficeErrorNumber::NotInstalled;
        if ((missing || error.number() == OfficeErrorNumber::TimedOut) && !g_officeNoticeShown) {
            g_officeNoticeShown = true;
            const QString what = missing
                ? QCoreApplication::translate("kartella::OfficeDocuments",
                    "LibreOffice, which makes the Word, Excel and PowerPoint files, isn't installed.")
                : QCoreApplication::translate("kartella::OfficeDocuments",
                    "LibreOffice didn't finish making the file in time and was stopped.");
            msgBox(what
                    + QCoreApplication::translate("kartella::OfficeDocuments",
                        "\r\rTo make these files and to open and edit them, install the packages "
                        "libreoffice-writer, libreoffice-calc and libreoffice-impress."),
                MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation,
                QCoreApplication::translate("kartella::OfficeDocuments", "Office documents"));
        }
        throw;
    }
}

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
    const int answer = msgBox(QCoreApplication::translate("kartella::OfficeDocuments",
                                  "Can't achieve desired template %1.\r\rIf you want to continue without "
                                  "template click OK")
                                  .arg(chosen),
        MsgBoxStyle::OkCancel | MsgBoxStyle::Critical | MsgBoxStyle::DefaultButton2,
        QCoreApplication::translate("kartella::OfficeDocuments", "Warning: Desired template not found"));
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
    createWithSuite(kind, templatePath, path);
    setLocation(path);
    OfficeSuite::instance().show(path);
}

} // namespace

void forgetOfficeNotice()
{
    g_officeNoticeShown = false;
}

void createWordDocument(const OfficeDocumentRequest& request, const LocationSetter& setLocation)
{
    createFromTemplate(OfficeSuite::Kind::Word, QStringLiteral(".doc"),
        QCoreApplication::translate("kartella::OfficeDocuments", "Can't create a file"), request,
        setLocation);
}

void createExcelDocument(const OfficeDocumentRequest& request, const LocationSetter& setLocation)
{
    createFromTemplate(OfficeSuite::Kind::Excel, QStringLiteral(".xls"),
        QCoreApplication::translate("kartella::OfficeDocuments", "Can't create a file. Try again."), request,
        setLocation);
}

void createPowerPointDocument(const OfficeDocumentRequest& request, const LocationSetter& setLocation)
{
    // The presentation is saved empty: a template would only be applied in the running
    // application, after the save.
    const QString path = newFilePath(request, QStringLiteral(".ppt"),
        QCoreApplication::translate("kartella::OfficeDocuments", "Can't create a file"));
    if (path.isEmpty())
        return;
    createWithSuite(OfficeSuite::Kind::PowerPoint, QString(), path);
    setLocation(path);
    OfficeSuite::instance().show(path);
}

} // namespace kartella
