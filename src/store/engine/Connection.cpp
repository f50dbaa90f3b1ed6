#include "store/engine/Connection.h"

#include "store/StoreText.h"
#include "store/engine/Backend.h"
#include "store/engine/ConnectionString.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/PostgresBackend.h"
#include "store/engine/PostgresSessions.h"
#include "store/engine/SqliteBackend.h"

namespace kartella {

using namespace engine;

namespace {

[[noreturn]] void failToConnect(const QString& description)
{
    throwError(ErrorNumber::ConnectionFailed, description, ConnectionSource);
}

std::unique_ptr<Backend> openBackend(const QString& connectionString)
{
    const ConnectionTarget target = parseConnectionString(connectionString);
    if (isServerLocation(target.dataSource))
        return PostgresBackend::open(target.dataSource);
    if (!isJetProvider(target.provider)) {
        const QString named = target.provider.isEmpty()
            ? kartella::StoreText::tr("The connection string names no provider.")
            : kartella::StoreText::tr("Provider cannot be found: '%1'.").arg(target.provider);
        failToConnect(named + u' '
            + kartella::StoreText::tr("Set the Provider option to %1 or %2.")
                  .arg(Jet40Provider, Jet351Provider));
    }
    return SqliteBackend::open(target.dataSource);
}

} // namespace

bool isServerLocation(const QString& dataSource)
{
    const QString location = dataSource.trimmed();
    return location.startsWith(QLatin1String("postgresql://"), Qt::CaseInsensitive)
        || location.startsWith(QLatin1String("postgres://"), Qt::CaseInsensitive);
}

Connection::Connection() = default;

Connection::Connection(const QString& connectionString)
    : m_connectionString(connectionString)
{ }

Connection::~Connection()
{
    close();
}

void Connection::setConnectionString(const QString& connectionString)
{
    m_connectionString = connectionString;
}

QString Connection::connectionString() const
{
    return m_connectionString;
}

void Connection::setMode(int mode)
{
    m_mode = mode;
}

int Connection::Mode() const
{
    return m_mode;
}

void Connection::setCursorLocation(int location)
{
    m_cursorLocation = location;
}

int Connection::cursorLocation() const
{
    return m_cursorLocation;
}

void Connection::open(const QString& connectionString)
{
    if (m_backend)
        throwError(EngineError::ObjectOpen,
            QStringLiteral("Operation is not allowed when the object is open."), ConnectionSource);
    if (!connectionString.isEmpty())
        m_connectionString = connectionString;
    m_backend = openBackend(m_connectionString);
    m_backend->setCarriesContext(m_carriesContext);
}

void Connection::setCarriesContext(bool carries)
{
    m_carriesContext = carries;
    if (m_backend)
        m_backend->setCarriesContext(carries);
}

void Connection::close()
{
    if (auto* server = dynamic_cast<PostgresBackend*>(m_backend.get())) {
        m_backend.release();
        PostgresSessions::keep(std::unique_ptr<PostgresBackend>(server));
        return;
    }
    m_backend.reset();
}

bool Connection::isOpen() const
{
    return m_backend != nullptr;
}

void Connection::execute(const QString& sql)
{
    backend().execute(sql);
}

void Connection::beginTrans()
{
    backend().beginTransaction();
}

void Connection::commitTrans()
{
    backend().commitTransaction();
}

void Connection::rollbackTrans()
{
    backend().rollbackTransaction();
}

qint64 Connection::keyCounter(const QString& table)
{
    return backend().keyCounter(table);
}

void Connection::lockForWriting(const QString& name)
{
    backend().lockForWriting(name);
}

void Connection::setStopFlag(std::shared_ptr<const std::atomic<bool>> flag)
{
    backend().setStopFlag(std::move(flag));
}

void Connection::raiseKeyCounter(const QString& table, qint64 value)
{
    backend().raiseKeyCounter(table, value);
}

SqlDialect Connection::dialect()
{
    return backend().dialect();
}

Backend& Connection::backend()
{
    if (!m_backend)
        throwError(EngineError::ObjectClosed,
            QStringLiteral("Operation is not allowed when the object is closed."), ConnectionSource);
    return *m_backend;
}

namespace {
int g_lockWaitMs = 10000;
} // namespace

int Connection::lockWaitMs()
{
    return g_lockWaitMs;
}

void Connection::setLockWaitMs(int milliseconds)
{
    g_lockWaitMs = milliseconds;
}

} // namespace kartella
