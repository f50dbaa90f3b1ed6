#pragma once

#include <QString>

namespace kartella {

class Connection;

// Makes the register's tables, keys, views and triggers on an open, empty connection, in
// their newest form, and sets the register's schema version.
void createRegisterSchema(Connection& connection);

// Creates a new, empty register file at path; refuses (kartella::Error) when a file is
// already there or the folder can't be written.
void createRegister(const QString& path);

} // namespace kartella
