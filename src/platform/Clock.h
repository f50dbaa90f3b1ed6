#pragma once

#include <QDateTime>

namespace kartella {

// Today and now. Everything that reads the date asks the installed clock, so that tests
// can stand on any day. The program uses the system's clock; a test installs a
// SettableClock for as long as it lives.
class Clock
{
public:
    virtual ~Clock() = default;
    // The local date and time.
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }

    // The installed clock's date: Clock::instance().today().
    static QDate currentDate() { return instance().today(); }

    // The installed clock: the system's when none is installed.
    static Clock& instance();
    // Installs a clock (nullptr: the system's again). The caller keeps ownership.
    static void setInstance(Clock* clock);
};

// The system's clock.
class SystemClock final : public Clock
{
public:
    QDateTime now() const override;
};

// A clock that stands still at a moment a test sets. It installs itself while it lives
// and gives back the clock installed before it.
class SettableClock final : public Clock
{
public:
    explicit SettableClock(const QDateTime& now = QDateTime::currentDateTime());
    explicit SettableClock(const QDate& today);
    ~SettableClock() override;
    SettableClock(const SettableClock&) = delete;
    SettableClock& operator=(const SettableClock&) = delete;

    QDateTime now() const override { return m_now; }
    void setNow(const QDateTime& now) { m_now = now; }
    // Noon of the given day.
    void setToday(const QDate& today) { m_now = QDateTime(today, QTime(12, 0)); }

private:
    QDateTime m_now;
    Clock* m_previous;
};

} // namespace kartella
