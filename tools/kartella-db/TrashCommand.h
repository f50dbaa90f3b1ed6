#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::tool {

// The register's trash from the command line. Each throws kartella::Error when it can't do
// what it says: no register, a register without a trash (older than this program), no such
// deleted document, a file that can't be put back.

// One line per deleted item, newest first: kind, registration index (or name), who, when
// (UTC), tab-separated; "The trash is empty." when there is none.
void trashCommand(const QString& path, QTextStream& out);
// Puts back the deleted document of the registration index, with its related documents,
// reminders and files; says where a file went whose path was taken meanwhile.
void restoreCommand(const QString& path, const QString& registrationIndex, QTextStream& out);
// Deletes for good the items deleted more than days days ago; says how many.
void purgeCommand(const QString& path, int days, QTextStream& out);

} // namespace kartella::tool
