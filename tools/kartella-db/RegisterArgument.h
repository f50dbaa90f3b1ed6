#pragma once

#include <QString>

namespace kartella::tool {

// A register named on the command line: the path of a register file, or the location of a
// register on a database server (postgresql://user@host:port/database), which goes to the
// engine exactly as written; the password comes from ~/.pgpass or PGPASSWORD, never from
// the command line.

// The location to open: a file path made absolute, a server location unchanged.
QString registerLocation(const QString& argument);

// The location of a register that must exist already: as registerLocation, and throws
// kartella::Error ("no register at ...") when no file is at a file path. A server location
// is not checked here: opening it tells whether it is there.
QString existingRegister(const QString& argument);

// The connection string the tool opens a register location with.
QString registerConnectionString(const QString& location);

} // namespace kartella::tool
