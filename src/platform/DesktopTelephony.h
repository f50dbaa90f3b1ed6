#pragma once

#include "platform/Telephony.h"

namespace kartella {

// The desktop's telephony: a call goes out as a tel: URL to the program registered for it
// (a softphone, a phone link), links to the browser and the mail program.
class DesktopTelephony final : public Telephony
{
public:
    bool requestCall(const QString& number) override;
    // False when the desktop has no program for tel: links.
    bool callsPossible() override;
    bool openLink(const QUrl& url) override;
};

} // namespace kartella
