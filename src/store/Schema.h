#pragma once

#include <QString>

namespace kartella {

class Connection;

// The collation that name columns carry: case and the Lithuanian letters fold onto their
// base letters (Ą→A, Č→C, Ę/Ė→E, Į→I, Š→S, Ų/Ū→U, Ž→Z) when rows are ordered by name.
inline constexpr const char* NameCollation = "NAMEFOLD";

// Makes the register's tables, keys, views and triggers on an open, empty connection.
void createRegisterSchema(Connection& connection);

// Creates a new, empty register file at path; refuses (kartella::Error) when a file is
// already there or the folder can't be written.
void createRegister(const QString& path);

} // namespace kartella
