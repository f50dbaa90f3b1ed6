#pragma once

#include <QString>

namespace kartella::engine {

// What a connection string asks for. The MSDataShape forms name the real provider under
// "Data Provider"; Data Source is always the last key and takes the rest of the string.
struct ConnectionTarget
{
    QString provider; // the provider that reaches the data, not MSDataShape
    QString dataSource; // trimmed
    bool shaped = false;
};

ConnectionTarget parseConnectionString(const QString& connectionString);

// The two Jet providers, which the embedded back end stands in for.
bool isJetProvider(const QString& provider);
inline const QString Jet40Provider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");
inline const QString Jet351Provider = QStringLiteral("Microsoft.Jet.OLEDB.3.51");

} // namespace kartella::engine
