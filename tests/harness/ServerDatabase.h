#pragma once

#include <QString>

namespace kartella::test {

// An empty database of its own on the tests' PostgreSQL server, dropped again when the
// object goes. The server is the one KARTELLA_TEST_POSTGRESQL names (the location of a
// database to connect to while creating others); without it, isValid() is false and
// skipReason() says why.
class ServerDatabase
{
public:
    ServerDatabase();
    ~ServerDatabase();
    ServerDatabase(const ServerDatabase&) = delete;
    ServerDatabase& operator=(const ServerDatabase&) = delete;

    // Whether the tests have a server at all.
    static bool available();
    static QString skipReason();

    bool isValid() const { return !m_location.isEmpty(); }
    // postgresql://user@host:port/name of the new database.
    QString location() const { return m_location; }
    QString name() const { return m_name; }

private:
    QString m_name;
    QString m_location;
};

// Whether the engine's tests are to run on the server (KARTELLA_TEST_ENGINE_BACKEND=postgresql).
bool testsOnServer();

} // namespace kartella::test
