#include "harness/ScriptedTelephony.h"

namespace kartella::test {

ScriptedTelephony::ScriptedTelephony()
    : m_previous(&Telephony::instance())
{
    Telephony::setInstance(this);
}

ScriptedTelephony::~ScriptedTelephony()
{
    Telephony::setInstance(m_previous);
}

bool ScriptedTelephony::requestCall(const QString& number)
{
    calls.append(number);
    return m_callResult;
}

bool ScriptedTelephony::openLink(const QUrl& url)
{
    links.append(url);
    return true;
}

} // namespace kartella::test
