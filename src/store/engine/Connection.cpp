#include "store/engine/Connection.h"

#include "store/engine/Backend.h"
#include "store/engine/ConnectionString.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/SqliteBackend.h"

namespace kartella {

using namespace engine;

namespace {

[[noreturn]] void failToConnect(const QString& description)
{
    ThrowError(ErrorNumber::ConnectionFailed, description, ConnectionSource);
}

std::unique_ptr<Backend> openBackend(const QString& connectionString)
{
    const ConnectionTarget target = ParseConnectionString(connectionString);
    if (target.dataSource.startsWith(QLatin1String("postgresql://"), Qt::CaseInsensitive))
        failToConnect(QStringLiteral("This build of Kartella can't reach PostgreSQL registers ('")
            + target.dataSource + QStringLiteral("'). Choose a register file instead."));
    if (!IsJetProvider(target.provider)) {
        const QString named = target.provider.isEmpty()
            ? QStringLiteral("The connection string names no provider.")
            : QStringLiteral("Provider cannot be found: '") + target.provider + QStringLiteral("'.");
        failToConnect(named + QStringLiteral(" Set the Provider option to ") + Jet40Provider
            + QStringLiteral(" or ") + Jet351Provider + u'.');
    }
    return SqliteBackend::open(target.dataSource);
}

} // namespace

Connection::Connection() = default;

Connection::Connection(const QString& connectionString)
    : m_connectionString(connectionString)
{ }

Connection::~Connection() = default;

void Connection::SetConnectionString(const QString& connectionString)
{
    m_connectionString = connectionString;
}

QString Connection::ConnectionString() const
{
    return m_connectionString;
}

void Connection::SetMode(int mode)
{
    m_mode = mode;
}

int Connection::Mode() const
{
    return m_mode;
}

void Connection::SetCursorLocation(int location)
{
    m_cursorLocation = location;
}

int Connection::CursorLocation() const
{
    return m_cursorLocation;
}

void Connection::Open(const QString& connectionString)
{
    if (m_backend)
        ThrowError(EngineError::ObjectOpen,
            QStringLiteral("Operation is not allowed when the object is open."), ConnectionSource);
    if (!connectionString.isEmpty())
        m_connectionString = connectionString;
    m_backend = openBackend(m_connectionString);
}

void Connection::Close()
{
    m_backend.reset();
}

bool Connection::IsOpen() const
{
    return m_backend != nullptr;
}

void Connection::Execute(const QString& sql)
{
    backend().execute(sql);
}

void Connection::BeginTrans()
{
    backend().beginTransaction();
}

void Connection::CommitTrans()
{
    backend().commitTransaction();
}

void Connection::RollbackTrans()
{
    backend().rollbackTransaction();
}

Backend& Connection::backend()
{
    if (!m_backend)
        ThrowError(EngineError::ObjectClosed,
            QStringLiteral("Operation is not allowed when the object is closed."), ConnectionSource);
    return *m_backend;
}

} // namespace kartella
