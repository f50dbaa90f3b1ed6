#include "options/OptionStore.h"
#include "store/Store.h"

namespace kartella {

QString plainConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("Provider=") + provider + QStringLiteral(";Data Source= ") + location;
}

QString upperConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("PROVIDER=") + provider + QStringLiteral(";Data Source= ") + location;
}

QString shapeConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("PROVIDER=MSDataShape;Data Provider=") + provider + QStringLiteral(";Data Source= ")
        + location;
}

QString shapePrefixConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("PROVIDER=MSDataShape;Data ") + plainConnectionString(provider, location);
}

QString shapeUpperConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("PROVIDER=MSDataShape;Data PROVIDER=") + provider + QStringLiteral(";Data Source= ")
        + location + u';';
}

namespace {
using Form = QString (*)(const QString&, const QString&);

// A form from the options as they stand now: Provider is read before DbLocation.
QString fromOptions(Form form)
{
    const QString provider = getRegValue(QStringLiteral("Provider"));
    return form(provider, getRegValue(QStringLiteral("DbLocation")));
}
} // namespace

QString plainConnectionString()
{
    return fromOptions(&plainConnectionString);
}

QString upperConnectionString()
{
    return fromOptions(&upperConnectionString);
}

QString shapeConnectionString()
{
    return fromOptions(&shapeConnectionString);
}

QString shapePrefixConnectionString()
{
    return fromOptions(&shapePrefixConnectionString);
}

QString shapeUpperConnectionString()
{
    return fromOptions(&shapeUpperConnectionString);
}

} // namespace kartella
