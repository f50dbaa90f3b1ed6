#include "platform/Clock.h"

namespace kartella {

namespace {

Clock*& installed()
{
    static Clock* current = nullptr;
    return current;
}

} // namespace

Clock& Clock::instance()
{
    static SystemClock system;
    Clock* current = installed();
    return current ? *current : system;
}

void Clock::setInstance(Clock* clock)
{
    installed() = clock;
}

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}

SettableClock::SettableClock(const QDateTime& now)
    : m_now(now)
    , m_previous(installed())
{
    Clock::setInstance(this);
}

SettableClock::SettableClock(const QDate& today)
    : SettableClock(QDateTime(today, QTime(12, 0)))
{ }

SettableClock::~SettableClock()
{
    Clock::setInstance(m_previous);
}

} // namespace kartella
