#include "registration/StoredPaths.h"

#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/SqlText.h"

#include <QDir>

namespace kartella {

QString fileNameOf(const QString& path)
{
    const qsizetype cut = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
    return cut < 0 ? path : path.mid(cut + 1);
}

QString targetInFolder(const QString& folder, const QString& source)
{
    return folder + QDir::separator() + fileNameOf(source);
}

QString storedPathStatement(bool related, qint32 id, const QString& path)
{
    const QString quoted = sqlString(path);
    if (related)
        return QStringLiteral("UPDATE tbl_Sub_Documents SET tbl_Sub_Documents.SubRastoKelias = ") + quoted
            + QStringLiteral(" WHERE (((tbl_Sub_Documents.SubRastasID)=") + QString::number(id)
            + QStringLiteral("));");
    return QStringLiteral("UPDATE tbl_Documents SET tbl_Documents.RastoKel = ") + quoted
        + QStringLiteral(" WHERE (((tbl_Documents.RastasID)=") + QString::number(id) + QStringLiteral("));");
}

void storeMovedPath(bool related, qint32 id, const QString& path)
{
    Connection connection(plainConnectionString());
    connection.open();
    connection.execute(storedPathStatement(related, id, path));
}

} // namespace kartella
