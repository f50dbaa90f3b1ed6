#include "store/engine/DateText.h"

#include "platform/Clock.h"

#include <QLocale>

namespace kartella::engine {

namespace {

// Reads an unsigned number of at most maxDigits digits at text[pos].
bool readNumber(QStringView text, qsizetype& pos, int maxDigits, int& value, int* digits = nullptr)
{
    int count = 0;
    value = 0;
    while (pos < text.size() && text[pos].isDigit() && count < maxDigits) {
        value = value * 10 + text[pos].digitValue();
        ++pos;
        ++count;
    }
    if (digits)
        *digits = count;
    return count > 0;
}

bool expect(QStringView text, qsizetype& pos, QChar c)
{
    if (pos < text.size() && text[pos] == c) {
        ++pos;
        return true;
    }
    return false;
}

void skipBlanks(QStringView text, qsizetype& pos)
{
    while (pos < text.size() && text[pos].isSpace())
        ++pos;
}

// "H:mm[:ss[.zzz]][ AM|PM]" from pos to the end of text.
bool readTime(QStringView text, qsizetype pos, QTime& time)
{
    int hour = 0;
    int minute = 0;
    int second = 0;
    int msec = 0;
    if (!readNumber(text, pos, 2, hour) || !expect(text, pos, u':') || !readNumber(text, pos, 2, minute))
        return false;
    if (expect(text, pos, u':')) {
        if (!readNumber(text, pos, 2, second))
            return false;
        if (expect(text, pos, u'.')) {
            int digits = 0;
            if (!readNumber(text, pos, 3, msec, &digits))
                return false;
            while (digits++ < 3)
                msec *= 10;
            while (pos < text.size() && text[pos].isDigit())
                ++pos;
        }
    }
    skipBlanks(text, pos);
    const QStringView rest = text.mid(pos);
    if (rest.compare(u"PM", Qt::CaseInsensitive) == 0) {
        if (hour < 1 || hour > 12)
            return false;
        hour = hour % 12 + 12;
    } else if (rest.compare(u"AM", Qt::CaseInsensitive) == 0) {
        if (hour < 1 || hour > 12)
            return false;
        hour = hour % 12;
    } else if (!rest.isEmpty()) {
        return false;
    }
    time = QTime(hour, minute, second, msec);
    return time.isValid();
}

QVariant withOptionalTime(const QDate& date, QStringView text, qsizetype pos)
{
    if (!date.isValid())
        return {};
    skipBlanks(text, pos);
    if (pos >= text.size())
        return QVariant(date);
    if (text[pos] == u'T')
        ++pos;
    QTime time;
    if (!readTime(text, pos, time))
        return {};
    return QVariant(QDateTime(date, time));
}

int fullYear(int year, int digits)
{
    return digits > 2 ? year : yearNearToday(year);
}

// "yyyy<sep>M<sep>d" with an optional time.
QVariant parseYearFirst(QStringView text, QChar separator)
{
    qsizetype pos = 0;
    int year = 0;
    int month = 0;
    int day = 0;
    int digits = 0;
    if (!readNumber(text, pos, 4, year, &digits) || digits != 4 || !expect(text, pos, separator)
        || !readNumber(text, pos, 2, month) || !expect(text, pos, separator)
        || !readNumber(text, pos, 2, day))
        return {};
    return withOptionalTime(QDate(year, month, day), text, pos);
}

// "M/d/yyyy" with an optional time.
QVariant parseMonthFirst(QStringView text)
{
    qsizetype pos = 0;
    int year = 0;
    int month = 0;
    int day = 0;
    int digits = 0;
    if (!readNumber(text, pos, 2, month) || !expect(text, pos, u'/') || !readNumber(text, pos, 2, day)
        || !expect(text, pos, u'/') || !readNumber(text, pos, 4, year, &digits) || digits == 3)
        return {};
    return withOptionalTime(QDate(fullYear(year, digits), month, day), text, pos);
}

QVariant parseLocaleShort(const QLocale& locale, const QString& text)
{
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    QDate date = locale.toDate(text, format);
    if (!date.isValid())
        return {};
    if (!format.contains(QLatin1String("yyyy")))
        date = inCenturyNearToday(date);
    return QVariant(date);
}

} // namespace

int yearNearToday(int twoDigitYear)
{
    const int thisYear = Clock::currentDate().year();
    int best = 0;
    for (int century = thisYear / 100 - 1; century <= thisYear / 100 + 1; ++century) {
        const int year = century * 100 + twoDigitYear % 100;
        if (best == 0 || qAbs(year - thisYear) < qAbs(best - thisYear))
            best = year;
    }
    return best;
}

QDate inCenturyNearToday(const QDate& date)
{
    return date.isValid() ? date.addYears(yearNearToday(date.year()) - date.year()) : date;
}

QString isoText(const QDate& date)
{
    return date.toString(u"yyyy-MM-dd");
}

QString isoText(const QDateTime& dateTime)
{
    return dateTime.toString(u"yyyy-MM-dd HH:mm:ss");
}

bool parseIsoBytes(const char* text, std::size_t size, qint64& julianDay, int& msecsOfDay, bool& hasTime)
{
    auto digit = [text](std::size_t i) { return unsigned(text[i] - '0'); };
    auto number = [&](std::size_t at, std::size_t count, int& value) {
        value = 0;
        for (std::size_t i = at; i < at + count; ++i) {
            if (digit(i) > 9)
                return false;
            value = value * 10 + int(digit(i));
        }
        return true;
    };
    if (size < 10 || text[4] != '-' || text[7] != '-')
        return false;
    int year = 0;
    int month = 0;
    int day = 0;
    if (!number(0, 4, year) || !number(5, 2, month) || !number(8, 2, day))
        return false;
    const QDate date(year, month, day);
    if (!date.isValid())
        return false;
    julianDay = date.toJulianDay();
    msecsOfDay = 0;
    hasTime = false;
    if (size == 10)
        return true;
    if (size < 19 || (text[10] != ' ' && text[10] != 'T') || text[13] != ':' || text[16] != ':')
        return false;
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (!number(11, 2, hour) || !number(14, 2, minute) || !number(17, 2, second) || hour > 23 || minute > 59
        || second > 59)
        return false;
    int msec = 0;
    if (size > 19) {
        if (text[19] != '.' || size > 23 || size == 20)
            return false;
        if (!number(20, size - 20, msec))
            return false;
        for (std::size_t digits = size - 20; digits < 3; ++digits)
            msec *= 10;
    }
    msecsOfDay = ((hour * 60 + minute) * 60 + second) * 1000 + msec;
    hasTime = true;
    return true;
}

QVariant parseJetDate(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.size() > 4 && trimmed[4] == u'-')
        return parseYearFirst(trimmed, u'-');
    return parseMonthFirst(trimmed);
}

QVariant parseUserDate(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {};
    for (const QChar separator : {u'-', u'.'}) {
        const QVariant value = parseYearFirst(trimmed, separator);
        if (value.isValid())
            return value;
    }
    // The locale's form first: it is what the program itself shows in a date box.
    QVariant value = parseLocaleShort(QLocale::system(), trimmed);
    if (value.isValid())
        return value;
    value = parseLocaleShort(QLocale(), trimmed);
    if (value.isValid())
        return value;
    return parseMonthFirst(trimmed);
}

} // namespace kartella::engine
