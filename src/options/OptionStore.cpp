#include "options/OptionStore.h"

#include "base/Error.h"
#include "options/SectionFile.h"
#include "platform/Prompter.h"
#include "registration/ValueConversions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace kartella {

namespace {

constexpr qsizetype MaxValueLength = 254;
const QString NotFound = QStringLiteral("Not Found");
const QString IniSection = QStringLiteral("DocContr");

// A run-time error inside the primitives: reported in the one plain form.
void reportRuntimeError(long number)
{
    msgBox(QCoreApplication::translate("kartella::OptionStore", "ERROR # %1 : 0\rPlease exit and try again.")
               .arg(number));
}

#ifdef Q_OS_WIN
QString registryPath(Hive hive, const QString& keyPath)
{
    return (hive == Hive::CurrentUser ? QStringLiteral("HKEY_CURRENT_USER\\")
                                      : QStringLiteral("HKEY_LOCAL_MACHINE\\"))
        + keyPath;
}

bool keyExists(Hive hive, const QString& keyPath)
{
    const qsizetype cut = keyPath.lastIndexOf(u'\\');
    QSettings parent(registryPath(hive, keyPath.left(cut)), QSettings::NativeFormat);
    return parent.childGroups().contains(keyPath.mid(cut + 1), Qt::CaseInsensitive);
}
#else
// "SOFTWARE\Kartella\Options" under the user's hive is <config>/Kartella/Options.ini,
// section [Options]; the machine's hive lives under /etc.
struct KeyFile
{
    QString path;
    QString section;
};

KeyFile keyFile(Hive hive, const QString& keyPath)
{
    QStringList parts = keyPath.split(u'\\', Qt::SkipEmptyParts);
    if (!parts.isEmpty() && parts.first().compare(QLatin1String("SOFTWARE"), Qt::CaseInsensitive) == 0)
        parts.removeFirst();
    const QString section = parts.isEmpty() ? QStringLiteral("Options") : parts.last();
    const QString root = hive == Hive::CurrentUser ? configFolder() : QStringLiteral("/etc");
    return {root + u'/' + (parts.isEmpty() ? section : parts.join(u'/')) + QStringLiteral(".ini"), section};
}

bool keyExists(Hive hive, const QString& keyPath)
{
    return QFileInfo::exists(keyFile(hive, keyPath).path);
}
#endif

} // namespace

QString optionsKeyPath()
{
    return QStringLiteral("SOFTWARE\\Kartella\\Options");
}

QString configFolder()
{
    const QString xdg = qEnvironmentVariable("XDG_CONFIG_HOME");
    return xdg.isEmpty() ? QDir::homePath() + QStringLiteral("/.config") : xdg;
}

#ifdef Q_OS_WIN
QString optionsFilePath()
{
    return {};
}

bool writeRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& value)
{
    QSettings key(registryPath(hive, keyPath), QSettings::NativeFormat);
    key.setValue(name, value);
    key.sync();
    return key.status() == QSettings::NoError;
}

QString readRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& defaultValue)
{
    QSettings key(registryPath(hive, keyPath), QSettings::NativeFormat);
    if (key.status() != QSettings::NoError) {
        reportRuntimeError(ErrorNumber::PathFileAccess);
        return {};
    }
    if (!key.contains(name))
        return defaultValue;
    const QString value = key.value(name).toString();
    return value.size() > MaxValueLength ? defaultValue : value;
}

int writeRegValues(
    Hive hive, const QString& keyPath, const QList<QPair<QString, QString>>& values, bool keepExisting)
{
    QSettings key(registryPath(hive, keyPath), QSettings::NativeFormat);
    if (key.status() != QSettings::NoError)
        return -1;
    int written = 0;
    for (const auto& [name, value] : values) {
        if (keepExisting && key.contains(name))
            continue;
        key.setValue(name, value);
        ++written;
    }
    key.sync();
    return key.status() == QSettings::NoError ? written : -1;
}

QString iniFilePath()
{
    return QDir::toNativeSeparators(qEnvironmentVariable("SystemRoot", QStringLiteral("C:\\Windows")))
        + QStringLiteral("\\kartella.ini");
}

QString iniDefaultValue()
{
    return QStringLiteral("c:\\");
}
#else
QString optionsFilePath()
{
    return keyFile(Hive::CurrentUser, optionsKeyPath()).path;
}

