#include "store/engine/RowStore.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

#include <cstring>
#include <limits>

namespace kartella::engine {

RowStore::RowStore(int columns)
    : m_columns(columns)
{ }

void RowStore::addBytes(ValueKind kind, const void* data, std::size_t size)
{
    Cell cell;
    cell.kind = kind;
    cell.size = std::uint32_t(size);
    cell.offset = m_bytes.size();
    if (size > 0) {
        const char* bytes = static_cast<const char*>(data);
        m_bytes.insert(m_bytes.end(), bytes, bytes + size);
    }
    m_cells.push_back(cell);
}

void RowStore::addValue(const QVariant& value)
{
    if (!value.isValid() || value.isNull()) {
        addNull();
        return;
    }
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Bool:
        addInteger(value.toLongLong());
        return;
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        addReal(value.toDouble());
        return;
    case QMetaType::QDate:
        addDate(value.toDate().toJulianDay());
        return;
    case QMetaType::QDateTime: {
        const QDateTime dateTime = value.toDateTime();
        addDateTime(dateTime.date().toJulianDay(), dateTime.time().msecsSinceStartOfDay());
        return;
    }
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        addBlob(bytes.constData(), std::size_t(bytes.size()));
        return;
    }
    default: {
        const QByteArray text = value.toString().toUtf8();
        addText(text.constData(), std::size_t(text.size()));
        return;
    }
    }
}

QVariant RowStore::cellValue(const Cell& cell) const
{
    switch (cell.kind) {
    case ValueKind::Null:
        return {};
    case ValueKind::Integer:
        if (cell.integer >= std::numeric_limits<int>::min()
            && cell.integer <= std::numeric_limits<int>::max())
            return QVariant(int(cell.integer));
        return QVariant(cell.integer);
    case ValueKind::Real:
        return QVariant(cell.real);
    case ValueKind::Text:
        return QVariant(QString::fromUtf8(m_bytes.data() + cell.offset, qsizetype(cell.size)));
    case ValueKind::Date:
        return QVariant(QDate::fromJulianDay(cell.integer));
    case ValueKind::DateTime:
        return QVariant(QDateTime(QDate::fromJulianDay(cell.integer / MSecsPerDay),
            QTime::fromMSecsSinceStartOfDay(int(cell.integer % MSecsPerDay))));
    case ValueKind::Blob:
        return QVariant(QByteArray(m_bytes.data() + cell.offset, qsizetype(cell.size)));
    }
    return {};
}

} // namespace kartella::engine
