#pragma once

#include <QString>

#include <memory>

namespace kartella::engine {

class PostgresBackend;

// Sessions with a register server that closed connections left behind, kept for the next
// connection to the same location. Each new session costs the server a process of its own
// and a cold cache; a program opens a connection for nearly every command. A session is
// kept only when it is connected and outside any transaction, a few at a time, for a
// minute at most; a kept one is asked whether the server is still there before it is given
// out again, and it reads the register's tables afresh, so that a change another program
// made to them meanwhile is seen.
namespace PostgresSessions {

// A kept session with location and the lock wait given, or nullptr when there is none.
std::unique_ptr<PostgresBackend> take(const QString& location, int lockWaitMs);
// Keeps the session for later when it can be used again, else closes it.
void keep(std::unique_ptr<PostgresBackend> session);

// How many sessions are kept at most, and for how long.
constexpr int MaxKept = 4;
constexpr int MaxIdleMs = 60000;

} // namespace PostgresSessions

} // namespace kartella::engine
