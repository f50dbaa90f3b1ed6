#pragma once

#include <QVariant>

#include <cstdint>
#include <vector>

namespace kartella::engine {

// What a column holds, or is declared to hold.
enum class ValueKind : std::uint8_t { Null, Integer, Real, Text, Date, DateTime, Blob };

// The rows of a query as read from the database: one compact cell per value, text and
// blobs kept as bytes in one buffer and turned into QString/QByteArray only when read.
// Rows are appended a cell at a time, in column order.
class RowStore
{
public:
    explicit RowStore(int columns = 0);

    int columnCount() const { return m_columns; }
    int rowCount() const { return m_columns == 0 ? 0 : int(m_cells.size() / std::size_t(m_columns)); }

    void addNull() { m_cells.push_back(Cell {}); }
    void addInteger(qint64 value)
    {
        Cell cell;
        cell.kind = ValueKind::Integer;
        cell.integer = value;
        m_cells.push_back(cell);
    }
    void addReal(double value)
    {
        Cell cell;
        cell.kind = ValueKind::Real;
        cell.real = value;
        m_cells.push_back(cell);
    }
    // UTF-8 text.
    void addText(const char* utf8, std::size_t size) { addBytes(ValueKind::Text, utf8, size); }
    void addBlob(const void* data, std::size_t size) { addBytes(ValueKind::Blob, data, size); }
    void addDate(qint64 julianDay)
    {
        Cell cell;
        cell.kind = ValueKind::Date;
        cell.integer = julianDay;
        m_cells.push_back(cell);
    }
    void addDateTime(qint64 julianDay, int msecsOfDay)
    {
        Cell cell;
        cell.kind = ValueKind::DateTime;
        cell.integer = julianDay * MSecsPerDay + msecsOfDay;
        m_cells.push_back(cell);
    }
    // Any value of the types that the engine hands out.
    void addValue(const QVariant& value);

    QVariant value(int row, int column) const { return cellValue(m_cells[index(row, column)]); }

private:
    static constexpr qint64 MSecsPerDay = 86400000;

    struct Cell
    {
        ValueKind kind = ValueKind::Null;
        std::uint32_t size = 0;
        union {
            qint64 integer = 0;
            double real;
            std::uint64_t offset;
        };
    };

    std::size_t index(int row, int column) const
    {
        return std::size_t(row) * std::size_t(m_columns) + std::size_t(column);
    }
    void addBytes(ValueKind kind, const void* data, std::size_t size);
    QVariant cellValue(const Cell& cell) const;

    int m_columns;
    std::vector<Cell> m_cells;
    std::vector<char> m_bytes;
};

} // namespace kartella::engine
