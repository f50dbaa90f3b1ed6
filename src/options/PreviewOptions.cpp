#include "options/PreviewOptions.h"

#include "options/OptionStore.h"

namespace kartella {

namespace {

const QString PaneOption = QStringLiteral("PreviewPane");
const QString CacheLimitOption = QStringLiteral("PreviewCacheMB");

} // namespace

bool previewPaneShown()
{
    return readRegValue(Hive::CurrentUser, optionsKeyPath(), PaneOption, {}).trimmed() == u'1';
}

void setPreviewPaneShown(bool shown)
{
    writeRegValue(
        Hive::CurrentUser, optionsKeyPath(), PaneOption, shown ? QStringLiteral("1") : QStringLiteral("0"));
}

qint64 previewCacheLimitBytes()
{
    bool read = false;
    const qint64 megabytes
        = readRegValue(Hive::CurrentUser, optionsKeyPath(), CacheLimitOption, {}).trimmed().toLongLong(&read);
    const qint64 chosen = read && megabytes >= 1 && megabytes <= 100000 ? megabytes : DefaultPreviewCacheMb;
    return chosen * 1024 * 1024;
}

} // namespace kartella
