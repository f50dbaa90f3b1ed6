#include "harness/ServerDatabase.h"

#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QCoreApplication>
#include <QUrl>

#include <atomic>

namespace kartella::test {

namespace {

const char* const ServerVariable = "KARTELLA_TEST_POSTGRESQL";

QString maintenanceLocation()
{
    return qEnvironmentVariable(ServerVariable);
}

void runOnMaintenance(const QString& sql)
{
    Connection connection;
    connection.open(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), maintenanceLocation()));
    connection.execute(sql);
    connection.close();
}

} // namespace

bool ServerDatabase::available()
{
    return !maintenanceLocation().isEmpty();
}

QString ServerDatabase::skipReason()
{
    return QStringLiteral("no PostgreSQL server for the tests: %1 is not set")
        .arg(QLatin1String(ServerVariable));
}

ServerDatabase::ServerDatabase()
{
    if (!available())
        return;
    static std::atomic<int> counter {0};
    m_name = QStringLiteral("kartella_test_%1_%2")
                 .arg(QCoreApplication::applicationPid())
                 .arg(counter.fetch_add(1) + 1);
    runOnMaintenance(QStringLiteral("DROP DATABASE IF EXISTS ") + m_name + QStringLiteral(" WITH (FORCE)"));
    runOnMaintenance(
        QStringLiteral("CREATE DATABASE ") + m_name + QStringLiteral(" TEMPLATE template0 ENCODING 'UTF8'"));
    QUrl url(maintenanceLocation());
    url.setPath(u'/' + m_name);
    m_location = url.toString();
}

ServerDatabase::~ServerDatabase()
{
    if (m_name.isEmpty())
        return;
    try {
        runOnMaintenance(
            QStringLiteral("DROP DATABASE IF EXISTS ") + m_name + QStringLiteral(" WITH (FORCE)"));
    } catch (...) {
        // A database left behind goes with the throwaway cluster.
    }
}

bool testsOnServer()
{
    return qEnvironmentVariable("KARTELLA_TEST_ENGINE_BACKEND") == QLatin1String("postgresql");
}

} // namespace kartella::test
