#include "registration/ValueConversions.h"

#include "base/Error.h"

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
        raiseOverflow(what);
    return Int(rounded);
}

} // namespace

void raiseTypeMismatch(const QString& what)
{
    throw Error(ErrorNumber::TypeMismatch, QStringLiteral("Type mismatch: ") % what);
}

void raiseOverflow(const QString& what)
{
    throw Error(ErrorNumber::Overflow, QStringLiteral("Overflow: ") % what);
}

QDate toStoredDate(const QString& text)
{
    const QString trimmed = text.trimmed();
    QDate date = QDate::fromString(trimmed, QStringLiteral("yyyy MM dd"));
    if (!date.isValid())
        date = QDate::fromString(trimmed, QStringLiteral("yyyy M d"));
    if (!date.isValid())
        raiseTypeMismatch(QStringLiteral("\"") % text % QStringLiteral("\" isn't a date"));
    return date;
}

QString storedDateText(const QDate& date)
{
    return date.toString(QStringLiteral("yyyy MM dd"));
}

bool toTruthValue(const QString& text)
{
    double number = 0;
    if (parseNumber(text, number))
        return number != 0.0;
    const QString trimmed = text.trimmed();
    if (trimmed.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (trimmed.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    raiseTypeMismatch(QStringLiteral("\"") % text % QStringLiteral("\" isn't a truth value"));
}

qint16 toInteger16(const QString& text)
{
    double number = 0;
    if (!parseNumber(text, number))
        raiseTypeMismatch(QStringLiteral("\"") % text % QStringLiteral("\" isn't a number"));
    return checkedRound<qint16>(number, QStringLiteral("\"") % text % QStringLiteral("\" is out of range"));
}

qint32 toLong(const QVariant& value)
{
    if (!value.isValid() || value.isNull())
        raiseTypeMismatch(QStringLiteral("the value is empty"));
    double number = 0;
    if (value.typeId() == QMetaType::QString) {
        if (!parseNumber(value.toString(), number))
            raiseTypeMismatch(QStringLiteral("\"") % value.toString() % QStringLiteral("\" isn't a number"));
    } else {
        bool ok = false;
        number = value.toDouble(&ok);
        if (!ok)
            raiseTypeMismatch(QStringLiteral("the value isn't a number"));
    }
    return checkedRound<qint32>(
        number, QString::number(number, 'g', 17) % QStringLiteral(" is out of range"));
}

qint16 leadingInteger16(const QString& text)
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
        raiseOverflow(QStringLiteral("\"") % text % QStringLiteral("\" is out of range"));
    return qint16(whole);
}

QString numberWithSignPlace(qint64 number)
{
    return number < 0 ? QString::number(number) : QStringLiteral(" ") % QString::number(number);
}

} // namespace kartella
