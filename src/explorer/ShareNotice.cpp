#include "explorer/ShareNotice.h"

#include "platform/NetworkShare.h"

#include <QFileInfo>
#include <QStatusBar>

namespace kartella {

ShareNotice::ShareNotice(QStatusBar* status)
    : QLabel(status)
{
    setObjectName(QStringLiteral("pnShare"));
    setAccessibleName(tr("Network share notice"));
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    status->addWidget(this);
    hide();
}

void ShareNotice::registerOpened(const QString& location)
{
    hide();
    clear();
    const QString key = QFileInfo(location.trimmed()).absoluteFilePath();
    if (location.trimmed().isEmpty() || m_told.contains(key))
        return;
    const QString share = registerShareName(location);
    if (share.isEmpty())
        return;
    m_told.insert(key);
    const QString notice = shareNoticeText(location, share);
    setText(notice);
    setToolTip(notice);
    show();
}

} // namespace kartella
