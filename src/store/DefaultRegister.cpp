#include "store/DefaultRegister.h"

#include "store/engine/Connection.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace kartella {

namespace {

std::function<bool()>& writableCheck()
{
    static std::function<bool()> check;
    return check;
}

bool programFolderWritable()
{
    if (writableCheck())
        return writableCheck()();
    return QFileInfo(QCoreApplication::applicationDirPath()).isWritable();
}

} // namespace

QString defaultRegisterPath(const QString& programFolder, bool programFolderWritable)
{
    const QString folder = programFolderWritable
        ? programFolder
        : QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Kartella");
    return QDir::toNativeSeparators(folder + QStringLiteral("/Kartella.mdb"));
}

QString defaultRegisterPath()
{
    return defaultRegisterPath(QCoreApplication::applicationDirPath(), programFolderWritable());
}

bool defaultRegisterInDataFolder()
{
    return !programFolderWritable();
}

bool registerLocationMissing(const QString& location)
{
    if (isServerLocation(location))
        return false;
    return location.isEmpty() || !QFileInfo::exists(location);
}

void setProgramFolderWritableCheck(std::function<bool()> check)
{
    writableCheck() = std::move(check);
}

} // namespace kartella
