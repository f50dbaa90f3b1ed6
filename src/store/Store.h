#pragma once

#include "store/engine/Value.h"

#include <QString>
#include <QVariant>

namespace kartella {

// The connection string forms, each built from the options Provider and DbLocation as
// they stand at the moment of the call. Note the blank after "Data Source=".
QString PlainConnectionString(); // "Provider=P;Data Source= L"
QString UpperConnectionString(); // "PROVIDER=P;Data Source= L"
QString ShapeConnectionString(); // "PROVIDER=MSDataShape;Data Provider=P;Data Source= L"
QString ShapePrefixConnectionString(); // "PROVIDER=MSDataShape;Data " + the plain form
QString ShapeUpperConnectionString(); // "PROVIDER=MSDataShape;Data PROVIDER=P;Data Source= L;"

// The same forms from given values.
QString PlainConnectionString(const QString& provider, const QString& location);
QString UpperConnectionString(const QString& provider, const QString& location);
QString ShapeConnectionString(const QString& provider, const QString& location);
QString ShapePrefixConnectionString(const QString& provider, const QString& location);
QString ShapeUpperConnectionString(const QString& provider, const QString& location);

// The mark a database Null shows as in a list.
inline const QString NullMark = QStringLiteral("*_*_*_*");

// value itself, or "*_*_*_*" for Null.
QVariant NullToMark(const QVariant& value);
// value itself, or defaultValue for Null.
QVariant NullToDefault(const QVariant& value, const QVariant& defaultValue);
// The text of a value for a list: Null as the mark, dates in the system's short date form.
QString DisplayText(const QVariant& value);

} // namespace kartella
