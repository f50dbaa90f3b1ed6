#pragma once

#include "platform/Telephony.h"

#include <QList>
#include <QStringList>
#include <QUrl>

namespace kartella::test {

// Telephony for tests. It installs itself while it lives and records the numbers it was
// asked to call and the links it was asked to open, in order. Calls succeed unless
// setCallResult(false) was given; links always open.
class ScriptedTelephony final : public Telephony
{
public:
    ScriptedTelephony();
    ~ScriptedTelephony() override;
    ScriptedTelephony(const ScriptedTelephony&) = delete;
    ScriptedTelephony& operator=(const ScriptedTelephony&) = delete;

    void setCallResult(bool result) { m_callResult = result; }

    bool requestCall(const QString& number) override;
    bool openLink(const QUrl& url) override;

    QStringList calls;
    QList<QUrl> links;

private:
    Telephony* m_previous = nullptr;
    bool m_callResult = true;
};

} // namespace kartella::test
