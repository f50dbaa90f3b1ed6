#include "dialogs/SettingsStore.h"

#include "options/OptionStore.h"
#include "registration/ValueConversions.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace kartella {

namespace {

const QStringList& providers()
{
    static const QStringList list
        = {QStringLiteral("Microsoft.Jet.OLEDB.4.0"), QStringLiteral("Microsoft.Jet.OLEDB.3.51")};
    return list;
}

// user:password@ in a URL. The user part ends at the first ":" and the password at the
// last "@" before the host's end, so that a password holding "@" is taken whole.
const QRegularExpression& userPassword()
{
    static const QRegularExpression form(QStringLiteral("(://[^\\s/?#@:]*):(?<password>[^\\s/?#]*)@"));
    return form;
}

// password=value as a URL parameter or a keyword of the database client: the name may be
// percent-encoded, blanks may stand around "=", the value may be quoted. The blanks after
// the value go with it, so that what is left reads as one list of keywords.
const QRegularExpression& passwordKeyword()
{
    static const QRegularExpression form = [] {
        QString name;
        for (const char letter : {'p', 'a', 's', 's', 'w', 'o', 'r', 'd'})
            name += QStringLiteral("(?:") + QLatin1Char(letter) + QStringLiteral("|%")
                + QString::number(int(letter), 16) + QStringLiteral("|%")
                + QString::number(int(letter) - 0x20, 16) + u')';
        return QRegularExpression(QStringLiteral("(^|[\\s?&;])\\s*") + name
                + QStringLiteral("\\s*=\\s*(?<password>'(?:[^'\\\\]|\\\\.)*'|[^\\s&;]*)[ \\t]*"),
            QRegularExpression::CaseInsensitiveOption);
    }();
    return form;
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
    const std::pair<const char*, std::optional<QString>> keys[] = {
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
    for (const auto& [key, value] : keys) {
        if (value && !writeIniValue(QString::fromLatin1(key), *value))
            return false;
    }

    // Only a chosen item sets the provider: typed text or no selection keeps the old one.
    const QString provider = providerForListIndex(settings.databaseType);
    if (!provider.isEmpty())
        setRegValue(QStringLiteral("Provider"), provider);
    setRegValue(QStringLiteral("Filter"), settings.filterByDate ? 1 : 0);
    setRegValue(QStringLiteral("Network"), settings.network ? 1 : 0);
    setRegValue(QStringLiteral("DbLocation"), settings.dbLocation);
    return true;
}

QString sourcePanelText(const QString& dbLocation)
{
    return QCoreApplication::translate("kartella::SettingsStore", "Source : %1   ")
        .arg(withoutPasswords(dbLocation));
}

bool locationHoldsPassword(const QString& location)
{
    for (const QRegularExpression* form : {&userPassword(), &passwordKeyword()}) {
        QRegularExpressionMatchIterator it = form->globalMatch(location);
        while (it.hasNext()) {
            const QString value = it.next().captured(QStringLiteral("password"));
            if (!value.isEmpty() && value != QLatin1String("''"))
                return true;
        }
    }
    return false;
}

QString withoutPasswords(const QString& text)
{
    QString shown = text;
    shown.replace(userPassword(), QStringLiteral("\\1@"));
    shown.replace(passwordKeyword(), QStringLiteral("\\1"));
    return shown;
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
