#include "options/CaptureOptions.h"

#include "options/OptionStore.h"

namespace kartella {

namespace {

QString readOption(const QString& name, const QString& fallback)
{
    return readRegValue(Hive::CurrentUser, optionsKeyPath(), name, fallback);
}

} // namespace

ScanSettings scanSettings()
{
    ScanSettings settings;
    settings.device = readOption(QStringLiteral("ScanDevice"), {});
    settings.source = readOption(QStringLiteral("ScanSource"), {});
    settings.mode = readOption(QStringLiteral("ScanMode"), {});
    bool ok = false;
    const int resolution = readOption(QStringLiteral("ScanResolution"), {}).trimmed().toInt(&ok);
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

QString defaultOcrLanguages()
{
    return QStringLiteral("lit+eng");
}

QString ocrLanguages()
{
    const QString value = readOption(QStringLiteral("OcrLanguages"), {}).trimmed();
    return value.isEmpty() ? defaultOcrLanguages() : value;
}

} // namespace kartella
