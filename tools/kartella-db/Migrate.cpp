#include "Migrate.h"

#include "MdbSource.h"
#include "RegisterArgument.h"
#include "ToolText.h"
#include "store/Schema.h"
#include "store/engine/Connection.h"
#include "store/migration/RegisterMigration.h"

#include <QFile>
#include <QFileInfo>

namespace kartella::tool {

int migrateCommand(
    const QString& oldPath, const QString& newRegister, const QString& codePage, QTextStream& out)
{
    const QString newPath = registerLocation(newRegister);
    // The old file is opened first, so a file that can't be read leaves no new register.
    MdbSource source(oldPath, codePage);
    createRegister(newPath);
    migration::MigrationReport report;
    try {
        report = migration::migrateRegister(source, newPath);
    } catch (...) {
        // The rows go in one transaction: a server database keeps the empty schema.
        if (!isServerLocation(newPath))
            QFile::remove(newPath);
        throw;
    }
    out << ToolText::tr("Read %1 (%2)").arg(QFileInfo(oldPath).absoluteFilePath(), source.version()) << '\n';
    for (const QString& line : report.lines())
        out << line << '\n';
    out << (report.complete() ? ToolText::tr("Everything arrived in %1")
                              : ToolText::tr("Not everything arrived in %1"))
               .arg(newPath)
        << Qt::endl;
    return report.complete() ? 0 : 1;
}

} // namespace kartella::tool
