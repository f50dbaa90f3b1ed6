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

namespace {
using Form = QString (*)(const QString&, const QString&);

// A form from the options as they stand now: Provider is read before DbLocation.
QString fromOptions(Form form)
{
    const QString provider = GetRegValue(QStringLiteral("Provider"));
    return form(provider, GetRegValue(QStringLiteral("DbLocation")));
}
} // namespace

QString PlainConnectionString()
{
    return fromOptions(&PlainConnectionString);
}

QString UpperConnectionString()
{
    return fromOptions(&UpperConnectionString);
}

QString ShapeConnectionString()
{
    return fromOptions(&ShapeConnectionString);
}

QString ShapePrefixConnectionString()
{
    return fromOptions(&ShapePrefixConnectionString);
}

QString ShapeUpperConnectionString()
{
    return fromOptions(&ShapeUpperConnectionString);
}

} // namespace kartella
