#include "store/Store.h"

#include <QDate>
#include <QLocale>

namespace kartella {

QVariant nullToMark(const QVariant& value)
{
    return isNull(value) ? QVariant(NullMark) : value;
}

QVariant nullToDefault(const QVariant& value, const QVariant& defaultValue)
{
    return isNull(value) ? defaultValue : value;
}

QString displayText(const QVariant& value)
{
    if (isNull(value))
        return NullMark;
    switch (value.typeId()) {
    case QMetaType::QDate:
        return QLocale().toString(value.toDate(), QLocale::ShortFormat);
    case QMetaType::QDateTime: {
        const QDateTime dateTime = value.toDateTime();
        // A date without a time of day shows as a date alone.
        if (dateTime.time() == QTime(0, 0))
            return QLocale().toString(dateTime.date(), QLocale::ShortFormat);
        return QLocale().toString(dateTime, QLocale::ShortFormat);
    }
    default:
        return value.toString();
    }
}

} // namespace kartella
