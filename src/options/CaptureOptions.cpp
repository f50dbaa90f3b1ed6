#include "options/CaptureOptions.h"

#include "options/OptionStore.h"

namespace kartella {

namespace {

const QString InboxOption = QStringLiteral("InboxFolder");
const QString OcrOption = QStringLiteral("OcrLanguages");

QString readOption(const QString& name)
{
    return readRegValue(Hive::CurrentUser, optionsKeyPath(), name, {}).trimmed();
}

} // namespace

QString inboxFolder()
{
    return readOption(InboxOption);
}

void setInboxFolder(const QString& folder)
{
    const QString before = inboxFolder();
    writeRegValue(Hive::CurrentUser, optionsKeyPath(), InboxOption, folder.trimmed());
    if (before != inboxFolder())
        Q_EMIT captureOptions().inboxFolderChanged();
}

QString ocrLanguages()
{
    const QString languages = readOption(OcrOption);
    return languages.isEmpty() ? DefaultOcrLanguages : languages;
}

void setOcrLanguages(const QString& languages)
{
    writeRegValue(Hive::CurrentUser, optionsKeyPath(), OcrOption, languages.trimmed());
}

ScanSettings scanSettings()
{
    ScanSettings settings;
    settings.device = readOption(QStringLiteral("ScanDevice"));
    settings.source = readOption(QStringLiteral("ScanSource"));
    settings.mode = readOption(QStringLiteral("ScanMode"));
    bool ok = false;
    const int resolution = readOption(QStringLiteral("ScanResolution")).toInt(&ok);
    settings.resolution = ok && resolution >= 25 && resolution <= 4800 ? resolution : DefaultScanResolution;
    return settings;
}

void saveScanSettings(const ScanSettings& settings)
{
    writeRegValues(Hive::CurrentUser, optionsKeyPath(),
        {{QStringLiteral("ScanDevice"), settings.device}, {QStringLiteral("ScanSource"), settings.source},
            {QStringLiteral("ScanMode"), settings.mode},
            {QStringLiteral("ScanResolution"), QString::number(settings.resolution)}},
        false);
}

CaptureOptionsNotifier& captureOptions()
{
    static CaptureOptionsNotifier notifier;
    return notifier;
}

} // namespace kartella
