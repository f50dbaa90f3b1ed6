#include "options/FirstRun.h"

#include "options/OptionStore.h"

#include <QList>
#include <QPair>

namespace kartella {

bool seedOptionsIfMissing(const QDate& today)
{
    const QList<QPair<QString, QString>> initial = {
        {QStringLiteral("Provider"), QStringLiteral("Microsoft.Jet.OLEDB.4.0")},
        {QStringLiteral("Filter"), QStringLiteral("0")},
        {QStringLiteral("Network"), QStringLiteral("0")},
        {QStringLiteral("AutoRegIndex"), QStringLiteral("1")},
        {QStringLiteral("UseMnemonic"), QStringLiteral("1")},
        {QStringLiteral("IndexStyle"), QStringLiteral("1")},
        {QStringLiteral("Separator1"), QStringLiteral("-")},
        {QStringLiteral("Separator2"), QStringLiteral("/")},
        {QStringLiteral("FileName"), QStringLiteral("0")},
        {QStringLiteral("Date"), today.toString(QStringLiteral("yyyy MM dd"))},
        {QStringLiteral("TodayNumber"), QStringLiteral("1")},
        {QStringLiteral("FileNumber"), QStringLiteral(" 1")},
    };
    // One write for all of them, so that a failure leaves no half a key; a key left
    // incomplete all the same (by an older version, or by hand) gets the values it lacks.
    return writeRegValues(Hive::CurrentUser, optionsKeyPath(), initial, true) > 0;
}

} // namespace kartella
