#include "options/TextOptions.h"

#include "options/OptionStore.h"

namespace kartella {

qint64 textSizeLimitBytes()
{
    const QString value
        = readRegValue(Hive::CurrentUser, optionsKeyPath(), QStringLiteral("TextSizeLimitMB"), {});
    bool ok = false;
    const qint64 megabytes = value.trimmed().toLongLong(&ok);
    return (ok && megabytes >= 1 ? megabytes : DefaultTextSizeLimitMB) * 1024 * 1024;
}

} // namespace kartella
