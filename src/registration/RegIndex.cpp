#include "registration/RegIndex.h"

#include "base/Error.h"
#include "options/OptionStore.h"
#include "registration/CategoryFields.h"
#include "registration/DayCounter.h"
#include "registration/ValueConversions.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"
#include "store/engine/Value.h"

#include <QCoreApplication>

#include <optional>

namespace kartella {

namespace {

// The lock that every writer of registration indexes queues on, whichever way it writes.
QString indexLock()
{
    return QStringLiteral("registration index");
}

QString option(const char* name)
{
    return getRegValue(QLatin1String(name));
}

// Mnemonic (when there is one to use) and Separator1, date text, Separator2, number.
QString compose(const QString& mnemonic, const QDate& date, const QString& number)
{
    const QString separator1 = option("Separator1");
    const QString separator2 = option("Separator2");
    const bool useMnemonic = getRegFlag(QStringLiteral("UseMnemonic"));
    const QString dateText = formatIndexDate(date, getRegInteger(QStringLiteral("IndexStyle")));
    if (useMnemonic && !mnemonic.isEmpty())
        return mnemonic % separator1 % dateText % separator2 % number;
    return dateText % separator2 % number;
}

// The text before an index's closing digits, and the number they make (0 without digits).
std::pair<QString, qint64> splitClosingNumber(const QString& index)
{
    qsizetype start = index.size();
    while (start > 0 && index.at(start - 1).isDigit())
        --start;
    // Digits past what a number holds count as text: such an index has no number to raise.
    const QStringView digits = QStringView(index).mid(start).right(15);
    return {index.left(index.size() - digits.size()), digits.toLongLong()};
}

// The date text and Separator2 that the indexes of the day hold before their number.
QString dayTail(const QDate& today)
{
    return formatIndexDate(today, getRegInteger(QStringLiteral("IndexStyle"))) + option("Separator2");
}

// The highest number the register's indexes hold under pattern (a Like text) whose text
// before the number passes counts.
qint64 highestHeld(
    Connection& connection, const QString& pattern, const std::function<bool(const QString&)>& counts)
{
    qint64 highest = 0;
    Recordset rows;
    rows.open(
        QStringLiteral("SELECT DokRegistracIndeksas FROM tbl_Documents WHERE DokRegistracIndeksas LIKE ")
            + pattern,
        connection);
    while (!rows.eof()) {
        const auto [storedPrefix, storedNumber]
            = splitClosingNumber(rows.fields(QStringLiteral("DokRegistracIndeksas")).value().toString());
        if (counts(storedPrefix))
            highest = std::max(highest, storedNumber);
        rows.moveNext();
    }
    rows.close();
    return highest;
}

// The next number of the day from the register's own counter; none for a register that
// counts in the options, or one that can't be opened (its error comes with the category).
std::optional<qint64> nextNumberFromRegister(const QDate& today)
{
    Connection connection;
    try {
        connection.open(plainConnectionString());
    } catch (const Error&) {
        return std::nullopt;
    }
    if (!registerKeepsDayCounter(connection))
        return std::nullopt;
    return lastDayNumber(connection, today) + 1;
}

} // namespace

QString formatIndexDate(const QDate& date, int style)
{
    const QString yyyy = date.toString(QStringLiteral("yyyy"));
    const QString yy = date.toString(QStringLiteral("yy"));
    const QString mm = date.toString(QStringLiteral("MM"));
    const QString dd = date.toString(QStringLiteral("dd"));
    switch (style) {
    case 1:
        return yyyy % mm % dd;
    case 2:
        return mm % dd % yyyy;
    case 3:
        return dd % mm % yyyy;
    case 4:
        return yy % mm % dd;
    case 5:
        return mm % dd % yy;
    case 6:
        return dd % mm % yy;
    default:
        return {};
    }
}

void resetTodayNumber(const QDate& today)
{
    setRegValue(QStringLiteral("Date"), storedDateText(today));
    setRegValue(QStringLiteral("TodayNumber"), QStringLiteral("1"));
}

QString makeRegIndex(const QVariant& category, const QDate& today)
{
    const QDate stored = toStoredDate(option("Date"));
    const bool automatic = toTruthValue(option("AutoRegIndex"));
    if (!automatic)
        return {};

    QDate date = today;
    qint64 number = 1;
    if (const auto counted = nextNumberFromRegister(today)) {
        number = *counted;
    } else if (today != stored) {
        resetTodayNumber(today);
    } else {
        date = stored;
        number = leadingInteger16(option("TodayNumber"));
    }

    // With no category chosen yet the index simply has no mnemonic.
    const bool noCategory = isNull(category) || category.toString().isEmpty();
    const QVariant mnemonic
        = noCategory ? QVariant() : categoryField(toLong(category), QStringLiteral("Mnemonic"));
    return compose(nullToDefault(mnemonic, QString()).toString(), date, QString::number(number));
}

bool regIndexTaken(Connection& connection, const QString& index, qint32 except)
{
    Recordset rows;
    rows.open(QStringLiteral("SELECT COUNT(*) AS N FROM tbl_Documents WHERE DokRegistracIndeksas LIKE ")
            + sqlLikeText(index) + QStringLiteral(" AND RastasID <> ") + QString::number(except),
        connection);
    const bool taken = rows.fields(QStringLiteral("N")).value().toInt() > 0;
    rows.close();
    return taken;
}

qint64 dayNumberOf(const QString& index, const QDate& today)
{
    const auto [prefix, number] = splitClosingNumber(index);
    const QString tail = dayTail(today);
    const bool ofTheDay = !tail.isEmpty() && prefix.endsWith(tail, Qt::CaseInsensitive);
    return ofTheDay ? number : 0;
}

qint64 lastDayNumber(Connection& connection, const QDate& today)
{
    const qint64 counted = dayCounterValue(connection, today);
    if (counted >= 0)
        return counted;
    const QString tail = dayTail(today);
    if (tail.isEmpty())
        return 0;
    return highestHeld(connection, sqlLikeText(tail, LikeMatch::Anywhere),
        [&tail](const QString& prefix) { return prefix.endsWith(tail, Qt::CaseInsensitive); });
}

QString nextFreeRegIndex(Connection& connection, const QString& index, const QDate& today)
{
    const auto [prefix, number] = splitClosingNumber(index);
    const QString tail = dayTail(today);
    const bool ofTheDay = !tail.isEmpty() && prefix.endsWith(tail, Qt::CaseInsensitive);
    qint64 highest = number;
    if (ofTheDay) {
        highest = std::max(highest,
            highestHeld(connection, sqlLikeText(tail, LikeMatch::Anywhere),
                [&tail](const QString& stored) { return stored.endsWith(tail, Qt::CaseInsensitive); }));
        if (registerKeepsDayCounter(connection))
            highest = std::max(highest, dayCounterValue(connection, today));
    } else {
        highest = std::max(highest,
            highestHeld(connection, sqlLikeText(prefix, LikeMatch::Start), [&prefix](const QString& stored) {
                return stored.compare(prefix, Qt::CaseInsensitive) == 0;
            }));
    }
    return prefix + QString::number(highest + 1);
}

namespace {

// Runs work in a write transaction of connection that holds off every other writer of
// registration indexes.
template<typename Work>
auto withIndexLock(Connection& connection, Work work)
{
    connection.beginTrans();
    try {
        connection.lockForWriting(indexLock());
        auto result = work();
        connection.commitTrans();
        return result;
    } catch (...) {
        try {
            connection.rollbackTrans();
        } catch (...) {
            // The first error is the one to report.
        }
        throw;
    }
}

} // namespace

QString reserveFreeRegIndex(Connection& connection, const QString& index, const QDate& today)
{
    return withIndexLock(connection, [&] {
        const QString next = nextFreeRegIndex(connection, index, today);
        const qint64 number = dayNumberOf(next, today);
        if (number > 0 && registerKeepsDayCounter(connection))
            raiseDayCounter(connection, today, number);
        return next;
    });
}

void releaseRegIndex(Connection& connection, const QString& index, const QDate& today)
{
    const qint64 number = dayNumberOf(index, today);
    if (number <= 0)
        return;
    withIndexLock(connection, [&] {
        if (!registerKeepsDayCounter(connection))
            return false;
        const QString tail = dayTail(today);
        const qint64 held = highestHeld(connection, sqlLikeText(tail, LikeMatch::Anywhere),
            [&tail](const QString& prefix) { return prefix.endsWith(tail, Qt::CaseInsensitive); });
        if (held < number)
            giveBackDayNumber(connection, today, number);
        return true;
    });
}

void guardRegIndex(Recordset& document, std::function<QString()> index, qint32 documentId)
{
    auto check = [index, documentId](Connection& connection) {
        connection.lockForWriting(indexLock());
        const QString text = index();
        if (!text.trimmed().isEmpty() && regIndexTaken(connection, text, documentId))
            throw Error(ErrorNumber::DuplicateValue,
                QCoreApplication::translate(
                    "kartella::RegIndex", "The register already has a document with the index \"%1\".")
                    .arg(text));
    };
    auto count = [index](Connection& connection) {
        if (!registerKeepsDayCounter(connection))
            return;
        const QDate today = Clock::currentDate();
        const qint64 number = dayNumberOf(index(), today);
        if (number > 0)
            raiseDayCounter(connection, today, number);
    };
    document.setBatchWork(std::move(check), std::move(count));
}

QString regIndexSample(const QDate& today)
{
    const QDate stored = toStoredDate(option("Date"));
    if (today != stored)
        resetTodayNumber(today);
    return compose(QStringLiteral("AGR"), today, QStringLiteral("1"));
}

} // namespace kartella
