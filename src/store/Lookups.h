#pragma once

#include <QString>
#include <QVariant>

namespace kartella {

// One-field lookups by key, each on a connection of its own made from the options.
// Errors (no database, a bad table or field name) throw kartella::Error.

// "SELECT <key>,<field> FROM <table> WHERE <key>=<id>": the field of the first row, or
// Null when no row has that id.
QVariant getFieldValue(const QString& keyField, const QString& valueField, const QString& table, qint32 id);
// FullName of a contact; "*_*_*_*" for a Null id (without touching the database) or a
// Null name.
QString getContactName(const QVariant& contactId);
// DokKategorija of a category, likewise.
QString getCategoryName(const QVariant& categoryId);

} // namespace kartella
