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

CaptureOptionsNotifier& captureOptions()
{
    static CaptureOptionsNotifier notifier;
    return notifier;
}

} // namespace kartella
