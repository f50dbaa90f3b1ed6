#include "registration/RegIndex.h"

#include "options/OptionStore.h"
#include "registration/CategoryFields.h"
#include "registration/ValueConversions.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"
#include "store/engine/Value.h"

namespace kartella {

namespace {

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

    QDate date = stored;
    qint16 number = 1;
    if (today != stored) {
        resetTodayNumber(today);
        date = today;
    } else {
        number = leadingInteger16(option("TodayNumber"));
    }

    // With no category chosen yet the index simply has no mnemonic.
    const bool noCategory = isNull(category) || category.toString().isEmpty();
    const QVariant mnemonic
        = noCategory ? QVariant() : categoryField(toLong(category), QStringLiteral("Mnemonic"));
    return compose(nullToDefault(mnemonic, QString()).toString(), date, QString::number(number));
}

bool regIndexTaken(Connection& connection, const QString& index)
{
    Recordset rows;
    rows.open(QStringLiteral("SELECT COUNT(*) AS N FROM tbl_Documents WHERE DokRegistracIndeksas LIKE ")
            + sqlLikeText(index),
        connection);
    const bool taken = rows.fields(QStringLiteral("N")).value().toInt() > 0;
    rows.close();
    return taken;
}

QString nextFreeRegIndex(Connection& connection, const QString& index, const QDate& today)
{
    const auto [prefix, number] = splitClosingNumber(index);
    const QString dayTail
        = formatIndexDate(today, getRegInteger(QStringLiteral("IndexStyle"))) + option("Separator2");
    const bool ofTheDay = !dayTail.isEmpty() && prefix.endsWith(dayTail, Qt::CaseInsensitive);
    const QString pattern
        = ofTheDay ? sqlLikeText(dayTail, LikeMatch::Anywhere) : sqlLikeText(prefix, LikeMatch::Start);

    qint64 highest = number;
    Recordset rows;
    rows.open(
        QStringLiteral("SELECT DokRegistracIndeksas FROM tbl_Documents WHERE DokRegistracIndeksas LIKE ")
            + pattern,
        connection);
    while (!rows.eof()) {
        const auto [storedPrefix, storedNumber]
            = splitClosingNumber(rows.fields(QStringLiteral("DokRegistracIndeksas")).value().toString());
        const bool counts = ofTheDay ? storedPrefix.endsWith(dayTail, Qt::CaseInsensitive)
                                     : storedPrefix.compare(prefix, Qt::CaseInsensitive) == 0;
        if (counts)
            highest = std::max(highest, storedNumber);
        rows.moveNext();
    }
    rows.close();
    return prefix + QString::number(highest + 1);
}

QString regIndexSample(const QDate& today)
{
    const QDate stored = toStoredDate(option("Date"));
    if (today != stored)
        resetTodayNumber(today);
    return compose(QStringLiteral("AGR"), today, QStringLiteral("1"));
}

} // namespace kartella
