#pragma once

// The server's types and texts, for the files of the PostgreSQL back end.

#include "store/engine/RowStore.h"

#include <QString>

#include <libpq-fe.h>

namespace kartella::engine::postgres {

// The built-in types the engine tells apart, by their fixed object ids.
namespace TypeId {
constexpr Oid Bool = 16;
constexpr Oid Bytea = 17;
constexpr Oid Int8 = 20;
constexpr Oid Int2 = 21;
constexpr Oid Int4 = 23;
constexpr Oid ObjectId = 26;
constexpr Oid Float4 = 700;
constexpr Oid Float8 = 701;
constexpr Oid Date = 1082;
constexpr Oid Timestamp = 1114;
constexpr Oid TimestampTz = 1184;
constexpr Oid Numeric = 1700;
} // namespace TypeId

// The kind of value a column of the type holds.
inline ValueKind kindOfType(Oid type)
{
    switch (type) {
    case TypeId::Bool:
    case TypeId::Int2:
    case TypeId::Int4:
    case TypeId::Int8:
    case TypeId::ObjectId:
        return ValueKind::Integer;
    case TypeId::Float4:
    case TypeId::Float8:
    case TypeId::Numeric:
        return ValueKind::Real;
    case TypeId::Date:
        return ValueKind::Date;
    case TypeId::Timestamp:
    case TypeId::TimestampTz:
        return ValueKind::DateTime;
    case TypeId::Bytea:
        return ValueKind::Blob;
    default:
        return ValueKind::Text;
    }
}

// A text as an SQL string literal.
inline QString literal(const QString& text)
{
    QString escaped = text;
    escaped.replace(u'\'', QLatin1String("''"));
    return u'\'' + escaped + u'\'';
}

} // namespace kartella::engine::postgres
