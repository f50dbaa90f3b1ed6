#include "options/OptionStore.h"
#include "store/Store.h"

namespace kartella {

QString PlainConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("Provider=") + provider + QStringLiteral(";Data Source= ") + location;
}

QString UpperConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("PROVIDER=") + provider + QStringLiteral(";Data Source= ") + location;
}

QString ShapeConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("PROVIDER=MSDataShape;Data Provider=") + provider + QStringLiteral(";Data Source= ")
        + location;
}

QString ShapePrefixConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("PROVIDER=MSDataShape;Data ") + PlainConnectionString(provider, location);
}

QString ShapeUpperConnectionString(const QString& provider, const QString& location)
{
    return QStringLiteral("PROVIDER=MSDataShape;Data PROVIDER=") + provider + QStringLiteral(";Data Source= ")
        + location + u';';
}

// Provider is read before DbLocation, each at the moment of the call.
QString PlainConnectionString()
{
    const QString provider = GetRegValue(QStringLiteral("Provider"));
    return PlainConnectionString(provider, GetRegValue(QStringLiteral("DbLocation")));
}

QString UpperConnectionString()
{
    const QString provider = GetRegValue(QStringLiteral("Provider"));
    return UpperConnectionString(provider, GetRegValue(QStringLiteral("DbLocation")));
}

QString ShapeConnectionString()
{
    const QString provider = GetRegValue(QStringLiteral("Provider"));
    return ShapeConnectionString(provider, GetRegValue(QStringLiteral("DbLocation")));
}

QString ShapePrefixConnectionString()
{
    const QString provider = GetRegValue(QStringLiteral("Provider"));
    return ShapePrefixConnectionString(provider, GetRegValue(QStringLiteral("DbLocation")));
}

QString ShapeUpperConnectionString()
{
    const QString provider = GetRegValue(QStringLiteral("Provider"));
    return ShapeUpperConnectionString(provider, GetRegValue(QStringLiteral("DbLocation")));
}

} // namespace kartella
