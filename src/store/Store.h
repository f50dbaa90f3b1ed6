#pragma once

#include "store/engine/Value.h"

#include <QString>
#include <QVariant>

namespace kartella {

// The connection string forms, each built from the options Provider and DbLocation as
// they stand at the moment of the call. Note the blank after "Data Source=".
QString plainConnectionString(); // "Provider=P;Data Source= L"
QString upperConnectionString(); // "PROVIDER=P;Data Source= L"
QString shapeConnectionString(); // "PROVIDER=MSDataShape;Data Provider=P;Data Source= L"
QString shapePrefixConnectionString(); // "PROVIDER=MSDataShape;Data " + the plain form
QString shapeUpperConnectionString(); // "PROVIDER=MSDataShape;Data PROVIDER=P;Data Source= L;"

// The same forms from given values.
QString plainConnectionString(const QString& provider, const QString& location);
QString upperConnectionString(const QString& provider, const QString& location);
QString shapeConnectionString(const QString& provider, const QString& location);
QString shapePrefixConnectionString(const QString& provider, const QString& location);
QString shapeUpperConnectionString(const QString& provider, const QString& location);

// The mark a database Null shows as in a list.
inline const QString NullMark = QStringLiteral("*_*_*_*");

// value itself, or "*_*_*_*" for Null.
QVariant nullToMark(const QVariant& value);
// value itself, or defaultValue for Null.
QVariant nullToDefault(const QVariant& value, const QVariant& defaultValue);
// The text of a value for a list: Null as the mark, dates in the system's short date form.
QString displayText(const QVariant& value);

} // namespace kartella
