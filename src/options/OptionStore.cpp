#include "options/OptionStore.h"

#include "options/SectionFile.h"
#include "platform/Prompter.h"
#include "support/Error.h"

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
    MsgBox(QStringLiteral("ERROR # ") + QString::number(number)
        + QStringLiteral(" : 0\rPlease exit and try again."));
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
    const QString root = hive == Hive::CurrentUser ? ConfigFolder() : QStringLiteral("/etc");
    return {root + u'/' + (parts.isEmpty() ? section : parts.join(u'/')) + QStringLiteral(".ini"), section};
}

bool keyExists(Hive hive, const QString& keyPath)
{
    return QFileInfo::exists(keyFile(hive, keyPath).path);
}
#endif

} // namespace

QString OptionsKeyPath()
{
    return QStringLiteral("SOFTWARE\\Kartella\\Options");
}

QString ConfigFolder()
{
    const QString xdg = qEnvironmentVariable("XDG_CONFIG_HOME");
    return xdg.isEmpty() ? QDir::homePath() + QStringLiteral("/.config") : xdg;
}

#ifdef Q_OS_WIN
QString OptionsFilePath()
{
    return {};
}

bool WriteRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& value)
{
    QSettings key(registryPath(hive, keyPath), QSettings::NativeFormat);
    key.setValue(name, value);
    key.sync();
    return key.status() == QSettings::NoError;
}

QString ReadRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& defaultValue)
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

QString IniFilePath()
{
    return QDir::toNativeSeparators(qEnvironmentVariable("SystemRoot", QStringLiteral("C:\\Windows")))
        + QStringLiteral("\\kartella.ini");
}

QString IniDefaultValue()
{
    return QStringLiteral("c:\\");
}
#else
QString OptionsFilePath()
{
    return keyFile(Hive::CurrentUser, OptionsKeyPath()).path;
}

bool WriteRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& value)
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

QString ReadRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& defaultValue)
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

QString IniFilePath()
{
    return ConfigFolder() + QStringLiteral("/kartella.ini");
}

QString IniDefaultValue()
{
    return QDir::homePath() + u'/';
}
#endif

bool OptionsKeyExists()
{
    return keyExists(Hive::CurrentUser, OptionsKeyPath());
}

void SetRegValue(const QString& name, const QString& value)
{
    if (!OptionsKeyExists())
        return;
    if (!WriteRegValue(Hive::CurrentUser, OptionsKeyPath(), name, value))
        MsgBox(QStringLiteral("Unable to set Registry Value ") + OptionsKeyPath() + u'\\' + name);
}

QString GetRegValue(const QString& name)
{
    if (!OptionsKeyExists()) {
        MsgBox(QStringLiteral("Unable to get Registry Value ") + OptionsKeyPath() + u'\\' + name);
        return {};
    }
    return ReadRegValue(Hive::CurrentUser, OptionsKeyPath(), name, NotFound);
}

QString GetIniValue(const QString& key)
{
    SectionFile file;
    if (file.load(IniFilePath()) != SectionFile::Status::Ok)
        return IniDefaultValue();
    const std::optional<QString> value = file.value(IniSection, key);
    if (!value)
        return IniDefaultValue();
    // The reader's buffer holds 254 characters and the terminating zero.
    return value->left(MaxValueLength);
}

bool WriteIniValue(const QString& key, const QString& value)
{
    SectionFile file;
    if (file.load(IniFilePath()) == SectionFile::Status::Unreadable)
        return false;
    file.setValue(IniSection, key, value);
    return file.save(IniFilePath());
}

} // namespace kartella
