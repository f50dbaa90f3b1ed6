#include "dialogs/SettingsStore.h"

#include "options/OptionStore.h"
#include "registration/ValueConversions.h"
#include "store/engine/Connection.h"

#include <QStringList>
#include <QUrl>

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

bool serverLocationHoldsPassword(const QString& location)
{
    if (!isServerLocation(location))
        return false;
    const QString text = location.trimmed();
    const qsizetype start = text.indexOf(QLatin1String("://")) + 3;
    qsizetype hostEnd = start;
    while (hostEnd < text.size() && text[hostEnd] != u'/' && text[hostEnd] != u'?')
        ++hostEnd;
    // user[:password]@host[:port]: the user part ends at the first "@", as the client reads it.
    const QStringView hosts = QStringView(text).mid(start, hostEnd - start);
    const qsizetype at = hosts.indexOf(u'@');
    const qsizetype colon = at < 0 ? -1 : hosts.left(at).indexOf(u':');
    if (colon >= 0 && colon + 1 < at)
        return true;
    const qsizetype query = text.indexOf(u'?', start);
    if (query < 0)
        return false;
    for (const QString& parameter : text.mid(query + 1).split(u'&')) {
        const qsizetype eq = parameter.indexOf(u'=');
        const QString name
            = QUrl::fromPercentEncoding(parameter.left(eq < 0 ? parameter.size() : eq).toUtf8());
        if (name.trimmed().compare(QLatin1String("password"), Qt::CaseInsensitive) == 0 && eq >= 0
            && eq + 1 < parameter.size())
            return true;
    }
    return false;
}

QString serverPasswordFileName()
{
#ifdef Q_OS_WIN
    return QStringLiteral("%APPDATA%\\postgresql\\pgpass.conf");
#else
    return QStringLiteral("~/.pgpass");
#endif
}

} // namespace kartella
