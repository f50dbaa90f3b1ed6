#pragma once

#include <QString>
#include <QVariant>

namespace kartella {

// A field of the category row categoryId in tbl_Document_Categories; Null when the field
// is Null. Throws kartella::Error 3021 when there is no such category, and the lookup's
// own error when the register can't be read.
QVariant categoryField(qint32 categoryId, const QString& field);

} // namespace kartella
