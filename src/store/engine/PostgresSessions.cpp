#include "store/engine/PostgresSessions.h"

#include "store/engine/PostgresBackend.h"

#include <QDeadlineTimer>
#include <QMutex>

#include <vector>

namespace kartella::engine::PostgresSessions {

namespace {

struct Kept
{
    std::unique_ptr<PostgresBackend> session;
    QDeadlineTimer until;
};

QMutex g_mutex;
std::vector<Kept>& kept()
{
    static std::vector<Kept> sessions;
    return sessions;
}

// Takes the sessions whose time is up out of the list, for closing outside the lock.
std::vector<Kept> takeExpired()
{
    std::vector<Kept> expired;
    std::vector<Kept>& sessions = kept();
    for (auto it = sessions.begin(); it != sessions.end();) {
        if (it->until.hasExpired()) {
            expired.push_back(std::move(*it));
            it = sessions.erase(it);
        } else {
            ++it;
        }
    }
    return expired;
}

} // namespace

std::unique_ptr<PostgresBackend> take(const QString& location, int lockWaitMs)
{
    for (;;) {
        std::unique_ptr<PostgresBackend> session;
        std::vector<Kept> expired;
        {
            const QMutexLocker lock(&g_mutex);
            expired = takeExpired();
            std::vector<Kept>& sessions = kept();
            // The most recently kept first: its server process is the likeliest to be warm.
            for (auto it = sessions.rbegin(); it != sessions.rend(); ++it) {
                if (it->session->location() == location && it->session->lockWaitMs() == lockWaitMs) {
                    session = std::move(it->session);
                    sessions.erase(std::next(it).base());
                    break;
                }
            }
        }
        if (!session)
            return nullptr;
        // A server that restarted since left this session without a process; try the next.
        if (session->stillConnected())
            return session;
    }
}

void keep(std::unique_ptr<PostgresBackend> session)
{
    if (!session || !session->isIdle())
        return;
    std::vector<Kept> closing;
    {
        const QMutexLocker lock(&g_mutex);
        closing = takeExpired();
        std::vector<Kept>& sessions = kept();
        sessions.push_back({std::move(session), QDeadlineTimer(MaxIdleMs)});
        if (sessions.size() > std::size_t(MaxKept)) {
            closing.push_back(std::move(sessions.front()));
            sessions.erase(sessions.begin());
        }
    }
}

} // namespace kartella::engine::PostgresSessions
