#include "reports/ReportData.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>

namespace kartella {

int ReportData::childCount() const
{
    int count = 0;
    for (const ReportGroup& group : groups)
        count += int(group.children.size());
    return count;
}

QString reportText(const QVariant& value)
{
    if (!value.isValid() || value.isNull())
        return {};
    switch (value.typeId()) {
    case QMetaType::QDate:
        return QLocale().toString(value.toDate(), QLocale::ShortFormat);
    case QMetaType::QDateTime:
        return QLocale().toString(value.toDateTime().date(), QLocale::ShortFormat);
    default:
        return value.toString();
    }
}

} // namespace kartella
