#include "options/TrashOptions.h"

#include "options/OptionStore.h"
#include "store/engine/Connection.h"

#include <QDir>
#include <QFileInfo>

namespace kartella {

namespace {

int wholeOption(const QString& name, int defaultValue)
{
    const QString value = readRegValue(Hive::CurrentUser, optionsKeyPath(), name, {});
    bool ok = false;
    const int number = value.trimmed().toInt(&ok);
    return ok && number >= 1 ? number : defaultValue;
}

QString besideRegister(const QString& location, const QString& suffix)
{
    const QFileInfo file(location);
    return file.absoluteDir().filePath(file.fileName() + suffix);
}

} // namespace

int trashDays()
{
    return wholeOption(QStringLiteral("TrashDays"), DefaultTrashDays);
}

void setTrashDays(int days)
{
    setRegValue(QStringLiteral("TrashDays"), days);
}

int versionsPerDocument()
{
    return wholeOption(QStringLiteral("VersionsPerDocument"), DefaultVersionsPerDocument);
}

void setVersionsPerDocument(int count)
{
    setRegValue(QStringLiteral("VersionsPerDocument"), count);
}

QString sharedTrashFolder()
{
    return readRegValue(Hive::CurrentUser, optionsKeyPath(), QStringLiteral("TrashFolder"), {}).trimmed();
}

void setSharedTrashFolder(const QString& folder)
{
    setRegValue(QStringLiteral("TrashFolder"), folder);
}

QString trashFolderFor(const QString& location)
{
    if (!isServerLocation(location))
        return besideRegister(location, QStringLiteral(".trash"));
    const QString shared = sharedTrashFolder();
    return shared.isEmpty() ? QString() : QDir(shared).filePath(QStringLiteral("trash"));
}

QString versionsFolderFor(const QString& location)
{
    if (!isServerLocation(location))
        return besideRegister(location, QStringLiteral(".versions"));
    const QString shared = sharedTrashFolder();
    return shared.isEmpty() ? QString() : QDir(shared).filePath(QStringLiteral("versions"));
}

} // namespace kartella
