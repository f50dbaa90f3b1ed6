#include "store/KeyGenerators.h"

#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/migration/TableMapping.h"

namespace kartella {

void continueKeyGenerators(Connection& connection)
{
    if (connection.dialect() != SqlDialect::PostgreSql)
        return;
    // The table's and the key's names as the catalog spells them; a key without a sequence,
    // or an empty table, is passed over (setval of Null does nothing).
    for (const migration::TableMapping& mapping : migration::registerTables()) {
        const QString key = mapping.fields.first().name;
        Recordset sequence;
        sequence.open(
            QStringLiteral("SELECT setval(pg_get_serial_sequence(quote_ident(c.table_name), c.column_name), "
                           "(SELECT MAX(%2) FROM %1)) AS LastKey FROM information_schema.columns c "
                           "WHERE c.table_schema = current_schema() AND lower(c.table_name) = lower('%1') "
                           "AND lower(c.column_name) = lower('%2') AND EXISTS (SELECT %2 FROM %1)")
                .arg(mapping.table, key),
            connection);
        sequence.close();
    }
}

} // namespace kartella
