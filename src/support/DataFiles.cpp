#include "support/DataFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace kartella {

QStringList dataFolders()
{
    const QString programFolder = QCoreApplication::applicationDirPath();
    QStringList folders;
    if (const QString chosen = qEnvironmentVariable("KARTELLA_DATA_DIR"); !chosen.isEmpty())
        folders << QDir::cleanPath(chosen);
    folders << programFolder << QDir::cleanPath(programFolder + QStringLiteral("/../share/kartella"));
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        const QString candidate = QDir::cleanPath(folder + QStringLiteral("/kartella"));
        if (!folders.contains(candidate))
            folders << candidate;
    }
    return folders;
}

QString findDataFile(const QString& name)
{
    for (const QString& folder : dataFolders()) {
        const QFileInfo file(folder + u'/' + name);
        if (file.isFile())
            return QDir::toNativeSeparators(file.absoluteFilePath());
    }
    return {};
}

} // namespace kartella
