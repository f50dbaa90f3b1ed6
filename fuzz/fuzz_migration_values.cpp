// Feeds any text to the migration's reading of an old register's rows: the input, cut at
// each byte 0, is one row of text values, mapped onto every table of the register. A value
// with the byte 1 alone stands for Null.
#include "FuzzInput.h"
#include "base/Error.h"
#include "store/engine/DateText.h"
#include "store/migration/TableMapping.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella::migration;
    QVariantList row;
    for (const QByteArray& part : kartella::fuzz::parts(data, size, 1))
        row << (part == "\x01" ? QVariant() : QVariant(QString::fromUtf8(part)));

    for (const QVariant& raw : row) {
        for (FieldKind kind : {FieldKind::Integer, FieldKind::Text, FieldKind::Date}) {
            QString problem;
            const QVariant value = convertValue(raw, kind, problem);
            FUZZ_CHECK(value.isValid() || raw.isNull() || !problem.isEmpty());
            if (!value.isValid())
                continue;
            if (kind == FieldKind::Text)
                FUZZ_CHECK(value.toString() == raw.toString());
            if (kind == FieldKind::Integer)
                FUZZ_CHECK(value.typeId() == QMetaType::LongLong);
            if (kind == FieldKind::Date && value.typeId() == QMetaType::QDate)
                FUZZ_CHECK(value.toDate().isValid());
            if (kind == FieldKind::Date && value.typeId() == QMetaType::QString)
                FUZZ_CHECK(kartella::engine::parseJetDate(value.toString()).typeId() == QMetaType::QDateTime);
        }
    }

    QStringList columns;
    for (const TableMapping& mapping : registerTables()) {
        columns = mapping.fieldNames();
        const QList<int> positions = columnPositions(mapping, columns);
        try {
            const QVariantList values = mapRow(mapping, positions, row);
            FUZZ_CHECK(values.size() == mapping.fields.size());
        } catch (const kartella::Error&) { }
        unmappedColumns(mapping, columns);
    }
    return 0;
}
