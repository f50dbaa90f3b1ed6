#include "platform/DesktopTelephony.h"

#include "platform/DesktopHandlers.h"

#include <QDesktopServices>

namespace kartella {

bool DesktopTelephony::requestCall(const QString& number)
{
    const QUrl url = telUrl(number);
    return url.isValid() && QDesktopServices::openUrl(url);
}

bool DesktopTelephony::callsPossible()
{
    return desktopPlacesCalls();
}

bool DesktopTelephony::openLink(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

} // namespace kartella