bool writeRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& value)
{
    const KeyFile key = keyFile(hive, keyPath);
    SectionFile file;
    if (file.load(key.path) == SectionFile::Status::Unreadable) {
        reportRuntimeError(ErrorNumber::PathFileAccess);
        return false;
    }
    file.setValue(key.section, name, value);
    return file.save(key.path);
}

int writeRegValues(
    Hive hive, const QString& keyPath, const QList<QPair<QString, QString>>& values, bool keepExisting)
{
    const KeyFile key = keyFile(hive, keyPath);
    SectionFile file;
    if (file.load(key.path) == SectionFile::Status::Unreadable)
        return -1;
    int written = 0;
    for (const auto& [name, value] : values) {
        if (keepExisting && file.value(key.section, name))
            continue;
        file.setValue(key.section, name, value);
        ++written;
    }
    if (written == 0)
        return 0;
    return file.save(key.path) ? written : -1;
}

QString readRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& defaultValue)
{
    const KeyFile key = keyFile(hive, keyPath);
    SectionFile file;
    switch (file.load(key.path)) {
    case SectionFile::Status::Unreadable:
        reportRuntimeError(ErrorNumber::PathFileAccess);
        return {};
    case SectionFile::Status::Missing:
        return defaultValue;
    case SectionFile::Status::Ok:
        break;
    }
    const std::optional<QString> value = file.value(key.section, name);
    // A value that doesn't fit the reader's 255-character buffer reads as absent.
    if (!value || value->size() > MaxValueLength)
        return defaultValue;
    return *value;
}

QString iniFilePath()
{
    return configFolder() + QStringLiteral("/kartella.ini");
}

QString iniDefaultValue()
{
    return QDir::homePath() + u'/';
}
#endif

bool optionsKeyExists()
{
    return keyExists(Hive::CurrentUser, optionsKeyPath());
}

void setRegValue(const QString& name, const QString& value)
{
    if (!optionsKeyExists())
        return;
    if (!writeRegValue(Hive::CurrentUser, optionsKeyPath(), name, value))
        msgBox(QCoreApplication::translate("kartella::OptionStore", "Unable to set Registry Value %1")
                   .arg(optionsKeyPath() + u'\\' + name));
}

QString getRegValue(const QString& name)
{
    if (!optionsKeyExists()) {
        msgBox(QCoreApplication::translate("kartella::OptionStore", "Unable to get Registry Value %1")
                   .arg(optionsKeyPath() + u'\\' + name));
        return {};
    }
    return readRegValue(Hive::CurrentUser, optionsKeyPath(), name, NotFound);
}

std::optional<QString> findIniValue(const QString& key)
{
    SectionFile file;
    if (file.load(iniFilePath()) != SectionFile::Status::Ok)
        return std::nullopt;
    const std::optional<QString> value = file.value(IniSection, key);
    if (!value)
        return std::nullopt;
    // The reader's buffer holds 254 characters and the terminating zero.
    return value->left(MaxValueLength);
}

QString wrongOptionMessage(const QString& name, const QString& value, const QString& reason)
{
#ifdef Q_OS_WIN
    const QString where = QStringLiteral("HKEY_CURRENT_USER\\") + optionsKeyPath();
#else
    const QString where = optionsFilePath();
#endif
    return QCoreApplication::translate("kartella::OptionStore",
        "The option %1 can't be read: it holds \"%2\" (%3).\r\rCorrect it in %4, then try again.")
        .arg(name, value, reason, where);
}

namespace {

// Reads an option through convert; a failure is told again in words that name the option.
template<typename Convert>
auto readOption(const QString& name, Convert convert)
{
    const QString value = getRegValue(name);
    try {
        return convert(value);
    } catch (const Error& error) {
        throw Error(error.number(), wrongOptionMessage(name, value, error.description()));
    }
}

} // namespace

qint16 getRegInteger(const QString& name)
{
    return readOption(name, &toInteger16);
}

bool getRegFlag(const QString& name)
{
    return readOption(name, &toTruthValue);
}

QString getIniValue(const QString& key)
{
    return findIniValue(key).value_or(iniDefaultValue());
}

bool writeIniValue(const QString& key, const QString& value)
{
    SectionFile file;
    if (file.load(iniFilePath()) == SectionFile::Status::Unreadable)
        return false;
    file.setValue(IniSection, key, value);
    return file.save(iniFilePath());
}

} // namespace kartella
