#pragma once

#include <QVariant>

namespace kartella {

// A database value. Null is the invalid QVariant; dates come as QDate (or QDateTime when
// they carry a time), whole numbers as qint64 or int, other numbers as double, text as QString.
inline bool isNull(const QVariant& value)
{
    return !value.isValid() || value.isNull();
}

inline QVariant nullValue()
{
    return {};
}

} // namespace kartella
