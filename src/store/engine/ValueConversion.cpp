#include "store/engine/ValueConversion.h"

#include "store/StoreText.h"
#include "store/engine/DateText.h"
#include "store/engine/EngineErrors.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>

#include <cmath>
#include <limits>

namespace kartella::engine {

namespace {

[[noreturn]] void mismatch(const QVariant& value, const QString& expected, const QString& fieldName)
{
    throwError(ErrorNumber::TypeMismatch,
        kartella::StoreText::tr("Type mismatch: '%1' is not %2 (field %3).")
            .arg(value.toString(), expected, fieldName));
}

bool isText(const QVariant& value)
{
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QChar;
}

QVariant wholeNumber(qint64 number)
{
    if (number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
        return int(number);
    return number;
}

// A number from text: C form first, then the locale's.
bool readReal(const QString& text, double& number)
{
    bool ok = false;
    number = text.toDouble(&ok);
    if (!ok)
        number = QLocale::system().toDouble(text, &ok);
    if (!ok)
        number = QLocale().toDouble(text, &ok);
    return ok && std::isfinite(number);
}

QVariant toInteger(const QVariant& value, const QString& fieldName)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? -1 : 0;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
        return wholeNumber(value.toLongLong());
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float: {
        const double number = std::nearbyint(value.toDouble());
        if (!std::isfinite(number) || std::abs(number) > 9.2e18)
            throwError(ErrorNumber::Overflow,
                kartella::StoreText::tr("Overflow: %1 doesn't fit field %2.")
                    .arg(value.toString(), fieldName));
        return wholeNumber(qint64(number));
    }
    default:
        break;
    }
    if (!isText(value))
        mismatch(value, kartella::StoreText::tr("a whole number"), fieldName);
    const QString text = value.toString().trimmed();
    if (text.isEmpty())
        return {};
    bool ok = false;
    const qint64 number = text.toLongLong(&ok);
    if (ok)
        return wholeNumber(number);
    double real = 0;
    if (!readReal(text, real))
        mismatch(value, kartella::StoreText::tr("a whole number"), fieldName);
    return toInteger(real, fieldName);
}

QVariant toReal(const QVariant& value, const QString& fieldName)
{
    if (isText(value)) {
        const QString text = value.toString().trimmed();
        if (text.isEmpty())
            return {};
        double number = 0;
        if (!readReal(text, number))
            mismatch(value, kartella::StoreText::tr("a number"), fieldName);
        return number;
    }
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || value.typeId() == QMetaType::QDate || value.typeId() == QMetaType::QDateTime)
        mismatch(value, kartella::StoreText::tr("a number"), fieldName);
    return number;
}

QVariant toDate(const QVariant& value, const QString& fieldName)
{
    if (value.typeId() == QMetaType::QDate) {
        if (!value.toDate().isValid())
            mismatch(value, kartella::StoreText::tr("a date"), fieldName);
        return value;
    }
    if (value.typeId() == QMetaType::QDateTime) {
        if (!value.toDateTime().isValid())
            mismatch(value, kartella::StoreText::tr("a date"), fieldName);
        return value;
    }
    if (!isText(value))
        mismatch(value, kartella::StoreText::tr("a date"), fieldName);
    if (value.toString().trimmed().isEmpty())
        return {};
    const QVariant date = parseUserDate(value.toString());
    if (!date.isValid())
        mismatch(value, kartella::StoreText::tr("a date"), fieldName);
    return date;
}

} // namespace

QVariant convertForColumn(const QVariant& value, ValueKind kind, const QString& fieldName)
{
    if (!value.isValid() || value.isNull())
        return {};
    switch (kind) {
    case ValueKind::Integer:
        return toInteger(value, fieldName);
    case ValueKind::Real:
        return toReal(value, fieldName);
    case ValueKind::Date:
    case ValueKind::DateTime:
        return toDate(value, fieldName);
    case ValueKind::Text:
        if (value.typeId() == QMetaType::QDate)
            return isoText(value.toDate());
        if (value.typeId() == QMetaType::QDateTime)
            return isoText(value.toDateTime());
        return value.toString();
    case ValueKind::Null:
    case ValueKind::Blob:
        break;
    }
    return value;
}

} // namespace kartella::engine
