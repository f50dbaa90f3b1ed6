#include "dialogs/SystemInfo.h"

#include "dialogs/BuildVersion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace kartella {

QString versionLine(int major, int minor, int revision)
{
    return QCoreApplication::translate("kartella::SystemInfo", "Version %1.%2.%3")
        .arg(major)
        .arg(minor)
        .arg(revision);
}

QString programVersionLine()
{
    return versionLine(buildVersionMajor, buildVersionMinor, buildVersionRevision);
}

std::optional<QString> readMachineKey(const QString& keyPath, const QString& name)
{
#ifdef Q_OS_WIN
    const QSettings key(QStringLiteral("HKEY_LOCAL_MACHINE\\") + keyPath, QSettings::NativeFormat);
    const QVariant value = key.value(name);
    if (value.isValid())
        return value.toString();
#else
    Q_UNUSED(keyPath)
    Q_UNUSED(name)
#endif
    return std::nullopt;
}

QString findSystemInfoTool(const MachineKeyReader& read)
{
    if (const auto path
        = read(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"), QStringLiteral("PATH")))
        return *path;
    if (const auto folder
        = read(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"), QStringLiteral("MSINFO"))) {
        const QString path = QDir(*folder).filePath(QStringLiteral("MSINFO32.EXE"));
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QString systemInfoUnavailableText()
{
    return QCoreApplication::translate(
        "kartella::SystemInfo", "System Information Is Unavailable At This Time");
}

} // namespace kartella
