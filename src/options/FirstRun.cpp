#include "options/FirstRun.h"

#include "options/OptionStore.h"

#include <QList>
#include <QPair>

namespace kartella {

bool seedOptionsIfMissing(const QDate& today)
{
    if (optionsKeyExists())
        return false;
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
    for (const auto& [name, value] : initial) {
        if (!writeRegValue(Hive::CurrentUser, optionsKeyPath(), name, value))
            return false;
    }
    return true;
}

} // namespace kartella
