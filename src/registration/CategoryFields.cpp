#include "registration/CategoryFields.h"

#include "store/Lookups.h"
#include "store/engine/Value.h"
#include "support/Error.h"

namespace kartella {

QVariant CategoryField(qint32 categoryId, const QString& field)
{
    const QString table = QStringLiteral("tbl_Document_Categories");
    const QString key = QStringLiteral("KategID");
    const QVariant value = GetFieldValue(key, field, table, categoryId);
    if (IsNull(value) && IsNull(GetFieldValue(key, key, table, categoryId)))
        throw Error(ErrorNumber::NoCurrentRecord,
            QStringLiteral("There is no category with the key ") % QString::number(categoryId)
                % QStringLiteral(" in the register."));
    return value;
}

} // namespace kartella
