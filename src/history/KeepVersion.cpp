#include "history/KeepVersion.h"

#include "base/Error.h"
#include "history/TrashCommands.h"
#include "history/Versions.h"
#include "options/TrashOptions.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QFileInfo>

namespace kartella {

bool keepVersionBeforeReplacing(const QString& path, QString* reason)
{
    if (!QFileInfo(path).isFile())
        return true;
    try {
        Connection connection(plainConnectionString());
        connection.open();
        Recordset owner;
        owner.open(QStringLiteral("SELECT RastasID FROM tbl_Documents WHERE RastoKel='%1'")
                       .arg(QString(path).replace(u'\'', QStringLiteral("''"))),
            connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        if (owner.eof())
            return true;
        const qint64 id = owner.collect(QStringLiteral("RastasID")).toLongLong();
        owner.close();
        // A server register without its shared folder yet asks for it; cancelled, the version
        // can't be kept and Versions says so.
        Versions(askRegisterVersionsFolder(), versionsPerDocument()).keep(id, path);
        return true;
    } catch (const Error& error) {
        if (reason)
            *reason = error.description();
        return false;
    }
}

} // namespace kartella
