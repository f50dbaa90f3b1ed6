#pragma once

#include <QString>

namespace kartella {

// Document > New Version...: asks for a file (through the Prompter) and puts its content in
// place of the document's file at currentPath, keeping the earlier file as a version. Given
// a file (one dropped on the document), asks only whether to replace. Tells the user why
// nothing happens (no document, no file) or what failed. True when replaced.
bool replaceWithNewVersion(qint64 documentId, const QString& currentPath, const QString& newFile = {});

// Whether the document has a file that a new version can replace; tells the user when not.
bool hasReplaceableFile(qint64 documentId, const QString& currentPath);
// Puts newFile's content in place of the document's file at currentPath, keeping the earlier
// file as a version; tells the user what failed. True when replaced.
bool putNewVersion(qint64 documentId, const QString& currentPath, const QString& newFile);

} // namespace kartella
