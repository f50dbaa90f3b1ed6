#include "store/Schema.h"

#include "base/Error.h"
#include "store/SchemaSteps.h"
#include "store/Store.h"
#include "store/StoreText.h"
#include "store/engine/Connection.h"

#include <QFile>
#include <QFileInfo>

namespace kartella {

namespace {

const QString JetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

// The schema in an empty database of a server.
void createServerRegister(const QString& location)
{
    Connection connection;
    connection.open(plainConnectionString(JetProvider, location));
    if (!databaseIsEmpty(connection))
        throw Error(ErrorNumber::PathFileAccess,
            kartella::StoreText::tr(
                "The database \"%1\" already holds tables. A register is made only in an empty "
                "database.")
                .arg(location));
    connection.beginTrans();
    createRegisterSchema(connection);
    connection.commitTrans();
    connection.close();
}

} // namespace

void createRegisterSchema(Connection& connection)
{
    runSchemaSteps(connection, 0);
}

void createRegister(const QString& path)
{
    if (isServerLocation(path)) {
        createServerRegister(path);
        return;
    }
    const QString nativePath = QFileInfo(path).absoluteFilePath();
    if (QFileInfo::exists(nativePath))
        throw Error(ErrorNumber::PathFileAccess,
            kartella::StoreText::tr("A file named \"%1\" already exists.").arg(nativePath));

    // The engine opens only files that exist; the register starts as an empty file.
    QFile file(nativePath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw Error(ErrorNumber::PathFileAccess,
            kartella::StoreText::tr("Can't create \"%1\": %2").arg(nativePath, file.errorString()));
    file.close();

    try {
        Connection connection;
        connection.open(plainConnectionString(JetProvider, nativePath));
        connection.beginTrans();
        createRegisterSchema(connection);
        connection.commitTrans();
        connection.close();
    } catch (...) {
        QFile::remove(nativePath);
        throw;
    }
}

} // namespace kartella
