#include "store/engine/ConnectionString.h"

namespace kartella::engine {

ConnectionTarget parseConnectionString(const QString& connectionString)
{
    ConnectionTarget target;
    QString provider;
    QString dataProvider;
    qsizetype pos = 0;
    const qsizetype n = connectionString.size();
    while (pos < n) {
        const qsizetype equals = connectionString.indexOf(u'=', pos);
        if (equals < 0)
            break;
        const QString key = connectionString.mid(pos, equals - pos).trimmed().simplified();
        if (key.compare(u"Data Source", Qt::CaseInsensitive) == 0) {
            // The last key: its value may hold blanks and semicolons; one closing ; goes.
            QString value = connectionString.mid(equals + 1);
            if (value.endsWith(u';'))
                value.chop(1);
            target.dataSource = value.trimmed();
            break;
        }
        qsizetype end = connectionString.indexOf(u';', equals + 1);
        if (end < 0)
            end = n;
        const QString value = connectionString.mid(equals + 1, end - equals - 1).trimmed();
        if (key.compare(u"Provider", Qt::CaseInsensitive) == 0)
            provider = value;
        else if (key.compare(u"Data Provider", Qt::CaseInsensitive) == 0)
            dataProvider = value;
        pos = end + 1;
    }
    target.shaped = provider.compare(u"MSDataShape", Qt::CaseInsensitive) == 0;
    target.provider = target.shaped ? dataProvider : provider;
    return target;
}

bool isJetProvider(const QString& provider)
{
    return provider.compare(Jet40Provider, Qt::CaseInsensitive) == 0
        || provider.compare(Jet351Provider, Qt::CaseInsensitive) == 0;
}

} // namespace kartella::engine
