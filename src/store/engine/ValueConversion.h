#pragma once

#include "store/engine/RowStore.h"

#include <QString>
#include <QVariant>

namespace kartella::engine {

// The value that a field of the given declared kind takes when value is assigned to it:
// text into a date field is read as a date (ISO, "yyyy.MM.dd", the locale's short form,
// "M/d/yyyy"), text into a number field as a number, "" as Null. Throws kartella::Error
// ErrorNumber::TypeMismatch (13) when the value doesn't fit, or Overflow (6).
QVariant convertForColumn(const QVariant& value, ValueKind kind, const QString& fieldName);

} // namespace kartella::engine
