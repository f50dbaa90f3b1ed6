#include "registration/ValueConversions.h"

#include "support/Error.h"

#include <cmath>
#include <limits>

namespace kartella {

namespace {

// The text as a number; false when it isn't one.
bool parseNumber(const QString& text, double& number)
{
    bool ok = false;
    number = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(number);
}

template<typename Int>
Int checkedRound(double number, const QString& what)
{
    const double rounded = std::nearbyint(number);
    if (rounded < double(std::numeric_limits<Int>::min())
        || rounded > double(std::numeric_limits<Int>::max()))
        RaiseOverflow(what);
    return Int(rounded);
}

} // namespace

void RaiseTypeMismatch(const QString& what)
{
    throw Error(ErrorNumber::TypeMismatch, QStringLiteral("Type mismatch: ") % what);
}

void RaiseOverflow(const QString& what)
{
    throw Error(ErrorNumber::Overflow, QStringLiteral("Overflow: ") % what);
}

QDate ToStoredDate(const QString& text)
{
    const QString trimmed = text.trimmed();
    QDate date = QDate::fromString(trimmed, QStringLiteral("yyyy MM dd"));
    if (!date.isValid())
        date = QDate::fromString(trimmed, QStringLiteral("yyyy M d"));
    if (!date.isValid())
        RaiseTypeMismatch(QStringLiteral("\"") % text % QStringLiteral("\" isn't a date"));
    return date;
}

QString StoredDateText(const QDate& date)
{
    return date.toString(QStringLiteral("yyyy MM dd"));
}

bool ToTruthValue(const QString& text)
{
    double number = 0;
    if (parseNumber(text, number))
        return number != 0.0;
    const QString trimmed = text.trimmed();
    if (trimmed.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (trimmed.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    RaiseTypeMismatch(QStringLiteral("\"") % text % QStringLiteral("\" isn't a truth value"));
}

qint16 ToInteger16(const QString& text)
{
    double number = 0;
    if (!parseNumber(text, number))
        RaiseTypeMismatch(QStringLiteral("\"") % text % QStringLiteral("\" isn't a number"));
    return checkedRound<qint16>(number, QStringLiteral("\"") % text % QStringLiteral("\" is out of range"));
}

qint32 ToLong(const QVariant& value)
{
    if (!value.isValid() || value.isNull())
        RaiseTypeMismatch(QStringLiteral("the value is empty"));
    double number = 0;
    if (value.typeId() == QMetaType::QString) {
        if (!parseNumber(value.toString(), number))
            RaiseTypeMismatch(QStringLiteral("\"") % value.toString() % QStringLiteral("\" isn't a number"));
    } else {
        bool ok = false;
        number = value.toDouble(&ok);
        if (!ok)
            RaiseTypeMismatch(QStringLiteral("the value isn't a number"));
    }
    return checkedRound<qint32>(
        number, QString::number(number, 'g', 17) % QStringLiteral(" is out of range"));
}

qint16 LeadingInteger16(const QString& text)
{
    qsizetype i = 0;
    while (i < text.size() && text.at(i).isSpace())
        ++i;
    const qsizetype start = i;
    if (i < text.size() && (text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+')))
        ++i;
    while (i < text.size() && text.at(i).isDigit() && text.at(i).unicode() < 128)
        ++i;
    const double whole = text.mid(start, i - start).toDouble();
    if (whole < double(std::numeric_limits<qint16>::min())
        || whole > double(std::numeric_limits<qint16>::max()))
        RaiseOverflow(QStringLiteral("\"") % text % QStringLiteral("\" is out of range"));
    return qint16(whole);
}

QString NumberWithSignPlace(qint64 number)
{
    return number < 0 ? QString::number(number) : QStringLiteral(" ") % QString::number(number);
}

} // namespace kartella
