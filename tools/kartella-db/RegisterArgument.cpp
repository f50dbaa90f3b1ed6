#include "RegisterArgument.h"

#include "ToolText.h"
#include "base/Error.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QDir>
#include <QFileInfo>

namespace kartella::tool {

QString registerLocation(const QString& argument)
{
    if (isServerLocation(argument))
        return argument;
    return QFileInfo(argument).absoluteFilePath();
}

QString existingRegister(const QString& argument)
{
    const QString location = registerLocation(argument);
    if (!isServerLocation(location) && !QFileInfo(location).isFile())
        throw Error(ErrorNumber::PathFileAccess,
            ToolText::tr("no register at \"%1\"").arg(QDir::toNativeSeparators(location)));
    return location;
}

QString registerConnectionString(const QString& location)
{
    return plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), location);
}

} // namespace kartella::tool
