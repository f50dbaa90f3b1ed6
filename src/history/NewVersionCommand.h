#pragma once

#include <QString>

namespace kartella {

// Document > New Version...: asks for a file (through the Prompter) and puts its content in
// place of the document's file at currentPath, keeping the earlier file as a version. Tells
// the user why nothing happens (no document, no file) or what failed. True when replaced.
bool replaceWithNewVersion(qint64 documentId, const QString& currentPath);

} // namespace kartella
