#include "store/migration/TableMapping.h"

#include "base/Error.h"
#include "store/StoreText.h"
#include "store/engine/DateText.h"
#include "store/engine/Value.h"

#include <QDateTime>

#include <cmath>

namespace kartella::migration {

namespace {

FieldMapping integer(const char* name)
{
    return {QLatin1String(name), FieldKind::Integer};
}

FieldMapping text(const char* name)
{
    return {QLatin1String(name), FieldKind::Text};
}

FieldMapping date(const char* name)
{
    return {QLatin1String(name), FieldKind::Date};
}

QVariant convertInteger(const QString& text)
{
    bool ok = false;
    const qlonglong number = text.trimmed().toLongLong(&ok);
    if (ok)
        return number;
    // Some readers print whole numbers of floating columns as "12.0" or "1e+02".
    const double real = text.trimmed().toDouble(&ok);
    if (ok && std::isfinite(real) && real == std::floor(real) && std::abs(real) < 9.0e15)
        return qlonglong(real);
    return {};
}

// Jet keeps the dates of the years 100 to 9999; Qt also reads a year with a minus sign, which
// no old register holds and the register's date text can't carry.
bool inJetYears(const QDate& day)
{
    return day.isValid() && day.year() >= 100 && day.year() <= 9999;
}

QVariant convertDate(const QString& text)
{
    const QString trimmed = text.trimmed();
    const QDateTime dateTime = QDateTime::fromString(trimmed, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    if (dateTime.isValid()) {
        if (!inJetYears(dateTime.date()))
            return {};
        if (dateTime.time() == QTime(0, 0))
            return dateTime.date();
        return engine::isoText(dateTime);
    }
    const QDate day = QDate::fromString(trimmed, Qt::ISODate);
    if (inJetYears(day))
        return day;
    return {};
}

} // namespace

QStringList TableMapping::fieldNames() const
{
    QStringList names;
    for (const FieldMapping& field : fields)
        names << field.name;
    return names;
}

const QList<TableMapping>& registerTables()
{
    static const QList<TableMapping> tables = {
        {QStringLiteral("tbl_Document_Categories"),
            {integer("KategID"), text("DokKategorija"), text("Mnemonic"), text("DokKategDaug"),
                text("DokTemplates"), text("DokTemplatesExel"), text("DokTemplatesPowPoint")}},
        {QStringLiteral("tbl_Sub_Categories"),
            {integer("SubKategID"), integer("KategID"), text("DokSubKategorija"), text("SubPathToFiles"),
                text("SubDokTemplates"), text("SubDokTemplatesExel"), text("SubDokTemplatesPowPoint")}},
        {QStringLiteral("tbl_Contacts"),
            {integer("ContactID"), text("CompanyName"), text("Title"), text("Dear"), text("FullName"),
                text("Address"), text("City"), text("StateOrProvince"), text("PostalCode"), text("Region"),
                text("Country"), text("EmailName"), text("Notes")}},
        {QStringLiteral("tbl_Phones"),
            {integer("PhoneID"), integer("ContactID"), text("PhoneName"), text("PhoneNumber")}},
        {QStringLiteral("tbl_HomePages"),
            {integer("HomeID"), integer("ContactID"), text("Description"), text("HomeWWW")}},
        {QStringLiteral("tbl_Documents"),
            {integer("RastasID"), date("DokGavSiuntData"), date("DokRegistracData"),
                text("DokRegistracIndeksas"), text("DokAntraste"), text("DokVykdytojas"),
                text("DokIvykdymoZyma"), text("RastoKel"), integer("ContactID"), integer("KategID"),
                integer("SubKategID"), text("DokPastaba"), integer("KryptisID")}},
        {QStringLiteral("tbl_Sub_Documents"),
            {integer("SubRastasID"), integer("RastasID"), text("SubDocDescript"), integer("ContactID"),
                text("SubRastoKelias"), date("SubRastGavimoData")}},
        {QStringLiteral("tbl_Tickler"),
            {integer("TicklerID"), integer("RastasID"), date("TicklerDate"), text("TicklerText")}},
    };
    return tables;
}

QVariant convertValue(const QVariant& raw, FieldKind kind, QString& problem)
{
    if (isNull(raw))
        return {};
    const QString text = raw.toString();
    QVariant value;
    switch (kind) {
    case FieldKind::Text:
        return text;
    case FieldKind::Integer:
        value = convertInteger(text);
        if (!value.isValid())
            problem = kartella::StoreText::tr("\"%1\" is no whole number").arg(text);
        return value;
    case FieldKind::Date:
        value = convertDate(text);
        if (!value.isValid())
            problem = kartella::StoreText::tr("\"%1\" is no date").arg(text);
        return value;
    }
    return value;
}

QList<int> columnPositions(const TableMapping& mapping, const QStringList& sourceColumns)
{
    QList<int> positions;
    for (const FieldMapping& field : mapping.fields) {
        int found = -1;
        for (int i = 0; i < sourceColumns.size() && found < 0; ++i) {
            if (sourceColumns.at(i).compare(field.name, Qt::CaseInsensitive) == 0)
                found = i;
        }
        positions << found;
    }
    return positions;
}

QStringList unmappedColumns(const TableMapping& mapping, const QStringList& sourceColumns)
{
    QStringList unmapped;
    const QStringList names = mapping.fieldNames();
    for (const QString& column : sourceColumns) {
        if (!names.contains(column, Qt::CaseInsensitive))
            unmapped << column;
    }
    return unmapped;
}

QVariantList mapRow(const TableMapping& mapping, const QList<int>& positions, const QVariantList& row)
{
    QVariantList values;
    for (int i = 0; i < mapping.fields.size(); ++i) {
        const int position = positions.at(i);
        const QVariant raw = position >= 0 && position < row.size() ? row.at(position) : QVariant();
        QString problem;
        const QVariant value = convertValue(raw, mapping.fields.at(i).kind, problem);
        if (!problem.isEmpty()) {
            const QVariant key = positions.at(0) >= 0 ? row.value(positions.at(0)) : QVariant();
            throw Error(ErrorNumber::IllegalOperation,
                kartella::StoreText::tr("%1, row %2, field %3: %4.")
                    .arg(mapping.table, isNull(key) ? QStringLiteral("?") : key.toString(),
                        mapping.fields.at(i).name, problem));
        }
        values << value;
    }
    return values;
}

} // namespace kartella::migration
