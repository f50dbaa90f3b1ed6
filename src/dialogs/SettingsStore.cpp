#include "dialogs/SettingsStore.h"

#include "options/OptionStore.h"
#include "registration/ValueConversions.h"

#include <QStringList>

namespace kartella {

namespace {

const QStringList& providers()
{
    static const QStringList list
        = {QStringLiteral("Microsoft.Jet.OLEDB.4.0"), QStringLiteral("Microsoft.Jet.OLEDB.3.51")};
    return list;
}

} // namespace

QString providerForListIndex(int listIndex)
{
    return providers().value(listIndex);
}

int listIndexForProvider(const QString& provider)
{
    return static_cast<int>(providers().indexOf(provider));
}

QString iniCheckBoxText(bool checked)
{
    return numberWithSignPlace(checked ? 1 : 0);
}

bool writeConfirmedSettings(const ConfirmedSettings& settings)
{
    const std::pair<const char*, QString> keys[] = {
        {"AllDocs", settings.defaultFolder},
        {"FilterByDateOn", iniCheckBoxText(settings.filterByDate)},
        {"Network", iniCheckBoxText(settings.network)},
        {"Company", settings.company},
        {"Name", settings.name},
        {"Address", settings.address},
        {"City", settings.city},
        {"Country", settings.country},
        {"State", settings.state},
        {"Postal_Code", settings.postalCode},
    };
    bool written = true;
    for (const auto& [key, value] : keys)
        written = writeIniValue(QString::fromLatin1(key), value) && written;

    // Only a chosen item sets the provider: typed text or no selection keeps the old one.
    const QString provider = providerForListIndex(settings.databaseType);
    if (!provider.isEmpty())
        setRegValue(QStringLiteral("Provider"), provider);
    setRegValue(QStringLiteral("Filter"), settings.filterByDate ? 1 : 0);
    setRegValue(QStringLiteral("Network"), settings.network ? 1 : 0);
    setRegValue(QStringLiteral("DbLocation"), settings.dbLocation);
    return written;
}

QString sourcePanelText(const QString& dbLocation)
{
    return QStringLiteral("Source : ") + dbLocation + QStringLiteral("   ");
}

} // namespace kartella
