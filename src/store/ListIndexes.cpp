#include "store/engine/Connection.h"

#include <QList>
#include <QStringList>

#include <utility>

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

// A server orders its lists as a register file does, Nulls first, each date's documents by
// their id; a B-tree index gives its rows in that order only when it holds the id and puts
// the Nulls first too. Without it each page sorts every document of its node.
void orderServerListIndexes(Connection& connection)
{
    const QList<std::pair<QString, QString>> indexes = {
        {QStringLiteral("idx_Documents_RegistracData"), QString()},
        {QStringLiteral("idx_Documents_KategID"), QStringLiteral("\"KategID\", ")},
        {QStringLiteral("idx_Documents_ContactID"), QStringLiteral("\"ContactID\", ")},
        {QStringLiteral("idx_Documents_KryptisID"), QStringLiteral("\"KryptisID\", ")},
        {QStringLiteral("idx_Documents_KategKryptis"), QStringLiteral("\"KategID\", \"KryptisID\", ")},
        {QStringLiteral("idx_Documents_SubKategDate"), QStringLiteral("\"KategID\", \"SubKategID\", ")},
        {QStringLiteral("idx_Documents_SubKategKryptis"),
            QStringLiteral("\"KategID\", \"SubKategID\", \"KryptisID\", ")},
    };
    for (const auto& [name, equal] : indexes) {
        connection.execute(QStringLiteral("DROP INDEX IF EXISTS \"%1\"").arg(name));
        connection.execute(QStringLiteral("CREATE INDEX \"%1\" ON \"tbl_Documents\" (%2\"DokRegistracData\" "
                                          "NULLS FIRST, \"RastasID\" NULLS FIRST)")
                               .arg(name, equal));
    }
    // The list sorted by its first column, the description, in the order of names: either end
    // is read from the index. (A register file keeps no index in that order: a program without
    // the collation could not write the file.)
    connection.execute(QStringLiteral("DROP INDEX IF EXISTS \"idx_Documents_Description\""));
    connection.execute(QStringLiteral(
        "CREATE INDEX \"idx_Documents_Description\" ON \"tbl_Documents\" (\"DokAntraste\" COLLATE "
        "namefold NULLS FIRST, \"RastasID\" NULLS FIRST)"));
}

} // namespace kartella
