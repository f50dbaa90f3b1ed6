#include "capture/IncomingFile.h"

#include "base/Error.h"
#include "registration/FileNaming.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kartella {

namespace {

// The extension with its dot (".pdf"), as the last suffix of the name; none for a name without one.
QString extensionOf(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix();
    return suffix.isEmpty() ? QString() : u'.' + suffix;
}

[[noreturn]] void refuse(const QString& message)
{
    throw Error(ErrorNumber::PathFileAccess, message);
}

} // namespace

QString placeIncomingFile(const QString& source, Intake intake, const IncomingTarget& target)
{
    if (target.category.toString().isEmpty())
        refuse(QCoreApplication::translate("kartella::IncomingFile", "Select any Category, please!"));
    const QFileInfo original(source);
    if (!original.isFile())
        refuse(QCoreApplication::translate("kartella::IncomingFile", "The file \"%1\" is no longer there.")
                   .arg(source));
    const QVariant folder = getDocumentFolder(target.category, target.subCategory);
    const QString placed
        = makeNewFileName(target.description, extensionOf(source), folder, target.category, target.regIndex);
    if (placed.isEmpty())
        return {};
    if (QFileInfo::exists(placed))
        refuse(fileExistsMessage(placed));
    QDir().mkpath(QFileInfo(placed).absolutePath());
    QFile file(source);
    // A move across file systems is a copy and a removal; a removal that fails leaves the
    // original too, and the copy is taken back so that the inbox keeps its one file.
    const bool done = intake == Intake::Copy ? file.copy(placed) : file.rename(placed);
    if (!done) {
        const QString reason = file.errorString();
        if (intake == Intake::Move && QFileInfo::exists(placed) && QFileInfo::exists(source))
            QFile::remove(placed);
        refuse((intake == Intake::Copy ? QCoreApplication::translate(
                    "kartella::IncomingFile", "The file \"%1\" can't be copied to \"%2\": %3")
                                       : QCoreApplication::translate("kartella::IncomingFile",
                                           "The file \"%1\" can't be moved to \"%2\": %3"))
                   .arg(source, placed, reason));
    }
    return placed;
}

bool takeBackIncomingFile(const QString& placed, const QString& source, Intake intake)
{
    if (placed.isEmpty())
        return true;
    if (intake == Intake::Copy)
        return QFile::remove(placed);
    return QFile::rename(placed, source);
}

} // namespace kartella
