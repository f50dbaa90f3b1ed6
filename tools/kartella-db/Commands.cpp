#include "Commands.h"

#include "RegisterArgument.h"
#include "ToolText.h"
#include "base/Error.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QFile>
#include <QStringList>

namespace kartella::tool {

namespace {

const QStringList Tables = {
    QStringLiteral("tbl_Document_Categories"),
    QStringLiteral("tbl_Sub_Categories"),
    QStringLiteral("tbl_Documents"),
    QStringLiteral("tbl_Sub_Documents"),
    QStringLiteral("tbl_Tickler"),
    QStringLiteral("tbl_Contacts"),
    QStringLiteral("tbl_Phones"),
    QStringLiteral("tbl_HomePages"),
};

} // namespace

void createCommand(const QString& path)
{
    createRegister(path);
}

void sampleCommand(const QString& path, int documents, quint32 seed, QTextStream& out)
{
    const QString location = registerLocation(path);
    createRegister(location);
    SampleOptions options;
    options.documents = documents;
    options.seed = seed;
    try {
        fillSampleRegister(location, options);
    } catch (...) {
        // The fill writes its rows in one transaction: a server database keeps the empty schema.
        if (!isServerLocation(location))
            QFile::remove(location);
        throw;
    }
    out << ToolText::tr("Created %1 with %2 documents; files in %3")
               .arg(location, QString::number(documents), sampleFilesFolder(location))
        << Qt::endl;
}

void infoCommand(const QString& path, QTextStream& out)
{
    const QString location = existingRegister(path);
    Connection connection;
    connection.open(registerConnectionString(location));
    QStringList lines;
    for (const QString& table : Tables) {
        Recordset count;
        count.open(QStringLiteral("SELECT COUNT(*) AS N FROM ") + table, connection);
        lines << table + QStringLiteral(": ")
                + QString::number(count.fields(QStringLiteral("N")).value().toLongLong());
    }
    connection.close();
    for (const QString& line : std::as_const(lines))
        out << line << '\n';
    out.flush();
}

} // namespace kartella::tool
