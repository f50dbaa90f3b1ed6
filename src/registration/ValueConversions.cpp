#include "registration/ValueConversions.h"

#include "base/Error.h"

#include <QCoreApplication>

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
    throw Error(ErrorNumber::TypeMismatch,
        QCoreApplication::translate("kartella::ValueConversions", "Type mismatch: %1").arg(what));
}

void raiseOverflow(const QString& what)
{
    throw Error(ErrorNumber::Overflow,
        QCoreApplication::translate("kartella::ValueConversions", "Overflow: %1").arg(what));
}

QDate toStoredDate(const QString& text)
{
    const QString trimmed = text.trimmed();
    QDate date = QDate::fromString(trimmed, QStringLiteral("yyyy MM dd"));
    if (!date.isValid())
        date = QDate::fromString(trimmed, QStringLiteral("yyyy M d"));
    if (!date.isValid())
        raiseTypeMismatch(
            QCoreApplication::translate("kartella::ValueConversions", "\"%1\" isn't a date").arg(text));
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
    raiseTypeMismatch(
        QCoreApplication::translate("kartella::ValueConversions", "\"%1\" isn't a truth value").arg(text));
}

qint16 toInteger16(const QString& text)
{
    double number = 0;
    if (!parseNumber(text, number))
        raiseTypeMismatch(
            QCoreApplication::translate("kartella::ValueConversions", "\"%1\" isn't a number").arg(text));
    return checkedRound<qint16>(number,
        QCoreApplication::translate("kartella::ValueConversions", "\"%1\" is out of range").arg(text));
}

qint32 toLong(const QVariant& value)
{
    if (!value.isValid() || value.isNull())
        raiseTypeMismatch(QCoreApplication::translate("kartella::ValueConversions", "the value is empty"));
    double number = 0;
    if (value.typeId() == QMetaType::QString) {
        if (!parseNumber(value.toString(), number))
            raiseTypeMismatch(
                QCoreApplication::translate("kartella::ValueConversions", "\"%1\" isn't a number")
                    .arg(value.toString()));
    } else {
        bool ok = false;
        number = value.toDouble(&ok);
        if (!ok)
            raiseTypeMismatch(
                QCoreApplication::translate("kartella::ValueConversions", "the value isn't a number"));
    }
    return checkedRound<qint32>(number,
        QCoreApplication::translate("kartella::ValueConversions", "%1 is out of range")
            .arg(QString::number(number, 'g', 17)));
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
        raiseOverflow(
            QCoreApplication::translate("kartella::ValueConversions", "\"%1\" is out of range").arg(text));
    return qint16(whole);
}

QString numberWithSignPlace(qint64 number)
{
    return number < 0 ? QString::number(number) : QStringLiteral(" ") % QString::number(number);
}

} // namespace kartella
