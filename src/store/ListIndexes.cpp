#include "store/engine/Connection.h"

#include <QStringList>

namespace kartella {

namespace {

// A category's documents of one direction, a subcategory's, and a subcategory's of one
// direction, each in date order: the count of a node and its first page read an index
// alone, not every document of the category.
const QStringList ListIndexes = {
    QStringLiteral("idx_Documents_KategKryptis (KategID, KryptisID, DokRegistracData)"),
    QStringLiteral("idx_Documents_SubKategDate (KategID, SubKategID, DokRegistracData)"),
    QStringLiteral("idx_Documents_SubKategKryptis (KategID, SubKategID, KryptisID, DokRegistracData)"),
};

} // namespace

// The schema step of the indexes of the nodes' lists.
void addNodeListIndexes(Connection& connection)
{
    for (const QString& index : ListIndexes)
        connection.execute(QStringLiteral("CREATE INDEX IF NOT EXISTS ") + index.section(u' ', 0, 0)
            + QStringLiteral(" ON tbl_Documents ") + index.section(u' ', 1));
}

// The same step on a server, its names quoted as the server keeps them.
void addServerNodeListIndexes(Connection& connection)
{
    for (const QString& index : ListIndexes) {
        QStringList columns = index.section(u' ', 1).mid(1).chopped(1).split(QStringLiteral(", "));
        for (QString& column : columns)
            column = u'"' + column + u'"';
        connection.execute(QStringLiteral("CREATE INDEX IF NOT EXISTS \"") + index.section(u' ', 0, 0)
            + QStringLiteral("\" ON \"tbl_Documents\" (") + columns.join(QStringLiteral(", ")) + u')');
    }
}

} // namespace kartella
