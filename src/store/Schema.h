#pragma once

#include <QString>

namespace kartella {

class Connection;

// Makes the register's tables, keys, views and triggers on an open, empty connection, in
// their newest form, and sets the register's schema version.
void createRegisterSchema(Connection& connection);

// Creates a new, empty register at location: a file at a path, refused (kartella::Error)
// when a file is already there or the folder can't be written; or, for a server location
// (postgresql://user@host:port/db), the schema in that database, refused when the database
// holds tables already.
void createRegister(const QString& location);

} // namespace kartella
