#include "registration/CategoryFields.h"

#include "base/Error.h"
#include "store/Lookups.h"
#include "store/engine/Value.h"

#include <QCoreApplication>

namespace kartella {

QVariant categoryField(qint32 categoryId, const QString& field)
{
    const QString table = QStringLiteral("tbl_Document_Categories");
    const QString key = QStringLiteral("KategID");
    const QVariant value = getFieldValue(key, field, table, categoryId);
    if (isNull(value) && isNull(getFieldValue(key, key, table, categoryId)))
        throw Error(ErrorNumber::NoCurrentRecord,
            QCoreApplication::translate(
                "kartella::CategoryFields", "There is no category with the key %1 in the register.")
                .arg(categoryId));
    return value;
}

} // namespace kartella
