#include "harness/TestRegister.h"

#include "base/Error.h"
#include "harness/ServerDatabase.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "store/InsertBatch.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QDir>
#include <QHash>

namespace kartella::test {

namespace {

const QString Provider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

QString keyOf(const QString& table)
{
    static const QHash<QString, QString> keys = {
        {QStringLiteral("tbl_documents"), QStringLiteral("RastasID")},
        {QStringLiteral("tbl_sub_documents"), QStringLiteral("SubRastasID")},
        {QStringLiteral("tbl_document_categories"), QStringLiteral("KategID")},
        {QStringLiteral("tbl_sub_categories"), QStringLiteral("SubKategID")},
        {QStringLiteral("tbl_contacts"), QStringLiteral("ContactID")},
        {QStringLiteral("tbl_phones"), QStringLiteral("PhoneID")},
        {QStringLiteral("tbl_homepages"), QStringLiteral("HomeID")},
        {QStringLiteral("tbl_tickler"), QStringLiteral("TicklerID")},
    };
    const QString key = keys.value(table.toLower());
    if (key.isEmpty())
        throw Error(ErrorNumber::ItemNotFound, QStringLiteral("No key known for table ") + table);
    return key;
}

} // namespace

TestRegister::TestRegister(const QString& fileName)
    : m_path(m_dir.filePath(fileName))
    , m_previousConfig(qgetenv("XDG_CONFIG_HOME"))
    , m_hadConfig(qEnvironmentVariableIsSet("XDG_CONFIG_HOME"))
{
    setUp(m_path);
}

TestRegister::TestRegister(Where where)
    : m_path(m_dir.filePath(QStringLiteral("Kartella.mdb")))
    , m_previousConfig(qgetenv("XDG_CONFIG_HOME"))
    , m_hadConfig(qEnvironmentVariableIsSet("XDG_CONFIG_HOME"))
{
    if (where == Server) {
        if (!ServerDatabase::available())
            throw Error(ErrorNumber::ConnectionFailed, ServerDatabase::skipReason());
        m_server = std::make_unique<ServerDatabase>();
        m_path = m_server->location();
    }
    setUp(m_path);
}

void TestRegister::setUp(const QString& location)
{
    if (!m_dir.isValid())
        throw Error(ErrorNumber::PathFileAccess, QStringLiteral("Can't make a temporary folder"));
    qputenv("XDG_CONFIG_HOME", m_dir.filePath(QStringLiteral("config")).toUtf8());
    try {
        seedOptionsIfMissing();
        createRegister(location);
        setRegValue(QStringLiteral("DbLocation"), location);
        setRegValue(QStringLiteral("Provider"), Provider);
    } catch (...) {
        restoreConfig();
        throw;
    }
}

TestRegister::~TestRegister()
{
    restoreConfig();
}

void TestRegister::restoreConfig() const
{
    if (m_hadConfig)
        qputenv("XDG_CONFIG_HOME", m_previousConfig);
    else
        qunsetenv("XDG_CONFIG_HOME");
}

QString TestRegister::connectionString() const
{
    return plainConnectionString(Provider, m_path);
}

void TestRegister::exec(const QString& sql) const
{
    Connection connection(connectionString());
    connection.open();
    connection.execute(sql);
}

QVariant TestRegister::scalar(const QString& sql) const
{
    Connection connection(connectionString());
    connection.open();
    Recordset recordset;
    recordset.open(sql, connection);
    return recordset.eof() || recordset.fieldCount() == 0 ? QVariant() : recordset.fields(0).value();
}

qint32 TestRegister::insert(const QString& table, const QVariantMap& values) const
{
    const QString key = keyOf(table);
    QStringList fields;
    QStringList literals;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        fields << it.key();
        literals << sqlLiteral(it.value());
    }
    // A statement rather than a recordset, so that a test can store what the program's
    // own writes would refuse (text in a date column of an old register, say).
    QString sql = QStringLiteral("INSERT INTO ") + table;
    sql += fields.isEmpty() ? QStringLiteral(" DEFAULT VALUES")
                            : QStringLiteral(" (") + fields.join(u',') + QStringLiteral(") VALUES (")
            + literals.join(u',') + u')';
    Connection connection(connectionString());
    connection.open();
    connection.execute(sql);
    // A given key is the new one; otherwise the highest, as nobody else writes to a test's
    // register (this works on either back end).
    if (values.contains(key))
        return values.value(key).toInt();
    Recordset last;
    last.open(QStringLiteral("SELECT MAX(") + key + QStringLiteral(") AS NewKey FROM ") + table, connection);
    return last.fields(QStringLiteral("NewKey")).value().toInt();
}

void TestRegister::fillSample(const SampleOptions& options) const
{
    if (!m_server) {
        fillSampleRegister(m_path, options);
        return;
    }
    // A register on a server keeps its sample files in the current folder: the temporary one.
    const QString previous = QDir::currentPath();
    QDir::setCurrent(dir());
    try {
        fillSampleRegister(m_path, options);
    } catch (...) {
        QDir::setCurrent(previous);
        throw;
    }
    QDir::setCurrent(previous);
}

} // namespace kartella::test
