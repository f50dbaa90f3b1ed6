// Feeds any text to the date readers: the stored form, Jet's date literal and what a user
// types. A date read is written in the stored form, which every reader reads back the same.
#include "FuzzInput.h"
#include "store/engine/DateText.h"

namespace {

using namespace kartella::engine;

// A read value written in the stored form; the date (and time) it holds.
QString storedForm(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDate)
        return isoText(value.toDate());
    FUZZ_CHECK(value.typeId() == QMetaType::QDateTime);
    return isoText(value.toDateTime());
}

// The stored form keeps whole seconds; a time read with milliseconds reads back without them.
QVariant inWholeSeconds(const QVariant& value)
{
    if (value.typeId() != QMetaType::QDateTime)
        return value;
    const QDateTime dateTime = value.toDateTime();
    const QTime time = dateTime.time();
    return QDateTime(dateTime.date(), QTime(time.hour(), time.minute(), time.second()));
}

void checkReadsBack(const QVariant& read)
{
    if (!read.isValid())
        return;
    const QVariant value = inWholeSeconds(read);
    const QString stored = storedForm(value);
    FUZZ_CHECK(parseJetDate(stored) == value);
    FUZZ_CHECK(parseUserDate(stored) == value);
    const QByteArray bytes = stored.toUtf8();
    qint64 julianDay = 0;
    int msecs = -1;
    bool hasTime = false;
    FUZZ_CHECK(parseIsoBytes(bytes.constData(), std::size_t(bytes.size()), julianDay, msecs, hasTime));
    const QDateTime dateTime = value.toDateTime();
    FUZZ_CHECK(julianDay == dateTime.date().toJulianDay());
    FUZZ_CHECK(hasTime == (value.typeId() == QMetaType::QDateTime));
    if (hasTime)
        FUZZ_CHECK(msecs == dateTime.time().msecsSinceStartOfDay());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = kartella::fuzz::text(data, size);
    checkReadsBack(parseJetDate(text));
    checkReadsBack(parseUserDate(text));

    qint64 julianDay = 0;
    int msecs = 0;
    bool hasTime = false;
    if (parseIsoBytes(reinterpret_cast<const char*>(data), size, julianDay, msecs, hasTime)) {
        const QDate date = QDate::fromJulianDay(julianDay);
        FUZZ_CHECK(date.isValid());
        if (hasTime) {
            FUZZ_CHECK(msecs >= 0 && msecs < 24 * 60 * 60 * 1000);
            checkReadsBack(QDateTime(date, QTime::fromMSecsSinceStartOfDay(msecs)));
        } else {
            checkReadsBack(date);
        }
    }
    yearNearToday(int(size) * 7 - 100);
    return 0;
}
