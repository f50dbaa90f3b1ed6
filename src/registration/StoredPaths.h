#pragma once

#include <QString>

namespace kartella {

// The part of path behind its last separator ("/" or "\"); a text without one comes back
// whole.
QString fileNameOf(const QString& path);

// Where a copy or move of source into folder lands: folder, a separator, source's file
// name. A folder typed with a trailing separator keeps it, which the file system accepts.
QString targetInFolder(const QString& folder, const QString& source);

// The statement that stores path as the file of a document (related false, id a RastasID)
// or of a related document (related true, id a SubRastasID). The path is quoted as a text
// literal, so an apostrophe in it is safe.
QString storedPathStatement(bool related, qint32 id, const QString& path);

// Runs storedPathStatement on a connection of its own to the register of the options.
// Throws kartella::Error when the register refuses it.
void storeMovedPath(bool related, qint32 id, const QString& path);

} // namespace kartella
